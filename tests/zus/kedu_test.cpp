// The KEDU settlement file: the value forms, whole files against hand-checked golden files
// (tests/zus/data, README there), and a second run over the month's file.
#include <gtest/gtest.h>

#include <fstream>

#include "core/text.h"
#include "fixture.h"
#include "reference/payers.h"
#include "support/tempdir.h"
#include "zus/kedu.h"
#include "zus/rcp_record.h"

namespace R = zus::Rcp;
namespace F = reference::Firma;
using core::Record;

namespace {

TEST(FormyWartosci, GroszeLiczbaNazwa) {
    struct {
        double v;
        std::size_t n;
        const char* tekst;
    } const grosze[] = {{4600, 10, "0000460000"}, {0.125, 7, "0000012"}, {0.135, 7, "0000014"},
                        {-5, 7, "000-500"},    {123456.78, 7, "2345678"}, {0, 8, "00000000"}};
    for (const auto& g : grosze) EXPECT_EQ(zus::Grosze(g.v, g.n), g.tekst) << g.v;
    EXPECT_EQ(zus::Liczba2(2.5), "02");
    EXPECT_EQ(zus::Liczba2(3), "03");
    // Only Ą is given its ISO 8859-2 code; Ś and Ź stay as the system code page has them.
    EXPECT_EQ(core::toCp1250(zus::NazwaDoKEDU("ąśź")), "\xA1\x8C\x8F");
    EXPECT_EQ(zus::slowoMiesiaca(1), "Styczeń----");
    EXPECT_EQ(zus::slowoMiesiaca(10), "Październik");
}

// The payer with every field of the payer block different: a NIP with a blank in front (the
// ZUSDRA copy trims it), a PESEL, an identity card and a birth date.
void platnikDoKEDU(zfx::Platnik& p) {
    p.s.Firma.set(F::NIP, " 6811234567");
    p.s.Firma.set(F::PeselM, "65010112345");
    p.s.Firma.set(F::DowodM, "ABC123456");
    p.s.Firma.set(F::DataurodzeniaP, "01-02-1965");
    reference::Firma::writeAll(reference::Firma::path(p.s), {p.s.Firma});
}

std::vector<Record> miesiacDemo() {
    return {
        zfx::rcp("Kowalski", "Jan", "80010112345", "011000",
                 {{R::PodstZUS, 5000}, {R::PodstChorobowa, 5000}, {R::PodstZdro, 4314.5}, {R::SklZdro, 388.31},
                  {R::PodstFGSP, 5000}, {R::PodstFPr, 5000}, {R::Dni1, 4}, {R::Deklarowana1, 500}, {R::Dni2, 3},
                  {R::Deklarowana2, 250.5}},
                 {{R::KodPrzerwy1, "331"}, {R::Od1, "04012021"}, {R::Do1, "07012021"}, {R::KodPrzerwy2, "313"},
                  {R::Od2, "11012021"}, {R::Do2, "13012021"}}),
        zfx::rcp("Nowak", "Anna", "", "011000",
                 {{R::PodstZUS, 3000}, {R::PodstChorobowa, 3000}, {R::PodstZdro, 2588.7}, {R::SklZdro, 232.98},
                  {R::PodstFGSP, 3000}, {R::PodstFPr, 3000}, {R::FlagaChorobowe, 0}, {R::IlOsZR, 2},
                  {R::KwotaZR, 95}, {R::IlOsZP, 1}, {R::KwotaZP, 215.84}, {R::ZasilekZUS, 20}},
                 {{R::Etat, "  1  2"}, {R::InnyIdentyfikator, "XK9876543"}, {R::Obywatelstwo, "UKRAIŃSKIE"}}),
        zfx::rcp("Zdrowa", "Ola", "90010112345", "041000",
                 {{R::PodstZdro, 1000}, {R::SklZdro, 90}, {R::FlagaEmerytalne, 0}, {R::FlagaRentowe, 0},
                  {R::FlagaChorobowe, 0}, {R::FlagaWypadkowe, 0}}),
    };
}

Record wlasciciel() {
    return zfx::rcp("Nowakowski", "Jan", "65010112345", "051010",
                    {{R::PodstZUS, 3155.4}, {R::PodstChorobowa, 3155.4}, {R::PodstZdro, 4242.38}, {R::SklZdro, 381.81},
                     {R::PodstFPr, 3155.4}});
}

std::vector<Record> drugiTytul() {
    return {zfx::rcp("Mazur", "Ewa", "85050512345", "011000",
                     {{R::PodstZUS, 2000}, {R::PodstChorobowa, 2000}, {R::PodstZdro, 1725.8}, {R::SklZdro, 155.32},
                      {R::ZasilekWychowawczy, 1500}, {R::PodstFGSP, 2000}, {R::PodstFPr, 2000}}),
            [] {
                Record r = wlasciciel();
                r.set(R::PodstFPr, 0.0f);
                return r;
            }()};
}

std::vector<Record> tylkoZdrowotne() {
    auto zdrowotny = [](const std::string& nazwisko, const std::string& imie, float podstawa, float skladka) {
        return zfx::rcp(nazwisko, imie, "92020212345", "041000",
                        {{R::PodstZdro, podstawa}, {R::SklZdro, skladka}, {R::FlagaEmerytalne, 0},
                         {R::FlagaRentowe, 0}, {R::FlagaChorobowe, 0}, {R::FlagaWypadkowe, 0}});
    };
    return {zdrowotny("Ąś-Źrebiec", "Łucja", 1200, 108), zdrowotny("Bąk", "Ewa", 800.5f, static_cast<float>(72.05))};
}

std::string zapiszRzeczywisty(const std::string& nazwa, const std::string& bajty) {
    std::filesystem::path dir = std::filesystem::current_path() / "zus_actual";
    std::filesystem::create_directories(dir);
    std::ofstream(dir / nazwa, std::ios::binary) << bajty;
    return (dir / nazwa).string();
}

TEST(PlikKEDU, ZgodnyZeWzorcami) {
    struct Przypadek {
        const char* plik;
        std::vector<Record> rcp;
    } const przypadki[] = {
        {"miesiac_demo.kdu", miesiacDemo()},
        {"wlasciciel_051010.kdu", {wlasciciel()}},
        {"drugi_tytul.kdu", drugiTytul()},
        {"tylko_zdrowotne.kdu", tylkoZdrowotne()},
    };
    for (const auto& c : przypadki) {
        SCOPED_TRACE(c.plik);
        zfx::Platnik p;
        platnikDoKEDU(p);
        p.rcp(c.rcp);
        const auto wynik = zus::cmdWykonajRCA(p.s, p.ui, {"A", " 15"});
        ASSERT_TRUE(wynik);
        EXPECT_EQ(wynik->plik.filename(), "202101~1rozliczenioweA.KDU");
        EXPECT_EQ(p.ui.last(), "[] Zbior DO PLATNIKA zostal utworzony w BIEZACYM KATALOGU-PODKATALOG ZUS");
        EXPECT_EQ(wynik->Label7, " Przejdź do płatnika ZUS i wskaż utworzony plik KDU " + wynik->plik.string() +
                                     "Styczeń----");
        const std::string bajty = testing_support::readBytes(wynik->plik);
        const std::string wzorzec = testing_support::readBytes(std::filesystem::path(__FILE__).parent_path() / "data" / c.plik);
        if (bajty != wzorzec) ADD_FAILURE() << "inny plik, zapisany w " << zapiszRzeczywisty(c.plik, bajty);
    }
}

TEST(PlikKEDU, NazwiskoZPolskimiLiteramiBajtPoBajcie) {
    zfx::Platnik p;
    p.rcp(tylkoZdrowotne());
    const auto wynik = zus::cmdWykonajRCA(p.s, p.ui, {"A", "15"});
    ASSERT_TRUE(wynik);
    const std::string bajty = testing_support::readBytes(wynik->plik);
    EXPECT_NE(bajty.find("\r\n<DDORZA>\r\n\xA1\x8C-\x8FREBIEC                     \r\n\xA3ucja"), std::string::npos);
}

TEST(PlikKEDU, DrugiPrzebiegZastepujePlikBladZostawiaPoprzedni) {
    zfx::Platnik p;
    p.rcp({wlasciciel()});
    const auto pierwszy = zus::cmdWykonajRCA(p.s, p.ui, {"A", "15"});
    ASSERT_TRUE(pierwszy);
    const std::string przed = testing_support::readBytes(pierwszy->plik);
    p.rcp(drugiTytul());
    ASSERT_TRUE(zus::cmdWykonajRCA(p.s, p.ui, {"A", "15"}));
    const std::string drugi = testing_support::readBytes(pierwszy->plik);
    EXPECT_NE(drugi, przed);
    EXPECT_NE(drugi.find("MAZUR"), std::string::npos);
    // Without a template the collective document fails: the box, the month's file as it was,
    // no working file.
    std::filesystem::remove(p.dir / "dane" / "wzorc.kdu");
    EXPECT_FALSE(zus::cmdWykonajRCA(p.s, p.ui, {"A", "15"}));
    EXPECT_EQ(core::Left(p.ui.boxes.back().text, 19), " Bład nr 53 w linni");
    EXPECT_EQ(testing_support::readBytes(pierwszy->plik), drugi);
    for (const auto& e : std::filesystem::directory_iterator(pierwszy->plik.parent_path()))
        EXPECT_EQ(e.path().filename().string().find("Tymcza"), std::string::npos) << e.path();
}

}  // namespace

namespace {

// The 28 values of the n-th row of a block (<DDORCA>, <DDORSA>) of the file.
std::vector<std::string> wiersz(const std::vector<std::string>& linie, const std::string& blok, int n) {
    for (std::size_t i = 0; i < linie.size(); ++i)
        if (linie[i] == blok && n-- == 0) {
            std::vector<std::string> w;
            for (std::size_t j = i + 1; j < linie.size() && linie[j] != "</" + blok.substr(1); ++j) w.push_back(linie[j]);
            return w;
        }
    return {};
}

TEST(PlikKEDU, Kod124100ObnizenieIWlascicielWRSA) {
    zfx::Platnik p;
    p.katalog({{"n", "n", "A"}});
    p.s.NazwaZbioru = "n";
    p.rcp({zfx::rcp("Emeryt", "Jan", "50010112345", "124100",
                    {{R::PodstZUS, 1000}, {R::PodstZdro, 900}, {R::SklZdro, 81}, {R::ZasilekWychowawczy, 500}}),
           zfx::rcp("Chory", "Adam", "60010112345", "011000",
                    {{R::PodstZUS, 100}, {R::KwotaObnizenia, 90}, {R::Dni1, 3}, {R::Deklarowana1, 70}},
                    {{R::KodPrzerwy1, "313"}, {R::Od1, "04012021"}, {R::Do1, "06012021"}}),
           zfx::rcp("Wlasciciel", "Ewa", "70010112345", "051000", {{R::Dni1, 2}, {R::Deklarowana1, 50}},
                    {{R::KodPrzerwy1, "313"}})});
    ASSERT_TRUE(zus::cmdWykonajRCA(p.s, p.ui, {"A", "15"}));
    const auto linie = testing_support::readLines(zus::plikRozliczenia(p.s, "A"));
    // 124100: the benefit base 2800 of the year; no second-title row for field 21.
    const auto e = wiersz(linie, "<DDORCA>", 0);
    ASSERT_EQ(e.size(), 28u);
    const std::vector<std::string> kwoty(e.begin() + 7, e.begin() + 19);
    // 2 * 9.76 % * 2800 = 546.56; 1.5 % and 6.5 % of 2800; the employer's pension half stays of
    // field 8 (97.60); 546.56 + 42 + 97.60 + 182 = 868.16
    EXPECT_EQ(kwoty, (std::vector<std::string>{"00280000", "00100000", "00090000", "0054656", "0004200", "0000000",
                                               "0000000", "0009760", "0018200", "0000000", "0000000", "00086816"}));
    EXPECT_EQ(wiersz(linie, "<DDORCA>", 1).at(0), "CHORY                          ");
    // The absence row, then "350" for the reduction (a list of group "n"), then the owner's row
    // with days "0" and no amount.
    const std::vector<std::vector<std::string>> rsa = {wiersz(linie, "<DDORSA>", 0), wiersz(linie, "<DDORSA>", 1),
                                                       wiersz(linie, "<DDORSA>", 2)};
    EXPECT_EQ(std::vector<std::string>(rsa[0].begin() + 5, rsa[0].begin() + 11),
              (std::vector<std::string>{"313", "0401", "0601", "3 ", "  ", "0007000"}));
    EXPECT_EQ(std::vector<std::string>(rsa[1].begin() + 5, rsa[1].begin() + 11),
              (std::vector<std::string>{"350", "    ", "    ", "  ", "  ", "0000000"}));
    EXPECT_EQ(rsa[2].at(0), "WLASCICIEL                     ");
    EXPECT_EQ(std::vector<std::string>(rsa[2].begin() + 5, rsa[2].begin() + 11),
              (std::vector<std::string>{"313", "    ", "    ", "0 ", "  ", "0000000"}));
}

}  // namespace
