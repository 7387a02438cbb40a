// frmChorobowe: the sick lines of one person's pay record (four paid lines, three unpaid ones),
// their amounts, the history of the year from the monthly ledgers and the daily average
// (frmSrednia). Everything is stored in the pay record; the screen has no file of its own.
#pragma once
#include <array>
#include <memory>
#include <vector>
#include <string>

#include "core/form.h"
#include "core/numbers.h"
#include "core/record.h"
#include "core/session.h"

namespace leave {

// A date of an absence line, "ddmmrrrr", as a date: Error 13 when it is none.
core::Date dataLinii(const std::string& ddmmrrrr, const std::string& pole);
// The days from `od` to `doDnia`, both counted.
int dniOkresu(const core::Date& od, const core::Date& doDnia);
// The amount of a paid line: days x average x percent / 100 at double precision, to two decimals.
float kwotaLinii(double dni, double srednia, double procent);

// The end of a line whose first day is picked: the day of the month it ends on and the days the
// line keeps. The end is cut to the last day of the month of the list date (`dniMiesiaca`), and
// then the days become that last day less the first day: one day fewer than the line holds.
struct KoniecLinii {
    int dzien = 0;
    int dni = 0;
    bool przycieta = false;
};
KoniecLinii koniecLinii(int dzienPoczatku, int dniLinii, int dniMiesiaca);

// Whether a code of an absence line is paid by the payer (331, 333) or by the insurer (311,
// 312, 313, 314, 121); other codes count for neither.
bool platnik(const std::string& kod);
bool zus(const std::string& kod);

class ChoroboweScreen : public core::Form {
public:
    ChoroboweScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void cmdZapiszzmiany_Click();
    void cmdWylicz_Click();
    void cmdHistoriachorobowego_Click();
    void cmdWylaczHistorie_Click();
    void cmdWprowadzDoCzasuPracy_Click();
    // Entering a start field of line 1 .. 7 (the paid lines, then the unpaid ones).
    void wejscieOd(int linia);
    void wejscieDo1();
    // Enter in a date field: the calendar's date goes into it.
    void enterOd(int linia);
    void enterDo1();
    // A day picked in MonthView1 / MonthView2 (their Text, dd-mm-rrrr).
    void MonthView1_DateClick();
    void MonthView2_DateClick();
    // txtokresDo1 changed; at Enter a day count already typed is kept.
    void txtokresDo1_Change(bool enter = false);

    // The controls of a line: 1 .. 4 paid, 5 .. 7 unpaid (no average, percent, amount).
    struct Linia {
        core::Control *srednia = nullptr, *dni, *od, *doDnia, *kod, *procent = nullptr, *kwota = nullptr;
        int pole;  // the field of the days in the pay record (the others follow it)
    };
    Linia linia(int n);

    core::Session& s;
    core::Control fraPlatne{this, "fraPlatne", core::Kind::Frame, "Wynagrodzenie chorobowe i zasiłki"};
    core::Control fraBezplatne{this, "fraBezplatne", core::Kind::Frame, "Nieobecności bez wynagrodzenia"};
    core::Control fraSrednia{this, "fraSrednia", core::Kind::Frame, "Podstawa"};
#define LINIA(n, od)                                                                        \
    core::Control txtSredniaCH##n{this, "txtSredniaCH" #n, core::Kind::TextBox};            \
    core::Control txtLiczbadni##n{this, "txtLiczbadni" #n, core::Kind::TextBox};            \
    core::Control od{this, #od, core::Kind::TextBox};                                       \
    core::Control txtokresDo##n{this, "txtokresDo" #n, core::Kind::TextBox};                \
    core::Control txtKodPrzerwy##n{this, "txtKodPrzerwy" #n, core::Kind::TextBox};          \
    core::Control txtCh##n##Pr{this, "txtCh" #n "Pr", core::Kind::TextBox};
    LINIA(1, txtokresOd1)
    LINIA(2, txtokresod2)
    LINIA(3, txtokresOd3)
    LINIA(4, txtokresOd4)
#undef LINIA
    core::Control lbch1{this, "lbch1", core::Kind::Label};
    core::Control LbCh2{this, "LbCh2", core::Kind::Label};
    core::Control Lbch3{this, "Lbch3", core::Kind::Label};
    core::Control Lbch4{this, "Lbch4", core::Kind::Label};
#define BZP(n)                                                                  \
    core::Control txtBZP##n##dni{this, "txtBZP" #n "dni", core::Kind::TextBox}; \
    core::Control txtBZP##n##Od{this, "txtBZP" #n "Od", core::Kind::TextBox};   \
    core::Control txtBZP##n##Do{this, "txtBZP" #n "Do", core::Kind::TextBox};   \
    core::Control txtBZP##n##Kod{this, "txtBZP" #n "Kod", core::Kind::TextBox};
    BZP(1)
    BZP(2)
    BZP(3)
#undef BZP
    core::Control txtSredniaChorobowa{this, "txtSredniaChorobowa", core::Kind::TextBox};
    core::Control txtDniChorobyOd01{this, "txtDniChorobyOd01", core::Kind::TextBox};
    core::Control lbabsencja{this, "lbabsencja", core::Kind::Label};
    core::Control lbLacznaIloscDni{this, "lbLacznaIloscDni", core::Kind::Label};
    core::Control LbCHR{this, "LbCHR", core::Kind::Label};
    core::Control LabelKody1{this, "LabelKody1", core::Kind::Label,
                             "Kod Świadczenia 311=macierzyński ZUS , 312=Opieka ZUS, 313=Chorobowe ZUS, 314= wypadkowe "
                             "ZUS, 333-wypadek przy pracy"};
    core::Control LabelKody2{this, "LabelKody2", core::Kind::Label,
                             "331= chorobowe płatnika, 121= wychowawczy, 151=nieobecnosc, 111-urlop bezpłatny"};
    core::Control MonthView1{this, "MonthView1", core::Kind::MonthView};
    core::Control MonthView2{this, "MonthView2", core::Kind::MonthView};
    core::Control MSFlexGrid9{this, "MSFlexGrid9", core::Kind::Grid};
    core::Control cmdZapiszzmiany{this, "cmdZapiszzmiany", core::Kind::CommandButton, "&Zapisz Zmiany"};
    core::Control cmdWylicz{this, "cmdWylicz", core::Kind::CommandButton, "&Wylicz średnią"};
    core::Control cmdHistoriachorobowego{this, "cmdHistoriachorobowego", core::Kind::CommandButton, "&Historia"};
    core::Control cmdWylaczHistorie{this, "cmdWylaczHistorie", core::Kind::CommandButton, "Ukryj historię"};
    core::Control cmdWprowadzDoCzasuPracy{this, "cmdWprowadzDoCzasuPracy", core::Kind::CommandButton,
                                           "w&Prowadź do czasu pracy"};
    core::Control cmdkoniec{this, "cmdkoniec", core::Kind::CommandButton, "&Koniec"};

private:
    std::vector<std::unique_ptr<core::Control>> naglowki;  // the column captions of the lines
    void otworzRekord(core::Record& r);
    void doRekordu(core::Record& r);
    void kwoty(core::Record& r);
    double sumaDni() const;
    int dniMiesiacaListy() const;

    int biezacaLinia = 0;      // the line being edited, 1 .. 7
    int dniBiezacejLinii = 0;  // its days when its start field was entered
};

}  // namespace leave
