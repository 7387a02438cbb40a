#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "bank/dobanku.h"
#include "bank/fixture.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"

TEST(DoBankuGui, BatchOfTheLedgerInTheGrid) {
    bank_tests::Dane d;
    const char* nazwiska[] = {"NOWAK", "WIŚNIEWSKA", "ZIELIŃSKI", "KAMIŃSKA", "DĄBROWSKI", "LEWANDOWSKA"};
    std::vector<core::Record> recs;
    for (int i = 0; i < 6; ++i)
        recs.push_back(bank_tests::karta(nazwiska[i], 2500.0 + 125.5 * i, 0, i == 4 ? bank_tests::kBPH : bank_tests::kPKO));
    d.ksieguj(recs);
    bank::DoBankuScreen screen(d.ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* nr = dlg.findChild<QLineEdit*>("txtNrUnikatowy");
    nr->setText("1020");
    emit nr->textEdited("1020");
    EXPECT_EQ(dlg.findChild<QLabel*>("Label5")->text().trimmed(), "wybrano PKO Bank Polski Op.SA.");
    dlg.findChild<QPushButton*>("CmdUtworzRor")->click();
    auto* grid = dlg.findChild<QTableWidget*>("MSFlexGrid1");
    ASSERT_EQ(grid->rowCount(), 5);  // the account of another bank is left out
    EXPECT_EQ(grid->item(1, 1)->text().trimmed(), "WIŚNIEWSKA");
    EXPECT_EQ(grid->horizontalHeaderItem(7)->text(), "Treść");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtkwotaRazem")->text(), "13880.50");
    EXPECT_TRUE(d.ui.boxes.empty());
    dlg.resize(1200, 620);
    gui_support::grab(&dlg, "frmDoBanku");
}
