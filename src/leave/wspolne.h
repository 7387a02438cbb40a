// What the screens of leave and working time share: the check of what the operator types into
// their files, the colours of their grids, a grid as text for the command line.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/record.h"

namespace leave {

// Why `tekst` cannot stand in a file of the program (a double quote ends a quoted item, a
// control character breaks a line, code page 1250 lacks the character), or "" when it can.
std::string bladWpisu(const std::string& tekst);
// Shows the reason in a box titled "Błędny wpis" and returns false, or returns true.
bool wpisPoprawny(core::Form& f, const std::string& tekst);

// Stores a typed text into a field: an unchanged text keeps the item as the file had it (quoted,
// bare or empty), a changed one is stored as quoted text.
void ustawTekst(core::Record& r, int pole, const std::string& tekst);

// Colours of the grids (0xRRGGBB).
inline constexpr int kKolorWolne = 0xFFE0E0;     // Saturdays and Sundays
inline constexpr int kKolorBrakDnia = 0xD0D0D0;  // a day the month has not
inline constexpr int kKolorUrlop = 0xFFF2A8;     // a day of leave
inline constexpr int kKolorNiebieski = 0x0000FF; // holidays
inline constexpr int kKolorBialy = 0xFFFFFF;
inline constexpr int kKolorSumy = 0xC0FFC0;      // light green of a total row

// Whether the weekday name of a date is "sobota" or "niedziela".
bool dzienWolny(int rok, int miesiac, int dzien);

// The rows of a grid as lines, the cells of a column padded to its widest and separated by "|".
std::vector<std::string> wierszeSiatki(const core::Control& grid);

}  // namespace leave
