// The trips screen on a copy of the demo data: a foreign and a domestic position, the totals,
// saving with the month's numbering, the trip file read back byte for byte, the printed
// settlement, deleting.
#include <gtest/gtest.h>

#include "support/demo.h"

#include "core/paths.h"
#include "reference/payers.h"
#include "support/scripted.h"
#include "support/tempdir.h"
#include "trips/delegacje.h"

namespace fs = std::filesystem;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;

namespace {

struct Trips : testing::Test, testing_support::Demo {
    std::unique_ptr<trips::DelegacjeScreen> e;
    void SetUp() override {
        e = std::make_unique<trips::DelegacjeScreen>(ui, s);
        e->Load();
    }
    fs::path folder() const { return dir.path() / "DEMO" / "delegacje"; }
    void position(const char* kraj, const char* w, const char* p, const char* kurs) {
        e->txtMiejscowoscW.Text = "Kraków";
        e->txtDataW.Text = e->txtDataP.Text = "15.03.2021";
        e->txtGodzinaW.Text = w;
        e->txtMiejscowoscP.Text = "Berlin";
        e->txtGodzinaP.Text = p;
        e->cmbKraj.Text = kraj;
        e->cmbKraj_Click();
        if (kurs) e->txtKursWaluty.Text = kurs;
        e->cmdDodajPozycje_Click();
    }
    // The first person of the demo (NOWAK JAN of list a) with a day in Germany (12 hours, 49 EUR at 4.5721) and 8 hours at
    // home (10:00 to 18:00, half of 30 zł), lump sum 100, lodging 150, other 20.50, advance 1000.
    void trip() {
        e->MSFlexGrid1.Row = 1;
        e->MSFlexGrid1_Click();
        position("Niemcy", "06:00", "18:00", "4,5721");
        position("Polska", "10:00", "18:00", nullptr);
        e->txtRyczalt.Text = "100";
        e->cmbNocleg.Text = "150";
        e->txtInneW.Text = "20,5";
        e->txtZaliczka.Text = "1000";
        e->cmbSrodekTransportu.Text = "Pociąg";
        e->txtDataDel.Text = "16.03.2021";
        e->przeliczRazem();
    }
};

TEST_F(Trips, TotalsOfTheTripAndTheAmountToGiveBack) {
    trip();
    ASSERT_EQ(e->MSFlexGrid3.Rows, 3) << testing::PrintToString(ui.lines());
    EXPECT_EQ(e->MSFlexGrid3.TextMatrix(1, 13), "224.03");  // 49 x 4.5721 = 224.0329
    EXPECT_EQ(e->MSFlexGrid3.TextMatrix(2, 13), "15.00");   // half of 30 zł
    // 100 + 239.03 + 150 + 20.50 = 509.53; 509.53 - 1000 = -490.47.
    EXPECT_EQ(e->txtDiety.Text, "239.03");
    EXPECT_EQ(e->lbRazemNaleznosc.Caption, "509.53");
    EXPECT_EQ(e->txtDoWyplaty.Text, "-490.47");
    EXPECT_EQ(e->LbOgolem.Caption, "Do Zwrotu");
    e->txtZaliczka.Text = "500";
    e->przeliczRazem();
    EXPECT_EQ(e->txtDoWyplaty.Text, "9.53");
    EXPECT_EQ(e->LbOgolem.Caption, "Do wypłaty");
}

}  // namespace

TEST_F(Trips, SavedWithTheMonthsNumberAndReadBackByteForByte) {
    // The numbering of 2021 with April at 7: March counts on, April stays as it was.
    testing_support::writeLines(folder() / "NumD21.dat",
                                {"1,\"styczeń\",0,", "2,\"luty\",0,", "3,\"marzec\",0,", "4,\"kwiecień\",7,"});
    trip();
    e->cmdZapiszDelegacje_Click();
    EXPECT_EQ(e->txtNrDel.Text, "1");
    ASSERT_TRUE(fs::exists(folder() / "De000012103.det")) << testing::PrintToString(ui.lines());
    EXPECT_EQ(e->lbStawka.Caption, "0,OO");
    EXPECT_EQ(e->lbKurs.Caption, "0,0000");
    // A second new trip of the month takes the next number.
    e->txtNrDel.Text.clear();
    e->cmdZapiszDelegacje_Click();
    EXPECT_TRUE(fs::exists(folder() / "De000022103.det"));
    auto numeracja = testing_support::readLines(folder() / "NumD21.dat");
    ASSERT_EQ(numeracja.size(), 12u);
    EXPECT_EQ(numeracja[2], "3,\"marzec\",2,");
    EXPECT_EQ(numeracja[3], "4,\"kwiecień\",7,");
    EXPECT_EQ(numeracja[11], "12,\"grudzień\",0,");
    EXPECT_FALSE(fs::exists(folder() / "NumDT21.dat"));
    ASSERT_EQ(e->MSFlexGrid2.Rows, 3);
    EXPECT_EQ(e->MSFlexGrid2.TextMatrix(1, 4), "509.53");

    // The file as written, and the same after a read and a write.
    auto lines = testing_support::readLines(folder() / "De000012103.det");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "\"1\",\"NOWAK\",\"JAN\",\"75031412317\",100,150,20.5,1000,239.03,\"Pociąg\",\"16.03.2021\","
                        "509.53,-490.47,\"a\",,");
    EXPECT_EQ(lines[1], "1,\"Kraków\",\"15.03.2021\",\"06.00\",\"Berlin\",\"15.03.2021\",\"18.00\",\"12.00\",\"Niemcy\","
                        "\"EUR\",\"49\",\"49.00\",\"4.5721\",\"224.03\",1");
    trips::zapisz(dir.path() / "kopia.det", trips::czytaj(folder() / "De000012103.det"));
    EXPECT_EQ(readBytes(dir.path() / "kopia.det"), readBytes(folder() / "De000012103.det"));

    // Edited from the month's list, then deleted with its boxes.
    e->MSFlexGrid2.Row = 1;
    e->CmdEdytujDelegacje_Click();
    EXPECT_EQ(e->txtDoWyplaty.Text, "-490.47");
    EXPECT_EQ(e->MSFlexGrid3.Rows, 3);
    ui.answer(core::Answer::Yes);
    e->CmdUsuNDelegacje_Click();
    EXPECT_FALSE(fs::exists(folder() / "De000012103.det"));
    EXPECT_EQ(ui.last(), "[Usunieto] Usunieto delegacje nr1");
    EXPECT_EQ(e->MSFlexGrid2.Rows, 2);
}

TEST_F(Trips, RefusalsLeaveTheTripAsItWas) {
    e->cmdZapiszDelegacje_Click();
    EXPECT_EQ(ui.last(), "[Zastanów się co robisz? ] Brak wpisanej jakiejkolwiek pozycji!");
    e->txtMiejscowoscW.Text = "Kraków";
    e->cmdDodajPozycje_Click();
    EXPECT_EQ(ui.last(), "[Brak wpisanej wskazanego pracownika !] Wybiez pracownika delegowanego");
    trip();
    e->MSFlexGrid3.Row = 1;
    ui.answer(core::Answer::No);
    e->CmdUsunPozycje_Click();
    EXPECT_EQ(ui.last(), "[Usuwanie pozycji! ] Czy chcesz usunąć pozycje nr. 1");
    EXPECT_EQ(e->MSFlexGrid3.Rows, 3);
    ui.answer(core::Answer::Yes);
    e->CmdUsunPozycje_Click();
    ASSERT_EQ(e->MSFlexGrid3.Rows, 2);
    EXPECT_EQ(e->MSFlexGrid3.TextMatrix(1, 0), "1");  // renumbered
    EXPECT_EQ(e->txtDiety.Text, "15.00");
    e->MSFlexGrid3.Row = 1;
    e->CmdUsunPozycje_Click();
    EXPECT_EQ(ui.last(), "[Usuwanie pozycji! ] Chcesz usunąć jedyną pozycje? -kliknij zmien i zapisz");
    EXPECT_FALSE(fs::exists(folder() / "NumD21.dat"));
}

TEST_F(Trips, PrintedSettlementAndSummary) {
    trip();
    e->cmdZapiszDelegacje_Click();
    ui.answer(core::Answer::OK);
    e->CmdDrukujRozliczenie_Click();
    e->cmdDrukujZestawienie_Click();
    EXPECT_EQ(ui.paper.text(), readBytes(fs::path(__FILE__).parent_path() / "data" / "rozliczenie.txt"));
}
