// The five tabs of frmlista: their boxes and labels, the runs, the delete commands and the
// printed lists. The calculation itself is in dodatkowe.cpp.
#include <algorithm>

#include "core/fieldboxes.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/dodatkowe.h"
#include "paycalc/kartoteka.h"
#include "paycalc/lista.h"

namespace fs = std::filesystem;
using core::Control;
using core::Kind;
using core::Record;

namespace paycalc {

namespace {

using namespace Dodatkowy;

// The tab's boxes kept in the tab's file (inputs as text boxes, per-kind results as labels).
const core::FieldBox kPolaG[] = {
    {Podstawa, "TxtPodstawaG", "Podstawa", "Frame1", 1, 10, 0, Kind::TextBox},
    {Il1, "txtIl1", "Planowane - godziny", "Frame1", 2, 8, 0, Kind::TextBox},
    {Sta1, "txtsta1", "stawka", "Frame1", 2, 8, 1, Kind::TextBox},
    {Kw1, "LbKw1", "kwota", "Frame1", 2, 10, 2, Kind::Label},
    {Il2, "txtIl2", "Zastępcze - godziny", "Frame1", 3, 8, 0, Kind::TextBox},
    {Sta2, "txtSta2", "stawka", "Frame1", 3, 8, 1, Kind::TextBox},
    {Kw2, "lbKw2", "kwota", "Frame1", 3, 10, 2, Kind::Label},
    {Il3, "txtIl3", "Indywidua - godziny", "Frame1", 4, 8, 0, Kind::TextBox},
    {Sta3, "txtSta3", "stawka", "Frame1", 4, 8, 1, Kind::TextBox},
    {Kw3, "lbKw3", "kwota", "Frame1", 4, 10, 2, Kind::Label},
    {Il4, "txtIl4", "Nocne - godziny", "Frame1", 5, 8, 0, Kind::TextBox},
    {Sta4, "txtsta4", "stawka", "Frame1", 5, 8, 1, Kind::TextBox},
    {Kw4, "lbKw4", "kwota", "Frame1", 5, 10, 2, Kind::Label},
    {Il5, "txtIl5", "Bibliote. - godziny", "Frame1", 6, 8, 0, Kind::TextBox},
    {Sta5, "txtSta5", "stawka", "Frame1", 6, 8, 1, Kind::TextBox},
    {Kw5, "lbKw5", "kwota", "Frame1", 6, 10, 2, Kind::Label},
    {Il6, "txtIl6", "Dow.dziec - godziny", "Frame1", 7, 8, 0, Kind::TextBox},
    {Sta6, "txtSta6", "stawka", "Frame1", 7, 8, 1, Kind::TextBox},
    {Kw6, "lbKw6", "kwota", "Frame1", 7, 10, 2, Kind::Label},
    {Il7, "txtIl7", "Inne - godziny", "Frame1", 8, 8, 0, Kind::TextBox},
    {Sta7, "txtSta7", "stawka", "Frame1", 8, 8, 1, Kind::TextBox},
    {Kw7, "lbKw7", "kwota", "Frame1", 8, 10, 2, Kind::Label},
    {RazemKwota, "LbRazemKwotaG", "Razem kwota", "Frame1", 9, 10, 2, Kind::Label},
};

const core::FieldBox kPolaD[] = {
    {Kw1, "txtDodatek1", "Dodatek 1", "Frame2", 1, 10, 0, Kind::TextBox},
    {Kw2, "txtDodatek2", "Dodatek 2", "Frame2", 1, 10, 1, Kind::TextBox},
    {Kw3, "txtMieszkaniowy", "Mieszkaniowy", "Frame2", 1, 10, 2, Kind::TextBox},
    {Kw4, "txtWiejski", "Wiejski", "Frame2", 1, 10, 3, Kind::TextBox},
    {Kw5, "txtWyrownanie", "Wyrównanie", "Frame2", 2, 10, 0, Kind::TextBox},
    {Kw6, "txtNagroda", "Nagroda", "Frame2", 2, 10, 1, Kind::TextBox},
    {Kw7, "txtEkwiwalent", "Ekwiwalent", "Frame2", 2, 10, 2, Kind::TextBox},
    {RazemKwota, "LbRazemKwotaD", "Razem kwota", "Frame2", 2, 10, 3, Kind::Label},
    {BruttoOd01, "txtBrOD01", "Wcześniejsze wypłaty", "Frame2", 5, 10, 2, Kind::TextBox},
};

const core::FieldBox kPolaT[] = {
    {Podstawa, "txtOdKwoty", "Od kwoty", "Frame3", 1, 10, 0, Kind::TextBox},
    {KwotaBrutto, "txtKwotaTrz", "Kwota trzynastki", "Frame3", 1, 10, 2, Kind::TextBox},
};

const core::FieldBox kPolaJ[] = {
    {Podstawa, "txtPodstawaJ", "Podstawa", "Frame4", 1, 10, 0, Kind::TextBox},
};

const core::FieldBox kPolaU[] = {
    {Podstawa, "txtPodstawaU", "Podstawa", "frame5", 1, 10, 0, Kind::TextBox},
};

const std::span<const core::FieldBox> kPola[5] = {kPolaG, kPolaD, kPolaT, kPolaJ, kPolaU};

// The results every tab shows, named by a stem and the tab's letter: from the record's field, or
// (field 0) from the run's deductions. The tax-only tabs show only the `podatkowy` ones.
struct PoleWyniku {
    const char* stem;
    const char* etykieta;
    int pole;
    float (*wartosc)(const Rozliczenie&);
    bool podatkowy;
    bool czesc = false;  // one of the three contributions
};
const PoleWyniku kWyniki[] = {
    {"lbPodstawaZUS", "Podstawa składek", KwotaBrutto, nullptr, false},
    {"LbEmerytalna", "Emerytalna", 0, [](const Rozliczenie& r) { return r.skl.Emerytalna; }, false, true},
    {"LbRentowa", "Rentowa", 0, [](const Rozliczenie& r) { return r.skl.Rentowa; }, false, true},
    {"LbChorobowa", "Chorobowa", 0, [](const Rozliczenie& r) { return r.skl.Chorobowa; }, false, true},
    {"LbRazemSkładki", "Razem składki", 0, [](const Rozliczenie& r) { return r.skl.Razem; }, false},
    {"LbPodstawaKasy", "Podstawa zdrowotnej", PodstawaZdrowotna, nullptr, false},
    {"lbSkładkaZdr", "Składka zdrowotna", SkladkaZdrowotna, nullptr, false},
    {"LbSładkaInd", "Składka zdr. indywid.", SkladkaIndywidualna, nullptr, false},
    {"LbPodstawPodatku", "Podstawa podatku", 0, [](const Rozliczenie& r) { return r.PodstawaPodatku; }, true},
    {"lbStawkaPodatku", "Stawka podatku", StawkaPodatku, nullptr, true},
    {"LbPodatekBrutto", "Podatek brutto", 0, [](const Rozliczenie& r) { return r.PodatekBrutto; }, false},
    {"LbPodatekNetto", "Podatek", PodatekNetto, nullptr, true},
    {"lbRazemPotracenia", "Razem potrącenia", 0, [](const Rozliczenie& r) { return r.RazemPotracenia; }, true},
    {"lbPłacaNetto", "Płaca netto", PlacaNetto, nullptr, true},
    {"LbDoWypłaty", "Do wypłaty", DoWyplaty, nullptr, true},
    {"LbNaKontoROR", "Na konto ROR", NaROR, nullptr, true},
    {"lbNumerKonta", "Nr konta", NumerKonta, nullptr, true},
    {"lbBruttoOd01", "Brutto od 01.01", BruttoOd01, nullptr, false},
    {"lbDataListy", "Data listy", DataListy, nullptr, true},
};

// Each tab: its letter, the row its results start at, and its own commands.
struct Zakladka {
    const char* litera;
    int wierszWynikow;
    const char *wylicz, *usun, *usunEtykieta, *ror, *potracenie;
};
const Zakladka kZakladki[5] = {
    {"G", 10, "CmdWyliczG", "cmdUsunGodziny", "Usuń &godziny", "OpcjaRORG", "TxtPotracenie"},
    {"D", 7, "cmdWyliczD", "cmdUsunDodatki", "Usuń &dodatki", "OpcjaRORD", "TxtPotracenieD"},
    {"T", 3, "cmdWyliczT", "CmdUsunTrzynastke", "Usuń &trzynastkę", "OpcjaRORT", "TxtPotracenieT"},
    {"J", 2, "cmdWyliczJ", "cmdUsunJubileusze", "Usuń &jubileusze", "OpcjaRORJ", nullptr},
    {"U", 2, "cmdWyliczSwUrlopowy", "cmdUsunSwiadczenia", "Usuń ś&wiadczenia", "OpcjaRORU", nullptr},
};
const char* const kOpcjeD[7] = {"optD1", "optD2", "optD3", "optD4", "optD5", "optD6", "OptD7"};
const char* const kNazwyDodatkow[7] = {"Dodatek 1", "Dodatek 2", "Mieszkaniowy", "Wiejski",
                                       "Wyrównanie", "Nagroda",   "Ekwiwalent"};

bool tylkoPodatek(int tab) { return tab >= 4; }
std::string nazwaWyniku(const PoleWyniku& w, int tab) { return std::string(w.stem) + kZakladki[tab - 1].litera; }

}  // namespace

Control& ListaScreen::kontrolka(const std::string& nazwa) {
    if (Control* c = find(nazwa)) return *c;
    throw core::Error(core::err::SubscriptOutOfRange, "frmlista, " + nazwa, "brak kontrolki");
}

Control* ListaScreen::pole(int tab, int field) {
    core::FieldBoxes& p = *pola[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)];
    return p.has(field) ? &p[field] : nullptr;
}

void ListaScreen::zbudujRamki() {
    auto nowa = [this](const std::string& nazwa, Kind k, const std::string& caption, const std::string& frame) -> Control& {
        wlasne.push_back(std::make_unique<Control>(this, nazwa, k, caption));
        wlasne.back()->in(frame);
        return *wlasne.back();
    };
    Control* nazwiska[] = {&lbNazwiskoImie1, &lbNazwiskoImie2, &lbNazwiskoImie3, &lbNazwiskoImie4, &lbNazwiskoImie5};
    for (int t = 1; t <= 5; ++t) {
        const std::string frame = ramka(t).Name;
        const Zakladka& z = kZakladki[t - 1];
        nazwiska[t - 1]->in(frame).at(0, 0, 4);
        pola.push_back(std::make_unique<core::FieldBoxes>(*this, kPola[t - 1]));
        // The results, four to a row.
        int i = 0;
        for (const PoleWyniku& w : kWyniki) {
            if (tylkoPodatek(t) && !w.podatkowy) continue;
            if (t == 2 && w.pole == BruttoOd01) continue;
            nowa(nazwaWyniku(w, t), Kind::Label, {}, frame).at(z.wierszWynikow + i / 4, i % 4).label(w.etykieta).width(10);
            ++i;
        }
        const int dol = z.wierszWynikow + (i + 3) / 4;
        nowa(z.wylicz, Kind::CommandButton, "&Wylicz", frame).at(dol + 1, 0).Click = [this, t] { wylicz(t); };
        nowa(z.usun, Kind::CommandButton, z.usunEtykieta, frame).at(dol + 1, 1).Click = [this, t] { usunZakladke(t); };
        nowa(std::string("cmdDruk") + z.litera, Kind::CommandButton, "Dru&kuj listę", frame).at(dol + 1, 2).Click =
            [this, t] { drukujZakladke(t); };
        kontrolka(z.usun).ToolTipText = "Usuwa cały zbiór tej zakładki za miesiąc daty listy";
        kontrolka(std::string("cmdDruk") + z.litera).ToolTipText = "Lista wypłat tej zakładki za miesiąc: podgląd, PDF, drukarka";
        Control& ror = nowa(z.ror, Kind::CheckBox, "Wypłata na konto", frame);
        ror.ToolTipText = "Zaznaczone: kwota do wypłaty idzie na rachunek bankowy";
        if (z.potracenie) nowa(z.potracenie, Kind::TextBox, {}, frame).label("Potrącenie").width(10);
    }
    // Overtime.
    nowa("txtEtatG", Kind::TextBox, {}, "Frame1").at(1, 1).label("Etat").width(8).ToolTipText =
        "Etat (6 znaków); ostatnie trzy cyfry dzielą stawkę godzinową (24 i 100 = 100)";
    nowa("txtDtrudnościowy", Kind::TextBox, {}, "Frame1").at(1, 2).label("Dodatek trudn.").width(8).ToolTipText =
        "Nauczyciele: od 50 kwota, poniżej 50 ułamek podstawy";
    kontrolka("TxtPotracenie").at(1, 3);
    nowa("LbRazemGodziny", Kind::Label, {}, "Frame1").at(9, 0).label("Razem godziny").width(8);
    kontrolka("OpcjaRORG").at(9, 3);
    // Additions: the kinds and their switches.
    for (int i = 0; i < 7; ++i)
        nowa(kOpcjeD[i], Kind::OptionButton, kNazwyDodatkow[i], "Frame2").at(3 + i / 4, i % 4).Click = [this, i] {
            optD_Click(i + 1);
        };
    kontrolka("optD1").Value = 1;
    nowa("ChkSkladkiZUSD", Kind::CheckBox, "Składki ZUS", "Frame2").at(5, 0).Click = [this] { ChkD_Click(); };
    nowa("ChkNFZD", Kind::CheckBox, "Składka zdrowotna", "Frame2").at(5, 1).Click = [this] { ChkD_Click(); };
    kontrolka("ChkSkladkiZUSD").ToolTipText = "Wybrany dodatek wchodzi do podstawy składek ZUS";
    kontrolka("ChkNFZD").ToolTipText = "Od wybranego dodatku liczy się składkę zdrowotną";
    nowa("lbPodstawaListyD", Kind::Label, {}, "Frame2").at(5, 3).label("Podstawa z listy").width(10);
    nowa("LbstEmerD", Kind::Label, {}, "Frame2").at(6, 0).label("Stopa emeryt. %").width(8);
    nowa("lbstRentD", Kind::Label, {}, "Frame2").at(6, 1).label("Stopa rent. %").width(8);
    kontrolka("TxtPotracenieD").at(6, 2);
    kontrolka("OpcjaRORD").at(6, 3);
    lbInfo.in("Frame2").at(13, 0, 4);
    txtRokDoPodstawy.ToolTipText.clear();
    flagi = {};
    pokazFlagi();
    // The thirteenth pay.
    nowa("txtWskaznik", Kind::TextBox, {}, "Frame3").at(1, 1).label("Wskaźnik %").width(6).ToolTipText =
        "Procent podstawy (puste = wskaźnik trzynastki ze stawek roku)";
    kontrolka("TxtPotracenieT").at(1, 3);
    (*pola[2])[KwotaBrutto].Locked = true;
    txtRokDoPodstawy.in("Frame3").at(2, 0).label("Rok do podstawy").width(6);
    txtRokDoPodstawy.ToolTipText = "Rok, z którego liczy się podstawę (puste = rok daty listy)";
    cmdWyliczPodstawe.in("Frame3").at(2, 1);
    cmdWyliczPodstawe.ToolTipText =
        "Podstawa składek wybranej osoby w roku: kartoteki miesięcy i listy dodatkowe (bez trzynastki)";
    kontrolka("OpcjaRORT").at(2, 2);
    // Jubilee awards and the holiday benefit.
    kontrolka("OpcjaRORJ").at(1, 1);
    lbUwagaJ.in("Frame4").at(1, 2, 2);
    kontrolka("OpcjaRORU").at(1, 1);
}

void ListaScreen::wyczysc(int tab) {
    pola[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)]->clear();
    const Zakladka& z = kZakladki[tab - 1];
    for (const PoleWyniku& w : kWyniki)
        if (Control* c = find(nazwaWyniku(w, tab))) c->Caption.clear();
    kontrolka(z.ror).Value = 0;
    if (z.potracenie) kontrolka(z.potracenie).Text.clear();
    if (tab == 1) kontrolka("LbRazemGodziny").Caption.clear();
    if (tab == 2) {
        for (const char* n : {"lbPodstawaListyD", "LbstEmerD", "lbstRentD"}) kontrolka(n).Caption.clear();
        lbInfo.Caption.clear();
        flagi = {};
        pokazFlagi();
    }
    if (tab == 3) kontrolka("txtWskaznik").Text = core::numText(s.stawki.Trzynastka);
}

void ListaScreen::pokazRekord(int tab) {
    wyczysc(tab);
    if (!wybrana()) return;
    const fs::path file = Dodatkowy::path(s, rodzajZakladki(tab));
    if (!core::fileExists(file)) return;
    for (const Record& r : Dodatkowy::readAll(file)) {
        if (r.s(Klucz) != s.KluczOsoby) continue;
        pola[static_cast<std::size_t>(tab - 1)]->fill(r);
        for (const PoleWyniku& w : kWyniki)
            if (Control* c = find(nazwaWyniku(w, tab)); c && w.pole) c->Caption = r.s(w.pole);
        kontrolka(kZakladki[tab - 1].ror).Value = r.s(OpcjaROR) == "1" ? 1 : 0;
        if (r.f(RazemKwota) != 0) pokazRozliczenie(tab, zRekordu(rodzajZakladki(tab), r, s.stawki));
        if (tab == 2) {
            for (int i = 0; i < 7; ++i) flagi[i] = r.s(Il1 + i);
            pokazFlagi();
        }
        return;
    }
}

void ListaScreen::podpowiedzNadgodzin() {
    const DaneNadgodzin d = daneNadgodzin(s, s.KluczOsoby);
    kontrolka("txtEtatG").Text = d.Etat;
    kontrolka("txtDtrudnościowy").Text = d.Trudnosciowy;
}

void ListaScreen::optD_Click(int i) {
    nrDodatku = std::clamp(i, 1, 7);
    setOption(kontrolka(kOpcjeD[nrDodatku - 1]));
    pokazFlagi();
}

void ListaScreen::pokazFlagi() {
    std::string f = flagi[nrDodatku - 1];
    if (f.empty()) f = domyslneFlagi(nrDodatku - 1);
    kontrolka("ChkSkladkiZUSD").Value = f.size() > 1 && f[1] == '1' ? 0 : 1;
    kontrolka("ChkNFZD").Value = f.size() > 2 && f[2] == '1' ? 0 : 1;
}

void ListaScreen::ChkD_Click() {
    std::string f = flagi[nrDodatku - 1];
    if (f.size() < 3) f = domyslneFlagi(nrDodatku - 1);
    f[1] = kontrolka("ChkSkladkiZUSD").Value == 1 ? '0' : '1';
    f[2] = kontrolka("ChkNFZD").Value == 1 ? '0' : '1';
    flagi[nrDodatku - 1] = f;
}

void ListaScreen::pokazRozliczenie(int tab, const Rozliczenie& r) {
    // Read back from the additions' file, the three parts of the contributions stay blank: the
    // file does not tell them apart.
    const bool czesci = r.skl.Razem == 0 || r.skl.Emerytalna + r.skl.Rentowa + r.skl.Chorobowa != 0;
    for (const PoleWyniku& w : kWyniki)
        if (Control* c = find(nazwaWyniku(w, tab)); c && w.wartosc)
            c->Caption = (czesci || !w.czesc) ? core::numText(w.wartosc(r)) : std::string();
}

void ListaScreen::wylicz(int tab) {
    const Rodzaj rodzaj = rodzajZakladki(tab);
    const Zakladka& z = kZakladki[tab - 1];
    if (!wybrana()) {
        ui.msgBox(komunikatBezOsoby(rodzaj), core::Buttons::OK, core::Icon::Exclamation);
        return;
    }
    const bool ror = kontrolka(z.ror).Value == 1;
    const std::string potracenie = z.potracenie ? kontrolka(z.potracenie).Text : std::string();
    core::FieldBoxes& p = *pola[static_cast<std::size_t>(tab - 1)];
    Rozliczenie wynik;
    std::function<void()> pokaz;
    std::function<void(Record&)> licz;
    switch (rodzaj) {
    case Rodzaj::God:
        licz = [&](Record& rec) {
            Nadgodziny we{p[Podstawa].Text, kontrolka("txtEtatG").Text, kontrolka("txtDtrudnościowy").Text, potracenie,
                          daneNadgodzin(s, s.KluczOsoby).Grupa, {}, {}, ror};
            for (int i = 0; i < 7; ++i) {
                we.Il[i] = p[Il1 + i].Text;
                we.Sta[i] = p[Sta1 + i].Text;
            }
            const WynikNadgodzin w = liczNadgodziny(s, rec, we);
            wynik = w.r;
            pokaz = [this, w] { kontrolka("LbRazemGodziny").Caption = core::numText(w.RazemGodziny); };
        };
        break;
    case Rodzaj::Dod:
        licz = [&](Record& rec) {
            Dodatki we;
            for (int i = 0; i < 7; ++i) we.Kwoty[i] = p[Kw1 + i].Text;
            for (int i = 0; i < 7; ++i) we.Flagi[i] = flagi[i];
            we.Wczesniej = p[BruttoOd01].Text;
            we.Potracenie = potracenie;
            we.ZListy = podstawaZListy(s, s.KluczOsoby);
            we.ror = ror;
            const WynikDodatkow w = liczDodatki(s, rec, we);
            wynik = w.r;
            pokaz = [this, w, zListy = we.ZListy] {
                kontrolka("lbPodstawaListyD").Caption = core::numText(zListy);
                kontrolka("LbstEmerD").Caption = core::numText(w.StopaEmerytalna);
                kontrolka("lbstRentD").Caption = core::numText(w.StopaRentowa);
                lbInfo.Caption = w.Info;
            };
        };
        break;
    case Rodzaj::Trz:
        licz = [&](Record& rec) {
            wynik = liczTrzynastke(s, rec, {p[Podstawa].Text, kontrolka("txtWskaznik").Text, potracenie, ror});
        };
        break;
    default:
        licz = [&](Record& rec) { wynik = liczTylkoPodatek(s, rec, rodzaj, p[Podstawa].Text, ror); };
        break;
    }
    std::string wskaznik = tab == 3 ? kontrolka("txtWskaznik").Text : std::string();
    if (wykonajDodatek(s, ui, rodzaj, licz) != Przebieg::Wyliczono) return;
    pokazRekord(tab);
    if (z.potracenie) kontrolka(z.potracenie).Text = potracenie;
    if (tab == 3) kontrolka("txtWskaznik").Text = wskaznik;
    pokazRozliczenie(tab, wynik);
    if (pokaz) pokaz();
}

void ListaScreen::usunZakladke(int tab) {
    if (usunDodatki(s, ui, rodzajZakladki(tab))) wyczysc(tab);
}

void ListaScreen::drukujZakladke(int tab) { drukujDodatki(s, ui, rodzajZakladki(tab)); }

void ListaScreen::zalozZbior(Dodatkowy::Rodzaj rodzaj) { zalozZbiorDodatkowy(s, rodzaj); }

}  // namespace paycalc
