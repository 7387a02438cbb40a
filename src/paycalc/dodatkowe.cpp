#include "paycalc/dodatkowe.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/karta_record.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;
using core::Record;
using core::Round2;
using core::RoundZl;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace paycalc {

using namespace Dodatkowy;

namespace {

std::vector<Record> placeListy(const core::Session& s) {
    const fs::path plik = Pay::path(s);
    return core::fileExists(plik) ? Pay::readAll(plik) : std::vector<Record>{};
}

const Record* placaOsoby(const std::vector<Record>& place, const std::string& klucz) {
    auto p = std::find_if(place.begin(), place.end(), [&](const Record& x) { return payinputs::kluczOsoby(x) == klucz; });
    return p == place.end() ? nullptr : &*p;
}

}  // namespace

double liczbaZPola(const std::string& tekst, const std::string& pole) {
    const std::string t = core::Trim(core::KropkaZamiastPrzecinka(std::string(tekst)));
    if (t.empty()) return 0;
    if (!core::isNumeric(t)) throw ZleDane("W polu " + pole + " wpisz liczbę (jest: \"" + t + "\").");
    return core::toDouble(t, pole);
}

Skladki skladki(const core::Stawki& st, float podstawa, float podstawaER) {
    Skladki k;
    k.Emerytalna = Round2(st.emerytalna * podstawaER);
    k.Rentowa = Round2(st.rentowaPracownik * podstawaER);
    k.Chorobowa = Round2(st.chorobowa * podstawa);
    k.RentowaPracodawcy = Round2(st.rentowaPracodawca * podstawaER);
    k.Wypadkowa = Round2(st.wypadkowa * podstawa);
    k.Razem = Round2(static_cast<double>(k.Emerytalna) + k.Rentowa + k.Chorobowa);
    return k;
}

namespace {

void naKonto(Rozliczenie& r, bool ror) {
    if (!ror) return;
    r.NaROR = r.DoWyplaty;
    r.DoWyplaty = 0;
}

}  // namespace

Rozliczenie rozlicz(const core::Stawki& st, float kwota, const Skladki& skl, double stawka, float potracenie, bool ror,
                    float kwotaZdrowotna) {
    Rozliczenie r;
    r.skl = skl;
    // Health.
    r.PodstawaZdrowotna = std::max(0.0f, Round2(static_cast<double>(kwotaZdrowotna) - skl.Razem));
    r.SkladkaZdrowotna = Round2(st.zdrowotna * r.PodstawaZdrowotna);
    r.SkladkaIndywidualna = Round2(st.zdrowotnaInd * r.PodstawaZdrowotna);
    // Tax.
    r.PodstawaPodatku = RoundZl(static_cast<double>(kwota) - skl.Razem);
    r.StawkaPodatku = stawka;
    r.PodatekBrutto = Round2(stawka * r.PodstawaPodatku);
    // A tax below the health contribution is not paid at all.
    r.PodatekNetto = std::max(0.0f, RoundZl(static_cast<double>(r.PodatekBrutto) - r.SkladkaZdrowotna));
    // What is left.
    r.RazemPotracenia = Round2(static_cast<double>(skl.Razem) + r.SkladkaZdrowotna + r.SkladkaIndywidualna +
                               r.PodatekNetto);
    r.PlacaNetto = static_cast<float>(static_cast<double>(kwota) - r.RazemPotracenia);
    r.DoWyplaty = Round2(static_cast<double>(r.PlacaNetto) - potracenie);
    naKonto(r, ror);
    return r;
}

Rozliczenie tylkoPodatek(float kwota, double stawka, bool ror) {
    Rozliczenie r;
    r.PodstawaPodatku = RoundZl(static_cast<double>(kwota));
    r.StawkaPodatku = stawka;
    r.PodatekNetto = RoundZl(stawka * r.PodstawaPodatku);
    r.RazemPotracenia = r.PodatekNetto;
    r.PlacaNetto = static_cast<float>(static_cast<double>(kwota) - r.PodatekNetto);
    r.DoWyplaty = static_cast<float>(static_cast<double>(Round2(static_cast<double>(kwota))) - r.PodatekNetto);
    naKonto(r, ror);
    return r;
}

double stawkaPodatku(Rodzaj r, const Record& rec, const core::Stawki& st) {
    if (r == Rodzaj::SwU) return st.Stawka1 / 100;
    const double v = rec.d(StawkaPodatku);
    if (v <= 1) return v;
    return (r == Rodzaj::Trz || r == Rodzaj::Jub) ? st.Stawka1 / 100 : v / 100;
}

namespace {

// The results every run leaves in the record.
void zapiszRozliczenie(Record& rec, const core::Session& s, const Rozliczenie& r, bool ror) {
    rec.set(PodstawaZdrowotna, r.PodstawaZdrowotna);
    rec.set(SkladkaZdrowotna, r.SkladkaZdrowotna);
    rec.set(SkladkaIndywidualna, r.SkladkaIndywidualna);
    rec.set(StawkaPodatku, static_cast<float>(r.StawkaPodatku));
    rec.set(PodatekNetto, r.PodatekNetto);
    rec.set(NaROR, r.NaROR);
    rec.set(PlacaNetto, r.PlacaNetto);
    rec.set(DoWyplaty, r.DoWyplaty);
    rec.set(OpcjaROR, ror ? "1" : "0");
    rec.set(DataListy, s.DataListy);
}

// The divisor of the hourly rate by the last three characters of the job share: 24 and 100
// both mean 100; nothing above 0 gives 1.
double dzielnikEtatu(const std::string& etat) {
    const double d = core::Val(core::Right(etat, 3));
    if (d == 24 || d == 100) return 100;
    return d > 0 ? d : 1;
}

const char* const kNazwyGodzin[7] = {"Planowane", "Zastępcze", "Indywidua", "Nocne", "Bibliote.", "Dow.dziec", "Inne"};

}  // namespace

WynikNadgodzin liczNadgodziny(const core::Session& s, Record& rec, const Nadgodziny& we) {
    WynikNadgodzin w;
    const float podstawa = static_cast<float>(liczbaZPola(we.Podstawa, "Podstawa"));
    const double etat = core::Val(we.Etat);
    std::array<double, 7> godziny{}, stawki{};
    for (int i = 0; i < 7; ++i) {
        godziny[i] = liczbaZPola(we.Il[i], std::string(kNazwyGodzin[i]) + " - godziny");
        stawki[i] = liczbaZPola(we.Sta[i], std::string(kNazwyGodzin[i]) + " - stawka");
    }
    const float potracenie = static_cast<float>(liczbaZPola(we.Potracenie, "Potrącenie"));
    // 1. The divisor and the allowance.
    w.Dzielnik = etat > 0 ? dzielnikEtatu(we.Etat) : 1;
    const std::string grupa = core::LCase(core::Trim(we.Grupa));
    if (grupa == "n") {
        w.Dzielnik = 75;
        const double t = liczbaZPola(we.Trudnosciowy, "Dodatek trudnościowy");
        if (t >= 50) w.Dodatek = static_cast<float>(t);
        else if (t > 0) w.Dodatek = Round2(t * podstawa);
        if (core::Val(core::Right(we.Etat, 2)) > 0) w.Dzielnik = dzielnikEtatu(we.Etat);
    } else if (grupa == "a") {
        w.Dzielnik = 168;
    }
    // 2.
    w.Godzinowa = Round2(static_cast<double>(podstawa) + w.Dodatek);
    // 3., 4.
    double razem = 0, razemGodzin = 0;
    for (int i = 0; i < 7; ++i) {
        w.Sta[i] = we.Sta[i];
        float kw = 0;
        if (godziny[i] > 0) {
            if (core::Trim(we.Sta[i]).empty()) {
                stawki[i] = i == 3 ? Round2(w.Godzinowa * 1.15 / w.Dzielnik) : Round2(w.Godzinowa / w.Dzielnik);
                w.Sta[i] = core::numText(static_cast<float>(stawki[i]));
            }
            kw = static_cast<float>(godziny[i] * static_cast<float>(stawki[i]));
        }
        if (core::Trim(we.Il[i]).empty()) rec.setEmpty(Il1 + i);
        else rec.set(Il1 + i, static_cast<float>(godziny[i]));
        if (core::Trim(w.Sta[i]).empty()) rec.setEmpty(Sta1 + i);
        else rec.set(Sta1 + i, static_cast<float>(stawki[i]));
        rec.set(Kw1 + i, kw);
        razem += kw;
        razemGodzin += godziny[i];
    }
    w.RazemGodziny = static_cast<float>(razemGodzin);
    w.RazemKwota = Round2(razem);
    // 5.
    const double stawka = stawkaPodatku(Rodzaj::God, rec, s.stawki);
    w.r = rozlicz(s.stawki, w.RazemKwota, skladki(s.stawki, w.RazemKwota, w.RazemKwota), stawka, potracenie, we.ror,
                  w.RazemKwota);
    rec.set(Podstawa, podstawa);
    rec.set(KwotaBrutto, w.RazemKwota);
    rec.set(RazemKwota, w.RazemKwota);
    zapiszRozliczenie(rec, s, w.r, we.ror);
    return w;
}

DaneNadgodzin daneNadgodzin(const core::Session& s, const std::string& klucz) {
    DaneNadgodzin d;
    d.Grupa = s.Grupa;
    const fs::path osoby = s.SciezkaOsob.empty() ? Osoba::path(s) : s.SciezkaOsob;
    if (core::fileExists(osoby))
        if (auto o = personnel::znajdzOsobe(Osoba::readAll(osoby), klucz)) {
            d.Etat = o->s(Osoba::Etat);
            if (!core::Trim(o->s(Osoba::Grupa)).empty()) d.Grupa = core::Trim(o->s(Osoba::Grupa));
        }
    const std::vector<Record> place = placeListy(s);
    if (const Record* p = placaOsoby(place, klucz)) d.Trudnosciowy = p->s(Pay::Trudnosciowy);
    return d;
}

std::string domyslneFlagi(int i) { return i < 5 ? "000" : "010"; }

namespace {

const char* const kNazwyDodatkow[kDodatki] = {"Dodatek 1", "Dodatek 2", "Mieszkaniowy", "Wiejski",
                                               "Wyrównanie", "Nagroda",   "Ekwiwalent"};

bool wolny(const std::string& flagi, std::size_t znak) { return flagi.size() > znak && flagi[znak] == '1'; }

}  // namespace

WynikDodatkow liczDodatki(const core::Session& s, Record& rec, const Dodatki& we) {
    WynikDodatkow w;
    const float wczesniej = static_cast<float>(liczbaZPola(we.Wczesniej, "Wcześniejsze wypłaty"));
    const float potracenie = static_cast<float>(liczbaZPola(we.Potracenie, "Potrącenie"));
    double razem = 0, podstawa = 0, zdrowotna = 0;
    for (int i = 0; i < kDodatki; ++i) {
        const float a = static_cast<float>(liczbaZPola(we.Kwoty[i], kNazwyDodatkow[i]));
        const std::string flagi = we.Flagi[i].empty() ? domyslneFlagi(i) : we.Flagi[i];
        razem += a;
        if (!wolny(flagi, 1)) podstawa += a;
        if (!wolny(flagi, 2)) zdrowotna += a;
        rec.set(Kw1 + i, a);
        rec.set(Il1 + i, flagi);
    }
    w.RazemKwota = Round2(razem);
    w.Podstawa = static_cast<float>(podstawa);
    // The annual limit of the pension and disability base.
    const double L = s.stawki.KwotaGRE;
    const double dotad = static_cast<double>(wczesniej) + we.ZListy;
    w.StopaEmerytalna = s.stawki.emerytalna * 100;
    w.StopaRentowa = s.stawki.rentowaPracownik * 100;
    w.PodstawaER = w.Podstawa;
    const std::string info =
        "Suma poprzednich wypłat + bieżąca wypłata z listy + akt. dodatek przekracza graniczną kwotę postawy "
        "składek EM i RENT, składki te ";
    if (dotad > L) {
        w.PodstawaER = 0;
        w.StopaEmerytalna = w.StopaRentowa = 0;
        w.Info = info + "=0 ";
    } else if (dotad < L && dotad + w.Podstawa > L) {
        w.PodstawaER = static_cast<float>(L - dotad);
        w.Info = info + "wyliczono od podstawy " + core::numText(w.PodstawaER);
    }
    const double stawka = stawkaPodatku(Rodzaj::Dod, rec, s.stawki);
    w.r = rozlicz(s.stawki, w.RazemKwota, skladki(s.stawki, w.Podstawa, w.PodstawaER), stawka, potracenie, we.ror,
                  static_cast<float>(zdrowotna));
    rec.set(BruttoOd01, wczesniej);
    rec.set(KwotaBrutto, w.Podstawa);
    rec.set(RazemKwota, w.RazemKwota);
    zapiszRozliczenie(rec, s, w.r, we.ror);
    return w;
}

float podstawaZListy(const core::Session& s, const std::string& klucz) {
    const fs::path file = Karta::path(s);
    if (!core::fileExists(file)) return 0;
    for (const Record& r : Karta::readAll(file))
        if (r.s(Karta::Klucz) == klucz) return r.f(Karta::PodstawaZUS);
    return 0;
}

Rozliczenie liczTrzynastke(const core::Session& s, Record& rec, const Trzynastka& we) {
    const double odKwoty = liczbaZPola(we.OdKwoty, "Od kwoty");
    const double wskaznik =
        core::Trim(we.Wskaznik).empty() ? s.stawki.Trzynastka : liczbaZPola(we.Wskaznik, "Wskaźnik");
    const float potracenie = static_cast<float>(liczbaZPola(we.Potracenie, "Potrącenie"));
    const float k = Round2(odKwoty * wskaznik / 100);
    const double stawka = stawkaPodatku(Rodzaj::Trz, rec, s.stawki);
    Rozliczenie r = rozlicz(s.stawki, k, skladki(s.stawki, k, k), stawka, potracenie, we.ror, k);
    rec.set(Podstawa, static_cast<float>(odKwoty));
    rec.set(KwotaBrutto, k);
    rec.set(RazemKwota, k);
    zapiszRozliczenie(rec, s, r, we.ror);
    return r;
}

Rozliczenie liczTylkoPodatek(const core::Session& s, Record& rec, Rodzaj rodzaj, const std::string& kwota, bool ror) {
    const float k = static_cast<float>(liczbaZPola(kwota, "Podstawa"));
    Rozliczenie r = tylkoPodatek(k, stawkaPodatku(rodzaj, rec, s.stawki), ror);
    rec.set(Podstawa, k);
    rec.set(KwotaBrutto, k);
    rec.set(RazemKwota, k);
    zapiszRozliczenie(rec, s, r, ror);
    return r;
}

Record nowyRekord(const core::Session& s, Rodzaj rodzaj, const std::string& nazwisko, const std::string& imie,
                  const std::string& klucz, const std::string& kod, const Record* p) {
    Record r(schema());
    r.set(Nazwisko, nazwisko);
    r.set(Imie, imie);
    r.set(Klucz, klucz);
    r.set(KodUbezpieczenia, kod);
    if (p) {
        if (rodzaj == Rodzaj::God) r.set(Podstawa, p->f(Pay::Zasadnicza));
        r.set(StawkaPodatku, p->f(Pay::ZastosStaPOD));
        r.set(NumerKonta, p->s(Pay::NumerKontaROR));
        r.set(OpcjaROR, p->s(rodzaj == Rodzaj::God ? Pay::RorGodziny : Pay::RorDodatki));
        r.set(BruttoOd01, static_cast<float>(p->d(Pay::BruttoOd01)));
    }
    r.set(DataListy, s.DataListy);
    return r;
}

void zalozZbiorDodatkowy(const core::Session& s, Rodzaj rodzaj) {
    const std::vector<Record> osoby = Osoba::readAll(s.SciezkaOsob.empty() ? Osoba::path(s) : s.SciezkaOsob);
    const std::vector<Record> place = placeListy(s);
    std::vector<Record> recs;
    recs.reserve(osoby.size());
    for (const Record& o : osoby) {
        const std::string klucz = personnel::kluczOsoby(o);
        recs.push_back(nowyRekord(s, rodzaj, core::RTrim(o.s(Osoba::Nazwisko)), core::RTrim(o.s(Osoba::Imie)), klucz,
                                  core::RTrim(o.s(Osoba::KodUbezpieczenia)), placaOsoby(place, klucz)));
    }
    core::ensureFolder(s.payerFolder(), {opis(rodzaj).folder});
    writeAll(path(s, rodzaj), rodzaj, recs);
}

const char* komunikatBezOsoby(Rodzaj r) {
    return (r == Rodzaj::Trz || r == Rodzaj::SwU) ? "No wybierz nazwisko, a dopiero potem Wylicz !"
                                                  : "No wybierz nazwisko, wybierz rodzaj dodatku , a dopiero potem Wylicz !";
}

Przebieg wykonajDodatek(core::Session& s, core::Dialogs& ui, Rodzaj rodzaj, const std::function<void(Record&)>& licz) {
    // 1.
    if (s.KluczOsoby.empty()) {
        ui.msgBox(komunikatBezOsoby(rodzaj), Buttons::OK, Icon::Exclamation);
        return Przebieg::BezOsoby;
    }
    // 2.
    const fs::path file = path(s, rodzaj);
    if (!core::fileExists(file)) {
        ui.msgBox("Brak zbioru " + file.filename().string() +
                      " na ten miesiąc. Załóż go, klikając zakładkę (pytanie o założenie zbioru), i wylicz ponownie.",
                  Buttons::OK, Icon::Exclamation, "Brak zbioru");
        return Przebieg::BrakZbioru;
    }
    // 3.
    std::vector<Record> recs = Dodatkowy::readAll(file);
    auto it = std::find_if(recs.begin(), recs.end(), [&](const Record& r) { return r.s(Klucz) == s.KluczOsoby; });
    Record rec;
    if (it != recs.end()) {
        rec = *it;
    } else if (rodzaj == Rodzaj::SwU) {
        ui.msgBox("Osoby " + s.NazwiskoOsoby + " " + s.ImieOsoby +
                      " nie ma w zbiorze świadczeń urlopowych tego miesiąca: nic nie zapisano.",
                  Buttons::OK, Icon::Exclamation, "Świadczenia urlopowe");
        return Przebieg::PozaZbiorem;
    } else {
        const std::vector<Record> place = placeListy(s);
        rec = nowyRekord(s, rodzaj, s.NazwiskoOsoby, s.ImieOsoby, s.KluczOsoby, s.KodUbezpieczeniaOsoby,
                         placaOsoby(place, s.KluczOsoby));
    }
    try {
        licz(rec);
    } catch (const ZleDane& e) {
        ui.msgBox(e.what(), Buttons::OK, Icon::Exclamation, "Błędne dane");
        return Przebieg::ZleDane;
    }
    if (it != recs.end()) *it = std::move(rec);
    else recs.push_back(std::move(rec));
    // 4.
    writeAll(file, rodzaj, recs);
    // 5.
    if (rodzaj == Rodzaj::God || rodzaj == Rodzaj::Dod) ui.msgBox(" Wyliczone !", Buttons::OK, Icon::Information);
    return Przebieg::Wyliczono;
}

bool usunDodatki(const core::Session& s, core::Dialogs& ui, Rodzaj rodzaj) {
    const fs::path file = path(s, rodzaj);
    if (rodzaj == Rodzaj::God) {
        if (!core::fileExists(file)) {
            ui.msgBox("Nie ma założoneg zbioru godzin !", Buttons::OK, Icon::Exclamation, "Brak zbioru");
            return false;
        }
    } else {
        struct Pytanie {
            const char *tytul, *tekst;
        };
        static const Pytanie kPytania[] = {
            {"", ""},
            {"Usuwam dodatki! ", "Czy napewno usunąć liste dodatków ?"},
            {"Usuwam trzynastkę! ", "Czy napewno usunąć całą list trzynastki ?"},
            {"Usuwam Jubileusze! ", "Czy napewno usunąć liste jubileuszów ?"},
            {"Usuwam Jubileusze! ", "Czy napewno usunąć liste Swiadczen urlopowych ?"},
        };
        const Pytanie& p = kPytania[static_cast<int>(rodzaj)];
        if (ui.msgBox(p.tekst, Buttons::OKCancel, Icon::Question, p.tytul) != core::Answer::OK) return false;
        if (!core::fileExists(file)) return false;
    }
    fs::remove(file);
    return true;
}

Rozliczenie zRekordu(Rodzaj rodzaj, const Record& rec, const core::Stawki& st) {
    Rozliczenie r;
    const float k = rec.f(RazemKwota);
    if (rodzaj == Rodzaj::God || rodzaj == Rodzaj::Trz) {
        const float b = rec.f(KwotaBrutto);
        r.skl = skladki(st, b, b);
    }
    r.PodstawaZdrowotna = rec.f(PodstawaZdrowotna);
    r.SkladkaZdrowotna = rec.f(SkladkaZdrowotna);
    r.SkladkaIndywidualna = rec.f(SkladkaIndywidualna);
    r.StawkaPodatku = rec.d(StawkaPodatku);
    r.PodatekNetto = rec.f(PodatekNetto);
    r.PlacaNetto = rec.f(PlacaNetto);
    r.DoWyplaty = rec.f(DoWyplaty);
    r.NaROR = rec.f(NaROR);
    r.RazemPotracenia = Round2(static_cast<double>(k) - r.PlacaNetto);
    r.skl.Razem = Round2(static_cast<double>(r.RazemPotracenia) - r.SkladkaZdrowotna - r.SkladkaIndywidualna -
                         r.PodatekNetto);
    r.PodstawaPodatku = RoundZl(static_cast<double>(k) - r.skl.Razem);
    if (rodzaj != Rodzaj::Jub && rodzaj != Rodzaj::SwU) r.PodatekBrutto = Round2(r.StawkaPodatku * r.PodstawaPodatku);
    return r;
}

namespace {

const char* const kTytulyList[] = {"GODZINY NADLICZBOWE", "DODATKI", "TRZYNASTKA", "NAGRODY JUBILEUSZOWE",
                                   "ŚWIADCZENIA URLOPOWE"};

std::string kolumna(const std::string& t, std::size_t n) { return core::PadLeft(core::Right(t, n), n); }

std::string wiersz(const std::string& lp, const std::string& nazwa, const std::array<double, 7>& kwoty,
                   const std::string& konto) {
    std::string l = kolumna(lp, 4) + " " + core::PadRight(core::Left(nazwa, 30), 30);
    for (double k : kwoty) l += " " + core::Kw10(k);
    return konto.empty() ? l : l + " " + konto;
}

}  // namespace

bool drukujDodatki(const core::Session& s, core::Dialogs& ui, Rodzaj rodzaj) {
    const fs::path file = path(s, rodzaj);
    if (!core::fileExists(file)) {
        ui.msgBox("Brak zbioru " + file.filename().string() + " na ten miesiąc: nie ma czego drukować.", Buttons::OK,
                  Icon::Exclamation, "Brak zbioru");
        return false;
    }
    core::Printer& p = ui.printer();
    p.setFont("Courier New", 8, true);
    p.print(std::string(kTytulyList[static_cast<int>(rodzaj)]) + " - lista " + core::RTrim(s.NazwaListy) + " (" +
            s.NazwaZbioru + ")   data listy " + s.DataListy);
    p.setBold(false);
    p.print(std::string(145, '='));
    std::string naglowek = " Lp. " + core::PadRight("Nazwisko i imię", 30);
    for (const char* k : {"Kwota", "Składki", "Zdrowotna", "Podatek", "Netto", "Do wypłaty", "Na konto"})
        naglowek += " " + core::PadLeft(k, 10);
    p.print(naglowek + " Nr konta");
    p.print(std::string(145, '-'));
    std::array<double, 7> suma{};
    int lp = 0;
    for (const Record& r : Dodatkowy::readAll(file)) {
        const double k = r.f(RazemKwota);
        if (k == 0) continue;
        const Rozliczenie z = zRekordu(rodzaj, r, s.stawki);
        const std::array<double, 7> kw{k,
                                       z.skl.Razem,
                                       static_cast<double>(z.SkladkaZdrowotna) + z.SkladkaIndywidualna,
                                       z.PodatekNetto,
                                       z.PlacaNetto,
                                       z.DoWyplaty,
                                       z.NaROR};
        for (std::size_t i = 0; i < kw.size(); ++i) suma[i] += kw[i];
        p.print(wiersz(std::to_string(++lp), core::RTrim(r.s(Nazwisko)) + " " + core::RTrim(r.s(Imie)), kw,
                       r.s(NumerKonta)));
    }
    p.print(std::string(145, '-'));
    p.setBold(true);
    p.print(wiersz("", "Razem", suma, ""));
    p.setBold(false);
    p.emptyLine();
    p.print("Osób: " + std::to_string(lp));
    p.endDoc();
    return true;
}

}  // namespace paycalc
