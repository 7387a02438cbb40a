#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>

#include <utility>
#include <vector>

#include "core/paths.h"
#include "core/screens.h"
#include "generator.h"
#include "gui/formview.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "paycalc/karta_record.h"
#include "paycalc/lista.h"
#include "support/scripted.h"

using testing_support::ScriptedDialogs;

namespace {

// The list "a" of the demo as the choice of a list opens it.
void otworzListeA(core::Session& s) {
    s.NazwaListy = "Administracja                    ";
    s.NazwaZbioru = "a";
    s.SciezkaBazy = s.payerPath({"bazy", "a.dta"});
    s.SciezkaOsob = s.payerPath({"person", "a.per"});
}

// Boxes answered by the script; the screen repaints on DoEvents as in the program.
struct Odswiezane : ScriptedDialogs {
    std::function<void(core::Form&)> przy;
    void doEvents(core::Form& f) override {
        ScriptedDialogs::doEvents(f);
        if (auto* v = gui::FormView::of(f)) v->push();
        QApplication::processEvents();
        if (przy) przy(f);
    }
};

}  // namespace

TEST(ListaGui, ChosenPersonAndEveryTab) {
    gui_support::DemoSession demo;
    otworzListeA(demo.session);
    // Every tab founds its month's file here, the demo's January runs too.
    for (const char* f : {"Godziny/aGod2101.dta", "Dodatki/aDod2101.dta"})
        std::filesystem::remove(demo.session.payerFolder() / f);
    Odswiezane ui;
    core::Screens screens;
    gui::registerAllScreens(screens);
    ui.screens = &screens;
    paycalc::ListaScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Lista pracowników Administracja");
    auto* lista = dlg.findChild<QListWidget*>("lstlista");
    ASSERT_NE(lista, nullptr);
    ASSERT_EQ(lista->count(), 7);
    EXPECT_TRUE(lista->font().fixedPitch() || lista->font().styleHint() == QFont::Monospace);
    EXPECT_EQ(dlg.findChild<QLabel*>("Label3")->text(), "Administracja");
    // No frame before a name is chosen.
    EXPECT_FALSE(dlg.findChild<QWidget*>("Frame1")->isVisibleTo(&dlg));
    gui_support::grab(&dlg, "frmlista");

    // The ledger of the month first, so that the thirteenth pay's base has something to sum.
    dlg.findChild<QPushButton*>("cmdKartoteka")->click();
    EXPECT_EQ(ui.last(), "[Kartoteka z listy plac a] Wykonano kartotekę za 2101");

    lista->setCurrentRow(5);
    EXPECT_EQ(demo.session.KluczOsoby, "80120356757");
    EXPECT_EQ(dlg.findChild<QLabel*>("lbNazwiskoImie1")->text(), "DĄBROWSKI MAREK");
    EXPECT_TRUE(dlg.findChild<QWidget*>("Frame1")->isVisibleTo(&dlg));

    auto* tabs = dlg.findChild<QTabBar*>("TabStrip1");
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 5);
    const char* ramki[] = {"Frame1", "Frame2", "Frame3", "Frame4", "frame5"};
    const std::vector<std::pair<const char*, QString>> wpisy[] = {
        {{"txtIl1", "10"}, {"txtIl4", "2"}}, {{"txtDodatek1", "1000"}}, {}, {{"txtPodstawaJ", "3000"}},
        {{"txtPodstawaU", "1000"}}};
    const char* przyciski[] = {"CmdWyliczG", "cmdWyliczD", "cmdWyliczT", "cmdWyliczJ", "cmdWyliczSwUrlopowy"};
    // Hand-checked: overtime 4600 / 168 = 27.38 an hour, nights 31.49 (x 10 and x 2); the
    // thirteenth 8.5 % of 5888 + 336.78 + 1000; the awards taxed at 17 %.
    const std::pair<const char*, QString> wyniki[] = {{"LbRazemKwotaG", "336.78"},
                                                       {"LbRazemKwotaD", "1000"},
                                                       {"lbPodstawaZUST", "614.11"},
                                                       {"LbPodatekNettoJ", "510"},
                                                       {"LbPodatekNettoU", "170"}};
    // The first tab is current already: a change to the second (which makes its file) and back.
    tabs->setCurrentIndex(1);
    for (int t = 0; t < 5; ++t) {
        ui.boxes.clear();
        tabs->setCurrentIndex(t);
        // Each tab asks once for the month's file; the additions' file is there already.
        ASSERT_EQ(ui.boxes.size(), t == 1 ? 0u : 1u) << t;
        ui.boxes.clear();
        for (int r = 0; r < 5; ++r)
            EXPECT_EQ(dlg.findChild<QWidget*>(ramki[r])->isVisibleTo(&dlg), r == t) << t << " " << r;
        if (t == 2) {
            // The thirteenth pay's base of the year: the ledger just made and the two runs before.
            dlg.findChild<QPushButton*>("cmdWyliczPodstawe")->click();
            EXPECT_EQ(dlg.findChild<QLineEdit*>("txtOdKwoty")->text(), "7224.78");
        }
        // A run on every tab, typed as the operator types.
        for (const auto& [pole, wartosc] : wpisy[t]) dlg.findChild<QLineEdit*>(pole)->setText(wartosc);
        dlg.findChild<QPushButton*>(przyciski[t])->click();
        EXPECT_EQ(dlg.findChild<QLabel*>(wyniki[t].first)->text(), wyniki[t].second) << t << " " << ui.last();
        gui_support::grab(&dlg, "frmlista_zakladka" + std::to_string(t + 1));
    }
    // The overtime tab keeps the person's base, open to typing.
    tabs->setCurrentIndex(0);
    auto* podstawa = dlg.findChild<QLineEdit*>("TxtPodstawaG");
    ASSERT_NE(podstawa, nullptr);
    EXPECT_EQ(podstawa->text(), "4600");
    EXPECT_FALSE(podstawa->isReadOnly());
}

TEST(ListaGui, ProgressBarWhileTheLedgerIsMadeOf250People) {
    testing_support::TempDir dir;
    core::Session s = bench::wygenerujListe(dir.path(), "L250", 250);
    s.NazwaListy = "Lista próbna 250 osób";
    Odswiezane ui;
    paycalc::ListaScreen screen(ui, s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    ASSERT_EQ(dlg.findChild<QListWidget*>("lstlista")->count(), 250);
    ASSERT_TRUE(ui.boxes.empty()) << ui.last();
    auto* bar = dlg.findChild<QProgressBar*>("ProgressBar1");
    ASSERT_NE(bar, nullptr);
    int widziane = -1;
    bool zdjecie = false;
    bool przyciskiWylaczone = true;
    ui.przy = [&](core::Form&) {
        widziane = bar->value();
        if (bar->value() < bar->maximum() && dlg.findChild<QPushButton*>("koniecH")->isEnabled())
            przyciskiWylaczone = false;
        if (!zdjecie && bar->value() == 125) {
            EXPECT_EQ(bar->maximum(), 250);
            gui_support::grab(&dlg, "frmlista_kartoteka_postep");
            zdjecie = true;
        }
    };
    dlg.findChild<QPushButton*>("cmdKartoteka")->click();
    EXPECT_TRUE(zdjecie);
    EXPECT_TRUE(przyciskiWylaczone);
    EXPECT_EQ(widziane, 250);
    EXPECT_EQ(ui.last(), "[Kartoteka z listy plac L250] Wykonano kartotekę za 2003");
    EXPECT_EQ(paycalc::Karta::readAll(paycalc::Karta::path(s)).size(), 250u);
    EXPECT_TRUE(dlg.findChild<QPushButton*>("koniecH")->isEnabled());
}
