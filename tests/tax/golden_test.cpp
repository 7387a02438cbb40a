// The prints onto the forms against the reference files of tests/tax/data (see the README there).
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fixture.h"
#include "tax/pit11.h"
#include "tax/pit11_record.h"
#include "tax/pit4.h"

namespace fs = std::filesystem;

namespace {

const fs::path kData = fs::path(PENSJA_TEST_DATA).parent_path() / "tax" / "data";

void porownaj(const std::string& nazwa, const std::string& wydruk) {
    std::ifstream in(kData / nazwa, std::ios::binary);
    std::stringstream wzorzec;
    wzorzec << in.rdbuf();
    if (wzorzec.str() == wydruk) return;
    const fs::path inny = fs::current_path() / "tax_actual" / nazwa;
    fs::create_directories(inny.parent_path());
    std::ofstream(inny, std::ios::binary) << wydruk;
    ADD_FAILURE() << nazwa << " differs from the reference; the print is in " << inny;
}

TEST(Golden, Pit4OfTheMonthOfListsAAndP) {
    tax_tests::Dane d;
    tax_tests::miesiacPit4(d);
    tax::Pit4Screen ekran(d.ui, d.s);
    ekran.Zestaw = "AB";
    ekran.Load();
    ekran.WyliczPIT4();
    ekran.boxes[tax::Pit4Arkusz::KwotaZaliczekK13].Text = "12.34";
    ekran.boxes[tax::Pit4Arkusz::KwotaPotracenia].Text = "5.67";
    ekran.Wylicz();
    ekran.DrukujPIT4();
    EXPECT_EQ(d.ui.lines().front(), "[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!");
    porownaj("pit4.txt", d.ui.paper.text());
}

TEST(Golden, Pit11OfJanNowakBothPages) {
    tax_tests::Dane d;
    tax_tests::rokNowaka(d);
    tax::Pit11Screen ekran(d.ui, d.s);
    ekran.Load();
    ekran.Pobierz();
    ekran.boxes[tax::Pit11::RMII2 + 1].Text = "800";
    ekran.boxes[tax::Pit11::KUII0 + 1].Text = "160";
    ekran.boxes[tax::Pit11::ZaliczkaII0 + 3].Text = "115";
    ekran.txtKosztyU.Text = "2";
    ekran.Zapisz();
    ekran.Drukuj(tax::Druk::Pit11);
    auto linie = d.ui.lines();
    EXPECT_EQ(linie.end()[-2], "[Tak lub Enter drukuje na wybranym druku?] Czy to druk PIT 11 za rok 2021r.");
    EXPECT_EQ(linie.back(), "[Tak lub Enter drukuje druga strone] Odwroc kartke druku na druga strone !");
    porownaj("pit11.txt", d.ui.paper.text());
}

}  // namespace
