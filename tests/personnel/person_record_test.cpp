#include <gtest/gtest.h>

#include "core/text.h"
#include "personnel/person_record.h"
#include "personnel/postal_codes.h"
#include "support/tempdir.h"

using namespace personnel;
using testing_support::readBytes;
using testing_support::TempDir;

namespace {

// The 41 lines of a person record: the values 2..40 given, the markers around them.
std::string osoba(const std::vector<std::string>& wartosci, const std::string& koniec) {
    std::string s = "\"<Poczatek>\"\r\n";
    for (const auto& w : wartosci) s += w + "\r\n";
    return s + "\"" + koniec + "\"\r\n";
}

std::vector<std::string> wartosci(const std::string& nazwisko, const std::string& pesel, const std::string& paszport,
                                  const std::string& obywatelstwo, const std::string& rezerwa28) {
    std::vector<std::string> v(39, "\"\"");
    v[Osoba::Nazwisko - 2] = "\"" + nazwisko + "\"";
    v[Osoba::Pesel - 2] = "\"" + pesel + "\"";
    v[Osoba::Etat - 2] = "\"  3  4\"";
    v[Osoba::Rezerwa28 - 2] = rezerwa28;
    v[Osoba::Paszport - 2] = "\"" + paszport + "\"";
    v[Osoba::Obywatelstwo - 2] = "\"" + obywatelstwo + "\"";
    v[Osoba::DataZatrudnienia - 2] = "\"01-02-2005X          \"";
    v[Osoba::Status - 2] = "1";
    v[Osoba::Numer - 2] = "12";
    return v;
}

}  // namespace

TEST(PersonFile, RoundTripByteForByteWithBothEndMarkers) {
    // Value 28 as an empty line, as a quoted text and as a bare number; "<koniec>" and "<Koniec>".
    const std::string file = osoba(wartosci("NOWAK", "75031412317", "", "POLSKIE", ""), "<koniec>") +
                             osoba(wartosci("KOWALENKO", "", "FP123456", "UKRAIŃSKIE", "\"x, y\""), "<Koniec>") +
                             osoba(wartosci("ŻAK", "88110578938", "", "0", "7"), "<koniec>");
    TempDir dir;
    auto path = dir / "a.per";
    core::commitFile(path, file);
    auto recs = Osoba::readAll(path);
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_EQ(recs[0].s(Osoba::Nazwisko), "NOWAK");
    EXPECT_EQ(recs[0].i(Osoba::Numer), 12);
    EXPECT_EQ(recs[1].s(Osoba::Koniec), "<Koniec>");
    EXPECT_EQ(recs[1].s(Osoba::Rezerwa28), "x, y");
    EXPECT_EQ(recs[2].item(Osoba::Rezerwa28).kind, core::Item::Bare);
    EXPECT_EQ(recs[0].item(Osoba::Rezerwa28).kind, core::Item::Empty);
    core::writeAll(path, recs);
    EXPECT_EQ(readBytes(path), core::toCp1250(file));
}

TEST(PersonFile, IdentifierByCitizenship) {
    struct {
        const char* obywatelstwo;
        const char* klucz;
    } cases[] = {
        {"POLSKIE", "75031412317"},  {"", "75031412317"},       {"0", "75031412317"},
        {"0RAZ", "75031412317"},     {"polskie", "75031412317"}, {"Polska", "75031412317"},
        {"UKRAIŃSKIE", "FP123456"},  {"POL", "FP123456"},        {"NIEMIECKIE", "FP123456"},
    };
    for (const auto& c : cases) {
        auto text = osoba(wartosci("X", "75031412317", "FP123456", c.obywatelstwo, ""), "<koniec>");
        auto in = core::SeqReader::fromText(text);
        core::Record r = core::readRecord(in, Osoba::schema());
        EXPECT_EQ(kluczOsoby(r), c.klucz) << c.obywatelstwo;
    }
    EXPECT_EQ(obywatelstwo(""), "POLSKIE");
    EXPECT_EQ(obywatelstwo("0"), "POLSKIE");
    EXPECT_EQ(obywatelstwo("UKRAIŃSKIE"), "UKRAIŃSKIE");
}

TEST(PersonFile, PostAndDateOfHire) {
    struct {
        const char *licznik, *mianownik, *etat;
        double ulamek;
    } cases[] = {
        {"1", "1", "  1  1", 1.0},
        {"3", "4", "  3  4", 0.75},
        {" 1 ", "2", "  1  2", 0.5},
        {"1", "3", "  1  3", static_cast<double>(33.33f) / 100},  // two decimals of the percent, as a float
        {"1", "0", "  1  0", 0.0},                                 // no denominator: not computed
        {"1234", "1", "234  1", 1234.0},                           // the last three characters kept
    };
    for (const auto& c : cases) {
        EXPECT_EQ(etatTekst(c.licznik, c.mianownik), c.etat);
        EXPECT_DOUBLE_EQ(ulamekEtatu(c.licznik, c.mianownik), c.ulamek) << c.licznik << "/" << c.mianownik;
    }
    EXPECT_EQ(dataZatrudnienia("01-02-2005X          "), "01-02-2005");
    EXPECT_EQ(dataZatrudnienia("01-02-2005"), "");  // without the literal it is no date
    EXPECT_EQ(dataZatrudnienia(""), "");
}

TEST(PersonFile, BirthDateFromPesel) {
    struct {
        const char *tekst, *pesel, *data;
    } cases[] = {
        {"", "85031512345", "15-03-1985"},
        {"", "01211512345", "15-21-2001"},  // month of the 2000s kept as coded
        {"", "99321512345", "15-32-1999"},  // third digit 3: still "19"
        {"01.01.1990", "85031512345", "15-03-1990"},  // dotted text keeps its year
        {"xx", "8503151234", "xx"},          // 10 characters: nothing happens
        {"", "850315123456", ""},            // 12 characters: nothing happens
        {"15-03-1985", "00000000000", "00-00-1900"},  // no check of the number at all
    };
    for (const auto& c : cases) EXPECT_EQ(dataUrodzeniaZPesel(c.tekst, c.pesel), c.data) << c.pesel;
}

TEST(PostalCodes, AllRowsAndUnknownCodes) {
    EXPECT_EQ(liczbaKodowPocztowych(), 21);
    struct {
        const char* kod;
        AdresPocztowy adres;
    } cases[] = {
        {"32-400", {"Myślenice", "Myślenice", "Myślenice", "Myślenice", "Małopolskie"}},
        {"32-422", {"Stadniki", "Stadniki", "Dobczyce", "Myślenice", "Małopolskie"}},
        {"32-406", {"Zakliczyn", "Zakliczyn", "Siepraw", "Myślenice", "Małopolskie"}},
        {"32-040", {"Świątniki Górne", "Świątniki Górne", "Świątniki Górne", "Kraków", "Małopolskie"}},
        {"30-444", {"Libertów", "Kraków 55", "Mogilany", "Kraków", "Małopolskie"}},
        {"08-210", {"Platerów", "Platerów", "Platerów", "Łosice", "Bialskopodlaskie"}},
        {"34-700", {"Rabka-Zdrój", "Rabka-Zdrój", "Rabka-Zdrój", "Nowy Targ", "Małopolskie"}},
        {"00-950", {}},
        {"32-400 ", {}},  // the screen trims before it looks up
        {"", {}},
    };
    for (const auto& c : cases) EXPECT_EQ(szukajKoduPocztowego(c.kod), c.adres) << c.kod;
}

TEST(PersonFile, WorkspaceLine) {
    auto text = osoba(wartosci("KOWALENKO", "", "FP123456", "UKRAIŃSKIE", ""), "<koniec>");
    auto in = core::SeqReader::fromText(text);
    core::Record r = core::readRecord(in, Osoba::schema());
    r.set(Osoba::Imie, "OLENA");
    r.set(Osoba::KodUbezpieczenia, "011000");
    std::string line = wierszListy(7, r);
    EXPECT_EQ(core::Left(line, 4), "  7 ");
    EXPECT_EQ(core::Mid(line, 5, 25), core::PadRight("KOWALENKO", 25));
    EXPECT_EQ(core::Mid(line, 31, 20), core::PadRight("OLENA", 20));
    EXPECT_EQ(core::Mid(line, 56, 11), "FP123456   ");
    EXPECT_EQ(core::Right(line, 6), "011000");
    EXPECT_NE(line.find(" Tak "), std::string::npos);
}
