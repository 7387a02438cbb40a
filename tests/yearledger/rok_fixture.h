// A copy of the demo data on the list date 31-12-2020, list "a" open, and a year of hand-made
// ledgers and supplementary files of one person (amounts chosen, not calculated, so that every
// cell can be checked by hand).
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "support/demo.h"

namespace yearledger_tests {

inline const std::string kKlucz = "80010112345";

// A ledger record of the person (or of `klucz`) with the given amounts and texts.
core::Record karta(std::vector<std::pair<int, double>> kwoty, std::vector<std::pair<int, std::string>> teksty = {},
                   const std::string& klucz = kKlucz);
// January: every column its own amount; March: a small month with another tax rate.
core::Record styczen();
core::Record marzec();
// A supplementary record of the person with the given fields (numbers bare).
core::Record dodatkowy(std::vector<std::pair<int, double>> pola);

struct Rok : testing_support::Demo {
    Rok();
    // Ledgers of January (the person and another) and March; overtime and additions in
    // January, a holiday benefit in June; the year's thirteenth pay when `trzynastka`.
    void zapisz(bool trzynastka = true);
};

}  // namespace yearledger_tests
