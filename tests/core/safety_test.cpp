// What keeps the payer's data safe whatever the data hold: rewrites never through an existing
// name or a link, no path out of the data folder, numbers that never overflow an integer, one
// writer at a time.
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <fcntl.h>
#include <fstream>
#include <regex>
#include <sstream>

#include "core/error.h"
#include "core/form.h"
#include "core/paths.h"
#include "core/seqfile.h"
#include "core/session.h"
#include "core/text.h"
#include "core/writelock.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using namespace core;
using testing_support::readBytes;
using testing_support::TempDir;

namespace {
int errorOf(const std::function<void()>& f) {
    try {
        f();
    } catch (const Error& e) {
        return e.Number;
    }
    return 0;
}
}  // namespace

TEST(Rewrite, NeverThroughALinkOrAnExistingNameAndLeftoversOfKilledRunsGo) {
    TempDir dir;
    fs::path outside = dir / "outside.txt", folder = dir / "bazy";
    fs::create_directory(folder);
    std::ofstream(outside) << "obcy plik";
    fs::path target = folder / "a.dta";
    // Links at the system's temporary names and at the target's own leftover name of a live
    // process (this one); a real leftover of a process that no longer exists.
    const std::string names[] = {"TYMCZ.dta", "baza1.dta", "tym.dta", ".~a.dta." + std::to_string(getpid()) + ".x"};
    for (const auto& n : names) fs::create_symlink(outside, folder / n);
    std::ofstream(folder / ".~a.dta.999999999.dead") << "pół zapisu";
    commitFile(target, "\"nowy\"\r\n", "TYMCZ.dta");
    commitFile(target, "\"drugi\"\r\n", "TYMCZ.dta");
    EXPECT_EQ(readBytes(target), "\"drugi\"\r\n");
    EXPECT_EQ(readBytes(outside), "obcy plik");
    for (const auto& n : names) EXPECT_TRUE(fs::is_symlink(folder / n)) << n;
    EXPECT_FALSE(fs::exists(folder / ".~a.dta.999999999.dead"));
    int files = 0;
    for (const auto& e : fs::directory_iterator(folder)) files += fs::is_regular_file(fs::symlink_status(e.path()));
    EXPECT_EQ(files, 1);  // the target alone: no temporary file stays behind
}

TEST(Paths, NamesFromDataStayInsideTheDataFolder) {
    TempDir dir;
    struct Case {
        const char* name;
        bool refused;
    } cases[] = {
        {"..", true},         {"../outside/PAY", true}, {"/etc", true}, {"a/b", true}, {"a\\b", true},
        {"C:", true},         {"C:\\PLACE", true},      {"A\tB", true}, {"DEMO", false}, {"a.dta", false},
        {"..a", false},       {"Łódź", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(errorOf([&] { resolvePath(dir.path(), {"bazy", c.name}); }), c.refused ? err::BadFileName : 0)
            << c.name;
        Session s;
        s.Katalog = dir.path().string();
        s.SkrotPlatnika = c.name;
        EXPECT_EQ(errorOf([&] { s.payerPath({"bazy"}); }), c.refused ? err::BadFileName : 0) << c.name;
    }
    EXPECT_EQ(errorOf([&] { ensureFolder(dir.path(), {"..", "x"}); }), err::BadFileName);
    EXPECT_FALSE(fs::exists(dir.path().parent_path() / "x"));
}

TEST(Numbers, TextNeverOverflowsAnInteger) {
    struct Case {
        const char* text;
        int value;  // when no error
        int error;
    } cases[] = {
        {"2021", 2021, 0},        {"12", 12, 0},          {"1e9", 1000000000, 0}, {"-7.9", -7, 0},
        {"abc", 0, 0},            {"1e99", 0, 6},         {"9e99", 0, 6},         {"-3e9", 0, 6},
        {"1e999", 0, 6},          {"2147483647", 2147483647, 0},                  {"2147483648", 0, 6},
    };
    for (const Case& c : cases) {
        int got = 0;
        EXPECT_EQ(errorOf([&] { got = ValInt(c.text, "rok"); }), c.error) << c.text;
        if (!c.error) {
            EXPECT_EQ(got, c.value) << c.text;
        }
    }
    EXPECT_EQ(errorOf([] { Val("1e999"); }), err::Overflow);
    EXPECT_DOUBLE_EQ(Val("1e99"), 1e99);  // a double holds it: only the integer cannot
}

// Integer casts of Val go through ValInt/toInt: a direct cast is undefined for "1e99".
TEST(Numbers, NoSourceCastsValToAnInteger) {
    const std::regex cast(R"((static_cast<\s*(int|long|short|unsigned|std::u?int\d+_t)[^>]*>|\((int|long|short)\)|std::l?lround)\s*\(\s*(core::)?Val\()");
    fs::path src = fs::path(PENSJA_DEMO).parent_path() / "src";
    for (const auto& e : fs::recursive_directory_iterator(src)) {
        if (e.path().extension() != ".cpp" && e.path().extension() != ".h") continue;
        std::ifstream in(e.path());
        std::stringstream ss;
        ss << in.rdbuf();
        EXPECT_FALSE(std::regex_search(ss.str(), cast)) << e.path();
    }
}

namespace {
struct Screen : Form {
    Control cmdZapisz{this, "cmdZapisz", Kind::CommandButton};
    Control txtPole{this, "txtPole", Kind::TextBox};
    int runs = 0, changes = 0;
    explicit Screen(Dialogs& d) : Form(d, "frmTest", "Test") {
        cmdZapisz.Click = [this] { ++runs; };
        txtPole.Change = [this] { ++changes; };
    }
};
}  // namespace

TEST(WriterLock, AScreenCommandWaitsForTheOtherWriterAndNamesIt) {
    TempDir dir;
    fs::create_directory(dir / "DEMO");
    Session s;
    s.Katalog = dir.path().string();
    s.SkrotPlatnika = "DEMO";
    testing_support::ScriptedDialogs ui;
    ui.writerSession = &s;
    Screen f(ui);
    // Another program holds the payer's folder (a lock on a descriptor of its own).
    int other = ::open((dir / "DEMO" / WriterLock::kFile).c_str(), O_RDWR | O_CREAT, 0644);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    ASSERT_EQ(::pwrite(other, "pensja-cli 4242\n", 16, 0), 16);
    ui.answer(Answer::Retry).answer(Answer::Cancel);
    f.fire(f.cmdZapisz, &Control::Click);
    f.fire(f.txtPole, &Control::Change);  // typing needs no lock
    EXPECT_EQ(f.runs, 0);
    EXPECT_EQ(f.changes, 1);
    ASSERT_EQ(ui.boxes.size(), 2u);
    EXPECT_EQ(ui.boxes[0].title, "Dane są zajęte");
    EXPECT_EQ(ui.boxes[0].text, "Dane płatnika DEMO zmienia teraz program pensja-cli (proces 4242). "
                                "Poczekaj, aż skończy, i spróbuj ponownie.");
    EXPECT_EQ(ui.boxes[0].buttons, Buttons::RetryCancel);
    ::close(other);
    f.fire(f.cmdZapisz, &Control::Click);
    EXPECT_EQ(f.runs, 1);
    // Held by this process: a nested command takes nothing twice, another descriptor cannot.
    {
        WriterLock outer(s);
        WriterLock inner(s);
        int probe = ::open((dir / WriterLock::kFile).c_str(), O_RDWR);
        EXPECT_NE(::flock(probe, LOCK_EX | LOCK_NB), 0);
        {
            WriterLock::Pause pause;
            EXPECT_EQ(::flock(probe, LOCK_EX | LOCK_NB), 0);
            ::flock(probe, LOCK_UN);
        }
        EXPECT_NE(::flock(probe, LOCK_EX | LOCK_NB), 0);
        ::close(probe);
    }
}
