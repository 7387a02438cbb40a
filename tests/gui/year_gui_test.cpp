// The screens of an employee's year on the demo data: the yearly ledger with its grids, the
// ledger editor, the HR record and the earnings certificate.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "core/screens.h"
#include "documents/zaswiadczenia.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "paycalc/kartoteka.h"
#include "personnel/kadry.h"
#include "personnel/kadry_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "yearledger/edycja.h"
#include "yearledger/kartoteka_roczna.h"

using testing_support::ScriptedDialogs;

namespace {

// The demo list "a" with January's ledger made and its first person chosen.
struct Rok {
    gui_support::DemoSession demo;
    core::Screens screens;
    ScriptedDialogs ui;
    Rok() {
        // Without the demo's January overtime and additions: the figures below are the ledgers' alone.
        for (const char* f : {"Godziny/aGod2101.dta", "Dodatki/aDod2101.dta"})
            std::filesystem::remove(demo.dir.path() / "DEMO" / f);
        core::Session& s = demo.session;
        s.NazwaZbioru = "a";
        s.Grupa = "a";
        s.SciezkaOsob = personnel::Osoba::path(s);
        s.SciezkaBazy = s.payerPath({"bazy", "a.dta"});
        gui::registerAllScreens(screens);
        ui.screens = &screens;
        paycalc::cmdKartoteka(s, ui);
        core::Record o = personnel::Osoba::readAll(s.SciezkaOsob).at(0);
        s.NazwiskoOsoby = o.s(personnel::Osoba::Nazwisko);
        s.ImieOsoby = o.s(personnel::Osoba::Imie);
        s.KluczOsoby = personnel::kluczOsoby(o);
        s.KodUbezpieczeniaOsoby = o.s(personnel::Osoba::KodUbezpieczenia);
    }
};

}  // namespace

TEST(RokGui, YearlyLedgerWithItsGridsAndTheEditor) {
    Rok r;
    // The demo year 2020.
    r.demo.session.DataListy = "31-12-2020";
    reference::loadRates(r.demo.session);
    yearledger::KartotekaRocznaScreen screen(r.ui, r.demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Kartoteka Roczna");
    auto* grid = dlg.findChild<QTableWidget*>("MSFlexGrid1");
    ASSERT_EQ(grid->rowCount(), 13);
    EXPECT_EQ(grid->horizontalHeaderItem(9)->text(), "Wychowaw");
    EXPECT_EQ(grid->item(1, 3)->text(), "5200.00");
    EXPECT_EQ(grid->item(12, 0)->text(), "Razem");
    EXPECT_EQ(grid->item(12, 3)->text(), "62400.00");
    EXPECT_TRUE(dlg.findChild<QPushButton*>("CmdPit11")->isEnabled());  // the annual statement screen exists
    EXPECT_FALSE(dlg.findChild<QTableWidget*>("MSFlexGrid9")->isVisibleTo(&dlg));
    dlg.findChild<QPushButton*>("cmdGodziny")->click();
    dlg.findChild<QPushButton*>("cmdTrzynastka")->click();
    EXPECT_TRUE(dlg.findChild<QTableWidget*>("MSFlexGrid9")->isVisibleTo(&dlg));
    // The demo year holds its thirteenth (no missing-file box) and overtime in March and October.
    EXPECT_NE(r.ui.last(), "[Kartoteka Roczna] Brak zbioru trzynastki za ten rok dla tej grupy pracowników !");
    auto* godziny = dlg.findChild<QTableWidget*>("MSFlexGrid9");
    ASSERT_EQ(godziny->rowCount(), 2);
    EXPECT_EQ(godziny->item(0, 1)->text(), "31-03-2020");
    gui_support::grab(&dlg, "FrmKartotekaRoczna");

    yearledger::EdycjaKartotekiScreen ed(r.ui, r.demo.session, "2101");
    gui::ScreenDialog edDlg(ed, nullptr);
    edDlg.view()->runWork([&] { ed.Load(); });
    auto* pola = edDlg.findChild<QTableWidget*>("MSFlexGrid1");
    ASSERT_EQ(pola->rowCount(), 177);
    EXPECT_EQ(pola->item(5, 1)->text(), "Zasadnicza");
    pola->setCurrentCell(5, 2);
    emit pola->cellClicked(5, 2);
    EXPECT_EQ(edDlg.findChild<QLineEdit*>("txtWartosc")->text(), "5200");
    gui_support::grab(&edDlg, "frmEdycjaKartoteki");
}

TEST(RokGui, HrRecordAndCertificate) {
    Rok r;
    personnel::KadryScreen kadry(r.ui, r.demo.session);
    gui::ScreenDialog kDlg(kadry, nullptr);
    kDlg.view()->runWork([&] { kadry.Load(); });
    EXPECT_EQ(kDlg.findChild<QComboBox*>("cboOsoba")->currentIndex(), 0);
    kDlg.findChild<QLineEdit*>("txtStanowisko")->setText("Specjalista ds. płac");
    kDlg.findChild<QPushButton*>("cmdZapisz")->click();
    EXPECT_EQ(r.ui.boxes.back().title, "Dane kadrowe");
    ASSERT_TRUE(personnel::Kadry::znajdz(personnel::Kadry::pathOf(r.demo.session, "a"), r.demo.session.KluczOsoby));
    gui_support::grab(&kDlg, "frmKadryII");

    documents::ZaswiadczeniaScreen z(r.ui, r.demo.session);
    gui::ScreenDialog zDlg(z, nullptr);
    zDlg.view()->runWork([&] { z.Load(); });
    zDlg.findChild<QPushButton*>("cmdPobierzDane")->click();
    EXPECT_EQ(zDlg.findChild<QTableWidget*>("MSFlexGrid1")->item(0, 1)->text(), "7620.00");
    EXPECT_EQ(zDlg.findChild<QLineEdit*>("txtRazemBrutto")->text(), "7620.00");
    gui_support::grab(&zDlg, "frmZaswiadczenia");
}
