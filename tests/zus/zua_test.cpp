// The registration file of a list against its golden file (tests/zus/data/zua_osoby.kdu).
#include <gtest/gtest.h>

#include <fstream>

#include "fixture.h"
#include "personnel/person_record.h"
#include "support/tempdir.h"
#include "zus/zua.h"

namespace O = personnel::Osoba;

namespace {

core::Record osoba(std::vector<std::pair<int, std::string>> pola) {
    core::Record r = O::pusty();
    for (auto& [n, t] : pola) r.set(n, t);
    return r;
}

TEST(PlikZUA, ZgodnyZeWzorcem) {
    zfx::Platnik p;
    p.s.NazwaZbioru = "z";
    p.s.SciezkaOsob = p.s.payerPath({"person", "z.per"});
    core::writeAll(p.s.SciezkaOsob,
                   {osoba({{O::Nazwisko, "Ząbek"}, {O::Imie, "Anna"}, {O::DrugieImie, "Maria"},
                           {O::Pesel, "80010112345"}, {O::Nip, "6811111111"}, {O::DowodOsobisty, "AYM204518"},
                           {O::KodUbezpieczenia, "011000"}, {O::DataUrodzenia, "01-01-1980"}, {O::Kod, "32-400"},
                           {O::Miejscowosc, "Myślenice"}, {O::Ulica, "Rynek"}, {O::NrDomu, "12"}, {O::Lokal, "4"},
                           {O::Telefon, "12 272 14 55"}, {O::Poczta, "Myślenice P"}, {O::Komorka, "601234567"},
                           {O::Obywatelstwo, "0"}, {O::DataZatrudnienia, "01-02-2005X          "}}),
                    osoba({{O::Nazwisko, "Lis"}, {O::Imie, "Piotr"}, {O::KodUbezpieczenia, "041000"},
                           {O::Obywatelstwo, "UKRAIŃSKIE"}})});
    const auto plik = zus::cmdZUA(p.s, p.ui);
    ASSERT_TRUE(plik);
    EXPECT_EQ(plik->filename(), "ZUAz.KDU");
    EXPECT_EQ(p.ui.last(), "[]  Wykonano zestaw dokumentow ZUA dla wszystkich pracowników ");
    const std::string bajty = testing_support::readBytes(*plik);
    const auto wzorzec = std::filesystem::path(__FILE__).parent_path() / "data" / "zua_osoby.kdu";
    if (bajty != testing_support::readBytes(wzorzec)) {
        std::filesystem::create_directories("zus_actual");
        std::ofstream("zus_actual/zua_osoby.kdu", std::ios::binary) << bajty;
        ADD_FAILURE() << "inny plik, zapisany w zus_actual/zua_osoby.kdu";
    }
}

}  // namespace
