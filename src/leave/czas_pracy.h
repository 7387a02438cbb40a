// frmCzasPracy ("Rozliczenie czasu pracy dla" and the person): the person's working time, a
// month at a time, day by day, kept in godziny\CP<list><rrrr>.dta.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/session.h"
#include "leave/czas_record.h"

namespace leave {

// The grid's columns.
namespace KolCP {
enum : int { Dm = 0, NazwaDnia, Gp, G50, G100, Lpg, Limit, GUr, GN, GCh, Swieto, Count };
}
inline constexpr int kWierszRazem = 32;
inline constexpr const char* kBrakDnia = "     X       ";

class CzasPracyScreen : public core::Form {
public:
    CzasPracyScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    // The grid from the person's block for `miesiac`, with the totals.
    void pokazMiesiac();
    void cmdWstawG_Click();
    void cmdZeruj_Click();
    void cmdNext_Click();
    void cmdWroc_Click();
    void cmdZapiszZmiany_Click();
    void cmdDrukCzasuPracy_Click();
    // The entry of the cell MSFlexGrid1.Row, MSFlexGrid1.Col.
    void MSFlexGrid1_DblClick();
    // The totals row and the count of working days.
    void sumy();

    int rok() const { return rokPliku; }
    int miesiac = 1;  // the month shown, 1 .. 12

    core::Session& s;
    core::Control LbData{this, "LbData", core::Kind::Label};
    core::Control lbwskEtatu{this, "lbwskEtatu", core::Kind::Label};
    core::Control lbIloscDniPracy{this, "lbIloscDniPracy", core::Kind::Label};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control cmdWroc{this, "cmdWróć", core::Kind::CommandButton, "<--"};
    core::Control cmdNext{this, "cmdNext", core::Kind::CommandButton, "   -->"};
    core::Control cmdWstawG{this, "cmdWstawG", core::Kind::CommandButton, "&Wstaw deflautowo"};
    core::Control cmdZeruj{this, "cmdZeruj", core::Kind::CommandButton, "Zer&uj"};
    core::Control cmdZapiszZmiany{this, "cmdZapiszZmiany", core::Kind::CommandButton, "&Zapisz Zmiany"};
    core::Control cmdDrukCzasuPracy{this, "cmdDrukCzasuPracy", core::Kind::CommandButton, "&Drukuj"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    bool brakDnia(int wiersz) const { return MSFlexGrid1.TextMatrix(wiersz, KolCP::NazwaDnia) == kBrakDnia; }
    void wczytaj();

    int rokPliku = 0;
    std::vector<CzasPracy::Blok> blokiPliku;
};

}  // namespace leave
