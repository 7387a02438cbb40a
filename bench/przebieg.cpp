#include "przebieg.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace fs = std::filesystem;

namespace bench {

const std::vector<Polecenie>& poleceniaMiesiaca() {
    static const std::vector<std::string> zbiory = {"DEMO/Bazy/a.dta", "DEMO/Person/a.per", "DEMO/Urlopy/Ura2021.dta",
                                                    "dane/Dane.dta"};
    static const std::vector<Polecenie> p = {
        {"calc --all", {"calc", "a", "--all"}, "calc.txt", true, zbiory},
        {"ledger", {"--yes", "ledger", "a"}, "ledger.txt", false, zbiory},
        {"print-list", {"--yes", "print-list", "a", "--out", "lista.txt"}, "print-list.txt", false, {"DEMO/Karta/a2101.dta"}},
        {"payslips", {"--yes", "payslips", "a", "--out", "paski.txt"}, "payslips.txt", false, {"DEMO/Karta/a2101.dta"}},
        {"close-month", {"--yes", "close-month", "a"}, "close-month.txt", false, zbiory},
    };
    return p;
}

namespace {

using Stan = std::map<std::string, std::pair<std::uintmax_t, fs::file_time_type>>;

Stan stan(const fs::path& folder) {
    Stan s;
    for (const auto& e : fs::recursive_directory_iterator(folder))
        if (e.is_regular_file() && e.path().extension() != ".lock")  // the writer's lock: no output
            s[e.path().lexically_relative(folder).generic_string()] = {e.file_size(), e.last_write_time()};
    return s;
}

}  // namespace

Pomiar uruchom(const std::string& program, const fs::path& folder, const Polecenie& p, const fs::path& stderrFile) {
    const Stan przed = stan(folder);
    const fs::path out = folder / p.wyjscie;
    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = ::fork();
    if (pid < 0) throw std::runtime_error("fork");
    if (pid == 0) {
        int o = ::open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        int e = ::open(stderrFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        int n = ::open("/dev/null", O_RDONLY);
        if (o < 0 || e < 0 || n < 0 || ::chdir(folder.c_str()) != 0) _exit(127);
        ::dup2(n, 0);
        ::dup2(o, 1);
        ::dup2(e, 2);
        std::vector<char*> argv{const_cast<char*>(program.c_str())};
        for (const auto& a : p.args) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        ::execv(program.c_str(), argv.data());
        _exit(127);
    }
    int st = 0;
    rusage ru{};
    while (::wait4(pid, &st, 0, &ru) < 0)
        if (errno != EINTR) throw std::runtime_error("wait4");
    Pomiar m;
    m.sekundy = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    m.status = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    m.pamiecKB = ru.ru_maxrss;
    m.procesor = static_cast<double>(ru.ru_utime.tv_sec + ru.ru_stime.tv_sec) +
                 static_cast<double>(ru.ru_utime.tv_usec + ru.ru_stime.tv_usec) / 1e6;
    for (const auto& [nazwa, plik] : stan(folder)) {
        auto it = przed.find(nazwa);
        if ((it == przed.end() || it->second != plik) && (p.naWyjsciu || nazwa != p.wyjscie)) {
            m.wyniki.push_back({nazwa, plik.first});
            m.bajtyWyjscia += plik.first;
        }
    }
    for (const std::string& w : p.wejscia) m.bajtyWejscia += fs::file_size(folder / w);
    return m;
}

double bazowy(const fs::path& folder, const Polecenie& p, std::uintmax_t bajtyWyjscia) {
    const auto start = std::chrono::steady_clock::now();
    std::uintmax_t pozycje = 0;
    for (const std::string& w : p.wejscia) {
        const int fd = ::open((folder / w).c_str(), O_RDONLY);
        if (fd < 0) throw std::runtime_error("open " + w);
        std::string bufor(static_cast<std::size_t>(fs::file_size(folder / w)), '\0');
        std::size_t ile = 0;
        while (ile < bufor.size()) {
            const ssize_t r = ::read(fd, bufor.data() + ile, bufor.size() - ile);
            if (r <= 0) break;
            ile += static_cast<std::size_t>(r);
        }
        ::close(fd);
        // Items: separated by commas and line ends, a comma inside quotes is text.
        bool cudzyslow = false;
        for (std::size_t i = 0; i < ile; ++i) {
            const char c = bufor[i];
            if (c == '"') cudzyslow = !cudzyslow;
            else if (!cudzyslow && (c == ',' || c == '\n')) ++pozycje;
        }
    }
    const fs::path tmp = folder / ".bazowy.tmp";
    const int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0) throw std::runtime_error("open " + tmp.string());
    const std::string blok(1 << 16, static_cast<char>('0' + pozycje % 10));
    for (std::uintmax_t zapisane = 0; zapisane < bajtyWyjscia;) {
        const std::size_t n = static_cast<std::size_t>(std::min<std::uintmax_t>(blok.size(), bajtyWyjscia - zapisane));
        if (::write(fd, blok.data(), n) != static_cast<ssize_t>(n)) throw std::runtime_error("write");
        zapisane += n;
    }
    ::fsync(fd);
    ::close(fd);
    fs::remove(tmp);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string skrot(const fs::path& file) {
    std::FILE* f = std::fopen(file.c_str(), "rb");
    if (!f) throw std::runtime_error("brak pliku " + file.string());
    std::uint64_t h = 14695981039346656037ull;
    char buf[1 << 16];
    std::size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0)
        for (std::size_t i = 0; i < n; ++i) h = (h ^ static_cast<unsigned char>(buf[i])) * 1099511628211ull;
    std::fclose(f);
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(h));
    return hex;
}

}  // namespace bench
