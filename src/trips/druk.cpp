// The printed settlement of a trip and the summary of a month's trips, in Courier New.
#include <cmath>

#include "core/numbers.h"
#include "core/printer.h"
#include "core/text.h"
#include "trips/delegacje.h"

namespace trips {

namespace {

std::string kwota(double v) { return core::Format(v, "##,##0.00"); }
std::string kolumna(const std::string& t, std::size_t w) { return "|" + core::PadRight(t, w); }
std::string liczbaW(double v, std::size_t w) { return "|" + core::PadLeft(kwota(v), w); }

const char* const kLiniaPodwojna = "|================|==========|=======|=========|=======|=";
const char* const kLiniaPojedyncza = "|----------------|----------|-------|---------|-------|-";

void pozycja(core::Printer& p, const core::Record& z) {
    p.print(kolumna(z.s(Pozycja::MiejscowoscW), 16) + kolumna(z.s(Pozycja::DataW), 10) + kolumna(z.s(Pozycja::GodzW), 7) +
            kolumna(z.s(Pozycja::RazemGodz), 9) + kolumna(z.s(Pozycja::Waluta), 7) + "|" + z.s(Pozycja::Numer));
    p.print(kolumna(z.s(Pozycja::MiejscowoscP), 16) + kolumna(z.s(Pozycja::DataP), 10) + kolumna(z.s(Pozycja::GodzP), 7) +
            kolumna(core::numText(z.f(Pozycja::IloscDiet)), 9) + kolumna(z.s(Pozycja::Stawka), 7) + "|" +
            z.s(Pozycja::WartoscPLN));
    p.print(kLiniaPojedyncza);
}

// The amount in words: the whole złoty in words and the grosze as a fraction.
std::string slownie(double v) {
    double a = std::fabs(v);
    long zl = static_cast<long>(core::Fix(a));
    long gr = std::lround((a - static_cast<double>(zl)) * 100);
    return core::Trim(core::KwotaSlownie(std::to_string(zl))) + " " + std::to_string(gr) + "/100";
}

}  // namespace

void drukujRozliczenie(core::Printer& p, const Delegacja& d) {
    const core::Record& h = d.naglowek;
    p.setFont("Courier New", 10, false);
    p.print("        Rozliczenie delegacji nr  " + h.s(Naglowek::NrDel));
    p.print("        dla " + h.s(Naglowek::Nazwisko) + " " + h.s(Naglowek::Imie));
    p.print("       ==============================================");
    p.emptyLine();
    p.print("|Miejscowość Wyja|DataWyjazd|GodWyja|RazemGodz|Waluta |Poz.  ");
    p.print("|Miejscowość Przy|DataPrzyja|GodPrzy|IloscDiet|Stawka |Kwota PLN");
    p.print(kLiniaPodwojna);
    for (const core::Record& z : d.pozycje) pozycja(p, z);
    p.emptyLine();
    p.print(std::string("|Ryczałt         |Diety razem  ") + "  |Noclegi  |Inne   |RazemWy|Zaliczka |");
    p.print(liczbaW(h.f(Naglowek::Ryczalt), 16) + liczbaW(h.f(Naglowek::Diety), 15) + liczbaW(h.f(Naglowek::Nocleg), 9) +
            liczbaW(h.f(Naglowek::InneW), 7) + liczbaW(h.f(Naglowek::RazemNaleznosc), 7) +
            liczbaW(h.f(Naglowek::Zaliczka), 9) + "|");
    double doWyplaty = h.f(Naglowek::DoWyplaty);
    p.print((doWyplaty < 0 ? "|Kwota do zwrotu                                        "
                           : "|Kwota do wypłaty                                      ") +
            kwota(std::fabs(doWyplaty)));
    p.emptyLine();
    p.print(" Kwotę " + core::Trim(kwota(std::fabs(doWyplaty))) + "zł.rozliczono ");
    p.print(" słownie: " + slownie(doWyplaty));
    p.emptyLine();
    p.print(" Data ");
    p.print(" ............... zatwierdził  ................");
    p.emptyLine();
    p.print(" Wykonał ");
    p.print("  ...............");
    p.endDoc();
}

void drukujZestawienie(core::Printer& p, const std::string& miesiac, const std::vector<Delegacja>& delegacje) {
    p.setFont("Courier New", 10, false);
    p.print("      Zestawienie wydanych delegacji za miesiac " + miesiac);
    p.print("     ===================================================");
    p.emptyLine();
    p.print("| Lp. | Nazwisko       |DataWysta.|Miejscow.Wyjazdu|Kwota delegacji");
    double razem = 0;
    int lp = 0;
    for (const Delegacja& d : delegacje) {
        const core::Record& h = d.naglowek;
        std::string skad = d.pozycje.empty() ? std::string() : d.pozycje.front().s(Pozycja::MiejscowoscW);
        float k = h.f(Naglowek::RazemNaleznosc);
        razem += k;
        p.print("|" + core::PadLeft(std::to_string(++lp), 4) + " | " + core::PadRight(h.s(Naglowek::Nazwisko), 15) + "|" +
                core::PadRight(h.s(Naglowek::DataDel), 10) + "|" + core::PadRight(skad, 16) + "|" +
                core::PadLeft(kwota(k), 11) + " PLN");
    }
    p.print("| Razem Kwota delegacji                            |  " + core::PadLeft(kwota(razem), 11) + " PLN");
    p.emptyLine();
    p.print("   wykonał ");
    p.print(" ............   zatwierdził  ................");
    p.emptyLine();
    p.print("  Data ");
    p.endDoc();
}

}  // namespace trips
