// The monthly ledger of a list: the record of a person line by line, the people taken and
// skipped, the repeat of the command, an empty list, and the yearly contribution base.
#include <gtest/gtest.h>

#include "core/numbers.h"
#include "core/text.h"
#include "support/demo.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "paycalc/kartoteka.h"

using namespace paycalc;
using testing_support::DemoLista;
using testing_support::readLines;
namespace Osoba = personnel::Osoba;
namespace Pay = payinputs::Pay;

namespace {

// The lines of the ledger record whose key (line 4) is `klucz`.
std::vector<std::string> rekord(const std::vector<std::string>& lines, const std::string& klucz) {
    for (std::size_t i = 0; i + Karta::Count <= lines.size(); i += Karta::Count)
        if (lines[i + 3] == "\"" + klucz + "\"")
            return std::vector<std::string>(lines.begin() + static_cast<long>(i),
                                            lines.begin() + static_cast<long>(i + Karta::Count));
    return {};
}

std::vector<std::string> klucze(const std::vector<core::Record>& karta) {
    std::vector<std::string> k;
    for (const auto& r : karta) k.push_back(r.s(Karta::Klucz));
    return k;
}

}  // namespace

TEST(Kartoteka, RecordOfAPersonLineByLine) {
    DemoLista d;
    // DĄBROWSKI MAREK of the demo list as the file holds him, worked out by hand in data/README.md.
    const auto kDabrowski = readLines(std::filesystem::path(PENSJA_TEST_DATA).parent_path() / "paycalc" / "data" / "karta_dabrowski.txt");
    ASSERT_EQ(kDabrowski.size(), static_cast<std::size_t>(Karta::Count));
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const auto path = d.payer() / "Karta" / "a2101.dta";
    ASSERT_TRUE(core::fileExists(path));
    const auto lines = readLines(path);
    ASSERT_EQ(lines.size(), 7u * Karta::Count);
    const auto r = rekord(lines, "80120356757");
    ASSERT_EQ(r.size(), kDabrowski.size());
    for (std::size_t i = 0; i < r.size(); ++i) EXPECT_EQ(r[i], kDabrowski[i]) << "pole " << i + 1;
    // CR LF ends every line.
    const std::string bytes = testing_support::readBytes(path);
    EXPECT_EQ(bytes.substr(0, 14), "\"<Poczatek>\"\r\n");
    EXPECT_EQ(d.s.LiczbaOsob, 7);
    ASSERT_EQ(d.ui.lines().size(), 2u);
    EXPECT_EQ(d.ui.boxes[0].title, "Wykonanie kartoteki z listy plac za 31-01-2021");
    EXPECT_EQ(d.ui.boxes[0].text, "Czy chcesz wykonać kartotekę z aktualnej na ten miesiac listy płac ");
    EXPECT_EQ(d.ui.boxes[0].buttons, core::Buttons::YesNo);
    EXPECT_EQ(d.ui.boxes[0].icon, core::Icon::Information);
    EXPECT_EQ(d.ui.lines()[1], "[Kartoteka z listy plac a] Wykonano kartotekę za 2101");
}

TEST(Kartoteka, OnlyPeopleOnTheListAreWrittenAndCounted) {
    DemoLista d;
    auto osoby = d.osoby();
    osoby[1].set(Osoba::Status, 2L);  // WIŚNIEWSKA: "Nie"
    osoby[3].set(Osoba::Status, 0L);  // KAMIŃSKA
    core::writeAll(d.per(), osoby);
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const auto karta = Karta::readAll(d.payer() / "Karta" / "a2101.dta");
    // The rest in the order of the personnel file; the file is read past the people skipped.
    EXPECT_EQ(klucze(karta), (std::vector<std::string>{"75031412317", "88110578938", "FP123456", "80120356757",
                                                       "85031589069"}));
    EXPECT_EQ(d.s.LiczbaOsob, 5);
    for (const auto& r : karta) EXPECT_EQ(r.s(Karta::NaLiscie), "1");
}

TEST(Kartoteka, ForeignerIsKeyedByTheDocument) {
    DemoLista d;
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const auto karta = Karta::readAll(d.payer() / "Karta" / "a2101.dta");
    ASSERT_EQ(karta.size(), 7u);
    const core::Record& olena = karta[4];
    EXPECT_EQ(olena.s(Karta::Nazwisko), "KOWALENKO");
    EXPECT_EQ(olena.s(Karta::Klucz), "FP123456");
    EXPECT_EQ(olena.s(Karta::Dokument), "FP123456");
    EXPECT_EQ(olena.s(Karta::Obywatelstwo), "UKRAIŃSKIE");
    // 3600 x 3/4 = 2700 for the post of three quarters.
    EXPECT_EQ(olena.s(Karta::Zasadnicza), "2700");
    // A citizenship stored as "0" is Polish: the PESEL is the key, "POLSKIE" is written.
    EXPECT_EQ(karta[2].s(Karta::Klucz), "88110578938");
    EXPECT_EQ(karta[2].s(Karta::Obywatelstwo), "POLSKIE");
}

TEST(Kartoteka, SecondRunReplacesTheMonth) {
    DemoLista d;
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    auto place = d.place();
    DemoLista::znajdz(place, "80120356757", [](const core::Record& r) { return payinputs::kluczOsoby(r); })
        ->set(Pay::Zasadnicza, 5000.0f);
    core::writeAll(d.dta(), place);
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const auto karta = Karta::readAll(d.payer() / "Karta" / "a2101.dta");
    ASSERT_EQ(karta.size(), 7u);
    // 5000, seniority 8 % = 400, bonus 1000.
    EXPECT_EQ(karta[5].s(Karta::Zasadnicza), "5000");
    EXPECT_EQ(karta[5].s(Karta::Brutto), "6400");
    std::size_t files = 0;
    // The demo data keep the ledgers of 2020; of 2021 there is one.
    for (const auto& e : std::filesystem::directory_iterator(d.payer() / "Karta"))
        if (e.path().filename().string().substr(1, 2) == "21") ++files;
    EXPECT_EQ(files, 1u);
}

TEST(Kartoteka, AnswerNoChangesNothing) {
    DemoLista d;
    d.ui.answer(core::Answer::No);
    d.s.LiczbaOsob = 42;
    EXPECT_FALSE(cmdKartoteka(d.s, d.ui));
    EXPECT_FALSE(core::fileExists(d.payer() / "Karta" / "a2101.dta"));
    EXPECT_EQ(d.s.LiczbaOsob, 42);
    EXPECT_EQ(d.ui.boxes.size(), 1u);
}

TEST(Kartoteka, EmptyListGivesAnEmptyFileAndTheBox) {
    DemoLista d;
    // First a list with people, then nobody eligible: the ledger is replaced by an empty one.
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    auto osoby = d.osoby();
    for (auto& o : osoby) o.set(Osoba::Status, 2L);
    core::writeAll(d.per(), osoby);
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    EXPECT_EQ(testing_support::readBytes(d.payer() / "Karta" / "a2101.dta"), "");
    EXPECT_EQ(d.s.LiczbaOsob, 0);
    EXPECT_EQ(d.ui.last(), "[Kartoteka z listy plac a] Wykonano kartotekę za 2101");
    // A personnel file without any record at all.
    core::writeAll(d.per(), std::vector<core::Record>{});
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    EXPECT_EQ(testing_support::readBytes(d.payer() / "Karta" / "a2101.dta"), "");
}

TEST(Kartoteka, ErrorLeavesTheOldLedgerWhole) {
    DemoLista d;
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const std::string przed = testing_support::readBytes(d.payer() / "Karta" / "a2101.dta");
    auto place = d.place();
    place[3].setItem(Pay::Zasadnicza, core::Item::quoted("abc"));
    core::writeAll(d.dta(), place);
    EXPECT_THROW(cmdKartoteka(d.s, d.ui), core::Error);
    EXPECT_EQ(testing_support::readBytes(d.payer() / "Karta" / "a2101.dta"), przed);
}

TEST(PodstawaRoczna, SumsTheMonthsPresentAndLeavesTheThirteenthOut) {
    DemoLista d;
    const std::string klucz = "80120356757";
    auto karta = [&](const std::string& key, float podstawa) {
        core::Record r(Karta::schema());
        r.set(Karta::Klucz, key);
        r.set(Karta::PodstawaZUS, podstawa);
        return r;
    };
    auto dodatkowy = [&](const std::string& key, std::initializer_list<std::pair<int, float>> pola) {
        core::Record r(Dodatkowy::schema());
        r.set(Dodatkowy::Klucz, key);
        for (auto [n, v] : pola) r.set(n, v);
        return r;
    };
    using Dodatkowy::Rodzaj;
    // Ledgers of January and March 2021 (another person first, a second record of the
    // person after the first is not counted), none for the other months.
    core::writeAll(Karta::path(d.s, "a", "2101"), {karta("63072245629", 9999), karta(klucz, 5888), karta(klucz, 1)});
    core::writeAll(Karta::path(d.s, "a", "2103"), {karta(klucz, 6000.5f)});
    // A ledger of another year and of another list do not count.
    core::writeAll(Karta::path(d.s, "a", "1901"), {karta(klucz, 777)});
    core::writeAll(Karta::path(d.s, "p", "2102"), {karta(klucz, 777)});
    // Overtime in March: field 6.
    core::writeAll(Dodatkowy::path(d.s, Rodzaj::God, "a", "2103"), {dodatkowy(klucz, {{Dodatkowy::KwotaBrutto, 300.25f}})});
    // Additions in February: fields 33 to 37 only, not the award and the equivalent.
    core::writeAll(Dodatkowy::path(d.s, Rodzaj::Dod, "a", "2102"),
                   {dodatkowy(klucz, {{Dodatkowy::Kw1, 100},
                                      {Dodatkowy::Kw2, 20},
                                      {Dodatkowy::Kw3, 3},
                                      {Dodatkowy::Kw4, 0.5f},
                                      {Dodatkowy::Kw5, 0.25f},
                                      {Dodatkowy::Kw6, 1000},
                                      {Dodatkowy::Kw7, 2000},
                                      {Dodatkowy::KwotaBrutto, 5000}})});
    // Holiday benefit and jubilee award in June: field 6.
    core::writeAll(Dodatkowy::path(d.s, Rodzaj::SwU, "a", "2106"), {dodatkowy(klucz, {{Dodatkowy::KwotaBrutto, 1000}})});
    core::writeAll(Dodatkowy::path(d.s, Rodzaj::Jub, "a", "2106"), {dodatkowy(klucz, {{Dodatkowy::KwotaBrutto, 2500}})});
    // The thirteenth pay is left out.
    core::writeAll(Dodatkowy::path(d.s, Rodzaj::Trz, "a", "2103"), {dodatkowy(klucz, {{Dodatkowy::KwotaBrutto, 4000}})});

    // 5888 + 6000.5 + 300.25 + 123.75 + 1000 + 2500 = 15812.5
    EXPECT_EQ(podstawaRoczna(d.s, klucz, ""), 15812.5f);
    EXPECT_EQ(podstawaRoczna(d.s, klucz, "2021"), 15812.5f);
    EXPECT_EQ(podstawaRoczna(d.s, klucz, "19"), 777.0f);
    EXPECT_EQ(podstawaRoczna(d.s, klucz, "2018"), 0.0f);
    // 9999 and her overtime of January in the demo, 142.85.
    EXPECT_EQ(podstawaRoczna(d.s, "63072245629", ""), 10141.85f);
    EXPECT_EQ(podstawaRoczna(d.s, "00000000000", ""), 0.0f);
}

TEST(PodstawaRoczna, RoundsTheSumToGrosze) {
    DemoLista d;
    core::Record r(Karta::schema());
    r.set(Karta::Klucz, "K");
    r.set(Karta::PodstawaZUS, 0.125f);
    core::writeAll(Karta::path(d.s, "a", "2101"), {r});
    core::writeAll(Karta::path(d.s, "a", "2102"), {r});
    core::writeAll(Karta::path(d.s, "a", "2103"), {r});
    // 0.375 to two decimals, ties to even.
    EXPECT_EQ(podstawaRoczna(d.s, "K", ""), core::Round2(0.375));
    EXPECT_EQ(core::numText(podstawaRoczna(d.s, "K", "")), "0.38");
}

TEST(Dodatkowy, RecordIsOneLineAndReadsBack) {
    testing_support::TempDir dir;
    core::Record r(Dodatkowy::schema());
    r.set(Dodatkowy::Nazwisko, "NOWAK");
    r.set(Dodatkowy::Imie, "JAN");
    r.set(Dodatkowy::Klucz, "75031412317");
    r.set(Dodatkowy::KodUbezpieczenia, "011000");
    r.set(Dodatkowy::Podstawa, 5200.0f);
    r.set(Dodatkowy::StawkaPodatku, 0.17f);
    r.set(Dodatkowy::OpcjaROR, "1");
    r.set(Dodatkowy::DataListy, "31-01-2021");
    r.set(Dodatkowy::Il4, 2L);
    const auto file = dir / "aGod2101.dta";
    Dodatkowy::writeAll(file, Dodatkowy::Rodzaj::God, {r, r});
    const std::string line = "\"NOWAK\",\"JAN\",\"75031412317\",\"011000\",5200,,,,,0.17,,,,,\"1\",,,,,2,,,,,,,,,,,,"
                             "\"31-01-2021\",,,,,,,,,,,,\r\n";
    EXPECT_EQ(testing_support::readBytes(file), line + line);
    const auto back = Dodatkowy::readAll(file);
    ASSERT_EQ(back.size(), 2u);
    for (int n = 1; n <= Dodatkowy::Count; ++n) EXPECT_EQ(back[0].item(n), r.item(n)) << n;
    EXPECT_EQ(Dodatkowy::path(core::Session{}, Dodatkowy::Rodzaj::SwU, "a", "2101").filename(), "aSwU2101.dta");
}

TEST(Kartoteka, PersonWithoutAPayRecordKeepsTheFiguresBeforeIt) {
    DemoLista d;
    // ZIELIŃSKI (third) has no pay record: the calculation ends without a word and leaves the
    // result block of WIŚNIEWSKA, which his record carries under his own name and key.
    auto place = d.place();
    place.erase(place.begin() + 2);
    core::writeAll(d.dta(), place);
    ASSERT_TRUE(cmdKartoteka(d.s, d.ui));
    const auto karta = Karta::readAll(d.payer() / "Karta" / "a2101.dta");
    ASSERT_EQ(karta.size(), 7u);
    EXPECT_EQ(d.s.LiczbaOsob, 7);
    EXPECT_EQ(karta[2].s(Karta::Nazwisko), "ZIELIŃSKI");
    EXPECT_EQ(karta[2].s(Karta::Klucz), "88110578938");
    EXPECT_EQ(karta[2].s(Karta::Miejscowosc), "Wieliczka");
    EXPECT_EQ(karta[2].s(Karta::Etat), "  1  2");
    for (int n : {Karta::Zasadnicza, Karta::Brutto, Karta::DoWyplaty, Karta::NumerKonta, Karta::PodstawaZUS})
        EXPECT_EQ(karta[2].s(n), karta[1].s(n)) << n;
    EXPECT_EQ(karta[1].s(Karta::Zasadnicza), "4800");
    // After the closing box one warning names him, as the bank would otherwise pay twice.
    ASSERT_EQ(d.ui.boxes.size(), 3u);
    EXPECT_EQ(d.ui.lines()[1], "[Kartoteka z listy plac a] Wykonano kartotekę za 2101");
    EXPECT_EQ(d.ui.boxes.back().title, "Osoby bez danych płacowych");
    EXPECT_NE(d.ui.last().find("ZIELIŃSKI PIOTR, 88110578938"), std::string::npos);
}

// Every field of the ledger from its own source: each source holds the number of the ledger
// field it belongs to, so the record must read 1, 2, 3 ... with the blank positions and the
// reserves empty.
TEST(Kartoteka, EveryFieldComesFromItsOwnSource) {
    core::Session s;
    s.NazwiskoOsoby = "2", s.ImieOsoby = "3", s.KluczOsoby = "4", s.KodUbezpieczeniaOsoby = "5", s.DataListy = "133";
    core::Stawki& st = s.stawki;
    st.stZDI = 127, st.Kasach = 139, st.emerytalna = 141, st.rentowaPracownik = 142, st.chorobowa = 143;
    st.wypadkowa = 144, st.rentowaPracodawca = 166;
    core::WynikMiesiaca& w = s.wynik;
    for (auto [pole, n] : std::initializer_list<std::pair<float core::WynikMiesiaca::*, int>>{
             {&core::WynikMiesiaca::wZasadnicza, 6}, {&core::WynikMiesiaca::wFunkcyjny, 7},
             {&core::WynikMiesiaca::wStazowy, 8}, {&core::WynikMiesiaca::wPremia, 9},
             {&core::WynikMiesiaca::wSpecjalny, 10}, {&core::WynikMiesiaca::wInny, 11},
             {&core::WynikMiesiaca::wMotywacyjny, 12}, {&core::WynikMiesiaca::wWiejski, 13},
             {&core::WynikMiesiaca::wSpecjalistyczny, 14}, {&core::WynikMiesiaca::wWychowawczy, 15},
             {&core::WynikMiesiaca::wTrudnosciowy, 16}, {&core::WynikMiesiaca::wEkwiwalent, 17},
             {&core::WynikMiesiaca::wNocny, 18}, {&core::WynikMiesiaca::wWyrownania, 19},
             {&core::WynikMiesiaca::wSzkodliwy, 20}, {&core::WynikMiesiaca::wStawkaPodatku, 21},
             {&core::WynikMiesiaca::wNaROR, 27}, {&core::WynikMiesiaca::wKoszty, 30},
             {&core::WynikMiesiaca::wMieszkaniowy, 32}, {&core::WynikMiesiaca::wRataZFM, 38},
             {&core::WynikMiesiaca::wRataKZP, 41}, {&core::WynikMiesiaca::wSkladkaKZP, 42},
             {&core::WynikMiesiaca::wZasilkiNaROR, 43}, {&core::WynikMiesiaca::wPotraceniaInne, 44},
             {&core::WynikMiesiaca::wZwiazek, 45}, {&core::WynikMiesiaca::wSolidarnosc, 46},
             {&core::WynikMiesiaca::wPZU, 47}, {&core::WynikMiesiaca::wPotracenie2, 48},
             {&core::WynikMiesiaca::wPotraceniaPoZasilkach, 49}, {&core::WynikMiesiaca::wPotracenie1, 50},
             {&core::WynikMiesiaca::wPodatekNaliczony, 89}, {&core::WynikMiesiaca::wWypadkowa, 95},
             {&core::WynikMiesiaca::wRentowa, 101}, {&core::WynikMiesiaca::wEmerytalna, 107},
             {&core::WynikMiesiaca::StawkaUrlopowa, 117}, {&core::WynikMiesiaca::wChorobowa, 131},
             {&core::WynikMiesiaca::wZdrowotnaIndywidualna, 132}, {&core::WynikMiesiaca::wZaliczka, 134},
             {&core::WynikMiesiaca::wBrutto, 135}, {&core::WynikMiesiaca::wPodstawaPodatku, 136},
             {&core::WynikMiesiaca::wPodstawaZdrowotnej, 138}, {&core::WynikMiesiaca::wPodstawaZUS, 140},
             {&core::WynikMiesiaca::wZdrowotnaOdliczana, 146}, {&core::WynikMiesiaca::wZasilki, 148},
             {&core::WynikMiesiaca::wDoWyplaty, 149}, {&core::WynikMiesiaca::wChorobowePlatne, 151},
             {&core::WynikMiesiaca::wPodstawaFP, 159}, {&core::WynikMiesiaca::wPodstawaFGSP, 161},
             {&core::WynikMiesiaca::wRentowaPracodawcy, 167}, {&core::WynikMiesiaca::wNiedobor, 170},
             {&core::WynikMiesiaca::wZasilkiDoKasy, 171}, {&core::WynikMiesiaca::wPodatekZasilki, 172},
             {&core::WynikMiesiaca::wUlgaNiewykorzystana, 173}, {&core::WynikMiesiaca::wUlgaZastosowana, 174},
             {&core::WynikMiesiaca::wUrlopowe, 175}, {&core::WynikMiesiaca::wZasilki311, 176}})
        w.*pole = static_cast<float>(n);
    w.DniUrlopu = 116, w.sumaChorobowePlatne = 168, w.sumaZasilki = 169;
    auto nr = [](int n) { return core::Item::bare(std::to_string(n)); };
    for (int i = 0; i < 6; ++i) w.wZasilek[static_cast<std::size_t>(i)] = nr(Karta::ZasilekPielegnacyjny + i);
    for (int i = 0; i < 4; ++i) {
        const int b = Karta::SredniaCH1 + 6 * i;
        w.wLinie[static_cast<std::size_t>(i)] = {nr(b), nr(b + 1), nr(b + 2), nr(b + 3), nr(b + 4), nr(b + 5)};
    }
    w.wSredniaChorobowa = nr(Karta::SredniaChorobowa);
    // Every other item of the pay record holds 999: none of them may reach the ledger, whose blank
    // positions and reserves stay empty whatever the pay record holds.
    w.placa = core::Record(Pay::schema());
    for (int n = 2; n < Pay::Count; ++n) w.placa.set(n, std::string("999"));
    for (auto [pole, n] : {std::pair{Pay::KwotaUlgi, 31}, {Pay::UlgaInwestycyjna, 34}, {Pay::ZastosStaPOD, 35},
                           {Pay::NumerKontaROR, 36}, {Pay::Dokument, 51}, {Pay::KwotaCh1, 83}, {Pay::KwotaCh2, 84},
                           {Pay::KwotaCh3, 85}, {Pay::KwotaCh4, 86}, {Pay::Emerytalna, 152}, {Pay::Rentowa, 153},
                           {Pay::Chorobowa, 154}, {Pay::Wypadkowa, 155}, {Pay::Zdrowotna, 156}})
        w.placa.set(pole, std::to_string(n));
    core::Record o = Osoba::pusty();
    for (auto [pole, n] : {std::pair{Osoba::Obywatelstwo, 52}, {Osoba::Grupa, 87}, {Osoba::Kod, 118},
                           {Osoba::Miejscowosc, 119}, {Osoba::Ulica, 120}, {Osoba::NrDomu, 121}, {Osoba::Lokal, 122},
                           {Osoba::DataUrodzenia, 126}, {Osoba::Etat, 147}, {Osoba::Status, 150},
                           {Osoba::WskaznikFP, 158}, {Osoba::FGSP, 160}, {Osoba::DowodOsobisty, 162},
                           {Osoba::UrzadSkarbowy, 165}})
        o.set(pole, std::to_string(n));

    testing_support::TempDir dir;
    core::writeAll(dir / "karta.dta", std::vector<core::Record>{rekordKarty(s, o)});
    const auto lines = readLines(dir / "karta.dta");
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(Karta::Count));
    EXPECT_EQ(lines.front(), "\"<Poczatek>\"");
    EXPECT_EQ(lines.back(), "\"<Koniec>\"");
    for (int n = 2; n < Karta::Count; ++n) {
        const auto& pole = Karta::schema().fields[static_cast<std::size_t>(n - 1)];
        const bool pusta = pole.type == core::FieldType::Blank || pole.name.starts_with("Rezerwa");
        EXPECT_EQ(core::Replace(lines[static_cast<std::size_t>(n - 1)], "\"", ""), pusta ? "" : std::to_string(n))
            << "pole " << n << " " << pole.name;
    }
}
