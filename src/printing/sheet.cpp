#include "printing/sheet.h"

#include <algorithm>

#include "core/text.h"

namespace printing {

Sheet fitSheet(const std::vector<core::TextPrinter::Page>& pages) {
    double wide = 1, tall = 1;
    for (const auto& page : pages) {
        double h = 0;
        for (const auto& line : page) {
            wide = std::max(wide, static_cast<double>(core::Len(line.text)) * line.size * kCharWidth);
            h += line.size * kLineHeight;
        }
        tall = std::max(tall, h);
    }
    Sheet portrait, landscape;
    landscape.landscape = true;
    std::swap(landscape.width, landscape.height);
    for (Sheet* s : {&portrait, &landscape}) {
        double w = s->width - 2 * s->margin, h = s->height - 2 * s->margin;
        s->scale = std::min({1.0, w / wide, h / tall});
    }
    return landscape.scale > portrait.scale ? landscape : portrait;
}

}  // namespace printing
