// The pay-scale table and the mass updates of the pay records of a set of lists, on a copy of
// the demo data (list "a" in set A, list "p" in set B; list date 31-01-2021).
#include <gtest/gtest.h>

#include "support/demo.h"

#include "payinputs/pay_record.h"
#include "payinputs/taryfikator.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using namespace payinputs;
using testing_support::readBytes;

namespace {

struct Cell {
    const char* name;
    std::vector<std::string> wsk;  // the records' WskTabeli in file order
    int last;                      // the cell of the last one
};
void PrintTo(const Cell& c, std::ostream* os) { *os << c.name; }
class TableCell : public testing::TestWithParam<Cell> {};

TEST_P(TableCell, ChosenByGradeAndQualification) {
    int stopien = 0, komorka = -1;
    for (const std::string& w : GetParam().wsk) komorka = komorkaTabeli(w, stopien);
    EXPECT_EQ(komorka, GetParam().last);
}

INSTANTIATE_TEST_SUITE_P(
    PayScale, TableCell,
    testing::Values(Cell{"TraineeWithQualification", {"S1"}, 0}, Cell{"ContractWithQualification", {"K1"}, 1},
                    Cell{"AppointedWithout", {"M"}, 6}, Cell{"CharteredSecondRow", {"D2"}, 7},
                    Cell{"LowerCaseLetter", {"d1"}, 3}, Cell{"UnknownKeepsTheLetterBefore", {"M1", "X1"}, 2},
                    Cell{"UnknownAtTheStartIsGradeZero", {"X"}, 4}),
    [](const auto& info) { return std::string(info.param.name); });

struct MassUpdate : testing::Test, testing_support::Demo {
    fs::path a, p;
    void SetUp() override {
        s.Zestaw = "A";
        a = dir.path() / "DEMO" / "Bazy" / "a.dta";
        p = dir.path() / "DEMO" / "Bazy" / "p.dta";
    }
};

TEST_F(MassUpdate, BasePayFromTheTableAndSeniorityFromTheNewPay) {
    auto recs = Pay::readAll(a);
    recs[0].set(Pay::WskTabeli, "M1");  // hired 01-02-2005: 15 full years on 31-01-2021, 15 %
    recs[2].set(Pay::WskTabeli, "X2");  // after M: the second row of M; hired 01-03-2019, below 5 years
    core::writeAll(a, recs);
    const std::string przedP = readBytes(p);
    std::array<float, Tabela::kKomorek> placa{};
    placa[2] = 4000;
    placa[6] = 3500.5f;
    ui.answer(core::Answer::Yes);
    wymienZasadnicza(s, ui, placa);
    EXPECT_EQ(ui.last(), "[Zmiana płacy zasadniczej i dodatku stażowego !] Zakończono wymianę płacy zasadniczej i "
                         "dodatku stażowego we wszystkich zbiorach zestawu ");
    auto po = Pay::readAll(a);
    EXPECT_FLOAT_EQ(po[0].f(Pay::Zasadnicza), 4000);
    EXPECT_FLOAT_EQ(po[0].f(Pay::Stazowy), 600);
    EXPECT_EQ(po[1].item(Pay::Zasadnicza), recs[1].item(Pay::Zasadnicza));  // no WskTabeli: as it was
    EXPECT_EQ(po[1].item(Pay::Stazowy), recs[1].item(Pay::Stazowy));
    EXPECT_FLOAT_EQ(po[2].f(Pay::Zasadnicza), 3500.5f);
    EXPECT_FLOAT_EQ(po[2].f(Pay::Stazowy), 0);
    EXPECT_EQ(readBytes(p), przedP);  // list of set B untouched
}

TEST_F(MassUpdate, AnsweredNoChangesNothing) {
    const std::string przed = readBytes(a);
    ui.answer(core::Answer::No);
    wymienZasadnicza(s, ui, std::array<float, Tabela::kKomorek>{1, 2, 3, 4});
    EXPECT_EQ(readBytes(a), przed);
    EXPECT_EQ(ui.boxes.size(), 1u);
}

TEST_F(MassUpdate, CostsReliefAndTaxRateIntoThePositiveFields) {
    auto recs = Pay::readAll(a);
    recs[1].set(Pay::KosztyUzyskania, 0.0f);  // 0 stays 0
    recs[2].set(Pay::Dojazd, "1");            // the commuter's raised costs
    core::writeAll(a, recs);
    s.stawki.KosztyUzyskania = 250;
    s.stawki.PRKu = 300;
    s.stawki.KwotaUlgi = 43.76;
    s.stawki.Stawka1 = 19;
    s.Zestaw = "ab";  // the set symbols are found without regard to case
    zmianaKosztow(s, ui);
    auto po = Pay::readAll(a);
    EXPECT_FLOAT_EQ(po[0].f(Pay::KosztyUzyskania), 250);
    EXPECT_FLOAT_EQ(po[1].f(Pay::KosztyUzyskania), 0);
    EXPECT_FLOAT_EQ(po[2].f(Pay::KosztyUzyskania), 300);
    EXPECT_EQ(po[0].item(Pay::ZastosStaPOD).text, "19");  // percent, not a fraction
    EXPECT_EQ(Pay::readAll(p)[0].item(Pay::ZastosStaPOD).text, "19");
    EXPECT_EQ(ui.last(), "[Zmiana kosztów uzyskania i ulgi podatkowej !] Zakończono wymianę kosztów uzyskania we "
                         "wszystkich zbiorach zestawu ab");
}

TEST_F(MassUpdate, NoListInTheSetOrABrokenListChangesNothing) {
    const std::string przedA = readBytes(a);
    s.Zestaw = "Z";
    zmianaKosztow(s, ui);
    EXPECT_EQ(ui.last(), "[Bład ustawienia] Nie dokonano zmian w żadnym zbiorze - ustal symbole list w "
                         "Zbiorowki>Wybór zestawów do przetwarzania np.AB ");
    // The second list cannot be read: the first is not written either.
    testing_support::writeLines(p, {"\"<Poczatek>\"", "\"UCIĘTY\""});
    s.Zestaw = "AB";
    EXPECT_THROW(zmianaKosztow(s, ui), core::Error);
    EXPECT_EQ(readBytes(a), przedA);
}

TEST_F(MassUpdate, TableSavedOneValueALineAndReadBack) {
    std::array<float, Tabela::kKomorek> placa{};
    for (int i = 0; i < Tabela::kKomorek; ++i) placa[static_cast<std::size_t>(i)] = 3000.25f + static_cast<float>(i);
    Tabela::write(s, placa);
    auto lines = testing_support::readLines(dir.path() / "dane" / "tabela.dat");
    ASSERT_EQ(lines.size(), 16u);
    EXPECT_EQ(lines[0], "3000.25");
    EXPECT_EQ(lines[15], "3015.25");
    EXPECT_EQ(Tabela::read(s), placa);
}

}  // namespace
