#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>

#include "core/paths.h"
#include "core/text.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "paycalc/karta_record.h"
#include "printing/podglad.h"
#include "printing/sumy_record.h"
#include "printing/lista_plac.h"
#include "support/run.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace K = paycalc::Karta;
using testing_support::ScriptedDialogs;

namespace {

// List "a" of the demo payer open, with a ledger of `ile` persons (none: no ledger).
void otworzListe(core::Session& s, int ile) {
    s.NazwaZbioru = "a";
    s.NazwaListy = core::PadRight("Administracja", 33);
    s.NumerListy = "1";
    s.LiczbaOsob = ile;
    if (ile == 0) return;
    static const char* nazwiska[] = {"NOWAK", "WIŚNIEWSKA", "ZIELIŃSKI", "KAMIŃSKA", "DĄBROWSKI"};
    std::vector<core::Record> recs;
    for (int i = 0; i < ile; ++i) {
        core::Record r(K::schema());
        r.set(K::Poczatek, "<Poczatek>");
        r.set(K::Nazwisko, nazwiska[i % 5]);
        r.set(K::Imie, "JAN");
        r.set(K::Zasadnicza, 4000.0 + 100 * i);
        r.set(K::Brutto, 4000.0 + 100 * i);
        r.set(K::DoWyplaty, 4000.0 + 100 * i);
        r.set(K::Etat, "  1  1");
        r.set(K::Koniec, "<Koniec>");
        recs.push_back(r);
    }
    core::writeAll(K::path(s), recs);
}

}  // namespace

TEST(PodgladGui, ListOfTheLedgerOnTheScreenThenPrintedAndCounted) {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    otworzListe(s, 3);
    ScriptedDialogs ui;
    printing::PodgladWydrukuScreen screen(ui, s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    ASSERT_FALSE(screen.Unloaded);
    auto* lst = dlg.findChild<QListWidget*>("lstPodglad");
    ASSERT_NE(lst, nullptr);
    QStringList items;
    for (int i = 0; i < lst->count(); ++i) items << lst->item(i)->text();
    EXPECT_TRUE(items.contains("    LISTA  płac  DEMO Nr listy 1/2021"));
    EXPECT_TRUE(items.contains(" |" + QString(132, '=') + "|"));
    EXPECT_FALSE(items.filter("3.JAN").isEmpty());
    EXPECT_FALSE(items.filter("Ilosc osób = 3").isEmpty());
    // Showing the list prints nothing and leaves no sums.
    EXPECT_TRUE(ui.paper.pages().empty());
    EXPECT_FALSE(core::fileExists(printing::Sumy::path(s)));
    EXPECT_TRUE(ui.boxes.empty());
    dlg.resize(1100, 640);
    gui_support::grab(&dlg, "frmPodgladWydruku");

    dlg.findChild<QPushButton*>("cmdDrukuj")->click();
    EXPECT_EQ(ui.last(), "[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!");
    EXPECT_EQ(ui.paper.documents().size(), 1u);
    EXPECT_TRUE(core::fileExists(printing::Sumy::path(s)));

    dlg.findChild<QPushButton*>("CmdSpecyfikacja")->click();
    EXPECT_EQ(ui.last(), "[Usuwa rekord ! ] Obecnie może być wydrukowana specyfikacja banknotów ! OK Wykonać");
    EXPECT_EQ(ui.paper.documents().size(), 2u);
}

TEST(PodgladGui, WithoutALedgerTheScreenClosesAfterItsBox) {
    gui_support::DemoSession demo;
    otworzListe(demo.session, 0);
    ScriptedDialogs ui;
    printing::PodgladWydrukuScreen screen(ui, demo.session);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_TRUE(screen.Unloaded);
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[] Po pierwsze wykonaj kartoteke !"});
}

TEST(PodgladGui, PrintingIsOpenedByName) {
    core::Screens screens;
    gui::registerAllScreens(screens);
    for (const char* name : {"cmdDrukListy", "CmdPaski", "frmPodgladWydruku", "CmdSpecyfikacja"})
        EXPECT_TRUE(screens.has(name)) << name;
    // The workspace's button prints the list through the name.
    gui_support::DemoSession demo;
    otworzListe(demo.session, 2);
    ScriptedDialogs ui;
    ui.screens = &screens;
    ASSERT_TRUE(ui.open("CmdPaski", demo.session));
    ASSERT_EQ(ui.paper.documents().size(), 1u);
    EXPECT_EQ(ui.paper.pages().size(), 1u);
}

TEST(PodgladGui, ListSavedAsPdfFromThePreviewKeepsTheWholeLine) {
    gui_support::DemoSession demo;
    otworzListe(demo.session, 5);
    ScriptedDialogs ui;
    gui::QtPrinter p;
    p.preview = false;
    demo.session.RodzajListy = " płac ";
    printing::DrukListy d(demo.session, ui, p);
    d.modDrukujPoczatek();
    ASSERT_TRUE(d.modDrukujListe(false));
    const auto pages = p.document().pages();
    ASSERT_FALSE(pages.empty());
    EXPECT_TRUE(pages[0][3].bold);
    EXPECT_EQ(pages[0][3].size, 7);
    EXPECT_EQ(pages[0][3].font, "Courier New");
    testing_support::TempDir dir;
    QString file = QString::fromStdString((dir / "lista.pdf").string());
    ASSERT_TRUE(gui::savePdf(p.document(), file));
    if (!std::filesystem::exists("/usr/bin/pdftotext")) GTEST_SKIP() << "no pdftotext";
    auto r = testing_support::run("/usr/bin/pdftotext", {"-layout", file.toStdString(), "-"}, dir.path());
    EXPECT_NE(r.out.find("|" + std::string(132, '=') + "|"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("5.JAN"), std::string::npos);
    EXPECT_NE(r.out.find("Ilosc osób = 5"), std::string::npos);
}
