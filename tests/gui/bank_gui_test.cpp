#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "bank/dobanku.h"
#include "core/text.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "paycalc/karta_record.h"
#include "support/scripted.h"

namespace K = paycalc::Karta;

TEST(DoBankuGui, BatchOfTheLedgerInTheGrid) {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    static const char* nazwiska[] = {"NOWAK", "WIŚNIEWSKA", "ZIELIŃSKI", "KAMIŃSKA", "DĄBROWSKI", "LEWANDOWSKA"};
    std::vector<core::Record> recs;
    for (int i = 0; i < 6; ++i) {
        core::Record r(K::schema());
        r.set(K::Poczatek, "<Poczatek>");
        r.set(K::Nazwisko, nazwiska[i]);
        r.set(K::Imie, i % 2 ? "ANNA" : "JAN");
        r.set(K::NaROR, 2500.0 + 125.5 * i);
        r.set(K::NumerKonta, i == 4 ? "43106012345678901234567890" : "60102010260000123456789012");
        r.set(K::Kod, "32-400");
        r.set(K::Miejscowosc, "Myślenice");
        r.set(K::Ulica, "Rynek");
        r.set(K::NrDomu, std::to_string(i + 1));
        r.set(K::Koniec, "<Koniec>");
        recs.push_back(r);
    }
    core::writeAll(K::path(s, "a", s.RRmm()), recs);

    testing_support::ScriptedDialogs ui;
    bank::DoBankuScreen screen(ui, s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* nr = dlg.findChild<QLineEdit*>("txtNrUnikatowy");
    ASSERT_NE(nr, nullptr);
    nr->setFocus();
    nr->setText("1020");
    emit nr->textEdited("1020");
    EXPECT_EQ(dlg.findChild<QLabel*>("Label5")->text().trimmed(), "wybrano PKO Bank Polski Op.SA.");
    dlg.findChild<QPushButton*>("CmdUtworzRor")->click();
    auto* grid = dlg.findChild<QTableWidget*>("MSFlexGrid1");
    ASSERT_EQ(grid->rowCount(), 5);  // the account of another bank is left out
    EXPECT_EQ(grid->item(1, 1)->text().trimmed(), "WIŚNIEWSKA");
    EXPECT_EQ(grid->horizontalHeaderItem(7)->text(), "Treść");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtkwotaRazem")->text(), "13880.50");
    EXPECT_TRUE(ui.boxes.empty());
    dlg.resize(1200, 620);
    gui_support::grab(&dlg, "frmDoBanku");
}
