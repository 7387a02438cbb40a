// A copy of the demo data folder (payer DEMO) with a session opened on it as the program opens
// it: the installation record, the payer, the rates of the list date's year. The one demo
// fixture of the engine and screen tests; header-only, for the test programs that link the
// reference library.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/paths.h"
#include "core/session.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace testing_support {

struct Demo {
    TempDir dir;
    core::Session s;
    ScriptedDialogs ui;

    // The list date of the installation record, or `dataListy` when given.
    explicit Demo(const std::string& dataListy = {}) {
        copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        if (!dataListy.empty()) s.DataListy = dataListy;
        reference::selectPayer(s);
        reference::loadRates(s);
    }
    std::filesystem::path payer() const { return dir.path() / "DEMO"; }

    // Opens the pay list of the stem `lista` ("a" or "p") as the choice of a list does.
    Demo& lista(const std::string& lista) {
        auto lines = reference::Instal::read(s);
        const auto& l = lines.at(static_cast<std::size_t>(reference::Instal::findByStem(lines, lista)));
        s.NazwaListy = l.s(reference::Instal::NazwaListy);
        s.NumerListy = l.s(reference::Instal::NumerListy);
        s.NazwaZbioru = s.Grupa = lista;
        s.SciezkaOsob = personnel::Osoba::path(s);
        s.SciezkaBazy = s.payerPath({"bazy", lista + ".dta"});
        return *this;
    }
    const std::filesystem::path& per() const { return s.SciezkaOsob; }
    const std::filesystem::path& dta() const { return s.SciezkaBazy; }
    std::vector<core::Record> osoby() const { return personnel::Osoba::readAll(per()); }
    std::vector<core::Record> place() const { return payinputs::Pay::readAll(dta()); }
    // The record of `klucz` among records of either file.
    template <class Klucz>
    static core::Record* znajdz(std::vector<core::Record>& recs, const std::string& klucz, Klucz kluczRekordu) {
        for (core::Record& r : recs)
            if (kluczRekordu(r) == klucz) return &r;
        return nullptr;
    }

    // Person `i` of the list's personnel file becomes the chosen person, as the list screen
    // leaves it.
    Demo& wybierz(std::size_t i) {
        core::Record o = osoby().at(i);
        s.NazwiskoOsoby = o.s(personnel::Osoba::Nazwisko);
        s.ImieOsoby = o.s(personnel::Osoba::Imie);
        s.KluczOsoby = personnel::kluczOsoby(o);
        s.KodUbezpieczeniaOsoby = o.s(personnel::Osoba::KodUbezpieczenia);
        s.Osoba = core::EkranOsoby{};
        return *this;
    }
    // The new-person mode of the list screen.
    void nowa() {
        s.NowyZapis = "N";
        s.NazwiskoOsoby = s.ImieOsoby = "Nowe";
        s.KluczOsoby = "00000000000";
        s.KodUbezpieczeniaOsoby = "011000";
    }
};

// The demo session on the pay list `lista` ("a" Administracja or "p" Produkcja).
struct DemoLista : Demo {
    explicit DemoLista(const std::string& l = "a") { lista(l); }
};

}  // namespace testing_support
