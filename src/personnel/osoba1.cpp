#include "personnel/osoba1.h"

#include <filesystem>
#include <optional>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "personnel/postal_codes.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;

namespace personnel {

namespace {

const char* const kNiedostepny = "Ten ekran nie jest dostępny w tej wersji programu.";

bool pustyLubNowe(const std::string& t) {
    std::string x = core::Trim(t);
    return x.empty() || x == "Nowe";
}

// The boxes of the record in the order of the screen's tab key.
const core::FieldBox kPola[] = {
    {Osoba::Nazwisko, "txtNazwisko", "Nazwisko", "fraDane", 0, 25},
    {Osoba::Imie, "txtImie", "Imię", "fraDane", 1, 20},
    {Osoba::DrugieImie, "txtDrugieImie", "Drugie imię", "fraDane", 2, 20},
    {Osoba::Pesel, "txtPesel", "PESEL", "fraDane", 3, 11},
    {Osoba::DataUrodzenia, "txtDataUrodzenia", "Data urodzenia", "fraDane", 4, 10},
    {Osoba::MiejsceUrodzenia, "txtMiejsceUrodzenia", "Miejsce urodzenia", "fraDane", 5, 20},
    {Osoba::ImieOjca, "txtImieOjca", "Imię ojca", "fraDane", 6, 20},
    {Osoba::ImieMatki, "txtImieMatki", "Imię matki", "fraDane", 7, 20},
    {Osoba::Obywatelstwo, "txtObywatelstwo", "Obywat", "fraDane", 8, 20},
    {Osoba::Paszport, "txtPaszport", "Paszport", "fraDane", 9, 14},
    {Osoba::DowodOsobisty, "txtDowodOsobisty", "Dowód osobisty", "fraDane", 10, 12},
    {Osoba::Nip, "txtNip", "NIP", "fraDane", 11, 13},
    {Osoba::KodWyksztalcenia, "txtKodWyksztalcenia", "Kod wykształ", "fraDane", 12, 6},
    {Osoba::Telefon, "txtTelefon", "Tel.stacjon", "fraAdres", 10, 14},
    {Osoba::Komorka, "txtKomorka", "Komórka", "fraAdres", 11, 14},
    {Osoba::Mail, "Txtmail", "Adres mail", "fraAdres", 12, 22},
    {Osoba::Kod, "txtKod", "Kod pocztowy", "fraAdres", 0, 6},
    {Osoba::Miejscowosc, "txtMiejscowosc", "Miejscowość", "fraAdres", 1, 22},
    {Osoba::Poczta, "txtPoczta", "Poczta zameldowania", "fraAdres", 2, 22},
    {Osoba::Ulica, "TxtUlica", "Ulica", "fraAdres", 3, 22},
    {Osoba::NrDomu, "txtNrDomu", "Nr domu", "fraAdres", 4, 6},
    {Osoba::Lokal, "txtLokal", "Lokal", "fraAdres", 5, 6},
    {Osoba::Gmina, "txtGmina", "Gmina", "fraAdres", 6, 22},
    {Osoba::Powiat, "txtPowiat", "Powiat", "fraAdres", 7, 22},
    {Osoba::Wojewodztwo, "txtWojewodztwo", "Województwo", "fraAdres", 8, 22},
    {Osoba::SkrPocztowa, "txtSkrPocztowa", "Skr.poczt.", "fraAdres", 9, 8},
    {Osoba::UrzadSkarbowy, "txtUrzadSkarbowy", "Urząd skarbowy", "fraZatrudnienie", 12, 26, 0, core::Kind::TextBox, 2},
    {Osoba::OddzialZUS, "txtOddzialZUS", "Oddział ZUS", "fraZatrudnienie", 13, 26, 0, core::Kind::TextBox, 2},
    // Filled from the record's number (value 40), saved into value 37.
    {Osoba::NumerIP, "txtNumerIP", "Nr Id", "fraZatrudnienie", 0, 5},
    {Osoba::KodUbezpieczenia, "txtKodUbezpieczenia", "Kod ubezpieczenia", "fraZatrudnienie", 1, 6},
    {Osoba::NrUbezpieczenia, "txtNrUbezpieczenia", "Nr.Ubezpieczenia", "fraZatrudnienie", 2, 14},
    {Osoba::DataZatrudnienia, "TxtDataZatrudnienia", "Data zatrudnienia", "fraZatrudnienie", 3, 10},
    {Osoba::Grupa, "txtGrupa", "Grupa", "fraZatrudnienie", 4, 2},
    {Osoba::Etat, "txtEtat", "Etat - licznik", "fraZatrudnienie", 5, 3},
    {Osoba::Etat, "txtEtat2", "Etat - mianownik", "fraZatrudnienie", 6, 3},
    {Osoba::WskaznikFP, "txtWskaznikFP", "Fundusz Pracy", "fraZatrudnienie", 8, 2},
    {Osoba::FGSP, "txtFGSP", "FGŚP", "fraZatrudnienie", 9, 2},
};

}  // namespace

Osoba1Screen::Osoba1Screen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmOsoba1", "Pracownik"), s(session), boxes(*this, kPola) {
    fraDane.at(0, 0);
    fraAdres.at(0, 1);
    fraZatrudnienie.at(0, 2);

    txt(Osoba::Pesel).tip("Zmiana PESEL spowoduje założenie nowej  kartoteki płacowej");
    txt(Osoba::DataUrodzenia).tip("dd-mm-rrrr; kliknięcie wpisuje datę z numeru PESEL");
    txt(Osoba::Obywatelstwo).tip("POLSKIE dla obywatela polskiego; cudzoziemiec: obywatelstwo i nr paszportu");
    txt(Osoba::Kod).tip("Znany kod wypełnia miejscowość, pocztę, gminę, powiat i województwo");
    txt(Osoba::NumerIP).tip("Zaleca sie Nie zmieniać ");
    txt(Osoba::DataZatrudnienia).tip("dd-mm-rrrr");
    txt(Osoba::Grupa).tip("Nauczyciele =n , administracja =a , produkcja =p , umowy zlecenia =u");
    txtEtat.tip("Licznik wymiaru etatu, np. 1 dla pół etatu (1/2)");
    txtEtat2.tip("Mianownik wymiaru etatu, np. 2 dla pół etatu (1/2)");
    txt(Osoba::WskaznikFP).tip("Automat oznacza wyłaczenie FP przy Podstawie mniejszej jak Najniższe wynagrodzenie");
    txt(Osoba::FGSP).tip("puste = automat, 1 = bez FGŚP, 2 = z FGŚP");
    lbUlamekEtatu.in("fraZatrudnienie").at(7, 0, 2).label("Wymiar etatu");
    lbFunduszPracy.in("fraZatrudnienie").at(10, 0, 2);
    lbWiek.in("fraZatrudnienie").at(11, 0, 2);
    fraStatus.in("fraZatrudnienie").at(14, 0, 2);
    Option1.in("fraStatus").at(0, 0);
    Option2.in("fraStatus").at(0, 1);

    cmdZapiszZmiany.at(1, 0);
    cmdZapiszNowaOsobe.at(1, 0);
    CmdKadry.at(1, 1);
    cmdKoniecP.at(1, 2);

    txt(Osoba::Nazwisko).KeyEnter = [this] { SetFocus(txt(Osoba::Imie)); };
    txt(Osoba::Imie).KeyEnter = [this] { SetFocus(txt(Osoba::Pesel)); };
    txtEtat.KeyEnter = [this] { SetFocus(txtEtat2); };
    txt(Osoba::Kod).Change = [this] { txtKod_Change(); };
    txt(Osoba::DataUrodzenia).Click = [this] { txtDataUrodzenia_Click(); };
    txtEtat.Change = [this] { odswiezEtat(); };
    txtEtat2.Change = [this] { odswiezEtat(); };
    cmdZapiszZmiany.Click = [this] { cmdZapiszZmiany_Click(); };
    cmdZapiszNowaOsobe.Click = [this] { cmdZapiszNowaOsobe_Click(); };
    cmdKoniecP.Click = [this] { cmdKoniecP_Click(); };
    CmdKadry.Click = [this] { otworz(kEkranKadr); };
    placa.Click = [this] { otworz(kEkranPlacy); };
    potr.Click = [this] { otworz(kEkranPotracen); };
    Zasilki.Click = [this] { otworz(kEkranZasilkow); };
    chorobowe.Click = [this] { otworz(kEkranChorobowego); };
    urlopy.Click = [this] { otworz(kEkranUrlopow); };
    lista.Click = [this] { cmdKoniecP_Click(); };
    Roczna.Click = [this] { otworz(kEkranKartotekiRocznej); };
    mnuMiesieczne.under("CzasPracy");
    mnuRoczne.under("CzasPracy");
    mnuMiesieczne.Click = [this] { otworz(kEkranCzasuPracy); };
    mnuRoczne.Click = [this] { otworz(kEkranRocznegoCzasuPracy); };

    cmdZapiszNowaOsobe.Visible = false;
    Option1.Value = 1;
    odswiezMenu();
}

Osoba1Screen::~Osoba1Screen() { s.Osoba.Otwarty = false; }

void Osoba1Screen::odswiezMenu() {
    struct {
        core::Control* c;
        const char* ekran;
    } wpisy[] = {{&placa, kEkranPlacy},
                 {&potr, kEkranPotracen},
                 {&Zasilki, kEkranZasilkow},
                 {&chorobowe, kEkranChorobowego},
                 {&urlopy, kEkranUrlopow},
                 {&Roczna, kEkranKartotekiRocznej},
                 {&mnuMiesieczne, kEkranCzasuPracy},
                 {&mnuRoczne, kEkranRocznegoCzasuPracy},
                 {&CmdKadry, kEkranKadr}};
    for (auto& w : wpisy) {
        w.c->Enabled = ui.canOpen(w.ekran);
        w.c->ToolTipText = w.c->Enabled ? std::string() : kNiedostepny;
    }
    CzasPracy.Enabled = mnuMiesieczne.Enabled || mnuRoczne.Enabled;
}

void Osoba1Screen::odswiezEtat() {
    s.Osoba.UlamekEtatu = ulamekEtatu(txtEtat.Text, txtEtat2.Text);
    lbUlamekEtatu.Caption = core::Val(txtEtat2.Text) > 0 ? core::Format(s.Osoba.UlamekEtatu, "0.00") : std::string();
}

void Osoba1Screen::wyczysc() {
    for (core::Control* c : controls())
        if (c->kind == core::Kind::TextBox) c->Text.clear();
}

void Osoba1Screen::wypelnij(const core::Record& o) {
    boxes.fill(o);
    for (int pole : {Osoba::Nazwisko, Osoba::Imie, Osoba::Paszport}) txt(pole).Text = core::UCase(txt(pole).Text);
    txtEtat.Text = core::Trim(core::Left(o.s(Osoba::Etat), 3));
    txtEtat2.Text = core::Trim(core::Right(o.s(Osoba::Etat), 3));
    txt(Osoba::DataZatrudnienia).Text = dataZatrudnienia(o.s(Osoba::DataZatrudnienia));
    txt(Osoba::NumerIP).Text = o.s(Osoba::Numer);
    setOption(o.i(Osoba::Status) == 1 ? Option1 : Option2);
    s.Osoba.Obywatelstwo = obywatelstwo(o.s(Osoba::Obywatelstwo));
    odswiezEtat();
}

void Osoba1Screen::trybZmian() {
    cmdZapiszZmiany.Visible = true;
    cmdZapiszNowaOsobe.Visible = false;
}

void Osoba1Screen::trybNowej(int numer) {
    s.NazwiskoOsoby = "Nowe";
    s.ImieOsoby = "Nowe";
    s.KluczOsoby = "00000000000";
    s.KodUbezpieczeniaOsoby = "011000";
    wyczysc();
    txt(Osoba::Nazwisko).Text = s.NazwiskoOsoby;
    txt(Osoba::Imie).Text = s.ImieOsoby;
    txt(Osoba::Pesel).Text = s.KluczOsoby;
    txt(Osoba::KodUbezpieczenia).Text = s.KodUbezpieczeniaOsoby;
    txt(Osoba::NumerIP).Text = std::to_string(numer);
    setOption(Option1);
    cmdZapiszZmiany.Visible = false;
    cmdZapiszNowaOsobe.Visible = true;
    kluczOsobyWPliku.clear();
    numerWPliku = 0;
    odswiezEtat();
}

void Osoba1Screen::Load() {
    Caption = s.NazwiskoOsoby.empty() && s.ImieOsoby.empty()
                  ? "Pracownik"
                  : core::Trim(s.NazwaZbioru + " " + s.NazwiskoOsoby + " " + s.ImieOsoby);
    odswiezMenu();
    const fs::path plik = Osoba::path(s);
    if (!core::fileExists(plik)) {
        Answer a = ui.msgBox("Brak pliku Płacowo-Kadrowego w wybranym katalogu -> założenie zbioru od nowa Tak ?",
                             Buttons::YesNo, Icon::Question, "Brak zbioru Kadry !");
        if (a != Answer::Yes) {
            Unload();
            return;
        }
        bool utworzony = false;
        guarded([&] {
            core::Record r = Osoba::pusty();
            r.set(Osoba::Nazwisko, "Nowe");
            r.set(Osoba::Imie, "Imie");
            r.set(Osoba::Pesel, "00000000000");
            r.set(Osoba::Status, 1L);
            r.set(Osoba::Numer, 1L);
            core::writeAll(plik, {r}, "tymcz.dta");
            ui.msgBox("Uzupełnij dane i Zapisz zmiany!", Buttons::OK, Icon::Information, "Wpis pierwszy !");
            // The first record is on the screen, to be filled in and saved.
            s.NazwiskoOsoby = "Nowe";
            s.ImieOsoby = "Imie";
            s.KluczOsoby = "00000000000";
            s.KodUbezpieczeniaOsoby = "";
            wypelnij(r);
            kluczOsobyWPliku = kluczOsoby(r);
            trybZmian();
            utworzony = true;
        });
        if (!utworzony) Unload();
        return;
    }
    guarded([&] {
        std::vector<core::Record> recs = Osoba::readAll(plik);
        int ostatni = 0;
        std::optional<core::Record> znaleziona;
        for (const core::Record& r : recs) {
            ostatni = static_cast<int>(r.i(Osoba::Numer));
            if (!znaleziona && s.NazwiskoOsoby != "Nowe" && kluczOsoby(r) == s.KluczOsoby) znaleziona = r;
        }
        if (!znaleziona) {
            trybNowej(ostatni + 1);
            return;
        }
        wypelnij(*znaleziona);
        kluczOsobyWPliku = kluczOsoby(*znaleziona);
        numerWPliku = 0;
        trybZmian();
        if (znaleziona->s(Osoba::Nazwisko).empty() && znaleziona->s(Osoba::Pesel).empty())
            ui.msgBox(" Błędy w bazie - przeprowadź Kalibrowanie Bazy i sortowanie pracownikow po kalibracji",
                      Buttons::OK, Icon::Exclamation, "Błedy w Bazie");
    });
}

void Osoba1Screen::txtKod_Change() {
    core::Control& kod = txt(Osoba::Kod);
    kod.Text = core::Trim(kod.Text);
    if (core::Len(kod.Text) != 6) return;
    AdresPocztowy a = szukajKoduPocztowego(kod.Text);
    txt(Osoba::Miejscowosc).Text = a.Miejscowosc;
    txt(Osoba::Poczta).Text = a.Poczta;
    txt(Osoba::Gmina).Text = a.Gmina;
    txt(Osoba::Powiat).Text = a.Powiat;
    txt(Osoba::Wojewodztwo).Text = a.Wojewodztwo;
}

void Osoba1Screen::txtDataUrodzenia_Click() {
    core::Control& data = txt(Osoba::DataUrodzenia);
    data.Text = dataUrodzeniaZPesel(data.Text, core::Trim(txt(Osoba::Pesel).Text));
}

bool Osoba1Screen::sprawdz() {
    auto blad = [&](const char* tekst, const char* tytul, core::Control& c) {
        ui.msgBox(tekst, Buttons::OK, Icon::Exclamation, tytul);
        SetFocus(c);
        return false;
    };
    if (pustyLubNowe(txt(Osoba::Nazwisko).Text))
        return blad("Brak wpisu nazwiska", "Wpisz nazwisko !", txt(Osoba::Nazwisko));
    if (pustyLubNowe(txt(Osoba::Imie).Text)) return blad("Brak wpisu imienia", "Wpisz Imie !", txt(Osoba::Imie));
    const std::string pesel = txt(Osoba::Pesel).Text;
    const bool brakPesel = pesel == "00000000000" || pesel == " " || pesel.empty();
    if (brakPesel && core::UCase(core::Left(txt(Osoba::Obywatelstwo).Text, 3)) != "POL") {
        ui.msgBox(" Jezeli jest to cudzoziemiec to wpisz Obywatelstwo i Nr Paszportu", Buttons::OK, Icon::Information);
        txt(Osoba::Pesel).Text.clear();
        if (core::Trim(txt(Osoba::Paszport).Text).empty())
            return blad("Jeśli Obcokrajowiec - wpisz nr Paszportu ", "Wpisz !", txt(Osoba::Paszport));
        if (core::Trim(txt(Osoba::Obywatelstwo).Text).empty())
            return blad("Jeśli Obcokrajowiec - wpisz Obywatelstwo ", "Wpisz Obywatelstwo!", txt(Osoba::Obywatelstwo));
    } else {
        if (pesel == "00000000000" || pesel == "Nowe")
            return blad("Brak wpisu nr Pesel", "Wpisz Pesel !", txt(Osoba::Pesel));
        if (core::Len(pesel) != 11) return blad("Zły nr Pesel", "Wpisz poprawnie Pesel !", txt(Osoba::Pesel));
    }
    const std::string kod = core::Trim(txt(Osoba::KodUbezpieczenia).Text);
    if (kod == "000000" || kod.empty())
        return blad("Brak wpisu nr Kodu ubezpieczenia", "Wpisz Kod ubezpieczenia!", txt(Osoba::KodUbezpieczenia));
    if (core::Len(txt(Osoba::DataUrodzenia).Text) != 10)
        return blad("Brak daty urodzenia", "Wpisz date w formacie dd-mm-RRRR lub kliknij w pole tekstowe !",
                    txt(Osoba::DataUrodzenia));
    return true;
}

void Osoba1Screen::zbuduj(core::Record& r) {
    r.set(Osoba::Poczatek, "<Poczatek>");
    // Field by field in the order of the record, so that a refused text names the first box.
    for (int pole = Osoba::Nazwisko; pole < Osoba::Koniec; ++pole) {
        switch (pole) {
        case Osoba::Nazwisko:
        case Osoba::Imie: r.set(pole, core::UCase(core::Trim(txt(pole).Text))); break;
        case Osoba::Pesel: r.set(pole, core::Left(core::Trim(txt(pole).Text), 11)); break;
        case Osoba::KodUbezpieczenia:
            r.set(pole, core::Trim(core::Left(core::PadRight(core::Trim(txt(pole).Text), 6), 6)));
            break;
        case Osoba::Kod: r.set(pole, core::PadRight(txt(pole).Text, 6)); break;
        case Osoba::Etat: r.set(pole, etatTekst(txtEtat.Text, txtEtat2.Text)); break;
        // The passport is the key of a foreigner: kept as it is shown, upper-cased.
        case Osoba::Paszport: r.set(pole, core::UCase(core::Trim(txt(pole).Text))); break;
        case Osoba::Obywatelstwo: r.set(pole, s.Osoba.Obywatelstwo); break;
        case Osoba::DataZatrudnienia: r.set(pole, txt(pole).Text + Osoba::kZnacznikDaty); break;
        case Osoba::Status: r.set(pole, Option1.Value ? 1L : 2L); break;
        default:
            if (boxes.has(pole)) r.set(pole, txt(pole).Text);  // value 28 and the number pass through
        }
    }
    r.set(Osoba::Koniec, "<koniec>");
}

void Osoba1Screen::cmdZapiszZmiany_Click() {
    if (!sprawdz()) return;
    // 1. The citizenship of the person; "0" or nothing is Polish.
    if (!txt(Osoba::Obywatelstwo).Text.empty()) s.Osoba.Obywatelstwo = txt(Osoba::Obywatelstwo).Text;
    s.Osoba.Obywatelstwo = obywatelstwo(s.Osoba.Obywatelstwo);
    // 2.-5. The record is found under the identifier it had in the file when it came on the
    // screen, and rebuilt from the controls; value 28 and the number pass through.
    guarded([&] {
        const fs::path plik = Osoba::path(s);
        std::vector<core::Record> recs = Osoba::readAll(plik);
        for (core::Record& r : recs) {
            if (kluczOsoby(r) != kluczOsobyWPliku) continue;
            if (numerWPliku != 0 && r.i(Osoba::Numer) != numerWPliku) continue;
            zbuduj(r);
            kluczOsobyWPliku = kluczOsoby(r);
            break;
        }
        core::writeAll(plik, recs, "tymcz.dta");
        ui.msgBox("Zmiany zostały wprowadzone", Buttons::OK, Icon::Information, "Potwierdzenie zapisu");
    });
}

void Osoba1Screen::cmdZapiszNowaOsobe_Click() {
    // 1.
    if (ui.msgBox("Uzupełnij niezbedne dane i Zapisz Zmiany", Buttons::OKCancel, Icon::Question, "Dodaj rekord") !=
        Answer::OK)
        return;
    // 2.
    const std::string pesel = core::Trim(txt(Osoba::Pesel).Text);
    if (pesel.empty() && core::Trim(txt(Osoba::Paszport).Text).empty()) {
        ui.msgBox("Blad zapisu Wpisz PESEL dla krajowca lub Paszport i Obywatelstwo dla obckrajowca", Buttons::OK,
                  Icon::Exclamation, "Błędne dane !");
        return;
    }
    // 3.
    setOption(Option1);
    // 4.
    std::string obyw = txt(Osoba::Obywatelstwo).Text;
    if (obyw.empty() || obyw[0] == '0') {
        obyw = "POLSKIE";
        txt(Osoba::Obywatelstwo).Text = obyw;
        ui.msgBox("Ustal Obywatelstwo", Buttons::OK, Icon::Exclamation, "Błąd");
    }
    // 5. A warning only: the person is stored all the same.
    const char* const kBladId =
        "Błąd - musi być wpisany prawidłowy Identyfikator Pesel dla Polaka Paszport dla cudzoziemca(Obywatelstwo)";
    if ((obyw == "POLSKIE" && pesel.empty()) || (obyw != "POLSKIE" && !pesel.empty()))
        ui.msgBox(kBladId, Buttons::OK, Icon::Exclamation, "Błąd");
    // 6.
    const std::string paszport = core::UCase(core::Trim(txt(Osoba::Paszport).Text));
    const std::string klucz = kluczOsoby(obyw, pesel, paszport);
    if (klucz.empty() || obyw.empty()) {
        ui.msgBox(kBladId, Buttons::OK, Icon::Exclamation, "Błąd");
        return;
    }
    guarded([&] {
        const fs::path plik = Osoba::path(s);
        std::string tekst = core::fileExists(plik) ? core::readFileText(plik) : std::string();
        if (!tekst.empty() && tekst.back() != '\n') tekst += "\r\n";
        const int liczba = core::fileExists(plik) ? static_cast<int>(Osoba::readAll(plik).size()) : 0;
        // 8. The record from the controls: the citizenship always "POLSKIE" (the first "Zapisz
        // zmiany" stores the real one), the list date as the date of hire, status 1.
        s.Osoba.Obywatelstwo = "POLSKIE";
        core::Record r = Osoba::pusty();
        zbuduj(r);
        r.setEmpty(Osoba::Rezerwa28);
        r.set(Osoba::FGSP, "");
        r.set(Osoba::DataZatrudnienia, s.DataListy + Osoba::kZnacznikDaty);
        r.set(Osoba::Status, 1L);
        r.set(Osoba::Numer, static_cast<long>(liczba + 1));
        core::SeqWriter w;
        core::writeRecord(w, r);
        core::commitFile(plik, tekst + w.text(), "tymcz.dta");
        // 7. The new person is the person of the session.
        s.NazwiskoOsoby = core::UCase(core::Trim(txt(Osoba::Nazwisko).Text));
        s.ImieOsoby = core::UCase(core::Trim(txt(Osoba::Imie).Text));
        s.KluczOsoby = klucz;
        s.KodUbezpieczeniaOsoby = core::Trim(txt(Osoba::KodUbezpieczenia).Text);
        s.LiczbaOsob = liczba + 1;
        s.Osoba.Obywatelstwo = obywatelstwo(obyw);
        kluczOsobyWPliku = kluczOsoby(r);
        numerWPliku = liczba + 1;
        txt(Osoba::DataZatrudnienia).Text = dataZatrudnienia(r.s(Osoba::DataZatrudnienia));
        // 9.
        trybZmian();
        ui.msgBox("Rekord zostal dopisany ", Buttons::OK, Icon::Information, "Dopisany");
    });
}

void Osoba1Screen::otworz(const std::string& ekran) {
    if (!ui.canOpen(ekran)) {
        ui.msgBox(kNiedostepny, Buttons::OK, Icon::Information, "Brak ekranu");
        return;
    }
    core::EkranOsoby& e = s.Osoba;
    e.Otwarty = true;
    e.Etat = txtEtat.Text;
    e.Etat2 = txtEtat2.Text;
    e.Grupa = txt(Osoba::Grupa).Text;
    if (!txt(Osoba::Obywatelstwo).Text.empty()) e.Obywatelstwo = obywatelstwo(txt(Osoba::Obywatelstwo).Text);
    if (e.Obywatelstwo.empty()) e.Obywatelstwo = "POLSKIE";
    e.Paszport = core::UCase(core::Trim(txt(Osoba::Paszport).Text));
    e.DataZatrudnienia = txt(Osoba::DataZatrudnienia).Text;
    e.UlamekEtatu = ulamekEtatu(txtEtat.Text, txtEtat2.Text);
    ui.open(ekran, s);
    odswiezMenu();
}

}  // namespace personnel
