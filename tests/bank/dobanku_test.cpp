#include <gtest/gtest.h>

#include "bank/dobanku.h"
#include "bank/ror_record.h"
#include "core/text.h"
#include "fixture.h"

using namespace bank_tests;
namespace Ror = bank::Ror;

namespace {

std::vector<std::string> kolumna(const core::Control& g, int c) {
    std::vector<std::string> out;
    for (int r = 1; r < g.Rows; ++r) out.push_back(core::RTrim(g.TextMatrix(r, c)));
    return out;
}

}  // namespace

TEST(DoBanku, GridEditSortFindDeleteAndSaveRenumbered) {
    Dane d;
    d.ksieguj({karta("ZIELIŃSKI", 300, 0, kPKO), karta("ADAMSKA", 100, 0, kPKO), karta("NOWAK", 200, 0, kPKO)});
    bank::DoBankuScreen f(d.ui, d.s);
    f.Load();
    EXPECT_EQ(f.txtZestawZ.Text, "A");
    f.txtNrUnikatowy.Text = "1020";
    f.CmdUtworzRor_Click();
    ASSERT_EQ(f.MSFlexGrid1.Rows, 4);
    EXPECT_EQ(f.txtkwotaRazem.Text, "600.00");

    d.ui.type("150,5");
    f.MSFlexGrid1.Row = 2;
    f.MSFlexGrid1.Col = bank::DoBankuScreen::kKolKwota;
    f.MSFlexGrid1_Click();
    EXPECT_EQ(d.ui.last(), "[Zmiana kwoty ROR !] Wpisz zmienioną kwotę");
    EXPECT_EQ(f.MSFlexGrid1.TextMatrix(2, bank::DoBankuScreen::kKolKwota), "150.5");
    EXPECT_EQ(f.txtkwotaRazem.Text, "650.50");

    f.cmdSort_Click();
    EXPECT_EQ(kolumna(f.MSFlexGrid1, 1), (std::vector<std::string>{"ADAMSKA", "NOWAK", "ZIELIŃSKI"}));
    EXPECT_EQ(kolumna(f.MSFlexGrid1, 0), (std::vector<std::string>{"2", "3", "1"}));

    f.Text1.Text = "now";
    f.cmdFindTxt_Click();
    EXPECT_EQ(f.Text1.Text, "NOW");
    EXPECT_EQ(f.Zaznaczony, 2);
    f.CmdUsunRekord_Click();
    EXPECT_EQ(f.txtkwotaRazem.Text, "450.50");

    f.cmdZapiszPosortowany_Click();
    EXPECT_EQ(d.ui.last(), "[ Zapis posortowanego zbioru na dysk] Czy chcesz zmieniony zbior zapisać");
    const auto recs = Ror::readAll(Ror::path(d.s, "A"));
    ASSERT_EQ(recs.size(), 2u);
    EXPECT_EQ(recs[0].s(Ror::NrKol), "1");
    EXPECT_EQ(recs[0].s(Ror::Nazwisko), core::PadRight("ADAMSKA", 20));
    EXPECT_EQ(recs[0].f(Ror::Kwota), 150.5f);
    EXPECT_EQ(recs[1].s(Ror::NrKol), "2");
    EXPECT_EQ(recs[1].f(Ror::Kwota), 300.f);

    f.MSFlexGrid1.Row = 1;
    f.MSFlexGrid1.Col = 1;
    f.MSFlexGrid1_Click();
    f.CmdUsunRekord_Click();
    f.CmdUsunRekord_Click();
    EXPECT_EQ(d.ui.last(), "[] Nie ma co usuwać");
    EXPECT_EQ(f.MSFlexGrid1.Rows, 2);
}

TEST(DoBanku, BrowsingAndSavingGiveTheSameBytes) {
    Dane d;
    const auto plik = Ror::path(d.s, "A");
    std::filesystem::create_directories(plik.parent_path());
    testing_support::writeLines(
        plik, {"1,\"ŚLIWA               \",\"JAN           \",\"60102010260000123456789012\",1700.75,\"20210131\","
               "\"32-400Myślenice           Rynek               12  3   \",\"Wpłata na ROR z Dodatkowe za 31-01-2021\",,",
               "2,\"NOWAK               \",\"EWA           \",\"1020\",0.1,\"20210131\",\"\",\"\",,"});
    const std::string przed = testing_support::readBytes(plik);
    bank::DoBankuScreen f(d.ui, d.s);
    f.Load();
    f.cmdPrzegladaj_Click();
    EXPECT_EQ(f.txtkwotaRazem.Text, "1700.85");
    f.cmdZapiszPosortowany_Click();
    EXPECT_EQ(testing_support::readBytes(plik), przed);
}

TEST(DoBanku, Label5NamesTheBankAndTheAdditionNumberShowsForAdditions) {
    Dane d;
    bank::DoBankuScreen f(d.ui, d.s);
    // The first four characters name the bank; another number leaves the label as it was.
    for (auto [numer, etykieta] : {std::pair{"106012", "wybrano BPH Bank Przemysłowo Handlowy"},
                                   {"8602", "wybrano BS Dobczyce                 "},
                                   {"9999", "wybrano BS Dobczyce                 "}}) {
        f.txtNrUnikatowy.Text = numer;
        f.txtNrUnikatowy.Change();
        EXPECT_EQ(f.Label5.Caption, etykieta) << numer;
    }
    EXPECT_FALSE(f.txtNrDodatku.Visible);
    f.CmbWybierzListe.ListIndex = 2;
    f.CmbWybierzListe.Click();
    EXPECT_TRUE(f.txtNrDodatku.Visible);
    f.CmbWybierzListe.ListIndex = 4;
    f.CmbWybierzListe.Click();
    EXPECT_FALSE(f.txtNrDodatku.Visible);
    EXPECT_EQ(f.CmbWybierzListe.Text, "Świadczenia uropowe");
}
