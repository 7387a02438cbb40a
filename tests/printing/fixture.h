// A copy of the demo data folder with a pay list opened on it and a ledger of the month written
// from hand-made records (the amounts are chosen, not calculated, so that every printed cell
// can be checked by hand).
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "support/demo.h"

namespace printing_tests {

// A ledger record: the markers, the names, the given amounts (field number, value) and texts.
core::Record osoba(const std::string& nazwisko, const std::string& imie,
                   std::vector<std::pair<int, double>> kwoty = {},
                   std::vector<std::pair<int, std::string>> teksty = {});

// The persons of the small list: Jan Kowalski with amounts in most cells, Anna Nowak with
// nothing but sick days (all four lines) and a ZUS benefit.
core::Record kowalski();
core::Record nowak();
// Person i (1-based) of a longer list: basic pay 3000 + i, gross and pay-out the same.
core::Record prosta(int i);
std::vector<core::Record> proste(int ile);
// The demo people of list "a" in January 2021 with amounts of the size the month would have
// (worked out roughly for the picture of the printed list, not by the pay calculation).
std::vector<core::Record> demoListaA();

struct Dane : testing_support::Demo {
    // The demo folder on the list date, list "a" (Administracja, nr 1) open.
    explicit Dane(const std::string& dataListy = "31-01-2021");
    // Writes the month's ledger of the open list and sets the list's person count.
    void karta(const std::vector<core::Record>& recs);
};

}  // namespace printing_tests
