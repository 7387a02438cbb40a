#include "personnel/person_record.h"

#include "core/numbers.h"
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
    return pathOf(s, s.NazwaZbioru);
}

std::filesystem::path pathOf(const core::Session& s, const std::string& lista) {
    return s.payerPath({"person", lista + ".per"});
}

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

core::Record pusty() {
    core::Record r(kSchema);
    r.set(Poczatek, "<Poczatek>");
    r.set(Koniec, "<koniec>");
    return r;
}

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

std::optional<core::Record> znajdzOsobe(const std::vector<core::Record>& recs, const std::string& klucz) {
    for (const core::Record& r : recs)
        if (kluczOsoby(r) == klucz) return r;
    return std::nullopt;
}

std::string etatTekst(const std::string& licznik, const std::string& mianownik) {
    return core::PadLeft(core::Trim(licznik), 3) + core::PadLeft(core::Trim(mianownik), 3);
}

double ulamekEtatu(const std::string& licznik, const std::string& mianownik) {
    double den = core::Val(mianownik);
    if (!(den > 0)) return 0;
    float procent = core::Round2(core::Val(licznik) / den * 100);
    return static_cast<double>(procent) / 100;
}

std::string dataZatrudnienia(const std::string& value35) {
    return core::Len(value35) == 21 ? core::Left(value35, 10) : std::string();
}

std::string dataUrodzeniaZPesel(const std::string& tekst, const std::string& pesel) {
    using core::Mid;
    if (core::Len(tekst) == 10 && Mid(tekst, 3, 1) == ".")
        return Mid(pesel, 5, 2) + "-" + Mid(pesel, 3, 2) + "-" + core::Right(tekst, 4);
    if (core::Len(pesel) != 11) return tekst;
    std::string wiek = Mid(pesel, 3, 1) == "2" ? "20" : "19";
    return Mid(pesel, 5, 2) + "-" + Mid(pesel, 3, 2) + "-" + wiek + core::Left(pesel, 2);
}

core::EkranOsoby ekranOsoby(const core::Record& o) {
    core::EkranOsoby e;
    e.Etat = core::Trim(core::Left(o.s(Osoba::Etat), 3));
    e.Etat2 = core::Trim(core::Right(o.s(Osoba::Etat), 3));
    e.Grupa = o.s(Osoba::Grupa);
    e.Obywatelstwo = obywatelstwo(o.s(Osoba::Obywatelstwo));
    e.Paszport = core::UCase(o.s(Osoba::Paszport));
    e.DataZatrudnienia = dataZatrudnienia(o.s(Osoba::DataZatrudnienia));
    e.UlamekEtatu = ulamekEtatu(e.Etat, e.Etat2);
    return e;
}

bool wczytajEkranOsoby(core::Session& s) {
    if (s.Osoba.Otwarty) return true;
    std::filesystem::path file = Osoba::path(s);
    s.Osoba = core::EkranOsoby{};
    if (!core::fileExists(file)) return false;
    auto o = znajdzOsobe(Osoba::readAll(file), s.KluczOsoby);
    if (!o) return false;
    s.Osoba = ekranOsoby(*o);
    return true;
}

std::string wierszListy(int numer, const core::Record& o) {
    std::string line = core::PadLeft(std::to_string(numer), 3) + " ";
    line += core::PadRight(o.s(Osoba::Nazwisko), 25) + " ";
    line += core::PadRight(o.s(Osoba::Imie), 20) + core::Space(5);
    line += core::PadRight(kluczOsoby(o), 11) + " ";
    line += std::string(o.i(Osoba::Status) == 1 ? "Tak" : "Nie") + " ";
    line += core::PadRight(o.s(Osoba::Grupa), 1) + " ";
    line += core::PadRight(o.s(Osoba::Etat), 6) + " ";
    line += core::PadRight(o.s(Osoba::KodUbezpieczenia), 6);
    return line;
}

}  // namespace personnel
