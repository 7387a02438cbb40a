#include "paycalc/wyliczenie.h"

#include <chrono>
#include <cmath>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/pola_wyniku.h"
#include "payinputs/pay_record.h"
#include "payinputs/seniority.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Record;
using core::Round2;
using core::RoundSkl;
using core::RoundZl;
using core::Round2InPlace;
using core::RoundZlInPlace;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace paycalc {

// --- Files read once ------------------------------------------------------------------------

Zbior::Zbior(std::vector<Record> records, std::string (*klucz)(const Record&), std::optional<core::Error> blad)
    : rekordyPliku(std::move(records)), bladOdczytu(std::move(blad)) {
    pierwszyNumeru.reserve(rekordyPliku.size());
    for (std::size_t i = 0; i < rekordyPliku.size(); ++i) pierwszyNumeru.emplace(klucz(rekordyPliku[i]), i);
}

const Record* Zbior::znajdz(const std::string& key) const {
    auto it = pierwszyNumeru.find(key);
    if (it != pierwszyNumeru.end()) return &rekordyPliku[it->second];
    if (bladOdczytu) throw *bladOdczytu;
    return nullptr;
}

namespace {

Zbior wczytajZbior(const fs::path& file, const core::Schema& schema, std::string (*klucz)(const Record&)) {
    std::vector<Record> recs;
    std::optional<core::Error> blad;
    try {
        core::SeqReader in(file);
        while (!in.eof()) recs.push_back(core::readRecord(in, schema));
    } catch (const core::Error& e) {
        blad = e;
    }
    return Zbior(std::move(recs), klucz, std::move(blad));
}

std::string kluczPlacy(const Record& r) { return payinputs::kluczOsoby(r); }
std::string kluczOsoby(const Record& r) { return personnel::kluczOsoby(r); }

}  // namespace

ZbioryListy wczytajZbiory(const core::Session& s) {
    ZbioryListy z;
    z.placowe = wczytajZbior(Pay::path(s), Pay::schema(), kluczPlacy);
    z.osobowe = wczytajZbior(Osoba::path(s), Osoba::schema(), kluczOsoby);
    z.urlopy = UrlopyMiesiaca(core::ValInt(s.miesiac(), "miesiąc daty listy " + s.DataListy));
    fs::path urlopy = Urlop::path(s, s.rok());
    if (core::fileExists(urlopy)) {
        try {
            core::SeqReader in(urlopy);
            const int miesiac = core::ValInt(s.miesiac(), "miesiąc daty listy " + s.DataListy);
            bool urwany = false;
            while (!in.eof() && !urwany) {
                z.urlopy.dodaj(Urlop::readBlok(in, miesiac, urwany));
                // A block cut after the month serves its person; anyone else would read past it.
                if (urwany)
                    z.urlopy.przerwano(core::Error(core::err::InputPastEnd, in.name(),
                                                   "plik " + in.name() + " skończył się w środku bloku osoby"));
            }
        } catch (const core::Error& e) {
            z.urlopy.przerwano(e);
        }
    }
    return z;
}

// --- The calculation ------------------------------------------------------------------------

namespace {

const char* const kKrok = "modWyliczeniePlacy";

// A whole number of 16 bits, ties to even, as the day counts are converted; Error 6 beyond.
std::int16_t cint(double v, const std::string& what) {
    double r = std::nearbyint(v);
    if (!(r >= -32768 && r <= 32767))
        throw core::Error(core::err::Overflow, std::string(kKrok) + ", " + what,
                          "wartość " + core::numText(v) + " nie mieści się w liczbie całkowitej");
    return static_cast<std::int16_t>(r);
}

// 16-bit integer arithmetic: Error 6 when the result does not fit.
std::int16_t int16(long v, const std::string& what) {
    if (v < -32768 || v > 32767)
        throw core::Error(core::err::Overflow, std::string(kKrok) + ", " + what,
                          "wartość " + std::to_string(v) + " nie mieści się w liczbie całkowitej");
    return static_cast<std::int16_t>(v);
}

// Day, month and year of a date text dd?mm?rrrr (any separators); 0 for what is not a number.
struct Dzien {
    int d = 0, m = 0, y = 0;
};
Dzien rozbij(const std::string& data) {
    const std::string krok = std::string(kKrok) + ", data " + data;
    return {core::ValInt(core::Mid(data, 1, 2), krok), core::ValInt(core::Mid(data, 4, 2), krok),
            core::ValInt(core::Mid(data, 7, 4), krok)};
}

// A date text of the calculation as a calendar date: Error 13 when it is none.
std::chrono::sys_days data(const std::string& text, const std::string& what) {
    core::Date d;
    if (!core::parseDate(text, d))
        throw core::Error(core::err::TypeMismatch, std::string(kKrok) + ", " + what, "\"" + text + "\" nie jest datą");
    using namespace std::chrono;
    return sys_days{year{d.y} / month{static_cast<unsigned>(d.m)} / day{static_cast<unsigned>(d.d)}};
}

bool ulamek(float v) { return v > 0 && v < 1; }

// The sixteen elements of the month in the order of gross pay, without leave and sick pay.
double elementy(const core::WynikMiesiaca& w) {
    return static_cast<double>(w.wFunkcyjny) + w.wZasadnicza + w.wStazowy + w.wPremia + w.wSpecjalny + w.wInny +
           w.wMotywacyjny + w.wSpecjalistyczny + w.wWychowawczy + w.wTrudnosciowy + w.wEkwiwalent + w.wNocny +
           w.wWyrownania + w.wSzkodliwy + w.wMieszkaniowy + w.wWiejski;
}

// One calculation under way: what its stages share besides the result block.
struct Liczenie {
    const core::Session& s;
    const core::Stawki& st;
    Record& P;                    // the employee's pay record, as the elements change it
    const Record& O;              // the personnel record used (the block's osoba)
    const std::string grupa;      // Grupa of the personnel record as stored
    const std::string grupaM;     // and lower-cased
    const std::string rok, mies;  // of the list date
    const int miesiacNr, rokNr;
    const std::string kod;        // KodUbezpieczenia of the pay record
    double liczbaDni[4] = {};     // days of the four sick lines
    float wskaznikEtatu = 0;      // the part-time factor
    long zdrowotna = 0;           // the health switch, read with the other four
};

// The fields of the four sick lines in the pay record: SredniaCH, Liczbadni, okresOd, okresDo,
// KodPrzerwy, ChPr from each of these on.
const int kLinia[4] = {Pay::SredniaCH1, Pay::SredniaCH2, Pay::SredniaCH3, Pay::SredniaCH4};

// Days: the leave of the month, the days of the list month, the days of absence, the part-time
// factor and the years of service.
void dniMiesiaca(core::WynikMiesiaca& w, Liczenie& l, const UrlopyMiesiaca& urlopy) {
    const Record& P = l.P;
    {
        UrlopMiesiaca u = urlopy.znajdz(l.s.KluczOsoby);
        w.DniUrlopu = u.DniUrlopu;
        w.StawkaUrlopowa = u.Stawka;
        w.wUrlopowe = u.wUrlopowe;
    }

    // Days of the month. February has 29 days in 2008 only.
    const std::string& mies = l.mies;
    const bool dlugi = mies == "01" || mies == "03" || mies == "05" || mies == "07" || mies == "08" || mies == "10" ||
                       mies == "12";
    w.dniBazowe = 30;
    w.dniWMiesiacu = dlugi ? 31 : 30;
    if (mies == "02") w.dniWMiesiacu = l.rok == "2008" ? 29 : 28;
    if (core::Left(l.kod, 3) == "051") w.dniBazowe = dlugi ? 31 : 30;

    // Day totals.
    double* liczbaDni = l.liczbaDni;
    liczbaDni[0] = P.d(Pay::Liczbadni1);
    liczbaDni[1] = P.d(Pay::Liczbadni2);
    liczbaDni[2] = P.d(Pay::Liczbadni3);
    liczbaDni[3] = P.d(Pay::Liczbadni4);
    w.dniChorobowe = cint(liczbaDni[0] + liczbaDni[1] + liczbaDni[2] + liczbaDni[3], "dni chorobowe");
    w.dniBezplatne = static_cast<float>(P.d(Pay::BZP3dni) + P.d(Pay::BZP1dni) + P.d(Pay::BZP2dni));
    w.dniNieobecnosci = cint(static_cast<double>(w.dniChorobowe) + w.dniBezplatne + w.DniUrlopu, "dni nieobecności");
    if (w.dniBezplatne > w.dniBazowe) w.dniBezplatne = w.dniBazowe;

    // Part-time factor from Etat: numerator in the first three characters, denominator in the
    // last three.
    l.wskaznikEtatu = P.f(Pay::WskaznikEtatu);
    {
        const std::string etat = l.O.s(Osoba::Etat);
        if (core::Val(etat) != 0) {
            double mianownik = core::Val(core::Right(etat, 3));
            if (mianownik > 0) l.wskaznikEtatu = static_cast<float>(core::Val(core::Left(etat, 3)) / mianownik);
        } else {
            l.wskaznikEtatu = 1;
        }
    }

    // Seniority.
    {
        payinputs::Staz sz = payinputs::obliczStaz(P.s(Pay::DataZatrudnienia), l.s.DataListy, l.grupa, l.s.SkrotPlatnika);
        w.stazLat = sz.stazLat;
        w.stazProcent = int16(sz.stazProcent, "procent stażu");
    }
}

// Sick pay: the four sick lines into sick pay of the employer (codes 331 and 333) and benefits,
// with their days. The copies for the printouts keep the lines as the pay record has them.
void chorobowe(core::WynikMiesiaca& w, Liczenie& l) {
    Record& P = l.P;
    const double* liczbaDni = l.liczbaDni;
    for (int n = 0; n < 4; ++n) {
        const int b = kLinia[n];
        w.wLinie[n] = {P.item(b), P.item(b + 1), P.item(b + 2), P.item(b + 3), P.item(b + 4), P.item(b + 5)};
    }
    // The sums and their days start from nothing for each employee; the benefit days of the
    // list (dniZasilkoweRazem) go on adding up from one employee to the next.
    double sumaPlatne = 0, sumaZasilki = 0, suma311 = 0;
    float dni311 = 0, dniZasilku = 0;
    // Line 3 is not in the guard and line 2 counts twice.
    if (liczbaDni[0] + 2 * liczbaDni[1] + liczbaDni[3] > 0) {
        const double kod1 = core::Val(P.s(Pay::KodPrzerwy1));
        const double kod4 = core::Val(P.s(Pay::KodPrzerwy4));
        const double sredniaChorobowa = P.d(Pay::SredniaChorobowa);
        for (int n = 0; n < 4; ++n) {
            const int b = kLinia[n];
            if (!(liczbaDni[n] > 0)) continue;
            const std::int16_t dni = cint(liczbaDni[n], "dni linii " + std::to_string(n + 1));
            double srednia = P.d(b);
            if (srednia == 0) {
                srednia = sredniaChorobowa;
                P.setItem(b, P.item(Pay::SredniaChorobowa));
            }
            const double kwota = srednia * P.d(b + 5) / 100 * dni;
            const double kodLinii = core::Val(P.s(b + 4));
            if (n == 0) {
                if (kodLinii == 331 || kodLinii == 333) {
                    sumaPlatne = kwota;
                } else if (kodLinii == 311 || kodLinii == 121 || kod4 == 333) {
                    suma311 = kwota;
                    dni311 = dni;
                } else {
                    sumaZasilki = kwota;
                    dniZasilku = dni;
                    w.dniZasilkoweRazem = static_cast<float>(dni + w.dniZasilkoweRazem);
                }
            } else {
                if (kodLinii == 331 || kodLinii == 333 || kod1 == 121) {
                    sumaPlatne += kwota;
                } else if (kodLinii == 311) {
                    suma311 += kwota;
                    dni311 += dni;
                } else {
                    sumaZasilki += kwota;
                    dniZasilku += dni;
                    w.dniZasilkoweRazem += dni;
                }
            }
        }
    }
    w.sumaChorobowePlatne = sumaPlatne;
    w.sumaZasilki = sumaZasilki;
    w.sumaZasilki311 = suma311;
    w.wChorobowePlatne = Round2(sumaPlatne);
    w.wZasilki = Round2(sumaZasilki);
    w.wZasilki311 = Round2(suma311);
    w.wDni311 = dni311;
    w.wDniZasilku = dniZasilku;
}

// Elements and gross: the monthly elements reduced for the days of absence, the month wholly
// absent, gross pay, and the pay record as the elements left it.
void elementyIBrutto(core::WynikMiesiaca& w, Liczenie& l) {
    Record& P = l.P;
    const std::string& grupaM = l.grupaM;

    // Hours of group "p".
    w.godzinyP = 0;
    if (grupaM == "p" && w.dniNieobecnosci > 0) w.godzinyP = int16(static_cast<long>(w.dniNieobecnosci) * 8, "godziny grupy p");

    // Monthly elements.
    const float WskaznikEtatu = l.wskaznikEtatu;
    const float Zasadnicza = P.f(Pay::Zasadnicza);
    w.wZasadnicza = WskaznikEtatu > 0 ? Round2(Zasadnicza * WskaznikEtatu) : Zasadnicza;

    const Dzien zatr = rozbij(P.s(Pay::DataZatrudnienia));
    if (zatr.y == l.rokNr && zatr.m == l.miesiacNr && zatr.d > 1) w.dniNieobecnosci = int16(zatr.d, "dzień zatrudnienia");
    if (l.mies == "02" && w.dniNieobecnosci == 28) w.dniNieobecnosci = 30;
    {
        const std::string koniec = P.s(Pay::DataZatrudnieniaDO);
        if (koniec > "" && koniec > "0") {
            const Dzien k = rozbij(koniec);
            if (k.y == l.rokNr && k.m == l.miesiacNr && k.d > 1) {
                std::int16_t plus = int16(static_cast<long>(w.dniNieobecnosci) + 30, "dni nieobecności");
                w.dniNieobecnosci = int16(static_cast<long>(plus) - k.d, "dni nieobecności");
            }
        }
    }

    w.zasadniczaPelna = w.wZasadnicza;
    if (w.dniNieobecnosci >= 31) w.dniNieobecnosci = 30;
    const double f = 1 - static_cast<double>(w.dniNieobecnosci) / 30;
    w.wspolczynnik = f;
    w.wZasadnicza = Round2(f * w.wZasadnicza);

    // An amount below 1 is a fraction of the full base pay (negative amounts too). The
    // elements that the pay record keeps as reckoned are rounded where they stand.
    float Wiejski = P.f(Pay::Wiejski);
    if (Wiejski < 1) Wiejski = Round2(Wiejski * w.zasadniczaPelna);
    Round2InPlace(Wiejski);
    w.wWiejski = Wiejski;
    w.wiejskiUdzial = Round2(f * Wiejski);

    float Stazowy = P.f(Pay::Stazowy);
    {
        const std::string dodatek = P.s(Pay::DodatekStazowy);
        const bool wyliczany = core::Trim(dodatek).empty() || (core::isNumeric(dodatek) && core::Val(dodatek) == 0);
        if (wyliczany) Stazowy = static_cast<float>(w.stazProcent) * w.zasadniczaPelna / 100.0f;
        if (grupaM == "p")
            Stazowy = Stazowy - P.f(Pay::StawkaP) * static_cast<float>(w.godzinyP) * static_cast<float>(w.stazProcent) / 100.0f;
        if (l.s.SkrotPlatnika == "SKR" && dodatek.empty())
            Stazowy = Round2(static_cast<float>(w.stazProcent) * l.st.MInBRUTTO / 100.0f);
    }
    w.stazowyZdrowotna = Round2(f * Stazowy);
    w.stazowyZUS = Round2(f * Stazowy);
    if (!(w.wDni311 > 30))
        Stazowy = (1.0f - w.wDni311 / 30.0f) * Stazowy;
    else
        Stazowy = 0;
    Stazowy = Stazowy - Stazowy * w.dniBezplatne / 30.0f;
    w.wStazowy = Round2InPlace(Stazowy);

    float Mieszkaniowy = P.f(Pay::Mieszkaniowy);
    if (Mieszkaniowy < 1) Mieszkaniowy = Mieszkaniowy * w.zasadniczaPelna;
    w.mieszkaniowyUdzial = Round2(f * Mieszkaniowy);
    w.wMieszkaniowy = Round2InPlace(Mieszkaniowy);

    float Ekwiwalent = P.f(Pay::Ekwiwalent);
    w.wEkwiwalent = Round2InPlace(Ekwiwalent);

    w.wSpecjalny = Round2(f * P.f(Pay::Specjalny));
    w.wSpecjalistyczny = Round2(f * P.f(Pay::Specjalistyczny));
    w.wFunkcyjny = Round2(f * P.f(Pay::Funkcyjny));
    w.wInny = Round2(f * P.f(Pay::Inny));
    w.wWychowawczy = Round2(f * P.f(Pay::Wychowawczy));

    float Trudnosciowy = P.f(Pay::Trudnosciowy);
    if (Trudnosciowy < 1)
        Trudnosciowy = Round2(Trudnosciowy * w.zasadniczaPelna);
    else
        Round2InPlace(Trudnosciowy);
    w.wTrudnosciowy = Round2(f * Trudnosciowy);

    w.wNocny = P.f(Pay::Nocny);
    w.wWyrownania = P.f(Pay::Wyrownania);
    w.wSzkodliwy = P.f(Pay::Szkodliwy);

    float Motywacyjny = P.f(Pay::Motywacyjny);
    if (Motywacyjny < 1) Motywacyjny = Motywacyjny * w.zasadniczaPelna;
    Round2InPlace(Motywacyjny);
    w.wMotywacyjny = Round2(f * Motywacyjny);

    float Premia = P.f(Pay::Premia);
    if (Premia < 1) Premia = Premia * w.zasadniczaPelna;
    Round2InPlace(Premia);
    w.wPremia = Round2(f * Premia);

    // A month wholly absent (not of 30 days, where f is already 0).
    if (w.dniNieobecnosci >= w.dniWMiesiacu && w.dniWMiesiacu != 30) {
        w.wZasadnicza = w.wFunkcyjny = w.wPremia = w.wSpecjalny = w.wInny = w.wMotywacyjny = 0;
        w.wSpecjalistyczny = w.wWychowawczy = w.wTrudnosciowy = 0;
        w.stazowyZdrowotna = w.stazowyZUS = 0;
    }
    w.wBZP3dni = P.item(Pay::BZP3dni);
    w.wBZP1dni = P.item(Pay::BZP1dni);
    w.wBZP2dni = P.item(Pay::BZP2dni);
    w.wSredniaChorobowa = P.item(Pay::SredniaChorobowa);
    for (int i = 0; i < 6; ++i) w.wZasilek[i] = P.item(Pay::Zasilek1 + i);

    // Gross.
    w.wBrutto = Round2(elementy(w) + w.wChorobowePlatne + w.wUrlopowe);
    P.set(Pay::WskaznikEtatu, WskaznikEtatu);
    P.set(Pay::Stazowy, Stazowy);
    P.set(Pay::Wiejski, Wiejski);
    P.set(Pay::Mieszkaniowy, Mieszkaniowy);
    P.set(Pay::Ekwiwalent, Ekwiwalent);
    P.set(Pay::Trudnosciowy, Trudnosciowy);
    P.set(Pay::Motywacyjny, Motywacyjny);
    P.set(Pay::Premia, Premia);
    w.wBruttoPelne = Round2(static_cast<double>(P.f(Pay::Funkcyjny)) + Zasadnicza + Stazowy + Premia + P.f(Pay::Specjalny) +
                            P.f(Pay::Inny) + Motywacyjny + P.f(Pay::Specjalistyczny) + P.f(Pay::Wychowawczy) +
                            Trudnosciowy + Ekwiwalent + P.f(Pay::Nocny) + P.f(Pay::Wyrownania) + P.f(Pay::Szkodliwy) +
                            Mieszkaniowy + Wiejski);
    w.placa = P;
}

// Contributions: the contribution base (no sick pay in it), the annual limit of old-age and
// rent, the employee's and the employer's contributions.
void skladki(core::WynikMiesiaca& w, Liczenie& l) {
    const Record& P = l.P;
    const core::Stawki& st = l.st;
    const long rentowa = P.i(Pay::Rentowa), emerytalna = P.i(Pay::Emerytalna), chorobowa = P.i(Pay::Chorobowa);
    l.zdrowotna = P.i(Pay::Zdrowotna);
    const long wypadkowa = P.i(Pay::Wypadkowa);
    w.wPodstawaZUS = Round2(static_cast<double>(w.wFunkcyjny) + w.wZasadnicza + w.stazowyZUS + w.wPremia + w.wSpecjalny +
                            w.wInny + w.wMotywacyjny + w.wSpecjalistyczny + w.wWychowawczy + w.wTrudnosciowy + w.wNocny +
                            w.wWyrownania + w.wSzkodliwy + w.wiejskiUdzial + w.mieszkaniowyUdzial + w.wEkwiwalent +
                            w.wUrlopowe);
    if (rentowa == 0 && emerytalna == 0 && chorobowa == 0) w.wPodstawaZUS = 0;

    // The annual limit of old-age and rent.
    const double bruttoOd01 = P.d(Pay::BruttoOd01);
    const double limit = st.KwotaGRE;
    w.narastajaco = Round2(w.wBrutto + bruttoOd01);
    w.podstawaRE = w.wPodstawaZUS;
    if (w.narastajaco > limit && w.wBrutto + bruttoOd01 > limit && bruttoOd01 < limit) w.podstawaRE = limit - bruttoOd01;
    if (w.podstawaRE > 0) w.podstawaRE = Round2(w.podstawaRE);

    // Sickness and accident are taken from the full base, the product narrowed to 32 bits
    // before the rounding.
    w.wRentowa = rentowa == 1 ? static_cast<float>(RoundSkl(st.rentowaPracownik * w.podstawaRE)) : 0;
    w.wRentowaPracodawcy = rentowa == 1 ? static_cast<float>(RoundSkl(st.rentowaPracodawca * w.podstawaRE)) : 0;
    w.wEmerytalna = emerytalna == 1 ? static_cast<float>(RoundSkl(st.emerytalna * w.podstawaRE)) : 0;
    w.wChorobowa = chorobowa == 1 ? static_cast<float>(RoundSkl(static_cast<float>(st.chorobowa * w.wPodstawaZUS))) : 0;
    w.wWypadkowa = wypadkowa == 1 ? static_cast<float>(RoundSkl(static_cast<float>(st.wypadkowa * w.wPodstawaZUS))) : 0;
    if (bruttoOd01 > limit) w.wEmerytalna = w.wRentowa = w.wRentowaPracodawcy = 0;
    w.sumaSkladekPracownika = static_cast<float>(static_cast<double>(w.wEmerytalna) + w.wRentowa + w.wChorobowa);
}

// Tax, first part: the costs (an amount, the raised costs for a commuter, or between 0 and 1 a
// fraction) and the tax base of the month.
void podstawaPodatku(core::WynikMiesiaca& w, const Liczenie& l) {
    const Record& P = l.P;
    const float suma = w.sumaSkladekPracownika;
    const float KosztyUzyskania = P.f(Pay::KosztyUzyskania);
    if (KosztyUzyskania <= 0 || KosztyUzyskania >= 1) {
        if (core::Val(P.s(Pay::Dojazd)) > 0 && KosztyUzyskania >= 0)
            w.wKoszty = l.st.PRKu;
        else
            w.wKoszty = KosztyUzyskania;
        if (w.wBrutto <= 0 && w.dniChorobowe >= 30) w.wKoszty = 0;
    } else {
        w.wKoszty = Round2((static_cast<double>(w.wZasadnicza) - suma) * KosztyUzyskania);
    }

    // The unrounded sick pay of codes 331 and 333 is in the base.
    double p = elementy(w) + w.sumaChorobowePlatne - w.wKoszty - suma + w.wUrlopowe;
    w.wPodstawaPodatku = p > 0 ? RoundZl(p) : 0;
}

// Health: the base of the health contribution and the whole contribution at the rate Kasach.
void zdrowotna(core::WynikMiesiaca& w, const Liczenie& l) {
    const core::Stawki& st = l.st;
    double h = (static_cast<double>(w.wFunkcyjny) + w.wZasadnicza + w.stazowyZdrowotna + w.wPremia + w.wSpecjalny +
                w.wInny + w.wMotywacyjny + w.wSpecjalistyczny + w.wWychowawczy + w.wTrudnosciowy + w.wNocny +
                w.wWyrownania + w.wSzkodliwy + w.wMieszkaniowy + w.wWiejski + w.sumaChorobowePlatne) -
               w.sumaSkladekPracownika + w.wEkwiwalent + w.wUrlopowe;
    if (core::Left(l.kod, 2) == "05") h = st.KwPodstZDRwlasciciela;
    w.wPodstawaZdrowotnej = Round2(h);
    w.wZdrowotnaOdliczana = static_cast<float>(RoundSkl(w.wPodstawaZdrowotnej * st.Kasach / 100));
}

// Health, second part: the contribution split into the part taken out of the tax and the
// employee's own part at the rate stZDI.
void podzialZdrowotnej(core::WynikMiesiaca& w, const Liczenie& l) {
    w.wZdrowotnaIndywidualna = static_cast<float>(RoundSkl(w.wPodstawaZdrowotnej * l.st.stZDI / 100));
    w.wZdrowotnaOdliczana = w.wZdrowotnaOdliczana - w.wZdrowotnaIndywidualna;
    if (w.wZdrowotnaOdliczana <= 0) w.wZdrowotnaOdliczana = w.wZdrowotnaIndywidualna = 0;
    if (l.zdrowotna != 1) w.wZdrowotnaOdliczana = w.wZdrowotnaIndywidualna = 0;
    w.wZdrowotnaOdliczana = static_cast<float>(RoundSkl(w.wZdrowotnaOdliczana));
}

// Tax: the income of the year so far, the scale, the relief, the health part taken out of the
// tax, whole złoty, the investment relief and the advance (none under 26 from August 2019).
void podatekIZaliczka(core::WynikMiesiaca& w, const Liczenie& l) {
    const Record& P = l.P;
    const core::Stawki& st = l.st;

    // Cumulative income of the year.
    const float kosztyNarastajaco = Round2(w.wKoszty * static_cast<float>(l.miesiacNr));
    const float skladkiNarastajaco = Round2((st.emerytalna + st.rentowaPracownik + st.chorobowa) * w.narastajaco);
    w.dochodNarastajaco =
        static_cast<float>(static_cast<double>(w.narastajaco) - skladkiNarastajaco - kosztyNarastajaco);

    // Scale. Exactly at a threshold no branch runs and the tax stays 0.
    const double S1 = st.Stawka1 / 100, S2 = st.Stawka2 / 100, S3 = st.Stawka3 / 100;
    const double p = w.wPodstawaPodatku;
    const double dochod = w.dochodNarastajaco;
    double podatek = 0, stawka = 0;
    if (dochod > st.ProgII) {
        const double nad = dochod - st.ProgII;
        stawka = S2;
        podatek = nad < p ? S3 * nad + S2 * (p - nad) : S3 * p;
    } else if (dochod > st.ProgI && dochod < st.ProgII) {
        const double nad = dochod - st.ProgI;
        stawka = S2;
        podatek = nad < p ? S2 * nad + S1 * (p - nad) : S2 * p;
    } else if (dochod < st.ProgI) {
        stawka = S1;
        podatek = S1 * p;
    }
    if (P.s(Pay::RozliczenieWspolne) == "1") {
        podatek = S1 * p;
        stawka = S1;
    }

    // Relief.
    const float KwotaUlgi = P.f(Pay::KwotaUlgi);
    w.wUlgaNiewykorzystana = 0;
    w.wUlgaZastosowana = KwotaUlgi;
    if (podatek == 0) {
        // The rate applied is not taken here: it stays from the employee before.
        w.wZdrowotnaIndywidualna = w.wZdrowotnaOdliczana = 0;
        w.wUlgaZastosowana = 0;
        w.wPodatekNaliczony = 0;
        w.wUlgaNiewykorzystana = KwotaUlgi;
        w.placa.set(Pay::KwotaUlgi, 0.0f);
    } else {
        podatek = Round2(static_cast<double>(Round2(podatek)) - w.wUlgaZastosowana);
        if (podatek < 0) {
            w.wUlgaZastosowana = static_cast<float>(podatek + KwotaUlgi);
            w.wUlgaNiewykorzystana = static_cast<float>(-podatek);
            podatek = 0;
        }
        w.wPodatekNaliczony = static_cast<float>(podatek);
        w.wStawkaPodatku = static_cast<float>(stawka);
    }

    // The health part taken out of the tax.
    if (podatek <= 0) w.wZdrowotnaOdliczana = w.wZdrowotnaIndywidualna = 0;
    if (podatek <= w.wZdrowotnaOdliczana) {
        w.wZdrowotnaOdliczana = static_cast<float>(podatek);
        w.wZdrowotnaIndywidualna = 0;
        podatek = 0;
    } else {
        podatek = static_cast<float>(podatek - w.wZdrowotnaOdliczana);
        if (!(podatek >= w.wZdrowotnaIndywidualna)) w.wZdrowotnaIndywidualna = static_cast<float>(podatek);
    }
    if (w.wZdrowotnaOdliczana < 0) w.wZdrowotnaOdliczana = w.wZdrowotnaIndywidualna = 0;

    // Whole złoty and the investment relief.
    podatek = podatek > 0 ? RoundZl(podatek) : 0;
    const float UlgaInwestycyjna = P.f(Pay::UlgaInwestycyjna);
    if (UlgaInwestycyjna > 0 && w.wUlgaZastosowana > 0) podatek = podatek > UlgaInwestycyjna ? podatek - UlgaInwestycyjna : 0;

    // Age and the advance: no advance under 26 from the list of August 2019 on.
    const auto naDzien = data(l.s.DataListy, "data listy");
    const auto urodzony = data(l.O.s(Osoba::DataUrodzenia), "data urodzenia");
    w.wiekLat = Round2(static_cast<double>((naDzien - urodzony).count()) / 365);
    w.wZaliczka = static_cast<float>(podatek);
    if (l.rok + l.mies >= "201908" && l.grupaM != "w" && w.wiekLat < 26) w.wZaliczka = 0;
    w.wPodatekRazem = static_cast<float>(static_cast<double>(w.wZaliczka) + w.wZdrowotnaOdliczana);
}

// Tax on benefits, less the relief that found no tax, and the contribution-like amount on the
// benefits of code 311.
void podatekOdZasilkow(core::WynikMiesiaca& w, const Liczenie& l) {
    const core::Stawki& st = l.st;
    const double S1 = st.Stawka1 / 100;
    float pz = static_cast<float>(static_cast<double>(Round2(S1 * RoundZl(w.sumaZasilki))) - w.wUlgaNiewykorzystana);
    if (pz < 0) pz = 0;
    RoundZlInPlace(pz);
    w.podatekZasilki = pz;
    w.wPodatekZasilkiPelny = Round2(static_cast<double>(pz));
    w.wSkladkiOdZasilkow = Round2(static_cast<double>(w.wZasilki311) * st.emerytalna +
                                  static_cast<double>(w.wZasilki311) * st.rentowaPracownik);
}

// Deductions: a value above 0 and below 1 is a fraction.
void potracenia(core::WynikMiesiaca& w, const Liczenie& l) {
    const Record& P = l.P;
    const core::Session& s = l.s;
    const float Zasadnicza = P.f(Pay::Zasadnicza);
    const float Solidarnosc = P.f(Pay::Solidarnosc);
    w.wSolidarnosc = ulamek(Solidarnosc) ? Zasadnicza * Solidarnosc / 100.0f : Solidarnosc;
    const float Zwiazek = P.f(Pay::Zwiazek);
    w.wZwiazek = ulamek(Zwiazek) ? w.wZasadnicza * Zwiazek / 100.0f : Zwiazek;
    const float Potracenie1 = P.f(Pay::Potracenie1);
    w.wPotracenie1 = Potracenie1 < 1 ? Round2(Zasadnicza * Potracenie1) : Potracenie1;
    w.wPotracenie2 = P.f(Pay::Potracenie2);
    w.wPotraceniaInne = P.f(Pay::POTRInne);
    w.wPZU = P.f(Pay::PZU);
    w.wRataZFM = P.f(Pay::ZFMRata);
    w.wRataKZP = P.f(Pay::KZPRata);
    const float KZPSkladka = P.f(Pay::KZPSkladka);
    w.wSkladkaKZP = KZPSkladka;
    if (ulamek(KZPSkladka)) {
        const std::string podstawaKZP = s.Dane.valid() ? s.Dane.s(reference::Dane::PodstawaDoKZP) : std::string();
        if (podstawaKZP.empty()) {
            w.wSkladkaKZP = Round2(w.wZasadnicza * KZPSkladka);
        } else {
            // Later names override earlier ones ("mbrutto" holds "brutto").
            double podstawa = 0;
            if (core::InStr(podstawaKZP, "brutto")) podstawa = w.wBruttoPelne;
            if (core::InStr(podstawaKZP, "mbrutto")) podstawa = w.wBrutto;
            if (core::InStr(podstawaKZP, "funkcyjny"))
                podstawa = static_cast<float>(static_cast<double>(P.f(Pay::Funkcyjny)) + w.wZasadnicza);
            if (core::InStr(podstawaKZP, "zasadnicza")) podstawa = w.zasadniczaPelna;
            if (core::InStr(podstawaKZP, "mzasadnicza")) podstawa = w.wZasadnicza;
            w.wSkladkaKZP = Round2(KZPSkladka * podstawa);
        }
    }
}

// Pay-out: net pay, the amount paid in cash and the part sent to the bank account, the tax on
// benefits by way of the unused relief and the benefits after tax by way of payment.
void wyplata(core::WynikMiesiaca& w, const Liczenie& l) {
    const Record& P = l.P;
    const float sumaPotracen = static_cast<float>(
        static_cast<double>(w.wRataKZP) + w.wRataZFM + w.wSkladkaKZP + w.wPotracenie1 + w.wPotracenie2 +
        w.wZdrowotnaIndywidualna + w.wZwiazek + w.wSolidarnosc + w.wPZU + w.wPotraceniaInne);
    w.wPotraceniaRazem = static_cast<float>(static_cast<double>(sumaPotracen) + w.sumaSkladekPracownika + w.wPodatekRazem);
    w.wNetto = Round2(elementy(w) + w.wChorobowePlatne + w.wUrlopowe - w.wPotraceniaRazem);

    const float PotraceniaPoZasilkach = P.f(Pay::PotraceniaPoZasilkach);
    w.wPotraceniaPoZasilkach = PotraceniaPoZasilkach;
    w.wDoWyplaty = static_cast<float>(static_cast<double>(w.wNetto) + P.d(Pay::Zasilek1) + P.d(Pay::Zasilek2) +
                                      P.d(Pay::Zasilek4) - PotraceniaPoZasilkach);
    w.wNiedobor = w.wDoWyplaty < 0 ? -w.wDoWyplaty : 0;
    const std::string konto = P.s(Pay::NumerKontaROR);
    const double ror = P.d(Pay::ROR);
    if (!konto.empty() && ror > 0) {
        if (w.wDoWyplaty <= ror) {
            w.wNaROR = w.wDoWyplaty;
            w.wDoWyplaty = 0;
        } else {
            w.wDoWyplaty = static_cast<float>(w.wDoWyplaty - ror);
            w.wNaROR = static_cast<float>(ror);
        }
    } else {
        w.wNaROR = 0;
    }
    Round2InPlace(w.wDoWyplaty);

    // Tax on benefits by way of the unused relief.
    const float podstawa = RoundZl(static_cast<double>(w.wZasilki311) + w.wZasilki);
    float podatekZ = Round2(static_cast<double>(w.wStawkaPodatku * podstawa));
    if (w.wUlgaNiewykorzystana < podatekZ) {
        podatekZ = podatekZ - w.wUlgaNiewykorzystana;
    } else {
        w.wUlgaNiewykorzystana = podatekZ;
        podatekZ = 0;
    }
    w.wPodatekZasilki = RoundZl(static_cast<double>(podatekZ));

    const float zasilkiNetto = static_cast<float>(static_cast<double>(w.wZasilki311) + w.wZasilki - w.wNiedobor -
                                                  w.wPodatekZasilki);
    if (w.wNaROR != 0 && !konto.empty()) {
        w.wZasilkiNaROR = zasilkiNetto;
        w.wZasilkiDoKasy = 0;
    } else {
        w.wZasilkiDoKasy = zasilkiNetto;
        w.wZasilkiNaROR = 0;
    }
}

// The bases of the labour fund and the guaranteed benefits fund: none above 55 for a woman (a
// first name ending in "a"), above 60 for a man.
void fundusze(core::WynikMiesiaca& w, const Liczenie& l) {
    const Record& O = l.O;
    const bool kobieta = core::LCase(core::Right(O.s(Osoba::Imie), 1)) == "a";
    const bool poWieku = kobieta ? w.wiekLat > 55 : w.wiekLat > 60;
    if (core::Left(O.s(Osoba::KodUbezpieczenia), 2) == "05")
        w.wPodstawaFP = 0;
    else
        w.wPodstawaFP = O.s(Osoba::WskaznikFP) == "1" ? 0 : w.wPodstawaZUS;
    if (poWieku) w.wPodstawaFP = 0;
    w.wPodstawaFGSP = O.s(Osoba::FGSP) == "1" ? 0 : w.wPodstawaZUS;
    if (poWieku) w.wPodstawaFGSP = 0;
}

// The groups ("w" as stored, "z" and "u" in either case), on every path.
void grupy(core::WynikMiesiaca& w, const Liczenie& l) {
    const core::Stawki& st = l.st;
    if (l.grupa == "w" && l.O.s(Osoba::FGSP) == "2") w.wPodstawaFGSP = w.wBruttoPelne;
    if (l.grupaM == "z") {
        w.wZaliczka = 0;
        w.wPodatekNaliczony = 0;
        w.wPotraceniaRazem = Round2(static_cast<double>(w.wZdrowotnaIndywidualna) + w.wZdrowotnaOdliczana);
        w.wDoWyplaty = static_cast<float>(static_cast<double>(w.wZasadnicza) - w.wPotraceniaRazem);
    }
    if (l.grupaM == "u" && w.wZasadnicza <= 200) {
        // A flat contract.
        w.wZdrowotnaIndywidualna = static_cast<float>(RoundSkl(w.wPodstawaZdrowotnej * st.stZDI / 100));
        w.wZdrowotnaOdliczana =
            static_cast<float>(RoundSkl(w.wPodstawaZdrowotnej * st.Kasach / 100) - w.wZdrowotnaIndywidualna);
        w.wPodatekNaliczony = RoundZl(static_cast<double>(w.wZasadnicza * l.P.f(Pay::ZastosStaPOD)));
        w.wUlgaZastosowana = 0;
        w.wZaliczka = w.wPodatekRazem = w.wPodatekNaliczony;
        w.wPotraceniaRazem = Round2(static_cast<double>(w.wPodatekRazem) + w.wZdrowotnaOdliczana +
                                    w.wZdrowotnaIndywidualna + w.sumaSkladekPracownika);
        w.wDoWyplaty = static_cast<float>(static_cast<double>(w.wZasadnicza) - w.wPotraceniaRazem);
    }
}

}  // namespace

Wynik modWyliczeniePlacy(core::Session& s, core::Dialogs& ui, const ZbioryListy& z) {
    core::WynikMiesiaca& w = s.wynik;

    // The pay record of the employee; none ends the calculation without a word.
    const Record* znalezionaPlaca = z.placowe.znajdz(s.KluczOsoby);
    if (!znalezionaPlaca) return Wynik::BrakPlacy;
    Record P = *znalezionaPlaca;

    // The personnel record. Without one the values read last stand: the last record of the
    // file, or with an empty file those of the previous employee.
    const Record* znalezionaOsoba = z.osobowe.znajdz(s.KluczOsoby);
    if (znalezionaOsoba) {
        w.osoba = *znalezionaOsoba;
    } else {
        ui.msgBox("Brak w zbiorze personalnym danych o osobie " + s.NazwiskoOsoby, core::Buttons::OK, core::Icon::None,
                  "Sprawdź w module osoba !");
        if (!z.osobowe.rekordy().empty())
            w.osoba = z.osobowe.rekordy().back();
        else if (!w.osoba.valid())
            w.osoba = Record(Osoba::schema());
    }
    Record& O = w.osoba;
    // An empty birth date is built from the PESEL, the month as coded in the number (above 12
    // for those born after 1999).
    if (O.s(Osoba::DataUrodzenia).empty() && core::Len(O.s(Osoba::Pesel)) == 11)
        O.set(Osoba::DataUrodzenia, personnel::dataUrodzeniaZPesel("", O.s(Osoba::Pesel)));

    // The group, the post, the birth date and the fund switches are the personnel record's.
    const std::string rok = s.rok();
    const std::string mies = s.miesiac();
    Liczenie l{s,
               s.stawki,
               P,
               O,
               O.s(Osoba::Grupa),
               core::LCase(O.s(Osoba::Grupa)),
               rok,
               mies,
               core::ValInt(mies, std::string(kKrok) + ", data listy " + s.DataListy),
               core::ValInt(rok, std::string(kKrok) + ", data listy " + s.DataListy),
               P.s(Pay::KodUbezpieczenia)};

    // Gross pay of the month.
    dniMiesiaca(w, l, z.urlopy);
    chorobowe(w, l);
    elementyIBrutto(w, l);

    // Contributions, tax and net pay. Code "051" leaves after the health contribution for the
    // groups: tax, deductions, net pay and the fund bases keep the values of the previous
    // employee.
    skladki(w, l);
    podstawaPodatku(w, l);
    zdrowotna(w, l);
    if (core::Left(l.kod, 3) != "051") {
        podzialZdrowotnej(w, l);
        podatekIZaliczka(w, l);
        podatekOdZasilkow(w, l);
        potracenia(w, l);
        wyplata(w, l);
        fundusze(w, l);
    }
    grupy(w, l);
    return Wynik::Policzono;
}

Wynik modWyliczeniePlacy(core::Session& s, core::Dialogs& ui) {
    reference::loadRates(s);
    ZbioryListy z = wczytajZbiory(s);
    return modWyliczeniePlacy(s, ui, z);
}

// --- The result block as text ---------------------------------------------------------------

std::vector<std::string> raportWyniku(const core::WynikMiesiaca& w) {
    std::vector<std::string> out;
    auto F = [&](std::string_view name, float v) { out.push_back(std::string(name) + "=" + core::numText(v)); };
    auto D = [&](const char* name, double v) { out.push_back(std::string(name) + "=" + core::numText(v)); };
    auto I = [&](const char* name, long v) { out.push_back(std::string(name) + "=" + core::numText(v)); };
    auto T = [&](const std::string& name, const core::Item& v) { out.push_back(name + "=" + v.text); };

    for (const PoleWyniku& p : kPolaWyniku) F(p.nazwa, w.*p.pole);

    for (int n = 0; n < 4; ++n) {
        const std::string k = std::to_string(n + 1);
        const core::LiniaChorobowa& l = w.wLinie[n];
        T("wSredniaCH" + k, l.SredniaCH);
        T("wLiczbadni" + k, l.Liczbadni);
        T("wokresOd" + k, l.okresOd);
        T("wokresDo" + k, l.okresDo);
        T("wKodPrzerwy" + k, l.KodPrzerwy);
        T("wCh" + k + "Pr", l.ChPr);
    }
    T("wBZP3dni", w.wBZP3dni);
    T("wBZP1dni", w.wBZP1dni);
    T("wBZP2dni", w.wBZP2dni);
    T("wSredniaChorobowa", w.wSredniaChorobowa);
    for (int i = 0; i < 6; ++i) T("wZasilek" + std::to_string(i + 1), w.wZasilek[i]);

    I("dniBazowe", w.dniBazowe);
    I("dniWMiesiacu", w.dniWMiesiacu);
    I("dniChorobowe", w.dniChorobowe);
    F("dniBezplatne", w.dniBezplatne);
    I("dniNieobecnosci", w.dniNieobecnosci);
    F("zasadniczaPelna", w.zasadniczaPelna);
    I("godzinyP", w.godzinyP);
    I("stazLat", w.stazLat);
    I("stazProcent", w.stazProcent);
    F("wiekLat", w.wiekLat);
    I("DniUrlopu", w.DniUrlopu);
    F("StawkaUrlopowa", w.StawkaUrlopowa);
    D("wspolczynnik", w.wspolczynnik);
    D("sumaChorobowePlatne", w.sumaChorobowePlatne);
    D("sumaZasilki", w.sumaZasilki);
    D("sumaZasilki311", w.sumaZasilki311);
    F("dniZasilkoweRazem", w.dniZasilkoweRazem);
    F("stazowyZUS", w.stazowyZUS);
    F("stazowyZdrowotna", w.stazowyZdrowotna);
    F("wiejskiUdzial", w.wiejskiUdzial);
    F("mieszkaniowyUdzial", w.mieszkaniowyUdzial);
    F("sumaSkladekPracownika", w.sumaSkladekPracownika);
    F("narastajaco", w.narastajaco);
    D("podstawaRE", w.podstawaRE);
    F("dochodNarastajaco", w.dochodNarastajaco);
    F("podatekZasilki", w.podatekZasilki);
    return out;
}

}  // namespace paycalc
