#include <gtest/gtest.h>

#include <QFile>

#include "core/text.h"
#include "gui/qtprinter.h"
#include "support/run.h"
#include "support/tempdir.h"

TEST(QtPrinterGui, PdfHoldsTheWholeWideLine) {
    testing_support::TempDir dir;
    gui::QtPrinter p;
    p.preview = false;
    p.setFont("Courier New", 10, false);
    std::string wide = "|" + core::PadRight(" Lista płac nr 1 - Zażółć gęślą jaźń", 132) + "|";
    for (int i = 0; i < 3; ++i) p.print(wide);
    p.newPage();
    p.print("strona 2");
    p.endDoc();
    ASSERT_EQ(p.document().pageCount(), 2);
    QString file = QString::fromStdString((dir / "wydruk.pdf").string());
    ASSERT_TRUE(gui::savePdf(p.document(), file));
    if (!std::filesystem::exists("/usr/bin/pdftotext")) GTEST_SKIP() << "no pdftotext";
    auto r = testing_support::run("/usr/bin/pdftotext", {"-layout", file.toStdString(), "-"}, dir.path());
    EXPECT_NE(r.out.find("Lista płac nr 1 - Zażółć gęślą jaźń"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("strona 2"), std::string::npos);
    EXPECT_NE(r.out.find('\f'), std::string::npos);  // two pages
}
