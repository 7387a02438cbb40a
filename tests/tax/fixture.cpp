#include "fixture.h"

#include "paycalc/karta_record.h"
#include "support/ledger.h"

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;

namespace tax_tests {

Dane::Dane() : Demo("31-01-2021") {
    // Without the demo's January overtime and additions: each test writes the files it sums.
    for (const char* f : {"Godziny/aGod2101.dta", "Dodatki/aDod2101.dta"}) std::filesystem::remove(payer() / f);
    s.NazwaZbioru = "a";
    s.KluczOsoby = kNowak;
    s.NazwiskoOsoby = "NOWAK";
    s.ImieOsoby = "JAN";
    s.KodUbezpieczeniaOsoby = "011000";
}

void Dane::karta(const std::string& lista, const std::string& RRmm, const std::vector<core::Record>& recs) {
    core::writeAll(K::path(s, lista, RRmm), recs);
}

void Dane::dodatkowy(D::Rodzaj r, const std::string& lista, const std::string& stamp, const std::vector<core::Record>& recs) {
    D::writeAll(D::path(s, r, lista, stamp), r, recs);
}

core::Record karta(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                   std::vector<std::pair<int, double>> kwoty, const std::string& kod) {
    return testing_support::rekordKarty(nazwisko, imie, klucz, kwoty,
                                        {{K::KodUbezpieczenia, kod}, {K::Obywatelstwo, "POLSKIE"}});
}

core::Record dodatkowy(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                       std::vector<std::pair<int, double>> kwoty, std::vector<std::pair<int, std::string>> teksty) {
    return testing_support::rekordDodatkowy(nazwisko, imie, klucz, kwoty, teksty);
}

void miesiacPit4(Dane& d) {
    using D::Rodzaj;
    auto zdrowie = [](double podstawa, double pozostala, double odliczana, double podatek) {
        return std::vector<std::pair<int, double>>{{K::PodstawaZdrowotna, podstawa},
                                                   {K::SkladkaZdrowotnaPozostala, pozostala},
                                                   {K::SkladkaZdrowotnaOdliczana, odliczana},
                                                   {K::PodatekNetto, podatek}};
    };
    core::Record pominiety = karta("KAMIŃSKA", "KATARZYNA", "01251923443", zdrowie(5000, 62.5, 387.5, 500));
    pominiety.set(K::NaLiscie, 2);
    d.karta("a", "2101", {karta("NOWAK", "JAN", kNowak, zdrowie(1000, 12.5, 77.5, 100)), pominiety,
                          karta("WIŚNIEWSKA", "MARIA", "63072245629", zdrowie(2000, 25, 155, 200))});
    d.karta("p", "2101", {karta("PIĄTEK", "ADAM", "70010112345", zdrowie(3000, 37.5, 232.5, 300)),
                          karta("WŁAŚCICIEL", "JAN", "60010112345", zdrowie(9999, 1, 1, 1), "051000"),
                          karta("PÓŹNY", "ADAM", "70010154321", zdrowie(7777, 1, 1, 1))});
    d.dodatkowy(Rodzaj::God, "p", "2101", {dodatkowy("PIĄTEK", "ADAM", "70010112345", {{D::PodstawaZdrowotna, 111}})});
    d.dodatkowy(Rodzaj::God, "a", "2101",
                {dodatkowy("NOWAK", "JAN", kNowak,
                           {{D::PodstawaZdrowotna, 400}, {D::SkladkaZdrowotna, 5}, {D::SkladkaIndywidualna, 31}, {D::PodatekNetto, 40}})});
    d.dodatkowy(Rodzaj::Dod, "a", "2101",
                {dodatkowy("NOWAK", "JAN", kNowak, {{D::Kw1, 1000}, {D::Kw2, 200}, {D::Kw3, 300}, {D::StawkaPodatku, 0.18}},
                           {{D::Il1, "000"}, {D::Il2, "011"}, {D::Il3, "100"}})});
    d.dodatkowy(Rodzaj::Trz, "a", "21",
                {dodatkowy("WIŚNIEWSKA", "MARIA", "63072245629", {{D::KwotaBrutto, 5000}}),
                 dodatkowy("NOWAK", "JAN", kNowak, {{D::KwotaBrutto, 2000}})});
    d.dodatkowy(Rodzaj::SwU, "a", "2101", {dodatkowy("NOWAK", "JAN", kNowak, {{D::KwotaBrutto, 1000}, {D::PodatekNetto, 50}})});
    d.dodatkowy(Rodzaj::Jub, "a", "2101", {dodatkowy("NOWAK", "JAN", kNowak, {{D::KwotaBrutto, 3000}, {D::PodatekNetto, 100}})});
}

void rokNowaka(Dane& d) {
    using D::Rodzaj;
    core::Record inny = karta("WIŚNIEWSKA", "MARIA", "63072245629", {{K::Brutto, 9999}, {K::PodatekNetto, 999}});
    d.karta("a", "2101",
            {inny, karta("NOWAK", "JAN", kNowak,
                         {{K::Brutto, 5000}, {K::ChoroboweZUS, 400}, {K::ChoroboweWypadkowe, 100}, {K::KosztyUzyskania, 250.004},
                          {K::SkladkaZdrowotnaOdliczana, 300}, {K::SkladkaZdrowotnaPozostala, 50}, {K::SkladkaEmerytalna, 488},
                          {K::SkladkaRentowa, 75}, {K::SkladkaChorobowa, 122.5}, {K::KwotaUlgi, 43.76}, {K::PodatekNetto, 400}})});
    d.karta("a", "2103",
            {inny, karta("NOWAK", "JAN", kNowak, {{K::Brutto, 6000}, {K::ChoroboweZUS, 301}, {K::PodatekOdZasilkow, 55},
                                                   {K::PodatekNetto, 500}})});
    d.dodatkowy(Rodzaj::God, "a", "2101",
                {dodatkowy("WIŚNIEWSKA", "MARIA", "63072245629", {{D::Kw1, 999}}),
                 dodatkowy("NOWAK", "JAN", kNowak,
                           {{D::Kw1, 100}, {D::Kw2, 50}, {D::KwotaBrutto, 200}, {D::SkladkaZdrowotna, 10}, {D::PodatekNetto, 20}})});
    d.dodatkowy(Rodzaj::Trz, "a", "21",
                {dodatkowy("NOWAK", "JAN", kNowak,
                           {{D::KwotaBrutto, 1000}, {D::SkladkaZdrowotna, 77.5}, {D::SkladkaIndywidualna, 12.5}, {D::PodatekNetto, 150}})});
}

}  // namespace tax_tests
