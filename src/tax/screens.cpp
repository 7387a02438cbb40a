#include "tax/screens.h"

#include "tax/pit11.h"
#include "tax/pit4.h"

namespace tax {

void registerScreens(core::Screens& screens) {
    screens.addForm<Pit4Screen>("mnuPit4");
    screens.addForm<Pit4Screen>("frmPit4");
    screens.addForm<Pit11Screen>("frmPit11");
}

}  // namespace tax
