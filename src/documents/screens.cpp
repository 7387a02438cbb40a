#include "documents/screens.h"

#include "documents/zaswiadczenia.h"

namespace documents {

void registerScreens(core::Screens& screens) {
    screens.addForm<ZaswiadczeniaScreen>("frmZaswiadczenia");
    screens.add("zarobki", [](core::Session& s, core::Dialogs& d) { d.open("frmWybierzOsobę", s); });
}

}  // namespace documents
