#include <gtest/gtest.h>

#include "core/text.h"
#include "payinputs/pay_record.h"
#include "payinputs/placa.h"
#include "support/demo.h"
#include "reference/payers.h"
#include "support/scripted.h"

using namespace payinputs;
using DemoList = testing_support::DemoLista;
using testing_support::readBytes;
using testing_support::readLines;
using testing_support::ScriptedDialogs;

namespace {

std::vector<std::string> lines(std::initializer_list<const char*> l) { return {l.begin(), l.end()}; }

// The lines of record `i` (0-based) of a pay file.
std::vector<std::string> rekord(const std::vector<std::string>& file, std::size_t i) {
    return {file.begin() + static_cast<long>(i * Pay::Count), file.begin() + static_cast<long>((i + 1) * Pay::Count)};
}

}  // namespace

TEST(Placa, OpensTheRecordOfThePerson) {
    DemoList d;
    d.wybierz(6);  // LEWANDOWSKA EWA, 3/4 of a post
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_TRUE(f.maRekord());
    EXPECT_EQ(f.Caption, "Płaca LEWANDOWSKA EWA");
    EXPECT_EQ(f.txt(Pay::Zasadnicza).Text, "4000");
    EXPECT_EQ(f.txt(Pay::Stazowy).Text, "200");
    EXPECT_EQ(f.txt(Pay::ZastosStaPOD).Text, "0.17");
    EXPECT_EQ(f.txt(Pay::KwotaUlgi).Text, "43.76");
    EXPECT_EQ(f.txt(Pay::DataZatrudnienia).Text, "01-01-2016");
    EXPECT_EQ(f.txt(Pay::WskaznikEtatu).Text, "0.75");  // 3 / 4 from the personnel record
    EXPECT_EQ(f.txt(Pay::ROR).Text, "9999");
    EXPECT_EQ(f.Option1.Value, 1);
    EXPECT_EQ(f.Opnie.Value, 1);
    for (auto* c : {&f.Check1, &f.Check2, &f.Check3, &f.Check4, &f.Check5}) EXPECT_EQ(c->Value, 1) << c->Name;
    EXPECT_EQ(f.Check6.Value, 0);
    EXPECT_EQ(f.cmbRodzajUmowy.ListIndex, 0);
    EXPECT_EQ(f.Label10.Caption, "Na&Dliczbowe");
    EXPECT_FALSE(f.Label25.Visible);
    EXPECT_EQ(f.Label25.Caption, "Przekroczony próg 17%");
    EXPECT_FALSE(f.Label27.Visible);
    EXPECT_FALSE(f.cmdWpiszDane.Enabled);
}

TEST(Placa, LabelsOfTheLimitsAndOfTheTwoTaxNumbers) {
    struct {
        double suma, brutto;
        bool prog;
        const char* re;
    } cases[] = {
        {5000, 80000, false, ""},
        {5000, 86000, true, ""},                                    // above the first bracket 85528
        {10000, 150000, true, "Podstawa do R i E=7770"},            // 160000 over 157770, 157770 - 150000
        {10000, 160000, true, "Przekroczony próg składek R i E"},   // already over at the start
        {7770, 150000, true, ""},                                   // exactly at the limit
        {7770.004, 150000, true, ""},                               // over, but not after two decimals
        {7770.006, 150000, true, "Podstawa do R i E=7770"},
        {1000, 157769.5, true, "Podstawa do R i E=0.5"},
    };
    for (const auto& c : cases) {
        Progi p = progi(c.suma, c.brutto, 85528, 157770);
        EXPECT_EQ(p.progPodatkowy, c.prog) << c.suma << " " << c.brutto;
        EXPECT_EQ(p.skladkiRE, c.re) << c.suma << " " << c.brutto;
    }
    EXPECT_EQ(opisLabel10("1112223334"), "W&Ychowawstwo");
    EXPECT_EQ(opisLabel10("5556667778"), "W&Ychowawstwo");
    EXPECT_EQ(opisLabel10("6811234567"), "Na&Dliczbowe");
    EXPECT_EQ(opisLabel10(""), "Na&Dliczbowe");

    DemoList d;
    d.wybierz(0);
    d.s.Firma.set(reference::Firma::NIP, "5556667778");
    auto recs = Pay::readAll(d.dta());
    recs[0].set(Pay::BruttoOd01, 152000.0);
    core::writeAll(d.dta(), recs);
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    EXPECT_EQ(f.Label10.Caption, "W&Ychowawstwo");
    EXPECT_TRUE(f.Label25.Visible);
    // 5200 + 600 + 780 + 0.2 of the typed elements: 6580.2 and 152000 pass 157770.
    EXPECT_TRUE(f.Label27.Visible);
    EXPECT_EQ(f.Label27.Caption, "Podstawa do R i E=5770");
    f.txt(Pay::Zasadnicza).Text = "0";  // 1380.2 no longer reaches the limit
    f.fire(f.txt(Pay::Zasadnicza), &core::Control::Change);
    EXPECT_FALSE(f.Label27.Visible);
}

TEST(Placa, ClickDefaults) {
    DemoList d;
    d.wybierz(0);
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    core::Control& koszty = f.txt(Pay::KosztyUzyskania);
    core::Control& ulga = f.txt(Pay::KwotaUlgi);
    core::Control& stawka = f.txt(Pay::ZastosStaPOD);
    f.fire(koszty, &core::Control::Click);
    EXPECT_EQ(koszty.Text, "250");
    f.setOption(f.Optak);
    f.fire(koszty, &core::Control::Click);
    EXPECT_EQ(koszty.Text, "300");
    f.fire(ulga, &core::Control::Click);
    EXPECT_EQ(ulga.Text, "43.76");
    f.setOption(f.Option6);
    f.fire(ulga, &core::Control::Click);
    EXPECT_EQ(ulga.Text, "87.52");
    f.setOption(f.Option4);
    f.fire(ulga, &core::Control::Click);
    EXPECT_EQ(ulga.Text, "175.04");
    f.fire(stawka, &core::Control::Click);
    EXPECT_EQ(stawka.Text, "0.17");  // not empty: kept
    stawka.Text = " ";
    f.fire(stawka, &core::Control::Click);
    EXPECT_EQ(stawka.Text, "17");
    // A contract of mandate: base less its health rate of 9 percent, times 20.
    d.s.Osoba.Grupa = "u";
    f.txt(Pay::Zasadnicza).Text = "1000";
    f.fire(koszty, &core::Control::Click);
    EXPECT_EQ(koszty.Text, "18200");
    EXPECT_TRUE(ui.boxes.empty());
}

TEST(Placa, SaveWithACommaAndTheLowerCaseEndMarker) {
    DemoList d;
    d.wybierz(2);  // ZIELIŃSKI, the third record
    const auto before = readLines(d.dta());
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    f.txt(Pay::Premia).Text = "0,25";
    f.txt(Pay::Funkcyjny).Text = "350,5zł";
    f.txt(Pay::WskTabeli).Text = "m1";
    f.txt(Pay::ZastosStaPOD).Text = "18";
    f.setOption(f.Option6);
    f.Check3.Value = 0;
    f.cmdZapiszZmiany_Click();
    EXPECT_EQ(ui.lines(), lines({"[zmiany)] Zmiany wykonane !"}));
    const auto after = readLines(d.dta());
    ASSERT_EQ(after.size(), before.size());
    auto r = Pay::readAll(d.dta());
    EXPECT_EQ(r[2].s(Pay::Premia), "0.25");
    EXPECT_EQ(r[2].s(Pay::Funkcyjny), "350.5");
    EXPECT_EQ(r[2].item(Pay::WskTabeli), core::Item::quoted("M1"));
    EXPECT_EQ(r[2].s(Pay::ZastosStaPOD), "0.18");
    EXPECT_EQ(r[2].item(Pay::SamotnaMatka), core::Item::quoted("1"));
    EXPECT_EQ(r[2].s(Pay::Chorobowa), "0");
    EXPECT_EQ(f.txt(Pay::Premia).Text, "0.25");
    // Every record carries the lower-case end marker; the rest of the others is as it was.
    for (std::size_t i = 0; i < r.size(); ++i) {
        EXPECT_EQ(r[i].s(Pay::Koniec), "<koniec>");
        EXPECT_EQ(r[i].i(Pay::Numer), static_cast<long>(i + 1));
        if (i == 2) continue;
        auto a = rekord(before, i), b = rekord(after, i);
        for (int n = 0; n < Pay::Koniec - 1; ++n) EXPECT_EQ(a[n], b[n]) << i << " " << n + 1;
    }
    // Fields the screen does not change keep their form, an untouched switch included.
    auto a = rekord(before, 2), b = rekord(after, 2);
    for (int n : {Pay::Nazwisko, Pay::ROR, Pay::NumerKontaROR, Pay::BruttoOd01, Pay::Rezerwa89, Pay::Rentowa,
                  Pay::DataZatrudnieniaDO, Pay::Stazowy})
        EXPECT_EQ(a[n - 1], b[n - 1]) << n;
}

TEST(Placa, TwoRecordsOfOneKeyAreBothReplaced) {
    DemoList d;
    auto recs = Pay::readAll(d.dta());
    recs.push_back(recs[0]);  // NOWAK twice
    core::writeAll(d.dta(), recs);
    d.wybierz(0);
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    f.txt(Pay::Zasadnicza).Text = "5400";
    f.cmdZapiszZmiany_Click();
    auto r = Pay::readAll(d.dta());
    ASSERT_EQ(r.size(), 8u);
    EXPECT_EQ(r[0].s(Pay::Zasadnicza), "5400");
    EXPECT_EQ(r[7].s(Pay::Zasadnicza), "5400");
    EXPECT_EQ(r[7].i(Pay::Numer), 8);
    EXPECT_EQ(r[1].s(Pay::Zasadnicza), "4800");
}

TEST(Placa, SaveWithoutARecordRenumbersOnly) {
    DemoList d;
    auto recs = Pay::readAll(d.dta());
    recs[1].set(Pay::Numer, 40L);
    core::writeAll(d.dta(), recs);
    const auto before = readLines(d.dta());
    d.wybierz(0);
    d.s.KluczOsoby = "12345678901";
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    EXPECT_FALSE(f.maRekord());
    EXPECT_TRUE(f.cmdWpiszDane.Enabled);
    f.txt(Pay::Zasadnicza).Text = "9999";
    f.cmdZapiszZmiany_Click();
    const auto after = readLines(d.dta());
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        const int n = static_cast<int>(i % Pay::Count) + 1;
        if (n == Pay::Koniec)
            EXPECT_EQ(after[i], "\"<koniec>\"");
        else if (n == Pay::Numer)
            EXPECT_EQ(after[i], std::to_string(i / Pay::Count + 1));
        else
            EXPECT_EQ(after[i], before[i]) << i;
    }
}

TEST(Placa, NewRecordOfAPersonWithoutOne) {
    DemoList d;
    // The person is on the list, the pay record not yet.
    auto recs = Pay::readAll(d.dta());
    recs.erase(recs.begin() + 4);  // KOWALENKO
    core::writeAll(d.dta(), recs);
    d.wybierz(4);
    d.s.Osoba = core::EkranOsoby{};
    ScriptedDialogs ui;
    ui.answer(core::Answer::Cancel);
    PlacaScreen f(ui, d.s);
    f.Load();
    EXPECT_FALSE(f.maRekord());
    EXPECT_EQ(d.s.NowyZapis, "");
    EXPECT_EQ(f.txt(Pay::DataZatrudnienia).Text, "01-06-2018");
    const std::string bytes = readBytes(d.dta());
    f.cmdWpiszDane_Click();  // cancelled
    EXPECT_EQ(readBytes(d.dta()), bytes);
    f.txt(Pay::Zasadnicza).Text = "3600";  // typed, but a new record starts from the defaults
    f.cmdWpiszDane_Click();
    EXPECT_EQ(ui.lines(), lines({"[Brak danych placowych dla tego nazwiska!] Zakładam zbiór płacowy dla wybranej osoby ?",
                                 "[Brak danych placowych dla tego nazwiska!] Zakładam zbiór płacowy dla wybranej osoby ?",
                                 "[]  Zapisano "}));
    EXPECT_EQ(ui.boxes[0].buttons, core::Buttons::OKCancel);
    EXPECT_TRUE(f.maRekord());
    EXPECT_FALSE(f.cmdWpiszDane.Enabled);
    auto r = Pay::readAll(d.dta());
    ASSERT_EQ(r.size(), 7u);
    const core::Record& n = r[6];
    EXPECT_EQ(n.s(Pay::Nazwisko), "KOWALENKO");
    EXPECT_EQ(n.s(Pay::Imie), "OLENA");
    EXPECT_EQ(n.s(Pay::Pesel), "FP123456");  // the session's identifier
    EXPECT_EQ(n.s(Pay::KodUbezpieczenia), "011000");
    EXPECT_EQ(n.s(Pay::Dokument), "FP123456");
    EXPECT_EQ(n.s(Pay::Obywatelstwo), "UKRAIŃSKIE");
    EXPECT_EQ(kluczOsoby(n), "FP123456");
    EXPECT_EQ(n.s(Pay::Zasadnicza), "0");
    EXPECT_EQ(n.s(Pay::ZastosStaPOD), "0.17");
    for (int k : {Pay::Rentowa, Pay::Emerytalna, Pay::Chorobowa, Pay::Zdrowotna, Pay::Wypadkowa}) EXPECT_EQ(n.i(k), 1);
    EXPECT_EQ(n.item(Pay::DataZatrudnienia), core::Item::quoted(""));
    EXPECT_EQ(n.i(Pay::Numer), 7);
    EXPECT_EQ(n.s(Pay::Koniec), "<Koniec>");
    EXPECT_FALSE(std::filesystem::exists(d.dta().parent_path() / "Tymcz.dat"));
    // The typed base then goes in by "Zapisz zmiany", and the new date brings the allowance:
    // 01-06-2018 to 31-01-2021 is two full years, nothing below five.
    f.cmdZapiszZmiany_Click();
    r = Pay::readAll(d.dta());
    EXPECT_EQ(r[6].s(Pay::Zasadnicza), "3600");
    EXPECT_EQ(r[6].item(Pay::DataZatrudnienia), core::Item::quoted("01-06-2018"));
    EXPECT_EQ(r[6].s(Pay::Stazowy), "0");
    EXPECT_EQ(r[6].s(Pay::WskaznikEtatu), "0.75");
}

TEST(Placa, SeniorityForARecordWithoutDateOfHire) {
    struct {
        const char *data, *grupa, *dodatek;
        const char* stazowy;
        const char* wRekordzie = "";  // the record's flag before the save
    } cases[] = {
        {"01-01-2010", "a", "", "440"},   // 11 years of 4000
        {"15-01-2010", "a", "", "400"},   // hired later in the list month: 10 years
        {"01-02-2018", "a", "", "0"},     // 2 years: below 5
        {"01-02-2017", "n", "", "120"},   // a teacher from 3 years: 3 percent
        {"01-01-1990", "a", "", "800"},   // 31 years: 20 percent
        {"01-01-2010", "a", "1", "123", "1"},  // a fixed allowance is not computed
        // The decision reads the flag the record had; the option reaches it afterwards.
        {"01-01-2010", "a", "", "123", "1"},
        {"01-01-2010", "a", "1", "440", ""},
        {"01-01-2010", "a", "1", "440", "0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.data) + " " + c.grupa + " " + c.dodatek + " " + c.wRekordzie);
        DemoList d;
        auto recs = Pay::readAll(d.dta());
        recs[0].set(Pay::DodatekStazowy, c.wRekordzie);
        recs[0].set(Pay::DataZatrudnienia, "");
        recs[0].set(Pay::Zasadnicza, 4000.0f);
        recs[0].set(Pay::Stazowy, 123.0f);
        core::writeAll(d.dta(), recs);
        d.wybierz(0);
        d.s.Osoba.Otwarty = true;
        d.s.Osoba.Grupa = c.grupa;
        d.s.Osoba.DataZatrudnienia = c.data;
        d.s.Osoba.Etat = d.s.Osoba.Etat2 = "1";
        ScriptedDialogs ui;
        ui.answer(core::Answer::OK);
        PlacaScreen f(ui, d.s);
        f.Load();
        f.setOption(*c.dodatek ? f.Option2 : f.Option1);
        f.cmdWpiszDane_Click();  // replaces the existing record
        EXPECT_EQ(ui.last(), "[]  Zapisano ");
        auto r = Pay::readAll(d.dta());
        EXPECT_EQ(r[0].s(Pay::Stazowy), c.stazowy);
        EXPECT_EQ(f.txt(Pay::Stazowy).Text, c.stazowy);
        EXPECT_EQ(r[0].s(Pay::Grupa), c.grupa);
        EXPECT_EQ(r[0].s(Pay::Koniec), "<Koniec>");
    }
}

TEST(Placa, LetterInAnAmountOfTheFile) {
    DemoList d;
    auto lines = readLines(d.dta());
    lines[Pay::Zasadnicza - 1] = "52O0";
    testing_support::writeLines(d.dta(), lines);
    d.wybierz(0);
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    ASSERT_EQ(ui.boxes.size(), 1u);
    const std::string& t = ui.boxes[0].text;
    EXPECT_EQ(core::Left(t, 21), " Błąd nr 13 w linii a");
    EXPECT_NE(t.find("Zasadnicza"), std::string::npos);
    EXPECT_NE(t.find("\n wpisano nieprawiłowe dane - literka zamiast cyfry !\n Usuń dane i wprowadz poprawnie"),
              std::string::npos);
    EXPECT_FALSE(f.maRekord());

    // A save that cannot read the file reports it in its own words and leaves the file.
    const std::string bytes = readBytes(d.dta());
    ui.boxes.clear();
    f.cmdZapiszZmiany_Click();
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(core::Left(ui.boxes[0].text, 19), "Błąd Nr 13 w lini a");
    EXPECT_EQ(readBytes(d.dta()), bytes);
}

TEST(Placa, MissingPayFileIsMadeByTheFirstRecord) {
    DemoList d;
    std::filesystem::remove(d.dta());
    d.wybierz(0);
    ScriptedDialogs ui;
    PlacaScreen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_FALSE(f.maRekord());
    f.cmdWpiszDane_Click();
    auto r = Pay::readAll(d.dta());
    ASSERT_EQ(r.size(), 1u);
    EXPECT_EQ(r[0].i(Pay::Numer), 1);
    EXPECT_EQ(r[0].s(Pay::Grupa), "a");
}

TEST(Placa, DoubleQuoteIsRefusedWithTheFileWhole) {
    struct {
        const char* what;
        int field;
        bool newRecord;
        std::string box;
    } cases[] = {
        {"account, changes", Pay::NumerKontaROR, false, "Nr konta ROR"},
        {"end of employment, record made again", Pay::DataZatrudnieniaDO, true, "Data zatrudnienia Do"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        DemoList d;
        d.wybierz(2);
        const std::string before = readBytes(d.dta());
        ScriptedDialogs ui;
        PlacaScreen f(ui, d.s);
        f.Load();
        f.txt(c.field).Text = "12 \"34\" 56";
        c.newRecord ? f.cmdWpiszDane_Click() : f.cmdZapiszZmiany_Click();
        EXPECT_EQ(ui.last(), "[Błędne dane] Pole \"" + c.box + "\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano.");
        EXPECT_EQ(f.FocusTo, f.txt(c.field).Name);
        EXPECT_EQ(readBytes(d.dta()), before);
    }
}
