// The contribution merge (CmdPolacz of frmDoZUS): the ledgers of the lists of the chosen sets,
// with the overtime, additions and (on request) thirteenth-pay files of the month, become
// zus\rcp<RRMM>.dta with one record per person and insurance code.
#pragma once
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"
#include "paycalc/postep.h"

namespace zus {

struct Polaczenie {
    std::string zestawy;      // txtZestawZUS: the set letters
    bool trzynastka = false;  // chkDolaczTrzynastke
};

// The stems of the catalogue's lists that join the merge, in catalogue order (at most 70): a
// list joins when its set column is found in the letters from their start; an empty (or blank)
// set column is always found.
std::vector<std::string> listyDoPolaczenia(const core::Session& s, const std::string& zestawy);

// The group (column 3 of instal.dat) of the session's current list; the session's own group
// when the list is not in the catalogue.
std::string grupaBiezacejListy(const core::Session& s);

// The raw records: one per ledger record of the chosen lists, with the month's supplementary
// pay of the person added. The rates must be in the session (reference::loadRates).
std::vector<core::Record> zbierzRekordy(const core::Session& s, const Polaczenie& p,
                                        const paycalc::Postep& postep = {});

// The merge rounds: the records of one person and code (surname and first name upper-cased,
// identifier, code) become the first of them with the amounts summed, the numerators of the
// post added and the last denominator kept, in the order of first appearance. A numerator that
// is not a number throws Error 13 naming the person's surname in its detail.
std::vector<core::Record> scalRekordy(std::vector<core::Record> tym, const paycalc::Postep& postep = {});

// The whole command: the question, the rates of the year, the collection (the raw records are
// written to rcp<RRMM>.dta first, as the merge's input), the merge. Returns true when the merged
// file was written; every failure is shown in its box and leaves the month's files whole.
bool cmdPolacz(core::Session& s, core::Dialogs& ui, const Polaczenie& p, const paycalc::Postep& postep = {});

// Why the typed set letters cannot be used (they name the KEDU file and are kept in instal.dat),
// or "" when they can; empty letters can.
std::string zlyZestaw(const std::string& zestawy);

// cmdZachowaj: the letters, upper-cased, into the ninth column of every row of instal.dat.
void cmdZachowaj(const core::Session& s, const std::string& zestawy);
// The letters kept in the ninth column of the catalogue's first row ("" without a row).
std::string zapisaneZestawy(const core::Session& s);

}  // namespace zus
