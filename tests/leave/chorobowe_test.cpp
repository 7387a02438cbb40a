// The sick-pay screen: amounts, the 33-day box, the end of a line at the month's end, the
// emptied lines, the history of the year and the transfer to working time as it stands.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "fixture.h"
#include "leave/chorobowe.h"
#include "leave/czas_record.h"
#include "payinputs/pay_record.h"
#include "support/tempdir.h"

using namespace leave;
namespace Pay = payinputs::Pay;
using testing_support::readBytes;

TEST(SickPay, SavingComputesTheLinesAndWarnsPast33Days) {
    struct {
        const char* name;
        std::vector<std::pair<int, std::string>> pola;
        bool box;
        std::string kwota1, procent1;
    } cases[] = {
        {"80 procent z braku", {{Pay::Liczbadni1, "10"}, {Pay::SredniaCH1, "100.50"}, {Pay::Ch1Pr, ""}}, false, "804.00", "80"},
        {"30+3 bez okna", {{Pay::DniChorobyOd01, "30"}, {Pay::Liczbadni1, "3"}, {Pay::SredniaCH1, "100"}, {Pay::Ch1Pr, "100"}}, false, "300.00", "100"},
        {"30+4 okno", {{Pay::DniChorobyOd01, "30"}, {Pay::Liczbadni1, "4"}, {Pay::SredniaCH1, "100"}, {Pay::Ch1Pr, "100"}}, true, "400.00", "100"},
        {"30+3+1 kodu 151 okno",
         {{Pay::DniChorobyOd01, "30"}, {Pay::Liczbadni1, "3"}, {Pay::SredniaCH1, "100"}, {Pay::Ch1Pr, "100"}, {Pay::BZP1dni, "1"}},
         true, "300.00", "100"},
        {"pusta P128, brak średniej", {{Pay::Liczbadni1, "5"}, {Pay::SredniaCH1, ""}, {Pay::Ch1Pr, ""}, {Pay::SredniaChorobowa, ""}}, false, "0.00", "80"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        lfx::Lista l("31-03-2021");
        l.placa(c.pola);
        const std::string drugi = readBytes(Pay::path(l.s)).substr(readBytes(Pay::path(l.s)).find("NOWAK"));
        ChoroboweScreen f(l.ui, l.s);
        f.Load();
        f.txtBZP1Kod.Text = "151";
        l.ui.answer(core::Answer::Cancel);  // the answer cannot stop the save
        f.cmdZapiszzmiany_Click();
        EXPECT_TRUE(f.Unloaded);
        int okna = 0;
        for (const auto& b : l.ui.boxes)
            if (b.title == "Liczba dni płatnych przez płatnika została przekroczona !") {
                ++okna;
                EXPECT_EQ(b.text, "Zamień odpowiednio dni chorobowe na zasilkowe ZUS!");
                EXPECT_EQ(b.buttons, core::Buttons::OKCancel);
            }
        EXPECT_EQ(okna, c.box ? 1 : 0);
        EXPECT_EQ(f.lbch1.Caption, c.kwota1);
        const core::Record r = l.rekordPlacy();
        EXPECT_EQ(core::Format(r.d(Pay::KwotaCh1), "0.00"), c.kwota1);
        EXPECT_EQ(r.s(Pay::Ch1Pr), c.procent1);
        const std::string po = readBytes(Pay::path(l.s));
        EXPECT_EQ(po.substr(po.find("NOWAK")), drugi);
    }
}

TEST(SickPay, ALineSetToNoDaysLosesItsFields) {
    lfx::Lista l("31-03-2021");
    l.placa({{Pay::Liczbadni2, "4"}, {Pay::SredniaCH2, "90"}, {Pay::Ch2Pr, "100"}, {Pay::okresOd2, "\"01032021\""},
             {Pay::SredniaChorobowa, "77.5"}});
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    EXPECT_EQ(f.LbCh2.Caption, "360.00");
    f.txtLiczbadni2.Text = "0";
    f.txtokresDo2.Text = "04032021";
    f.txtKodPrzerwy2.Text = "331";
    f.cmdZapiszzmiany_Click();
    const core::Record r = l.rekordPlacy();
    for (int pole : {Pay::okresOd2, Pay::okresDo2, Pay::KodPrzerwy2, Pay::Ch2Pr, Pay::SredniaCH2})
        EXPECT_EQ(r.s(pole), "") << r.fieldName(pole);
    EXPECT_EQ(r.s(Pay::KwotaCh2), "0");
}

TEST(SickPay, OpeningTakesThePersonsAverageAndRewritesThePayFile) {
    lfx::Lista l("31-03-2021");
    l.placa({{Pay::Liczbadni1, "\" 6\""}, {Pay::SredniaCH1, "0"}, {Pay::Ch1Pr, ""}, {Pay::SredniaChorobowa, "\"120,5\""}});
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    EXPECT_EQ(f.txtSredniaCH1.Text, "120.5");
    EXPECT_EQ(f.txtLiczbadni1.Text, "6");
    EXPECT_EQ(f.txtCh1Pr.Text, "80");
    EXPECT_EQ(f.lbch1.Caption, "578.40");  // 6 x 120.5 x 80 %
    EXPECT_EQ(f.LbCHR.Caption, "578.40");
    EXPECT_EQ(f.lbLacznaIloscDni.Caption, "6");
    const core::Record r = l.rekordPlacy();  // written on opening already
    EXPECT_EQ(r.s(Pay::KwotaCh1), "578.4");
    EXPECT_EQ(r.s(Pay::SredniaChorobowa), "120.5");
}

TEST(SickPay, PickingTheFirstDayCutsTheLineAtTheMonthsEnd) {
    struct {
        const char* name;
        int start, dni, dniMiesiaca;
        KoniecLinii want;
    } cases[] = {
        {"do ostatniego dnia", 26, 5, 30, {30, 5, false}},
        {"przekroczony: dzień mniej", 28, 5, 30, {30, 2, true}},
        {"zero dni", 5, 0, 31, {4, 0, false}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        KoniecLinii k = koniecLinii(c.start, c.dni, c.dniMiesiaca);
        EXPECT_EQ(k.dzien, c.want.dzien);
        EXPECT_EQ(k.dni, c.want.dni);
        EXPECT_EQ(k.przycieta, c.want.przycieta);
    }
    // On the screen: a list of June (30 days), line 2 with 5 days, the 28th picked.
    lfx::Lista l("30-06-2021");
    l.placa({});
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    f.txtLiczbadni2.Text = "5";
    f.wejscieOd(2);
    EXPECT_TRUE(f.MonthView1.Visible);
    f.MonthView1.Text = "2021-06-28";
    f.MonthView1_DateClick();
    EXPECT_EQ(f.txtokresod2.Text, "28062021");
    EXPECT_EQ(f.txtokresDo2.Text, "30062021");
    EXPECT_EQ(f.txtLiczbadni2.Text, "2");
    EXPECT_EQ(l.ui.last(), "[ Przekroczona ilośc  dni poza okres sprawozdawczy ]  Ustaw ręcznie datę Do i ilość dni!");
}

TEST(SickPay, TheEndOfLineOneCountsTheDays) {
    lfx::Lista l("31-03-2021");
    l.placa({});
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    f.txtokresOd1.Text = "0103202";
    f.txtokresDo1.Text = "05032021";
    f.txtokresDo1_Change();
    EXPECT_EQ(l.ui.last(), "[]  Data poczatkowa posiada zły format ddmmrrrr ");
    f.txtokresOd1.Text = "27022021";
    f.txtokresDo1_Change();
    EXPECT_EQ(f.txtLiczbadni1.Text, "7");  // 27 February to 5 March
    f.txtLiczbadni1.Text = "3";
    f.MonthView2.Text = "10-03-2021";
    f.enterDo1();  // at Enter a count already there stays
    EXPECT_EQ(f.txtokresDo1.Text, "10032021");
    EXPECT_EQ(f.txtLiczbadni1.Text, "3");
    f.txtLiczbadni1.Text = "0";
    f.MonthView2_DateClick();
    EXPECT_EQ(f.txtLiczbadni1.Text, "12");
}

TEST(SickPay, HistoryOfTheYearFromTheLedgers) {
    lfx::Lista l("31-03-2021");
    l.placa({{Pay::Liczbadni1, "2"}});
    l.karta("2101", 3000, {{5, "331"}, {3, "313"}});
    l.karta("2102", 3000, {{4, "151"}});  // neither payer nor insurer: no row
    l.karta("2103", 3000, {{2, "333"}, {0, ""}, {6, "121"}});
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    f.cmdHistoriachorobowego_Click();
    const core::Control& g = f.MSFlexGrid9;
    ASSERT_EQ(g.Rows, 4);
    EXPECT_EQ(g.TextMatrix(1, 1), "28-01-2021");
    EXPECT_EQ(g.TextMatrix(1, 2), "01012021");
    EXPECT_EQ(g.TextMatrix(1, 5), "250.00");
    EXPECT_EQ(g.TextMatrix(1, 18), "5");
    EXPECT_EQ(g.TextMatrix(1, 19), "250.00");
    EXPECT_EQ(g.TextMatrix(1, 20), "3");
    EXPECT_EQ(g.TextMatrix(1, 21), "150.00");
    EXPECT_EQ(g.TextMatrix(2, 1), "28-03-2021");
    EXPECT_EQ(g.TextMatrix(3, 1), " Razem rok");
    EXPECT_EQ(g.TextMatrix(3, 18), "7");
    EXPECT_EQ(g.TextMatrix(3, 20), "9");
    EXPECT_EQ(g.Style(3, 7).back, 0xC0FFC0);
    EXPECT_EQ(g.Style(2, 7).back, -1);
    EXPECT_EQ(f.lbLacznaIloscDni.Caption, "18");  // 2 on the screen, 8 and 8 of the rows shown
    EXPECT_TRUE(f.cmdWylaczHistorie.Visible);
}

TEST(SickPay, TransferToWorkingTimeStopsAtTheListsMonth) {
    lfx::Lista l("31-03-2021");
    l.placa({});
    const auto plik = CzasPracy::path(l.s, "2021");
    CzasPracy::writeAll(plik, {CzasPracy::nowyBlok("NOWAK", "ANNA", lfx::kDrugi, 2021),
                               CzasPracy::nowyBlok("KOWALSKI", "JAN", lfx::kKlucz, 2021)}, "t.dta");
    const std::string przed = readBytes(plik);
    ChoroboweScreen f(l.ui, l.s);
    f.Load();
    f.cmdWprowadzDoCzasuPracy_Click();
    EXPECT_TRUE(l.ui.boxes.empty());
    EXPECT_EQ(readBytes(plik), przed);
    const std::string tym = readBytes(plik.parent_path() / "CPL12021.tym ");
    // The other person whole, then the header, January and February, and March's month line.
    EXPECT_EQ(tym, przed.substr(0, tym.size()));
    EXPECT_EQ(std::count(tym.begin(), tym.end(), '\n'), 385 + 1 + 2 * 32 + 1);
}
