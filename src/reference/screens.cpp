#include "reference/screens.h"

#include "reference/instalacja.h"
#include "reference/mojafirma.h"
#include "reference/podatki.h"
#include "reference/wybor.h"

namespace reference {

void registerScreens(core::Screens& screens) {
    screens.addForm<PodatkiScreen>("stawki");
    screens.addForm<ObslugaScreen>("obsluga");
    screens.addForm<WyborScreen>("wybór");
    screens.addForm<WyborScreen>("frmwybor");
    screens.addForm<MojaFirmaScreen>("Platnik");
    screens.addForm<MojaFirmaScreen>("frmMojaFirma");
    screens.addForm<InstalacjaScreen>("instalacjalist");
    screens.addForm<InstalacjaScreen>("frmInstalacja");
}

}  // namespace reference
