// The postal lookup of the person screen: a fixed table of the program's own codes.
#pragma once
#include <string>

namespace personnel {

struct AdresPocztowy {
    std::string Miejscowosc, Poczta, Gmina, Powiat, Wojewodztwo;
    bool operator==(const AdresPocztowy&) const = default;
};

// The five texts of a code of 6 characters ("32-400"); five empty texts for a code not in the
// table.
AdresPocztowy szukajKoduPocztowego(const std::string& kod);
// The number of codes in the table.
int liczbaKodowPocztowych();

}  // namespace personnel
