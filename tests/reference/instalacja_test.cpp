#include <gtest/gtest.h>

#include "core/text.h"
#include "support/demo.h"
#include "reference/catalogue.h"
#include "reference/instalacja.h"
#include "support/scripted.h"

namespace fs = std::filesystem;
using core::Answer;
using reference::InstalacjaScreen;
using testing_support::Demo;
using testing_support::readBytes;
using testing_support::readLines;
using testing_support::ScriptedDialogs;

namespace {

const std::string kPytanie = "[Dodaje nową liste do systemu !] Czy chcesz zapisac nowe dane ?";
const std::string kA = R"("Administracja                    ","a       ","a","A","","","","1","")";
const std::string kP = R"("Produkcja                        ","p       ","p","B","","","","2","")";

void fill(InstalacjaScreen& f, const std::string& title, const std::string& stem, const std::string& group,
          const std::string& set) {
    f.txtNazwaListy1.Text = title;
    f.txtSkrotlisty1.Text = stem;
    f.txtGrupa1.Text = group;
    f.txtZestaw.Text = set;
}

}  // namespace

TEST(Instalacja, ShowsTheCatalogue) {
    Demo d;
    ScriptedDialogs ui;
    InstalacjaScreen f(ui, d.s);
    f.Load();
    ASSERT_EQ(f.lstListaI.List.size(), 2u);
    EXPECT_EQ(f.lstListaI.List[0], "Administracja                     a         a   A");
    EXPECT_FALSE(f.cmdZapisz.Enabled);
    f.lstListaI.ListIndex = 1;
    f.lstListaI_Click();
    EXPECT_EQ(f.txtNazwaListy1.Text, "Produkcja");
    EXPECT_EQ(f.txtSkrotlisty1.Text, "p");
    EXPECT_EQ(f.txtGrupa1.Text, "p");
    EXPECT_EQ(f.txtZestaw.Text, "B");
}

TEST(Instalacja, AddingAListAfterTheQuestion) {
    Demo d;
    d.s.Rezerwa4 = "AB";
    ScriptedDialogs ui;
    InstalacjaScreen f(ui, d.s);
    f.Load();
    f.cmdDodajliste_Click();
    EXPECT_EQ(f.Tryb, 1);
    fill(f, "Nauczyciele szkoły podstawowej nr 12 w Myślenicach", "naucz_sp12", "n", "b");
    ui.answer(Answer::No);
    f.cmdZapisz_Click();
    EXPECT_EQ(ui.last(), kPytanie);
    EXPECT_EQ(readLines(d.payer() / "instal.dat"), (std::vector<std::string>{kA, kP}));

    f.cmdZapisz_Click();
    EXPECT_EQ(ui.boxes.size(), 2u);
    EXPECT_EQ(ui.last(), kPytanie);
    EXPECT_EQ(ui.boxes.back().buttons, core::Buttons::YesNo);
    // Title cut to 33, stem to 8, the set letter in upper case, the running number, the reserve.
    EXPECT_EQ(readLines(d.payer() / "instal.dat"),
              (std::vector<std::string>{kA, kP,
                                        R"("Nauczyciele szkoły podstawowej nr","naucz_sp","n","B","","","","3","AB")"}));
    EXPECT_FALSE(fs::exists(d.payer() / "tymcz.dat"));
    ASSERT_EQ(f.lstListaI.List.size(), 3u);
    EXPECT_EQ(f.lstListaI.ListIndex, 2);
    EXPECT_EQ(f.Tryb, 0);
}

TEST(Instalacja, ReplacingTheChosenList) {
    Demo d;
    ScriptedDialogs ui;
    InstalacjaScreen f(ui, d.s);
    f.Load();
    f.lstListaI.ListIndex = 1;
    f.lstListaI_Click();
    f.cmdaktual_Click();
    EXPECT_EQ(f.Tryb, 2);
    f.txtNazwaListy1.Text = "Produkcja - wydział II";
    f.txtZestaw.Text = "a";
    f.cmdZapisz_Click();
    EXPECT_EQ(ui.last(), kPytanie);
    EXPECT_EQ(readLines(d.payer() / "instal.dat"),
              (std::vector<std::string>{kA, R"("Produkcja - wydział II           ","p       ","p","A","","","","2","")"}));
}

TEST(Instalacja, DeletingAsksAndLeavesTheFilesOfTheList) {
    Demo d;
    core::commitFile(d.payer() / "Bazy" / "a.dta", "\"<Poczatek>\"\r\n");
    ScriptedDialogs ui;
    InstalacjaScreen f(ui, d.s);
    f.Load();
    f.lstListaI.ListIndex = 0;
    ui.answer(Answer::No);
    f.cmdUsu_Click();
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.last(), "[Usuwa wybraną listę z systemu !] Czy napewno chcesz usunąc wybrana listę ?");
    EXPECT_EQ(ui.boxes.back().buttons, core::Buttons::YesNo);
    EXPECT_EQ(readLines(d.payer() / "instal.dat").size(), 2u);
    f.cmdUsu_Click();
    EXPECT_EQ(ui.last(), "[Usuwa wybraną listę z systemu !] Czy napewno chcesz usunąc wybrana listę ?");
    EXPECT_EQ(readLines(d.payer() / "instal.dat"), std::vector<std::string>{kP});
    EXPECT_TRUE(fs::exists(d.payer() / "Bazy" / "a.dta"));
    EXPECT_EQ(f.lstListaI.List.size(), 1u);
}

// The refusals are the program's own: asserted by their title and by the catalogue left whole.
TEST(Instalacja, WhatCannotBeSavedIsSaidBeforeTheQuestion) {
    auto dodaj = [](const char* nazwa, const char* skrot, const char* zestaw) {
        return [=](InstalacjaScreen& f) {
            f.cmdDodajliste_Click();
            fill(f, nazwa, skrot, "a", zestaw);
            f.cmdZapisz_Click();
        };
    };
    struct {
        const char* what;
        std::function<void(InstalacjaScreen&)> act;
        const char* title;
    } cases[] = {
        {"bez nazwy", dodaj("  ", "x", "A"), "Błędne dane listy"},
        {"bez skrótu", dodaj("Lista", "", "A"), "Błędne dane listy"},
        {"skrót z folderem", dodaj("Lista", "../a", "A"), "Błędne dane listy"},
        {"cudzysłów w nazwie", dodaj("Lista \"B\"", "b", "A"), "Błędne dane"},
        {"cudzysłów w zestawie", dodaj("Lista", "b", "\""), "Błędne dane"},
        {"zmiana bez wybranej listy", [](InstalacjaScreen& f) { f.cmdaktual_Click(); }, "Zmiana listy"},
        {"usunięcie bez wybranej listy", [](InstalacjaScreen& f) { f.cmdUsu_Click(); }, "Usuwanie listy"},
    };
    for (auto& c : cases) {
        Demo d;
        std::string before = readBytes(d.payer() / "instal.dat");
        ScriptedDialogs ui;
        InstalacjaScreen f(ui, d.s);
        f.Load();
        c.act(f);
        ASSERT_EQ(ui.boxes.size(), 1u) << c.what;
        EXPECT_EQ(ui.boxes.back().title, c.title) << c.what;
        EXPECT_EQ(readBytes(d.payer() / "instal.dat"), before) << c.what;
    }
}

TEST(Instalacja, NewPayerStartsAnEmptyCatalogue) {
    Demo d;
    fs::remove(d.payer() / "instal.dat");
    ScriptedDialogs ui;
    InstalacjaScreen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(f.lstListaI.List.empty());
    f.cmdDodajliste_Click();
    fill(f, "Zlecenia", "u", "u", "c");
    f.cmdZapisz_Click();
    EXPECT_EQ(readLines(d.payer() / "instal.dat"),
              std::vector<std::string>{R"("Zlecenia                         ","u       ","u","C","","","","1","")"});
}
