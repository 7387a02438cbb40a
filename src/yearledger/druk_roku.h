// The print of an employee's year: a five-row block for each month laid out as on the pay list,
// with two extra columns for the overtime and the additions of the month, the year's sums in
// the same block, and the sums of the thirteenth pay, holiday benefits and jubilee awards.
#pragma once
#include <string>

#include "core/dialogs.h"
#include "core/printer.h"
#include "core/session.h"
#include "yearledger/rok.h"

namespace yearledger {

struct OsobaRoku {
    std::string nazwa;  // "Nazwisko Imię"
    std::string kod;    // the insurance code
};

// Prints the year on `p` (no question asked).
void drukujRok(core::Printer& p, const DaneRoku& d, const OsobaRoku& o, const core::Stawki& st);

// CmdDrukowanie: asks "Czy chcesz wydrukować kartotekę pracownika ", prints on the program's
// printer; a printer error ends in its warning box. False when the operator cancelled.
bool CmdDrukowanie(core::Dialogs& ui, const DaneRoku& d, const OsobaRoku& o, const core::Stawki& st);

}  // namespace yearledger
