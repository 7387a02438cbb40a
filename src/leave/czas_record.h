// The working-time file of a list and year: godziny\CP<list><rrrr>.dta in the payer's folder.
// A person has a block: a header of 9 values (names, identifier, post, five kept values), then
// for each month a month line (the month's number, five kept values) and 31 day lines of 14
// values (day, hours, overtime at 50 and 100 percent, further hours, the day's limit, leave,
// other absence, sickness, four kept values, the holiday mark "S").
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/blok_roku.h"
#include "core/record.h"
#include "core/session.h"

namespace leave {

namespace CzasPracy {

namespace Naglowek {
enum : int { Nazwisko = 1, Imie, Identyfikator, Etat, Rezerwa5, Rezerwa6, Rezerwa7, Rezerwa8, Rezerwa9, Count = Rezerwa9 };
const core::Schema& schema();
}  // namespace Naglowek
namespace Miesiac {
enum : int { Numer = 1, Rezerwa2, Rezerwa3, Rezerwa4, Rezerwa5, Rezerwa6, Count = Rezerwa6 };
const core::Schema& schema();
}  // namespace Miesiac
namespace Dzien {
enum : int { Dm = 1, Gp, G50, G100, Lpg, Limit, GUr, GN, GCh, Rezerwa10, Rezerwa11, Rezerwa12, Rezerwa13, Swieto, Count = Swieto };
const core::Schema& schema();
}  // namespace Dzien

using Blok = core::BlokRoku;
// The three schemas of a block.
const core::UkladBloku& uklad();

// godziny\CP<NazwaZbioru><rok>.dta of the session's payer.
std::filesystem::path path(const core::Session& s, const std::string& rok);
// The name of a temporary file beside it: "CP<list><rok>.tym " (with its trailing blank) or
// "CPT<list><rok>.dta".
std::string nazwaTymczasowa(const core::Session& s, const std::string& rok, bool zSpacja);

std::vector<Blok> readAll(const std::filesystem::path& file);
std::vector<Blok> readAll(core::SeqReader& in);
// Rewrites the file with the blocks, through `tempName` in its folder.
void writeAll(const std::filesystem::path& file, const std::vector<Blok>& blocks, const std::string& tempName);

// A new block: names, identifier, the post "  1/  1", the kept values 0; month lines with the
// month's number; day lines with the day, 0 in the values 2 to 13 and the holiday mark empty,
// or "X" in the mark for a day the month of `rok` does not have.
Blok nowyBlok(const std::string& nazwisko, const std::string& imie, const std::string& identyfikator, int rok);

// The first block of the identifier, or null.
Blok* znajdz(std::vector<Blok>& blocks, const std::string& identyfikator);

}  // namespace CzasPracy

}  // namespace leave
