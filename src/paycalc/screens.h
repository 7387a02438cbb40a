// The screens of the pay calculation that other screens open by name.
#pragma once
#include "core/screens.h"

namespace paycalc {

// "frmlista": the pay-list workspace.
void registerScreens(core::Screens& screens);

}  // namespace paycalc
