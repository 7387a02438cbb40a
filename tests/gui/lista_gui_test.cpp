// The progress bar of a long command, moved by the screen while it works.
#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include "generator.h"
#include "gui/formview.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "support/tempdir.h"
#include "paycalc/karta_record.h"
#include "paycalc/lista.h"
#include "support/scripted.h"

using testing_support::ScriptedDialogs;

namespace {

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
