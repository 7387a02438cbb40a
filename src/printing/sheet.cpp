#include "printing/sheet.h"

#include <algorithm>

#include "core/text.h"

namespace printing {

void SheetFit::line(const core::PrintLine& l) {
    wide_ = std::max(wide_, static_cast<double>(core::Len(l.text)) * l.size * kCharWidth);
    tall_ += l.size * kLineHeight;
    tallest_ = std::max(tallest_, tall_);
}

Sheet SheetFit::sheet() const {
    Sheet portrait, landscape;
    landscape.landscape = true;
    std::swap(landscape.width, landscape.height);
    for (Sheet* s : {&portrait, &landscape}) {
        double w = s->width - 2 * s->margin, h = s->height - 2 * s->margin;
        s->scale = std::min({1.0, w / wide_, h / tallest_});
    }
    return landscape.scale > portrait.scale ? landscape : portrait;
}

Sheet fitSheet(const std::vector<core::TextPrinter::Page>& pages) {
    SheetFit fit;
    for (const auto& page : pages) {
        fit.beginPage();
        for (const auto& line : page) fit.line(line);
    }
    return fit.sheet();
}

}  // namespace printing
