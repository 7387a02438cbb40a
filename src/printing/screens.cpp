#include "printing/screens.h"

#include "printing/lista_plac.h"
#include "printing/podglad.h"
#include "printing/specyfikacja.h"

namespace printing {

void registerScreens(core::Screens& screens) {
    screens.add("cmdDrukListy", [](core::Session& s, core::Dialogs& d) { cmdDrukListy(s, d); });
    screens.add("CmdPaski", [](core::Session& s, core::Dialogs& d) { CmdPaski(s, d); });
    screens.add("CmdSpecyfikacja", [](core::Session& s, core::Dialogs& d) { CmdSpecyfikacja(s, d); });
    screens.addForm<PodgladWydrukuScreen>("frmPodgladWydruku");
}

}  // namespace printing
