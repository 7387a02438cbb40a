#include "paycalc/lista.h"

#include <algorithm>
#include <span>

#include "core/fieldboxes.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/kartoteka.h"
#include "paycalc/zerowanie.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;
using core::Kind;
using core::Record;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace paycalc {

namespace {

// The screens this one opens by name.
const char* const kEkranOsoby = "frmOsoba1";
const char* const kEkranSortowania = "frmSortujKadrowe";
const char* const kEkranPodgladu = "frmPodgladWydruku";

// The type texts of the lists by their group letters.
struct TypListy {
    const char* grupa;
    const char* tekst;
};
const TypListy kTypyList[] = {
    {"n", "Nauczyciele"}, {"a", "Administracja"}, {"p", "Produkcja"}, {"u", "Umowy zlecenia"},
};

}  // namespace

std::string rodzajListy(const std::string& grupa) {
    const std::string g = core::LCase(core::Trim(grupa));
    for (const TypListy& r : kTypyList)
        if (g == r.grupa) return r.tekst;
    return "Inne";
}

WybranaOsoba osobaZWiersza(const std::string& line) {
    WybranaOsoba o;
    o.Nazwisko = core::RTrim(core::Mid(line, 5, 25));
    o.Imie = core::RTrim(core::Mid(line, 31, 20));
    o.Klucz = core::Trim(core::Mid(line, 56, 11));
    o.KodUbezpieczenia = core::Right(line, 6);
    o.Numer = core::Left(line, 3);
    return o;
}

Dodatkowy::Rodzaj ListaScreen::rodzajZakladki(int tab) {
    return Dodatkowy::kRodzaje[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)];
}

ListaScreen::ListaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmlista", "Lista pracowników ", core::ReportWords::NrKropka), s(session) {
    ErrorTitle = "Błąd";
    lbDatalistyk.at(0, 0).label("Data listy");
    Label3.at(0, 1);
    lbStatus.at(0, 2);
    Lblista.at(1, 0, 3);
    Lblista.Mono = true;
    lstlista.at(2, 0, 3);
    lstlista.Mono = true;
    lstlista.Width = 86;
    lstlista.ToolTipText = "Kliknij osobę, aby ją wybrać";
    fraPolecenia.at(2, 3);
    core::Control* przyciski[] = {&cmdDodajOsobe, &cmdUsun,        &cmdWybrane,    &cmdSortujZbior,
                                  &cmdKartoteka,  &CmdZerowanie,   &CmdSol1,       &cmdDrukListy,
                                  &cmdPodglad,    &CmdPaski,       &CmdDruZasilkow, &koniecH};
    for (int i = 0; i < static_cast<int>(std::size(przyciski)); ++i) przyciski[i]->in("fraPolecenia").at(i, 0);
    cmdKartoteka.tip("Wykonuje kartotekę z aktualnego miesiąca");
    CmdZerowanie.tip("Odliczenie wypłaconych rat z kas i ulg , zerowanie chorobowych i suma zarobków");
    CmdSol1.tip("Usuwa podwójne i zbędne wpisy w bazie płacowej informuje o braku zbioru płac");
    cmdDodajOsobe.tip("Dopisuje nową osobę do listy");
    cmdUsun.tip("Usuwa wybraną osobę z kadr i, na życzenie, z bazy płacowej");
    cmdWybrane.tip("Dane kadrowe wybranej osoby");
    cmdSortujZbior.tip("Kolejność osób na liście");

    TabStrip1.at(3, 0, 4);
    TabStrip1.List = {"Godziny nadliczbowe", "Dodatkowe", "Trzynastka", "Jubileusze", "Świadczenia urlopowe"};
    TabStrip1.Value = 1;
    for (int t = 1; t <= 5; ++t) {
        ramka(t).at(4, 0, 4);
        ramka(t).Visible = false;
    }
    zbudujRamki();
    ProgressBar1.at(5, 0, 4);
    ProgressBar1.Min = 0;
    ProgressBar1.Max = 1;
    lbUwagi.at(6, 0, 4);

    lstlista.Click = [this] { lstlista_Click(); };
    TabStrip1.Click = [this] { TabStrip1_Click(); };
    cmdDodajOsobe.Click = [this] { cmdDodajOsobe_Click(); };
    cmdUsun.Click = [this] { cmdUsu(); };
    cmdWybrane.Click = [this] { cmdWybrane_Click(); };
    lstlista.DblClick = [this] { cmdWybrane_Click(); };
    cmdSortujZbior.Click = [this] { cmdSortujZbior_Click(); };
    cmdKartoteka.Click = [this] { cmdKartoteka_Click(); };
    cmdWyliczPodstawe.Click = [this] { cmdWyliczPodstawe_Click(); };
    CmdZerowanie.Click = [this] { CmdZerowanie_Click(); };
    CmdSol1.Click = [this] { CmdSol1_Click(); };
    cmdDrukListy.Click = [this] { drukuj("cmdDrukListy"); };
    cmdPodglad.Click = [this] { drukuj(kEkranPodgladu); };
    CmdPaski.Click = [this] { drukuj("CmdPaski"); };
    CmdDruZasilkow.Click = [this] { drukuj("CmdDruZasilkow"); };
    koniecH.Click = [this] { koniecH_Click(); };
}

core::Control& ListaScreen::ramka(int tab) {
    core::Control* r[] = {&Frame1, &Frame2, &Frame3, &Frame4, &frame5};
    return *r[std::clamp(tab, 1, 5) - 1];
}

void ListaScreen::Load() {
    // 1.
    lbDatalistyk.Caption = s.DataListy;
    for (int t = 1; t <= 5; ++t) ramka(t).Visible = false;
    Label3.Caption = rodzajListy(s.Grupa);
    ustawPrzyciski();
    // 2.
    reference::loadRates(s);
    // 3.
    Caption = "Lista pracowników " + core::RTrim(s.NazwaListy);
    // 4. The line of the chosen list, by its title.
    for (const Record& l : reference::Instal::read(s)) {
        if (core::RTrim(l.s(reference::Instal::NazwaListy)) != core::RTrim(s.NazwaListy)) continue;
        s.NazwaZbioru = reference::Instal::stem(l);
        s.Grupa = l.s(reference::Instal::Grupa);
        Label3.Caption = rodzajListy(s.Grupa);
        break;
    }
    if (s.SciezkaBazy.empty()) s.SciezkaBazy = s.payerPath({"bazy", s.NazwaZbioru + ".dta"});
    // 5.
    s.SciezkaOsob = s.payerPath({"person", s.NazwaZbioru + ".per"});
    lstlista.Clear();
    Tablica.clear();
    Klucze.clear();
    int licznik = 0;
    for (const Record& o : Osoba::readAll(s.SciezkaOsob)) {
        ++licznik;
        const std::string line = personnel::wierszListy(licznik, o);
        if (licznik > kMaxOsob)
            throw core::Error(core::err::SubscriptOutOfRange, "frmlista, Form_Load, osoba " + std::to_string(licznik),
                              "lista może mieć najwyżej " + std::to_string(kMaxOsob) + " osób");
        Tablica.push_back(line);
        Klucze.push_back(personnel::kluczOsoby(o));
        lstlista.AddItem(line);
    }
    // 6.
    s.LiczbaOsob = licznik;
}

void ListaScreen::ustawPrzyciski() {
    cmdDodajOsobe.Enabled = ui.canOpen(kEkranOsoby);
    cmdWybrane.Enabled = ui.canOpen(kEkranOsoby);
    cmdSortujZbior.Enabled = ui.canOpen(kEkranSortowania);
    cmdDrukListy.Enabled = ui.canOpen("cmdDrukListy");
    cmdPodglad.Enabled = ui.canOpen(kEkranPodgladu);
    CmdPaski.Enabled = ui.canOpen("CmdPaski");
    CmdDruZasilkow.Enabled = ui.canOpen("CmdDruZasilkow");
    const char* brak = "Ten ekran nie jest jeszcze dostępny w tej wersji programu";
    for (core::Control* c : {&cmdDodajOsobe, &cmdWybrane, &cmdSortujZbior, &cmdDrukListy, &cmdPodglad, &CmdPaski,
                             &CmdDruZasilkow})
        if (!c->Enabled) c->ToolTipText = brak;
}

void ListaScreen::lstlista_Click() {
    if (!wybrana()) return;
    // 1.
    const WybranaOsoba o = osobaZWiersza(lstlista.selectedText());
    s.NazwiskoOsoby = o.Nazwisko;
    s.ImieOsoby = o.Imie;
    // The line shows the key cut to its columns; the choice takes it whole.
    const auto i = static_cast<std::size_t>(lstlista.ListIndex);
    s.KluczOsoby = i < Klucze.size() ? Klucze[i] : o.Klucz;
    s.KodUbezpieczeniaOsoby = o.KodUbezpieczenia;
    s.NumerOsoby = o.Numer;
    s.Osoba = core::EkranOsoby{};
    // 2.
    const std::string nazwa = s.NazwiskoOsoby + " " + s.ImieOsoby;
    for (core::Control* l : {&lbNazwiskoImie1, &lbNazwiskoImie2, &lbNazwiskoImie3, &lbNazwiskoImie4, &lbNazwiskoImie5})
        l->Caption = nazwa;
    podpowiedzNadgodzin();
    // 3., 4.
    pokazRamke(TabStrip1.Value);
    pokazRekord(TabStrip1.Value);
}

void ListaScreen::pokazRamke(int tab) {
    for (int t = 1; t <= 5; ++t) ramka(t).Visible = false;
    ramka(tab).Visible = true;
}

void ListaScreen::TabStrip1_Click() {
    const int tab = TabStrip1.Value;
    // 1.
    pokazRamke(tab);
    // 2.
    const Dodatkowy::Rodzaj rodzaj = rodzajZakladki(tab);
    const fs::path file = Dodatkowy::path(s, rodzaj);
    // 3.
    if (!core::fileExists(file)) {
        wyczysc(tab);
        lbStatus.Caption = " Jezeli nie jest konieczne to kliknij Anuluj ";
        DoEvents();
        const core::Answer a = ui.msgBox("Czy napewno chcesz zakładać wybrany zbiór na ten miesiąc - z aktualnych danych ? ",
                                         Buttons::OKCancel, Icon::Question,
                                         "Zakładanie dodatkowego zbioru do kartoteki miesięcznej! ");
        lbStatus.Caption.clear();
        if (a != core::Answer::OK) return;
        zalozZbior(rodzaj);
    }
    // 4.
    pokazRekord(tab);
}

void ListaScreen::cmdDodajOsobe_Click() {
    s.NowyZapis = "N";
    s.NazwiskoOsoby = "Nowe";
    s.ImieOsoby = "Nowe";
    s.KluczOsoby = "00000000000";
    s.KodUbezpieczeniaOsoby = "011000";
    s.Osoba = core::EkranOsoby{};
    ui.open(kEkranOsoby, s);
}

void ListaScreen::cmdUsu() {
    if (!wybrana()) {
        ui.msgBox("Najpierw wybierz z listy osobę do usunięcia.", Buttons::OK, Icon::Exclamation, "Usuwanie osoby");
        return;
    }
    paycalc::cmdUsu(s, ui);
}

void ListaScreen::cmdWybrane_Click() {
    if (!wybrana()) {
        ui.msgBox("Najpierw wybierz osobę z listy.", Buttons::OK, Icon::Exclamation, "Pokaż wybrane");
        return;
    }
    ui.open(kEkranOsoby, s);
}

void ListaScreen::cmdSortujZbior_Click() { ui.open(kEkranSortowania, s); }

void ListaScreen::drukuj(const std::string& ekran) { ui.open(ekran, s); }

void ListaScreen::polecenia(bool wlaczone) {
    for (core::Control* c : controls())
        if (c->kind == Kind::CommandButton || c == &lstlista || c == &TabStrip1) c->Enabled = wlaczone;
    if (wlaczone) ustawPrzyciski();
}

Postep ListaScreen::postep() {
    Postep p;
    p.krok = [this](int min, int max, int value) {
        ProgressBar1.Min = min;
        ProgressBar1.Max = std::max(max, min + 1);
        ProgressBar1.Value = std::clamp(value, min, ProgressBar1.Max);
        DoEvents();
    };
    p.status = [this](const std::string& text) {
        lbStatus.Caption = text;
        DoEvents();
    };
    return p;
}

void ListaScreen::cmdKartoteka_Click() {
    polecenia(false);
    guarded([&] { paycalc::cmdKartoteka(s, ui, postep()); });
    polecenia(true);
}

void ListaScreen::cmdWyliczPodstawe_Click() {
    if (!wybrana()) {
        ui.msgBox("No wybierz nazwisko, a dopiero potem Wylicz !", Buttons::OK, Icon::Exclamation);
        return;
    }
    const float podstawa = podstawaRoczna(s, s.KluczOsoby, txtRokDoPodstawy.Text);
    if (core::Control* c = pole(3, Dodatkowy::Podstawa)) c->Text = core::numText(podstawa);
}

void ListaScreen::CmdZerowanie_Click() {
    polecenia(false);
    guarded([&] { paycalc::cmdZerowanie(s, ui, postep()); });
    polecenia(true);
}

void ListaScreen::CmdSol1_Click() {
    polecenia(false);
    guarded([&] {
        lbUwagi.Caption.clear();
        Kalibracja k = paycalc::cmdSol1(s, ui, postep());
        if (!k.zalozone.empty()) {
            std::string lista;
            for (const std::string& n : k.zalozone) lista += (lista.empty() ? "" : ", ") + n;
            lbUwagi.Caption = std::string(kZbiorZalozono) + "\n" + kWprowadzDane + ": " + lista;
        }
    });
    polecenia(true);
}

}  // namespace paycalc
