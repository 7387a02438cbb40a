// The screens of the yearly ledger that other screens open by name: "frmKartotekaRoczna" (from
// the person's screen) and "frmEdycjaKartoteki" (the ledger of the list date's month).
#pragma once
#include "core/screens.h"

namespace yearledger {
void registerScreens(core::Screens& screens);
}
