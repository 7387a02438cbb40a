#include "rok_fixture.h"

#include <filesystem>

#include "core/paths.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "support/ledger.h"

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;

namespace yearledger_tests {

core::Record karta(std::vector<std::pair<int, double>> kwoty, std::vector<std::pair<int, std::string>> teksty,
                   const std::string& klucz) {
    teksty.insert(teksty.begin(), {{K::KodUbezpieczenia, "011000"}, {K::Etat, "  1  1"}});
    return testing_support::rekordKarty("KOWALSKI", "JAN", klucz, kwoty, teksty);
}

core::Record styczen() {
    return karta({{K::Zasadnicza, 4000}, {K::Funkcyjny, 300}, {K::Stazowy, 400}, {K::Premia, 200},
                  {K::Specjalny, 50}, {K::Inny, 60}, {K::Motywacyjny, 70}, {K::Wiejski, 80},
                  {K::Specjalistyczny, 90}, {K::Wychowawczy, 15}, {K::Trudnosciowy, 110}, {K::Ekwiwalent, 120},
                  {K::Nocny, 130}, {K::Wyrownania, 140}, {K::Szkodliwy, 150}, {K::Mieszkaniowy, 160},
                  {K::Brutto, 6075}, {K::ZFMRata, 11}, {K::KZPRata, 12}, {K::KZPSkladka, 13},
                  {K::PotraceniaInne, 14}, {K::ZwiazekZawodowy, 16}, {K::Solidarnosc, 17}, {K::PZU, 18},
                  {K::Potracenie1, 19}, {K::Potracenie2, 21}, {K::Potracenie3, 22}, {K::SkladkaEmerytalna, 500},
                  {K::SkladkaRentowa, 80}, {K::SkladkaChorobowa, 140}, {K::SkladkaZdrowotnaPozostala, 50},
                  {K::SkladkaZdrowotnaOdliczana, 400}, {K::PodatekNetto, 300}, {K::Podatek, 700},
                  {K::ZasilekZUS, 25}, {K::ZasilekRodzinny, 26}, {K::ZasilekPielegnacyjny, 27},
                  {K::ZasilekWychowawczy, 28}, {K::PodstawaZUS, 5000}, {K::PodstawaFP, 4000},
                  {K::DniChorobyZUS, 3}, {K::SredniaChorobowa, 45.5}, {K::ChoroboweZUS, 136.5},
                  {K::KosztyUzyskania, 250}, {K::StawkaPodatku, 0.17}, {K::UlgaZastosowana, 43.76},
                  {K::PodstawaPodatku, 5105}, {K::PodstawaZdrowotna, 4500}, {K::StawkaZdrowotna15, 0.09},
                  {K::DoWyplaty, 4920}, {K::NaROR, 3000}, {K::PodatekOdZasilkow, 23}, {K::SkladkaWypadkowa, 83.5},
                  {K::SkladkaRentowaPracodawcy, 325}, {K::DniUrlopu, 2}, {K::StawkaUrlopowa, 190.5}},
                 {{K::NumerKonta, "12 3456"}});
}

core::Record marzec() {
    return karta({{K::Zasadnicza, 3000}, {K::Brutto, 3000}, {K::SkladkaEmerytalna, 292.8}, {K::SkladkaRentowa, 45},
                  {K::SkladkaChorobowa, 73.5}, {K::PodatekNetto, 200}, {K::SkladkaZdrowotnaPozostala, 40},
                  {K::StawkaPodatku, 0.32}, {K::PodstawaZUS, 3000}, {K::PodstawaFP, 3000}, {K::DoWyplaty, 2348.7}});
}

core::Record dodatkowy(std::vector<std::pair<int, double>> pola) {
    return testing_support::rekordDodatkowy("KOWALSKI", "JAN", kKlucz, pola, {{D::DataListy, "31-01-2020"}});
}

Rok::Rok() : Demo("31-12-2020") {
    // The year is made here alone: the demo year's ledgers and supplementary files go.
    for (const char* f : {"Karta", "Godziny", "Dodatki", "Trzynastki", "Jubileu", "Urlopy"})
        for (const auto& e : std::filesystem::directory_iterator(payer() / f))
            if (e.path().extension() == ".dta") std::filesystem::remove(e.path());
    s.NazwaZbioru = "a";
    s.Grupa = "a";
    s.KluczOsoby = kKlucz;
    s.NazwiskoOsoby = "KOWALSKI";
    s.ImieOsoby = "JAN";
    s.KodUbezpieczeniaOsoby = "011000";
}

void Rok::zapisz(bool trzynastka) {
    core::writeAll(K::path(s, "a", "2001"), {karta({{K::Zasadnicza, 9}}, {}, "99999999999"), styczen()});
    core::writeAll(K::path(s, "a", "2003"), {marzec()});
    D::writeAll(D::path(s, D::Rodzaj::God, "a", "2001"), D::Rodzaj::God,
                {dodatkowy({{D::KwotaBrutto, 200}, {D::Kw1, 200}, {D::RazemKwota, 200}, {D::PodstawaZdrowotna, 172.58},
                            {D::SkladkaZdrowotna, 15.69}, {D::SkladkaIndywidualna, 2.18}, {D::PodatekNetto, 20},
                            {D::PlacaNetto, 134.71}})});
    D::writeAll(D::path(s, D::Rodzaj::Dod, "a", "2001"), D::Rodzaj::Dod,
                {dodatkowy({{D::KwotaBrutto, 100}, {D::Kw1, 100}, {D::RazemKwota, 100}, {D::BruttoOd01, 200000},
                            {D::PodstawaZdrowotna, 97.55}, {D::SkladkaZdrowotna, 7.85}, {D::SkladkaIndywidualna, 1.09},
                            {D::PodatekNetto, 10}, {D::PlacaNetto, 78.61}})});
    D::writeAll(D::path(s, D::Rodzaj::SwU, "a", "2006"), D::Rodzaj::SwU,
                {dodatkowy({{D::KwotaBrutto, 500}, {D::StawkaPodatku, 17}, {D::PodatekNetto, 85}, {D::DoWyplaty, 415}})});
    if (trzynastka)
        D::writeAll(D::path(s, D::Rodzaj::Trz, "a", "20"), D::Rodzaj::Trz,
                    {dodatkowy({{D::KwotaBrutto, 1000}, {D::StawkaPodatku, 0.17}, {D::PodstawaZdrowotna, 862.9},
                                {D::SkladkaZdrowotna, 77.66}, {D::SkladkaIndywidualna, 10.79}, {D::PodatekNetto, 70},
                                {D::DoWyplaty, 700}})});
}

}  // namespace yearledger_tests
