#include "trips/pozycja.h"

#include "core/numbers.h"
#include "core/text.h"

namespace trips {

namespace {

struct Chwila {
    int rok, miesiac, dzien, godzina, minuta;
};

Chwila chwila(const std::string& data, const std::string& godz) {
    return {static_cast<int>(core::Val(core::Mid(data, 7, 4))), static_cast<int>(core::Val(core::Mid(data, 4, 2))),
            static_cast<int>(core::Val(core::Left(data, 2))), static_cast<int>(core::Val(core::Left(godz, 2))),
            static_cast<int>(core::Val(core::Right(godz, 2)))};
}

int dniMiesiaca(int rok, int miesiac) {
    static const int dni[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (miesiac < 1 || miesiac > 12) return 31;
    bool przestepny = (rok % 4 == 0 && rok % 100 != 0) || rok % 400 == 0;
    return dni[miesiac - 1] + (miesiac == 2 && przestepny ? 1 : 0);
}

}  // namespace

double liczba(const std::string& tekst) { return core::Val(core::KropkaZamiastPrzecinka(std::string(tekst))); }

std::optional<Komunikat> sprawdz(const Wyjazd& w) {
    for (const std::string* pole : {&w.miejscowoscW, &w.dataW, &w.godzW, &w.miejscowoscP, &w.dataP, &w.godzP})
        if (core::Trim(*pole).empty())
            return Komunikat{"Wpisz wszystkie dane do dodatkowej pozycji ", "Brak zasadniczych danych !"};
    Chwila a = chwila(w.dataW, w.godzW), b = chwila(w.dataP, w.godzP);
    bool przed = b.rok < a.rok || (b.rok == a.rok && b.miesiac < a.miesiac) ||
                 (b.rok == a.rok && b.miesiac == a.miesiac && b.dzien < a.dzien);
    if (przed) return Komunikat{"Źle wpisane daty nie można przyjechać przed wyjazdem", "Popraw dane!"};
    return std::nullopt;
}

Godziny policzGodziny(const Wyjazd& w) {
    Chwila a = chwila(w.dataW, w.godzW), b = chwila(w.dataP, w.godzP);
    Godziny g;
    if (b.rok != a.rok || b.miesiac != a.miesiac) {
        g.przezKoniecMiesiaca = true;
        return g;
    }
    g.dni = b.dzien - a.dzien;
    double h = b.godzina - a.godzina;
    if (g.dni == 0) {
        // The same day: whole minutes beyond the hour are dropped unless the arrival's minutes
        // are the smaller.
        if (b.minuta < a.minuta) h = h - 1 + (b.minuta + 60 - a.minuta) / 100.0;
    } else {
        int m = b.minuta - a.minuta;
        if (b.minuta < a.minuta) {
            h -= 1;
            m = b.minuta + 60 - a.minuta;
        }
        h += m / 100.0;
    }
    g.godziny = h;
    return g;
}

double czescDoby(double godziny) {
    if (godziny >= 8 && godziny < 12) return 0.5;
    if (godziny >= 12) return 1;
    return 0;
}

Wartosci wartosci(double razemGodzin, double iloscDiet, const std::string& stawka, const std::string& kurs) {
    Wartosci w;
    w.lbRazemGodzin = core::Format(razemGodzin, "##,##00.00");
    w.txtWskaznikDiety = core::numText(iloscDiet);
    w.lbStawka = stawka;
    double kwota = iloscDiet * liczba(stawka);
    w.lbWartoscWaluty = core::Format(kwota, "##,##0.00");
    double k = core::Trim(kurs).empty() ? 1.0 : liczba(kurs);
    w.lbKurs = core::Format(k, "#,####0.0000");
    w.wartoscPLN = core::Round2(k * kwota);
    w.lbWartoscPLN = core::Format(w.wartoscPLN, "##,##0.00");
    return w;
}

std::optional<Komunikat> koniecMiesiaca(const std::string& dataW, double& iloscDiet) {
    Chwila a = chwila(dataW, "00:00");
    int ostatni = dniMiesiaca(a.rok, a.miesiac);
    if (a.dzien + core::Fix(iloscDiet) - 1 <= ostatni) return std::nullopt;
    iloscDiet = ostatni - a.dzien + 1;
    return Komunikat{" Przekroczona ilośc  dni poza okres sprawozdawczy ", " Ustaw ręcznie datę Do i ilość dni!"};
}

}  // namespace trips
