// The files of the business trips, all in the payer's folder delegacje\:
// - DietyZaDobe.txt: the per-diem rates, four items a row (country, currency, daily rate, the
//   lodging limit, which choosing a country does not use); the program only reads it;
// - NumD<RR>.dat: the numbering of a year, one row a month of four items (the month, its name,
//   the last trip number of the month, a kept item), rewritten through NumDT<RR>.dat;
// - De<nnnnn><RRmm>.det: one trip, a header of 16 items and a position of 15 items for each leg.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace trips {

namespace Dieta {
enum : int { Kraj = 1, Waluta, Stawka, Nocleg, Count = Nocleg };
const core::Schema& schema();
}  // namespace Dieta

namespace Numeracja {
enum : int { Miesiac = 1, NazwaMiesiaca, OstatniNumer, Rezerwa4, Count = Rezerwa4 };
const core::Schema& schema();
}  // namespace Numeracja

// The header of a trip. Items 9 to 16 hold the per-diems in złoty, the means of transport, the
// date of the trip, the total due, the amount to pay (negative: to give back), the list of the
// person, and two kept items.
namespace Naglowek {
enum : int {
    NrDel = 1, Nazwisko, Imie, Pesel, Ryczalt, Nocleg, InneW, Zaliczka,
    Diety, SrodekTransportu, DataDel, RazemNaleznosc, DoWyplaty, Lista, Rezerwa15, Rezerwa16,
    Count = Rezerwa16
};
const core::Schema& schema();
}  // namespace Naglowek

// A position (leg), in the order of the columns of the positions' grid.
namespace Pozycja {
enum : int {
    Numer = 1, MiejscowoscW, DataW, GodzW, MiejscowoscP, DataP, GodzP, RazemGodz, Kraj, Waluta, Stawka, Kwota,
    KursWal, WartoscPLN, IloscDiet, Count = IloscDiet
};
const core::Schema& schema();
}  // namespace Pozycja

struct Delegacja {
    core::Record naglowek{Naglowek::schema()};
    std::vector<core::Record> pozycje;
};

// delegacje\ of the session's payer.
std::filesystem::path folder(const core::Session& s);
// De + the number padded with "0" to five digits + RR + mm of the trip's date (dd.mm.rrrr) + .det
std::string nazwaPliku(int numer, const std::string& dataDel);
Delegacja czytaj(const std::filesystem::path& plik);
void zapisz(const std::filesystem::path& plik, const Delegacja& d);
// The trips of a month (RR and mm), in the order of their numbers.
std::vector<std::filesystem::path> delegacjeMiesiaca(const std::filesystem::path& folder, const std::string& RRmm);

// The per-diem rates; a missing file gives none.
std::vector<core::Record> czytajDiety(const std::filesystem::path& folder);

// The next number of the month of `dataDel` (dd.mm.rrrr): the month's row of NumD<RR>.dat
// raised by one and the file rewritten through NumDT<RR>.dat. A missing file starts with
// twelve rows at 0.
int nastepnyNumer(const std::filesystem::path& folder, const std::string& dataDel);

}  // namespace trips
