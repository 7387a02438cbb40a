// The screens of the personnel file that other screens open by name.
#pragma once
#include "core/screens.h"

namespace personnel {
void registerScreens(core::Screens& screens);
}
