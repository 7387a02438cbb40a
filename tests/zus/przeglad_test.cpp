// The contribution review: the recomputed columns of the table, a cell changed through the input
// box and saved through the working file, and the printed list.
#include <gtest/gtest.h>

#include "core/text.h"
#include "fixture.h"
#include "support/tempdir.h"
#include "zus/polacz.h"
#include "zus/przeglad.h"
#include "zus/rcp_record.h"
#include "zus/screens.h"

namespace R = zus::Rcp;
using core::Record;

namespace {

// Rates of 2021 (see kedu_test): minimum pay 2800.
std::vector<Record> dwieOsoby() {
    return {zfx::rcp("Kowalski", "Jan", "80010112345", "011000",
                     {{R::PodstZUS, 5000}, {R::PodstChorobowa, 4000}, {R::PodstZdro, 4314.5}, {R::SklZdro, 388.31},
                      {R::PodstFGSP, 5000}, {R::IlOsZR, 2}, {R::KwotaZR, 95}, {R::IlOsZP, 1}, {R::KwotaZP, 215.84}},
                     {{R::Etat, "  1  2"}}),
            zfx::rcp("Bondarenko", "Ihor", "", "051010",
                     {{R::PodstZUS, 2000}, {R::PodstChorobowa, 2000}, {R::PodstZdro, 4242.38}, {R::SklZdro, 381.81},
                      {R::PodstFGSP, 2000}},
                     {{R::InnyIdentyfikator, "XK1"}, {R::Obywatelstwo, "UKRAIŃSKIE"}, {R::WskaznikFP, "2"}})};
}

TEST(PrzegladRCP, KolumnyPrzeliczoneIRazem) {
    zfx::Platnik p;
    const auto t = zus::tabelaRCP(p.s, dwieOsoby());
    ASSERT_EQ(t.size(), 3u);
    const std::vector<std::vector<std::string>> oczekiwane = {
        // rent 75 + 325; pension 2 * 9.76 % * 5000; sickness and accident of field 9 (4000);
        // FP base 5000 (above the minimum pay), FGSP 0.1 % of 5000; total 1140.80 + 388.31 + 122.50
        // + 5 + 66.80
        {" 1", "Kowalski", "Jan", "80010112345", "011000", "5000.00", "976.00", "400.00", "98.00", "1140.80",
         "4314.50", "388.31", "5000.00", "122.50", "5.00", "2", "95.00", "1", "215.84", "66.80", "1723.41", "0.50"},
        // a foreigner: field 15 padded to 11; below the minimum pay, but "2" takes field 8 as the FP
        // base; no FGSP for a "05" code; total 472.80 + 381.81 + 49 + 0 + 33.40
        {" 1", "Bondarenko", "Ihor", "XK1        ", "051010", "2000.00", "390.40", "160.00", "49.00", "472.80",
         "4242.38", "381.81", "2000.00", "49.00", "0.00", "0", "0.00", "0", "0.00", "33.40", "937.01", "1.00"},
        {"Razem", "Skladki", " X     ", " X", "", "7000.00", "1366.40", "560.00", "147.00", "1613.60", "8556.88",
         "770.12", "7000.00", "171.50", "5.00", "2", "95.00", "1", "215.84", "100.20", "2660.42", ""},
    };
    for (std::size_t r = 0; r < 3; ++r)
        for (int k = 0; k < zus::kKolumnyRCP; ++k)
            EXPECT_EQ(t[r][k], oczekiwane[r][k]) << "wiersz " << r << ", " << zus::kNaglowkiRCP[k];
}

TEST(PrzegladRCP, ZmianaKomorkiIZapisTylkoTegoPola) {
    zfx::Platnik p;
    p.rcp(dwieOsoby());
    const auto przed = testing_support::readLines(R::path(p.s));
    p.ui.type("5100,5");
    zus::RCPScreen f(p.ui, p.s);
    f.Load();
    ASSERT_FALSE(f.Unloaded);
    f.MSFlexGrid1.Row = 1;
    f.MSFlexGrid1.Col = 5;
    f.MSFlexGrid1_Click();
    EXPECT_EQ(p.ui.boxes.back().title, "Zmiana nazwy towaru!");
    EXPECT_EQ(p.ui.boxes.back().text, "Podaj zmienioną wartość z pozycji -Podst.ZUS pozycja 1 wartość zmieniana = 5000.00");
    EXPECT_EQ(f.MSFlexGrid1.TextMatrix(1, 6), "995.62");  // 2 * 9.76 % * 5100.50, recomputed at once
    EXPECT_EQ(f.MSFlexGrid1.TextMatrix(3, 5), "7100.50");
    f.cmdZapiszZmiany_Click();
    auto po = testing_support::readLines(R::path(p.s));
    ASSERT_EQ(po.size(), przed.size());
    EXPECT_EQ(po[R::PodstZUS - 1], "5100.5");
    po[R::PodstZUS - 1] = przed[R::PodstZUS - 1];
    EXPECT_EQ(po, przed);
    EXPECT_FALSE(std::filesystem::exists(p.s.payerPath({"zus", "rcp2101.tym"})));
}

TEST(PrzegladRCP, BrakZbioruZamykaEkran) {
    zfx::Platnik p;
    zus::RCPScreen f(p.ui, p.s);
    f.Load();
    EXPECT_TRUE(f.Unloaded);
    EXPECT_EQ(p.ui.last(), "[Brak wykonanego przeniesienia do ZUS]  Wykonaj połączenie zbioru do ZUS !!");
}

TEST(PrzegladRCP, Wydruk) {
    zfx::Platnik p;
    core::TextPrinter druk;
    zus::drukujRCA(druk, zus::tabelaRCP(p.s, dwieOsoby()));
    const auto strona = druk.pages().at(0);
    ASSERT_EQ(strona.size(), 10u);
    EXPECT_EQ(strona[4].text, "|  1| Kowalski Jan                       |    5000.00|    976.00|    400.00|     98.00|    4314.50|    388.31|");
    EXPECT_EQ(strona[8].text, "|   | Razem                              |    7000.00|   1366.40|    560.00|    147.00|    8556.88|    770.12|");
}

TEST(PrzegladRCP, WydrukStronami) {
    zfx::Platnik p;
    // 30 persons fill a page; the 31st starts the second with the heading again.
    for (const auto& [osob, stron] : {std::pair{30, 1u}, std::pair{31, 2u}}) {
        core::TextPrinter druk;
        zus::drukujRCA(druk, zus::tabelaRCP(p.s, std::vector<Record>(osob, dwieOsoby()[0])));
        const auto strony = druk.pages();
        ASSERT_EQ(strony.size(), stron) << osob;
        EXPECT_EQ(strony.back().front().text, "  Zestawienie podstaw i składek do ZUS");
    }
}

TEST(PrzegladRCP, WartosciKtorychPlikNiePomiesci) {
    struct {
        const char* nazwa;
        int kolumna;
        const char* tekst;
        bool dobra;
    } const przypadki[] = {
        {"nazwisko", 1, "Nowak-Kowalska", true},   {"cudzysłów", 1, "No\"wak", false},
        {"poza stroną 1250", 1, "Nowak\u0416", false}, {"liczba z przecinkiem", 5, "1234,5", true},
        {"tekst w liczbie", 5, "12a", false},       {"kolumna wyliczana", 6, "100", false},
    };
    for (const auto& c : przypadki) EXPECT_EQ(zus::zlaWartosc(c.kolumna, c.tekst).empty(), c.dobra) << c.nazwa;
    for (const auto& [zestaw, dobry] : {std::pair{"AB", true}, {"", true}, {"A/B", false}, {"A\"", false}})
        EXPECT_EQ(zus::zlyZestaw(zestaw).empty(), dobry) << zestaw;
}

}  // namespace
