// A copy of the demo data on the list date 31-01-2021 with an open session, and hand-made
// ledger and supplementary records for the batches.
#pragma once
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace bank_tests {

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;

// Valid account numbers of three banks (check digits worked out mod 97).
inline const char* const kPKO = "60102010260000123456789012";   // 1020 from the third character
inline const char* const kBPH = "43106012345678901234567890";   // 1060 from the third character
inline const char* const kBS = "20860200010000000000001234";    // 8602

// The dialogs of the tests with the folder the operator would pick.
struct Dialogi : testing_support::ScriptedDialogs {
    std::optional<std::filesystem::path> folder;
    std::optional<std::filesystem::path> chooseFolder(const std::string&, const std::filesystem::path&) override {
        return folder;
    }
};

inline core::Record karta(const std::string& nazwisko, double naRor, double zasilki, const std::string& konto) {
    core::Record r(K::schema());
    r.set(K::Poczatek, "<Poczatek>");
    r.set(K::Nazwisko, nazwisko);
    r.set(K::Imie, "JAN");
    r.set(K::NaROR, naRor);
    r.set(K::ZasilkiDoROR, zasilki);
    r.set(K::NumerKonta, konto);
    r.set(K::Kod, "32-400");
    r.set(K::Miejscowosc, "Myślenice");
    r.set(K::Ulica, "Rynek");
    r.set(K::NrDomu, "12");
    r.set(K::Lokal, "3");
    r.set(K::Koniec, "<Koniec>");
    return r;
}

// A supplementary record: the seven amounts Kw1..Kw7, field 12 (to the account), the yearly
// base (field 16), the tax rate 0.17.
inline core::Record dodatek(const std::string& nazwisko, std::vector<std::pair<int, double>> pola,
                            const std::string& konto = kPKO) {
    core::Record r(D::schema());
    r.set(D::Nazwisko, nazwisko);
    r.set(D::Imie, "ANNA");
    r.set(D::Klucz, "80010112345");
    r.set(D::StawkaPodatku, 0.17);
    r.set(D::NumerKonta, konto);
    for (auto& [n, v] : pola) r.set(n, v);
    return r;
}

struct Dane {
    testing_support::TempDir dir;
    core::Session s;
    Dialogi ui;
    Dane() {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        s.DataListy = "31-01-2021";
        reference::selectPayer(s);
        reference::loadRates(s);
        s.NazwaListy = "Administracja                    ";
        // Rates chosen for the hand calculation of the supplementary net.
        s.stawki.rentowaPracownik = 0.015;
        s.stawki.emerytalna = 0.0488;
        s.stawki.chorobowa = 0.0245;
        s.stawki.zdrowotna = 0.09;
        s.stawki.zdrowotnaInd = 0.0775;
        s.stawki.KwotaGRE = 157770;
    }
    void ksieguj(const std::string& lista, const std::vector<core::Record>& recs) {
        core::writeAll(K::path(s, lista, s.RRmm()), recs);
    }
    void dodatki(D::Rodzaj r, const std::string& lista, const std::vector<core::Record>& recs) {
        D::writeAll(D::path(s, r, lista, s.RRmm()), r, recs);
    }
};

}  // namespace bank_tests
