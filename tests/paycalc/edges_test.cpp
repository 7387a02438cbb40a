// The edge cases of the calculation, grouped by the rule they exercise. Each row is one
// employee (3000.00 full time in 01-2009 unless the row says otherwise), changed as the row
// says; the expected values are worked out by hand in the row's comment.
#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <variant>

#include "core/text.h"
#include "fixture.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
using core::WynikMiesiaca;
using fx::sumaF;

namespace {

struct Row {
    const char* name;
    const char* data;  // list date
    float placa;
    std::function<void(core::Record& pay, core::Record& person)> change;
    std::function<void(const WynikMiesiaca&)> check;
    const char* skrot = "FIRMA";  // the payer
};

void PrintTo(const Row& r, std::ostream* os) { *os << r.name; }

class Edge : public testing::TestWithParam<Row> {};

TEST_P(Edge, Month) {
    const Row& r = GetParam();
    fx::Lista l(r.data);
    l.s.SkrotPlatnika = r.skrot;
    if (std::string(r.skrot) != "FIRMA") std::filesystem::rename(l.dir.path() / "FIRMA", l.dir.path() / r.skrot);
    core::Record& p = l.dodaj("70051512345", r.placa);
    if (r.change) r.change(p, l.osobaNr(0));
    ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
    r.check(l.s.wynik);
}

// The row's name as a test name: Polish letters without their marks, other signs as one "_".
std::string nazwa(const testing::TestParamInfo<Row>& i) {
    std::string n = i.param.name, out;
    for (auto [pl, a] : {std::pair{"ą", "a"}, {"ć", "c"}, {"ę", "e"}, {"ł", "l"}, {"ń", "n"}, {"ó", "o"}, {"ś", "s"},
                         {"ź", "z"}, {"ż", "z"}, {"Ś", "S"}, {"Ż", "Z"}})
        n = core::Replace(n, pl, a);
    for (unsigned char c : n)
        if (std::isalnum(c)) out += static_cast<char>(c);
        else if (out.empty() || out.back() != '_') out += '_';
    return out;
}

// The check of a row: each named field of the result block, as the report gives it, has the value.
std::function<void(const WynikMiesiaca&)> pola(std::vector<std::pair<std::string, double>> oczekiwane) {
    return [oczekiwane](const WynikMiesiaca& w) {
        for (const auto& [pole, v] : oczekiwane) EXPECT_FLOAT_EQ(static_cast<float>(std::stod(fx::pole(w, pole))), static_cast<float>(v)) << pole;
    };
}

// A change of the row: the pay record's fields set to the values, each by its own type.
std::function<void(core::Record&, core::Record&)> placa(
    std::vector<std::pair<int, std::variant<long, float, double, std::string>>> pola) {
    return [pola](core::Record& p, core::Record&) {
        for (const auto& [pole, v] : pola) std::visit([&, pole = pole](const auto& x) { p.set(pole, x); }, v);
    };
}

void bzp3(core::Record& p) { p.set(Pay::BZP1dni, 3L); }

void sick(core::Record& p, int line, double rate, double days, const char* code, double percent) {
    const int b = Pay::SredniaCH1 + 6 * (line - 1);
    p.set(b, rate);
    p.set(b + 1, days);
    p.set(b + 4, code);
    p.set(b + 5, percent);
}

// Days of the month, the job share and absence by hire and end of employment.
const Row kDni[] = {
    {"luty 2009 ma 28 dni", "28-02-2009", 3000, nullptr,
     pola({{"dniWMiesiacu", 28}, {"dniBazowe", 30}, {"wZasadnicza", 3000.0f}})},
    {"luty 2008 ma 29 dni", "29-02-2008", 3000, nullptr, pola({{"dniWMiesiacu", 29}})},
    // 2012 is not leap for the program (and has no rates record: the last year stands)
    {"luty 2012 ma 28 dni", "29-02-2012", 3000, nullptr, pola({{"dniWMiesiacu", 28}})},
    {"kwiecień ma 30 dni", "30-04-2009", 3000, nullptr, pola({{"dniWMiesiacu", 30}})},
    {"051 w styczniu: podstawa 31 dni", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::KodUbezpieczenia, "051000"); },
     pola({{"dniBazowe", 31}})},
    {"051 w kwietniu: 30", "30-04-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::KodUbezpieczenia, "051000"); },
     pola({{"dniBazowe", 30}})},
    {"051 w lutym: 30", "28-02-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::KodUbezpieczenia, "051000"); },
     pola({{"dniBazowe", 30}})},
    // 31 unpaid days: capped at 30 for the allowance, the absence 31 cut to 30, f = 0; in a
    // 31-day month the zeroing does not run; the housing allowance stays payable
    {"31 dni bezpłatnych w styczniu", "31-01-2009", 3000,
     placa({{Pay::BZP1dni, 31L}, {Pay::Mieszkaniowy, 100.0f}}),
     pola({{"dniBezplatne", 30.0f}, {"dniNieobecnosci", 30}, {"wspolczynnik", 0.0}, {"wZasadnicza", 0.0f},
           {"wMieszkaniowy", 100.0f}, {"mieszkaniowyUdzial", 0.0f}, {"wBrutto", 100.0f}})},
    // an owner's day base is 31 in January, so 31 unpaid days stay 31
    {"051: 31 dni bezpłatnych", "31-01-2009", 3000,
     placa({{Pay::KodUbezpieczenia, "051000"}, {Pay::BZP1dni, 31L}}),
     pola({{"dniBezplatne", 31.0f}})},
    // 28 days absent in February count as 30: f = 0
    {"28 dni lutego to 30", "28-02-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::BZP1dni, 28L); },
     pola({{"dniNieobecnosci", 30}, {"wZasadnicza", 0.0f}})},
    // 29 days in February: f = 1/30 (100.00) but 29 >= 28 zeroes the reduced elements;
    // the housing allowance and its share Round2(100 / 30) = 3.33 stay
    {"29 dni lutego zeruje", "28-02-2009", 3000,
     placa({{Pay::BZP1dni, 29L}, {Pay::Mieszkaniowy, 100.0f}, {Pay::Funkcyjny, 300.0f}}),
     pola({{"dniNieobecnosci", 29}, {"wZasadnicza", 0.0f}, {"wFunkcyjny", 0.0f}, {"wMieszkaniowy", 100.0f},
           {"mieszkaniowyUdzial", 3.33f}})},
    // hired on the 15th: 15/30 absent (not 14), 1500.00
    {"zatrudniony 15-go", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnienia, "15/01/2009"); },
     pola({{"dniNieobecnosci", 15}, {"wZasadnicza", 1500.0f}})},
    {"zatrudniony 1-go", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnienia, "01/01/2009"); },
     pola({{"wZasadnicza", 3000.0f}})},
    // employed until the 20th: 0 + 30 - 20 = 10 days absent, f = 2/3, 2000.00
    {"zatrudniony do 20-go", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnieniaDO, "20/01/2009"); },
     pola({{"dniNieobecnosci", 10}, {"wZasadnicza", 2000.0f}})},
    {"koniec zatrudnienia \"0\" nie liczy się", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnieniaDO, "0"); },
     pola({{"wZasadnicza", 3000.0f}})},
    // the post 1/2: 1500.00 is the full pay of the month
    {"pół etatu", "31-01-2009", 3000, [](core::Record&, core::Record& o) { o.set(Osoba::Etat, "  1  2"); },
     pola({
           {"zasadniczaPelna", 1500.0f},
           {"wZasadnicza", 1500.0f},
           {"wBruttoPelne", 3000.0f}})},  // the pay record's full-post amount
    {"pusty etat to cały", "31-01-2009", 3000,
     [](core::Record& p, core::Record& o) {
         o.set(Osoba::Etat, "");
         p.set(Pay::WskaznikEtatu, 0.5f);
     },
     pola({{"wZasadnicza", 3000.0f}})},
    // denominator 0: the factor stored in the pay record stays, 0.75 * 3000 = 2250
    {"mianownik 0", "31-01-2009", 3000,
     [](core::Record& p, core::Record& o) {
         o.set(Osoba::Etat, "  1  0");
         p.set(Pay::WskaznikEtatu, 0.75f);
     },
     pola({{"wZasadnicza", 2250.0f}})},
};
INSTANTIATE_TEST_SUITE_P(DaysOfTheMonth, Edge, testing::ValuesIn(kDni), nazwa);

// Seniority allowance: the shared seniority computation, the group "p" hours, sick days of code
// 311 and unpaid days.
const Row kStaz[] = {
    {"grupa a, 4 lata: 0 %", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnienia, "01/01/2005"); },
     pola({{"wStazowy", 0.0f}})},
    // a teacher from 3 years: 4 % of 3000 = 120
    {"grupa n, 4 lata: 4 %", "31-01-2009", 3000,
     [](core::Record& p, core::Record& o) {
         p.set(Pay::DataZatrudnienia, "01/01/2005");
         o.set(Osoba::Grupa, "n");
     },
     pola({{"stazProcent", 4}, {"wStazowy", 120.0f}, {"wBrutto", 3120.0f}})},
    {"DodatekStazowy 1: kwota z zapisu", "31-01-2009", 3000,
     placa({{Pay::DodatekStazowy, "1"}, {Pay::Stazowy, 200.0f}}),
     pola({{"wStazowy", 200.0f}})},
    // "0" computes as "" does: 10 years, 10 % of 3000
    {"DodatekStazowy 0 liczy", "31-01-2009", 3000,
     placa({{Pay::DodatekStazowy, "0"}, {Pay::DataZatrudnienia, "01/01/1999"}}),
     [](const WynikMiesiaca& w) {
         EXPECT_EQ(w.wStazowy, 300.0f);
         EXPECT_EQ(w.stazowyZUS, 300.0f);
         EXPECT_EQ(w.placa.f(Pay::Stazowy), 300.0f);
         EXPECT_EQ(w.wBruttoPelne, 3300.0f);
     }},
    // group "p", 10 %, rate 20.00 an hour, 2 unpaid days = 16 hours:
    // 300 - 20 * 16 * 10 / 100 = 268; for contributions Round2(28/30 * 268) = 250.13;
    // payable 268 - 268 * 2 / 30 = 250.1333 -> 250.13
    {"grupa p: godziny nieobecności", "31-01-2009", 3000,
     [](core::Record& p, core::Record& o) {
         p.set(Pay::DataZatrudnienia, "01/01/1999");
         p.set(Pay::StawkaP, 20.0f);
         p.set(Pay::BZP1dni, 2L);
         o.set(Osoba::Grupa, "p");
     },
     pola({{"godzinyP", 16}, {"stazowyZUS", 250.13f}, {"wStazowy", 250.13f}})},
    // 6 days of code 311: (1 - 6/30) * 300 = 240, the same as f * 300
    {"6 dni 311", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::DataZatrudnienia, "01/01/1999");
         sick(p, 1, 100, 6, "311", 80);
     },
     pola({{"wDni311", 6.0f}, {"wStazowy", 240.0f}, {"stazowyZUS", 240.0f}})},
    // more than 30 days of code 311: no allowance
    {"31 dni 311", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::DataZatrudnienia, "01/01/1999");
         sick(p, 1, 100, 20, "311", 80);
         sick(p, 2, 100, 11, "311", 80);
     },
     pola({{"wDni311", 31.0f}, {"wStazowy", 0.0f}})},
    // Payer "SKR": the percent is the years without limit and the allowance is taken from
    // the minimum pay: 25 years, Round2(25 * 1276 / 100) = 319.00; 60 years gives 0.
    {"SKR 25 lat", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnienia, "01/01/1984"); },
     pola({{"stazProcent", 25}, {"wStazowy", 319.0f}}),
     "SKR"},
    {"SKR 60 lat", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::DataZatrudnienia, "01/01/1949"); },
     pola({{"stazProcent", 0}, {"wStazowy", 0.0f}}),
     "SKR"},
};
INSTANTIATE_TEST_SUITE_P(SeniorityAllowance, Edge, testing::ValuesIn(kStaz), nazwa);

// The sick lines and their cross-references.
const Row kChorobowe[] = {
    // a zero rate takes SredniaChorobowa: 50 * 80 / 100 * 4 = 160; the copy keeps the 0
    {"stawka 0 bierze średnią", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         sick(p, 1, 0, 4, "331", 80);
         p.set(Pay::SredniaChorobowa, 50.0);
     },
     [](const WynikMiesiaca& w) {
         EXPECT_EQ(w.wChorobowePlatne, 160.0f);
         EXPECT_EQ(w.wLinie[0].SredniaCH.text, "0");
         EXPECT_EQ(w.wSredniaChorobowa.text, "50");
     }},
    // days only in line 3: no sick pay at all, the days still reduce f (25/30 of 3000)
    {"tylko linia 3", "31-01-2009", 3000, [](core::Record& p, core::Record&) { sick(p, 3, 100, 5, "331", 80); },
     pola({{"dniChorobowe", 5}, {"wChorobowePlatne", 0.0f}, {"wZasadnicza", 2500.0f}})},
    // line 4 of code 333: line 1 of code 313 goes to the 311 sum; line 4 itself is sick pay
    // 100 * 80 / 100 * 2 = 160
    {"linia 4 kod 333", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         sick(p, 1, 100, 3, "313", 100);
         sick(p, 4, 100, 2, "333", 80);
     },
     pola({{"wZasilki311", 300.0f}, {"wDni311", 3.0f}, {"wZasilki", 0.0f}, {"wChorobowePlatne", 160.0f}})},
    // line 1 of code 121: lines 2 to 4 of any code are sick pay
    {"linia 1 kod 121", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         sick(p, 1, 100, 3, "121", 100);
         sick(p, 2, 100, 2, "313", 100);
     },
     pola({{"wZasilki311", 300.0f}, {"wChorobowePlatne", 200.0f}, {"wZasilki", 0.0f}})},
    // 311 in lines 1 and 2 add up: 300 + 200, 5 days; with 6 % to the benefit's
    // contributions: Round2(500 * 0.0976 + 500 * 0.015) = 56.30
    {"311 w liniach 1 i 2", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         sick(p, 1, 100, 3, "311", 100);
         sick(p, 2, 100, 2, "311", 100);
     },
     pola({{"wZasilki311", 500.0f}, {"wDni311", 5.0f}, {"wSkladkiOdZasilkow", 56.30f}})},
    // the sums are rounded once: 33.333 * 80 / 100 * 3 = 79.9992 -> 80.00
    {"zaokrąglenie sumy", "31-01-2009", 3000, [](core::Record& p, core::Record&) { sick(p, 1, 33.333, 3, "331", 80); },
     pola({{"wChorobowePlatne", 80.0f}, {"sumaChorobowePlatne", 33.333 * 80 / 100 * 3}})},
};
INSTANTIATE_TEST_SUITE_P(SickLines, Edge, testing::ValuesIn(kChorobowe), nazwa);

// The monthly elements: fractions of the full base pay, what absence reduces and what it does
// not. Base pay 2000.00; "3 dni" rows have 3 unpaid days (f = 0.9).
const Row kSkladniki[] = {
    {"premia 0.25", "31-01-2009", 2000, [](core::Record& p, core::Record&) { p.set(Pay::Premia, 0.25f); },
     [](const WynikMiesiaca& w) {
         EXPECT_EQ(w.wPremia, 500.0f);
         EXPECT_EQ(w.placa.f(Pay::Premia), 500.0f);
     }},
    {"premia 0.25, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Premia, 0.25f);
         bzp3(p);
     },
     pola({{"wPremia", 450.0f}})},
    // negative counts as a fraction: -0.5 * 2000
    {"premia ujemna", "31-01-2009", 2000, [](core::Record& p, core::Record&) { p.set(Pay::Premia, -0.5f); },
     pola({{"wPremia", -1000.0f}})},
    // rural: 200 payable unreduced, 180 in the contribution base
    {"wiejski 0.1, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Wiejski, 0.1f);
         bzp3(p);
     },
     pola({{"wWiejski", 200.0f}, {"wiejskiUdzial", 180.0f}, {"wPodstawaZUS", 1800.0f + 180.0f}})},
    {"mieszkaniowy 0.05, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Mieszkaniowy, 0.05f);
         bzp3(p);
     },
     pola({
           {"wMieszkaniowy", 100.0f},
           {"mieszkaniowyUdzial", 90.0f},
           {"wBrutto", 1900.0f}})},  // 1800 + 100
    {"trudnościowy 0.1, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Trudnosciowy, 0.1f);
         bzp3(p);
     },
     pola({{"wTrudnosciowy", 180.0f}})},
    {"motywacyjny 150, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Motywacyjny, 150.0f);
         bzp3(p);
     },
     pola({{"wMotywacyjny", 135.0f}})},
    // the equivalent is rounded and not reduced; night, back pay and harmful as they are
    {"ekwiwalent, nocny", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Ekwiwalent, 123.456f);
         p.set(Pay::Nocny, 10.005f);
         p.set(Pay::Wyrownania, -20.0f);
         bzp3(p);
     },
     pola({{"wEkwiwalent", 123.46f}, {"wNocny", 10.005f}, {"wWyrownania", -20.0f}})},
    // amounts with a third decimal are rounded before f: Round2(100.016) = 100.02, 0.9 of it
    // 90.018 -> 90.02 (unrounded 90.0144 would give 90.01); the rural one is not reduced
    {"kwoty z trzecim miejscem, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         for (int n : {Pay::Wiejski, Pay::Trudnosciowy, Pay::Motywacyjny, Pay::Premia}) p.set(n, 100.016f);
         bzp3(p);
     },
     pola({{"wWiejski", 100.02f}, {"wTrudnosciowy", 90.02f}, {"wMotywacyjny", 90.02f}, {"wPremia", 90.02f}})},
    // special, specialist, function, other and the educator allowance: reduced by f
    {"funkcyjny i inne, 3 dni", "31-01-2009", 2000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::Funkcyjny, 100.0f);
         p.set(Pay::Specjalny, 200.0f);
         p.set(Pay::Inny, 300.0f);
         p.set(Pay::Specjalistyczny, 400.0f);
         p.set(Pay::Wychowawczy, 500.0f);
         bzp3(p);
     },
     pola({{"wFunkcyjny", 90.0f}, {"wSpecjalny", 180.0f}, {"wInny", 270.0f}, {"wSpecjalistyczny", 360.0f},
           {"wWychowawczy", 450.0f}, {"wBrutto", 1800.0f + 1350.0f}, {"wBruttoPelne", 3500.0f}})},
};
INSTANTIATE_TEST_SUITE_P(MonthlyElements, Edge, testing::ValuesIn(kSkladniki), nazwa);

// Contributions and the annual limit.
const Row kSkladki[] = {
    // BruttoOd01 equal to the limit: neither the rest nor the zeroing; full base
    {"BruttoOd01 = KwotaGRE", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::BruttoOd01, 95790.0); },
     pola({{"podstawaRE", 3000.0}, {"wEmerytalna", 292.80f}, {"wRentowa", 45.0f}, {"wRentowaPracodawcy", 135.0f}})},
    {"rentowa wyłączona", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::Rentowa, 0L); },
     pola({{"wRentowa", 0.0f}, {"wRentowaPracodawcy", 0.0f}, {"wEmerytalna", 292.80f}, {"wChorobowa", 73.50f},
           {"wWypadkowa", 54.0f}})},
    // all three off: no base, so no sickness and no accident either
    {"bez składek", "31-01-2009", 3000,
     placa({{Pay::Rentowa, 0L}, {Pay::Emerytalna, 0L}, {Pay::Chorobowa, 0L}}),
     pola({{"wPodstawaZUS", 0.0f}, {"wWypadkowa", 0.0f}, {"sumaSkladekPracownika", 0.0f}, {"wPodstawaFP", 0.0f}})},
    {"wypadkowa wyłączona", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::Wypadkowa, 0L); },
     pola({{"wWypadkowa", 0.0f}, {"wChorobowa", 73.50f}})},
};
INSTANTIATE_TEST_SUITE_P(ContributionsAndTheLimit, Edge, testing::ValuesIn(kSkladki), nazwa);

// Costs, the scale, the relief and the health offset.
const Row kPodatek[] = {
    // no health contribution: 445.86 - 46.33 = 399.53 with nothing to offset -> 400
    {"zdrowotna wyłączona", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::Zdrowotna, 0L); },
     pola({{"wZdrowotnaOdliczana", 0.0f}, {"wZdrowotnaIndywidualna", 0.0f}, {"wZaliczka", 400.0f}})},
    // joint settlement over the threshold (BruttoOd01 100000): 18 % of 2815 = 506.70, less
    // 46.33 = 460.37, less 226.81 = 233.56 -> 234
    {"rozliczenie wspólne", "31-12-2009", 3000,
     placa({{Pay::BruttoOd01, 100000.0}, {Pay::RozliczenieWspolne, "1"}}),
     pola({{"wStawkaPodatku", 0.18f}, {"wPodatekNaliczony", 460.37f}, {"wZaliczka", 234.0f}})},
    // investment relief 50: 199 - 50 = 149
    {"ulga inwestycyjna", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::UlgaInwestycyjna, 50.0f); },
     pola({{"wZaliczka", 149.0f}})},
    // investment relief above the tax: 0
    {"ulga inwestycyjna ponad podatek", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) { p.set(Pay::UlgaInwestycyjna, 500.0f); },
     pola({{"wZaliczka", 0.0f}})},
    // without the monthly relief the investment relief is not applied: 445.86 - 200.62 =
    // 245.24 -> 245
    {"ulga inwestycyjna bez ulgi", "31-01-2009", 3000,
     placa({{Pay::UlgaInwestycyjna, 50.0f}, {Pay::KwotaUlgi, 0.0f}}),
     pola({{"wUlgaZastosowana", 0.0f}, {"wZaliczka", 245.0f}})},
    // health above the tax: 600.00: contributions 58.56 + 9.00 + 14.70 = 82.26, tax base
    // 406.49 -> 406, health base 517.74: 46.60 and 6.47, deductible 40.13; 18 % of 406 =
    // 73.08 - 46.33 = 26.75 <= 40.13: the deductible part is the tax, the other 0, no advance
    {"zdrowotna ponad podatek", "31-01-2009", 600, nullptr,
     pola({{"wPodatekNaliczony", 26.75f}, {"wZdrowotnaOdliczana", 26.75f}, {"wZdrowotnaIndywidualna", 0.0f},
           {"wZaliczka", 0.0f}, {"wPodatekRazem", 26.75f}})},
    // relief above the tax, with a benefit: 500.00 and 3 days of code 313 at 100.00 (300.00)
    //   f = 0.9, 450.00; contributions 43.92 + 6.75 + 11.02 (11.025 dropped to 11.024) =
    //   61.69; tax base 277.06 -> 277; 18 % = 49.86, relief 100: -50.14 -> relief used
    //   49.86, unused 50.14, tax 0, no health parts
    //   tax on the benefit: 18 % of 300 = 54.00 - 50.14 = 3.86 -> 4 (full and by the
    //   relief); 300 - 4 = 296 in cash; net 450 - 61.69 = 388.31
    {"ulga ponad podatek", "31-01-2009", 500,
     [](core::Record& p, core::Record&) {
         p.set(Pay::KwotaUlgi, 100.0f);
         sick(p, 1, 100, 3, "313", 100);
     },
     pola({{"wZasadnicza", 450.0f}, {"wPodstawaPodatku", 277.0f}, {"wUlgaZastosowana", 49.86f},
           {"wUlgaNiewykorzystana", 50.14f}, {"wPodatekNaliczony", 0.0f}, {"wStawkaPodatku", 0.18f},
           {"wZdrowotnaOdliczana", 0.0f}, {"wZdrowotnaIndywidualna", 0.0f}, {"wZaliczka", 0.0f},
           {"wPodatekZasilkiPelny", 4.0f}, {"wPodatekZasilki", 4.0f}, {"wZasilkiDoKasy", 296.0f},
           {"wNetto", 388.31f}})},
    // a commuter with costs typed below 0 keeps them as an amount
    {"dojeżdżający z kosztami ujemnymi", "31-01-2009", 3000,
     placa({{Pay::Dojazd, "1"}, {Pay::KosztyUzyskania, -5.0f}}),
     pola({{"wKoszty", -5.0f}})},
    // costs as a fraction 0.2 of base pay less contributions: (3000 - 411.30) * 0.2 = 517.74
    {"koszty ułamkiem", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::KosztyUzyskania, 0.2f); },
     pola({{"wKoszty", 517.74f}})},
    // no gross and 30 sick days (of line 3, which the sick pay passes over): no costs
    {"brak brutto i 30 dni choroby", "31-01-2009", 3000, [](core::Record& p, core::Record&) { sick(p, 3, 100, 30, "331", 80); },
     pola({{"wBrutto", 0.0f}, {"wKoszty", 0.0f}})},
};
INSTANTIATE_TEST_SUITE_P(TaxAndReliefs, Edge, testing::ValuesIn(kPodatek), nazwa);

// The dead points of the scale: income so far exactly at a threshold runs no branch, the tax
// is 0 before the relief, the relief is not used and the field KwotaUlgi is cleared.
//   3000.00 in 01-2009 with 96245.86 before: so far Round2(99245.86) = 99245.859375 (a float),
//   less Round2(13.71 % of it) 13606.61, less 111.25 = 85528.0 exactly. (BruttoOd01 is above
//   the limit: sickness 73.50 only; tax base 3000 - 111.25 - 73.50 = 2815.25 -> 2815.)
//   One grosz more (96245.87) is 85528.0078125, above the threshold: over = 0.0078125,
//   32 % of it + 18 % of the rest = 506.70109 -> 506.70, rate 32 %.
TEST(Edges, ThresholdDeadPoints) {
    struct {
        const char* name;
        double bruttoOd01;
        const char* progI;
        const char* progII;
        double naliczony, stawka;
    } cases[] = {
        {"dokładnie ProgI", 96245.86, "85528", "99999999", 0, 0},
        {"dokładnie ProgII", 96245.86, "80000", "85528", 0, 0},
        {"grosz ponad ProgI", 96245.87, "85528", "99999999", 506.70 - 46.33, 0.32},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fx::Lista l("31-01-2009");
        l.zmienStawke(2009, reference::Dane::ProgI, c.progI);
        l.zmienStawke(2009, reference::Dane::ProgII, c.progII);
        core::Record& p = l.dodaj("70051512345", 3000);
        p.set(Pay::BruttoOd01, c.bruttoOd01);
        ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
        const WynikMiesiaca& w = l.s.wynik;
        EXPECT_EQ(w.wPodstawaPodatku, 2815.0f);
        EXPECT_FLOAT_EQ(w.wPodatekNaliczony, static_cast<float>(c.naliczony));
        EXPECT_FLOAT_EQ(w.wStawkaPodatku, static_cast<float>(c.stawka));  // not assigned at a dead point
        if (c.naliczony == 0) {
            EXPECT_FLOAT_EQ(w.dochodNarastajaco, 85528.0f);
            EXPECT_EQ(w.wUlgaZastosowana, 0.0f);
            EXPECT_EQ(w.wZdrowotnaOdliczana, 0.0f);
            EXPECT_EQ(w.wZdrowotnaIndywidualna, 0.0f);
            EXPECT_EQ(w.wZaliczka, 0.0f);
            EXPECT_EQ(w.placa.f(Pay::KwotaUlgi), 0.0f);
            // the relief went to the unused relief and then to the benefits' tax of 0, which
            // sets it to that tax
            EXPECT_EQ(w.wUlgaNiewykorzystana, 0.0f);
        } else {
            EXPECT_FLOAT_EQ(w.wUlgaZastosowana, 46.33f);
            EXPECT_EQ(w.placa.f(Pay::KwotaUlgi), 46.33f);
        }
    }
}

// Deductions: fractions above 0 and below 1, and the base of the savings-fund contribution.
//   Hired on the 16th: f = 14/30, base pay 1400.00 of 3000.00, function allowance 140.00 of
//   300.00; gross 1540.00, as if present 3300.00.
TEST(Edges, Deductions) {
    struct {
        const char* podstawaDoKZP;
        double skladka;
    } kzp[] = {
        {"brutto", 66},        // 0.02 * 3300
        {"mbrutto", 30.80},    // 0.02 * 1540
        {"funkcyjny", 34},     // 0.02 * (300 + 1400)
        {"zasadnicza", 60},    // 0.02 * 3000
        {"mzasadnicza", 28},   // 0.02 * 1400
        {"", 28},              // empty: base pay of the month
        {"inne", 0},           // no name: base 0
        {"brutto funkcyjny", 34},  // the later name wins
    };
    for (const auto& c : kzp) {
        SCOPED_TRACE(c.podstawaDoKZP);
        fx::Lista l("31-01-2009");
        l.zmienStawke(2009, reference::Dane::PodstawaDoKZP, c.podstawaDoKZP);
        core::Record& p = l.dodaj("70051512345", 3000);
        p.set(Pay::DataZatrudnienia, "16/01/2009");
        p.set(Pay::Funkcyjny, 300.0f);
        p.set(Pay::KZPSkladka, 0.02f);
        // Solidarność as a fraction of the pay record's base pay (and / 100): 3000 * 0.5 / 100;
        // the union as a fraction of the month's base pay: 1400 * 0.01 / 100
        p.set(Pay::Solidarnosc, 0.5f);
        p.set(Pay::Zwiazek, 0.01f);
        p.set(Pay::Potracenie1, 0.1f);  // 3000 * 0.1
        p.set(Pay::Potracenie2, 12.5f);
        p.set(Pay::POTRInne, 7.0f);
        p.set(Pay::PZU, 30.0f);
        p.set(Pay::ZFMRata, 100.0f);
        p.set(Pay::KZPRata, 50.0f);
        ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
        const WynikMiesiaca& w = l.s.wynik;
        EXPECT_EQ(w.wBrutto, 1540.0f);
        EXPECT_EQ(w.wBruttoPelne, 3300.0f);
        EXPECT_FLOAT_EQ(w.wSkladkaKZP, static_cast<float>(c.skladka));
        EXPECT_FLOAT_EQ(w.wSolidarnosc, 15.0f);
        EXPECT_FLOAT_EQ(w.wZwiazek, 0.14f);
        EXPECT_FLOAT_EQ(w.wPotracenie1, 300.0f);
        EXPECT_EQ(w.wPotracenie2, 12.5f);
        EXPECT_EQ(w.wPotraceniaInne, 7.0f);
        EXPECT_EQ(w.wPZU, 30.0f);
        EXPECT_EQ(w.wRataZFM, 100.0f);
        EXPECT_EQ(w.wRataKZP, 50.0f);
        const double potracenia = sumaF({50, 100, c.skladka, 300, 12.5, w.wZdrowotnaIndywidualna, w.wZwiazek, 15, 30, 7});
        EXPECT_EQ(w.wPotraceniaRazem, static_cast<float>(sumaF({potracenia, w.sumaSkladekPracownika, w.wPodatekRazem})));
    }
}

// Amounts at 1 and above are taken as they are; Potracenie1 at or below 0 is a fraction.
const Row kPotracenia[] = {
    {"kwoty", "31-01-2009", 3000,
     placa({{Pay::Solidarnosc, 20.0f}, {Pay::Zwiazek, 1.0f}, {Pay::KZPSkladka, 25.0f}, {Pay::Potracenie1, 50.0f}}),
     pola({{"wSolidarnosc", 20.0f}, {"wZwiazek", 1.0f}, {"wSkladkaKZP", 25.0f}, {"wPotracenie1", 50.0f}})},
    {"potrącenie ujemne", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::Potracenie1, -0.01f); },
     pola({{"wPotracenie1", -30.0f}})},
};
INSTANTIATE_TEST_SUITE_P(Deductions, Edge, testing::ValuesIn(kPotracenia), nazwa);

// The payment: benefits paid with the pay, the deduction after them, the shortfall and the
// account. Net 2156.72 as in the first whole example.
const Row kWyplata[] = {
    // 2156.72 + 100 + 50 + 30 (benefits 1, 2, 4; the third is not paid here) - 20
    {"zasiłki i potrącenie po nich", "31-01-2009", 3000,
     placa({{Pay::Zasilek1, 100.0}, {Pay::Zasilek2, 50.0}, {Pay::Zasilek3, 999.0}, {Pay::Zasilek4, 30.0},
            {Pay::PotraceniaPoZasilkach, 20.0f}}),
     [](const WynikMiesiaca& w) {
         EXPECT_FLOAT_EQ(w.wDoWyplaty, 2316.72f);
         EXPECT_EQ(w.wPotraceniaPoZasilkach, 20.0f);
         EXPECT_EQ(w.wZasilek[2].text, "999");
     }},
    // 2156.72 - 3000: a shortfall of 843.28
    {"niedobór", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::PotraceniaPoZasilkach, 3000.0f); },
     pola({{"wDoWyplaty", -843.28f}, {"wNiedobor", 843.28f}})},
    {"całość na konto", "31-01-2009", 3000,
     placa({{Pay::ROR, 5000.0}, {Pay::NumerKontaROR, "11 2222"}}),
     pola({{"wNaROR", 2156.72f}, {"wDoWyplaty", 0.0f}})},
    // 2156.72 - 1000.004 = 1156.716 in cash, rounded -> 1156.72
    {"część na konto", "31-01-2009", 3000,
     placa({{Pay::ROR, 1000.004}, {Pay::NumerKontaROR, "11 2222"}}),
     pola({{"wNaROR", 1000.004f}, {"wDoWyplaty", 1156.72f}})},
    {"kwota na konto bez numeru konta", "31-01-2009", 3000, [](core::Record& p, core::Record&) { p.set(Pay::ROR, 1000.0); },
     pola({{"wNaROR", 0.0f}, {"wDoWyplaty", 2156.72f}})},
    // a benefit of code 313 (300.00, tax 54) with pay sent to the account goes there too
    {"zasiłek na konto", "31-01-2009", 3000,
     [](core::Record& p, core::Record&) {
         p.set(Pay::ROR, 5000.0);
         p.set(Pay::NumerKontaROR, "11 2222");
         sick(p, 2, 100, 3, "313", 100);
     },
     pola({{"wZasilkiNaROR", 246.0f}, {"wZasilkiDoKasy", 0.0f}})},
};
INSTANTIATE_TEST_SUITE_P(Payment, Edge, testing::ValuesIn(kWyplata), nazwa);

}  // namespace

// The fund bases: the insurance code of the personnel record, the two switches, the age of a
// woman (a first name ending in "a") and of a man, and group "w" with FGSP "2".
TEST(Edges, FundBases) {
    struct {
        const char* name;
        const char* kod;
        const char* fp;
        const char* fgsp;
        const char* imie;
        const char* urodzony;
        const char* grupa;
        float podstawaFP, podstawaFGSP;
    } cases[] = {
        {"zwykły", "011000", "", "", "JAN", "15-05-1970", "a", 3000, 3000},
        {"kod 05 w kadrach", "050000", "", "", "JAN", "15-05-1970", "a", 0, 3000},
        {"bez FP", "011000", "1", "", "JAN", "15-05-1970", "a", 0, 3000},
        {"bez FGŚP", "011000", "", "1", "JAN", "15-05-1970", "a", 3000, 0},
        {"kobieta 56 lat", "011000", "", "", "ANNA", "15-01-1953", "a", 0, 0},  // 56.05 years
        {"mężczyzna 56 lat", "011000", "", "", "JAN", "15-01-1953", "a", 3000, 3000},
        {"mężczyzna 61 lat", "011000", "", "", "JAN", "15-01-1948", "a", 0, 0},
        {"kobieta 54 lata", "011000", "", "", "ANNA", "15-02-1954", "a", 3000, 3000},  // 54.99
        // hired on the 16th: contribution base 1400, as if present 3000
        {"grupa w, FGSP 2", "011000", "", "2", "JAN", "15-05-1970", "w", 1400, 3000},
        {"grupa a, FGSP 2", "011000", "", "2", "JAN", "15-05-1970", "a", 1400, 1400},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fx::Lista l("31-01-2009");
        core::Record& p = l.dodaj("70051512345", 3000, c.urodzony, c.imie);
        if (std::string(c.grupa) != "a" || std::string(c.fgsp) == "2") p.set(Pay::DataZatrudnienia, "16/01/2009");
        core::Record& o = l.osobaNr(0);
        o.set(Osoba::KodUbezpieczenia, c.kod);
        o.set(Osoba::WskaznikFP, c.fp);
        o.set(Osoba::FGSP, c.fgsp);
        o.set(Osoba::Grupa, c.grupa);
        ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
        EXPECT_EQ(l.s.wynik.wPodstawaFP, c.podstawaFP);
        EXPECT_EQ(l.s.wynik.wPodstawaFGSP, c.podstawaFGSP);
    }
}

// Walking a list: the sick sums start from nothing for each employee, the benefit days of the
// list go on adding up (3 days of code 313, then 2 more).
TEST(Edges, SickSumsOfTheNextEmployee) {
    fx::Lista l("31-01-2009");
    core::Record& p1 = l.dodaj("70051512345", 3000);
    sick(p1, 1, 100, 5, "331", 80);
    sick(p1, 2, 100, 3, "313", 100);
    l.dodaj("60010112345", 3000);
    core::Record& p3 = l.dodaj("80010112345", 3000);
    sick(p3, 1, 100, 2, "313", 100);
    l.zapisz();
    reference::loadRates(l.s);
    const paycalc::ZbioryListy z = paycalc::wczytajZbiory(l.s);
    struct {
        const char* klucz;
        float platne, zasilki, dniRazem;
    } cases[] = {{"70051512345", 400, 300, 3}, {"60010112345", 0, 0, 3}, {"80010112345", 0, 200, 5}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.klucz);
        l.s.KluczOsoby = c.klucz;
        ASSERT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, z), paycalc::Wynik::Policzono);
        EXPECT_EQ(l.s.wynik.wChorobowePlatne, c.platne);
        EXPECT_EQ(l.s.wynik.wZasilki, c.zasilki);
        EXPECT_EQ(l.s.wynik.dniZasilkoweRazem, c.dniRazem);
    }
    EXPECT_EQ(l.s.wynik.wBrutto, 2800.0f);  // 2 days absent: 28/30 of 3000
}
