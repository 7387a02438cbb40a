// frmSrednia ("Średnia dzienna z 12 miesiecy " and the person): the daily average of sick pay
// from the twelve monthly ledgers before the list's month, the overtime and additions of those
// months and the thirteenth pay of the year. Its one result goes into the average box of the
// sick-pay screen.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/session.h"

namespace leave {

// The twelve periods "rrmm" of a list of month `miesiac` and two-digit year `rok`: from the
// month before the list's month of last year to two months before it this year (the month right
// before the list's month is never read; a list of January begins with month "00").
std::vector<std::string> okresySredniej(int miesiac, int rok);

// The grid's columns.
namespace KolS {
enum : int { Lp = 0, Okres, Placa, Godziny, Dodatki, Inne, Razem, IlDniOB, IlDniPra, Podstawa, Informacja, Count };
}

class SredniaScreen : public core::Form {
public:
    // `cel`: the box that takes the average (txtSredniaChorobowa of the sick-pay screen).
    SredniaScreen(core::Dialogs& ui, core::Session& s, core::Control* cel);
    void Load() override;

    void cmdWylicz_Click();
    void cmdPobierzIloscdni_Click();
    void CmdWyliczSrednia_Click();
    void CmdWstaw_Click();

    core::Session& s;
    core::Control MSFlexGrid7{this, "MSFlexGrid7", core::Kind::Grid};
    core::Control fraSumy{this, "fraSumy", core::Kind::Frame, "Podstawa średniej"};
    core::Control txtRazeMPlaca{this, "txtRazeMPlaca", core::Kind::TextBox};
    core::Control txtRazemGodziny{this, "txtRazemGodziny", core::Kind::TextBox};
    core::Control txtRazemDodatki{this, "txtRazemDodatki", core::Kind::TextBox};
    core::Control txtInne{this, "txtInne", core::Kind::TextBox};
    core::Control txtTrzynastka{this, "txtTrzynastka", core::Kind::TextBox};
    core::Control lbKwotaTrzynastkiM{this, "lbKwotaTrzynastkiM", core::Kind::Label};
    core::Control LbDatatrzynastki{this, "LbDatatrzynastki", core::Kind::Label};
    core::Control lbOgolemZa{this, "lbOgolemZa", core::Kind::Label, "Kwota ogółem za 12 miesiecy"};
    core::Control txtOgolem{this, "txtOgolem", core::Kind::TextBox};
    core::Control txtKwotaNetto{this, "txtKwotaNetto", core::Kind::TextBox};
    core::Control txtPodstawaStawki{this, "txtPodstawaStawki", core::Kind::TextBox};
    core::Control lbSredniaZ{this, "lbSredniaZ", core::Kind::Label, "Średnia dzienna z 12 miesiecy"};
    core::Control txtSredniadzienna{this, "txtSredniadzienna", core::Kind::TextBox};
    core::Control LbiloscMiesiecy{this, "LbiloscMiesiecy", core::Kind::Label};
    core::Control Label1{this, "Label1", core::Kind::Label, "* Płaca bez stażowego, wiejskiego ,mieszkaniowego"};
    core::Control cmdWylicz{this, "cmdWylicz", core::Kind::CommandButton, "&Pobranie danych z kartotek"};
    core::Control cmdPobierzIloscdni{this, "cmdPobierzIloscdni", core::Kind::CommandButton,
                                      "Pobierz &Ilosć dni  w miesiacach"};
    core::Control CmdWyliczSrednia{this, "CmdWyliczSrednia", core::Kind::CommandButton, "&Wylicz"};
    core::Control CmdWstaw{this, "CmdWstaw", core::Kind::CommandButton, "Ws&taw"};
    core::Control Command1{this, "Command1", core::Kind::CommandButton, "&Koniec"};

private:
    void wiersz(const std::vector<std::string>& komorki);
    void trzynastka();
    void srednia(float netto, int miesiecy);
    double sumaSkladek() const;

    core::Control* celSredniej;
};

}  // namespace leave
