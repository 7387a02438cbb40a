// frmwybor: the choice of a pay list of the payer, which then opens the list's workspace.
#pragma once
#include "core/form.h"
#include "core/session.h"

namespace reference {

extern const char* const kWybierzListe;  // the prompt of CmbWybierz, "Wybierz jedną z list "

class WyborScreen : public core::Form {
public:
    WyborScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    // Opens the chosen list: checks the choice, puts the list into the session and opens the
    // workspace of the list. Returns whether the list was taken into the session.
    bool CmdWybierz_Click();

    core::Session& s;
    core::Control lbPlatnik{this, "lbPlatnik", core::Kind::Label};
    core::Control lbNaglowek{this, "lbNaglowek", core::Kind::Label};
    core::Control CmbWybierz{this, "CmbWybierz", core::Kind::ComboBox};
    core::Control lbUwaga{this, "lbUwaga", core::Kind::Label};
    core::Control CmdWybierz{this, "CmdWybierz", core::Kind::CommandButton, "&Akceptuj wybór"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Zamknij"};
};

}  // namespace reference
