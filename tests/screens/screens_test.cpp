// The screens of every subsystem together, opened by name as the main menu and the screens open
// one another: every name that is opened is registered, and every screen that saves writes back
// what it loaded, byte for byte, when nothing was changed.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "bank/screens.h"
#include "core/screens.h"
#include "core/seqfile.h"
#include "core/text.h"
#include "documents/screens.h"
#include "leave/screens.h"
#include "paycalc/screens.h"
#include "payinputs/screens.h"
#include "payinputs/taryfikator.h"
#include "personnel/osoba1.h"
#include "personnel/screens.h"
#include "printing/screens.h"
#include "reference/screens.h"
#include "support/demo.h"
#include "tax/screens.h"
#include "trips/screens.h"
#include "yearledger/screens.h"
#include "zus/screens.h"

namespace fs = std::filesystem;

namespace {

const core::Screens& wszystkie() {
    static const core::Screens s = [] {
        core::Screens s;
        reference::registerScreens(s);
        personnel::registerScreens(s);
        payinputs::registerScreens(s);
        paycalc::registerScreens(s);
        printing::registerScreens(s);
        leave::registerScreens(s);
        yearledger::registerScreens(s);
        documents::registerScreens(s);
        trips::registerScreens(s);
        tax::registerScreens(s);
        bank::registerScreens(s);
        zus::registerScreens(s);
        return s;
    }();
    return s;
}

// Every file of a folder tree with its bytes (the lock files left out).
std::map<std::string, std::string> pliki(const fs::path& dir) {
    std::map<std::string, std::string> out;
    for (const auto& e : fs::recursive_directory_iterator(dir))
        if (e.is_regular_file() && e.path().filename().string()[0] != '.')
            out[fs::relative(e.path(), dir).string()] = testing_support::readBytes(e.path());
    return out;
}

}  // namespace

// The main menu entries with a screen, and the screens the screens open (by the names their
// callers use).
TEST(Screens, EveryNameThatIsOpenedIsRegistered) {
    for (const char* name :
         {"wybór", "frmwybor", "stawki", "obsluga", "Platnik", "frmMojaFirma", "instalacjalist", "frmInstalacja",
          "Taryfikator", "CmdZmianaKosztow", "mnuDoZUS", "frmDoZUS", "mnuSkladkiZUS", "frmRCP", "FrmZUA", "mnuBanki",
          "frmDoBanku", "mnuPit4", "frmPit4", "frmPit11", "zarobki", "frmWybierzOsobę", "frmZaswiadczenia", "Kadry",
          "mnuDelegacje", "frmlista", "frmOsoba1", "frmSortujKadrowe", "frmPodgladWydruku", "cmdDrukListy",
          "CmdPaski", "CmdSpecyfikacja", "frmEdycjaKartoteki", personnel::kEkranPlacy, personnel::kEkranPotracen,
          personnel::kEkranZasilkow, personnel::kEkranChorobowego, personnel::kEkranUrlopow,
          personnel::kEkranKartotekiRocznej, personnel::kEkranCzasuPracy, personnel::kEkranKadr})
        EXPECT_TRUE(wszystkie().has(name)) << name;
}

// The end marker of the pay records as the screen writes it ("<koniec>" or "<Koniec>").
void znacznik(testing_support::Demo& d, const std::string& z) {
    for (const char* l : {"a", "p"}) {
        const auto plik = d.payer() / "Bazy" / (std::string(l) + ".dta");
        std::string b = testing_support::readBytes(plik);
        for (const char* inny : {"\"<koniec>\"", "\"<Koniec>\""}) b = core::Replace(b, inny, "\"" + z + "\"");
        core::commitBytes(plik, b);
    }
}

struct Zapis {
    const char* name;
    const char* ekran;     // the registered name
    const char* przycisk;  // the save button
    const char* listy;     // once for every person of these lists; "" once on the list "a"
    // What the screen writes by its own rule, put into the copy first.
    std::function<void(testing_support::Demo&)> przygotuj = {};
};

void PrintTo(const Zapis& z, std::ostream* os) { *os << z.name; }

class ScreenRoundTrip : public testing::TestWithParam<Zapis> {};

// Opens the screen on every person of the lists (once on list "a" when none are named) and
// clicks its save button; the number of saves.
int zapiszKazdego(testing_support::Demo& d, const Zapis& z) {
    int zapisy = 0;
    d.ui.onShow = [&](core::Form& f) {
        core::Control* c = f.find(z.przycisk);
        ASSERT_NE(c, nullptr) << z.przycisk;
        f.fire(*c, &core::Control::Click);
        ++zapisy;
    };
    for (char lista : std::string(*z.listy ? z.listy : "a")) {
        d.lista(std::string(1, lista));
        const std::size_t osob = *z.listy ? d.osoby().size() : 1;
        for (std::size_t i = 0; i < osob; ++i) {
            d.wybierz(i);
            EXPECT_TRUE(wszystkie().open(z.ekran, d.s, d.ui));
            --zapisy;
        }
    }
    d.ui.onShow = nullptr;
    return zapisy;
}

TEST_P(ScreenRoundTrip, SavingWithoutAChangeKeepsEveryFileByteForByte) {
    const Zapis& z = GetParam();
    testing_support::Demo d;
    d.ui.screens = &wszystkie();
    if (z.przygotuj) z.przygotuj(d);
    const auto przed = pliki(d.dir.path());
    EXPECT_EQ(zapiszKazdego(d, z), 0) << "screens opened but not saved";
    const auto po = pliki(d.dir.path());
    for (const auto& [plik, bajty] : po) {
        ASSERT_TRUE(przed.count(plik)) << "a new file " << plik;
        const std::string& b = przed.at(plik);
        const auto [i, j] = std::mismatch(b.begin(), b.end(), bajty.begin(), bajty.end());
        EXPECT_TRUE(i == b.end() && j == bajty.end())
            << plik << " differs at byte " << (i - b.begin()) << ": " << testing::PrintToString(std::string(i, std::min(i + 40, b.end())))
            << " became " << testing::PrintToString(std::string(j, std::min(j + 40, bajty.end())));
    }
    EXPECT_EQ(po.size(), przed.size());
    for (const auto& b : d.ui.boxes) EXPECT_NE(b.icon, core::Icon::Critical) << b.title << ": " << b.text;
}

INSTANTIATE_TEST_SUITE_P(
    Screens, ScreenRoundTrip,
    testing::Values(
        // A citizenship "0" is written back as "POLSKIE".
        Zapis{"Osoba", "frmOsoba1", "cmdZapiszZmiany", "ap",
              [](testing_support::Demo& d) {
                  for (const char* l : {"a", "p"}) {
                      auto recs = d.lista(l).osoby();
                      for (auto& r : recs) r.set(personnel::Osoba::Obywatelstwo, personnel::obywatelstwo(r.s(personnel::Osoba::Obywatelstwo)));
                      core::writeAll(d.per(), recs);
                  }
              }},
        Zapis{"Placa", "frmPlaca", "cmdZapiszZmiany", "ap", [](testing_support::Demo& d) { znacznik(d, "<koniec>"); }},
        Zapis{"Potracenia", "frmPotracenia", "cmdZapisz", "ap", [](testing_support::Demo& d) { znacznik(d, "<Koniec>"); }},
        Zapis{"Zasilki", "frmZasilki", "CmdZapiszZasilki", "ap", [](testing_support::Demo& d) { znacznik(d, "<Koniec>"); }},
        Zapis{"Kadry", "frmKadryII", "cmdZapisz", "ap"},
        // The working time of the year of list "a"; the first save founds the blocks of the
        // people without one.
        Zapis{"CzasPracy", "frmCzasPracy", "cmdZapiszZmiany", "a",
              [](testing_support::Demo& d) { zapiszKazdego(d, {"", "frmCzasPracy", "cmdZapiszZmiany", "a"}); }},
        Zapis{"EdycjaKartoteki", "frmEdycjaKartoteki", "cmdZapisz", "a",
              [](testing_support::Demo& d) {
                  d.s.DataListy = "31-12-2020";
                  reference::loadRates(d.s);
              }},
        Zapis{"Obsluga", "obsluga", "cmdZapisz", ""}, Zapis{"Instalacja", "frmInstalacja", "cmdZapisz", ""},
        Zapis{"Platnik", "frmMojaFirma", "cmdZmianyM", ""},
        Zapis{"Taryfikator", "Taryfikator", "CmdZapisz", "",
              [](testing_support::Demo& d) {
                  std::array<float, payinputs::Tabela::kKomorek> placa{};
                  for (std::size_t i = 0; i < placa.size(); ++i) placa[i] = 3000.25f + 150.5f * static_cast<float>(i);
                  payinputs::Tabela::write(d.s, placa);
              }}),
    [](const testing::TestParamInfo<Zapis>& i) { return std::string(i.param.name); });
