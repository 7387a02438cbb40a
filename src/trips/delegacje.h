// frmDelegacje: the business trips of the payer's people. A trip has a number, a person and
// positions (legs); each position works out its per-diems from the hours and a rate in any
// currency; the trip adds the lump sum, lodging and other costs, takes off the advance, and is
// printed as a settlement; the trips of a month are printed as a summary.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/session.h"
#include "trips/delegacja_record.h"
#include "trips/pozycja.h"

namespace trips {

// The printed settlement of a trip and the summary of a month's trips ("mmmm,YYYY").
void drukujRozliczenie(core::Printer& p, const Delegacja& d);
void drukujZestawienie(core::Printer& p, const std::string& miesiac, const std::vector<Delegacja>& delegacje);
// The trips of a month RRmm, read from their files.
std::vector<Delegacja> wczytajMiesiac(const core::Session& s, const std::string& RRmm);

class DelegacjeScreen : public core::Form {
public:
    DelegacjeScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void MSFlexGrid1_Click();  // the person of the trip
    void MonthView2_Click();   // the month of the list of trips
    void CmdOdswierz_Click();        // every trip of the chosen month
    void cmbKraj_Click();
    void cmbWaluta_Click();
    // The times shown as the program shows them and the position worked out; false when refused.
    bool cmdPrzelicz_Click();
    void cmdDodajPozycje_Click();
    void cmdZapiszPozycje_Click();  // the changed position into the chosen row
    void MSFlexGrid3_Click();
    void CmdUsunPozycje_Click();
    void przeliczRazem();  // the totals of the trip
    void cmdZapiszDelegacje_Click();
    void CmdEdytujDelegacje_Click();
    void CmdUsuNDelegacje_Click();
    void CmdDrukujRozliczenie_Click();
    void cmdDrukujZestawienie_Click();

    core::Session& s;
    // The chosen person.
    std::string nazwisko, imie, pesel, lista;
    // The files of the trips in MSFlexGrid2, row by row.
    std::vector<std::string> plikiMiesiaca;
    // The list of each person in MSFlexGrid1, row by row.
    std::vector<std::string> plikiListOsob;

    core::Control fraOsoby{this, "fraOsoby", core::Kind::Frame, "Pracownicy"};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control fraMiesiac{this, "fraMiesiac", core::Kind::Frame, "Delegacje miesiąca"};
    core::Control MonthView2{this, "MonthView2", core::Kind::MonthView};
    core::Control lbMiesiac{this, "lbMiesiac", core::Kind::Label};
    core::Control CmdOdswierz{this, "CmdOdswierz", core::Kind::CommandButton, "&Wszystkie"};
    core::Control MSFlexGrid2{this, "MSFlexGrid2", core::Kind::Grid};

    core::Control fraDelegacja{this, "fraDelegacja", core::Kind::Frame, "Delegacja"};
    core::Control txtNrDel{this, "txtNrDel", core::Kind::TextBox};
    core::Control txtDataDel{this, "txtDataDel", core::Kind::TextBox};
    core::Control cmbSrodekTransportu{this, "cmbSrodekTransportu", core::Kind::ComboBox};
    core::Control lbOsoba{this, "lbOsoba", core::Kind::Label};

    core::Control fraPozycja{this, "fraPozycja", core::Kind::Frame, "Pozycja"};
    core::Control txtMiejscowoscW{this, "txtMiejscowoscW", core::Kind::TextBox};
    core::Control txtDataW{this, "txtDataW", core::Kind::TextBox};
    core::Control txtGodzinaW{this, "txtGodzinaW", core::Kind::TextBox};
    core::Control txtMiejscowoscP{this, "txtMiejscowoscP", core::Kind::TextBox};
    core::Control txtDataP{this, "txtDataP", core::Kind::TextBox};
    core::Control txtGodzinaP{this, "txtGodzinaP", core::Kind::TextBox};
    core::Control cmbKraj{this, "cmbKraj", core::Kind::ComboBox};
    core::Control cmbWaluta{this, "cmbWaluta", core::Kind::ComboBox};
    core::Control cmbStawka{this, "cmbStawka", core::Kind::ComboBox};
    core::Control txtKursWaluty{this, "txtKursWaluty", core::Kind::TextBox};
    core::Control txtWskaznikDiety{this, "txtWskaznikDiety", core::Kind::TextBox};
    core::Control lbRazemGodzin{this, "lbRazemGodzin", core::Kind::Label};
    core::Control lbStawka{this, "lbStawka", core::Kind::Label};
    core::Control lbWartoscWaluty{this, "lbWartoscWaluty", core::Kind::Label};
    core::Control lbKurs{this, "lbKurs", core::Kind::Label};
    core::Control lbWartoscPLN{this, "lbWartoscPLN", core::Kind::Label};
    core::Control cmdPrzelicz{this, "cmdPrzelicz", core::Kind::CommandButton, "&Przelicz"};
    core::Control cmdDodajPozycje{this, "cmdDodajPozycje", core::Kind::CommandButton, "&Dodaj pozycję"};
    core::Control cmdZapiszPozycje{this, "cmdZapiszPozycje", core::Kind::CommandButton, "&Zmień pozycję"};
    core::Control CmdUsunPozycje{this, "CmdUsuńPozycje", core::Kind::CommandButton, "&Usuń pozycję"};
    core::Control MSFlexGrid3{this, "MSFlexGrid3", core::Kind::Grid};

    core::Control fraKoszty{this, "fraKoszty", core::Kind::Frame, "Rozliczenie"};
    core::Control txtRyczalt{this, "txtRyczalt", core::Kind::TextBox};
    core::Control txtDiety{this, "txtDiety", core::Kind::TextBox};
    core::Control cmbNocleg{this, "cmbNocleg", core::Kind::ComboBox};
    core::Control txtInneW{this, "txtInneW", core::Kind::TextBox};
    core::Control txtZaliczka{this, "txtZaliczka", core::Kind::TextBox};
    core::Control lbRazemNaleznosc{this, "lbRazemNaleznosc", core::Kind::Label};
    core::Control LbOgolem{this, "LbOgolem", core::Kind::Label, "Do wypłaty"};
    core::Control txtDoWyplaty{this, "txtDoWyplaty", core::Kind::TextBox};

    core::Control cmdZapiszDelegacje{this, "cmdZapiszDelegacje", core::Kind::CommandButton, "&Zapisz delegację"};
    core::Control CmdEdytujDelegacje{this, "CmdEdytujDelegacje", core::Kind::CommandButton, "&Edytuj"};
    core::Control CmdUsuNDelegacje{this, "CmdUsuNDelegacje", core::Kind::CommandButton, "Usuń &delegację"};
    core::Control CmdDrukujRozliczenie{this, "CmdDrukujRozliczenie", core::Kind::CommandButton, "Drukuj &rozliczenie"};
    core::Control cmdDrukujZestawienie{this, "cmdDrukujZestawienie", core::Kind::CommandButton, "Drukuj ze&stawienie"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    Wyjazd wyjazd() const;
    bool policzPozycje();  // the calculation of the position's controls; false when refused
    core::Record pozycja(int numer) const;
    void pokazPozycje(const core::Record& p);
    void wyczyscPozycje();
    void pokazDelegacje(const Delegacja& d);
    Delegacja delegacja() const;
    void wypelnijPozycje(const std::vector<core::Record>& pozycje);
    std::vector<core::Record> pozycjeZSiatki() const;
    std::vector<core::Record> diety;
    std::string RRmm;  // the month of the list of trips
    std::string miesiacTekst;  // "mmmm,YYYY"
};

}  // namespace trips
