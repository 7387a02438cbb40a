#include "core/printer.h"

namespace core {

void TextPrinter::setFont(const std::string& name, double size, bool bold) {
    font_ = name;
    size_ = size;
    bold_ = bold;
}

void TextPrinter::print(const std::string& text, bool newLine) {
    pending_ += text;
    pendingOpen_ = true;
    if (newLine) flushLine();
}

void TextPrinter::flushLine() {
    if (current_.empty()) current_.emplace_back();
    current_.back().push_back({pending_, bold_, size_, font_});
    pending_.clear();
    pendingOpen_ = false;
}

void TextPrinter::newPage() {
    if (pendingOpen_) flushLine();
    if (current_.empty()) current_.emplace_back();
    current_.emplace_back();
}

void TextPrinter::endDoc() {
    if (pendingOpen_) flushLine();
    // A page feed with nothing printed after it gives no sheet.
    if (current_.size() > 1 && current_.back().empty()) current_.pop_back();
    if (!current_.empty()) docs_.push_back(std::move(current_));
    current_.clear();
}

std::vector<TextPrinter::Page> TextPrinter::pages() const {
    std::vector<Page> all;
    for (const auto& d : docs_) all.insert(all.end(), d.begin(), d.end());
    all.insert(all.end(), current_.begin(), current_.end());
    if (pendingOpen_) {
        if (all.empty()) all.emplace_back();
        all.back().push_back({pending_, bold_, size_, font_});
    }
    return all;
}

std::string TextPrinter::text() const {
    std::string out;
    bool first = true;
    for (const Page& p : pages()) {
        if (!first) out += '\f';
        first = false;
        for (const Line& l : p) out += l.text + "\n";
    }
    return out;
}

}  // namespace core
