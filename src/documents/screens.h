// The HR documents that other screens and the main menu open by name: "frmZaswiadczenia" (the
// earnings certificate of the session's person) and the menu entry "zarobki" (the choice of the
// person, then the certificate).
#pragma once
#include "core/screens.h"

namespace documents {
void registerScreens(core::Screens& screens);
}
