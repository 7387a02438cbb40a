// The screens of the social-insurance declarations: frmDoZUS (the merge and the KEDU settlement
// file), frmRCP (the review of the merged file) and FrmZUA (the registration file of a list).
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/record.h"
#include "core/screens.h"
#include "core/session.h"
#include "paycalc/postep.h"

namespace zus {

class DoZUSScreen : public core::Form {
public:
    DoZUSScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void cmdZachowaj_Click();
    void CmdPolacz_Click();
    void CmdPodgladRCP_Click();
    void CmdWykonajRCA_Click();

    core::Session& s;
    core::Control Label1{this, "Label1", core::Kind::Label};
    core::Control txtZestawZUS{this, "txtZestawZUS", core::Kind::TextBox};
    core::Control cmdZachowaj{this, "cmdZachowaj", core::Kind::CommandButton, "&Zachowaj"};
    core::Control chkDolaczTrzynastke{this, "chkDolaczTrzynastke", core::Kind::CheckBox, "Dołącz trzynastkę"};
    core::Control txtTerminPlatnosci{this, "txtTerminPlatnosci", core::Kind::TextBox};
    core::Control CmdPolacz{this, "CmdPolacz", core::Kind::CommandButton,
                             "&Połącz i sortuj zbiór do Płatnika ZUS (RCP)"};
    core::Control CmdPodgladRCP{this, "CmdPodgladRCP", core::Kind::CommandButton,
                                 "&Zbiór RCP - podgląd i aktualizacja"};
    core::Control CmdWykonajRCA{this, "CmdWykonajRCA", core::Kind::CommandButton, "&Wykonaj (KDU) DRA , RCA,  RSA, RZA"};
    core::Control cmdZUA{this, "cmdZUA", core::Kind::CommandButton, "Zgłoszenia Z&UA osób bieżącej listy"};
    core::Control Command2{this, "Command2", core::Kind::CommandButton, "&Koniec"};
    core::Control ProgressBar1{this, "ProgressBar1", core::Kind::ProgressBar};
    core::Control Label9{this, "Label9", core::Kind::Label};
    core::Control Label7{this, "Label7", core::Kind::Label};

private:
    paycalc::Postep postep();
    // The set letters checked; a box and false when they cannot be used.
    bool zestawDobry();
};

class RCPScreen : public core::Form {
public:
    RCPScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    // A click on a cell of a record: the new value asked in an input box.
    void MSFlexGrid1_Click();
    void cmdZapiszZmiany_Click();
    void CmdDrukujRCA_Click();

    core::Session& s;
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control cmdZapiszZmiany{this, "cmdZapiszZmiany", core::Kind::CommandButton, "&Zapisz zmiany"};
    core::Control CmdDrukujRCA{this, "CmdDrukujRCA", core::Kind::CommandButton, "&Drukuj zestawienie"};
    core::Control Command1{this, "Command1", core::Kind::CommandButton, "&Koniec"};

private:
    void pokaz();
    std::vector<core::Record> rekordy;
};

class ZUAScreen : public core::Form {
public:
    ZUAScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void CmdZUA_Click();

    core::Session& s;
    core::Control lbLista{this, "lbLista", core::Kind::Label};
    core::Control CmdZUA{this, "CmdZUA", core::Kind::CommandButton, "&Wykonaj zgłoszenia ZUA"};
    core::Control Command2{this, "Command2", core::Kind::CommandButton, "&Koniec"};
    core::Control lbWynik{this, "lbWynik", core::Kind::Label};
};

// "mnuDoZUS" / "frmDoZUS", "mnuSkladkiZUS" / "frmRCP", "FrmZUA".
void registerScreens(core::Screens& screens);

}  // namespace zus
