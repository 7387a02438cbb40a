// A data folder in the program's formats for the benchmarks and for the tests that compare whole
// outputs: lists of a given size (pay, personnel and leave files) with a mix of the cases the
// calculation branches on. Everything is made deterministically: the same size gives the same
// bytes.
#pragma once
#include <filesystem>
#include <string>

#include "core/session.h"

namespace bench {

// The pay, personnel and leave files (leave of the year `rokUrlopow`) of the session's list with
// `osoby` people, replacing what the list had.
void zapiszListe(const core::Session& s, int osoby, int rokUrlopow);

// Writes <folder>\dane\Dane.dta (the rates of 2020) and, for the payer "BENCH", the list
// `lista` of `osoby` people: bazy\<lista>.dta, person\<lista>.per, Urlopy\Ur<lista>2020.dta.
// Returns a session on that list with the list date 31-03-2020.
core::Session wygenerujListe(const std::filesystem::path& folder, const std::string& lista, int osoby);

// A copy of the demo data folder `demo` in `folder` whose list "a" of the payer DEMO (list date
// 31-01-2021) holds `osoby` generated people instead of the demo's: the folder the command line
// runs on as on the demo.
void listaWDemo(const std::filesystem::path& demo, const std::filesystem::path& folder, int osoby);

}  // namespace bench
