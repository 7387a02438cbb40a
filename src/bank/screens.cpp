#include "bank/screens.h"

#include "bank/dobanku.h"

namespace bank {

void registerScreens(core::Screens& screens) {
    screens.addForm<DoBankuScreen>("mnuBanki");
    screens.addForm<DoBankuScreen>("frmDoBanku");
}

}  // namespace bank
