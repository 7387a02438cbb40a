#include "gui/routes.h"

#include "reference/screens.h"

namespace gui {

void registerAllScreens(core::Screens& screens) {
    reference::registerScreens(screens);
}

}  // namespace gui
