#include "paycalc/screens.h"

#include "paycalc/lista.h"

namespace paycalc {

void registerScreens(core::Screens& screens) {
    screens.addForm<ListaScreen>("frmlista");
}

}  // namespace paycalc
