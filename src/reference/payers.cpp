#include "reference/payers.h"

#include "core/paths.h"

namespace fs = std::filesystem;
using core::FieldType;

namespace reference {

namespace Firma {

static const core::FieldDef kFields[] = {
    {"RezerwaF1", FieldType::Variant},       {"SkrotPlatnika", FieldType::String},
    {"NazwaM", FieldType::Line},             {"NazwiskoM", FieldType::String},
    {"KODM", FieldType::String},             {"UrzadSkarbowyM", FieldType::String},
    {"UlicaM", FieldType::String},           {"NumerDomuM", FieldType::String},
    {"NrKontaMoj1", FieldType::String},      {"NrKontaMoj2", FieldType::String},
    {"NrKontaMoj3", FieldType::String},      {"RezerwaF12", FieldType::Variant},
    {"RezerwaF13", FieldType::Variant},      {"NIP", FieldType::String},
    {"RegonM", FieldType::String},           {"PowM", FieldType::String},
    {"WOJM", FieldType::String},             {"lokM", FieldType::String},
    {"GMINM", FieldType::String},            {"TelM", FieldType::String},
    {"MiejscM", FieldType::String},          {"RodzajPlatnika", FieldType::String},
    {"PocztM", FieldType::String},           {"PeselM", FieldType::String},
    {"DataurodzeniaP", FieldType::String},   {"ImieM", FieldType::String},
    {"DowodM", FieldType::String},           {"NazwaSkrocona", FieldType::Line},
    {"TerminPlatnosciZUSM", FieldType::String}, {"WypadkowaStawkaF", FieldType::Float},
    {"DodatkiStazowe", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"MojaFirma.txt", kFields, 1};

const core::Schema& schema() { return kSchema; }

fs::path path(const core::Session& s) { return core::resolvePath(s.katalog(), {"MojaFirma.txt"}); }

std::vector<core::Record> readAll(const fs::path& file) { return core::readAll(file, kSchema); }

void writeAll(const fs::path& file, const std::vector<core::Record>& recs) { core::writeAll(file, recs, "tym.dta"); }

}  // namespace Firma

bool selectPayer(core::Session& s) {
    auto recs = Firma::readAll(Firma::path(s));
    if (recs.empty()) return false;
    for (const auto& r : recs) {
        if (r.s(Firma::SkrotPlatnika) == s.SkrotPlatnika) {
            s.Firma = r;
            return true;
        }
    }
    s.Firma = recs.back();
    return true;
}

}  // namespace reference
