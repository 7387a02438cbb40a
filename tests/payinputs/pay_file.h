// A small pay file in a fresh folder for the tests of the pay-input screens, with a session
// whose list points at it.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "payinputs/pay_record.h"
#include "support/tempdir.h"

namespace pay_test {

struct PayFile {
    testing_support::TempDir dir;
    std::filesystem::path file;
    core::Session s;
    std::vector<core::Record> recs;

    PayFile() {
        file = dir.path() / "DEMO" / "bazy" / "a.dta";
        std::filesystem::create_directories(file.parent_path());
        s.SciezkaBazy = file;
        s.SkrotPlatnika = "DEMO";
    }

    // A record as the pay screen writes a new one, of a Polish citizen unless `dokument` is
    // given with another citizenship.
    core::Record& add(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                      const std::string& obywatelstwo = "POLSKIE", const std::string& dokument = "") {
        using namespace payinputs;
        core::Record r(Pay::schema());
        r.set(Pay::Poczatek, "<Poczatek>");
        r.set(Pay::Nazwisko, nazwisko);
        r.set(Pay::Imie, imie);
        r.set(Pay::Pesel, pesel);
        r.set(Pay::KodUbezpieczenia, "011000");
        r.set(Pay::ZastosStaPOD, 0.17f);
        r.set(Pay::NumerKontaROR, "12 1020 0000 0000 0000 0000 0001");
        r.set(Pay::Dokument, dokument);
        r.set(Pay::Obywatelstwo, obywatelstwo);
        r.set(Pay::Grupa, "a");
        r.set(Pay::Wypadkowa, 1);
        r.set(Pay::Rentowa, 1);
        r.set(Pay::Emerytalna, 1);
        r.set(Pay::Chorobowa, 1);
        r.set(Pay::Zdrowotna, 1);
        r.set(Pay::BruttoOd01, 12000.0);
        r.set(Pay::RodzajUmowy, "Umowa o prace");
        r.set(Pay::Numer, static_cast<int>(recs.size()) + 1);
        r.set(Pay::Koniec, "<Koniec>");
        recs.push_back(std::move(r));
        return recs.back();
    }

    void write() const { core::writeAll(file, recs); }

    // Makes the person of record `i` the session's chosen person.
    void choose(std::size_t i) {
        const core::Record& r = recs.at(i);
        s.KluczOsoby = payinputs::kluczOsoby(r);
        s.NazwiskoOsoby = r.s(payinputs::Pay::Nazwisko);
        s.ImieOsoby = r.s(payinputs::Pay::Imie);
    }

    std::vector<std::string> lines() const { return testing_support::readLines(file); }
};

}  // namespace pay_test
