#include "personnel/person_record.h"

#include "core/paths.h"
#include "core/text.h"

using core::FieldType;

namespace personnel {

namespace Osoba {

static const core::FieldDef kFields[] = {
    {"Poczatek", FieldType::String},       {"Nazwisko", FieldType::String},      {"Imie", FieldType::String},
    {"DrugieImie", FieldType::String},     {"Pesel", FieldType::String},         {"Nip", FieldType::String},
    {"DowodOsobisty", FieldType::String},  {"KodUbezpieczenia", FieldType::String}, {"KodWyksztalcenia", FieldType::String},
    {"DataUrodzenia", FieldType::String},  {"MiejsceUrodzenia", FieldType::String}, {"ImieOjca", FieldType::String},
    {"ImieMatki", FieldType::String},      {"Kod", FieldType::String},           {"Miejscowosc", FieldType::String},
    {"Ulica", FieldType::String},          {"NrDomu", FieldType::String},        {"Lokal", FieldType::String},
    {"Gmina", FieldType::String},          {"Powiat", FieldType::String},        {"Wojewodztwo", FieldType::String},
    {"Etat", FieldType::String},           {"Grupa", FieldType::String},         {"Telefon", FieldType::String},
    {"UrzadSkarbowy", FieldType::String},  {"OddzialZUS", FieldType::String},    {"Poczta", FieldType::String},
    {"Rezerwa28", FieldType::Variant},     {"Paszport", FieldType::String},      {"Mail", FieldType::String},
    {"Komorka", FieldType::String},        {"SkrPocztowa", FieldType::String},   {"NrUbezpieczenia", FieldType::String},
    {"Obywatelstwo", FieldType::String},   {"DataZatrudnienia", FieldType::String}, {"WskaznikFP", FieldType::String},
    {"NumerIP", FieldType::String},        {"FGSP", FieldType::String},          {"Status", FieldType::Int16},
    {"Numer", FieldType::Int16},           {"Koniec", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"person\\<lista>.per", kFields, 1};

const core::Schema& schema() { return kSchema; }

std::filesystem::path path(const core::Session& s) {
    if (!s.SciezkaOsob.empty()) return s.SciezkaOsob;
    return s.payerPath({"person", s.NazwaZbioru + ".per"});
}

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

}  // namespace Osoba

std::string obywatelstwo(const std::string& stored) {
    if (stored.empty() || stored[0] == '0') return "POLSKIE";
    return stored;
}

std::string kluczOsoby(const std::string& obywatelstwoStored, const std::string& pesel, const std::string& dokument) {
    return core::Left(core::UCase(obywatelstwo(obywatelstwoStored)), 5) == "POLSK" ? pesel : dokument;
}

std::string kluczOsoby(const core::Record& o) {
    return kluczOsoby(o.s(Osoba::Obywatelstwo), o.s(Osoba::Pesel), o.s(Osoba::Paszport));
}

}  // namespace personnel
