#include "fixture.h"

#include "paycalc/karta_record.h"
#include "support/ledger.h"

namespace K = paycalc::Karta;

namespace printing_tests {

core::Record osoba(const std::string& nazwisko, const std::string& imie, std::vector<std::pair<int, double>> kwoty,
                   std::vector<std::pair<int, std::string>> teksty) {
    teksty.insert(teksty.begin(), {K::DataListy, "31/01/2021"});
    return testing_support::rekordKarty(nazwisko, imie, "", kwoty, teksty);
}

core::Record kowalski() {
    return osoba("Kowalski", "Jan",
                 {{K::Zasadnicza, 4000},       {K::Stazowy, 400},
                  {K::Premia, 200},            {K::NaROR, 3000},
                  {K::KosztyUzyskania, 250},   {K::StawkaPodatku, 0.17},
                  {K::KZPRata, 100},           {K::KZPSkladka, 50},
                  {K::ZwiazekZawodowy, 20},    {K::LiczbaDni1, 4},
                  {K::Podatek, 588.47},        {K::SkladkaWypadkowa, 76.82},
                  {K::SkladkaRentowa, 69},     {K::SkladkaEmerytalna, 448.96},
                  {K::DniUrlopu, 2},           {K::StawkaUrlopowa, 190.5},
                  {K::SredniaChorobowa, 30},   {K::SkladkaChorobowa, 112.7},
                  {K::SkladkaZdrowotnaPozostala, 49.62}, {K::PodatekNetto, 281},
                  {K::Brutto, 4600},           {K::PodstawaPodatku, 3719},
                  {K::PodstawaZdrowotna, 3969.34}, {K::PodstawaZUS, 4600},
                  {K::SkladkaZdrowotnaOdliczana, 307.62}, {K::DoWyplaty, 161.1},
                  {K::ChorobowePracodawca, 120}, {K::CheckWypadkowa, 1},
                  {K::PodstawaFP, 4600},       {K::PodstawaFGSP, 4600},
                  {K::SkladkaRentowaPracodawcy, 299}, {K::UlgaZastosowana, 43.76}},
                 {{K::Klucz, "80010112345"},
                  {K::KodUbezpieczenia, "011000"},
                  {K::NumerKonta, "12 1240 4432 1111 0000 4820 1234"},
                  {K::KodPrzerwy1, "331"},
                  {K::Grupa, "a"},
                  {K::Etat, "  1  1"}});
}

core::Record nowak() {
    return osoba("Nowak", "Anna",
                 {{K::LiczbaDni1, 10},
                  {K::LiczbaDni2, 3},
                  {K::LiczbaDni3, 5},
                  {K::LiczbaDni4, 2},
                  {K::SredniaChorobowa, 45.5},
                  {K::ChoroboweZUS, 500},
                  {K::StawkaPodatku, 0.17},
                  {K::UlgaNiewykorzystana, 43.76}},
                 {{K::Klucz, "85020254321"},
                  {K::KodPrzerwy1, "313"},
                  {K::KodPrzerwy2, "331"},
                  {K::KodPrzerwy3, "313"},
                  {K::KodPrzerwy4, "331"},
                  {K::Grupa, "a"},
                  {K::Etat, "  1  2"}});
}

core::Record prosta(int i) {
    static const char* imiona[] = {"Łukasz", "Żaneta", "Piotr", "Ewa", "Michał", "Zofia", "Adam"};
    std::string nr = (i < 10 ? "0" : "") + std::to_string(i);
    double kwota = 3000 + i;
    return osoba("Pracownik" + nr, imiona[(i - 1) % 7], {{K::Zasadnicza, kwota}, {K::Brutto, kwota}, {K::DoWyplaty, kwota}},
                 {{K::Etat, "  1  1"}, {K::Grupa, "a"}});
}

std::vector<core::Record> proste(int ile) {
    std::vector<core::Record> v;
    for (int i = 1; i <= ile; ++i) v.push_back(prosta(i));
    return v;
}

std::vector<core::Record> demoListaA() {
    return {
        osoba("NOWAK", "JAN", {{K::Zasadnicza, 5200}, {K::Funkcyjny, 600}, {K::Stazowy, 780}, {K::Premia, 1040.0}, {K::Brutto, 7620.0}, {K::PodstawaZUS, 7620.0}, {K::SkladkaEmerytalna, 743.71}, {K::SkladkaRentowa, 114.3}, {K::SkladkaChorobowa, 186.69}, {K::PodstawaZdrowotna, 6575.3}, {K::SkladkaZdrowotnaOdliczana, 509.59}, {K::SkladkaZdrowotnaPozostala, 82.19}, {K::PodstawaPodatku, 6325.0}, {K::Podatek, 1031.49}, {K::PodatekNetto, 522.0}, {K::KosztyUzyskania, 250}, {K::UlgaZastosowana, 43.76}, {K::NaROR, 5461.52}, {K::SkladkaRentowaPracodawcy, 495.3}, {K::SkladkaWypadkowa, 127.25}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 7620.0}, {K::PodstawaFGSP, 7620.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "75031412317"}, {K::Etat, "  1  1"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "25 1020 5011 1083 5734 3193 9106"}}),
        osoba("WIŚNIEWSKA", "MARIA", {{K::Zasadnicza, 4800}, {K::Stazowy, 960}, {K::Premia, 960.0}, {K::DniUrlopu, 3}, {K::StawkaUrlopowa, 251.17}, {K::Urlopowe, 753.51}, {K::Brutto, 6720.0}, {K::PodstawaZUS, 6720.0}, {K::SkladkaEmerytalna, 655.87}, {K::SkladkaRentowa, 100.8}, {K::SkladkaChorobowa, 164.64}, {K::PodstawaZdrowotna, 5798.69}, {K::SkladkaZdrowotnaOdliczana, 449.4}, {K::SkladkaZdrowotnaPozostala, 72.48}, {K::PodstawaPodatku, 5549.0}, {K::Podatek, 899.57}, {K::PodatekNetto, 450.0}, {K::KosztyUzyskania, 250}, {K::UlgaZastosowana, 43.76}, {K::NaROR, 4826.81}, {K::SkladkaRentowaPracodawcy, 436.8}, {K::SkladkaWypadkowa, 112.22}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 6720.0}, {K::PodstawaFGSP, 6720.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "63072245629"}, {K::Etat, "  1  1"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "68 1240 4432 1096 0361 3371 9499"}}),
        osoba("ZIELIŃSKI", "PIOTR", {{K::Zasadnicza, 2200}, {K::Brutto, 2200.0}, {K::PodstawaZUS, 2200.0}, {K::SkladkaEmerytalna, 214.72}, {K::SkladkaRentowa, 33.0}, {K::SkladkaChorobowa, 53.9}, {K::PodstawaZdrowotna, 1898.38}, {K::SkladkaZdrowotnaOdliczana, 147.12}, {K::SkladkaZdrowotnaPozostala, 23.73}, {K::PodstawaPodatku, 1598.0}, {K::Podatek, 227.9}, {K::PodatekNetto, 81.0}, {K::KosztyUzyskania, 300}, {K::UlgaZastosowana, 43.76}, {K::NaROR, 1646.53}, {K::SkladkaRentowaPracodawcy, 143.0}, {K::SkladkaWypadkowa, 36.74}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 2200.0}, {K::PodstawaFGSP, 2200.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "88110578938"}, {K::Etat, "  1  2"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "30 1020 5011 1108 4988 3549 9892"}}),
        osoba("KAMIŃSKA", "KATARZYNA", {{K::Zasadnicza, 3200}, {K::Premia, 320.0}, {K::Brutto, 3520.0}, {K::PodstawaZUS, 3520.0}, {K::SkladkaEmerytalna, 343.55}, {K::SkladkaRentowa, 52.8}, {K::SkladkaChorobowa, 86.24}, {K::PodstawaZdrowotna, 3037.41}, {K::SkladkaZdrowotnaPozostala, 273.37}, {K::PodstawaPodatku, 2787.0}, {K::KosztyUzyskania, 250}, {K::NaROR, 2764.04}, {K::SkladkaRentowaPracodawcy, 228.8}, {K::SkladkaWypadkowa, 58.78}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 3520.0}, {K::PodstawaFGSP, 3520.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "01251923443"}, {K::Etat, "  1  1"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "73 1240 4432 1120 9615 3728 0285"}}),
        osoba("KOWALENKO", "OLENA", {{K::Zasadnicza, 2250.0}, {K::LiczbaDni1, 5}, {K::SredniaChorobowa, 106.3}, {K::ChorobowePracodawca, 425.2}, {K::Brutto, 2675.2}, {K::PodstawaZUS, 2250.0}, {K::SkladkaEmerytalna, 219.6}, {K::SkladkaRentowa, 33.75}, {K::SkladkaChorobowa, 55.13}, {K::PodstawaZdrowotna, 2366.72}, {K::SkladkaZdrowotnaOdliczana, 183.42}, {K::SkladkaZdrowotnaPozostala, 29.58}, {K::PodstawaPodatku, 2117.0}, {K::Podatek, 316.13}, {K::PodatekNetto, 133.0}, {K::KosztyUzyskania, 250}, {K::UlgaZastosowana, 43.76}, {K::NaROR, 2020.72}, {K::SkladkaRentowaPracodawcy, 146.25}, {K::SkladkaWypadkowa, 37.57}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 2250.0}, {K::PodstawaFGSP, 2250.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "FA1234567"}, {K::Etat, "  3  4"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "35 1020 5011 1133 4242 3906 0678"}, {K::KodPrzerwy1, "331"}}),
        osoba("DĄBROWSKI", "MAREK", {{K::Zasadnicza, 4600}, {K::Stazowy, 368}, {K::Premia, 920.0}, {K::Brutto, 5888.0}, {K::PodstawaZUS, 5888.0}, {K::SkladkaEmerytalna, 574.67}, {K::SkladkaRentowa, 88.32}, {K::SkladkaChorobowa, 144.26}, {K::PodstawaZdrowotna, 5080.75}, {K::SkladkaZdrowotnaOdliczana, 393.76}, {K::SkladkaZdrowotnaPozostala, 63.51}, {K::PodstawaPodatku, 4831.0}, {K::Podatek, 777.51}, {K::PodatekNetto, 384.0}, {K::KosztyUzyskania, 250}, {K::UlgaZastosowana, 43.76}, {K::DoWyplaty, 4239.48}, {K::SkladkaRentowaPracodawcy, 382.72}, {K::SkladkaWypadkowa, 98.33}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 5888.0}, {K::PodstawaFGSP, 5888.0}, {K::StawkaPodatku, 0.17}},
              {{K::Klucz, "80120356757"}, {K::Etat, "  1  1"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}}),
        osoba("LEWANDOWSKA", "EWA", {{K::Zasadnicza, 3000}, {K::Stazowy, 150}, {K::Brutto, 3150.0}, {K::PodstawaZUS, 3150.0}, {K::SkladkaEmerytalna, 307.44}, {K::SkladkaRentowa, 47.25}, {K::SkladkaChorobowa, 77.18}, {K::PodstawaZdrowotna, 2718.13}, {K::SkladkaZdrowotnaOdliczana, 210.66}, {K::SkladkaZdrowotnaPozostala, 33.97}, {K::PodstawaPodatku, 2468.0}, {K::Podatek, 375.8}, {K::PodatekNetto, 165.0}, {K::KosztyUzyskania, 250}, {K::UlgaZastosowana, 43.76}, {K::NaROR, 2178.5}, {K::SkladkaRentowaPracodawcy, 204.75}, {K::SkladkaWypadkowa, 52.61}, {K::CheckWypadkowa, 1}, {K::PodstawaFP, 3150.0}, {K::PodstawaFGSP, 3150.0}, {K::StawkaPodatku, 0.17}, {K::KZPRata, 100}, {K::KZPSkladka, 30}},
              {{K::Klucz, "85031589069"}, {K::Etat, "  3  4"}, {K::Grupa, "a"}, {K::KodUbezpieczenia, "011000"}, {K::NumerKonta, "40 1020 5011 1158 3496 4262 1464"}}),
    };
}

Dane::Dane(const std::string& dataListy) : Demo(dataListy) { lista("a"); }

void Dane::karta(const std::vector<core::Record>& recs) {
    core::writeAll(K::path(s), recs);
    s.LiczbaOsob = static_cast<int>(recs.size());
}

}  // namespace printing_tests
