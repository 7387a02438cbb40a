#include <gtest/gtest.h>

#include "pay_file.h"
#include "payinputs/screens.h"
#include "payinputs/zasilki.h"
#include "support/scripted.h"

using namespace payinputs;
using pay_test::PayFile;
using testing_support::ScriptedDialogs;

namespace {
const int kPola[6] = {Pay::Zasilek1, Pay::Zasilek2, Pay::Zasilek3, Pay::Zasilek4, Pay::Zasilek5, Pay::Zasilek6};
}

TEST(Zasilki, SavedAsNumbersAndSummedWithoutTheChildcareBase) {
    struct {
        // typed into txtPielegnacyjny, txtRodzinny, txtZWychowawczy, txtZasilekZUS, txtIloscOsZR,
        // txtIloscOsZP
        std::vector<std::string> typed, stored;
        const char* suma;
    } cases[] = {
        {{"", "120,50", "", "", "", ""}, {"0", "120.5", "0", "0", "0", "0"}, "120.50"},
        // the childcare base alone is no payment
        {{"", "", "850", "", "", ""}, {"0", "0", "850", "0", "0", "0"}, "0.00"},
        // 153 + 230.5 + 80
        {{"153", "230,5", "900", "80", "2", "1"}, {"153", "230.5", "900", "80", "2", "1"}, "463.50"},
        {{"-20", "0,05", " 7 ", "", "0", ""}, {"-20", "0.05", "7", "0", "0", "0"}, "-19.95"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.suma);
        PayFile pf;
        pf.add("Nowak", "Jan", "80010112345");
        pf.add("Kowalska", "Anna", "85020254321").set(Pay::Zasilek2, 99.0);
        pf.write();
        pf.choose(1);
        ScriptedDialogs ui;
        ZasilkiScreen f(ui, pf.s);
        f.Load();
        EXPECT_EQ(f.txtRodzinny.Text, "99");
        for (int i = 0; i < 6; ++i) f.pola[i]->Text = c.typed[i];
        f.CmdZapiszZasilki_Click();
        EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});
        EXPECT_FALSE(f.Unloaded);
        EXPECT_EQ(f.lbKwotazasilkow.Caption, c.suma);
        auto saved = Pay::readAll(pf.file);
        ASSERT_EQ(saved.size(), 2u);
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(saved[1].s(kPola[i]), c.stored[i]) << "pole " << kPola[i];
            EXPECT_EQ(saved[1].item(kPola[i]).kind, core::Item::Bare);
            EXPECT_TRUE(saved[0].isEmpty(kPola[i]));
        }
    }
}

TEST(Zasilki, OpeningTurnsCommasIntoPointsAndWritesNothing) {
    PayFile pf;
    core::Record& r = pf.add("Kowalska", "Anna", "85020254321");
    r.set(Pay::Zasilek1, 153.0);
    r.set(Pay::Zasilek2, "120,50");  // text kept by an older save
    r.set(Pay::Zasilek3, 850.0);
    r.set(Pay::Zasilek4, "80");
    r.set(Pay::Zasilek5, 1.0);
    pf.write();
    pf.choose(0);
    const std::string before = testing_support::readBytes(pf.file);
    ScriptedDialogs ui;
    ZasilkiScreen f(ui, pf.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_EQ(f.Caption, "Zasiłki Kowalska Anna");
    EXPECT_EQ(f.txtPielegnacyjny.Text, "153");
    EXPECT_EQ(f.txtRodzinny.Text, "120.50");
    EXPECT_EQ(f.txtZWychowawczy.Text, "850");
    EXPECT_EQ(f.txtZasilekZUS.Text, "80");
    EXPECT_EQ(f.txtIloscOsZR.Text, "1");
    EXPECT_EQ(f.txtIloscOsZP.Text, "");
    EXPECT_EQ(f.lbKwotazasilkow.Caption, "353.50");  // 153 + 120.5 + 80
    EXPECT_TRUE(f.CmdZapiszZasilki.Enabled);
    EXPECT_EQ(testing_support::readBytes(pf.file), before);
}

TEST(Zasilki, SavingForAForeignerChangesOnlyHisBenefitsAndTheNumbers) {
    PayFile pf;
    pf.add("Nowak", "Jan", "80010112345").set(Pay::Zasilek2, 50.0);
    pf.add("Petrenko", "Olena", "", "UKRAIŃSKIE", "FA123456").set(Pay::Zasilek3, "800");
    pf.add("Kowalska", "Anna", "85020254321");
    for (std::size_t i = 0; i < pf.recs.size(); ++i) pf.recs[i].set(Pay::Numer, 20 - static_cast<int>(i));
    pf.write();
    pf.choose(1);
    EXPECT_EQ(pf.s.KluczOsoby, "FA123456");
    const std::vector<std::string> before = pf.lines();

    ScriptedDialogs ui;
    core::Screens screens;
    registerScreens(screens);
    ui.screens = &screens;
    EXPECT_TRUE(ui.canOpen("frmPotracenia"));
    ui.onShow = [](core::Form& f) {
        auto& z = dynamic_cast<ZasilkiScreen&>(f);
        z.txtRodzinny.Text = "230,50";
        z.txtIloscOsZR.Text = "2";
        f.fire(z.CmdZapiszZasilki, &core::Control::Click);
    };
    ASSERT_TRUE(ui.open("frmZasilki", pf.s));
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});

    std::vector<std::string> expected = before;
    for (std::size_t rec = 0; rec < 3; ++rec) expected[rec * 155 + Pay::Numer - 1] = std::to_string(rec + 1);
    const std::size_t at = 155;
    const char* stored[6] = {"0", "230.5", "800", "0", "2", "0"};
    for (int i = 0; i < 6; ++i) expected[at + kPola[i] - 1] = stored[i];
    EXPECT_EQ(pf.lines(), expected);
}

TEST(Zasilki, TextInsteadOfANumberStopsTheSave) {
    PayFile pf;
    pf.add("Kowalska", "Anna", "85020254321");
    pf.write();
    pf.choose(0);
    const std::string before = testing_support::readBytes(pf.file);
    ScriptedDialogs ui;
    ZasilkiScreen f(ui, pf.s);
    f.Load();
    f.txtRodzinny.Text = "120";
    f.txtIloscOsZR.Text = "dwie";
    f.fire(f.CmdZapiszZasilki, &core::Control::Click);
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Błąd nr 13 w linii txtIloscOsZR\n\"dwie\" nie jest liczbą"});
    EXPECT_EQ(f.FocusTo, "txtIloscOsZR");
    EXPECT_EQ(testing_support::readBytes(pf.file), before);
}
