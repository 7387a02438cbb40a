// The command line tried as an unlucky or hostile user would: two writers at once, names that
// lead out of the data folder, links planted at the temporary names, lists named as temporary
// files, a year of "1e99".
#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "support/run.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using testing_support::readBytes;
using testing_support::run;
using testing_support::TempDir;

namespace {
struct Demo {
    TempDir dir;
    fs::path data = dir / "dane";  // the data folder; beside it "outside" must stay untouched
    fs::path outside = dir / "outside";
    Demo() {
        testing_support::copyTree(PENSJA_DEMO, data);
        fs::create_directories(outside / "PAY" / "Bazy");
        std::ofstream(outside / "cel.txt") << "poza folderem danych";
        fs::copy(data / "DEMO" / "Bazy" / "a.dta", outside / "PAY" / "Bazy" / "a.dta");
    }
    testing_support::RunResult cli(std::vector<std::string> args) {
        args.insert(args.begin(), {"--data", data.string()});
        return run(PENSJA_CLI, args, dir.path());
    }
    // The outside folder, every file with its bytes.
    std::string outsideState() const {
        std::string s;
        for (const auto& e : fs::recursive_directory_iterator(outside)) s += e.path().string() + "=" + readBytes(e.path()) + ";";
        return s;
    }
};

pid_t spawn(const fs::path& cwd, const std::vector<std::string>& args) {
    pid_t pid = ::fork();
    if (pid == 0) {
        if (::chdir(cwd.c_str()) != 0) _exit(127);
        int null = ::open("/dev/null", O_WRONLY);
        ::dup2(null, 1);
        ::dup2(null, 2);
        std::vector<char*> argv{const_cast<char*>(PENSJA_CLI)};
        for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        ::execv(PENSJA_CLI, argv.data());
        _exit(127);
    }
    return pid;
}

int waitFor(pid_t pid) {
    int st = 0;
    ::waitpid(pid, &st, 0);
    return WIFEXITED(st) ? WEXITSTATUS(st) : -1;
}

bool has(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }
}  // namespace

TEST(SafetyCli, TwoWritersRacingNeverLoseOrMixALedger) {
    Demo d;
    const fs::path jan = d.data / "DEMO" / "Karta" / "a2101.dta", feb = d.data / "DEMO" / "Karta" / "a2102.dta";
    ASSERT_EQ(d.cli({"--yes", "--date", "31-01-2021", "ledger", "a"}).status, 0);
    ASSERT_EQ(d.cli({"--yes", "--date", "28-02-2021", "ledger", "a"}).status, 0);
    const std::string janBytes = readBytes(jan), febBytes = readBytes(feb);
    ASSERT_NE(janBytes, febBytes);
    for (int round = 0; round < 100; ++round) {
        fs::remove(jan);
        fs::remove(feb);
        const std::string data = d.data.string();
        pid_t a = spawn(d.dir.path(), {"--data", data, "--wait", "--yes", "--date", "31-01-2021", "ledger", "a"});
        pid_t b = spawn(d.dir.path(), {"--data", data, "--wait", "--yes", "--date", "28-02-2021", "ledger", "a"});
        ASSERT_EQ(waitFor(a), 0) << "round " << round;
        ASSERT_EQ(waitFor(b), 0) << "round " << round;
        ASSERT_EQ(readBytes(jan), janBytes) << "round " << round;
        ASSERT_EQ(readBytes(feb), febBytes) << "round " << round;
    }
}

TEST(SafetyCli, ASecondWriterEndsAtOnceOrWaitsReadersGoOn) {
    Demo d;
    int other = ::open((d.data / "DEMO" / ".pensja-zapis.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    ASSERT_EQ(::pwrite(other, "pensja 777\n", 11, 0), 11);
    auto r = d.cli({"--yes", "ledger", "a"});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(has(r.err, "[Dane są zajęte] Dane płatnika DEMO zmienia teraz program pensja (proces 777)")) << r.err;
    EXPECT_FALSE(fs::exists(d.data / "DEMO" / "Karta" / "a2101.dta"));
    EXPECT_EQ(d.cli({"persons", "a"}).status, 0);
    pid_t w = spawn(d.dir.path(), {"--data", d.data.string(), "--wait", "--yes", "ledger", "a"});
    ::usleep(300000);
    EXPECT_EQ(::waitpid(w, nullptr, WNOHANG), 0);  // still waiting
    ::close(other);
    EXPECT_EQ(waitFor(w), 0);
    EXPECT_TRUE(fs::exists(d.data / "DEMO" / "Karta" / "a2101.dta"));
}

TEST(SafetyCli, NamesLeadingOutOfTheDataFolderAreRefusedBeforeAnythingOpens) {
    struct Case {
        const char* where;
        std::string name;
    } cases[] = {
        {"--payer", "../outside/PAY"}, {"--payer", ".."}, {"--payer", "/tmp"}, {"--payer", "..\\outside\\PAY"},
        {"instalka.dat", "../outside/PAY"}, {"instalka.dat", "/tmp"}, {"instal.dat", "../outside/PAY/a"},
        {"instal.dat", "..\\x"},
    };
    for (const Case& c : cases) {
        Demo d;
        const std::string before = d.outsideState();
        testing_support::RunResult r;
        const std::string where = c.where;
        if (where == "--payer") {
            r = d.cli({"--payer", c.name, "--yes", "close-month", "a"});
        } else if (where == "instalka.dat") {
            testing_support::writeLines(d.data / "instalka.dat",
                                        {"\"demo\",\".\",\"" + c.name + "\",\"L\",,\"A\",,\"31-01-2021\""});
            r = d.cli({"--yes", "calibrate", "a"});
        } else {
            testing_support::writeLines(d.data / "DEMO" / "instal.dat",
                                        {"\"Zła                              \",\"" + c.name + "\",\"x\",\"A\",\"\",\"\",\"\",\"1\",\"\""});
            r = d.cli({"print-list", c.name});
        }
        EXPECT_EQ(r.status, 1) << c.where << " " << c.name << "\n" << r.err;
        EXPECT_TRUE(has(r.err, "Błąd nr 52")) << c.where << " " << c.name << "\n" << r.err;
        EXPECT_EQ(d.outsideState(), before) << c.where << " " << c.name;
    }
}

TEST(SafetyCli, LinksAtTheTemporaryNamesAndListsNamedAsThemStayUntouched) {
    Demo d;
    const fs::path p = d.data / "DEMO", target = d.outside / "cel.txt";
    const std::vector<fs::path> links = {
        d.data / "tym.dta",        d.data / "dane" / "TYMCZ.dta", p / "tymcz.dat",          p / "tym.dta",
        p / "Bazy" / "Tymcz.dat",  p / "Bazy" / "tymcz.dta",      p / "Person" / "tym.dta", p / "Person" / "tymcz.dta",
        p / "Karta" / "tyma.dta",  p / "Sumy" / "tym.dta",        p / "Urlopy" / "TYMCZ.dta",
    };
    for (const auto& l : links) fs::create_symlink(target, l);
    // Two lists whose files bear the names of the temporary files of the calibration and the
    // month closing.
    for (const char* lista : {"baza1", "TYMCZ"}) {
        fs::copy(p / "Bazy" / "p.dta", p / "Bazy" / (std::string(lista) + ".dta"));
        fs::copy(p / "Person" / "p.per", p / "Person" / (std::string(lista) + ".per"));
    }
    const std::string baza1 = readBytes(p / "Bazy" / "baza1.dta"), tymcz = readBytes(p / "Bazy" / "TYMCZ.dta");
    for (std::vector<std::string> args : {std::vector<std::string>{"--yes", "ledger", "a"}, {"--yes", "close-month", "a"},
                                          {"--yes", "calibrate", "a"}, {"--yes", "print-list", "a", "--out", "lista.txt"}})
        EXPECT_EQ(d.cli(args).status, 0) << args[1] << args[2];
    EXPECT_EQ(readBytes(target), "poza folderem danych");
    for (const auto& l : links) EXPECT_TRUE(fs::is_symlink(l)) << l;
    EXPECT_EQ(readBytes(p / "Bazy" / "baza1.dta"), baza1);
    EXPECT_EQ(readBytes(p / "Bazy" / "TYMCZ.dta"), tymcz);
}

TEST(SafetyCli, AYearOf1e99IsAnOverflowNotACrash) {
    Demo d;
    auto r = d.cli({"--yes", "--date", "31-01-1e99", "calc", "a", "--all"});
    EXPECT_EQ(r.status, 1) << r.err;
    EXPECT_TRUE(has(r.err + r.out, "Błąd nr 6 ")) << r.err;
    EXPECT_FALSE(has(r.err, "runtime error")) << r.err;
}
