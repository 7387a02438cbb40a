// frmPodgladWydruku: the pay list of the month shown on the screen from the ledger, as it
// prints, with the count of notes and coins and the print of the list.
#pragma once
#include "core/form.h"
#include "core/session.h"

namespace printing {

class PodgladWydrukuScreen : public core::Form {
public:
    PodgladWydrukuScreen(core::Dialogs& ui, core::Session& s);
    // Builds the list from the ledger; without a ledger the screen closes after its box.
    void Load() override;

    core::Session& s;
    core::Control lbLista{this, "lbLista", core::Kind::Label};
    core::Control ProgressBar1{this, "ProgressBar1", core::Kind::ProgressBar};
    core::Control lstPodglad{this, "lstPodglad", core::Kind::ListBox};
    core::Control cmdDrukuj{this, "cmdDrukuj", core::Kind::CommandButton, "&Drukuj listę"};
    core::Control CmdSpecyfikacja{this, "CmdSpecyfikacja", core::Kind::CommandButton, "&Specyfikacja banknotów"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Zamknij"};

    // The separator of two pages in lstPodglad.
    static const char* const kNowaStrona;
};

}  // namespace printing
