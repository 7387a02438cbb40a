// The command line tool as a script sees it: output, boxes on standard error, exit status.
#include <gtest/gtest.h>

#include "core/text.h"
#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;
using testing_support::TempDir;

namespace {
struct Demo {
    TempDir dir;
    Demo() { testing_support::copyTree(PENSJA_DEMO, dir.path()); }
    testing_support::RunResult cli(const std::vector<std::string>& args) { return run(PENSJA_CLI, args, dir.path()); }
};
}  // namespace

TEST(Cli, RatesOfTheSessionYear) {
    Demo d;
    auto r = d.cli({"rates"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("rentowaPracownik=0.015\n"), std::string::npos);
    EXPECT_NE(r.out.find("rentowaPracodawca=0.065\n"), std::string::npos);
    EXPECT_NE(r.out.find("emerytalna=0.0976\n"), std::string::npos);
    EXPECT_NE(r.out.find("Stawka1=17\n"), std::string::npos);
    EXPECT_NE(r.out.find("KwPodstZDRwlasciciela=4242.38\n"), std::string::npos);
    // --date picks another year for this run only; the record keeps its date.
    auto r2012 = d.cli({"--date", "31-01-2012", "rates"});
    EXPECT_NE(r2012.out.find("rentowaPracodawca=0.045\n"), std::string::npos);
    EXPECT_NE(r2012.out.find("Stawka1=18\n"), std::string::npos);
    auto again = d.cli({"rates"});
    EXPECT_EQ(again.out, r.out);
    // --data names the folder from anywhere.
    TempDir elsewhere;
    auto viaData = run(PENSJA_CLI, {"--data", d.dir.path().string(), "rates"}, elsewhere.path());
    EXPECT_EQ(viaData.out, r.out);
}

TEST(Cli, Words) {
    Demo d;
    auto r = d.cli({"words", "1250"});
    ASSERT_EQ(r.status, 0);
    EXPECT_EQ(r.out, core::PadRight("jeden tyś. dwieście pięćdziesiąt zł.", 94) + "\n");
}

TEST(Cli, ExitStatus) {
    Demo d;
    struct {
        std::vector<std::string> args;
        int status;
        const char* err;
    } cases[] = {
        {{}, 2, "nie podano polecenia"},
        {{"nieznane"}, 2, "nieznane polecenie nieznane"},
        {{"words"}, 2, "words wymaga jednej kwoty"},
        {{"words", "12a"}, 2, "kwota musi być liczbą"},
        {{"--payer"}, 2, "brak wartości opcji --payer"},
        {{"--bogus", "rates"}, 2, "nieznana opcja --bogus"},
    };
    for (const auto& c : cases) {
        auto r = d.cli(c.args);
        EXPECT_EQ(r.status, c.status) << r.err;
        EXPECT_NE(r.err.find(c.err), std::string::npos) << r.err;
    }
    // A folder without an installation record.
    TempDir empty;
    auto r = run(PENSJA_CLI, {"rates"}, empty.path());
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Błąd nr 53"), std::string::npos) << r.err;
}
