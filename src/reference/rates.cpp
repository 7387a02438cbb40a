#include "reference/rates.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/payers.h"

namespace fs = std::filesystem;
using core::FieldType;

namespace reference {

namespace Dane {

static const core::FieldDef kFields[] = {
    {"Stawka1", FieldType::String},
    {"Stawka2", FieldType::String},
    {"Stawka3", FieldType::String},
    {"Stawka4", FieldType::Variant},
    {"ProgI", FieldType::String},
    {"ProgII", FieldType::String},
    {"ProgIII", FieldType::String},
    {"ProgIV", FieldType::String},
    {"KwotaUlgi", FieldType::Variant},
    {"KosztyUzyskania", FieldType::Variant},
    {"Ubrent", FieldType::Variant},
    {"Ubemer", FieldType::Variant},
    {"UbChor", FieldType::Variant},
    {"UbWypad", FieldType::Variant},
    {"Kasach", FieldType::Variant},
    {"FuPr", FieldType::Variant},
    {"FGSP", FieldType::Variant},
    {"DniPracy", FieldType::Variant},
    {"ZR", FieldType::Variant},
    {"Solid", FieldType::Float},
    {"SklZWZ", FieldType::Float},
    {"ZPielegnacyjny", FieldType::Variant},
    {"SklKZP", FieldType::Variant},
    {"SklPZU", FieldType::Variant},
    {"MInBRUTTO", FieldType::Float},
    {"Trzynastka", FieldType::Float},
    {"KwotaGRE", FieldType::Float},
    {"Rezerwa28", FieldType::Variant},
    {"PRKu", FieldType::Float},
    {"stZDI", FieldType::Variant},
    {"KwPodstZDRwlasciciela", FieldType::Float},
    {"KwPodstZUSswiadczSoc", FieldType::Variant},
    {"PodstawaDoKZP", FieldType::String},
    {"sklRentPrd", FieldType::Variant},
    {"StaFEP", FieldType::Variant},
    {"Rok", FieldType::Variant},
    {"Administrator2", FieldType::String},
    {"Administrator1", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"dane\\Dane.dta", kFields, 1};

const core::Schema& schema() { return kSchema; }

fs::path path(const core::Session& s) { return core::resolvePath(s.katalog(), {"dane", "Dane.dta"}); }

core::Record readYear(const fs::path& file, const std::string& year, bool* found) {
    core::SeqReader in(file);
    core::Record last(kSchema);
    if (found) *found = false;
    while (!in.eof()) {
        last = core::readRecord(in, kSchema);
        if (last.s(Rok) == year) {
            if (found) *found = true;
            break;
        }
    }
    return last;
}

}  // namespace Dane

core::Stawki deriveRates(const core::Record& dane, float payerAccidentRate) {
    using namespace Dane;
    auto num = [&](int n) {
        return core::toDoubleOrZero(dane.s(n), "dane\\Dane.dta, rok " + dane.s(Rok) + ", pole " + dane.fieldName(n));
    };
    core::Stawki st;
    st.Ubrent = num(Ubrent);
    st.sklRentPrd = num(sklRentPrd);
    if (st.sklRentPrd == 0) {
        st.Ubrent = st.Ubrent / 2;
        st.sklRentPrd = st.Ubrent;
    }
    st.rentowaPracownik = st.Ubrent / 100;
    st.rentowaPracodawca = st.sklRentPrd / 100;
    st.emerytalna = num(Ubemer) / 200;
    st.chorobowa = num(UbChor) / 100;
    st.Kasach = num(Kasach);
    st.stZDI = num(stZDI);
    st.zdrowotna = st.Kasach / 100;
    st.zdrowotnaInd = st.stZDI / 100;
    st.wypadkowa = payerAccidentRate > 0 ? payerAccidentRate / 100.0 : num(UbWypad) / 100;
    st.funduszPracy = num(FuPr) / 100;
    st.fgsp = num(FGSP) / 100;
    st.fep = num(StaFEP) / 100;
    st.Stawka1 = num(Stawka1);
    st.Stawka2 = num(Stawka2);
    st.Stawka3 = num(Stawka3);
    st.ProgI = num(ProgI);
    st.ProgII = num(ProgII);
    st.KwotaUlgi = num(KwotaUlgi);
    st.KosztyUzyskania = num(KosztyUzyskania);
    st.PRKu = static_cast<float>(num(PRKu));
    st.MInBRUTTO = static_cast<float>(num(MInBRUTTO));
    st.KwotaGRE = static_cast<float>(num(KwotaGRE));
    st.Trzynastka = static_cast<float>(num(Trzynastka));
    st.KwPodstZDRwlasciciela = static_cast<float>(num(KwPodstZDRwlasciciela));
    return st;
}

bool loadRates(core::Session& s) {
    bool found = false;
    s.SciezkaDane = Dane::path(s);
    core::Record r = Dane::readYear(s.SciezkaDane, s.rok(), &found);
    s.Dane = r;
    float own = s.Firma.valid() ? s.Firma.f(Firma::WypadkowaStawkaF) : 0.0f;
    s.stawki = deriveRates(r, own);
    return found;
}

std::string administrator(const core::Record& dane) {
    return dane.s(Dane::Administrator1) + " " + dane.s(Dane::Administrator2);
}

std::vector<std::string> ratesReport(const core::Stawki& st) {
    std::vector<std::pair<const char*, double>> v = {
        {"rentowaPracownik", st.rentowaPracownik},
        {"rentowaPracodawca", st.rentowaPracodawca},
        {"emerytalna", st.emerytalna},
        {"chorobowa", st.chorobowa},
        {"zdrowotna", st.zdrowotna},
        {"zdrowotnaInd", st.zdrowotnaInd},
        {"wypadkowa", st.wypadkowa},
        {"funduszPracy", st.funduszPracy},
        {"fgsp", st.fgsp},
        {"fep", st.fep},
        {"Ubrent", st.Ubrent},
        {"sklRentPrd", st.sklRentPrd},
        {"Stawka1", st.Stawka1},
        {"Stawka2", st.Stawka2},
        {"Stawka3", st.Stawka3},
        {"ProgI", st.ProgI},
        {"ProgII", st.ProgII},
        {"KwotaUlgi", st.KwotaUlgi},
        {"KosztyUzyskania", st.KosztyUzyskania},
    };
    std::vector<std::pair<const char*, float>> f = {
        {"PRKu", st.PRKu},
        {"MInBRUTTO", st.MInBRUTTO},
        {"KwotaGRE", st.KwotaGRE},
        {"Trzynastka", st.Trzynastka},
        {"KwPodstZDRwlasciciela", st.KwPodstZDRwlasciciela},
    };
    std::vector<std::string> out;
    for (auto& [name, value] : v) out.push_back(std::string(name) + "=" + core::numText(value));
    for (auto& [name, value] : f) out.push_back(std::string(name) + "=" + core::numText(value));
    return out;
}

}  // namespace reference
