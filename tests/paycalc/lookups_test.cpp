// Finding the records of the employee, the box of the missing personnel record, the silent end
// without a pay record, and the errors that stop the calculation part way.
#include <gtest/gtest.h>

#include "core/error.h"
#include "fixture.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"
#include "support/tempdir.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace {
std::string kluczPlacy(const core::Record& r) { return payinputs::kluczOsoby(r); }
std::string kluczOsoby(const core::Record& r) { return personnel::kluczOsoby(r); }
}  // namespace

TEST(Lookups, MissingPersonnelRecordShowsTheBoxAndGoesOnWithTheLastRecordRead) {
    fx::Lista l("31-01-2009");
    l.dodaj("70051512345", 3000);
    l.dodaj("60010112345", 1000);
    l.osobaNr(1).set(Osoba::Grupa, "z");
    l.place.push_back(fx::placa("55010112345", 3000, "NOWAK", "PIOTR"));  // no personnel record
    l.zapisz();
    reference::loadRates(l.s);
    l.s.KluczOsoby = "55010112345";
    l.s.NazwiskoOsoby = "NOWAK";
    ASSERT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, paycalc::wczytajZbiory(l.s)), paycalc::Wynik::Policzono);
    ASSERT_EQ(l.ui.boxes.size(), 1u);
    EXPECT_EQ(l.ui.last(), "[Sprawdź w module osoba !] Brak w zbiorze personalnym danych o osobie NOWAK");
    EXPECT_EQ(l.ui.boxes[0].buttons, core::Buttons::OK);
    // The values read last are those of the last person of the file, a group "z" worker:
    // no advance, and 3000 less the two health parts is paid out.
    EXPECT_EQ(l.s.wynik.osoba.s(Osoba::Pesel), "60010112345");
    EXPECT_EQ(l.s.wynik.wZaliczka, 0.0f);
    EXPECT_EQ(l.s.wynik.wNetto, 2156.72f);
    EXPECT_EQ(l.s.wynik.wDoWyplaty, fx::sumaF({3000, -232.98}));  // 3000 - Round2(32.36 + 200.62)
}

TEST(Lookups, EmptyPersonnelFileKeepsThePreviousPersonsValues) {
    fx::Lista l("31-01-2009");
    l.dodaj("70051512345", 3000);
    l.osobaNr(0).set(Osoba::Grupa, "z");
    l.dodaj("60010112345", 1000);
    l.zapisz();
    reference::loadRates(l.s);
    paycalc::ZbioryListy z = paycalc::wczytajZbiory(l.s);
    l.s.KluczOsoby = "70051512345";
    ASSERT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, z), paycalc::Wynik::Policzono);
    z.osobowe = paycalc::Zbior({}, kluczOsoby);
    l.s.KluczOsoby = "60010112345";
    ASSERT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, z), paycalc::Wynik::Policzono);
    EXPECT_EQ(l.ui.boxes.size(), 1u);
    EXPECT_EQ(l.s.wynik.osoba.s(Osoba::Pesel), "70051512345");
    EXPECT_EQ(l.s.wynik.wZaliczka, 0.0f);  // still group "z"
}

TEST(Lookups, NoPayRecordEndsSilentlyAndLeavesTheBlock) {
    fx::Lista l("31-01-2009");
    l.dodaj("70051512345", 3000);
    l.s.wynik.wBrutto = 123.45f;
    l.s.wynik.wNetto = 99.0f;
    EXPECT_EQ(l.licz("99999999999"), paycalc::Wynik::BrakPlacy);
    EXPECT_EQ(l.s.wynik.wBrutto, 123.45f);
    EXPECT_EQ(l.s.wynik.wNetto, 99.0f);
    EXPECT_TRUE(l.ui.boxes.empty());
}

TEST(Lookups, FirstMatchingRecordInFileOrderAndTheIdentifierRule) {
    fx::Lista l("31-01-2009");
    l.dodaj("70051512345", 3000);
    l.place.push_back(fx::placa("70051512345", 5000));  // a second record of the same person
    // A foreigner is found by the document number in both files.
    core::Record& obcy = l.dodaj("", 2000, "15-05-1970");
    obcy.set(Pay::Obywatelstwo, "UKRAIŃSKIE");
    obcy.set(Pay::Dokument, "FP123456");
    l.osobaNr(1).set(Osoba::Obywatelstwo, "UKRAIŃSKIE");
    l.osobaNr(1).set(Osoba::Paszport, "FP123456");
    // An empty citizenship reads as Polish: found by the PESEL.
    core::Record& pusty = l.dodaj("80010112345", 1000);
    pusty.set(Pay::Obywatelstwo, "");
    l.osobaNr(2).set(Osoba::Obywatelstwo, "0");
    struct {
        const char* klucz;
        float brutto;
    } cases[] = {{"70051512345", 3000}, {"FP123456", 2000}, {"80010112345", 1000}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.klucz);
        ASSERT_EQ(l.licz(c.klucz), paycalc::Wynik::Policzono);
        EXPECT_EQ(l.s.wynik.wBrutto, c.brutto);
    }
    EXPECT_TRUE(l.ui.boxes.empty());
}

// A birth date built from a PESEL with a coded month (23: March 2001) is not a date: the error
// goes to the report, the steps from the age on do not run. What they set keeps the values of
// the employee before; what came earlier is fresh.
TEST(Lookups, CodedMonthOfTheBirthDateStopsTheCalculation) {
    fx::Lista l("31-01-2009");
    l.dodaj("01231512345", 3000, "");
    core::WynikMiesiaca& w = l.s.wynik;
    w.wZaliczka = 777;
    w.wNetto = 888;
    w.wPodstawaFP = 555;
    try {
        l.licz("01231512345");
        FAIL() << "no error";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::TypeMismatch);
        EXPECT_NE(e.Step.find("data urodzenia"), std::string::npos);
        EXPECT_NE(e.Detail.find("15-23-2001"), std::string::npos);
        EXPECT_EQ(core::errorReport(e).rfind(" Błąd nr 13 ", 0), 0u) << core::errorReport(e);
    }
    EXPECT_EQ(w.osoba.s(Osoba::DataUrodzenia), "15-23-2001");
    EXPECT_EQ(w.wPodatekNaliczony, 399.53f);  // before the age: fresh
    EXPECT_EQ(w.wZaliczka, 777.0f);           // from the age on: kept
    EXPECT_EQ(w.wNetto, 888.0f);
    EXPECT_EQ(w.wPodstawaFP, 555.0f);
}

TEST(Lookups, GrossBeyondAFloatIsAnOverflow) {
    fx::Lista l("31-01-2009");
    core::Record& p = l.dodaj("70051512345", 3e38f);
    p.set(Pay::Premia, 3e38f);
    try {
        l.licz("70051512345");
        FAIL() << "an infinite gross must not pass";
    } catch (const core::Error& e) {
        EXPECT_EQ(core::errorReport(e).rfind(" Błąd nr 6 ", 0), 0u) << core::errorReport(e);
    }
}

TEST(Lookups, FileErrors) {
    // No pay file: Error 53.
    {
        fx::Lista l("31-01-2009");
        reference::loadRates(l.s);
        l.s.KluczOsoby = "70051512345";
        try {
            paycalc::modWyliczeniePlacy(l.s, l.ui);
            FAIL() << "no error";
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::FileNotFound);
        }
    }
    // A pay file cut short inside its second record: the first person is found before the
    // fault, the second raises it (Error 62), as a scan from the start would.
    {
        fx::Lista l("31-01-2009");
        l.dodaj("70051512345", 3000);
        l.dodaj("60010112345", 2000);
        l.zapisz();
        auto lines = testing_support::readLines(payinputs::Pay::path(l.s));
        lines.resize(155 + 60);
        testing_support::writeLines(payinputs::Pay::path(l.s), lines);
        reference::loadRates(l.s);
        const paycalc::ZbioryListy z = paycalc::wczytajZbiory(l.s);
        l.s.KluczOsoby = "70051512345";
        EXPECT_EQ(paycalc::modWyliczeniePlacy(l.s, l.ui, z), paycalc::Wynik::Policzono);
        l.s.KluczOsoby = "60010112345";
        try {
            paycalc::modWyliczeniePlacy(l.s, l.ui, z);
            FAIL() << "no error";
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::InputPastEnd);
        }
    }
    // Group "p" absent 5000 days: the hours overflow 16 bits (Error 6).
    {
        fx::Lista l("31-01-2009");
        core::Record& p = l.dodaj("70051512345", 3000);
        p.set(Pay::BZP1dni, 5000L);
        l.osobaNr(0).set(Osoba::Grupa, "p");
        try {
            l.licz("70051512345");
            FAIL() << "no error";
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::Overflow);
        }
    }
    // A letter in a number of the pay record: Error 13 on reading.
    {
        fx::Lista l("31-01-2009");
        core::Record& p = l.dodaj("70051512345", 3000);
        p.set(Pay::Liczbadni1, "pięć");
        try {
            l.licz("70051512345");
            FAIL() << "no error";
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::TypeMismatch);
        }
    }
}

// The lookup of a file read once keeps the system's meaning.
TEST(Lookups, RecordsReadOnce) {
    std::vector<core::Record> recs = {fx::placa("1", 100), fx::placa("2", 200), fx::placa("1", 300)};
    paycalc::Zbior z(recs, kluczPlacy);
    ASSERT_NE(z.znajdz("1"), nullptr);
    EXPECT_EQ(z.znajdz("1")->f(Pay::Zasadnicza), 100.0f);
    EXPECT_EQ(z.znajdz("2")->f(Pay::Zasadnicza), 200.0f);
    EXPECT_EQ(z.znajdz("3"), nullptr);
    paycalc::Zbior broken({recs[0]}, kluczPlacy, core::Error(core::err::InputPastEnd, "bazy"));
    EXPECT_NE(broken.znajdz("1"), nullptr);
    EXPECT_THROW(broken.znajdz("2"), core::Error);
}
