// The supplementary pay runs of a month: overtime, additions, the thirteenth pay, jubilee awards
// and the holiday benefit. Each run computes one person's record of its month's file anew
// (Dodatkowy::...) from the boxes of its tab and the rates of the session; the list screen
// (frmlista) and `pensja-cli supplement` both run them through `wykonajDodatek`.
#pragma once
#include <array>
#include <functional>
#include <stdexcept>
#include <string>

#include "core/dialogs.h"
#include "core/printer.h"
#include "core/record.h"
#include "core/session.h"
#include "paycalc/dodatkowe_record.h"

namespace paycalc {

// A box holding something that is not a number: the run stops with this Polish text in a box
// and no file is touched.
struct ZleDane : std::runtime_error {
    using std::runtime_error::runtime_error;
};
// The number typed into the box `pole` ("," read as "."); an empty box is 0.
double liczbaZPola(const std::string& tekst, const std::string& pole);

// The employee contributions of an amount. Pension and disability are charged on `podstawaER`
// (the annual limit of the additions may cut it), sickness on `podstawa`. The employer's
// disability and the accident contribution are for information only.
struct Skladki {
    float Emerytalna = 0, Rentowa = 0, Chorobowa = 0, RentowaPracodawcy = 0, Wypadkowa = 0, Razem = 0;
};
Skladki skladki(const core::Stawki& st, float podstawa, float podstawaER);

// Everything a run deducts from its amount and what is left to pay.
struct Rozliczenie {
    Skladki skl;
    float PodstawaZdrowotna = 0, SkladkaZdrowotna = 0, SkladkaIndywidualna = 0;
    float PodstawaPodatku = 0;
    double StawkaPodatku = 0;
    float PodatekBrutto = 0, PodatekNetto = 0, RazemPotracenia = 0, PlacaNetto = 0, DoWyplaty = 0, NaROR = 0;
};
// Tax and health of overtime, additions and the thirteenth pay for the amount `kwota`, after the
// contributions `skl`; `potracenie` is the deduction typed in the tab, `ror` pays into the
// account. `kwotaZdrowotna` is the part of the amount that bears health (all of it but in the
// additions, whose amounts may be freed from health one by one).
Rozliczenie rozlicz(const core::Stawki& st, float kwota, const Skladki& skl, double stawka, float potracenie, bool ror,
                    float kwotaZdrowotna);
// The jubilee award and the holiday benefit: tax only, no contributions, no health.
Rozliczenie tylkoPodatek(float kwota, double stawka, bool ror);

// The tax rate of a run from field 10 of the person's record: a value above 1 is a percentage;
// the thirteenth pay and the jubilee award take Stawka1 instead, the holiday benefit always.
double stawkaPodatku(Dodatkowy::Rodzaj r, const core::Record& rec, const core::Stawki& st);

// Overtime (CmdWyliczG): the boxes of the tab as typed.
struct Nadgodziny {
    std::string Podstawa, Etat, Trudnosciowy, Potracenie;
    std::string Grupa;                // the person's group: "n" teachers, "a" administration
    std::array<std::string, 7> Il, Sta;  // hours and rates; an empty rate is filled
    bool ror = false;
};
struct WynikNadgodzin {
    double Dzielnik = 1;
    float Dodatek = 0, Godzinowa = 0;  // the allowance A and the hourly base H
    std::array<std::string, 7> Sta;    // the rate boxes after the run
    float RazemGodziny = 0, RazemKwota = 0;
    Rozliczenie r;
};
// What the overtime takes from the person's records: the job share and the group of the
// personnel record (the list's group when empty), the hardship allowance of the pay record.
struct DaneNadgodzin {
    std::string Etat, Trudnosciowy, Grupa;
};
DaneNadgodzin daneNadgodzin(const core::Session& s, const std::string& klucz);
WynikNadgodzin liczNadgodziny(const core::Session& s, core::Record& rec, const Nadgodziny& we);

// Additions (cmdWyliczD): seven amounts, each with its switches of contributions and health.
// A switch string of three characters, as the file keeps it in fields 17 to 23: "1" frees the
// amount from tax, contributions, health in that order.
inline constexpr int kDodatki = 7;
std::string domyslneFlagi(int i);  // 0-based: the five first bear everything, the last two no contributions
struct Dodatki {
    std::array<std::string, kDodatki> Kwoty, Flagi;
    std::string Wczesniej, Potracenie;  // txtBrOD01: earlier payments of the year
    float ZListy = 0;                   // the list's own contribution base of the month
    bool ror = false;
};
struct WynikDodatkow {
    float RazemKwota = 0, Podstawa = 0, PodstawaER = 0;
    double StopaEmerytalna = 0, StopaRentowa = 0;  // the rates shown in LbstEmerD, lbstRentD
    std::string Info;                              // lbInfo
    Rozliczenie r;
};
WynikDodatkow liczDodatki(const core::Session& s, core::Record& rec, const Dodatki& we);
// Field 140 of the month's ledger of the list for the person; 0 without a ledger or a record.
float podstawaZListy(const core::Session& s, const std::string& klucz);

// The thirteenth pay (cmdWyliczT): K = base x percent / 100.
struct Trzynastka {
    std::string OdKwoty, Wskaznik, Potracenie;
    bool ror = false;
};
Rozliczenie liczTrzynastke(const core::Session& s, core::Record& rec, const Trzynastka& we);

// The jubilee award (cmdWyliczJ) and the holiday benefit (cmdWyliczSwUrlopowy).
Rozliczenie liczTylkoPodatek(const core::Session& s, core::Record& rec, Dodatkowy::Rodzaj r, const std::string& kwota,
                             bool ror);

// The record a person gets on the founding of a month's file or when first computed: name,
// key and code, and from the pay record the base (overtime), tax rate, account, account switch
// and the year's gross.
core::Record nowyRekord(const core::Session& s, Dodatkowy::Rodzaj r, const std::string& nazwisko,
                        const std::string& imie, const std::string& klucz, const std::string& kod,
                        const core::Record* placa);
// Founds the month's file of a kind from the personnel and pay records of the list.
void zalozZbiorDodatkowy(const core::Session& s, Dodatkowy::Rodzaj r);

// The box of a run with no person chosen.
const char* komunikatBezOsoby(Dodatkowy::Rodzaj r);

enum class Przebieg { Wyliczono, BezOsoby, BrakZbioru, ZleDane, PozaZbiorem };
// The common frame of the five runs for the session's person (KluczOsoby and the names): the
// month's file copied record by record, the person's record computed anew by `licz` in its
// place, or added at the end the first time (the holiday benefit only updates a record that is
// there). Without the month's file or with a bad box it shows a box and changes nothing.
Przebieg wykonajDodatek(core::Session& s, core::Dialogs& ui, Dodatkowy::Rodzaj r,
                        const std::function<void(core::Record&)>& licz);

// The delete commands: the month's file of the kind removed (questions and boxes by kind).
bool usunDodatki(const core::Session& s, core::Dialogs& ui, Dodatkowy::Rodzaj r);

// The deductions of a computed record as the file keeps them: the contributions are what the
// deductions hold beside health and tax; the three parts only where they follow from the base
// alone (overtime and the thirteenth pay, where the annual limit does not cut them).
Rozliczenie zRekordu(Dodatkowy::Rodzaj r, const core::Record& rec, const core::Stawki& st);

// The printed list of a run of the month: one line a person with an amount, the totals.
// false (and a box) when the month's file is missing.
bool drukujDodatki(const core::Session& s, core::Dialogs& ui, Dodatkowy::Rodzaj r);

}  // namespace paycalc
