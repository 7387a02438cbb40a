#include "yearledger/screens.h"

#include "yearledger/edycja.h"
#include "yearledger/kartoteka_roczna.h"

namespace yearledger {

void registerScreens(core::Screens& screens) {
    screens.addForm<KartotekaRocznaScreen>("frmKartotekaRoczna");
    screens.add("frmEdycjaKartoteki", [](core::Session& s, core::Dialogs& d) {
        EdycjaKartotekiScreen f(d, s);
        d.showForm(f);
    });
}

}  // namespace yearledger
