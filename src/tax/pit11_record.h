// The annual statements of a list: PIT11\<list><RR>12.dta, records of 108 items, one item a
// line, each ended by "Koniec". Items 2 to 31 are the person's values 2 to 31 of the personnel
// file as they stood there.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace tax {

namespace Pit11 {
enum : int {
    Poczatek = 1,
    Nazwisko, Imie, DrugieImie, Pesel, Nip, DowodOsobisty, KodUbezpieczenia, KodWyksztalcenia, DataUrodzenia,
    MiejsceUrodzenia, ImieOjca, ImieMatki, Kod, Miejscowosc, Ulica, NrDomu, Lokal, Gmina, Powiat, Wojewodztwo,
    Etat, Grupa, Telefon, UrzadSkarbowy, OddzialZUS, Poczta, Rezerwa28, Paszport, Mail, Komorka,
    NaLiscie,
    RazemPlaca, RazemGodziny, RazemDodatki, RazemRazem, RazemKoszty, RazemSkladkiZDRi, NFZRazem, RazemSkladkiZUS,
    RazemUlga, RazemZaliczka,
    RMII0, RMII1, SumaRobocza, RMII2, RMII8 = RMII2 + 6,
    KUII0, KUII4 = KUII0 + 4,
    SkladkiZDRiII0, SkladkiZDRiII5 = SkladkiZDRiII0 + 5,
    NFZII0, NFZII5 = NFZII0 + 5,
    SKLZUSII0, SKLZUSII8 = SKLZUSII0 + 8,
    ZaliczkaII0, ZaliczkaII8 = ZaliczkaII0 + 8,
    SumaRMII, SumaKUII, SumaSkladkiZUS, SumaNFZ,
    Przychody77, Przychody78, PitR, Trzynastka, NFZT, SKLZDIT, SklZUST, ZaliczkaT, Jubileusz, ZaliczkaNJ,
    SwUrlopowe, ZaliczkaSU, Ulga11, Rezerwa105, KosztyU, Rezerwa107, Koniec,
    Count = Koniec
};
const core::Schema& schema();
// The item of row `i` (0-based) of txtRMII: items 43, 44, then 46 to 52.
int poleRMII(int i);

// PIT11\<list><RR>12.dta of the session's payer, RR from the list date.
std::filesystem::path path(const core::Session& s, const std::string& lista);
std::vector<core::Record> readAll(const std::filesystem::path& file);
// Writes the records through PIT11\Tym.dat.
void writeAll(const std::filesystem::path& file, const std::vector<core::Record>& recs);
// A record of a person: the marker, values 2 to 31 and the status of the personnel record,
// every amount 0, the place-holders empty and "Koniec".
core::Record nowy(const core::Record& osoba);
// The index of the record whose PESEL, trimmed, is `pesel`, or -1.
int znajdz(const std::vector<core::Record>& recs, const std::string& pesel);
}  // namespace Pit11

}  // namespace tax
