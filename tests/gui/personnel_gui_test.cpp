#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "core/screens.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "payinputs/pay_record.h"
#include "payinputs/placa.h"
#include "personnel/osoba1.h"
#include "personnel/person_record.h"
#include "personnel/sortuj.h"
#include "personnel/wybierz_osobe.h"
#include "support/scripted.h"

using testing_support::ScriptedDialogs;

namespace {

// The demo session on the list `lista` with its person `i` chosen, as the workspace leaves it.
void naLiscie(core::Session& s, const std::string& lista, std::size_t i) {
    s.NazwaZbioru = lista;
    s.Grupa = lista;
    s.SciezkaOsob = personnel::Osoba::path(s);
    s.SciezkaBazy = s.payerPath({"bazy", lista + ".dta"});
    core::Record o = personnel::Osoba::readAll(s.SciezkaOsob).at(i);
    s.NazwiskoOsoby = o.s(personnel::Osoba::Nazwisko);
    s.ImieOsoby = o.s(personnel::Osoba::Imie);
    s.KluczOsoby = personnel::kluczOsoby(o);
    s.KodUbezpieczeniaOsoby = o.s(personnel::Osoba::KodUbezpieczenia);
}

}  // namespace

TEST(Osoba1Gui, PersonOfTheDemoListAndItsScreens) {
    gui_support::DemoSession demo;
    naLiscie(demo.session, "a", 0);
    core::Screens screens;
    gui::registerAllScreens(screens);
    ScriptedDialogs ui;
    ui.screens = &screens;
    personnel::Osoba1Screen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "a NOWAK JAN");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtNazwisko")->text(), "NOWAK");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtPesel")->toolTip(), "Zmiana PESEL spowoduje założenie nowej  kartoteki płacowej");
    EXPECT_TRUE(dlg.findChild<QRadioButton*>("Option1")->isChecked());
    EXPECT_FALSE(dlg.findChild<QPushButton*>("cmdZapiszNowaOsobe")->isVisibleTo(&dlg));
    // The menu bar leads to the screens this program has.
    auto* placa = dlg.findChild<QAction*>("placa");
    ASSERT_NE(placa, nullptr);
    EXPECT_TRUE(placa->isEnabled());
    EXPECT_TRUE(dlg.findChild<QAction*>("potr")->isEnabled());
    EXPECT_TRUE(dlg.findChild<QAction*>("Zasilki")->isEnabled());
    EXPECT_TRUE(dlg.findChild<QAction*>("chorobowe")->isEnabled());
    EXPECT_TRUE(dlg.findChild<QAction*>("Roczna")->isEnabled());
    gui_support::grab(&dlg, "frmOsoba1");

    // A postal code typed in the box fills the address.
    auto* kod = dlg.findChild<QLineEdit*>("txtKod");
    kod->setText("32-700");
    emit kod->textEdited("32-700");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtMiejscowosc")->text(), "Bochnia");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtPowiat")->text(), "Bochnia");
    dlg.findChild<QPushButton*>("cmdZapiszZmiany")->click();
    EXPECT_EQ(ui.last(), "[Potwierdzenie zapisu] Zmiany zostały wprowadzone");
    EXPECT_EQ(personnel::Osoba::readAll(demo.session.SciezkaOsob)[0].s(personnel::Osoba::Miejscowosc), "Bochnia");

    // The pay screen of the person, opened from the menu.
    bool shown = false;
    ui.onShow = [&](core::Form& f) {
        shown = f.Name == "frmPlaca";
        EXPECT_TRUE(static_cast<payinputs::PlacaScreen&>(f).maRekord());
    };
    placa->trigger();
    EXPECT_TRUE(shown);
}

TEST(PlacaGui, PayRecordOfTheDemoPerson) {
    gui_support::DemoSession demo;
    naLiscie(demo.session, "p", 5);  // KRAWCZYK, a commuter
    ScriptedDialogs ui;
    payinputs::PlacaScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_EQ(dlg.windowTitle(), "Płaca KRAWCZYK TOMASZ");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtZasadnicza")->text(), "3800");
    EXPECT_EQ(dlg.findChild<QLineEdit*>("txtKosztyUzyskania")->text(), "300");
    EXPECT_TRUE(dlg.findChild<QRadioButton*>("Optak")->isChecked());
    EXPECT_TRUE(dlg.findChild<QCheckBox*>("Check5")->isChecked());
    EXPECT_EQ(dlg.findChild<QLabel*>("Label10")->text(), "NaDliczbowe");
    EXPECT_FALSE(dlg.findChild<QPushButton*>("cmdWpiszDane")->isEnabled());
    gui_support::grab(&dlg, "frmPlaca");

    dlg.findChild<QLineEdit*>("txtPremia")->setText("0,15");
    dlg.findChild<QPushButton*>("cmdZapiszZmiany")->click();
    EXPECT_EQ(ui.last(), "[zmiany)] Zmiany wykonane !");
    auto recs = payinputs::Pay::readAll(demo.session.SciezkaBazy);
    EXPECT_EQ(recs[5].s(payinputs::Pay::Premia), "0.15");
    EXPECT_EQ(recs[5].s(payinputs::Pay::Koniec), "<koniec>");
}

TEST(SortujKadroweGui, GridOfTheProductionList) {
    gui_support::DemoSession demo;
    naLiscie(demo.session, "p", 0);
    ScriptedDialogs ui;
    personnel::SortujKadroweScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* grid = dlg.findChild<QTableWidget*>("MSFlexGrid7");
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->rowCount(), 7);
    EXPECT_EQ(grid->columnCount(), 40);
    EXPECT_EQ(grid->horizontalHeaderItem(1)->text(), "Nazwisko pracownika ");
    dlg.findChild<QPushButton*>("CmdSortujwgNazwiska")->click();
    EXPECT_EQ(grid->item(0, 1)->text(), "BONDARENKO");
    dlg.resize(1100, 420);
    gui_support::grab(&dlg, "frmSortujKadrowe");
}

TEST(WybierzOsobeGui, PeopleOfAllLists) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    personnel::WybierzOsobeScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    auto* lista = dlg.findChild<QListWidget*>("lstListaOsob");
    ASSERT_NE(lista, nullptr);
    EXPECT_EQ(lista->count(), 14);
    lista->setCurrentRow(8);
    EXPECT_EQ(demo.session.NazwiskoOsoby, "KOWALCZYK");
    EXPECT_EQ(demo.session.NazwaZbioru, "p");
    gui_support::grab(&dlg, "frmWybierzOsobę");
}
