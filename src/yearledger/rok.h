// The year of one employee: the twelve monthly ledgers (karta\<list><RRmm>.dta) and the
// supplementary files of the months (overtime, additions, holiday benefit, jubilee award) and
// of the year (the thirteenth pay, trzynastki\<list>Trz<RR>.dta), read once; the grids of the
// yearly ledger screen worked out from them; the blanking of one month of a ledger.
#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace yearledger {

struct MiesiacRoku {
    std::optional<core::Record> karta;    // the person's ledger record of the month
    std::optional<core::Record> godziny;  // the person's overtime record
    std::optional<core::Record> dodatki;  // the person's additions record
    std::optional<core::Record> swiadczenie, jubileusz;
};

struct DaneRoku {
    std::string lista, klucz;
    std::string rok;  // four digits
    std::array<MiesiacRoku, 12> miesiace;
    bool jestTrzynastka = false;               // the year's thirteenth-pay file stands
    std::optional<core::Record> trzynastka;    // the person's record in it
    // The last ledger record of the year (its tax rate goes to the "Razem" row).
    const core::Record* ostatniaKarta() const;
};

// The stamp RRmm of a year (four digits) and a month 1..12.
std::string stempel(const std::string& rok, int miesiac);

// Reads the year of `klucz` (a person's key, ledger field 4) on the list. Missing files leave
// their months empty.
DaneRoku czytajRok(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& rok);

// The grid of the year: a column is a ledger field (pole > 0) or worked out (pole < 0).
enum Wyliczana : int {
    kMiesiac = 0,
    kRazemSklZUS = -1,
    kPotracenia = -2,
    kRazemSklZdr = -3,
    kPotrOgolem = -4,
    kPlaPoPotr = -5,
    kPlacaNet = -6,
    kSklFP = -7,
    kSklFGSP = -8,
};
struct Kolumna {
    const char* naglowek;
    int pole;
};
const std::vector<Kolumna>& kolumny();

// The amounts of a month's row by the columns (the cell of the month and the account number
// are 0 here), and their texts.
struct WierszRoku {
    std::vector<double> kwoty;
    std::vector<std::string> komorki;
};
WierszRoku wierszMiesiaca(int miesiac, const core::Record& karta, const core::Stawki& st);

// The 12 rows of the months (a month without a record: its number, the rest empty) and the
// closing row "Razem" with the sums, the tax rate of the last record and "   x" where a column
// has no sum.
std::vector<std::vector<std::string>> siatkaRoku(const DaneRoku& d, const core::Stawki& st);

// The contributions of a supplementary record worked out afresh from its amount (field 6) by
// the rates of the session; pension and disability 0 when the year's base before the run
// (field 16) is above the annual limit.
struct SkladkiDodatku {
    float emerytalna = 0, rentowa = 0, chorobowa = 0;
    float razem() const;
};
SkladkiDodatku skladkiDodatku(const core::Record& dod, const core::Stawki& st, bool zLimitem = true);

// The overtime grid (MSFlexGrid9) and the additions grid (MSFlexGrid8): the head row and a row
// for each month whose record has amounts.
std::vector<std::vector<std::string>> siatkaGodzin(const DaneRoku& d, const core::Stawki& st);
std::vector<std::vector<std::string>> siatkaDodatkow(const DaneRoku& d, const core::Stawki& st);
// The grid of the thirteenth pay, holiday benefits and jubilee awards (MSFlexGrid7).
std::vector<std::vector<std::string>> siatkaTrzynastki(const DaneRoku& d, const core::Stawki& st);
extern const char* const kBrakTrzynastki;  // "Brak zbioru trzynastki za ten rok dla tej grupy pracowników !"

// Blanks the month of the person in the list's ledger `RRmm`: the record stays with its name,
// key and code, every amount 0, the post "  /  ", the list flag and the switches 0; the other
// records keep their bytes. The file is rewritten through karta\tym<list>.dta. Error 53 when
// the ledger is missing; false when the person has no record in it.
bool wyzerujMiesiac(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& RRmm);
extern const char* const kBrakKartoteki;  // "Brak kartoteki za wybrany miesiac"
extern const char* const kPodajDate;      // "Podaj date w formacie RRmm !"

// A cell's text of an amount: two decimals.
std::string kwotaTekst(double v);

}  // namespace yearledger
