#include "paycalc/urlop_record.h"

#include "core/numbers.h"
#include "core/paths.h"

namespace fs = std::filesystem;
using core::FieldType;

namespace paycalc {

namespace Urlop {

namespace Naglowek {
static const core::FieldDef kFields[] = {
    {"Nazwisko", FieldType::String},      {"Imie", FieldType::String},     {"Identyfikator", FieldType::String},
    {"Etat", FieldType::String},          {"Przeniesienie", FieldType::Variant}, {"Nalezny", FieldType::Variant},
    {"Rezerwa7", FieldType::Variant},     {"Rezerwa8", FieldType::Variant}, {"Rozliczac", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"Urlopy\\Ur<lista><rrrr>.dta", kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Naglowek

namespace Miesiac {
static const core::FieldDef kFields[] = {{"Etykieta", FieldType::Variant}, {"Stawka", FieldType::String}};
static const core::Schema kSchema{"Urlopy\\Ur<lista><rrrr>.dta", kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Miesiac

namespace Dzien {
static const core::FieldDef kFields[] = {{"Etykieta", FieldType::Variant}, {"Kod", FieldType::String}};
static const core::Schema kSchema{"Urlopy\\Ur<lista><rrrr>.dta", kFields, 0};
const core::Schema& schema() { return kSchema; }
}  // namespace Dzien

fs::path path(const core::Session& s, const std::string& rok) {
    return s.payerPath({"Urlopy", "Ur" + s.NazwaZbioru + rok + ".dta"});
}

const core::UkladBloku& uklad() {
    static const core::UkladBloku kUklad{Naglowek::schema(), Miesiac::schema(), Dzien::schema()};
    return kUklad;
}

Blok readBlok(core::SeqReader& in) { return core::czytajBlok(in, uklad()); }

Blok readBlok(core::SeqReader& in, int miesiac, bool& urwany) { return core::czytajBlok(in, uklad(), miesiac, urwany); }

std::vector<Blok> readAll(core::SeqReader& in) { return core::czytajBloki(in, uklad()); }

std::vector<Blok> readAll(const fs::path& file) { return core::czytajBloki(file, uklad()); }

void writeAll(const fs::path& file, const std::vector<Blok>& blocks, const std::string& tempName) {
    core::piszBloki(file, blocks, tempName);
}

const char* nazwaMiesiaca(int m) {
    static const char* const names[] = {"Styczeń    ", "Luty       ", "Marzec     ", "Kwiecień   ",
                                        "Maj        ", "Czerwiec   ", "Lipiec     ", "Sierpień   ",
                                        "Wrzesień   ", "Październik", "Listopad   ", "Grudzień   "};
    return m >= 1 && m <= 12 ? names[m - 1] : "";
}

Blok nowyBlok(const std::string& nazwisko, const std::string& imie, const std::string& identyfikator,
              const std::string& etat, int rok) {
    Blok b;
    b.naglowek = core::Record(Naglowek::schema());
    b.naglowek.set(Naglowek::Nazwisko, nazwisko);
    b.naglowek.set(Naglowek::Imie, imie);
    b.naglowek.set(Naglowek::Identyfikator, identyfikator);
    b.naglowek.set(Naglowek::Etat, etat);
    b.naglowek.setEmpty(Naglowek::Przeniesienie);
    b.naglowek.setEmpty(Naglowek::Nalezny);
    b.naglowek.set(Naglowek::Rezerwa7, 0L);
    b.naglowek.set(Naglowek::Rezerwa8, 0L);
    b.naglowek.setEmpty(Naglowek::Rozliczac);
    for (int m = 1; m <= 12; ++m) {
        core::Record& ml = b.miesiace[m - 1];
        ml = core::Record(Miesiac::schema());
        ml.set(Miesiac::Etykieta, std::string(nazwaMiesiaca(m)));
        ml.set(Miesiac::Stawka, std::string());
        for (int d = 1; d <= 31; ++d) {
            core::Record& dl = b.dni[m - 1][d - 1];
            dl = core::Record(Dzien::schema());
            dl.set(Dzien::Etykieta, static_cast<long>(d));
            dl.set(Dzien::Kod, std::string(core::validDate({rok, m, d}) ? "0" : "X"));
        }
    }
    return b;
}

}  // namespace Urlop

}  // namespace paycalc
