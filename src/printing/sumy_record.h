// The sums of a printed pay list: SUMY\S<list><RRmm>.sum under the payer's folder, one field a
// line, 66 fields, replaced by each full print of the list (never by the payslips). The
// collective summary of a set of lists reads them.
#pragma once
#include <filesystem>
#include <string>

#include "core/record.h"
#include "core/session.h"

namespace printing {

namespace Sumy {
enum : int {
    LiczbaOsob = 1, Zasadnicza, Stazowy, Nadlicz, Trudnosciowy, PodstawaPodatku, KZPRata, PZU, PotraceniaInne,
    PodatekNetto, Podatek, SkladkaZdrowotnaPozostala, PoPotraceniach, Netto, Funkcyjny, Wiejski, Premia,
    PodstawaZdrowotna, KZPSkladka, SkladkaZdrowotnaOdliczana, Solidarnosc, ZasilekPielegnacyjny, NaROR, Nagroda,
    Specjalny, Szkodliwy, Mieszkaniowy, PodstawaZUS, ZwiazekZawodowy, ZFMRata, Potracenie1, ZasilekRodzinny,
    Wyrownania, DoWyplaty, Motywacyjny, Ekwiwalent, Brutto, SkladkaChorobowa, SkladkaRentowa, SkladkaEmerytalna,
    RazemSkl, RazemPot, ZasilekZUS, Rezerwa44, DniKod331, DniInneKody, DniUrlopu, DniNieobecnosci,
    PodatekOdZasilkow, ZasilkiZUS, ChorobowePracodawca, Urlopowe, ZasilekZUSDrugi, ZasilekWychowawczy, Potracenie2,
    Potracenie3, FunduszPracy, Emerytalna, Wypadkowa, FGSP, Rentowa, Etaty, Nocny, Rezerwa64, Pomostowa,
    ZasilkiGotowka, Count = ZasilkiGotowka
};
const core::Schema& schema();
// SUMY\S<list><RRmm>.sum of the session's payer.
std::filesystem::path path(const core::Session& s, const std::string& list, const std::string& RRmm);
std::filesystem::path path(const core::Session& s);
// The one record of the file (Error 53 when missing).
core::Record read(const std::filesystem::path& file);
// Replaces the file by the record; the folder SUMY is made when the payer has none.
void write(const core::Session& s, const core::Record& rec);
}  // namespace Sumy

}  // namespace printing
