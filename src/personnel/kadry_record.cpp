#include "personnel/kadry_record.h"

#include <tuple>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"

using core::FieldType;

namespace personnel {

namespace Kadry {

static const core::FieldDef kFields[] = {
    {"Klucz", FieldType::String},      {"ZatrudnionyOd", FieldType::String}, {"ZatrudnionyDo", FieldType::String},
    {"RodzajUmowy", FieldType::String}, {"Stanowisko", FieldType::String},   {"Plec", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"person\\<lista>.kdr", kFields, 0};

const core::Schema& schema() { return kSchema; }

std::filesystem::path pathOf(const core::Session& s, const std::string& lista) {
    return s.payerPath({"person", lista + ".kdr"});
}

std::vector<core::Record> readAll(const std::filesystem::path& file) {
    if (!core::fileExists(file)) return {};
    return core::readAll(file, kSchema);
}

std::optional<core::Record> znajdz(const std::filesystem::path& file, const std::string& klucz) {
    for (core::Record& r : readAll(file))
        if (r.s(Klucz) == klucz) return std::move(r);
    return std::nullopt;
}

void zapisz(const std::filesystem::path& file, const core::Record& rec) {
    std::vector<core::Record> recs = readAll(file);
    bool jest = false;
    for (core::Record& r : recs)
        if (r.s(Klucz) == rec.s(Klucz)) {
            r = rec;
            jest = true;
            break;
        }
    if (!jest) recs.push_back(rec);
    core::writeAll(file, recs, "tymkdr.dta");
}

std::string bledneDane(const core::Record& r) {
    core::Date od{}, dok{};
    if (!core::parseDate(r.s(ZatrudnionyOd), od) || core::Len(r.s(ZatrudnionyOd)) != 10)
        return "Podaj datę zatrudnienia od w formacie dd-mm-rrrr.";
    const bool okreslony = r.s(RodzajUmowy) == kNaCzasOkreslony;
    if (okreslony) {
        if (!core::parseDate(r.s(ZatrudnionyDo), dok) || core::Len(r.s(ZatrudnionyDo)) != 10)
            return "Umowa na czas określony: podaj datę zatrudnienia do w formacie dd-mm-rrrr.";
        if (std::tie(dok.y, dok.m, dok.d) < std::tie(od.y, od.m, od.d))
            return "Data zatrudnienia do nie może być wcześniejsza niż data od.";
    } else if (!core::Trim(r.s(ZatrudnionyDo)).empty()) {
        return "Umowa na czas nieokreślony nie ma daty końca - wyczyść pole \"do\".";
    }
    for (int n = 1; n <= Count; ++n) {
        const std::string t = r.s(n);
        if (t.find('"') != std::string::npos) return "Dane kadrowe nie mogą zawierać cudzysłowu (\").";
        try {
            core::toCp1250(t);
        } catch (const core::Error&) {
            return "Dane kadrowe zawierają znak, którego nie można zapisać w plikach programu (strona kodowa 1250).";
        }
    }
    return {};
}

}  // namespace Kadry

bool kobieta(const std::string& klucz, const std::optional<core::Record>& kadry) {
    if (klucz.size() == 11 && klucz.find_first_not_of("0123456789") == std::string::npos) return (klucz[9] - '0') % 2 == 0;
    return kadry && core::UCase(kadry->s(Kadry::Plec)) == "K";
}

}  // namespace personnel
