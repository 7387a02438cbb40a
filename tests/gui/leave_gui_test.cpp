// The screens of leave and working time on the demo data: colours of the grids reach the
// widgets, the calendars and the history come and go; screenshots of the four screens.
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QPushButton>
#include <QTableWidget>

#include "gui/formview.h"
#include "gui/qtdialogs.h"
#include "gui_support.h"
#include "leave/chorobowe.h"
#include "leave/czas_pracy.h"
#include "leave/srednia.h"
#include "leave/urlopy_ekran.h"
#include "support/scripted.h"

using testing_support::ScriptedDialogs;

namespace {

struct DemoOsoba {
    gui_support::DemoSession demo;
    core::Session& s = demo.session;
    ScriptedDialogs ui;
    DemoOsoba() {
        s.NazwaZbioru = "a";
        s.KluczOsoby = "75031412317";
        s.NazwiskoOsoby = "NOWAK";
        s.ImieOsoby = "JAN";
    }
};

QTableWidget* siatka(QWidget& w, const char* name) { return w.findChild<QTableWidget*>(name); }

}  // namespace

TEST(LeaveGui, YearGridWithColours) {
    DemoOsoba d;
    leave::UrlopyScreen screen(d.ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Urlopy NOWAK JAN");
    QTableWidget* t = siatka(dlg, "MSFlexGrid1");
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(t->item(0, 18)->background().color(), QColor(0xFF, 0xF2, 0xA8));
    EXPECT_EQ(t->item(0, 1)->background().color(), QColor(Qt::blue));  // New Year's Day from working time
    EXPECT_EQ(t->item(0, 1)->foreground().color(), QColor(Qt::white));
    gui_support::grab(&dlg, "frmUrlopy");
}

TEST(LeaveGui, WorkingTimeMonth) {
    DemoOsoba d;
    leave::CzasPracyScreen screen(d.ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_EQ(dlg.windowTitle(), "Rozliczenie czasu pracy dla NOWAK JAN");
    QTableWidget* t = siatka(dlg, "MSFlexGrid1");
    EXPECT_TRUE(t->item(0, 10)->font().bold());
    EXPECT_EQ(t->item(1, 1)->background().color(), QColor(0xFF, 0xE0, 0xE0));  // Saturday
    gui_support::grab(&dlg, "frmCzasPracy");
}

TEST(LeaveGui, SickPayWithCalendarAndHistory) {
    DemoOsoba d;
    leave::ChoroboweScreen screen(d.ui, d.s);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    EXPECT_FALSE(dlg.findChild<QCalendarWidget*>("MonthView1")->isVisibleTo(&dlg));
    dlg.view()->runWork([&] {
        screen.txtLiczbadni1.Text = "5";
        screen.txtSredniaCH1.Text = "120.50";
        screen.txtKodPrzerwy1.Text = "331";
        screen.wejscieOd(1);
    });
    EXPECT_TRUE(dlg.findChild<QCalendarWidget*>("MonthView1")->isVisibleTo(&dlg));
    dlg.view()->runWork([&] { screen.cmdHistoriachorobowego_Click(); });
    QTableWidget* h = siatka(dlg, "MSFlexGrid9");
    ASSERT_EQ(h->rowCount(), 1);  // the demo has no ledgers: the year's row alone
    EXPECT_EQ(h->item(0, 5)->background().color(), QColor(192, 255, 192));
    gui_support::grab(&dlg, "frmChorobowe");
}

TEST(LeaveGui, Average) {
    DemoOsoba d;
    core::Control cel(nullptr, "txtSredniaChorobowa", core::Kind::TextBox);
    leave::SredniaScreen screen(d.ui, d.s, &cel);
    gui::ScreenDialog dlg(screen, nullptr);
    dlg.view()->runWork([&] { screen.Load(); });
    dlg.findChild<QPushButton*>("cmdWylicz")->click();
    QTableWidget* t = siatka(dlg, "MSFlexGrid7");
    ASSERT_EQ(t->rowCount(), 12);
    EXPECT_EQ(t->item(0, 1)->text(), "2000");  // a list of January begins with month "00"
    gui_support::grab(&dlg, "frmSrednia");
}
