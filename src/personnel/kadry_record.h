// The HR record of a list: person\<list>.kdr, one line a person of six quoted items written by
// one statement: the person's key, the dates of employment from and to (dd-mm-rrrr, the second
// empty for a contract without an end), the kind of contract ("O" fixed term, "N" without an
// end), the post, and the sex ("K", "M" or empty: the PESEL tells it where there is one).
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace personnel {

namespace Kadry {
enum : int { Klucz = 1, ZatrudnionyOd, ZatrudnionyDo, RodzajUmowy, Stanowisko, Plec, Count = Plec };
const core::Schema& schema();
inline constexpr const char* kNaCzasOkreslony = "O";
inline constexpr const char* kNaCzasNieokreslony = "N";

// person\<list>.kdr of the session's payer.
std::filesystem::path pathOf(const core::Session& s, const std::string& lista);
// All records (none when the file is missing).
std::vector<core::Record> readAll(const std::filesystem::path& file);
// The record of `klucz`, or nothing.
std::optional<core::Record> znajdz(const std::filesystem::path& file, const std::string& klucz);
// Puts the record in place of the person's record, or adds it at the end; the file is
// rewritten safely through person\tymkdr.dta.
void zapisz(const std::filesystem::path& file, const core::Record& rec);
// Why the typed values cannot be kept, in Polish, or "" when they can: the dates real dates
// dd-mm-rrrr, the end not before the start, the end given exactly for a fixed-term contract,
// no double quote and no character outside code page 1250 in the post.
std::string bledneDane(const core::Record& rec);
}  // namespace Kadry

// The sex of a person: true for a woman. The PESEL's tenth digit where the key is a PESEL of 11
// digits, else the record's "K".
bool kobieta(const std::string& klucz, const std::optional<core::Record>& kadry);

}  // namespace personnel
