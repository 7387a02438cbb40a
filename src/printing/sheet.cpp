#include "printing/sheet.h"

#include <algorithm>

#include "core/text.h"

namespace printing {

void SheetFit::line(const core::PrintLine& l) {
    najszerszy = std::max(najszerszy, static_cast<double>(core::Len(l.text)) * l.size * kCharWidth);
    wysokoscStrony += l.size * kLineHeight;
    najwyzszy = std::max(najwyzszy, wysokoscStrony);
}

Sheet SheetFit::sheet() const {
    Sheet portrait, landscape;
    landscape.landscape = true;
    std::swap(landscape.width, landscape.height);
    for (Sheet* s : {&portrait, &landscape}) {
        double w = s->width - 2 * s->margin, h = s->height - 2 * s->margin;
        s->scale = std::min({1.0, w / najszerszy, h / najwyzszy});
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
