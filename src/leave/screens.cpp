#include "leave/screens.h"

#include "leave/chorobowe.h"
#include "leave/czas_pracy.h"
#include "leave/urlopy_ekran.h"

namespace leave {

void registerScreens(core::Screens& screens) {
    screens.addForm<ChoroboweScreen>("frmChorobowe");
    screens.addForm<UrlopyScreen>("frmUrlopy");
    screens.addForm<CzasPracyScreen>("frmCzasPracy");
}

}  // namespace leave
