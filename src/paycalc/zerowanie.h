// The maintenance commands of a list's pay file: the month closing (CmdZerowanie), the
// calibration against the personnel file (CmdSol1) and the removal of one person (cmdUsu).
#pragma once
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/session.h"
#include "paycalc/postep.h"
#include "payinputs/pay_record.h"

namespace paycalc {

// The carried fields of the pay record that the year start settles: the twelve-month table in
// Rezerwa134 .. Rezerwa145, summed and blanked; the carried balance in Rezerwa147 is raised by
// its partner in Rezerwa148 and reduced by the table's sum.
inline constexpr int kTabela12Od = payinputs::Pay::Rezerwa134;
inline constexpr int kTabela12Do = payinputs::Pay::Rezerwa145;
inline constexpr int kSaldoPrzenoszone = payinputs::Pay::Rezerwa147;
inline constexpr int kSaldoPartner = payinputs::Pay::Rezerwa148;

// The status label's text after a closing or a calibration.
inline constexpr const char* kWykonane = "Wykonane !";

// CmdZerowanie: closes the month of the list date in the pay file (instalments deducted, sick
// and unpaid lines cleared, the year's gross and sick days raised, in January on request the
// year start). Stops with its box when the first record's last closing is not earlier than the
// list's month. Gives whether the pay file was rewritten. The progress runs from 1 to
// s.LiczbaOsob + 1.
bool cmdZerowanie(core::Session& s, core::Dialogs& ui, const Postep& postep = {});

// What the calibration did.
struct Kalibracja {
    int skopiowane = 0;                  // pay records kept (one for each person of the file)
    std::vector<std::string> zalozone;   // people who got a new, empty pay record
};
// The texts that go with the making of an empty pay record.
inline constexpr const char* kWprowadzDane = "Wprowadz dane płacowe";
inline constexpr const char* kZbiorZalozono =
    "Zbior płacowy założono na podstawie zbioru aktualnego zbioru personalnego  ";

// CmdSol1: the pay file rewritten in the order of the personnel file, the first pay record of
// each person (the document number padded to 11 characters), no record of anyone not in the
// personnel file, and an empty record with its box for a person without one.
Kalibracja cmdSol1(core::Session& s, core::Dialogs& ui, const Postep& postep = {});

// cmdUsu: removes the person s.KluczOsoby from the personnel file (a question for each record
// of the person) and, on a second question, from the pay file. Ledgers and supplementary files
// keep what they hold.
struct Usuniecie {
    int zKadr = 0;   // personnel records removed
    int zPlac = -1;  // pay records removed, -1 when the second question was answered No
};
Usuniecie cmdUsu(core::Session& s, core::Dialogs& ui);

}  // namespace paycalc
