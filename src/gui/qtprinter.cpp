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

void renderPages(QPagedPaintDevice& device, const std::vector<core::TextPrinter::Page>& pages) {
    printing::Sheet sheet = printing::fitSheet(pages);
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                     sheet.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    QPainter p(&device);
    // Positions are worked out in points from the top left corner of the sheet.
    const double kx = device.logicalDpiX() / 72.0, ky = device.logicalDpiY() / 72.0;
    bool first = true;
    for (const auto& page : pages) {
        if (!first) device.newPage();
        first = false;
        double y = sheet.margin;
        for (const auto& line : page) {
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
    }
}

bool savePdf(const std::vector<core::TextPrinter::Page>& pages, const QString& file) {
    QPdfWriter w(file);
    w.setResolution(600);
    w.setCreator("pensja");
    renderPages(w, pages);
    return QFile::exists(file);
}

void QtPrinter::endDoc() {
    TextPrinter::endDoc();
    if (!preview || documents().empty()) return;
    const auto pages = documents().back();
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
