#include "zus/screens.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "zus/kedu.h"
#include "zus/polacz.h"
#include "zus/przeglad.h"
#include "zus/rcp_record.h"
#include "zus/zua.h"

using core::Kind;

namespace zus {

// ---------------------------------------------------------------- frmDoZUS

DoZUSScreen::DoZUSScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmDoZUS", "Przygotowanie i transmisja do ZUS"), s(session) {
    Label1.at(0, 0, 3);
    Label1.Caption = "  Uwaga ! aby wykonać DRA i RCA najpierw połacz zbior i  posortuj";
    txtZestawZUS.at(1, 0).label("Zestawy list:").width(8);
    txtZestawZUS.tip("W przypadku wypłat w róznych terminach wpisz litery poszczególnych zestawów np. AB");
    cmdZachowaj.at(1, 1);
    chkDolaczTrzynastke.at(1, 2);
    txtTerminPlatnosci.at(2, 0).label("Termin Płatności składek ZUS").width(4);
    CmdPolacz.at(3, 0, 3);
    CmdPodgladRCP.at(4, 0, 3);
    CmdWykonajRCA.at(5, 0, 3);
    CmdWykonajRCA.tip("Wykonuje Kod Dokumentu Ubezpieczeniowego do płatnika");
    cmdZUA.at(6, 0, 3);
    cmdZUA.tip("Plik zgłoszeń ZUA wszystkich osób bieżącej listy płac (katalog Zgloszeniowe)");
    ProgressBar1.at(7, 0, 3);
    ProgressBar1.Visible = false;
    Label9.at(8, 0, 3);
    Label7.at(9, 0, 3);
    Command2.at(10, 2);

    cmdZachowaj.Click = [this] { cmdZachowaj_Click(); };
    CmdPolacz.Click = [this] { CmdPolacz_Click(); };
    CmdPodgladRCP.Click = [this] { CmdPodgladRCP_Click(); };
    CmdWykonajRCA.Click = [this] { CmdWykonajRCA_Click(); };
    cmdZUA.Click = [this] { this->ui.open("FrmZUA", s); };
    Command2.Click = [this] { Unload(); };
}

void DoZUSScreen::Load() {
    txtZestawZUS.Text = zapisaneZestawy(s);
    txtTerminPlatnosci.Text = s.Firma.valid() ? s.Firma.s(reference::Firma::TerminPlatnosciZUSM) : std::string();
    CmdPodgladRCP.Enabled = ui.canOpen("frmRCP");
    cmdZUA.Enabled = !s.NazwaZbioru.empty() && ui.canOpen("FrmZUA");
}

paycalc::Postep DoZUSScreen::postep() {
    paycalc::Postep p;
    p.krok = [this](int min, int max, int value) {
        ProgressBar1.Min = min;
        ProgressBar1.Max = std::max(max, min + 1);
        ProgressBar1.Value = std::clamp(value, min, ProgressBar1.Max);
        DoEvents();
    };
    return p;
}

bool DoZUSScreen::zestawDobry() {
    const std::string blad = zlyZestaw(txtZestawZUS.Text);
    if (blad.empty()) return true;
    core::MsgBox(ui, blad + " Wpisz same litery zestawów, np. AB.", "Zestawy list", core::Icon::Exclamation);
    SetFocus(txtZestawZUS);
    return false;
}

void DoZUSScreen::cmdZachowaj_Click() {
    if (zestawDobry()) zus::cmdZachowaj(s, txtZestawZUS.Text);
}

void DoZUSScreen::CmdPolacz_Click() {
    if (!zestawDobry()) return;
    CmdPodgladRCP.Enabled = false;
    ProgressBar1.Visible = true;
    ProgressBar1.Value = 0;
    DoEvents();
    const bool zrobione = cmdPolacz(s, ui, {txtZestawZUS.Text, chkDolaczTrzynastke.Value == 1}, postep());
    ProgressBar1.Visible = false;
    CmdPodgladRCP.Enabled = ui.canOpen("frmRCP");
    if (zrobione) Label9.Caption = "Wykonane !";
}

void DoZUSScreen::CmdPodgladRCP_Click() { ui.open("frmRCP", s); }

void DoZUSScreen::CmdWykonajRCA_Click() {
    if (!zestawDobry()) return;
    const auto wynik = cmdWykonajRCA(s, ui, {txtZestawZUS.Text, txtTerminPlatnosci.Text});
    if (!wynik) return;
    Label9.Caption = wynik->Label9;
    Label7.Caption = wynik->Label7;
    Label7.BackColor = 12648384;
}

// ---------------------------------------------------------------- frmRCP

RCPScreen::RCPScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmRCP", "Zbiór RCP połączony do ZUS - podstawy, składki i zasiłki za "), s(session) {
    MSFlexGrid1.at(0, 0, 3).width(150);
    MSFlexGrid1.Mono = true;
    cmdZapiszZmiany.at(1, 0);
    CmdDrukujRCA.at(1, 1);
    Command1.at(1, 2);
    MSFlexGrid1.Click = [this] { MSFlexGrid1_Click(); };
    cmdZapiszZmiany.Click = [this] { cmdZapiszZmiany_Click(); };
    CmdDrukujRCA.Click = [this] { CmdDrukujRCA_Click(); };
    Command1.Click = [this] { Unload(); };
}

void RCPScreen::Load() {
    Caption += core::monthName(std::atoi(s.miesiac().c_str())) + std::string(" ") + s.rok();
    if (!core::fileExists(Rcp::path(s))) {
        core::MsgBox(ui, " Wykonaj połączenie zbioru do ZUS !!", "Brak wykonanego przeniesienia do ZUS");
        Unload();
        return;
    }
    reference::loadRates(s);
    rekordy = Rcp::readAll(Rcp::path(s));
    pokaz();
}

void RCPScreen::pokaz() {
    const auto tabela = tabelaRCP(s, rekordy);
    MSFlexGrid1.setGrid(static_cast<int>(tabela.size()) + 1, kKolumnyRCP);
    MSFlexGrid1.ColWidth.clear();
    for (int k = 0; k < kKolumnyRCP; ++k) {
        MSFlexGrid1.TextMatrix(0, k) = kNaglowkiRCP[k];
        MSFlexGrid1.ColWidth.push_back(kSzerokosciRCP[k] / 100);  // twips to characters
    }
    MSFlexGrid1.ColWidth[0] = 6;  // room for "Razem"
    for (std::size_t r = 0; r < tabela.size(); ++r)
        for (int k = 0; k < kKolumnyRCP; ++k) MSFlexGrid1.TextMatrix(static_cast<int>(r) + 1, k) = tabela[r][k];
    MSFlexGrid1.RowColor.assign(static_cast<std::size_t>(MSFlexGrid1.Rows), -1);
    MSFlexGrid1.RowColor.back() = 12648447;  // the "Razem" row in light yellow
}

void RCPScreen::MSFlexGrid1_Click() {
    const int r = MSFlexGrid1.Row, k = MSFlexGrid1.Col;
    if (r < 1 || r > static_cast<int>(rekordy.size()) || k < 0 || k >= kKolumnyRCP || poleKolumny(k) == 0) return;
    std::string& komorka = MSFlexGrid1.TextMatrix(r, k);
    const auto nowa = ui.inputBox("Podaj zmienioną wartość z pozycji -" + core::Trim(kNaglowkiRCP[k]) + " pozycja " +
                                      std::to_string(r) + " wartość zmieniana = " + komorka,
                                  "Zmiana nazwy towaru!", komorka);
    if (!nowa) return;
    const std::string blad = zlaWartosc(k, *nowa);
    if (!blad.empty()) {
        core::MsgBox(ui, blad + " Wartości nie zmieniono.", "Zmiana nazwy towaru!", core::Icon::Exclamation);
        return;
    }
    std::vector<std::vector<std::string>> wiersze;
    for (int i = 1; i <= static_cast<int>(rekordy.size()); ++i) {
        std::vector<std::string> w;
        for (int c = 0; c < kKolumnyRCP; ++c) w.push_back(i == r && c == k ? *nowa : MSFlexGrid1.TextMatrix(i, c));
        wiersze.push_back(std::move(w));
    }
    zmienRekordy(rekordy, wiersze);
    pokaz();
}

void RCPScreen::cmdZapiszZmiany_Click() {
    zapiszRCP(s, rekordy);
}

void RCPScreen::CmdDrukujRCA_Click() {
    if (!core::fileExists(Rcp::path(s))) {
        core::MsgBox(ui, "Zestawienie to można wykonać tylko po wykonaniu zestawu RCP do ZUS !");
        return;
    }
    drukujRCA(ui.printer(), tabelaRCP(s, rekordy));
}

// ---------------------------------------------------------------- FrmZUA

ZUAScreen::ZUAScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "FrmZUA", "Zgłoszenia ZUA osób listy płac"), s(session) {
    lbLista.at(0, 0, 2);
    CmdZUA.at(1, 0);
    Command2.at(1, 1);
    lbWynik.at(2, 0, 2);
    CmdZUA.Click = [this] { CmdZUA_Click(); };
    Command2.Click = [this] { Unload(); };
}

void ZUAScreen::Load() { lbLista.Caption = "Lista płac: " + core::Trim(s.NazwaListy) + " (" + s.NazwaZbioru + ")"; }

void ZUAScreen::CmdZUA_Click() {
    if (const auto plik = cmdZUA(s, ui)) lbWynik.Caption = "Plik: " + plik->string();
}

void registerScreens(core::Screens& screens) {
    screens.addForm<DoZUSScreen>("mnuDoZUS");
    screens.addForm<DoZUSScreen>("frmDoZUS");
    screens.addForm<RCPScreen>("mnuSkladkiZUS");
    screens.addForm<RCPScreen>("frmRCP");
    screens.addForm<ZUAScreen>("FrmZUA");
}

}  // namespace zus
