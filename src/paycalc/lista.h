// frmlista ("Lista pracowników"): the operator's screen of one pay list. It shows the people of
// the list, lets the operator pick one, add or delete people and open their records, carries on
// five tabs the supplementary files of the month, and starts the month's ledger, the printing,
// the month closing and the calibration of the pay file.
#pragma once
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/session.h"
#include "paycalc/dodatkowe.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/postep.h"

namespace paycalc {

// The type text of a list by its group letter.
std::string rodzajListy(const std::string& grupa);

// The person of a line of lstlista, cut by its columns.
struct WybranaOsoba {
    std::string Nazwisko, Imie, Klucz, KodUbezpieczenia, Numer;
};
WybranaOsoba osobaZWiersza(const std::string& line);

class ListaScreen : public core::Form {
public:
    ListaScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void lstlista_Click();
    void TabStrip1_Click();
    void cmdDodajOsobe_Click();
    void cmdUsu();
    void cmdWybrane_Click();
    void cmdSortujZbior_Click();
    void cmdKartoteka_Click();
    void cmdWyliczPodstawe_Click();
    void CmdZerowanie_Click();
    void CmdSol1_Click();
    // The printing commands open the screens of the printing by their names.
    void drukuj(const std::string& ekran);
    void koniecH_Click() { Unload(); }

    // The supplementary runs of the month, each on its tab's boxes.
    void CmdWyliczG() { wylicz(1); }
    void cmdWyliczD() { wylicz(2); }
    void cmdWyliczT() { wylicz(3); }
    void cmdWyliczJ() { wylicz(4); }
    void cmdWyliczSwUrlopowy() { wylicz(5); }
    void wylicz(int tab);
    // The delete command and the printed list of the tab's month's file.
    void usunZakladke(int tab);
    void drukujZakladke(int tab);
    // The additions' option group: the chosen kind shows its switches, a switch changes them.
    void optD_Click(int i);
    void ChkD_Click();
    // The control of the screen named `nazwa`; Error 9 when there is none.
    core::Control& kontrolka(const std::string& nazwa);
    // The kind of addition chosen on the additions' tab, 1 to 7.
    int wybranyDodatek() const { return nrDodatku; }

    // The kind of the tab `tab` (1 to 5).
    static Dodatkowy::Rodzaj rodzajZakladki(int tab);
    // The frame of the tab and the control showing a field of the tab's file (or null).
    core::Control& ramka(int tab);
    core::Control* pole(int tab, int field);
    // Whether a person of the list is chosen.
    bool wybrana() const { return lstlista.ListIndex >= 0; }

    static constexpr int kMaxOsob = 250;
    // The lines of the list, as the table of at most kMaxOsob entries keeps them.
    std::vector<std::string> Tablica;
    // The whole key of each line: a foreigner's document may be longer than its columns.
    std::vector<std::string> Klucze;

    core::Session& s;

    core::Control lbDatalistyk{this, "lbDatalistyk", core::Kind::Label};
    core::Control Label3{this, "Label3", core::Kind::Label};
    core::Control lbStatus{this, "lbStatus", core::Kind::Label};
    core::Control Lblista{this, "Lblista", core::Kind::Label,
                          "Nr.   Nazwisko                                         Imie           "};
    core::Control lstlista{this, "lstlista", core::Kind::ListBox};
    core::Control fraPolecenia{this, "fraPolecenia", core::Kind::Frame, "Polecenia"};
    core::Control cmdDodajOsobe{this, "cmdDodajOsobe", core::Kind::CommandButton, "Dodaj &Osobę"};
    core::Control cmdUsun{this, "cmdUsuń", core::Kind::CommandButton, "&Usuń osobę"};
    core::Control cmdWybrane{this, "cmdWybrane", core::Kind::CommandButton, "Pokaż &Wybrane"};
    core::Control cmdSortujZbior{this, "cmdSortujZbior", core::Kind::CommandButton, "&Sortuj zbiór"};
    core::Control cmdKartoteka{this, "cmdKartoteka", core::Kind::CommandButton, "Utwórz kar&Totekę"};
    core::Control cmdDrukListy{this, "cmdDrukListy", core::Kind::CommandButton, "&Druk listy płac"};
    core::Control cmdPodglad{this, "cmdPodglad", core::Kind::CommandButton, "&Podglad listy"};
    core::Control CmdPaski{this, "CmdPaski", core::Kind::CommandButton, "p&Aski"};
    core::Control CmdDruZasilkow{this, "CmdDruZasilkow", core::Kind::CommandButton, "Druk&ChrobZUS"};
    core::Control CmdZerowanie{this, "CmdZerowanie", core::Kind::CommandButton, "&Zerowanie"};
    core::Control CmdSol1{this, "CmdSol1", core::Kind::CommandButton, "Kalibracja &Bazy(np Po zmianie nazwiska)"};
    core::Control koniecH{this, "koniecH", core::Kind::CommandButton, "  &Koniec"};
    core::Control TabStrip1{this, "TabStrip1", core::Kind::TabStrip};
    core::Control Frame1{this, "Frame1", core::Kind::Frame, "Godziny Nadliczbowe"};
    core::Control Frame2{this, "Frame2", core::Kind::Frame, "Dodatkowe"};
    core::Control Frame3{this, "Frame3", core::Kind::Frame, " Trzynastka"};
    core::Control Frame4{this, "Frame4", core::Kind::Frame, "Jubileusze"};
    core::Control frame5{this, "frame5", core::Kind::Frame, "Świadczenia Urlopowe"};
    core::Control lbNazwiskoImie1{this, "lbNazwiskoImie1", core::Kind::Label};
    core::Control lbNazwiskoImie2{this, "lbNazwiskoImie2", core::Kind::Label};
    core::Control lbNazwiskoImie3{this, "lbNazwiskoImie3", core::Kind::Label};
    core::Control lbNazwiskoImie4{this, "lbNazwiskoImie4", core::Kind::Label};
    core::Control lbNazwiskoImie5{this, "lbNazwiskoImie5", core::Kind::Label};
    // The thirteenth pay's tab: the year of the base and the base of the year.
    core::Control txtRokDoPodstawy{this, "txtRokDoPodstawy", core::Kind::TextBox};
    core::Control cmdWyliczPodstawe{this, "cmdWyliczPodstawe", core::Kind::CommandButton, "Wylicz &podstawę"};
    core::Control lbUwagaJ{this, "lbUwagaJ", core::Kind::Label,
                           "Nagroda Jubileuszowa  ( tylko podatek , nie oskładkowane)"};
    core::Control lbInfo{this, "lbInfo", core::Kind::Label};
    core::Control ProgressBar1{this, "ProgressBar1", core::Kind::ProgressBar};
    core::Control lbUwagi{this, "lbUwagi", core::Kind::Label};

private:
    void zbudujRamki();
    void pokazRamke(int tab);
    // Fills the tab's frame with the chosen person's record of the tab's file, or clears it.
    void pokazRekord(int tab);
    void wyczysc(int tab);
    // Creates the tab's file of the month from the pay and personnel records of the list.
    void zalozZbior(Dodatkowy::Rodzaj r);
    // The progress bar and the status label for a long command; the command buttons are off
    // while it runs.
    Postep postep();
    void polecenia(bool wlaczone);
    void ustawPrzyciski();

    // Fills the overtime's boxes of the job share and the hardship allowance from the person's
    // records.
    void podpowiedzNadgodzin();
    // Shows a run's results in the labels of its tab that the file does not keep.
    void pokazRozliczenie(int tab, const Rozliczenie& r);
    void pokazFlagi();

    // The controls of each tab's frame bound to the fields of the tab's file.
    std::vector<std::unique_ptr<core::FieldBoxes>> pola;
    // The other controls of the tabs (switches, commands, results), found by their names.
    std::vector<std::unique_ptr<core::Control>> wlasne;
    // The additions' switches of the seven kinds (see Dodatki::Flagi) and the chosen kind.
    std::array<std::string, 7> flagi;
    int nrDodatku = 1;
};

}  // namespace paycalc
