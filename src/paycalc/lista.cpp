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

using namespace Dodatkowy;

// The fields of the tab's file on each frame: the inputs of the run as text boxes, its results
// as labels.
const core::FieldBox kPolaG[] = {
    {Podstawa, "TxtPodstawaG", "Podstawa", "Frame1", 1, 12, 0, Kind::TextBox},
    {Il1, "txtIl1", "Planowane - godziny", "Frame1", 2, 12, 0, Kind::TextBox},
    {Sta1, "txtsta1", "stawka", "Frame1", 2, 12, 1, Kind::TextBox},
    {Kw1, "LbKw1", "kwota", "Frame1", 2, 12, 2, Kind::Label},
    {Il2, "txtIl2", "Zastępcze - godziny", "Frame1", 3, 12, 0, Kind::TextBox},
    {Sta2, "txtSta2", "stawka", "Frame1", 3, 12, 1, Kind::TextBox},
    {Kw2, "lbKw2", "kwota", "Frame1", 3, 12, 2, Kind::Label},
    {Il3, "txtIl3", "Indywidua - godziny", "Frame1", 4, 12, 0, Kind::TextBox},
    {Sta3, "txtSta3", "stawka", "Frame1", 4, 12, 1, Kind::TextBox},
    {Kw3, "lbKw3", "kwota", "Frame1", 4, 12, 2, Kind::Label},
    {Il4, "txtIl4", "Nocne - godziny", "Frame1", 5, 12, 0, Kind::TextBox},
    {Sta4, "txtsta4", "stawka", "Frame1", 5, 12, 1, Kind::TextBox},
    {Kw4, "lbKw4", "kwota", "Frame1", 5, 12, 2, Kind::Label},
    {Il5, "txtIl5", "Bibliote. - godziny", "Frame1", 6, 12, 0, Kind::TextBox},
    {Sta5, "txtSta5", "stawka", "Frame1", 6, 12, 1, Kind::TextBox},
    {Kw5, "lbKw5", "kwota", "Frame1", 6, 12, 2, Kind::Label},
    {Il6, "txtIl6", "Dow.dziec - godziny", "Frame1", 7, 12, 0, Kind::TextBox},
    {Sta6, "txtSta6", "stawka", "Frame1", 7, 12, 1, Kind::TextBox},
    {Kw6, "lbKw6", "kwota", "Frame1", 7, 12, 2, Kind::Label},
    {Il7, "txtIl7", "Inne - godziny", "Frame1", 8, 12, 0, Kind::TextBox},
    {Sta7, "txtSta7", "stawka", "Frame1", 8, 12, 1, Kind::TextBox},
    {Kw7, "lbKw7", "kwota", "Frame1", 8, 12, 2, Kind::Label},
    {RazemKwota, "LbRazemKwotaG", "Razem kwota", "Frame1", 9, 12, 2, Kind::Label},
    {KwotaBrutto, "lbPodstawaZUSG", "Podstawa składek", "Frame1", 10, 12, 0, Kind::Label},
    {PodstawaZdrowotna, "LbPodstawaKasyG", "Podstawa zdrowotnej", "Frame1", 10, 12, 1, Kind::Label},
    {SkladkaZdrowotna, "lbSkładkaZdrG", "Składka zdrowotna", "Frame1", 10, 12, 2, Kind::Label},
    {SkladkaIndywidualna, "LbSładkaIndG", "Składka zdr. indywid.", "Frame1", 11, 12, 0, Kind::Label},
    {StawkaPodatku, "lbStawkaPodatkuG", "Stawka podatku", "Frame1", 11, 12, 1, Kind::Label},
    {PodatekNetto, "LbPodatekNettoG", "Podatek", "Frame1", 11, 12, 2, Kind::Label},
    {PlacaNetto, "lbPłacaNettoG", "Płaca netto", "Frame1", 12, 12, 0, Kind::Label},
    {DoWyplaty, "LbDoWypłatyG", "Do wypłaty", "Frame1", 12, 12, 1, Kind::Label},
    {NaROR, "LbNaKontoRORG", "Na konto ROR", "Frame1", 12, 12, 2, Kind::Label},
    {NumerKonta, "lbNumerKontaG", "Nr konta", "Frame1", 13, 12, 0, Kind::Label},
    {OpcjaROR, "lbOpcjaRORG", "Na konto (1 = tak)", "Frame1", 13, 12, 1, Kind::Label},
    {BruttoOd01, "lbBruttoOd01G", "Brutto od 01.01", "Frame1", 13, 12, 2, Kind::Label},
    {DataListy, "lbDataListyG", "Data listy", "Frame1", 14, 12, 0, Kind::Label},
};

const core::FieldBox kPolaD[] = {
    {Kw1, "txtDodatek1", "Dodatek 1", "Frame2", 1, 12, 0, Kind::TextBox},
    {Kw2, "txtDodatek2", "Dodatek 2", "Frame2", 1, 12, 1, Kind::TextBox},
    {Kw3, "txtMieszkaniowy", "Mieszkaniowy", "Frame2", 1, 12, 2, Kind::TextBox},
    {Kw4, "txtWiejski", "Wiejski", "Frame2", 2, 12, 0, Kind::TextBox},
    {Kw5, "txtWyrownanie", "Wyrównanie", "Frame2", 2, 12, 1, Kind::TextBox},
    {Kw6, "txtNagroda", "Nagroda", "Frame2", 2, 12, 2, Kind::TextBox},
    {Kw7, "txtEkwiwalent", "Ekwiwalent", "Frame2", 3, 12, 0, Kind::TextBox},
    {BruttoOd01, "txtBrOD01", "Wcześniejsze wypłaty", "Frame2", 3, 12, 1, Kind::TextBox},
    {RazemKwota, "LbRazemKwotaD", "Razem kwota", "Frame2", 3, 12, 2, Kind::Label},
    {KwotaBrutto, "lbPodstawaZUSD", "Podstawa składek", "Frame2", 4, 12, 0, Kind::Label},
    {PodstawaZdrowotna, "LbPodstawaKasyD", "Podstawa zdrowotnej", "Frame2", 4, 12, 1, Kind::Label},
    {SkladkaZdrowotna, "lbSkładkaZdrD", "Składka zdrowotna", "Frame2", 4, 12, 2, Kind::Label},
    {SkladkaIndywidualna, "LbSładkaIndD", "Składka zdr. indywid.", "Frame2", 5, 12, 0, Kind::Label},
    {StawkaPodatku, "lbStawkaPodatkuD", "Stawka podatku", "Frame2", 5, 12, 1, Kind::Label},
    {PodatekNetto, "LbPodatekNettoD", "Podatek", "Frame2", 5, 12, 2, Kind::Label},
    {PlacaNetto, "lbPłacaNettoD", "Płaca netto", "Frame2", 6, 12, 0, Kind::Label},
    {DoWyplaty, "LbDoWypłatyD", "Do wypłaty", "Frame2", 6, 12, 1, Kind::Label},
    {NaROR, "LbNaKontoRORD", "Na konto ROR", "Frame2", 6, 12, 2, Kind::Label},
    {NumerKonta, "lbNumerKontaD", "Nr konta", "Frame2", 7, 12, 0, Kind::Label},
    {OpcjaROR, "lbOpcjaRORD", "Na konto (1 = tak)", "Frame2", 7, 12, 1, Kind::Label},
    {DataListy, "lbDataListyD", "Data listy", "Frame2", 7, 12, 2, Kind::Label},
};

const core::FieldBox kPolaT[] = {
    {Podstawa, "txtOdKwoty", "Od kwoty", "Frame3", 1, 12, 0, Kind::TextBox},
    {KwotaBrutto, "txtKwotaTrz", "Kwota trzynastki", "Frame3", 2, 12, 0, Kind::TextBox},
    {PodstawaZdrowotna, "LbPodstawaKasyT", "Podstawa zdrowotnej", "Frame3", 3, 12, 0, Kind::Label},
    {SkladkaZdrowotna, "lbSkładkaZdrT", "Składka zdrowotna", "Frame3", 3, 12, 1, Kind::Label},
    {SkladkaIndywidualna, "LbSładkaIndT", "Składka zdr. indywid.", "Frame3", 3, 12, 2, Kind::Label},
    {StawkaPodatku, "lbStawkaPodatkuT", "Stawka podatku", "Frame3", 4, 12, 0, Kind::Label},
    {PodatekNetto, "LbPodatekNettoT", "Podatek", "Frame3", 4, 12, 1, Kind::Label},
    {PlacaNetto, "lbPłacaNettoT", "Płaca netto", "Frame3", 4, 12, 2, Kind::Label},
    {DoWyplaty, "LbDoWypłatyT", "Do wypłaty", "Frame3", 5, 12, 0, Kind::Label},
    {NaROR, "LbNaKontoRORT", "Na konto ROR", "Frame3", 5, 12, 1, Kind::Label},
    {NumerKonta, "lbNumerKontaT", "Nr konta", "Frame3", 5, 12, 2, Kind::Label},
    {OpcjaROR, "lbOpcjaRORT", "Na konto (1 = tak)", "Frame3", 6, 12, 0, Kind::Label},
    {BruttoOd01, "lbBruttoOd01T", "Brutto od 01.01", "Frame3", 6, 12, 1, Kind::Label},
    {DataListy, "lbDataListyT", "Data listy", "Frame3", 6, 12, 2, Kind::Label},
};

const core::FieldBox kPolaJ[] = {
    {Podstawa, "txtPodstawaJ", "Podstawa", "Frame4", 1, 12, 0, Kind::TextBox},
    {KwotaBrutto, "lbKwotaJ", "Kwota", "Frame4", 2, 12, 0, Kind::Label},
    {PodstawaZdrowotna, "LbPodstawaKasyJ", "Podstawa zdrowotnej", "Frame4", 2, 12, 1, Kind::Label},
    {SkladkaZdrowotna, "lbSkładkaZdrJ", "Składka zdrowotna", "Frame4", 2, 12, 2, Kind::Label},
    {SkladkaIndywidualna, "LbSładkaIndJ", "Składka zdr. indywid.", "Frame4", 3, 12, 0, Kind::Label},
    {StawkaPodatku, "lbStawkaPodatkuJ", "Stawka podatku", "Frame4", 3, 12, 1, Kind::Label},
    {PodatekNetto, "LbPodatekNettoJ", "Podatek", "Frame4", 3, 12, 2, Kind::Label},
    {PlacaNetto, "lbPłacaNettoJ", "Płaca netto", "Frame4", 4, 12, 0, Kind::Label},
    {DoWyplaty, "LbDoWypłatyJ", "Do wypłaty", "Frame4", 4, 12, 1, Kind::Label},
    {NaROR, "LbNaKontoRORJ", "Na konto ROR", "Frame4", 4, 12, 2, Kind::Label},
    {NumerKonta, "lbNumerKontaJ", "Nr konta", "Frame4", 5, 12, 0, Kind::Label},
    {OpcjaROR, "lbOpcjaRORJ", "Na konto (1 = tak)", "Frame4", 5, 12, 1, Kind::Label},
    {BruttoOd01, "lbBruttoOd01J", "Brutto od 01.01", "Frame4", 5, 12, 2, Kind::Label},
    {DataListy, "lbDataListyJ", "Data listy", "Frame4", 6, 12, 0, Kind::Label},
};

const core::FieldBox kPolaU[] = {
    {Podstawa, "txtPodstawaU", "Podstawa", "frame5", 1, 12, 0, Kind::TextBox},
    {KwotaBrutto, "lbKwotaU", "Kwota", "frame5", 2, 12, 0, Kind::Label},
    {PodstawaZdrowotna, "LbPodstawaKasyU", "Podstawa zdrowotnej", "frame5", 2, 12, 1, Kind::Label},
    {SkladkaZdrowotna, "lbSkładkaZdrU", "Składka zdrowotna", "frame5", 2, 12, 2, Kind::Label},
    {SkladkaIndywidualna, "LbSładkaIndU", "Składka zdr. indywid.", "frame5", 3, 12, 0, Kind::Label},
    {StawkaPodatku, "lbStawkaPodatkuU", "Stawka podatku", "frame5", 3, 12, 1, Kind::Label},
    {PodatekNetto, "LbPodatekNettoU", "Podatek", "frame5", 3, 12, 2, Kind::Label},
    {PlacaNetto, "lbPłacaNettoU", "Płaca netto", "frame5", 4, 12, 0, Kind::Label},
    {DoWyplaty, "LbDoWypłatyU", "Do wypłaty", "frame5", 4, 12, 1, Kind::Label},
    {NaROR, "LbNaKontoRORU", "Na konto ROR", "frame5", 4, 12, 2, Kind::Label},
    {NumerKonta, "lbNumerKontaU", "Nr konta", "frame5", 5, 12, 0, Kind::Label},
    {OpcjaROR, "lbOpcjaRORU", "Na konto (1 = tak)", "frame5", 5, 12, 1, Kind::Label},
    {BruttoOd01, "lbBruttoOd01U", "Brutto od 01.01", "frame5", 5, 12, 2, Kind::Label},
    {DataListy, "lbDataListyU", "Data listy", "frame5", 6, 12, 0, Kind::Label},
};

const std::span<const core::FieldBox> kPola[5] = {kPolaG, kPolaD, kPolaT, kPolaJ, kPolaU};

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
    core::FieldBoxes& p = *pola_[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)];
    return p.has(field) ? &p[field] : nullptr;
}

void ListaScreen::zbudujRamki() {
    core::Control* nazwiska[] = {&lbNazwiskoImie1, &lbNazwiskoImie2, &lbNazwiskoImie3, &lbNazwiskoImie4,
                                 &lbNazwiskoImie5};
    for (int t = 1; t <= 5; ++t) {
        nazwiska[t - 1]->in(ramka(t).Name).at(0, 0, 3);
        pola_.push_back(std::make_unique<core::FieldBoxes>(*this, kPola[t - 1]));
        core::FieldBoxes& p = *pola_.back();
        // Read-only until the runs of the tabs come.
        for (std::size_t i = 0; i < p.size(); ++i) p.box(i).Locked = true;
    }
    txtRokDoPodstawy.in("Frame3").at(1, 1).label("Rok do podstawy").width(6);
    txtRokDoPodstawy.ToolTipText = "Rok, z którego liczy się podstawę (puste = rok daty listy)";
    cmdWyliczPodstawe_.in("Frame3").at(1, 2);
    cmdWyliczPodstawe_.ToolTipText =
        "Podstawa składek wybranej osoby w roku: kartoteki miesięcy i listy dodatkowe (bez trzynastki)";
    lbUwagaJ.in("Frame4").at(1, 1, 2);
    // The base of the thirteenth pay is typed or computed here.
    (*pola_[2])[Podstawa].Locked = false;
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
    // 3., 4.
    pokazRamke(TabStrip1.Value);
    pokazRekord(TabStrip1.Value);
}

void ListaScreen::pokazRamke(int tab) {
    for (int t = 1; t <= 5; ++t) ramka(t).Visible = false;
    ramka(tab).Visible = true;
}

void ListaScreen::wyczysc(int tab) { pola_[static_cast<std::size_t>(std::clamp(tab, 1, 5) - 1)]->clear(); }

void ListaScreen::pokazRekord(int tab) {
    wyczysc(tab);
    if (!wybrana()) return;
    const fs::path file = Dodatkowy::path(s, rodzajZakladki(tab));
    if (!core::fileExists(file)) return;
    for (const Record& r : Dodatkowy::readAll(file)) {
        if (r.s(Dodatkowy::Klucz) != s.KluczOsoby) continue;
        pola_[static_cast<std::size_t>(tab - 1)]->fill(r);
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
