#include <gtest/gtest.h>

#include "core/seqfile.h"
#include "core/text.h"
#include "reference/podatki.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using core::Answer;
using reference::Dane::Count;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;
using testing_support::TempDir;
namespace D = reference::Dane;

namespace {

core::Record rates(const std::string& ubrent, const std::string& sklRentPrd, const std::string& wypad = "1.67") {
    core::Record r(D::schema());
    r.set(D::Ubrent, ubrent);
    r.set(D::sklRentPrd, sklRentPrd);
    r.set(D::Ubemer, "19.52");
    r.set(D::UbChor, "2.45");
    r.set(D::UbWypad, wypad);
    r.set(D::Kasach, "9");
    r.set(D::stZDI, "1.25");
    r.set(D::FuPr, "2.45");
    r.set(D::FGSP, "0.10");
    r.set(D::MInBRUTTO, 2800.0f);
    r.set(D::Rok, "2021");
    return r;
}

struct Demo {
    TempDir dir;
    core::Session s;
    ScriptedDialogs ui;
    explicit Demo(const std::string& date = "31-01-2021") {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        s.DataListy = date;
    }
    fs::path dane() const { return dir / "dane" / "Dane.dta"; }
};

}  // namespace

TEST(Rates, DerivedOnceForEveryReader) {
    struct {
        std::string ubrent, sklRentPrd;
        float payerRate;
        double pracownik, pracodawca, wypadkowa;
    } cases[] = {
        {"13", "0", 0, 0.065, 0.065, 0.0167},   // the rent rate halved onto both sides
        {"1.5", "6.5", 0, 0.015, 0.065, 0.0167},
        {"1.5", "6.5", 2.5f, 0.015, 0.065, 0.025},  // the payer's own accident rate
        {"1.5", "", 0, 0.0075, 0.0075, 0.0167},     // an empty employer's rate counts as 0
    };
    for (const auto& c : cases) {
        core::Record r = rates(c.ubrent, c.sklRentPrd);
        auto st = reference::deriveRates(r, c.payerRate);
        EXPECT_DOUBLE_EQ(st.rentowaPracownik, c.pracownik) << c.ubrent << "/" << c.sklRentPrd;
        EXPECT_DOUBLE_EQ(st.rentowaPracodawca, c.pracodawca) << c.ubrent << "/" << c.sklRentPrd;
        EXPECT_DOUBLE_EQ(st.wypadkowa, c.wypadkowa);
        EXPECT_DOUBLE_EQ(st.emerytalna, 0.0976);  // the whole old-age rate halved
        EXPECT_DOUBLE_EQ(st.zdrowotnaInd, 0.0125);
        EXPECT_FLOAT_EQ(st.MInBRUTTO, 2800.0f);
        // The record keeps what was typed.
        EXPECT_EQ(r.s(D::Ubrent), c.ubrent);
        EXPECT_EQ(r.s(D::sklRentPrd), c.sklRentPrd);
    }
    core::Record bad = rates("1,5", "6.5");
    EXPECT_THROW(reference::deriveRates(bad, 0), core::Error);
}

TEST(Rates, MissingYearKeepsTheLastRecord) {
    Demo d("31-01-2030");
    bool found = true;
    auto r = D::readYear(d.dane(), "2030", &found);
    EXPECT_FALSE(found);
    EXPECT_EQ(r.s(D::Rok), "2021");
    auto r2012 = D::readYear(d.dane(), "2012", &found);
    EXPECT_TRUE(found);
    EXPECT_EQ(r2012.s(D::sklRentPrd), "4.5");
    EXPECT_FLOAT_EQ(r2012.f(D::MInBRUTTO), 1500.0f);
}

TEST(Podatki, SavingAYearLeavesTheOtherYearsByteIdentical) {
    Demo d("30-06-2015");
    std::string before = core::readFileText(d.dane());
    reference::PodatkiScreen f(d.ui, d.s);
    f.Load();
    EXPECT_EQ(f.Label18.Caption, "Stawki obowiazujace na 2015 rok");
    EXPECT_EQ(f.txt(D::UbWypad).Text, "1.93");
    f.txt(D::UbWypad).Text = "1,80";
    f.txt(D::MInBRUTTO).Text = "1750,5";
    f.cmdZapisz_Click();
    EXPECT_TRUE(d.ui.boxes.empty()) << d.ui.last();
    EXPECT_EQ(f.Label34.Caption, "Zapisane zmiany do 2015 roku");
    std::string after = core::readFileText(d.dane());
    // Records are 38 lines each; 2015 is the seventh.
    auto lines = [](const std::string& t) { return core::Split(t, '\n'); };
    auto a = lines(before), b = lines(after);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        bool in2015 = i >= 6 * 38 && i < 7 * 38;
        if (!in2015) { EXPECT_EQ(a[i], b[i]) << "line " << i + 1; }
    }
    EXPECT_EQ(b[6 * 38 + D::UbWypad - 1], "\"1.80\"\r");       // a variant takes the typed text
    EXPECT_EQ(b[6 * 38 + D::MInBRUTTO - 1], "1750.5\r");      // a float is stored as a number
    EXPECT_EQ(b[6 * 38 + D::Rok - 1], "\"2015\"\r");
    EXPECT_EQ(b[6 * 38 + D::Administrator1 - 1], "\"Anna Kowalska\"\r");
}

TEST(Podatki, NewYearIsAddedOnlyAfterTheQuestion) {
    for (Answer a : {Answer::Yes, Answer::No}) {
        Demo d("31-01-2022");
        std::string before = readBytes(d.dane());
        reference::PodatkiScreen f(d.ui, d.s);
        f.Load();
        EXPECT_EQ(f.txt(D::Stawka1).Text, "");  // this screen does not stay on the last year
        f.txt(D::Stawka1).Text = "17";
        f.txt(D::KwotaGRE).Text = "165690";
        d.ui.answer(a);
        f.cmdZapisz_Click();
        ASSERT_FALSE(d.ui.boxes.empty());
        EXPECT_EQ(d.ui.boxes[0].title, "Brak zbioru Dane na rok 2022");
        EXPECT_EQ(d.ui.boxes[0].text,
                  "Brak pliku danych ogólnych w podkatalogu Dane na ten rok , Zostaną założone na w/w danych");
        std::string after = readBytes(d.dane());
        if (a == Answer::No) {
            EXPECT_EQ(after, before);
            continue;
        }
        EXPECT_EQ(f.Label34.Caption, "Dopisano w/w dane do 2022 roku");
        EXPECT_EQ(after.substr(0, before.size()), before);
        bool found = false;
        auto r = D::readYear(d.dane(), "2022", &found);
        EXPECT_TRUE(found);
        EXPECT_FLOAT_EQ(r.f(D::KwotaGRE), 165690.0f);
        EXPECT_TRUE(r.isEmpty(D::Rezerwa28));
    }
}

TEST(Podatki, LetterInARateIsRefusedAndChangesNothing) {
    Demo d;
    std::string before = readBytes(d.dane());
    reference::PodatkiScreen f(d.ui, d.s);
    f.Load();
    f.txt(D::Ubemer).Text = "19.5x";
    f.cmdZapisz_Click();
    EXPECT_EQ(d.ui.last(),
              "[Błędna wartość] W polu \"Stawka Emerytalna\" wpisano \"19.5x\" - to nie jest liczba. Popraw wartość; zmian "
              "nie zapisano.");
    EXPECT_EQ(f.FocusTo, "txtUbemer");
    EXPECT_EQ(readBytes(d.dane()), before);
}

TEST(Podatki, MissingRatesFile) {
    for (Answer a : {Answer::Yes, Answer::No}) {
        Demo d;
        fs::remove(d.dane());
        d.ui.answer(a);
        reference::PodatkiScreen f(d.ui, d.s);
        f.Load();
        ASSERT_GE(d.ui.boxes.size(), 2u);
        EXPECT_EQ(d.ui.lines()[0],
                  "[Brak zbioru Dane !] Brak pliku danych ogólnych w podkatalogu Dane , Założenie zbioru od nowa Tak ?");
        if (a == Answer::Yes) {
            EXPECT_EQ(d.ui.last(), "[Wpis pierwszy !] Uzupełnij dane i Zapisz zmiany!");
            EXPECT_TRUE(fs::exists(d.dane()));
            EXPECT_FALSE(f.Unloaded);
        } else {
            EXPECT_EQ(d.ui.last(), "[] Brak Zbioru! ");
            EXPECT_FALSE(fs::exists(d.dane()));
            EXPECT_TRUE(f.Unloaded);
        }
    }
}

TEST(Obsluga, AdministratorLineOfTheYear) {
    Demo d("31-01-2020");
    reference::ObslugaScreen f(d.ui, d.s);
    f.Load();
    EXPECT_EQ(f.lbAdministrator.Caption, "Anna Kowalska Główna księgowa");
    f.txtAdministrator1.Text = "Jan Żółć";
    f.txtAdministrator2.Text = "Kierownik kadr";
    f.cmdZapisz_Click();
    EXPECT_EQ(f.lbAdministrator.Caption, "Jan Żółć Kierownik kadr");
    EXPECT_EQ(D::readYear(d.dane(), "2020").s(D::Administrator1), "Jan Żółć");
    EXPECT_EQ(D::readYear(d.dane(), "2021").s(D::Administrator1), "Anna Kowalska");
}

TEST(Podatki, DoubleQuoteIsRefusedByTheWritersOfTheRates) {
    struct {
        const char* what;
        std::function<void(Demo&)> run;
        std::string box;
    } cases[] = {
        {"rates",
         [](Demo& d) {
             reference::PodatkiScreen f(d.ui, d.s);
             f.Load();
             f.txt(D::PodstawaDoKZP).Text = "P\"";
             f.cmdZapisz_Click();
         },
         "Podstawa do skladek KZP np: brutto lub zasadnicza, mbrutto (-chorobowe)   funkcyjny(zasadnicza +funkcyjny)"},
        {"administrator",
         [](Demo& d) {
             reference::ObslugaScreen f(d.ui, d.s);
             f.Load();
             f.txtAdministrator2.Text = "Kierownik \"kadr\"";
             f.cmdZapisz_Click();
         },
         "Stanowisko"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Demo d;
        std::string before = readBytes(d.dane());
        c.run(d);
        EXPECT_EQ(d.ui.last(), "[Błędne dane] Pole \"" + c.box + "\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano.");
        EXPECT_EQ(readBytes(d.dane()), before);
    }
}
