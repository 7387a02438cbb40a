// The pay record of a list: bazy\<list>.dta, records of 155 items, one item a line.
#pragma once
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <optional>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace payinputs {

namespace Pay {
enum : int {
    Poczatek = 1, Nazwisko, Imie, Pesel, KodUbezpieczenia, Zasadnicza, Funkcyjny, Stazowy, Premia, Specjalny,
    Inny, Motywacyjny, Wiejski, Specjalistyczny, Wychowawczy, Trudnosciowy, Ekwiwalent, Nocny, Wyrownania,
    Szkodliwy, StawkaP, DataZatrudnienia, DodatekStazowy, RozliczenieWspolne, SamotnaMatka, WskTabeli, ROR,
    RorGodziny, RorDodatki, KosztyUzyskania, KwotaUlgi, Mieszkaniowy, Dojazd, UlgaInwestycyjna, ZastosStaPOD,
    NumerKontaROR, ZFMPozyczka, ZFMRata, KZPWklady, KZPpozyczka, KZPRata, KZPSkladka, Rezerwa43, POTRInne,
    Zwiazek, Solidarnosc, PZU, Potracenie2, PotraceniaPoZasilkach, Potracenie1, Dokument, Obywatelstwo,
    Zasilek1, Zasilek2, Zasilek3, Zasilek4, Zasilek5, Zasilek6, SredniaCH1, Liczbadni1, okresOd1, okresDo1,
    KodPrzerwy1, Ch1Pr, SredniaCH2, Liczbadni2, okresOd2, okresDo2, KodPrzerwy2, Ch2Pr, SredniaCH3, Liczbadni3,
    okresOd3, okresDo3, KodPrzerwy3, Ch3Pr, SredniaCH4, Liczbadni4, okresOd4, okresDo4, KodPrzerwy4, Ch4Pr,
    KwotaCh1, KwotaCh2, KwotaCh3, KwotaCh4, Grupa, Rezerwa88, Rezerwa89, ZnacznikCh1, Rezerwa91, ZnacznikCh3,
    ZnacznikCh4, Rezerwa94, Wypadkowa, Rezerwa96, Rezerwa97, Rezerwa98, Rezerwa99, DataZatrudnieniaDO, Rentowa,
    BZP3dni, BZP3Od, BZP3Do, BZP3Kod, Rezerwa106, Emerytalna, BZP1dni, BZP1Od, BZP1Do, BZP1Kod, BZP2dni,
    BZP2Od, BZP2Do, BZP2Kod, Rezerwa116, Rezerwa117, Rezerwa118, Rezerwa119, Rezerwa120, Rezerwa121,
    Rezerwa122, Rezerwa123, Rezerwa124, Rezerwa125, Rezerwa126, Rezerwa127, SredniaChorobowa, DniChorobyOd01,
    BruttoOd01, Chorobowa, Zdrowotna, DataZerowania, Rezerwa134, Rezerwa135, Rezerwa136, Rezerwa137,
    Rezerwa138, Rezerwa139, Rezerwa140, Rezerwa141, Rezerwa142, Rezerwa143, Rezerwa144, Rezerwa145,
    WskaznikEtatu, Rezerwa147, Rezerwa148, EFPomostowy, Rezerwa150, Rezerwa151, Rezerwa152, RodzajUmowy, Numer,
    Koniec, Count = Koniec
};
const core::Schema& schema();
// bazy\<NazwaZbioru>.dta of the session's payer (SciezkaBazy when it is set).
std::filesystem::path path(const core::Session& s);
std::vector<core::Record> readAll(const std::filesystem::path& file);

// The markers every writer puts at the two ends of a record.
inline constexpr const char* kPoczatek = "<Poczatek>";
inline constexpr const char* kKoniec = "<Koniec>";
// Readies records for writing back: each gets the markers (`koniec` as its end marker) and its
// running number in the file, counted from 1 (Error 6 past the 16-bit range).
void renumber(std::vector<core::Record>& recs, const std::string& koniec = kKoniec);
// The rewrite of every pay-file writer: reads the whole file, applies `change` to each record
// whose identifier (kluczOsoby) is `klucz`, renumbers and marks all records, and writes the file
// back through `tempName` in its folder. Returns how many records matched. A failure leaves the
// file as it was.
int replace(const std::filesystem::path& file, const std::string& klucz,
            const std::function<void(core::Record&)>& change, const std::string& tempName,
            const std::string& koniec = kKoniec);

// The chosen person's record for a screen that edits part of it: a missing pay file is made
// empty after the box with `missingText` (titled "Brak zbioru"); of several records of the
// person the last one in the file is returned; nothing when the person has none. Errors go to
// the screen's report.
std::optional<core::Record> openForPerson(core::Session& s, core::Form& form, const std::string& missingText);
}  // namespace Pay

// A new pay record as the pay screen makes it: the markers "<Poczatek>" and "<Koniec>", every
// amount 0 (the numeric variants bare 0), every date, flag and text "", `ZastosStaPOD` the
// first tax rate (in percent) / 100, the five contribution switches 1, `Obywatelstwo`
// "POLSKIE", `Numer` as given.
core::Record nowyRekordPlacowy(double stawka1, int numer);

// The identifier of a pay record: Pesel, or Dokument (without the blanks after it) for a
// citizenship other than Polish (the rule of the personnel file).
std::string kluczOsoby(const core::Record& pay);

}  // namespace payinputs
