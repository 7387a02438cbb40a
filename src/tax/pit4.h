// The monthly advance: frmPit4 adds up the month of the lists of a set from their ledgers and
// supplementary files, lets the clerk complete the sheet, keeps it in Pit4\Pit4<RRmm>.dta and
// prints it onto the form PIT-4.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/record.h"
#include "core/session.h"
#include "tax/formularz.h"

namespace tax {

// The four sums of the month (and the persons), over every chosen list.
struct SumyPit4 {
    long osoby = 0;
    double podstawaZdrowotna = 0;  // ledger 138; field 7 of the supplementary records
    double zdrowotnaPozostala = 0;    // ledger 132; field 8
    double zdrowotna = 0;          // ledger 146 + 132; fields 9 + 8
    double podatek = 0;            // ledger 134; field 11
};

// Sums the month of the session's list date over the lists of the set `zestaw`. The
// thirteenth pay counts only for the session's chosen person (surname and key).
SumyPit4 wyliczPit4(const core::Session& s, const std::string& zestaw);

// The sheet file: 55 numbers, one a line, column by column of the eight income rows and their
// total, then the numbered lines 44 to 53.
namespace Pit4Arkusz {
enum : int {
    Ilosc1 = 1, RazemIlosc = Ilosc1 + 8,
    SumaWyplat1, RazemSumaWyplat = SumaWyplat1 + 8,
    Pobrane1, RazemPobrana = Pobrane1 + 8,
    Odliczone1, RazemOdliczona = Odliczone1 + 8,
    Zaliczka1, RazemZaliczka = Zaliczka1 + 8,
    KwotaZaliczek, KwotaDoPobrania, KwotaDodatkowo, ZaliczenieNadplaty, ZwrotGotowki, KwotaNaPfron,
    KwotaZaliczekK13, KwotaPobranegoPod, KwotaPotracenia, KwotaDoWplaty,
    Count = KwotaDoWplaty
};
const core::Schema& schema();
// Pit4\Pit4<RRmm>.dta of the session's payer and list date.
std::filesystem::path path(const core::Session& s);
core::Record read(const std::filesystem::path& file);
void write(const std::filesystem::path& file, const core::Record& r);
}  // namespace Pit4Arkusz

class Pit4Screen : public core::Form {
public:
    Pit4Screen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    // "&Pobierz z kartotek": the month's sums into row 1.
    void WyliczPIT4();
    // "&Wylicz ": the totals and lines 51 and 53.
    void Wylicz();
    // "&Zapisz": the sheet into its file; "Zapisane ! ".
    void ZapiszPit4();
    // "Ze z&bioru": the sheet from its file.
    void ZeZbioru();
    // "&Drukuj": onto the form, after the printer question.
    void DrukujPIT4();
    // The form without the question (the command line).
    void drukujFormularz();
    // The sheet as a record of the file, and the values of the form.
    core::Record arkusz();
    Wartosci wartosci();
    // The letters of the set the sums are taken over (the session's set unless given).
    std::string Zestaw;

    core::Session& s;
    core::Control lbZestaw{this, "lbZestaw", core::Kind::Label};
    core::Control txtDataPIT4{this, "txtDataPIT4", core::Kind::TextBox};
    core::Control fraArkusz{this, "fraArkusz", core::Kind::Frame, "Przychody, pobrane i odliczone"};
    core::Control lbOsoby{this, "lbOsoby", core::Kind::Label, "Osoby"};
    core::Control lbWyplaty{this, "lbWyplaty", core::Kind::Label, "Suma wypłat"};
    core::Control lbPobrane{this, "lbPobrane", core::Kind::Label, "Pobrany podatek"};
    core::Control lbOdliczone{this, "lbOdliczone", core::Kind::Label, "Odliczona składka zdr."};
    core::Control lbZaliczka{this, "lbZaliczka", core::Kind::Label, "Zaliczka"};
    core::Control fraPozycje{this, "fraPozycje", core::Kind::Frame, "Pozycje deklaracji"};
    core::FieldBoxes boxes;
    core::Control txtWyjasnienia{this, "txtWyjasnienia", core::Kind::TextBox};
    core::Control CmdWyliczPIT4{this, "CmdWyliczPIT4", core::Kind::CommandButton, "&Pobierz z kartotek"};
    core::Control CmdZeZbioru{this, "CmdZeZbioru", core::Kind::CommandButton, "Ze z&bioru"};
    core::Control cmdWylicz{this, "cmdWylicz", core::Kind::CommandButton, "&Wylicz "};
    core::Control cmdZapiszPit4{this, "cmdZapiszPit4", core::Kind::CommandButton, "&Zapisz"};
    core::Control CmdDrukujPIT4{this, "CmdDrukujPIT4", core::Kind::CommandButton, "&Drukuj"};
    core::Control CmdKoniecPit4{this, "CmdKoniecPit4", core::Kind::CommandButton, "&Koniec"};

private:
    double v(int pole) { return liczbaPola(pole); }
    double liczbaPola(int pole);
    void ustaw(int pole, double wartosc);
};

}  // namespace tax
