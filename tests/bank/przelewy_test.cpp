#include <gtest/gtest.h>

#include "bank/przelewy.h"
#include "bank/ror_record.h"
#include "core/paths.h"
#include "core/text.h"
#include "fixture.h"
#include "support/run.h"

namespace fs = std::filesystem;
using namespace bank_tests;
namespace Ror = bank::Ror;
namespace Firma = reference::Firma;

namespace {

std::vector<float> kwoty(const std::vector<core::Record>& recs) {
    std::vector<float> out;
    for (const auto& r : recs) out.push_back(r.f(Ror::Kwota));
    return out;
}

core::Record przelew(const std::string& nazwisko, float kwota, const std::string& konto) {
    core::Record r(Ror::schema());
    r.set(Ror::NrKol, 1);
    r.set(Ror::Nazwisko, core::PadRight(nazwisko, 20));
    r.set(Ror::Imie, core::PadRight("JAN", 14));
    r.set(Ror::NrKonta, konto);
    r.set(Ror::Kwota, kwota);
    r.set(Ror::DataPrzel, "20210131");
    r.set(Ror::Adres, "32-400Myślenice           Rynek               12  3   ");
    r.set(Ror::Tresc, "Wpłata na ROR z Lista płac za 31-01-2021");
    return r;
}

}  // namespace

TEST(Batch, LedgerRowsOfOneBankNumberedWithoutGaps) {
    Dane d;
    d.ksieguj({karta("KOWALSKI", 1500.5, 200.25, kPKO),                   // 1020 from the third character
                    karta("NOWAK", -50, 300, "10201234567890123456789012"),  // from the start; only the benefits
                    karta("ZERO", 0, 0, kPKO),                               // nothing to send: no number used
                    karta("INNY", 900, 0, kBPH),                             // another bank
                    karta("OSTATNI", 1234.5, 0, kPKO)});
    float podstawa = 0;
    auto recs = bank::utworzRor(d.s, d.ui, {"ab", "1020", "Lista płac", ""}, podstawa);
    ASSERT_TRUE(recs);
    // List p of set B has no ledger this month: its box, and the batch goes on.
    EXPECT_EQ(d.ui.lines(), std::vector<std::string>{
                                "[Zestawienie ROR Do Banku Lista płac] Brak wykonanego zbioru ROR za okres p"});
    ASSERT_EQ(recs->size(), 3u);
    EXPECT_EQ(kwoty(*recs), (std::vector<float>{1700.75f, 300.f, 1234.5f}));
    EXPECT_EQ((*recs)[2].s(Ror::NrKol), "3");
    EXPECT_EQ((*recs)[2].s(Ror::Nazwisko), "OSTATNI             ");
    const auto linie = testing_support::readLines(Ror::path(d.s, "AB"));
    ASSERT_EQ(linie.size(), 3u);
    EXPECT_EQ(linie[0],
              "1,\"KOWALSKI            \",\"JAN           \",\"60102010260000123456789012\",1700.75,\"20210131\","
              "\"32-400Myślenice           Rynek               12  3   \","
              "\"Wpłata na ROR z Lista płac za 31-01-2021\",,");
    EXPECT_EQ(d.s.payerPath({"ROR", "ROR20210131AB.dat"}), Ror::path(d.s, "AB"));
}

TEST(Batch, SupplementaryNetCountedAnewFromTheBase) {
    Dane d;
    // A = 2000: contributions 30 + 97.60 + 49, health 22.79 + 141.31, tax 287: net 1372.30.
    // A = 1000 above the yearly limit: no disability nor pension, 24.50, 12.19 + 75.60, 154: 733.71.
    // A = 1000 under it: 88.30, 11.40 + 70.66, 144: 685.64.
    d.dodatki(D::Rodzaj::Dod,
              {dodatek("PIERWSZY", {{D::Kw2, 2000}, {D::NaROR, 1}}),
               dodatek("BEZ KONTA", {{D::Kw2, 300}}),  // nothing to the account: left out
               dodatek("DRUGI", {{D::Kw2, 1000}, {D::NaROR, 1}, {D::BruttoOd01, 200000}})});
    d.dodatki(D::Rodzaj::God, {dodatek("GODZINY", {{D::RazemKwota, 1000}, {D::NaROR, 1}})});
    d.dodatki(D::Rodzaj::Trz, {dodatek("TRZYNASTKA", {{D::Kw1, 5000}, {D::NaROR, 812.5}})});
    struct Przypadek {
        const char* nazwa;
        const char* rodzaj;
        const char* nrDodatku;
        std::vector<float> oczekiwane;
    } przypadki[] = {
        {"addition 2", "Dodatkowe", "2", {1372.30f, 733.71f}},
        // No number: every record keeps the base of the last record before (1000).
        {"no number keeps the base", "Dodatkowe", "", {685.64f, 733.71f}},
        {"overtime takes the sum of its amounts", "Godziny nadliczbowe", "", {685.64f}},
        {"thirteenth pay as it stands", "Trzynastka", "", {812.5f}},
    };
    float podstawa = 0;
    for (const auto& p : przypadki) {
        auto recs = bank::utworzRor(d.s, d.ui, {"A", "1020", p.rodzaj, p.nrDodatku}, podstawa);
        ASSERT_TRUE(recs) << p.nazwa;
        EXPECT_EQ(kwoty(*recs), p.oczekiwane) << p.nazwa;
        EXPECT_EQ((*recs)[0].s(Ror::Adres), core::Space(54)) << p.nazwa;
    }
    EXPECT_TRUE(d.ui.boxes.empty());
}

TEST(Batch, HolidayEntryOfTheComboEndsAsAWrongKind) {
    Dane d;
    float podstawa = 0;
    EXPECT_FALSE(bank::utworzRor(d.s, d.ui, {"A", "1020", "Świadczenia uropowe", ""}, podstawa));
    EXPECT_EQ(d.ui.last(), "[Zle wybrany typ listy ! ] Nie przewidzialem tego ruchu ");
    EXPECT_FALSE(core::fileExists(Ror::path(d.s, "A")));
    EXPECT_FALSE(bank::utworzRor(d.s, d.ui, {"A", "", "Lista płac", ""}, podstawa));
    EXPECT_EQ(d.ui.last(), "[] Ustal nr unikatowy banku 0d 3 do 6 cyfry konta");
}

TEST(HomeNet, LineItemByItem) {
    Dane d;
    const auto p = bank::pozycjeHomeNet(d.s, przelew("KOWALSKI", 1234567.89f, kPKO));
    const std::vector<std::string> oczekiwane = {
        "111", "20210131",
        "1.234568E+08",  // 123456789 grosze as a float
        "0", "", "12 1240 4432 1111 0000 4820 1234", kPKO,
        "Przedsiębiorstwo Usługowe Demo, Spółka z o.o.||32-400  Rynek 12",
        core::PadRight("KOWALSKI", 30) + "|" + core::PadRight("JAN", 30) + "|" + core::PadRight("32-400 Myślenice", 30) +
            " " + core::PadRight("Rynek 12/3", 30),
        "0", "0", core::PadRight("Wpłata na ROR z Lista płac za 31-01-2021", 60), core::Space(30), core::Space(30)};
    ASSERT_EQ(p.size(), 14u);
    for (std::size_t i = 0; i < p.size(); ++i) EXPECT_EQ(p[i], oczekiwane[i]) << "item " << i + 1;
    EXPECT_EQ(bank::pozycjeHomeNet(d.s, przelew("A", 2345.67f, kPKO))[2], "234567");
}

TEST(HomeNet, DoubtfulAccountsGetTheBoxAndAreStillWritten) {
    const std::string beneficjent = core::PadRight("KOWALSKI", 30) + "|" + core::PadRight("JAN", 30) + "|" +
                                    core::PadRight("32-400 Myślenice", 30) + " " + core::PadRight("Rynek 12/3", 30);
    struct {
        const char* nazwa;
        std::string konto, platnik;
        std::vector<std::string> ramki;  // besides the question and the closing box
    } przypadki[] = {
        {"valid", kPKO, "Demo Sp. z o.o.", {}},
        {"one digit changed", "60102010260000123456789013", "Demo Sp. z o.o.",
         {"[] Sprawdź konto beneficjenta do przelewu " + beneficjent + " - wydaje się błedne!"}},
        {"too short", "601020102600001234567890", "Demo Sp. z o.o.",
         {"[] Sprawdź konto beneficjenta do przelewu " + beneficjent + " - wydaje się błedne!"}},
        {"comma in the payer's name: nothing written", kPKO, "Demo, Sp. z o.o.", {}},
    };
    for (const auto& p : przypadki) {
        Dane d;
        d.s.Firma.set(Firma::NazwaM, p.platnik);
        Ror::writeAll(Ror::path(d.s, "A"), {przelew("KOWALSKI", 100, p.konto)});
        auto plik = bank::cmdDohomenet(d.s, d.ui, "A", "1020", "");
        auto ramki = d.ui.lines();
        ASSERT_GE(ramki.size(), 2u) << p.nazwa;
        EXPECT_EQ(std::vector<std::string>(ramki.begin() + 1, ramki.end() - 1), p.ramki) << p.nazwa;
        EXPECT_EQ(plik.has_value(), p.platnik.find(',') == std::string::npos) << p.nazwa;
        if (plik) {
            EXPECT_EQ(testing_support::readLines(d.s.payerPath({"HOMENET", "ROR102020210131.txt"})).size(), 1u);
        }
    }
}

TEST(Diskette, ListingInTheChosenFolderRemembered) {
    Dane d;
    // The file keeps a float in 7 digits: 1234567.5 is read back as 1234568.
    Ror::writeAll(Ror::path(d.s, "A"), {przelew("A", 1234.5f, kBS), przelew("B", 1234567.5f, kBS)});
    testing_support::TempDir folder;
    d.ui.type(folder.path().string());
    auto plik = bank::CmdNaDyskietke(d.s, d.ui, "A", "8602", "");
    ASSERT_TRUE(plik);
    EXPECT_EQ(*plik, folder.path() / "zawwD101.txt");
    EXPECT_EQ(testing_support::readLines(*plik),
              (std::vector<std::string>{std::string(kBS) + "       1,234.50", std::string(kBS) + "   1,234,568.00",
                                        "Razem                          " + std::string(" 1235802.50")}));
    EXPECT_EQ(d.ui.last(), "[Zestawienie ROR Do Banku ] Dyskietka sporzadzona 01");
    EXPECT_EQ(d.s.FolderDyskietki, folder.path());
    EXPECT_EQ(bank::nazwaDyskietki(d.s, "1020"), "RORD101.txt");
}

TEST(Print, TwoPagesWithTheCarryOverLine) {
    Dane d;
    std::vector<core::Record> recs;
    for (int i = 1; i <= 33; ++i) recs.push_back(przelew("NAZWISKO" + std::to_string(100 + i), 100.0f + i, kPKO));
    bank::drukujRor(d.s, d.ui, recs);
    // From the demo's absolute path: a compiler cache may make __FILE__ relative.
    const fs::path wzorzec = fs::path(PENSJA_DEMO).parent_path() / "tests" / "bank" / "data" / "ror_33.txt";
    EXPECT_EQ(d.ui.paper.text(), testing_support::readBytes(wzorzec)) << "wzorzec " << wzorzec;
    EXPECT_EQ(d.ui.paper.pages().size(), 2u);
    EXPECT_EQ(d.ui.paper.pages()[0][0].font, "Courier New");
}

TEST(Cli, BatchAndListingOfTheDemoPayer) {
    Dane d;
    d.ksieguj({karta("KOWALSKI", 1500.5, 200.25, kPKO), karta("NOWAK", 90, 0, kBPH)});
    testing_support::TempDir folder;
    auto r = testing_support::run(PENSJA_CLI, {"bank-batch", "A", "lista", "1020"}, d.dir.path());
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("   1 KOWALSKI             JAN            60102010260000123456789012    1700.75\n"
                         "Razem 1700.75\n"),
              std::string::npos)
        << r.out;
    r = testing_support::run(PENSJA_CLI, {"--yes", "diskette", "A", "1020", "--out", folder.path().string()},
                             d.dir.path());
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(core::fileExists(folder.path() / "RORD101.txt"));
}
