// The earnings certificate: the walk of the months over a year's turn, the sums of the ledgers
// and the supplementary files with the switches, the wording of one month and of a period, the
// endings by sex, and the print against its reference file.
#include <gtest/gtest.h>

#include "support/demo.h"

#include <filesystem>
#include <fstream>

#include "core/paths.h"
#include "documents/zaswiadczenia.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "personnel/kadry_record.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;
namespace Kd = personnel::Kadry;
using namespace documents;

namespace {

const std::string kPani = "85121204567";  // tenth digit 6: a woman

core::Record karta(double brutto, double emer, double nfz, double podatek) {
    core::Record r(K::schema());
    r.set(K::Poczatek, "<Poczatek>");
    r.set(K::Nazwisko, "NOWAK");
    r.set(K::Imie, "ANNA");
    r.set(K::Klucz, kPani);
    r.set(K::Brutto, brutto);
    r.set(K::SkladkaEmerytalna, emer);
    r.set(K::SkladkaRentowa, 15);
    r.set(K::SkladkaChorobowa, 24.5);
    r.set(K::SkladkaZdrowotnaOdliczana, nfz);
    r.set(K::SkladkaZdrowotnaPozostala, 10);
    r.set(K::PodatekNetto, podatek);
    r.set(K::KosztyUzyskania, 250);
    r.set(K::UlgaZastosowana, 43.76);
    r.set(K::Koniec, "<Koniec>");
    return r;
}

core::Record dodatkowy(double kwota, double nfz, double podatek) {
    core::Record r(D::schema());
    r.set(D::Klucz, kPani);
    r.set(D::KwotaBrutto, kwota);
    r.set(D::SkladkaZdrowotna, nfz);
    r.set(D::PodatekNetto, podatek);
    return r;
}

struct Dane : testing_support::Demo {
    Dane() : Demo("31-12-2020") {
        s.NazwaZbioru = "a";
        s.KluczOsoby = kPani;
        s.NazwiskoOsoby = "NOWAK";
        s.ImieOsoby = "ANNA";
        // December 2020 and January 2021; overtime in December, a holiday benefit in January,
        // the thirteenth pay of 2020.
        core::writeAll(K::path(s, "a", "2012"), {karta(1000, 97.6, 80, 60)});
        core::writeAll(K::path(s, "a", "2101"), {karta(2000, 195.2, 160, 120)});
        D::writeAll(D::path(s, D::Rodzaj::God, "a", "2012"), D::Rodzaj::God, {dodatkowy(100, 7.77, 10)});
        D::writeAll(D::path(s, D::Rodzaj::SwU, "a", "2101"), D::Rodzaj::SwU, {dodatkowy(500, 0, 85)});
        D::writeAll(D::path(s, D::Rodzaj::Trz, "a", "20"), D::Rodzaj::Trz, {dodatkowy(1000, 77.66, 70)});
    }
    void kadry() {
        core::Record k(Kd::schema());
        k.set(Kd::Klucz, kPani);
        k.set(Kd::ZatrudnionyOd, "01-03-2019");
        k.set(Kd::ZatrudnionyDo, "28-02-2022");
        k.set(Kd::RodzajUmowy, "O");
        k.set(Kd::Stanowisko, "księgowa");
        Kd::zapisz(Kd::pathOf(s, "a"), k);
    }
};

}  // namespace

TEST(Zaswiadczenie, MonthsOfThePeriod) {
    struct P {
        const char *nazwa, *od, *doO;
        std::vector<std::string> m;
    } p[] = {
        {"one month", "0320", "0320", {"2003"}},
        {"within a year", "1020", "1220", {"2010", "2011", "2012"}},
        {"over the turn of a year", "1120", "0221", {"2011", "2012", "2101", "2102"}},
        {"blanks trimmed", " 1220 ", "0121", {"2012", "2101"}},
        {"month 13", "1320", "0121", {}},
        {"not four characters", "320", "0320", {}},
    };
    for (const auto& c : p) EXPECT_EQ(miesiaceOkresu(c.od, c.doO), c.m) << c.nazwa;
}

TEST(Zaswiadczenie, SumsWithTheSwitches) {
    Dane d;
    // December: 1000 + overtime 100 (contributions afresh 9.76 + 1.50 + 2.45); January: 2000.
    struct P {
        const char* nazwa;
        Wlaczone w;
        std::size_t wierszy;
        float brutto, zus, podatek, netto;
    } p[] = {
        {"switches off", {}, 2, 3100, 385.51f, 190, 2256.72f},
        {"holiday benefit", {true, false, false}, 2, 3600, 385.51f, 275, 2671.72f},
        {"jubilee switch reads nothing", {false, true, false}, 2, 3100, 385.51f, 190, 2256.72f},
        // The thirteenth whole: 1000 with 97.60 + 15.00 + 24.50 afresh.
        {"thirteenth", {false, false, true}, 3, 4100, 522.61f, 260, 2971.96f},
    };
    for (const auto& c : p) {
        const Sumy s = pobierzDane(d.s, "a", kPani, "1220", "0121", c.w);
        EXPECT_EQ(s.wiersze.size(), c.wierszy) << c.nazwa;
        EXPECT_EQ(s.wiersze[0].miesiac + " " + s.wiersze[1].miesiac, "12-2020 01-2021") << c.nazwa;
        EXPECT_FLOAT_EQ(s.brutto, c.brutto) << c.nazwa;
        EXPECT_FLOAT_EQ(s.zus, c.zus) << c.nazwa;
        EXPECT_FLOAT_EQ(s.zaliczka, c.podatek) << c.nazwa;
        EXPECT_FLOAT_EQ(s.netto, c.netto) << c.nazwa;
        EXPECT_FLOAT_EQ(s.koszty, 500) << c.nazwa;
    }
}

TEST(Zaswiadczenie, ScreenNeedsTheHrRecordAndPrintsOneMonthOrAPeriod) {
    Dane d;
    ZaswiadczeniaScreen f(d.ui, d.s);
    f.Load();
    EXPECT_FALSE(f.cmdPobierzDane_Click());
    EXPECT_EQ(d.ui.last(), "[Brak okresu zatrudnienia!] Nie uzupelniono danych w placa>kadrowe II ");
    d.kadry();
    f.txtODData.Text = "12";
    d.ui.answer(core::Answer::Yes);
    EXPECT_FALSE(f.cmdPobierzDane_Click());
    EXPECT_EQ(d.ui.last(), "[Zle wpisana data!] Podaj date w formacie dd-mm-RRRR ");

    // One month; the purpose left empty.
    f.txtODData.Text = f.txtDoData.Text = "1220";
    ASSERT_TRUE(f.cmdPobierzDane_Click());
    EXPECT_EQ(f.MSFlexGrid1.Cells[1],
              (std::vector<std::string>{"12-2020", "1100.00", "150.81", "97.77", "70.00", "781.42", "250.00", "43.76"}));
    EXPECT_EQ(f.txtRazemBrutto.Text, "1100.00");
    d.ui.type(std::string());
    f.cmdUstalonyOkres_Click();
    EXPECT_EQ(d.ui.boxes.back().title, "Podaj przeznaczenie wydawanego zaświadczenia ");
    const std::string tekst = d.ui.paper.text();
    for (const char* w : {" W miesiącu 12-2020r otrzymała wynagrodzenie miesięczne brutto",
                          " Zaświadczamy ,że pracownik Pani NOWAK ANNA Pesel 85121204567",
                          " zatrudniona na czas określony od 01-03-2019 do 28-02-2022",
                          " Zaświadczenie wydaje się  na wniosek Pracownika."})
        EXPECT_NE(tekst.find(w), std::string::npos) << w;
}

TEST(Zaswiadczenie, PrintMatchesTheReferenceFile) {
    Dane d;
    d.kadry();
    DaneZaswiadczenia z;
    z.nazwisko = "NOWAK ANNA";
    z.pesel = kPani;
    z.kobieta = true;
    z.kadry = *Kd::znajdz(Kd::pathOf(d.s, "a"), kPani);
    z.od = "1220";
    z.doOkresu = "0121";
    z.cel = " do banku.";
    z.obciazenia = 250.5;
    z.dataWydania = "15-02-2021";
    z.platnik = "Firma Demo";
    z.miejscowosc = "Myślenice";
    drukujZaswiadczenie(d.ui.paper, pobierzDane(d.s, "a", kPani, "1220", "0121", {true, false, true}), z);
    const std::string tekst = d.ui.paper.text();
    const fs::path wzor = fs::path(PENSJA_TEST_DATA).parent_path() / "documents" / "data" / "zaswiadczenie.txt";
    if (tekst != testing_support::readBytes(wzor)) {
        fs::create_directories("documents_actual");
        std::ofstream(fs::path("documents_actual") / "zaswiadczenie.txt", std::ios::binary) << tekst;
    }
    EXPECT_EQ(tekst, testing_support::readBytes(wzor)) << "wydruk w " << fs::absolute("documents_actual/zaswiadczenie.txt");
}
