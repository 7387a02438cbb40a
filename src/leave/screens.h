// The screens of leave and working time, by the names other screens open them with.
#pragma once
#include "core/screens.h"

namespace leave {

// "frmChorobowe" (sick pay of a person), "frmUrlopy" (leave of the year), "frmCzasPracy"
// (working time of a month).
void registerScreens(core::Screens& screens);

}  // namespace leave
