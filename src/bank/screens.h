// The screens of the bank transfers: frmDoBanku, from the main menu's "Do &Banków".
#pragma once
#include "core/screens.h"

namespace bank {
void registerScreens(core::Screens& screens);
}
