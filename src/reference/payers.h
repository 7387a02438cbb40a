// The payer register: <Katalog>\MojaFirma.txt, records of 31 items, one item a line; items 3
// and 28 are read as whole lines without their first and last characters (they may hold
// commas).
#pragma once
#include <filesystem>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace reference {

namespace Firma {
enum : int {
    RezerwaF1 = 1, SkrotPlatnika, NazwaM, NazwiskoM, KODM, UrzadSkarbowyM, UlicaM, NumerDomuM, NrKontaMoj1, NrKontaMoj2,
    NrKontaMoj3, RezerwaF12, RezerwaF13, NIP, RegonM, PowM, WOJM, lokM, GMINM, TelM,
    MiejscM, RodzajPlatnika, PocztM, PeselM, DataurodzeniaP, ImieM, DowodM, NazwaSkrocona, TerminPlatnosciZUSM,
    WypadkowaStawkaF, DodatkiStazowe, Count = DodatkiStazowe
};
const core::Schema& schema();
std::filesystem::path path(const core::Session& s);
std::vector<core::Record> readAll(const std::filesystem::path& file);
void writeAll(const std::filesystem::path& file, const std::vector<core::Record>& recs);
}  // namespace Firma

// The payer of the session: the record of MojaFirma.txt whose short name is the session's
// SkrotPlatnika, else the last record of the file. Returns false when the file holds none.
bool selectPayer(core::Session& s);

}  // namespace reference
