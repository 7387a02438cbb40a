// The supplementary runs on the command line: a run as the tab's button does it, read back by
// the yearly base, printed and deleted.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;
using testing_support::TempDir;

namespace {
bool zawiera(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }
}  // namespace

TEST(SupplementCli, OvertimeRunPrintAndDelete) {
    TempDir dir;
    testing_support::copyTree(PENSJA_DEMO, dir.path());
    auto cli = [&](const std::vector<std::string>& a) { return run(PENSJA_CLI, a, dir.path()); };
    const auto file = dir.path() / "DEMO" / "Godziny" / "aGod2101.dta";
    std::filesystem::remove(file);  // the demo's January
    // Without the month's file the founding question must be answered.
    auto r = cli({"supplement", "overtime", "a", "75031412317", "txtIl1=10"});
    EXPECT_NE(r.status, 0);
    EXPECT_FALSE(std::filesystem::exists(file));
    // NOWAK, administration: 5200 / 168 = 30.95 an hour, nights 35.60.
    r = cli({"--yes", "supplement", "overtime", "a", "75031412317", "txtIl1=10", "txtIl4=2"});
    ASSERT_EQ(r.status, 0) << r.err;
    for (const char* l : {"txtsta1=30.95\n", "txtsta4=35.6\n", "LbRazemKwotaG=380.7\n", "LbRazemSkładkiG=52.2\n",
                          "LbPodatekNettoG=26\n", "lbPłacaNettoG=268.83\n", "LbRazemGodziny=12\n"})
        EXPECT_TRUE(zawiera(r.out, l)) << l << r.out;
    // With the demo's addition of January, 500.
    EXPECT_EQ(cli({"base", "a", "75031412317"}).out, "880.70\n");
    EXPECT_EQ(cli({"supplement", "overtime", "a", "nikt"}).status, 2);
    EXPECT_EQ(cli({"supplement", "overtime", "a", "75031412317", "nieMa=1"}).status, 2);

    r = cli({"supplement-print", "overtime", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.out, "NOWAK JAN")) << r.out;
    EXPECT_TRUE(zawiera(r.out, "Razem                              380.70      52.20      33.67      26.00     268.83"))
        << r.out;

    EXPECT_EQ(cli({"supplement-delete", "overtime", "a"}).status, 0);
    EXPECT_FALSE(std::filesystem::exists(file));
    r = cli({"supplement-delete", "overtime", "a"});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(zawiera(r.err, "Nie ma założoneg zbioru godzin !")) << r.err;
}
