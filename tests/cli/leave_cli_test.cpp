// Leave and working time on the command line, on the demo data.
#include <gtest/gtest.h>

#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;

TEST(CliLeave, WorkingTimeDefaultsLeaveAndAverage) {
    testing_support::TempDir dir;
    testing_support::copyTree(PENSJA_DEMO, dir.path());
    const std::string jan = "75031412317";
    // June 2021 of the demo file: 22 working days of 8 hours, saved.
    auto cp = run(PENSJA_CLI, {"--date", "30-06-2021", "worktime", "a", jan, "6", "--defaults"}, dir.path());
    ASSERT_EQ(cp.status, 0) << cp.err;
    EXPECT_NE(cp.out.find("\n5 |sobota,05,czerwiec,2021      |   |   |    |   |     |"), std::string::npos) << cp.out;
    EXPECT_NE(cp.out.find("IloscDniPracy=22\n"), std::string::npos);
    auto again = run(PENSJA_CLI, {"--date", "30-06-2021", "worktime", "a", jan, "6"}, dir.path());
    EXPECT_EQ(again.out, cp.out);
    // The leave of the demo: two days in January, one in March; 30 days due, 27 left.
    auto ur = run(PENSJA_CLI, {"leave", "a", jan}, dir.path());
    ASSERT_EQ(ur.status, 0) << ur.err;
    EXPECT_NE(ur.out.find("|254.00|2     |508.00|16"), std::string::npos) << ur.out;
    EXPECT_NE(ur.out.find("DoWykorzystania=27\nRozliczac=nie\n"), std::string::npos);
    auto druk = run(PENSJA_CLI, {"leave", "a", jan, "--out", "wykaz.txt"}, dir.path());
    EXPECT_EQ(druk.status, 0) << druk.err;
    EXPECT_NE(testing_support::readBytes(dir / "wykaz.txt").find("Pozostalo dni do wykorzystania =27 dni"), std::string::npos);
    auto sr = run(PENSJA_CLI, {"average", "a", jan}, dir.path());
    EXPECT_NE(sr.out.find("1     |2000  |0.00"), std::string::npos) << sr.out;
    EXPECT_EQ(run(PENSJA_CLI, {"worktime", "a", jan, "13"}, dir.path()).status, 2);
    EXPECT_EQ(run(PENSJA_CLI, {"sick-history", "a", "00000000000"}, dir.path()).status, 1);
}
