#include "trips/screens.h"

#include "trips/delegacje.h"

namespace trips {

void registerScreens(core::Screens& screens) { screens.addForm<DelegacjeScreen>("mnuDelegacje"); }

}  // namespace trips
