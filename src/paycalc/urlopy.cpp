#include "paycalc/urlopy.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"

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

namespace {

void readMiesiac(core::SeqReader& in, Blok& b, int m) {
    b.miesiace[m] = core::readRecord(in, Miesiac::schema());
    for (int d = 0; d < 31; ++d) b.dni[m][d] = core::readRecord(in, Dzien::schema());
}

}  // namespace

Blok readBlok(core::SeqReader& in) {
    Blok b;
    b.naglowek = core::readRecord(in, Naglowek::schema());
    for (int m = 0; m < 12; ++m) readMiesiac(in, b, m);
    return b;
}

Blok readBlok(core::SeqReader& in, int miesiac, bool& urwany) {
    urwany = false;
    Blok b;
    b.naglowek = core::readRecord(in, Naglowek::schema());
    int m = 0;
    for (; m < 12 && m < miesiac; ++m) readMiesiac(in, b, m);
    try {
        for (; m < 12; ++m) readMiesiac(in, b, m);
    } catch (const core::Error& e) {
        if (e.Number != core::err::InputPastEnd) throw;
        urwany = true;
        b.miesiace[m] = core::Record();
    }
    return b;
}

std::vector<Blok> readAll(core::SeqReader& in) {
    std::vector<Blok> out;
    while (!in.eof()) out.push_back(readBlok(in));
    return out;
}

std::vector<Blok> readAll(const fs::path& file) {
    core::SeqReader in(file);
    return readAll(in);
}

void writeAll(const fs::path& file, const std::vector<Blok>& blocks, const std::string& tempName) {
    core::SeqWriter w;
    for (const Blok& b : blocks) {
        core::writeRecord(w, b.naglowek);
        for (int m = 0; m < 12; ++m) {
            core::writeRecord(w, b.miesiace[m]);
            for (int d = 0; d < 31; ++d) core::writeRecord(w, b.dni[m][d]);
        }
    }
    core::commitFile(file, w, tempName);
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

namespace {

// The leave of month `miesiac` in a settled block.
UrlopMiesiaca urlopBloku(const Urlop::Blok& b, int miesiac) {
    UrlopMiesiaca u;
    u.znaleziony = true;
    std::string stawka = b.miesiace[miesiac - 1].s(Urlop::Miesiac::Stawka);
    u.Stawka = static_cast<float>(core::Val(core::KropkaZamiastPrzecinka(stawka)));
    if (u.Stawka > 0) {
        for (const core::Record& d : b.dni[miesiac - 1])
            if (core::UCase(core::Left(d.s(Urlop::Dzien::Kod), 1)) == "U") ++u.DniUrlopu;
    }
    float kwota = static_cast<float>(u.DniUrlopu) * u.Stawka;
    u.wUrlopowe = core::Round2(static_cast<double>(kwota));
    return u;
}

bool rozliczany(const Urlop::Blok& b) { return b.naglowek.s(Urlop::Naglowek::Rozliczac) == "1"; }

}  // namespace

UrlopMiesiaca urlopMiesiaca(const std::vector<Urlop::Blok>& blocks, const std::string& klucz, int miesiac) {
    if (miesiac < 1 || miesiac > 12) return {};
    for (const Urlop::Blok& b : blocks)
        if (b.naglowek.s(Urlop::Naglowek::Identyfikator) == klucz && rozliczany(b)) return urlopBloku(b, miesiac);
    return {};
}

void UrlopyMiesiaca::dodaj(const Urlop::Blok& b) {
    const std::string klucz = b.naglowek.s(Urlop::Naglowek::Identyfikator);
    if (!rozliczany(b) || miesiac_ < 1 || miesiac_ > 12 || first_.count(klucz)) return;
    first_.emplace(klucz, urlopBloku(b, miesiac_));
}

UrlopMiesiaca UrlopyMiesiaca::znajdz(const std::string& klucz) const {
    auto it = first_.find(klucz);
    if (it != first_.end()) return it->second;
    if (blad_) throw *blad_;
    return {};
}

UrlopMiesiaca modUrlop(core::Session& s) {
    UrlopMiesiaca u;
    fs::path file = Urlop::path(s, s.rok());
    if (core::fileExists(file)) {
        // Block by block until the person's; reading stops after the list's month.
        const int miesiac = static_cast<int>(core::Val(s.miesiac()));
        core::SeqReader in(file);
        while (!in.eof() && !u.znaleziony) {
            bool urwany = false;
            Urlop::Blok b = Urlop::readBlok(in, miesiac, urwany);
            u = urlopMiesiaca({b}, s.KluczOsoby, miesiac);
            if (urwany && !u.znaleziony)
                throw core::Error(core::err::InputPastEnd, in.name(), "plik " + in.name() + " skończył się w środku bloku osoby");
        }
    }
    s.wynik.DniUrlopu = u.DniUrlopu;
    s.wynik.StawkaUrlopowa = u.Stawka;
    s.wynik.wUrlopowe = u.wUrlopowe;
    return u;
}

}  // namespace paycalc
