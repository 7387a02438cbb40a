// The contribution merge: which lists join, how one person's records are summed, and every
// field of a collected record with the month's supplementary pay.
#include <gtest/gtest.h>

#include "core/text.h"
#include "fixture.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "support/tempdir.h"
#include "zus/polacz.h"
#include "zus/rcp_record.h"

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;
namespace R = zus::Rcp;
using core::Record;

namespace {

Record dodatkowy(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                 std::vector<std::pair<int, double>> kwoty, std::vector<std::pair<int, std::string>> flagi = {}) {
    Record r(D::schema());
    r.set(D::Nazwisko, core::PadRight(nazwisko, 20));  // the file keeps the names padded
    r.set(D::Imie, imie);
    r.set(D::Klucz, pesel + "  ");
    r.set(D::KodUbezpieczenia, "011000");
    for (auto& [n, v] : kwoty) r.set(n, v);
    for (auto& [n, t] : flagi) r.set(n, t);
    return r;
}

bool polacz(zfx::Platnik& p, const std::string& zestawy, bool trzynastka = false) {
    return zus::cmdPolacz(p.s, p.ui, {zestawy, trzynastka});
}

TEST(Polaczenie, ListyZestawuISumowanieJednejOsoby) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}, {"b", "a", "A"}, {"c", "a", "B"}, {"w", "a", ""}});
    p.karta("a", {zfx::karta("Nowak", "Jan", "80010112345", "011000", 1000, {{K::ZasilekRodzinny, 90}}),
                  zfx::karta("Lis", "Ewa", "81020212345", "011000", 500)});
    p.karta("b", {zfx::karta("NOWAK", "JAN", "80010112345", "011000", 200, {{K::ZasilekRodzinny, 10}},
                             {{K::Etat, "  1  2"}}),
                  zfx::karta("Nowak", "Jan", "80010112345", "041000", 300)});
    p.karta("c", {zfx::karta("Obcy", "Zbior", "70010112345", "011000", 999)});
    p.karta("w", {zfx::karta("Lis", "Ewa", "81020212345", "011000", 50, {}, {{K::Etat, "  2  4"}})});
    ASSERT_TRUE(polacz(p, "A"));
    const auto r = p.rcp();
    ASSERT_EQ(r.size(), 3u);
    struct Wiersz {
        const char* lp;
        const char* nazwisko;
        const char* kod;
        const char* etat;
        double podstawa, zr;
    } const oczekiwane[] = {
        {" 1", "Nowak", "011000", "  2  2", 1200, 100},  // lists a and b: numerators added, last denominator
        {" 2", "Lis", "011000", "  3  4", 550, 0},       // joined from the list without a set letter
        {" 3", "Nowak", "041000", "  1  1", 300, 0},     // another code stays apart
    };
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(r[i].s(R::Lp), oczekiwane[i].lp);
        EXPECT_EQ(r[i].s(R::Nazwisko), oczekiwane[i].nazwisko);
        EXPECT_EQ(r[i].s(R::KodUbez), oczekiwane[i].kod);
        EXPECT_EQ(r[i].s(R::Etat), oczekiwane[i].etat);
        EXPECT_FLOAT_EQ(r[i].f(R::PodstZUS), static_cast<float>(oczekiwane[i].podstawa));
        EXPECT_FLOAT_EQ(r[i].f(R::PodstChorobowa), static_cast<float>(oczekiwane[i].podstawa));
        EXPECT_FLOAT_EQ(r[i].f(R::PodstZdro), static_cast<float>(oczekiwane[i].podstawa));
        EXPECT_FLOAT_EQ(r[i].f(R::KwotaZR), static_cast<float>(oczekiwane[i].zr));
    }
}

TEST(Polaczenie, BezWybranejListyPustyZbiorAnulowaneNic) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}});
    p.karta("a", {zfx::karta("Nowak", "Jan", "80010112345", "011000", 1000)});
    p.ui.answer(core::Answer::Cancel);
    EXPECT_FALSE(polacz(p, "A"));
    EXPECT_FALSE(std::filesystem::exists(R::path(p.s)));
    EXPECT_EQ(p.ui.last(), "[Wykonuję sumowanie z list za miesiąc 31-01-2021] Czy chcesz wykonać zbiór sumujący  na ten "
                           "miesiąc ? OK Założyc");
    ASSERT_TRUE(polacz(p, "X"));
    EXPECT_EQ(testing_support::readBytes(R::path(p.s)), "");
}

// Every field of a collected record: the ledger's values with overtime, four additions under
// their flag strings and (when asked) the thirteenth pay. Rates of 2021: disability 1.5 %, each
// pension half 9.76 %, sickness 2.45 %, health 9 % of which 1.25 % deductible.
TEST(Polaczenie, RekordZDodatkamiPolePoPolu) {
    struct Przypadek {
        const char* nazwa;
        bool trzynastka;
        const char *podstawa, *zdrowotna, *skladka, *podatek;
    } const przypadki[] = {
        // 4600 + 200 + (100 + 40 + 20 + 12); health 3969.34 + 172.58 + (86.29 + 40 + 10.36);
        // 49.62 + 307.62 + 13.38 + 2.15 + (6.69 + 1.08 + 3.10 + 0.50 + 0.80 + 0.13);
        // tax 86 * 0.17 + 40 * 0.17 + 17 * 0.17 (the fourth amount is free from tax)
        {"bez trzynastki", false, "4972", "4278.57", "385.07", "24.31"},
        // + 1000; S = 15 + 97.6 + 24.5 = 137.1, B = 862.9, H = 66.87 + 10.79; tax cleared
        {"z trzynastka", true, "5972", "5141.47", "462.73", "0"},
    };
    for (const auto& c : przypadki) {
        SCOPED_TRACE(c.nazwa);
        zfx::Platnik p;
        p.katalog({{"n", "n", "A"}});
        p.s.NazwaZbioru = "n";
        Record k = zfx::karta(
            "Kowal", "Jan", "80010112345", "011000", 4600,
            {{K::PodstawaZdrowotna, 3969.34}, {K::SkladkaZdrowotnaPozostala, 49.62}, {K::SkladkaZdrowotnaOdliczana, 307.62},
             {K::ZasilekZUS, 11}, {K::Zasilek5, 2}, {K::ZasilekRodzinny, 12}, {K::ZasilekWychowawczy, 13},
             {K::Zasilek6, 1}, {K::ZasilekPielegnacyjny, 14}, {K::SredniaCH1, 101}, {K::LiczbaDni1, 4},
             {K::KwotaLinii1, 102}, {K::SredniaCH2, 103}, {K::LiczbaDni2, 3}, {K::KwotaLinii2, 104},
             {K::Mieszkaniowy, 300}, {K::Stazowy, 150}, {K::Podatek, 333}, {K::CheckRentowa, 0},
             {K::PodstawaFGSP, 1}, {K::PodstawaFP, 0}},
            {{K::Etat, "  3  4"}, {K::KodPrzerwy1, "331"}, {K::OkresOd1, "04012021"}, {K::OkresDo1, "07012021"},
             {K::KodPrzerwy2, "313"}, {K::OkresOd2, "11012021"}, {K::OkresDo2, "13012021"},
             {K::DowodOsobisty, "ABC123456"}, {K::WskaznikFP, "2"}});
        // The next person has no absence: the reduction of the first stays in field 70.
        p.karta("n", {k, zfx::karta("Zet", "Ola", "90010112345", "011000", 100)});
        D::writeAll(D::path(p.s, D::Rodzaj::God, "n", "2101"), D::Rodzaj::God,
                    {dodatkowy("Kowal", "Jan", "80010112345",
                               {{D::KwotaBrutto, 200}, {D::PodstawaZdrowotna, 172.58}, {D::SkladkaZdrowotna, 13.38},
                                {D::SkladkaIndywidualna, 2.15}})});
        D::writeAll(D::path(p.s, D::Rodzaj::Dod, "n", "2101"), D::Rodzaj::Dod,
                    {dodatkowy("Kowal", "Jan", "80010112345",
                               {{D::Kw1, 100}, {D::Kw2, 40}, {D::Kw3, 20}, {D::Kw4, 12}, {D::StawkaPodatku, 0.17}},
                               {{D::Il1, "000"}, {D::Il2, "010"}, {D::Il3, "001"}, {D::Il4, "100"}})});
        D::writeAll(D::path(p.s, D::Rodzaj::Trz, "n", "21"), D::Rodzaj::Trz,
                    {dodatkowy("Kowal", "Jan", "80010112345", {{D::KwotaBrutto, 1000}})});
        ASSERT_TRUE(polacz(p, "A", c.trzynastka));
        const auto lines = testing_support::readLines(R::path(p.s));
        ASSERT_EQ(lines.size(), 2u * R::Count);
        const std::string pd = c.podstawa;
        const std::vector<std::string> oczekiwane = {
            "\" 1\"", "\"Kowal\"", "\"Jan\"", "\"80010112345\"", "\"011000\"", "\"  3  4\"", "0", pd, pd,
            c.zdrowotna, "", "\"\"", "\"\"", c.skladka, "\"\"", "\"POLSKIE\"", "11", "0", "2", "12", "13", "1", "14",
            "\"331\"", "\"04012021\"", "\"07012021\"", "4", "", "101",  // absence group 1
            "\"313\"", "\"11012021\"", "\"13012021\"", "3", "", "103",  // group 2
            "", "", "", "", "", "0", "", "", "", "", "", "0",           // groups 3 and 4 unused
            "102", "104", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "",
            "90",  // (300 + 150) * (7 - 1) / 30
            c.podatek, "1", "0", "1", "1", "1", pd, "0", "\"ABC123456\"", "", "", "", "", "\"2\""};
        ASSERT_EQ(oczekiwane.size(), static_cast<std::size_t>(R::Count));
        for (int i = 0; i < R::Count; ++i) EXPECT_EQ(lines[i], oczekiwane[i]) << "pole " << i + 1;
        EXPECT_EQ(lines[R::Count + R::KwotaObnizenia - 1], "90");  // carried to the next person
        EXPECT_EQ(lines[R::Count + R::PodstZUS - 1], "100");
    }
}

TEST(Polaczenie, BezTrzynastkiPlikTrzNieOtwierany) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}});
    p.karta("a", {zfx::karta("Nowak", "Jan", "80010112345", "011000", 1000)});
    // A thirteenth-pay file that cannot be read: the merge without it does not notice it.
    testing_support::writeLines(D::path(p.s, D::Rodzaj::Trz, "a", "21"), {"\"Nowak\",\"Jan\""});
    ASSERT_TRUE(polacz(p, "A", false));
    EXPECT_FLOAT_EQ(p.rcp().at(0).f(R::PodstZUS), 1000);
    EXPECT_FALSE(polacz(p, "A", true));
}

TEST(Polaczenie, NaLiscie2ZostawiaKwotyPoprzedniego) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}});
    p.karta("a", {zfx::karta("Nowak", "Jan", "80010112345", "011000", 1000),
                  zfx::karta("Lis", "Ewa", "81020212345", "011000", 500, {{K::NaLiscie, 2}})});
    ASSERT_TRUE(polacz(p, "A"));
    const auto r = p.rcp();
    ASSERT_EQ(r.size(), 2u);
    EXPECT_FLOAT_EQ(r[1].f(R::PodstZUS), 1000);
    EXPECT_FLOAT_EQ(r[1].f(R::PodstZdro), 1000);
}

TEST(Polaczenie, ZlyEtatPokazujeOsobe) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}});
    p.karta("a", {zfx::karta("Nowak", "Jan", "80010112345", "011000", 1000, {}, {{K::Etat, "ab  1"}})});
    EXPECT_FALSE(polacz(p, "A"));
    ASSERT_FALSE(p.ui.boxes.empty());
    EXPECT_EQ(p.ui.boxes.back().text, "Sprawdź wpis etatu !");
    EXPECT_EQ(p.ui.boxes.back().title, "Błąd 13 w linii scalanie, rekord 1Nowak");
}

TEST(Polaczenie, ZachowajZestawWKatalogu) {
    zfx::Platnik p;
    p.katalog({{"a", "a", "A"}, {"b", "b", "B"}});
    zus::cmdZachowaj(p.s, "ab");
    EXPECT_EQ(zus::zapisaneZestawy(p.s), "AB");
    EXPECT_EQ(testing_support::readLines(p.s.payerPath({"instal.dat"})).at(1),
              "\"Lista b                          \",\"b       \",\"b\",\"B\",\"\",\"\",\"\",\"2\",\"AB\"");
}

TEST(PlikRcp, OdczytIZapisDajaTeSameBajty) {
    zfx::Platnik p;
    std::vector<std::string> linie;
    for (int i = 1; i <= R::Count; ++i) {
        const std::string n = std::to_string(i);
        switch (R::schema().fields[i - 1].type) {
        case core::FieldType::String: linie.push_back("\"t" + n + "\""); break;
        case core::FieldType::Float: linie.push_back(n + ".25"); break;
        case core::FieldType::Int16: linie.push_back("1"); break;
        case core::FieldType::Variant: linie.push_back(i % 2 ? "\"v" + n + "\"" : n); break;
        default: linie.push_back(""); break;
        }
    }
    for (int i = 1; i <= R::Count; ++i) linie.push_back(linie[i - 1]);
    testing_support::writeLines(R::path(p.s), linie);
    const std::string przed = testing_support::readBytes(R::path(p.s));
    R::writeAll(R::path(p.s), R::readAll(R::path(p.s)));
    EXPECT_EQ(testing_support::readBytes(R::path(p.s)), przed);
}

}  // namespace
