// The demo list "a" (Administracja) of the payer DEMO, copied to a fresh folder and opened as
// the choice of a list opens it, for the tests of the list screen, the ledger and the closing.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/paths.h"
#include "core/record.h"
#include "core/session.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace paycalc_tests {

struct DemoLista {
    testing_support::TempDir dir;
    core::Session s;
    testing_support::ScriptedDialogs ui;

    DemoLista() {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        reference::selectPayer(s);
        reference::loadRates(s);
        s.NazwaListy = "Administracja                    ";
        s.NazwaZbioru = "a";
        s.Grupa = "a";
        s.SciezkaBazy = s.payerPath({"bazy", "a.dta"});
        s.SciezkaOsob = s.payerPath({"person", "a.per"});
    }
    std::filesystem::path payer() const { return dir.path() / "DEMO"; }
    std::vector<core::Record> osoby() const { return personnel::Osoba::readAll(s.SciezkaOsob); }
    std::vector<core::Record> place() const { return payinputs::Pay::readAll(s.SciezkaBazy); }
    void zapiszOsoby(const std::vector<core::Record>& r) const { core::writeAll(s.SciezkaOsob, r); }
    void zapiszPlace(const std::vector<core::Record>& r) const { core::writeAll(s.SciezkaBazy, r); }
    // The record of `klucz` in a list of records of either file.
    template <class Klucz>
    static core::Record* znajdz(std::vector<core::Record>& recs, const std::string& klucz, Klucz kluczRekordu) {
        for (core::Record& r : recs)
            if (kluczRekordu(r) == klucz) return &r;
        return nullptr;
    }
};

}  // namespace paycalc_tests
