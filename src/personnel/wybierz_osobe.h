// frmWybierzOsobę: the people of every list of the payer, one fixed-pitch line each, to pick a
// person for the earnings certificate.
#pragma once
#include <string>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace personnel {

// The line of a person: the running number right-aligned in 3 characters, a blank, the family
// name in 25, a blank, the first name in 20, the identifier in 11, a blank, the insurance code
// in 6, the list's short name in 8, "." and the list's name. The columns are those the picking
// reads back.
std::string wierszOsoby(int numer, const core::Record& osoba, const std::string& lista, const std::string& nazwaListy);

// A line read back by its columns: the family name from column 5, the first name from column
// 31, the PESEL from column 51, the insurance code from column 63 and the list's short name
// from column 69, each right-trimmed.
struct OsobaWybrana {
    std::string nazwisko, imie, pesel, kod, lista;
};
OsobaWybrana czytajWierszOsoby(const std::string& wiersz);

class WybierzOsobeScreen : public core::Form {
public:
    WybierzOsobeScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    // A click on a line: the person and the list become the session's.
    void lstListaOsob_Click();
    // Opens the earnings certificate of the chosen person.
    void CmdWybierz_Click();

    core::Session& s;
    core::Control lbUwaga{this, "lbUwaga", core::Kind::Label,
                          "Uzupełnij dane dotyczace zatrudnienia w indywidualnych kartotekach peronalnych zakładka Płac"};
    core::Control lbNaglowek{this, "lbNaglowek", core::Kind::Label};
    core::Control lstListaOsob{this, "lstListaOsob", core::Kind::ListBox};
    core::Control lbWybrana{this, "lbWybrana", core::Kind::Label};
    core::Control CmdWybierz{this, "CmdWybierz", core::Kind::CommandButton, "&Zaświadczenia o zarobkach"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
};

}  // namespace personnel
