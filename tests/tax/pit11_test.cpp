// The annual statement: Jan Nowak's year of rokNowaka worked out on paper, the saves of the
// record file and its round trip.
#include <gtest/gtest.h>

#include "core/seqfile.h"
#include "fixture.h"
#include "personnel/person_record.h"
#include "tax/pit11.h"
#include "tax/pit11_record.h"
#include "tax/skladniki.h"

namespace P = tax::Pit11;
using tax::Pit11Screen;

namespace {

struct Rodzaj {
    const char* nazwa;
    const char* rodzaj;
    double razem1, zaliczka1, razem3, zaliczka3;
};

// January: gross 5000, ZUS benefits 400 and 100; the benefits' tax RoundZl(Round2(400 x 0.17)) =
// 68 (no tax in the ledger, the scale's first rate), overtime tax 20: 400 + 68 + 20. March: gross
// 6000, benefits 301 with the ledger's own tax 55. "FN" neither counts the benefits nor taxes them.
const Rodzaj kRodzaje[] = {
    {"P", "P", 5500, 488, 6301, 555},
    {"N", "N", 5000, 488, 6000, 555},
    {"FN", "FN", 5000, 420, 6000, 500},
};

class Pit11Rodzaje : public testing::TestWithParam<Rodzaj> {};

TEST_P(Pit11Rodzaje, MonthsFromTheLedgersByPayerType) {
    tax_tests::Dane d;
    tax_tests::rokNowaka(d);
    tax::PobranePit11 p = tax::pobierzPit11(d.s, "a", GetParam().rodzaj);
    const auto& sty = p.miesiace[0];
    EXPECT_DOUBLE_EQ(sty.razem, GetParam().razem1);
    EXPECT_DOUBLE_EQ(sty.zaliczka, GetParam().zaliczka1);
    EXPECT_DOUBLE_EQ(p.miesiace[2].razem, GetParam().razem3);
    EXPECT_DOUBLE_EQ(p.miesiace[2].zaliczka, GetParam().zaliczka3);
    // The other columns of January: overtime 100 + 50, costs Round2(250.004), health 300 and
    // 50 + 10, contributions 488 + 75 + 122.5 and of the overtime base 200: 3 + 19.52 + 4.90.
    EXPECT_DOUBLE_EQ(sty.godziny, 150);
    EXPECT_FLOAT_EQ(static_cast<float>(sty.koszty), 250);
    EXPECT_DOUBLE_EQ(sty.skladkaInd, 300);
    EXPECT_DOUBLE_EQ(sty.nfz, 60);
    EXPECT_NEAR(sty.skladkiZUS, 712.92, 1e-4);
    EXPECT_FLOAT_EQ(static_cast<float>(sty.ulga), 43.76f);
    // February has no ledger: a zero row.
    const auto& lut = p.miesiace[1];
    for (double v : {lut.razem, lut.godziny, lut.koszty, lut.skladkaInd, lut.nfz, lut.skladkiZUS, lut.ulga, lut.zaliczka})
        EXPECT_EQ(v, 0);
    // The thirteenth: 1000, health 77.5 and 12.5, contributions 15 + 97.6 + 24.5, tax 150.
    EXPECT_DOUBLE_EQ(p.trzynastka, 1000);
    EXPECT_NEAR(p.sklZusT, 137.1, 1e-4);
    EXPECT_DOUBLE_EQ(p.zaliczkaT, 150);
    EXPECT_EQ(p.zZasilkami, std::string(GetParam().rodzaj) == "P");
}

INSTANTIATE_TEST_SUITE_P(Rodzaje, Pit11Rodzaje, testing::ValuesIn(kRodzaje),
                         [](const auto& i) { return std::string(i.param.nazwa); });

TEST(Pit11, AdditionsTakeTheRecordsRateAndFlags) {
    // 1000 charged in full: S 137.10, B 862.90, 7.75% 66.87, 1.25% 10.79, tax 863 x 0.18 = 155.34;
    // 200 free of social and health: tax 36; 300 free of tax: S 41.13, 20.06, 3.24.
    tax_tests::Dane d;
    tax_tests::miesiacPit4(d);
    tax::PobranePit11 p = tax::pobierzPit11(d.s, "a", "N");
    const auto& m = p.miesiace[0];
    EXPECT_DOUBLE_EQ(m.dodatki, 1500);
    EXPECT_NEAR(m.skladkiZUS, 178.23, 1e-4);
    EXPECT_NEAR(m.skladkaInd, 77.5 + 66.87 + 20.06, 1e-4);
    EXPECT_NEAR(m.nfz, 12.5 + 5 + 10.79 + 3.24, 1e-4);
    EXPECT_NEAR(m.zaliczka, 100 + 40 + 155.34 + 36, 1e-4);
    EXPECT_DOUBLE_EQ(p.swUrlopowe, 1000);
    EXPECT_DOUBLE_EQ(p.zaliczkaSU, 50);
    EXPECT_DOUBLE_EQ(p.jubileusz, 3000);
    EXPECT_DOUBLE_EQ(p.zaliczkaNJ, 100);
}

TEST(Pit11, SavingCreatesTheFileForEveryPersonAndEachSaveAddsTheThirteenthAgain) {
    tax_tests::Dane d;
    tax_tests::rokNowaka(d);
    Pit11Screen ekran(d.ui, d.s);
    ekran.Load();
    ekran.txtRodzajPlatnika.Text = "N";
    ekran.Pobierz();
    ekran.Zapisz();
    const auto plik = d.payer() / "Pit11" / "a2112.dta";
    auto recs = P::readAll(plik);
    const auto osoby = personnel::Osoba::readAll(personnel::Osoba::path(d.s));
    ASSERT_EQ(recs.size(), osoby.size());
    const auto& r = recs[static_cast<std::size_t>(P::znajdz(recs, tax_tests::kNowak))];
    // NFZ 60 + 77.5, deducted 300 + 12.5, contributions 712.92 + 137.10; gross 11000 + overtime 150
    // + thirteenth 1000.
    EXPECT_DOUBLE_EQ(r.d(P::NFZRazem), 137.5);
    EXPECT_DOUBLE_EQ(r.d(P::RazemSkladkiZDRi), 312.5);
    EXPECT_NEAR(r.d(P::RazemSkladkiZUS), 850.02, 1e-4);
    EXPECT_DOUBLE_EQ(r.d(P::RazemRazem), 12150);
    EXPECT_DOUBLE_EQ(r.d(P::SumaNFZ), 137.5);
    EXPECT_EQ(r.s(P::Miejscowosc), osoby[0].s(personnel::Osoba::Miejscowosc));
    EXPECT_EQ(recs[1].d(P::RazemRazem), 0);
    ekran.Zapisz();
    recs = P::readAll(plik);
    EXPECT_DOUBLE_EQ(recs[static_cast<std::size_t>(P::znajdz(recs, tax_tests::kNowak))].d(P::NFZRazem), 215);
    // Load and save give the same bytes.
    const std::string bajty = core::readFileText(plik);
    P::writeAll(plik, P::readAll(plik));
    EXPECT_EQ(core::readFileText(plik), bajty);
}

TEST(Pit11, EveryBoxGoesToItsOwnFieldAndComesBack) {
    tax_tests::Dane d;
    Pit11Screen ekran(d.ui, d.s);
    ekran.Load();
    for (std::size_t i = 0; i < ekran.boxes.size(); ++i) ekran.boxes.box(i).Text = std::to_string(i + 1) + ",5";
    ekran.txtKosztyU.Text = "4";
    ekran.setOption(ekran.Option1);
    ekran.Dopisz();
    EXPECT_EQ(d.ui.last(), "[] Dopisano do zbioru PIT11 osobe! ");
    Pit11Screen drugi(d.ui, d.s);
    drugi.ZeZbioru();
    EXPECT_EQ(d.ui.last(), "[] Pobrane !");
    // The total of income is worked out on saving; every other box is kept as typed.
    for (std::size_t i = 0; i < drugi.boxes.size(); ++i)
        if (drugi.boxes.def(i).field != P::RazemRazem) {
            EXPECT_DOUBLE_EQ(tax::liczba(drugi.boxes.box(i).Text), static_cast<double>(i) + 1.5) << drugi.boxes.box(i).Name;
        }
    EXPECT_EQ(drugi.txtKosztyU.Text, "4");
    EXPECT_EQ(drugi.Option1.Value, 1);
}

TEST(Pit11, BoxesOfThePersonCommands) {
    tax_tests::Dane d;
    Pit11Screen ekran(d.ui, d.s);
    ekran.Load();
    ekran.ZeZbioru();
    EXPECT_EQ(d.ui.last(), "[] Nie znaleziono zapisanego zbioru Pit11 dla tej osoby !");
    d.s.KluczOsoby = "99999999999";
    ekran.Dopisz();
    EXPECT_EQ(d.ui.last(), "[] Nie znaleziono danych w dla NOWAK JAN w zbiorze danych personalnych");
    ekran.Zapisz();  // the file is made for the list's persons, this one is not among them
    EXPECT_EQ(d.ui.last(), "[] Brak wpisu do pit11 tej osoby ! Dopisz");
    ekran.txtOdData.Text = "1-1-2021";
    d.ui.answer(core::Answer::No);
    ekran.Pobierz();
    EXPECT_EQ(d.ui.last(), "[Zle wpisana data!] Podaj date w formacie dd-mm-RRRR ");
    ekran.Usun();
    EXPECT_EQ(d.ui.lines().end()[-2], "[Usuwam zbiór PIT11] Funkcja pobierz i zapisz utworzy nowy zbiór z kartotek miesięcznych ");
    EXPECT_EQ(d.ui.last(), "[] Zbiór Pit 11 a2112.dta został usunięty ");
    EXPECT_FALSE(std::filesystem::exists(d.payer() / "Pit11" / "a2112.dta"));
}

}  // namespace

namespace {

struct Roczny {
    const char* nazwa;
    double przychod, koszty, skladki, zdrowotna, zaliczki;
    double podstawa, podatek, nalezny, doZaplaty, nadplata;
};

// The rates of 2021: 17% up to 85528, 32% above, relief 12 x 43.76 = 525.12.
// 97000 - 3000 - 13710 = 80290 x 0.17 = 13649.30 - 525.12 - 6000 = 7124.18 -> 7124, paid 8000.
// 120000 - 3000 - 16000 = 101000: 85528 x 0.17 + 15472 x 0.32 = 14539.76 + 4951.04 = 19490.80
// - 525.12 - 7000 = 11965.68 -> 11966, paid 11000.
const Roczny kRoczne[] = {
    {"first bracket, overpaid", 97000, 3000, 13710, 6000, 8000, 80290, 13649.3, 7124, 0, 876},
    {"second bracket, to pay", 120000, 3000, 16000, 7000, 11000, 101000, 19490.8, 11966, 966, 0},
};

TEST(Pit40, AnnualTaxOnTheScaleOfTheYear) {
    tax_tests::Dane d;
    for (const Roczny& x : kRoczne) {
        core::Record r(P::schema());
        r.set(P::RazemRazem, x.przychod);
        r.set(P::RazemKoszty, x.koszty);
        r.set(P::SumaSkladkiZUS, x.skladki);
        r.set(P::SumaRobocza, x.zdrowotna);
        r.set(P::RazemZaliczka, static_cast<float>(x.zaliczki));
        tax::RozliczeniePit40 w = tax::rozliczPit40(r, d.s.stawki);
        EXPECT_DOUBLE_EQ(w.podstawa, x.podstawa) << x.nazwa;
        EXPECT_NEAR(w.podatekSkala, x.podatek, 1e-3) << x.nazwa;
        EXPECT_DOUBLE_EQ(w.podatekNalezny, x.nalezny) << x.nazwa;
        EXPECT_DOUBLE_EQ(w.doZaplaty, x.doZaplaty) << x.nazwa;
        EXPECT_DOUBLE_EQ(w.nadplata, x.nadplata) << x.nazwa;
    }
}

}  // namespace

namespace {

TEST(Pit11, NoToTheFirstQuestionPrintsPit8BAndNoToTheSecondEndsAfterPageOne) {
    tax_tests::Dane d;
    tax_tests::rokNowaka(d);
    d.s.Drukarka = "D";
    Pit11Screen ekran(d.ui, d.s);
    ekran.Load();
    ekran.Pobierz();
    ekran.Zapisz();
    d.ui.answer(core::Answer::No).answer(core::Answer::No);
    ekran.Drukuj(tax::Druk::Pit11);
    const auto strony = d.ui.paper.pages();
    ASSERT_EQ(strony.size(), 1u);
    // A printer other than "L" feeds one line first; PIT-8B has the person one line lower than PIT-11.
    ASSERT_GE(strony[0].size(), 25u);
    EXPECT_EQ(strony[0][0].text, "");
    EXPECT_EQ(strony[0][24].text.substr(0, 15), "    P O L S K A");
}

}  // namespace
