#include "gui/routes.h"

#include "leave/screens.h"
#include "documents/screens.h"
#include "bank/screens.h"
#include "paycalc/screens.h"
#include "payinputs/screens.h"
#include "personnel/screens.h"
#include "printing/screens.h"
#include "reference/screens.h"
#include "yearledger/screens.h"
#include "trips/screens.h"
#include "tax/screens.h"
#include "zus/screens.h"

namespace gui {

void registerAllScreens(core::Screens& screens) {
    reference::registerScreens(screens);
    personnel::registerScreens(screens);
    payinputs::registerScreens(screens);
    paycalc::registerScreens(screens);
    printing::registerScreens(screens);
    leave::registerScreens(screens);
    yearledger::registerScreens(screens);
    documents::registerScreens(screens);
    trips::registerScreens(screens);
    tax::registerScreens(screens);
    bank::registerScreens(screens);
    zus::registerScreens(screens);
}

}  // namespace gui
