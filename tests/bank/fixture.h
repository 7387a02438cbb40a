// The demo data on the list date 31-01-2021 with an open session, rates chosen for hand
// calculation, and hand-made ledger and supplementary records.
#pragma once
#include "core/record.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "support/demo.h"
#include "support/ledger.h"

namespace bank_tests {

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;

// Valid accounts (check digits worked out mod 97) of the banks 1020, 1060 and 8602.
inline const char* const kPKO = "60102010260000123456789012";
inline const char* const kBPH = "43106012345678901234567890";
inline const char* const kBS = "20860200010000000000001234";

inline core::Record karta(const std::string& nazwisko, double naRor, double zasilki, const std::string& konto) {
    return testing_support::rekordKarty(nazwisko, "JAN", "", {{K::NaROR, naRor}, {K::ZasilkiDoROR, zasilki}},
                                        {{K::Kod, "32-400"}, {K::Miejscowosc, "Myślenice"}, {K::Ulica, "Rynek"},
                                         {K::NrDomu, "12"}, {K::Lokal, "3"}, {K::NumerKonta, konto}});
}

// A supplementary record at the tax rate 0.17 with the given amounts (field, value).
inline core::Record dodatek(const std::string& nazwisko, std::vector<std::pair<int, double>> pola) {
    pola.insert(pola.begin(), {D::StawkaPodatku, 0.17});
    return testing_support::rekordDodatkowy(nazwisko, "ANNA", "", pola, {{D::NumerKonta, kPKO}});
}

struct Dane : testing_support::Demo {
    Dane() {
        s.NazwaListy = "Administracja                    ";
        s.stawki.rentowaPracownik = 0.015;
        s.stawki.emerytalna = 0.0488;
        s.stawki.chorobowa = 0.0245;
        s.stawki.zdrowotna = 0.09;
        s.stawki.zdrowotnaInd = 0.0775;
        s.stawki.KwotaGRE = 157770;
    }
    void ksieguj(const std::vector<core::Record>& recs) { core::writeAll(K::path(s, "a", s.RRmm()), recs); }
    void dodatki(D::Rodzaj r, const std::vector<core::Record>& recs) {
        D::writeAll(D::path(s, r, "a", s.RRmm()), r, recs);
    }
};

}  // namespace bank_tests
