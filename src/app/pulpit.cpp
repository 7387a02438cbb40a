#include "app/pulpit.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace fs = std::filesystem;

namespace app {

const std::vector<std::string> kKalkulatory = {"gnome-calculator", "kcalc", "galculator", "mate-calc",
                                               "qalculate-gtk", "xcalc"};
const std::vector<std::string> kEdytory = {"gnome-text-editor", "gedit", "kate",  "kwrite", "mousepad",
                                           "pluma",             "xed",   "featherpad", "leafpad"};

namespace {

std::string findProgram(const std::vector<std::string>& programs) {
    const char* path = std::getenv("PATH");
    std::string dirs = path ? path : "/usr/local/bin:/usr/bin:/bin";
    for (const auto& p : programs) {
        std::size_t i = 0;
        while (i <= dirs.size()) {
            std::size_t e = dirs.find(':', i);
            if (e == std::string::npos) e = dirs.size();
            std::string dir = dirs.substr(i, e - i);
            if (!dir.empty()) {
                fs::path cand = fs::path(dir) / p;
                if (::access(cand.c_str(), X_OK) == 0 && fs::is_regular_file(cand)) return cand.string();
            }
            i = e + 1;
        }
    }
    return {};
}

bool startProgram(const std::vector<std::string>& args) {
    if (args.empty()) return false;
    std::vector<char*> argv;
    for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    // Two forks: the program started belongs to no one here and leaves no zombie behind.
    pid_t child = ::fork();
    if (child < 0) return false;
    if (child == 0) {
        ::setsid();
        pid_t grand = ::fork();
        if (grand != 0) ::_exit(grand < 0 ? 1 : 0);
        int null = ::open("/dev/null", O_RDWR);
        if (null >= 0) {
            ::dup2(null, 0);
            ::dup2(null, 1);
            ::dup2(null, 2);
        }
        ::execvp(argv[0], argv.data());
        ::_exit(127);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int setSystemClock(const core::Date& d, int hour, int minute, int second) {
    std::tm tm{};
    tm.tm_year = d.y - 1900;
    tm.tm_mon = d.m - 1;
    tm.tm_mday = d.d;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    tm.tm_sec = second;
    tm.tm_isdst = -1;
    std::time_t t = std::mktime(&tm);
    if (t == static_cast<std::time_t>(-1)) return EINVAL;
    timespec ts{t, 0};
    if (::clock_settime(CLOCK_REALTIME, &ts) != 0) return errno;
    return 0;
}

}  // namespace

Pulpit Pulpit::system() { return Pulpit{findProgram, startProgram, setSystemClock}; }

}  // namespace app
