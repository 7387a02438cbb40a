// The supplementary runs: the amounts and deductions of each kind, worked out by hand with the
// rates of 2021 (pension 9.76 %, disability 1.5 %, sickness 2.45 %, health 9 % and 1.25 %), and
// the common frame on the files of the demo list.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "support/demo.h"
#include "paycalc/dodatkowe.h"
#include "paycalc/lista.h"

using namespace paycalc;
using namespace paycalc::Dodatkowy;
using core::Record;

namespace {

core::Session sesja() {
    core::Session s;
    s.DataListy = "31-01-2021";
    core::Stawki& st = s.stawki;
    st.emerytalna = 0.0976;
    st.rentowaPracownik = 0.015;
    st.chorobowa = 0.0245;
    st.zdrowotna = 0.09;
    st.zdrowotnaInd = 0.0125;
    st.Stawka1 = 18;  // not 17, so that a rate taken from Stawka1 shows
    st.KwotaGRE = 157770;
    st.Trzynastka = 8.5;
    return s;
}

Record rekord(const std::string& stawka) {
    Record r(schema());
    r.set(Klucz, "75031412317");
    r.set(StawkaPodatku, static_cast<float>(std::stod(stawka)));
    return r;
}

std::string bajty(const std::filesystem::path& f) {
    std::ifstream in(f, std::ios::binary);
    std::ostringstream o;
    o << in.rdbuf();
    return o.str();
}

}  // namespace

TEST(Nadgodziny, DivisorAllowanceAndRates) {
    struct {
        const char *nazwa, *grupa, *etat, *trudnosciowy;
        double dzielnik;
        float dodatek, stawka1, kw1;
    } cases[] = {
        {"teacher, allowance a fraction", "n", "", "0.2", 75, 840, 67.2f, 672},
        {"teacher, 40 is still a fraction", "n", "", "40", 75, 168000, 2296, 22960},
        {"teacher with hours in the share", "n", " 18 24", "0.2", 100, 840, 50.4f, 504},
        {"administration", "a", "  1  1", "0.2", 168, 0, 25, 250},
        {"other group takes the share", "p", "  1  1", "", 1, 0, 4200, 42000},
    };
    const core::Session s = sesja();
    for (const auto& c : cases) {
        Record r = rekord("17");
        Nadgodziny we{"4200", c.etat, c.trudnosciowy, "", c.grupa, {"10"}, {}, false};
        const WynikNadgodzin w = liczNadgodziny(s, r, we);
        EXPECT_EQ(w.Dzielnik, c.dzielnik) << c.nazwa;
        EXPECT_FLOAT_EQ(w.Dodatek, c.dodatek) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(Sta1), c.stawka1) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(Kw1), c.kw1) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(RazemKwota), c.kw1) << c.nazwa;
    }
}

TEST(Nadgodziny, TypedRateNightFactorAndDeductions) {
    const core::Session s = sesja();
    Record r = rekord("17");  // above 1: a percentage
    Nadgodziny we{"4200", "  1  1", "", "1.09", "a", {}, {}, true};
    we.Il = {"", "3", "", "2", "", "", ""};
    we.Sta = {"", "40", "12", "", "", "", ""};
    const WynikNadgodzin w = liczNadgodziny(s, r, we);
    EXPECT_FLOAT_EQ(r.f(Sta2), 40);        // typed, kept
    EXPECT_FLOAT_EQ(r.f(Kw2), 120);
    EXPECT_EQ(r.s(Sta3), "12");           // no hours: the rate stays, no amount
    EXPECT_FLOAT_EQ(r.f(Kw3), 0);
    EXPECT_FLOAT_EQ(r.f(Sta4), 28.75f);    // 4200 x 1.15 / 168
    EXPECT_FLOAT_EQ(r.f(Kw4), 57.5f);
    EXPECT_FLOAT_EQ(w.RazemGodziny, 5);
    // K = B = 177.50
    EXPECT_FLOAT_EQ(r.f(KwotaBrutto), 177.5f);
    EXPECT_FLOAT_EQ(w.r.skl.Razem, 24.33f);  // 17.32 + 2.66 + 4.35
    EXPECT_FLOAT_EQ(r.f(PodstawaZdrowotna), 153.17f);
    EXPECT_FLOAT_EQ(r.f(SkladkaZdrowotna), 13.79f);    // 13.7853
    EXPECT_FLOAT_EQ(r.f(SkladkaIndywidualna), 1.91f);  // 1.914625
    EXPECT_FLOAT_EQ(r.f(StawkaPodatku), 0.17f);
    EXPECT_FLOAT_EQ(w.r.PodatekBrutto, 26.01f);  // 0.17 x 153
    EXPECT_FLOAT_EQ(r.f(PodatekNetto), 12);  // 26.01 - 13.79 = 12.22
    EXPECT_FLOAT_EQ(r.f(PlacaNetto), 125.47f);  // less 24.33 + 13.79 + 1.91 + 12
    // Less the typed deduction, into the account.
    EXPECT_FLOAT_EQ(r.f(NaROR), 124.38f);
    EXPECT_FLOAT_EQ(r.f(DoWyplaty), 0);
    EXPECT_EQ(r.s(OpcjaROR), "1");
}

TEST(Dodatki, AnnualLimitOfPensionAndDisability) {
    const std::string info = "Suma poprzednich wypłat + bieżąca wypłata z listy + akt. dodatek przekracza graniczną "
                             "kwotę postawy składek EM i RENT, składki te ";
    struct {
        const char *nazwa, *wczesniej;
        float zListy, emerytalna, rentowa;
        double stopa;
        std::string info;
    } cases[] = {
        {"under the limit", "100000", 0, 97.6f, 15, 9.76, ""},
        {"across the limit", "157000", 300, 45.87f, 7.05f, 9.76, info + "wyliczono od podstawy 470"},
        {"earlier sum above it", "158000", 0, 0, 0, 0, info + "=0 "},
    };
    const core::Session s = sesja();
    for (const auto& c : cases) {
        Record r = rekord("0.17");
        Dodatki we;
        we.Kwoty = {"1000", "", "", "", "", "500", ""};  // the award bears no contributions
        we.Wczesniej = c.wczesniej;
        we.ZListy = c.zListy;
        const WynikDodatkow w = liczDodatki(s, r, we);
        EXPECT_FLOAT_EQ(w.r.skl.Emerytalna, c.emerytalna) << c.nazwa;
        EXPECT_FLOAT_EQ(w.r.skl.Rentowa, c.rentowa) << c.nazwa;
        EXPECT_FLOAT_EQ(w.r.skl.Chorobowa, 24.5f) << c.nazwa;  // never capped
        EXPECT_NEAR(w.StopaEmerytalna, c.stopa, 1e-9) << c.nazwa;
        EXPECT_EQ(w.Info, c.info) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(RazemKwota), 1500) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(KwotaBrutto), 1000) << c.nazwa;
        EXPECT_EQ(r.s(Il6), "010") << c.nazwa;
        EXPECT_EQ(r.s(BruttoOd01), c.wczesniej) << c.nazwa;
    }
}

TEST(Trzynastka, PercentRateTakesStawka1) {
    const core::Session s = sesja();
    Record r = rekord("17");
    const Rozliczenie w = liczTrzynastke(s, r, {"60000", "8.5", "", false});
    EXPECT_FLOAT_EQ(r.f(KwotaBrutto), 5100);
    EXPECT_FLOAT_EQ(w.skl.Razem, 699.21f);  // 497.76 + 76.50 + 124.95
    EXPECT_FLOAT_EQ(r.f(PodstawaZdrowotna), 4400.79f);
    EXPECT_FLOAT_EQ(r.f(SkladkaZdrowotna), 396.07f);
    EXPECT_FLOAT_EQ(r.f(SkladkaIndywidualna), 55.01f);
    EXPECT_FLOAT_EQ(r.f(StawkaPodatku), 0.18f);  // Stawka1, not 17 / 100
    EXPECT_FLOAT_EQ(w.PodatekBrutto, 792.18f);   // 0.18 x 4401
    EXPECT_FLOAT_EQ(r.f(PodatekNetto), 396);
    EXPECT_FLOAT_EQ(r.f(DoWyplaty), 3553.71f);
}

TEST(TylkoPodatek, JubileeAndHolidayBenefitBearNoContributions) {
    struct {
        const char* nazwa;
        Rodzaj rodzaj;
        const char *stawka, *kwota;
        bool ror;
        float podatek, doWyplaty, naROR;
    } cases[] = {
        {"jubilee, rate of the record", Rodzaj::Jub, "0.17", "3000", false, 510, 2490, 0},
        {"jubilee, percent gives Stawka1", Rodzaj::Jub, "32", "3000", false, 540, 2460, 0},
        {"holiday benefit always Stawka1", Rodzaj::SwU, "0.32", "1000.5", true, 180, 0, 820.5f},
    };
    const core::Session s = sesja();
    for (const auto& c : cases) {
        Record r = rekord(c.stawka);
        const Rozliczenie w = liczTylkoPodatek(s, r, c.rodzaj, c.kwota, c.ror);
        EXPECT_FLOAT_EQ(w.skl.Razem, 0) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(PodatekNetto), c.podatek) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(DoWyplaty), c.doWyplaty) << c.nazwa;
        EXPECT_FLOAT_EQ(r.f(NaROR), c.naROR) << c.nazwa;
        for (int f : {PodstawaZdrowotna, SkladkaZdrowotna, SkladkaIndywidualna}) EXPECT_EQ(r.s(f), "0") << c.nazwa;
    }
}

TEST(Dodatki, BadBoxIsRefusedInPolish) {
    const core::Session s = sesja();
    Record r = rekord("0.17");
    EXPECT_THROW(liczTrzynastke(s, r, {"60 000", "8.5", "", false}), ZleDane);
    EXPECT_DOUBLE_EQ(liczbaZPola("12,5", "x"), 12.5);
}

namespace {

struct Zbior : testing_support::DemoLista {
    // Chooses the person of `klucz` as the list screen does.
    void wybierz(const std::string& klucz, const std::string& nazwisko) {
        s.KluczOsoby = klucz;
        s.NazwiskoOsoby = nazwisko;
        s.ImieOsoby = "X";
        s.KodUbezpieczeniaOsoby = "011000";
    }
    Przebieg jubileusz(Rodzaj r, const char* kwota) {
        return wykonajDodatek(s, ui, r, [&](Record& rec) { liczTylkoPodatek(s, rec, r, kwota, false); });
    }
};

std::vector<std::string> linie(const std::string& b) {
    std::vector<std::string> l;
    std::istringstream in(b);
    for (std::string x; std::getline(in, x);) l.push_back(x);
    return l;
}

}  // namespace

TEST(Frame, SecondRunReplacesInPlaceKeepingTheOtherRecordsAndKeptFields) {
    Zbior z;
    zalozZbiorDodatkowy(z.s, Rodzaj::Jub);
    const auto file = path(z.s, Rodzaj::Jub);
    // Kept fields of another kind of item in every record.
    auto recs = readAll(file);
    for (Record& r : recs) {
        r.setItem(Rezerwa24, core::Item::quoted("k24"));
        r.set(Rezerwa41, 41.5f);
        r.setItem(Rezerwa44, core::Item::quoted(""));
    }
    writeAll(file, Rodzaj::Jub, recs);
    const std::vector<std::string> przed = linie(bajty(file));
    z.wybierz("63072245629", "WIŚNIEWSKA");
    ASSERT_EQ(z.jubileusz(Rodzaj::Jub, "3000"), Przebieg::Wyliczono);
    ASSERT_EQ(z.jubileusz(Rodzaj::Jub, "2000"), Przebieg::Wyliczono);
    const std::vector<std::string> po = linie(bajty(file));
    ASSERT_EQ(po.size(), przed.size());
    for (std::size_t i = 0; i < po.size(); ++i)
        if (i != 1) { EXPECT_EQ(po[i], przed[i]) << i; }
    const Record r = readAll(file)[1];
    EXPECT_EQ(r.s(KwotaBrutto), "2000");
    EXPECT_EQ(r.item(Rezerwa24).text, "k24");
    EXPECT_EQ(r.s(Rezerwa41), "41.5");
    EXPECT_TRUE(r.item(Rezerwa44).kind == core::Item::Quoted);
    // Reading and writing back gives the same bytes.
    const std::string b = bajty(file);
    writeAll(file, Rodzaj::Jub, readAll(file));
    EXPECT_EQ(bajty(file), b);
}

TEST(Frame, FirstRunAppendsButTheHolidayBenefitOnlyUpdates) {
    Zbior z;
    for (Rodzaj r : {Rodzaj::Jub, Rodzaj::SwU}) writeAll(path(z.s, r), r, {});
    z.wybierz("63072245629", "WIŚNIEWSKA");
    EXPECT_EQ(z.jubileusz(Rodzaj::Jub, "3000"), Przebieg::Wyliczono);
    const auto jub = readAll(path(z.s, Rodzaj::Jub));
    ASSERT_EQ(jub.size(), 1u);
    EXPECT_EQ(jub[0].s(Nazwisko), "WIŚNIEWSKA");
    EXPECT_EQ(jub[0].s(PodatekNetto), "510");  // the tax rate of the pay record came along
    EXPECT_EQ(z.jubileusz(Rodzaj::SwU, "1000"), Przebieg::PozaZbiorem);
    EXPECT_TRUE(readAll(path(z.s, Rodzaj::SwU)).empty());
}

TEST(Frame, MissingMonthsFileOrNoPersonChangesNothing) {
    Zbior z;
    EXPECT_EQ(z.jubileusz(Rodzaj::Trz, "1"), Przebieg::BezOsoby);
    EXPECT_EQ(z.ui.last(), "[] No wybierz nazwisko, a dopiero potem Wylicz !");
    z.wybierz("75031412317", "NOWAK");
    EXPECT_EQ(z.jubileusz(Rodzaj::Jub, "3000"), Przebieg::BrakZbioru);
    EXPECT_FALSE(core::fileExists(path(z.s, Rodzaj::Jub)));
    EXPECT_EQ(z.ui.boxes.back().title, "Brak zbioru");
}

TEST(Frame, DeleteBoxesByKind) {
    struct {
        Rodzaj rodzaj;
        const char* pytanie;
    } cases[] = {
        {Rodzaj::Dod, "[Usuwam dodatki! ] Czy napewno usunąć liste dodatków ?"},
        {Rodzaj::Trz, "[Usuwam trzynastkę! ] Czy napewno usunąć całą list trzynastki ?"},
        {Rodzaj::Jub, "[Usuwam Jubileusze! ] Czy napewno usunąć liste jubileuszów ?"},
        {Rodzaj::SwU, "[Usuwam Jubileusze! ] Czy napewno usunąć liste Swiadczen urlopowych ?"},
    };
    Zbior z;
    for (const auto& c : cases) {
        writeAll(path(z.s, c.rodzaj), c.rodzaj, {});
        z.ui.answer(core::Answer::Cancel);
        EXPECT_FALSE(usunDodatki(z.s, z.ui, c.rodzaj));
        EXPECT_EQ(z.ui.last(), c.pytanie);
        EXPECT_TRUE(core::fileExists(path(z.s, c.rodzaj)));
        z.ui.answer(core::Answer::OK);
        EXPECT_TRUE(usunDodatki(z.s, z.ui, c.rodzaj));
        EXPECT_FALSE(core::fileExists(path(z.s, c.rodzaj)));
    }
    // Overtime asks nothing; without the file it warns.
    ASSERT_TRUE(usunDodatki(z.s, z.ui, Rodzaj::God));  // the demo's January
    EXPECT_FALSE(usunDodatki(z.s, z.ui, Rodzaj::God));
    EXPECT_EQ(z.ui.last(), "[Brak zbioru] Nie ma założoneg zbioru godzin !");
}

TEST(Wydruk, OvertimeListMatchesItsReferenceFile) {
    // NOWAK 10 planned and 2 night hours in cash; WIŚNIEWSKA 5 replacement hours at 4800 / 168
    // into her account; the others founded but not computed stay off the list.
    Zbior z;
    zalozZbiorDodatkowy(z.s, Rodzaj::God);
    auto nadgodziny = [&](const char* klucz, const char* nazwisko, int kategoria, const char* godziny, bool ror) {
        z.wybierz(klucz, nazwisko);
        return wykonajDodatek(z.s, z.ui, Rodzaj::God, [&](Record& rec) {
            Nadgodziny we{rec.s(Podstawa), "", "", "", "a", {}, {}, ror};
            we.Il[kategoria] = godziny;
            if (kategoria == 0) we.Il[3] = "2";
            liczNadgodziny(z.s, rec, we);
        });
    };
    ASSERT_EQ(nadgodziny("75031412317", "NOWAK", 0, "10", false), Przebieg::Wyliczono);
    ASSERT_EQ(nadgodziny("63072245629", "WIŚNIEWSKA", 1, "5", true), Przebieg::Wyliczono);
    ASSERT_TRUE(drukujDodatki(z.s, z.ui, Rodzaj::God));
    std::ifstream in(std::filesystem::path(PENSJA_REFERENCE) / ".." / "paycalc" / "data" / "dodatki" / "godziny.txt", std::ios::binary);
    std::ostringstream wzorzec;
    wzorzec << in.rdbuf();
    EXPECT_EQ(z.ui.paper.text(), wzorzec.str());
}
