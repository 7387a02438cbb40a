#include "leave/czas_record.h"

#include "core/numbers.h"

namespace fs = std::filesystem;
using core::FieldType;

namespace leave::CzasPracy {

namespace {
constexpr const char* kNazwa = "godziny\\CP<lista><rrrr>.dta";
}

namespace Naglowek {
static const core::FieldDef kFields[] = {
    {"Nazwisko", FieldType::String},  {"Imie", FieldType::String},     {"Identyfikator", FieldType::String},
    {"Etat", FieldType::String},      {"Rezerwa5", FieldType::Variant}, {"Rezerwa6", FieldType::Variant},
    {"Rezerwa7", FieldType::Variant}, {"Rezerwa8", FieldType::Variant}, {"Rezerwa9", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{kNazwa, kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Naglowek

namespace Miesiac {
static const core::FieldDef kFields[] = {
    {"Numer", FieldType::Int16},      {"Rezerwa2", FieldType::Variant}, {"Rezerwa3", FieldType::Variant},
    {"Rezerwa4", FieldType::Variant}, {"Rezerwa5", FieldType::Variant}, {"Rezerwa6", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{kNazwa, kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Miesiac

namespace Dzien {
static const core::FieldDef kFields[] = {
    {"Dm", FieldType::Variant},        {"Gp", FieldType::Variant},        {"G50", FieldType::Variant},
    {"G100", FieldType::Variant},      {"Lpg", FieldType::Variant},       {"Limit", FieldType::Variant},
    {"GUr", FieldType::Variant},       {"GN", FieldType::Variant},        {"GCh", FieldType::Variant},
    {"Rezerwa10", FieldType::Variant}, {"Rezerwa11", FieldType::Variant}, {"Rezerwa12", FieldType::Variant},
    {"Rezerwa13", FieldType::Variant}, {"Swieto", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{kNazwa, kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Dzien

fs::path path(const core::Session& s, const std::string& rok) {
    return s.payerPath({"godziny", "CP" + s.NazwaZbioru + rok + ".dta"});
}

std::string nazwaTymczasowa(const core::Session& s, const std::string& rok, bool zSpacja) {
    return zSpacja ? "CP" + s.NazwaZbioru + rok + ".tym " : "CPT" + s.NazwaZbioru + rok + ".dta";
}

const core::UkladBloku& uklad() {
    static const core::UkladBloku kUklad{Naglowek::schema(), Miesiac::schema(), Dzien::schema()};
    return kUklad;
}

std::vector<Blok> readAll(core::SeqReader& in) { return core::czytajBloki(in, uklad()); }

std::vector<Blok> readAll(const fs::path& file) { return core::czytajBloki(file, uklad()); }

void writeAll(const fs::path& file, const std::vector<Blok>& blocks, const std::string& tempName) {
    core::piszBloki(file, blocks, tempName);
}

Blok nowyBlok(const std::string& nazwisko, const std::string& imie, const std::string& identyfikator, int rok) {
    Blok b;
    b.naglowek = core::Record(Naglowek::schema());
    b.naglowek.set(Naglowek::Nazwisko, nazwisko);
    b.naglowek.set(Naglowek::Imie, imie);
    b.naglowek.set(Naglowek::Identyfikator, identyfikator);
    b.naglowek.set(Naglowek::Etat, "  1/  1");
    for (int n = Naglowek::Rezerwa5; n <= Naglowek::Count; ++n) b.naglowek.set(n, 0L);
    for (int m = 1; m <= 12; ++m) {
        core::Record& ml = b.miesiace[m - 1];
        ml = core::Record(Miesiac::schema());
        ml.set(Miesiac::Numer, static_cast<long>(m));
        for (int n = Miesiac::Rezerwa2; n <= Miesiac::Count; ++n) ml.set(n, 0L);
        for (int d = 1; d <= 31; ++d) {
            core::Record& dl = b.dni[m - 1][d - 1];
            dl = core::Record(Dzien::schema());
            dl.set(Dzien::Dm, static_cast<long>(d));
            for (int n = Dzien::Gp; n < Dzien::Swieto; ++n) dl.set(n, 0L);
            dl.set(Dzien::Swieto, std::string(core::validDate({rok, m, d}) ? "" : "X"));
        }
    }
    return b;
}

Blok* znajdz(std::vector<Blok>& blocks, const std::string& identyfikator) {
    for (Blok& b : blocks)
        if (b.naglowek.s(Naglowek::Identyfikator) == identyfikator) return &b;
    return nullptr;
}

}  // namespace leave::CzasPracy
