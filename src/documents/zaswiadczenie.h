// The earnings certificate of an employee: a stretch of months "mmRR" to "mmRR" (over the turn of
// a year when the years differ) summed from the ledgers and the supplementary files, and the
// print of the certificate of employment and earnings with its copy.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "core/printer.h"
#include "core/record.h"
#include "core/session.h"

namespace documents {

// The stamps RRmm of the months from `od` to `doOkresu` (both "mmRR"): up to December of the
// first year and from January of the second when the years differ. Empty for a text that is
// not a month.
std::vector<std::string> miesiaceOkresu(const std::string& od, const std::string& doOkresu);

struct Wlaczone {
    bool urlopowe = false;    // chkUrlopowe: holiday benefits and jubilee awards
    bool jubileusze = false;  // chkjubileusze: kept on the screen, read by nothing
    bool trzynastka = false;  // chkTrzynastka
};

struct Wiersz {
    std::string miesiac;  // "mm-rrrr", or "Trzyn"
    double brutto = 0, zus = 0, nfz = 0, podatek = 0, koszty = 0, ulga = 0;
    double netto() const { return brutto - zus - nfz - podatek; }
};

struct Sumy {
    std::vector<Wiersz> wiersze;
    // The totals, each rounded to two decimals.
    float brutto = 0, zus = 0, nfz = 0, zaliczka = 0, netto = 0, koszty = 0, ulga = 0;
};

// cmdPobierzDane: the months of the period for the person `klucz` of the list.
Sumy pobierzDane(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& od,
                 const std::string& doOkresu, Wlaczone w);

struct DaneZaswiadczenia {
    std::string nazwisko;  // "Imię Nazwisko" as printed
    std::string pesel;
    bool kobieta = false;
    core::Record kadry;        // the person's HR record (person\<list>.kdr)
    std::string od, doOkresu;  // "mmRR"
    std::string cel;           // the purpose, as typed
    double obciazenia = 0;     // court attachments
    std::string dataWydania;   // dd-mm-rrrr
    std::string platnik, miejscowosc;
};

extern const char* const kMargines;

// The certificate and its copy.
void drukujZaswiadczenie(core::Printer& p, const Sumy& sumy, const DaneZaswiadczenia& d);

// The texts of the screen and its boxes.
extern const char* const kBrakOkresu;        // "Nie uzupelniono danych w placa>kadrowe II "
extern const char* const kBrakOkresuTytul;   // "Brak okresu zatrudnienia!"
extern const char* const kBrakDanychKadr;    // "Brak uzupełnionych danych kadrowych dotyczących zakresu zatrudnienia  "
extern const char* const kCelPytanie;        // "Podaj informacje o celu wydawanego zaświadczenia"
extern const char* const kCelTytul;          // "Podaj przeznaczenie wydawanego zaświadczenia "
extern const char* const kCelPropozycja;     // " na wniosek pracownika."
extern const char* const kCelPusty;          // " na wniosek Pracownika."

}  // namespace documents
