// The command line tool as a script sees it: output, boxes on standard error, exit status, and
// the commands of every subsystem on a copy of the demo data.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "core/seqfile.h"
#include "core/text.h"
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
    std::filesystem::path zus(const std::string& plik) const { return dir.path() / "DEMO" / "Zus" / plik; }
};
bool zawiera(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }
std::vector<std::string> wiersze(const std::string& t) {
    std::vector<std::string> out;
    std::istringstream in(t);
    for (std::string l; std::getline(in, l);) out.push_back(l);
    return out;
}
std::size_t ile(const std::vector<std::string>& linie, const std::string& co) {
    return static_cast<std::size_t>(std::count(linie.begin(), linie.end(), co));
}
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

TEST(CliPayers, PayersAndTheListsOfThePayer) {
    Demo d;
    auto p = d.cli({"payers"});
    ASSERT_EQ(p.status, 0) << p.err;
    EXPECT_EQ(p.out, "DEMO  Przedsiębiorstwo Usługowe Demo, Spółka z o.o.\n");

    auto l = d.cli({"lists"});
    ASSERT_EQ(l.status, 0) << l.err;
    EXPECT_EQ(l.out,
              "Administracja                     a         a   A\n"
              "Produkcja                         p         p   B\n");
}

TEST(CliPayers, ListsOfAnotherPayerAndErrors) {
    Demo d;
    std::filesystem::create_directory(d.dir / "INNY");
    core::commitFile(d.dir / "INNY" / "instal.dat",
                     "\"Zlecenia                         \",\"u       \",\"u\",\"C\",\"\",\"\",\"\",\"1\",\"\"\r\n");
    auto l = d.cli({"--payer", "INNY", "lists"});
    ASSERT_EQ(l.status, 0) << l.err;
    EXPECT_EQ(l.out, "Zlecenia                          u         u   C\n");

    auto none = d.cli({"--payer", "NIEMA", "lists"});
    EXPECT_EQ(none.status, 1);
    EXPECT_NE(none.err.find("Błąd nr 76"), std::string::npos) << none.err;
    EXPECT_EQ(d.cli({"payers", "x"}).status, 2);
}

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

// The commands' wiring: what they say and their status (their rules are the engine tests').
TEST(LedgerCli, CommandsAndTheirRefusals) {
    Demo d;
    struct {
        std::vector<std::string> args;
        int status;
        const char* says;  // on standard output or error
    } cases[] = {
        {{"--no", "close-month", "a"}, 0, "Wykonane !"},  // January: --no closes an ordinary month
        {{"--yes", "close-month", "a"}, 1, " Zerowanie było już w tym miesiacu wykonane ! "},
        {{"calibrate", "a"}, 0, "rekordów płacowych: 7"},
        {{"--yes", "ledger", "zz"}, 1, "53"},  // a list without files
        {{"rcp"}, 1, "Zestawienie to można wykonać tylko po wykonaniu zestawu RCP do ZUS !"},
        {{"ledger"}, 2, ""},
        {{"ledger", "a", "b"}, 2, ""},
        {{"ledger", "../a"}, 2, ""},
        {{"close-month"}, 2, ""},
        {{"calibrate"}, 2, ""},
    };
    for (const auto& c : cases) {
        auto r = d.cli(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.back() << r.err;
        EXPECT_TRUE(zawiera(r.out + r.err, c.says)) << r.out << r.err;
    }
}

TEST(LedgerCli, PeopleWithoutAPayRecordAreNamedOnStandardError) {
    Demo d;
    // The third pay record (ZIELIŃSKI) taken out of the pay file of 155 lines a record.
    auto lines = testing_support::readLines(d.baza());
    lines.erase(lines.begin() + 2 * 155, lines.begin() + 3 * 155);
    testing_support::writeLines(d.baza(), lines);
    auto r = d.cli({"--yes", "ledger", "a"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(zawiera(r.err, "[Osoby bez danych płacowych]")) << r.err;
    EXPECT_TRUE(zawiera(r.err, "ZIELIŃSKI PIOTR, 88110578938")) << r.err;
    EXPECT_TRUE(zawiera(r.out, "osób: 7")) << r.out;
}

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
