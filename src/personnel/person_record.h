// The personnel file of a list: person\<list>.per, records of 41 values, one value a line.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace personnel {

namespace Osoba {
enum : int {
    Poczatek = 1, Nazwisko, Imie, DrugieImie, Pesel, Nip, DowodOsobisty, KodUbezpieczenia, KodWyksztalcenia,
    DataUrodzenia, MiejsceUrodzenia, ImieOjca, ImieMatki, Kod, Miejscowosc, Ulica, NrDomu, Lokal, Gmina, Powiat,
    Wojewodztwo, Etat, Grupa, Telefon, UrzadSkarbowy, OddzialZUS, Poczta, Rezerwa28, Paszport, Mail,
    Komorka, SkrPocztowa, NrUbezpieczenia, Obywatelstwo, DataZatrudnienia, WskaznikFP, NumerIP, FGSP, Status, Numer,
    Koniec, Count = Koniec
};
const core::Schema& schema();
// person\<NazwaZbioru>.per of the session's payer (SciezkaOsob when it is set).
std::filesystem::path path(const core::Session& s);
// person\<list>.per of another list of the session's payer.
std::filesystem::path pathOf(const core::Session& s, const std::string& lista);
std::vector<core::Record> readAll(const std::filesystem::path& file);
// A record with every value empty: the markers "<Poczatek>" and "<koniec>", value 28 an empty
// line, status and number 0.
core::Record pusty();
// The literal behind the date of hire in value 35.
inline constexpr const char* kZnacznikDaty = "X          ";
}  // namespace Osoba

// The citizenship as every reader takes it: empty or beginning with "0" reads as "POLSKIE".
std::string obywatelstwo(const std::string& stored);
// The person's identifier: the PESEL for a citizenship whose first five letters, upper-cased,
// are "POLSK", otherwise the document (passport) number.
std::string kluczOsoby(const std::string& obywatelstwoStored, const std::string& pesel, const std::string& dokument);
// The identifier of a personnel record.
std::string kluczOsoby(const core::Record& osoba);

// The first record of the file whose identifier is `klucz`, or nothing.
std::optional<core::Record> znajdzOsobe(const std::vector<core::Record>& recs, const std::string& klucz);

// The post in six characters: the numerator right-aligned in the first three, the denominator
// in the last three.
std::string etatTekst(const std::string& licznik, const std::string& mianownik);
// The fraction of the post: numerator / denominator * 100 to two decimals (Round2), / 100;
// 0 when the denominator is not above 0.
double ulamekEtatu(const std::string& licznik, const std::string& mianownik);
// The date of hire of value 35: its first ten characters when it has exactly 21, else "".
std::string dataZatrudnienia(const std::string& value35);

// The birth date derived from the PESEL on a click in the birth date box: `tekst` is what the
// box holds. A text of 10 characters with "." third keeps its year and takes day and month from
// the PESEL; otherwise a PESEL of 11 characters gives day, month as coded (a month above 12 is
// kept), and "20" or "19" before its first two digits by its third digit. Any other PESEL
// leaves the text as it is. No check digit, no sex: the PESEL is taken as it stands.
std::string dataUrodzeniaZPesel(const std::string& tekst, const std::string& pesel);

// The person as the pay screens see it, from a personnel record.
core::EkranOsoby ekranOsoby(const core::Record& osoba);
// Fills s.Osoba from the record of s.KluczOsoby in the list's file, when the person screen has
// not filled it. Returns whether the person was found (a missing file finds nobody).
bool wczytajEkranOsoby(core::Session& s);

// The line of a person on the pay-list workspace: the running number right-aligned in 3,
// surname from column 5 (25), first name from column 31 (20), the identifier from column 56
// (11), then "Tak"/"Nie" by the status, the group and the post, and the insurance code in the
// last 6 characters.
std::string wierszListy(int numer, const core::Record& osoba);

}  // namespace personnel
