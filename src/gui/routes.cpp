#include "gui/routes.h"

#include "paycalc/screens.h"
#include "payinputs/screens.h"
#include "reference/screens.h"

namespace gui {

void registerAllScreens(core::Screens& screens) {
    reference::registerScreens(screens);
    payinputs::registerScreens(screens);
    paycalc::registerScreens(screens);
}

}  // namespace gui
