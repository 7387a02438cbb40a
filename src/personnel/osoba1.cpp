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

}  // namespace

Osoba1Screen::Osoba1Screen(core::Dialogs& ui, core::Session& session) : Form(ui, "frmOsoba1", "Pracownik"), s(session) {
    fraDane.at(0, 0);
    fraAdres.at(0, 1);
    fraZatrudnienie.at(0, 2);

    int r = 0;
    txtNazwisko.in("fraDane").at(r++, 0).label("Nazwisko").width(25);
    txtImie.in("fraDane").at(r++, 0).label("Imię").width(20);
    txtDrugieImie.in("fraDane").at(r++, 0).label("Drugie imię").width(20);
    txtPesel.in("fraDane").at(r++, 0).label("PESEL").width(11).tip("Zmiana PESEL spowoduje założenie nowej  kartoteki płacowej");
    txtDataUrodzenia.in("fraDane").at(r++, 0).label("Data urodzenia").width(10).tip(
        "dd-mm-rrrr; kliknięcie wpisuje datę z numeru PESEL");
    txtMiejsceUrodzenia.in("fraDane").at(r++, 0).label("Miejsce urodzenia").width(20);
    txtImieOjca.in("fraDane").at(r++, 0).label("Imię ojca").width(20);
    txtImieMatki.in("fraDane").at(r++, 0).label("Imię matki").width(20);
    txtObywatelstwo.in("fraDane").at(r++, 0).label("Obywat").width(20).tip(
        "POLSKIE dla obywatela polskiego; cudzoziemiec: obywatelstwo i nr paszportu");
    txtPaszport.in("fraDane").at(r++, 0).label("Paszport").width(14);
    txtDowodOsobisty.in("fraDane").at(r++, 0).label("Dowód osobisty").width(12);
    txtNip.in("fraDane").at(r++, 0).label("NIP").width(13);
    txtKodWyksztalcenia.in("fraDane").at(r++, 0).label("Kod wykształ").width(6);

    r = 0;
    txtKod.in("fraAdres").at(r++, 0).label("Kod pocztowy").width(6).tip("Znany kod wypełnia miejscowość, pocztę, gminę, powiat i województwo");
    txtMiejscowosc.in("fraAdres").at(r++, 0).label("Miejscowość").width(22);
    txtPoczta.in("fraAdres").at(r++, 0).label("Poczta zameldowania").width(22);
    TxtUlica.in("fraAdres").at(r++, 0).label("Ulica").width(22);
    txtNrDomu.in("fraAdres").at(r++, 0).label("Nr domu").width(6);
    txtLokal.in("fraAdres").at(r++, 0).label("Lokal").width(6);
    txtGmina.in("fraAdres").at(r++, 0).label("Gmina").width(22);
    txtPowiat.in("fraAdres").at(r++, 0).label("Powiat").width(22);
    txtWojewodztwo.in("fraAdres").at(r++, 0).label("Województwo").width(22);
    txtSkrPocztowa.in("fraAdres").at(r++, 0).label("Skr.poczt.").width(8);
    txtTelefon.in("fraAdres").at(r++, 0).label("Tel.stacjon").width(14);
    txtKomorka.in("fraAdres").at(r++, 0).label("Komórka").width(14);
    Txtmail.in("fraAdres").at(r++, 0).label("Adres mail").width(22);

    r = 0;
    txtNumerIP.in("fraZatrudnienie").at(r++, 0).label("Nr Id").width(5).tip("Zaleca sie Nie zmieniać ");
    txtKodUbezpieczenia.in("fraZatrudnienie").at(r++, 0).label("Kod ubezpieczenia").width(6);
    txtNrUbezpieczenia.in("fraZatrudnienie").at(r++, 0).label("Nr.Ubezpieczenia").width(14);
    TxtDataZatrudnienia.in("fraZatrudnienie").at(r++, 0).label("Data zatrudnienia").width(10).tip("dd-mm-rrrr");
    txtGrupa.in("fraZatrudnienie").at(r++, 0).label("Grupa").width(2).tip(
        "Nauczyciele =n , administracja =a , produkcja =p , umowy zlecenia =u");
    txtEtat.in("fraZatrudnienie").at(r++, 0).label("Etat - licznik").width(3).tip("Licznik wymiaru etatu, np. 1 dla pół etatu (1/2)");
    txtEtat2.in("fraZatrudnienie").at(r++, 0).label("Etat - mianownik").width(3).tip("Mianownik wymiaru etatu, np. 2 dla pół etatu (1/2)");
    lbUlamekEtatu.in("fraZatrudnienie").at(r++, 0, 2).label("Wymiar etatu");
    txtWskaznikFP.in("fraZatrudnienie").at(r++, 0).label("Fundusz Pracy").width(2).tip(
        "Automat oznacza wyłaczenie FP przy Podstawie mniejszej jak Najniższe wynagrodzenie");
    txtFGSP.in("fraZatrudnienie").at(r++, 0).label("FGŚP").width(2).tip("puste = automat, 1 = bez FGŚP, 2 = z FGŚP");
    lbFunduszPracy.in("fraZatrudnienie").at(r++, 0, 2);
    lbWiek.in("fraZatrudnienie").at(r++, 0, 2);
    txtUrzadSkarbowy.in("fraZatrudnienie").at(r++, 0, 2).label("Urząd skarbowy").width(26);
    txtOddzialZUS.in("fraZatrudnienie").at(r++, 0, 2).label("Oddział ZUS").width(26);
    fraStatus.in("fraZatrudnienie").at(r++, 0, 2);
    Option1.in("fraStatus").at(0, 0);
    Option2.in("fraStatus").at(0, 1);

    cmdZapiszZmiany.at(1, 0);
    cmdZapiszNowaOsobe.at(1, 0);
    CmdKadry.at(1, 1);
    cmdKoniecP.at(1, 2);

    txtNazwisko.KeyEnter = [this] { SetFocus(txtImie); };
    txtImie.KeyEnter = [this] { SetFocus(txtPesel); };
    txtEtat.KeyEnter = [this] { SetFocus(txtEtat2); };
    txtKod.Change = [this] { txtKod_Change(); };
    txtDataUrodzenia.Click = [this] { txtDataUrodzenia_Click(); };
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
    txtNazwisko.Text = core::UCase(o.s(Osoba::Nazwisko));
    txtImie.Text = core::UCase(o.s(Osoba::Imie));
    txtDrugieImie.Text = o.s(Osoba::DrugieImie);
    txtPesel.Text = o.s(Osoba::Pesel);
    txtNip.Text = o.s(Osoba::Nip);
    txtDowodOsobisty.Text = o.s(Osoba::DowodOsobisty);
    txtKodUbezpieczenia.Text = o.s(Osoba::KodUbezpieczenia);
    txtKodWyksztalcenia.Text = o.s(Osoba::KodWyksztalcenia);
    txtDataUrodzenia.Text = o.s(Osoba::DataUrodzenia);
    txtMiejsceUrodzenia.Text = o.s(Osoba::MiejsceUrodzenia);
    txtImieOjca.Text = o.s(Osoba::ImieOjca);
    txtImieMatki.Text = o.s(Osoba::ImieMatki);
    txtKod.Text = o.s(Osoba::Kod);
    txtMiejscowosc.Text = o.s(Osoba::Miejscowosc);
    TxtUlica.Text = o.s(Osoba::Ulica);
    txtNrDomu.Text = o.s(Osoba::NrDomu);
    txtLokal.Text = o.s(Osoba::Lokal);
    txtGmina.Text = o.s(Osoba::Gmina);
    txtPowiat.Text = o.s(Osoba::Powiat);
    txtWojewodztwo.Text = o.s(Osoba::Wojewodztwo);
    txtEtat.Text = core::Trim(core::Left(o.s(Osoba::Etat), 3));
    txtEtat2.Text = core::Trim(core::Right(o.s(Osoba::Etat), 3));
    txtGrupa.Text = o.s(Osoba::Grupa);
    txtTelefon.Text = o.s(Osoba::Telefon);
    txtUrzadSkarbowy.Text = o.s(Osoba::UrzadSkarbowy);
    txtOddzialZUS.Text = o.s(Osoba::OddzialZUS);
    txtPoczta.Text = o.s(Osoba::Poczta);
    txtPaszport.Text = core::UCase(o.s(Osoba::Paszport));
    Txtmail.Text = o.s(Osoba::Mail);
    txtKomorka.Text = o.s(Osoba::Komorka);
    txtSkrPocztowa.Text = o.s(Osoba::SkrPocztowa);
    txtNrUbezpieczenia.Text = o.s(Osoba::NrUbezpieczenia);
    txtObywatelstwo.Text = o.s(Osoba::Obywatelstwo);
    TxtDataZatrudnienia.Text = dataZatrudnienia(o.s(Osoba::DataZatrudnienia));
    txtWskaznikFP.Text = o.s(Osoba::WskaznikFP);
    txtNumerIP.Text = o.s(Osoba::Numer);
    txtFGSP.Text = o.s(Osoba::FGSP);
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
    txtNazwisko.Text = s.NazwiskoOsoby;
    txtImie.Text = s.ImieOsoby;
    txtPesel.Text = s.KluczOsoby;
    txtKodUbezpieczenia.Text = s.KodUbezpieczeniaOsoby;
    txtNumerIP.Text = std::to_string(numer);
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
    txtKod.Text = core::Trim(txtKod.Text);
    if (core::Len(txtKod.Text) != 6) return;
    AdresPocztowy a = szukajKoduPocztowego(txtKod.Text);
    txtMiejscowosc.Text = a.Miejscowosc;
    txtPoczta.Text = a.Poczta;
    txtGmina.Text = a.Gmina;
    txtPowiat.Text = a.Powiat;
    txtWojewodztwo.Text = a.Wojewodztwo;
}

void Osoba1Screen::txtDataUrodzenia_Click() {
    txtDataUrodzenia.Text = dataUrodzeniaZPesel(txtDataUrodzenia.Text, core::Trim(txtPesel.Text));
}

bool Osoba1Screen::sprawdz() {
    auto blad = [&](const char* tekst, const char* tytul, core::Control& c) {
        ui.msgBox(tekst, Buttons::OK, Icon::Exclamation, tytul);
        SetFocus(c);
        return false;
    };
    if (pustyLubNowe(txtNazwisko.Text)) return blad("Brak wpisu nazwiska", "Wpisz nazwisko !", txtNazwisko);
    if (pustyLubNowe(txtImie.Text)) return blad("Brak wpisu imienia", "Wpisz Imie !", txtImie);
    const std::string pesel = txtPesel.Text;
    const bool brakPesel = pesel == "00000000000" || pesel == " " || pesel.empty();
    if (brakPesel && core::UCase(core::Left(txtObywatelstwo.Text, 3)) != "POL") {
        ui.msgBox(" Jezeli jest to cudzoziemiec to wpisz Obywatelstwo i Nr Paszportu", Buttons::OK, Icon::Information);
        txtPesel.Text.clear();
        if (core::Trim(txtPaszport.Text).empty())
            return blad("Jeśli Obcokrajowiec - wpisz nr Paszportu ", "Wpisz !", txtPaszport);
        if (core::Trim(txtObywatelstwo.Text).empty())
            return blad("Jeśli Obcokrajowiec - wpisz Obywatelstwo ", "Wpisz Obywatelstwo!", txtObywatelstwo);
    } else {
        if (pesel == "00000000000" || pesel == "Nowe") return blad("Brak wpisu nr Pesel", "Wpisz Pesel !", txtPesel);
        if (core::Len(pesel) != 11) return blad("Zły nr Pesel", "Wpisz poprawnie Pesel !", txtPesel);
    }
    const std::string kod = core::Trim(txtKodUbezpieczenia.Text);
    if (kod == "000000" || kod.empty())
        return blad("Brak wpisu nr Kodu ubezpieczenia", "Wpisz Kod ubezpieczenia!", txtKodUbezpieczenia);
    if (core::Len(txtDataUrodzenia.Text) != 10)
        return blad("Brak daty urodzenia", "Wpisz date w formacie dd-mm-RRRR lub kliknij w pole tekstowe !",
                    txtDataUrodzenia);
    return true;
}

void Osoba1Screen::zbuduj(core::Record& r) {
    r.set(Osoba::Poczatek, "<Poczatek>");
    r.set(Osoba::Nazwisko, core::UCase(core::Trim(txtNazwisko.Text)));
    r.set(Osoba::Imie, core::UCase(core::Trim(txtImie.Text)));
    r.set(Osoba::DrugieImie, txtDrugieImie.Text);
    r.set(Osoba::Pesel, core::Left(core::Trim(txtPesel.Text), 11));
    r.set(Osoba::Nip, txtNip.Text);
    r.set(Osoba::DowodOsobisty, txtDowodOsobisty.Text);
    r.set(Osoba::KodUbezpieczenia, core::Trim(core::Left(core::PadRight(core::Trim(txtKodUbezpieczenia.Text), 6), 6)));
    r.set(Osoba::KodWyksztalcenia, txtKodWyksztalcenia.Text);
    r.set(Osoba::DataUrodzenia, txtDataUrodzenia.Text);
    r.set(Osoba::MiejsceUrodzenia, txtMiejsceUrodzenia.Text);
    r.set(Osoba::ImieOjca, txtImieOjca.Text);
    r.set(Osoba::ImieMatki, txtImieMatki.Text);
    r.set(Osoba::Kod, core::PadRight(txtKod.Text, 6));
    r.set(Osoba::Miejscowosc, txtMiejscowosc.Text);
    r.set(Osoba::Ulica, TxtUlica.Text);
    r.set(Osoba::NrDomu, txtNrDomu.Text);
    r.set(Osoba::Lokal, txtLokal.Text);
    r.set(Osoba::Gmina, txtGmina.Text);
    r.set(Osoba::Powiat, txtPowiat.Text);
    r.set(Osoba::Wojewodztwo, txtWojewodztwo.Text);
    r.set(Osoba::Etat, etatTekst(txtEtat.Text, txtEtat2.Text));
    r.set(Osoba::Grupa, txtGrupa.Text);
    r.set(Osoba::Telefon, txtTelefon.Text);
    r.set(Osoba::UrzadSkarbowy, txtUrzadSkarbowy.Text);
    r.set(Osoba::OddzialZUS, txtOddzialZUS.Text);
    r.set(Osoba::Poczta, txtPoczta.Text);
    // The passport is the key of a foreigner: kept as it is shown, upper-cased.
    r.set(Osoba::Paszport, core::UCase(core::Trim(txtPaszport.Text)));
    r.set(Osoba::Mail, Txtmail.Text);
    r.set(Osoba::Komorka, txtKomorka.Text);
    r.set(Osoba::SkrPocztowa, txtSkrPocztowa.Text);
    r.set(Osoba::NrUbezpieczenia, txtNrUbezpieczenia.Text);
    r.set(Osoba::Obywatelstwo, s.Osoba.Obywatelstwo);
    r.set(Osoba::DataZatrudnienia, TxtDataZatrudnienia.Text + Osoba::kZnacznikDaty);
    r.set(Osoba::WskaznikFP, txtWskaznikFP.Text);
    r.set(Osoba::NumerIP, txtNumerIP.Text);
    r.set(Osoba::FGSP, txtFGSP.Text);
    r.set(Osoba::Status, Option1.Value ? 1L : 2L);
    r.set(Osoba::Koniec, "<koniec>");
}

void Osoba1Screen::cmdZapiszZmiany_Click() {
    if (!sprawdz()) return;
    // 1. The citizenship of the person; "0" or nothing is Polish.
    if (!txtObywatelstwo.Text.empty()) s.Osoba.Obywatelstwo = txtObywatelstwo.Text;
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
    const std::string pesel = core::Trim(txtPesel.Text);
    if (pesel.empty() && core::Trim(txtPaszport.Text).empty()) {
        ui.msgBox("Blad zapisu Wpisz PESEL dla krajowca lub Paszport i Obywatelstwo dla obckrajowca", Buttons::OK,
                  Icon::Exclamation, "Błędne dane !");
        return;
    }
    // 3.
    setOption(Option1);
    // 4.
    std::string obyw = txtObywatelstwo.Text;
    if (obyw.empty() || obyw[0] == '0') {
        obyw = "POLSKIE";
        txtObywatelstwo.Text = obyw;
        ui.msgBox("Ustal Obywatelstwo", Buttons::OK, Icon::Exclamation, "Błąd");
    }
    // 5. A warning only: the person is stored all the same.
    const char* const kBladId =
        "Błąd - musi być wpisany prawidłowy Identyfikator Pesel dla Polaka Paszport dla cudzoziemca(Obywatelstwo)";
    if ((obyw == "POLSKIE" && pesel.empty()) || (obyw != "POLSKIE" && !pesel.empty()))
        ui.msgBox(kBladId, Buttons::OK, Icon::Exclamation, "Błąd");
    // 6.
    const std::string paszport = core::UCase(core::Trim(txtPaszport.Text));
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
        s.NazwiskoOsoby = core::UCase(core::Trim(txtNazwisko.Text));
        s.ImieOsoby = core::UCase(core::Trim(txtImie.Text));
        s.KluczOsoby = klucz;
        s.KodUbezpieczeniaOsoby = core::Trim(txtKodUbezpieczenia.Text);
        s.LiczbaOsob = liczba + 1;
        s.Osoba.Obywatelstwo = obywatelstwo(obyw);
        kluczOsobyWPliku = kluczOsoby(r);
        numerWPliku = liczba + 1;
        TxtDataZatrudnienia.Text = dataZatrudnienia(r.s(Osoba::DataZatrudnienia));
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
    e.Grupa = txtGrupa.Text;
    if (!txtObywatelstwo.Text.empty()) e.Obywatelstwo = obywatelstwo(txtObywatelstwo.Text);
    if (e.Obywatelstwo.empty()) e.Obywatelstwo = "POLSKIE";
    e.Paszport = core::UCase(core::Trim(txtPaszport.Text));
    e.DataZatrudnienia = TxtDataZatrudnienia.Text;
    e.UlamekEtatu = ulamekEtatu(txtEtat.Text, txtEtat2.Text);
    ui.open(ekran, s);
    odswiezMenu();
}

}  // namespace personnel
