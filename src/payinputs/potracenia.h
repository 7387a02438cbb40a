// frmPotracenia: the standing deductions of one person, kept in the person's pay record: the
// housing-fund loan, the mutual loan fund, the union dues, the insurance premium and the free
// deductions.
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace payinputs {

// The base shown as "Podstawa do KZP": the pay components P6 to P20 and the housing allowance
// P32 of the record, summed at double precision and rounded to grosze.
float podstawaDoKZP(const core::Record& pay);

// The amount of a union due typed as k: k itself when it is at least 1 or not above 0, else k is
// a percent of the basic pay, or of the base for the payers "BIS" and "BUFLEPLA"; in grosze.
float skladkaZwiazkowa(float k, float zasadnicza, float podstawa, const std::string& skrotPlatnika);

class PotraceniaScreen : public core::Form {
public:
    PotraceniaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void cmdZapisz_Click();
    void cmdKoniec_Click() { Unload(); }

    // The text box of a field of the pay record.
    core::Control& txt(int field) { return boxes[field]; }
    // Shows the base, the two dues and the total for the record `pay` and the typed values.
    // `strict`: a value that is not a number is an error (Error 13 naming its box), else it
    // counts by its leading number.
    void przelicz(const core::Record& pay, bool strict);

    core::Session& s;
    core::Control frmZFM{this, "frmZFM", core::Kind::Frame, "Pożyczka ZFM"};
    core::Control frmKZP{this, "frmKZP", core::Kind::Frame, "Pożyczka z KZPożyczkowej"};
    core::Control fraZwiazki{this, "fraZwiazki", core::Kind::Frame, "Związki Zawodowe-składki"};
    core::Control fraInne{this, "fraInne", core::Kind::Frame, "Inne potrącenia"};
    core::FieldBoxes boxes;
    core::Control lbPodstawaDoKZP{this, "lbPodstawaDoKZP", core::Kind::Label};
    core::Control lbZwiazki{this, "lbZwiazki", core::Kind::Label};
    core::Control lbSolid{this, "lbSolid", core::Kind::Label};
    core::Control lbRazemPotracenia{this, "lbRazemPotracenia", core::Kind::Label};
    core::Control lbBrakDanych{this, "lbBrakDanych", core::Kind::Label};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz Zmiany"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void dlaBrakuDanych(bool found);
    core::Record placa;  // the person's record as read on opening
};

}  // namespace payinputs
