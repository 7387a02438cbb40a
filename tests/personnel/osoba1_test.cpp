#include <gtest/gtest.h>

#include "core/screens.h"
#include "core/text.h"
#include "support/demo.h"
#include "personnel/osoba1.h"
#include "personnel/person_record.h"
#include "personnel/sortuj.h"
#include "support/scripted.h"

using namespace personnel;
using DemoList = testing_support::DemoLista;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;

namespace {

std::vector<std::string> lines(std::initializer_list<const char*> l) { return {l.begin(), l.end()}; }

}  // namespace

TEST(Osoba1, OpensThePersonOfTheSession) {
    DemoList d;
    d.wybierz(6);  // LEWANDOWSKA EWA, 3/4 of a post
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_EQ(f.Caption, "a LEWANDOWSKA EWA");
    EXPECT_EQ(f.txt(Osoba::Nazwisko).Text, "LEWANDOWSKA");
    EXPECT_EQ(f.txt(Osoba::Pesel).Text, "85031589069");
    EXPECT_EQ(f.txtEtat.Text, "3");
    EXPECT_EQ(f.txtEtat2.Text, "4");
    EXPECT_EQ(f.lbUlamekEtatu.Caption, "0.75");
    EXPECT_EQ(f.txt(Osoba::DataZatrudnienia).Text, "01-01-2016");  // the literal behind the date cut off
    EXPECT_EQ(f.txt(Osoba::NumerIP).Text, "7");                     // value 40
    EXPECT_EQ(f.txt(Osoba::Kod).Text, "32-447");
    EXPECT_EQ(f.Option1.Value, 1);
    EXPECT_TRUE(f.cmdZapiszZmiany.Visible);
    EXPECT_FALSE(f.cmdZapiszNowaOsobe.Visible);
    EXPECT_DOUBLE_EQ(d.s.Osoba.UlamekEtatu, 0.75);
}

TEST(Osoba1, CitizenshipZeroAndShortDateOfHire) {
    DemoList d;
    // A stored citizenship "0" is found under the PESEL; a value 35 of 10 characters is no date.
    auto recs = d.osoby();
    recs[2].set(Osoba::DataZatrudnienia, "01-03-2019");
    recs[2].set(Osoba::Status, 2L);
    core::writeAll(d.per(), recs);
    d.wybierz(2);
    EXPECT_EQ(d.s.KluczOsoby, "88110578938");
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_EQ(f.txt(Osoba::Nazwisko).Text, "ZIELIŃSKI");
    EXPECT_EQ(f.txt(Osoba::Obywatelstwo).Text, "0");
    EXPECT_EQ(f.txt(Osoba::DataZatrudnienia).Text, "");
    EXPECT_EQ(f.Option2.Value, 1);
    EXPECT_EQ(f.Option1.Value, 0);
}

TEST(Osoba1, ValidationOfSaveInItsOrder) {
    struct Case {
        const char* what;
        std::function<void(Osoba1Screen&)> edit;
        std::vector<std::string> boxes;
        const char* focus;
    };
    const std::string info = "[]  Jezeli jest to cudzoziemiec to wpisz Obywatelstwo i Nr Paszportu";
    const Case cases[] = {
        {"empty surname", [](Osoba1Screen& f) { f.txt(Osoba::Nazwisko).Text = ""; }, {"[Wpisz nazwisko !] Brak wpisu nazwiska"}, "txtNazwisko"},
        {"surname Nowe", [](Osoba1Screen& f) { f.txt(Osoba::Nazwisko).Text = "Nowe"; }, {"[Wpisz nazwisko !] Brak wpisu nazwiska"}, "txtNazwisko"},
        {"both names wrong", [](Osoba1Screen& f) { f.txt(Osoba::Nazwisko).Text = " "; f.txt(Osoba::Imie).Text = ""; }, {"[Wpisz nazwisko !] Brak wpisu nazwiska"}, "txtNazwisko"},
        {"empty first name", [](Osoba1Screen& f) { f.txt(Osoba::Imie).Text = ""; }, {"[Wpisz Imie !] Brak wpisu imienia"}, "txtImie"},
        {"first name Nowe", [](Osoba1Screen& f) { f.txt(Osoba::Imie).Text = "Nowe"; }, {"[Wpisz Imie !] Brak wpisu imienia"}, "txtImie"},
        {"foreigner without passport",
         [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = "00000000000"; f.txt(Osoba::Obywatelstwo).Text = "UKRAIŃSKIE"; f.txt(Osoba::Paszport).Text = ""; },
         {info, "[Wpisz !] Jeśli Obcokrajowiec - wpisz nr Paszportu "}, "txtPaszport"},
        {"blank PESEL, no citizenship",
         [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = " "; f.txt(Osoba::Obywatelstwo).Text = ""; f.txt(Osoba::Paszport).Text = "AB1"; },
         {info, "[Wpisz Obywatelstwo!] Jeśli Obcokrajowiec - wpisz Obywatelstwo "}, "txtObywatelstwo"},
        {"PESEL of zeros", [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = "00000000000"; }, {"[Wpisz Pesel !] Brak wpisu nr Pesel"}, "txtPesel"},
        {"PESEL Nowe", [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = "Nowe"; }, {"[Wpisz Pesel !] Brak wpisu nr Pesel"}, "txtPesel"},
        {"PESEL of 10", [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = "7503141231"; }, {"[Wpisz poprawnie Pesel !] Zły nr Pesel"}, "txtPesel"},
        {"POL... without PESEL",
         [](Osoba1Screen& f) { f.txt(Osoba::Pesel).Text = ""; f.txt(Osoba::Obywatelstwo).Text = "POLINEZYJSKIE"; f.txt(Osoba::Paszport).Text = "X9"; },
         {"[Wpisz poprawnie Pesel !] Zły nr Pesel"}, "txtPesel"},
        {"insurance code of zeros", [](Osoba1Screen& f) { f.txt(Osoba::KodUbezpieczenia).Text = "000000"; },
         {"[Wpisz Kod ubezpieczenia!] Brak wpisu nr Kodu ubezpieczenia"}, "txtKodUbezpieczenia"},
        {"no insurance code", [](Osoba1Screen& f) { f.txt(Osoba::KodUbezpieczenia).Text = ""; },
         {"[Wpisz Kod ubezpieczenia!] Brak wpisu nr Kodu ubezpieczenia"}, "txtKodUbezpieczenia"},
        {"short birth date", [](Osoba1Screen& f) { f.txt(Osoba::DataUrodzenia).Text = "1-3-1975"; },
         {"[Wpisz date w formacie dd-mm-RRRR lub kliknij w pole tekstowe !] Brak daty urodzenia"}, "txtDataUrodzenia"},
        {"birth date of 11", [](Osoba1Screen& f) { f.txt(Osoba::DataUrodzenia).Text = "01-03-19750"; },
         {"[Wpisz date w formacie dd-mm-RRRR lub kliknij w pole tekstowe !] Brak daty urodzenia"}, "txtDataUrodzenia"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        DemoList d;
        d.wybierz(0);
        const std::string before = readBytes(d.per());
        ScriptedDialogs ui;
        Osoba1Screen f(ui, d.s);
        f.Load();
        c.edit(f);
        f.cmdZapiszZmiany_Click();
        EXPECT_EQ(ui.lines(), c.boxes);
        EXPECT_EQ(f.FocusTo, c.focus);
        EXPECT_EQ(readBytes(d.per()), before);
        EXPECT_FALSE(std::filesystem::exists(d.per().parent_path() / "tymcz.dta"));
    }
}

TEST(Osoba1, ForeignerPathEmptiesThePesel) {
    DemoList d;
    d.wybierz(0);
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    f.txt(Osoba::Pesel).Text = "00000000000";
    f.txt(Osoba::Obywatelstwo).Text = "NIEMIECKIE";
    f.txt(Osoba::Paszport).Text = "";
    f.cmdZapiszZmiany_Click();
    EXPECT_EQ(f.txt(Osoba::Pesel).Text, "");
    EXPECT_EQ(ui.boxes.front().icon, core::Icon::Information);
}

TEST(Osoba1, SaveRebuildsTheRecordFromTheControls) {
    DemoList d;
    d.wybierz(1);  // WIŚNIEWSKA, the second record
    const auto before = d.osoby();
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    f.txt(Osoba::Nazwisko).Text = "  wiśniewska-nowak ";
    f.txt(Osoba::Imie).Text = "maria";
    f.txt(Osoba::KodUbezpieczenia).Text = " 0110001234 ";
    f.txt(Osoba::Kod).Text = "32-4";
    f.txtEtat.Text = "1";
    f.txtEtat2.Text = "2";
    f.txt(Osoba::DataZatrudnienia).Text = "01-10-1990";
    f.txt(Osoba::NumerIP).Text = "12";
    f.txt(Osoba::Paszport).Text = "ab12";
    f.setOption(f.Option2);
    f.cmdZapiszZmiany_Click();
    EXPECT_EQ(ui.lines(), lines({"[Potwierdzenie zapisu] Zmiany zostały wprowadzone"}));
    const auto after = d.osoby();
    ASSERT_EQ(after.size(), before.size());
    const core::Record& r = after[1];
    EXPECT_EQ(r.s(Osoba::Nazwisko), "WIŚNIEWSKA-NOWAK");
    EXPECT_EQ(r.s(Osoba::Imie), "MARIA");
    EXPECT_EQ(r.s(Osoba::KodUbezpieczenia), "011000");
    EXPECT_EQ(r.s(Osoba::Kod), "32-4  ");
    EXPECT_EQ(r.s(Osoba::Etat), "  1  2");
    EXPECT_EQ(r.s(Osoba::DataZatrudnienia), "01-10-1990X          ");
    EXPECT_EQ(r.s(Osoba::NumerIP), "12");
    EXPECT_EQ(r.s(Osoba::Paszport), "AB12");
    EXPECT_EQ(r.s(Osoba::Obywatelstwo), "POLSKIE");
    EXPECT_EQ(r.i(Osoba::Status), 2);
    EXPECT_EQ(r.i(Osoba::Numer), 2);                       // value 40 passes through
    EXPECT_EQ(r.item(Osoba::Rezerwa28), before[1].item(Osoba::Rezerwa28));
    EXPECT_EQ(r.s(Osoba::Koniec), "<koniec>");
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (i == 1) continue;
        for (int n = 1; n <= Osoba::Count; ++n) EXPECT_EQ(after[i].item(n), before[i].item(n)) << i << " " << n;
    }
    // The person is still found under the identifier it had when it was opened.
    EXPECT_EQ(d.s.KluczOsoby, "63072245629");
}

TEST(Osoba1, ForeignerAddedThenSaved) {
    DemoList d;
    d.nowa();
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    // New-person mode with the next free number.
    EXPECT_TRUE(f.trybNowejOsoby());
    EXPECT_EQ(f.txt(Osoba::Nazwisko).Text, "Nowe");
    EXPECT_EQ(f.txt(Osoba::Imie).Text, "Nowe");
    EXPECT_EQ(f.txt(Osoba::Pesel).Text, "00000000000");
    EXPECT_EQ(f.txt(Osoba::KodUbezpieczenia).Text, "011000");
    EXPECT_EQ(f.txt(Osoba::NumerIP).Text, "8");
    EXPECT_EQ(f.txt(Osoba::DrugieImie).Text, "");
    f.txt(Osoba::Nazwisko).Text = "Ivanova";
    f.txt(Osoba::Imie).Text = "Tatsiana";
    f.txt(Osoba::Pesel).Text = "";
    f.txt(Osoba::Paszport).Text = "mp4455667";
    f.txt(Osoba::Obywatelstwo).Text = "BIAŁORUSKIE";
    f.txt(Osoba::DataUrodzenia).Text = "12-06-1994";
    f.txtEtat.Text = "1";
    f.txtEtat2.Text = "1";
    f.cmdZapiszNowaOsobe_Click();
    EXPECT_EQ(ui.lines(), lines({"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany", "[Dopisany] Rekord zostal dopisany "}));
    EXPECT_FALSE(f.trybNowejOsoby());
    EXPECT_EQ(d.s.KluczOsoby, "MP4455667");
    EXPECT_EQ(d.s.NazwiskoOsoby, "IVANOVA");
    EXPECT_EQ(d.s.LiczbaOsob, 8);
    auto recs = d.osoby();
    ASSERT_EQ(recs.size(), 8u);
    const core::Record& r = recs[7];
    EXPECT_EQ(r.s(Osoba::Nazwisko), "IVANOVA");
    EXPECT_EQ(r.s(Osoba::Paszport), "MP4455667");
    EXPECT_EQ(r.s(Osoba::Obywatelstwo), "POLSKIE");  // until the first save
    EXPECT_EQ(r.s(Osoba::DataZatrudnienia), "31-01-2021X          ");
    EXPECT_EQ(r.item(Osoba::Rezerwa28).kind, core::Item::Empty);
    EXPECT_EQ(r.s(Osoba::FGSP), "");
    EXPECT_EQ(r.i(Osoba::Status), 1);
    EXPECT_EQ(r.i(Osoba::Numer), 8);
    EXPECT_EQ(kluczOsoby(r), "");  // searched under the empty PESEL
    // The first "Zapisz zmiany" stores the real citizenship.
    ui.boxes.clear();
    f.cmdZapiszZmiany_Click();
    EXPECT_EQ(ui.lines(), lines({"[]  Jezeli jest to cudzoziemiec to wpisz Obywatelstwo i Nr Paszportu",
                                 "[Potwierdzenie zapisu] Zmiany zostały wprowadzone"}));
    recs = d.osoby();
    ASSERT_EQ(recs.size(), 8u);
    EXPECT_EQ(recs[7].s(Osoba::Obywatelstwo), "BIAŁORUSKIE");
    EXPECT_EQ(kluczOsoby(recs[7]), "MP4455667");
    EXPECT_EQ(recs[7].s(Osoba::DataZatrudnienia), "31-01-2021X          ");
    // The next opening finds the person under the passport.
    Osoba1Screen g(ui, d.s);
    g.Load();
    EXPECT_FALSE(g.trybNowejOsoby());
    EXPECT_EQ(g.txt(Osoba::Obywatelstwo).Text, "BIAŁORUSKIE");
}

TEST(Osoba1, AddingAPersonBoxes) {
    struct {
        const char *what, *pesel, *paszport, *obywatelstwo;
        std::vector<std::string> boxes;
        bool written;
        const char* zapisaneObywatelstwo;
    } cases[] = {
        {"no identifier at all", "", "", "POLSKIE",
         {"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany",
          "[Błędne dane !] Blad zapisu Wpisz PESEL dla krajowca lub Paszport i Obywatelstwo dla obckrajowca"},
         false, ""},
        {"no citizenship", "92010112345", "", "",
         {"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany", "[Błąd] Ustal Obywatelstwo", "[Dopisany] Rekord zostal dopisany "},
         true, "POLSKIE"},
        {"foreigner with a PESEL", "92010112345", "XY1", "CZESKIE",
         {"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany",
          "[Błąd] Błąd - musi być wpisany prawidłowy Identyfikator Pesel dla Polaka Paszport dla cudzoziemca(Obywatelstwo)",
          "[Dopisany] Rekord zostal dopisany "},
         true, "POLSKIE"},
        {"Polish without PESEL", "", "XY1", "POLSKIE",
         {"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany",
          "[Błąd] Błąd - musi być wpisany prawidłowy Identyfikator Pesel dla Polaka Paszport dla cudzoziemca(Obywatelstwo)",
          "[Błąd] Błąd - musi być wpisany prawidłowy Identyfikator Pesel dla Polaka Paszport dla cudzoziemca(Obywatelstwo)"},
         false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        DemoList d;
        d.nowa();
        const std::string before = readBytes(d.per());
        ScriptedDialogs ui;
        Osoba1Screen f(ui, d.s);
        f.Load();
        f.txt(Osoba::Nazwisko).Text = "Nowicki";
        f.txt(Osoba::Imie).Text = "Adam";
        f.txt(Osoba::Pesel).Text = c.pesel;
        f.txt(Osoba::Paszport).Text = c.paszport;
        f.txt(Osoba::Obywatelstwo).Text = c.obywatelstwo;
        f.cmdZapiszNowaOsobe_Click();
        EXPECT_EQ(ui.lines(), c.boxes);
        auto recs = d.osoby();
        if (!c.written) {
            EXPECT_EQ(readBytes(d.per()), before);
            EXPECT_TRUE(f.trybNowejOsoby());
            continue;
        }
        ASSERT_EQ(recs.size(), 8u);
        EXPECT_EQ(recs[7].s(Osoba::Obywatelstwo), c.zapisaneObywatelstwo);
        EXPECT_EQ(recs[7].s(Osoba::Pesel), c.pesel);
    }
}

TEST(Osoba1, CancelledAddWritesNothing) {
    DemoList d;
    d.nowa();
    const std::string before = readBytes(d.per());
    ScriptedDialogs ui;
    ui.answer(core::Answer::Cancel);
    Osoba1Screen f(ui, d.s);
    f.Load();
    f.txt(Osoba::Pesel).Text = "92010112345";
    f.cmdZapiszNowaOsobe_Click();
    EXPECT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(readBytes(d.per()), before);
}

TEST(Osoba1, UnknownPersonOpensNewPersonMode) {
    DemoList d;
    d.wybierz(0);
    d.s.KluczOsoby = "99999999999";
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(f.trybNowejOsoby());
    EXPECT_EQ(d.s.NazwiskoOsoby, "Nowe");
    EXPECT_EQ(d.s.KluczOsoby, "00000000000");
    EXPECT_EQ(d.s.KodUbezpieczeniaOsoby, "011000");
    EXPECT_EQ(f.txt(Osoba::NumerIP).Text, "8");
}

TEST(Osoba1, MissingFileQuestion) {
    {
        DemoList d;
        std::filesystem::remove(d.per());
        d.nowa();
        ScriptedDialogs ui;
        ui.answer(core::Answer::No);
        Osoba1Screen f(ui, d.s);
        f.Load();
        EXPECT_EQ(ui.lines(), lines({"[Brak zbioru Kadry !] Brak pliku Płacowo-Kadrowego w wybranym katalogu -> założenie zbioru od nowa Tak ?"}));
        EXPECT_TRUE(f.Unloaded);
        EXPECT_FALSE(std::filesystem::exists(d.per()));
    }
    DemoList d;
    std::filesystem::remove(d.per());
    d.nowa();
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_EQ(ui.last(), "[Wpis pierwszy !] Uzupełnij dane i Zapisz zmiany!");
    EXPECT_FALSE(f.Unloaded);
    std::vector<std::string> want(41, "\"\"");
    want[0] = "\"<Poczatek>\"";
    want[1] = "\"Nowe\"";
    want[2] = "\"Imie\"";
    want[4] = "\"00000000000\"";
    want[27] = "";
    want[38] = "1";
    want[39] = "1";
    want[40] = "\"<koniec>\"";
    EXPECT_EQ(testing_support::readLines(d.per()), want);
    // The first record is on the screen, to be completed and saved.
    EXPECT_FALSE(f.trybNowejOsoby());
    f.txt(Osoba::Nazwisko).Text = "Nowak";
    f.txt(Osoba::Imie).Text = "Jan";
    f.txt(Osoba::Pesel).Text = "75031412317";
    f.txt(Osoba::KodUbezpieczenia).Text = "011000";
    f.txt(Osoba::DataUrodzenia).Text = "14-03-1975";
    f.cmdZapiszZmiany_Click();
    auto recs = d.osoby();
    ASSERT_EQ(recs.size(), 1u);
    EXPECT_EQ(recs[0].s(Osoba::Nazwisko), "NOWAK");
}

TEST(Osoba1, ErrorsInBaseBox) {
    DemoList d;
    auto recs = d.osoby();
    recs[3].set(Osoba::Nazwisko, "");
    recs[3].set(Osoba::Pesel, "");
    core::writeAll(d.per(), recs);
    d.s.NazwiskoOsoby = "";
    d.s.KluczOsoby = "";
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_EQ(ui.lines(), lines({"[Błedy w Bazie]  Błędy w bazie - przeprowadź Kalibrowanie Bazy i sortowanie pracownikow po kalibracji"}));
    EXPECT_EQ(f.txt(Osoba::Imie).Text, "KATARZYNA");
}

TEST(Osoba1, PostalLookupAndBirthDate) {
    DemoList d;
    d.wybierz(0);
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    f.txt(Osoba::Kod).Text = "34-700 ";
    f.txtKod_Change();
    EXPECT_EQ(f.txt(Osoba::Kod).Text, "34-700");
    EXPECT_EQ(f.txt(Osoba::Miejscowosc).Text, "Rabka-Zdrój");
    EXPECT_EQ(f.txt(Osoba::Poczta).Text, "Rabka-Zdrój");
    EXPECT_EQ(f.txt(Osoba::Gmina).Text, "Rabka-Zdrój");
    EXPECT_EQ(f.txt(Osoba::Powiat).Text, "Nowy Targ");
    EXPECT_EQ(f.txt(Osoba::Wojewodztwo).Text, "Małopolskie");
    f.txt(Osoba::Kod).Text = "32-40";  // five characters: no lookup
    f.txtKod_Change();
    EXPECT_EQ(f.txt(Osoba::Miejscowosc).Text, "Rabka-Zdrój");
    f.txt(Osoba::Kod).Text = "99-999";  // unknown: the five fields emptied
    f.txtKod_Change();
    for (auto* c : {&f.txt(Osoba::Miejscowosc), &f.txt(Osoba::Poczta), &f.txt(Osoba::Gmina), &f.txt(Osoba::Powiat), &f.txt(Osoba::Wojewodztwo)}) EXPECT_EQ(c->Text, "");

    f.txt(Osoba::Pesel).Text = "85031512345";
    f.txt(Osoba::DataUrodzenia).Text = "";
    f.txtDataUrodzenia_Click();
    EXPECT_EQ(f.txt(Osoba::DataUrodzenia).Text, "15-03-1985");
    f.txt(Osoba::Pesel).Text = "01211512345";
    f.txt(Osoba::DataUrodzenia).Text = "";
    f.fire(f.txt(Osoba::DataUrodzenia), &core::Control::Click);
    EXPECT_EQ(f.txt(Osoba::DataUrodzenia).Text, "15-21-2001");
    EXPECT_TRUE(ui.boxes.empty());
}

TEST(Osoba1, EnterMovesOnAndPostFraction) {
    DemoList d;
    d.wybierz(0);
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    struct {
        core::Control* c;
        const char* next;
    } cases[] = {{&f.txt(Osoba::Nazwisko), "txtImie"}, {&f.txt(Osoba::Imie), "txtPesel"}, {&f.txtEtat, "txtEtat2"}};
    for (const auto& c : cases) {
        f.FocusTo.clear();
        f.fire(*c.c, &core::Control::KeyEnter);
        EXPECT_EQ(f.FocusTo, c.next);
    }
    f.txtEtat.Text = "1";
    f.txtEtat2.Text = "3";
    f.fire(f.txtEtat2, &core::Control::Change);
    EXPECT_EQ(f.lbUlamekEtatu.Caption, "0.33");
    EXPECT_DOUBLE_EQ(d.s.Osoba.UlamekEtatu, static_cast<double>(33.33f) / 100);
}

TEST(Osoba1, OtherScreensOfThePersonByName) {
    DemoList d;
    d.wybierz(4);  // KOWALENKO, a foreigner
    core::Screens screens;
    std::vector<std::string> opened;
    core::EkranOsoby seen;
    screens.add("frmPlaca", [&](core::Session& s, core::Dialogs&) {
        opened.push_back("frmPlaca");
        seen = s.Osoba;
    });
    screens.add("frmPotracenia", [&](core::Session&, core::Dialogs&) { opened.push_back("frmPotracenia"); });
    ScriptedDialogs ui;
    ui.screens = &screens;
    Osoba1Screen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(f.placa.Enabled);
    EXPECT_TRUE(f.potr.Enabled);
    for (auto* c : {&f.Zasilki, &f.chorobowe, &f.urlopy, &f.Roczna, &f.mnuMiesieczne, &f.mnuRoczne, &f.CzasPracy, &f.CmdKadry})
        EXPECT_FALSE(c->Enabled) << c->Name;
    EXPECT_TRUE(f.lista.Enabled);
    f.txtEtat.Text = "1";
    f.txtEtat2.Text = "2";
    f.fire(f.placa, &core::Control::Click);
    f.fire(f.potr, &core::Control::Click);
    EXPECT_EQ(opened, (std::vector<std::string>{"frmPlaca", "frmPotracenia"}));
    EXPECT_TRUE(seen.Otwarty);
    EXPECT_EQ(seen.Etat, "1");
    EXPECT_EQ(seen.Etat2, "2");
    EXPECT_EQ(seen.Paszport, "FP123456");
    EXPECT_EQ(seen.Obywatelstwo, "UKRAIŃSKIE");
    EXPECT_EQ(seen.DataZatrudnienia, "01-06-2018");
    EXPECT_EQ(seen.Grupa, "a");
    f.fire(f.lista, &core::Control::Click);
    EXPECT_TRUE(f.Unloaded);
    EXPECT_TRUE(ui.boxes.empty());
}

TEST(Osoba1, DoubleQuoteIsRefusedByEveryWriterOfThePersonFile) {
    struct {
        const char* what;
        std::function<void(DemoList&, ScriptedDialogs&)> run;
        const char* pole;  // named in the box
    } cases[] = {
        {"changes with a comma",
         [](DemoList& d, ScriptedDialogs& ui) {
             d.wybierz(1);
             Osoba1Screen f(ui, d.s);
             f.Load();
             f.txt(Osoba::Ulica).Text = "Aleja \"Róż\", 5";
             f.cmdZapiszZmiany_Click();
             EXPECT_EQ(f.FocusTo, "TxtUlica");
         }, "\"Ulica\""},
        {"new person",
         [](DemoList& d, ScriptedDialogs& ui) {
             d.nowa();
             Osoba1Screen f(ui, d.s);
             f.Load();
             f.txt(Osoba::Pesel).Text = "92010112345";
             f.txt(Osoba::Obywatelstwo).Text = "POLSKIE";
             f.txt(Osoba::Ulica).Text = "Aleja \"Róż\"";
             f.cmdZapiszNowaOsobe_Click();
         }, "\"Ulica\""},
        {"renumbering in the sort",
         [](DemoList& d, ScriptedDialogs& ui) {
             SortujKadroweScreen f(ui, d.s);
             f.Load();
             f.MSFlexGrid7.Row = 1;
             f.MSFlexGrid7.Col = 1;
             ui.type(std::string("1\""));
             f.MSFlexGrid7_DblClick();
             f.cmdZapiszPosortowane_Click();
         }, "\"NumerIP\""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        DemoList d;
        const std::string before = readBytes(d.per());
        ScriptedDialogs ui;
        c.run(d, ui);
        EXPECT_EQ(ui.boxes.back().title, "Błędne dane");
        EXPECT_NE(ui.last().find(c.pole), std::string::npos);
        EXPECT_EQ(readBytes(d.per()), before);
    }
}

TEST(Osoba1, NewPersonModeEmptiesEveryOtherBox) {
    DemoList d;
    d.wybierz(0);  // the boxes of a person shown before must not stay
    d.s.Grupa = "n";
    d.nowa();
    ScriptedDialogs ui;
    Osoba1Screen f(ui, d.s);
    f.Load();
    for (const core::Control* c : f.controls()) {
        if (c->kind != core::Kind::TextBox) continue;
        const std::string n = c->Name;
        if (n == "txtNazwisko" || n == "txtImie" || n == "txtPesel" || n == "txtKodUbezpieczenia" || n == "txtNumerIP")
            continue;
        EXPECT_EQ(c->Text, "") << n;
    }
    // So the citizenship is asked for on adding.
    f.txt(Osoba::Nazwisko).Text = "Nowicki";
    f.txt(Osoba::Imie).Text = "Adam";
    f.txt(Osoba::Pesel).Text = "92010112345";
    f.cmdZapiszNowaOsobe_Click();
    EXPECT_EQ(ui.lines(), lines({"[Dodaj rekord] Uzupełnij niezbedne dane i Zapisz Zmiany", "[Błąd] Ustal Obywatelstwo",
                                 "[Dopisany] Rekord zostal dopisany "}));
}
