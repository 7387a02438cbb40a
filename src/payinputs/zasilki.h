// frmZasilki: the social benefits paid through the payroll for one person in the month, kept in
// the person's pay record: nursing and family allowances with their numbers of persons, the
// additions to the family allowance and the childcare base.
#pragma once
#include <string>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace payinputs {

class ZasilkiScreen : public core::Form {
public:
    ZasilkiScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void CmdZapiszZasilki_Click();
    void cmdKoniec_Click() { Unload(); }

    // Shows the sum of the benefits paid: nursing, family and its additions (the childcare
    // base is no payment and stays out).
    void przelicz();
    // The six boxes in the order of the pay record (P53 to P58).
    core::Control* pola[6];

    core::Session& s;
    core::Control Label1{this, "Label1", core::Kind::Label, "ilość osób"};
    core::Control Label2{this, "Label2", core::Kind::Label, "kwota"};
    core::Control Label3{this, "Label3", core::Kind::Label, "&Pielęgnacyjny iloscOs/kwota"};
    core::Control txtIloscOsZP{this, "txtIloscOsZP", core::Kind::TextBox};
    core::Control txtPielegnacyjny{this, "txtPielegnacyjny", core::Kind::TextBox};
    core::Control Label4{this, "Label4", core::Kind::Label, "&Rodzinny iloscOs/kwota"};
    core::Control txtIloscOsZR{this, "txtIloscOsZR", core::Kind::TextBox};
    core::Control txtRodzinny{this, "txtRodzinny", core::Kind::TextBox};
    core::Control Label5{this, "Label5", core::Kind::Label, "Dodatki do zasił&ku rodzinnego "};
    core::Control txtZasilekZUS{this, "txtZasilekZUS", core::Kind::TextBox};
    core::Control Label6{this, "Label6", core::Kind::Label, "&Wychowawczy podstawa do składek"};
    core::Control txtZWychowawczy{this, "txtZWychowawczy", core::Kind::TextBox};
    core::Control Label7{this, "Label7", core::Kind::Label, "Razem zasiłki"};
    core::Control lbKwotazasilkow{this, "lbKwotazasilkow", core::Kind::Label};
    core::Control lbBrakDanych{this, "lbBrakDanych", core::Kind::Label};
    core::Control CmdZapiszZasilki{this, "CmdZapiszZasilki", core::Kind::CommandButton, "&Zapisz zmiany"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
};

}  // namespace payinputs
