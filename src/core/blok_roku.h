// The block of a person in a year file of a list: a header line, then for each month a month
// line and 31 day lines (12 x 32 lines after the header). The leave year file
// (Urlopy\Ur<list><rrrr>.dta) and the working-time file (godziny\CP<list><rrrr>.dta) are made of
// these blocks; each gives its own three schemas.
#pragma once
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/seqfile.h"

namespace core {

struct UkladBloku {
    const Schema& naglowek;
    const Schema& miesiac;
    const Schema& dzien;
};

struct BlokRoku {
    Record naglowek;
    std::array<Record, 12> miesiace;             // month 1 .. 12
    std::array<std::array<Record, 31>, 12> dni;  // [month-1][day-1]
};

// One block from the reader's position. Error 62 when the file ends inside it.
BlokRoku czytajBlok(SeqReader& in, const UkladBloku& u);
// One block read for month `miesiac`: when the file ends inside the block after that month, the
// months up to it are there; the block comes back with the later months unread (invalid
// records) and `urwany` set. A file ending before gives Error 62.
BlokRoku czytajBlok(SeqReader& in, const UkladBloku& u, int miesiac, bool& urwany);
// Every block of the file, in file order. Error 53 when the file is missing.
std::vector<BlokRoku> czytajBloki(SeqReader& in, const UkladBloku& u);
std::vector<BlokRoku> czytajBloki(const std::filesystem::path& file, const UkladBloku& u);
void piszBlok(SeqWriter& w, const BlokRoku& b);
// Rewrites the file with the blocks, through `tempName` in its folder.
void piszBloki(const std::filesystem::path& file, const std::vector<BlokRoku>& blocks, const std::string& tempName);

}  // namespace core
