// Printed pages as a PDF file (the fixed-pitch Courier of the PDF reader, Polish letters
// included), for printing without the desktop.
#pragma once
#include <filesystem>
#include <vector>

#include "core/printer.h"
#include "printing/spool.h"

namespace printing {

// Writes the pages to `file` safely (a failure leaves no half-written file), page by page.
void writePdf(const Spool& pages, const std::filesystem::path& file);
void writePdf(const std::vector<core::TextPrinter::Page>& pages, const std::filesystem::path& file);

}  // namespace printing
