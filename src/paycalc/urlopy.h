// The leave year file of a list: Urlopy\Ur<list><rrrr>.dta in the payer's folder. A person has
// a block of 385 lines: a header of 9 values, then for each month a month line (label, daily
// rate) and 31 day lines (label, the day's code: "U8" leave of 8 hours, "S" holiday, "X" no
// such day, empty or "0" nothing).
#pragma once
#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <unordered_map>
#include <string>
#include <vector>

#include "core/error.h"
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

struct Blok {
    core::Record naglowek;
    std::array<core::Record, 12> miesiace;             // month 1 .. 12
    std::array<std::array<core::Record, 31>, 12> dni;  // [month-1][day-1]
};

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

// Leave of the list's month for one person.
struct UrlopMiesiaca {
    bool znaleziony = false;     // a block of the person with value 9 "1" was found
    std::int16_t DniUrlopu = 0;  // days coded "U.." in the month
    float Stawka = 0;            // the month's daily rate
    float wUrlopowe = 0;         // days x rate, two decimals
};

// The leave of month `miesiac` (1..12) from the blocks of the year: the first block whose
// identifier is `klucz` and whose value 9 is "1". A day counts when its code begins with "U"
// (either case) and the month's rate is above 0. No such block, or a rate of 0, gives zeros.
UrlopMiesiaca urlopMiesiaca(const std::vector<Urlop::Blok>& blocks, const std::string& klucz, int miesiac);

// The leave of one month for every person of a leave file read once: the first settled block
// of each identifier, as urlopMiesiaca finds it.
class UrlopyMiesiaca {
public:
    explicit UrlopyMiesiaca(int miesiac = 0) : miesiac_(miesiac) {}
    // Takes a block read from the file, in file order.
    void dodaj(const Urlop::Blok& b);
    // A file that broke off: the blocks before the fault stay, a person not found among them
    // raises the fault.
    void przerwano(core::Error e) { blad_ = std::move(e); }
    // The person's leave of the month; zeros when the file has no settled block of the person.
    UrlopMiesiaca znajdz(const std::string& klucz) const;

private:
    int miesiac_;
    std::unordered_map<std::string, UrlopMiesiaca> first_;
    std::optional<core::Error> blad_;
};

// modUrlop: reads the leave file of the year of DataListy for KluczOsoby and puts the days, the
// rate and the amount into the session's result block (DniUrlopu, StawkaUrlopowa, wUrlopowe).
// A missing file gives zeros and no message.
UrlopMiesiaca modUrlop(core::Session& s);

}  // namespace paycalc
