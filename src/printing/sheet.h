// Pages of printed text on A4 sheets: the orientation and the scale of the fonts that keep the
// widest line and the longest page on the sheet. Shared by the PDF writer and the Qt printer.
#pragma once
#include <vector>

#include "core/printer.h"

namespace printing {

struct Sheet {
    bool landscape = false;
    double scale = 1;          // applied to every font size
    double width = 595.276;    // points
    double height = 841.89;
    double margin = 28.35;     // 1 cm
};

// Fixed-pitch fonts are 0.6 of their size wide; a line takes 1.2 of its size.
constexpr double kCharWidth = 0.6;
constexpr double kLineHeight = 1.2;

// The measures of pages taken line by line as they are printed.
class SheetFit {
public:
    void beginPage() { wysokoscStrony = 0; }
    void line(const core::PrintLine& l);
    Sheet sheet() const;

private:
    double najszerszy = 1, najwyzszy = 1, wysokoscStrony = 0;
};

Sheet fitSheet(const std::vector<core::TextPrinter::Page>& pages);

}  // namespace printing
