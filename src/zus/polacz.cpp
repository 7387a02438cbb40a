#include "zus/polacz.h"

#include <map>
#include <optional>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"
#include "reference/names.h"
#include "reference/rates.h"
#include "zus/rcp_record.h"

namespace fs = std::filesystem;
using core::Record;
using paycalc::Dodatkowy::Rodzaj;
namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;

namespace zus {

static_assert(K::PodstawaZUS == 140 && K::PodstawaZdrowotna == 138 && K::NaLiscie == 150 && K::Etat == 147);
static_assert(K::SkladkaZdrowotnaPozostala == 132 && K::SkladkaZdrowotnaOdliczana == 146 && K::Mieszkaniowy == 32);
static_assert(K::PodstawaFGSP == 161 && K::PodstawaFP == 159 && K::WskaznikFP == 158 && K::DowodOsobisty == 162);
static_assert(D::KwotaBrutto == 6 && D::StawkaPodatku == 10 && D::Il1 == 17 && D::Kw1 == 33);

namespace {

// The key of a person in the ledger and in the supplementary files.
struct Klucz {
    std::string nazwisko, imie, identyfikator, kod;
    bool operator==(const Klucz&) const = default;
};

Klucz kluczKarty(const Record& k) {
    const std::string obyw = personnel::obywatelstwo(k.s(K::Obywatelstwo));
    const bool polskie = core::Left(core::UCase(obyw), 5) == "POLSK";
    return {k.s(K::Nazwisko), k.s(K::Imie), polskie ? k.s(K::Klucz) : k.s(K::Dokument), k.s(K::KodUbezpieczenia)};
}

// The first record of a supplementary file that belongs to the person.
const Record* znajdz(const std::vector<Record>& recs, const Klucz& kl) {
    for (const Record& r : recs)
        if (core::RTrim(r.s(D::Nazwisko)) == kl.nazwisko && r.s(D::Imie) == kl.imie &&
            core::RTrim(r.s(D::Klucz)) == kl.identyfikator && r.s(D::KodUbezpieczenia) == kl.kod)
            return &r;
    return nullptr;
}

// A supplementary file of a list, or nothing when it is missing (passed over without a word).
std::vector<Record> wczytajDodatkowy(const fs::path& file) {
    if (!core::fileExists(file)) return {};
    return D::readAll(file);
}

// What one supplementary payment adds to the person's record.
struct Dodatek {
    double brutto = 0, podstawaZdr = 0, skladkaZdr = 0;
    std::optional<float> podatek;  // replaces field 71 when set
};

// The employee's social contributions of an amount: the three parts, each rounded.
double skladkiSpoleczne(const core::Stawki& st, double a) {
    return static_cast<double>(core::Round2(st.rentowaPracownik * a)) + core::Round2(st.emerytalna * a) +
           core::Round2(st.chorobowa * a);
}

struct Zdrowotna {
    float h1, h2;
};
Zdrowotna zdrowotna(const core::Stawki& st, double b) {
    return {core::Round2((st.zdrowotna - st.zdrowotnaInd) * b), core::Round2(st.zdrowotnaInd * b)};
}

Dodatek nadgodziny(const Record& r) {
    return {r.f(D::KwotaBrutto), r.f(D::PodstawaZdrowotna),
            static_cast<double>(r.f(D::SkladkaZdrowotna)) + r.f(D::SkladkaIndywidualna), {}};
}

// The seven amounts of the additions, each with its flag string: the first character frees
// it from tax, the second from the social contributions, the last from health.
Dodatek dodatki(const core::Stawki& st, const Record& r) {
    Dodatek d;
    double podatek = 0;
    for (int i = 0; i < 7; ++i) {
        const float a = r.f(D::Kw1 + i);
        const std::string flagi = r.s(D::Il1 + i);
        d.brutto += a;
        if (!(a > 0)) continue;
        const double s = core::Mid(flagi, 2, 1) == "1" ? 0.0 : skladkiSpoleczne(st, a);
        if (core::Right(flagi, 1) != "1") {
            const double b = a - s;
            const Zdrowotna h = zdrowotna(st, b);
            d.podstawaZdr += b;
            d.skladkaZdr += static_cast<double>(h.h1) + h.h2;
        }
        if (core::Left(flagi, 1) != "1") podatek += core::RoundZl(a - s) * r.d(D::StawkaPodatku);
    }
    if (d.brutto == 0) return {};
    d.podatek = static_cast<float>(podatek);
    return d;
}

Dodatek trzynastka(const core::Stawki& st, const Record& r) {
    const float a = r.f(D::KwotaBrutto);
    const double s = core::Round2(skladkiSpoleczne(st, a));
    const double b = a - s;
    const Zdrowotna h = zdrowotna(st, b);
    return {a, b, static_cast<double>(h.h1) + h.h2, 0.0f};
}

// The values the collection carries from one ledger record to the next.
struct Biezace {
    int lp = 0;
    float podst8 = 0, podst9 = 0;     // fields 8 and 9
    float zdrKarta = 0, sklKarta = 0; // the ledger's health base and contribution
    float zasilekZUS = 0;             // field 17
    float obnizenie = 0;              // field 70
};

void kopiuj(Record& rcp, int pole, const Record& k, int poleKarty) { rcp.setItem(pole, k.item(poleKarty)); }

Record rekordRcp(const core::Session& s, const Record& k, Biezace& b, bool grupaN, const Dodatek& god,
                 const Dodatek& dod, const Dodatek& trz) {
    Record r(Rcp::schema());
    float kwotaZR = 0, wychowawczy = 0, kwotaZP = 0;
    if (k.i(K::NaLiscie) != 2) {
        b.zdrKarta = k.f(K::PodstawaZdrowotna);
        b.sklKarta = static_cast<float>(static_cast<double>(k.f(K::SkladkaZdrowotnaPozostala)) +
                                        k.f(K::SkladkaZdrowotnaOdliczana));
        b.podst8 = b.podst9 = k.f(K::PodstawaZUS);
        b.zasilekZUS = k.f(K::ZasilekZUS);
        kwotaZR = k.f(K::ZasilekRodzinny);
        wychowawczy = k.f(K::ZasilekWychowawczy);
        kwotaZP = k.f(K::ZasilekPielegnacyjny);
        const double dni = static_cast<double>(k.f(K::LiczbaDni1)) + k.f(K::LiczbaDni2) + k.f(K::LiczbaDni3) +
                           k.f(K::LiczbaDni4) + k.d(K::Rezerwa108) + k.d(K::Rezerwa112) + k.d(K::Rezerwa102);
        if (grupaN && dni > 0)
            b.obnizenie = core::Round2((static_cast<double>(k.f(K::Mieszkaniowy)) + k.f(K::Stazowy)) * (dni - 1) / 30);
        ++b.lp;
    }
    float podatek = k.f(K::Podatek);
    for (const Dodatek* d : {&god, &dod, &trz}) {
        b.podst8 = static_cast<float>(b.podst8 + d->brutto);
        b.podst9 = static_cast<float>(b.podst9 + d->brutto);
        if (d->podatek) podatek = *d->podatek;
    }
    float podstFGSP = 0, podstFP = 0;
    if (b.podst8 > 0) {
        podstFGSP = k.f(K::PodstawaFGSP) > 0 ? b.podst8 : 0.0f;
        podstFP = k.f(K::PodstawaFP) > 0 ? b.podst8 : 0.0f;
    }
    double zdr = static_cast<double>(b.zdrKarta) + god.podstawaZdr + dod.podstawaZdr + trz.podstawaZdr;
    double skl = static_cast<double>(b.sklKarta) + god.skladkaZdr + dod.skladkaZdr + trz.skladkaZdr;
    const std::string kod = k.s(K::KodUbezpieczenia);
    if (core::Left(kod, 2) == "05") {
        zdr = s.stawki.KwPodstZDRwlasciciela;
        skl = core::RoundSkl(static_cast<double>(s.stawki.KwPodstZDRwlasciciela) * s.stawki.zdrowotna);
        podstFGSP = 0;
    }

    r.set(Rcp::Lp, " " + std::to_string(b.lp));
    kopiuj(r, Rcp::Nazwisko, k, K::Nazwisko);
    kopiuj(r, Rcp::Imie, k, K::Imie);
    kopiuj(r, Rcp::PESEL, k, K::Klucz);
    kopiuj(r, Rcp::KodUbez, k, K::KodUbezpieczenia);
    kopiuj(r, Rcp::Etat, k, K::Etat);
    r.set(Rcp::Rezerwa7, 0.0f);
    r.set(Rcp::PodstZUS, b.podst8);
    r.set(Rcp::PodstChorobowa, b.podst9);
    r.set(Rcp::PodstZdro, zdr);
    r.set(Rcp::Rezerwa12, std::string());
    r.set(Rcp::Rezerwa13, std::string());
    r.set(Rcp::SklZdro, skl);
    kopiuj(r, Rcp::InnyIdentyfikator, k, K::Dokument);
    r.set(Rcp::Obywatelstwo, personnel::obywatelstwo(k.s(K::Obywatelstwo)));
    r.set(Rcp::ZasilekZUS, b.zasilekZUS);
    r.set(Rcp::Rezerwa18, 0.0f);
    r.set(Rcp::IlOsZR, k.f(K::Zasilek5));
    r.set(Rcp::KwotaZR, kwotaZR);
    r.set(Rcp::ZasilekWychowawczy, wychowawczy);
    r.set(Rcp::IlOsZP, k.f(K::Zasilek6));
    r.set(Rcp::KwotaZP, kwotaZP);
    // Each absence group of the ledger: amount, days, from, to, code.
    static constexpr int kKarta[4] = {K::SredniaCH1, K::SredniaCH2, K::SredniaCH3, K::SredniaCH4};
    for (int g = 0; g < 4; ++g) {
        const int p = Rcp::kGrupaNieobecnosci[g], q = kKarta[g];
        kopiuj(r, p, k, q + 4);      // code
        kopiuj(r, p + 1, k, q + 2);  // from
        kopiuj(r, p + 2, k, q + 3);  // to
        kopiuj(r, p + 3, k, q + 1);  // days
        kopiuj(r, p + 5, k, q);      // amount
        kopiuj(r, Rcp::Deklarowana1 + g, k, K::KwotaLinii1 + g);
    }
    static constexpr int kOkresy[3][2] = {{Rcp::DniA, K::Rezerwa102}, {Rcp::DniB, K::Rezerwa112}, {Rcp::DniC, K::Rezerwa108}};
    for (const auto& o : kOkresy)
        for (int i = 0; i < 4; ++i) kopiuj(r, o[0] + i, k, o[1] + i);
    r.set(Rcp::KwotaObnizenia, b.obnizenie);
    r.set(Rcp::Podatek, podatek);
    for (int i = 0; i < 5; ++i) r.set(Rcp::FlagaEmerytalne + i, k.i(K::CheckEmerytalna + i));
    r.set(Rcp::PodstFGSP, podstFGSP);
    r.set(Rcp::PodstFPr, podstFP);
    kopiuj(r, Rcp::DowodOsobisty, k, K::DowodOsobisty);
    kopiuj(r, Rcp::WskaznikFP, k, K::WskaznikFP);
    return r;
}

// Field 6's numerator, the number in its first three characters (blanks are none).
double licznikEtatu(const Record& r, long nr) {
    const std::string t = core::Trim(core::Left(r.s(Rcp::Etat), 3));
    if (t.empty()) return 0;
    if (!core::isNumeric(t))
        throw core::Error(core::err::TypeMismatch, "scalanie, rekord " + std::to_string(nr), r.s(Rcp::Nazwisko));
    return core::Val(t);
}

Klucz kluczRcp(const Record& r) {
    return {core::UCase(r.s(Rcp::Nazwisko)), core::UCase(r.s(Rcp::Imie)), Rcp::identyfikator(r), r.s(Rcp::KodUbez)};
}

}  // namespace

std::string grupaBiezacejListy(const core::Session& s) {
    const std::vector<Record> katalog = reference::Instal::read(s);
    int i = reference::Instal::findByStem(katalog, s.NazwaZbioru);
    if (i >= 0) return katalog[static_cast<std::size_t>(i)].s(reference::Instal::Grupa);
    return s.Grupa;
}

std::vector<std::string> listyDoPolaczenia(const core::Session& s, const std::string& zestawy) {
    std::vector<std::string> listy;
    for (const Record& w : reference::Instal::listyZestawu(reference::Instal::read(s), zestawy))
        listy.push_back(core::PadRight(w.s(reference::Instal::Skrotlisty), 8));
    return listy;
}

std::vector<Record> zbierzRekordy(const core::Session& s, const Polaczenie& p, const paycalc::Postep& postep) {
    const bool grupaN = grupaBiezacejListy(s) == "n";
    const std::string RRmm = s.RRmm();
    std::vector<Record> wynik;
    Biezace b;
    for (const std::string& skrot : listyDoPolaczenia(s, p.zestawy)) {
        const std::string lista = core::RTrim(skrot);
        const fs::path karta = K::path(s, lista, RRmm);
        if (!fs::is_directory(karta.parent_path()))
            throw core::Error(core::err::PathNotFound, karta.parent_path().string(), "brak katalogu");
        if (!core::fileExists(karta)) continue;
        const std::vector<Record> rekordy = K::readAll(karta);
        const auto god = wczytajDodatkowy(D::path(s, Rodzaj::God, lista, RRmm));
        const auto dod = wczytajDodatkowy(D::path(s, Rodzaj::Dod, lista, RRmm));
        const auto trz = p.trzynastka ? wczytajDodatkowy(D::path(s, Rodzaj::Trz, lista, core::Left(RRmm, 2)))
                                      : std::vector<Record>{};
        int nr = 0;
        for (const Record& k : rekordy) {
            postep(0, static_cast<int>(rekordy.size()), ++nr);
            const Klucz kl = kluczKarty(k);
            const Record* g = znajdz(god, kl);
            const Record* d = znajdz(dod, kl);
            const Record* t = znajdz(trz, kl);
            wynik.push_back(rekordRcp(s, k, b, grupaN, g ? nadgodziny(*g) : Dodatek{},
                                      d ? dodatki(s.stawki, *d) : Dodatek{}, t ? trzynastka(s.stawki, *t) : Dodatek{}));
        }
    }
    return wynik;
}

std::vector<Record> scalRekordy(std::vector<Record> tym, const paycalc::Postep& postep) {
    static constexpr int kSumowane[] = {Rcp::PodstZUS, Rcp::PodstChorobowa, Rcp::PodstZdro, Rcp::SklZdro,
                                        Rcp::ZasilekZUS, Rcp::IlOsZR, Rcp::KwotaZR, Rcp::ZasilekWychowawczy,
                                        Rcp::IlOsZP, Rcp::KwotaZP};
    std::vector<Record> wynik;
    const int wszystkie = static_cast<int>(tym.size());
    long numer = 0;
    while (!tym.empty()) {
        ++numer;
        const Klucz klucz = kluczRcp(tym.front());
        double sumy[std::size(kSumowane)] = {};
        double licznik = 0;
        std::string mianownik;
        std::vector<Record> reszta;
        for (const Record& r : tym) {
            if (!(kluczRcp(r) == klucz)) {
                reszta.push_back(r);
                continue;
            }
            for (std::size_t i = 0; i < std::size(kSumowane); ++i) sumy[i] += r.f(kSumowane[i]);
            licznik += licznikEtatu(r, numer);
            mianownik = core::Trim(core::Mid(r.s(Rcp::Etat), 4, 3));
        }
        Record out = tym.front();
        out.set(Rcp::Lp, " " + std::to_string(numer));
        for (std::size_t i = 0; i < std::size(kSumowane); ++i) out.set(kSumowane[i], sumy[i]);
        out.set(Rcp::Etat, core::PadLeft(core::numText(licznik), 3) + core::PadLeft(mianownik, 3));
        const std::string obyw = out.s(Rcp::Obywatelstwo);
        if (obyw.empty() || obyw[0] == '0') {
            out.set(Rcp::Obywatelstwo, "POLSKIE");
            out.set(Rcp::InnyIdentyfikator, std::string());
        }
        wynik.push_back(std::move(out));
        tym = std::move(reszta);
        postep(0, wszystkie, wszystkie - static_cast<int>(tym.size()));
    }
    return wynik;
}

bool cmdPolacz(core::Session& s, core::Dialogs& ui, const Polaczenie& p, const paycalc::Postep& postep) {
    if (ui.msgBox("Czy chcesz wykonać zbiór sumujący  na ten miesiąc ? OK Założyc", core::Buttons::OKCancel,
                  core::Icon::Question, "Wykonuję sumowanie z list za miesiąc " + s.DataListy) != core::Answer::OK)
        return false;
    const fs::path plik = Rcp::path(s);
    std::vector<Record> surowe;
    try {
        reference::loadRates(s);
        surowe = zbierzRekordy(s, p, postep);
        core::ensureFolder(s.payerFolder(), {"zus"});
        Rcp::writeAll(plik, surowe, "tym.dta");
    } catch (const core::Error& e) {
        if (e.Number == core::err::BadFileName) {
            core::MsgBox(ui, "Brak Zbioru! " + e.Step);
        } else if (e.Number == core::err::PathNotFound) {
            core::MsgBox(ui, "Źle wybrana ściezka dostepu lub nie Brak kompletu katalogów ", {}, core::Icon::Critical);
        } else {
            core::MsgBox(ui, "Błąd dostepu do pliku lub katalogu w lini " + e.Step, {}, core::Icon::Critical);
        }
        return false;
    }
    try {
        Rcp::writeAll(plik, scalRekordy(std::move(surowe), postep), "Ctym.dta");
    } catch (const core::Error& e) {
        core::MsgBox(ui, "Sprawdź wpis etatu !",
                     "Błąd " + std::to_string(e.Number) + " w linii " + e.Step + e.Detail, core::Icon::Critical);
        return false;
    }
    return true;
}

std::string zlyZestaw(const std::string& zestawy) {
    if (zestawy.empty()) return {};
    return reference::badName(zestawy, "Zestaw list");
}

void cmdZachowaj(const core::Session& s, const std::string& zestawy) {
    std::vector<Record> wiersze = reference::Instal::read(s);
    for (Record& w : wiersze) w.set(reference::Instal::Rezerwa4, core::UCase(zestawy));
    core::writeAll(reference::Instal::path(s), wiersze, "tymczasowy.dat");
}

std::string zapisaneZestawy(const core::Session& s) {
    const std::vector<Record> wiersze = reference::Instal::read(s);
    return wiersze.empty() ? std::string() : wiersze.front().s(reference::Instal::Rezerwa4);
}

}  // namespace zus
