// The rules the tax forms share with the contribution merge: the lists of a set, the key of a
// person in the ledger and in the supplementary files, the contributions, health and tax of one
// amount of the additions with its three flags, and reading a month's file that may be missing.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace tax {

// A person as the ledger and the supplementary files match it: surname, first name (both
// right-trimmed), the identifier (PESEL, or the document for a foreigner) and the insurance code.
struct KluczOsoby {
    std::string nazwisko, imie, identyfikator, kod;
    bool operator==(const KluczOsoby&) const = default;
};
// The key of a ledger record: the identifier is the document (ledger 51) when the citizenship
// (ledger 52, empty or "0..." read as "POLSKIE") does not begin with "POLSK", else the PESEL.
KluczOsoby kluczKarty(const core::Record& karta);
// The key of a record of a supplementary file (fields 1 to 4).
KluczOsoby kluczDodatkowego(const core::Record& rec);
// The session's chosen person.
KluczOsoby kluczSesji(const core::Session& s);

// The rates of the merge, derived from the session's rates of the year.
struct StawkiScalania {
    double rentowaUbezp = 0, emerytalnaPol = 0, chorobowa = 0;
    double zdrowotnaOdliczana = 0, zdrowotnaReszta = 0;
};
StawkiScalania stawkiScalania(const core::Stawki& st);

// The employee's social contributions of an amount: the three parts, each Round2.
double skladkiSpoleczne(const StawkiScalania& st, double kwota);

// One amount A of a supplementary record with its flag text (tax, social, health; "1" frees).
struct Skladnik {
    double A = 0;   // the amount
    double S = 0;   // social contributions
    double B = 0;   // health base
    double H1 = 0;  // health at the rest rate (the part deducted from tax, as ledger 146)
    double H2 = 0;  // health at the rate of Dane.dta field 30 (the part kept, as ledger 132)
    double podatek = 0;  // RoundZl(A - S) times the tax rate, 0 when freed from tax
};
Skladnik skladnik(const StawkiScalania& st, double A, const std::string& flagi, double stawkaPodatku);

// The seven amounts of an additions record (fields 33 to 39 with their flags in 17 to 23)
// summed; all zero when the seven amounts sum to 0.
Skladnik skladnikiDodatkow(const StawkiScalania& st, const core::Record& rec, double stawkaPodatku);

// The tax rate of a supplementary record (field 10): a value above 1 is a percentage.
double stawkaRekordu(const core::Record& rec);

// The records of a file, or none when the file (or its folder) is missing.
std::vector<core::Record> czytajJesliJest(const std::filesystem::path& file,
                                          std::vector<core::Record> (*czytaj)(const std::filesystem::path&));

// A number typed in a box: "," read as ".", a blank or a text that is no number as 0.
double liczba(const std::string& tekst);
// An amount as the sheets show it: two decimals.
std::string kwota(double v);

}  // namespace tax
