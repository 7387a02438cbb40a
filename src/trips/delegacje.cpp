#include "trips/delegacje.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using personnel::Osoba::Imie;
using personnel::Osoba::Nazwisko;

namespace trips {

namespace {

const char* const kZastanowSie = "Zastanów się co robisz? ";
const std::array<const char*, Pozycja::Count> kNaglowkiPozycji{
    "Poz.", "MiejscowośćW", "DataW   ", "GodzW  ", "MiejscowoścP", "DataP   ", "GodzP   ", "RazemGodz",
    "Kraj", "Waluta",       "Stawka",   "Kwota",   "KursWal",      "WartoscPLN", "IloscDiet"};

std::string kwota(double v) { return core::Format(v, "##,##0.00"); }
std::string kwotaPola(double v) { return core::KropkaZamiastPrzecinka(core::Format(v, "0.00")); }

// A typed time shown as the program shows it: "8:5" or "08:50" become "08.50".
std::string godzina(const std::string& t) {
    std::string g = core::Replace(core::Replace(core::Trim(t), ":", "."), ",", ".");
    if (g.empty()) return g;
    return core::Format(core::Val(g), "##00.00");
}

void naglowki(core::Control& grid, const std::vector<std::string>& teksty) {
    grid.setGrid(1, static_cast<int>(teksty.size()));
    for (std::size_t c = 0; c < teksty.size(); ++c) grid.TextMatrix(0, static_cast<int>(c)) = teksty[c];
}

void dodajWiersz(core::Control& grid, const std::vector<std::string>& komorki) {
    grid.Cells.push_back(komorki);
    grid.Cells.back().resize(static_cast<std::size_t>(grid.Cols));
    ++grid.Rows;
}

}  // namespace

std::vector<Delegacja> wczytajMiesiac(const core::Session& s, const std::string& RRmm) {
    std::vector<Delegacja> d;
    for (const fs::path& p : delegacjeMiesiaca(folder(s), RRmm)) d.push_back(czytaj(p));
    return d;
}

DelegacjeScreen::DelegacjeScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmDelegacje", "Delegacje"), s(session) {
    fraOsoby.at(0, 0).rows(2);
    MSFlexGrid1.in("fraOsoby").at(0, 0).width(60);
    fraMiesiac.at(0, 1);
    MonthView2.in("fraMiesiac").at(0, 0, 2);
    lbMiesiac.in("fraMiesiac").at(1, 0);
    CmdOdswierz.in("fraMiesiac").at(1, 1);
    MSFlexGrid2.in("fraMiesiac").at(2, 0, 2).width(56);

    fraDelegacja.at(1, 1);
    txtNrDel.in("fraDelegacja").at(0, 0).label("Nr delegacji:").width(6);
    txtNrDel.Locked = true;
    txtDataDel.in("fraDelegacja").at(0, 1).label("Data:").width(11).tip("Data delegacji w postaci dd.mm.rrrr");
    cmbSrodekTransportu.in("fraDelegacja").at(1, 0).label("Środek transportu:").width(18);
    lbOsoba.in("fraDelegacja").at(1, 1).label("Pracownik:");

    fraPozycja.at(2, 0, 2);
    txtMiejscowoscW.in("fraPozycja").at(0, 0).label("Miejscowość wyjazdu:").width(16);
    txtDataW.in("fraPozycja").at(0, 1).label("Data:").width(11).tip("dd.mm.rrrr");
    txtGodzinaW.in("fraPozycja").at(0, 2).label("Godzina:").width(6).tip("gg:mm");
    txtMiejscowoscP.in("fraPozycja").at(1, 0).label("Miejscowość przyjazdu:").width(16);
    txtDataP.in("fraPozycja").at(1, 1).label("Data:").width(11).tip("dd.mm.rrrr");
    txtGodzinaP.in("fraPozycja").at(1, 2).label("Godzina:").width(6).tip("gg:mm");
    cmbKraj.in("fraPozycja").at(2, 0).label("Kraj:").width(16);
    cmbWaluta.in("fraPozycja").at(2, 1).label("Waluta:").width(6);
    cmbStawka.in("fraPozycja").at(2, 2).label("Stawka:").width(8);
    cmbStawka.Editable = true;
    txtKursWaluty.in("fraPozycja").at(3, 0).label("Kurs waluty:").width(8);
    txtWskaznikDiety.in("fraPozycja").at(3, 1).label("Ilość diet").width(6);
    lbRazemGodzin.in("fraPozycja").at(3, 2).label("Razem godzin:");
    lbStawka.in("fraPozycja").at(4, 0).label("Stawka:");
    lbWartoscWaluty.in("fraPozycja").at(4, 1).label("Wartość w walucie:");
    lbKurs.in("fraPozycja").at(4, 2).label("Kurs:");
    lbWartoscPLN.in("fraPozycja").at(5, 0).label("Wartość PLN:");
    cmdPrzelicz.in("fraPozycja").at(5, 1);
    cmdDodajPozycje.in("fraPozycja").at(6, 0);
    cmdZapiszPozycje.in("fraPozycja").at(6, 1);
    CmdUsunPozycje.in("fraPozycja").at(6, 2);
    MSFlexGrid3.at(3, 0, 2).width(120);

    fraKoszty.at(4, 0, 2);
    txtRyczalt.in("fraKoszty").at(0, 0).label("Ryczałt:").width(10);
    txtDiety.in("fraKoszty").at(0, 1).label("Diety:").width(10);
    txtDiety.Locked = true;
    cmbNocleg.in("fraKoszty").at(0, 2).label("Noclegi:").width(10);
    cmbNocleg.Editable = true;
    txtInneW.in("fraKoszty").at(1, 0).label("Inne wydatki:").width(10);
    txtZaliczka.in("fraKoszty").at(1, 1).label("Zaliczka:").width(10);
    lbRazemNaleznosc.in("fraKoszty").at(1, 2).label("Razem należność:");
    txtDoWyplaty.in("fraKoszty").at(2, 1).labelledBy(LbOgolem).width(10);
    txtDoWyplaty.Locked = true;

    cmdZapiszDelegacje.at(5, 0);
    CmdEdytujDelegacje.at(5, 1);
    CmdUsuNDelegacje.at(6, 0);
    CmdDrukujRozliczenie.at(6, 1);
    cmdDrukujZestawienie.at(7, 0);
    cmdKoniec.at(7, 1);

    MSFlexGrid1.Click = [this] { MSFlexGrid1_Click(); };
    MonthView2.Click = [this] { MonthView2_Click(); };
    CmdOdswierz.Click = [this] { CmdOdswierz_Click(); };
    cmbKraj.Click = [this] { cmbKraj_Click(); };
    cmbWaluta.Click = [this] { cmbWaluta_Click(); };
    cmbStawka.Click = [this] { cmbStawka.Text = cmbStawka.selectedText(); };
    cmdPrzelicz.Click = [this] { cmdPrzelicz_Click(); };
    cmdDodajPozycje.Click = [this] { cmdDodajPozycje_Click(); };
    cmdZapiszPozycje.Click = [this] { cmdZapiszPozycje_Click(); };
    MSFlexGrid3.Click = [this] { MSFlexGrid3_Click(); };
    CmdUsunPozycje.Click = [this] { CmdUsunPozycje_Click(); };
    for (core::Control* k : {&txtRyczalt, &txtInneW, &txtZaliczka}) k->LostFocus = [this] { przeliczRazem(); };
    cmbNocleg.Click = [this] { przeliczRazem(); };
    cmbNocleg.LostFocus = [this] { przeliczRazem(); };
    cmdZapiszDelegacje.Click = [this] { cmdZapiszDelegacje_Click(); };
    CmdEdytujDelegacje.Click = [this] { CmdEdytujDelegacje_Click(); };
    MSFlexGrid2.DblClick = [this] { CmdEdytujDelegacje_Click(); };
    CmdUsuNDelegacje.Click = [this] { CmdUsuNDelegacje_Click(); };
    CmdDrukujRozliczenie.Click = [this] { CmdDrukujRozliczenie_Click(); };
    cmdDrukujZestawienie.Click = [this] { cmdDrukujZestawienie_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void DelegacjeScreen::Load() {
    if (!fs::is_directory(folder(s))) {
        ui.msgBox("Brak zbioru lub źle wybrany kalalog! Wybierz prawidłowy katalog danych płatnika.", Buttons::OK,
                  Icon::Critical, "Delegacje");
        Unload();
        return;
    }
    cmbSrodekTransportu.List = {"Samochód", "Samochód ciężarowy", "Autobus", "Pociąg"};
    guarded([&] { diety = czytajDiety(folder(s)); });
    cmbKraj.List = {"Polska"};
    for (const core::Record& d : diety)
        if (std::find(cmbKraj.List.begin(), cmbKraj.List.end(), d.s(Dieta::Kraj)) == cmbKraj.List.end())
            cmbKraj.AddItem(d.s(Dieta::Kraj));
    txtKursWaluty.Text = "1,0000";

    naglowki(MSFlexGrid1, {"Nr  ", "Nazwisko pracownika", "Imie               ", "Pesel    "});
    MSFlexGrid1.ColWidth = {4, 22, 16, 11};
    plikiListOsob.clear();
    guarded([&] {
        int nr = 0;
        for (const core::Record& linia : reference::Instal::read(s)) {
            std::string l = reference::Instal::stem(linia);
            if (l.empty() || !core::fileExists(personnel::Osoba::pathOf(s, l))) continue;
            for (const core::Record& o : personnel::Osoba::readAll(personnel::Osoba::pathOf(s, l))) {
                dodajWiersz(MSFlexGrid1, {std::to_string(++nr), o.s(Nazwisko), o.s(Imie), personnel::kluczOsoby(o)});
                plikiListOsob.push_back(l);
            }
        }
    });
    std::vector<std::string> h(kNaglowkiPozycji.begin(), kNaglowkiPozycji.end());
    naglowki(MSFlexGrid3, h);
    MSFlexGrid3.ColWidth = {4, 14, 10, 6, 14, 10, 6, 9, 10, 6, 7, 9, 8, 10, 8};
    naglowki(MSFlexGrid2, {"NrDel", "Nazwisko", "DataW", "MiejscowośćP", "Kwota D"});
    MSFlexGrid2.ColWidth = {6, 18, 10, 14, 10};
    core::Date d;
    if (!core::parseDate(s.DataListy, d)) d = core::today();
    MonthView2.Text = core::FormatDate(d, "dd-mm-yyyy");
    txtDataDel.Text = core::FormatDate(core::today(), "dd.mm.yyyy");
    MonthView2_Click();
    przeliczRazem();
}

void DelegacjeScreen::MSFlexGrid1_Click() {
    int r = MSFlexGrid1.Row;
    if (r < 1 || r >= MSFlexGrid1.Rows) return;
    nazwisko = MSFlexGrid1.TextMatrix(r, 1);
    imie = MSFlexGrid1.TextMatrix(r, 2);
    pesel = MSFlexGrid1.TextMatrix(r, 3);
    lista = plikiListOsob[static_cast<std::size_t>(r - 1)];
    lbOsoba.Caption = nazwisko + " " + imie;
}

void DelegacjeScreen::MonthView2_Click() {
    core::Date d;
    if (!core::parseDate(MonthView2.Text, d)) return;
    RRmm = core::FormatDate(d, "yymm");
    miesiacTekst = core::FormatDate(d, "mmmm,yyyy");
    lbMiesiac.Caption = miesiacTekst;
    CmdOdswierz_Click();
}

void DelegacjeScreen::CmdOdswierz_Click() {
    MSFlexGrid2.setGrid(1, MSFlexGrid2.Cols);
    plikiMiesiaca.clear();
    guarded([&] {
        for (const fs::path& p : delegacjeMiesiaca(folder(s), RRmm)) {
            Delegacja d = czytaj(p);
            const core::Record& h = d.naglowek;
            std::string dataW, miejscowoscP;
            if (!d.pozycje.empty()) {
                dataW = d.pozycje.front().s(Pozycja::DataW);
                miejscowoscP = d.pozycje.front().s(Pozycja::MiejscowoscP);
            }
            dodajWiersz(MSFlexGrid2, {h.s(Naglowek::NrDel), h.s(Naglowek::Nazwisko), dataW, miejscowoscP,
                                      kwota(h.f(Naglowek::RazemNaleznosc))});
            plikiMiesiaca.push_back(p.string());
        }
    });
}

void DelegacjeScreen::cmbKraj_Click() {
    std::string kraj = cmbKraj.selectedText().empty() ? cmbKraj.Text : cmbKraj.selectedText();
    cmbKraj.Text = kraj;
    cmbWaluta.Clear();
    cmbStawka.Clear();
    cmbNocleg.Clear();
    for (const core::Record& d : diety)
        if (d.s(Dieta::Kraj) == kraj) {
            cmbWaluta.AddItem(d.s(Dieta::Waluta));
            cmbStawka.AddItem(d.item(Dieta::Stawka).text);
            cmbNocleg.AddItem("0,00");
        }
    for (core::Control* c : {&cmbWaluta, &cmbStawka, &cmbNocleg}) {
        c->ListIndex = c->List.empty() ? -1 : 0;
        c->Text = c->List.empty() ? std::string() : c->List.front();
    }
    cmbWaluta_Click();
}

void DelegacjeScreen::cmbWaluta_Click() {
    cmbWaluta.Text = cmbWaluta.selectedText();
    if (cmbWaluta.ListIndex >= 0 && cmbWaluta.ListIndex < static_cast<int>(cmbStawka.List.size())) {
        cmbStawka.ListIndex = cmbWaluta.ListIndex;
        cmbStawka.Text = cmbStawka.selectedText();
    }
    if (cmbWaluta.Text == "PLN") txtKursWaluty.Text = "1,0000";
}

Wyjazd DelegacjeScreen::wyjazd() const {
    return {txtMiejscowoscW.Text, txtDataW.Text, txtGodzinaW.Text, txtMiejscowoscP.Text, txtDataP.Text, txtGodzinaP.Text};
}

bool DelegacjeScreen::policzPozycje() {
    if (auto k = sprawdz(wyjazd())) {
        ui.msgBox(k->tekst, Buttons::OK, Icon::Exclamation, k->tytul);
        return false;
    }
    Godziny g = policzGodziny(wyjazd());
    double razem = 0, ilosc = liczba(txtWskaznikDiety.Text);
    if (!g.przezKoniecMiesiaca) {
        ilosc = g.dni + czescDoby(g.godziny);
        razem = g.dni * 24 + g.godziny;
    }
    if (auto k = koniecMiesiaca(txtDataW.Text, ilosc)) ui.msgBox(k->tekst, Buttons::OK, Icon::Exclamation, k->tytul);
    Wartosci w = wartosci(razem, ilosc, cmbStawka.Text, txtKursWaluty.Text);
    lbRazemGodzin.Caption = w.lbRazemGodzin;
    txtWskaznikDiety.Text = w.txtWskaznikDiety;
    lbStawka.Caption = w.lbStawka;
    lbWartoscWaluty.Caption = w.lbWartoscWaluty;
    lbKurs.Caption = w.lbKurs;
    lbWartoscPLN.Caption = w.lbWartoscPLN;
    return true;
}

bool DelegacjeScreen::cmdPrzelicz_Click() {
    txtGodzinaW.Text = godzina(txtGodzinaW.Text);
    txtGodzinaP.Text = godzina(txtGodzinaP.Text);
    return policzPozycje();
}

core::Record DelegacjeScreen::pozycja(int numer) const {
    core::Record p(Pozycja::schema());
    p.set(Pozycja::Numer, numer);
    p.set(Pozycja::MiejscowoscW, txtMiejscowoscW.Text);
    p.set(Pozycja::DataW, txtDataW.Text);
    p.set(Pozycja::GodzW, txtGodzinaW.Text);
    p.set(Pozycja::MiejscowoscP, txtMiejscowoscP.Text);
    p.set(Pozycja::DataP, txtDataP.Text);
    p.set(Pozycja::GodzP, txtGodzinaP.Text);
    p.set(Pozycja::RazemGodz, lbRazemGodzin.Caption);
    p.set(Pozycja::Kraj, cmbKraj.Text);
    p.set(Pozycja::Waluta, cmbWaluta.Text);
    p.set(Pozycja::Stawka, lbStawka.Caption);
    p.set(Pozycja::Kwota, lbWartoscWaluty.Caption);
    p.set(Pozycja::KursWal, lbKurs.Caption);
    p.set(Pozycja::WartoscPLN, lbWartoscPLN.Caption);
    p.set(Pozycja::IloscDiet, static_cast<float>(liczba(txtWskaznikDiety.Text)));
    return p;
}

void DelegacjeScreen::pokazPozycje(const core::Record& p) {
    txtMiejscowoscW.Text = p.s(Pozycja::MiejscowoscW);
    txtDataW.Text = p.s(Pozycja::DataW);
    txtGodzinaW.Text = p.s(Pozycja::GodzW);
    txtMiejscowoscP.Text = p.s(Pozycja::MiejscowoscP);
    txtDataP.Text = p.s(Pozycja::DataP);
    txtGodzinaP.Text = p.s(Pozycja::GodzP);
    lbRazemGodzin.Caption = p.s(Pozycja::RazemGodz);
    cmbKraj.Text = p.s(Pozycja::Kraj);
    cmbWaluta.Text = p.s(Pozycja::Waluta);
    cmbStawka.Text = lbStawka.Caption = p.s(Pozycja::Stawka);
    lbWartoscWaluty.Caption = p.s(Pozycja::Kwota);
    lbKurs.Caption = p.s(Pozycja::KursWal);
    txtKursWaluty.Text = p.s(Pozycja::KursWal);
    lbWartoscPLN.Caption = p.s(Pozycja::WartoscPLN);
    txtWskaznikDiety.Text = core::numText(p.f(Pozycja::IloscDiet));
}

std::vector<core::Record> DelegacjeScreen::pozycjeZSiatki() const {
    std::vector<core::Record> v;
    for (int r = 1; r < MSFlexGrid3.Rows; ++r) {
        core::Record p(Pozycja::schema());
        for (int c = 0; c < Pozycja::Count; ++c) {
            const std::string& t = MSFlexGrid3.TextMatrix(r, c);
            if (c + 1 == Pozycja::Numer) p.set(c + 1, r);
            else if (c + 1 == Pozycja::IloscDiet) p.set(c + 1, static_cast<float>(liczba(t)));
            else p.set(c + 1, t);
        }
        v.push_back(std::move(p));
    }
    return v;
}

void DelegacjeScreen::wypelnijPozycje(const std::vector<core::Record>& pozycje) {
    MSFlexGrid3.setGrid(1, Pozycja::Count);
    for (std::size_t c = 0; c < kNaglowkiPozycji.size(); ++c) MSFlexGrid3.TextMatrix(0, static_cast<int>(c)) = kNaglowkiPozycji[c];
    int nr = 0;
    for (const core::Record& p : pozycje) {
        std::vector<std::string> w;
        for (int c = 1; c <= Pozycja::Count; ++c)
            w.push_back(c == Pozycja::Numer ? std::to_string(++nr)
                        : c == Pozycja::IloscDiet ? core::numText(p.f(c))
                                                  : p.s(c));
        dodajWiersz(MSFlexGrid3, w);
    }
}

void DelegacjeScreen::cmdDodajPozycje_Click() {
    if (nazwisko.empty()) {
        ui.msgBox("Wybiez pracownika delegowanego", Buttons::OK, Icon::Exclamation, "Brak wpisanej wskazanego pracownika !");
        return;
    }
    if (!cmdPrzelicz_Click()) return;
    std::vector<core::Record> v = pozycjeZSiatki();
    v.push_back(pozycja(static_cast<int>(v.size()) + 1));
    wypelnijPozycje(v);
    przeliczRazem();
}

void DelegacjeScreen::cmdZapiszPozycje_Click() {
    int r = MSFlexGrid3.Row;
    if (r < 1 || r >= MSFlexGrid3.Rows) {
        ui.msgBox("Wskaż w tabeli pozycję do zmiany.", Buttons::OK, Icon::Exclamation, "Zmiana pozycji");
        return;
    }
    if (!cmdPrzelicz_Click()) return;
    std::vector<core::Record> v = pozycjeZSiatki();
    v[static_cast<std::size_t>(r - 1)] = pozycja(r);
    wypelnijPozycje(v);
    przeliczRazem();
}

void DelegacjeScreen::MSFlexGrid3_Click() {
    int r = MSFlexGrid3.Row;
    if (r < 1 || r >= MSFlexGrid3.Rows) return;
    pokazPozycje(pozycjeZSiatki()[static_cast<std::size_t>(r - 1)]);
}

void DelegacjeScreen::CmdUsunPozycje_Click() {
    int r = MSFlexGrid3.Row;
    if (r < 1 || r >= MSFlexGrid3.Rows) return;
    if (MSFlexGrid3.Rows == 2) {
        ui.msgBox("Chcesz usunąć jedyną pozycje? -kliknij zmien i zapisz", Buttons::OK, Icon::Exclamation, "Usuwanie pozycji! ");
        return;
    }
    if (ui.msgBox("Czy chcesz usunąć pozycje nr. " + std::to_string(r), Buttons::YesNo, Icon::Question,
                  "Usuwanie pozycji! ") != Answer::Yes)
        return;
    std::vector<core::Record> v = pozycjeZSiatki();
    v.erase(v.begin() + (r - 1));
    wypelnijPozycje(v);
    MSFlexGrid3.Row = 0;
    przeliczRazem();
}

void DelegacjeScreen::przeliczRazem() {
    double diety = 0;
    for (const core::Record& p : pozycjeZSiatki()) diety += liczba(p.s(Pozycja::WartoscPLN));
    float d = static_cast<float>(diety);
    txtDiety.Text = kwotaPola(d);
    float razem = core::Round2(static_cast<double>(static_cast<float>(liczba(txtRyczalt.Text))) + d +
                               static_cast<float>(liczba(cmbNocleg.Text)) + static_cast<float>(liczba(txtInneW.Text)));
    float doWyplaty = core::Round2(static_cast<double>(razem) - static_cast<float>(liczba(txtZaliczka.Text)));
    lbRazemNaleznosc.Caption = kwota(razem);
    txtDoWyplaty.Text = kwotaPola(doWyplaty);
    LbOgolem.Caption = doWyplaty < 0 ? "Do Zwrotu" : "Do wypłaty";
}

Delegacja DelegacjeScreen::delegacja() const {
    Delegacja d;
    core::Record& h = d.naglowek;
    h.set(Naglowek::NrDel, txtNrDel.Text);
    h.set(Naglowek::Nazwisko, nazwisko);
    h.set(Naglowek::Imie, imie);
    h.set(Naglowek::Pesel, pesel);
    h.set(Naglowek::Ryczalt, static_cast<float>(liczba(txtRyczalt.Text)));
    h.set(Naglowek::Nocleg, static_cast<float>(liczba(cmbNocleg.Text)));
    h.set(Naglowek::InneW, static_cast<float>(liczba(txtInneW.Text)));
    h.set(Naglowek::Zaliczka, static_cast<float>(liczba(txtZaliczka.Text)));
    h.set(Naglowek::Diety, static_cast<float>(liczba(txtDiety.Text)));
    h.set(Naglowek::SrodekTransportu, cmbSrodekTransportu.Text);
    h.set(Naglowek::DataDel, txtDataDel.Text);
    h.set(Naglowek::RazemNaleznosc, static_cast<float>(liczba(core::Replace(lbRazemNaleznosc.Caption, ",", ""))));
    h.set(Naglowek::DoWyplaty, static_cast<float>(liczba(txtDoWyplaty.Text)));
    h.set(Naglowek::Lista, lista);
    d.pozycje = pozycjeZSiatki();
    return d;
}

void DelegacjeScreen::pokazDelegacje(const Delegacja& d) {
    const core::Record& h = d.naglowek;
    txtNrDel.Text = h.s(Naglowek::NrDel);
    nazwisko = h.s(Naglowek::Nazwisko);
    imie = h.s(Naglowek::Imie);
    pesel = h.s(Naglowek::Pesel);
    lista = h.s(Naglowek::Lista);
    lbOsoba.Caption = nazwisko + " " + imie;
    txtRyczalt.Text = kwotaPola(h.f(Naglowek::Ryczalt));
    cmbNocleg.Text = kwotaPola(h.f(Naglowek::Nocleg));
    txtInneW.Text = kwotaPola(h.f(Naglowek::InneW));
    txtZaliczka.Text = kwotaPola(h.f(Naglowek::Zaliczka));
    cmbSrodekTransportu.Text = h.s(Naglowek::SrodekTransportu);
    txtDataDel.Text = h.s(Naglowek::DataDel);
    wypelnijPozycje(d.pozycje);
    if (!d.pozycje.empty()) pokazPozycje(d.pozycje.front());
    przeliczRazem();
}

void DelegacjeScreen::wyczyscPozycje() {
    for (core::Control* c : {&txtMiejscowoscW, &txtDataW, &txtGodzinaW, &txtMiejscowoscP, &txtDataP, &txtGodzinaP,
                             &txtWskaznikDiety})
        c->Text.clear();
    lbRazemGodzin.Caption.clear();
    lbWartoscWaluty.Caption.clear();
    lbStawka.Caption = "0,OO";
    lbWartoscPLN.Caption = "0,00";
    lbKurs.Caption = "0,0000";
}

void DelegacjeScreen::cmdZapiszDelegacje_Click() {
    if (MSFlexGrid3.Rows <= 1) {
        ui.msgBox("Brak wpisanej jakiejkolwiek pozycji!", Buttons::OK, Icon::Exclamation, kZastanowSie);
        return;
    }
    core::Date data;
    if (!core::parseDate(txtDataDel.Text, data)) {
        ui.msgBox("Wpisz datę delegacji w postaci dd.mm.rrrr.", Buttons::OK, Icon::Exclamation, "Data delegacji");
        return;
    }
    txtDataDel.Text = core::FormatDate(data, "dd.mm.yyyy");
    guarded([&] {
        Delegacja d = delegacja();
        int numer = core::ValInt(txtNrDel.Text, "txtNrDel");
        if (core::Trim(txtNrDel.Text).empty()) {
            numer = nastepnyNumer(folder(s), txtDataDel.Text);
            txtNrDel.Text = std::to_string(numer);
            d.naglowek.set(Naglowek::NrDel, txtNrDel.Text);
        }
        zapisz(folder(s) / nazwaPliku(numer, txtDataDel.Text), d);
        wyczyscPozycje();
        MonthView2.Text = core::FormatDate(data, "dd-mm-yyyy");  // the list of the trip's month
        MonthView2_Click();
    });
}

void DelegacjeScreen::CmdEdytujDelegacje_Click() {
    int r = MSFlexGrid2.Row;
    if (r < 1 || r >= MSFlexGrid2.Rows) {
        ui.msgBox("Wskaż delegację w tabeli delegacji miesiąca.", Buttons::OK, Icon::Exclamation, "Delegacje");
        return;
    }
    guarded([&] { pokazDelegacje(czytaj(plikiMiesiaca[static_cast<std::size_t>(r - 1)])); });
}

void DelegacjeScreen::CmdUsuNDelegacje_Click() {
    int r = MSFlexGrid2.Row;
    if (r < 1 || r >= MSFlexGrid2.Rows) {
        ui.msgBox("Wskaż delegację w tabeli delegacji miesiąca.", Buttons::OK, Icon::Exclamation, "Delegacje");
        return;
    }
    std::string nr = MSFlexGrid2.TextMatrix(r, 0);
    if (ui.msgBox("Czy chcesz usunąć delegacje nr. " + nr, Buttons::YesNo, Icon::Question, "Usuwanie delegacji ! ") !=
        Answer::Yes)
        return;
    guarded([&] {
        std::error_code ec;
        if (!fs::remove(plikiMiesiaca[static_cast<std::size_t>(r - 1)], ec) || ec)
            throw core::Error(core::err::PathFileAccess, "CmdUsuNDelegacje", plikiMiesiaca[static_cast<std::size_t>(r - 1)]);
        ui.msgBox("Usunieto delegacje nr" + nr, Buttons::OK, Icon::Information, "Usunieto");
        if (txtNrDel.Text == nr) txtNrDel.Text.clear();
        CmdOdswierz_Click();
    });
}

void DelegacjeScreen::CmdDrukujRozliczenie_Click() {
    if (MSFlexGrid3.Rows <= 1) {
        ui.msgBox("Brak wpisanej jakiejkolwiek pozycji!", Buttons::OK, Icon::Exclamation, kZastanowSie);
        return;
    }
    if (ui.msgBox("Czy wydrukować rozliczenie delegacji nr " + txtNrDel.Text + " ?", Buttons::OKCancel, Icon::Question,
                  kZastanowSie) != Answer::OK) {
        ui.msgBox("Zrezygnowałeś z drukowania !", Buttons::OK, Icon::Information, "Rezygnacja");
        return;
    }
    guarded([&] { drukujRozliczenie(ui.printer(), delegacja()); });
}

void DelegacjeScreen::cmdDrukujZestawienie_Click() {
    guarded([&] { drukujZestawienie(ui.printer(), miesiacTekst, wczytajMiesiac(s, RRmm)); });
}

}  // namespace trips
