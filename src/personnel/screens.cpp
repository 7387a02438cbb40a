#include "personnel/screens.h"

#include "personnel/osoba1.h"
#include "personnel/sortuj.h"
#include "personnel/wybierz_osobe.h"

namespace personnel {

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
    screens.add("frmOsoba1", opener<Osoba1Screen>());
    screens.add("frmSortujKadrowe", opener<SortujKadroweScreen>());
    screens.add("frmWybierzOsobę", opener<WybierzOsobeScreen>());
}

}  // namespace personnel
