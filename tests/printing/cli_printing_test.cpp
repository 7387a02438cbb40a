// print-list, payslips and banknotes of the command line: the same pages as the program prints,
// on standard output or into a file, and the exit status of a print that could not be made.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "fixture.h"
#include "paycalc/karta_record.h"
#include "support/run.h"

namespace K = paycalc::Karta;
using printing_tests::Dane;
using testing_support::readBytes;

namespace {

std::string referencja(const std::string& name) {
    return readBytes(std::filesystem::path(__FILE__).parent_path() / "data" / name);
}

testing_support::RunResult cli(const Dane& d, const std::vector<std::string>& args) {
    return testing_support::run(PENSJA_CLI, args, d.dir.path());
}

}  // namespace

TEST(CliDruk, PagesOnStandardOutputOrInAFile) {
    Dane d;
    d.karta({printing_tests::kowalski(), printing_tests::nowak()});
    auto r = cli(d, {"--yes", "print-list", "a"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, referencja("lista_2.txt"));
    EXPECT_EQ(r.err, "[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!\n");
    EXPECT_TRUE(std::filesystem::exists(d.payer() / "Sumy" / "Sa2101.sum"));

    auto out = cli(d, {"--yes", "print-list", "a", "--out", "lista.txt"});
    ASSERT_EQ(out.status, 0) << out.err;
    EXPECT_EQ(out.out, "");
    EXPECT_EQ(readBytes(d.dir / "lista.txt"), referencja("lista_2.txt"));

    auto pdf = cli(d, {"--yes", "payslips", "a", "--pdf", "paski.pdf"});
    ASSERT_EQ(pdf.status, 0) << pdf.err;
    EXPECT_EQ(readBytes(d.dir / "paski.pdf").substr(0, 5), "%PDF-");

    d.karta({printing_tests::osoba("A", "A", {{K::DoWyplaty, 1234.56}}),
             printing_tests::osoba("B", "B", {{K::DoWyplaty, 0.30}}), printing_tests::osoba("C", "C"),
             printing_tests::osoba("D", "D", {{K::DoWyplaty, 0.30}})});
    auto b = cli(d, {"--yes", "banknotes", "a"});
    ASSERT_EQ(b.status, 0) << b.err;
    EXPECT_EQ(b.out, referencja("banknoty.txt"));
}

TEST(CliDruk, PrintsThatCannotBeMade) {
    Dane d;
    struct {
        std::vector<std::string> args;
        int status;
        const char* err;
    } cases[] = {
        {{"--yes", "print-list", "a"}, 1, "[] Po pierwsze wykonaj kartoteke !"},
        {{"--yes", "payslips", "a"}, 1, "[] Po pierwsze wykonaj kartoteke !"},
        {{"print-list", "a"}, 1, "pytanie bez odpowiedzi"},
        {{"--yes", "print-list", "x"}, 2, "płatnik DEMO nie ma listy x w instal.dat"},
        {{"--yes", "print-list"}, 2, "print-list wymaga nazwy listy"},
        {{"--yes", "print-list", "a", "--pdf"}, 2, "brak nazwy pliku po --pdf"},
    };
    for (const auto& c : cases) {
        auto r = cli(d, c.args);
        EXPECT_EQ(r.status, c.status) << c.args.back() << "\n" << r.err;
        EXPECT_NE(r.err.find(c.err), std::string::npos) << r.err;
        EXPECT_EQ(r.out, "");
    }
}

TEST(CliDruk, DemoListAsPdfKeepsTheWholeLineOnTheSheet) {
    Dane d;
    d.karta(printing_tests::demoListaA());
    // Kept in the build folder: pdftoppm turns it into the picture of the README.
    const auto pdf = std::filesystem::current_path() / "lista-plac-demo.pdf";
    auto r = cli(d, {"--yes", "print-list", "a", "--pdf", pdf.string()});
    ASSERT_EQ(r.status, 0) << r.err;
    if (!std::filesystem::exists("/usr/bin/pdftotext")) GTEST_SKIP() << "no pdftotext";
    auto t = testing_support::run("/usr/bin/pdftotext", {"-layout", pdf.string(), "-"}, d.dir.path());
    // Text beyond the edge of the sheet would be cut off: the rule, the last column and the
    // signature line are there whole.
    EXPECT_NE(t.out.find("|" + std::string(132, '=') + "|"), std::string::npos) << t.out;
    // (pdftotext gives the gaps between words only roughly)
    EXPECT_NE(t.out.find("R A Z E M|Lp."), std::string::npos);
    EXPECT_NE(t.out.find("4.KATARZYNA"), std::string::npos);
    EXPECT_NE(t.out.find("7.EWA"), std::string::npos);
    EXPECT_NE(t.out.find("Ilosc osób = 7"), std::string::npos);
    EXPECT_NE(t.out.find("zatwierdził"), std::string::npos);
    EXPECT_NE(t.out.find(std::string(20, '.')), std::string::npos);

    // The payslips of the seven: five on the first sheet, two on the second.
    const auto paski = std::filesystem::current_path() / "paski-demo.pdf";
    ASSERT_EQ(cli(d, {"--yes", "payslips", "a", "--pdf", paski.string()}).status, 0);
    auto p = testing_support::run("/usr/bin/pdftotext", {"-layout", paski.string(), "-"}, d.dir.path());
    EXPECT_EQ(std::count(p.out.begin(), p.out.end(), '\f'), 2) << p.out;
    auto strona2 = p.out.substr(p.out.find('\f'));
    EXPECT_NE(strona2.find("6.MAREK"), std::string::npos);
    EXPECT_NE(strona2.find("7.EWA"), std::string::npos);
}

TEST(CliDruk, SumsAreWrittenOnlyWhenTheListWentOut) {
    Dane d;
    d.karta({printing_tests::kowalski(), printing_tests::nowak()});
    const auto sumy = d.payer() / "Sumy" / "Sa2101.sum";
    auto r = cli(d, {"--yes", "print-list", "a", "--out", "brak/lista.txt"});
    EXPECT_NE(r.status, 0);
    EXPECT_FALSE(std::filesystem::exists(sumy));
    ASSERT_EQ(cli(d, {"--yes", "print-list", "a", "--out", "lista.txt"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(sumy));
}
