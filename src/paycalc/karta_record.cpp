#include "paycalc/karta_record.h"

#include <algorithm>
#include <fstream>

#include "core/paths.h"

using core::FieldType;

namespace paycalc {

namespace Karta {

static const core::FieldDef kFields[] = {
    {"Poczatek", FieldType::String},
    {"Nazwisko", FieldType::String},
    {"Imie", FieldType::String},
    {"Klucz", FieldType::String},
    {"KodUbezpieczenia", FieldType::String},
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
    {"StawkaZastosowana", FieldType::Float},
    {"DataZatrudnienia", FieldType::Blank},
    {"OpcjaStazowy", FieldType::Blank},
    {"OpcjaWspolne", FieldType::Blank},
    {"OpcjaSamotna", FieldType::Blank},
    {"WskTabeli", FieldType::Blank},
    {"NaROR", FieldType::Float},
    {"OpcjaRORGodziny", FieldType::Blank},
    {"OpcjaRORDodatki", FieldType::Blank},
    {"KosztyUzyskania", FieldType::Float},
    {"KwotaUlgi", FieldType::Float},
    {"Mieszkaniowy", FieldType::Float},
    {"OpcjaDojezdzajacy", FieldType::Blank},
    {"UlgaInwestycyjna", FieldType::Float},
    {"StawkaPodatku", FieldType::Float},
    {"NumerKonta", FieldType::String},
    {"ZFMPozyczka", FieldType::Blank},
    {"ZFMRata", FieldType::Float},
    {"KZPWklady", FieldType::Blank},
    {"KZPPozyczka", FieldType::Blank},
    {"KZPRata", FieldType::Float},
    {"KZPSkladka", FieldType::Float},
    {"ZasilkiDoROR", FieldType::Float},
    {"PotraceniaInne", FieldType::Float},
    {"ZwiazekZawodowy", FieldType::Float},
    {"Solidarnosc", FieldType::Float},
    {"PZU", FieldType::Float},
    {"Potracenie2", FieldType::Float},
    {"Potracenie3", FieldType::Float},
    {"Potracenie1", FieldType::Float},
    {"Dokument", FieldType::String},
    {"Obywatelstwo", FieldType::String},
    {"ZasilekPielegnacyjny", FieldType::Variant},
    {"ZasilekRodzinny", FieldType::Variant},
    {"ZasilekWychowawczy", FieldType::Variant},
    {"ZasilekZUS", FieldType::Variant},
    {"Zasilek5", FieldType::Variant},
    {"Zasilek6", FieldType::Variant},
    {"SredniaCH1", FieldType::Float},
    {"LiczbaDni1", FieldType::Float},
    {"OkresOd1", FieldType::String},
    {"OkresDo1", FieldType::String},
    {"KodPrzerwy1", FieldType::Variant},
    {"ChPr1", FieldType::Variant},
    {"SredniaCH2", FieldType::Float},
    {"LiczbaDni2", FieldType::Float},
    {"OkresOd2", FieldType::Variant},
    {"OkresDo2", FieldType::Variant},
    {"KodPrzerwy2", FieldType::Variant},
    {"ChPr2", FieldType::Variant},
    {"SredniaCH3", FieldType::Float},
    {"LiczbaDni3", FieldType::Variant},
    {"OkresOd3", FieldType::Variant},
    {"OkresDo3", FieldType::Variant},
    {"KodPrzerwy3", FieldType::Variant},
    {"ChPr3", FieldType::Variant},
    {"SredniaCH4", FieldType::Float},
    {"LiczbaDni4", FieldType::Variant},
    {"OkresOd4", FieldType::Variant},
    {"OkresDo4", FieldType::Variant},
    {"KodPrzerwy4", FieldType::Variant},
    {"ChPr4", FieldType::Variant},
    {"KwotaLinii1", FieldType::Variant},
    {"KwotaLinii2", FieldType::Variant},
    {"KwotaLinii3", FieldType::Variant},
    {"KwotaLinii4", FieldType::Variant},
    {"Grupa", FieldType::String},
    {"Rezerwa88", FieldType::Variant},
    {"Podatek", FieldType::Float},
    {"Rezerwa90", FieldType::Variant},
    {"Rezerwa91", FieldType::Variant},
    {"Rezerwa92", FieldType::Variant},
    {"Rezerwa93", FieldType::Variant},
    {"Rezerwa94", FieldType::Blank},
    {"SkladkaWypadkowa", FieldType::Float},
    {"Rezerwa96", FieldType::Variant},
    {"Rezerwa97", FieldType::Variant},
    {"Rezerwa98", FieldType::Variant},
    {"Rezerwa99", FieldType::Variant},
    {"DataZatrudnieniaDo", FieldType::Blank},
    {"SkladkaRentowa", FieldType::Float},
    {"Rezerwa102", FieldType::Blank},
    {"Rezerwa103", FieldType::Blank},
    {"Rezerwa104", FieldType::Blank},
    {"Rezerwa105", FieldType::Blank},
    {"Rezerwa106", FieldType::Blank},
    {"SkladkaEmerytalna", FieldType::Float},
    {"Rezerwa108", FieldType::Blank},
    {"Rezerwa109", FieldType::Blank},
    {"Rezerwa110", FieldType::Blank},
    {"Rezerwa111", FieldType::Blank},
    {"Rezerwa112", FieldType::Blank},
    {"Rezerwa113", FieldType::Blank},
    {"Rezerwa114", FieldType::Blank},
    {"Rezerwa115", FieldType::Blank},
    {"DniUrlopu", FieldType::Int16},
    {"StawkaUrlopowa", FieldType::Float},
    {"Kod", FieldType::String},
    {"Miejscowosc", FieldType::String},
    {"Ulica", FieldType::String},
    {"NrDomu", FieldType::String},
    {"Lokal", FieldType::String},
    {"Rezerwa123", FieldType::Blank},
    {"Rezerwa124", FieldType::Blank},
    {"Rezerwa125", FieldType::Blank},
    {"DataUrodzenia", FieldType::String},
    {"StawkaZdrowotna30", FieldType::Float},
    {"SredniaChorobowa", FieldType::Float},
    {"DniChorobyOd01", FieldType::Blank},
    {"BruttoOd01", FieldType::Blank},
    {"SkladkaChorobowa", FieldType::Float},
    {"SkladkaZdrowotnaPozostala", FieldType::Float},
    {"DataListy", FieldType::String},
    {"PodatekNetto", FieldType::Float},
    {"Brutto", FieldType::Float},
    {"PodstawaPodatku", FieldType::Float},
    {"Rezerwa137", FieldType::Blank},
    {"PodstawaZdrowotna", FieldType::Float},
    {"StawkaZdrowotna15", FieldType::Float},
    {"PodstawaZUS", FieldType::Float},
    {"StopaEmerytalna", FieldType::Double},
    {"StopaRentowa", FieldType::Double},
    {"StopaChorobowa", FieldType::Double},
    {"StopaWypadkowa", FieldType::Double},
    {"Rezerwa145", FieldType::Blank},
    {"SkladkaZdrowotnaOdliczana", FieldType::Float},
    {"Etat", FieldType::String},
    {"ChoroboweZUS", FieldType::Float},
    {"DoWyplaty", FieldType::Float},
    {"NaLiscie", FieldType::Int16},
    {"ChorobowePracodawca", FieldType::Float},
    {"CheckEmerytalna", FieldType::Int16},
    {"CheckRentowa", FieldType::Int16},
    {"CheckChorobowa", FieldType::Int16},
    {"CheckWypadkowa", FieldType::Int16},
    {"CheckZdrowotna", FieldType::Int16},
    {"EFPomostowy", FieldType::Blank},
    {"WskaznikFP", FieldType::String},
    {"PodstawaFP", FieldType::Float},
    {"FGSP", FieldType::String},
    {"PodstawaFGSP", FieldType::Float},
    {"DowodOsobisty", FieldType::String},
    {"Rezerwa163", FieldType::Blank},
    {"Rezerwa164", FieldType::Blank},
    {"UrzadSkarbowy", FieldType::String},
    {"StopaRentowaPracodawcy", FieldType::Double},
    {"SkladkaRentowaPracodawcy", FieldType::Float},
    {"DniChorobyZakladu", FieldType::Float},
    {"DniChorobyZUS", FieldType::Float},
    {"Niedobor", FieldType::Float},
    {"ZasilkiDoKasy", FieldType::Float},
    {"PodatekOdZasilkow", FieldType::Float},
    {"UlgaNiewykorzystana", FieldType::Float},
    {"UlgaZastosowana", FieldType::Float},
    {"Urlopowe", FieldType::Float},
    {"ChoroboweWypadkowe", FieldType::Float},
    {"Koniec", FieldType::String},
};
static_assert(sizeof(kFields) / sizeof(kFields[0]) == Count);
static const core::Schema kSchema{"karta\\<lista><RRmm>.dta", kFields, 1};

const core::Schema& schema() { return kSchema; }

std::filesystem::path path(const core::Session& s, const std::string& list, const std::string& RRmm) {
    return s.payerPath({"karta", list + RRmm + ".dta"});
}

std::filesystem::path path(const core::Session& s) { return path(s, s.NazwaZbioru, s.RRmm()); }

std::vector<core::Record> readAll(const std::filesystem::path& file) { return core::readAll(file, kSchema); }

int liczbaOsob(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return 0;
    long long linie = 0;
    char ostatni = '\n';
    char buf[1 << 16];
    while (in.read(buf, sizeof buf) || in.gcount() > 0) {
        const std::streamsize n = in.gcount();
        linie += std::count(buf, buf + n, '\n');
        ostatni = buf[n - 1];
    }
    if (ostatni != '\n') ++linie;  // the last line without its end
    return static_cast<int>(linie / Count);
}

}  // namespace Karta

}  // namespace paycalc
