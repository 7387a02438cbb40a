// frmMojaFirma ("Nazwa własnej Firmy"): the register of payers, one payer at a time. Walks the
// register, finds, adds a payer with its folder tree, saves the shown payer's data, removes a
// payer from the register (its folder stays) and chooses the payer of the session.
#pragma once
#include <memory>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/session.h"

namespace reference {

class MojaFirmaScreen : public core::Form {
public:
    MojaFirmaScreen(core::Dialogs& ui, core::Session& s);
    // Shows the session's payer (the last of the register when it is not there).
    void Load() override;

    void cmdNext_Click();
    void cmdWstecz_Click();
    void cmdZnajdz_Click();
    void cmdDodaj_Click();
    void cmdZmianyM_Click();
    void cmdUsun_Click();
    // Makes the shown payer the payer of the session and closes the screen.
    void cmdKoniecM_Click();

    // The text box of a field of MojaFirma.txt.
    core::Control& txt(int field) { return boxes[field]; }

    // The position of the shown record in the register, -1 when the register is empty.
    int Biezacy = -1;

    core::Session& s;
    core::Control lbPozycja{this, "lbPozycja", core::Kind::Label};
    core::Control fraFirma{this, "fraFirma", core::Kind::Frame, "Płatnik"};
    core::Control fraAdres{this, "fraAdres", core::Kind::Frame, "Adres"};
    core::Control fraRozliczenia{this, "fraRozliczenia", core::Kind::Frame, "Urząd, konta i ZUS"};
    core::FieldBoxes boxes;
    core::Control lbDataurodzenia{this, "lbDataurodzenia", core::Kind::Label, "ddmmRRRR"};
    core::Control lbRodzajPlatnika{this, "lbRodzajPlatnika", core::Kind::Label,
                                   "N= nie upoważniony do wypłaty zasiłków ZUS , U = upoważniony"};
    core::Control cmdWstecz{this, "cmdWstecz", core::Kind::CommandButton, "<< &Wstecz"};
    core::Control cmdNext{this, "cmdNext", core::Kind::CommandButton, "&Następny >>"};
    core::Control cmdZnajdz{this, "cmdZnajdź", core::Kind::CommandButton, "Zn&ajdź"};
    core::Control cmdDodaj{this, "cmdDodaj", core::Kind::CommandButton, "&Dodaj Płatnika"};
    core::Control cmdZmianyM{this, "cmdZmianyM", core::Kind::CommandButton, "Zapisz &Zmiany"};
    core::Control cmdUsun{this, "cmdUsuń", core::Kind::CommandButton, "&Usuń Płatnika"};
    core::Control cmdKoniecM{this, "cmdKoniecM", core::Kind::CommandButton, "W&ybierz"};
    core::Control cmdZamknij{this, "cmdZamknij", core::Kind::CommandButton, "Za&mknij"};

private:
    std::vector<core::Record> read();
    void show(const std::vector<core::Record>& recs, int index);
    bool check();
    void take(core::Record& r);
    // The position of the shown payer in `recs`, found again by its short name.
    int shown(const std::vector<core::Record>& recs) const;
    std::string skrotShown;
};

}  // namespace reference
