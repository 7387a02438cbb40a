#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "paycalc/karta_record.h"
#include "support/scripted.h"
#include "tax/pit11.h"
#include "tax/pit4.h"

namespace K = paycalc::Karta;
using testing_support::ScriptedDialogs;

namespace {

// The demo on 31-01-2021, Jan Nowak chosen on list "a", with a January ledger of two persons.
struct DemoPit {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    DemoPit() {
        // Without the demo's January overtime and additions: the sums below are the ledgers' alone.
        for (const char* f : {"Godziny/aGod2101.dta", "Dodatki/aDod2101.dta"})
            std::filesystem::remove(demo.dir.path() / "DEMO" / f);
        s.NazwaZbioru = "a";
        s.KluczOsoby = "75031412317";
        s.NazwiskoOsoby = "NOWAK";
        s.ImieOsoby = "JAN";
        s.KodUbezpieczeniaOsoby = "011000";
        auto osoba = [](const char* nazwisko, const char* imie, const char* pesel, double brutto, double podatek) {
            core::Record r(K::schema());
            r.set(K::Poczatek, "<Poczatek>");
            r.set(K::Nazwisko, nazwisko);
            r.set(K::Imie, imie);
            r.set(K::Klucz, pesel);
            r.set(K::KodUbezpieczenia, "011000");
            r.set(K::Brutto, brutto);
            r.set(K::PodstawaZdrowotna, brutto);
            r.set(K::PodatekNetto, podatek);
            r.set(K::NaLiscie, 1);
            r.set(K::Koniec, "<Koniec>");
            return r;
        };
        core::writeAll(K::path(s), {osoba("NOWAK", "JAN", "75031412317", 7620, 522),
                                    osoba("WIŚNIEWSKA", "MARIA", "63072245629", 6720, 450)});
    }
};

QString tekst(QWidget& w, const char* nazwa) { return w.findChild<QLineEdit*>(nazwa)->text(); }

TEST(TaxGui, Pit4FromTheLedgersOnTheScreen) {
    DemoPit d;
    ScriptedDialogs ui;
    tax::Pit4Screen screen(ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    dlg.findChild<QPushButton*>("CmdWyliczPIT4")->click();
    dlg.findChild<QPushButton*>("cmdWylicz")->click();
    EXPECT_EQ(tekst(dlg, "TxtIlosc1"), "2");
    EXPECT_EQ(tekst(dlg, "txtSumaWyplat1"), "14340.00");
    EXPECT_EQ(tekst(dlg, "txtKwotaDoWplaty"), "972.00");
    EXPECT_EQ(dlg.findChild<QLabel*>("TxtKwotaZaliczek_label")->text(), "Kwota zaliczek z art32,      44. ");
    gui_support::grab(&dlg, "frmPit4");
}

TEST(TaxGui, Pit11MonthsOfThePersonOnTheScreen) {
    DemoPit d;
    ScriptedDialogs ui;
    tax::Pit11Screen screen(ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    dlg.findChild<QPushButton*>("CmdPobierz")->click();
    EXPECT_EQ(dlg.findChild<QLabel*>("LbRazemM(1)")->text(), "7620.00");
    EXPECT_EQ(dlg.findChild<QLabel*>("lbZaliczka(2)")->text(), "0.00");
    EXPECT_EQ(tekst(dlg, "txtRazemZaliczka"), "522.00");
    EXPECT_TRUE(ui.boxes.empty());
    gui_support::grab(&dlg, "frmPit11");
}

TEST(TaxGui, ScreensOpenedByTheirNames) {
    core::Screens screens;
    gui::registerAllScreens(screens);
    for (const char* name : {"mnuPit4", "frmPit4", "frmPit11"}) EXPECT_TRUE(screens.has(name)) << name;
}

}  // namespace
