// The commands of an employee's year on the demo year 2020: the yearly grid, its print, the
// blanking of a month and the earnings certificate, with their wrong arguments.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

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
std::vector<std::string> wiersze(const std::string& t) {
    std::vector<std::string> out;
    std::istringstream in(t);
    for (std::string l; std::getline(in, l);) out.push_back(l);
    return out;
}
}  // namespace

TEST(YearCli, GridBlankingAndCertificate) {
    Demo d;
    auto r = d.cli({"year-ledger", "a", "75031412317", "2020"});
    ASSERT_EQ(r.status, 0) << r.err;
    auto w = wiersze(r.out);
    ASSERT_EQ(w.size(), 14u);  // the heads, twelve months, "Razem"
    EXPECT_EQ(w[0].substr(0, 15), "Miesi\tSpecjalny");
    EXPECT_EQ(w[13].substr(0, 6), "Razem\t");

    EXPECT_EQ(d.cli({"blank-month", "a", "75031412317", "2003"}).status, 0);
    w = wiersze(d.cli({"year-ledger", "a", "75031412317", "20"}).out);
    EXPECT_EQ(w[3].substr(0, 13), "03\t0.00\t0.00\t") << w[3];
    EXPECT_EQ(d.cli({"blank-month", "a", "75031412317", "2013"}).status, 2);
    r = d.cli({"blank-month", "a", "75031412317", "1903"});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("[Podaj date w formacie RRmm !] Brak kartoteki za wybrany miesiac"), std::string::npos) << r.err;

    r = d.cli({"--yes", "year-ledger", "a", "75031412317", "2020", "--out", "rok.txt"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(testing_support::readBytes(d.dir / "rok.txt").find("za rok 2020"), std::string::npos);

    // The certificate needs the HR record; then it prints the period over the year's turn.
    std::filesystem::remove(d.dir / "DEMO" / "Person" / "a.kdr");
    r = d.cli({"certificate", "a", "75031412317", "1220", "0121"});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Brak uzupełnionych danych kadrowych"), std::string::npos) << r.err;
    testing_support::writeLines(d.dir / "DEMO" / "Person" / "a.kdr", {"\"75031412317\",\"01-02-2005\",\"\",\"N\",\"kierownik\",\"\""});
    r = d.cli({"certificate", "a", "75031412317", "1220", "0121", "--purpose", " do banku."});
    ASSERT_EQ(r.status, 0) << r.err;
    for (const char* t : {" W okresie od 12-2020 do 01-2021 otrzymał wynagrodzenie brutto", " na stnowisku kierownik",
                          " Zaświadczenie wydaje się  do banku.", " Kopia     "})
        EXPECT_NE(r.out.find(t), std::string::npos) << t;
    EXPECT_EQ(d.cli({"certificate", "a", "75031412317", "0120"}).status, 2);
}
