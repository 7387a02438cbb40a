// A data folder in the program's formats for the benchmarks: the rates, one payer and its
// lists of a given size (pay, personnel and leave files), with a mix of the cases the
// calculation branches on.
#pragma once
#include <filesystem>
#include <string>

#include "core/session.h"

namespace bench {

// Writes <folder>\dane\Dane.dta (the rates of 2020) and, for the payer "BENCH", the list
// `lista` of `osoby` people: bazy\<lista>.dta, person\<lista>.per, Urlopy\Ur<lista>2020.dta.
// Returns a session on that list with the list date 31-03-2020.
core::Session wygenerujListe(const std::filesystem::path& folder, const std::string& lista, int osoby);

}  // namespace bench
