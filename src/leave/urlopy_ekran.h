// frmUrlopy ("Urlopy " and the person): the person's leave of the year, day by day, in the leave
// year file Urlopy\Ur<list><rrrr>.dta: entitlement, carry-over, the daily rate of the months,
// the transfer to working time and the printed statement of the year.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/session.h"
#include "paycalc/urlop_record.h"

namespace leave {

// The grid's columns after the 31 days, and the totals row.
namespace KolU {
enum : int { Stawka = 32, IlDni, Kwota, IlGodz, Count };
}
inline constexpr int kWierszRazemU = 13;

class UrlopyScreen : public core::Form {
public:
    UrlopyScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    // The days, hours and amounts of every month and of the year, from the grid.
    void przelicz();
    void MSFlexGrid1_DblClick();
    void CmdWyliczkwoteUrlopu_Click();
    void cmdWstaw_Click();
    void CmdZmiany_Click();
    void cmdWprowadzUrlopyDoCzasu_Click();
    void cmdDrukujWykaz_Click();

    int miesiacListy() const { return miesiacDatyListy; }

    core::Session& s;
    core::Control fraUrlop{this, "fraUrlop", core::Kind::Frame, "Wymiar urlopu"};
    core::Control Frame1{this, "Frame1", core::Kind::Frame, "Czy rozliczać urlopy w liście płac"};
    core::Control fraStawka{this, "fraStawka", core::Kind::Frame, "Stawka urlopowa"};
    core::Control txtPrzenies{this, "txtPrzenies", core::Kind::TextBox};
    core::Control txtUrlopNalezny{this, "txtUrlopNalezny", core::Kind::TextBox};
    core::Control txtUrlopRazem{this, "txtUrlopRazem", core::Kind::TextBox};
    core::Control LbZgodzin{this, "LbZgodzin", core::Kind::Label};
    core::Control LbDowykorzystania{this, "LbDowykorzystania", core::Kind::Label};
    core::Control Option1{this, "Option1", core::Kind::OptionButton, "tak"};
    core::Control Option2{this, "Option2", core::Kind::OptionButton, "nie"};
    core::Control txtPodstawaBrutto{this, "txtPodstawaBrutto", core::Kind::TextBox};
    core::Control txtUrlopowaStawka{this, "txtUrlopowaStawka", core::Kind::TextBox};
    core::Control Label1{this, "Label1", core::Kind::Label,
                         "1/30  zasadniczej za każdy dzięń urlopu a stawka wyliczana z brutto bez chorobowego."};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control CmdZmiany{this, "CmdZmiany", core::Kind::CommandButton, "&Zapisz Zmiany"};
    core::Control CmdWyliczkwoteUrlopu{this, "CmdWyliczkwoteUrlopu", core::Kind::CommandButton, "&Wylicz podstawę"};
    core::Control cmdWstaw{this, "cmdWstaw", core::Kind::CommandButton, "Ws&taw stawkę do urlopu  "};
    core::Control cmdDrukujWykaz{this, "cmdDrukujWykaz", core::Kind::CommandButton, "&Drukuj wykaz roczny"};
    core::Control cmdWprowadzUrlopyDoCzasu{this, "cmdWprowadzUrlopyDoCzasu", core::Kind::CommandButton,
                                            "Wprowadź &Urlopy do rozliczenia czasu pracy"};
    core::Control CmdKoniec{this, "CmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void pokaz(const paycalc::Urlop::Blok& b);
    void koloruj(int m, int d);
    void gornePola(double dniRoku);
    bool wpisyPoprawne();

    int rokUrlopow = 0;
    int miesiacDatyListy = 1;
    paycalc::Urlop::Blok blok;
};

}  // namespace leave
