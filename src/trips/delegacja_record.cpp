#include "trips/delegacja_record.h"

#include <algorithm>
#include <array>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"

namespace fs = std::filesystem;
using core::FieldDef;
using core::FieldType;

namespace trips {

namespace {
constexpr FieldType S = FieldType::String, F = FieldType::Float, V = FieldType::Variant, I = FieldType::Int16;

constexpr std::array<FieldDef, Dieta::Count> kDieta{{{"Kraj", S}, {"Waluta", S}, {"Stawka", V}, {"Nocleg", V}}};
constexpr std::array<FieldDef, Numeracja::Count> kNumeracja{
    {{"Miesiac", I}, {"NazwaMiesiaca", S}, {"OstatniNumer", I}, {"Rezerwa4", V}}};
constexpr std::array<FieldDef, Naglowek::Count> kNaglowek{{
    {"NrDel", S}, {"Nazwisko", S}, {"Imie", S}, {"Pesel", S}, {"Ryczalt", F}, {"Nocleg", F}, {"InneW", F},
    {"Zaliczka", F}, {"Diety", F}, {"SrodekTransportu", S}, {"DataDel", S}, {"RazemNaleznosc", F},
    {"DoWyplaty", F}, {"Lista", S}, {"Rezerwa15", V}, {"Rezerwa16", V},
}};
constexpr std::array<FieldDef, Pozycja::Count> kPozycja{{
    {"Numer", I}, {"MiejscowoscW", S}, {"DataW", S}, {"GodzW", S}, {"MiejscowoscP", S}, {"DataP", S},
    {"GodzP", S}, {"RazemGodz", S}, {"Kraj", S}, {"Waluta", S}, {"Stawka", S}, {"Kwota", S}, {"KursWal", S},
    {"WartoscPLN", S}, {"IloscDiet", F},
}};
}  // namespace

const core::Schema& Dieta::schema() {
    static const core::Schema s{"delegacje\\DietyZaDobe.txt", kDieta, 0};
    return s;
}
const core::Schema& Numeracja::schema() {
    static const core::Schema s{"delegacje\\NumD<RR>.dat", kNumeracja, 0};
    return s;
}
const core::Schema& Naglowek::schema() {
    static const core::Schema s{"delegacje\\De<nr><RRmm>.det", kNaglowek, 0};
    return s;
}
const core::Schema& Pozycja::schema() {
    static const core::Schema s{"delegacje\\De<nr><RRmm>.det", kPozycja, 0};
    return s;
}

fs::path folder(const core::Session& s) { return s.payerPath({"delegacje"}); }

std::string nazwaPliku(int numer, const std::string& dataDel) {
    std::string nr = std::to_string(numer);
    if (nr.size() < 5) nr = std::string(5 - nr.size(), '0') + nr;
    return "De" + nr + core::Mid(dataDel, 9, 2) + core::Mid(dataDel, 4, 2) + ".det";
}

Delegacja czytaj(const fs::path& plik) {
    core::SeqReader in(plik);
    Delegacja d;
    d.naglowek = core::readRecord(in, Naglowek::schema());
    d.pozycje = core::readAll(in, Pozycja::schema());
    return d;
}

void zapisz(const fs::path& plik, const Delegacja& d) {
    core::SeqWriter out;
    core::writeRecord(out, d.naglowek);
    for (const core::Record& p : d.pozycje) core::writeRecord(out, p);
    core::commitFile(plik, out);
}

std::vector<fs::path> delegacjeMiesiaca(const fs::path& folder, const std::string& RRmm) {
    std::vector<fs::path> pliki;
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(folder, ec)) {
        std::string n = e.path().filename().string();
        if (n.size() == 15 && core::UCase(n.substr(0, 2)) == "DE" && n.substr(7, 4) == RRmm &&
            core::UCase(n.substr(11)) == ".DET")
            pliki.push_back(e.path());
    }
    std::sort(pliki.begin(), pliki.end(), [](const fs::path& a, const fs::path& b) {
        return a.filename().string().substr(2, 5) < b.filename().string().substr(2, 5);
    });
    return pliki;
}

std::vector<core::Record> czytajDiety(const fs::path& folder) {
    fs::path plik = core::resolvePath(folder, {"DietyZaDobe.txt"});
    if (!core::fileExists(plik)) return {};
    return core::readAll(plik, Dieta::schema());
}

int nastepnyNumer(const fs::path& folder, const std::string& dataDel) {
    std::string RR = core::Mid(dataDel, 9, 2);
    int miesiac = static_cast<int>(core::Val(core::Mid(dataDel, 4, 2)));
    if (miesiac < 1 || miesiac > 12) throw core::Error(core::err::TypeMismatch, "nastepnyNumer", dataDel);
    fs::path plik = core::resolvePath(folder, {"NumD" + RR + ".dat"});
    std::vector<core::Record> wiersze;
    if (core::fileExists(plik)) wiersze = core::readAll(plik, Numeracja::schema());
    for (int m = static_cast<int>(wiersze.size()) + 1; m <= 12; ++m) {
        core::Record r(Numeracja::schema());
        r.set(Numeracja::Miesiac, m);
        r.set(Numeracja::NazwaMiesiaca, core::monthName(m));
        r.set(Numeracja::OstatniNumer, 0);
        wiersze.push_back(std::move(r));
    }
    core::Record& wiersz = wiersze[static_cast<std::size_t>(miesiac - 1)];
    int numer = static_cast<int>(wiersz.i(Numeracja::OstatniNumer)) + 1;
    wiersz.set(Numeracja::OstatniNumer, numer);
    core::writeAll(plik, wiersze, "NumDT" + RR + ".dat");
    return numer;
}

}  // namespace trips
