// The count of notes and coins of a list paid in cash: how many notes and coins of each
// denomination the month's amounts to pay out take, each person counted by himself, digit by
// digit, without carrying from one digit to the next. There is no note above 200 zł.
#pragma once
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"

namespace printing {

// specyfikacja.dat in the payer's folder: one quoted amount a line, "#####0.00" in nine
// characters. It lives only while the command runs.
namespace Specyfikacja {
enum : int { Kwota = 1, Count = Kwota };
const core::Schema& schema();
std::filesystem::path path(const core::Session& s);
std::vector<std::string> read(const std::filesystem::path& file);
void write(const std::filesystem::path& file, const std::vector<std::string>& kwoty);
}  // namespace Specyfikacja

extern const char* const kNieMaKwot;  // "Nie ma kwot do wypłaty !"

struct Banknoty {
    // Denominations from 200 zł down to 1 gr, in grosze.
    static constexpr std::array<int, 14> kNominal = {20000, 10000, 5000, 2000, 1000, 500, 200,
                                                     100,   50,    20,   10,   5,    2,   1};
    std::array<long, 14> ilosc{};
    // Counts one amount of the file (nine characters, the point in position 7).
    void dodaj(const std::string& kwota9);
    // The count of the denomination of `grosze`.
    long ile(int grosze) const;
    // The value of all pieces of the denomination, in złoty.
    double kwota(int grosze) const;
    double razem() const;
};

// The counting of the file and its print (after the question "Obecnie może być wydrukowana ...").
void modSpecyfikacja(core::Session& s, core::Dialogs& ui, const std::filesystem::path& plik);
// "&Specyfikacja banknotów": the amounts to pay out of the month's ledger, counted and printed.
void CmdSpecyfikacja(core::Session& s, core::Dialogs& ui);

}  // namespace printing
