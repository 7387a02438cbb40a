#include "payinputs/screens.h"

#include "payinputs/placa.h"
#include "payinputs/potracenia.h"
#include "payinputs/zasilki.h"

namespace payinputs {

void registerScreens(core::Screens& screens) {
    screens.add("frmPlaca", [](core::Session& s, core::Dialogs& d) {
        PlacaScreen f(d, s);
        d.showForm(f);
    });
    screens.add("frmPotracenia", [](core::Session& s, core::Dialogs& d) {
        PotraceniaScreen f(d, s);
        d.showForm(f);
    });
    screens.add("frmZasilki", [](core::Session& s, core::Dialogs& d) {
        ZasilkiScreen f(d, s);
        d.showForm(f);
    });
}

}  // namespace payinputs
