// The yearly ledger: the grid of the months and its "Razem" row, the grids of the supplementary
// files, the blanking of a month, the ledger editor and the print against its reference file.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/paths.h"
#include "paycalc/karta_record.h"
#include "rok_fixture.h"
#include "support/tempdir.h"
#include "yearledger/druk_roku.h"
#include "yearledger/edycja.h"
#include "yearledger/kartoteka_roczna.h"
#include "yearledger/rok.h"

namespace fs = std::filesystem;
namespace K = paycalc::Karta;
using namespace yearledger;
using yearledger_tests::Rok;

namespace {

std::size_t kolumna(const std::string& naglowek) {
    for (std::size_t i = 0; i < kolumny().size(); ++i)
        if (kolumny()[i].naglowek == naglowek) return i;
    ADD_FAILURE() << "brak kolumny " << naglowek;
    return 0;
}

// The lines of a ledger file (177 a record).
std::vector<std::string> linie(const fs::path& p) { return testing_support::readLines(p); }

}  // namespace

TEST(KartotekaRoczna, MonthsRazemAndWorkedOutColumns) {
    Rok r;
    r.zapisz();
    const auto g = siatkaRoku(czytajRok(r.s, "a", yearledger_tests::kKlucz, "2020"), r.s.stawki);
    ASSERT_EQ(g.size(), 13u);
    struct Wiersz {
        const char* nazwa;
        std::size_t wiersz;
        const char* kolumna;
        std::string oczekiwane;
    } przypadki[] = {
        {"month number", 0, "Miesi", "01"},
        {"field 55 under Wychowaw, field 15 holding 15", 0, "Wychowaw", "28.00"},
        {"gross of 135", 0, "RazemBrutto", "6075.00"},
        {"the three contributions", 0, "RazemSklZUSP", "720.00"},
        {"deductions of the columns + 132 + 134 + contributions", 0, "PotrRazem", "1211.00"},
        {"all deductions with the health part of the tax", 0, "PotrOgółem", "1611.00"},
        {"gross of fields 6-20 and 32 less deductions", 0, "PłaPoPotr", "4864.00"},
        {"plus benefits 56, 54, 53", 0, "PłacaNet", "4942.00"},
        {"health 146 + 132", 0, "RazemSkłZdr", "450.00"},
        {"Labour Fund 4000 x 2.45%", 0, "SkłFP", "98.00"},
        {"guaranteed fund 5000 x 0.1%", 0, "SkłFGSP", "5.00"},
        {"relief applied", 0, "KwotaUlgi", "43.76"},
        {"account number as text", 0, "NumerKonta", "12 3456"},
        {"a missing month keeps its number", 1, "Miesi", "02"},
        {"a missing month is empty", 1, "RazemBrutto", ""},
        {"Razem", 12, "Miesi", "Razem"},
        {"Razem sums January and March", 12, "PłacaZas", "7000.00"},
        {"Razem of the contributions", 12, "RazemSklZUSP", "1131.30"},
        {"Razem of the deductions", 12, "PotrRazem", "1862.30"},
        {"Razem shows the last record's tax rate", 12, "StawkaPod", "0.32"},
        {"a rate has no sum", 12, "CHorPSta", "   x"},
        {"the account has no sum", 12, "NumerKonta", "   x"},
        {"sick days summed", 12, "ChorPDni", "3"},
    };
    for (const auto& p : przypadki) EXPECT_EQ(g[p.wiersz][kolumna(p.kolumna)], p.oczekiwane) << p.nazwa;
}

TEST(KartotekaRoczna, SupplementaryGrids) {
    Rok r;
    r.zapisz();
    const DaneRoku d = czytajRok(r.s, "a", yearledger_tests::kKlucz, "2020");
    const auto godz = siatkaGodzin(d, r.s.stawki);
    ASSERT_EQ(godz.size(), 2u);  // the head and January
    EXPECT_EQ(godz[0].size(), 20u);
    // 200 at 9.76 %, 1.5 %, 2.45 %; the tax base 200 - 27.42 to a whole złoty.
    EXPECT_EQ((std::vector<std::string>{godz[1][0], godz[1][10], godz[1][11], godz[1][12], godz[1][16], godz[1][18]}),
              (std::vector<std::string>{"01 Godziny ", "19.52", "3.00", "4.90", "173.00", "65.29"}));
    const auto dod = siatkaDodatkow(d, r.s.stawki);
    ASSERT_EQ(dod.size(), 2u);
    // The year's base before the run is above the limit: no pension and disability parts.
    EXPECT_EQ((std::vector<std::string>{dod[1][0], dod[1][10], dod[1][11], dod[1][12], dod[0].back(), dod[1].back()}),
              (std::vector<std::string>{"01 Dodatki ", "0.00", "0.00", "2.45", "DodatNetto", "78.61"}));
}

TEST(KartotekaRoczna, ThirteenthGridWithAndWithoutTheYearsFile) {
    for (bool trzynastka : {true, false}) {
        Rok r;
        r.zapisz(trzynastka);
        KartotekaRocznaScreen f(r.ui, r.s);
        f.Load();
        f.cmdTrzynastka_Click();
        const auto& g = f.MSFlexGrid7.Cells;
        ASSERT_EQ(g.size(), trzynastka ? 3u : 2u) << trzynastka;
        EXPECT_EQ(g.back()[0], "ŚwiadczenieUrlop");
        EXPECT_EQ(g.back()[10], "0.17");  // 17 read as a percentage
        EXPECT_EQ(g.back()[13], "415.00");
        if (trzynastka) {
            EXPECT_EQ(g[1][0], "Trzynastka");
            EXPECT_EQ(g[1][3], "97.60");
            EXPECT_TRUE(r.ui.boxes.empty());
        } else {
            EXPECT_EQ(r.ui.last(), "[Kartoteka Roczna] Brak zbioru trzynastki za ten rok dla tej grupy pracowników !");
        }
    }
}

TEST(KartotekaRoczna, BlankedMonthKeepsTheRecordWithZerosAndOthersUntouched) {
    Rok r;
    r.zapisz();
    const fs::path plik = K::path(r.s, "a", "2001");
    const auto przed = linie(plik);
    KartotekaRocznaScreen f(r.ui, r.s);
    f.Load();
    f.MSFlexGrid1.Row = 1;
    f.cmdUsun1Kartoteke_Click();
    EXPECT_EQ((std::vector<std::string>{f.MSFlexGrid1.Cells[1][0], f.MSFlexGrid1.Cells[1][1], f.MSFlexGrid1.Cells[1][2]}),
              (std::vector<std::string>{"Brak    ", "kartoteki", "pracownika"}));
    const auto po = linie(plik);
    ASSERT_EQ(po.size(), przed.size());
    EXPECT_TRUE(std::equal(przed.begin(), przed.begin() + K::Count, po.begin())) << "the other person's record changed";
    const auto recs = K::readAll(plik);
    const core::Record& k = recs[1];
    EXPECT_EQ(k.s(K::Nazwisko) + "|" + k.s(K::Klucz) + "|" + k.s(K::KodUbezpieczenia) + "|" + k.s(K::Etat),
              "KOWALSKI|80010112345|011000|  /  ");
    for (int n : {K::Zasadnicza, K::Brutto, K::PodstawaZUS, K::StawkaPodatku, K::NaLiscie, K::ZasilekZUS, K::DniUrlopu})
        EXPECT_EQ(k.s(n), "0") << k.fieldName(n);
    EXPECT_EQ(czytajRok(r.s, "a", yearledger_tests::kKlucz, "2020").miesiace[0].karta->f(K::Brutto), 0.0f);
    // A month without a ledger.
    f.MSFlexGrid1.Row = 2;
    f.cmdUsun1Kartoteke_Click();
    EXPECT_EQ(r.ui.last(), "[Podaj date w formacie RRmm !] Brak kartoteki za wybrany miesiac");
}

TEST(EdycjaKartoteki, ChangesOneFieldOfOnePersonAndNothingElse) {
    Rok r;
    r.zapisz();
    const fs::path plik = K::path(r.s, "a", "2001");
    std::string oczekiwane = testing_support::readBytes(plik);
    const std::string stare = "\r\n4000\r\n", nowe = "\r\n4100.5\r\n";
    // The person's basic pay is field 6 of the second record; the other person's is 9.
    const std::size_t at = oczekiwane.find(stare);
    ASSERT_NE(at, std::string::npos);
    oczekiwane.replace(at, stare.size(), nowe);

    EdycjaKartotekiScreen f(r.ui, r.s, "2001");
    f.Load();
    ASSERT_EQ(f.MSFlexGrid1.Rows, K::Count + 1);
    EXPECT_EQ(f.MSFlexGrid1.Cells[6], (std::vector<std::string>{"6", "Zasadnicza", "4000"}));
    f.MSFlexGrid1.Row = 6;
    f.txtWartosc.Text = "4100,5";
    f.cmdZmien_Click();
    f.cmdZapisz_Click();
    EXPECT_EQ(testing_support::readBytes(plik), oczekiwane);

    // A letter in a number field and a quote in a text field are refused; nothing is written.
    struct Zla {
        int pole;
        const char* tekst;
    } zle[] = {{K::Brutto, "12a"}, {K::NaLiscie, "1.5"}, {K::Nazwisko, "KOW\"ALSKI"}, {K::Rezerwa94, "x"}};
    for (const auto& z : zle) {
        f.MSFlexGrid1.Row = z.pole;
        f.txtWartosc.Text = z.tekst;
        f.cmdZmien_Click();
        EXPECT_EQ(r.ui.boxes.back().icon, core::Icon::Exclamation) << z.tekst;
        EXPECT_NE(r.ui.boxes.back().text.find("Pole " + std::to_string(z.pole)), std::string::npos) << z.tekst;
        EXPECT_THROW(zapiszZmiany(plik, "a", yearledger_tests::kKlucz, {{z.pole, z.tekst}}), core::Error) << z.tekst;
    }
    f.cmdZapisz_Click();
    EXPECT_EQ(testing_support::readBytes(plik), oczekiwane);
}

TEST(KartotekaRoczna, PrintMatchesTheReferenceFile) {
    Rok r;
    r.zapisz();
    KartotekaRocznaScreen f(r.ui, r.s);
    f.Load();
    f.CmdDrukowanie_Click();
    EXPECT_EQ(r.ui.boxes.front().title, "Kartoteka KOWALSKI JAN");
    const std::string tekst = r.ui.paper.text();
    const fs::path wzor = fs::path(PENSJA_TEST_DATA).parent_path() / "yearledger" / "data" / "kartoteka_roczna.txt";
    const std::string oczekiwany = testing_support::readBytes(wzor);
    if (tekst != oczekiwany) {
        fs::create_directories("yearledger_actual");
        std::ofstream(fs::path("yearledger_actual") / "kartoteka_roczna.txt", std::ios::binary) << tekst;
    }
    EXPECT_EQ(tekst, oczekiwany) << "wydruk w " << fs::absolute("yearledger_actual/kartoteka_roczna.txt");

    // Cancelled: the box of the resignation, nothing printed.
    Rok r2;
    r2.zapisz();
    r2.ui.answer(core::Answer::Cancel);
    KartotekaRocznaScreen f2(r2.ui, r2.s);
    f2.Load();
    f2.CmdDrukowanie_Click();
    EXPECT_EQ(r2.ui.last(), "[]  Zrezygnowałeś z drukowania ");
    EXPECT_TRUE(r2.ui.paper.text().empty());
}
