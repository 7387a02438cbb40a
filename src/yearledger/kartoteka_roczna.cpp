#include "yearledger/kartoteka_roczna.h"

#include "core/error.h"
#include "core/text.h"
#include "yearledger/druk_roku.h"
#include "yearledger/edycja.h"

using core::Buttons;
using core::Icon;

namespace yearledger {

namespace {
const char* const kEkranPit11 = "frmPit11";
}

void wypelnijSiatke(core::Control& g, const std::vector<std::vector<std::string>>& wiersze) {
    const int kolumn = wiersze.empty() ? 0 : static_cast<int>(wiersze[0].size());
    g.setGrid(static_cast<int>(wiersze.size()), kolumn);
    g.Cells = wiersze;
    for (int c = 0; c < kolumn; ++c) {
        int w = 6;
        for (const auto& r : wiersze) w = std::max(w, static_cast<int>(core::Len(r[static_cast<std::size_t>(c)])));
        g.ColWidth[static_cast<std::size_t>(c)] = std::min(w, 34);
    }
}

KartotekaRocznaScreen::KartotekaRocznaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "FrmKartotekaRoczna", "Kartoteka Roczna"), s(session) {
    lbNaglowek.at(0, 0, 6);
    lbRok.at(0, 6, 2);
    MSFlexGrid1.at(1, 0, 8).width(150);
    cmdUsun1Kartoteke.at(2, 0);
    cmdEdycjaK.at(2, 1);
    cmdGodziny.at(2, 2);
    CmdDodatkowe.at(2, 3);
    cmdTrzynastka.at(2, 4);
    CmdDrukowanie.at(2, 5);
    CmdPit11.at(2, 6);
    cmdKoniec.at(2, 7);
    MSFlexGrid9.at(3, 0, 7).width(150);
    CmdWylaczGodziny.at(3, 7);
    MSFlexGrid8.at(4, 0, 7).width(150);
    cmdWylaczDodatki.at(4, 7);
    MSFlexGrid7.at(5, 0, 7).width(150);
    for (core::Control* g : {&MSFlexGrid9, &CmdWylaczGodziny, &MSFlexGrid8, &cmdWylaczDodatki, &MSFlexGrid7})
        g->Visible = false;
    cmdUsun1Kartoteke.tip("Zeruje kwoty osoby w kartotece miesiąca zaznaczonego w tabeli");
    cmdEdycjaK.tip("Poprawianie pól kartoteki miesiąca zaznaczonego w tabeli");

    cmdUsun1Kartoteke.Click = [this] { cmdUsun1Kartoteke_Click(); };
    cmdTrzynastka.Click = [this] { cmdTrzynastka_Click(); };
    cmdGodziny.Click = [this] { cmdGodziny_Click(); };
    CmdDodatkowe.Click = [this] { CmdDodatkowe_Click(); };
    cmdEdycjaK.Click = [this] { cmdEdycjaK_Click(); };
    CmdDrukowanie.Click = [this] { CmdDrukowanie_Click(); };
    CmdPit11.Click = [this] { CmdPit11_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
    CmdWylaczGodziny.Click = [this] { MSFlexGrid9.Visible = CmdWylaczGodziny.Visible = false; };
    cmdWylaczDodatki.Click = [this] {
        MSFlexGrid8.Visible = MSFlexGrid7.Visible = cmdWylaczDodatki.Visible = false;
    };
}

void KartotekaRocznaScreen::Load() {
    CmdPit11.Enabled = ui.canOpen(kEkranPit11);
    if (!CmdPit11.Enabled) CmdPit11.ToolTipText = "Informacja PIT-11 nie jest jeszcze dostępna w tej wersji programu";
    lbNaglowek.Caption = s.NazwiskoOsoby + " " + s.ImieOsoby + "  Pesel = " + s.KluczOsoby + "  Grupa= " + s.Grupa;
    lbRok.Caption = s.rok();
    guarded([&] { wczytaj(); });
}

void KartotekaRocznaScreen::wczytaj() {
    dane = czytajRok(s, s.NazwaZbioru, s.KluczOsoby, lbRok.Caption);
    std::vector<std::vector<std::string>> w;
    std::vector<std::string> glowy;
    for (const Kolumna& k : kolumny()) glowy.push_back(k.naglowek);
    w.push_back(glowy);
    for (auto& r : siatkaRoku(dane, s.stawki)) w.push_back(std::move(r));
    wypelnijSiatke(MSFlexGrid1, w);
}

int KartotekaRocznaScreen::wybranyMiesiac() const {
    return MSFlexGrid1.Row >= 1 && MSFlexGrid1.Row <= 12 ? MSFlexGrid1.Row : 0;
}

void KartotekaRocznaScreen::cmdUsun1Kartoteke_Click() {
    const int m = wybranyMiesiac();
    if (m == 0) {
        ui.msgBox("Najpierw zaznacz w tabeli wiersz miesiąca.", Buttons::OK, Icon::Exclamation, "Kartoteka Roczna");
        return;
    }
    guarded([&] {
        try {
            wyzerujMiesiac(s, s.NazwaZbioru, s.KluczOsoby, stempel(lbRok.Caption, m));
        } catch (const core::Error& e) {
            if (e.Number != core::err::FileNotFound) throw;
            ui.msgBox(kBrakKartoteki, Buttons::OK, Icon::Exclamation, kPodajDate);
            return;
        }
        MSFlexGrid1.TextMatrix(m, 0) = "Brak    ";
        MSFlexGrid1.TextMatrix(m, 1) = "kartoteki";
        MSFlexGrid1.TextMatrix(m, 2) = "pracownika";
    });
}

void KartotekaRocznaScreen::cmdGodziny_Click() {
    wypelnijSiatke(MSFlexGrid9, siatkaGodzin(dane, s.stawki));
    MSFlexGrid9.Visible = CmdWylaczGodziny.Visible = true;
}

void KartotekaRocznaScreen::CmdDodatkowe_Click() {
    wypelnijSiatke(MSFlexGrid8, siatkaDodatkow(dane, s.stawki));
    MSFlexGrid8.Visible = cmdWylaczDodatki.Visible = true;
}

void KartotekaRocznaScreen::cmdTrzynastka_Click() {
    wypelnijSiatke(MSFlexGrid7, siatkaTrzynastki(dane, s.stawki));
    MSFlexGrid7.Visible = cmdWylaczDodatki.Visible = true;
    if (!dane.jestTrzynastka) ui.msgBox(kBrakTrzynastki, Buttons::OK, Icon::Information, "Kartoteka Roczna");
}

void KartotekaRocznaScreen::cmdEdycjaK_Click() {
    const int m = wybranyMiesiac();
    if (m == 0) {
        ui.msgBox("Najpierw zaznacz w tabeli wiersz miesiąca do poprawienia.", Buttons::OK, Icon::Exclamation,
                  "Kartoteka Roczna");
        return;
    }
    EdycjaKartotekiScreen f(ui, s, stempel(lbRok.Caption, m));
    ui.showForm(f);
    guarded([&] { wczytaj(); });
}

void KartotekaRocznaScreen::CmdDrukowanie_Click() {
    yearledger::CmdDrukowanie(ui, dane, {s.NazwiskoOsoby + " " + s.ImieOsoby, s.KodUbezpieczeniaOsoby}, s.stawki);
}

void KartotekaRocznaScreen::CmdPit11_Click() { ui.open(kEkranPit11, s); }

}  // namespace yearledger
