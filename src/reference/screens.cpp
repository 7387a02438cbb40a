#include "reference/screens.h"

#include "reference/podatki.h"

namespace reference {

void registerScreens(core::Screens& screens) {
    screens.add("stawki", [](core::Session& s, core::Dialogs& d) {
        PodatkiScreen f(d, s);
        d.showForm(f);
    });
    screens.add("obsluga", [](core::Session& s, core::Dialogs& d) {
        ObslugaScreen f(d, s);
        d.showForm(f);
    });
}

}  // namespace reference
