// The registration file of a list (CmdZUA of FrmZUA): zgloszeniowe\ZUA<list>.KDU, a KEDU 1.2
// file with one ZUSZUA document per person of the personnel file.
//
// Values this file takes from the personnel record beyond the fixed lines:
// - <DOWP>: 6 blanks, the date of hire as ddmmrrrr (8), "X", then 8 blanks, 8 blanks, 1 blank;
// - <DOOU>: the date of hire as ddmmrrrr (8), the start of the insurance;
// - <IODZ>: eleven lines of one blank each;
// - <DOKC>: "06R", "MAŁOPOLSKA RKCH", then the date of hire as ddmmrrrr (8);
// - <AZMO>: postal code without its dash (5), town (26), post office (26), street (30), house (7),
//   flat (7), telephone (12), mobile telephone (12);
// - <OPL1>: the list date as ddmmrrrr.
// A person without a date of hire has 8 blanks in its place.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"

namespace zus {

// zgloszeniowe\ZUA<list>.KDU of the session's payer and list.
std::filesystem::path plikZUA(const core::Session& s);
// The lines of the file for the personnel records.
std::vector<std::string> dokumentZUA(const core::Session& s, const std::vector<core::Record>& osoby);
// The command: the question, the file written safely, the closing box. The path when written.
std::optional<std::filesystem::path> cmdZUA(core::Session& s, core::Dialogs& ui);

}  // namespace zus
