// The supplementary pay files of a list and month: overtime (Godziny\<list>God<RRmm>.dta),
// additions (dodatki\..Dod..), the thirteenth pay (trzynastki\..Trz..), jubilee awards
// (jubileu\..Jub..) and the holiday benefit (urlopy\..SwU..). All five share one record of 44
// items written by one statement, a record a line; an unset item stays empty.
#pragma once
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace paycalc {

namespace Dodatkowy {
enum : int {
    Nazwisko = 1, Imie, Klucz, KodUbezpieczenia, Podstawa, KwotaBrutto, PodstawaZdrowotna, SkladkaZdrowotna,
    SkladkaIndywidualna, StawkaPodatku, PodatekNetto, NaROR, PlacaNetto, NumerKonta, OpcjaROR, BruttoOd01,
    Il1, Il2, Il3, Il4, Il5, Il6, Il7, Rezerwa24, Sta1, Sta2, Sta3, Sta4, Sta5, Sta6, Sta7, DataListy,
    Kw1, Kw2, Kw3, Kw4, Kw5, Kw6, Kw7, RazemKwota, Rezerwa41, DoWyplaty, Rezerwa43, Rezerwa44,
    Count = Rezerwa44
};
const core::Schema& schema();

// The five kinds, in the order of the tabs of the list screen.
enum class Rodzaj { God, Dod, Trz, Jub, SwU };
inline constexpr std::array<Rodzaj, 5> kRodzaje{Rodzaj::God, Rodzaj::Dod, Rodzaj::Trz, Rodzaj::Jub, Rodzaj::SwU};

struct Opis {
    const char* folder;   // the folder under the payer's folder, as the system spells it
    const char* skrot;    // "God", "Dod", "Trz", "Jub", "SwU"
    const char* tymczasowy;  // the temporary file of a rewrite in that folder
};
const Opis& opis(Rodzaj r);

// <payer>\<folder>\<list><skrot><RRmm>.dta
std::filesystem::path path(const core::Session& s, Rodzaj r, const std::string& lista, const std::string& RRmm);
// The file of the session's list and month.
std::filesystem::path path(const core::Session& s, Rodzaj r);

std::vector<core::Record> readAll(const std::filesystem::path& file);
// The first record of the person `klucz` (field 3), read from the start and no further; nothing
// when the file is missing or holds no such record.
std::optional<core::Record> znajdz(const std::filesystem::path& file, const std::string& klucz);
// Writes the records through the kind's temporary file.
void writeAll(const std::filesystem::path& file, Rodzaj r, const std::vector<core::Record>& recs);
}  // namespace Dodatkowy

}  // namespace paycalc
