// Every subsystem's screens, registered under the main menu entries that open them.
#pragma once
#include "core/screens.h"

namespace gui {
void registerAllScreens(core::Screens& screens);
}
