// The tax forms on the command line: the month's PIT-4 and a person's PIT-11 of the demo.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run.h"
#include "support/tempdir.h"

namespace {

struct Demo {
    testing_support::TempDir dir;
    Demo() { testing_support::copyTree(PENSJA_DEMO, dir.path()); }
    testing_support::RunResult cli(const std::vector<std::string>& args) {
        return testing_support::run(PENSJA_CLI, args, dir.path());
    }
};
bool zawiera(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }

TEST(TaxCli, Pit4AndPit11OfTheDemoMonth) {
    Demo d;
    ASSERT_EQ(d.cli({"--yes", "ledger", "a"}).status, 0);
    ASSERT_EQ(d.cli({"--yes", "ledger", "p"}).status, 0);
    // Seven persons on each list: the set "A" takes list a, "AB" both.
    auto r = d.cli({"pit4", "--sets", "A"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.out, "Ilosc1=7\n")) << r.out;
    EXPECT_TRUE(zawiera(r.out, "\nKwotaDoWplaty=")) << r.out;
    EXPECT_TRUE(zawiera(d.cli({"pit4", "--sets", "AB"}).out, "Ilosc1=14\n"));

    r = d.cli({"pit11", "a", "75031412317", "--pdf", "p.pdf"});
    EXPECT_EQ(r.status, 1);  // nothing saved yet
    EXPECT_TRUE(zawiera(r.err, "Nie znaleziono zapisanego zbioru Pit11 dla tej osoby !")) << r.err;
    r = d.cli({"pit11", "a", "75031412317", "--save", "--form", "pit40", "--pdf", "p.pdf"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.out, "\n02 LbRazemM=0.00 ")) << r.out;
    EXPECT_TRUE(std::filesystem::exists(d.dir.path() / "DEMO" / "Pit11" / "a2112.dta"));
    EXPECT_EQ(testing_support::readBytes(d.dir.path() / "p.pdf").substr(0, 5), "%PDF-");

    EXPECT_EQ(d.cli({"pit11", "a", "75031412317", "--form", "pit12"}).status, 2);
    EXPECT_EQ(d.cli({"pit11", "a", "00000000000"}).status, 1);
}

}  // namespace
