// frmInstalacja: the catalogue of pay lists of the payer, kept by the administrator: a new
// list (mode 1), a change of the chosen list (mode 2), the removal of a list (its files stay).
#pragma once
#include "core/form.h"
#include "core/session.h"

namespace reference {

class InstalacjaScreen : public core::Form {
public:
    InstalacjaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void lstListaI_Click();
    void cmdDodajliste_Click();
    void cmdaktual_Click();
    void cmdZapisz_Click();
    void cmdUsu_Click();

    // 0 nothing to save, 1 a new list, 2 the chosen list changed.
    int Tryb = 0;

    core::Session& s;
    core::Control lbPlatnik{this, "lbPlatnik", core::Kind::Label};
    core::Control lbNaglowek{this, "lbNaglowek", core::Kind::Label};
    core::Control lstListaI{this, "lstListaI", core::Kind::ListBox};
    core::Control fraLista{this, "fraLista", core::Kind::Frame, "Dane listy"};
    core::Control txtNazwaListy1{this, "txtNazwaListy1", core::Kind::TextBox};
    core::Control txtSkrotlisty1{this, "txtSkrotlisty1", core::Kind::TextBox};
    core::Control txtGrupa1{this, "txtGrupa1", core::Kind::TextBox};
    core::Control txtZestaw{this, "txtZestaw", core::Kind::TextBox};
    core::Control lbTryb{this, "lbTryb", core::Kind::Label};
    core::Control cmdDodajliste{this, "cmdDodajliste", core::Kind::CommandButton, "&Dodaj listę"};
    core::Control cmdaktual{this, "cmdaktual", core::Kind::CommandButton, "&Aktualizuj listę"};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz"};
    core::Control cmdUsu{this, "cmdUsu", core::Kind::CommandButton, "&Usuń listę"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void fillList(int select);
    void setTryb(int tryb);
    bool check();
};

}  // namespace reference
