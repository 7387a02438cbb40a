// frmlista driven headless: the lines of the list, the choice of a person, the tabs and their
// files, the commands that open other screens by name, and the long commands with their bar.
#include <gtest/gtest.h>

#include "core/screens.h"
#include "core/text.h"
#include "support/demo.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "paycalc/lista.h"
#include "paycalc/screens.h"

using namespace paycalc;
using core::Answer;
using testing_support::DemoLista;
namespace Osoba = personnel::Osoba;
namespace Pay = payinputs::Pay;

namespace {

struct Ekran : DemoLista {
    core::Screens screens;
    std::vector<std::string> otwarte;  // screens opened by name, with the person chosen then
    ListaScreen f{ui, s};
    Ekran() {
        for (const char* name : {"frmOsoba1", "frmSortujKadrowe", "cmdDrukListy", "CmdPaski", "frmPodgladWydruku"})
            screens.add(name, [this, name](core::Session& ss, core::Dialogs&) {
                otwarte.push_back(std::string(name) + " " + ss.KluczOsoby + " " + ss.NazwiskoOsoby + " " + ss.NowyZapis);
            });
        ui.screens = &screens;
    }
    void wybierz(int i) {
        f.lstlista.ListIndex = i;
        f.fire(f.lstlista, &core::Control::Click);
    }
    void zakladka(int t) {
        f.TabStrip1.Value = t;
        f.fire(f.TabStrip1, &core::Control::Click);
    }
    void kliknij(const std::string& name) {
        core::Control* c = f.find(name);
        ASSERT_NE(c, nullptr) << name;
        f.fire(*c, &core::Control::Click);
    }
    std::string pole(int tab, int field) {
        core::Control* c = f.pole(tab, field);
        if (!c) return "<brak>";
        return c->kind == core::Kind::TextBox ? c->Text : c->Caption;
    }
};

}  // namespace

TEST(Lista, OpeningShowsThePeopleInTheirColumns) {
    Ekran e;
    e.f.Load();
    EXPECT_EQ(e.f.Caption, "Lista pracowników Administracja");
    EXPECT_EQ(e.f.lbDatalistyk.Caption, "31-01-2021");
    EXPECT_EQ(e.f.Label3.Caption, "Administracja");
    EXPECT_EQ(e.f.Lblista.Caption, "Nr.   Nazwisko                                         Imie           ");
    EXPECT_TRUE(e.f.lstlista.Mono);
    for (int t = 1; t <= 5; ++t) EXPECT_FALSE(e.f.ramka(t).Visible) << t;
    ASSERT_EQ(e.f.lstlista.List.size(), 7u);
    EXPECT_EQ(e.f.Tablica, e.f.lstlista.List);
    EXPECT_EQ(e.s.LiczbaOsob, 7);
    EXPECT_TRUE(std::filesystem::equivalent(e.s.SciezkaOsob, e.payer() / "Person" / "a.per"));
    // Columns 1-3 the number, 5-29 the surname, 31-50 the first name, 56-66 the key, the
    // code in the last 6.
    EXPECT_EQ(e.f.lstlista.List[0], "  1 " + core::PadRight("NOWAK", 25) + " " + core::PadRight("JAN", 20) +
                                        core::Space(5) + "75031412317" + " Tak a   1  1 011000");
    // The foreigner's passport padded to 11 in the key columns.
    EXPECT_EQ(core::Mid(e.f.lstlista.List[4], 56, 12), "FP123456    ");
    EXPECT_EQ(core::Mid(e.f.lstlista.List[4], 1, 40), "  5 KOWALENKO                 OLENA     ");
    EXPECT_TRUE(e.ui.boxes.empty());
}

TEST(Lista, LineColumnsGoBackIntoTheSession) {
    struct {
        std::string line;
        const char *nazwisko, *imie, *klucz, *kod, *numer;
    } cases[] = {
        {"  1 NOWAK" + core::Space(21) + "JAN" + core::Space(22) + "75031412317 Tak a   1  1 011000", "NOWAK", "JAN",
         "75031412317", "011000", "  1"},
        {" 12 KOWALENKO" + core::Space(17) + "OLENA" + core::Space(20) + "FP123456    Tak a   3  4 011000",
         "KOWALENKO", "OLENA", "FP123456", "011000", " 12"},
        // A surname of 25 characters that fills its columns; a person without a key.
        {"250 BRZĘCZYSZCZYKIEWICZ-KONST GRZEGORZ" + core::Space(37) + "Tak a   1  1 012000",
         "BRZĘCZYSZCZYKIEWICZ-KONST", "GRZEGORZ", "", "012000", "250"},
    };
    for (const auto& c : cases) {
        WybranaOsoba o = osobaZWiersza(c.line);
        EXPECT_EQ(o.Nazwisko, c.nazwisko) << c.line;
        EXPECT_EQ(o.Imie, c.imie) << c.line;
        EXPECT_EQ(o.Klucz, c.klucz) << c.line;
        EXPECT_EQ(o.KodUbezpieczenia, c.kod) << c.line;
        EXPECT_EQ(o.Numer, c.numer) << c.line;
    }
}

TEST(Lista, ChoosingAPersonFillsTheSessionAndTheNames) {
    Ekran e;
    e.f.Load();
    e.s.Osoba.Otwarty = true;
    e.wybierz(4);
    EXPECT_EQ(e.s.NazwiskoOsoby, "KOWALENKO");
    EXPECT_EQ(e.s.ImieOsoby, "OLENA");
    EXPECT_EQ(e.s.KluczOsoby, "FP123456");
    EXPECT_EQ(e.s.KodUbezpieczeniaOsoby, "011000");
    EXPECT_EQ(e.s.NumerOsoby, "  5");
    EXPECT_FALSE(e.s.Osoba.Otwarty);
    for (auto* l : {&e.f.lbNazwiskoImie1, &e.f.lbNazwiskoImie2, &e.f.lbNazwiskoImie3, &e.f.lbNazwiskoImie4,
                    &e.f.lbNazwiskoImie5})
        EXPECT_EQ(l->Caption, "KOWALENKO OLENA");
    // The frame of the chosen tab, empty without the month's file.
    EXPECT_TRUE(e.f.Frame1.Visible);
    for (int t = 2; t <= 5; ++t) EXPECT_FALSE(e.f.ramka(t).Visible);
    // The demo's overtime of January holds her record.
    EXPECT_EQ(e.pole(1, Dodatkowy::Podstawa), "3600");
    EXPECT_TRUE(e.ui.boxes.empty());
}

TEST(Lista, LongSurnameIsCutOnTheLineAndInTheSession) {
    Ekran e;
    auto osoby = e.osoby();
    osoby[0].set(Osoba::Nazwisko, "BRZĘCZYSZCZYKIEWICZ-KONSTANTYNOPOLITAŃCZYK");
    core::writeAll(e.per(), osoby);
    e.f.Load();
    EXPECT_EQ(core::Len(e.f.lstlista.List[0]), core::Len(e.f.lstlista.List[1]));
    e.wybierz(0);
    EXPECT_EQ(e.s.NazwiskoOsoby, "BRZĘCZYSZCZYKIEWICZ-KONST");
    EXPECT_EQ(e.s.KluczOsoby, "75031412317");
}

TEST(Lista, LongDocumentIsCutOnTheLineButChosenWhole) {
    Ekran e;
    auto osoby = e.osoby();
    osoby[0].set(Osoba::Obywatelstwo, "UKRAIŃSKIE");
    osoby[0].set(Osoba::Paszport, "FP12345678901");
    core::writeAll(e.per(), osoby);
    e.f.Load();
    EXPECT_EQ(core::Mid(e.f.lstlista.List[0], 56, 12), "FP123456789 ");
    e.wybierz(0);
    EXPECT_EQ(e.s.KluczOsoby, "FP12345678901");
    e.ui.answer(Answer::OK).answer(Answer::No);
    e.kliknij("cmdUsuń");
    ASSERT_EQ(e.osoby().size(), 6u);
    EXPECT_EQ(e.osoby()[0].s(Osoba::Nazwisko), osoby[1].s(Osoba::Nazwisko));
}

TEST(Lista, MoreThan250PeopleRaiseTheBoundsError) {
    Ekran e;
    std::vector<core::Record> osoby;
    const auto wzor = e.osoby()[0];
    for (int i = 1; i <= 251; ++i) {
        core::Record o = wzor;
        o.set(Osoba::Pesel, std::to_string(70000000000LL + i));
        osoby.push_back(o);
    }
    core::writeAll(e.per(), osoby);
    e.s.LiczbaOsob = 3;
    e.f.guarded([&] { e.f.Load(); });
    EXPECT_EQ(e.f.lstlista.List.size(), 250u);
    EXPECT_EQ(e.f.Tablica.size(), 250u);
    EXPECT_EQ(e.f.lstlista.List[249].substr(0, 3), "250");
    EXPECT_EQ(e.s.LiczbaOsob, 3);
    ASSERT_EQ(e.ui.boxes.size(), 1u);
    EXPECT_EQ(e.ui.boxes[0].title, "Błąd");
    EXPECT_EQ(core::Left(e.ui.boxes[0].text, 26), "Błąd nr.9 w linii frmlista");
    // Exactly 250 is a whole list.
    osoby.pop_back();
    core::writeAll(e.per(), osoby);
    e.ui.boxes.clear();
    e.f.guarded([&] { e.f.Load(); });
    EXPECT_TRUE(e.ui.boxes.empty());
    EXPECT_EQ(e.s.LiczbaOsob, 250);
}

TEST(Lista, TabWithoutTheMonthsFileAsksAndCancelLeavesItEmpty) {
    Ekran e;
    e.f.Load();
    e.wybierz(0);
    e.ui.answer(Answer::Cancel);
    e.zakladka(3);
    EXPECT_TRUE(e.f.Frame3.Visible);
    EXPECT_FALSE(e.f.Frame1.Visible);
    ASSERT_EQ(e.ui.boxes.size(), 1u);
    EXPECT_EQ(e.ui.lines()[0], "[Zakładanie dodatkowego zbioru do kartoteki miesięcznej! ] Czy napewno chcesz zakładać "
                               "wybrany zbiór na ten miesiąc - z aktualnych danych ? ");
    EXPECT_EQ(e.ui.boxes[0].buttons, core::Buttons::OKCancel);
    EXPECT_FALSE(core::fileExists(e.payer() / "Trzynastki" / "aTrz2101.dta"));
    EXPECT_EQ(e.pole(3, Dodatkowy::Podstawa), "");
    EXPECT_EQ(e.f.lbStatus.Caption, "");
    EXPECT_GE(e.ui.events, 1);  // the hint was shown while the question stood
}

TEST(Lista, TabCreatesTheMonthsFileFromTheCurrentRecords) {
    Ekran e;
    for (const char* f : {"Godziny/aGod2101.dta", "Dodatki/aDod2101.dta"}) std::filesystem::remove(e.payer() / f);
    e.f.Load();
    e.wybierz(0);
    e.zakladka(1);
    const auto file = e.payer() / "Godziny" / "aGod2101.dta";
    ASSERT_TRUE(core::fileExists(file));
    const auto recs = Dodatkowy::readAll(file);
    ASSERT_EQ(recs.size(), 7u);
    EXPECT_EQ(recs[0].s(Dodatkowy::Nazwisko), "NOWAK");
    EXPECT_EQ(recs[4].s(Dodatkowy::Klucz), "FP123456");
    EXPECT_EQ(recs[0].s(Dodatkowy::Podstawa), "5200");
    EXPECT_EQ(recs[0].s(Dodatkowy::NumerKonta), "25 1020 5011 1083 5734 3193 9106");
    EXPECT_EQ(recs[0].s(Dodatkowy::StawkaPodatku), "0.17");
    EXPECT_EQ(recs[0].s(Dodatkowy::DataListy), "31-01-2021");
    EXPECT_TRUE(recs[0].isEmpty(Dodatkowy::KwotaBrutto));
    // The chosen person's record on the frame, the base open to typing.
    EXPECT_EQ(e.pole(1, Dodatkowy::Podstawa), "5200");
    EXPECT_EQ(e.f.kontrolka("lbNumerKontaG").Caption, "25 1020 5011 1083 5734 3193 9106");
    EXPECT_EQ(e.f.kontrolka("lbDataListyG").Caption, "31-01-2021");
    EXPECT_FALSE(e.f.pole(1, Dodatkowy::Podstawa)->Locked);
    // A second visit asks nothing; another person shows their record.
    e.ui.boxes.clear();
    e.ui.answer(Answer::Cancel);
    e.zakladka(2);
    e.zakladka(1);
    e.wybierz(1);
    EXPECT_EQ(e.pole(1, Dodatkowy::Podstawa), "4800");
    EXPECT_EQ(e.ui.boxes.size(), 1u);  // only the question of the additions
    // The supplementary files of the other tabs, each in its own folder.
    for (int t : {3, 4, 5}) e.zakladka(t);
    EXPECT_TRUE(core::fileExists(e.payer() / "Trzynastki" / "aTrz2101.dta"));
    EXPECT_TRUE(core::fileExists(e.payer() / "Jubileu" / "aJub2101.dta"));
    EXPECT_TRUE(core::fileExists(e.payer() / "Urlopy" / "aSwU2101.dta"));
    EXPECT_TRUE(e.f.frame5.Visible);
}

TEST(Lista, TabWithNoNameChosenShowsTheFrameEmpty) {
    Ekran e;
    e.f.Load();
    Dodatkowy::writeAll(Dodatkowy::path(e.s, Dodatkowy::Rodzaj::Jub), Dodatkowy::Rodzaj::Jub, {});
    e.zakladka(4);
    EXPECT_TRUE(e.f.Frame4.Visible);
    EXPECT_EQ(e.pole(4, Dodatkowy::Podstawa), "");
    EXPECT_EQ(e.f.lbNazwiskoImie4.Caption, "");
    EXPECT_TRUE(e.ui.boxes.empty());
}

TEST(Lista, CommandsOpenTheirScreensByName) {
    Ekran e;
    e.f.Load();
    for (const char* c : {"cmdDodajOsobe", "cmdWybrane", "cmdSortujZbior", "cmdDrukListy", "cmdPodglad", "CmdPaski"})
        EXPECT_TRUE(e.f.find(c)->Enabled) << c;
    // The ZUS sick list has no screen in this program.
    EXPECT_FALSE(e.f.find("CmdDruZasilkow")->Enabled);
    e.kliknij("cmdDodajOsobe");
    e.wybierz(2);
    e.kliknij("cmdWybrane");
    e.kliknij("cmdSortujZbior");
    e.kliknij("cmdDrukListy");
    e.kliknij("cmdPodglad");
    e.kliknij("CmdPaski");
    EXPECT_EQ(e.otwarte, (std::vector<std::string>{"frmOsoba1 00000000000 Nowe N", "frmOsoba1 88110578938 ZIELIŃSKI N",
                                                   "frmSortujKadrowe 88110578938 ZIELIŃSKI N",
                                                   "cmdDrukListy 88110578938 ZIELIŃSKI N",
                                                   "frmPodgladWydruku 88110578938 ZIELIŃSKI N",
                                                   "CmdPaski 88110578938 ZIELIŃSKI N"}));
    EXPECT_EQ(e.s.ImieOsoby, "PIOTR");
    // Without the screens the buttons are off.
    ListaScreen bez(e.ui, e.s);
    e.ui.screens = nullptr;
    bez.Load();
    EXPECT_FALSE(bez.find("cmdWybrane")->Enabled);
    EXPECT_FALSE(bez.find("cmdDrukListy")->Enabled);
    EXPECT_FALSE(bez.find("cmdWybrane")->ToolTipText.empty());
}

TEST(Lista, NewPersonSetsTheSessionForThePersonScreen) {
    Ekran e;
    e.f.Load();
    e.kliknij("cmdDodajOsobe");
    EXPECT_EQ(e.s.NowyZapis, "N");
    EXPECT_EQ(e.s.NazwiskoOsoby, "Nowe");
    EXPECT_EQ(e.s.ImieOsoby, "Nowe");
    EXPECT_EQ(e.s.KluczOsoby, "00000000000");
    EXPECT_EQ(e.s.KodUbezpieczeniaOsoby, "011000");
}

TEST(Lista, DeleteAsksTwiceAndNoKeepsThePayRecord) {
    Ekran e;
    e.f.Load();
    e.kliknij("cmdUsuń");
    EXPECT_EQ(e.ui.lines(), (std::vector<std::string>{"[Usuwanie osoby] Najpierw wybierz z listy osobę do usunięcia."}));
    e.ui.boxes.clear();
    e.wybierz(3);
    e.ui.answer(Answer::OK).answer(Answer::No);
    e.kliknij("cmdUsuń");
    ASSERT_EQ(e.ui.boxes.size(), 2u);
    EXPECT_EQ(e.ui.boxes[1].title, "Usuwanie rekordu KAMIŃSKA ID=01251923443");
    EXPECT_EQ(e.osoby().size(), 6u);
    auto place = e.place();
    EXPECT_EQ(place.size(), 7u);
    EXPECT_NE(DemoLista::znajdz(place, "01251923443", [](const core::Record& r) { return payinputs::kluczOsoby(r); }),
              nullptr);
}

TEST(Lista, LedgerWithTheProgressBar) {
    Ekran e;
    e.f.Load();
    e.ui.events = 0;
    e.kliknij("cmdKartoteka");
    EXPECT_EQ(e.ui.last(), "[Kartoteka z listy plac a] Wykonano kartotekę za 2101");
    EXPECT_EQ(Karta::readAll(e.payer() / "Karta" / "a2101.dta").size(), 7u);
    EXPECT_EQ(e.f.ProgressBar1.Max, 7);
    EXPECT_EQ(e.f.ProgressBar1.Value, 7);
    EXPECT_EQ(e.ui.events, 8);  // the bar at 0 and after each person
    EXPECT_TRUE(e.f.find("cmdKartoteka")->Enabled);
    EXPECT_TRUE(e.f.lstlista.Enabled);
}

TEST(Lista, YearlyBaseOnTheThirteenthTab) {
    Ekran e;
    e.f.Load();
    e.kliknij("cmdWyliczPodstawe");
    EXPECT_EQ(e.ui.last(), "[] No wybierz nazwisko, a dopiero potem Wylicz !");
    e.kliknij("cmdKartoteka");
    e.wybierz(5);
    e.ui.answer(Answer::Cancel);
    e.zakladka(3);
    e.kliknij("cmdWyliczPodstawe");
    EXPECT_EQ(e.pole(3, Dodatkowy::Podstawa), "5888");
    e.f.txtRokDoPodstawy.Text = "2019";
    e.kliknij("cmdWyliczPodstawe");
    EXPECT_EQ(e.pole(3, Dodatkowy::Podstawa), "0");
}

TEST(Lista, ClosingAndCalibrationShowTheirStatus) {
    Ekran e;
    e.f.Load();
    e.kliknij("CmdZerowanie");
    EXPECT_EQ(e.f.lbStatus.Caption, "Wykonane !");
    EXPECT_EQ(e.place()[0].s(Pay::DataZerowania), "31-01-2021");
    EXPECT_EQ(e.f.ProgressBar1.Max, 8);  // 1 to the count + 1
    // Again: January asks about the year start first, then the box that stops it; the label
    // says done.
    e.f.lbStatus.Caption.clear();
    e.ui.boxes.clear();
    e.kliknij("CmdZerowanie");
    ASSERT_EQ(e.ui.boxes.size(), 2u);
    EXPECT_EQ(e.ui.boxes[1].text, " Zerowanie było już w tym miesiacu wykonane ! ");
    EXPECT_EQ(e.f.lbStatus.Caption, "Wykonane !");

    auto place = e.place();
    place.pop_back();
    core::writeAll(e.dta(), place);
    e.kliknij("CmdSol1");
    EXPECT_EQ(e.f.lbStatus.Caption, "Wykonane !");
    EXPECT_EQ(e.f.lbUwagi.Caption, "Zbior płacowy założono na podstawie zbioru aktualnego zbioru personalnego  \n"
                                   "Wprowadz dane płacowe: LEWANDOWSKA EWA");
}

TEST(Lista, FileErrorsGoToTheScreensBox) {
    Ekran e;
    e.f.Load();
    std::filesystem::remove(e.s.SciezkaBazy);
    e.kliknij("CmdZerowanie");
    ASSERT_FALSE(e.ui.boxes.empty());
    EXPECT_EQ(e.ui.boxes.back().title, "Błąd");
    EXPECT_EQ(core::Left(e.ui.boxes.back().text, 18), "Błąd nr.53 w linii");
    EXPECT_TRUE(e.f.find("CmdZerowanie")->Enabled);
}

TEST(Lista, AdditionsTabKeepsTheSwitchesOfEachKind) {
    Ekran e;
    e.f.Load();
    e.wybierz(0);
    e.zakladka(2);  // founds the month's file (OK)
    e.f.kontrolka("txtDodatek1").Text = "1000";
    e.f.kontrolka("txtMieszkaniowy").Text = "200";
    e.kliknij("optD3");
    e.f.kontrolka("ChkNFZD").Value = 0;
    e.kliknij("ChkNFZD");
    e.kliknij("optD1");
    EXPECT_EQ(e.f.kontrolka("ChkNFZD").Value, 1);
    e.f.kontrolka("OpcjaRORD").Value = 1;
    e.kliknij("cmdWyliczD");
    EXPECT_EQ(e.ui.last(), "[]  Wyliczone !");
    const core::Record r = Dodatkowy::readAll(Dodatkowy::path(e.s, Dodatkowy::Rodzaj::Dod))[0];
    EXPECT_EQ(r.s(Dodatkowy::Il1), "000");
    EXPECT_EQ(r.s(Dodatkowy::Il3), "001");
    EXPECT_EQ(r.s(Dodatkowy::Il6), "010");
    // Contributions 117.12 + 18.00 + 29.40 on 1200; health on the first 1000 only.
    EXPECT_EQ(e.f.kontrolka("LbRazemSkładkiD").Caption, "164.52");
    EXPECT_EQ(e.f.kontrolka("LbPodstawaKasyD").Caption, "835.48");
    EXPECT_EQ(e.f.kontrolka("LbDoWypłatyD").Caption, "0");
    EXPECT_EQ(r.s(Dodatkowy::OpcjaROR), "1");
    EXPECT_EQ(e.f.kontrolka("LbNaKontoRORD").Caption, r.s(Dodatkowy::NaROR));
    EXPECT_EQ(e.f.lbInfo.Caption, "");
    // Back on the person: the switches come from the file.
    e.wybierz(1);
    e.wybierz(0);
    EXPECT_EQ(e.f.kontrolka("LbRazemSkładkiD").Caption, "164.52");
    EXPECT_EQ(e.f.kontrolka("LbEmerytalnaD").Caption, "");
    e.kliknij("optD3");
    EXPECT_EQ(e.f.kontrolka("ChkNFZD").Value, 0);
    EXPECT_EQ(e.f.kontrolka("ChkSkladkiZUSD").Value, 1);
}
