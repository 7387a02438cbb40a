#include "bank/ror_record.h"

#include "core/paths.h"
#include "core/text.h"

using core::FieldType;
namespace fs = std::filesystem;

namespace bank {

namespace Ror {

static const core::FieldDef kFields[] = {
    {"NrKol", FieldType::Int16},     {"Nazwisko", FieldType::String}, {"Imie", FieldType::String},
    {"NrKonta", FieldType::String},  {"Kwota", FieldType::Float},     {"DataPrzel", FieldType::String},
    {"Adres", FieldType::String},    {"Tresc", FieldType::String},    {"Rezerwa9", FieldType::Variant},
    {"Rezerwa10", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"ROR\\ROR<rrrrmmdd><zestaw>.dat", kFields, 0};

const core::Schema& schema() { return kSchema; }

std::string dataPrzelewu(const core::Session& s) {
    return core::Right(s.DataListy, 4) + core::Mid(s.DataListy, 4, 2) + core::Left(s.DataListy, 2);
}

fs::path path(const core::Session& s, const std::string& zestaw) {
    return s.payerPath({"ROR", "ROR" + dataPrzelewu(s) + zestaw + ".dat"});
}

std::vector<core::Record> readAll(const fs::path& file) { return core::readAll(file, kSchema); }

void writeAll(const fs::path& file, const std::vector<core::Record>& recs) {
    core::ensureFolder(file.parent_path().parent_path(), {file.parent_path().filename().string()});
    core::writeAll(file, recs, "ROR.tym");
}

std::string konto(const std::string& numer) { return core::LTrim(core::PadRight(numer, kSzerKonta)); }

}  // namespace Ror

}  // namespace bank
