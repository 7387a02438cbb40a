#include "payinputs/placa.h"

#include <cmath>
#include <filesystem>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "payinputs/pay_record.h"
#include "payinputs/seniority.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace payinputs {

namespace {

enum class Rodzaj {
    Kwota,  // a float of the record, the typed text taken by its leading number
    Liczba, // a variant holding a number, taken by its leading number
    Tekst   // a variant holding the typed text
};

// How a box is taken into its field: the floats by their leading numbers, the running gross
// too, the other variants as typed.
Rodzaj rodzaj(int field) {
    if (Pay::schema().fields[field - 1].type == core::FieldType::Float) return Rodzaj::Kwota;
    return field == Pay::BruttoOd01 ? Rodzaj::Liczba : Rodzaj::Tekst;
}

// The text boxes; txtWychowawczy has no label of its own (Label10 names it).
const core::FieldBox kBoxes[] = {
    {Pay::Zasadnicza, "txtZasadnicza", "Z&Asadnicza", "fraSkladniki", -1, 10},
    {Pay::Funkcyjny, "txtFunkcyjny", "&Funkcyjny", "fraSkladniki", -1, 10},
    {Pay::Stazowy, "txtStazowy", "&Stażowy", "fraSkladniki", -1, 10},
    {Pay::Premia, "txtPremia", "&Premia(k^%)", "fraSkladniki", -1, 10},
    {Pay::Specjalny, "txtSpecjalny", "Spe&Cjalny", "fraSkladniki", -1, 10},
    {Pay::Inny, "txtInny", "&Nagroda", "fraSkladniki", -1, 10},
    {Pay::Motywacyjny, "txtMotywacyjny", "&Motywacyjny", "fraSkladniki", -1, 10},
    {Pay::Wiejski, "txtWiejski", "&Wiejski(k^%)", "fraSkladniki", -1, 10},
    {Pay::Specjalistyczny, "txtSpecjalistyczny", "Spec&Jalistyczny", "fraSkladniki", -1, 10},
    {Pay::Wychowawczy, "txtWychowawczy", "", "fraSkladniki", -1, 10},
    {Pay::Trudnosciowy, "txtTrudnosciowy", "&Trudnościo.K^%", "fraSkladniki", -1, 10},
    {Pay::Ekwiwalent, "txtEkwiwalent", "&Ekwiwalent", "fraSkladniki", -1, 10},
    {Pay::Nocny, "txtNocny", "&Dodatek nocny", "fraSkladniki", -1, 10},
    {Pay::Wyrownania, "txtWyrownania", "Wy&równania +/-", "fraSkladniki", -1, 10},
    {Pay::Szkodliwy, "txtSzkodliwy", "Sz&Kodliwy", "fraSkladniki", -1, 10},
    {Pay::Mieszkaniowy, "txtMieszkaniowy", "Mieszka&Niowy K^%", "fraSkladniki", -1, 10},
    {Pay::StawkaP, "txtStawkaP", "Stawka zaszeregowania", "fraSkladniki", -1, 10},
    {Pay::KosztyUzyskania, "txtKosztyUzyskania", "Koszty uzyskania(k^%)", "fraPodatek", -1, 10},
    {Pay::KwotaUlgi, "txtKwotaUlgi", "Kwota ulgi podatkowa", "fraPodatek", -1, 10},
    {Pay::ZastosStaPOD, "txtZastosStaPOD", "Zastosowana st.podat(k^%)", "fraPodatek", -1, 10},
    {Pay::UlgaInwestycyjna, "txtUlgaInwestycyjna", "Kwota Ulgi Inwestycyjnej", "fraPodatek", -1, 10},
    {Pay::BruttoOd01, "txtBruttoOd01", "Brutto Od 01,01", "fraPodatek", -1, 10},
    {Pay::DataZatrudnienia, "txtDataZatrudnienia", "DataZatrud.dd/mm/rrrr Od", "fraZatrudnienie", -1, 10},
    {Pay::DataZatrudnieniaDO, "txtDataZatrudnieniaDO", "Data zatrudnienia Do", "fraZatrudnienie", -1, 10},
    {Pay::WskaznikEtatu, "txtWskaznikEtatu", "Wskaznik etatu", "fraZatrudnienie", -1, 10},
    {Pay::WskTabeli, "txtWskTabeli", "Wskaznik z tabeli płac(np M1)", "fraZatrudnienie", -1, 4},
    {Pay::ROR, "txtROR", "ROR z listy pł(kwota)", "fraROR", -1, 10},
    {Pay::NumerKontaROR, "txtNumerKontaROR", "Nr konta ROR", "fraROR", -1, 32},
};

// The pay elements summed for the limit of the pension contributions, in this order.
const int kSkladnikiProgu[] = {Pay::Zasadnicza,      Pay::Funkcyjny,   Pay::Stazowy,      Pay::Premia,
                               Pay::Specjalny,       Pay::Inny,        Pay::Motywacyjny,  Pay::Wiejski,
                               Pay::Specjalistyczny, Pay::Wychowawczy, Pay::Trudnosciowy, Pay::Ekwiwalent,
                               Pay::Nocny,           Pay::Wyrownania,  Pay::Szkodliwy,    Pay::Mieszkaniowy};

const char* const kRodzajeUmowy[] = {"Umowa o prace", "Umowa zlecenie", "Umowa ryczałtowa!"};

double liczba(const std::string& t) { return core::Val(core::KropkaZamiastPrzecinka(std::string(t))); }

// A standing flag of an option: "1" when set, else "".
std::string flaga(const core::Control& c) { return c.Value ? "1" : ""; }

// Stores a text into a variant field unless the field already holds it (quoted or bare).
void ustawTekst(core::Record& r, int field, const std::string& t) {
    if (r.s(field) != t) r.set(field, t);
}

}  // namespace

Progi progi(double suma, double bruttoOd01, double progI, float kwotaGRE) {
    Progi p;
    p.progPodatkowy = bruttoOd01 > progI;
    const double gre = kwotaGRE;
    if (core::Round2(suma + bruttoOd01) > gre) {
        p.skladkiRE = "Przekroczony próg składek R i E";
        if (suma + bruttoOd01 > gre && bruttoOd01 < gre)
            p.skladkiRE = "Podstawa do R i E=" + core::numText(std::round((gre - bruttoOd01) * 100) / 100);
    }
    return p;
}

std::string opisLabel10(const std::string& nip) {
    return nip == "1112223334" || nip == "5556667778" ? "W&Ychowawstwo" : "Na&Dliczbowe";
}

PlacaScreen::PlacaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPlaca", "Płaca"), s(session), boxes(*this, kBoxes), rekordPlacy(Pay::schema()) {
    fraSkladniki.at(0, 0).rows(2);
    fraPodatek.at(0, 1);
    fraZatrudnienie.at(0, 2);
    fraROR.at(1, 1);
    fraSkladki.at(1, 2);
    txt(Pay::Wychowawczy).labelledBy(Label10);
    txt(Pay::ZastosStaPOD).tip("Ułamek, np. 0.17; puste pole po kliknięciu przyjmuje stawkę podatku roku");
    txt(Pay::KosztyUzyskania).tip("Kliknięcie wpisuje koszty uzyskania ze stawek roku");
    txt(Pay::KwotaUlgi).tip("Kliknięcie wpisuje kwotę ulgi ze stawek roku");
    txt(Pay::Premia).tip("Kwota albo, poniżej 1, ułamek płacy zasadniczej");
    cmbRodzajUmowy.in("fraZatrudnienie").at(-1, 0, 2).label("Rodzaj umowy").width(18);
    for (const char* u : kRodzajeUmowy) cmbRodzajUmowy.AddItem(u);
    fraStazowy.in("fraZatrudnienie").at(-1, 0, 2);
    Option1.in("fraStazowy").at(0, 0);
    Option2.in("fraStazowy").at(0, 1);

    fraDojazd.in("fraPodatek").at(-1, 0, 2);
    Opnie.in("fraDojazd").at(0, 0);
    Optak.in("fraDojazd").at(0, 1);
    fraRozliczenie.in("fraPodatek").at(-1, 0, 2);
    Option3.in("fraRozliczenie").at(0, 0);
    Option4.in("fraRozliczenie").at(0, 1);
    fraSamotna.in("fraPodatek").at(-1, 0, 2);
    Option5.in("fraSamotna").at(0, 0);
    Option6.in("fraSamotna").at(0, 1);
    Label25.in("fraPodatek").at(-1, 0, 2);
    Label27.in("fraPodatek").at(-1, 0, 2);

    fraRorGodziny.in("fraROR").at(-1, 0, 2);
    Option7.in("fraRorGodziny").at(0, 0);
    Option8.in("fraRorGodziny").at(0, 1);
    fraRorDodatki.in("fraROR").at(-1, 0, 2);
    Option9.in("fraRorDodatki").at(0, 0);
    Option10.in("fraRorDodatki").at(0, 1);

    int k = 0;
    for (core::Control* c : {&Check1, &Check2, &Check3, &Check4, &Check5, &Check6}) c->in("fraSkladki").at(k++, 0);

    lbBrakDanych.at(2, 0, 3);
    lbBrakDanych.Visible = false;
    lbBrakDanych.Caption = "Ta osoba nie ma jeszcze danych płacowych na tej liście: \"Załóż dane płacowe\" je utworzy.";
    cmdWpiszDane.at(3, 0);
    cmdZapiszZmiany.at(3, 1);
    cmdKoniecP.at(3, 2);
    cmdWpiszDane.Enabled = false;

    txt(Pay::KosztyUzyskania).Click = [this] { txtKosztyUzyskania_Click(); };
    txt(Pay::KwotaUlgi).Click = [this] { txtKwotaUlgi_Click(); };
    txt(Pay::ZastosStaPOD).Click = [this] { txtZastosStaPOD_Click(); };
    for (int f : kSkladnikiProgu) txt(f).Change = [this] { odswiezProgi(); };
    txt(Pay::BruttoOd01).Change = [this] { odswiezProgi(); };
    cmdWpiszDane.Click = [this] { cmdWpiszDane_Click(); };
    cmdZapiszZmiany.Click = [this] { cmdZapiszZmiany_Click(); };
    cmdKoniecP.Click = [this] { cmdKoniecP_Click(); };
    domyslne();
}

std::string PlacaScreen::grupa() const {
    if (!s.Osoba.Grupa.empty()) return s.Osoba.Grupa;
    return rekordPlacy.s(Pay::Grupa);
}

void PlacaScreen::domyslne() {
    boxes.clear();
    cmbRodzajUmowy.ListIndex = -1;
    cmbRodzajUmowy.Text.clear();
    for (core::Control* o : {&Option1, &Option3, &Option5, &Opnie, &Option7, &Option9}) setOption(*o);
    for (core::Control* c : {&Check1, &Check2, &Check3, &Check4, &Check5}) c->Value = 1;
    Check6.Value = 0;
}

void PlacaScreen::wypelnij(const core::Record& r) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const int field = boxes.def(i).field;
        boxes.box(i).Text = rodzaj(field) == Rodzaj::Kwota ? core::numText(r.f(field)) : r.s(field);
    }
    // The date of hire and the post as the person screen holds them.
    if (!s.Osoba.DataZatrudnienia.empty()) txt(Pay::DataZatrudnienia).Text = core::Left(s.Osoba.DataZatrudnienia, 10);
    const double licznik = core::Val(s.Osoba.Etat), mianownik = core::Val(s.Osoba.Etat2);
    if (licznik != 0 && mianownik != 0) txt(Pay::WskaznikEtatu).Text = core::numText(licznik / mianownik);
    setOption(r.s(Pay::DodatekStazowy) == "1" ? Option2 : Option1);
    setOption(r.s(Pay::RozliczenieWspolne) == "1" ? Option4 : Option3);
    setOption(r.s(Pay::SamotnaMatka) == "1" ? Option6 : Option5);
    setOption(r.s(Pay::RorGodziny) == "1" ? Option8 : Option7);
    setOption(r.s(Pay::RorDodatki) == "1" ? Option10 : Option9);
    setOption(r.s(Pay::Dojazd) == "1" ? Optak : Opnie);
    Check1.Value = r.i(Pay::Rentowa) != 0;
    Check2.Value = r.i(Pay::Emerytalna) != 0;
    Check3.Value = r.i(Pay::Chorobowa) != 0;
    Check4.Value = r.i(Pay::Zdrowotna) != 0;
    Check5.Value = r.i(Pay::Wypadkowa) != 0;
    Check6.Value = r.i(Pay::EFPomostowy) == 1;
    cmbRodzajUmowy.Text = r.s(Pay::RodzajUmowy);
    cmbRodzajUmowy.ListIndex = -1;
    for (std::size_t i = 0; i < cmbRodzajUmowy.List.size(); ++i)
        if (cmbRodzajUmowy.List[i] == cmbRodzajUmowy.Text) cmbRodzajUmowy.ListIndex = static_cast<int>(i);
}

void PlacaScreen::odswiezProgi() {
    double suma = 0;
    for (int f : kSkladnikiProgu) suma += liczba(txt(f).Text);
    Progi p = progi(suma, liczba(txt(Pay::BruttoOd01).Text), s.stawki.ProgI, s.stawki.KwotaGRE);
    Label25.Caption = "Przekroczony próg " + core::numText(s.stawki.Stawka1) + "%";
    Label25.Visible = p.progPodatkowy;
    Label27.Caption = p.skladkiRE;
    Label27.Visible = !p.skladkiRE.empty();
}

void PlacaScreen::bladOdczytu(const core::Error& e) {
    ui.msgBox(core::errorReport(e.Number, e.Step, core::ReportWords::Linii) +
                  "\n wpisano nieprawiłowe dane - literka zamiast cyfry !\n Usuń dane i wprowadz poprawnie",
              Buttons::OK, Icon::Critical);
}

void PlacaScreen::Load() {
    Caption = core::Trim("Płaca " + s.NazwiskoOsoby + " " + s.ImieOsoby);
    Label10.Caption = opisLabel10(s.Firma.valid() ? s.Firma.s(reference::Firma::NIP) : std::string());
    znaleziony = false;
    domyslne();
    try {
        personnel::wczytajEkranOsoby(s);
        const fs::path plik = Pay::path(s);
        // A list whose pay file is not there yet has no records: the first one makes the file.
        std::vector<core::Record> recs = core::fileExists(plik) ? Pay::readAll(plik) : std::vector<core::Record>{};
        for (const core::Record& r : recs) {
            if (kluczOsoby(r) != s.KluczOsoby) continue;
            rekordPlacy = r;
            znaleziony = true;
            break;
        }
        if (znaleziony) wypelnij(rekordPlacy);
    } catch (const core::Error& e) {
        bladOdczytu(e);
    }
    if (!znaleziony) {
        rekordPlacy = core::Record(Pay::schema());
        s.NowyZapis.clear();
        if (!s.Osoba.DataZatrudnienia.empty())
            txt(Pay::DataZatrudnienia).Text = core::Left(s.Osoba.DataZatrudnienia, 10);
    }
    cmdWpiszDane.Enabled = !znaleziony;
    lbBrakDanych.Visible = !znaleziony;
    odswiezProgi();
}

void PlacaScreen::txtKosztyUzyskania_Click() {
    double koszty;
    if (grupa() == "u") {
        const double zasadnicza = liczba(txt(Pay::Zasadnicza).Text);
        const double kasach = s.Dane.valid() ? core::Val(s.Dane.s(reference::Dane::Kasach)) : 0;
        koszty = (zasadnicza - zasadnicza * kasach / 100) * 20;
    } else if (Optak.Value) {
        koszty = s.stawki.PRKu;
    } else {
        koszty = s.stawki.KosztyUzyskania;
    }
    txt(Pay::KosztyUzyskania).Text = core::numText(koszty);
}

void PlacaScreen::txtKwotaUlgi_Click() {
    double ulga = s.stawki.KwotaUlgi;
    if (Option6.Value) ulga *= 2;
    if (Option4.Value) ulga *= 2;
    txt(Pay::KwotaUlgi).Text = core::numText(ulga);
}

void PlacaScreen::txtZastosStaPOD_Click() {
    core::Control& c = txt(Pay::ZastosStaPOD);
    if (core::Trim(c.Text).empty()) c.Text = core::numText(s.stawki.Stawka1);
}

void PlacaScreen::normalizuj() {
    for (std::size_t i = 0; i < boxes.size(); ++i) core::KropkaZamiastPrzecinka(boxes.box(i).Text);
}

void PlacaScreen::przepisz(core::Record& r) {
    const bool bezDaty = r.s(Pay::DataZatrudnienia).empty();
    // 1. The amounts by their leading numbers, the texts as typed.
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const core::FieldBox& b = boxes.def(i);
        const std::string& t = boxes.box(i).Text;
        if (b.field == Pay::ZastosStaPOD || b.field == Pay::WskaznikEtatu) continue;
        switch (rodzaj(b.field)) {
        case Rodzaj::Kwota: {
            const float v = static_cast<float>(core::Val(t));
            if (r.isEmpty(b.field) || r.f(b.field) != v) r.set(b.field, v);
            break;
        }
        case Rodzaj::Liczba: {
            const double v = core::Val(t);
            if (r.isEmpty(b.field) || r.d(b.field) != v) r.set(b.field, v);
            break;
        }
        case Rodzaj::Tekst:
            ustawTekst(r, b.field, b.field == Pay::WskTabeli ? core::UCase(t) : t);
            break;
        }
    }
    // 2. The tax rate: an empty box takes the first rate of the year; a percent becomes the
    // fraction the field holds. The factor of the post from the person screen.
    std::string stawka = core::Trim(txt(Pay::ZastosStaPOD).Text);
    if (stawka.empty()) stawka = core::numText(s.stawki.Stawka1);
    float zastos = static_cast<float>(core::Val(stawka));
    if (zastos >= 1) zastos = static_cast<float>(zastos / 100.0);
    if (r.f(Pay::ZastosStaPOD) != zastos || r.isEmpty(Pay::ZastosStaPOD)) r.set(Pay::ZastosStaPOD, zastos);
    txt(Pay::ZastosStaPOD).Text = core::numText(r.f(Pay::ZastosStaPOD));
    const double licznik = core::Val(s.Osoba.Etat), mianownik = core::Val(s.Osoba.Etat2);
    const float wskaznik = licznik != 0 && mianownik != 0 ? static_cast<float>(licznik / mianownik)
                                                          : static_cast<float>(core::Val(txt(Pay::WskaznikEtatu).Text));
    if (r.f(Pay::WskaznikEtatu) != wskaznik || r.isEmpty(Pay::WskaznikEtatu)) r.set(Pay::WskaznikEtatu, wskaznik);
    // 3. A record without a date of hire gets the seniority allowance from the new date, unless
    // the record itself says the allowance is fixed (the options reach the record in step 4).
    const std::string staly = r.s(Pay::DodatekStazowy);
    if (bezDaty && (staly.empty() || staly == "0")) {
        Staz st = obliczStaz(r.s(Pay::DataZatrudnienia), s.DataListy, grupa(), s.SkrotPlatnika);
        float stazowy = core::Round2(static_cast<double>(r.f(Pay::Zasadnicza)) * st.stazProcent / 100);
        r.set(Pay::Stazowy, stazowy);
        txt(Pay::Stazowy).Text = core::numText(stazowy);
    }
    // 4. The option pairs and the check boxes.
    ustawTekst(r, Pay::DodatekStazowy, flaga(Option2));
    ustawTekst(r, Pay::RozliczenieWspolne, flaga(Option4));
    ustawTekst(r, Pay::SamotnaMatka, flaga(Option6));
    ustawTekst(r, Pay::RorGodziny, flaga(Option8));
    ustawTekst(r, Pay::RorDodatki, flaga(Option10));
    ustawTekst(r, Pay::Dojazd, flaga(Optak));
    const std::pair<core::Control*, int> przelaczniki[] = {{&Check1, Pay::Rentowa},
                                                           {&Check2, Pay::Emerytalna},
                                                           {&Check3, Pay::Chorobowa},
                                                           {&Check4, Pay::Zdrowotna},
                                                           {&Check5, Pay::Wypadkowa},
                                                           {&Check6, Pay::EFPomostowy}};
    for (auto [c, f] : przelaczniki) {
        const long v = c->Value ? 1 : 0;
        if (r.isEmpty(f) || r.i(f) != v) r.set(f, v);
    }
    if (!cmbRodzajUmowy.Text.empty()) ustawTekst(r, Pay::RodzajUmowy, cmbRodzajUmowy.Text);
    // The group of the list comes from the personnel record.
    if (!s.Osoba.Grupa.empty() && r.s(Pay::Grupa) != s.Osoba.Grupa) r.set(Pay::Grupa, s.Osoba.Grupa);
}

void PlacaScreen::cmdWpiszDane_Click() {
    if (ui.msgBox("Zakładam zbiór płacowy dla wybranej osoby ?", Buttons::OKCancel, Icon::Question,
                  "Brak danych placowych dla tego nazwiska!") != Answer::OK)
        return;
    std::string obywatelstwo = s.Osoba.Obywatelstwo.empty() ? std::string("POLSKIE") : s.Osoba.Obywatelstwo;
    normalizuj();
    try {
        const fs::path plik = Pay::path(s);
        std::vector<core::Record> recs = core::fileExists(plik) ? Pay::readAll(plik) : std::vector<core::Record>{};
        bool dopasowany = false;
        for (core::Record& r : recs) {
            if (kluczOsoby(r) != s.KluczOsoby) continue;
            przepisz(r);
            rekordPlacy = r;
            dopasowany = true;
        }
        Pay::renumber(recs, Pay::kKoniec);
        if (!dopasowany) {
            core::Record r = nowyRekordPlacowy(s.stawki.Stawka1, static_cast<int>(recs.size()) + 1);
            r.set(Pay::Nazwisko, s.NazwiskoOsoby);
            r.set(Pay::Imie, s.ImieOsoby);
            r.set(Pay::Pesel, s.KluczOsoby);
            r.set(Pay::KodUbezpieczenia, s.KodUbezpieczeniaOsoby);
            r.set(Pay::Dokument, s.Osoba.Paszport);
            r.set(Pay::Obywatelstwo, obywatelstwo);
            if (!s.Osoba.Grupa.empty()) r.set(Pay::Grupa, s.Osoba.Grupa);
            rekordPlacy = r;
            recs.push_back(std::move(r));
        }
        core::writeAll(plik, recs, "Tymcz.dat");
        ui.msgBox(" Zapisano ", Buttons::OK, Icon::Information);
        znaleziony = true;
        cmdWpiszDane.Enabled = false;
        lbBrakDanych.Visible = false;
        if (!dopasowany && s.NowyZapis == "N") Load();
    } catch (const core::Error& e) {
        showError(e, core::ReportWords::Linii);
    }
    odswiezProgi();
}

void PlacaScreen::cmdZapiszZmiany_Click() {
    normalizuj();
    try {
        Pay::replace(
            Pay::path(s), s.KluczOsoby,
            [&](core::Record& r) {
                przepisz(r);
                rekordPlacy = r;
            },
            "TYMCZ.dta", "<koniec>");
        ui.msgBox("Zmiany wykonane !", Buttons::OK, Icon::Information, "zmiany)");
    } catch (const core::Error& e) {
        showError(e, core::ReportWords::NrLini);
    }
    odswiezProgi();
}

}  // namespace payinputs
