#include <gtest/gtest.h>

#include "core/paths.h"
#include "core/text.h"
#include "core/screens.h"
#include "support/demo.h"
#include "reference/catalogue.h"
#include "reference/wybor.h"
#include "support/scripted.h"

namespace fs = std::filesystem;
using core::Answer;
using reference::displayLine;
using reference::parseDisplayLine;
using testing_support::Demo;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;
using testing_support::writeLines;
namespace Instal = reference::Instal;

TEST(Catalogue, FieldsArePaddedCutAndUpperCasedOnSaving) {
    Demo d;
    std::string title34 = "Pracownicy administracyjni szkoły1";  // 34 characters
    ASSERT_EQ(core::Len(title34), 34u);
    auto lines = Instal::read(d.s);
    lines.push_back(Instal::newLine(title34, "abcdefghi", "n", "b", "3", "Z"));
    lines.push_back(Instal::newLine("Zlecenia", "u", "", "", "4", ""));
    Instal::write(d.s, lines);
    std::string expected = core::toCp1250(
        "\"Administracja                    \",\"a       \",\"a\",\"A\",\"\",\"\",\"\",\"1\",\"\"\r\n"
        "\"Produkcja                        \",\"p       \",\"p\",\"B\",\"\",\"\",\"\",\"2\",\"\"\r\n"
        "\"Pracownicy administracyjni szkoły\",\"abcdefgh\",\"n\",\"B\",\"\",\"\",\"\",\"3\",\"Z\"\r\n"
        "\"Zlecenia                         \",\"u       \",\" \",\" \",\"\",\"\",\"\",\"4\",\"\"\r\n");
    EXPECT_EQ(readBytes(d.payer() / "instal.dat"), expected);
    EXPECT_FALSE(fs::exists(d.payer() / "tymcz.dat"));

    // Read back, written again: the same bytes.
    auto again = Instal::read(d.s);
    ASSERT_EQ(again.size(), 4u);
    EXPECT_EQ(again[2].s(Instal::NazwaListy), "Pracownicy administracyjni szkoły");
    EXPECT_EQ(Instal::stem(again[2]), "abcdefgh");
    Instal::write(d.s, again);
    EXPECT_EQ(readBytes(d.payer() / "instal.dat"), expected);
}

TEST(Catalogue, MissingFileIsAnEmptyCatalogueButAMissingPayerFolderIsAnError) {
    Demo d;
    fs::remove(d.payer() / "instal.dat");
    EXPECT_TRUE(Instal::read(d.s).empty());
    d.s.SkrotPlatnika = "NIEMA";
    try {
        Instal::read(d.s);
        FAIL() << "brak błędu";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::PathNotFound);
    }
}

TEST(Catalogue, DisplayLineAndItsColumns) {
    core::Record a = Instal::newLine("Administracja", "a", "a", "A", "1", "");
    // 33 + 1 + 8 + 2 + 1 + 3 + 1 characters: the group stands in column 45, the set in 49.
    EXPECT_EQ(displayLine(a), "Administracja                     a         a   A");
    EXPECT_EQ(core::Len(displayLine(a)), 49u);

    struct {
        std::string line, title, stem, group;
    } cases[] = {
        // A line of the screen: column 46 is the first blank after the group.
        {displayLine(a), "Administracja                    ", "a", " "},
        // A stem of the full eight characters, the title of the full 33.
        {"Pracownicy administracyjni szkoły abcdefgh  n   B", "Pracownicy administracyjni szkoły", "abcdefgh", " "},
        // Column 46 read as it stands.
        {core::PadRight("Nauczyciele", 33) + " n1        xn  A", core::PadRight("Nauczyciele", 33), "n1", "n"},
        // A short line: what is missing is empty.
        {"Krótka", "Krótka", "", ""},
    };
    for (const auto& c : cases) {
        auto w = parseDisplayLine(c.line);
        EXPECT_EQ(w.title, c.title) << c.line;
        EXPECT_EQ(w.stem, c.stem) << c.line;
        EXPECT_EQ(w.group, c.group) << c.line;
    }
}

TEST(Catalogue, StemsThatCannotNameFiles) {
    struct {
        const char* stem;
        bool ok;
    } cases[] = {{"a", true},       {"abcdefghij", true},  // cut to 8 before the check
                 {"", false},       {"   ", false},        {".", false},  {"..", false}, {"a/b", false},
                 {"a\\b", false},   {"a b", false},        {" a", false}, {"a\"", false}, {"płace", true},
                 {"a€", true},      {"a😀", false}};
    for (const auto& c : cases) EXPECT_EQ(reference::badListStem(c.stem).empty(), c.ok) << c.stem;
}

namespace {

// A session whose screens include a stand-in for the list workspace, which records the
// session it was opened with.
struct Workspace {
    core::Screens screens;
    int opened = 0;
    core::Session seen;
    Workspace() {
        screens.add("frmlista", [this](core::Session& s, core::Dialogs&) {
            ++opened;
            seen = s;
        });
    }
};

void choose(reference::WyborScreen& f, int index) { f.CmbWybierz.ListIndex = index; }

}  // namespace

TEST(Wybor, ChosenListGoesIntoTheSessionAndOpensTheWorkspace) {
    Demo d;
    ScriptedDialogs ui;
    Workspace w;
    ui.screens = &w.screens;
    reference::WyborScreen f(ui, d.s);
    f.Load();
    ASSERT_EQ(f.CmbWybierz.List.size(), 2u);
    EXPECT_EQ(f.CmbWybierz.Text, "Wybierz jedną z list ");
    EXPECT_EQ(f.CmbWybierz.List[1], "Produkcja                         p         p   B");
    choose(f, 1);
    EXPECT_TRUE(f.CmdWybierz_Click());
    EXPECT_TRUE(ui.boxes.empty()) << ui.last();
    EXPECT_EQ(w.opened, 1);
    EXPECT_EQ(w.seen.NazwaZbioru, "p");
    EXPECT_EQ(w.seen.NazwaListy, "Produkcja                        ");
    EXPECT_EQ(w.seen.NumerListy, "2");
    EXPECT_EQ(w.seen.SciezkaBazy.lexically_normal(), d.payer() / "Bazy" / "p.dta");
    EXPECT_EQ(w.seen.SciezkaOsob.lexically_normal(), d.payer() / "Person" / "p.per");
    EXPECT_TRUE(f.Unloaded);
}

TEST(Wybor, TwoListsOfOneStemTakeTheNumberOfTheFirst) {
    Demo d;
    writeLines(d.payer() / "instal.dat",
               {R"("Lista zasadnicza                 ","x       ","a","A","","","","1","R1")",
                R"("Lista dodatkowa                  ","x       ","a","A","","","","2","R2")"});
    ScriptedDialogs ui;
    Workspace w;
    ui.screens = &w.screens;
    reference::WyborScreen f(ui, d.s);
    f.Load();
    choose(f, 1);
    ASSERT_TRUE(f.CmdWybierz_Click());
    EXPECT_EQ(d.s.NazwaListy, "Lista dodatkowa                  ");
    EXPECT_EQ(d.s.NazwaZbioru, "x");
    EXPECT_EQ(d.s.NumerListy, "1");
    EXPECT_EQ(d.s.Rezerwa4, "R1");
}

TEST(Wybor, BoxesOfTheChoice) {
    struct Case {
        const char* what;
        std::function<void(Demo&, reference::WyborScreen&)> prepare;
        std::string box;
        bool taken;
    };
    const std::string nieWybrana = "[Wybierz liste!] Nie wybrana lista pracowników !!";
    const std::string brakPlatnika = "[Brak danych Płatnika] Nie wybrano Płatnika ! Wybierz >Instalacyjne >Dane Płatnika! ";
    std::vector<Case> cases = {
        {"nic nie wybrano", [](Demo&, reference::WyborScreen&) {}, nieWybrana, false},
        {"pusty tekst", [](Demo&, reference::WyborScreen& f) { f.CmbWybierz.Text.clear(); }, nieWybrana, false},
        {"brak folderu Płatnika",
         [](Demo& d, reference::WyborScreen& f) {
             choose(f, 0);
             fs::remove_all(d.payer());
         },
         brakPlatnika, false},
        {"brak folderu Person",
         [](Demo& d, reference::WyborScreen& f) {
             choose(f, 0);
             fs::remove_all(d.payer() / "Person");
         },
         brakPlatnika, false},
        {"brak ekranu listy pracowników", [](Demo&, reference::WyborScreen& f) { choose(f, 0); },
         "[Lista pracowników] Wybrano listę \"Administracja\" (pliki a). Ekran listy pracowników nie jest jeszcze "
         "dostępny w tej wersji programu.",
         true},
    };
    for (auto& c : cases) {
        Demo d;
        ScriptedDialogs ui;
        core::Screens none;
        ui.screens = &none;
        reference::WyborScreen f(ui, d.s);
        f.Load();
        c.prepare(d, f);
        EXPECT_EQ(f.CmdWybierz_Click(), c.taken) << c.what;
        ASSERT_EQ(ui.boxes.size(), 1u) << c.what;
        EXPECT_EQ(ui.last(), c.box) << c.what;
        EXPECT_EQ(f.Unloaded, c.taken) << c.what;
    }
}

TEST(Wybor, NewListGetsAnEmptyPersonnelFileAndAnExistingOneStays) {
    Demo d;
    fs::path per = d.payer() / "Person" / "a.per";
    fs::remove(per);
    ScriptedDialogs ui;
    Workspace w;
    ui.screens = &w.screens;
    {
        reference::WyborScreen f(ui, d.s);
        f.Load();
        choose(f, 0);
        ASSERT_TRUE(f.CmdWybierz_Click());
    }
    ASSERT_TRUE(fs::exists(per));
    EXPECT_EQ(fs::file_size(per), 0u);
    writeLines(per, {"\"<Poczatek>\""});
    {
        reference::WyborScreen f(ui, d.s);
        f.Load();
        choose(f, 0);
        ASSERT_TRUE(f.CmdWybierz_Click());
    }
    EXPECT_EQ(readBytes(per), "\"<Poczatek>\"\r\n");
}

TEST(Wybor, PayerWithoutFolderIsToldOnOpening) {
    Demo d;
    d.s.SkrotPlatnika = "NIEMA";
    ScriptedDialogs ui;
    reference::WyborScreen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(f.CmbWybierz.List.empty());
    EXPECT_EQ(ui.last(), "[Brak danych Płatnika] Nie wybrano Płatnika ! Wybierz >Instalacyjne >Dane Płatnika! ");
}
