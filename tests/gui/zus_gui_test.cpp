#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "core/paths.h"
#include "core/text.h"
#include "gui/formview.h"
#include "gui/qtdialogs.h"
#include "gui/routes.h"
#include "gui_support.h"
#include "paycalc/kartoteka.h"
#include "reference/catalogue.h"
#include "support/scripted.h"
#include "zus/rcp_record.h"
#include "zus/screens.h"

using testing_support::ScriptedDialogs;

namespace {

// The ledgers of January of both demo lists, as the list screen makes them.
void kartotekiDemo(core::Session& s, ScriptedDialogs& ui) {
    for (const char* lista : {"p", "a"}) {
        s.NazwaZbioru = lista;
        s.Grupa = lista;
        s.SciezkaBazy = s.payerPath({"bazy", std::string(lista) + ".dta"});
        s.SciezkaOsob = s.payerPath({"person", std::string(lista) + ".per"});
        paycalc::wykonajKartoteke(s, ui);
    }
    s.NazwaListy = core::PadRight("Administracja", 33);
}

}  // namespace

TEST(ZusGui, MergeThenSettlementFileThenReview) {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    ScriptedDialogs ui;
    core::Screens screens;
    gui::registerAllScreens(screens);
    ui.screens = &screens;
    for (const char* name : {"mnuDoZUS", "mnuSkladkiZUS", "frmRCP", "FrmZUA"}) EXPECT_TRUE(screens.has(name)) << name;
    kartotekiDemo(s, ui);

    zus::DoZUSScreen screen(ui, s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(screen.txtTerminPlatnosci.Text, "15");
    screen.txtZestawZUS.Text = "AB";
    dlg.view()->push();
    dlg.findChild<QPushButton*>("CmdPolacz")->click();
    EXPECT_EQ(dlg.findChild<QLabel*>("Label9")->text(), "Wykonane !");
    EXPECT_EQ(zus::Rcp::readAll(zus::Rcp::path(s)).size(), 14u);
    dlg.findChild<QPushButton*>("CmdWykonajRCA")->click();
    EXPECT_EQ(ui.last(), "[] Zbior DO PLATNIKA zostal utworzony w BIEZACYM KATALOGU-PODKATALOG ZUS");
    EXPECT_TRUE(dlg.findChild<QLabel*>("Label7")->text().endsWith("Styczeń----"));
    dlg.resize(760, 460);
    gui_support::grab(&dlg, "frmDoZUS");

    zus::RCPScreen rcp(ui, s);
    gui::ScreenDialog dlgRcp(rcp, nullptr);
    dlgRcp.view()->runWork([&] { rcp.Load(); });
    ASSERT_FALSE(rcp.Unloaded);
    auto* grid = dlgRcp.findChild<QTableWidget*>("MSFlexGrid1");
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->columnCount(), 22);
    EXPECT_EQ(grid->rowCount(), 15);
    EXPECT_EQ(grid->item(14, 0)->text(), "Razem");
    dlgRcp.resize(1300, 560);
    grid->scrollToBottom();
    gui_support::grab(&dlgRcp, "frmRCP");
}
