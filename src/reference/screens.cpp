#include "reference/screens.h"

#include "reference/instalacja.h"
#include "reference/mojafirma.h"
#include "reference/podatki.h"
#include "reference/wybor.h"

namespace reference {

namespace {

template <class Screen>
core::Screens::Opener opener() {
    return [](core::Session& s, core::Dialogs& d) {
        Screen f(d, s);
        d.showForm(f);
    };
}

}  // namespace

void registerScreens(core::Screens& screens) {
    screens.add("stawki", opener<PodatkiScreen>());
    screens.add("obsluga", opener<ObslugaScreen>());
    screens.add("wybór", opener<WyborScreen>());
    screens.add("frmwybor", opener<WyborScreen>());
    screens.add("Platnik", opener<MojaFirmaScreen>());
    screens.add("frmMojaFirma", opener<MojaFirmaScreen>());
    screens.add("instalacjalist", opener<InstalacjaScreen>());
    screens.add("frmInstalacja", opener<InstalacjaScreen>());
}

}  // namespace reference
