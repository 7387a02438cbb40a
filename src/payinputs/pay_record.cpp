#include "payinputs/pay_record.h"

#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"

using core::FieldType;

namespace payinputs {

namespace Pay {

static const core::FieldDef kFields[] = {
    {"Poczatek", FieldType::String},
    {"Nazwisko", FieldType::Variant},
    {"Imie", FieldType::Variant},
    {"Pesel", FieldType::Variant},
    {"KodUbezpieczenia", FieldType::Variant},
    {"Zasadnicza", FieldType::Float},
    {"Funkcyjny", FieldType::Float},
    {"Stazowy", FieldType::Float},
    {"Premia", FieldType::Float},
    {"Specjalny", FieldType::Float},
    {"Inny", FieldType::Float},
    {"Motywacyjny", FieldType::Float},
    {"Wiejski", FieldType::Float},
    {"Specjalistyczny", FieldType::Float},
    {"Wychowawczy", FieldType::Float},
    {"Trudnosciowy", FieldType::Float},
    {"Ekwiwalent", FieldType::Float},
    {"Nocny", FieldType::Float},
    {"Wyrownania", FieldType::Float},
    {"Szkodliwy", FieldType::Float},
    {"StawkaP", FieldType::Float},
    {"DataZatrudnienia", FieldType::Variant},
    {"DodatekStazowy", FieldType::Variant},
    {"RozliczenieWspolne", FieldType::Variant},
    {"SamotnaMatka", FieldType::Variant},
    {"WskTabeli", FieldType::Variant},
    {"ROR", FieldType::Variant},
    {"RorGodziny", FieldType::Variant},
    {"RorDodatki", FieldType::Variant},
    {"KosztyUzyskania", FieldType::Float},
    {"KwotaUlgi", FieldType::Float},
    {"Mieszkaniowy", FieldType::Float},
    {"Dojazd", FieldType::Variant},
    {"UlgaInwestycyjna", FieldType::Float},
    {"ZastosStaPOD", FieldType::Float},
    {"NumerKontaROR", FieldType::Variant},
    {"ZFMPozyczka", FieldType::Variant},
    {"ZFMRata", FieldType::Float},
    {"KZPWklady", FieldType::Variant},
    {"KZPpozyczka", FieldType::Variant},
    {"KZPRata", FieldType::Float},
    {"KZPSkladka", FieldType::Float},
    {"Rezerwa43", FieldType::Float},
    {"POTRInne", FieldType::Float},
    {"Zwiazek", FieldType::Float},
    {"Solidarnosc", FieldType::Float},
    {"PZU", FieldType::Float},
    {"Potracenie2", FieldType::Float},
    {"PotraceniaPoZasilkach", FieldType::Float},
    {"Potracenie1", FieldType::Float},
    {"Dokument", FieldType::String},
    {"Obywatelstwo", FieldType::String},
    {"Zasilek1", FieldType::Variant},
    {"Zasilek2", FieldType::Variant},
    {"Zasilek3", FieldType::Variant},
    {"Zasilek4", FieldType::Variant},
    {"Zasilek5", FieldType::Variant},
    {"Zasilek6", FieldType::Variant},
    {"SredniaCH1", FieldType::Variant},
    {"Liczbadni1", FieldType::Variant},
    {"okresOd1", FieldType::Variant},
    {"okresDo1", FieldType::Variant},
    {"KodPrzerwy1", FieldType::Variant},
    {"Ch1Pr", FieldType::Variant},
    {"SredniaCH2", FieldType::Variant},
    {"Liczbadni2", FieldType::Variant},
    {"okresOd2", FieldType::Variant},
    {"okresDo2", FieldType::Variant},
    {"KodPrzerwy2", FieldType::Variant},
    {"Ch2Pr", FieldType::Variant},
    {"SredniaCH3", FieldType::Variant},
    {"Liczbadni3", FieldType::Variant},
    {"okresOd3", FieldType::Variant},
    {"okresDo3", FieldType::Variant},
    {"KodPrzerwy3", FieldType::Variant},
    {"Ch3Pr", FieldType::Variant},
    {"SredniaCH4", FieldType::Variant},
    {"Liczbadni4", FieldType::Variant},
    {"okresOd4", FieldType::Variant},
    {"okresDo4", FieldType::Variant},
    {"KodPrzerwy4", FieldType::Variant},
    {"Ch4Pr", FieldType::Variant},
    {"KwotaCh1", FieldType::Variant},
    {"KwotaCh2", FieldType::Variant},
    {"KwotaCh3", FieldType::Variant},
    {"KwotaCh4", FieldType::Variant},
    {"Grupa", FieldType::String},
    {"Rezerwa88", FieldType::String},
    {"Rezerwa89", FieldType::Variant},
    {"ZnacznikCh1", FieldType::Variant},
    {"Rezerwa91", FieldType::Variant},
    {"ZnacznikCh3", FieldType::Variant},
    {"ZnacznikCh4", FieldType::Variant},
    {"Rezerwa94", FieldType::Variant},
    {"Wypadkowa", FieldType::Int16},
    {"Rezerwa96", FieldType::Variant},
    {"Rezerwa97", FieldType::Variant},
    {"Rezerwa98", FieldType::Variant},
    {"Rezerwa99", FieldType::Variant},
    {"DataZatrudnieniaDO", FieldType::Variant},
    {"Rentowa", FieldType::Int16},
    {"BZP3dni", FieldType::Variant},
    {"BZP3Od", FieldType::Variant},
    {"BZP3Do", FieldType::Variant},
    {"BZP3Kod", FieldType::Variant},
    {"Rezerwa106", FieldType::Variant},
    {"Emerytalna", FieldType::Int16},
    {"BZP1dni", FieldType::Variant},
    {"BZP1Od", FieldType::Variant},
    {"BZP1Do", FieldType::Variant},
    {"BZP1Kod", FieldType::Variant},
    {"BZP2dni", FieldType::Variant},
    {"BZP2Od", FieldType::Variant},
    {"BZP2Do", FieldType::Variant},
    {"BZP2Kod", FieldType::Variant},
    {"Rezerwa116", FieldType::Variant},
    {"Rezerwa117", FieldType::Variant},
    {"Rezerwa118", FieldType::Variant},
    {"Rezerwa119", FieldType::Variant},
    {"Rezerwa120", FieldType::Variant},
    {"Rezerwa121", FieldType::Variant},
    {"Rezerwa122", FieldType::Variant},
    {"Rezerwa123", FieldType::Variant},
    {"Rezerwa124", FieldType::Variant},
    {"Rezerwa125", FieldType::Variant},
    {"Rezerwa126", FieldType::Variant},
    {"Rezerwa127", FieldType::Variant},
    {"SredniaChorobowa", FieldType::Variant},
    {"DniChorobyOd01", FieldType::Variant},
    {"BruttoOd01", FieldType::Variant},
    {"Chorobowa", FieldType::Int16},
    {"Zdrowotna", FieldType::Int16},
    {"DataZerowania", FieldType::Variant},
    {"Rezerwa134", FieldType::Variant},
    {"Rezerwa135", FieldType::Variant},
    {"Rezerwa136", FieldType::Variant},
    {"Rezerwa137", FieldType::Variant},
    {"Rezerwa138", FieldType::Variant},
    {"Rezerwa139", FieldType::Variant},
    {"Rezerwa140", FieldType::Variant},
    {"Rezerwa141", FieldType::Variant},
    {"Rezerwa142", FieldType::Variant},
    {"Rezerwa143", FieldType::Variant},
    {"Rezerwa144", FieldType::Variant},
    {"Rezerwa145", FieldType::Variant},
    {"WskaznikEtatu", FieldType::Float},
    {"Rezerwa147", FieldType::Variant},
    {"Rezerwa148", FieldType::Variant},
    {"EFPomostowy", FieldType::Variant},
    {"Rezerwa150", FieldType::Variant},
    {"Rezerwa151", FieldType::Variant},
    {"Rezerwa152", FieldType::Variant},
    {"RodzajUmowy", FieldType::Variant},
    {"Numer", FieldType::Int16},
    {"Koniec", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"bazy\\<lista>.dta", kFields, 1};

const core::Schema& schema() { return kSchema; }

std::filesystem::path path(const core::Session& s) {
    if (!s.SciezkaBazy.empty()) return s.SciezkaBazy;
    return s.payerPath({"bazy", s.NazwaZbioru + ".dta"});
}

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

void renumber(std::vector<core::Record>& recs, const std::string& koniec) {
    long numer = 0;
    for (core::Record& r : recs) {
        // The citizenship as every reader takes it: nothing or "0..." is Polish, and so it is written.
        const std::string obywatelstwo = r.s(Obywatelstwo);
        if (obywatelstwo.empty() || obywatelstwo[0] == '0') r.set(Obywatelstwo, "POLSKIE");
        r.set(Poczatek, kPoczatek);
        r.set(Koniec, koniec);
        r.set(Numer, ++numer);
    }
}

int replace(const std::filesystem::path& file, const std::string& klucz,
            const std::function<void(core::Record&)>& change, const std::string& tempName, const std::string& koniec) {
    std::vector<core::Record> recs = readAll(file);
    int matched = 0;
    for (core::Record& r : recs) {
        if (kluczOsoby(r) != klucz) continue;
        change(r);
        ++matched;
    }
    renumber(recs, koniec);
    core::writeAll(file, recs, tempName);
    return matched;
}

std::optional<core::Record> openForPerson(core::Session& s, core::Form& form, const std::string& missingText) {
    const std::filesystem::path file = path(s);
    if (!core::fileExists(file)) {
        form.ui.msgBox(missingText, core::Buttons::OK, core::Icon::Information, "Brak zbioru");
        form.guarded([&] {
            std::error_code ec;
            std::filesystem::create_directories(file.parent_path(), ec);
            core::commitFile(file, std::string(), "TYMCZ.dta");
        });
    }
    std::optional<core::Record> found;
    form.guarded([&] {
        for (core::Record& r : readAll(file))
            if (kluczOsoby(r) == s.KluczOsoby) found = std::move(r);
    });
    return found;
}

}  // namespace Pay

core::Record nowyRekordPlacowy(double stawka1, int numer) {
    using namespace Pay;
    core::Record r(schema());
    // Variants that hold amounts, days or percents start as a bare 0; the others as "".
    static const int kLiczby[] = {
        ROR, ZFMPozyczka, KZPWklady, KZPpozyczka, Zasilek1, Zasilek2, Zasilek3, Zasilek4, Zasilek5, Zasilek6,
        SredniaCH1, Liczbadni1, Ch1Pr, SredniaCH2, Liczbadni2, Ch2Pr, SredniaCH3, Liczbadni3, Ch3Pr, SredniaCH4,
        Liczbadni4, Ch4Pr, KwotaCh1, KwotaCh2, KwotaCh3, KwotaCh4, Rezerwa89, BZP3dni, Rezerwa106, BZP1dni,
        BZP2dni, SredniaChorobowa, DniChorobyOd01, BruttoOd01, EFPomostowy};
    for (int n = 1; n <= Count; ++n)
        if (schema().fields[n - 1].type == FieldType::Variant) r.set(n, std::string());
    for (int n : kLiczby) r.set(n, 0L);
    r.set(Poczatek, "<Poczatek>");
    r.set(Koniec, "<Koniec>");
    r.set(ZastosStaPOD, stawka1 / 100);
    for (int n : {Rentowa, Emerytalna, Chorobowa, Zdrowotna, Wypadkowa}) r.set(n, 1L);
    r.set(Obywatelstwo, "POLSKIE");
    r.set(Numer, static_cast<long>(numer));
    return r;
}

std::string kluczOsoby(const core::Record& p) {
    // The calibration of the pay file keeps the document number padded to 11 characters.
    return personnel::kluczOsoby(p.s(Pay::Obywatelstwo), p.s(Pay::Pesel), core::RTrim(p.s(Pay::Dokument)));
}

}  // namespace payinputs
