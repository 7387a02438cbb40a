#include "documents/zaswiadczenie.h"

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "personnel/kadry_record.h"

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;
using core::Record;

namespace documents {

const char* const kMargines = "     ";
const char* const kBrakOkresu = "Nie uzupelniono danych w placa>kadrowe II ";
const char* const kBrakOkresuTytul = "Brak okresu zatrudnienia!";
const char* const kBrakDanychKadr = "Brak uzupełnionych danych kadrowych dotyczących zakresu zatrudnienia  ";
const char* const kCelPytanie = "Podaj informacje o celu wydawanego zaświadczenia";
const char* const kCelTytul = "Podaj przeznaczenie wydawanego zaświadczenia ";
const char* const kCelPropozycja = " na wniosek pracownika.";
const char* const kCelPusty = " na wniosek Pracownika.";

namespace {

bool cyfry(const std::string& t) { return t.size() == 4 && t.find_first_not_of("0123456789") == std::string::npos; }

std::string dwie(int m) { return (m < 10 ? "0" : "") + std::to_string(m); }

// The first record of `klucz` in a file, or nothing (a missing file too).
std::optional<Record> rekord(const std::filesystem::path& file, const core::Schema& schema, int pole,
                             const std::string& klucz) {
    if (!core::fileExists(file)) return std::nullopt;
    for (Record& r : core::readAll(file, schema))
        if (r.s(pole) == klucz) return std::move(r);
    return std::nullopt;
}

// A supplementary record added to a row: the amount to the gross, the health and the tax of the
// record; the employee's contributions worked out afresh when the kind carries them.
void dodaj(Wiersz& w, const Record& r, const core::Stawki& st, bool skladki) {
    const double kwota = core::Val(r.s(D::KwotaBrutto));
    w.brutto += kwota;
    if (skladki)
        w.zus += static_cast<double>(core::Round2(st.emerytalna * kwota)) + core::Round2(st.rentowaPracownik * kwota) +
                 core::Round2(st.chorobowa * kwota);
    w.nfz += core::Val(r.s(D::SkladkaZdrowotna)) + core::Val(r.s(D::SkladkaIndywidualna));
    w.podatek += core::Val(r.s(D::PodatekNetto));
}

}  // namespace

std::vector<std::string> miesiaceOkresu(const std::string& odT, const std::string& doT) {
    const std::string od = core::Trim(odT), dok = core::Trim(doT);
    std::vector<std::string> out;
    if (!cyfry(od) || !cyfry(dok)) return out;
    const int m1 = std::stoi(od.substr(0, 2)), m2 = std::stoi(dok.substr(0, 2));
    const std::string r1 = od.substr(2), r2 = dok.substr(2);
    if (m1 < 1 || m1 > 12 || m2 < 1 || m2 > 12) return out;
    if (r1 == r2) {
        for (int m = m1; m <= m2; ++m) out.push_back(r1 + dwie(m));
    } else {
        for (int m = m1; m <= 12; ++m) out.push_back(r1 + dwie(m));
        for (int m = 1; m <= m2; ++m) out.push_back(r2 + dwie(m));
    }
    return out;
}

Sumy pobierzDane(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& od,
                 const std::string& doOkresu, Wlaczone wl) {
    Sumy out;
    const core::Stawki& st = s.stawki;
    for (const std::string& RRmm : miesiaceOkresu(od, doOkresu)) {
        Wiersz w;
        w.miesiac = RRmm.substr(2) + "-20" + RRmm.substr(0, 2);
        if (auto k = rekord(K::path(s, lista, RRmm), K::schema(), K::Klucz, klucz)) {
            w.brutto = k->f(K::Brutto);
            w.zus = static_cast<double>(k->f(K::SkladkaEmerytalna)) + k->f(K::SkladkaRentowa) + k->f(K::SkladkaChorobowa);
            w.nfz = static_cast<double>(k->f(K::SkladkaZdrowotnaOdliczana)) + k->f(K::SkladkaZdrowotnaPozostala);
            w.podatek = k->f(K::PodatekNetto);
            w.koszty = k->f(K::KosztyUzyskania);
            w.ulga = k->f(K::UlgaZastosowana);
        }
        auto plik = [&](D::Rodzaj r) { return rekord(D::path(s, r, lista, RRmm), D::schema(), D::Klucz, klucz); };
        if (auto r = plik(D::Rodzaj::God)) dodaj(w, *r, st, true);
        if (auto r = plik(D::Rodzaj::Dod)) dodaj(w, *r, st, true);
        if (wl.urlopowe) {
            // The holiday benefit and the jubilee award carry no contributions.
            if (auto r = plik(D::Rodzaj::SwU)) dodaj(w, *r, st, false);
            if (auto r = plik(D::Rodzaj::Jub)) dodaj(w, *r, st, false);
        }
        out.wiersze.push_back(w);
    }
    // The thirteenth pay of the year of the stamp's first two characters, whole: it is not
    // divided by the count of months.
    if (wl.trzynastka && !out.wiersze.empty()) {
        const std::string RR = miesiaceOkresu(od, doOkresu).front().substr(0, 2);
        if (auto r = rekord(D::path(s, D::Rodzaj::Trz, lista, RR), D::schema(), D::Klucz, klucz)) {
            Wiersz w;
            w.miesiac = "Trzyn";
            dodaj(w, *r, st, true);
            out.wiersze.push_back(w);
        }
    }
    double b = 0, z = 0, n = 0, p = 0, ne = 0, k = 0, u = 0;
    for (const Wiersz& w : out.wiersze) {
        b += w.brutto;
        z += w.zus;
        n += w.nfz;
        p += w.podatek;
        ne += w.netto();
        k += w.koszty;
        u += w.ulga;
    }
    out.brutto = core::Round2(b);
    out.zus = core::Round2(z);
    out.nfz = core::Round2(n);
    out.zaliczka = core::Round2(p);
    out.netto = core::Round2(ne);
    out.koszty = core::Round2(k);
    out.ulga = core::Round2(u);
    return out;
}

namespace {

std::string kw(double v) { return core::Format(v, "0.00"); }
std::string okres(const std::string& mmRR) { return mmRR.substr(0, 2) + "-20" + mmRR.substr(2); }

void tresc(core::Printer& p, const Sumy& s, const DaneZaswiadczenia& d, bool kopia) {
    namespace Kd = personnel::Kadry;
    auto linia = [&](const std::string& t) { p.print(kMargines + t); };
    linia(core::PadRight(d.platnik, 60) + d.miejscowosc + ", dnia " + d.dataWydania);
    p.emptyLine();
    linia("                             Z A Ś W I A D C Z E N I E");
    linia(kopia ? "                               o wysokości zarobków" : "                            o zatrudnieniu i wysokości zarobków");
    linia("                           =============================");
    p.emptyLine();
    linia(" Zaświadczamy ,że pracownik " + std::string(d.kobieta ? "Pani" : "Pan") + " " + d.nazwisko + " Pesel " + d.pesel);
    const bool okreslony = d.kadry.s(Kd::RodzajUmowy) == Kd::kNaCzasOkreslony;
    linia(" zatrudnion" + std::string(d.kobieta ? "a" : "y") + (kopia ? " na czas " : " na czas") +
          (okreslony ? " określony od " + d.kadry.s(Kd::ZatrudnionyOd) + " do " + d.kadry.s(Kd::ZatrudnionyDo)
                     : " nieokreślony od " + d.kadry.s(Kd::ZatrudnionyOd)));
    linia((kopia ? " na stnowisku - " : " na stnowisku ") + d.kadry.s(Kd::Stanowisko));
    const std::string otrzymal = d.kobieta ? "otrzymała" : "otrzymał";
    if (core::Trim(d.od) == core::Trim(d.doOkresu))
        linia(" W miesiącu " + d.od.substr(0, 2) + "-20" + d.od.substr(2) + "r " + otrzymal +
              " wynagrodzenie miesięczne brutto");
    else
        linia(" W okresie od " + okres(d.od) + " do " + okres(d.doOkresu) + " " + otrzymal + " wynagrodzenie brutto");
    linia(" w wysokości " + kw(s.brutto) + " zł.");
    linia(" Składki ZUS potrącono w wysokości " + kw(s.zus) + " zł.");
    linia(" Podatek od wynagrodzeń wynosi " + kw(s.zaliczka) + " zł.");
    linia(" Składka zdrowotna =" + kw(s.nfz) + " zł.");
    linia(" Ulgę podatkową odliczono w wysokości =" + kw(s.ulga) + " zł.");
    linia(" Płaca netto wynosi " + kw(s.netto) + " zł.");
    if (d.obciazenia == 0)
        linia(" Pobory nie są obciążone zajęciami sądowymi.");
    else
        linia(" Pobory są obciążone zajęciami sądowymi w wysokości " + kw(d.obciazenia) + " zł.");
    linia(" Zaświadczenie wydaje się " + d.cel);
    linia(" Zaświadczenie jest ważne 30 dni od daty wydania.");
    p.emptyLine();
    p.emptyLine();
    linia("                                             .....................................");
    linia("                                             (pieczątka i podpis pracodawcy)");
}

}  // namespace

void drukujZaswiadczenie(core::Printer& p, const Sumy& s, const DaneZaswiadczenia& d) {
    p.setFont("Courier New", 10, false);
    tresc(p, s, d, false);
    p.emptyLine();
    p.print(kMargines + std::string(" ") + std::string(78, '-'));
    p.print(kMargines + std::string(" Kopia     "));
    tresc(p, s, d, true);
    p.endDoc();
}

}  // namespace documents
