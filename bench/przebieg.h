// The month's commands of a whole list as the operator runs them from the command line, each a
// child process: its time, its peak memory and the files it wrote. The benchmark of the commands
// and the test comparing every output byte for byte run the same table.
#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace bench {

struct Polecenie {
    std::string nazwa;                // "calc --all", "ledger", ...
    std::vector<std::string> args;    // pensja-cli's arguments, run in the data folder
    std::string wyjscie;              // the file standard output goes to (in the data folder)
    bool naWyjsciu;                   // whether standard output is the command's output, else a message
    std::vector<std::string> wejscia; // the files the command reads, relative to the data folder
};

// calc --all, ledger, print-list, payslips and close-month of the list "a" of the payer DEMO,
// in the order they depend on each other (the prints read the ledger, the closing comes last).
const std::vector<Polecenie>& poleceniaMiesiaca();

struct Plik {
    std::string nazwa;  // relative to the data folder, '/' separated
    std::uintmax_t rozmiar = 0;
};

struct Pomiar {
    int status = -1;
    double sekundy = 0;          // wall time of the child
    double procesor = 0;         // its processor time, user and system
    long pamiecKB = 0;           // its peak resident memory (ru_maxrss)
    std::vector<Plik> wyniki;    // the files it created or changed (standard output when it is the output), by name
    std::uintmax_t bajtyWejscia = 0, bajtyWyjscia = 0;
};

// Runs `program` with the command's arguments in `folder`, its standard output into the
// command's file, standard error into `stderrFile`.
Pomiar uruchom(const std::string& program, const std::filesystem::path& folder, const Polecenie& p,
               const std::filesystem::path& stderrFile);

// What merely handling the command's bytes costs: each input file read once, every item split,
// an output of the command's output size written and synced. Seconds.
double bazowy(const std::filesystem::path& folder, const Polecenie& p, std::uintmax_t bajtyWyjscia);

// FNV-1a, 64 bits, of a file's bytes, as 16 hex digits.
std::string skrot(const std::filesystem::path& file);

}  // namespace bench
