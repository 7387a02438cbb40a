// The yearly rates: <Katalog>\dane\Dane.dta, one record of 38 items a year, one item a line.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace reference {

namespace Dane {
enum : int {
    Stawka1 = 1, Stawka2, Stawka3, Stawka4, ProgI, ProgII, ProgIII, ProgIV, KwotaUlgi, KosztyUzyskania,
    Ubrent, Ubemer, UbChor, UbWypad, Kasach, FuPr, FGSP, DniPracy, ZR, Solid,
    SklZWZ, ZPielegnacyjny, SklKZP, SklPZU, MInBRUTTO, Trzynastka, KwotaGRE, Rezerwa28, PRKu, stZDI,
    KwPodstZDRwlasciciela, KwPodstZUSswiadczSoc, PodstawaDoKZP, sklRentPrd, StaFEP, Rok, Administrator2, Administrator1,
    Count = Administrator1
};
const core::Schema& schema();

// <Katalog>\dane\Dane.dta
std::filesystem::path path(const core::Session& s);

// Reads records until `Rok` equals `year`; without such a record the last one read stays in
// force and `found` is false. Error 53 when the file is missing, 62 when it ends inside a
// record, 13 for text in a numeric item.
core::Record readYear(const std::filesystem::path& file, const std::string& year, bool* found = nullptr);
}  // namespace Dane

// The rates of the year at double precision: the rent rate halved onto both sides when the
// employer's rate is 0, the old-age rate halved, the payer's own accident rate when above 0.
// Every reader of the rates goes through this. Error 13 names a rate that is not a number.
core::Stawki deriveRates(const core::Record& dane, float payerAccidentRate);

// Reads Dane.dta for the year of DataListy into the session (the record and its derived
// rates, with the payer's accident rate of the session's payer). Returns whether the year was
// found.
bool loadRates(core::Session& s);

// The administrator line: Administrator1 and Administrator2 joined with a blank.
std::string administrator(const core::Record& dane);

// The rates as "name=value" lines, names as the session uses them.
std::vector<std::string> ratesReport(const core::Stawki& st);

}  // namespace reference
