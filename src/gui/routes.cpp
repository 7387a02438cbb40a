#include "gui/routes.h"

#include "payinputs/screens.h"
#include "personnel/screens.h"
#include "printing/screens.h"
#include "reference/screens.h"

namespace gui {

void registerAllScreens(core::Screens& screens) {
    reference::registerScreens(screens);
    personnel::registerScreens(screens);
    payinputs::registerScreens(screens);
    printing::registerScreens(screens);
}

}  // namespace gui
