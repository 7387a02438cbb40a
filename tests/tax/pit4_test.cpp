// The monthly advance: the month's sums worked out on paper from the files of miesiacPit4, the
// totals of the sheet, and the sheet's file.
#include <gtest/gtest.h>

#include "core/seqfile.h"
#include "fixture.h"
#include "paycalc/karta_record.h"
#include "tax/pit4.h"
#include "tax/skladniki.h"

using tax::Pit4Screen;
namespace A = tax::Pit4Arkusz;

namespace {

struct Zestaw {
    const char* nazwa;
    const char* litery;
    const char *osoby, *wyplaty, *pobrane, *odliczone, *zaliczka;
};

// Set A: ledger of "a": 1000 + 2000 health base, 12.5 + 25 kept, 77.5 + 155 deducted, 100 + 200 tax
// (Kamińska of flag 2 left out). Overtime: 400, 5, 31, 40. Additions at 17%: 1000 (all charged):
// S 137.10, B 862.90, 7.75% 66.87, 1.25% 10.79, tax 863 x 0.17 = 146.71; 200 free of social and
// health: tax 34.00; 300 free of tax: S 41.13, B 258.87, 20.06, 3.24. Thirteenth of Nowak alone:
// 2000, S 274.20, B 1725.80, 133.75, 21.57, tax 1726 x 0.17 = 293.42. Holiday benefit 50, jubilee
// 100 of tax. Base 1000 + 2000 + 400 + 1121.77 + 1725.80 = 6247.57; deducted 77.5 + 155 + 31 +
// 86.93 + 133.75 = 484.18; tax 100 + 200 + 40 + 180.71 + 293.42 + 50 + 100 = 964.13; collected
// before the deduction 964.13 + 484.18.
// Set B: Piątek alone; the "05" record ends "p", its overtime (111) never counts.
const Zestaw kZestawy[] = {
    {"A", "A", "2", "6247.57", "1448.31", "484.18", "964.13"},
    {"B", "B", "1", "3000.00", "532.50", "232.50", "300.00"},
    {"AB", "AB", "3", "9247.57", "1980.81", "716.68", "1264.13"},
};

class Pit4Zestawy : public testing::TestWithParam<Zestaw> {};

TEST_P(Pit4Zestawy, RowOneSumsTheLedgersAndSupplementaryFilesOfTheSet) {
    tax_tests::Dane d;
    tax_tests::miesiacPit4(d);
    Pit4Screen ekran(d.ui, d.s);
    ekran.Zestaw = GetParam().litery;
    ekran.Load();
    ekran.WyliczPIT4();
    EXPECT_EQ(ekran.boxes[A::Ilosc1].Text, GetParam().osoby);
    EXPECT_EQ(ekran.boxes[A::SumaWyplat1].Text, GetParam().wyplaty);
    EXPECT_EQ(ekran.boxes[A::Pobrane1].Text, GetParam().pobrane);
    EXPECT_EQ(ekran.boxes[A::Odliczone1].Text, GetParam().odliczone);
    EXPECT_EQ(ekran.boxes[A::Zaliczka1].Text, GetParam().zaliczka);
    EXPECT_TRUE(d.ui.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Zestawy, Pit4Zestawy, testing::ValuesIn(kZestawy),
                         [](const auto& i) { return std::string(i.param.nazwa); });

TEST(Pit4, WithoutSupplementaryFilesRowOneComesFromTheLedgersAlone) {
    tax_tests::Dane d;
    d.karta("a", "2101", {tax_tests::karta("NOWAK", "JAN", tax_tests::kNowak,
                                           {{paycalc::Karta::PodstawaZdrowotna, 1000}, {paycalc::Karta::PodatekNetto, 99}})});
    tax::SumyPit4 t = tax::wyliczPit4(d.s, "A");
    EXPECT_EQ(t.osoby, 1);
    EXPECT_DOUBLE_EQ(t.podstawaZdrowotna, 1000);
    EXPECT_DOUBLE_EQ(t.podatek, 99);
}

struct Wiersze {
    const char* nazwa;
    const char* potracenie;
    const char* doWplaty;
};

TEST(Pit4, TotalsTakeTheArt13AdvanceButNoRowAndNeverGoBelowZero) {
    // Advances 100 + 50.50, art. 13 20: total 170.50; a reduction of 500 leaves 0, of 70.50 leaves 100.
    const Wiersze kPrzypadki[] = {{"reduction above the advance", "500", "0.00"}, {"reduction below", "70,5", "100.00"}};
    for (const Wiersze& w : kPrzypadki) {
        tax_tests::Dane d;
        Pit4Screen ekran(d.ui, d.s);
        ekran.Load();
        ekran.boxes[A::Zaliczka1].Text = "100";
        ekran.boxes[A::Zaliczka1 + 2].Text = "50,50";
        ekran.boxes[A::SumaWyplat1 + 7].Text = "1000";
        ekran.boxes[A::KwotaZaliczekK13].Text = "20";
        ekran.boxes[A::KwotaPotracenia].Text = w.potracenie;
        ekran.Wylicz();
        EXPECT_EQ(ekran.boxes[A::RazemZaliczka].Text, "170.50") << w.nazwa;
        EXPECT_EQ(ekran.boxes[A::KwotaPobranegoPod].Text, "170.50") << w.nazwa;
        EXPECT_EQ(ekran.boxes[A::KwotaDoWplaty].Text, w.doWplaty) << w.nazwa;
        EXPECT_EQ(ekran.boxes[A::RazemSumaWyplat].Text, "1000.00") << w.nazwa;
        for (int i = 0; i < 8; ++i) EXPECT_NE(ekran.boxes[A::Zaliczka1 + i].Text, "20") << w.nazwa;
    }
}

TEST(Pit4, SheetSavedAndReadBackBoxForBoxAndByteForByte) {
    tax_tests::Dane d;
    Pit4Screen ekran(d.ui, d.s);
    ekran.Load();
    for (std::size_t i = 0; i < ekran.boxes.size(); ++i) ekran.boxes.box(i).Text = std::to_string(i + 1) + ",25";
    ekran.ZapiszPit4();
    EXPECT_EQ(d.ui.last(), "[] Zapisane ! ");
    const auto plik = d.payer() / "Pit4" / "Pit42101.dta";
    const std::string bajty = core::readFileText(plik);
    EXPECT_EQ(bajty.substr(0, 12), "1.25\r\n2.25\r\n");

    Pit4Screen drugi(d.ui, d.s);
    drugi.ZeZbioru();
    for (std::size_t i = 0; i < drugi.boxes.size(); ++i) {
        EXPECT_DOUBLE_EQ(tax::liczba(drugi.boxes.box(i).Text), static_cast<double>(i) + 1.25) << drugi.boxes.box(i).Name;
    }
    A::write(plik, A::read(plik));
    EXPECT_EQ(core::readFileText(plik), bajty);
}

}  // namespace
