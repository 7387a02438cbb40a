// The catalogue of pay lists of a payer: <Katalog>\<SkrotPlatnika>\instal.dat, one line per
// list, nine quoted texts written by one statement. The title is kept blank-padded to 33
// characters, the file stem to 8, the group and the set letter to one (the set upper-cased).
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"

namespace reference {

namespace Instal {
enum : int {
    NazwaListy = 1, Skrotlisty, Grupa, ZestawListy, Rezerwa1, Rezerwa2, Rezerwa3, NumerListy, Rezerwa4,
    Count = Rezerwa4
};
constexpr std::size_t kSzerNazwy = 33;  // title
constexpr std::size_t kSzerSkrotu = 8;  // file stem

const core::Schema& schema();
// <Katalog>\<SkrotPlatnika>\instal.dat
std::filesystem::path path(const core::Session& s);
// The lines of the catalogue; a payer without the file has no lists yet (an empty result).
// Error 76 when the payer's folder itself is missing.
std::vector<core::Record> read(const core::Session& s);
// Rewrites the catalogue through tymcz.dat in the payer's folder.
void write(const core::Session& s, const std::vector<core::Record>& lines);

// Puts the four edited fields into a line as the file keeps them: title padded and cut to 33,
// stem to 8, group to 1, set letter cut to 1 and upper-cased.
void setFields(core::Record& line, const std::string& title, const std::string& stem, const std::string& group,
               const std::string& set);
// A new line of the catalogue: the edited fields, fields 5-7 empty, the running number and the
// reserve of field 9.
core::Record newLine(const std::string& title, const std::string& stem, const std::string& group,
                     const std::string& set, const std::string& numer, const std::string& rezerwa4);

// The stem of a line without its padding.
std::string stem(const core::Record& line);
// The first line whose stem equals `name` (padding ignored), or -1.
int findByStem(const std::vector<core::Record>& lines, const std::string& name);
// The lists of a set, the one rule of every collective command: a line belongs when its set
// column (without trailing blanks) stands in the set letters `zestaw`, a search of the letters
// for the column's whole text without regard to case. An empty column is found at once, so a
// list without a set letter belongs to every set, deliberately.
bool wZestawie(const core::Record& line, const std::string& zestaw);
// The lines of the set, in catalogue order, at most kListZestawu.
constexpr std::size_t kListZestawu = 70;
std::vector<core::Record> listyZestawu(const std::vector<core::Record>& lines, const std::string& zestaw);
}  // namespace Instal

// The line of a list in lstListaI and CmbWybierz: title padded to 33, a blank, the stem padded
// to 8, two blanks, the group, three blanks, the set letter.
std::string displayLine(const core::Record& line);

// A display line read back by its columns: the title from columns 1-33, the stem from the 8
// characters at column 35 right-trimmed, the group at column 46.
struct ListaWybrana {
    std::string title, stem, group;
};
ListaWybrana parseDisplayLine(const std::string& line);

// The box of a payer without its folder: "Nie wybrano Płatnika ! ..." titled "Brak danych Płatnika".
void brakPlatnika(core::Dialogs& ui);

// Why a text cannot be the file stem of a list (empty, a folder part, characters the file
// system or the catalogue cannot hold), or "" when it can.
std::string badListStem(const std::string& stem);

}  // namespace reference
