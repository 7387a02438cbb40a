// The leave of a month in the calculation, from the leave year file (paycalc/urlop_record.h).
#pragma once
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/session.h"
#include "paycalc/urlop_record.h"

namespace paycalc {


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
    explicit UrlopyMiesiaca(int miesiac = 0) : miesiacListy(miesiac) {}
    // Takes a block read from the file, in file order.
    void dodaj(const Urlop::Blok& b);
    // A file that broke off: the blocks before the fault stay, a person not found among them
    // raises the fault.
    void przerwano(core::Error e) { blad = std::move(e); }
    // The person's leave of the month; zeros when the file has no settled block of the person.
    UrlopMiesiaca znajdz(const std::string& klucz) const;

private:
    int miesiacListy;
    std::unordered_map<std::string, UrlopMiesiaca> pierwsze;
    std::optional<core::Error> blad;
};

// modUrlop: reads the leave file of the year of DataListy for KluczOsoby and puts the days, the
// rate and the amount into the session's result block (DniUrlopu, StawkaUrlopowa, wUrlopowe).
// A missing file gives zeros and no message.
UrlopMiesiaca modUrlop(core::Session& s);

}  // namespace paycalc
