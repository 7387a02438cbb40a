// The annual statements: frmPit11 gathers the chosen person's twelve months from the ledgers and
// supplementary files of the list, keeps one record a person in PIT11\<list><RR>12.dta and
// prints the forms PIT-11, PIT-8B and PIT-40.
#pragma once
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/fieldboxes.h"
#include "core/form.h"
#include "core/record.h"
#include "core/session.h"
#include "tax/formularz.h"

namespace tax {

// One month of the sheet, in the order of its columns.
struct MiesiacPit11 {
    double razem = 0;       // LbRazemM: gross (with ZUS benefits unless the payer type ends in "N")
    double godziny = 0;     // LbGodzinyM: overtime
    double dodatki = 0;     // LbDodatkiM: additions
    double koszty = 0;      // lbkosztU: cost of obtaining income
    double skladkaInd = 0;  // LbSkladkaInd: health deducted from tax
    double nfz = 0;         // lbNFZ8: health not deducted
    double skladkiZUS = 0;  // lbSkladkiZUS: the employee's social contributions
    double ulga = 0;        // lbUlga: relief
    double zaliczka = 0;    // lbZaliczka: the advance (with the tax on benefits)
};
inline constexpr int kKolumny = 9;

struct PobranePit11 {
    std::array<MiesiacPit11, 12> miesiace{};
    bool zZasilkami = false;  // the gross includes the ZUS benefits ("+Zasi.ZUS")
    std::string kosztyU = "1";  // "3" for a commuter
    double trzynastka = 0, nfzT = 0, sklZdiT = 0, sklZusT = 0, zaliczkaT = 0;
    double jubileusz = 0, zaliczkaNJ = 0, swUrlopowe = 0, zaliczkaSU = 0;
    MiesiacPit11 suma() const;
};

// The session's person (surname, first name, key, insurance code) in the twelve months of the
// year of the list date on list `lista`; `rodzajPlatnika` is the payer type ("N", "FN", "PN"...).
PobranePit11 pobierzPit11(const core::Session& s, const std::string& lista, const std::string& rodzajPlatnika);

// The annual tax of PIT-40 from a saved record and the rates of the year.
struct RozliczeniePit40 {
    double przychod = 0, koszty = 0, dochod = 0, skladki = 0, podstawa = 0, podatekSkala = 0, ulga = 0,
           zdrowotna = 0, podatekNalezny = 0, zaliczki = 0, doZaplaty = 0, nadplata = 0;
};
RozliczeniePit40 rozliczPit40(const core::Record& pit11, const core::Stawki& st);

enum class Druk { Pit11, Pit8B, Pit40 };

class Pit11Screen : public core::Form {
public:
    Pit11Screen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void Pobierz();     // "&Pobierz z kartotek"
    void ZeZbioru();    // "Z&e Zbioru"
    void Zapisz();      // "&Zapisz"
    void Dopisz();      // "D&Opisz"
    void Usun();        // "&UsuńPi11"
    // "&Drukuj PIT11(ver21 )" (PIT-11, or PIT-8B when the first question is answered No) and
    // "Drukuj PIT&40". With `bezPytania` the form is the one given and both pages print.
    void Drukuj(Druk druk, bool bezPytania = false);

    // The sheet's boxes as a record of the file for the session's person (sums of the second
    // incomes and of the health parts worked out).
    core::Record rekord(const core::Record& baza);
    // The values printed on a form from a saved record.
    Wartosci wartosci(const core::Record& r, Druk druk) const;
    // The month rows shown (filled by Pobierz).
    PobranePit11 pobrane;

    core::Session& s;
    core::Control lbOsoba{this, "lbOsoba", core::Kind::Label};
    core::Control txtOdData{this, "txtOdData", core::Kind::TextBox};
    core::Control txtDoData{this, "txtDoData", core::Kind::TextBox};
    core::Control txtRodzajPlatnika{this, "txtRodzajPlatnika", core::Kind::TextBox};
    core::Control txtKosztyU{this, "txtKosztyU", core::Kind::TextBox};
    core::Control fraPitR{this, "fraPitR", core::Kind::Frame, "Informacja o PIT-R"};
    core::Control Option1{this, "Option1", core::Kind::OptionButton, "Tak"};
    core::Control Option2{this, "Option2", core::Kind::OptionButton, "Nie"};
    core::Control fraMiesiace{this, "fraMiesiace", core::Kind::Frame, "Miesiące z kartotek"};
    core::Control fraInne{this, "fraInne", core::Kind::Frame, "Inne źródła przychodów"};
    core::Control fraDodatkowe{this, "fraDodatkowe", core::Kind::Frame, "Trzynastka, nagrody jubileuszowe, świadczenia urlopowe"};
    std::vector<std::unique_ptr<core::Control>> etykiety;  // headings and the month names
    // The label arrays of the month rows: kolumny[c][m], c in the order of MiesiacPit11.
    std::array<std::vector<std::unique_ptr<core::Control>>, kKolumny> kolumny;
    core::FieldBoxes boxes;
    core::Control CmdPobierz{this, "CmdPobierz", core::Kind::CommandButton, "&Pobierz z kartotek"};
    core::Control CmdZeZbioru{this, "CmdZeZbioru", core::Kind::CommandButton, "Z&e Zbioru"};
    core::Control cmdZapisz{this, "cmdZapisz", core::Kind::CommandButton, "&Zapisz"};
    core::Control cmdDopisz{this, "cmdDopisz", core::Kind::CommandButton, "D&Opisz"};
    core::Control cmdUsun{this, "cmdUsun", core::Kind::CommandButton, "&UsuńPi11"};
    core::Control cmdDrukuj{this, "cmdDrukuj", core::Kind::CommandButton, "&Drukuj PIT11(ver21 )"};
    core::Control cmdDrukujPIT40{this, "cmdDrukujPIT40", core::Kind::CommandButton, "Drukuj PIT&40"};
    core::Control CmdKoniec{this, "CmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    double v(int pole);
    void ustaw(int pole, double wartosc);
    void pokazMiesiace();
    std::string lista() const;
};

}  // namespace tax
