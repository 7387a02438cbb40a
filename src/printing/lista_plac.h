// The printed pay list and the payslips, both from the month's ledger (karta\<list><RRmm>.dta):
// the list head, the page head, five rows a person, the carry-over lines, the summary rows,
// the employer's contributions and the signature line; the list's sums go to
// SUMY\S<list><RRmm>.sum after each full print of the list.
#pragma once
#include <optional>
#include <array>
#include <functional>
#include <string>

#include "core/dialogs.h"
#include "core/error.h"
#include "core/printer.h"
#include "core/record.h"
#include "core/session.h"

namespace printing {

// Texts of the boxes.
extern const char* const kBrakPapieru;        // "Brak papieru w drukarce !"
extern const char* const kDrukarkaWylaczona;  // "Drukarka nie jest właczona !"
extern const char* const kBrakKartoteki;      // "Po pierwsze wykonaj kartoteke !"

// One person of the ledger as the list prints it: the ledger's numbers by their field names
// (v[Karta::Brutto]), with NaROR, ZasilkiDoROR, Brutto, Niedobor, ZasilkiDoKasy,
// PodatekOdZasilkow and Urlopowe replaced as the print works them out, and the values derived
// from them.
struct OsobaNaLiscie {
    std::array<float, 178> v{};  // v[0] unused
    std::string Nazwisko, Imie, Etat, NumerKonta, Grupa;
    float RazemPot = 0, Zasilki = 0, PoPotraceniach = 0, Netto = 0, RazemSkl = 0;
    // Sick days: code 331 (its code in the line-2 cell) and the other codes (line-1 cell).
    float DniKod331 = 0, DniInneKody = 0;
    std::string KodLinii1 = "   ", KodLinii2 = "   ";
    float DniNieobecnosci = 0;
    float Wypadkowa = 0;          // the accident amount when the person's CheckWypadkowa is 1
    float PodstawaPomostowa = 0;  // PodstawaZUS when EFPomostowy is 1
    float PodatekOdZasilkow = 0;  // T: tax on the ZUS benefits
    float ZasilkiGotowka = 0;     // C: the cash part of the benefits
    double Etaty = 0;             // the job share as a number
};
// Works out a person from a ledger record with the rates of the year (the accident rate).
OsobaNaLiscie wyliczOsobe(const core::Record& karta, const core::Stawki& st);

// A float right-aligned by the fixed-width format of `width` (7 "###0.00" to 11
// "#######0.00"), by its own 7 significant digits.
std::string tekstKwoty(float v, int width);
// The cells of a row: a bar and the value right-aligned in `width` (7 to 11), or the dash cell
// of that width for a zero.
std::string kwota(float v, int width);
std::string komorka(float v, int width);
std::string kreska(int width);  // "|     - " for 7, "|      - " for 8 ...

// The print of a list on one printer. The routines keep the names the screens know them by.
class DrukListy {
public:
    DrukListy(core::Session& s, core::Dialogs& ui, core::Printer& printer);

    // The question "Upewnij się czy drukarka jest gotowa!"; false on No.
    bool SprawdzDrukarke();
    // The list head: font, the payer, the list's number and month, the title.
    void modDrukujPoczatek();
    // The page head (the page line only on the list, not on the payslips), the head rows.
    void NaglowekListy();
    // The list (TrybDruku 0) or the payslips (TrybDruku 1) from the ledger. Shows the box of a
    // printer error or of a missing ledger and returns false; a list printed whole writes its
    // sums unless `zapiszSumy` is false (the preview on the screen).
    bool modDrukujListe(bool zapiszSumy = true);
    // The signature line.
    void modkoncowka();

    // Called with the running number of each person read and the count of persons + 1 (a
    // progress bar from 1 to the count + 1).
    std::function<void(int, int)> postep;

    // The sums of the last list printed, as the summary file holds them (valid after a whole
    // list).
    core::Record sumy;

    // Shows the box of a printer error (27 or 25); false for any other error.
    static bool bladDrukarki(core::Dialogs& ui, const core::Error& e);

    // The printer, or Error 27/25 when it reports one.
    core::Printer& drukarka();

private:
    void print(const std::string& text, bool newLine = true) { drukarka().print(text, newLine); }
    int liczbaStron() const;
    void wierszeOsoby(const OsobaNaLiscie& o, int n);

    core::Session& s;
    core::Dialogs& ui;
    core::Printer& papier;
};

// The commands of the workspace: "&Druk listy płac" and "p&Aski", on the program's printer.
// The pay list writes the list's sums file after the print. A caller whose pages go out later
// (the command line, into a file) passes `sumyPoWydruku`: the sums are left there, and the
// caller writes them (Sumy::write) once the pages are out whole.
void cmdDrukListy(core::Session& s, core::Dialogs& ui, std::optional<core::Record>* sumyPoWydruku = nullptr);
void CmdPaski(core::Session& s, core::Dialogs& ui);

}  // namespace printing
