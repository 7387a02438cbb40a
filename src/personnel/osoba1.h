// frmOsoba1 ("Pracownik"): one person of the list: shows and edits the personnel record, adds a
// new person, and opens the person's other screens (pay, deductions, benefits, sick pay, leave,
// the yearly ledger, working time) by name as they exist in this program.
#pragma once
#include <string>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace personnel {

// The screens of the person, by their names and the menu entries that open them.
inline constexpr const char* kEkranPlacy = "frmPlaca";
inline constexpr const char* kEkranPotracen = "frmPotracenia";
inline constexpr const char* kEkranZasilkow = "frmZasilki";
inline constexpr const char* kEkranChorobowego = "frmChorobowe";
inline constexpr const char* kEkranUrlopow = "frmUrlopy";
inline constexpr const char* kEkranKartotekiRocznej = "frmKartotekaRoczna";
inline constexpr const char* kEkranCzasuPracy = "frmCzasPracy";
inline constexpr const char* kEkranRocznegoCzasuPracy = "frmRocznyCzasPracy";
inline constexpr const char* kEkranKadr = "frmKadryII";

class Osoba1Screen : public core::Form {
public:
    Osoba1Screen(core::Dialogs& ui, core::Session& s);
    ~Osoba1Screen() override;

    void Load() override;
    void cmdZapiszZmiany_Click();
    void cmdZapiszNowaOsobe_Click();
    void cmdKoniecP_Click() { Unload(); }
    // The postal lookup when the code changes.
    void txtKod_Change();
    // The birth date from the PESEL on a click in the birth date box.
    void txtDataUrodzenia_Click();
    // Opens a screen of the person by name, with the person's values in the session.
    void otworz(const std::string& ekran);
    // Whether the screen is adding a new person (cmdZapiszNowaOsobe offered).
    bool trybNowejOsoby() const { return cmdZapiszNowaOsobe.Visible; }
    // The identifier under which the record on the screen stands in the file.
    const std::string& kluczWPliku() const { return kluczOsobyWPliku; }

    core::Session& s;

    core::Control fraDane{this, "fraDane", core::Kind::Frame, "Dane osobowe"};
    core::Control fraAdres{this, "fraAdres", core::Kind::Frame, "Adres zameldowania"};
    core::Control fraZatrudnienie{this, "fraZatrudnienie", core::Kind::Frame, "Zatrudnienie i ubezpieczenie"};
    core::Control fraStatus{this, "fraStatus", core::Kind::Frame, "Status Aktywności"};

    // The boxes of the personnel record (the table in osoba1.cpp); the fraction of the post is
    // two boxes of field Etat, its numerator and its denominator.
    core::FieldBoxes boxes;
    core::Control& txt(int field) { return boxes[field]; }
    core::Control& txtEtat = *find("txtEtat");
    core::Control& txtEtat2 = *find("txtEtat2");

    core::Control lbUlamekEtatu{this, "lbUlamekEtatu", core::Kind::Label};
    core::Control lbFunduszPracy{this, "lbFunduszPracy", core::Kind::Label,
                                 "Poniżej 1 /4 etatu nie nalicza Funduszu Pracy"};
    core::Control lbWiek{this, "lbWiek", core::Kind::Label, "Kobiety > 55 i męższczyźni > 60 FP i FGŚP = 0"};
    core::Control Option1{this, "Option1", core::Kind::OptionButton, "Tak"};
    core::Control Option2{this, "Option2", core::Kind::OptionButton, "Nie"};

    core::Control cmdZapiszZmiany{this, "cmdZapiszZmiany", core::Kind::CommandButton, "Zapisz zmiany"};
    core::Control cmdZapiszNowaOsobe{this, "cmdZapiszNowaOsobe", core::Kind::CommandButton, "&Wpisz dane nowej osoby"};
    core::Control CmdKadry{this, "CmdKadry", core::Kind::CommandButton, "&Dane kadrowe  -> 2"};
    core::Control cmdKoniecP{this, "cmdKoniecP", core::Kind::CommandButton, "Koniec"};

    // The menu of the person's other screens.
    core::Control placa{this, "placa", core::Kind::Menu, "&Płaca"};
    core::Control potr{this, "potr", core::Kind::Menu, "Po&Trącenia"};
    core::Control Zasilki{this, "Zasilki", core::Kind::Menu, "&Renty i Zasiłki"};
    core::Control chorobowe{this, "chorobowe", core::Kind::Menu, "&Chorobowe"};
    core::Control urlopy{this, "urlopy", core::Kind::Menu, "&Urlopy"};
    core::Control lista{this, "lista", core::Kind::Menu, "&Lista płac"};
    core::Control Roczna{this, "Roczna", core::Kind::Menu, "&Kartoteka "};
    core::Control CzasPracy{this, "CzasPracy", core::Kind::Menu, "&CzasPracy"};
    core::Control mnuMiesieczne{this, "mnuMiesieczne", core::Kind::Menu, "&Miesięczne zestawienie "};
    core::Control mnuRoczne{this, "mnuRoczne", core::Kind::Menu, "&Roczne zestawienie"};

private:
    void wypelnij(const core::Record& r);
    void wyczysc();
    void trybNowej(int numer);
    void trybZmian();
    void odswiezMenu();
    void odswiezEtat();
    bool sprawdz();
    void zbuduj(core::Record& r);

    std::string kluczOsobyWPliku;
    int numerWPliku = 0;  // the number of a person just added (0: the first record of the key)
};

}  // namespace personnel
