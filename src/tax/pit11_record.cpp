#include "tax/pit11_record.h"

#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"

using core::FieldType;
namespace fs = std::filesystem;

namespace tax {

namespace Pit11 {

static const core::FieldDef kFields[] = {
    {"Poczatek", FieldType::String},
    {"Nazwisko", FieldType::String},
    {"Imie", FieldType::String},
    {"DrugieImie", FieldType::String},
    {"Pesel", FieldType::String},
    {"Nip", FieldType::String},
    {"DowodOsobisty", FieldType::String},
    {"KodUbezpieczenia", FieldType::String},
    {"KodWyksztalcenia", FieldType::String},
    {"DataUrodzenia", FieldType::String},
    {"MiejsceUrodzenia", FieldType::String},
    {"ImieOjca", FieldType::String},
    {"ImieMatki", FieldType::String},
    {"Kod", FieldType::String},
    {"Miejscowosc", FieldType::String},
    {"Ulica", FieldType::String},
    {"NrDomu", FieldType::Variant},
    {"Lokal", FieldType::String},
    {"Gmina", FieldType::String},
    {"Powiat", FieldType::String},
    {"Wojewodztwo", FieldType::String},
    {"Etat", FieldType::String},
    {"Grupa", FieldType::String},
    {"Telefon", FieldType::String},
    {"UrzadSkarbowy", FieldType::String},
    {"OddzialZUS", FieldType::String},
    {"Poczta", FieldType::String},
    {"Rezerwa28", FieldType::Variant},
    {"Paszport", FieldType::String},
    {"Mail", FieldType::String},
    {"Komorka", FieldType::String},
    {"NaLiscie", FieldType::Int16},
    {"RazemPlaca", FieldType::Double},
    {"RazemGodziny", FieldType::Double},
    {"RazemDodatki", FieldType::Double},
    {"RazemRazem", FieldType::Double},
    {"RazemKoszty", FieldType::Double},
    {"RazemSkladkiZDRi", FieldType::Double},
    {"NFZRazem", FieldType::Double},
    {"RazemSkladkiZUS", FieldType::Double},
    {"RazemUlga", FieldType::Double},
    {"RazemZaliczka", FieldType::Float},
    {"RMII0", FieldType::Double},
    {"RMII1", FieldType::Double},
    {"SumaRobocza", FieldType::Double},
    {"RMII2", FieldType::Double},
    {"RMII3", FieldType::Double},
    {"RMII4", FieldType::Double},
    {"RMII5", FieldType::Double},
    {"RMII6", FieldType::Double},
    {"RMII7", FieldType::Double},
    {"RMII8", FieldType::Double},
    {"KUII0", FieldType::Double},
    {"KUII1", FieldType::Double},
    {"KUII2", FieldType::Double},
    {"KUII3", FieldType::Double},
    {"KUII4", FieldType::Double},
    {"SkladkiZDRiII0", FieldType::Double},
    {"SkladkiZDRiII1", FieldType::Double},
    {"SkladkiZDRiII2", FieldType::Double},
    {"SkladkiZDRiII3", FieldType::Double},
    {"SkladkiZDRiII4", FieldType::Double},
    {"SkladkiZDRiII5", FieldType::Double},
    {"NFZII0", FieldType::Double},
    {"NFZII1", FieldType::Double},
    {"NFZII2", FieldType::Double},
    {"NFZII3", FieldType::Double},
    {"NFZII4", FieldType::Double},
    {"NFZII5", FieldType::Double},
    {"SKLZUSII0", FieldType::Double},
    {"SKLZUSII1", FieldType::Double},
    {"SKLZUSII2", FieldType::Double},
    {"SKLZUSII3", FieldType::Double},
    {"SKLZUSII4", FieldType::Double},
    {"SKLZUSII5", FieldType::Double},
    {"SKLZUSII6", FieldType::Double},
    {"SKLZUSII7", FieldType::Double},
    {"SKLZUSII8", FieldType::Double},
    {"ZaliczkaII0", FieldType::Double},
    {"ZaliczkaII1", FieldType::Double},
    {"ZaliczkaII2", FieldType::Double},
    {"ZaliczkaII3", FieldType::Double},
    {"ZaliczkaII4", FieldType::Double},
    {"ZaliczkaII5", FieldType::Double},
    {"ZaliczkaII6", FieldType::Double},
    {"ZaliczkaII7", FieldType::Double},
    {"ZaliczkaII8", FieldType::Double},
    {"SumaRMII", FieldType::Double},
    {"SumaKUII", FieldType::Double},
    {"SumaSkladkiZUS", FieldType::Double},
    {"SumaNFZ", FieldType::Double},
    {"Przychody77", FieldType::Double},
    {"Przychody78", FieldType::Double},
    {"PitR", FieldType::Double},
    {"Trzynastka", FieldType::Double},
    {"NFZT", FieldType::Double},
    {"SKLZDIT", FieldType::Double},
    {"SklZUST", FieldType::Double},
    {"ZaliczkaT", FieldType::Double},
    {"Jubileusz", FieldType::Double},
    {"ZaliczkaNJ", FieldType::Double},
    {"SwUrlopowe", FieldType::Double},
    {"ZaliczkaSU", FieldType::Double},
    {"Ulga11", FieldType::Double},
    {"Rezerwa105", FieldType::String},
    {"KosztyU", FieldType::Double},
    {"Rezerwa107", FieldType::String},
    {"Koniec", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"PIT11\\<lista><RR>12.dta", kFields, 1};

const core::Schema& schema() { return kSchema; }

int poleRMII(int i) { return i < 2 ? RMII0 + i : RMII2 + (i - 2); }

fs::path path(const core::Session& s, const std::string& lista) {
    core::ensureFolder(s.payerFolder(), {"PIT11"});
    return s.payerPath({"PIT11", lista + core::Right(s.DataListy, 2) + "12.dta"});
}

std::vector<core::Record> readAll(const fs::path& file) { return core::readAll(file, kSchema); }

void writeAll(const fs::path& file, const std::vector<core::Record>& recs) { core::writeAll(file, recs, "Tym.dat"); }

core::Record nowy(const core::Record& osoba) {
    core::Record r(kSchema);
    r.set(Poczatek, "<Poczatek>");
    for (int n = Nazwisko; n <= Komorka; ++n) r.setItem(n, osoba.item(n));
    r.set(NaLiscie, osoba.i(personnel::Osoba::Status));
    for (int n = RazemPlaca; n <= KosztyU; ++n)
        if (n != Rezerwa105) r.set(n, 0.0);
    r.set(Rezerwa105, "");
    r.set(Rezerwa107, "");
    r.set(Koniec, "Koniec");
    return r;
}

int znajdz(const std::vector<core::Record>& recs, const std::string& pesel) {
    for (std::size_t i = 0; i < recs.size(); ++i)
        if (core::Trim(recs[i].s(Pesel)) == core::Trim(pesel)) return static_cast<int>(i);
    return -1;
}

}  // namespace Pit11

}  // namespace tax
