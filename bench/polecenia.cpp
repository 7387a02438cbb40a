// The month's commands of a whole list (calc --all, ledger, print-list, payslips, close-month) on
// generated lists of 2,500 and 25,000 people, each command a child process of pensja-cli, beside
// a lean baseline of the same bytes: every input read once, its items split, an output of the
// command's output size written and synced. Prints each command's time and its ratio to the
// baseline, its processor time (which a busy machine inflates less than the time), its peak
// memory and the ratio of that to the bytes of its input and output files.
// Sizes may be given as arguments: pensja-bench-cli 2500 25000; with --dane FOLDER the lists are
// made in FOLDER and left there (for a profiler), lista<size> each.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "generator.h"
#include "przebieg.h"

namespace fs = std::filesystem;

namespace {

std::string czytaj(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

double mb(double bajty) { return bajty / (1024.0 * 1024.0); }

struct Wiersz {
    double czas = 1e99, baza = 1e99, procesor = 1e99;
    long pamiecKB = 0;
    std::uintmax_t wejscie = 0, wyjscie = 0;
};

}  // namespace

int main(int argc, char** argv) {
    std::vector<int> rozmiary;
    fs::path tmp = fs::temp_directory_path() / ("pensja-bench-cli-" + std::to_string(::getpid()));
    bool zostaw = false;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--dane" && i + 1 < argc) {
            tmp = fs::absolute(argv[++i]);
            zostaw = true;
        } else {
            const int n = std::atoi(argv[i]);
            if (n <= 0) {
                std::cerr << "Użycie: pensja-bench-cli [LICZBA_OSÓB ...] [--dane FOLDER]\n"
                             "  bez liczby: listy 2500 i 25000 osób; --dane zostawia dane w FOLDERZE\n";
                return 2;
            }
            rozmiary.push_back(n);
        }
    }
    if (rozmiary.empty()) rozmiary = {2500, 25000};
    const auto& polecenia = bench::poleceniaMiesiaca();
    const fs::path bledy = tmp / "stderr.txt";
    bool dobrze = true;

    std::printf("Polecenia miesiąca listy: pensja-cli, każde polecenie w osobnym procesie, najlepszy czas z kilku przebiegów\n");
    std::printf("%7s  %-12s %9s %10s %8s %8s  %11s %13s %8s\n", "osoby", "polecenie", "czas [s]", "bazowy [s]", "×bazowy",
                "CPU [s]", "pamięć [MB]", "wej.+wyj. [MB]", "×pliki");
    for (int osoby : rozmiary) {
        const fs::path folder = tmp / ("lista" + std::to_string(osoby));
        // The list is made by a child process of its own: the memory it takes goes with it, and
        // the commands, forked from this small process, start small (the peak memory of a
        // child counts what it had before its exec).
        std::fflush(stdout);
        const pid_t generator = ::fork();
        if (generator == 0) {
            bench::listaWDemo(PENSJA_DEMO, folder, osoby);
            std::fflush(nullptr);
            _exit(0);
        }
        int st = 0;
        if (generator < 0 || ::waitpid(generator, &st, 0) < 0 || !WIFEXITED(st) || WEXITSTATUS(st) != 0) {
            std::fprintf(stderr, "nie wygenerowano listy %d osób\n", osoby);
            return 1;
        }
        const fs::path baza = folder / "DEMO/Bazy/a.dta";
        const fs::path przed = tmp / "baza-przed.dta";
        fs::copy_file(baza, przed, fs::copy_options::overwrite_existing);
        const int przebiegi = osoby <= 2500 ? 3 : 2;
        std::vector<Wiersz> w(polecenia.size());
        for (int p = 0; p < przebiegi && dobrze; ++p) {
            fs::copy_file(przed, baza, fs::copy_options::overwrite_existing);  // each run closes the month not yet closed
            for (std::size_t i = 0; i < polecenia.size(); ++i) {
                const bench::Pomiar m = bench::uruchom(PENSJA_CLI, folder, polecenia[i], bledy);
                if (m.status != 0) {
                    std::fprintf(stderr, "%s: kod %d\n%s\n", polecenia[i].nazwa.c_str(), m.status, czytaj(bledy).c_str());
                    dobrze = false;
                    break;
                }
                w[i].czas = std::min(w[i].czas, m.sekundy);
                w[i].procesor = std::min(w[i].procesor, m.procesor);
                w[i].pamiecKB = std::max(w[i].pamiecKB, m.pamiecKB);
                w[i].wejscie = m.bajtyWejscia;
                w[i].wyjscie = m.bajtyWyjscia;
                w[i].baza = std::min(w[i].baza, bench::bazowy(folder, polecenia[i], m.bajtyWyjscia));
            }
        }
        if (!dobrze) break;
        for (std::size_t i = 0; i < polecenia.size(); ++i) {
            const double pliki = static_cast<double>(w[i].wejscie + w[i].wyjscie);
            std::printf("%7d  %-12s %9.3f %10.3f %8.1f %8.3f  %11.1f %13.1f %8.1f\n", osoby, polecenia[i].nazwa.c_str(),
                        w[i].czas, w[i].baza, w[i].czas / w[i].baza, w[i].procesor, w[i].pamiecKB / 1024.0, mb(pliki),
                        w[i].pamiecKB * 1024.0 / pliki);
        }
        std::fflush(stdout);
        std::error_code ec;
        if (!zostaw) fs::remove_all(folder, ec);
    }
    std::error_code ec;
    if (!zostaw) fs::remove_all(tmp, ec);
    return dobrze ? 0 : 1;
}
