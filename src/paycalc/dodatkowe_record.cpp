#include "paycalc/dodatkowe_record.h"

#include "core/paths.h"

using core::FieldType;

namespace paycalc {

namespace Dodatkowy {

static const core::FieldDef kFields[] = {
    {"Nazwisko", FieldType::String},
    {"Imie", FieldType::String},
    {"Klucz", FieldType::String},
    {"KodUbezpieczenia", FieldType::String},
    {"Podstawa", FieldType::Variant},
    {"KwotaBrutto", FieldType::Variant},
    {"PodstawaZdrowotna", FieldType::Variant},
    {"SkladkaZdrowotna", FieldType::Variant},
    {"SkladkaIndywidualna", FieldType::Variant},
    {"StawkaPodatku", FieldType::Variant},
    {"PodatekNetto", FieldType::Variant},
    {"NaROR", FieldType::Variant},
    {"PlacaNetto", FieldType::Variant},
    {"NumerKonta", FieldType::Variant},
    {"OpcjaROR", FieldType::Variant},
    {"BruttoOd01", FieldType::Variant},
    {"Il1", FieldType::Variant},
    {"Il2", FieldType::Variant},
    {"Il3", FieldType::Variant},
    {"Il4", FieldType::Variant},
    {"Il5", FieldType::Variant},
    {"Il6", FieldType::Variant},
    {"Il7", FieldType::Variant},
    {"Rezerwa24", FieldType::Variant},
    {"Sta1", FieldType::Variant},
    {"Sta2", FieldType::Variant},
    {"Sta3", FieldType::Variant},
    {"Sta4", FieldType::Variant},
    {"Sta5", FieldType::Variant},
    {"Sta6", FieldType::Variant},
    {"Sta7", FieldType::Variant},
    {"DataListy", FieldType::Variant},
    {"Kw1", FieldType::Variant},
    {"Kw2", FieldType::Variant},
    {"Kw3", FieldType::Variant},
    {"Kw4", FieldType::Variant},
    {"Kw5", FieldType::Variant},
    {"Kw6", FieldType::Variant},
    {"Kw7", FieldType::Variant},
    {"RazemKwota", FieldType::Variant},
    {"Rezerwa41", FieldType::Variant},
    {"DoWyplaty", FieldType::Variant},
    {"Rezerwa43", FieldType::Variant},
    {"Rezerwa44", FieldType::Variant},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"<lista><rodzaj><RRmm>.dta", kFields, 0};

const core::Schema& schema() { return kSchema; }

const Opis& opis(Rodzaj r) {
    static const Opis kOpis[] = {
        {"Godziny", "God", "ListaT.ttt"},   {"dodatki", "Dod", "ListaD.ttt"}, {"trzynastki", "Trz", "ListaT.ttt"},
        {"jubileu", "Jub", "ListaT.ttt"},   {"urlopy", "SwU", "ListaU.ttt"},
    };
    return kOpis[static_cast<int>(r)];
}

std::filesystem::path path(const core::Session& s, Rodzaj r, const std::string& lista, const std::string& RRmm) {
    const Opis& o = opis(r);
    return s.payerPath({o.folder, lista + o.skrot + RRmm + ".dta"});
}

std::filesystem::path path(const core::Session& s, Rodzaj r) { return path(s, r, s.NazwaZbioru, s.RRmm()); }

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

std::optional<core::Record> znajdz(const std::filesystem::path& file, const std::string& klucz) {
    if (!core::fileExists(file)) return std::nullopt;
    core::SeqReader in(file);
    while (!in.eof()) {
        core::Record r = core::readRecord(in, kSchema);
        if (r.s(Klucz) == klucz) return r;
    }
    return std::nullopt;
}

void writeAll(const std::filesystem::path& file, Rodzaj r, const std::vector<core::Record>& recs) {
    core::writeAll(file, recs, opis(r).tymczasowy);
}

}  // namespace Dodatkowy

}  // namespace paycalc
