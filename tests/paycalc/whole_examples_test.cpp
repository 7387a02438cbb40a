// Whole months of one employee, worked out by hand from the rules of the calculation and
// checked field by field: every field of the result tables not named is 0. Each month is the
// base month below with the fields it changes.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "fixture.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
using fx::sumaF;

namespace {

using Pola = std::vector<std::pair<std::string, double>>;

// The base month: 01-2009, 3000.00 full time, costs 111.25, relief 46.33.
//   contributions on 3000: old-age 9.76 % 292.80, rent 1.5 % 45.00, sickness 2.45 % 73.50
//   (sum 411.30); employer rent 4.5 % 135.00, accident 1.80 % 54.00
//   tax base 3000 - 111.25 - 411.30 = 2477.45 -> 2477
//   health base 3000 - 411.30 = 2588.70; 9 % 232.983 -> 232.98; 1.25 % 32.358 -> 32.36;
//   deductible 232.98 - 32.36 = 200.62
//   income so far 3000 - 411.30 - 111.25 = 2477.45 < 85528: 18 % of 2477 = 445.86;
//   less relief 399.53; less 200.62 = 198.91 (>= 32.36, which stays) -> 199
//   tax with health 199 + 200.62 = 399.62; deductions 32.36 + 411.30 + 399.62 = 843.28
//   net 3000 - 843.28 = 2156.72
const Pola kBaza = {
    {"wZasadnicza", 3000}, {"wBrutto", 3000}, {"wBruttoPelne", 3000}, {"wPodstawaZUS", 3000},
    {"wEmerytalna", 292.80}, {"wRentowa", 45}, {"wChorobowa", 73.50}, {"wRentowaPracodawcy", 135},
    {"wWypadkowa", 54}, {"wKoszty", 111.25}, {"wPodstawaPodatku", 2477}, {"wPodatekNaliczony", 399.53},
    {"wStawkaPodatku", 0.18}, {"wUlgaZastosowana", 46.33}, {"wPodstawaZdrowotnej", 2588.70},
    {"wZdrowotnaOdliczana", 200.62}, {"wZdrowotnaIndywidualna", 32.36}, {"wZaliczka", 199},
    {"wPodatekRazem", sumaF({199, 200.62})},
    {"wPotraceniaRazem", sumaF({32.36, sumaF({292.80, 45, 73.50}), sumaF({199, 200.62})})},
    {"wNetto", 2156.72}, {"wDoWyplaty", 2156.72}, {"wPodstawaFP", 3000}, {"wPodstawaFGSP", 3000}};

// The fields of a month as the calculation forms them from the given amounts: the total of the
// contributions, the tax with health and the deductions (3 amounts: the health part borne,
// contributions, the tax with health).
Pola razem(double zaliczka, double odliczana, double ind, std::initializer_list<double> skladki) {
    const double r = sumaF({zaliczka, odliczana});
    return {{"wZaliczka", zaliczka}, {"wZdrowotnaOdliczana", odliczana}, {"wZdrowotnaIndywidualna", ind},
            {"wPodatekRazem", r}, {"wPotraceniaRazem", sumaF({ind, sumaF(skladki), r})}};
}
// The same base in every field of gross and of the fund bases.
Pola podstawa(double kwota, double pelna = 0) {
    return {{"wZasadnicza", kwota}, {"wBrutto", kwota}, {"wBruttoPelne", pelna ? pelna : kwota},
            {"wPodstawaZUS", kwota}, {"wPodstawaFP", kwota}, {"wPodstawaFGSP", kwota}};
}
Pola operator+(Pola a, const Pola& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct Miesiac {
    const char* name;
    const char* data;
    float placa;
    std::function<void(fx::Lista&, core::Record& placa)> zmien;
    Pola pola;  // the fields that differ from the base month (0 clears one)
    std::function<void(const core::WynikMiesiaca&)> dalej = {};
};

void PrintTo(const Miesiac& m, std::ostream* os) { *os << m.name; }

class WholeMonth : public testing::TestWithParam<Miesiac> {};

TEST_P(WholeMonth, EveryFieldOfTheResult) {
    const Miesiac& m = GetParam();
    fx::Lista l(m.data);
    core::Record& p = l.dodaj("70051512345", m.placa);
    if (m.zmien) m.zmien(l, p);
    ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
    std::map<std::string, double> pola(kBaza.begin(), kBaza.end());
    for (const auto& [k, v] : m.pola) pola[k] = v;
    Pola oczekiwane;
    for (const auto& [k, v] : pola)
        if (v != 0) oczekiwane.emplace_back(k, v);
    fx::sprawdzWynik(l.s.wynik, oczekiwane);
    if (m.dalej) m.dalej(l.s.wynik);
}

void koszty(core::Record& p, float koszty, float ulga) {
    p.set(Pay::KosztyUzyskania, koszty);
    p.set(Pay::KwotaUlgi, ulga);
}
void linia(core::Record& p, int n, double stawka, long dni, const char* kod, long procent) {
    const int b = Pay::SredniaCH1 + 6 * (n - 1);
    p.set(b, stawka);
    p.set(b + 1, dni);
    p.set(b + 4, kod);
    p.set(b + 5, procent);
}

const Miesiac kMiesiace[] = {
    // 1000.00 of the net 2156.72 to the account, 1156.72 in cash.
    {"Base3000In2009WithAnAccount", "31-01-2009", 3000,
     [](fx::Lista&, core::Record& p) {
         p.set(Pay::ROR, 1000.0);
         p.set(Pay::NumerKontaROR, "12 1240 4432 1111 0000 4820 1234");
     },
     {{"wDoWyplaty", 1156.72}, {"wNaROR", 1000}}},
    // The minimum wage of 2019 and of 2020 on their years' rates: the published net pays.
    //   2019, 2250.00: old-age 219.60, rent 33.75, sickness 2250 * 2.45 % = 55.125 (a third
    //   decimal 5 goes up) 55.13, sum 308.48; employer rent 6.5 % 146.25; accident 1.67 % 37.575
    //   -> 37.58; tax base 2250 - 111.25 - 308.48 = 1830.27 -> 1830; health base 1941.52:
    //   9 % 174.7368 -> 174.74, 1.25 % 24.269 -> 24.27, deductible 150.47; 18 % of 1830 = 329.40,
    //   less 46.33 = 283.07, less 150.47 = 132.60 -> 133; 133 + 150.47 = 283.47;
    //   deductions 24.27 + 308.48 + 283.47 = 616.22; net 1633.78
    {"MinimumWage2019", "31-01-2019", 2250, nullptr,
     podstawa(2250) + razem(133, 150.47, 24.27, {219.60, 33.75, 55.13}) +
         Pola{{"wEmerytalna", 219.60}, {"wRentowa", 33.75}, {"wChorobowa", 55.13}, {"wRentowaPracodawcy", 146.25},
              {"wWypadkowa", 37.58}, {"wPodstawaPodatku", 1830}, {"wPodatekNaliczony", 283.07},
              {"wPodstawaZdrowotnej", 1941.52}, {"wNetto", 1633.78}, {"wDoWyplaty", 1633.78}}},
    //   2020, 2600.00: old-age 253.76, rent 39.00, sickness 63.70, sum 356.46; employer rent 169.00;
    //   accident 43.42; tax base 2600 - 250 - 356.46 = 1993.54 -> 1994; health base 2243.54:
    //   9 % 201.9186 -> 201.92, 1.25 % 28.04425 -> 28.04 (the digits past the third dropped),
    //   deductible 173.88; 17 % of 1994 = 338.98, less 43.76 = 295.22, less 173.88 = 121.34
    //   -> 121; 121 + 173.88 = 294.88; deductions 28.04 + 356.46 + 294.88 = 679.38; net 1920.62
    {"MinimumWage2020", "31-01-2020", 2600, [](fx::Lista&, core::Record& p) { koszty(p, 250, 43.76f); },
     podstawa(2600) + razem(121, 173.88, 28.04, {253.76, 39.00, 63.70}) +
         Pola{{"wEmerytalna", 253.76}, {"wRentowa", 39}, {"wChorobowa", 63.70}, {"wRentowaPracodawcy", 169},
              {"wWypadkowa", 43.42}, {"wKoszty", 250}, {"wPodstawaPodatku", 1994}, {"wPodatekNaliczony", 295.22},
              {"wStawkaPodatku", 0.17}, {"wUlgaZastosowana", 43.76}, {"wPodstawaZdrowotnej", 2243.54},
              {"wNetto", 1920.62}, {"wDoWyplaty", 1920.62}}},
    // 12-2009 with 94000.00 of gross since January: the year's limit 95790 is crossed in the
    // month, old-age and rent run on the unused rest 95790 - 94000 = 1790.
    //   old-age 1790 * 9.76 % = 174.704 -> 174.70, rent 26.85, employer rent 80.55; sickness on the
    //   full 3000 73.50, accident 54.00; sum 174.70 + 26.85 + 73.50 = 275.05
    //   tax base 3000 - 111.25 - 275.05 = 2613.70 -> 2614; health base 2724.95: 9 % 245.2455
    //   (the third decimal 5 goes up) 245.25, 1.25 % 34.0619 -> 34.06, deductible 211.19
    //   so far 97000 - Round2(13.71 % of 97000) 13298.70 - 12 * 111.25 = 82366.30 < 85528:
    //   18 % of 2614 = 470.52, less 46.33 = 424.19, less 211.19 = 213.00 -> 213
    //   213 + 211.19 = 424.19; deductions 34.06 + 275.05 + 424.19 = 733.30; net 2266.70
    {"AnnualLimitCrossedInTheMonth", "31-12-2009", 3000, [](fx::Lista&, core::Record& p) { p.set(Pay::BruttoOd01, 94000.0); },
     razem(213, 211.19, 34.06, {174.70, 26.85, 73.50}) +
         Pola{{"wEmerytalna", 174.70}, {"wRentowa", 26.85}, {"wRentowaPracodawcy", 80.55}, {"wPodstawaPodatku", 2614},
              {"wPodatekNaliczony", 424.19}, {"wPodstawaZdrowotnej", 2724.95}, {"wNetto", 2266.70},
              {"wDoWyplaty", 2266.70}},
     [](const core::WynikMiesiaca& w) {
         EXPECT_EQ(w.podstawaRE, 1790.0);
         EXPECT_EQ(w.narastajaco, 97000.0f);
         EXPECT_EQ(w.dochodNarastajaco, 82366.30f);
     }},
    // 12-2009 with 100000.00 of gross since January: above the limit (no old-age, no rent) and
    // above the first threshold.
    //   sickness 73.50, accident 54.00, sum 73.50; tax base 3000 - 111.25 - 73.50 = 2815.25 -> 2815
    //   health base 2926.50: 9 % 263.385 -> 263.39, 1.25 % 36.58125 -> 36.58, deductible 226.81
    //   so far 103000 - 14121.30 - 1335 = 87543.70 (as a float 87543.703125) above 85528:
    //   over = 2015.703125 < 2815, tax 32 % * 2015.703125 + 18 % * 799.296875 = 788.8984375
    //   -> 788.90, less 46.33 = 742.57 (rate applied 32 %), less 226.81 = 515.76 -> 516
    //   516 + 226.81 = 742.81; deductions 36.58 + 73.50 + 742.81 = 852.89; net 2147.11
    {"AboveTheFirstThreshold", "31-12-2009", 3000, [](fx::Lista&, core::Record& p) { p.set(Pay::BruttoOd01, 100000.0); },
     razem(516, 226.81, 36.58, {73.50}) +
         Pola{{"wEmerytalna", 0}, {"wRentowa", 0}, {"wRentowaPracodawcy", 0}, {"wPodstawaPodatku", 2815},
              {"wPodatekNaliczony", 742.57}, {"wStawkaPodatku", 0.32}, {"wPodstawaZdrowotnej", 2926.50},
              {"wNetto", 2147.11}, {"wDoWyplaty", 2147.11}}},
    // A commuter: the raised costs 139.06 of the rates.
    //   tax base 3000 - 139.06 - 411.30 = 2449.64 -> 2450; 18 % = 441.00, less 46.33 = 394.67,
    //   less 200.62 = 194.05 -> 194; 194 + 200.62 = 394.62; deductions 32.36 + 411.30 + 394.62
    //   = 838.28; net 2161.72
    {"Commuter", "31-01-2009", 3000, [](fx::Lista&, core::Record& p) { p.set(Pay::Dojazd, "1"); },
     razem(194, 200.62, 32.36, {292.80, 45, 73.50}) +
         Pola{{"wKoszty", 139.06}, {"wPodstawaPodatku", 2450}, {"wPodatekNaliczony", 394.67}, {"wNetto", 2161.72},
              {"wDoWyplaty", 2161.72}}},
    // Two sick lines: line 1 code 331, 5 days at 100.00 and 80 % = 400.00 (sick pay of the
    // employer, in gross); line 2 code 313, 3 days at 100.00 and 100 % = 300.00 (a benefit,
    // outside gross).
    //   8 days absent: f = 22/30, base pay 2200.00; gross 2200 + 400 = 2600; as if present 3000
    //   contributions on 2200: old-age 214.72, rent 33.00, sickness 53.90, sum 301.62; employer
    //   rent 99.00, accident 39.60
    //   tax base 2200 + 400 - 111.25 - 301.62 = 2187.13 -> 2187; health base 2600 - 301.62 =
    //   2298.38: 9 % 206.8542 -> 206.85, 1.25 % 28.7298 -> 28.73, deductible 178.12
    //   18 % of 2187 = 393.66, less 46.33 = 347.33, less 178.12 = 169.21 -> 169; 169 + 178.12
    //   deductions 28.73 + 301.62 + 347.12 = 677.47; net 2600 - 677.47 = 1922.53
    //   benefit 300: tax 18 % = 54.00 (no relief left over); 300 - 54 = 246 paid in cash
    {"SickLines331And313", "31-01-2009", 3000,
     [](fx::Lista&, core::Record& p) {
         linia(p, 1, 100, 5, "331", 80);
         linia(p, 2, 100, 3, "313", 100);
     },
     podstawa(2200, 3000) + razem(169, 178.12, 28.73, {214.72, 33, 53.90}) +
         Pola{{"wChorobowePlatne", 400}, {"wZasilki", 300}, {"wDniZasilku", 3}, {"wBrutto", 2600},
              {"wEmerytalna", 214.72}, {"wRentowa", 33}, {"wChorobowa", 53.90}, {"wRentowaPracodawcy", 99},
              {"wWypadkowa", 39.60}, {"wPodstawaPodatku", 2187}, {"wPodatekNaliczony", 347.33},
              {"wPodstawaZdrowotnej", 2298.38}, {"wNetto", 1922.53}, {"wDoWyplaty", 1922.53},
              {"wPodatekZasilki", 54}, {"wPodatekZasilkiPelny", 54}, {"wZasilkiDoKasy", 246}},
     [](const core::WynikMiesiaca& w) {
         EXPECT_EQ(w.dniChorobowe, 8);
         EXPECT_EQ(w.dniNieobecnosci, 8);
         EXPECT_EQ(w.wLinie[0].KodPrzerwy.text, "331");
         EXPECT_EQ(w.wLinie[1].Liczbadni.text, "3");
     }},
    // 03-2009 and three days of leave in March at the rate "120,50" of the leave file (a day of
    // January coded "U8" is not paid again).
    //   leave 3 * 120.50 = 361.50; f = 27/30, base pay 2700.00; gross 3061.50
    //   contribution base 2700 + 361.50 = 3061.50: old-age 298.7964 -> 298.80, rent 45.9225 ->
    //   45.92, sickness 75.00675 -> 75.01, sum 419.73; employer rent 137.7675 -> 137.77,
    //   accident 55.107 -> 55.11
    //   tax base 2700 - 111.25 - 419.73 + 361.50 = 2530.52 -> 2531; health base 2641.77:
    //   9 % 237.7593 -> 237.76, 1.25 % 33.0221 -> 33.02, deductible 204.74
    //   so far 3061.50 - 419.73 - 3 * 111.25 = 2308.02; 18 % of 2531 = 455.58, less 46.33 =
    //   409.25, less 204.74 = 204.51 -> 205; 205 + 204.74 = 409.74
    //   deductions 33.02 + 419.73 + 409.74 = 862.49; net 3061.50 - 862.49 = 2199.01
    {"LeavePayFromTheLeaveFile", "31-03-2009", 3000,
     [](fx::Lista& l, core::Record&) {
         auto b = paycalc::Urlop::nowyBlok("KOWALSKI", "JAN", "70051512345", "  1  1", 2009);
         b.naglowek.set(paycalc::Urlop::Naglowek::Rozliczac, "1");
         b.miesiace[0].set(paycalc::Urlop::Miesiac::Stawka, "110");
         b.dni[0][4].set(paycalc::Urlop::Dzien::Kod, "U8");
         b.miesiace[2].set(paycalc::Urlop::Miesiac::Stawka, "120,50");
         for (int d : {2, 3, 4}) b.dni[2][d - 1].set(paycalc::Urlop::Dzien::Kod, "U8");
         l.urlopy.push_back(b);
     },
     podstawa(3061.50, 3000) + razem(205, 204.74, 33.02, {298.80, 45.92, 75.01}) +
         Pola{{"wZasadnicza", 2700}, {"wUrlopowe", 361.50}, {"wEmerytalna", 298.80}, {"wRentowa", 45.92},
              {"wChorobowa", 75.01}, {"wRentowaPracodawcy", 137.77}, {"wWypadkowa", 55.11},
              {"wPodstawaPodatku", 2531}, {"wPodatekNaliczony", 409.25}, {"wPodstawaZdrowotnej", 2641.77},
              {"wNetto", 2199.01}, {"wDoWyplaty", 2199.01}},
     [](const core::WynikMiesiaca& w) {
         EXPECT_EQ(w.DniUrlopu, 3);
         EXPECT_EQ(w.StawkaUrlopowa, 120.50f);
         EXPECT_EQ(w.dniNieobecnosci, 3);
     }},
    // Group "u" (a contract) with base pay 200.00 takes the flat path, 200.01 the normal one.
    // Costs are the fraction 0.2 of base pay less contributions, no relief.
    //   200.00: old-age 19.52, rent 3.00, sickness 4.90, sum 27.42; employer rent 9.00, accident
    //   3.60; costs (200 - 27.42) * 0.2 = 34.516 -> 34.52; tax base 138.06 -> 138; health base
    //   172.58: 9 % 15.5322 -> 15.53, 1.25 % 2.15725 -> 2.16 (the fourth decimal dropped first),
    //   deductible 13.37; normal path: 18 % of 138 = 24.84, less 13.37 = 11.47 -> 11, with health
    //   24.37, deductions 2.16 + 27.42 + 24.37 = 53.95, net 146.05.
    //   Flat path: tax 200 * 0.18 = 36, with health 36 + 13.37 + 2.16 + 27.42 = 78.95, paid out
    //   200 - 78.95 = 121.05; no relief used; the net of the normal path stays.
    //   200.01: the same contributions and costs 34.52, tax base 138.07 -> 138, health base 172.59
    //   with the same parts; net 200.01 - 53.95 = 146.06.
    {"GroupUAt200", "31-01-2009", 200,
     [](fx::Lista& l, core::Record& p) {
         koszty(p, 0.2f, 0);
         l.osobaNr(0).set(Osoba::Grupa, "u");
     },
     podstawa(200) + razem(36, 13.37, 2.16, {}) +
         Pola{{"wEmerytalna", 19.52}, {"wRentowa", 3}, {"wChorobowa", 4.90}, {"wRentowaPracodawcy", 9},
              {"wWypadkowa", 3.60}, {"wKoszty", 34.52}, {"wPodstawaPodatku", 138}, {"wPodatekNaliczony", 36},
              {"wUlgaZastosowana", 0}, {"wPodatekRazem", 36}, {"wPodstawaZdrowotnej", 172.58},
              {"wPotraceniaRazem", 78.95}, {"wNetto", 146.05}, {"wDoWyplaty", 121.05}}},
    {"GroupUAt20001", "31-01-2009", 200.01f,
     [](fx::Lista& l, core::Record& p) {
         koszty(p, 0.2f, 0);
         l.osobaNr(0).set(Osoba::Grupa, "u");
     },
     podstawa(200.01) + razem(11, 13.37, 2.16, {19.52, 3, 4.90}) +
         Pola{{"wEmerytalna", 19.52}, {"wRentowa", 3}, {"wChorobowa", 4.90}, {"wRentowaPracodawcy", 9},
              {"wWypadkowa", 3.60}, {"wKoszty", 34.52}, {"wPodstawaPodatku", 138}, {"wPodatekNaliczony", 24.84},
              {"wUlgaZastosowana", 0}, {"wPodstawaZdrowotnej", 172.59}, {"wNetto", 146.06}, {"wDoWyplaty", 146.06}}},
    // Group "z", 1000.00: the normal path (old-age 97.60, rent 15.00, sickness 24.50, sum 137.10;
    // tax base 751.65 -> 752; health base 862.90, 9 % 77.661 -> 77.66, 1.25 % 10.786 -> 10.79,
    // deductible 66.87; 135.36 - 46.33 = 89.03, less 66.87 = 22.16 -> 22; 88.87; deductions
    // 236.76, net 763.24), then the advance and the tax are cleared, the deductions are the
    // health parts 10.79 + 66.87 = 77.66 and 1000 - 77.66 = 922.34 is paid out (without a
    // rounding: the float nearest to 1000 less the float 77.66).
    {"GroupZ", "31-01-2009", 1000, [](fx::Lista& l, core::Record&) { l.osobaNr(0).set(Osoba::Grupa, "z"); },
     podstawa(1000) + Pola{{"wEmerytalna", 97.60}, {"wRentowa", 15}, {"wChorobowa", 24.50}, {"wRentowaPracodawcy", 45},
                           {"wWypadkowa", 18}, {"wPodstawaPodatku", 752}, {"wPodatekNaliczony", 0},
                           {"wPodstawaZdrowotnej", 862.90}, {"wZdrowotnaOdliczana", 66.87},
                           {"wZdrowotnaIndywidualna", 10.79}, {"wZaliczka", 0}, {"wPodatekRazem", sumaF({22, 66.87})},
                           {"wPotraceniaRazem", 77.66}, {"wNetto", 763.24}, {"wDoWyplaty", sumaF({1000, -77.66})}}},
    // February 2009: hired on the 15th, the 15 days before count as absent (not 14): f = 15/30,
    // base pay 1500.00. old-age 146.40, rent 22.50, sickness 36.75 (sum 205.65), employer rent
    // 67.50, accident 27.00; tax base 1500 - 111.25 - 205.65 = 1183.10 -> 1183; health base
    // 1294.35: 9 % 116.4915 -> 116.49, 1.25 % 16.1794 -> 16.18, deductible 100.31; 18 % of 1183 =
    // 212.94, less 46.33 = 166.61, less 100.31 = 66.30 -> 66; 166.31; deductions 16.18 + 205.65 +
    // 166.31 = 388.14; net 1111.86. The month has 28 days.
    {"February2009HiredOnThe15th", "28-02-2009", 3000,
     [](fx::Lista&, core::Record& p) { p.set(Pay::DataZatrudnienia, "15/02/2009"); },
     podstawa(1500, 3000) + razem(66, 100.31, 16.18, {146.40, 22.50, 36.75}) +
         Pola{{"wEmerytalna", 146.40}, {"wRentowa", 22.50}, {"wChorobowa", 36.75}, {"wRentowaPracodawcy", 67.50},
              {"wWypadkowa", 27}, {"wPodstawaPodatku", 1183}, {"wPodatekNaliczony", 166.61},
              {"wPodstawaZdrowotnej", 1294.35}, {"wNetto", 1111.86}, {"wDoWyplaty", 1111.86}},
     [](const core::WynikMiesiaca& w) {
         EXPECT_EQ(w.dniWMiesiacu, 28);
         EXPECT_EQ(w.dniNieobecnosci, 15);
     }},
    // February 2008 has 29 days: 29 unpaid days give f = 1/30 and, at 29 >= 29, the month wholly
    // absent clears the reduced elements; the housing allowance 100.00 stays payable, its reduced
    // share Round2(100 / 30) = 3.33 is the contribution base.
    //   contributions on 3.33: old-age 0.325 -> 0.33 (third decimal 5 up), rent 0.04995 -> 0.05,
    //   sickness 0.0816 -> 0.08 (sum 0.46), employer rent 0.14985 -> 0.15, accident 0.05994 ->
    //   0.06; tax base 100 - 111.25 - 0.46 < 0 -> 0; health base 99.54
    //   the tax is 0: the health parts and the relief used are 0, the relief 46.33 goes unused,
    //   and then to the benefits' tax of 0, which takes it back to 0; net 100 - 0.46 = 99.54
    {"February2008UnpaidMonth", "29-02-2008", 3000,
     [](fx::Lista&, core::Record& p) {
         p.set(Pay::BZP1dni, 29L);
         p.set(Pay::Mieszkaniowy, 100.0f);
     },
     podstawa(3.33) + razem(0, 0, 0, {}) +
         Pola{{"wZasadnicza", 0}, {"wMieszkaniowy", 100}, {"wBrutto", 100}, {"wBruttoPelne", 3100},
              {"wEmerytalna", 0.33}, {"wRentowa", 0.05}, {"wChorobowa", 0.08}, {"wRentowaPracodawcy", 0.15},
              {"wWypadkowa", 0.06}, {"wPodstawaPodatku", 0}, {"wPodatekNaliczony", 0}, {"wStawkaPodatku", 0},
              {"wUlgaZastosowana", 0}, {"wPodstawaZdrowotnej", 99.54},
              {"wPotraceniaRazem", sumaF({0.33, 0.05, 0.08})}, {"wNetto", 99.54}, {"wDoWyplaty", 99.54}},
     [](const core::WynikMiesiaca& w) {
         EXPECT_EQ(w.dniWMiesiacu, 29);
         EXPECT_EQ(w.dniNieobecnosci, 29);
         EXPECT_FLOAT_EQ(w.mieszkaniowyUdzial, 3.33f);
         EXPECT_EQ(w.placa.f(Pay::KwotaUlgi), 0.0f);  // the relief field is cleared
     }},
};

INSTANTIATE_TEST_SUITE_P(Months, WholeMonth, testing::ValuesIn(kMiesiace),
                         [](const testing::TestParamInfo<Miesiac>& i) { return std::string(i.param.name); });

}  // namespace

// 2250.00 in 2019 for a person born 15-03-1995 (the birth date built from the PESEL, the
// personnel record holding none): 24.39 years on 31-07-2019 (8904 days / 365) pays the advance
// 133 of the minimum wage above; 24.48 years on 31-08-2019 (8935 days) pays none from "201908",
// the health amount of 150.47 still taken: deductions 24.27 + 308.48 + 150.47 = 483.22, net 1766.78.
// A group "w" worker pays it on 31-08-2019 as well.
TEST(WholeMonthAge, UnderTwentySixBeforeAndFromAugust2019) {
    struct {
        const char* data;
        const char* grupa;
        const char* urodzony;  // empty: from the PESEL, 15-03-1995
        double wiek, zaliczka, netto;
    } cases[] = {
        {"31-07-2019", "a", "", 24.39, 133, 1633.78},
        {"31-08-2019", "a", "", 24.48, 0, 1766.78},
        {"31-08-2019", "w", "", 24.48, 133, 1633.78},
        // 9490 days are 26.00 years: the advance stays; 9488 days are 25.9945 -> 25.99: none
        {"31-08-2019", "a", "06-09-1993", 26.00, 133, 1633.78},
        {"31-08-2019", "a", "08-09-1993", 25.99, 0, 1766.78},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.data) + " " + c.grupa + " " + c.urodzony);
        fx::Lista l(c.data);
        l.dodaj("95031512345", 2250.00f, c.urodzony);
        l.osobaNr(0).set(Osoba::Grupa, c.grupa);
        ASSERT_EQ(l.licz("95031512345"), paycalc::Wynik::Policzono);
        const double suma = sumaF({219.60, 33.75, 55.13});
        const double razem = sumaF({c.zaliczka, 150.47});
        fx::sprawdzWynik(l.s.wynik, {
                                        {"wZasadnicza", 2250},
                                        {"wBrutto", 2250},
                                        {"wBruttoPelne", 2250},
                                        {"wPodstawaZUS", 2250},
                                        {"wEmerytalna", 219.60},
                                        {"wRentowa", 33.75},
                                        {"wChorobowa", 55.13},
                                        {"wRentowaPracodawcy", 146.25},
                                        {"wWypadkowa", 37.58},
                                        {"wKoszty", 111.25},
                                        {"wPodstawaPodatku", 1830},
                                        {"wPodatekNaliczony", 283.07},
                                        {"wStawkaPodatku", 0.18},
                                        {"wUlgaZastosowana", 46.33},
                                        {"wPodstawaZdrowotnej", 1941.52},
                                        {"wZdrowotnaOdliczana", 150.47},
                                        {"wZdrowotnaIndywidualna", 24.27},
                                        {"wZaliczka", c.zaliczka},
                                        {"wPodatekRazem", razem},
                                        {"wPotraceniaRazem", sumaF({24.27, suma, razem})},
                                        {"wNetto", c.netto},
                                        {"wDoWyplaty", c.netto},
                                        {"wPodstawaFP", 2250},
                                        {"wPodstawaFGSP", 2250},
                                    });
        EXPECT_EQ(l.s.wynik.wiekLat, static_cast<float>(c.wiek));
        EXPECT_EQ(l.s.wynik.osoba.s(Osoba::DataUrodzenia), *c.urodzony ? c.urodzony : "15-03-1995");
    }
}

// A list of two in 01-2009 walked with its files read once: the employee of the first example
// (3000.00, 1000.00 to the account), then an owner with insurance code "051000" and 2000.00.
// The owner's month: old-age 195.20, rent 30.00, sickness 49.00 (sum 274.20), employer rent
// 90.00, accident 36.00; tax base 2000 - 111.25 - 274.20 = 1614.55 -> 1615; health base the
// owner's 2491.57, 9 % 224.2413 -> 224.24 left whole. Then the calculation leaves for the group
// rules: tax, deductions, net, payment and the fund bases stay those of the employee before.
TEST(WholeMonthList, Code051KeepsThePreviousEmployeesValues) {
    fx::Lista l("31-01-2009");
    core::Record& p1 = l.dodaj("70051512345", 3000.00f);
    p1.set(Pay::ROR, 1000.0);
    p1.set(Pay::NumerKontaROR, "12 1240 4432 1111 0000 4820 1234");
    core::Record& p2 = l.dodaj("60010112345", 2000.00f);
    p2.set(Pay::KodUbezpieczenia, "051000");
    l.osobaNr(1).set(Osoba::KodUbezpieczenia, "051000");
    l.zapisz();
    reference::loadRates(l.s);
    const paycalc::ZbioryListy z = paycalc::wczytajZbiory(l.s);
    for (const char* klucz : {"70051512345", "60010112345"}) {
        l.s.KluczOsoby = klucz;
        ASSERT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, z), paycalc::Wynik::Policzono);
    }
    const double razem = sumaF({199, 200.62});
    fx::sprawdzWynik(l.s.wynik, {
                                    // the owner's own month
                                    {"wZasadnicza", 2000},
                                    {"wBrutto", 2000},
                                    {"wBruttoPelne", 2000},
                                    {"wPodstawaZUS", 2000},
                                    {"wEmerytalna", 195.20},
                                    {"wRentowa", 30},
                                    {"wChorobowa", 49},
                                    {"wRentowaPracodawcy", 90},
                                    {"wWypadkowa", 36},
                                    {"wKoszty", 111.25},
                                    {"wPodstawaPodatku", 1615},
                                    {"wPodstawaZdrowotnej", 2491.57},
                                    {"wZdrowotnaOdliczana", 224.24},
                                    // kept from the employee before
                                    {"wZdrowotnaIndywidualna", 32.36},
                                    {"wPodatekNaliczony", 399.53},
                                    {"wStawkaPodatku", 0.18},
                                    {"wUlgaZastosowana", 46.33},
                                    {"wZaliczka", 199},
                                    {"wPodatekRazem", razem},
                                    {"wPotraceniaRazem", sumaF({32.36, sumaF({292.80, 45, 73.50}), razem})},
                                    {"wNetto", 2156.72},
                                    {"wDoWyplaty", 1156.72},
                                    {"wNaROR", 1000},
                                    {"wPodstawaFP", 3000},
                                    {"wPodstawaFGSP", 3000},
                                });
    EXPECT_EQ(l.s.wynik.dniBazowe, 31);
}

