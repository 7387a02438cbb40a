// The demo data folder on 31-01-2021 with Jan Nowak (list "a") as the chosen person, and
// helpers writing hand-made ledger and supplementary records (the amounts are chosen, so that
// every sum can be worked out on paper).
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "paycalc/dodatkowe_record.h"
#include "support/demo.h"

namespace tax_tests {

inline constexpr const char* kNowak = "75031412317";

struct Dane : testing_support::Demo {
    Dane();
    // karta\<lista><RRmm>.dta from records given as (field, value) pairs.
    void karta(const std::string& lista, const std::string& RRmm, const std::vector<core::Record>& recs);
    void dodatkowy(paycalc::Dodatkowy::Rodzaj r, const std::string& lista, const std::string& stamp,
                   const std::vector<core::Record>& recs);
};

// A ledger record of a person with the amounts given.
core::Record karta(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                   std::vector<std::pair<int, double>> kwoty, const std::string& kod = "011000");
// A supplementary record of a person: amounts, and texts (flags).
core::Record dodatkowy(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                       std::vector<std::pair<int, double>> kwoty, std::vector<std::pair<int, std::string>> teksty = {});

// The month of the PIT-4 tests: lists "a" (set A) and "p" (set B) with their ledgers, the
// overtime, additions, thirteenth, holiday benefit and jubilee files of "a", and on "p" a record
// of code "051000" that ends the list's work before its overtime.
void miesiacPit4(Dane& d);
// Jan Nowak's year on list "a": January and March in the ledger (February missing), overtime
// in January, the thirteenth pay; another person first in every file.
void rokNowaka(Dane& d);

}  // namespace tax_tests
