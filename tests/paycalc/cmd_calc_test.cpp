// pensja-cli calc: every field of the result block as name=value, one person or the whole list.
#include <gtest/gtest.h>

#include "core/text.h"
#include "fixture.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "support/run.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
using testing_support::run;

namespace {

// The list of the 051 example: an employee with 1000.00 to the account, then an owner.
struct Folder {
    fx::Lista l{"31-01-2009"};
    Folder() {
        core::Record& p1 = l.dodaj("70051512345", 3000.00f);
        p1.set(Pay::ROR, 1000.0);
        p1.set(Pay::NumerKontaROR, "12 1240 4432 1111 0000 4820 1234");
        core::Record& p2 = l.dodaj("60010112345", 2000.00f);
        p2.set(Pay::KodUbezpieczenia, "051000");
        l.zapisz();
        l.dlaWierszaPolecen();
    }
    testing_support::RunResult cli(const std::vector<std::string>& args) {
        std::vector<std::string> all = {"--data", l.dir.path().string()};
        all.insert(all.end(), args.begin(), args.end());
        return run(PENSJA_CLI, all, l.dir.path());
    }
};

std::vector<std::string> lines(const std::string& out) { return core::Split(out, '\n'); }

}  // namespace

// The figures themselves are pinned by the whole-month examples (the base month and the 051 list):
// here the command's wiring, the field order, one person and the list in its order.
TEST(CalcCommand, OnePersonOrTheWholeListEveryFieldInTheOrderOfTheTables) {
    Folder f;
    auto r = f.cli({"calc", "L1", "70051512345"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    auto out = lines(r.out);
    const auto expected = paycalc::raportWyniku(core::WynikMiesiaca{});
    ASSERT_EQ(out.size(), expected.size() + 1);  // and the empty rest after the last line end
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(out[i].substr(0, out[i].find('=')), expected[i].substr(0, expected[i].find('='))) << i;
    EXPECT_EQ(out[0], "wZasadnicza=3000");

    auto all = f.cli({"calc", "L1", "--all"});
    ASSERT_EQ(all.status, 0) << all.err;
    out = lines(all.out);
    const std::size_t block = expected.size() + 2;
    ASSERT_EQ(out.size(), 2 * block + 1);
    EXPECT_EQ(out[0], "[70051512345]");
    EXPECT_EQ(out[block], "[60010112345]");
    EXPECT_EQ(out[block - 1], "");
    EXPECT_EQ(out[block + 1], "wZasadnicza=2000");
    // The owner carries the employee's net.
    EXPECT_NE(std::find(out.begin() + block, out.end(), "wNetto=2156.72"), out.end());
}

TEST(CalcCommand, NoPayRecordErrorsAndBadArguments) {
    Folder f;
    auto none = f.cli({"calc", "L1", "99999999999"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.out, "");
    EXPECT_NE(none.err.find("brak zapisu płacowego osoby 99999999999 na liście L1"), std::string::npos) << none.err;

    auto missing = f.cli({"calc", "XX", "70051512345"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.err.find("[Błąd]  Błąd nr 53"), std::string::npos) << missing.err;

    for (const std::vector<std::string>& args :
         {std::vector<std::string>{"calc"}, {"calc", "L1"}, {"calc", "L1", "1", "2"}, {"calc", "../L1", "1"}}) {
        auto r = f.cli(args);
        EXPECT_EQ(r.status, 2) << r.err;
    }

    // A birth date that is not a date: the error box, the fields as they stand, status 1.
    f.l.dodaj("01231512345", 3000, "");
    f.l.zapisz();
    auto coded = f.cli({"calc", "L1", "01231512345"});
    EXPECT_EQ(coded.status, 1);
    EXPECT_NE(coded.err.find("[Błąd]  Błąd nr 13 w linii modWyliczeniePlacy, data urodzenia"), std::string::npos)
        << coded.err;
    EXPECT_NE(coded.out.find("wPodatekNaliczony=399.53\n"), std::string::npos);
}
