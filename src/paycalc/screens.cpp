#include "paycalc/screens.h"

#include "paycalc/lista.h"

namespace paycalc {

void registerScreens(core::Screens& screens) {
    screens.add("frmlista", [](core::Session& s, core::Dialogs& d) {
        ListaScreen f(d, s);
        d.showForm(f);
    });
}

}  // namespace paycalc
