// modWyliczeniePlacy: the month of one employee of a pay list, from the rates of the year, the
// pay record, the personnel record and the leave file into the session's result block
// (core::WynikMiesiaca). It writes no file; the caller writes the ledger, shows or prints.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/dialogs.h"
#include "core/error.h"
#include "core/record.h"
#include "core/session.h"
#include "paycalc/urlopy.h"

namespace paycalc {

// The records of one file read once, with the lookup the calculation makes: the first record
// whose identifier equals the key, in file order. A file that could not be read whole keeps
// the records before the fault and the error, which a lookup raises when it would have had to
// read past the fault (as a scan from the start would).
class Zbior {
public:
    Zbior() = default;
    // Records of a file; `klucz` gives the identifier of a record.
    Zbior(std::vector<core::Record> records, std::string (*klucz)(const core::Record&),
          std::optional<core::Error> blad = std::nullopt);
    // The first record with the key, or nullptr when the file has none (or the error).
    const core::Record* znajdz(const std::string& key) const;
    // The records read, in file order, and the fault that ended the reading, if any.
    const std::vector<core::Record>& rekordy() const { return rekordyPliku; }
    const std::optional<core::Error>& blad() const { return bladOdczytu; }

private:
    std::vector<core::Record> rekordyPliku;
    std::unordered_map<std::string, std::size_t> pierwszyNumeru;
    std::optional<core::Error> bladOdczytu;
};

// The files of one list that the calculation reads, loaded once: a command that visits every
// employee loads them once and hands them to each call.
struct ZbioryListy {
    Zbior placowe;                   // bazy\<lista>.dta
    Zbior osobowe;                   // person\<lista>.per
    UrlopyMiesiaca urlopy;           // Urlopy\Ur<lista><rrrr>.dta, the month of the list date
};

// Reads the pay, personnel and leave files of the session's list (SciezkaBazy, SciezkaOsob or
// the list name; the leave of the month of DataListy from the file of its year). Nothing throws
// here: a missing or broken file is raised by the lookup that needs it (a missing leave file is
// no leave).
ZbioryListy wczytajZbiory(const core::Session& s);

// What became of a call.
enum class Wynik {
    Policzono,   // the month is in the result block
    BrakPlacy,   // no pay record for the key: the routine ended silently, the block unchanged
};

// The calculation for the session's KluczOsoby with files already read. The rates of the year
// must be in the session (reference::loadRates). A conversion or file error (a birth date that
// is not a date, a letter in a number, a missing file) throws core::Error: the steps after it
// do not run and what they would have set keeps its earlier value. A missing personnel record
// shows "Brak w zbiorze personalnym danych o osobie " + NazwiskoOsoby and the calculation goes
// on.
Wynik modWyliczeniePlacy(core::Session& s, core::Dialogs& ui, const ZbioryListy& zbiory);

// The calculation of one employee as the screens call it: reads the rates of the year and the
// list's files itself.
Wynik modWyliczeniePlacy(core::Session& s, core::Dialogs& ui);

// The result block as "name=value" lines: the elements and gross, then contributions, tax and
// net, then the copies of the sick lines, the unpaid days and the benefits, then the working
// values. Numbers in their shortest form.
std::vector<std::string> raportWyniku(const core::WynikMiesiaca& w);

}  // namespace paycalc
