// The demo data folder (payer DEMO, rates of 2021, list date 31-01-2021) with ledgers,
// supplementary files and merge files that each test builds in code.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "support/demo.h"

namespace zfx {

struct Platnik : testing_support::Demo {
    Platnik();
    // instal.dat: rows of (stem, group, set).
    void katalog(const std::vector<std::vector<std::string>>& listy);
    void karta(const std::string& lista, const std::vector<core::Record>& recs);
    // zus\rcp2101.dta
    void rcp(const std::vector<core::Record>& recs);
    std::vector<core::Record> rcp() const;
};

// A ledger record: the person, the code, the social base (140, also 138) and the fields given.
core::Record karta(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                   const std::string& kod, double podstawa, std::vector<std::pair<int, double>> kwoty = {},
                   std::vector<std::pair<int, std::string>> teksty = {});
// A merge record of a person with the insurance flags 1 1 1 1 1 and the fields given.
core::Record rcp(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                 const std::string& kod, std::vector<std::pair<int, double>> kwoty = {},
                 std::vector<std::pair<int, std::string>> teksty = {});

}  // namespace zfx
