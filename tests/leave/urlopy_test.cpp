// The leave screen: the month's days, hours and amount, the entry by double click, saving with
// the count from hours, the other person's block kept byte for byte, the transfer to working
// time and the printed statement.
#include <gtest/gtest.h>

#include "fixture.h"
#include "leave/czas_record.h"
#include "leave/urlopy_ekran.h"
#include "paycalc/urlopy.h"
#include "support/tempdir.h"

using namespace leave;
namespace U = paycalc::Urlop;
using testing_support::readBytes;

namespace {

struct Ekran {
    lfx::Lista l{"31-03-2021"};
    std::filesystem::path plik = U::path(l.s, "2021");
    std::string drugi;  // the other person's block, written before the screen opens
    std::unique_ptr<UrlopyScreen> f;
    Ekran() {
        U::Blok b = U::nowyBlok("NOWAK", "ANNA", lfx::kDrugi, "  1  2", 2021);
        b.dni[2][4].set(U::Dzien::Kod, "U8");
        U::writeAll(plik, {b});
        drugi = readBytes(plik);
        f = std::make_unique<UrlopyScreen>(l.ui, l.s);
        f->Load();
    }
    void wpisz(int m, int d, std::optional<std::string> kod) {
        f->MSFlexGrid1.Row = m;
        f->MSFlexGrid1.Col = d;
        l.ui.type(std::move(kod));
        f->MSFlexGrid1_DblClick();
    }
    const std::string& kom(int r, int c) const { return f->MSFlexGrid1.TextMatrix(r, c); }
};

}  // namespace

TEST(Leave, NewBlockEntriesAndTheMonthsSums) {
    Ekran e;
    EXPECT_EQ(e.l.ui.lines().at(0), "[Dopisanie nowego rekordu] Brak Rekordu dla KOWALSKI JAN");
    EXPECT_EQ(e.kom(2, 29), "X");  // 2021 is a common year
    EXPECT_EQ(e.kom(2, 28), "0");
    e.f->txtUrlopowaStawka.Text = "120.50";
    e.f->cmdWstaw_Click();
    for (int d : {1, 2, 3}) e.wpisz(3, d, "U8");
    EXPECT_EQ(e.l.ui.boxes.back().title, "Wpisanie urlop !");
    EXPECT_EQ(e.l.ui.boxes.back().def, "U8");
    EXPECT_EQ(e.kom(3, KolU::Stawka), "120.50");
    EXPECT_EQ(e.kom(3, KolU::IlDni), "3");
    EXPECT_EQ(e.kom(3, KolU::Kwota), "361.50");
    EXPECT_EQ(e.kom(3, KolU::IlGodz), "24");
    EXPECT_EQ(e.f->MSFlexGrid1.Style(3, 1).back, 0xFFF2A8);
    // Lower case is stored upper-cased; "0" empties; cancel and beyond day 31 change nothing.
    e.wpisz(4, 6, "u4");
    e.wpisz(4, 7, "U4");
    e.wpisz(3, 3, "0");
    e.wpisz(3, 4, std::nullopt);
    e.wpisz(3, KolU::Stawka, "U8");
    EXPECT_EQ(e.kom(4, 6), "U4");
    EXPECT_EQ(e.kom(3, 3), "");
    EXPECT_EQ(e.kom(3, KolU::Stawka), "120.50");
    EXPECT_EQ(e.kom(4, KolU::IlDni), "2");
    EXPECT_EQ(e.kom(4, KolU::IlGodz), "8");
    EXPECT_EQ(e.kom(kWierszRazemU, KolU::IlDni), "4");
    EXPECT_EQ(e.kom(kWierszRazemU, KolU::Kwota), "241.00");
    EXPECT_EQ(e.kom(kWierszRazemU, KolU::IlGodz), "24");
    e.f->txtPrzenies.Text = "4";
    e.f->txtUrlopNalezny.Text = "26";
    e.f->przelicz();
    EXPECT_EQ(e.f->txtUrlopRazem.Text, "30");
    EXPECT_EQ(e.f->LbDowykorzystania.Caption, "26");  // from the days while editing
}

TEST(Leave, SavingCountsDaysFromHoursAndKeepsTheOtherBlock) {
    Ekran e;
    e.wpisz(5, 4, "U4");
    e.wpisz(5, 5, "U4");
    e.wpisz(6, 1, "U5");
    e.f->txtUrlopNalezny.Text = "20";
    e.f->txtUrlopowaStawka.Text = "99.9";
    e.f->setOption(e.f->Option1);
    e.f->CmdZmiany_Click();
    EXPECT_EQ(e.l.ui.last(), "[Zapis danych] Zmiany zapisane  ");
    EXPECT_EQ(e.f->LbZgodzin.Caption, "1");  // 13 hours: one day of 8
    EXPECT_EQ(e.f->LbDowykorzystania.Caption, "19");
    const std::string po = readBytes(e.plik);
    EXPECT_EQ(po.substr(0, e.drugi.size()), e.drugi);
    auto bloki = U::readAll(e.plik);
    ASSERT_EQ(bloki.size(), 2u);
    const U::Blok& b = bloki[1];
    EXPECT_EQ(b.naglowek.s(U::Naglowek::Nalezny), "20");
    EXPECT_EQ(b.naglowek.s(U::Naglowek::Rozliczac), "1");
    EXPECT_EQ(b.miesiace[2].s(U::Miesiac::Stawka), "99.9");  // the list's month
    EXPECT_EQ(b.dni[4][3].s(U::Dzien::Kod), "U4");
    // The pay run reads what was saved.
    auto u = paycalc::urlopMiesiaca(bloki, lfx::kKlucz, 3);
    EXPECT_TRUE(u.znaleziony);
    // A second save with nothing changed gives the same bytes.
    e.f->CmdZmiany_Click();
    EXPECT_EQ(readBytes(e.plik), po);
}

TEST(Leave, TransferToWorkingTime) {
    Ekran e;
    e.f->cmdWprowadzUrlopyDoCzasu_Click();
    EXPECT_EQ(e.l.ui.last(), "[Utwórz zbiór ] Brak zbioru rozliczenia czasu pracy ");
    const auto cp = CzasPracy::path(e.l.s, "2021");
    CzasPracy::Blok moj = CzasPracy::nowyBlok("KOWALSKI", "JAN", lfx::kKlucz, 2021);
    moj.dni[0][5].set(CzasPracy::Dzien::Swieto, "S");
    CzasPracy::writeAll(cp, {CzasPracy::nowyBlok("NOWAK", "ANNA", lfx::kDrugi, 2021), moj}, "t.dta");
    const std::string przed = readBytes(cp);
    e.wpisz(1, 4, "U8");
    e.f->cmdWprowadzUrlopyDoCzasu_Click();
    EXPECT_EQ(e.l.ui.last(),
              "[Wpis urlopów i zaznaczenie świąt] Urlopy wpisane do rozliczenia czasu pracy (Zapisz zmiany)! ");
    EXPECT_EQ(e.kom(1, 6), "S");
    EXPECT_EQ(e.f->MSFlexGrid1.Style(1, 6).fore, 0xFFFFFF);
    auto bloki = CzasPracy::readAll(cp);
    EXPECT_EQ(bloki[1].dni[0][3].s(CzasPracy::Dzien::GUr), "U8");
    EXPECT_EQ(bloki[1].dni[0][4].s(CzasPracy::Dzien::GUr), "0");
    const std::string po = readBytes(cp);
    EXPECT_EQ(po.substr(0, przed.size() / 2), przed.substr(0, przed.size() / 2));
}

TEST(Leave, PrintedStatement) {
    Ekran e;
    e.f->txtUrlopowaStawka.Text = "120.50";
    e.f->cmdWstaw_Click();
    e.wpisz(3, 9, "U8");
    e.wpisz(3, 10, "U6");
    e.f->txtPrzenies.Text = "2";
    e.f->txtUrlopNalezny.Text = "26";
    e.f->cmdDrukujWykaz_Click();
    const auto strony = e.l.ui.paper.pages();
    ASSERT_EQ(strony.size(), 1u);
    std::vector<std::string> t;
    for (const auto& line : strony[0]) t.push_back(line.text);
    EXPECT_EQ(t[0], "   Rozliczenie urlopów FIRMA za rok 2021 dla pracownika 70051512345 KOWALSKI JAN");
    const std::string dni = "| 1| 2| 3| 4| 5| 6| 7| 8| 9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|29|30|31|";
    EXPECT_EQ(t[2], "| Miesiąc\\Dzień " + dni + "Stawk|IlDni|Kwota  |IlGod|");
    std::string linijka = "|===============";
    for (int d = 0; d < 31; ++d) linijka += "|==";
    EXPECT_EQ(t[1], linijka + "|=====|=====|=======|=====|");
    EXPECT_EQ(t[3], t[1]);
    EXPECT_EQ(t[9], "|Marzec         | 0| 0| 0| 0| 0| 0| 0| 0|U8|U6| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0| 0|120.5|    2| 241.00|   14|");
    EXPECT_EQ(t[29], "| Razem         |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |  |     |    2| 241.00|   14|");
    EXPECT_EQ(t[31], "Ilość dni z przeniesienia z ur.=2");
    EXPECT_EQ(t[32], "Ilość dni należnych na rok bieżący.=26");
    EXPECT_EQ(t[33], "Ilość dni wykorzystanych wynikajaca z przeliczenia 8 godz dnia urlopu =1");
    EXPECT_EQ(t[34], "Pozostalo dni do wykorzystania =27 dni");
}
