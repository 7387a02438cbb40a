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

// The register as it stands; a data folder without MojaFirma.txt has no payers yet.
std::vector<core::Record> readPayers(const core::Session& s);
// The record whose short name is `skrot`, else the last one; -1 for an empty register.
int findPayer(const std::vector<core::Record>& recs, const std::string& skrot);

// The folders of a payer's tree, in the order they are made.
extern const char* const kPayerTree[25];
// Makes <Katalog>\<skrot> and its tree (folders already there are kept) and copies
// dane\wzorc.kdu into its Zus folder when the data folder has one and the payer has not.
// Returns the payer's folder.
std::filesystem::path makePayerTree(const std::filesystem::path& katalog, const std::string& skrot);

// Why `skrot` cannot be the short name of a new payer (not a folder name, the folder of the
// rates, a file of the data folder, a payer already in the register), or "" when it can.
std::string badPayerName(const std::string& skrot, const std::filesystem::path& katalog,
                         const std::vector<core::Record>& recs);

// Makes the record the payer of the session and of the installation record: the record and
// its short name go to the session, instalka.dat gets the short name as its field 3 (through
// tym.dta, the other fields as they are), an empty set of lists becomes "A" in the session,
// the payer's instal.dat is opened (made empty when missing; Error 76 when the payer's folder
// is missing) and the rates of the year of the list date are read with the payer's own
// accident rate.
void choosePayer(core::Session& s, const core::Record& payer);

}  // namespace reference
