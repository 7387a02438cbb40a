// The screens of the pay inputs that other screens open by name.
#pragma once
#include "core/screens.h"

namespace payinputs {
void registerScreens(core::Screens& screens);
}
