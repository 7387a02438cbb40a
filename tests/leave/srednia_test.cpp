// The twelve-month average: the months read, switched-off and missing months, overtime,
// additions and the thirteenth, both ways of the totals, the days from working time.
#include <gtest/gtest.h>

#include "fixture.h"
#include "leave/czas_record.h"
#include "leave/srednia.h"
#include "paycalc/dodatkowe_record.h"

using namespace leave;
namespace Dod = paycalc::Dodatkowy;

namespace {

struct Srednia {
    lfx::Lista l{"31-03-2021"};
    core::Control cel{nullptr, "txtSredniaChorobowa", core::Kind::TextBox};
    SredniaScreen f{l.ui, l.s, &cel};
    std::vector<std::string> okresy = okresySredniej(3, 21);
    Srednia() {
        l.s.stawki.emerytalna = 0.0976;
        l.s.stawki.rentowaPracownik = 0.065;
        l.s.stawki.chorobowa = 0.0245;  // together 0.1871
    }
    void dodatkowy(Dod::Rodzaj r, const std::string& okres, const std::string& klucz, std::vector<std::pair<int, float>> pola) {
        core::Record rec(Dod::schema());
        rec.set(Dod::Klucz, klucz);
        for (auto [pole, v] : pola) rec.set(pole, v);
        Dod::writeAll(Dod::path(l.s, r, l.s.NazwaZbioru, okres), r, {rec});
    }
    const std::string& kom(int r, int c) { return f.MSFlexGrid7.TextMatrix(r, c); }
};

}  // namespace

TEST(Average, PeriodsOfTheList) {
    const std::vector<std::string> marzec = {"2002", "2003", "2004", "2005", "2006", "2007",
                                             "2008", "2009", "2010", "2011", "2012", "2101"};
    EXPECT_EQ(okresySredniej(3, 21), marzec);
    const auto styczen = okresySredniej(1, 21);
    EXPECT_EQ(styczen.front(), "2000");
    EXPECT_EQ(styczen.back(), "2011");
}

TEST(Average, MonthsCountedSwitchedOffAndMissing) {
    struct {
        const char* name;
        int indeks;  // the month of the period changed, -1 none
        std::vector<std::pair<double, std::string>> linie;
        bool brak;
        std::string miesiecy, ogolem, netto, srednia, info;
    } cases[] = {
        {"dwanaście po 3000", -1, {}, false, "12", "36000.00", "29264.40", "81.29", ""},
        {"16 dni wyłącza", 4, {{10, "331"}, {6, "313"}}, false, "11", "33000.00", "26825.70", "81.29", "Wyłączony"},
        {"15 dni liczy", 4, {{15, "331"}}, false, "12", "36000.00", "29264.40", "81.29", ""},
        {"bez kartoteki: płaca z wiersza przed", 3, {}, true, "12", "35600.00", "28939.24", "80.39", "BrakKartoteki"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Srednia t;
        for (int i = 0; i < 12; ++i) {
            if (i == c.indeks && c.brak) continue;
            t.l.karta(t.okresy[i], 3000, i == c.indeks ? c.linie : std::vector<std::pair<double, std::string>>{},
                      i == 2 && c.brak ? 200.0f : 0.0f);
        }
        t.f.cmdWylicz_Click();
        EXPECT_EQ(t.f.LbiloscMiesiecy.Caption, c.miesiecy);
        EXPECT_EQ(t.f.txtOgolem.Text, c.ogolem);
        EXPECT_EQ(t.f.txtKwotaNetto.Text, c.netto);
        EXPECT_EQ(t.f.txtSredniadzienna.Text, c.srednia);
        EXPECT_EQ(t.cel.Text, c.srednia);
        EXPECT_EQ(t.f.lbSredniaZ.Caption, "Średnia dzienna z " + c.miesiecy + " miesiecy");
        ASSERT_EQ(t.f.MSFlexGrid7.Rows, 13);
        // The seniority allowance taken off, and the cell left for the month without a ledger.
        if (c.brak) { EXPECT_EQ(t.kom(4, KolS::Placa), "2800.00"); }
        if (c.indeks >= 0) {
            EXPECT_EQ(t.kom(c.indeks + 1, KolS::Informacja), c.info);
            EXPECT_EQ(t.kom(c.indeks + 1, KolS::Okres), t.okresy[c.indeks]);
        }
    }
}

TEST(Average, ExtrasThirteenthAndBothTotals) {
    Srednia t;
    for (int i = 0; i < 12; ++i) t.l.karta(t.okresy[i], 3000, i == 7 ? std::vector<std::pair<double, std::string>>{{20, "313"}} : std::vector<std::pair<double, std::string>>{});
    t.dodatkowy(Dod::Rodzaj::God, t.okresy[1], lfx::kKlucz, {{Dod::Kw1, 100.0f}, {Dod::Kw2, 50.5f}});
    t.dodatkowy(Dod::Rodzaj::God, t.okresy[2], lfx::kDrugi, {{Dod::Kw1, 999.0f}});
    t.dodatkowy(Dod::Rodzaj::Dod, t.okresy[4], lfx::kKlucz, {{Dod::Kw7, 300.0f}});
    t.dodatkowy(Dod::Rodzaj::Trz, "21", lfx::kKlucz, {{Dod::KwotaBrutto, 3600.0f}});
    t.f.cmdWylicz_Click();
    EXPECT_EQ(t.kom(2, KolS::Godziny), "150.50");
    EXPECT_EQ(t.kom(3, KolS::Godziny), "150.50");  // left in the cell, not added again
    EXPECT_EQ(t.kom(3, KolS::Razem), "3150.50");
    EXPECT_EQ(t.kom(5, KolS::Dodatki), "300.00");
    EXPECT_EQ(t.f.txtRazemGodziny.Text, "150.50");
    EXPECT_EQ(t.f.txtRazemDodatki.Text, "300.00");
    EXPECT_EQ(t.f.txtTrzynastka.Text, "3600.00");
    EXPECT_EQ(t.f.lbKwotaTrzynastkiM.Caption, "3600.00");
    EXPECT_EQ(t.f.LbDatatrzynastki.Caption, "2021");
    // The thirteenth whole: 33000 + 150.50 + 300 + 3600.
    EXPECT_EQ(t.f.txtOgolem.Text, "37050.50");
    EXPECT_EQ(t.f.txtKwotaNetto.Text, "30118.35");
    EXPECT_EQ(t.cel.Text, "91.27");
    // Its twelfth for each of the 11 months counted.
    t.f.CmdWyliczSrednia_Click();
    EXPECT_EQ(t.f.txtOgolem.Text, "36750.50");
    EXPECT_EQ(t.f.txtKwotaNetto.Text, "29874.48");
    EXPECT_EQ(t.f.txtSredniadzienna.Text, "90.53");
    // A second fetch does nothing while the grid has rows.
    t.f.txtRazeMPlaca.Text = "1";
    t.f.cmdWylicz_Click();
    EXPECT_EQ(t.f.txtRazeMPlaca.Text, "1");
    // With no month counted the typed average stands.
    t.f.LbiloscMiesiecy.Caption = "0";
    t.f.txtSredniadzienna.Text = "55,5";
    t.f.CmdWyliczSrednia_Click();
    EXPECT_EQ(t.cel.Text, "55.5");
    t.f.txtSredniadzienna.Text = "0";
    t.f.CmdWstaw_Click();
    EXPECT_FALSE(t.f.Unloaded);
    t.f.txtSredniadzienna.Text = "61,20";
    t.f.CmdWstaw_Click();
    EXPECT_TRUE(t.f.Unloaded);
    EXPECT_EQ(t.cel.Text, "61.20");
}

TEST(Average, DaysFromWorkingTime) {
    Srednia t;
    t.f.cmdPobierzIloscdni_Click();
    EXPECT_EQ(t.l.ui.last(), "[]  Brak danych  - nie wykonywana ewidencja czasu pracy !!");
    CzasPracy::Blok b = CzasPracy::nowyBlok("KOWALSKI", "JAN", lfx::kKlucz, 2020);
    auto& luty = b.dni[1];
    luty[2].set(CzasPracy::Dzien::GN, "8");
    luty[3].set(CzasPracy::Dzien::GCh, "C1");  // a text is no number: not counted
    luty[4].set(CzasPracy::Dzien::GCh, "1");
    luty[5].set(CzasPracy::Dzien::GCh, "1");
    luty[5].set(CzasPracy::Dzien::Swieto, "S");
    for (int d : {9, 10}) luty[d].set(CzasPracy::Dzien::Gp, "8");
    CzasPracy::writeAll(CzasPracy::path(t.l.s, "2020"), {b}, "t.dta");
    t.l.ui.boxes.clear();
    for (int i = 0; i < 12; ++i) t.l.karta(t.okresy[i], 3000);
    t.f.cmdWylicz_Click();
    t.f.cmdPobierzIloscdni_Click();
    EXPECT_EQ(t.kom(1, KolS::IlDniOB), "2");
    EXPECT_EQ(t.kom(1, KolS::IlDniPra), "2");
    EXPECT_EQ(t.kom(2, KolS::IlDniOB), "0");
    EXPECT_EQ(t.l.ui.boxes.size(), 1u);  // January 2021 has no file
}
