// The per-diem allowance of one position (leg) of a trip: the hours between departure and
// arrival, the part of a day, the number of per-diems and their value in the currency and in
// złoty.
#pragma once
#include <optional>
#include <string>

namespace trips {

// A box the calculation stops or warns with.
struct Komunikat {
    std::string tekst, tytul;
};

struct Wyjazd {
    std::string miejscowoscW, dataW, godzW;  // dd.mm.rrrr, hh:mm
    std::string miejscowoscP, dataP, godzP;
};

struct Godziny {
    double dni = 0;      // whole days D
    double godziny = 0;  // hours H, the minutes as hundredths (30 minutes add 0.30)
    bool przezKoniecMiesiaca = false;  // arrival in another month: the count is set by hand
};

// Checks that every place, date and time is there and that the arrival is not before the
// departure (year, month, day); then D and H as the program counts them.
std::optional<Komunikat> sprawdz(const Wyjazd& w);
Godziny policzGodziny(const Wyjazd& w);
// 0.5 from 8 to below 12 hours, 1 from 12 hours, otherwise 0.
double czescDoby(double godziny);

// What the position's labels show.
struct Wartosci {
    std::string lbRazemGodzin, txtWskaznikDiety, lbStawka, lbWartoscWaluty, lbKurs, lbWartoscPLN;
    float wartoscPLN = 0;
};
// The values from the number of per-diems, the daily rate and the exchange rate as typed
// (decimal comma allowed; an empty exchange rate counts as 1).
Wartosci wartosci(double razemGodzin, double iloscDiet, const std::string& stawka, const std::string& kurs);

// The per-diem count of a trip starting on `dataW` may not run past the month's last day: the
// box, and the count cut to the days up to the month's end.
std::optional<Komunikat> koniecMiesiaca(const std::string& dataW, double& iloscDiet);

// A number typed on the screen: "," read as ".".
double liczba(const std::string& tekst);

}  // namespace trips
