#include <gtest/gtest.h>

#include "core/error.h"
#include "payinputs/seniority.h"

using payinputs::obliczStaz;

TEST(Seniority, YearsAndPercent) {
    struct {
        const char* hire;
        const char* list;
        const char* group;
        const char* payer;
        int years, percent;
    } cases[] = {
        {"01/03/2010", "31-03-2021", "a", "DEMO", 11, 11},  // hired on the 1st of the list month: full year
        {"15/03/2010", "31-03-2021", "a", "DEMO", 10, 10},  // later in the list month: one less
        {"15/04/2010", "31-03-2021", "a", "DEMO", 10, 10},  // list month before the hire month
        {"01/01/2017", "31-12-2021", "a", "DEMO", 4, 0},    // below 5 years: nothing
        {"01/01/2017", "31-12-2021", "n", "DEMO", 4, 4},    // a teacher from 3 years
        {"01/01/2019", "31-12-2021", "n", "DEMO", 2, 0},
        {"01/01/1990", "31-12-2021", "a", "DEMO", 20, 20},  // 31 years: both capped at 20
        {"01/01/1996", "31-12-2021", "a", "SKR", 25, 25},   // SKR: no cap
        {"01/01/1961", "31-12-2021", "a", "SKR", 0, 0},     // 60 years: above 50 gives 0
        {"01/01/2030", "31-12-2021", "a", "DEMO", 0, 0},    // negative
        {"", "31-12-2021", "a", "DEMO", 20, 20},            // no date: year 0, capped
        {"", "31-12-2021", "a", "SKR", 0, 0},
    };
    for (const auto& c : cases) {
        auto st = obliczStaz(c.hire, c.list, c.group, c.payer);
        EXPECT_EQ(st.stazLat, c.years) << c.hire << " " << c.list << " " << c.group << " " << c.payer;
        EXPECT_EQ(st.stazProcent, c.percent) << c.hire << " " << c.list << " " << c.group << " " << c.payer;
    }
}

TEST(Seniority, AYearThatNoIntegerHoldsIsAnOverflow) {
    for (auto [hire, list] : {std::pair{"01/01/1e99", "31-12-2021"}, {"01/01/2010", "31-12-1e99"}, {"01/01/-9e9", "31-12-2021"}}) {
        try {
            obliczStaz(hire, list, "a", "DEMO");
            ADD_FAILURE() << hire << " " << list;
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::Overflow) << hire << " " << list;
        }
    }
}
