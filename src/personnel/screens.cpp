#include "personnel/screens.h"

#include "personnel/kadry.h"
#include "personnel/osoba1.h"
#include "personnel/sortuj.h"
#include "personnel/wybierz_osobe.h"

namespace personnel {

void registerScreens(core::Screens& screens) {
    screens.addForm<Osoba1Screen>("frmOsoba1");
    screens.addForm<SortujKadroweScreen>("frmSortujKadrowe");
    screens.addForm<WybierzOsobeScreen>("frmWybierzOsobę");
    screens.addForm<KadryScreen>("frmKadryII");
    screens.addForm<KadryScreen>("Kadry");
}

}  // namespace personnel
