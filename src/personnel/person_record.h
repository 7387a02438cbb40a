// The personnel file of a list: person\<list>.per, records of 41 values, one value a line.
#pragma once
#include <filesystem>
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
std::vector<core::Record> readAll(const std::filesystem::path& file);
}  // namespace Osoba

// The citizenship as every reader takes it: empty or beginning with "0" reads as "POLSKIE".
std::string obywatelstwo(const std::string& stored);
// The person's identifier: the PESEL for a citizenship whose first five letters, upper-cased,
// are "POLSK", otherwise the document (passport) number.
std::string kluczOsoby(const std::string& obywatelstwoStored, const std::string& pesel, const std::string& dokument);
// The identifier of a personnel record.
std::string kluczOsoby(const core::Record& osoba);

}  // namespace personnel
