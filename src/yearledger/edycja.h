// frmEdycjaKartoteki: one person's record of one month's ledger, field by field (number, name,
// value), corrected by hand and written back safely; the other records keep their bytes.
#pragma once
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace yearledger {

// Why `tekst` cannot be stored in field `n` of a ledger record, in Polish, or "" when it can:
// a number field takes a number ("," read as "."; the 16-bit fields a whole number in their
// range), a text field no double quote and no character outside code page 1250; a blank
// position nothing at all.
std::string zlaWartosc(int n, const std::string& tekst);

// The text of field `n` as the editor shows it: numbers as the file holds them.
std::string wartoscPola(const core::Record& r, int n);

// Stores the changed fields (number -> text) into the first record of `klucz` in the ledger
// `plik` and rewrites it through karta\tym<lista>.dta. Error 13 (with the message of
// zlaWartosc) for a value the field cannot take, before the file is touched; false when the
// person has no record there.
bool zapiszZmiany(const std::filesystem::path& plik, const std::string& lista, const std::string& klucz,
                  const std::map<int, std::string>& zmiany);

class EdycjaKartotekiScreen : public core::Form {
public:
    // The person of the session in the ledger of the list's month `RRmm` (the list date's month
    // when empty).
    EdycjaKartotekiScreen(core::Dialogs& ui, core::Session& s, std::string RRmm = {});
    void Load() override;

    // A row of the grid chosen: its value goes to txtWartosc.
    void MSFlexGrid1_Click();
    // The typed value into the chosen row (refused with a box when the field cannot take it).
    void cmdZmien_Click();
    void cmdZapisz_Click();

    core::Session& s;
    std::string RRmm;
    std::filesystem::path plik;
    core::Record rekord;
    std::map<int, std::string> zmiany;

    core::Control lbOsoba{this, "lbOsoba", core::Kind::Label};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control lbPole{this, "lbPole", core::Kind::Label};
    core::Control txtWartosc{this, "txtWartosc", core::Kind::TextBox};
    core::Control cmdZmien{this, "cmdZmien", core::Kind::CommandButton, "&Zmień pole"};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz kartotekę"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
};

}  // namespace yearledger
