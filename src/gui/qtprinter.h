// The printer of the program: the engine prints lines; at the end of each document the pages
// are shown in a print preview, from which the operator prints them on a system printer or
// saves them as PDF.
#pragma once
#include <QString>
#include <vector>

#include "core/printer.h"

class QPainter;
class QPagedPaintDevice;
class QWidget;

namespace gui {

// Draws the pages on a paged device (a printer, a PDF writer) in the sheet's orientation.
void renderPages(QPagedPaintDevice& device, const std::vector<core::TextPrinter::Page>& pages);
// Writes the pages as PDF through Qt's own fonts ("Courier New" is its metric twin).
bool savePdf(const std::vector<core::TextPrinter::Page>& pages, const QString& file);

class QtPrinter : public core::TextPrinter {
public:
    explicit QtPrinter(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* p) { parent_ = p; }
    // Shows the finished document in the preview.
    void endDoc() override;
    // Without a window (tests) the documents are only collected.
    bool preview = true;

private:
    QWidget* parent_;
};

}  // namespace gui
