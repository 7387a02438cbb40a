// The printed layouts against the reference files of tests/printing/data (see the README there):
// every file of the folder belongs to one case below, and every case to one file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "core/text.h"
#include "fixture.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"
#include "printing/specyfikacja.h"
#include "printing/sumy_record.h"

namespace fs = std::filesystem;
namespace K = paycalc::Karta;
using printing_tests::Dane;

namespace {

const fs::path kData = fs::path(__FILE__).parent_path() / "data";

std::string wydrukListy(const std::vector<core::Record>& karta) {
    Dane d;
    d.karta(karta);
    printing::cmdDrukListy(d.s, d.ui);
    return d.ui.paper.text();
}

std::string paski(const std::vector<core::Record>& karta) {
    Dane d;
    d.karta(karta);
    printing::CmdPaski(d.s, d.ui);
    return d.ui.paper.text();
}

// A person whose every amount in the ledger holds the number of its field (field 6 is 6.00,
// field 18 is 18.00 ...), with sick days of code 331 in line 1 and of code 313 in line 2: a cell
// or a total taken from a wrong field shows at once.
core::Record poNumerach() {
    core::Record r = printing_tests::osoba(
        "Pola", "Numery", {}, {{K::KodPrzerwy1, "331"}, {K::KodPrzerwy2, "313"}, {K::Etat, "  1  1"}, {K::Grupa, "a"}});
    for (int n = K::Zasadnicza; n < K::Koniec; ++n) {
        const auto t = K::schema().fields[static_cast<std::size_t>(n - 1)].type;
        if (t != core::FieldType::String && t != core::FieldType::Line && t != core::FieldType::Blank &&
            n != K::KodPrzerwy1 && n != K::KodPrzerwy2)
            r.set(n, static_cast<double>(n));
    }
    return r;
}

std::map<std::string, std::function<std::string()>> przypadki() {
    using namespace printing_tests;
    return {
        // The head and page head, the rows of a person with amounts and of one with nothing but
        // sick days, the summary rows, the employer's amounts and the signature line.
        {"lista_2.txt", [] { return wydrukListy({kowalski(), nowak()}); }},
        // 12 persons: no carry-over; 13: page 1 of 1, a carry-over and the summary alone on
        // page 2; 14: page 1 of 2 and page 2 of 2.
        {"lista_12.txt", [] { return wydrukListy(proste(12)); }},
        {"lista_13.txt", [] { return wydrukListy(proste(13)); }},
        {"lista_14.txt", [] { return wydrukListy(proste(14)); }},
        // Five payslips a page, the accident cell's open line end on the payslips without one.
        {"paski_6.txt",
         [] {
             std::vector<core::Record> v{kowalski(), nowak()};
             for (int i = 1; i <= 4; ++i) v.push_back(prosta(i));
             return paski(v);
         }},
        // The 66 fields of the sums of the small list.
        {"Sa2101.sum",
         [] {
             Dane d;
             d.karta({kowalski(), nowak()});
             printing::cmdDrukListy(d.s, d.ui);
             std::string out;
             for (const auto& l : testing_support::readLines(printing::Sumy::path(d.s))) out += l + "\n";
             return out;
         }},
        // The list and its sums of one person whose every ledger amount is its field's number.
        {"lista_pola.txt",
         [] {
             Dane d;
             d.karta({poNumerach()});
             printing::cmdDrukListy(d.s, d.ui);
             std::string out = d.ui.paper.text() + "---- Sa2101.sum\n";
             for (const auto& l : testing_support::readLines(printing::Sumy::path(d.s))) out += l + "\n";
             return out;
         }},
        // 1234.56 and two persons with 0.30; a person with nothing to pay in cash is left out.
        {"banknoty.txt",
         [] {
             Dane d;
             d.karta({osoba("A", "A", {{K::DoWyplaty, 1234.56}}), osoba("B", "B", {{K::DoWyplaty, 0.30}}),
                      osoba("C", "C"), osoba("D", "D", {{K::DoWyplaty, 0.30}})});
             printing::CmdSpecyfikacja(d.s, d.ui);
             return d.ui.paper.text();
         }},
    };
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    std::string l;
    while (std::getline(in, l)) out.push_back(l);
    return out;
}

std::string widoczny(const std::string& l) {
    std::string out = core::Replace(l, "\f", "<FF>");
    return out + "¶";
}

// A -/+ diff of two texts by lines (longest common subsequence), with two lines of context.
std::string roznice(const std::string& oczekiwany, const std::string& faktyczny) {
    auto a = lines(oczekiwany), b = lines(faktyczny);
    const std::size_t n = a.size(), m = b.size();
    std::vector<std::vector<int>> L(n + 1, std::vector<int>(m + 1, 0));
    for (std::size_t i = n; i-- > 0;)
        for (std::size_t j = m; j-- > 0;)
            L[i][j] = a[i] == b[j] ? L[i + 1][j + 1] + 1 : std::max(L[i + 1][j], L[i][j + 1]);
    struct Op {
        char sign;
        std::size_t line;  // in the reference for ' ' and '-', in the print for '+'
        std::string text;
    };
    std::vector<Op> ops;
    std::size_t i = 0, j = 0;
    while (i < n || j < m) {
        if (i < n && j < m && a[i] == b[j]) {
            ops.push_back({' ', i + 1, a[i]});
            ++i, ++j;
        } else if (i < n && (j == m || L[i + 1][j] >= L[i][j + 1])) {
            ops.push_back({'-', i + 1, a[i]});
            ++i;
        } else {
            ops.push_back({'+', j + 1, b[j]});
            ++j;
        }
    }
    std::string out;
    for (std::size_t k = 0; k < ops.size(); ++k) {
        bool blisko = false;
        for (std::size_t q = k >= 2 ? k - 2 : 0; q < std::min(ops.size(), k + 3); ++q) blisko |= ops[q].sign != ' ';
        if (!blisko) continue;
        out += std::string(1, ops[k].sign) + std::to_string(ops[k].line) + ": " + widoczny(ops[k].text) + "\n";
    }
    return out;
}

std::string czytaj(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

}  // namespace

TEST(Golden, PrintedLayoutsMatchTheReferenceFiles) {
    auto cases = przypadki();
    std::vector<std::string> pliki;
    for (const auto& e : fs::directory_iterator(kData)) {
        std::string name = e.path().filename().string();
        if (name == "README.md" || name[0] == '.') continue;
        pliki.push_back(name);
        EXPECT_TRUE(cases.count(name)) << "no case prints the reference file " << name;
    }
    const fs::path wynik = fs::current_path() / "printing_actual";
    for (const auto& [name, run] : cases) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(std::find(pliki.begin(), pliki.end(), name) != pliki.end()) << "no reference file " << name;
        std::string oczekiwany = czytaj(kData / name);
        std::string faktyczny = run();
        if (faktyczny != oczekiwany) {
            fs::create_directories(wynik);
            std::ofstream(wynik / name, std::ios::binary) << faktyczny;
            ADD_FAILURE() << name << " differs from the reference (-n: line n of the reference, +n: line n of the print; ¶ ends a line):\n"
                          << roznice(oczekiwany, faktyczny) << "the printed text is in " << (wynik / name).string();
        }
    }
}
