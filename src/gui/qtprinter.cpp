#include "gui/qtprinter.h"

#include <QAction>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QToolBar>

#include "gui/qtext.h"
#include "printing/sheet.h"

namespace gui {

void renderPages(QPagedPaintDevice& device, const printing::Spool& pages) {
    const printing::Sheet sheet = pages.sheet();
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                     sheet.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    // Positions are worked out in points from the top left corner of the sheet.
    struct Rysunek : core::PageSink {
        Rysunek(QPagedPaintDevice& d, const printing::Sheet& s)
            : device(d), p(&d), sheet(s), kx(d.logicalDpiX() / 72.0), ky(d.logicalDpiY() / 72.0) {}
        void beginPage() override {
            if (!first) device.newPage();
            first = false;
            y = sheet.margin;
        }
        void line(const core::PrintLine& line) override {
            double size = line.size * sheet.scale;
            QFont f(q(line.font));
            f.setStyleHint(QFont::Monospace);
            f.setFixedPitch(true);
            f.setPointSizeF(size);
            f.setBold(line.bold);
            p.setFont(f);
            y += size * printing::kLineHeight;
            p.drawText(QPointF(sheet.margin * kx, (y - size * 0.25) * ky), q(line.text));
        }
        QPagedPaintDevice& device;
        QPainter p;
        const printing::Sheet& sheet;
        double kx, ky, y = 0;
        bool first = true;
    } rysunek(device, sheet);
    pages.replay(rysunek);
}

bool savePdf(const printing::Spool& pages, const QString& file) {
    QPdfWriter w(file);
    w.setResolution(600);
    w.setCreator("pensja");
    renderPages(w, pages);
    return QFile::exists(file);
}

void QtPrinter::Document::beginPage() {
    // The first page of a new document: the last one is no longer kept.
    if (ended) spool.clear();
    ended = false;
    spool.beginPage();
}

void QtPrinter::endDoc() {
    const int skonczone = doc_.finished;
    StreamPrinter::endDoc();
    if (!preview || doc_.finished == skonczone) return;  // nothing printed
    const printing::Spool& pages = document();
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dlg(&printer, parent_);
    dlg.setWindowTitle("Podgląd wydruku");
    QObject::connect(&dlg, &QPrintPreviewDialog::paintRequested, [&](QPrinter* pr) { renderPages(*pr, pages); });
    if (auto* bar = dlg.findChild<QToolBar*>()) {
        QAction* pdf = bar->addAction("Zapisz jako PDF");
        pdf->setObjectName("zapiszPdf");
        QObject::connect(pdf, &QAction::triggered, &dlg, [&] {
            QString file = QFileDialog::getSaveFileName(&dlg, "Zapisz wydruk jako PDF", "wydruk.pdf", "PDF (*.pdf)");
            if (file.isEmpty()) return;
            if (!savePdf(pages, file))
                QMessageBox::warning(&dlg, "Zapis PDF", "Nie udało się zapisać pliku " + file);
        });
    }
    dlg.resize(1000, 760);
    dlg.exec();
}

}  // namespace gui
