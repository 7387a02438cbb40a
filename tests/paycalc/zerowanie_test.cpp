// The month closing of a list's pay file, the calibration against the personnel file and the
// removal of a person.
#include <gtest/gtest.h>

#include "support/demo.h"
#include "fixture.h"
#include "paycalc/zerowanie.h"

using namespace paycalc;
using core::Answer;
using core::Item;
using testing_support::DemoLista;
using testing_support::readBytes;
namespace Osoba = personnel::Osoba;
namespace Pay = payinputs::Pay;

namespace {

const core::Record& rekord(const std::vector<core::Record>& recs, const std::string& pesel) {
    for (const auto& r : recs)
        if (r.s(Pay::Pesel) == pesel) return r;
    throw std::logic_error("brak " + pesel);
}

// Two people on a list of the given date, worked out by hand with the rates of 2020:
// A earns 3000 with nothing else: gross 3000; contributions 292.80 + 45 + 73.50, costs
// 111.25, tax base 2477, tax 0.17 x 2477 - 46.33 = 374.76, less health 200.62 -> 174, less the
// investment relief of 100 -> 74 paid.
// B earns 3000 and was 3 days sick at the employer's cost (100 a day at 80 %), 2 days on a
// benefit (code 313) and 1 day on unpaid leave: 6 days off, 3000 x 0.8 = 2400 plus sick pay
// 240 = gross 2640.
struct Zamkniecie : fx::Lista {
    explicit Zamkniecie(const std::string& data) : fx::Lista(data) {
        core::Record& a = dodaj("70051512345", 3000, "15-05-1970");
        a.set(Pay::KZPpozyczka, 150.0);
        a.set(Pay::KZPRata, 200.0f);
        a.set(Pay::KZPWklady, 500.0);
        a.set(Pay::KZPSkladka, 20.0f);
        a.set(Pay::ZFMPozyczka, 1000.0);
        a.set(Pay::ZFMRata, 250.0f);
        a.set(Pay::UlgaInwestycyjna, 100.0f);
        a.set(Pay::BruttoOd01, 0.0);
        core::Record& b = dodaj("80020212345", 3000, "02-02-1980");
        b.set(Pay::SredniaCH1, 100.0);
        b.set(Pay::Liczbadni1, 3L);
        b.set(Pay::okresOd1, "02032020");
        b.set(Pay::okresDo1, "04032020");
        b.set(Pay::KodPrzerwy1, "331");
        b.set(Pay::Ch1Pr, 80L);
        b.set(Pay::SredniaCH2, 50.0);
        b.set(Pay::Liczbadni2, 2L);
        b.set(Pay::okresOd2, "10032020");
        b.set(Pay::okresDo2, "11032020");
        b.set(Pay::KodPrzerwy2, "313");
        b.set(Pay::Ch2Pr, 80L);
        b.set(Pay::KwotaCh1, 240.0);
        b.set(Pay::BZP1dni, 1L);
        b.set(Pay::BZP1Od, "20032020");
        b.set(Pay::BZP1Do, "20032020");
        b.set(Pay::BZP1Kod, "111");
        b.set(Pay::DniChorobyOd01, 4L);
        b.set(Pay::BruttoOd01, 1000.0);
        // The twelve-month table and the carried balance with its partner.
        const double tabela[12] = {2, 1.5, 0.5, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        for (int m = 0; m < 3; ++m) b.set(kTabela12Od + m, tabela[m]);
        b.set(kSaldoPrzenoszone, 5.0);
        b.set(kSaldoPartner, 26.0);
        zapisz();
    }
    std::vector<core::Record> zPliku() const { return Pay::readAll(Pay::path(s)); }
};

}  // namespace

TEST(Zerowanie, ClosesTheMonthOfEveryRecord) {
    Zamkniecie z("31-03-2020");
    z.s.LiczbaOsob = 2;
    std::vector<std::string> status;
    std::vector<int> kroki;
    Postep p;
    p.status = [&](const std::string& t) { status.push_back(t); };
    p.krok = [&](int min, int max, int v) {
        EXPECT_EQ(min, 1);
        EXPECT_EQ(max, 3);
        kroki.push_back(v);
    };
    ASSERT_TRUE(cmdZerowanie(z.s, z.ui, p));
    EXPECT_EQ(z.ui.lines(), (std::vector<std::string>{
                                "[ Zerowanie chorobowych zmniana kas i ulg w tym miesiacu nie było wykonane ?] Czy chcesz "
                                "wykonac zerowanie ?"}));
    EXPECT_EQ(status, (std::vector<std::string>{"Wykonane !"}));
    EXPECT_EQ(kroki, (std::vector<int>{1, 2, 3}));

    const auto place = z.zPliku();
    ASSERT_EQ(place.size(), 2u);
    const core::Record& a = rekord(place, "70051512345");
    // b. The loan of 150 is smaller than the instalment of 200: both end at 0.
    EXPECT_EQ(a.item(Pay::KZPpozyczka), Item::bare("0"));
    EXPECT_EQ(a.s(Pay::KZPRata), "0");
    // c. Deposits rise by the contribution.
    EXPECT_EQ(a.item(Pay::KZPWklady), Item::bare("520"));
    // d. The housing loan falls by its instalment, which stays.
    EXPECT_EQ(a.item(Pay::ZFMPozyczka), Item::bare("750"));
    EXPECT_EQ(a.s(Pay::ZFMRata), "250");
    // e., f. The year's gross; the investment relief less the tax of the month (74).
    EXPECT_EQ(a.item(Pay::BruttoOd01), Item::bare("3000"));
    EXPECT_EQ(a.s(Pay::UlgaInwestycyjna), "26");
    EXPECT_EQ(a.item(Pay::DataZerowania), Item::quoted("31-03-2020"));

    const core::Record& b = rekord(place, "80020212345");
    EXPECT_EQ(b.item(Pay::BruttoOd01), Item::bare("3640"));
    // g. The days of the four lines go to the year's sick days; the lines are cleared.
    EXPECT_EQ(b.item(Pay::DniChorobyOd01), Item::bare("9"));
    for (int linia = 0; linia < 4; ++linia) {
        const int n = Pay::SredniaCH1 + 6 * linia;
        EXPECT_EQ(b.item(n), Item::bare("0")) << n;
        EXPECT_EQ(b.item(n + 1), Item::bare("0")) << n;
        EXPECT_EQ(b.item(n + 2), Item::quoted("")) << n;
        EXPECT_EQ(b.item(n + 3), Item::quoted("")) << n;
        EXPECT_EQ(b.item(n + 4), Item::quoted("")) << n;
        EXPECT_EQ(b.item(n + 5), Item::quoted("80")) << n;
    }
    // h. The unpaid lines.
    for (int n : {Pay::BZP1dni, Pay::BZP2dni, Pay::BZP3dni}) {
        EXPECT_EQ(b.item(n), Item::bare("0")) << n;
        for (int k = 1; k <= 3; ++k) EXPECT_EQ(b.item(n + k), Item::quoted("")) << n + k;
    }
    // Not a year start: the table and the balance stay; the sick amounts are kept.
    EXPECT_EQ(b.item(kTabela12Od), Item::bare("2"));
    EXPECT_EQ(b.item(kSaldoPrzenoszone), Item::bare("5"));
    EXPECT_EQ(b.item(Pay::KwotaCh1), Item::bare("240"));
    EXPECT_EQ(b.s(Pay::Numer), "2");
    // The pay screen fields the calculation works over are written back as they were.
    EXPECT_EQ(b.s(Pay::Zasadnicza), "3000");
    EXPECT_EQ(b.s(Pay::KwotaUlgi), "46.33");
}

TEST(Zerowanie, SecondClosingInTheMonthStopsAndChangesNothing) {
    Zamkniecie z("31-03-2020");
    ASSERT_TRUE(cmdZerowanie(z.s, z.ui));
    const std::string po = readBytes(Pay::path(z.s));
    // Again in March, and with a list of February after it.
    for (const char* data : {"31-03-2020", "29-02-2020", "15-03-2020"}) {
        z.ui.boxes.clear();
        z.s.DataListy = data;
        std::string status;
        Postep p;
        p.status = [&](const std::string& t) { status = t; };
        EXPECT_FALSE(cmdZerowanie(z.s, z.ui, p)) << data;
        EXPECT_EQ(z.ui.lines(), (std::vector<std::string>{"[ Zerowanie chorobowych zmniana kas i ulg w tym miesiacu "
                                                          "BYŁO wykonane ?]  Zerowanie było już w tym miesiacu "
                                                          "wykonane ! "}))
            << data;
        EXPECT_EQ(status, "Wykonane !");
        EXPECT_EQ(readBytes(Pay::path(z.s)), po) << data;
    }
    // April goes on.
    z.s.DataListy = "30-04-2020";
    EXPECT_TRUE(cmdZerowanie(z.s, z.ui));
    EXPECT_EQ(z.zPliku()[0].s(Pay::DataZerowania), "30-04-2020");
}

TEST(Zerowanie, OnlyTheFirstRecordTellsTheLastClosing) {
    Zamkniecie z("31-03-2020");
    z.place[1].set(Pay::DataZerowania, "31-03-2020");
    z.zapisz();
    EXPECT_TRUE(cmdZerowanie(z.s, z.ui));
    z.place[0].set(Pay::DataZerowania, "31-12-2020");
    z.zapisz();
    EXPECT_FALSE(cmdZerowanie(z.s, z.ui));
}

TEST(Zerowanie, CancelOfTheQuestionDoesNotStopIt) {
    Zamkniecie z("31-03-2020");
    z.ui.answer(Answer::Cancel);
    EXPECT_TRUE(cmdZerowanie(z.s, z.ui));
    EXPECT_EQ(z.zPliku()[0].s(Pay::DataZerowania), "31-03-2020");
}

TEST(Zerowanie, LoansAgainstTheirInstalments) {
    struct {
        double pozyczka;
        float rata;
        const char *pozyczkaPo, *rataPo;
    } cases[] = {
        {1000, 250, "750", "250"}, {250, 250, "0", "0"}, {100.5, 250, "0", "0"},
        {0, 0, "0", "0"},          {0, 50, "0", "0"},   {1234.56f, 100.1f, "1134.46", "100.1"},
    };
    for (const auto& c : cases) {
        Zamkniecie z("31-03-2020");
        z.place[0].set(Pay::ZFMPozyczka, c.pozyczka);
        z.place[0].set(Pay::ZFMRata, c.rata);
        z.zapisz();
        ASSERT_TRUE(cmdZerowanie(z.s, z.ui));
        const auto plik = z.zPliku();
        const core::Record& a = rekord(plik, "70051512345");
        EXPECT_EQ(a.s(Pay::ZFMPozyczka), c.pozyczkaPo) << c.pozyczka << " " << c.rata;
        EXPECT_EQ(a.s(Pay::ZFMRata), c.rataPo) << c.pozyczka << " " << c.rata;
    }
}

TEST(Zerowanie, JanuaryWithCancelKeepsTheYearsSums) {
    Zamkniecie z("31-01-2020");
    z.ui.answer(Answer::Cancel);
    ASSERT_TRUE(cmdZerowanie(z.s, z.ui));
    ASSERT_EQ(z.ui.boxes.size(), 2u);
    EXPECT_EQ(z.ui.lines()[0],
              "[Przygotowanie bazy do nowego roku ]  Ok = zeruje razem chorobowe razem brutto za poprzedni rok ");
    EXPECT_EQ(z.ui.boxes[0].buttons, core::Buttons::OKCancel);
    EXPECT_EQ(z.ui.boxes[1].text, "Czy chcesz wykonac zerowanie ?");
    const auto plik = z.zPliku();
    const core::Record& b = rekord(plik, "80020212345");
    // An ordinary month: 1000 + 2640 and 4 + 5 days; the table stays.
    EXPECT_EQ(b.s(Pay::BruttoOd01), "3640");
    EXPECT_EQ(b.s(Pay::DniChorobyOd01), "9");
    EXPECT_EQ(b.s(kTabela12Od + 1), "1.5");
    EXPECT_EQ(b.s(kSaldoPrzenoszone), "5");
    EXPECT_EQ(b.s(Pay::DataZerowania), "31-01-2020");
    EXPECT_EQ(b.s(Pay::SredniaCH1), "0");
}

TEST(Zerowanie, JanuaryWithOkStartsTheYear) {
    Zamkniecie z("31-01-2020");
    // OK to the year start; the Cancel of the second box does not stop the run.
    z.ui.answer(Answer::OK).answer(Answer::Cancel);
    ASSERT_TRUE(cmdZerowanie(z.s, z.ui));
    const auto plik = z.zPliku();
    const core::Record& b = rekord(plik, "80020212345");
    EXPECT_EQ(b.item(Pay::BruttoOd01), Item::bare("0"));
    EXPECT_EQ(b.item(Pay::DniChorobyOd01), Item::bare("0"));
    // 5 + 26 - (2 + 1.5 + 0.5), the table blanked.
    EXPECT_EQ(b.item(kSaldoPrzenoszone), Item::bare("27"));
    EXPECT_EQ(b.item(kSaldoPartner), Item::bare("26"));
    for (int m = kTabela12Od; m <= kTabela12Do; ++m) EXPECT_EQ(b.item(m), Item::quoted("")) << m;
    // The sick lines are cleared all the same.
    EXPECT_EQ(b.s(Pay::Liczbadni1), "0");
    EXPECT_EQ(b.s(Pay::DataZerowania), "31-01-2020");
}

TEST(Zerowanie, MissingPayFileIsAnError) {
    Zamkniecie z("31-03-2020");
    std::filesystem::remove(Pay::path(z.s));
    try {
        cmdZerowanie(z.s, z.ui);
        ADD_FAILURE() << "bez błędu";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::FileNotFound);
    }
    EXPECT_FALSE(core::fileExists(Pay::path(z.s)));
}

// --- Calibration ------------------------------------------------------------------------------

namespace {

std::vector<std::string> klucze(const std::vector<core::Record>& place) {
    std::vector<std::string> k;
    for (const auto& r : place) k.push_back(payinputs::kluczOsoby(r));
    return k;
}

}  // namespace

TEST(Kalibracja, DoublesAndLeftoversGoMissingRecordsAreMade) {
    DemoLista d;
    auto place = d.place();
    // A second record of NOWAK (not taken), a record of nobody on the list, and no record of
    // LEWANDOWSKA; the pay file in another order than the personnel file.
    core::Record nowak2 = place[0];
    nowak2.set(Pay::Zasadnicza, 1.0f);
    core::Record obcy = place[1];
    obcy.set(Pay::Pesel, "99999999999");
    std::vector<core::Record> nowe = {place[5], place[0], obcy, place[4], nowak2, place[1], place[2], place[3]};
    core::writeAll(d.dta(), nowe);
    std::vector<std::string> status;
    Postep p;
    p.status = [&](const std::string& t) { status.push_back(t); };
    const Kalibracja k = cmdSol1(d.s, d.ui, p);
    EXPECT_EQ(k.skopiowane, 6);
    EXPECT_EQ(k.zalozone, (std::vector<std::string>{"LEWANDOWSKA EWA"}));
    EXPECT_EQ(d.ui.lines(), (std::vector<std::string>{
                                "[Brak danych placowych dla LEWANDOWSKA ] Uzupełnij dane tego pracownika w module Płaca !",
                                "[Kalibracja bazy zostala wykonana]  Wykonano"}));
    EXPECT_EQ(status, (std::vector<std::string>{"Wykonane !"}));

    const auto po = d.place();
    EXPECT_EQ(klucze(po), (std::vector<std::string>{"75031412317", "63072245629", "88110578938", "01251923443",
                                                    "FP123456", "80120356757", "85031589069"}));
    EXPECT_EQ(po[0].s(Pay::Zasadnicza), "5200");  // the first record of NOWAK
    // The document number padded to 11 characters.
    EXPECT_EQ(po[4].s(Pay::Dokument), "FP123456   ");
    EXPECT_EQ(po[0].s(Pay::Dokument), "           ");
    for (std::size_t i = 0; i < po.size(); ++i) EXPECT_EQ(po[i].s(Pay::Numer), std::to_string(i + 1));
    // The new record: names, citizenship, contract, amounts 0, the switches on.
    const core::Record& ewa = po[6];
    EXPECT_EQ(ewa.s(Pay::Poczatek), "<Poczatek>");
    EXPECT_EQ(ewa.s(Pay::Koniec), "<Koniec>");
    EXPECT_EQ(ewa.s(Pay::Nazwisko), "LEWANDOWSKA");
    EXPECT_EQ(ewa.s(Pay::Imie), "EWA");
    EXPECT_EQ(ewa.s(Pay::Pesel), "85031589069");
    EXPECT_EQ(ewa.s(Pay::KodUbezpieczenia), "011000");
    EXPECT_EQ(ewa.s(Pay::Obywatelstwo), "POLSKIE");
    EXPECT_EQ(ewa.s(Pay::RodzajUmowy), "Umowa o prace");
    EXPECT_EQ(ewa.s(Pay::Zasadnicza), "0");
    EXPECT_EQ(ewa.s(Pay::BruttoOd01), "0");
    EXPECT_EQ(ewa.s(Pay::Emerytalna), "1");
}

TEST(Kalibracja, TwiceGivesTheSameFile) {
    DemoLista d;
    auto place = d.place();
    place.erase(place.begin() + 6);
    place.push_back(place[0]);
    core::writeAll(d.dta(), place);
    cmdSol1(d.s, d.ui);
    const std::string raz = readBytes(d.s.SciezkaBazy);
    d.ui.boxes.clear();
    const Kalibracja k = cmdSol1(d.s, d.ui);
    EXPECT_EQ(readBytes(d.s.SciezkaBazy), raz);
    EXPECT_TRUE(k.zalozone.empty());
    EXPECT_EQ(d.ui.lines(), (std::vector<std::string>{"[Kalibracja bazy zostala wykonana]  Wykonano"}));
    EXPECT_FALSE(core::fileExists(d.payer() / "Bazy" / "baza1.dta"));
}

TEST(Kalibracja, ForeignerAfterCalibrationIsStillFoundByTheCalculation) {
    DemoLista d;
    cmdSol1(d.s, d.ui);
    d.s.KluczOsoby = "FP123456";
    d.s.NazwiskoOsoby = "KOWALENKO";
    EXPECT_EQ(modWyliczeniePlacy(d.s, d.ui), Wynik::Policzono);
    EXPECT_EQ(d.s.wynik.wZasadnicza, 2700.0f);
}

TEST(Kalibracja, ListWithoutAPayFileGetsOne) {
    DemoLista d;
    std::filesystem::remove(d.s.SciezkaBazy);
    const Kalibracja k = cmdSol1(d.s, d.ui);
    EXPECT_EQ(k.skopiowane, 0);
    EXPECT_EQ(k.zalozone.size(), 7u);
    EXPECT_EQ(d.place().size(), 7u);
}

// --- Removing a person ------------------------------------------------------------------------

TEST(Usuwanie, BothQuestionsDecideForTheirFile) {
    struct {
        Answer pierwsze, drugie;
        std::size_t osob, plac;
        int zKadr, zPlac;
    } cases[] = {
        {Answer::OK, Answer::Yes, 6, 6, 1, 1},
        {Answer::OK, Answer::No, 6, 7, 1, -1},
        {Answer::Cancel, Answer::Yes, 7, 6, 0, 1},
        {Answer::Cancel, Answer::No, 7, 7, 0, -1},
    };
    for (const auto& c : cases) {
        DemoLista d;
        const auto osobyPrzed = d.osoby();
        d.s.KluczOsoby = "88110578938";
        d.s.NazwiskoOsoby = "ZIELIŃSKI";
        d.ui.answer(c.pierwsze).answer(c.drugie);
        const Usuniecie u = paycalc::cmdUsu(d.s, d.ui);
        EXPECT_EQ(u.zKadr, c.zKadr);
        EXPECT_EQ(u.zPlac, c.zPlac);
        EXPECT_EQ(d.ui.lines(), (std::vector<std::string>{"[Usuwam rekord ! ZIELIŃSKI PIOTR] Czy napewno usunąć ten rekord ?",
                                                          "[Usuwanie rekordu ZIELIŃSKI ID=88110578938] Czy usunąć zbędny "
                                                          "zbiór z bazy Płacowej ?"}));
        EXPECT_EQ(d.ui.boxes[0].buttons, core::Buttons::OKCancel);
        EXPECT_EQ(d.ui.boxes[1].buttons, core::Buttons::YesNo);
        const auto osoby = d.osoby();
        const auto place = d.place();
        EXPECT_EQ(osoby.size(), c.osob);
        EXPECT_EQ(place.size(), c.plac);
        // The others stay as they were.
        std::size_t j = 0;
        for (const auto& o : osobyPrzed) {
            if (personnel::kluczOsoby(o) == "88110578938" && c.osob == 6) continue;
            ASSERT_LT(j, osoby.size());
            EXPECT_EQ(personnel::kluczOsoby(osoby[j]), personnel::kluczOsoby(o));
            ++j;
        }
        EXPECT_FALSE(core::fileExists(d.payer() / "Person" / "tym.dta"));
        EXPECT_FALSE(core::fileExists(d.payer() / "Bazy" / "TYMCZ.dta"));
    }
}

TEST(Usuwanie, LastPersonLeavesEmptyFilesThatReadAsEmptyLists) {
    DemoLista d;
    auto osoby = d.osoby();
    osoby.resize(1);
    core::writeAll(d.per(), osoby);
    auto place = d.place();
    place.resize(1);
    core::writeAll(d.dta(), place);
    d.s.KluczOsoby = "75031412317";
    d.s.NazwiskoOsoby = "NOWAK";
    paycalc::cmdUsu(d.s, d.ui);
    EXPECT_EQ(readBytes(d.s.SciezkaOsob), "");
    EXPECT_EQ(readBytes(d.s.SciezkaBazy), "");
    EXPECT_TRUE(d.osoby().empty());
    EXPECT_TRUE(d.place().empty());
}
