// The month result block of the pay calculation: 32-bit floats, filled by the calculation of
// one employee and read by its caller straight afterwards. Fields that a path of the
// calculation does not assign keep the previous employee's values (the pay lists rely on it
// for insurance code "051"), so the block lives in the session and is never cleared between
// employees.
#pragma once
#include <array>
#include <cstdint>

#include "core/record.h"

namespace core {

// One sick line of the pay record as it stood before the calculation: the six items copied
// for the printouts and the ledger (they keep their kind: text, number or nothing).
struct LiniaChorobowa {
    Item SredniaCH, Liczbadni, okresOd, okresDo, KodPrzerwy, ChPr;
};

// The two tables of the block, the amounts of the month (a few are days or a rate): the one list
// of names that the report of the calculation, the ledger record and the tests go through
// (paycalc/pola_wyniku.h) holds every one of them.
struct TabeleWyniku {
    // --- The elements and gross pay -------------------------------------------------------
    float wZasadnicza = 0;
    float wFunkcyjny = 0;
    float wStazowy = 0;
    float wPremia = 0;
    float wSpecjalny = 0;
    float wInny = 0;
    float wMotywacyjny = 0;
    float wWiejski = 0;
    float wSpecjalistyczny = 0;
    float wWychowawczy = 0;
    float wTrudnosciowy = 0;
    float wEkwiwalent = 0;
    float wNocny = 0;
    float wWyrownania = 0;
    float wSzkodliwy = 0;
    float wMieszkaniowy = 0;
    float wChorobowePlatne = 0;  // sick lines of codes 331 and 333
    float wZasilki = 0;          // sick lines of other codes
    float wZasilki311 = 0;       // code 311 and the special cases of line 1
    float wDni311 = 0;
    float wDniZasilku = 0;
    float wUrlopowe = 0;         // leave pay of the month (the leave year file)
    float wBrutto = 0;
    float wBruttoPelne = 0;      // gross as if nobody had been absent

    // --- Contributions, tax and net pay --------------------------------------------------
    float wPodstawaZUS = 0;
    float wEmerytalna = 0;
    float wRentowa = 0;
    float wChorobowa = 0;
    float wRentowaPracodawcy = 0;
    float wWypadkowa = 0;
    float wKoszty = 0;
    float wPodstawaPodatku = 0;
    float wPodatekNaliczony = 0;
    float wStawkaPodatku = 0;  // a fraction
    float wUlgaZastosowana = 0;
    float wUlgaNiewykorzystana = 0;
    float wPodstawaZdrowotnej = 0;
    float wZdrowotnaOdliczana = 0;
    float wZdrowotnaIndywidualna = 0;
    float wZaliczka = 0;
    float wPodatekRazem = 0;
    float wRataZFM = 0;
    float wRataKZP = 0;
    float wSkladkaKZP = 0;
    float wPotraceniaInne = 0;
    float wPotracenie1 = 0;
    float wPotracenie2 = 0;
    float wZwiazek = 0;
    float wSolidarnosc = 0;
    float wPZU = 0;
    float wPotraceniaPoZasilkach = 0;
    float wPotraceniaRazem = 0;
    float wNetto = 0;
    float wDoWyplaty = 0;
    float wNaROR = 0;
    float wNiedobor = 0;
    float wPodatekZasilki = 0;
    float wPodatekZasilkiPelny = 0;
    float wZasilkiNaROR = 0;
    float wZasilkiDoKasy = 0;
    float wSkladkiOdZasilkow = 0;
    float wPodstawaFP = 0;
    float wPodstawaFGSP = 0;
};

struct WynikMiesiaca : TabeleWyniku {
    // --- Copies of the pay record for the printouts and the ledger -----------------------
    std::array<LiniaChorobowa, 4> wLinie{};  // wSredniaCH1 .. wCh4Pr
    Item wBZP3dni, wBZP1dni, wBZP2dni;
    Item wSredniaChorobowa;
    std::array<Item, 6> wZasilek{};  // wZasilek1 .. wZasilek6

    // --- Working values of the calculation, kept for the callers -------------------------
    std::int16_t dniBazowe = 0;        // 30, or 31 for code "051" in a 31-day month
    std::int16_t dniWMiesiacu = 0;     // calendar days of the list month
    std::int16_t dniChorobowe = 0;     // days of the four sick lines
    float dniBezplatne = 0;            // unpaid days, capped at dniBazowe
    std::int16_t dniNieobecnosci = 0;  // days that reduce monthly pay (divisor 30)
    double wspolczynnik = 0;           // f = 1 - dniNieobecnosci / 30
    float zasadniczaPelna = 0;         // base pay after the job share, before absence
    std::int16_t godzinyP = 0;         // absence hours of a group "p" worker
    int stazLat = 0;
    std::int16_t stazProcent = 0;
    std::int16_t DniUrlopu = 0;        // leave days of the list month
    float StawkaUrlopowa = 0;          // daily leave rate of the list month
    double sumaChorobowePlatne = 0;    // the sick sums before their rounding
    double sumaZasilki = 0;
    double sumaZasilki311 = 0;
    float dniZasilkoweRazem = 0;       // benefit days, added up from one employee to the next
    float stazowyZUS = 0;              // seniority allowance reduced by f, for the contribution base
    float stazowyZdrowotna = 0;        // the same, for the health base
    float wiejskiUdzial = 0;           // rural allowance reduced by f
    float mieszkaniowyUdzial = 0;      // housing allowance reduced by f
    float sumaSkladekPracownika = 0;   // old-age + rent + sickness of the employee
    float narastajaco = 0;             // gross of the year so far with this month
    double podstawaRE = 0;             // base of old-age and rent
    float dochodNarastajaco = 0;       // income of the year so far
    float podatekZasilki = 0;          // tax on benefits before its last rounding
    float wiekLat = 0;                 // age in years on the list date

    // The pay record as it stood after the calculation (Stazowy, Premia … as reckoned) and the
    // personnel record it used (the birth date built from the PESEL when it was empty).
    Record placa;
    Record osoba;
};

}  // namespace core
