// The screens of the business trips, by the names other screens and the main menu open them.
#pragma once
#include "core/screens.h"

namespace trips {
void registerScreens(core::Screens& screens);
}
