// frmPodatki: the rates of the year of the list date; frmObsługa: the administrator line.
#pragma once
#include <memory>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/session.h"

namespace reference {

class PodatkiScreen : public core::Form {
public:
    PodatkiScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void cmdZapisz_Click();
    void cmdZmianaKosztow();
    void cmdKoniec_Click() { Unload(); }

    // The text box of a field of Dane.dta.
    core::Control& txt(int field) { return boxes[field]; }

    core::Session& s;
    core::Control Label18{this, "Label18", core::Kind::Label};
    core::Control Label34{this, "Label34", core::Kind::Label};
    core::Control Label36{this, "Label36", core::Kind::Label};
    core::Control fraStawki{this, "fraStawki", core::Kind::Frame, "Podatek"};
    core::Control fraZUS{this, "fraZUS", core::Kind::Frame, "ZUS i fundusze"};
    core::Control fraInne{this, "fraInne", core::Kind::Frame, "Kwoty i wskaźniki"};
    core::FieldBoxes boxes;
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz zmiany"};
    core::Control CmdZmianaKosztow{this, "CmdZmianaKosztow", core::Kind::CommandButton,
                                   "Zmiana kosztów uzyskania i ulgi pod w zbiorach"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void take(core::Record& r);
    void refreshLabel36();
    bool checkNumbers();
};

class ObslugaScreen : public core::Form {
public:
    ObslugaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void cmdZapisz_Click();

    core::Session& s;
    core::Control txtAdministrator1{this, "txtAdministrator1", core::Kind::TextBox};
    core::Control txtAdministrator2{this, "txtAdministrator2", core::Kind::TextBox};
    core::Control lbAdministrator{this, "lbAdministrator", core::Kind::Label};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
};

}  // namespace reference
