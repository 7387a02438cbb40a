// The per-diems of one position: hours with the minutes as hundredths, the part of a day, the
// values in the currency and in złoty, and the positions the calculation refuses.
#include <gtest/gtest.h>

#include "trips/pozycja.h"

using namespace trips;

namespace {

struct Row {
    const char* name;
    const char *dataW, *godzW, *dataP, *godzP;
    const char* razemGodzin;
    double iloscDiet;
};
void PrintTo(const Row& r, std::ostream* os) { *os << r.name; }

class Position : public testing::TestWithParam<Row> {};

TEST_P(Position, HoursAndPerDiems) {
    const Row& r = GetParam();
    Wyjazd w{"Kraków", r.dataW, r.godzW, "Gdańsk", r.dataP, r.godzP};
    ASSERT_FALSE(sprawdz(w));
    Godziny g = policzGodziny(w);
    double ilosc = g.dni + czescDoby(g.godziny);
    EXPECT_EQ(wartosci(g.dni * 24 + g.godziny, ilosc, "30", "").lbRazemGodzin, r.razemGodzin);
    EXPECT_DOUBLE_EQ(ilosc, r.iloscDiet);
}

INSTANTIATE_TEST_SUITE_P(
    Trips, Position,
    testing::Values(Row{"EightHoursHalf", "01.03.2021", "08.00", "01.03.2021", "16.00", "08.00", 0.5},
                    Row{"SevenFiftyNineNone", "01.03.2021", "08.01", "01.03.2021", "16.00", "07.59", 0},
                    Row{"ElevenFiftyNineHalf", "01.03.2021", "08.01", "01.03.2021", "20.00", "11.59", 0.5},
                    Row{"TwelveWhole", "01.03.2021", "08.00", "01.03.2021", "20.00", "12.00", 1},
                    Row{"DayAndThirteenHoursTwo", "01.03.2021", "08.00", "02.03.2021", "21.00", "37.00", 2},
                    Row{"MinutesAsHundredths", "01.03.2021", "08.50", "01.03.2021", "10.10", "01.20", 0},
                    Row{"WholeMinutesDropped", "01.03.2021", "08.10", "01.03.2021", "10.40", "02.00", 0},
                    // Next day, earlier hour: D 1, H 8 - 20 - 1 + 0.45 = -12.55.
                    Row{"NextDayEarlierHour", "01.03.2021", "20.30", "02.03.2021", "08.15", "11.45", 1},
                    Row{"AcrossTheMonthSetByHand", "31.03.2021", "08.00", "01.04.2021", "10.00", "00.00", 0}),
    [](const auto& info) { return std::string(info.param.name); });

struct Refusal {
    const char* name;
    Wyjazd w;
    const char* tytul;
};
void PrintTo(const Refusal& r, std::ostream* os) { *os << r.name; }

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, WithItsBox) {
    auto k = sprawdz(GetParam().w);
    ASSERT_TRUE(k);
    EXPECT_EQ(k->tytul, GetParam().tytul);
}

INSTANTIATE_TEST_SUITE_P(
    Trips, Refused,
    testing::Values(Refusal{"NoArrivalTime", {"A", "01.03.2021", "08.00", "B", "01.03.2021", " "}, "Brak zasadniczych danych !"},
                    Refusal{"NoPlace", {"", "01.03.2021", "08.00", "B", "01.03.2021", "09.00"}, "Brak zasadniczych danych !"},
                    Refusal{"DayBefore", {"A", "02.03.2021", "08.00", "B", "01.03.2021", "09.00"}, "Popraw dane!"},
                    Refusal{"MonthBefore", {"A", "01.03.2021", "08.00", "B", "28.02.2021", "09.00"}, "Popraw dane!"},
                    Refusal{"YearBefore", {"A", "01.01.2021", "08.00", "B", "31.12.2020", "09.00"}, "Popraw dane!"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(TripValues, RateTimesCountAndExchangeRoundedToGrosze) {
    // 2 per-diems of 49 EUR at 4.5721: 98.00 EUR, 448.0658 zł rounds to 448.07.
    Wartosci w = wartosci(37, 2, "49", "4,5721");
    EXPECT_EQ(w.lbWartoscWaluty, "98.00");
    EXPECT_EQ(w.lbKurs, "4.5721");
    EXPECT_EQ(w.lbWartoscPLN, "448.07");
    EXPECT_FLOAT_EQ(w.wartoscPLN, 448.07f);
    // An empty exchange rate counts as 1; a decimal comma in the rate is read.
    Wartosci pln = wartosci(8, 0.5, "30,50", "");
    EXPECT_EQ(pln.lbKurs, "1.0000");
    EXPECT_EQ(pln.lbWartoscPLN, "15.25");
}

TEST(TripValues, CountCutAtTheMonthsEnd) {
    double ilosc = 5;  // from the 28th of a 30-day month: the 28th, 29th and 30th
    auto k = koniecMiesiaca("28.04.2021", ilosc);
    ASSERT_TRUE(k);
    EXPECT_EQ(k->tekst, " Przekroczona ilośc  dni poza okres sprawozdawczy ");
    EXPECT_DOUBLE_EQ(ilosc, 3);
    double doKonca = 5;  // the 26th to the 30th fits
    EXPECT_FALSE(koniecMiesiaca("26.04.2021", doKonca));
    EXPECT_DOUBLE_EQ(doKonca, 5);
    double luty = 2;  // 28 February 2021 is the last day
    EXPECT_TRUE(koniecMiesiaca("28.02.2021", luty));
    EXPECT_DOUBLE_EQ(luty, 1);
}

}  // namespace
