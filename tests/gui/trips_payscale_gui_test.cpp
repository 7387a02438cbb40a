#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>

#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "support/scripted.h"
#include "payinputs/taryfikator.h"
#include "trips/delegacje.h"

using testing_support::ScriptedDialogs;

// A foreign trip on the screen: the typed lodging reaches the editable combo box and the
// positions' grid shows both legs.
TEST(DelegacjeGui, ForeignTripOnTheScreen) {
    gui_support::DemoSession demo;
    ScriptedDialogs ui;
    trips::DelegacjeScreen e(ui, demo.session);
    gui::ScreenDialog dlg(e, nullptr);
    dlg.view()->runWork([&] { e.Load(); });
    ASSERT_FALSE(e.Unloaded);
    dlg.view()->runWork([&] {
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
    });
    auto* pozycje = dlg.findChild<QTableWidget*>("MSFlexGrid3");
    ASSERT_NE(pozycje, nullptr);
    ASSERT_EQ(pozycje->rowCount(), 1);
    EXPECT_EQ(pozycje->item(0, 13)->text(), "224.03");
    auto* nocleg = dlg.findChild<QComboBox*>("cmbNocleg");
    ASSERT_NE(nocleg, nullptr);
    EXPECT_TRUE(nocleg->isEditable());
    EXPECT_EQ(nocleg->currentText(), "150");
    gui_support::grab(&dlg, "frmDelegacje");
}

// The pay-scale table: sixteen cells named as the control array, filled from the file.
TEST(TaryfikatorGui, CellsOfTheTable) {
    gui_support::DemoSession demo;
    std::array<float, payinputs::Tabela::kKomorek> placa{};
    for (std::size_t i = 0; i < placa.size(); ++i) placa[i] = 3000.0f + 150.0f * static_cast<float>(i);
    payinputs::Tabela::write(demo.session, placa);
    ScriptedDialogs ui;
    payinputs::TaryfikatorScreen e(ui, demo.session);
    gui::ScreenDialog dlg(e, nullptr);
    dlg.view()->runWork([&] { e.Load(); });
    auto* cell = dlg.findChild<QLineEdit*>("txtPlaca(15)");
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(), "5250.00");
    gui_support::grab(&dlg, "frmTaryfikator");
}
