#include "payinputs/screens.h"

#include "payinputs/taryfikator.h"

#include "payinputs/placa.h"
#include "payinputs/potracenia.h"
#include "payinputs/zasilki.h"

namespace payinputs {

void registerScreens(core::Screens& screens) {
    screens.addForm<PlacaScreen>("frmPlaca");
    screens.addForm<PotraceniaScreen>("frmPotracenia");
    screens.addForm<ZasilkiScreen>("frmZasilki");
    screens.addForm<TaryfikatorScreen>("Taryfikator");
    screens.add("CmdZmianaKosztow", [](core::Session& s, core::Dialogs& d) { zmianaKosztow(s, d); });
}

}  // namespace payinputs
