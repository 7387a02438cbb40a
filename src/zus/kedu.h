// The KEDU 1.3 settlement file of a month (CmdWykonajRCA of frmDoZUS): ZUSDRA, ZUSRCA, ZUSRZA
// and ZUSRSA from the merged file zus\rcp<RRMM>.dta. One value a line, CR LF, in the system
// code page with the one letter Ą given the code it has in ISO 8859-2.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"

namespace zus {

// Value forms of the file.
// The amount in grosze (ties to even), "0"-padded and cut to the last n characters.
std::string Grosze(double kwota, std::size_t n);
// A whole number (ties to even), "0"-padded and cut to 2.
std::string Liczba2(double v);
// Upper case, Ą written as the character of code 161 (ISO 8859-2's Ą); other letters kept.
std::string NazwaDoKEDU(const std::string& tekst);
// "Styczeń----" .. "Grudzień---".
std::string slowoMiesiaca(int miesiac);

struct Rozliczenie {
    std::string zestaw;  // txtZestawZUS
    std::string termin;  // txtTerminPlatnosci
};

// zus\<rrrr><mm>~1rozliczeniowe<Zestaw>.KDU of the payer and list date.
std::filesystem::path plikRozliczenia(const core::Session& s, const std::string& zestaw);
// The template: zus\wzorc.kdu of the payer, else dane\wzorc.kdu of the data folder.
std::filesystem::path plikWzorca(const core::Session& s);

// The lines of the file: the one-person document for a single record whose code begins with
// "051", else the template's ZUSDRA with all the rest. The rates of the session are used.
std::vector<std::string> dokumentKEDU(const core::Session& s, const std::vector<core::Record>& rcp,
                                      const Rozliczenie& r);
std::vector<std::string> dokumentJednoosobowy(const core::Session& s, const core::Record& rcp, const Rozliczenie& r);
std::vector<std::string> dokumentZbiorczy(const core::Session& s, const std::vector<core::Record>& rcp,
                                          const Rozliczenie& r, const std::vector<std::string>& wzorzec);

struct WynikKEDU {
    std::filesystem::path plik;
    std::string Label9, Label7;  // the form's labels after the work
};
// The command: the rates of the year, the question of the collective document (Cancel: nothing),
// the file written safely in one go (a failure leaves the month's earlier file whole), the
// closing box.
std::optional<WynikKEDU> cmdWykonajRCA(core::Session& s, core::Dialogs& ui, const Rozliczenie& r);

}  // namespace zus
