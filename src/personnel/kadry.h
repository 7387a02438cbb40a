// frmKadryII ("Dane kadrowe"): the HR record of a person (person\<list>.kdr): the dates of
// employment, the kind of contract, the post and, for a person without a PESEL, the sex. Opened
// from the person's screen on that person, or from the main menu with the person to choose.
#pragma once
#include <string>

#include "core/form.h"
#include "core/session.h"

namespace personnel {

class KadryScreen : public core::Form {
public:
    KadryScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    // A person chosen in cboOsoba: the person and list become the session's, the record shown.
    void cboOsoba_Click();
    void cmdZapisz_Click();

    core::Session& s;
    core::Control cboOsoba{this, "cboOsoba", core::Kind::ComboBox};
    core::Control lbOsoba{this, "lbOsoba", core::Kind::Label};
    core::Control txtZatrudnionyOd{this, "txtZatrudnionyOd", core::Kind::TextBox};
    core::Control txtZatrudnionyDo{this, "txtZatrudnionyDo", core::Kind::TextBox};
    core::Control fraUmowa{this, "fraUmowa", core::Kind::Frame, "Umowa o pracę zawarta"};
    core::Control optOkreslony{this, "optOkreslony", core::Kind::OptionButton, "na czas określony"};
    core::Control optNieokreslony{this, "optNieokreslony", core::Kind::OptionButton, "na czas nieokreślony"};
    core::Control txtStanowisko{this, "txtStanowisko", core::Kind::TextBox};
    core::Control fraPlec{this, "fraPlec", core::Kind::Frame, "Płeć (potrzebna, gdy osoba nie ma numeru PESEL)"};
    core::Control optKobieta{this, "optKobieta", core::Kind::OptionButton, "kobieta"};
    core::Control optMezczyzna{this, "optMezczyzna", core::Kind::OptionButton, "mężczyzna"};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz dane kadrowe"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void pokaz();
};

}  // namespace personnel
