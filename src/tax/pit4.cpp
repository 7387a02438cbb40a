#include "tax/pit4.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "tax/skladniki.h"

using core::Buttons;
using core::Icon;
namespace fs = std::filesystem;
namespace Karta = paycalc::Karta;
namespace Dod = paycalc::Dodatkowy;

namespace tax {

namespace {

void dodajDodatkowy(SumyPit4& t, const core::Record& r) {
    t.podstawaZdrowotna += r.f(Dod::PodstawaZdrowotna);
    t.zdrowotnaPozostala += r.f(Dod::SkladkaZdrowotna);
    t.zdrowotna += static_cast<double>(r.f(Dod::SkladkaIndywidualna)) + r.f(Dod::SkladkaZdrowotna);
    t.podatek += r.f(Dod::PodatekNetto);
}

void dodajSkladnik(SumyPit4& t, const Skladnik& x) {
    t.podstawaZdrowotna += x.B;
    t.zdrowotnaPozostala += x.H2;
    t.zdrowotna += x.H1 + x.H2;
    t.podatek += x.podatek;
}

// The ledger of a list: false when a record of code "05..." ended the list's work.
bool dodajKarte(SumyPit4& t, const fs::path& plik) {
    for (const auto& k : czytajJesliJest(plik, &Karta::readAll)) {
        if (core::Left(k.s(Karta::KodUbezpieczenia), 2) == "05") return false;
        if (k.i(Karta::NaLiscie) == 2) continue;
        t.osoby += 1;
        t.podstawaZdrowotna += k.f(Karta::PodstawaZdrowotna);
        t.zdrowotnaPozostala += k.f(Karta::SkladkaZdrowotnaPozostala);
        t.zdrowotna += static_cast<double>(k.f(Karta::SkladkaZdrowotnaOdliczana)) + k.f(Karta::SkladkaZdrowotnaPozostala);
        t.podatek += k.f(Karta::PodatekNetto);
    }
    return true;
}

}  // namespace

SumyPit4 wyliczPit4(const core::Session& s, const std::string& zestaw) {
    SumyPit4 t;
    const StawkiScalania st = stawkiScalania(s.stawki);
    const double stawka1 = s.stawki.Stawka1 / 100;
    const std::string RRmm = s.RRmm(), RR = core::Right(s.DataListy, 2);
    const KluczOsoby osoba = kluczSesji(s);
    auto plik = [&](Dod::Rodzaj r, const std::string& lista, const std::string& stamp) {
        return czytajJesliJest(Dod::path(s, r, lista, stamp), &Dod::readAll);
    };
    for (const core::Record& wiersz : reference::Instal::listyZestawu(reference::Instal::read(s), core::UCase(zestaw))) {
        // The file stem: the list's short name cut or padded to 8, right-trimmed.
        const std::string lista = core::RTrim(core::Left(core::PadRight(wiersz.s(reference::Instal::Skrotlisty), 8), 8));
        if (!dodajKarte(t, Karta::path(s, lista, RRmm))) continue;
        for (const auto& r : plik(Dod::Rodzaj::God, lista, RRmm)) dodajDodatkowy(t, r);
        for (const auto& r : plik(Dod::Rodzaj::Dod, lista, RRmm)) dodajSkladnik(t, skladnikiDodatkow(st, r, stawka1));
        // Of the thirteenth pay only the session's person is taken.
        for (const auto& r : plik(Dod::Rodzaj::Trz, lista, RR)) {
            KluczOsoby k = kluczDodatkowego(r);
            if (k.nazwisko == osoba.nazwisko && k.identyfikator == osoba.identyfikator)
                dodajSkladnik(t, skladnik(st, r.f(Dod::KwotaBrutto), "", stawka1));
        }
        for (const auto& r : plik(Dod::Rodzaj::SwU, lista, RRmm)) dodajDodatkowy(t, r);
        for (const auto& r : plik(Dod::Rodzaj::Jub, lista, RRmm)) dodajDodatkowy(t, r);
    }
    return t;
}

namespace Pit4Arkusz {

static const core::FieldDef kFields[] = {
    {"Ilosc1", core::FieldType::Float},        {"Ilosc2", core::FieldType::Float},
    {"Ilosc3", core::FieldType::Float},        {"Ilosc4", core::FieldType::Float},
    {"Ilosc5", core::FieldType::Float},        {"Ilosc6", core::FieldType::Float},
    {"Ilosc7", core::FieldType::Float},        {"Ilosc8", core::FieldType::Float},
    {"RazemIlosc", core::FieldType::Float},    {"SumaWyplat1", core::FieldType::Float},
    {"SumaWyplat2", core::FieldType::Float},   {"SumaWyplat3", core::FieldType::Float},
    {"SumaWyplat4", core::FieldType::Float},   {"SumaWyplat5", core::FieldType::Float},
    {"SumaWyplat6", core::FieldType::Float},   {"SumaWyplat7", core::FieldType::Float},
    {"SumaWyplat8", core::FieldType::Float},   {"RazemSumaWyplat", core::FieldType::Float},
    {"Pobrane1", core::FieldType::Float},      {"Pobrane2", core::FieldType::Float},
    {"Pobrane3", core::FieldType::Float},      {"Pobrane4", core::FieldType::Float},
    {"Pobrane5", core::FieldType::Float},      {"Pobrane6", core::FieldType::Float},
    {"Pobrane7", core::FieldType::Float},      {"Pobrane8", core::FieldType::Float},
    {"RazemPobrana", core::FieldType::Float},  {"Odliczone1", core::FieldType::Float},
    {"Odliczone2", core::FieldType::Float},    {"Odliczone3", core::FieldType::Float},
    {"Odliczone4", core::FieldType::Float},    {"Odliczone5", core::FieldType::Float},
    {"Odliczone6", core::FieldType::Float},    {"Odliczone7", core::FieldType::Float},
    {"Odliczone8", core::FieldType::Float},    {"RazemOdliczona", core::FieldType::Float},
    {"Zaliczka1", core::FieldType::Float},     {"Zaliczka2", core::FieldType::Float},
    {"Zaliczka3", core::FieldType::Float},     {"Zaliczka4", core::FieldType::Float},
    {"Zaliczka5", core::FieldType::Float},     {"Zaliczka6", core::FieldType::Float},
    {"Zaliczka7", core::FieldType::Float},     {"Zaliczka8", core::FieldType::Float},
    {"RazemZaliczka", core::FieldType::Float}, {"KwotaZaliczek", core::FieldType::Float},
    {"KwotaDoPobrania", core::FieldType::Float}, {"KwotaDodatkowo", core::FieldType::Float},
    {"ZaliczenieNadplaty", core::FieldType::Float}, {"ZwrotGotowki", core::FieldType::Float},
    {"KwotaNaPfron", core::FieldType::Float},  {"KwotaZaliczekK13", core::FieldType::Float},
    {"KwotaPobranegoPod", core::FieldType::Float}, {"KwotaPotracenia", core::FieldType::Float},
    {"KwotaDoWplaty", core::FieldType::Float},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"Pit4\\Pit4<RRmm>.dta", kFields, 1};

const core::Schema& schema() { return kSchema; }

fs::path path(const core::Session& s) {
    core::ensureFolder(s.payerFolder(), {"Pit4"});
    return s.payerPath({"Pit4", "Pit4" + s.RRmm() + ".dta"});
}

core::Record read(const fs::path& file) {
    core::SeqReader in(file);
    return core::readRecord(in, kSchema);
}

void write(const fs::path& file, const core::Record& r) { core::writeAll(file, {r}, "tym.dta"); }

}  // namespace Pit4Arkusz

using namespace Pit4Arkusz;

namespace {

const core::FieldBox kPola[] = {
    {Ilosc1 + 0, "TxtIlosc1", "1", "fraArkusz", 1, 5, 0},
    {Ilosc1 + 1, "txtIlosc2", "2.Dniówki obrachunko.", "fraArkusz", 2, 5, 0},
    {Ilosc1 + 2, "txtIlosc3", "3.Emerytury i renty kr.", "fraArkusz", 3, 5, 0},
    {Ilosc1 + 3, "txtIlosc4", "4.Emerytury i renty za.", "fraArkusz", 4, 5, 0},
    {Ilosc1 + 4, "txtIlosc5", "5.Zasiłki  z ubezp.społ.", "fraArkusz", 5, 5, 0},
    {Ilosc1 + 5, "txtIlosc6", "6,Należnosci dla skaz.", "fraArkusz", 6, 5, 0},
    {Ilosc1 + 6, "txtIlosc7", "7.Świadczenia z FP", "fraArkusz", 7, 5, 0},
    {Ilosc1 + 7, "txtIlosc8", "8.Inne przychody", "fraArkusz", 8, 5, 0},
    {Ilosc1 + 8, "TxtRazemIloscPod", "Razem od 1 do 8", "fraArkusz", 9, 5, 0},
    {SumaWyplat1 + 0, "txtSumaWyplat1", "", "fraArkusz", 1, 11, 1},
    {SumaWyplat1 + 1, "txtSumawyplat2", "", "fraArkusz", 2, 11, 1},
    {SumaWyplat1 + 2, "txtSumawyplat3", "", "fraArkusz", 3, 11, 1},
    {SumaWyplat1 + 3, "txtSumawyplat4", "", "fraArkusz", 4, 11, 1},
    {SumaWyplat1 + 4, "txtSumawyplat5", "", "fraArkusz", 5, 11, 1},
    {SumaWyplat1 + 5, "txtSumawyplat6", "", "fraArkusz", 6, 11, 1},
    {SumaWyplat1 + 6, "txtSumaWyplat7", "", "fraArkusz", 7, 11, 1},
    {SumaWyplat1 + 7, "txtSumawyplat8", "", "fraArkusz", 8, 11, 1},
    {SumaWyplat1 + 8, "txtRazemSumaWyplat", "", "fraArkusz", 9, 11, 1},
    {Pobrane1 + 0, "txtPobrane1", "", "fraArkusz", 1, 11, 2},
    {Pobrane1 + 1, "txtPobrane2", "", "fraArkusz", 2, 11, 2},
    {Pobrane1 + 2, "txtPobrane3", "", "fraArkusz", 3, 11, 2},
    {Pobrane1 + 3, "txtPobrane4", "", "fraArkusz", 4, 11, 2},
    {Pobrane1 + 4, "txtPobrane5", "", "fraArkusz", 5, 11, 2},
    {Pobrane1 + 5, "txtPobrane6", "", "fraArkusz", 6, 11, 2},
    {Pobrane1 + 6, "txtPobrane7", "", "fraArkusz", 7, 11, 2},
    {Pobrane1 + 7, "txtPobrane8", "", "fraArkusz", 8, 11, 2},
    {Pobrane1 + 8, "txtRazemPobrana", "", "fraArkusz", 9, 11, 2},
    {Odliczone1 + 0, "txtOdliczone1", "", "fraArkusz", 1, 11, 3},
    {Odliczone1 + 1, "txtOdliczone2", "", "fraArkusz", 2, 11, 3},
    {Odliczone1 + 2, "txtOdliczone3", "", "fraArkusz", 3, 11, 3},
    {Odliczone1 + 3, "txtOdliczone4", "", "fraArkusz", 4, 11, 3},
    {Odliczone1 + 4, "txtOdliczone5", "", "fraArkusz", 5, 11, 3},
    {Odliczone1 + 5, "txtOdliczone6", "", "fraArkusz", 6, 11, 3},
    {Odliczone1 + 6, "txtOdliczone7", "", "fraArkusz", 7, 11, 3},
    {Odliczone1 + 7, "txtOdliczone8", "", "fraArkusz", 8, 11, 3},
    {Odliczone1 + 8, "txtRazemOdliczona", "", "fraArkusz", 9, 11, 3},
    {Zaliczka1 + 0, "txtZaliczka1", "", "fraArkusz", 1, 11, 4},
    {Zaliczka1 + 1, "txtZaliczka2", "", "fraArkusz", 2, 11, 4},
    {Zaliczka1 + 2, "txtZaliczka3", "", "fraArkusz", 3, 11, 4},
    {Zaliczka1 + 3, "txtZaliczka4", "", "fraArkusz", 4, 11, 4},
    {Zaliczka1 + 4, "txtZaliczka5", "", "fraArkusz", 5, 11, 4},
    {Zaliczka1 + 5, "txtZaliczka6", "", "fraArkusz", 6, 11, 4},
    {Zaliczka1 + 6, "txtZaliczka7", "", "fraArkusz", 7, 11, 4},
    {Zaliczka1 + 7, "txtZaliczka8", "", "fraArkusz", 8, 11, 4},
    {Zaliczka1 + 8, "txtRazemZaliczka", "", "fraArkusz", 9, 11, 4},
    {KwotaZaliczek, "TxtKwotaZaliczek", "Kwota zaliczek z art32,      44. ", "fraPozycje", 0, 11, 0},
    {KwotaDoPobrania, "txtKwotadoPobrania", "Kwota do pobrania z32     45.", "fraPozycje", 1, 11, 0},
    {KwotaDodatkowo, "txtKwotaDodatkowo", "Kwota dodatkowo pobr.   46.", "fraPozycje", 2, 11, 0},
    {ZaliczenieNadplaty, "txtZaliczenieNadplaty", "Zaliczenie nadpłaty          47. ", "fraPozycje", 3, 11, 0},
    {ZwrotGotowki, "txtZwrotGotowki", "Zwrot nadpłaty w gotówce 48.", "fraPozycje", 4, 11, 0},
    {KwotaNaPfron, "txtKwotaNaPfron", "Kwota pobrana na PFRON 49.", "fraPozycje", 0, 11, 1},
    {KwotaZaliczekK13, "txtKwotaZaliczeK13", "Kwota zaliczek z art.13          50.", "fraPozycje", 1, 11, 1},
    {KwotaPobranegoPod, "txtKwotaPobranegoPod", "Kwota pobranego  pod.       51.", "fraPozycje", 2, 11, 1},
    {KwotaPotracenia, "txtKwotaPotracenia", "Kwota potracenia zart.28     52.", "fraPozycje", 3, 11, 1},
    {KwotaDoWplaty, "txtKwotaDoWplaty", "Kwota do wpłaty do US       53.", "fraPozycje", 4, 11, 1},
};

}  // namespace

Pit4Screen::Pit4Screen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPit4", "Pit-4"), s(session), boxes(*this, kPola) {
    lbZestaw.at(0, 0, 3);
    txtDataPIT4.at(0, 3).label("Data wypełnienia").width(10).tip("Data w formacie dd/mm/rrrr");
    fraArkusz.at(1, 0, 6);
    fraPozycje.at(2, 0, 6);
    lbOsoby.in("fraArkusz").at(0, 0);
    lbWyplaty.in("fraArkusz").at(0, 1);
    lbPobrane.in("fraArkusz").at(0, 2);
    lbOdliczone.in("fraArkusz").at(0, 3);
    lbZaliczka.in("fraArkusz").at(0, 4);
    txtWyjasnienia.at(3, 0, 6).label("Wyjaśnienie różnicy dotyczącej wpłaty D.").width(70);
    CmdWyliczPIT4.at(4, 0);
    CmdZeZbioru.at(4, 1);
    cmdWylicz.at(4, 2);
    cmdZapiszPit4.at(4, 3);
    CmdDrukujPIT4.at(4, 4);
    CmdKoniecPit4.at(4, 5);
    CmdWyliczPIT4.tip("Sumuje miesiąc z kartotek i plików dodatkowych list zestawu");
    CmdZeZbioru.tip("Wczytuje arkusz zapisany dla tego miesiąca");
    cmdWylicz.tip("Liczy sumy wierszy i kwotę do wpłaty");
    CmdWyliczPIT4.Click = [this] { WyliczPIT4(); };
    CmdZeZbioru.Click = [this] { ZeZbioru(); };
    cmdWylicz.Click = [this] { Wylicz(); };
    cmdZapiszPit4.Click = [this] { ZapiszPit4(); };
    CmdDrukujPIT4.Click = [this] { DrukujPIT4(); };
    CmdKoniecPit4.Click = [this] { Unload(); };
}

void Pit4Screen::Load() {
    if (Zestaw.empty()) Zestaw = s.Zestaw;
    lbZestaw.Caption = "Miesiąc " + s.miesiac() + "-" + s.rok() + ", zestaw list: " + Zestaw;
    if (txtDataPIT4.Text.empty()) txtDataPIT4.Text = core::Replace(s.DataListy, "-", "/");
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (boxes.box(i).Text.empty()) boxes.box(i).Text = boxes.def(i).field <= RazemIlosc ? "0" : "0.00";
}

double Pit4Screen::liczbaPola(int pole) { return liczba(boxes[pole].Text); }

void Pit4Screen::ustaw(int pole, double wartosc) { boxes[pole].Text = kwota(wartosc); }

void Pit4Screen::WyliczPIT4() {
    if (!s.Dane.valid()) reference::loadRates(s);
    SumyPit4 t = wyliczPit4(s, Zestaw);
    boxes[Ilosc1].Text = std::to_string(t.osoby);
    ustaw(SumaWyplat1, t.podstawaZdrowotna);
    // The tax collected before the deduction is the advance and the deducted health part.
    const double odliczona = t.zdrowotna - t.zdrowotnaPozostala;
    ustaw(Pobrane1, t.podatek + odliczona);
    ustaw(Odliczone1, odliczona);
    ustaw(Zaliczka1, t.podatek);
}

void Pit4Screen::Wylicz() {
    double osoby = 0, wyplaty = 0, pobrane = 0, odliczone = 0, zaliczki = 0;
    for (int i = 0; i < 8; ++i) {
        osoby += v(Ilosc1 + i);
        wyplaty += v(SumaWyplat1 + i);
        pobrane += v(Pobrane1 + i);
        odliczone += v(Odliczone1 + i);
        zaliczki += v(Zaliczka1 + i);
    }
    boxes[RazemIlosc].Text = core::numText(osoby);
    ustaw(RazemSumaWyplat, wyplaty);
    ustaw(RazemPobrana, pobrane);
    ustaw(RazemOdliczona, odliczone);
    const double razem = zaliczki + v(KwotaZaliczekK13);
    ustaw(RazemZaliczka, razem);
    ustaw(KwotaPobranegoPod, razem);
    double doWplaty = razem - v(KwotaPotracenia);
    ustaw(KwotaDoWplaty, doWplaty < 0 ? 0 : doWplaty);
}

core::Record Pit4Screen::arkusz() {
    core::Record r(kSchema);
    for (std::size_t i = 0; i < boxes.size(); ++i) r.set(boxes.def(i).field, liczba(boxes.box(i).Text));
    return r;
}

void Pit4Screen::ZapiszPit4() {
    write(path(s), arkusz());
    core::MsgBox(ui, "Zapisane ! ");
}

void Pit4Screen::ZeZbioru() {
    const fs::path plik = path(s);
    if (!core::fileExists(plik)) {
        core::MsgBox(ui, "Brak zapisanego arkusza PIT-4 za ten miesiąc: " + plik.filename().string(), "Brak zbioru",
                     Icon::Exclamation);
        return;
    }
    core::Record r = read(plik);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        int pole = boxes.def(i).field;
        boxes.box(i).Text = pole <= RazemIlosc ? r.s(pole) : kwota(r.f(pole));
    }
}

Wartosci Pit4Screen::wartosci() {
    Wartosci w;
    const core::Record& f = s.Firma;
    if (f.valid()) {
        wartosciPlatnika(w, f);
        w["UrzadSkarbowy"] = f.s(reference::Firma::UrzadSkarbowyM);
        w["Regon"] = f.s(reference::Firma::RegonM);
    }
    w["Miesiac"] = s.miesiac();
    w["Rok"] = s.rok();
    w["Data"] = txtDataPIT4.Text;
    core::Record r = arkusz();
    for (int pole = 1; pole <= Count; ++pole)
        w[std::string(kSchema.fields[static_cast<std::size_t>(pole - 1)].name)] =
            pole <= RazemIlosc ? r.s(pole) : kwota(r.f(pole));
    return w;
}

void Pit4Screen::DrukujPIT4() {
    if (ui.msgBox("Upewnij się czy drukarka jest gotowa!", Buttons::YesNo, Icon::Question, "Sprawdź Drukarkę") ==
        core::Answer::No)
        return;
    try {
        drukujFormularz();
    } catch (const core::Error& e) {
        if (!printing::DrukListy::bladDrukarki(ui, e)) throw;
    }
}

void Pit4Screen::drukujFormularz() {
    core::Printer& p = ui.printer();
    if (int st = p.status()) throw core::Error(st, "drukarka");
    p.setFont("Courier New", 10, false);
    // A laser printer ("L") takes the sheet from its edge; the others feed it one line lower,
    // and an "A" printer one line more.
    if (s.Drukarka != "L") p.emptyLine();
    if (s.Drukarka == "A") p.emptyLine();
    drukujStrone(p, formularzPit4(), 1, wartosci());
    p.endDoc();
}

}  // namespace tax
