// The HR record person\<list>.kdr: load and save give the same bytes, a person's record is
// replaced in place, the typed values are checked, the sex comes from the PESEL.
#include <gtest/gtest.h>

#include "core/error.h"
#include "core/record.h"
#include "personnel/kadry_record.h"
#include "support/tempdir.h"

namespace Kd = personnel::Kadry;

namespace {
core::Record kadry(const std::string& klucz, const std::string& od, const std::string& dok, const std::string& umowa,
                   const std::string& stanowisko = "kierowca", const std::string& plec = "") {
    core::Record r(Kd::schema());
    r.set(Kd::Klucz, klucz);
    r.set(Kd::ZatrudnionyOd, od);
    r.set(Kd::ZatrudnionyDo, dok);
    r.set(Kd::RodzajUmowy, umowa);
    r.set(Kd::Stanowisko, stanowisko);
    r.set(Kd::Plec, plec);
    return r;
}
}  // namespace

TEST(Kadry, RoundTripAndReplaceInPlace) {
    testing_support::TempDir dir;
    const auto plik = dir / "a.kdr";
    testing_support::writeLines(plik, {"\"75031412317\",\"01-02-2015\",\"\",\"N\",\"Główna księgowa\",\"\"",
                                       "\"FP123456\",\"01-03-2020\",\"28-02-2021\",\"O\",\"magazynier\",\"K\""});
    const std::string przed = testing_support::readBytes(plik);
    core::writeAll(plik, Kd::readAll(plik));
    EXPECT_EQ(testing_support::readBytes(plik), przed);

    Kd::zapisz(plik, kadry("75031412317", "01-02-2015", "", "N", "Dyrektor"));
    Kd::zapisz(plik, kadry("88110578938", "02-01-2021", "", "N"));
    EXPECT_EQ(testing_support::readLines(plik),
              (std::vector<std::string>{"\"75031412317\",\"01-02-2015\",\"\",\"N\",\"Dyrektor\",\"\"",
                                        "\"FP123456\",\"01-03-2020\",\"28-02-2021\",\"O\",\"magazynier\",\"K\"",
                                        "\"88110578938\",\"02-01-2021\",\"\",\"N\",\"kierowca\",\"\""}));
    EXPECT_FALSE(Kd::znajdz(dir / "brak.kdr", "75031412317"));
}

TEST(Kadry, TypedValuesAndSex) {
    struct P {
        const char* nazwa;
        core::Record r;
        bool dobre;
    } p[] = {
        {"without an end", kadry("1", "01-02-2015", "", "N"), true},
        {"fixed term", kadry("1", "01-02-2015", "31-01-2016", "O"), true},
        {"fixed term ending the day it starts", kadry("1", "01-02-2015", "01-02-2015", "O"), true},
        {"fixed term without its end", kadry("1", "01-02-2015", "", "O"), false},
        {"end before start", kadry("1", "01-02-2015", "31-01-2015", "O"), false},
        {"an end without a fixed term", kadry("1", "01-02-2015", "31-01-2016", "N"), false},
        {"no such day", kadry("1", "30-02-2015", "", "N"), false},
        {"short date", kadry("1", "1-2-2015", "", "N"), false},
        {"character outside CP1250", kadry("1", "01-02-2015", "", "N", "kierownik ★"), false},
    };
    for (const auto& c : p) EXPECT_EQ(Kd::bledneDane(c.r).empty(), c.dobre) << c.nazwa;
    // A quote in the post never reaches the record: the record refuses to hold it.
    EXPECT_THROW(kadry("1", "01-02-2015", "", "N", "kierownik \"A\""), core::Error);

    EXPECT_TRUE(personnel::kobieta("85121204567", std::nullopt));
    EXPECT_FALSE(personnel::kobieta("75031412317", kadry("", "", "", "", "", "K")));  // the PESEL decides
    EXPECT_TRUE(personnel::kobieta("FP123456", kadry("", "", "", "", "", "K")));
    EXPECT_FALSE(personnel::kobieta("FP123456", std::nullopt));
}
