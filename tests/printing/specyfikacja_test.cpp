// The count of notes and coins: the count digit by digit without carrying, the working file, the
// questions and the case of nothing to pay in cash.
#include <gtest/gtest.h>

#include <map>

#include "core/paths.h"
#include "fixture.h"
#include "paycalc/karta_record.h"
#include "printing/specyfikacja.h"

namespace K = paycalc::Karta;
using printing::Banknoty;
using printing_tests::Dane;
using printing_tests::osoba;

TEST(Banknoty, EachAmountCountedDigitByDigit) {
    struct {
        std::vector<std::string> kwoty;
        std::map<int, long> ilosc;  // grosze of the denomination -> pieces; the others 0
    } cases[] = {
        // 6: 5 gr + 1 gr; 5: 50 gr; 4: two 2 zł; 3: 20 zł + 10 zł; 2: one 200 zł; 1 (thousands): five 200 zł.
        {{"  1234.56"}, {{5, 1}, {1, 1}, {50, 1}, {200, 2}, {2000, 1}, {1000, 1}, {20000, 6}}},
        // Each person by himself: 0.30 twice is two 20 gr and two 10 gr, never three 20 gr.
        {{"     0.30", "     0.30"}, {{20, 2}, {10, 2}}},
        {{"   900.00"}, {{20000, 4}, {10000, 1}}},
        {{"   300.00", "   100.00"}, {{20000, 1}, {10000, 2}}},
        {{"     5.09"}, {{5, 1}, {2, 2}, {500, 1}}},
        // 7: 5+2 gr; 6: 50+10 gr; 5: 5 zł; 4: two 20 zł; 3: 200+100 zł; 2 thousands: 10 x 200; 1 ten thousand: 50 x 200.
        {{" 12345.67"}, {{5, 1}, {2, 1}, {50, 1}, {10, 1}, {500, 1}, {2000, 2}, {20000, 61}, {10000, 1}}},
        // Hundreds of thousands: 500 notes of 200 zł a digit.
        {{"123456.78"}, {{5, 1}, {2, 1}, {1, 1}, {50, 1}, {20, 1}, {500, 1}, {100, 1}, {5000, 1}, {20000, 617}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.kwoty[0]);
        Banknoty b;
        double suma = 0;
        for (const auto& k : c.kwoty) {
            b.dodaj(k);
            suma += std::stod(k);
        }
        for (int g : Banknoty::kNominal) {
            auto it = c.ilosc.find(g);
            EXPECT_EQ(b.ile(g), it == c.ilosc.end() ? 0 : it->second) << g << " gr";
        }
        EXPECT_NEAR(b.razem(), suma, 1e-6);
    }
}

TEST(Banknoty, WorkingFileRoundTrip) {
    testing_support::TempDir dir;
    auto file = dir / "specyfikacja.dat";
    printing::Specyfikacja::write(file, {"  1234.56", "     0.30"});
    EXPECT_EQ(testing_support::readBytes(file), "\"  1234.56\"\r\n\"     0.30\"\r\n");
    EXPECT_EQ(printing::Specyfikacja::read(file), (std::vector<std::string>{"  1234.56", "     0.30"}));
}

TEST(Banknoty, QuestionsAndBoxes) {
    const std::string pytanie =
        "[31-01-2021Wykonanie specyfikacji banknotów i bilonu ] Czy chcesz wykonać specyfikacje banknotow z tej listy ? OK "
        "Założyc";
    const std::string druk = "[Usuwa rekord ! ] Obecnie może być wydrukowana specyfikacja banknotów ! OK Wykonać";
    struct Case {
        const char* what;
        std::vector<core::Record> karta;  // none: no ledger
        std::vector<core::Answer> odpowiedzi;
        std::vector<std::string> boxes;
        bool wydruk;
    } cases[] = {
        {"cancelled at once", {osoba("A", "A", {{K::DoWyplaty, 10}})}, {core::Answer::Cancel}, {pytanie}, false},
        {"cancelled before the print",
         {osoba("A", "A", {{K::DoWyplaty, 10}})},
         {core::Answer::OK, core::Answer::Cancel},
         {pytanie, druk},
         false},
        {"printed", {osoba("A", "A", {{K::DoWyplaty, 10}})}, {core::Answer::OK, core::Answer::OK}, {pytanie, druk}, true},
        {"everybody paid by transfer",
         {osoba("A", "A", {{K::NaROR, 100}}), osoba("B", "B", {{K::DoWyplaty, -5}})},
         {core::Answer::OK},
         {pytanie, "[31-01-2021Wykonanie specyfikacji banknotów i bilonu ] Nie ma kwot do wypłaty !"},
         false},
        {"no ledger",
         {},
         {core::Answer::OK},
         {pytanie, "[31-01-2021Wykonanie specyfikacji banknotów i bilonu ] Po pierwsze wykonaj kartoteke !"},
         false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Dane d;
        if (!c.karta.empty()) d.karta(c.karta);
        for (auto a : c.odpowiedzi) d.ui.answer(a);
        printing::CmdSpecyfikacja(d.s, d.ui);
        EXPECT_EQ(d.ui.lines(), c.boxes);
        EXPECT_EQ(d.ui.paper.documents().size(), c.wydruk ? 1u : 0u);
        // The working file lives only while the command runs.
        EXPECT_FALSE(core::fileExists(printing::Specyfikacja::path(d.s)));
    }
}
