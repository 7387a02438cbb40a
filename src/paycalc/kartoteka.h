// The monthly ledger of a list: cmdKartoteka walks the personnel file, runs the calculation for
// every person on the list and writes karta\<list><RRmm>.dta; cmdWyliczPodstawe sums one
// person's contribution base of a year over the twelve ledgers and the supplementary files.
#pragma once
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"
#include "paycalc/postep.h"
#include "paycalc/wyliczenie.h"

namespace paycalc {

// The ledger record of the session's person (KluczOsoby, NazwiskoOsoby, ImieOsoby,
// KodUbezpieczeniaOsoby) from the result block the calculation has just left, the pay record
// it used (s.wynik.placa) and the personnel record `osoba`, with the rates of the session.
// Amounts go out as the calculation left them, the rates 141-144 and 166 as doubles; the blank
// positions of the layout stay blank.
core::Record rekordKarty(const core::Session& s, const core::Record& osoba);

// cmdKartoteka. Asks first; any answer but Yes leaves everything as it was and gives false.
// Otherwise writes the month's ledger (replacing one that exists), stores the number of
// records written in s.LiczbaOsob, shows the closing box and gives true. An error ends the
// command with the old ledger whole.
bool cmdKartoteka(core::Session& s, core::Dialogs& ui, const Postep& postep = {});

// The ledger of the month without the question and the closing box: the number of records
// written. The files of the list are those of the session. The people of the list without a pay
// record (their ledger records repeat the figures of the person before them) are added to
// `bezPlacy` as "NAZWISKO IMIĘ, identyfikator".
int wykonajKartoteke(core::Session& s, core::Dialogs& ui, const Postep& postep = {},
                     std::vector<std::string>* bezPlacy = nullptr);

// The warning shown after the ledger when some people of the list have no pay record.
std::string ostrzezenieBezPlacy(const std::vector<std::string>& bezPlacy);
constexpr const char* kTytulBezPlacy = "Osoby bez danych płacowych";

// cmdWyliczPodstawe: the contribution base of the person `klucz` in the year given by the last
// two characters of `rokDoPodstawy` (of the list date when it is empty): field 140 of the twelve
// ledgers, field 6 of the overtime, holiday-benefit and jubilee files, fields 33 to 37 of the
// additions; the thirteenth pay is left out. A month whose file is missing adds nothing.
float podstawaRoczna(const core::Session& s, const std::string& klucz, const std::string& rokDoPodstawy);

}  // namespace paycalc
