// Whole months of one employee, worked out by hand from the rules of the calculation and
// checked field by field: every field of the result tables not named is 0.
#include <gtest/gtest.h>

#include "fixture.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
using fx::sumaF;

// 01-2009, 3000.00 full time, costs 111.25, relief 46.33, 1000.00 to the account.
//   contributions on 3000: old-age 9.76 % 292.80, rent 1.5 % 45.00, sickness 2.45 % 73.50
//   (sum 411.30); employer rent 4.5 % 135.00, accident 1.80 % 54.00
//   tax base 3000 - 111.25 - 411.30 = 2477.45 -> 2477
//   health base 3000 - 411.30 = 2588.70; 9 % 232.983 -> 232.98; 1.25 % 32.358 -> 32.36;
//   deductible 232.98 - 32.36 = 200.62
//   income so far 3000 - 411.30 - 111.25 = 2477.45 < 85528: 18 % of 2477 = 445.86;
//   less relief 399.53; less 200.62 = 198.91 (>= 32.36, which stays) -> 199
//   tax with health 199 + 200.62 = 399.62; deductions 32.36 + 411.30 + 399.62 = 843.28
//   net 3000 - 843.28 = 2156.72; cash 2156.72 - 1000 = 1156.72
TEST(WholeMonth, FullTime3000In2009) {
    fx::Lista l("31-01-2009");
    core::Record& p = l.dodaj("70051512345", 3000.00f);
    p.set(Pay::ROR, 1000.0);
    p.set(Pay::NumerKontaROR, "12 1240 4432 1111 0000 4820 1234");
    ASSERT_EQ(l.licz("70051512345"), paycalc::Wynik::Policzono);
    fx::sprawdzWynik(l.s.wynik, {
                                    {"wZasadnicza", 3000},
                                    {"wBrutto", 3000},
                                    {"wBruttoPelne", 3000},
                                    {"wPodstawaZUS", 3000},
                                    {"wEmerytalna", 292.80},
                                    {"wRentowa", 45},
                                    {"wChorobowa", 73.50},
                                    {"wRentowaPracodawcy", 135},
                                    {"wWypadkowa", 54},
                                    {"wKoszty", 111.25},
                                    {"wPodstawaPodatku", 2477},
                                    {"wPodatekNaliczony", 399.53},
                                    {"wStawkaPodatku", 0.18},
                                    {"wUlgaZastosowana", 46.33},
                                    {"wPodstawaZdrowotnej", 2588.70},
                                    {"wZdrowotnaOdliczana", 200.62},
                                    {"wZdrowotnaIndywidualna", 32.36},
                                    {"wZaliczka", 199},
                                    {"wPodatekRazem", sumaF({199, 200.62})},
                                    {"wPotraceniaRazem", sumaF({32.36, sumaF({292.80, 45, 73.50}), sumaF({199, 200.62})})},
                                    {"wNetto", 2156.72},
                                    {"wDoWyplaty", 1156.72},
                                    {"wNaROR", 1000},
                                    {"wPodstawaFP", 3000},
                                    {"wPodstawaFGSP", 3000},
                                });
    EXPECT_TRUE(l.ui.boxes.empty());
}
