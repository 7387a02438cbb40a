// The leave year file: its block layout, a round trip, and the leave of the list's month.
#include <gtest/gtest.h>

#include "fixture.h"
#include "paycalc/urlopy.h"
#include "paycalc/wyliczenie.h"
#include "support/tempdir.h"

using namespace paycalc;
using testing_support::readBytes;
using testing_support::readLines;

namespace {
Urlop::Blok blok(const std::string& id, const char* rozliczac) {
    Urlop::Blok b = Urlop::nowyBlok("KOWALSKI", "JAN", id, "  1  1", 2009);
    b.naglowek.set(Urlop::Naglowek::Rozliczac, rozliczac);
    return b;
}
void kod(Urlop::Blok& b, int m, int d, const char* k) { b.dni[m - 1][d - 1].set(Urlop::Dzien::Kod, k); }
void stawka(Urlop::Blok& b, int m, const char* s) { b.miesiace[m - 1].set(Urlop::Miesiac::Stawka, s); }
}  // namespace

TEST(LeaveFile, NewBlockLayoutAndRoundTrip) {
    testing_support::TempDir dir;
    auto file = dir / "Ur" "L12009.dta";
    Urlop::Blok b = blok("70051512345", "1");
    stawka(b, 3, "120.50");
    kod(b, 3, 2, "U8");
    Urlop::writeAll(file, {b, Urlop::nowyBlok("NOWAK", "ANNA", "FP123", "  1  2", 2009)});
    auto lines = readLines(file);
    ASSERT_EQ(lines.size(), 2u * 385u);
    EXPECT_EQ(lines[0], "\"KOWALSKI\",\"JAN\",\"70051512345\",\"  1  1\",,,0,0,\"1\"");
    EXPECT_EQ(lines[1], "\"Styczeń    \",\"\"");
    EXPECT_EQ(lines[2], "1,\"0\"");
    EXPECT_EQ(lines[32], "31,\"0\"");
    // February 2009 has no 29th to 31st
    EXPECT_EQ(lines[1 + 32 + 28], "28,\"0\"");
    EXPECT_EQ(lines[1 + 32 + 29], "29,\"X\"");
    EXPECT_EQ(lines[1 + 64], "\"Marzec     \",\"120.50\"");
    EXPECT_EQ(lines[1 + 64 + 2], "2,\"U8\"");
    EXPECT_EQ(lines[385], "\"NOWAK\",\"ANNA\",\"FP123\",\"  1  2\",,,0,0,");
    // Read and written back: the same bytes.
    auto blocks = Urlop::readAll(file);
    ASSERT_EQ(blocks.size(), 2u);
    EXPECT_EQ(blocks[0].miesiace[2].s(Urlop::Miesiac::Stawka), "120.50");
    auto copy = dir / "kopia.dta";
    Urlop::writeAll(copy, blocks);
    EXPECT_EQ(readBytes(copy), readBytes(file));
    // A leap February for the screen's new blocks is the calendar's.
    Urlop::Blok leap = Urlop::nowyBlok("A", "B", "C", "  1  1", 2012);
    EXPECT_EQ(leap.dni[1][28].s(Urlop::Dzien::Kod), "0");
}

TEST(LeaveFile, LeaveOfTheListsMonth) {
    struct {
        const char* name;
        int miesiac;
        std::function<void(std::vector<Urlop::Blok>&)> set;
        bool znaleziony;
        int dni;
        float stawka, kwota;
    } cases[] = {
        // March reads the rate of March only; the leave of January is not paid again
        {"marzec", 3,
         [](auto& v) {
             stawka(v[0], 1, "110");
             kod(v[0], 1, 5, "U8");
             stawka(v[0], 3, "100,25");
             kod(v[0], 3, 2, "U8");
             kod(v[0], 3, 3, "u4");   // either case
             kod(v[0], 3, 4, "U10");  // a day, whatever its hours
             kod(v[0], 3, 5, "S");
         },
         true, 3, 100.25f, 300.75f},
        {"bez stawki", 3, [](auto& v) { kod(v[0], 3, 2, "U8"); }, true, 0, 0, 0},
        {"stawka 0", 3,
         [](auto& v) {
             stawka(v[0], 3, "0");
             kod(v[0], 3, 2, "U8");
         },
         true, 0, 0, 0},
        // three days at 120.50: 361.50
        {"trzy dni", 6,
         [](auto& v) {
             stawka(v[0], 6, "120.50");
             for (int d : {1, 2, 3}) kod(v[0], 6, d, "U8");
         },
         true, 3, 120.50f, 361.50f},
        {"nie rozliczać", 3,
         [](auto& v) {
             v[0].naglowek.set(Urlop::Naglowek::Rozliczac, "");
             stawka(v[0], 3, "100");
             kod(v[0], 3, 2, "U8");
         },
         false, 0, 0, 0},
        // a second block of the person that is settled is the one read
        {"drugi blok", 3,
         [](auto& v) {
             v[0].naglowek.set(Urlop::Naglowek::Rozliczac, "");
             v.push_back(blok("70051512345", "1"));
             stawka(v[1], 3, "50");
             kod(v[1], 3, 9, "U8");
         },
         true, 1, 50, 50},
        {"inna osoba", 3,
         [](auto& v) {
             v[0].naglowek.set(Urlop::Naglowek::Identyfikator, "60010112345");
             stawka(v[0], 3, "100");
             kod(v[0], 3, 2, "U8");
         },
         false, 0, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<Urlop::Blok> v = {blok("70051512345", "1")};
        c.set(v);
        // From the blocks, and from the file read once for a whole list: the same leave.
        UrlopyMiesiaca raz(c.miesiac);
        for (const auto& b : v) raz.dodaj(b);
        for (UrlopMiesiaca u : {urlopMiesiaca(v, "70051512345", c.miesiac), raz.znajdz("70051512345")}) {
            EXPECT_EQ(u.znaleziony, c.znaleziony);
            EXPECT_EQ(u.DniUrlopu, c.dni);
            EXPECT_EQ(u.Stawka, c.stawka);
            EXPECT_EQ(u.wUrlopowe, c.kwota);
        }
    }
}

TEST(LeaveFile, BrokenFileReadOnce) {
    UrlopyMiesiaca raz(3);
    Urlop::Blok b = blok("70051512345", "1");
    stawka(b, 3, "100");
    kod(b, 3, 2, "U8");
    raz.dodaj(b);
    raz.przerwano(core::Error(core::err::InputPastEnd, "Urlopy"));
    EXPECT_EQ(raz.znajdz("70051512345").DniUrlopu, 1);  // before the fault
    EXPECT_THROW(raz.znajdz("60010112345"), core::Error);
}

TEST(LeaveFile, ModUrlopReadsTheFileOfTheYear) {
    fx::Lista l("31-03-2009");
    l.s.KluczOsoby = "70051512345";
    l.s.wynik.DniUrlopu = 9;
    l.s.wynik.wUrlopowe = 99;
    // A missing file: zeros and no message.
    UrlopMiesiaca u = modUrlop(l.s);
    EXPECT_EQ(u.DniUrlopu, 0);
    EXPECT_EQ(l.s.wynik.DniUrlopu, 0);
    EXPECT_EQ(l.s.wynik.wUrlopowe, 0.0f);
    Urlop::Blok b = blok("70051512345", "1");
    stawka(b, 3, "120,50");
    kod(b, 3, 2, "U8");
    kod(b, 3, 3, "U8");
    Urlop::writeAll(Urlop::path(l.s, "2009"), {b});
    u = modUrlop(l.s);
    EXPECT_EQ(l.s.wynik.DniUrlopu, 2);
    EXPECT_EQ(l.s.wynik.StawkaUrlopowa, 120.50f);
    EXPECT_EQ(l.s.wynik.wUrlopowe, 241.0f);
    // The file of another year is another file.
    l.s.DataListy = "31-03-2010";
    modUrlop(l.s);
    EXPECT_EQ(l.s.wynik.DniUrlopu, 0);
}

TEST(LeaveFile, BlockCutAfterTheListsMonthServesItsPerson) {
    // Two blocks; the file ends inside the second one. A block is 385 lines: the header, then
    // 32 lines a month, so March ends at line 1 + 3 * 32 of the block.
    struct {
        const char* what;
        int linesOfSecond;
        bool serves;
    } cases[] = {
        {"cut in April", 1 + 3 * 32 + 5, true},
        {"cut right after March", 1 + 3 * 32, true},
        {"cut in March", 1 + 3 * 32 - 1, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        fx::Lista l("31-03-2009");
        Urlop::Blok a = blok("60010112345", "1"), b = blok("70051512345", "1");
        stawka(b, 3, "100");
        kod(b, 3, 2, "U8");
        const auto file = Urlop::path(l.s, "2009");
        Urlop::writeAll(file, {a, b});
        auto lines = readLines(file);
        lines.resize(385 + static_cast<std::size_t>(c.linesOfSecond));
        testing_support::writeLines(file, lines);
        l.s.KluczOsoby = "70051512345";
        if (c.serves) {
            EXPECT_EQ(modUrlop(l.s).DniUrlopu, 1);
            EXPECT_EQ(wczytajZbiory(l.s).urlopy.znajdz("70051512345").wUrlopowe, 100.0f);
        } else {
            EXPECT_THROW(modUrlop(l.s), core::Error);
            EXPECT_THROW(wczytajZbiory(l.s).urlopy.znajdz("70051512345"), core::Error);
        }
        // The person before the cut is whole either way; one not in the file reads past the cut.
        EXPECT_TRUE(wczytajZbiory(l.s).urlopy.znajdz("60010112345").znaleziony);
        EXPECT_THROW(wczytajZbiory(l.s).urlopy.znajdz("99999999999"), core::Error);
    }
}
