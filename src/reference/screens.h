// The screens of this subsystem that the main menu opens.
#pragma once
#include "core/screens.h"

namespace reference {
void registerScreens(core::Screens& screens);
}
