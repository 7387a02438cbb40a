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
    cmdUsun1Kartoteke_.at(2, 0);
    cmdEdycjaK_.at(2, 1);
    cmdGodziny_.at(2, 2);
    CmdDodatkowe_.at(2, 3);
    cmdTrzynastka_.at(2, 4);
    CmdDrukowanie_.at(2, 5);
    CmdPit11_.at(2, 6);
    cmdKoniec_.at(2, 7);
    MSFlexGrid9.at(3, 0, 7).width(150);
    CmdWylaczGodziny_.at(3, 7);
    MSFlexGrid8.at(4, 0, 7).width(150);
    cmdWylaczDodatki_.at(4, 7);
    MSFlexGrid7.at(5, 0, 7).width(150);
    for (core::Control* g : {&MSFlexGrid9, &CmdWylaczGodziny_, &MSFlexGrid8, &cmdWylaczDodatki_, &MSFlexGrid7})
        g->Visible = false;
    cmdUsun1Kartoteke_.tip("Zeruje kwoty osoby w kartotece miesiąca zaznaczonego w tabeli");
    cmdEdycjaK_.tip("Poprawianie pól kartoteki miesiąca zaznaczonego w tabeli");

    cmdUsun1Kartoteke_.Click = [this] { cmdUsun1Kartoteke(); };
    cmdTrzynastka_.Click = [this] { cmdTrzynastka(); };
    cmdGodziny_.Click = [this] { cmdGodziny(); };
    CmdDodatkowe_.Click = [this] { CmdDodatkowe(); };
    cmdEdycjaK_.Click = [this] { cmdEdycjaK(); };
    CmdDrukowanie_.Click = [this] { CmdDrukowanie(); };
    CmdPit11_.Click = [this] { CmdPit11(); };
    cmdKoniec_.Click = [this] { Unload(); };
    CmdWylaczGodziny_.Click = [this] { MSFlexGrid9.Visible = CmdWylaczGodziny_.Visible = false; };
    cmdWylaczDodatki_.Click = [this] {
        MSFlexGrid8.Visible = MSFlexGrid7.Visible = cmdWylaczDodatki_.Visible = false;
    };
}

void KartotekaRocznaScreen::Load() {
    CmdPit11_.Enabled = ui.canOpen(kEkranPit11);
    if (!CmdPit11_.Enabled) CmdPit11_.ToolTipText = "Informacja PIT-11 nie jest jeszcze dostępna w tej wersji programu";
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

void KartotekaRocznaScreen::cmdUsun1Kartoteke() {
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

void KartotekaRocznaScreen::cmdGodziny() {
    wypelnijSiatke(MSFlexGrid9, siatkaGodzin(dane, s.stawki));
    MSFlexGrid9.Visible = CmdWylaczGodziny_.Visible = true;
}

void KartotekaRocznaScreen::CmdDodatkowe() {
    wypelnijSiatke(MSFlexGrid8, siatkaDodatkow(dane, s.stawki));
    MSFlexGrid8.Visible = cmdWylaczDodatki_.Visible = true;
}

void KartotekaRocznaScreen::cmdTrzynastka() {
    wypelnijSiatke(MSFlexGrid7, siatkaTrzynastki(dane, s.stawki));
    MSFlexGrid7.Visible = cmdWylaczDodatki_.Visible = true;
    if (!dane.jestTrzynastka) ui.msgBox(kBrakTrzynastki, Buttons::OK, Icon::Information, "Kartoteka Roczna");
}

void KartotekaRocznaScreen::cmdEdycjaK() {
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

void KartotekaRocznaScreen::CmdDrukowanie() {
    yearledger::CmdDrukowanie(ui, dane, {s.NazwiskoOsoby + " " + s.ImieOsoby, s.KodUbezpieczeniaOsoby}, s.stawki);
}

void KartotekaRocznaScreen::CmdPit11() { ui.open(kEkranPit11, s); }

}  // namespace yearledger
