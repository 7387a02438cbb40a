// The contribution review (frmRCP): the merged file of the month as a table with the
// contributions recomputed by the rates of the year, single values corrected and written back,
// and the list of bases and contributions printed.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/printer.h"
#include "core/record.h"
#include "core/session.h"

namespace zus {

inline constexpr int kKolumnyRCP = 22;
// The headings and widths (in twips) of the table's columns.
extern const char* const kNaglowkiRCP[kKolumnyRCP];
extern const int kSzerokosciRCP[kKolumnyRCP];
// The merge field shown in a column and written back from it, 0 for a recomputed column.
// The identifier column writes the PESEL, or field 15 for a foreigner.
int poleKolumny(int kolumna);

// The table: one row of 22 cells per record, then the "Razem" row with the column sums. The
// rates must be in the session.
std::vector<std::vector<std::string>> tabelaRCP(const core::Session& s, const std::vector<core::Record>& rcp);

// Why a typed value cannot go into a column's field (a quote, a character the file cannot hold,
// text in a number), or "" when it can.
std::string zlaWartosc(int kolumna, const std::string& tekst);

// The rows (without the heading and without "Razem") put back into the records: only the
// columns that show a field of the file change it.
void zmienRekordy(std::vector<core::Record>& rcp, const std::vector<std::vector<std::string>>& wiersze);
// Writes the records over zus\rcp<RRMM>.dta through the working file rcp<RRMM>.tym.
void zapiszRCP(const core::Session& s, const std::vector<core::Record>& rcp);

// The printed list "Zestawienie podstaw i składek do ZUS" of a table made by tabelaRCP.
void drukujRCA(core::Printer& p, const std::vector<std::vector<std::string>>& tabela);

}  // namespace zus
