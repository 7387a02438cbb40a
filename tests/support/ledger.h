// Hand-made ledger and supplementary records for the fixtures of the programs that read the
// month's ledger (tax, zus, printing, yearledger, bank): the markers and the person, then the
// amounts and texts a test chooses. Header-only, for the test programs that link paycalc.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "core/record.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"

namespace testing_support {

using Kwoty = std::vector<std::pair<int, double>>;
using Teksty = std::vector<std::pair<int, std::string>>;

// A ledger record: "<Poczatek>", the names, the key (when given), on the list (1), "<Koniec>",
// then the amounts and texts, which may overwrite any of these.
inline core::Record rekordKarty(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                                const Kwoty& kwoty = {}, const Teksty& teksty = {}) {
    namespace K = paycalc::Karta;
    core::Record r(K::schema());
    r.set(K::Poczatek, "<Poczatek>");
    r.set(K::Nazwisko, nazwisko);
    r.set(K::Imie, imie);
    if (!klucz.empty()) r.set(K::Klucz, klucz);
    r.set(K::NaLiscie, 1);
    r.set(K::Koniec, "<Koniec>");
    for (const auto& [n, v] : kwoty) r.set(n, v);
    for (const auto& [n, t] : teksty) r.set(n, t);
    return r;
}

// A supplementary record: the names, the key, insurance code "011000", then the amounts and texts.
inline core::Record rekordDodatkowy(const std::string& nazwisko, const std::string& imie, const std::string& klucz,
                                    const Kwoty& kwoty = {}, const Teksty& teksty = {}) {
    namespace D = paycalc::Dodatkowy;
    core::Record r(D::schema());
    r.set(D::Nazwisko, nazwisko);
    r.set(D::Imie, imie);
    if (!klucz.empty()) r.set(D::Klucz, klucz);
    r.set(D::KodUbezpieczenia, "011000");
    for (const auto& [n, v] : kwoty) r.set(n, v);
    for (const auto& [n, t] : teksty) r.set(n, t);
    return r;
}

}  // namespace testing_support
