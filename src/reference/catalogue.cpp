#include "reference/catalogue.h"

#include "core/error.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/names.h"

namespace fs = std::filesystem;
using core::FieldType;

namespace reference {

namespace Instal {

static const core::FieldDef kFields[] = {
    {"NazwaListy", FieldType::String}, {"Skrotlisty", FieldType::String}, {"Grupa", FieldType::String},
    {"ZestawListy", FieldType::String}, {"Rezerwa1", FieldType::String},  {"Rezerwa2", FieldType::String},
    {"Rezerwa3", FieldType::String},    {"NumerListy", FieldType::String}, {"Rezerwa4", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
// One write per line.
static const core::Schema kSchema{"instal.dat", kFields, 0};

const core::Schema& schema() { return kSchema; }

fs::path path(const core::Session& s) { return s.payerPath({"instal.dat"}); }

std::vector<core::Record> read(const core::Session& s) {
    fs::path folder = s.payerFolder();
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw core::Error(core::err::PathNotFound, (folder / "instal.dat").string(),
                          "brak folderu Płatnika " + folder.string());
    fs::path file = path(s);
    if (!core::fileExists(file)) return {};
    return core::readAll(file, kSchema);
}

void write(const core::Session& s, const std::vector<core::Record>& lines) {
    core::writeAll(path(s), lines, "tymcz.dat");
}

void setFields(core::Record& line, const std::string& title, const std::string& stem, const std::string& group,
               const std::string& set) {
    line.set(NazwaListy, core::PadRight(title, kSzerNazwy));
    line.set(Skrotlisty, core::PadRight(stem, kSzerSkrotu));
    line.set(Grupa, core::PadRight(group, 1));
    line.set(ZestawListy, core::UCase(core::PadRight(set, 1)));
}

core::Record newLine(const std::string& title, const std::string& stem, const std::string& group,
                     const std::string& set, const std::string& numer, const std::string& rezerwa4) {
    core::Record r(kSchema);
    setFields(r, title, stem, group, set);
    r.set(NumerListy, numer);
    r.set(Rezerwa4, rezerwa4);
    return r;
}

std::string stem(const core::Record& line) { return core::RTrim(line.s(Skrotlisty)); }

int findByStem(const std::vector<core::Record>& lines, const std::string& name) {
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (stem(lines[i]) == name) return static_cast<int>(i);
    return -1;
}

}  // namespace Instal

std::string displayLine(const core::Record& line) {
    using namespace Instal;
    return core::PadRight(line.s(NazwaListy), kSzerNazwy) + " " + core::PadRight(line.s(Skrotlisty), kSzerSkrotu) +
           "  " + core::PadRight(line.s(Grupa), 1) + "   " + core::PadRight(line.s(ZestawListy), 1);
}

ListaWybrana parseDisplayLine(const std::string& line) {
    ListaWybrana w;
    w.title = core::Left(line, Instal::kSzerNazwy);
    w.stem = core::RTrim(core::Mid(line, 35, Instal::kSzerSkrotu));
    // The screen has always taken the group from column 46.
    w.group = core::Mid(line, 46, 1);
    return w;
}

void brakPlatnika(core::Dialogs& ui) {
    ui.msgBox("Nie wybrano Płatnika ! Wybierz >Instalacyjne >Dane Płatnika! ", core::Buttons::OK,
              core::Icon::Exclamation, "Brak danych Płatnika");
}

std::string badListStem(const std::string& stem) {
    return badName(core::RTrim(core::Left(stem, Instal::kSzerSkrotu)), "Skrót listy (nazwa jej plików)");
}

bool Instal::wZestawie(const core::Record& line, const std::string& zestaw) {
    return core::InStr(core::UCase(zestaw), core::UCase(core::RTrim(line.s(Instal::ZestawListy)))) > 0;
}

std::vector<core::Record> Instal::listyZestawu(const std::vector<core::Record>& lines, const std::string& zestaw) {
    std::vector<core::Record> out;
    for (const core::Record& line : lines) {
        if (out.size() == kListZestawu) break;
        if (wZestawie(line, zestaw)) out.push_back(line);
    }
    return out;
}

}  // namespace reference
