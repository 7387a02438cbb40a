// The commands and screens of the printed lists that other screens open by name: the pay list
// ("cmdDrukListy"), the payslips ("CmdPaski") and the list's preview ("frmPodgladWydruku").
#pragma once
#include "core/screens.h"

namespace printing {
void registerScreens(core::Screens& screens);
}
