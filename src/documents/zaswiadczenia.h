// frmZaswiadczenia: the earnings of a chosen stretch of months of the person of the session,
// month by month with their totals, and the print of the certificate with its copy.
#pragma once
#include <optional>
#include <string>

#include "core/form.h"
#include "core/session.h"
#include "documents/zaswiadczenie.h"

namespace documents {

class ZaswiadczeniaScreen : public core::Form {
public:
    ZaswiadczeniaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    // Fills the grid and the totals; false when the command ended without them.
    bool cmdPobierzDane_Click();
    void cmdUstalonyOkres_Click();

    core::Session& s;
    std::optional<Sumy> sumy;

    core::Control lbUwaga{this, "lbUwaga", core::Kind::Label,
                          "Do wydrukowania danych z 1 miesiąca wpisać w pozycji Od i Do tą samą date !"};
    core::Control txtODData{this, "txtODData", core::Kind::TextBox};
    core::Control txtDoData{this, "txtDoData", core::Kind::TextBox};
    core::Control Frame1{this, "Frame1", core::Kind::Frame, "Włączyć !"};
    core::Control chkUrlopowe{this, "chkUrlopowe", core::Kind::CheckBox, "świadczenia urlopowe"};
    core::Control chkjubileusze{this, "chkjubileusze", core::Kind::CheckBox, "jubileusze"};
    core::Control chkTrzynastka{this, "chkTrzynastka", core::Kind::CheckBox, "trzynastkę"};
    core::Control txtObciazeniaSadowe{this, "txtObciazeniaSadowe", core::Kind::TextBox};
    core::Control lbBrutto{this, "lbBrutto", core::Kind::Label,
                           "Do brutto wliczane są : płaca+dodatki+godziny nadliczbowe+jubileusze+ świadczenia urlopowe + "
                           "trzynastka/ilość miesięcy"};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control lbRazem{this, "lbRazem", core::Kind::Label, "Razem"};
    core::Control txtRazemBrutto{this, "txtRazemBrutto", core::Kind::TextBox};
    core::Control txtRazemSkladkiZUS{this, "txtRazemSkladkiZUS", core::Kind::TextBox};
    core::Control txtRazemNFZ{this, "txtRazemNFZ", core::Kind::TextBox};
    core::Control txtRazemZaliczka{this, "txtRazemZaliczka", core::Kind::TextBox};
    core::Control txtRazemNetto{this, "txtRazemNetto", core::Kind::TextBox};
    core::Control txtRazemKosztyU{this, "txtRazemKosztyU", core::Kind::TextBox};
    core::Control txtRazemUlga{this, "txtRazemUlga", core::Kind::TextBox};
    core::Control cmdPobierzDane{this, "cmdPobierzDane", core::Kind::CommandButton, "&Pobierz dane"};
    core::Control cmdUstalonyOkres{this, "cmdUstalonyOkres", core::Kind::CommandButton,
                                    "&Drukuj zaświadczenie o zarobkach "};
    core::Control CmdKoniec{this, "CmdKoniec", core::Kind::CommandButton, "&Koniec"};
};

// The certificate of the person of the session on `ui.printer()` for the period, with the
// purpose given (the screen asks for it); the box of a missing HR record or a printer error
// ends it with false.
bool drukujDlaOsoby(core::Session& s, core::Dialogs& ui, const Sumy& sumy, const std::string& od,
                    const std::string& doOkresu, const std::string& cel, double obciazenia,
                    const std::string& dataWydania);

}  // namespace documents
