#include "payinputs/zasilki.h"

#include <system_error>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "payinputs/pay_record.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;

namespace payinputs {

namespace {
const int kPola[6] = {Pay::Zasilek1, Pay::Zasilek2, Pay::Zasilek3, Pay::Zasilek4, Pay::Zasilek5, Pay::Zasilek6};
}

ZasilkiScreen::ZasilkiScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmZasilki", "Zasiłki "),
      pola{&txtPielegnacyjny, &txtRodzinny, &txtZWychowawczy, &txtZasilekZUS, &txtIloscOsZR, &txtIloscOsZP},
      s(session) {
    Label1.at(0, 1);
    Label2.at(0, 2);
    Label3.at(1, 0);
    txtIloscOsZP.at(1, 1).width(4).tip("Ilość osób, na które przysługuje zasiłek pielęgnacyjny");
    txtPielegnacyjny.at(1, 2).width(10).tip("Kwota zasiłku pielęgnacyjnego");
    Label4.at(2, 0);
    txtIloscOsZR.at(2, 1).width(4).tip("Ilość osób, na które przysługuje zasiłek rodzinny");
    txtRodzinny.at(2, 2).width(10).tip("Kwota zasiłku rodzinnego");
    Label5.at(3, 0);
    txtZasilekZUS.at(3, 2).width(10).tip("Kwota dodatków do zasiłku rodzinnego");
    Label6.at(4, 0).tip("Wpisz podstawę zasiłku wychowawczego ");
    txtZWychowawczy.at(4, 2).width(10).tip("Wpisz podstawe zasilku wychowawczego do skladek ZUs z budzetu państwa");
    Label7.at(5, 0);
    lbKwotazasilkow.at(5, 2);
    lbBrakDanych.at(6, 0, 3);
    lbBrakDanych.Caption =
        "Ta osoba nie ma jeszcze danych płacowych na tej liście. Załóż je najpierw w oknie płac; "
        "do tego czasu zasiłków nie można zapisać.";
    lbBrakDanych.Visible = false;
    CmdZapiszZasilki.at(7, 0);
    cmdKoniec.at(7, 2);
    for (core::Control* c : pola) c->Change = [this] { przelicz(); };
    CmdZapiszZasilki.Click = [this] { CmdZapiszZasilki_Click(); };
    cmdKoniec.Click = [this] { cmdKoniec_Click(); };
}

void ZasilkiScreen::przelicz() {
    auto v = [](const core::Control& c) { return core::Val(core::KropkaZamiastPrzecinka(std::string(c.Text))); };
    double suma = v(txtPielegnacyjny) + v(txtRodzinny) + v(txtZasilekZUS);
    lbKwotazasilkow.Caption = core::Format(suma, "0.00");
}

void ZasilkiScreen::Load() {
    Caption = "Zasiłki " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    auto found = Pay::openForPerson(s, *this, "Zakladanie nowego zbioru płacowego !");
    if (found)
        for (int i = 0; i < 6; ++i) pola[i]->Text = found->s(kPola[i]);
    for (core::Control* c : pola) core::KropkaZamiastPrzecinka(c->Text);
    przelicz();
    lbBrakDanych.Visible = !found;
    CmdZapiszZasilki.Enabled = found.has_value();
}

void ZasilkiScreen::CmdZapiszZasilki_Click() {
    guarded([&] {
        // Every value is checked before the file is touched.
        double wartosci[6];
        for (int i = 0; i < 6; ++i) {
            core::KropkaZamiastPrzecinka(pola[i]->Text);
            SetFocus(*pola[i]);
            wartosci[i] = core::toDoubleOrZero(pola[i]->Text, pola[i]->Name);
        }
        FocusTo.clear();
        przelicz();
        int matched = Pay::replace(
            Pay::path(s), s.KluczOsoby,
            [&](core::Record& r) {
                for (int i = 0; i < 6; ++i) r.set(kPola[i], wartosci[i]);
            },
            "TYMCZ.dta");
        if (matched > 0) ui.msgBox(" Zapisano ", Buttons::OK, Icon::Information);
    });
}

}  // namespace payinputs
