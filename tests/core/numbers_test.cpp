#include <gtest/gtest.h>

#include "core/numbers.h"
#include "core/text.h"

using namespace core;

struct RoundCase {
    double x;
    double round2, roundZl, roundSkl;
};

// Worked out by hand from the rules: Round2 ties to even on x*100, RoundZl half up and
// negatives truncated, RoundSkl lifts an exact third decimal 5 after dropping what follows it.
TEST(Roundings, Table) {
    const RoundCase cases[] = {
        {0.125, 0.12, 0, 0.13},       // a tie: even for Round2, up for RoundSkl
        {0.375, 0.38, 0, 0.38},       // a tie whose even neighbour is above
        {-0.125, -0.12, 0, -0.12},    // negative tie: -0.124 after the lift
        {1.2349, 1.23, 1, 1.23},      // digits past the third dropped first
        {0.1251, 0.13, 0, 0.13},      // past a tie: both up
        {12.345, 12.34, 12, 12.35},   // 1234.5 is exact in double: even for Round2
        {2.675, 2.68, 3, 2.68},       // 267.5 in double arithmetic
        {1.005, 1.0, 1, 1.0},         // 1004.999.. truncates to 1004
        {10.5, 10.5, 11, 10.5},
        {-10.5, -10.5, -10, -10.5},
        {10.49, 10.49, 10, 10.49},
        {-10.99, -10.99, -10, -10.99},
        {0.0045, 0.0, 0, 0.0},
        {2999.995, 3000.0, 3000, 3000.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.x);
        EXPECT_FLOAT_EQ(Round2(c.x), static_cast<float>(c.round2));
        EXPECT_FLOAT_EQ(RoundZl(c.x), static_cast<float>(c.roundZl));
        EXPECT_DOUBLE_EQ(RoundSkl(c.x), c.roundSkl);
    }
}

TEST(Roundings, ArgumentTakesTheResult) {
    float x = 0.125f;
    float r = Round2InPlace(x);
    EXPECT_FLOAT_EQ(x, 0.12f);
    EXPECT_FLOAT_EQ(r, 0.12f);
    float z = 10.5f;
    RoundZlInPlace(z);
    EXPECT_FLOAT_EQ(z, 11.0f);
    // An expression is not changed, only rounded.
    double d = 0.125;
    EXPECT_FLOAT_EQ(Round2(d * 1), 0.12f);
    EXPECT_DOUBLE_EQ(d, 0.125);
}

TEST(Roundings, FixTruncatesTowardsZero) {
    EXPECT_EQ(Fix(2.9), 2);
    EXPECT_EQ(Fix(-2.9), -2);
}

TEST(NumberText, ShortestForms) {
    struct {
        std::string got, want;
    } cases[] = {
        {numText(3000.0f), "3000"},
        {numText(3000.5f), "3000.5"},
        {numText(0.5f), "0.5"},
        {numText(0.1f), "0.1"},  // seven digits hide the float's error
        {numText(-12.25f), "-12.25"},
        {numText(1234567.0f), "1234567"},
        {numText(12345678.0f), "1.234568E+07"},
        {numText(0.00001f), "1E-05"},
        {numText(0.0f), "0"},
        {numText(0.1), "0.1"},
        {numText(4242.3798828125), "4242.3798828125"},
        {numText(1.0 / 3), "0.333333333333333"},
        {numText(1e15), "1E+15"},
        {numText(42L), "42"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.got, c.want);
}

TEST(Format, Patterns) {
    struct {
        std::string got, want;
    } cases[] = {
        {Format(1234.5, "#####0.00"), "1234.50"},
        {Format(0.0, "#####0.00"), "0.00"},
        {Format(1234567.891, "##,##0.00"), "1,234,567.89"},
        {Format(999.999, "##,##0.00"), "1,000.00"},
        {Format(123456789.5, "#######,##0.00"), "123,456,789.50"},
        {Format(12345.6789, "#,####0.0000"), "12,345.6789"},
        {Format(1.0, "#,####0.0000"), "1.0000"},
        {Format(5.0, "##00.00"), "05.00"},
        {Format(1234.5, "##,##00.00"), "1,234.50"},
        {Format(0.5, "0.00"), "0.50"},
        {Format(0.5, "00.00"), "00.50"},
        {Format(7.0, "##0.00"), "7.00"},
        {Format(12.0, "####"), "12"},
        {Format(0.0, "####"), ""},
        {Format(-12.345, "0.00"), "-12.35"},  // half away from zero on the decimal digits
        {Format(2.675, "0.00"), "2.68"},
        {Format(2.675f, "0.00"), "2.68"},     // a float is taken to seven digits first
        {Format(-0.001, "0.00"), "0.00"},
        {Format(std::string_view("5"), "!@@"), "5 "},  // "!" is no place of its own
        {Format(std::string_view("12"), "!@@@@@"), "12   "},
        {Format(std::string_view("12"), "@@@@"), "  12"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.got, c.want);
}

TEST(FixedWidth, PadsAndCutsFromTheLeft) {
    struct {
        std::string got, want;
    } cases[] = {
        {Kw8(1234.5), " 1234.50"},
        {Kw8(123456.78), "23456.78"},  // too wide: the first characters go
        {Kw10(-1.5), "     -1.50"},
        {Kw11(123456789.12), "23456789.12"},
        {Lp4(12), "  12"},
        {Lp4(0), "    "},
        {Pad10("abc"), "       abc"},
        {Pad10("ABCDEFGHIJKL"), "CDEFGHIJKL"},
        {CyfryTekst(7), "07"},
        {CyfryTekst(123, 2), "123"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.got, c.want);
}

TEST(KwotaSlownie, Groups) {
    struct {
        const char* in;
        std::string want;
    } cases[] = {
        {"1", "jeden zł."},
        {"11", "jedynaście zł."},
        {"50", "pięćdziesiąt zł."},
        {"10", "dziesięć zł."},
        {"11000", "jedynaście tyś. zł."},
        {"50000", "pięćdziesiąt tyś. zł."},
        {"10000", "dziesieć tyś. zł."},           // the thousands' own spelling
        {"11000000", "jedynaście milion zł."},
        {"50000000", "piędziesiąt milion zł."},   // the millions' own spelling
        {"10000000", "dziesięć milion zł."},
        {"1000001", "jeden milion jeden zł."},
        {"215", "dwieście piętnaście zł."},
        {"3040", "trzy tyś. czterdzieści zł."},
        {"0", " zł."},
    };
    for (const auto& c : cases) {
        std::string got = KwotaSlownie(c.in);
        EXPECT_EQ(Len(got), 94u) << c.in;
        EXPECT_EQ(RTrim(got), RTrim(c.want)) << c.in;
    }
    // The widest amount is cut at 94 characters, in the middle of the last group.
    std::string nine = KwotaSlownie("999999999");
    EXPECT_EQ(nine,
              "dziewięćset dziewięćdziesiąt dziewięć milion dziewięćset dziewięćdziesiąt dziewięć tyś. dziewi");
    // Only the last nine characters count.
    EXPECT_EQ(KwotaSlownie("1000000001"), KwotaSlownie("000000001"));
}

TEST(Dates, PolishFormats) {
    Date d{2026, 11, 22};
    EXPECT_EQ(FormatDate(d, "dddd,dd,mmmm,yyyy"), "niedziela,22,listopad,2026");
    EXPECT_EQ(FormatDate({2009, 3, 1}, "dddd,dd,mm,yy"), "niedziela,01,03,09");
    EXPECT_EQ(FormatDate({2009, 3, 1}, "mmmm,yyyy"), "marzec,2009");
    EXPECT_EQ(FormatDate({2021, 1, 5}, "dd-mm-yyyy"), "05-01-2021");
    EXPECT_EQ(DataTekst("2009-03-05"), "05-03-2009");
    EXPECT_EQ(DataTekst("05.03.2009"), "05-03-2009");
    Date p;
    EXPECT_TRUE(parseDate("28-02-2009", p));
    EXPECT_EQ(p, (Date{2009, 2, 28}));
    EXPECT_FALSE(parseDate("31-02-2009", p));
    EXPECT_FALSE(parseDate("1-3-2009", p));
}
