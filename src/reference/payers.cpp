#include "reference/payers.h"

#include <fstream>
#include <sstream>

#include "core/error.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/names.h"
#include "reference/rates.h"

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

std::vector<core::Record> readPayers(const core::Session& s) {
    fs::path file = Firma::path(s);
    if (!core::fileExists(file)) return {};
    return Firma::readAll(file);
}

int findPayer(const std::vector<core::Record>& recs, const std::string& skrot) {
    for (std::size_t i = 0; i < recs.size(); ++i)
        if (recs[i].s(Firma::SkrotPlatnika) == skrot) return static_cast<int>(i);
    return static_cast<int>(recs.size()) - 1;
}

const char* const kPayerTree[25] = {"Bazy",    "Karta",   "Person",     "Archiwum",    "Dodatki",      "Dokumenty",
                                    "Godziny", "Homenet", "Jubileu",    "Kdu",         "Kontrah",      "Ksimail",
                                    "Pit4",    "Pit11",   "Pit8b",      "Platnik",     "Przelewy",     "Sumy",
                                    "ROR",     "Trzynastki", "Urlopy",  "Zus",         "Kopia",        "Zgloszeniowe",
                                    "Potwierdzenia"};

fs::path makePayerTree(const fs::path& katalog, const std::string& skrot) {
    fs::path folder = core::ensureFolder(katalog, {skrot});
    for (const char* sub : kPayerTree) core::ensureFolder(folder, {sub});
    fs::path wzor = core::resolvePath(katalog, {"dane", "wzorc.kdu"});
    fs::path cel = core::resolvePath(folder, {"Zus", "wzorc.kdu"});
    if (core::fileExists(wzor) && !core::fileExists(cel)) {
        // Copied byte for byte through a fresh temporary file, so that a break leaves no half template.
        std::ifstream in(wzor, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        if (!in) throw core::Error(core::err::PathFileAccess, cel.string(), "nie można skopiować wzorca " + wzor.string());
        core::commitBytes(cel, bytes.str());
    }
    return folder;
}

std::string badPayerName(const std::string& skrot, const fs::path& katalog, const std::vector<core::Record>& recs) {
    std::string why = badName(skrot, "Skrót Płatnika");
    if (!why.empty()) return why;
    const std::string up = core::UCase(skrot);
    if (up == "DANE") return "Skrót Płatnika nie może brzmieć \"" + skrot + "\" - tak nazywa się folder stawek programu.";
    for (const auto& r : recs)
        if (core::UCase(r.s(Firma::SkrotPlatnika)) == up)
            return "Płatnik o skrócie \"" + r.s(Firma::SkrotPlatnika) + "\" jest już w rejestrze.";
    fs::path there = core::resolvePath(katalog, {skrot});
    std::error_code ec;
    if (fs::exists(there, ec) && !fs::is_directory(there, ec))
        return "W folderze danych jest już plik o nazwie \"" + there.filename().string() +
               "\" - skrót Płatnika musi być inny.";
    return {};
}

void choosePayer(core::Session& s, const core::Record& payer) {
    // A short name from MojaFirma.txt that would lead out of the data folder: Error 52 before
    // instalka.dat or anything else is touched.
    core::checkPathPart(payer.s(Firma::SkrotPlatnika));
    s.Firma = payer;
    s.SkrotPlatnika = payer.s(Firma::SkrotPlatnika);
    core::Record inst = core::Instalka::read(s.katalog());
    if (inst.s(core::Instalka::SkrotPlatnika) != s.SkrotPlatnika) {
        inst.set(core::Instalka::SkrotPlatnika, s.SkrotPlatnika);
        core::Instalka::write(s.katalog(), inst, "tym.dta");
    }
    if (s.Zestaw.empty()) s.Zestaw = "A";
    fs::path folder = s.payerFolder();
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw core::Error(core::err::PathNotFound, (folder / "instal.dat").string(),
                          "brak folderu Płatnika " + folder.string());
    fs::path lists = Instal::path(s);
    if (!core::fileExists(lists)) core::commitFile(lists, std::string(), "tymcz.dat");
    loadRates(s);
}

}  // namespace reference
