// The leave year file of a list: Urlopy\Ur<list><rrrr>.dta in the payer's folder. A person has
// a block of 385 lines: a header of 9 values, then for each month a month line (label, daily
// rate) and 31 day lines (label, the day's code: "U8" leave of 8 hours, "S" holiday, "X" no
// such day, empty or "0" nothing).
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/blok_roku.h"
#include "core/record.h"
#include "core/session.h"

namespace paycalc {

namespace Urlop {

// The header line of a block.
namespace Naglowek {
enum : int { Nazwisko = 1, Imie, Identyfikator, Etat, Przeniesienie, Nalezny, Rezerwa7, Rezerwa8, Rozliczac, Count = Rozliczac };
const core::Schema& schema();
}  // namespace Naglowek
// A month line: the month's label and its daily leave rate as text, empty when unset.
namespace Miesiac {
enum : int { Etykieta = 1, Stawka, Count = Stawka };
const core::Schema& schema();
}  // namespace Miesiac
// A day line: the day's label and its code.
namespace Dzien {
enum : int { Etykieta = 1, Kod, Count = Kod };
const core::Schema& schema();
}  // namespace Dzien

using Blok = core::BlokRoku;
// The three schemas of a block.
const core::UkladBloku& uklad();

// Urlopy\Ur<NazwaZbioru><rok>.dta of the session's payer.
std::filesystem::path path(const core::Session& s, const std::string& rok);
// Every block of the file, in file order. Error 53 when the file is missing, 62 when it ends
// inside a block.
std::vector<Blok> readAll(const std::filesystem::path& file);
std::vector<Blok> readAll(core::SeqReader& in);
// One block from the reader's position.
Blok readBlok(core::SeqReader& in);
// One block read for the leave of month `miesiac`: when the file ends inside the block after
// that month, what the month needs is there; the block comes back with the later months
// unread (invalid records) and `urwany` set. A file ending before it gives Error 62.
Blok readBlok(core::SeqReader& in, int miesiac, bool& urwany);
// Rewrites the file with the blocks, through `tempName` in its folder.
void writeAll(const std::filesystem::path& file, const std::vector<Blok>& blocks, const std::string& tempName = "TYMCZ.dta");
// A new block for a person: names, identifier and Etat, the values 5 to 9 as a new record has
// them (empty, empty, 0, 0, empty), month lines with the month names and no rate, day lines
// with "0" for the days of the month and "X" for the others (February of `rok`).
Blok nowyBlok(const std::string& nazwisko, const std::string& imie, const std::string& identyfikator,
              const std::string& etat, int rok);
// The month names of the grid, as the month lines carry them.
const char* nazwaMiesiaca(int m);

}  // namespace Urlop

}  // namespace paycalc
