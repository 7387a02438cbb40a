// The people of a list on the command line.
#include <gtest/gtest.h>

#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;
using testing_support::TempDir;

TEST(CliPersons, PeopleOfTheListAsTheWorkspaceShowsThem) {
    TempDir dir;
    testing_support::copyTree(PENSJA_DEMO, dir.path());
    auto p = run(PENSJA_CLI, {"persons", "a"}, dir.path());
    ASSERT_EQ(p.status, 0) << p.err;
    // number in 3, surname from column 5, first name from 31, the identifier from 56, the
    // insurance code last
    const std::string first = "  1 NOWAK                     JAN                      75031412317 Tak a   1  1 011000\n";
    const std::string foreigner = "  5 KOWALENKO                 OLENA                    FP123456    Tak a   3  4 011000\n";
    EXPECT_EQ(p.out.substr(0, first.size()), first);
    EXPECT_NE(p.out.find(foreigner), std::string::npos) << p.out;
    EXPECT_EQ(std::count(p.out.begin(), p.out.end(), '\n'), 7);

    auto none = run(PENSJA_CLI, {"persons", "zz"}, dir.path());
    EXPECT_EQ(none.status, 1);
    EXPECT_NE(none.err.find("zz"), std::string::npos);
    EXPECT_EQ(run(PENSJA_CLI, {"persons"}, dir.path()).status, 2);
}
