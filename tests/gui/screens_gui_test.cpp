// Every screen built by the generic binding on the demo data: a screenshot of each
// (build/screenshots/<name>.png; frmPodatki and the main window in reference_gui_test.cpp), and
// one test for each kind of control the binding carries between the screen and its widgets.
// What the screens compute is checked by the engine tests.
#include <gtest/gtest.h>

#include <QAction>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>

#include "bank/dobanku.h"
#include "core/screens.h"
#include "documents/zaswiadczenia.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "leave/chorobowe.h"
#include "leave/czas_pracy.h"
#include "leave/srednia.h"
#include "leave/urlopy_ekran.h"
#include "paycalc/karta_record.h"
#include "paycalc/kartoteka.h"
#include "paycalc/lista.h"
#include "payinputs/placa.h"
#include "payinputs/potracenia.h"
#include "payinputs/taryfikator.h"
#include "payinputs/zasilki.h"
#include "personnel/kadry.h"
#include "personnel/osoba1.h"
#include "personnel/sortuj.h"
#include "personnel/wybierz_osobe.h"
#include "printing/podglad.h"
#include "reference/instalacja.h"
#include "reference/mojafirma.h"
#include "app/pomoc.h"
#include "reference/wybor.h"
#include "support/demo.h"
#include "tax/pit11.h"
#include "tax/pit4.h"
#include "trips/delegacje.h"
#include "yearledger/edycja.h"
#include "yearledger/kartoteka_roczna.h"
#include "zus/screens.h"

using testing_support::Demo;

namespace {

using Ekran = std::function<std::unique_ptr<core::Form>(core::Dialogs&, core::Session&)>;
template <class S>
Ekran ekran() {
    return [](core::Dialogs& ui, core::Session& s) -> std::unique_ptr<core::Form> { return std::make_unique<S>(ui, s); };
}
void klik(core::Form& f, const char* nazwa) { f.fire(*f.find(nazwa), &core::Control::Click); }

// The person `i` of the list `lista` chosen, as the list screen leaves it.
std::function<void(Demo&)> osoba(const char* lista, std::size_t i) {
    return [=](Demo& d) { d.lista(lista).wybierz(i); };
}
// The ledgers of the month of both lists made first, then the first person of list "a".
void kartoteki(Demo& d) {
    for (const char* lista : {"p", "a"}) d.s.LiczbaOsob = paycalc::wykonajKartoteke(d.lista(lista).s, d.ui);
    d.wybierz(0);
}

struct Obraz {
    const char* name;  // the screenshot
    std::function<void(Demo&)> dane;
    Ekran ekran;
    std::function<void(core::Form&)> potem;  // after Load, as the operator goes on
    int w = 0, h = 0;
};

// The screen on its own, as the program shows it.
struct Okno {
    Demo d;
    core::Screens screens;
    std::unique_ptr<core::Form> f;
    std::unique_ptr<gui::ScreenDialog> dlg;
    explicit Okno(const Obraz& o) {
        gui::registerAllScreens(screens);
        d.ui.screens = &screens;
        if (o.dane) o.dane(d);
        f = o.ekran(d.ui, d.s);
        dlg = std::make_unique<gui::ScreenDialog>(*f, nullptr);
        dlg->view()->runWork([&] {
            f->Load();
            if (o.potem && !f->Unloaded) o.potem(*f);
        });
        if (o.w) dlg->resize(o.w, o.h);
    }
    template <class W>
    W* w(const char* name) const {
        return dlg->findChild<W*>(name);
    }
};

void PrintTo(const Obraz& o, std::ostream* os) { *os << o.name; }

class Screenshot : public testing::TestWithParam<Obraz> {};

TEST_P(Screenshot, ScreenOpensOnTheDemoData) {
    Okno o(GetParam());
    EXPECT_FALSE(o.f->Unloaded);
    EXPECT_FALSE(o.dlg->windowTitle().isEmpty());
    for (const auto& b : o.d.ui.boxes) EXPECT_NE(b.icon, core::Icon::Critical) << b.title << ": " << b.text;
    gui_support::grab(o.dlg.get(), GetParam().name);
}

core::Control celSredniej(nullptr, "txtSredniaChorobowa", core::Kind::TextBox);

const Obraz kObrazy[] = {
    {"frmOsoba1", osoba("a", 0), ekran<personnel::Osoba1Screen>()},
    {"frmPlaca", osoba("p", 5), ekran<payinputs::PlacaScreen>()},
    {"frmSortujKadrowe", osoba("p", 0), ekran<personnel::SortujKadroweScreen>(),
     [](core::Form& f) { klik(f, "CmdSortujwgNazwiska"); }, 1100, 420},
    {"frmWybierzOsobę", nullptr, ekran<personnel::WybierzOsobeScreen>()},
    {"frmPotracenia", osoba("a", 1), ekran<payinputs::PotraceniaScreen>()},
    {"frmZasilki", osoba("a", 1), ekran<payinputs::ZasilkiScreen>()},
    {"frmUrlopy", osoba("a", 0), ekran<leave::UrlopyScreen>()},
    {"frmCzasPracy", osoba("a", 0), ekran<leave::CzasPracyScreen>()},
    {"frmChorobowe", osoba("a", 0), ekran<leave::ChoroboweScreen>(), [](core::Form& f) { klik(f, "cmdHistoriachorobowego"); }},
    {"frmSrednia", osoba("a", 0),
     [](core::Dialogs& ui, core::Session& s) -> std::unique_ptr<core::Form> {
         return std::make_unique<leave::SredniaScreen>(ui, s, &celSredniej);
     },
     [](core::Form& f) { klik(f, "cmdWylicz"); }},
    {"frmlista", [](Demo& d) { d.lista("a"); }, ekran<paycalc::ListaScreen>()},
    {"frmMojaFirma", nullptr, ekran<reference::MojaFirmaScreen>()},
    {"frmInstalacja", nullptr, ekran<reference::InstalacjaScreen>()},
    {"frmwybor", nullptr, ekran<reference::WyborScreen>()},
    {"frmPomoc", nullptr, ekran<app::PomocScreen>()},
    {"frmTaryfikator", nullptr, ekran<payinputs::TaryfikatorScreen>()},
    {"frmPit4", kartoteki, ekran<tax::Pit4Screen>(),
     [](core::Form& f) {
         klik(f, "CmdWyliczPIT4");
         klik(f, "cmdWylicz");
     }},
    {"frmPit11", kartoteki, ekran<tax::Pit11Screen>(), [](core::Form& f) { klik(f, "CmdPobierz"); }},
    {"frmKadryII", osoba("a", 0), ekran<personnel::KadryScreen>()},
    {"frmZaswiadczenia", kartoteki, ekran<documents::ZaswiadczeniaScreen>(), [](core::Form& f) { klik(f, "cmdPobierzDane"); }},
    {"FrmKartotekaRoczna",
     [](Demo& d) {
         d.s.DataListy = "31-12-2020";
         reference::loadRates(d.s);
         d.lista("a").wybierz(0);
     },
     ekran<yearledger::KartotekaRocznaScreen>(),
     [](core::Form& f) {
         klik(f, "cmdGodziny");
         klik(f, "cmdTrzynastka");
     }},
    {"frmEdycjaKartoteki", kartoteki,
     [](core::Dialogs& ui, core::Session& s) -> std::unique_ptr<core::Form> {
         return std::make_unique<yearledger::EdycjaKartotekiScreen>(ui, s, "2101");
     }},
    {"frmDoZUS", kartoteki, ekran<zus::DoZUSScreen>(),
     [](core::Form& f) {
         static_cast<zus::DoZUSScreen&>(f).txtZestawZUS.Text = "AB";
         klik(f, "CmdPolacz");
         klik(f, "CmdWykonajRCA");
     },
     760, 460},
    {"frmRCP",
     [](Demo& d) {
         kartoteki(d);
         zus::DoZUSScreen z(d.ui, d.s);
         z.Load();
         z.txtZestawZUS.Text = "AB";
         klik(z, "CmdPolacz");
     },
     ekran<zus::RCPScreen>(), nullptr, 1300, 560},
    {"frmDoBanku",
     [](Demo& d) {
         kartoteki(d);  // then a part of each pay to the account of the ledger
         auto recs = paycalc::Karta::readAll(paycalc::Karta::path(d.s));
         for (std::size_t i = 0; i < recs.size(); ++i) {
             recs[i].set(paycalc::Karta::NaROR, 1500.0 + 125.5 * static_cast<double>(i));
             recs[i].set(paycalc::Karta::NumerKonta, "60102010260000123456789012");
         }
         core::writeAll(paycalc::Karta::path(d.s), recs);
     },
     ekran<bank::DoBankuScreen>(),
     [](core::Form& f) {
         auto& nr = static_cast<bank::DoBankuScreen&>(f).txtNrUnikatowy;
         nr.Text = "1020";
         f.fire(nr, &core::Control::Change);
         klik(f, "CmdUtworzRor");
     },
     1200, 620},
    {"frmPodgladWydruku", kartoteki, ekran<printing::PodgladWydrukuScreen>(), nullptr, 1100, 640},
    {"frmDelegacje", nullptr, ekran<trips::DelegacjeScreen>(),
     [](core::Form& f) {
         auto& e = static_cast<trips::DelegacjeScreen&>(f);
         e.MSFlexGrid1.Row = 1;
         e.MSFlexGrid1_Click();
         e.txtMiejscowoscW.Text = "Kraków";
         e.txtDataW.Text = e.txtDataP.Text = "15.03.2021";
         e.txtGodzinaW.Text = "06:00";
         e.txtMiejscowoscP.Text = "Berlin";
         e.txtGodzinaP.Text = "21:30";
         e.cmbKraj.Text = "Niemcy";
         e.cmbKraj_Click();
         e.txtKursWaluty.Text = "4,5721";
         e.cmdDodajPozycje_Click();
         e.cmbNocleg.Text = "150";
         e.txtZaliczka.Text = "200";
         e.przeliczRazem();
     }},
};

INSTANTIATE_TEST_SUITE_P(Gui, Screenshot, testing::ValuesIn(kObrazy), [](const testing::TestParamInfo<Obraz>& i) {
    std::string n = i.param.name;
    if (n == "frmWybierzOsobę") n = "frmWybierzOsobe";
    return n;
});

}  // namespace

// Option buttons and check boxes show the record and give back what is clicked.
TEST(Binding, OptionsAndCheckBoxes) {
    Okno o({"", osoba("p", 5), ekran<payinputs::PlacaScreen>()});  // KRAWCZYK, a commuter
    auto& f = static_cast<payinputs::PlacaScreen&>(*o.f);
    EXPECT_TRUE(o.w<QRadioButton>("Optak")->isChecked());
    auto* check = o.w<QCheckBox>("Check5");
    ASSERT_TRUE(check->isChecked());
    check->click();
    EXPECT_EQ(f.Check5.Value, 0);
}

// A list box: the row clicked is the screen's choice.
TEST(Binding, ListBox) {
    Okno o({"", nullptr, ekran<personnel::WybierzOsobeScreen>()});
    auto* lista = o.w<QListWidget>("lstListaOsob");
    ASSERT_EQ(lista->count(), 14);
    lista->setCurrentRow(8);
    EXPECT_EQ(o.d.s.NazwiskoOsoby, "KOWALCZYK");
    EXPECT_EQ(o.d.s.NazwaZbioru, "p");
}

// A combo box: its items, the placeholder, the chosen index read by the command.
TEST(Binding, ComboBox) {
    Okno o({"", nullptr, ekran<reference::WyborScreen>()});
    int otwarte = 0;
    o.screens.add("frmlista", [&](core::Session&, core::Dialogs&) { ++otwarte; });
    auto* combo = o.w<QComboBox>("CmbWybierz");
    ASSERT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->placeholderText(), "Wybierz jedną z list ");
    combo->setCurrentIndex(1);
    o.w<QPushButton>("CmdWybierz")->click();
    EXPECT_EQ(otwarte, 1);
    EXPECT_EQ(o.d.s.NazwaZbioru, "p");
}

// A grid: cells, colours, bold, and a click on a cell handed to the screen.
TEST(Binding, Grid) {
    Okno urlopy({"", osoba("a", 0), ekran<leave::UrlopyScreen>()});
    QTableWidget* t = urlopy.w<QTableWidget>("MSFlexGrid1");
    EXPECT_EQ(t->item(0, 18)->background().color(), QColor(0xFF, 0xF2, 0xA8));
    EXPECT_EQ(t->item(0, 1)->background().color(), QColor(Qt::blue));
    EXPECT_EQ(t->item(0, 1)->foreground().color(), QColor(Qt::white));
    Okno czas({"", osoba("a", 0), ekran<leave::CzasPracyScreen>()});
    EXPECT_TRUE(czas.w<QTableWidget>("MSFlexGrid1")->item(0, 10)->font().bold());

    Okno ed({"", kartoteki, [](core::Dialogs& ui, core::Session& s) -> std::unique_ptr<core::Form> {
                 return std::make_unique<yearledger::EdycjaKartotekiScreen>(ui, s, "2101");
             }});
    auto* pola = ed.w<QTableWidget>("MSFlexGrid1");
    ASSERT_EQ(pola->rowCount(), 177);
    EXPECT_EQ(pola->item(5, 1)->text(), "Zasadnicza");
    pola->setCurrentCell(5, 2);
    emit pola->cellClicked(5, 2);
    ASSERT_FALSE(pola->item(5, 2)->text().isEmpty());
    EXPECT_EQ(ed.w<QLineEdit>("txtWartosc")->text(), pola->item(5, 2)->text());
}

// A calendar shown and hidden by the screen; a read-only text window.
TEST(Binding, CalendarAndTextWindow) {
    Okno o({"", osoba("a", 0), ekran<leave::ChoroboweScreen>()});
    auto& f = static_cast<leave::ChoroboweScreen&>(*o.f);
    EXPECT_FALSE(o.w<QCalendarWidget>("MonthView1")->isVisibleTo(o.dlg.get()));
    o.dlg->view()->runWork([&] {
        f.txtLiczbadni1.Text = "5";
        f.txtKodPrzerwy1.Text = "331";
        f.wejscieOd(1);
    });
    EXPECT_TRUE(o.w<QCalendarWidget>("MonthView1")->isVisibleTo(o.dlg.get()));

    Okno pomoc({"", nullptr, ekran<app::PomocScreen>()});
    auto* tekst = pomoc.w<QPlainTextEdit>("txtPomoc");
    EXPECT_TRUE(tekst->isReadOnly());
    EXPECT_TRUE(tekst->toPlainText().startsWith("PENSJA - płace i kadry"));
}

// Tabs: each shows its own frame only; a screenshot of every tab of the list screen.
TEST(Binding, TabsShowTheirFrames) {
    Okno o({"", [](Demo& d) { d.lista("a"); }, ekran<paycalc::ListaScreen>()});
    o.w<QListWidget>("lstlista")->setCurrentRow(5);
    EXPECT_EQ(o.d.s.KluczOsoby, "80120356757");
    auto* tabs = o.w<QTabBar>("TabStrip1");
    ASSERT_EQ(tabs->count(), 5);
    const char* ramki[] = {"Frame1", "Frame2", "Frame3", "Frame4", "frame5"};
    for (int t : {1, 0, 2, 3, 4, 1}) {
        tabs->setCurrentIndex(t);
        for (int r = 0; r < 5; ++r) EXPECT_EQ(o.w<QWidget>(ramki[r])->isVisibleTo(o.dlg.get()), r == t) << t << " " << r;
        gui_support::grab(o.dlg.get(), "frmlista_zakladka" + std::to_string(t + 1));
    }
}

// The menu bar of a screen opens the screens registered under its entries.
TEST(Binding, MenuOfAScreen) {
    Okno o({"", osoba("a", 0), ekran<personnel::Osoba1Screen>()});
    bool pokazany = false;
    o.d.ui.onShow = [&](core::Form& f) { pokazany = f.Name == "frmPlaca"; };
    auto* placa = o.w<QAction>("placa");
    ASSERT_NE(placa, nullptr);
    ASSERT_TRUE(placa->isEnabled());
    placa->trigger();
    EXPECT_TRUE(pokazany);
}
