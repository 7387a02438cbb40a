// The printer of the program: the engine prints lines, kept in a temporary file as they come;
// at the end of each document the pages are shown in a print preview, from which the operator
// prints them on a system printer or saves them as PDF.
#pragma once
#include <QString>

#include "core/printer.h"
#include "printing/spool.h"

class QPagedPaintDevice;
class QWidget;

namespace gui {

// Draws the pages on a paged device (a printer, a PDF writer) in the sheet's orientation.
void renderPages(QPagedPaintDevice& device, const printing::Spool& pages);
// Writes the pages as PDF through Qt's own fonts ("Courier New" is its metric twin).
bool savePdf(const printing::Spool& pages, const QString& file);

class QtPrinter : public core::StreamPrinter {
public:
    explicit QtPrinter(QWidget* parent = nullptr) : StreamPrinter(&doc_), parent_(parent) {}
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;
    void setParent(QWidget* p) { parent_ = p; }
    // Shows the finished document in the preview.
    void endDoc() override;
    // The document being printed, or the last one finished until the next begins.
    const printing::Spool& document() const { return doc_.spool; }
    // Without a window (tests) the document is only kept.
    bool preview = true;

private:
    struct Document : core::PageSink {
        void beginPage() override;
        void line(const core::PrintLine& l) override { spool.line(l); }
        void endDoc() override {
            ended = true;
            ++finished;
        }
        printing::Spool spool;
        bool ended = false;
        int finished = 0;
    } doc_;
    QWidget* parent_;
};

}  // namespace gui
