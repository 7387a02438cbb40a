// A copy of the demo data with a session opened on one of its pay lists, for the tests of the
// personnel and pay screens.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/session.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/tempdir.h"

namespace personnel_test {

struct DemoList {
    testing_support::TempDir dir;
    core::Session s;

    explicit DemoList(const std::string& lista = "a") {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        reference::selectPayer(s);
        reference::loadRates(s);
        s.NazwaZbioru = lista;
        s.Grupa = lista;
        s.SciezkaOsob = personnel::Osoba::path(s);
        s.SciezkaBazy = s.payerPath({"bazy", lista + ".dta"});
    }

    const std::filesystem::path& per() const { return s.SciezkaOsob; }
    const std::filesystem::path& dta() const { return s.SciezkaBazy; }
    std::vector<core::Record> osoby() const { return personnel::Osoba::readAll(per()); }

    // The person of record `i` of the personnel file becomes the session's chosen person, as
    // the pay-list workspace sets it.
    void wybierz(std::size_t i) {
        core::Record o = osoby().at(i);
        s.NazwiskoOsoby = o.s(personnel::Osoba::Nazwisko);
        s.ImieOsoby = o.s(personnel::Osoba::Imie);
        s.KluczOsoby = personnel::kluczOsoby(o);
        s.KodUbezpieczeniaOsoby = o.s(personnel::Osoba::KodUbezpieczenia);
        s.Osoba = core::EkranOsoby{};
    }
    void nowa() {
        s.NowyZapis = "N";
        s.NazwiskoOsoby = s.ImieOsoby = "Nowe";
        s.KluczOsoby = "00000000000";
        s.KodUbezpieczeniaOsoby = "011000";
    }
};

}  // namespace personnel_test
