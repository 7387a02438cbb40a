#include <gtest/gtest.h>

#include "pay_file.h"
#include "payinputs/potracenia.h"
#include "payinputs/screens.h"
#include "payinputs/zasilki.h"
#include "support/scripted.h"

using namespace payinputs;
using pay_test::PayFile;
using testing_support::ScriptedDialogs;

namespace {

void type(PotraceniaScreen& f, int field, const std::string& text) { f.txt(field).Text = text; }

}  // namespace

TEST(Potracenia, DuesAreAmountsOrPercentsOfBasicPayOrOfTheBase) {
    struct {
        const char* payer;
        float zasadnicza, funkcyjny, mieszkaniowy;
        const char *zwiazek, *solid;                // typed
        const char *zwiazekZapis, *solidZapis;      // stored as k
        const char *lbZwiazki, *lbSolid;            // shown as amounts
    } cases[] = {
        // 3000 * 0.5 / 100; "1" is one złoty, not one percent
        {"DEMO", 3000, 500, 100, "0,5", "1", "0.5", "1", "15.00", "1.00"},
        // base 3000 + 500 + 100 = 3600; half a percent of it
        {"BIS", 3000, 500, 100, "0,5", "0.5", "0.5", "0.5", "18.00", "18.00"},
        {"BUFLEPLA", 3000, 500, 100, "0.25", "2", "0.25", "2", "9.00", "2.00"},
        // the other payers take basic pay even with other components; a negative passes through
        {"DEMO", 3000, 500, 100, "0.25", "-12,5", "0.25", "-12.5", "7.50", "-12.50"},
        {"DEMO", 2500, 0, 0, "0", "", "0", "0", "0.00", "0.00"},
        {"DEMO", 2500, 0, 0, "0.1", "35,40", "0.1", "35.4", "2.50", "35.40"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.payer) + " " + c.zwiazek + " " + c.solid);
        PayFile pf;
        core::Record& r = pf.add("Kowalska", "Anna", "85020254321");
        r.set(Pay::Zasadnicza, c.zasadnicza);
        r.set(Pay::Funkcyjny, c.funkcyjny);
        r.set(Pay::Mieszkaniowy, c.mieszkaniowy);
        pf.write();
        pf.choose(0);
        pf.s.SkrotPlatnika = c.payer;
        ScriptedDialogs ui;
        PotraceniaScreen f(ui, pf.s);
        f.Load();
        type(f, Pay::Zwiazek, c.zwiazek);
        type(f, Pay::Solidarnosc, c.solid);
        f.cmdZapisz_Click();
        EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});
        EXPECT_TRUE(f.Unloaded);
        EXPECT_EQ(f.lbZwiazki.Caption, c.lbZwiazki);
        EXPECT_EQ(f.lbSolid.Caption, c.lbSolid);
        auto saved = Pay::readAll(pf.file);
        ASSERT_EQ(saved.size(), 1u);
        EXPECT_EQ(saved[0].s(Pay::Zwiazek), c.zwiazekZapis);
        EXPECT_EQ(saved[0].s(Pay::Solidarnosc), c.solidZapis);
    }
}

TEST(Potracenia, OpeningShowsBaseDuesAndTotalWithoutWriting) {
    PayFile pf;
    core::Record& r = pf.add("Kowalska", "Anna", "85020254321");
    const struct {
        int field;
        float value;
    } skladniki[] = {
        {Pay::Zasadnicza, 3000},  {Pay::Funkcyjny, 200},      {Pay::Stazowy, 300},     {Pay::Premia, 0.1f},
        {Pay::Specjalny, 10},     {Pay::Inny, 20},            {Pay::Motywacyjny, 30},  {Pay::Wiejski, 40},
        {Pay::Specjalistyczny, 50}, {Pay::Wychowawczy, 60},   {Pay::Trudnosciowy, 70}, {Pay::Ekwiwalent, 80},
        {Pay::Nocny, 90},         {Pay::Wyrownania, -100},    {Pay::Szkodliwy, 5.55f}, {Pay::Mieszkaniowy, 100},
        // not in the base
        {Pay::StawkaP, 7777},     {Pay::KosztyUzyskania, 111}, {Pay::KwotaUlgi, 46.33f},
        // deductions
        {Pay::ZFMRata, 100},      {Pay::KZPRata, 50},         {Pay::KZPSkladka, 0.5f}, {Pay::Potracenie1, 10},
        {Pay::Potracenie2, 20},   {Pay::PZU, 30.25f},         {Pay::POTRInne, 5},      {Pay::PotraceniaPoZasilkach, 7},
        {Pay::Zwiazek, 1},        {Pay::Solidarnosc, 0.5f},   {Pay::Rezerwa43, 999},
    };
    for (const auto& k : skladniki) r.set(k.field, k.value);
    r.set(Pay::ZFMPozyczka, 2000.0);
    r.set(Pay::KZPWklady, "1250,00");  // a variant holding text keeps it
    pf.write();
    pf.choose(0);
    const std::string before = testing_support::readBytes(pf.file);

    ScriptedDialogs ui;
    PotraceniaScreen f(ui, pf.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    EXPECT_EQ(f.Caption, "Potracenia Kowalska Anna");
    EXPECT_EQ(f.txt(Pay::ZFMPozyczka).Text, "2000");
    EXPECT_EQ(f.txt(Pay::KZPWklady).Text, "1250,00");
    EXPECT_EQ(f.txt(Pay::KZPSkladka).Text, "0.5");
    EXPECT_EQ(f.txt(Pay::PZU).Text, "30.25");
    // 3000 + 200 + 300 + 0.1 + 10 + 20 + 30 + 40 + 50 + 60 + 70 + 80 + 90 - 100 + 5.55 + 100
    EXPECT_EQ(f.lbPodstawaDoKZP.Caption, "3955.65");
    EXPECT_EQ(f.lbZwiazki.Caption, "1.00");
    EXPECT_EQ(f.lbSolid.Caption, "15.00");  // 3000 * 0.5 / 100
    // 100 + 50 + 0.5 (the fraction taken bare) + 10 + 20 + 30.25 + 5 + 7 + 1 + 15
    EXPECT_EQ(f.lbRazemPotracenia.Caption, "238.75");
    EXPECT_TRUE(f.cmdZapisz.Enabled);
    EXPECT_FALSE(f.lbBrakDanych.Visible);
    EXPECT_EQ(testing_support::readBytes(pf.file), before);

    // Typing shows the new total at once (the comma read as a point); nothing is written.
    type(f, Pay::KZPSkladka, "12,5");
    f.fire(f.txt(Pay::KZPSkladka), &core::Control::Change);
    EXPECT_EQ(f.lbRazemPotracenia.Caption, "250.75");
    EXPECT_EQ(testing_support::readBytes(pf.file), before);
}

TEST(Potracenia, SavingRewritesOnlyTheSavedFieldsAndTheNumbers) {
    PayFile pf;
    pf.add("Nowak", "Jan", "80010112345").set(Pay::Zasadnicza, 4100.0f);
    core::Record& b = pf.add("Kowalska", "Anna", "85020254321");
    b.set(Pay::Zasadnicza, 3000.0f);
    b.set(Pay::Zwiazek, 2.0f);
    b.set(Pay::ZFMPozyczka, "stara pożyczka");
    b.set(Pay::Zasilek1, "153");
    pf.add("Petrenko", "Olena", "85020254321", "UKRAIŃSKIE", "FA123456").set(Pay::Koniec, "<koniec>");
    core::Record& d = pf.add("Kowalska", "Anna", "85020254321");  // a second record of Anna
    d.set(Pay::Zasadnicza, 3000.0f);
    d.set(Pay::Potracenie1, 99.0f);
    const int numery[] = {7, 3, 12, 4};
    for (std::size_t i = 0; i < pf.recs.size(); ++i) pf.recs[i].set(Pay::Numer, numery[i]);
    pf.write();
    pf.choose(1);
    const std::vector<std::string> before = pf.lines();
    ASSERT_EQ(before.size(), 4u * 155u);

    const struct {
        int field;
        const char* typed;
        const char* stored;
    } saved[] = {
        {Pay::ZFMPozyczka, "1500,75", "1500.75"}, {Pay::ZFMRata, "120,50", "120.5"},
        {Pay::KZPWklady, "", "0"},                {Pay::KZPpozyczka, "3000", "3000"},
        {Pay::KZPRata, "150", "150"},             {Pay::KZPSkladka, "0,02", "0.02"},
        {Pay::Potracenie1, "10", "10"},           {Pay::Potracenie2, "20,1", "20.1"},
        {Pay::Zwiazek, "0,5", "0.5"},             {Pay::Solidarnosc, "1", "1"},
        {Pay::PZU, "45,99", "45.99"},             {Pay::POTRInne, "5", "5"},
        {Pay::PotraceniaPoZasilkach, "7,5", "7.5"},
    };
    ScriptedDialogs ui;
    PotraceniaScreen f(ui, pf.s);
    f.Load();
    for (const auto& v : saved) type(f, v.field, v.typed);
    f.cmdZapisz_Click();
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Zapisano "});
    EXPECT_TRUE(f.Unloaded);
    EXPECT_EQ(f.txt(Pay::ZFMRata).Text, "120.50");
    // 120.5 + 150 + 0.02 + 10 + 20.1 + 45.99 + 5 + 7.5 + 15 (half a percent of 3000) + 1
    EXPECT_EQ(f.lbRazemPotracenia.Caption, "375.11");

    std::vector<std::string> expected = before;
    for (std::size_t rec = 0; rec < 4; ++rec) {
        const std::size_t at = rec * 155;
        expected[at + Pay::Numer - 1] = std::to_string(rec + 1);
        expected[at + Pay::Koniec - 1] = "\"<Koniec>\"";  // every writer puts the marker back
        if (rec == 1 || rec == 3)  // both records of Anna take the screen's values
            for (const auto& v : saved) expected[at + v.field - 1] = v.stored;
    }
    EXPECT_EQ(pf.lines(), expected);
    EXPECT_FALSE(std::filesystem::exists(pf.file.parent_path() / "TYMCZ.dta"));
}

TEST(Potracenia, TextInsteadOfANumberStopsTheSaveWithTheFileWhole) {
    PayFile pf;
    pf.add("Kowalska", "Anna", "85020254321");
    pf.write();
    pf.choose(0);
    const std::string before = testing_support::readBytes(pf.file);
    ScriptedDialogs ui;
    PotraceniaScreen f(ui, pf.s);
    f.Load();
    type(f, Pay::ZFMRata, "100");
    type(f, Pay::KZPRata, "12a");
    f.fire(f.cmdZapisz, &core::Control::Click);
    EXPECT_EQ(ui.lines(), std::vector<std::string>{"[]  Błąd 13  w linii txtKZPRata\n\"12a\" nie jest liczbą"});
    EXPECT_FALSE(f.Unloaded);
    EXPECT_EQ(f.FocusTo, "txtKZPRata");
    EXPECT_EQ(testing_support::readBytes(pf.file), before);
}

TEST(PayInputScreens, MissingPayFileIsCreatedEmptyAndAPersonWithoutARecordCannotSave) {
    struct {
        const char* screen;
        bool fileExists;
        std::vector<std::string> boxes;
        const char* caption;
    } cases[] = {
        {"frmPotracenia", false, {"[Brak zbioru] Zakładanie nowego zbioru płacowego !"}, "Potracenia Wiśniewski Piotr"},
        {"frmZasilki", false, {"[Brak zbioru] Zakladanie nowego zbioru płacowego !"}, "Zasiłki Wiśniewski Piotr"},
        {"frmPotracenia", true, {}, "Potracenia Wiśniewski Piotr"},
        {"frmZasilki", true, {}, "Zasiłki Wiśniewski Piotr"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.screen) + (c.fileExists ? " with a file" : " without a file"));
        PayFile pf;
        pf.add("Nowak", "Jan", "80010112345");
        if (c.fileExists) pf.write();
        pf.s.KluczOsoby = "75030312345";
        pf.s.NazwiskoOsoby = "Wiśniewski";
        pf.s.ImieOsoby = "Piotr";
        const std::string before = c.fileExists ? testing_support::readBytes(pf.file) : std::string();
        ScriptedDialogs ui;
        core::Screens screens;
        registerScreens(screens);
        ui.screens = &screens;
        ui.onShow = [&](core::Form& f) {
            EXPECT_EQ(f.Caption, c.caption);
            EXPECT_FALSE(f.find(std::string(c.screen) == "frmZasilki" ? "CmdZapiszZasilki" : "cmdZapisz")->Enabled);
            EXPECT_TRUE(f.find("lbBrakDanych")->Visible);
        };
        ASSERT_TRUE(ui.open(c.screen, pf.s));
        EXPECT_EQ(ui.formsShown, std::vector<std::string>{c.screen});
        EXPECT_EQ(ui.lines(), c.boxes);
        ASSERT_TRUE(std::filesystem::exists(pf.file));
        EXPECT_EQ(testing_support::readBytes(pf.file), before);
    }
}
