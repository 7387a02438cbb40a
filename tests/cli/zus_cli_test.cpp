// The social-insurance commands on the demo month: the merge of both lists, the settlement
// file, the printed review and the registration file of a list.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;

namespace {
struct Demo {
    testing_support::TempDir dir;
    Demo() { testing_support::copyTree(PENSJA_DEMO, dir.path()); }
    testing_support::RunResult cli(const std::vector<std::string>& args) { return run(PENSJA_CLI, args, dir.path()); }
    std::filesystem::path zus(const std::string& plik) const { return dir.path() / "DEMO" / "Zus" / plik; }
};
std::size_t ile(const std::vector<std::string>& linie, const std::string& co) {
    return static_cast<std::size_t>(std::count(linie.begin(), linie.end(), co));
}
}  // namespace

TEST(ZusCli, MergeSettlementReviewAndRegistration) {
    Demo d;
    ASSERT_EQ(d.cli({"--yes", "ledger", "a"}).status, 0);
    ASSERT_EQ(d.cli({"--yes", "ledger", "p"}).status, 0);
    auto r = d.cli({"--yes", "zus-merge", "--sets", "AB", "--thirteenth"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("rekordów: 14"), std::string::npos) << r.out;

    r = d.cli({"--yes", "kedu", "--sets", "AB", "--term", "15"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("202101~1rozliczenioweAB.KDU"), std::string::npos) << r.out;
    const auto kdu = testing_support::readLines(d.zus("202101~1rozliczenioweAB.KDU"));
    ASSERT_GT(kdu.size(), 160u);
    EXPECT_EQ(kdu[30], "1");        // the term
    EXPECT_EQ(kdu[51], "14    ");   // persons
    EXPECT_EQ(ile(kdu, "<DDORCA>"), 14u);

    const auto out = d.dir.path() / "rcp.txt";
    r = d.cli({"rcp", "--out", out.string()});
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string druk = testing_support::readBytes(out);
    EXPECT_EQ(druk.rfind("  Zestawienie podstaw i składek do ZUS\n", 0), 0u) << druk;
    EXPECT_EQ(std::count(druk.begin(), druk.end(), '\n'), 4 + 2 * 14 + 2);

    r = d.cli({"--yes", "zua", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(ile(testing_support::readLines(d.dir.path() / "DEMO" / "Zgloszeniowe" / "ZUAa.KDU"), "<ZUSZUA.DP>"), 7u);

    EXPECT_EQ(d.cli({"kedu", "--zestaw", "A"}).status, 2);
}

TEST(ZusCli, ReviewWithoutMergeSaysSo) {
    Demo d;
    auto r = d.cli({"rcp"});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Zestawienie to można wykonać tylko po wykonaniu zestawu RCP do ZUS !"), std::string::npos);
}
