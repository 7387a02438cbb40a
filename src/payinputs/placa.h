// frmPlaca: the pay record of one person: the standing pay elements, the tax settings, the
// account, the contribution switches. Opened from the person screen; creates the record of a
// person who has none (cmdWpiszDane) and saves the changes into it (cmdZapiszZmiany).
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace payinputs {

// The limit texts of the screen for the typed pay elements `suma` (their sum at double
// precision) and the gross since 1 January.
struct Progi {
    bool progPodatkowy = false;  // Label25 shown: the gross since 1 January above the first bracket
    std::string skladkiRE;       // the caption of Label27, "" below the limit of the pension contributions
};
Progi progi(double suma, double bruttoOd01, double progI, float kwotaGRE);

// The caption of Label10 (the label of txtWychowawczy) for the payer's tax number.
std::string opisLabel10(const std::string& nipPlatnika);

class PlacaScreen : public core::Form {
public:
    PlacaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void cmdWpiszDane_Click();
    void cmdZapiszZmiany_Click();
    void cmdKoniecP_Click() { Unload(); }
    // The click defaults.
    void txtKosztyUzyskania_Click();
    void txtKwotaUlgi_Click();
    void txtZastosStaPOD_Click();

    // The text box of a field of the pay record.
    core::Control& txt(int field) { return boxes[field]; }
    // Whether a record of the person was found (or made).
    bool maRekord() const { return znaleziony; }

    core::Session& s;
    core::Control fraSkladniki{this, "fraSkladniki", core::Kind::Frame, "Składniki płacy"};
    core::Control fraPodatek{this, "fraPodatek", core::Kind::Frame, "Podatek"};
    core::Control fraZatrudnienie{this, "fraZatrudnienie", core::Kind::Frame, "Zatrudnienie"};
    core::Control fraROR{this, "fraROR", core::Kind::Frame, "Konto ROR"};
    core::Control fraSkladki{this, "fraSkladki", core::Kind::Frame, "Składki ZUS"};
    core::Control fraStazowy{this, "fraStazowy", core::Kind::Frame, "Dodatek stażowy"};
    core::Control fraRozliczenie{this, "fraRozliczenie", core::Kind::Frame, "Rozliczenie podatku"};
    core::Control fraSamotna{this, "fraSamotna", core::Kind::Frame, "Samotne wychowywanie dziecka"};
    core::Control fraDojazd{this, "fraDojazd", core::Kind::Frame, "Koszty uzyskania"};
    core::Control fraRorGodziny{this, "fraRorGodziny", core::Kind::Frame, "ROR z godzin nadliczbowych"};
    core::Control fraRorDodatki{this, "fraRorDodatki", core::Kind::Frame, "ROR z list dodatkowych"};

    core::Control Label10{this, "Label10", core::Kind::Label, "Na&Dliczbowe"};
    core::FieldBoxes boxes;
    core::Control cmbRodzajUmowy{this, "cmbRodzajUmowy", core::Kind::ComboBox};
    core::Control Label25{this, "Label25", core::Kind::Label};
    core::Control Label27{this, "Label27", core::Kind::Label};

    core::Control Option1{this, "Option1", core::Kind::OptionButton, "Tak"};
    core::Control Option2{this, "Option2", core::Kind::OptionButton, "Nie"};
    core::Control Option3{this, "Option3", core::Kind::OptionButton, "Indywidualne"};
    core::Control Option4{this, "Option4", core::Kind::OptionButton, "Rozliczenie wspólne(liniowy)"};
    core::Control Option5{this, "Option5", core::Kind::OptionButton, "Nie"};
    core::Control Option6{this, "Option6", core::Kind::OptionButton, "Samotna matka"};
    core::Control Opnie{this, "Opnie", core::Kind::OptionButton, "Miejscowy"};
    core::Control Optak{this, "Optak", core::Kind::OptionButton, "Dojeżdżający"};
    core::Control Option7{this, "Option7", core::Kind::OptionButton, "Nie"};
    core::Control Option8{this, "Option8", core::Kind::OptionButton, "Tak"};
    core::Control Option9{this, "Option9", core::Kind::OptionButton, "Nie"};
    core::Control Option10{this, "Option10", core::Kind::OptionButton, "Tak"};
    core::Control Check1{this, "Check1", core::Kind::CheckBox, "Rentowa"};
    core::Control Check2{this, "Check2", core::Kind::CheckBox, "Emerytalna"};
    core::Control Check3{this, "Check3", core::Kind::CheckBox, "Chorobowa"};
    core::Control Check4{this, "Check4", core::Kind::CheckBox, "Zdrowotna"};
    core::Control Check5{this, "Check5", core::Kind::CheckBox, "Wypadkowa"};
    core::Control Check6{this, "Check6", core::Kind::CheckBox, "Fundusz Emerytur Pomostowych"};

    core::Control lbBrakDanych{this, "lbBrakDanych", core::Kind::Label};
    core::Control cmdWpiszDane{this, "cmdWpiszDane", core::Kind::CommandButton, "&Załóż dane płacowe"};
    core::Control cmdZapiszZmiany{this, "cmdZapiszZmiany", core::Kind::CommandButton, "&Zapisz zmiany"};
    core::Control cmdKoniecP{this, "cmdKoniecP", core::Kind::CommandButton, "&Koniec"};

private:
    void wypelnij(const core::Record& r);
    void domyslne();
    void odswiezProgi();
    void normalizuj();
    void przepisz(core::Record& r);
    std::string grupa() const;
    void bladOdczytu(const core::Error& e);

    core::Record rekordPlacy;
    bool znaleziony = false;
};

}  // namespace payinputs
