// Printed pages kept in a temporary file as they are printed, with the measures of their sheet,
// and read back page by page by whatever draws them (the PDF writer, the Qt preview and
// printer): the whole print is never held in memory.
#pragma once
#include <cstdio>
#include <vector>

#include "core/printer.h"
#include "printing/sheet.h"

namespace printing {

class Spool : public core::PageSink {
public:
    // Error 75 when no temporary file can be made.
    Spool();
    ~Spool() override;
    Spool(const Spool&) = delete;
    Spool& operator=(const Spool&) = delete;

    void beginPage() override;
    void line(const core::PrintLine& l) override;

    int pageCount() const { return liczbaStron; }
    Sheet sheet() const { return dopasowanie.sheet(); }
    // Gives the pages in order to `to` (beginPage, then the page's lines), as often as asked.
    void replay(core::PageSink& to) const;
    // The pages as lines (for the tests and short prints).
    std::vector<core::TextPrinter::Page> pages() const;
    // Forgets what was printed.
    void clear();

private:
    std::FILE* plikTymczasowy;
    int liczbaStron = 0;
    SheetFit dopasowanie;
};

}  // namespace printing
