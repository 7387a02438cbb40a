// The calculation's list "L1" of payer "FIRMA" (rates of 2008, 2009, 2019, 2020; the last in force
// for 2021), for the screens of leave and working time.
#pragma once
#include <string>
#include <vector>

#include "core/record.h"
#include "paycalc/fixture.h"

namespace lfx {

struct Lista : fx::Lista {
    // The session on the list and on the person KOWALSKI JAN 70051512345.
    explicit Lista(const std::string& dataListy);
    // A pay record of the person (and of NOWAK ANNA 80010112345 after it): the fields given
    // bare, or quoted when written in quotes.
    void placa(const std::vector<std::pair<int, std::string>>& pola);
    core::Record rekordPlacy() const;
    // A ledger record of the person in the month "rrmm": gross pay, seniority allowance and the
    // days and codes of the four sick lines.
    void karta(const std::string& rrmm, float brutto, std::vector<std::pair<double, std::string>> linie = {},
               float stazowy = 0);
    std::filesystem::path plik(std::initializer_list<std::string_view> czesci) const { return s.payerPath(czesci); }
};

inline const std::string kKlucz = "70051512345";
inline const std::string kDrugi = "80010112345";

}  // namespace lfx
