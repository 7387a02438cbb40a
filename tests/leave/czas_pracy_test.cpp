// The working-time file and screen: the new block, a round trip, the month grid, defaults,
// entries, saving with the other person's block and the kept values unchanged, printing.
#include <gtest/gtest.h>

#include "fixture.h"
#include "leave/czas_pracy.h"
#include "leave/czas_record.h"
#include "support/tempdir.h"

using namespace leave;
namespace D = CzasPracy::Dzien;
using testing_support::readBytes;
using testing_support::readLines;

TEST(WorkingTimeFile, NewBlockLayoutAndRoundTrip) {
    testing_support::TempDir dir;
    const auto plik = dir / "CPL12021.dta";
    CzasPracy::Blok b = CzasPracy::nowyBlok("NOWAK", "ANNA", lfx::kDrugi, 2021);
    b.naglowek.setItem(CzasPracy::Naglowek::Rezerwa7, core::Item::quoted("kept"));
    b.miesiace[0].setItem(CzasPracy::Miesiac::Rezerwa3, core::Item::bare("2.5"));
    b.dni[0][0].setItem(D::Rezerwa11, core::Item::quoted("r"));
    CzasPracy::writeAll(plik, {b}, "t.dta");
    const auto lines = readLines(plik);
    ASSERT_EQ(lines.size(), 385u);
    EXPECT_EQ(lines[0], "\"NOWAK\",\"ANNA\",\"80010112345\",\"  1/  1\",0,0,\"kept\",0,0");
    EXPECT_EQ(lines[1], "1,0,2.5,0,0,0");
    EXPECT_EQ(lines[2], "1,0,0,0,0,0,0,0,0,0,\"r\",0,0,\"\"");
    EXPECT_EQ(lines[1 + 32 + 29], "29,0,0,0,0,0,0,0,0,0,0,0,0,\"X\"");  // 29 February 2021
    EXPECT_EQ(lines[1 + 32 + 28], "28,0,0,0,0,0,0,0,0,0,0,0,0,\"\"");
    const auto kopia = dir / "kopia.dta";
    CzasPracy::writeAll(kopia, CzasPracy::readAll(plik), "t.dta");
    EXPECT_EQ(readBytes(kopia), readBytes(plik));
}

namespace {
struct Ekran {
    lfx::Lista l;
    std::filesystem::path plik;
    std::string drugi;
    std::unique_ptr<CzasPracyScreen> f;
    explicit Ekran(const std::string& data) : l(data), plik(CzasPracy::path(l.s, data.substr(6))) {
        CzasPracy::Blok b = CzasPracy::nowyBlok("NOWAK", "ANNA", lfx::kDrugi, 2021);
        b.naglowek.setItem(CzasPracy::Naglowek::Rezerwa9, core::Item::quoted("x"));
        CzasPracy::writeAll(plik, {b}, "t.dta");
        drugi = readBytes(plik);
        f = std::make_unique<CzasPracyScreen>(l.ui, l.s);
        f->Load();
    }
    std::string& kom(int r, int c) { return f->MSFlexGrid1.TextMatrix(r, c); }
};
}  // namespace

TEST(WorkingTime, MonthGridAndDefaults) {
    Ekran e("28-02-2021");
    EXPECT_EQ(e.f->LbData.Caption, "luty,2021");
    EXPECT_EQ(e.kom(1, KolCP::NazwaDnia), "poniedziałek,01,luty,2021");
    for (int d : {29, 30, 31}) EXPECT_EQ(e.kom(d, KolCP::NazwaDnia), "     X       ");
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::NazwaDnia), "Razem         ");
    EXPECT_EQ(e.f->MSFlexGrid1.Style(6, 2).back, 0xFFE0E0);  // Saturday 6 February
    e.f->cmdWroc_Click();
    e.f->cmdWroc_Click();
    EXPECT_EQ(e.f->miesiac, 12);
    e.f->cmdNext_Click();
    EXPECT_EQ(e.f->miesiac, 1);
    for (int i = 0; i < 5; ++i) e.f->cmdNext_Click();  // June 2021: 30 days, 8 of them weekends
    EXPECT_EQ(e.f->LbData.Caption, "czerwiec,2021");
    e.kom(3, KolCP::Swieto) = "S";  // Corpus Christi
    e.f->cmdWstawG_Click();
    int osemki = 0;
    for (int d = 1; d <= 31; ++d) {
        if (e.kom(d, KolCP::Gp) != "8") continue;
        ++osemki;
        EXPECT_EQ(e.kom(d, KolCP::Limit), "8");
        EXPECT_EQ(e.kom(d, KolCP::Lpg), "8");
    }
    EXPECT_EQ(osemki, 21);  // 22 working days less the holiday
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::Gp), "168");
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::Swieto), "1");
    EXPECT_EQ(e.f->lbIloscDniPracy.Caption, "21");
    e.kom(3, KolCP::Swieto) = "";
    e.f->cmdWstawG_Click();
    EXPECT_EQ(e.f->lbIloscDniPracy.Caption, "22");
    e.f->cmdZeruj_Click();
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::Gp), "0");
}

TEST(WorkingTime, EntriesByColumnAndSaving) {
    Ekran e("31-03-2021");
    e.f->cmdWstawG_Click();
    auto wpisz = [&](int r, int c, std::optional<std::string> t) {
        e.f->MSFlexGrid1.Row = r;
        e.f->MSFlexGrid1.Col = c;
        e.l.ui.type(std::move(t));
        e.f->MSFlexGrid1_DblClick();
    };
    wpisz(2, KolCP::GUr, "u8");
    EXPECT_EQ(e.l.ui.boxes.back().title, "Wpisanie urlopu ! pozycja 2");
    EXPECT_EQ(e.l.ui.boxes.back().text, "Wpisz urlop np U8(8godz)");
    wpisz(3, KolCP::GCh, "C");
    EXPECT_EQ(e.l.ui.boxes.back().title, "Wpisanie chorobowego ! pozycja 3");
    EXPECT_EQ(e.l.ui.boxes.back().def, "C");
    wpisz(4, KolCP::G50, "2,5");
    EXPECT_EQ(e.l.ui.boxes.back().title, "Wpisanie godzin ! pozycja 4");
    EXPECT_EQ(e.l.ui.boxes.back().def, "");
    wpisz(4, KolCP::Gp, "0");   // changes nothing
    wpisz(5, KolCP::Gp, "");    // nor does an empty answer
    wpisz(6, KolCP::G100, "\"");  // a quote the file cannot hold
    EXPECT_EQ(e.l.ui.last(), "[Błędny wpis] Wpis nie może zawierać cudzysłowu (\"): nie da się go zapisać w zbiorze.");
    EXPECT_EQ(e.kom(2, KolCP::GUr), "U8");
    EXPECT_EQ(e.kom(4, KolCP::Gp), "8");
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::GUr), "0");  // leave adds no hours
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::G50), "2.5");
    EXPECT_EQ(e.kom(kWierszRazem, KolCP::Gp), "184");  // 23 working days of March
    e.f->cmdZapiszZmiany_Click();
    const std::string po = readBytes(e.plik);
    EXPECT_EQ(po.substr(0, e.drugi.size()), e.drugi);
    auto bloki = CzasPracy::readAll(e.plik);
    ASSERT_EQ(bloki.size(), 2u);
    const auto& dz = bloki[1].dni[2];
    EXPECT_EQ(dz[1].s(D::GUr), "U8");
    EXPECT_EQ(dz[2].s(D::GCh), "C");
    EXPECT_EQ(dz[3].s(D::G50), "2,5");
    EXPECT_EQ(dz[5].s(D::Gp), "");  // Saturday 6 March emptied
    EXPECT_EQ(dz[0].s(D::Rezerwa10), "0");
    EXPECT_EQ(bloki[1].dni[1][0].item(D::Gp), core::Item::bare("0"));  // February untouched
    // Saving again without a change gives the same bytes; the days of another month stay.
    e.f->cmdZapiszZmiany_Click();
    EXPECT_EQ(readBytes(e.plik), po);
}

TEST(WorkingTime, PrintedMonth) {
    Ekran e("30-04-2021");
    e.f->cmdWstawG_Click();
    e.f->cmdDrukCzasuPracy_Click();
    std::vector<std::string> t;
    const auto strony = e.l.ui.paper.pages();
    for (const auto& line : strony.at(0)) t.push_back(line.text);
    EXPECT_EQ(t[0], "   Rozliczenie czasu pracy FIRMA za miesiac kwiecień,2021 dla pracownika KOWALSKI JAN");
    EXPECT_EQ(t[2], "|Dzień miesiąca       |GodzPr |Godz50 |Godz100|RmGPr  |Limit  |Swięto |RmUrlop|");
    EXPECT_EQ(t[4], "|czwartek,01,04,21    |      8|       |       |      8|      8|       |       |");
    EXPECT_EQ(t[6], "|sobota,03,04,21      |       |       |       |       |       |       |       |");
    ASSERT_EQ(t.size(), 4u + 30 + 6);
    EXPECT_EQ(t[35], "| Razem               |    176|      0|      0|    176|    176|      0|      0|");
    EXPECT_EQ(t[5], "|piątek,02,04,21      |      8|       |       |      8|      8|       |       |");
    EXPECT_EQ(t[8], "|poniedziałek,05,04,21|      8|       |       |      8|      8|       |       |");
    EXPECT_EQ(t[39], " ...............      Pracownik  ....................");
}
