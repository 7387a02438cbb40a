#include "zus/kedu.h"

#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/seqfile.h"
#include "core/text.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "zus/polacz.h"
#include "zus/rcp_record.h"

namespace fs = std::filesystem;
using core::Left;
using core::Mid;
using core::PadRight;
using core::Record;
using core::Right;
using core::RoundSkl;
using core::Space;
namespace F = reference::Firma;

namespace zus {

std::string Grosze(double kwota, std::size_t n) {
    const double g = std::nearbyint(kwota * 100.0);
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.0f", g);
    return Right(std::string(n, '0') + buf, n);
}

std::string Liczba2(double v) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.0f", std::nearbyint(v));
    return Right(std::string("00") + buf, 2);
}

std::string NazwaDoKEDU(const std::string& tekst) { return core::Replace(core::UCase(tekst), "Ą", "ˇ"); }

std::string slowoMiesiaca(int m) {
    static const char* const kSlowa[12] = {"Styczeń----", "Luty-------", "Marzec-----", "Kwiecień---",
                                           "Maj--------", "Czerwiec---", "Lipiec-----", "Sierpień---",
                                           "Wrzesień---", "Październik", "Listopad---", "Grudzień---"};
    return m >= 1 && m <= 12 ? kSlowa[m - 1] : "";
}

fs::path plikRozliczenia(const core::Session& s, const std::string& zestaw) {
    return s.payerPath({"zus", s.rok() + s.miesiac() + "~1rozliczeniowe" + zestaw + ".KDU"});
}

fs::path plikWzorca(const core::Session& s) {
    fs::path w = s.payerPath({"zus", "wzorc.kdu"});
    if (core::fileExists(w)) return w;
    return core::resolvePath(s.katalog(), {"dane", "wzorc.kdu"});
}

namespace {

const char* const kLinia1 = "<!DOCTYPE KEDU PUBLIC '-//ZUS//DTD KEDU 1.3//PL'[";
const char* const kLinia2 = "<!ENTITY wersja '001.300' >";

// The values every document of a run shares.
struct Wspolne {
    const core::Session& s;
    const core::Stawki& st;
    std::string IdDeklaracji, DataDokumentu, Termin;
    double PodstawaZdrowotnaWlasciciela, PodstawaSwiadczen;
    bool grupaN;
    bool platnikN;
};

Wspolne wspolne(const core::Session& s, const Rozliczenie& r) {
    const std::string d = s.DataListy;
    return {s,
            s.stawki,
            (r.zestaw == "Z" ? "51" : "01") + Mid(d, 4, 2) + Right(d, 4),
            Left(d, 2) + Mid(d, 4, 2) + Right(d, 4),
            Left(core::Trim(r.termin), 1),
            s.Dane.d(reference::Dane::KwPodstZDRwlasciciela),
            core::Val(s.Dane.s(reference::Dane::KwPodstZUSswiadczSoc)),
            grupaBiezacejListy(s) == "n",
            Right(s.Firma.s(F::RodzajPlatnika), 1) == "N"};
}

class Linie {
public:
    std::vector<std::string> l;
    Linie& operator<<(const std::string& t) {
        l.push_back(t);
        return *this;
    }
    void blanks(std::initializer_list<int> szer) {
        for (int n : szer) l.push_back(Space(n));
    }
};

// The payer block: 12 values. The ZUSDRA copy has the NIP left-trimmed; the one-person document
// rebuilds the birth date without separators.
std::vector<std::string> DIPL(const core::Session& s, bool kopiaDRA, bool jednoosobowy) {
    const Record& f = s.Firma;
    const std::string dowod = f.s(F::DowodM);
    const std::string ur = f.s(F::DataurodzeniaP);
    return {PadRight(kopiaDRA ? core::LTrim(f.s(F::NIP)) : f.s(F::NIP), 10),
            PadRight(f.s(F::RegonM), 14),
            PadRight(f.s(F::PeselM), 11),
            dowod.empty() ? " " : "1",
            PadRight(dowod, 9),
            PadRight(f.s(F::NazwaSkrocona), 31),
            PadRight(f.s(F::NazwiskoM), 31),
            PadRight(f.s(F::ImieM), 22),
            PadRight(jednoosobowy ? Left(ur, 2) + Mid(ur, 4, 2) + Right(ur, 4) : ur, 8),
            Space(16),
            Space(16),
            Space(2)};
}

std::string stopaWypadkowa(const core::Stawki& st) {
    return core::PadLeft(" " + core::numText(core::Round2(st.wypadkowa * 10000)), 4);
}

// The fourteen blank-and-"BRAK" lines of a document header.
void naglowekBRAK(Linie& o) {
    o.blanks({51, 8, 8, 8, 24, 8, 24, 24, 8, 24, 24, 1, 1});
    o << PadRight("BRAK", 32);
}

void blokDIPL(Linie& o, const core::Session& s) {
    o << "<DIPL>";
    for (const auto& v : DIPL(s, false, false)) o << v;
    o << "</DIPL>";
}

int flagi(const Record& r, std::initializer_list<int> pola) {
    int n = 0;
    for (int p : pola) n += static_cast<int>(r.i(p));
    return n;
}

struct Ident {
    std::string typ, wartosc;
};
Ident identyfikator(const Record& r) {
    if (r.s(Rcp::PESEL).empty()) return {"2", r.s(Rcp::InnyIdentyfikator)};
    return {"P", r.s(Rcp::PESEL)};
}

// The rows of one person in ZUSRCA: the first title, and a second one ("121100") for the
// amount in field 21.
void DDORCA(Linie& o, const Wspolne& w, const Record& r, bool& zapisano) {
    const auto& st = w.st;
    bool powtorny = false;
    for (;;) {
        if (flagi(r, {Rcp::FlagaEmerytalne, Rcp::FlagaRentowe, Rcp::FlagaChorobowe}) == 0) return;
        const double f8 = r.f(Rcp::PodstZUS);
        double f17 = r.f(Rcp::ZasilekZUS), f19 = r.f(Rcp::IlOsZR), f20 = r.f(Rcp::KwotaZR),
               f21 = r.f(Rcp::ZasilekWychowawczy), f22 = r.f(Rcp::IlOsZP), f23 = r.f(Rcp::KwotaZP);
        const double podstawaChorobowa = f8;
        double podstawaER = f8, podstawaZdr = r.f(Rcp::PodstZdro);
        double emU = RoundSkl(st.emerytalna * f8), renU = st.rentowaPracownik * f8, renP = st.rentowaPracodawca * f8;
        double chU = RoundSkl(st.chorobowa * f8), zdr = RoundSkl(r.f(Rcp::SklZdro)), wypP = RoundSkl(st.wypadkowa * f8);
        if (r.i(Rcp::FlagaChorobowe) == 0) chU = 0;
        if (r.i(Rcp::FlagaEmerytalne) == 0) emU = 0;
        if (r.i(Rcp::FlagaRentowe) == 0) renU = renP = 0;
        if (r.i(Rcp::FlagaWypadkowe) == 0) wypP = 0;
        double emP = emU;
        double razemZasilki = f20 + f23 + f17;
        const Ident id = identyfikator(r);
        std::string kod = r.s(Rcp::KodUbez);
        if (powtorny) {
            kod = "121100";
            podstawaER = RoundSkl(f21);
            podstawaZdr = f21;
            zdr = RoundSkl(st.zdrowotna * f21);
            emP = RoundSkl(2 * st.emerytalna * podstawaER);
            renP = RoundSkl(2 * st.rentowaPracodawca * podstawaER);
            emU = renU = chU = wypP = razemZasilki = 0;
            f17 = f19 = f20 = f21 = f22 = f23 = 0;
        }
        if (kod == "124100" && !powtorny) {
            powtorny = true;
            podstawaER = RoundSkl(w.PodstawaSwiadczen);
            emU = RoundSkl(2 * st.emerytalna * podstawaER);
            renU = RoundSkl(st.rentowaPracownik * podstawaER);
            renP = RoundSkl(st.rentowaPracodawca * podstawaER);
            chU = zdr = wypP = razemZasilki = 0;
        }
        if (Left(kod, 3) == "051") {
            podstawaZdr = w.PodstawaZdrowotnaWlasciciela;
            zdr = RoundSkl(st.zdrowotna * podstawaZdr);
            if (kod == "051010") podstawaER = 0;
            emU = RoundSkl(2 * st.emerytalna * podstawaER);
            emP = 0;
            renU = RoundSkl(2 * st.rentowaPracownik * podstawaER);
            renP = 0;
        }
        zapisano = true;
        const std::string etat = r.s(Rcp::Etat);
        o << "<DDORCA>" << PadRight(NazwaDoKEDU(r.s(Rcp::Nazwisko)), 31) << PadRight(NazwaDoKEDU(r.s(Rcp::Imie)), 22)
          << id.typ << PadRight(id.wartosc, 11) << PadRight(kod, 6) << " " << PadRight(Left(etat, 3) + Right(etat, 3), 6)
          << Grosze(podstawaER, 8) << Grosze(podstawaChorobowa, 8) << Grosze(podstawaZdr, 8) << Grosze(emU, 7)
          << Grosze(renU, 7) << Grosze(chU, 7) << Grosze(zdr, 7) << Grosze(emP, 7) << Grosze(renP, 7) << Grosze(wypP, 7)
          << Grosze(0, 7) << Grosze(core::Round2(emU + renU + chU + zdr + emP + renP + wypP), 8) << Liczba2(f19)
          << Grosze(f20, 7) << Grosze(f17, 7) << Liczba2(f22) << Grosze(f23, 7) << Grosze(razemZasilki, 8);
        o.blanks({16, 16, 2});
        o << "</DDORCA>";
        if (powtorny) return;
        if (!(f21 > 0)) return;
        powtorny = true;
    }
}

// The absence rows of one person in ZUSRSA.
void DDORSA(Linie& o, const Wspolne& w, const Record& r) {
    struct Grupa {
        int dni, kod, od, do_, kwota;
    };
    static constexpr Grupa kGrupy[] = {
        {Rcp::Dni1, Rcp::KodPrzerwy1, Rcp::Od1, Rcp::Do1, Rcp::Deklarowana1},
        {Rcp::Dni2, Rcp::KodPrzerwy2, Rcp::Od2, Rcp::Do2, Rcp::Deklarowana2},
        {Rcp::Dni3, Rcp::KodPrzerwy3, Rcp::Od3, Rcp::Do3, Rcp::Deklarowana3},
        {Rcp::Dni4, Rcp::KodPrzerwy4, Rcp::Od4, Rcp::Do4, Rcp::Deklarowana4},
        {Rcp::DniC, Rcp::KodC, Rcp::OdC, Rcp::DoC, 0},
        {Rcp::DniB, Rcp::KodB, Rcp::OdB, Rcp::DoB, 0},
        {Rcp::DniA, Rcp::KodA, Rcp::OdA, Rcp::DoA, 0},
    };
    const std::string kodOsoby = r.s(Rcp::KodUbez);
    const Ident id = identyfikator(r);
    auto wiersz = [&](std::string dni, const std::string& kod, const std::string& od, const std::string& do_,
                      double kwota) {
        if (w.platnikN && kod == "331") {
            kwota = 0;
            dni.clear();
        }
        if (Left(kodOsoby, 3) == "051") {
            dni = "0";
            kwota = 0;
        }
        o << "<DDORSA>" << PadRight(NazwaDoKEDU(r.s(Rcp::Nazwisko)), 31) << PadRight(NazwaDoKEDU(r.s(Rcp::Imie)), 22)
          << id.typ << PadRight(id.wartosc, 11) << PadRight(kodOsoby, 6) << PadRight(kod, 3) << PadRight(od, 4)
          << PadRight(do_, 4) << PadRight(dni, 2) << "  " << Grosze(kwota, 7);
        o.blanks({16, 16, 2});
        o << "</DDORSA>";
    };
    for (const Grupa& g : kGrupy) {
        if (!(r.d(g.dni) > 0)) continue;
        wiersz(r.s(g.dni), r.s(g.kod), r.s(g.od), r.s(g.do_), g.kwota ? r.d(g.kwota) : 0.0);
    }
    if (w.grupaN && r.f(Rcp::KwotaObnizenia) > 0) wiersz("", "350", "", "", 0);
}

void dokumentRZA(Linie& o, const Wspolne& w, const std::vector<Record>& rcp) {
    o << "<ZUSRZA.DP>" << "<naglowek.DP>";
    naglowekBRAK(o);
    o << "</naglowek.DP>" << "<ZUSRZA>" << "<DORZA>" << w.IdDeklaracji << "1   " << Space(8) << Space(8) << "</DORZA>";
    blokDIPL(o, w.s);
    for (const Record& r : rcp) {
        double podstawa = r.f(Rcp::PodstZdro), skladka = r.f(Rcp::SklZdro);
        if (Left(r.s(Rcp::KodUbez), 3) == "051") {
            podstawa = w.PodstawaZdrowotnaWlasciciela;
            skladka = RoundSkl(w.st.zdrowotna * podstawa);
        }
        if (podstawa == 0) continue;
        if (flagi(r, {Rcp::FlagaEmerytalne, Rcp::FlagaChorobowe, Rcp::FlagaRentowe, Rcp::FlagaWypadkowe}) != 0 ||
            !(r.i(Rcp::FlagaZdrowotne) > 0))
            continue;
        const Ident id = identyfikator(r);
        o << "<DDORZA>" << PadRight(NazwaDoKEDU(r.s(Rcp::Nazwisko)), 31) << PadRight(r.s(Rcp::Imie), 22) << id.typ
          << PadRight(id.wartosc, 11) << PadRight(r.s(Rcp::KodUbez), 6) << Grosze(podstawa, 8) << Grosze(skladka, 7);
        o.blanks({16, 16, 2});
        o << "</DDORZA>";
    }
    o << "<OPLR>" << w.DataDokumentu << "</OPLR>" << "</ZUSRZA>" << "<stopka.DP>" << "</stopka.DP>" << "</ZUSRZA.DP>";
}

bool zaczyna(const std::string& linia, std::string_view co) { return linia.compare(0, co.size(), co) == 0; }

}  // namespace

std::vector<std::string> dokumentJednoosobowy(const core::Session& s, const Record& r, const Rozliczenie& roz) {
    const Wspolne w = wspolne(s, roz);
    const auto& st = w.st;
    const double f8 = r.f(Rcp::PodstZUS), f10 = r.f(Rcp::PodstZdro);
    const double emerytalne = RoundSkl(2 * f8 * st.emerytalna), rentowe = 0, razemER = emerytalne + rentowe;
    const double chorobowe = RoundSkl(st.chorobowa * f8), wypadkowe = RoundSkl(st.wypadkowa * f8);
    const double razemCW = chorobowe + wypadkowe, spoleczne = razemER + razemCW;
    const double zdrowotna = RoundSkl(st.zdrowotna * f10);
    const double fp = core::Round2(st.funduszPracy * r.f(Rcp::PodstFPr));
    const double doZaplaty = spoleczne + r.f(Rcp::SklZdro) + fp;
    const std::string zera10(10, '0');

    Linie o;
    o << kLinia1 << kLinia2 << "<!ENTITY strona kodowa 'ISO 8859-2' >]>" << "<KEDU>" << "<naglowek.KEDU>";
    o.blanks({51, 8, 24, 24});
    o << PadRight("BRAK", 32) << "</naglowek.KEDU>" << "<ZUSDRA.DP>" << "<naglowek.DP>";
    o.blanks({51, 8, 8, 8, 24, 8, 24, 24, 8, 24, 24, 1});
    o << "2" << PadRight("401001", 32) << "</naglowek.DP>" << "<ZUSDRA>" << "<DADRA>" << w.Termin << w.IdDeklaracji;
    o.blanks({8, 6, 12});
    o << "</DADRA>" << "<DIPL>";
    for (const auto& v : DIPL(s, true, true)) o << v;
    o << "</DIPL>" << "<INN7>" << PadRight("1", 6) << "00000000" << "0" << stopaWypadkowa(st) << "</INN7>"
      << "<ZSDRAI>";
    for (int i = 0; i < 2; ++i) o << Grosze(emerytalne, 10) << Grosze(rentowe, 10) << Grosze(razemER, 10);
    for (int i = 0; i < 12; ++i) o << zera10;
    for (int i = 0; i < 2; ++i) o << Grosze(chorobowe, 10) << Grosze(wypadkowe, 10) << Grosze(razemCW, 10);
    for (int i = 0; i < 7; ++i) o << zera10;
    o << Grosze(spoleczne, 11) << "</ZSDRAI>" << "<ZWDRA>";
    for (int i = 0; i < 4; ++i) o << zera10;
    o << "00000000000" << "</ZWDRA>" << "<RIVDRA>" << "00000000000" << Grosze(spoleczne, 11) << "</RIVDRA>"
      << "<ZSDRA>" << Grosze(zdrowotna, 10) << zera10 << zera10 << Grosze(zdrowotna, 11) << "</ZSDRA>" << "<ZDRAV>"
      << Grosze(fp, 10) << zera10 << Grosze(fp, 11) << "</ZDRAV>" << "<LSKD>" << Grosze(doZaplaty, 12) << "</LSKD>"
      << "<KNDK>";
    o.blanks({10, 10, 10, 11});
    o << "</KNDK>" << "<DDDU>" << PadRight(r.s(Rcp::KodUbez), 6) << Grosze(f8, 10) << Grosze(f8, 10) << Grosze(f10, 10)
      << " " << "</DDDU>" << "<OPLS>" << "0    " << Space(5) << "0    " << "0    " << Space(5) << "0    " << Space(8)
      << w.DataDokumentu << "</OPLS>" << "</ZUSDRA>" << "<stopka.DP>" << "</stopka.DP>" << "</ZUSDRA.DP>"
      << "<stopka.KEDU>" << "</stopka.KEDU>" << "</KEDU>";
    return o.l;
}

std::vector<std::string> dokumentZbiorczy(const core::Session& s, const std::vector<Record>& rcp,
                                          const Rozliczenie& roz, const std::vector<std::string>& wzorzec) {
    const Wspolne w = wspolne(s, roz);
    long liczbaOsob = 0, osobyRZA = 0;
    double podstawaFP = 0, podstawaFGSP = 0, dniRSA = 0;
    for (const Record& r : rcp) {
        ++liczbaOsob;
        if (flagi(r, {Rcp::FlagaEmerytalne, Rcp::FlagaRentowe, Rcp::FlagaChorobowe, Rcp::FlagaWypadkowe}) <= 0 &&
            static_cast<double>(r.f(Rcp::PodstZUS)) + r.f(Rcp::PodstChorobowa) == 0 && r.f(Rcp::SklZdro) > 0)
            ++osobyRZA;
        if (Left(r.s(Rcp::KodUbez), 3) != "012") {
            float f78 = r.f(Rcp::PodstFPr);
            if (r.s(Rcp::WskaznikFP) == "1") f78 = 0;
            if (r.s(Rcp::WskaznikFP) == "2") f78 = r.f(Rcp::PodstZUS);
            podstawaFP += f78;
            podstawaFGSP += r.f(Rcp::PodstFGSP);
        }
        for (int p : {Rcp::Dni1, Rcp::Dni2, Rcp::Dni3, Rcp::Dni4, Rcp::DniC, Rcp::DniB, Rcp::DniA})
            dniRSA += core::Val(r.s(p));
    }
    const float fgsp = core::Round2(w.st.fgsp * podstawaFGSP);
    const float fp = core::Round2(w.st.funduszPracy * podstawaFP);
    const float funduszeRazem = core::Round2(static_cast<double>(fp) + fgsp);

    Linie o;
    const std::vector<std::string> dipl = DIPL(s, true, false);
    for (std::size_t i = 0; i < wzorzec.size(); ++i) {
        const std::string& t = wzorzec[i];
        if (zaczyna(t, "<ZUSRCA>")) break;
        switch (i + 1) {
        case 1: o << kLinia1; break;
        case 2: o << kLinia2; break;
        case 31: o << w.Termin; break;
        case 32: o << w.IdDeklaracji; break;
        case 52: o << PadRight(std::to_string(liczbaOsob), 6); break;
        case 53: o << "00000000"; break;
        case 54: o << "0"; break;
        case 55: o << stopaWypadkowa(w.st); break;
        case 109: o << Grosze(fp, 10); break;
        case 110: o << Grosze(fgsp, 10); break;
        case 111: o << Grosze(funduszeRazem, 11); break;
        case 136: o << w.IdDeklaracji; break;
        case 137: o << w.DataDokumentu; break;
        default:
            if (i + 1 >= 38 && i + 1 <= 46)
                o << dipl[i + 1 - 38];
            else
                o << t;
        }
    }
    o << "<ZUSRCA>" << "<DORCA>" << w.IdDeklaracji << "1    " << Space(9) << Space(9) << "</DORCA>";
    blokDIPL(o, s);
    bool zapisanoDDORCA = false;
    for (const Record& r : rcp) DDORCA(o, w, r, zapisanoDDORCA);
    o << "<OPLR>" << w.DataDokumentu << "</OPLR>" << "</ZUSRCA>" << "<stopka.DP>" << "</stopka.DP>" << "</ZUSRCA.DP>";
    if (dniRSA > 0) {
        o << "<ZUSRSA.DP>" << "<naglowek.DP>";
        naglowekBRAK(o);
        o << "</naglowek.DP>" << "<ZUSRSA>" << "<DORSA>" << w.IdDeklaracji << "1  " << Space(8) << Space(8)
          << "</DORSA>";
        blokDIPL(o, s);
        for (const Record& r : rcp) DDORSA(o, w, r);
        o << "<OPLR>" << w.DataDokumentu << "</OPLR>" << "</ZUSRSA>" << "<stopka.DP>" << "</stopka.DP>"
          << "</ZUSRSA.DP>";
    }
    o << "<stopka.KEDU>" << "</stopka.KEDU>" << "</KEDU>";
    if (osobyRZA == 0) return o.l;

    // ZUSRZA goes in right behind ZUSRCA; a ZUSRCA without a single person row is left out.
    Linie z;
    for (const std::string& t : o.l) {
        z << t;
        if (zaczyna(t, "</ZUSRCA.DP>")) dokumentRZA(z, w, rcp);
    }
    if (zapisanoDDORCA) return z.l;
    std::vector<std::string> bez;
    bool pomin = false;
    for (const std::string& t : z.l) {
        if (t == "<ZUSRCA.DP>") pomin = true;
        if (!pomin) bez.push_back(t);
        if (t == "</ZUSRCA.DP>") pomin = false;
    }
    return bez;
}

std::vector<std::string> dokumentKEDU(const core::Session& s, const std::vector<Record>& rcp, const Rozliczenie& r) {
    if (rcp.size() == 1 && Left(rcp.back().s(Rcp::KodUbez), 3) == "051") return dokumentJednoosobowy(s, rcp.back(), r);
    std::vector<std::string> wzorzec;
    core::SeqReader in(plikWzorca(s));
    while (!in.eof()) wzorzec.push_back(in.line());
    return dokumentZbiorczy(s, rcp, r, wzorzec);
}

std::optional<WynikKEDU> cmdWykonajRCA(core::Session& s, core::Dialogs& ui, const Rozliczenie& r) {
    std::vector<Record> rcp;
    try {
        reference::loadRates(s);
        rcp = Rcp::readAll(Rcp::path(s));
    } catch (const core::Error& e) {
        core::MsgBox(ui, "Blad nr " + std::to_string(e.Number) + " w linii " + e.Step, {}, core::Icon::Critical);
        return std::nullopt;
    }
    std::string nazwisko;
    try {
        const bool jednoosobowy = rcp.size() == 1 && Left(rcp.back().s(Rcp::KodUbez), 3) == "051";
        if (!jednoosobowy &&
            ui.msgBox("Czy wykonać zbiór na ten miesiąc w Płatniku ", core::Buttons::OKCancel, core::Icon::Question,
                      "Wykonuję zbiór KDU do Płatnika za miesiąc " + s.DataListy) != core::Answer::OK)
            return std::nullopt;
        if (!rcp.empty()) nazwisko = rcp.back().s(Rcp::Nazwisko);
        std::string tekst;
        for (const std::string& l : dokumentKEDU(s, rcp, r)) tekst += l + "\r\n";
        core::ensureFolder(s.payerFolder(), {"zus"});
        const fs::path plik = plikRozliczenia(s, r.zestaw);
        core::commitFile(plik, tekst, "Tymcza.kdu");
        core::MsgBox(ui, "Zbior DO PLATNIKA zostal utworzony w BIEZACYM KATALOGU-PODKATALOG ZUS");
        return WynikKEDU{plik, "Wykonany!",
                         " Przejdź do płatnika ZUS i wskaż utworzony plik KDU " + plik.string() +
                             slowoMiesiaca(std::atoi(s.miesiac().c_str()))};
    } catch (const core::Error& e) {
        core::MsgBox(ui, " Bład nr " + std::to_string(e.Number) + " w linni " + e.Step + " " + nazwisko, {},
                     core::Icon::Critical);
        return std::nullopt;
    }
}

}  // namespace zus
