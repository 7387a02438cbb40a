// The utilities of the main menu and the routing of its entries to the screens of payers and
// pay lists.
#include <gtest/gtest.h>

#include <cerrno>
#include <set>

#include "core/numbers.h"
#include "core/screens.h"
#include "core/text.h"
#include "support/demo.h"
#include "reference/mojafirma.h"
#include "app/place.h"
#include "app/pomoc.h"
#include "reference/screens.h"
#include "support/scripted.h"

namespace fs = std::filesystem;
using core::Answer;
using testing_support::Demo;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;

namespace {

// A second payer in the register with its folder, after the demo payer.
void addSecondPayer(Demo& d) {
    auto recs = reference::readPayers(d.s);
    core::Record r(reference::Firma::schema());
    r.set(reference::Firma::SkrotPlatnika, "DRUGA");
    recs.push_back(r);
    reference::Firma::writeAll(reference::Firma::path(d.s), recs);
    fs::create_directory(d.dir / "DRUGA");
}

// The main window on the demo data, with a desktop that only records what it is asked.
struct Place {
    Demo d;
    ScriptedDialogs ui;
    app::PlaceScreen place{ui, d.s};
    std::vector<std::string> found;                 // what `find` will answer, in turn
    std::vector<std::vector<std::string>> started;  // programs started
    std::vector<std::string> clock;                 // clock settings asked, "dd-mm-rrrr gg:mm:ss"
    int clockError = 0;
    Place() {
        place.pulpit.find = [this](const std::vector<std::string>& programs) {
            for (const auto& p : programs)
                for (const auto& f : found)
                    if (fs::path(f).filename() == p) return f;
            return std::string();
        };
        place.pulpit.start = [this](const std::vector<std::string>& argv) {
            started.push_back(argv);
            return true;
        };
        place.pulpit.setClock = [this](const core::Date& dt, int h, int m, int s) {
            char buf[64];
            std::snprintf(buf, sizeof buf, "%02d-%02d-%04d %02d:%02d:%02d", dt.d, dt.m, dt.y, h, m, s);
            clock.push_back(buf);
            return clockError;
        };
        place.Load();
        ui.boxes.clear();
    }
    std::string instalka() { return readBytes(d.dir / "instalka.dat"); }
};

}  // namespace

TEST(MenuUtilities, SetOfListsForTheCollectiveCommands) {
    Place p;
    p.ui.answer(Answer::No);
    p.place.mnuWyborList();
    EXPECT_EQ(p.ui.last(), "[Zmiana zestawu list do zbiorówek] Aktualny zestaw zbiorów do przetwarzania! -> A <- Czy "
                           "dokonać zmian ?");
    EXPECT_EQ(p.ui.boxes.back().buttons, core::Buttons::YesNo);
    EXPECT_EQ(p.instalka(), "\"demo\",\".\",\"DEMO\",\"L\",,\"A\",,\"31-01-2021\"\r\n");

    p.ui.answer(Answer::Yes).type(std::string("ab"));
    p.place.mnuWyborList();
    EXPECT_EQ(p.ui.boxes.back().text, " Wprowadź symbol zestawu do przetwarzania np.(A) lub (B) ");
    EXPECT_EQ(p.instalka(), "\"demo\",\".\",\"DEMO\",\"L\",,\"AB\",,\"31-01-2021\"\r\n");
    EXPECT_EQ(p.d.s.Zestaw, "AB");
    EXPECT_EQ(p.place.txtZestaw.Text, "AB");
    EXPECT_FALSE(fs::exists(p.d.dir / "tym.dta"));
}

TEST(MenuUtilities, PrinterKind) {
    struct {
        std::optional<std::string> typed;
        const char* stored;
        std::string box;  // after the question, "" for none
    } cases[] = {
        {std::string("a"), "A", ""},
        {std::string(" I "), "I", ""},
        {std::nullopt, "L", ""},
        {std::string("X"), "L", "Zmiana przyłaczonej drukarki"},  // refused: the kind stays
    };
    for (const auto& c : cases) {
        Place p;
        p.ui.type(c.typed);
        p.place.Drukarki();
        ASSERT_GE(p.ui.boxes.size(), 2u);
        EXPECT_EQ(p.ui.lines()[0], "[Zmiana przyłaczonej drukarki] Laserowa");
        EXPECT_EQ(p.ui.boxes[1].text, "Podaj rodzaj przyłączonej drukarki        A=atramentowa,I=igłowa,L=laserowa");
        EXPECT_EQ(p.ui.boxes[1].title, " Aktualnie przyłączona = Laserowa");
        EXPECT_EQ(p.ui.boxes.size(), c.box.empty() ? 2u : 3u);
        if (!c.box.empty()) { EXPECT_EQ(p.ui.boxes.back().title, c.box); }
        EXPECT_EQ(p.instalka(), std::string("\"demo\",\".\",\"DEMO\",\"") + c.stored + "\",,\"A\",,\"31-01-2021\"\r\n");
    }
}

TEST(MenuUtilities, BackupCopiesTheWholeDataFolder) {
    Place p;
    testing_support::TempDir out;
    fs::path target = out / "Archiwum pensji";
    p.ui.type(target.string());
    p.place.Kopia();
    ASSERT_EQ(p.ui.boxes.size(), 2u);
    EXPECT_EQ(p.ui.boxes[0].text, "Podaj gdzie wykonać archiwizacje np. d:\\Tesmar");
    EXPECT_EQ(p.ui.boxes[0].title, "Wykonanie całkowitej kopii programu wraz z danymi");
    EXPECT_EQ(p.ui.last(), "[Wykonanie całkowitej kopii programu wraz z danymi] Kopia całkowita Tesmar została "
                           "wykonana w katalogu " + target.string());
    // Every file and folder, byte for byte.
    std::set<std::string> want, got;
    for (const auto& e : fs::recursive_directory_iterator(p.d.dir.path())) {
        std::string rel = fs::relative(e.path(), p.d.dir.path()).string();
        want.insert(rel);
        if (e.is_regular_file()) { EXPECT_EQ(readBytes(target / rel), readBytes(e.path())) << rel; }
    }
    for (const auto& e : fs::recursive_directory_iterator(target)) got.insert(fs::relative(e.path(), target).string());
    EXPECT_EQ(got, want);
    EXPECT_TRUE(got.count("DEMO/instal.dat"));
    // The progress was shown and is hidden again.
    EXPECT_GT(p.ui.events, 10);
    EXPECT_FALSE(p.place.prbKopia.Visible);
    EXPECT_EQ(p.place.prbKopia.Value, p.place.prbKopia.Max);
}

// Refusals and questions the program adds: asserted by their title and by what is (not) copied.
TEST(MenuUtilities, BackupRefusals) {
    struct {
        const char* what;
        std::function<std::optional<std::string>(const fs::path& data)> typed;
    } cases[] = {
        {"anulowano", [](const fs::path&) { return std::nullopt; }},
        {"pusto", [](const fs::path&) { return std::string("   "); }},
        {"wewnątrz folderu danych", [](const fs::path& data) { return (data / "DEMO" / "Kopia" / "x").string(); }},
        {"sam folder danych, względnie", [](const fs::path&) { return std::string("."); }},
        {"plik w folderze danych", [](const fs::path& data) { return (data / "MojaFirma.txt").string(); }},
    };
    for (auto& c : cases) {
        Place p;
        fs::path data = fs::canonical(p.d.dir.path());
        auto count = [&] {
            std::size_t n = 0;
            for (auto it = fs::recursive_directory_iterator(data); it != fs::recursive_directory_iterator(); ++it) ++n;
            return n;
        };
        const std::size_t files = count();
        p.ui.type(c.typed(data));
        p.place.Kopia();
        ASSERT_EQ(p.ui.boxes.size(), 2u) << c.what;
        EXPECT_EQ(p.ui.boxes.back().title, "Wykonanie całkowitej kopii programu wraz z danymi") << c.what;
        EXPECT_EQ(p.ui.last().find("Kopia całkowita"), std::string::npos) << c.what;
        EXPECT_EQ(count(), files) << c.what;
    }
    // A folder in use: No copies nothing, Yes copies over what is there.
    Place p;
    testing_support::TempDir out;
    core::commitFile(out / "stary.txt", "x");
    p.ui.type(out.path().string()).answer(Answer::No);
    p.place.Kopia();
    EXPECT_EQ(p.ui.boxes.back().buttons, core::Buttons::YesNo);
    EXPECT_FALSE(fs::exists(out / "instalka.dat"));
    p.ui.type(out.path().string()).answer(Answer::Yes);
    p.place.Kopia();
    EXPECT_TRUE(fs::exists(out / "instalka.dat"));
    EXPECT_TRUE(fs::exists(out / "stary.txt"));
}

TEST(MenuUtilities, CalculatorAndNotepad) {
    {
        Place p;
        p.place.calc();
        EXPECT_EQ(core::Left(p.ui.last(), 12), "[Kalkulator]");
        p.place.mnuNotatnik();
        EXPECT_EQ(core::Left(p.ui.last(), 10), "[Notatnik]");
        EXPECT_TRUE(p.started.empty());
    }
    {
        Place p;
        p.found = {"/usr/bin/xcalc", "/usr/bin/xdg-open", "/usr/bin/mousepad"};
        p.place.calc();
        p.place.mnuNotatnik();
        EXPECT_TRUE(p.ui.boxes.empty()) << p.ui.last();
        fs::path notes = p.d.dir / "notatki.txt";
        ASSERT_EQ(p.started.size(), 2u);
        EXPECT_EQ(p.started[0], std::vector<std::string>{"/usr/bin/xcalc"});
        // An editor before the desktop's opener, on the notes file of the data folder.
        EXPECT_EQ(p.started[1][0], "/usr/bin/mousepad");
        EXPECT_EQ(fs::path(p.started[1][1]).lexically_normal(), notes);
        EXPECT_TRUE(fs::exists(notes));
    }
    {
        Place p;
        p.found = {"/usr/bin/xdg-open"};
        p.place.mnuNotatnik();
        ASSERT_EQ(p.started.size(), 1u);
        EXPECT_EQ(p.started[0][0], "/usr/bin/xdg-open");
    }
}

// The boxes are the program's own: asserted by title, by the outcome
// (done: information; refused: exclamation; cancelled: no box) and by the clock setting asked for.
TEST(MenuUtilities, SystemDateAndTime) {
    struct {
        const char* what;
        bool date;
        std::optional<std::string> typed;
        int error;
        std::string clock;  // the setting asked for, "" for none; "*" stands for today's date or the time now
        char outcome;  // 'i' done, '!' refused, '-' no box after the prompt
    } cases[] = {
        {"data", true, std::string("29-02-2024"), 0, "29-02-2024 *", 'i'},
        {"zła data", true, std::string("30-02-2023"), 0, "", '!'},
        {"krótka data", true, std::string("1-3-2024"), 0, "", '!'},
        {"bez uprawnień", true, std::string("01-03-2024"), EPERM, "01-03-2024 *", '!'},
        {"anulowano", true, std::nullopt, 0, "", '-'},
        {"czas", false, std::string("7:05"), 0, "* 07:05:00", 'i'},
        {"czas z sekundami", false, std::string("23:59:59"), 0, "* 23:59:59", 'i'},
        {"zły czas", false, std::string("24:00"), 0, "", '!'},
        {"czas bez uprawnień", false, std::string("12:00"), EPERM, "* 12:00:00", '!'},
    };
    for (const auto& c : cases) {
        Place p;
        p.clockError = c.error;
        p.ui.type(c.typed);
        if (c.date)
            p.place.Data();
        else
            p.place.Czas();
        const std::string title = c.date ? "Zmiana daty systemowej" : "Zmiana czasu systemowego";
        ASSERT_EQ(p.ui.boxes.size(), c.outcome == '-' ? 1u : 2u) << c.what;
        for (const auto& b : p.ui.boxes) EXPECT_EQ(b.title, title) << c.what;
        if (c.outcome != '-') {
            EXPECT_EQ(p.ui.boxes.back().icon, c.outcome == 'i' ? core::Icon::Information : core::Icon::Exclamation) << c.what;
        }
        if (c.clock.empty()) {
            EXPECT_TRUE(p.clock.empty()) << c.what;
        } else {
            ASSERT_EQ(p.clock.size(), 1u) << c.what;
            if (c.date)
                EXPECT_EQ(core::Left(p.clock[0], 11), core::Left(c.clock, 11)) << c.what;
            else
                EXPECT_EQ(core::Right(p.clock[0], 9), core::Right(c.clock, 9)) << c.what;
        }
    }
}

TEST(MenuUtilities, HelpWindow) {
    Place p;
    p.place.pomoc();
    ASSERT_EQ(p.ui.formsShown, std::vector<std::string>{"frmPomoc"});
    std::string text = app::tekstPomocy(p.d.s);
    EXPECT_NE(text.find("Listy płac > Wybór grupy"), std::string::npos);
    EXPECT_NE(text.find("Folder danych: " + p.d.dir.path().string()), std::string::npos);
    EXPECT_NE(text.find("Folder Płatnika: " + p.d.dir.path().string() + "/DEMO"), std::string::npos);
}

TEST(MainMenuRouting, PayersAndListsOpenTheirScreens) {
    Demo d;
    ScriptedDialogs ui;
    core::Screens screens;
    reference::registerScreens(screens);
    ui.screens = &screens;
    app::PlaceScreen place(ui, d.s);
    place.Load();
    struct {
        const char* entry;
        const char* form;
    } cases[] = {{"wybór", "frmwybor"}, {"Platnik", "frmMojaFirma"}, {"instalacjalist", "frmInstalacja"}};
    for (const auto& c : cases) {
        core::Control* m = place.find(c.entry);
        ASSERT_NE(m, nullptr);
        EXPECT_TRUE(m->Enabled) << c.entry;
        ui.formsShown.clear();
        place.fire(*m, &core::Control::Click);
        EXPECT_EQ(ui.formsShown, std::vector<std::string>{c.form}) << c.entry;
    }
    // The utilities work without any screen; the unspecified entries stay disabled.
    for (const char* name : {"mnuWybórList", "Drukarki", "Kopia", "calc", "mnuNotatnik", "Data", "Czas", "pomoc"})
        EXPECT_TRUE(place.find(name)->Enabled) << name;
    for (const char* name : {"mnuPZU", "mnuKZPr", "mnuZFM", "mnuZwiazki", "mnuSolidarnosc", "mnuPodatki",
                             "mnuPotraceniaInne", "ZbiorkaL", "Pit4Roczny", "start", "rp7"}) {
        EXPECT_FALSE(place.find(name)->Enabled) << name;
        EXPECT_EQ(place.find(name)->ToolTipText, "Ta funkcja nie jest częścią tej wersji programu.") << name;
    }
}

TEST(MainMenuRouting, ChoosingAnotherPayerRefreshesTheMainWindow) {
    Demo d;
    addSecondPayer(d);
    ScriptedDialogs ui;
    core::Screens screens;
    reference::registerScreens(screens);
    ui.screens = &screens;
    app::PlaceScreen place(ui, d.s);
    place.Load();
    EXPECT_EQ(place.lbPlatnik.Caption, "DEMO");
    ui.onShow = [](core::Form& f) {
        auto& m = static_cast<reference::MojaFirmaScreen&>(f);
        m.cmdNext_Click();
        m.cmdKoniecM_Click();
    };
    place.fire(*place.find("Platnik"), &core::Control::Click);
    EXPECT_EQ(place.lbPlatnik.Caption, "DRUGA");
    EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::SkrotPlatnika), "DRUGA");
}

TEST(MainMenuRouting, TheStartChoosesThePayerAsTheScreenDoes) {
    struct {
        const char* inInstalka;
        const char* chosen;
        const char* written;
    } cases[] = {
        {"DRUGA", "DRUGA", "DRUGA"},
        {"DEMO", "DEMO", "DEMO"},
        {"NIEMA", "DRUGA", "DRUGA"},  // not in the register: the last payer, and the record follows
    };
    for (const auto& c : cases) {
        Demo d;
        addSecondPayer(d);
        core::commitFile(d.dir / "instalka.dat",
                         std::string("\"demo\",\".\",\"") + c.inInstalka + "\",\"L\",,\"A\",,\"31-01-2021\"\r\n");
        ScriptedDialogs ui;
        app::PlaceScreen place(ui, d.s);
        place.Load();
        EXPECT_TRUE(ui.boxes.empty()) << ui.last();
        EXPECT_EQ(place.lbPlatnik.Caption, c.chosen);
        EXPECT_EQ(d.s.SkrotPlatnika, c.chosen);
        EXPECT_EQ(core::Instalka::read(d.dir.path()).s(core::Instalka::SkrotPlatnika), c.written);
    }
}
