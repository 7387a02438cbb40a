#include "core/printer.h"

namespace core {

void StreamPrinter::setFont(const std::string& name, double size, bool bold) {
    font_ = name;
    size_ = size;
    bold_ = bold;
}

void StreamPrinter::print(const std::string& text, bool newLine) {
    pending_ += text;
    pendingOpen_ = true;
    if (newLine) flushLine();
}

void StreamPrinter::startPage() {
    sink_->beginPage();
    ++docPages_;
    anyPage_ = true;
}

void StreamPrinter::flushLine() {
    if (docPages_ == 0 || feed_) startPage();
    feed_ = false;
    sink_->line(openLine());
    pending_.clear();
    pendingOpen_ = false;
}

void StreamPrinter::newPage() {
    if (pendingOpen_) flushLine();
    if (docPages_ == 0 || feed_) startPage();
    feed_ = true;
}

void StreamPrinter::endDoc() {
    if (pendingOpen_) flushLine();
    // A page feed with nothing printed after it gives no sheet.
    feed_ = false;
    if (docPages_ > 0) sink_->endDoc();
    docPages_ = 0;
}

void StreamPrinter::finish() {
    if (pendingOpen_ && docPages_ == 0 && anyPage_) {
        // A line begun after the end of a document stays on the last sheet.
        sink_->line(openLine());
        pending_.clear();
        pendingOpen_ = false;
        return;
    }
    if (pendingOpen_) flushLine();
    else if (feed_) startPage();
    feed_ = false;
}

void TextPrinter::Kept::endDoc() {
    docs.push_back(std::move(current));
    current.clear();
}

std::vector<TextPrinter::Page> TextPrinter::pages() const {
    std::vector<Page> all;
    for (const auto& d : kept_.docs) all.insert(all.end(), d.begin(), d.end());
    all.insert(all.end(), kept_.current.begin(), kept_.current.end());
    if (feedPending()) all.emplace_back();
    if (lineOpen()) {
        if (all.empty()) all.emplace_back();
        all.back().push_back(openLine());
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
