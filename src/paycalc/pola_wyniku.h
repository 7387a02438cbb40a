// The amounts of the result block by name: the two tables of core::WynikMiesiaca (the elements
// and gross pay; contributions, tax and net pay) in their order, each with the field of the
// monthly ledger that keeps it. The report of the calculation, the ledger record and the tests
// all go through this one list.
#pragma once
#include <array>
#include <cstddef>
#include <string_view>

#include "core/wynik.h"
#include "paycalc/karta_record.h"

namespace paycalc {

struct PoleWyniku {
    std::string_view nazwa;                  // as the report names it
    float core::TabeleWyniku::*pole;
    int karta;                               // the ledger field (Karta::...), 0 when the ledger has none
};

inline constexpr auto kPolaWyniku = std::to_array<PoleWyniku>({
    {"wZasadnicza", &core::TabeleWyniku::wZasadnicza, Karta::Zasadnicza},
    {"wFunkcyjny", &core::TabeleWyniku::wFunkcyjny, Karta::Funkcyjny},
    {"wStazowy", &core::TabeleWyniku::wStazowy, Karta::Stazowy},
    {"wPremia", &core::TabeleWyniku::wPremia, Karta::Premia},
    {"wSpecjalny", &core::TabeleWyniku::wSpecjalny, Karta::Specjalny},
    {"wInny", &core::TabeleWyniku::wInny, Karta::Inny},
    {"wMotywacyjny", &core::TabeleWyniku::wMotywacyjny, Karta::Motywacyjny},
    {"wWiejski", &core::TabeleWyniku::wWiejski, Karta::Wiejski},
    {"wSpecjalistyczny", &core::TabeleWyniku::wSpecjalistyczny, Karta::Specjalistyczny},
    {"wWychowawczy", &core::TabeleWyniku::wWychowawczy, Karta::Wychowawczy},
    {"wTrudnosciowy", &core::TabeleWyniku::wTrudnosciowy, Karta::Trudnosciowy},
    {"wEkwiwalent", &core::TabeleWyniku::wEkwiwalent, Karta::Ekwiwalent},
    {"wNocny", &core::TabeleWyniku::wNocny, Karta::Nocny},
    {"wWyrownania", &core::TabeleWyniku::wWyrownania, Karta::Wyrownania},
    {"wSzkodliwy", &core::TabeleWyniku::wSzkodliwy, Karta::Szkodliwy},
    {"wMieszkaniowy", &core::TabeleWyniku::wMieszkaniowy, Karta::Mieszkaniowy},
    {"wChorobowePlatne", &core::TabeleWyniku::wChorobowePlatne, Karta::ChorobowePracodawca},
    {"wZasilki", &core::TabeleWyniku::wZasilki, Karta::ChoroboweZUS},
    {"wZasilki311", &core::TabeleWyniku::wZasilki311, Karta::ChoroboweWypadkowe},
    {"wDni311", &core::TabeleWyniku::wDni311, 0},
    {"wDniZasilku", &core::TabeleWyniku::wDniZasilku, 0},
    {"wUrlopowe", &core::TabeleWyniku::wUrlopowe, Karta::Urlopowe},
    {"wBrutto", &core::TabeleWyniku::wBrutto, Karta::Brutto},
    {"wBruttoPelne", &core::TabeleWyniku::wBruttoPelne, 0},

    {"wPodstawaZUS", &core::TabeleWyniku::wPodstawaZUS, Karta::PodstawaZUS},
    {"wEmerytalna", &core::TabeleWyniku::wEmerytalna, Karta::SkladkaEmerytalna},
    {"wRentowa", &core::TabeleWyniku::wRentowa, Karta::SkladkaRentowa},
    {"wChorobowa", &core::TabeleWyniku::wChorobowa, Karta::SkladkaChorobowa},
    {"wRentowaPracodawcy", &core::TabeleWyniku::wRentowaPracodawcy, Karta::SkladkaRentowaPracodawcy},
    {"wWypadkowa", &core::TabeleWyniku::wWypadkowa, Karta::SkladkaWypadkowa},
    {"wKoszty", &core::TabeleWyniku::wKoszty, Karta::KosztyUzyskania},
    {"wPodstawaPodatku", &core::TabeleWyniku::wPodstawaPodatku, Karta::PodstawaPodatku},
    {"wPodatekNaliczony", &core::TabeleWyniku::wPodatekNaliczony, Karta::Podatek},
    {"wStawkaPodatku", &core::TabeleWyniku::wStawkaPodatku, Karta::StawkaZastosowana},
    {"wUlgaZastosowana", &core::TabeleWyniku::wUlgaZastosowana, Karta::UlgaZastosowana},
    {"wUlgaNiewykorzystana", &core::TabeleWyniku::wUlgaNiewykorzystana, Karta::UlgaNiewykorzystana},
    {"wPodstawaZdrowotnej", &core::TabeleWyniku::wPodstawaZdrowotnej, Karta::PodstawaZdrowotna},
    {"wZdrowotnaOdliczana", &core::TabeleWyniku::wZdrowotnaOdliczana, Karta::SkladkaZdrowotnaOdliczana},
    {"wZdrowotnaIndywidualna", &core::TabeleWyniku::wZdrowotnaIndywidualna, Karta::SkladkaZdrowotnaPozostala},
    {"wZaliczka", &core::TabeleWyniku::wZaliczka, Karta::PodatekNetto},
    {"wPodatekRazem", &core::TabeleWyniku::wPodatekRazem, 0},
    {"wRataZFM", &core::TabeleWyniku::wRataZFM, Karta::ZFMRata},
    {"wRataKZP", &core::TabeleWyniku::wRataKZP, Karta::KZPRata},
    {"wSkladkaKZP", &core::TabeleWyniku::wSkladkaKZP, Karta::KZPSkladka},
    {"wPotraceniaInne", &core::TabeleWyniku::wPotraceniaInne, Karta::PotraceniaInne},
    {"wPotracenie1", &core::TabeleWyniku::wPotracenie1, Karta::Potracenie1},
    {"wPotracenie2", &core::TabeleWyniku::wPotracenie2, Karta::Potracenie2},
    {"wZwiazek", &core::TabeleWyniku::wZwiazek, Karta::ZwiazekZawodowy},
    {"wSolidarnosc", &core::TabeleWyniku::wSolidarnosc, Karta::Solidarnosc},
    {"wPZU", &core::TabeleWyniku::wPZU, Karta::PZU},
    {"wPotraceniaPoZasilkach", &core::TabeleWyniku::wPotraceniaPoZasilkach, Karta::Potracenie3},
    {"wPotraceniaRazem", &core::TabeleWyniku::wPotraceniaRazem, 0},
    {"wNetto", &core::TabeleWyniku::wNetto, 0},
    {"wDoWyplaty", &core::TabeleWyniku::wDoWyplaty, Karta::DoWyplaty},
    {"wNaROR", &core::TabeleWyniku::wNaROR, Karta::NaROR},
    {"wNiedobor", &core::TabeleWyniku::wNiedobor, Karta::Niedobor},
    {"wPodatekZasilki", &core::TabeleWyniku::wPodatekZasilki, Karta::PodatekOdZasilkow},
    {"wPodatekZasilkiPelny", &core::TabeleWyniku::wPodatekZasilkiPelny, 0},
    {"wZasilkiNaROR", &core::TabeleWyniku::wZasilkiNaROR, Karta::ZasilkiDoROR},
    {"wZasilkiDoKasy", &core::TabeleWyniku::wZasilkiDoKasy, Karta::ZasilkiDoKasy},
    {"wSkladkiOdZasilkow", &core::TabeleWyniku::wSkladkiOdZasilkow, 0},
    {"wPodstawaFP", &core::TabeleWyniku::wPodstawaFP, Karta::PodstawaFP},
    {"wPodstawaFGSP", &core::TabeleWyniku::wPodstawaFGSP, Karta::PodstawaFGSP},
});

namespace detail {
// Every amount of the tables once, and no two on one ledger field.
constexpr bool kazdeRaz() {
    for (std::size_t i = 0; i < kPolaWyniku.size(); ++i)
        for (std::size_t j = i + 1; j < kPolaWyniku.size(); ++j) {
            if (kPolaWyniku[i].pole == kPolaWyniku[j].pole || kPolaWyniku[i].nazwa == kPolaWyniku[j].nazwa) return false;
            if (kPolaWyniku[i].karta != 0 && kPolaWyniku[i].karta == kPolaWyniku[j].karta) return false;
        }
    return true;
}
}  // namespace detail
static_assert(sizeof(core::TabeleWyniku) == kPolaWyniku.size() * sizeof(float),
              "an amount of the result block is missing from kPolaWyniku");
static_assert(detail::kazdeRaz(), "an amount or a ledger field stands twice in kPolaWyniku");

}  // namespace paycalc
