// The tax screens other screens and the main menu open by name: "mnuPit4" and "frmPit4" (the
// monthly advance), "frmPit11" (the annual statements of the chosen person).
#pragma once
#include "core/screens.h"

namespace tax {
void registerScreens(core::Screens& screens);
}
