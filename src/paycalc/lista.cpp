#include "paycalc/lista.h"

#include <algorithm>

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

// A control of a tab's frame showing one field of the tab's file; `pole` 0 for a box without a
// field.
struct OpisPola {
    int pole;
    const char* nazwa;
    const char* etykieta;
    bool okno;  // a text box (an input of the run), else a label (a result)
};

using namespace Dodatkowy;

// The results every tab shows, with the tab's letter after the name.
const OpisPola kWyniki[] = {
    {KwotaBrutto, "lbKwota", "Kwota", false},
    {PodstawaZdrowotna, "LbPodstawaKasy", "Podstawa zdrowotnej", false},
    {SkladkaZdrowotna, "lbSkładkaZdr", "Składka zdrowotna", false},
    {SkladkaIndywidualna, "LbSładkaInd", "Składka zdr. odliczana", false},
    {StawkaPodatku, "lbStawkaPodatku", "Stawka podatku", false},
    {PodatekNetto, "LbPodatekNetto", "Podatek", false},
    {PlacaNetto, "lbPłacaNetto", "Płaca netto", false},
    {DoWyplaty, "LbDoWypłaty", "Do wypłaty", false},
    {NaROR, "LbNaKontoROR", "Na konto ROR", false},
    {NumerKonta, "lbNumerKonta", "Nr konta", false},
    {OpcjaROR, "lbOpcjaROR", "Na konto (1 = tak)", false},
    {BruttoOd01, "lbBruttoOd01", "Brutto od 01.01", false},
    {DataListy, "lbDataListy", "Data listy", false},
};

const char kLitera[] = {'G', 'D', 'T', 'J', 'U'};

const char* const kKategorie[7] = {"Planowane", "Zastępcze", "Indywidua", "Nocne", "Bibliote.", "Dow.dziec", "Inne"};
const char* const kGodziny[7] = {"txtIl1", "txtIl2", "txtIl3", "txtIl4", "txtIl5", "txtIl6", "txtIl7"};
const char* const kStawki[7] = {"txtsta1", "txtSta2", "txtSta3", "txtsta4", "txtSta5", "txtSta6", "txtSta7"};
const char* const kKwoty[7] = {"LbKw1", "lbKw2", "lbKw3", "lbKw4", "lbKw5", "lbKw6", "lbKw7"};

const OpisPola kDodatki[] = {
    {Kw1, "txtDodatek1", "Dodatek 1", true},     {Kw2, "txtDodatek2", "Dodatek 2", true},
    {Kw3, "txtMieszkaniowy", "Mieszkaniowy", true}, {Kw4, "txtWiejski", "Wiejski", true},
    {Kw5, "txtWyrownanie", "Wyrównanie", true}, {Kw6, "txtNagroda", "Nagroda", true},
    {Kw7, "txtEkwiwalent", "Ekwiwalent", true}, {BruttoOd01, "txtBrOD01", "Wcześniejsze wypłaty", true},
    {RazemKwota, "LbRazemKwotaD", "Razem kwota", false},
};

// The type texts of the lists by their group letters.
struct Rodzaj_ {
    const char* grupa;
    const char* tekst;
};
const Rodzaj_ kRodzajeList[] = {
    {"n", "Nauczyciele"}, {"a", "Administracja"}, {"p", "Produkcja"}, {"u", "Umowy zlecenia"},
};

}  // namespace

std::string rodzajListy(const std::string& grupa) {
    const std::string g = core::LCase(core::Trim(grupa));
    for (const Rodzaj_& r : kRodzajeList)
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
    core::Control* przyciski[] = {&cmdDodajOsobe_, &cmdUsun_,        &cmdWybrane_,    &cmdSortujZbior_,
                                  &cmdKartoteka_,  &CmdZerowanie_,   &CmdSol1_,       &cmdDrukListy_,
                                  &cmdPodglad_,    &CmdPaski_,       &CmdDruZasilkow_, &koniecH_};
    for (int i = 0; i < static_cast<int>(std::size(przyciski)); ++i) przyciski[i]->in("fraPolecenia").at(i, 0);
    cmdKartoteka_.tip("Wykonuje kartotekę z aktualnego miesiąca");
    CmdZerowanie_.tip("Odliczenie wypłaconych rat z kas i ulg , zerowanie chorobowych i suma zarobków");
    CmdSol1_.tip("Usuwa podwójne i zbędne wpisy w bazie płacowej informuje o braku zbioru płac");
    cmdDodajOsobe_.tip("Dopisuje nową osobę do listy");
    cmdUsun_.tip("Usuwa wybraną osobę z kadr i, na życzenie, z bazy płacowej");
    cmdWybrane_.tip("Dane kadrowe wybranej osoby");
    cmdSortujZbior_.tip("Kolejność osób na liście");

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
    cmdDodajOsobe_.Click = [this] { cmdDodajOsobe(); };
    cmdUsun_.Click = [this] { cmdUsu(); };
    cmdWybrane_.Click = [this] { cmdWybrane(); };
    lstlista.DblClick = [this] { cmdWybrane(); };
    cmdSortujZbior_.Click = [this] { cmdSortujZbior(); };
    cmdKartoteka_.Click = [this] { cmdKartoteka(); };
    cmdWyliczPodstawe_.Click = [this] { cmdWyliczPodstawe(); };
    CmdZerowanie_.Click = [this] { CmdZerowanie(); };
    CmdSol1_.Click = [this] { CmdSol1(); };
    cmdDrukListy_.Click = [this] { drukuj("cmdDrukListy"); };
    cmdPodglad_.Click = [this] { drukuj(kEkranPodgladu); };
    CmdPaski_.Click = [this] { drukuj("CmdPaski"); };
    CmdDruZasilkow_.Click = [this] { drukuj("CmdDruZasilkow"); };
    koniecH_.Click = [this] { koniecH(); };
}

core::Control& ListaScreen::ramka(int tab) {
    core::Control* r[] = {&Frame1, &Frame2, &Frame3, &Frame4, &frame5};
    return *r[std::clamp(tab, 1, 5) - 1];
}

core::Control* ListaScreen::pole(int tab, int field) {
    for (const PoleRamki& p : pola_[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)])
        if (p.pole == field) return p.c;
    return nullptr;
}

void ListaScreen::zbudujRamki() {
    core::Control* nazwiska[] = {&lbNazwiskoImie1, &lbNazwiskoImie2, &lbNazwiskoImie3, &lbNazwiskoImie4,
                                 &lbNazwiskoImie5};
    for (int t = 1; t <= 5; ++t) {
        const std::string frame = ramka(t).Name;
        nazwiska[t - 1]->in(frame).at(0, 0, 3);
        auto& pola = pola_[static_cast<std::size_t>(t - 1)];
        auto dodaj = [&](int field, const std::string& nazwa, const std::string& etykieta, bool okno, int row, int slot) {
            auto c = std::make_unique<core::Control>(this, nazwa, okno ? Kind::TextBox : Kind::Label);
            c->in(frame).at(row, slot).label(etykieta).width(12);
            c->Locked = true;
            pola.push_back({c.get(), field});
            kontrolki_.push_back(std::move(c));
        };
        int row = 1;
        switch (rodzajZakladki(t)) {
        case Rodzaj::God:
            dodaj(Podstawa, "TxtPodstawaG", "Podstawa", true, row++, 0);
            for (int i = 0; i < 7; ++i, ++row) {
                dodaj(Il1 + i, kGodziny[i], std::string(kKategorie[i]) + " - godziny", true, row, 0);
                dodaj(Sta1 + i, kStawki[i], "stawka", true, row, 1);
                dodaj(Kw1 + i, kKwoty[i], "kwota", false, row, 2);
            }
            dodaj(RazemKwota, "LbRazemKwotaG", "Razem kwota", false, row++, 2);
            break;
        case Rodzaj::Dod:
            for (std::size_t i = 0; i < std::size(kDodatki); ++i)
                dodaj(kDodatki[i].pole, kDodatki[i].nazwa, kDodatki[i].etykieta, kDodatki[i].okno,
                      row + static_cast<int>(i / 3), static_cast<int>(i % 3));
            row += 3;
            break;
        case Rodzaj::Trz:
            dodaj(Podstawa, "txtOdKwoty", "Od kwoty", true, row, 0);
            txtRokDoPodstawy.in(frame).at(row, 1).label("Rok do podstawy").width(6);
            txtRokDoPodstawy.ToolTipText = "Rok, z którego liczy się podstawę (puste = rok daty listy)";
            cmdWyliczPodstawe_.in(frame).at(row++, 2);
            cmdWyliczPodstawe_.ToolTipText =
                "Podstawa składek wybranej osoby w roku: kartoteki miesięcy i listy dodatkowe (bez trzynastki)";
            dodaj(KwotaBrutto, "txtKwotaTrz", "Kwota trzynastki", true, row++, 0);
            break;
        case Rodzaj::Jub:
            dodaj(Podstawa, "txtPodstawaJ", "Podstawa", true, row, 0);
            lbUwagaJ.in(frame).at(row++, 1, 2);
            break;
        case Rodzaj::SwU: dodaj(Podstawa, "txtPodstawaU", "Podstawa", true, row++, 0); break;
        }
        int i = 0;
        for (const OpisPola& o : kWyniki) {
            if (pole(t, o.pole)) continue;  // shown above as an input
            std::string nazwa = std::string(o.nazwa) + kLitera[t - 1];
            std::string etykieta = o.etykieta;
            if (o.pole == KwotaBrutto && (t == 1 || t == 2)) {
                nazwa = std::string("lbPodstawaZUS") + kLitera[t - 1];
                etykieta = "Podstawa składek";
            }
            dodaj(o.pole, nazwa, etykieta, o.okno, row + i / 3, i % 3);
            ++i;
        }
    }
    // The base of the thirteenth pay is typed or computed here.
    if (core::Control* c = pole(3, Podstawa)) c->Locked = false;
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
    int licznik = 0;
    for (const Record& o : Osoba::readAll(s.SciezkaOsob)) {
        ++licznik;
        const std::string line = personnel::wierszListy(licznik, o);
        if (licznik > kMaxOsob)
            throw core::Error(core::err::SubscriptOutOfRange, "frmlista, Form_Load, osoba " + std::to_string(licznik),
                              "lista może mieć najwyżej " + std::to_string(kMaxOsob) + " osób");
        Tablica.push_back(line);
        lstlista.AddItem(line);
    }
    // 6.
    s.LiczbaOsob = licznik;
}

void ListaScreen::ustawPrzyciski() {
    cmdDodajOsobe_.Enabled = ui.canOpen(kEkranOsoby);
    cmdWybrane_.Enabled = ui.canOpen(kEkranOsoby);
    cmdSortujZbior_.Enabled = ui.canOpen(kEkranSortowania);
    cmdDrukListy_.Enabled = ui.canOpen("cmdDrukListy");
    cmdPodglad_.Enabled = ui.canOpen(kEkranPodgladu);
    CmdPaski_.Enabled = ui.canOpen("CmdPaski");
    CmdDruZasilkow_.Enabled = ui.canOpen("CmdDruZasilkow");
    const char* brak = "Ten ekran nie jest jeszcze dostępny w tej wersji programu";
    for (core::Control* c : {&cmdDodajOsobe_, &cmdWybrane_, &cmdSortujZbior_, &cmdDrukListy_, &cmdPodglad_, &CmdPaski_,
                             &CmdDruZasilkow_})
        if (!c->Enabled) c->ToolTipText = brak;
}

void ListaScreen::lstlista_Click() {
    if (!wybrana()) return;
    // 1.
    const WybranaOsoba o = osobaZWiersza(lstlista.selectedText());
    s.NazwiskoOsoby = o.Nazwisko;
    s.ImieOsoby = o.Imie;
    s.KluczOsoby = o.Klucz;
    s.KodUbezpieczeniaOsoby = o.KodUbezpieczenia;
    s.NumerOsoby = o.Numer;
    s.Osoba = core::EkranOsoby{};
    // 2.
    const std::string nazwa = s.NazwiskoOsoby + " " + s.ImieOsoby;
    for (core::Control* l : {&lbNazwiskoImie1, &lbNazwiskoImie2, &lbNazwiskoImie3, &lbNazwiskoImie4, &lbNazwiskoImie5})
        l->Caption = nazwa;
    // 3., 4.
    pokazRamke(TabStrip1.Value);
    pokazRekord(TabStrip1.Value);
}

void ListaScreen::pokazRamke(int tab) {
    for (int t = 1; t <= 5; ++t) ramka(t).Visible = false;
    ramka(tab).Visible = true;
}

void ListaScreen::wyczysc(int tab) {
    for (const PoleRamki& p : pola_[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)]) {
        p.c->Text.clear();
        p.c->Caption.clear();
    }
}

void ListaScreen::pokazRekord(int tab) {
    wyczysc(tab);
    if (!wybrana()) return;
    const fs::path file = Dodatkowy::path(s, rodzajZakladki(tab));
    if (!core::fileExists(file)) return;
    for (const Record& r : Dodatkowy::readAll(file)) {
        if (r.s(Dodatkowy::Klucz) != s.KluczOsoby) continue;
        for (const PoleRamki& p : pola_[static_cast<std::size_t>(tab - 1)]) {
            if (p.c->kind == Kind::TextBox)
                p.c->Text = r.s(p.pole);
            else
                p.c->Caption = r.s(p.pole);
        }
        return;
    }
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

void ListaScreen::zalozZbior(Dodatkowy::Rodzaj rodzaj) {
    const std::vector<Record> osoby = Osoba::readAll(s.SciezkaOsob.empty() ? Osoba::path(s) : s.SciezkaOsob);
    std::vector<Record> place;
    const fs::path plikPlac = Pay::path(s);
    if (core::fileExists(plikPlac)) place = Pay::readAll(plikPlac);
    std::vector<Record> recs;
    recs.reserve(osoby.size());
    for (const Record& o : osoby) {
        const std::string klucz = personnel::kluczOsoby(o);
        Record r(Dodatkowy::schema());
        r.set(Dodatkowy::Nazwisko, core::RTrim(o.s(Osoba::Nazwisko)));
        r.set(Dodatkowy::Imie, core::RTrim(o.s(Osoba::Imie)));
        r.set(Dodatkowy::Klucz, klucz);
        r.set(Dodatkowy::KodUbezpieczenia, core::RTrim(o.s(Osoba::KodUbezpieczenia)));
        auto p = std::find_if(place.begin(), place.end(), [&](const Record& x) { return payinputs::kluczOsoby(x) == klucz; });
        if (p != place.end()) {
            if (rodzaj == Dodatkowy::Rodzaj::God) r.set(Dodatkowy::Podstawa, p->f(Pay::Zasadnicza));
            r.set(Dodatkowy::StawkaPodatku, p->f(Pay::ZastosStaPOD));
            r.set(Dodatkowy::NumerKonta, p->s(Pay::NumerKontaROR));
            r.set(Dodatkowy::OpcjaROR, p->s(rodzaj == Dodatkowy::Rodzaj::God ? Pay::RorGodziny : Pay::RorDodatki));
            r.set(Dodatkowy::BruttoOd01, static_cast<float>(p->d(Pay::BruttoOd01)));
        }
        r.set(Dodatkowy::DataListy, s.DataListy);
        recs.push_back(std::move(r));
    }
    const Dodatkowy::Opis& op = Dodatkowy::opis(rodzaj);
    core::ensureFolder(s.payerFolder(), {op.folder});
    Dodatkowy::writeAll(Dodatkowy::path(s, rodzaj), rodzaj, recs);
}

void ListaScreen::cmdDodajOsobe() {
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

void ListaScreen::cmdWybrane() {
    if (!wybrana()) {
        ui.msgBox("Najpierw wybierz osobę z listy.", Buttons::OK, Icon::Exclamation, "Pokaż wybrane");
        return;
    }
    s.NowyZapis.clear();
    ui.open(kEkranOsoby, s);
}

void ListaScreen::cmdSortujZbior() { ui.open(kEkranSortowania, s); }

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

void ListaScreen::cmdKartoteka() {
    polecenia(false);
    guarded([&] { paycalc::cmdKartoteka(s, ui, postep()); });
    polecenia(true);
}

void ListaScreen::cmdWyliczPodstawe() {
    if (!wybrana()) {
        ui.msgBox("No wybierz nazwisko, a dopiero potem Wylicz !", Buttons::OK, Icon::Exclamation);
        return;
    }
    const float podstawa = podstawaRoczna(s, s.KluczOsoby, txtRokDoPodstawy.Text);
    if (core::Control* c = pole(3, Dodatkowy::Podstawa)) c->Text = core::numText(podstawa);
}

void ListaScreen::CmdZerowanie() {
    polecenia(false);
    guarded([&] { paycalc::cmdZerowanie(s, ui, postep()); });
    polecenia(true);
}

void ListaScreen::CmdSol1() {
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
