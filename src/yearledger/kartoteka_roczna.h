// FrmKartotekaRoczna ("Kartoteka Roczna"): the chosen person's year on one screen, month by
// month from the ledgers, with the "Razem" row; the overtime, the additions and the thirteenth
// pay with holiday benefits and jubilee awards on demand; the blanking of a month, the ledger
// editor of a month, the print of the year and the annual statement.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/session.h"
#include "yearledger/rok.h"

namespace yearledger {

// Fills a grid control with rows of cells (row 0 the heads).
void wypelnijSiatke(core::Control& g, const std::vector<std::vector<std::string>>& wiersze);

class KartotekaRocznaScreen : public core::Form {
public:
    KartotekaRocznaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void cmdUsun1Kartoteke_Click();
    void cmdTrzynastka_Click();
    void cmdGodziny_Click();
    void CmdDodatkowe_Click();
    void cmdEdycjaK_Click();
    void CmdDrukowanie_Click();
    void CmdPit11_Click();
    // The month (1..12) of the grid's selected row, or 0.
    int wybranyMiesiac() const;

    core::Session& s;
    DaneRoku dane;

    core::Control lbNaglowek{this, "lbNaglowek", core::Kind::Label};
    core::Control lbRok{this, "lbRok", core::Kind::Label};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control cmdUsun1Kartoteke{this, "cmdUsun1Kartoteke", core::Kind::CommandButton, "Usuń zaznaczoną kartoteke"};
    core::Control cmdTrzynastka{this, "cmdTrzynastka", core::Kind::CommandButton, "&Trzynastka Swiadczenia  Jubileusze"};
    core::Control cmdGodziny{this, "cmdGodziny", core::Kind::CommandButton, "&Godziny"};
    core::Control CmdDodatkowe{this, "CmdDodatkowe", core::Kind::CommandButton, "D&odatki"};
    core::Control cmdEdycjaK{this, "cmdEdycjaK", core::Kind::CommandButton, "&Edycja kartoteki"};
    core::Control CmdDrukowanie{this, "CmdDrukowanie", core::Kind::CommandButton, "&Drukowanie kartoteki"};
    core::Control CmdPit11{this, "CmdPit11", core::Kind::CommandButton, "&Pit11"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
    core::Control MSFlexGrid9{this, "MSFlexGrid9", core::Kind::Grid};
    core::Control CmdWylaczGodziny{this, "CmdWylaczGodziny", core::Kind::CommandButton, "Ukryj godziny"};
    core::Control MSFlexGrid8{this, "MSFlexGrid8", core::Kind::Grid};
    core::Control cmdWylaczDodatki{this, "cmdWylaczDodatki", core::Kind::CommandButton, "Ukryj dodatki"};
    core::Control MSFlexGrid7{this, "MSFlexGrid7", core::Kind::Grid};

private:
    void wczytaj();
};

}  // namespace yearledger
