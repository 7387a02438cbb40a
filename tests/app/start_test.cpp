#include <sys/resource.h>

#include <csignal>
// The start of a session on a copy of the demo data: boxes, the list date, the password.
#include <gtest/gtest.h>

#include "core/instance.h"
#include "core/numbers.h"
#include "core/seqfile.h"
#include "core/text.h"
#include "app/place.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using core::Answer;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;
using testing_support::TempDir;

namespace {

struct Demo {
    TempDir dir;
    core::Session s;
    ScriptedDialogs ui;
    Demo() {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
    }
    fs::path instalka() const { return dir / "instalka.dat"; }
    void setInstalka(const std::string& line) { core::commitFile(instalka(), line + "\r\n"); }
};

}  // namespace

TEST(Start, DemoOpensWithThePassword) {
    Demo d;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    EXPECT_TRUE(d.ui.boxes.empty()) << d.ui.last();
    EXPECT_EQ(d.s.Katalog, ".");
    EXPECT_EQ(d.s.DataListy, "31-01-2021");
    EXPECT_EQ(d.s.OkresListy, "0121");
    EXPECT_EQ(place.lbPlatnik.Caption, "DEMO");
    EXPECT_EQ(place.lbAdministrator.Caption, "Anna Kowalska Główna księgowa");
    EXPECT_EQ(place.txtZestaw.Text, "A");
    EXPECT_EQ(place.txtDataListyS.Text, "31-01-2021");
    EXPECT_FALSE(place.dirFolder.Visible);
    EXPECT_EQ(place.lbData.Caption, core::FormatDate(core::today(), "dddd,dd,mmmm,yyyy"));
    EXPECT_DOUBLE_EQ(d.s.stawki.Stawka1, 17);

    d.ui.type(std::string("demo"));
    place.Activate();
    EXPECT_FALSE(place.Unloaded);
    ASSERT_EQ(d.ui.boxes.size(), 2u);
    EXPECT_EQ(d.ui.boxes[0].text, "Podaj hasło dostępu do danych kadrowo- płacowych ");
    EXPECT_EQ(d.ui.boxes[0].title, " Wprowadź hasło dostępu ");
    EXPECT_EQ(d.ui.last(), "[Dzień dobry witaj w Płacach] Ok masz dostęp!");
    EXPECT_EQ(place.Label4.Caption, "Versja 1.0.0");
}

TEST(Start, PasswordMustMatchExactly) {
    for (std::optional<std::string> typed : {std::optional<std::string>("Demo"), std::optional<std::string>("demo "),
                                             std::optional<std::string>()}) {
        Demo d;
        app::PlaceScreen place(d.ui, d.s);
        place.Load();
        d.ui.type(typed);
        place.Activate();
        EXPECT_TRUE(place.Unloaded);
        EXPECT_EQ(d.ui.last(), "[Błąd wprowadzenia hasła] Brak dostępu niestety nie rozpoznaje Cię !");
    }
}

TEST(Start, EmptyListDateWarnsAndGoesOn) {
    Demo d;
    d.setInstalka("\"demo\",\".\",\"DEMO\",\"L\",,\"A\",,\"\"");
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    ASSERT_FALSE(d.ui.boxes.empty());
    EXPECT_EQ(d.ui.lines()[0], "[Brak wprowadzonej daty jest błędem !] Brak wprowadzonej daty listy !");
    d.ui.type(std::string("demo"));
    place.Activate();
    EXPECT_FALSE(place.Unloaded);
}

TEST(Start, WorkingFolderCopyIsOnlyAPointer) {
    TempDir work;
    Demo d;
    // The data folder's own record holds another list date than the pointer.
    core::commitFile(work / "instalka.dat",
                     "\"inne\",\"" + d.dir.path().string() + "\",\"DEMO\",\"L\",,\"B\",,\"01-01-2009\"\r\n");
    d.setInstalka("\"demo\",\"" + d.dir.path().string() + "\",\"DEMO\",\"L\",,\"A\",,\"28-02-2019\"");
    d.s.WorkDir = work.path();
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    EXPECT_EQ(d.s.DataListy, "28-02-2019");
    EXPECT_EQ(d.s.Zestaw, "A");
    EXPECT_EQ(d.s.Haslo, "demo");
    EXPECT_DOUBLE_EQ(d.s.stawki.Stawka1, 18);  // the rates of 2019
}

TEST(Start, MissingInstallationRecordOffersTheFolderChoice) {
    TempDir work;
    core::Session s;
    s.WorkDir = work.path();
    ScriptedDialogs ui;
    app::PlaceScreen place(ui, s);
    place.Load();
    EXPECT_TRUE(place.dirFolder.Visible);
    // The record is made in the folder shown, so that the next start finds it.
    EXPECT_TRUE(fs::exists(work / "instalka.dat"));
    EXPECT_EQ(ui.lines().at(0), "[Brak wprowadzonej daty jest błędem !] Brak wprowadzonej daty listy !");
}

TEST(Start, BadFilesShowTheErrorReportAndChangeNothing) {
    struct {
        const char* what;
        std::function<void(Demo&)> spoil;
        int number;
    } cases[] = {
        {"short installation record", [](Demo& d) { d.setInstalka("\"demo\",\".\",\"DEMO\""); }, 62},
        {"rates cut inside a record",
         [](Demo& d) {
             std::string all = core::readFileText(d.dir / "dane" / "Dane.dta");
             core::commitFile(d.dir / "dane" / "Dane.dta", all.substr(0, all.size() / 2 - 7));
         },
         62},
        {"a letter in a rate",
         [](Demo& d) {
             std::string all = core::readFileText(d.dir / "dane" / "Dane.dta");
             core::commitFile(d.dir / "dane" / "Dane.dta", core::Replace(all, "\"1.5\"", "\"1a\""));
         },
         13},
        {"no rates file", [](Demo& d) { fs::remove(d.dir / "dane" / "Dane.dta"); }, 53},
    };
    for (auto& c : cases) {
        SCOPED_TRACE(c.what);
        Demo d;
        c.spoil(d);
        std::string before = readBytes(d.instalka());
        std::string rates = fs::exists(d.dir / "dane" / "Dane.dta") ? readBytes(d.dir / "dane" / "Dane.dta") : "";
        app::PlaceScreen place(d.ui, d.s);
        place.Load();
        bool reported = false;
        for (const auto& b : d.ui.boxes)
            if (core::Left(b.text, 9 + std::to_string(c.number).size()) == " Błąd nr " + std::to_string(c.number))
                reported = true;
        EXPECT_TRUE(reported) << (d.ui.boxes.empty() ? "no box" : d.ui.last());
        EXPECT_EQ(readBytes(d.instalka()), before);
        if (!rates.empty()) EXPECT_EQ(readBytes(d.dir / "dane" / "Dane.dta"), rates);
    }
}

TEST(ListDate, OnlyTheRangesOfDayAndMonthAreTested) {
    struct {
        const char* typed;
        bool accepted;
        const char* okres;
    } cases[] = {
        {"31-02-2009", true, "0209"},   // not a real date, still accepted
        {"15/03/2009", true, "0309"},   // separators may be anything
        {" 01-12-2020 ", true, "1220"}, // trimmed first
        {"1-3-2009", false, ""},        // fewer than 10 characters
        {"32-01-2009", false, ""},
        {"00-01-2009", false, ""},
        {"15-13-2009", false, ""},
        {"15-00-2009", false, ""},
        {"ab-01-2009", false, ""},
        {"15-01-20091", false, ""},
        {"3--12-2009", true, "1209"},   // day and month by the value of their two characters
        {"15-3--2009", true, "3-09"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Demo d;
        app::PlaceScreen place(d.ui, d.s);
        place.Load();
        std::string before = readBytes(d.instalka());
        place.txtDataListyS.Text = c.typed;
        place.cmdPotwierdz_Click();
        if (c.accepted) {
            EXPECT_TRUE(d.ui.boxes.empty()) << d.ui.last();
            EXPECT_EQ(d.s.DataListy, core::Trim(c.typed));
            EXPECT_EQ(d.s.OkresListy, c.okres);
            EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::DataListy), core::Trim(c.typed));
        } else {
            EXPECT_EQ(d.ui.last(), "[]  Źle wpisana data listy - popraw wg. wzoru :dd-mm-rrrr ");
            EXPECT_EQ(readBytes(d.instalka()), before);
            EXPECT_EQ(d.s.DataListy, "31-01-2021");
        }
    }
}

TEST(ListDate, DatePickedInTheCalendarIsTurnedRound) {
    Demo d;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    place.MonthView1.Visible = true;
    place.MonthView1.Text = "2019-08-31";
    place.MonthView1_DateClick();
    EXPECT_FALSE(place.MonthView1.Visible);
    EXPECT_EQ(d.s.DataListy, "31-08-2019");
    EXPECT_DOUBLE_EQ(d.s.stawki.Stawka1, 18);
}

TEST(ListDate, EnterConfirmsTheTypedDateTheCalendarFollowed) {
    Demo d;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    place.txtDataListyS.Text = "15-03-2020";
    place.fire(place.txtDataListyS, &core::Control::Change);
    EXPECT_EQ(place.MonthView1.Text, "15-03-2020");
    place.fire(place.txtDataListyS, &core::Control::KeyEnter);
    EXPECT_EQ(d.s.DataListy, "15-03-2020");
    EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::DataListy), "15-03-2020");
    // A text that is no real date leaves the calendar where it was.
    place.txtDataListyS.Text = "31-02-2020";
    place.fire(place.txtDataListyS, &core::Control::Change);
    EXPECT_EQ(place.MonthView1.Text, "15-03-2020");
}

TEST(Password, ChangeWritesTheNewOneInClear) {
    Demo d;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    d.ui.type(std::string("demo")).type(std::string("Nowe1"));
    place.Has_o();
    EXPECT_EQ(d.ui.last(), "[ Zapamietaj  - lepiej zapisz!! ] Zmienione hasło to : Nowe1");
    EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::Haslo), "Nowe1");
    EXPECT_EQ(d.s.HasloPodane, "Nowe1");
    // The other fields stay.
    EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::DataListy), "31-01-2021");
    // A double quote cannot stand in the file: refused, the file and the password as they were.
    const std::string before = readBytes(d.instalka());
    d.ui.type(std::string("Nowe1")).type(std::string("a\"b"));
    place.Has_o();
    EXPECT_EQ(d.ui.last(), "[Błędne dane] Pole \"Haslo\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano.");
    EXPECT_EQ(readBytes(d.instalka()), before);
    EXPECT_EQ(d.s.Haslo, "Nowe1");
}

TEST(Password, ThreeTriesWithRetryAndOneWithoutIt) {
    struct {
        std::vector<Answer> answers;
        std::size_t refusals;
    } cases[] = {
        {{Answer::Retry, Answer::Retry, Answer::Retry}, 3},
        {{Answer::Ignore}, 1},
        {{Answer::Retry, Answer::Abort}, 2},
    };
    for (const auto& c : cases) {
        Demo d;
        app::PlaceScreen place(d.ui, d.s);
        place.Load();
        std::string before = readBytes(d.instalka());
        for (Answer a : c.answers) d.ui.answer(a);
        for (int i = 0; i < 4; ++i) d.ui.type(std::string("zle"));
        place.Has_o();
        std::size_t refusals = 0;
        for (const auto& b : d.ui.boxes)
            if (b.text == "Przykro mi nie masz uprawnień do zmiany hasła") {
                ++refusals;
                EXPECT_EQ(b.title, " Tylko dla uprawnionego administratora ");
                EXPECT_EQ(b.buttons, core::Buttons::AbortRetryIgnore);
            }
        EXPECT_EQ(refusals, c.refusals);
        EXPECT_EQ(readBytes(d.instalka()), before);
    }
}

TEST(SingleInstance, SecondCopyIsRefused) {
    Demo d;
    core::InstanceLock first(d.dir.path());
    EXPECT_FALSE(first.otherRunning());
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    d.ui.type(std::string("demo"));
    place.Activate();
    EXPECT_TRUE(place.Unloaded);
    EXPECT_EQ(d.ui.last(), "[] Aplikacja Tesmar jest aktywna - próba ponownego zainstalowania tego programu !");
}

TEST(MainMenu, EntriesWithoutScreensAreDisabled) {
    Demo d;
    core::Screens screens;
    screens.add("stawki", [](core::Session&, core::Dialogs&) {});
    d.ui.screens = &screens;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    auto entry = [&](const std::string& n) { return place.find(n); };
    ASSERT_NE(entry("stawki"), nullptr);
    EXPECT_TRUE(entry("stawki")->Enabled);
    EXPECT_EQ(entry("stawki")->Caption, "&Stawki");
    EXPECT_EQ(entry("Kopia")->Caption, "&Wykonanie kopii programu w innej lokalizacji");
    EXPECT_TRUE(entry("Has_o")->Enabled);
    EXPECT_FALSE(entry("mnuDoZUS")->Enabled);
    EXPECT_FALSE(entry("rp7")->Enabled);
    EXPECT_EQ(entry("rp7")->ToolTipText, "Ta funkcja nie jest częścią tej wersji programu.");
}

TEST(ListDate, FolderThatCannotBeWrittenKeepsTheRecord) {
    // A limit on the size of a file makes the rewrite fail for any user.
    Demo d;
    app::PlaceScreen place(d.ui, d.s);
    place.Load();
    std::string before = readBytes(d.instalka());
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    ::getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 10;
    ::setrlimit(RLIMIT_FSIZE, &small);
    place.txtDataListyS.Text = "28-02-2021";
    place.cmdPotwierdz_Click();
    ::setrlimit(RLIMIT_FSIZE, &old);
    ASSERT_FALSE(d.ui.boxes.empty());
    EXPECT_EQ(core::Left(d.ui.boxes.back().text, 11), " Błąd nr 75");
    EXPECT_EQ(readBytes(d.instalka()), before);
    EXPECT_EQ(d.s.DataListy, "31-01-2021");
}
