#include "printing/sumy_record.h"

#include "core/paths.h"
#include "core/seqfile.h"

using core::FieldType;

namespace printing {

namespace Sumy {

static const core::FieldDef kFields[] = {
    {"LiczbaOsob", FieldType::Int16},
    {"Zasadnicza", FieldType::Float},
    {"Stazowy", FieldType::Float},
    {"Nadlicz", FieldType::Float},
    {"Trudnosciowy", FieldType::Float},
    {"PodstawaPodatku", FieldType::Float},
    {"KZPRata", FieldType::Float},
    {"PZU", FieldType::Float},
    {"PotraceniaInne", FieldType::Float},
    {"PodatekNetto", FieldType::Float},
    {"Podatek", FieldType::Variant},
    {"SkladkaZdrowotnaPozostala", FieldType::Float},
    {"PoPotraceniach", FieldType::Float},
    {"Netto", FieldType::Float},
    {"Funkcyjny", FieldType::Float},
    {"Wiejski", FieldType::Float},
    {"Premia", FieldType::Float},
    {"PodstawaZdrowotna", FieldType::Float},
    {"KZPSkladka", FieldType::Float},
    {"SkladkaZdrowotnaOdliczana", FieldType::Float},
    {"Solidarnosc", FieldType::Float},
    {"ZasilekPielegnacyjny", FieldType::Float},
    {"NaROR", FieldType::Variant},
    {"Nagroda", FieldType::Float},
    {"Specjalny", FieldType::Float},
    {"Szkodliwy", FieldType::Float},
    {"Mieszkaniowy", FieldType::Float},
    {"PodstawaZUS", FieldType::Float},
    {"ZwiazekZawodowy", FieldType::Float},
    {"ZFMRata", FieldType::Float},
    {"Potracenie1", FieldType::Float},
    {"ZasilekRodzinny", FieldType::Float},
    {"Wyrownania", FieldType::Float},
    {"DoWyplaty", FieldType::Float},
    {"Motywacyjny", FieldType::Float},
    {"Ekwiwalent", FieldType::Float},
    {"Brutto", FieldType::Float},
    {"SkladkaChorobowa", FieldType::Float},
    {"SkladkaRentowa", FieldType::Float},
    {"SkladkaEmerytalna", FieldType::Float},
    {"RazemSkl", FieldType::Variant},
    {"RazemPot", FieldType::Float},
    {"ZasilekZUS", FieldType::Float},
    {"Rezerwa44", FieldType::Float},
    {"DniKod331", FieldType::Float},
    {"DniInneKody", FieldType::Float},
    {"DniUrlopu", FieldType::Float},
    {"DniNieobecnosci", FieldType::Float},
    {"PodatekOdZasilkow", FieldType::Variant},
    {"ZasilkiZUS", FieldType::Float},
    {"ChorobowePracodawca", FieldType::Float},
    {"Urlopowe", FieldType::Float},
    {"ZasilekZUSDrugi", FieldType::Variant},
    {"ZasilekWychowawczy", FieldType::Variant},
    {"Potracenie2", FieldType::Variant},
    {"Potracenie3", FieldType::Float},
    {"FunduszPracy", FieldType::Variant},
    {"Emerytalna", FieldType::Variant},
    {"Wypadkowa", FieldType::Variant},
    {"FGSP", FieldType::Variant},
    {"Rentowa", FieldType::Variant},
    {"Etaty", FieldType::Float},
    {"Nocny", FieldType::Variant},
    {"Rezerwa64", FieldType::Variant},
    {"Pomostowa", FieldType::Variant},
    {"ZasilkiGotowka", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"SUMY\\S<lista><RRmm>.sum", kFields, 1};

const core::Schema& schema() { return kSchema; }

std::filesystem::path path(const core::Session& s, const std::string& list, const std::string& RRmm) {
    return s.payerPath({"SUMY", "S" + list + RRmm + ".sum"});
}

std::filesystem::path path(const core::Session& s) { return path(s, s.NazwaZbioru, s.RRmm()); }

core::Record read(const std::filesystem::path& file) {
    core::SeqReader in(file);
    return core::readRecord(in, kSchema);
}

void write(const core::Session& s, const core::Record& rec) {
    core::ensureFolder(s.payerFolder(), {"SUMY"});
    core::writeAll(path(s), {rec});
}

}  // namespace Sumy

}  // namespace printing
