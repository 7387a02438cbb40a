// The month's commands of a list on the command line: the ledger, the yearly base, the closing
// and the calibration, with their questions answered by --yes and --no.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/run.h"
#include "support/tempdir.h"

using testing_support::readBytes;
using testing_support::run;
using testing_support::TempDir;

namespace {
struct Demo {
    TempDir dir;
    Demo() { testing_support::copyTree(PENSJA_DEMO, dir.path()); }
    testing_support::RunResult cli(const std::vector<std::string>& args) { return run(PENSJA_CLI, args, dir.path()); }
    std::filesystem::path karta() const { return dir.path() / "DEMO" / "Karta" / "a2101.dta"; }
    std::filesystem::path baza() const { return dir.path() / "DEMO" / "Bazy" / "a.dta"; }
};
bool zawiera(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }
}  // namespace

TEST(LedgerCli, LedgerFollowsTheAnswer) {
    Demo d;
    // No answer and no terminal: the question is named and nothing is written.
    auto r = d.cli({"ledger", "a"});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(zawiera(r.err, "Czy chcesz wykonać kartotekę z aktualnej na ten miesiac listy płac")) << r.err;
    EXPECT_FALSE(std::filesystem::exists(d.karta()));
    r = d.cli({"--no", "ledger", "a"});
    EXPECT_EQ(r.status, 1);
    EXPECT_FALSE(std::filesystem::exists(d.karta()));
    r = d.cli({"--yes", "ledger", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.err, "[Kartoteka z listy plac a] Wykonano kartotekę za 2101")) << r.err;
    EXPECT_TRUE(zawiera(r.out, "osób: 7")) << r.out;
    ASSERT_TRUE(std::filesystem::exists(d.karta()));
    EXPECT_EQ(testing_support::readLines(d.karta()).size(), 7u * 177);
    // Another month by --date, the record of the installation unchanged.
    r = d.cli({"--yes", "--date", "28-02-2021", "ledger", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(std::filesystem::exists(d.dir.path() / "DEMO" / "Karta" / "a2102.dta"));
}

TEST(LedgerCli, YearlyBase) {
    Demo d;
    ASSERT_EQ(d.cli({"--yes", "ledger", "a"}).status, 0);
    ASSERT_EQ(d.cli({"--yes", "--date", "31-03-2021", "ledger", "a"}).status, 0);
    // DĄBROWSKI: 5888 in January and in March.
    auto r = d.cli({"base", "a", "80120356757"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "11776.00\n");
    EXPECT_EQ(d.cli({"base", "a", "80120356757", "2019"}).out, "0.00\n");
    EXPECT_EQ(d.cli({"base", "a", "80120356757", "2021"}).out, "11776.00\n");
    EXPECT_EQ(d.cli({"base", "a"}).status, 2);
}

TEST(LedgerCli, CloseMonthOnceAMonth) {
    Demo d;
    // January asks about the year start: --no closes an ordinary month.
    auto r = d.cli({"--no", "close-month", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.err, "[Przygotowanie bazy do nowego roku ]")) << r.err;
    EXPECT_TRUE(zawiera(r.out, "Wykonane !")) << r.out;
    const std::string po = readBytes(d.baza());
    EXPECT_TRUE(zawiera(po, "\"31-01-2021\"\r\n"));
    r = d.cli({"--yes", "close-month", "a"});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(zawiera(r.err, " Zerowanie było już w tym miesiacu wykonane ! ")) << r.err;
    EXPECT_EQ(readBytes(d.baza()), po);
}

TEST(LedgerCli, CalibrateTwiceGivesTheSameFile) {
    Demo d;
    auto r = d.cli({"calibrate", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.err, "[Kalibracja bazy zostala wykonana]  Wykonano")) << r.err;
    EXPECT_TRUE(zawiera(r.out, "rekordów płacowych: 7")) << r.out;
    const std::string raz = readBytes(d.baza());
    ASSERT_EQ(d.cli({"calibrate", "a"}).status, 0);
    EXPECT_EQ(readBytes(d.baza()), raz);
}

TEST(LedgerCli, BadArguments) {
    Demo d;
    for (const std::vector<std::string>& args :
         {std::vector<std::string>{"ledger"}, {"ledger", "a", "b"}, {"ledger", "../a"}, {"close-month"}, {"calibrate"}}) {
        auto r = d.cli(args);
        EXPECT_EQ(r.status, 2) << args[0];
    }
    // A list without files: the error box of the missing personnel file.
    auto r = d.cli({"--yes", "ledger", "zz"});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(zawiera(r.err, "53")) << r.err;
}

TEST(LedgerCli, PeopleWithoutAPayRecordAreNamedOnStandardError) {
    Demo d;
    // The third pay record (ZIELIŃSKI) taken out of the pay file of 155 lines a record.
    auto lines = testing_support::readLines(d.baza());
    lines.erase(lines.begin() + 2 * 155, lines.begin() + 3 * 155);
    testing_support::writeLines(d.baza(), lines);
    auto r = d.cli({"--yes", "ledger", "a"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.err, "[Osoby bez danych płacowych] Te osoby listy nie mają danych płacowych:\n"
                               "  ZIELIŃSKI PIOTR, 88110578938\nIch rekordy")) << r.err;
    EXPECT_TRUE(zawiera(r.out, "osób: 7")) << r.out;
}
