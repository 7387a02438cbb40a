#include "core/session.h"

#include "core/paths.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace core {

namespace Instalka {

static const FieldDef kFields[] = {
    {"Haslo", FieldType::String},     {"Katalog", FieldType::String},   {"SkrotPlatnika", FieldType::String},
    {"Drukarka", FieldType::String},  {"Rezerwa5", FieldType::Variant}, {"Zestaw", FieldType::String},
    {"Rezerwa7", FieldType::Variant}, {"DataListy", FieldType::String},
};
static const Schema kSchema{"instalka.dat", kFields, 0};

const Schema& schema() { return kSchema; }

Record read(const fs::path& folder) {
    SeqReader in(resolvePath(folder, {"instalka.dat"}));
    return readRecord(in, kSchema);
}

void write(const fs::path& folder, const Record& rec, const std::string& tempName) {
    SeqWriter w;
    writeRecord(w, rec);
    commitFile(resolvePath(folder, {"instalka.dat"}), w, tempName);
}

}  // namespace Instalka

fs::path Session::katalog() const {
    fs::path k(Katalog);
    return k.is_relative() ? WorkDir / k : k;
}

fs::path Session::payerFolder() const { return resolvePath(katalog(), {SkrotPlatnika}); }

fs::path Session::payerPath(std::initializer_list<std::string_view> parts) const {
    return resolvePath(payerFolder(), parts);
}

std::string Session::rok() const { return Right(DataListy, 4); }
std::string Session::miesiac() const { return Mid(DataListy, 4, 2); }
std::string Session::RRmm() const { return Right(DataListy, 2) + Mid(DataListy, 4, 2); }

void Session::takeInstalka(const Record& r) {
    Haslo = r.s(Instalka::Haslo);
    Katalog = r.s(Instalka::Katalog);
    SkrotPlatnika = r.s(Instalka::SkrotPlatnika);
    Drukarka = r.s(Instalka::Drukarka);
    Rezerwa5 = r.item(Instalka::Rezerwa5);
    Zestaw = r.s(Instalka::Zestaw);
    Rezerwa7 = r.item(Instalka::Rezerwa7);
    DataListy = r.s(Instalka::DataListy);
}

Record Session::instalkaRecord() const {
    Record r(Instalka::schema());
    r.set(Instalka::Haslo, Haslo);
    r.set(Instalka::Katalog, Katalog);
    r.set(Instalka::SkrotPlatnika, SkrotPlatnika);
    r.set(Instalka::Drukarka, Drukarka);
    r.setItem(Instalka::Rezerwa5, Rezerwa5);
    r.set(Instalka::Zestaw, Zestaw);
    r.setItem(Instalka::Rezerwa7, Rezerwa7);
    r.set(Instalka::DataListy, DataListy);
    return r;
}

}  // namespace core
