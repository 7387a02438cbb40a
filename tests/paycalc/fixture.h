// A small data folder for the calculation tests: the rates of the years, one payer, one list
// whose pay, personnel and leave records the test builds in code.
#pragma once
#include <deque>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"
#include "paycalc/urlop_record.h"
#include "paycalc/wyliczenie.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fx {

// The record of Dane.dta for a year as an administrator types it (the official values of 1
// January; 2008 carries the values of 2009: the tests of 2008 look at the days of February only).
core::Record stawkiRoku(int rok);

// A pay record as a new record has it: every float 0, the switches 1, costs 111.25, relief
// 46.33, tax rate 0.18, hired 01/02/2007.
core::Record placa(const std::string& pesel, float zasadnicza, const std::string& nazwisko = "KOWALSKI",
                   const std::string& imie = "JAN");
// A personnel record: full post "  1  1", group "a", insurance code "011000".
core::Record osoba(const std::string& pesel, const std::string& urodzony, const std::string& nazwisko = "KOWALSKI",
                   const std::string& imie = "JAN");

struct Lista {
    testing_support::TempDir dir;
    core::Session s;
    testing_support::ScriptedDialogs ui;
    std::deque<core::Record> place, osoby;
    std::vector<paycalc::Urlop::Blok> urlopy;

    // Payer "FIRMA", list "L1", the list date dd-mm-rrrr; Dane.dta of 2008, 2009, 2019, 2020.
    explicit Lista(const std::string& dataListy);
    // Changes one item of the rates of a year in Dane.dta.
    void zmienStawke(int rok, int pole, const std::string& wartosc);
    // The installation record and the payer register, for the command line.
    void dlaWierszaPolecen();
    // A pay record and the personnel record of the same person, hired on 1 February of the
    // year before the list (no seniority allowance).
    core::Record& dodaj(const std::string& pesel, float zasadnicza, const std::string& urodzony = "15-05-1970",
                        const std::string& imie = "JAN");
    core::Record& osobaNr(std::size_t i) { return osoby.at(i); }
    // Writes the files of the list.
    void zapisz();
    // Writes the files, reads the rates and runs the calculation for the person (the screens'
    // entry point, which reads everything itself).
    paycalc::Wynik licz(const std::string& klucz);
};

// Checks every field of the two tables of the result block: the fields named in `expected`
// have the given value, every other one is 0.
void sprawdzWynik(const core::WynikMiesiaca& w, const std::vector<std::pair<std::string, double>>& expected);

// A sum as the calculation forms it from 32-bit amounts: each amount narrowed to a float, the
// sum taken at double precision and narrowed once (an amount not rounded afterwards).
double sumaF(std::initializer_list<double> amounts);

// A field of the result block by its name in the report.
std::string pole(const core::WynikMiesiaca& w, const std::string& name);

}  // namespace fx
