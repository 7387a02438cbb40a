// The contribution merge file of a payer and month: zus\rcp<RRMM>.dta, one record of 84 items
// per person and insurance code, one item a line. The reserved positions that are never
// assigned are kept as empty items.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace zus {

namespace Rcp {
enum : int {
    Lp = 1, Nazwisko, Imie, PESEL, KodUbez, Etat, Rezerwa7, PodstZUS, PodstChorobowa, PodstZdro,
    Rezerwa11, Rezerwa12, Rezerwa13, SklZdro, InnyIdentyfikator, Obywatelstwo, ZasilekZUS, Rezerwa18, IlOsZR, KwotaZR,
    ZasilekWychowawczy, IlOsZP, KwotaZP,
    KodPrzerwy1, Od1, Do1, Dni1, Pusty1, Kwota1,
    KodPrzerwy2, Od2, Do2, Dni2, Pusty2, Kwota2,
    KodPrzerwy3, Od3, Do3, Dni3, Pusty3, Kwota3,
    KodPrzerwy4, Od4, Do4, Dni4, Pusty4, Kwota4,
    Deklarowana1, Deklarowana2, Deklarowana3, Deklarowana4, Rezerwa52, Rezerwa53,
    DniA, OdA, DoA, KodA, DniB, OdB, DoB, KodB, DniC, OdC, DoC, KodC,
    Rezerwa66, Rezerwa67, Rezerwa68, Rezerwa69, KwotaObnizenia, Podatek,
    FlagaEmerytalne, FlagaRentowe, FlagaChorobowe, FlagaWypadkowe, FlagaZdrowotne, PodstFGSP, PodstFPr,
    DowodOsobisty, Rezerwa80, Rezerwa81, Rezerwa82, Rezerwa83, WskaznikFP,
    Count = WskaznikFP
};
static_assert(Count == 84);
// The first field of each of the four absence groups (code, from, to, days, empty, amount).
inline constexpr int kGrupaNieobecnosci[4] = {KodPrzerwy1, KodPrzerwy2, KodPrzerwy3, KodPrzerwy4};

const core::Schema& schema();
// zus\rcp<RRMM>.dta of the session's payer and list date.
std::filesystem::path path(const core::Session& s);
std::vector<core::Record> readAll(const std::filesystem::path& file);
// Writes the records through `tempName` in the file's folder.
void writeAll(const std::filesystem::path& file, const std::vector<core::Record>& recs,
              const std::string& tempName = "Ctym.dta");

// The identifier of a record: the foreigner's identifier (field 15, padded or cut to 11) when
// the citizenship does not begin with "POLSK", else the PESEL (the citizenship read as the
// personnel file's rule reads it).
std::string identyfikator(const core::Record& r);
}  // namespace Rcp

}  // namespace zus
