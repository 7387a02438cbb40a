#include "printing/lista_plac.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/text.h"
#include "paycalc/karta_record.h"
#include "printing/sumy_record.h"
#include "reference/payers.h"
#include "reference/rates.h"

using core::Buttons;
using core::Icon;
using core::Len;
using core::Left;
using core::Mid;
using core::PadRight;
using core::Right;
using core::Space;
namespace K = paycalc::Karta;

namespace printing {

const char* const kBrakPapieru = "Brak papieru w drukarce !";
const char* const kDrukarkaWylaczona = "Drukarka nie jest właczona !";
const char* const kBrakKartoteki = "Po pierwsze wykonaj kartoteke !";

namespace {

constexpr double kRozmiar = 7;  // the size of the lists' Courier New

// The page line: the page number stands far to the right above the person's name column.
const char* const kStrona = "                                                                                 strona ";

// The head rows of a page, each printed after one leading blank.
const char* const kGlowa1 = "|Il.Dni| Kwoty  |  PLACA  |  D O D A T K I |  PLACA  |"
                            "   P  O  T  R  A  C  E  N  I  A   |Placa    | R A Z E M|"
                            "Lp.  IMIE              |";
const char* const kGlowa2a = "|ZasZUS|ChoroZUS|ZASADNI. |Stazowy |";
const char* const kGlowa2b = "|PodsPodat|Skl.Emer|KZPrata |Potrac1|PodatBru|Po potrac| Netto    |  Nazwisko             |";
const char* const kGlowa3 = "|CHorob|ChorPłat|Dod.Funk.|Wiejski |Trudnos|PodstKasy|Skl.Rent|KZPskład|Potrac2|FundZdr.|"
                            "Pielegnac|Potraceni3| Nazwisko (cd)         |";
const char* const kGlowa4 = "|Urlopu|Urlopowe|Nagroda  |Specjal.|DodMies|PodstZUS |Skl.Chor.  ZFM   |Potr.In|Skl.ZdIn|"
                            "Zas.Rodzi|Na Rach.OR|";
const char* const kGlowa5 = "|Nieobe|StawkaUr|Premia   |Motywacy|Ekwiwal| Brutto  |RazemSkl|Ubezpiec|    -  |PodatNet|"
                            "Zasil.ZUS|";
const char* const kGlowa6 = "| Etat |StawkaCh|DodatPotro"
                            "Szkodliw|"
                            " Nocny |UlgaPodOd|"
                            "KosztUzy|  ZNP   |Solidar|RazemPot|";
const char* const kKolumny = "|   1  |   2    |    3    |   4    |   5   |    6    |    7   |   8    |    9  |"
                             "   10   |   11    |    12    |       13              |";

// The payer whose list heads its column 5 "Wychowa" instead of "Nadlicz".
const char* const kNipWychowawczy = "5556667778";

std::string rule(char sign) { return " |" + std::string(132, sign) + "|"; }

// A count of days: a blank and the number in two places, or three blanks for none.
std::string dni(float d) { return d != 0 ? " " + core::Format(core::numText(d), "!@@") : "   "; }

const char* formatSzerokosci(int width) {
    switch (width) {
    case 7: return "###0.00";
    case 8: return "####0.00";
    case 9: return "#####0.00";
    case 10: return "######0.00";
    default: return "#######0.00";
    }
}

std::string kw(float v, int width) { return tekstKwoty(v, width); }

float suma(std::initializer_list<float> vs) {
    double t = 0;
    for (float v : vs) t += v;
    return static_cast<float>(t);
}

// A number of a ledger field: numeric fields as read, a variant or a blank position by the
// leading number of its text (nothing gives 0).
float liczba(const core::Record& r, int n) {
    switch (r.schema().fields[n - 1].type) {
    case core::FieldType::Float:
    case core::FieldType::Double:
    case core::FieldType::Int16:
    case core::FieldType::Long: return r.f(n);
    default: return static_cast<float>(core::Val(r.s(n)));
    }
}

}  // namespace

std::string tekstKwoty(float v, int width) { return core::PadLeft(core::Format(v, formatSzerokosci(width)), width); }
std::string kreska(int width) { return "|" + Space(static_cast<std::size_t>(width - 2)) + "- "; }
std::string kwota(float v, int width) { return "|" + kw(v, width); }
std::string komorka(float v, int width) { return v == 0 ? kreska(width) : kwota(v, width); }

OsobaNaLiscie wyliczOsobe(const core::Record& r, const core::Stawki& st) {
    OsobaNaLiscie o;
    auto& v = o.v;
    for (int n = 1; n <= K::Count; ++n) {
        auto t = r.schema().fields[n - 1].type;
        if (t != core::FieldType::String && t != core::FieldType::Line) v[n] = liczba(r, n);
    }
    o.Nazwisko = r.s(K::Nazwisko);
    o.Imie = r.s(K::Imie);
    o.Etat = r.s(K::Etat);
    o.NumerKonta = r.s(K::NumerKonta);
    o.Grupa = r.s(K::Grupa);

    o.RazemPot = suma({v[K::ZFMRata], v[K::KZPRata], v[K::KZPSkladka], v[K::PotraceniaInne], v[K::ZwiazekZawodowy],
                       v[K::Solidarnosc], v[K::PZU], v[K::Potracenie1], v[K::Potracenie2],
                       v[K::SkladkaZdrowotnaOdliczana], v[K::PodatekNetto], v[K::SkladkaZdrowotnaPozostala],
                       v[K::SkladkaChorobowa], v[K::SkladkaRentowa], v[K::SkladkaEmerytalna]});
    o.Zasilki = suma({v[K::ZasilekZUS], v[K::ZasilekRodzinny], v[K::ZasilekPielegnacyjny]});
    v[K::Brutto] = core::Round2(static_cast<double>(v[K::Brutto]));
    o.PoPotraceniach = static_cast<float>(static_cast<double>(v[K::Brutto]) - o.RazemPot);
    o.Netto = static_cast<float>(static_cast<double>(o.PoPotraceniach) + o.Zasilki);
    double naReke = static_cast<double>(o.Netto) - v[K::Potracenie3];
    if (v[K::NaROR] > naReke) v[K::NaROR] = static_cast<float>(naReke);

    // The four sick lines: days of code 331 and of the other codes, each with the code of the
    // last line that had days. The fourth line takes a code 331 without its days.
    const int dniLinii[4] = {K::LiczbaDni1, K::LiczbaDni2, K::LiczbaDni3, K::LiczbaDni4};
    const int kodLinii[4] = {K::KodPrzerwy1, K::KodPrzerwy2, K::KodPrzerwy3, K::KodPrzerwy4};
    for (int i = 0; i < 4; ++i) {
        float d = v[dniLinii[i]];
        if (!(d > 0)) continue;
        std::string kod = r.s(kodLinii[i]);
        if (kod == "331") {
            o.KodLinii2 = kod;
            if (i == 0) o.DniKod331 = d;
            else if (i < 3) o.DniKod331 = suma({o.DniKod331, d});
        } else {
            o.KodLinii1 = kod;
            o.DniInneKody = i == 0 ? d : suma({o.DniInneKody, d});
        }
    }
    o.DniNieobecnosci = static_cast<float>(core::Val(r.s(K::Rezerwa112)) + core::Val(r.s(K::Rezerwa102)) +
                                           core::Val(r.s(K::Rezerwa108)));
    o.RazemSkl = suma({v[K::SkladkaEmerytalna], v[K::SkladkaRentowa], v[K::SkladkaChorobowa]});
    if (v[K::CheckWypadkowa] == 1) o.Wypadkowa = core::Round2(static_cast<double>(v[K::PodstawaZUS]) * st.wypadkowa);
    if (v[K::EFPomostowy] == 1) o.PodstawaPomostowa = v[K::PodstawaZUS];
    v[K::Urlopowe] = core::Round2(static_cast<double>(v[K::StawkaUrlopowa]) * v[K::DniUrlopu]);

    double zasilkiZUS = static_cast<double>(v[K::ChoroboweWypadkowe]) + v[K::ChoroboweZUS];
    if (zasilkiZUS > 0) {
        float niedobor = o.Netto < 0 ? -o.Netto : 0.0f;
        float w = core::RoundZl(zasilkiZUS);
        float t = core::RoundZl(static_cast<double>(v[K::StawkaPodatku]) * w);
        t = static_cast<float>(static_cast<double>(t) - v[K::UlgaNiewykorzystana]);
        float c = static_cast<float>(zasilkiZUS - niedobor - t);
        if (!core::Trim(o.NumerKonta).empty() && v[K::NaROR] > 0) {
            v[K::ZasilkiDoROR] = c;
            c = 0;
        }
        o.PodatekOdZasilkow = t;
        o.ZasilkiGotowka = c;
        v[K::Niedobor] = niedobor;
        v[K::ZasilkiDoKasy] = c;
        v[K::PodatekOdZasilkow] = t;
    }

    // The job share "nnnddd" (or "n/d"): numerator over denominator.
    double licznik = core::Val(Left(o.Etat, 3)), mianownik = core::Val(Right(o.Etat, 3));
    if (mianownik != 0) o.Etaty = licznik / mianownik;
    return o;
}

DrukListy::DrukListy(core::Session& session, core::Dialogs& dialogs, core::Printer& printer)
    : s(session), ui(dialogs), papier(printer) {}

core::Printer& DrukListy::drukarka() {
    int st = papier.status();
    if (st != 0) throw core::Error(st, "drukarka", st == core::err::OutOfPaper ? "brak papieru" : "drukarka nie odpowiada");
    return papier;
}

bool DrukListy::bladDrukarki(core::Dialogs& ui, const core::Error& e) {
    if (e.Number == core::err::OutOfPaper) {
        ui.msgBox(kBrakPapieru, Buttons::OK, Icon::Exclamation);
        return true;
    }
    if (e.Number == core::err::DeviceTimeout) {
        ui.msgBox(kDrukarkaWylaczona, Buttons::OK, Icon::Exclamation);
        return true;
    }
    return false;
}

bool DrukListy::SprawdzDrukarke() {
    // The month stamp RRmm is worked out from DataListy wherever it is used.
    return ui.msgBox("Upewnij się czy drukarka jest gotowa!", Buttons::YesNo, Icon::Question, "Sprawdź Drukarkę") !=
           core::Answer::No;
}

void DrukListy::modDrukujPoczatek() {
    drukarka().emptyLine();
    drukarka().setFont("Courier New", kRozmiar, true);
    drukarka().emptyLine();
    print(" " + std::string("   LISTA ") + s.RodzajListy + " " + s.SkrotPlatnika + " Nr listy " + s.NumerListy + "/" +
          Right(s.DataListy, 4));
    print(" za miesiac " + Mid(s.DataListy, 4, 2) + " " + Right(s.DataListy, 4));
    print(" " + s.NazwaListy);
}

int DrukListy::liczbaStron() const {
    if (s.LiczbaOsob < 13) return 1;
    return (s.LiczbaOsob + 12) / 13;
}

void DrukListy::NaglowekListy() {
    const bool paski = s.TrybDruku == 1;
    drukarka().setFont("Courier New", kRozmiar, true);
    if (!paski) print(kStrona + std::to_string(s.Strona) + " / z " + std::to_string(liczbaStron()));
    print(rule('='));
    print(" " + std::string(kGlowa1));
    bool wychowawczy = s.Firma.valid() && s.Firma.s(reference::Firma::NIP) == kNipWychowawczy;
    print(" " + std::string(kGlowa2a) + (wychowawczy ? "Wychowa" : "Nadlicz") + kGlowa2b);
    print(" " + std::string(kGlowa3));
    print(" " + std::string(kGlowa4) + (paski ? "KZPStanKon|KZPpożyczki |" : "PokwitowanieOdbioru    |"));
    print(" " + std::string(kGlowa5) + (paski ? "DoWypłaty |ZFM StanKo|Data Listy  |" : "DoWypłaty |                       |"));
    print(" " + std::string(kGlowa6) +
          (paski ? "ZFMpożycz|Składki z zakładu pr.( Em|Re|Wypa)|" : "    -    | Numer konta ROR                  |"));
    print(rule('='));
    print(" " + std::string(kKolumny));
    print(rule('='));
}

void DrukListy::wierszeOsoby(const OsobaNaLiscie& o, int n) {
    const auto& v = o.v;
    const bool paski = s.TrybDruku == 1;
    const std::string pusta = "|                       |";
    // Row A.
    print(" |" + o.KodLinii1 + dni(o.DniInneKody) + komorka(suma({v[K::ChoroboweWypadkowe], v[K::ChoroboweZUS]}), 8) +
          komorka(v[K::Zasadnicza], 9) + komorka(v[K::Stazowy], 8) + komorka(v[K::Wychowawczy], 7) +
          komorka(v[K::PodstawaPodatku], 9) + komorka(v[K::SkladkaEmerytalna], 8) + komorka(v[K::KZPRata], 8) +
          komorka(v[K::Potracenie1], 7) + komorka(v[K::Podatek], 8) + komorka(o.PoPotraceniach, 9) +
          komorka(o.Netto, 10) + "|" + core::PadLeft(core::Format(static_cast<double>(n), "####"), 3) + "." +
          PadRight(o.Imie, 19) + "|");
    // Row B.
    print(" |" + o.KodLinii2 + dni(o.DniKod331) + komorka(v[K::ChorobowePracodawca], 8) + komorka(v[K::Funkcyjny], 9) +
          komorka(v[K::Wiejski], 8) + komorka(v[K::Trudnosciowy], 7) + komorka(v[K::PodstawaZdrowotna], 9) +
          komorka(v[K::SkladkaRentowa], 8) + komorka(v[K::KZPSkladka], 8) + komorka(v[K::Potracenie2], 7) +
          komorka(v[K::SkladkaZdrowotnaPozostala], 8) + komorka(v[K::ZasilekPielegnacyjny], 9) +
          komorka(v[K::Potracenie3], 10) + "| " + PadRight(o.Nazwisko, 22) + "|");
    // Row C.
    std::string c = " |   " + dni(v[K::DniUrlopu]) + komorka(v[K::Urlopowe], 8) + komorka(v[K::Inny], 9) +
                    komorka(suma({v[K::Specjalny], v[K::Specjalistyczny]}), 8) + komorka(v[K::Mieszkaniowy], 7) +
                    komorka(v[K::PodstawaZUS], 9) + komorka(v[K::SkladkaChorobowa], 8) + komorka(v[K::ZFMRata], 8) +
                    komorka(v[K::PotraceniaInne], 7) + komorka(v[K::SkladkaZdrowotnaOdliczana], 8) +
                    komorka(v[K::ZasilekRodzinny], 9) + komorka(v[K::NaROR], 10);
    if (paski) {
        c += v[K::KZPWklady] != 0 ? "| " + kw(v[K::KZPWklady], 10) : "|      -    ";
        c += v[K::KZPPozyczka] != 0 ? "| " + kw(v[K::KZPPozyczka], 10) + "|" : "|     -     |";
    } else {
        c += pusta;
    }
    print(c);
    // Row D.
    std::string d = " |   " + dni(o.DniNieobecnosci) + komorka(v[K::StawkaUrlopowa], 8) + komorka(v[K::Premia], 9) +
                    komorka(v[K::Motywacyjny], 8) + komorka(v[K::Ekwiwalent], 7) + komorka(v[K::Brutto], 9) +
                    komorka(o.RazemSkl, 8) + komorka(v[K::PZU], 8) + kreska(7) + komorka(v[K::PodatekNetto], 8) +
                    komorka(v[K::ZasilekZUS], 9) + komorka(v[K::DoWyplaty], 10);
    if (paski) {
        d += v[K::ZFMPozyczka] != 0 ? "| " + kw(v[K::ZFMPozyczka], 10) : "|      -    ";
        d += "| " + s.DataListy + "|";
    } else {
        d += pusta;
    }
    print(d);
    // Row E.
    bool bezDni = v[K::DniUrlopu] == 0 && o.DniKod331 == 0 && o.DniInneKody == 0;
    std::string e = " |" + Left(o.Etat, 3) + Right(o.Etat, 3) + "|" +
                    (bezDni ? Space(8) : kw(v[K::SredniaChorobowa], 8)) + komorka(v[K::Wyrownania], 9) +
                    komorka(v[K::Szkodliwy], 8) + komorka(v[K::Nocny], 7) + komorka(v[K::UlgaZastosowana], 9) +
                    komorka(v[K::KosztyUzyskania], 8) + komorka(v[K::ZwiazekZawodowy], 8) +
                    komorka(v[K::Solidarnosc], 7) + komorka(o.RazemPot, 8);
    if (paski) {
        e += komorka(v[K::ZFMPozyczka], 9) + komorka(v[K::SkladkaEmerytalna], 10);
        e += v[K::SkladkaRentowaPracodawcy] != 0 ? "| " + kw(v[K::SkladkaRentowaPracodawcy], 10) : "|       -   ";
        // A payslip without an accident amount leaves its line open: the rule below runs on.
        if (v[K::SkladkaWypadkowa] != 0)
            print(e + "| " + kw(v[K::SkladkaWypadkowa], 10) + "|");
        else
            print(e + "|       -   ", false);
    } else {
        print(e + kreska(9) + "|" + PadRight(o.NumerKonta, 30) + "    |");
    }
}

bool DrukListy::modDrukujListe(bool zapiszSumy) {
    try {
        const bool paski = s.TrybDruku == 1;
        int znacznik = 0;
        if (paski)
            znacznik = 5;
        else
            NaglowekListy();
        s.Strona = 1;
        drukarka().setBold(true);
        // The ledger is read person by person as the list goes.
        std::optional<core::SeqReader> karta;
        try {
            karta.emplace(K::path(s));
        } catch (const core::Error& e) {
            if (e.Number != core::err::FileNotFound && e.Number != core::err::PathNotFound) throw;
            ui.msgBox(kBrakKartoteki, Buttons::OK, Icon::Exclamation);
            return false;
        }

        // The list's totals, at double precision, by the fields of the summary file.
        std::array<double, Sumy::Count + 1> t{};
        double podstawaFP = 0, podstawaFGSP = 0, podstawaPomostowa = 0;
        std::string grupa;
        const int koniec = s.LiczbaOsob + 1;
        int n = 0;
        while (!karta->eof()) {
            const core::Record rec = core::readRecord(*karta, K::schema());
            ++n;
            if (postep) postep(std::min(n, koniec), koniec);
            OsobaNaLiscie o = wyliczOsobe(rec, s.stawki);
            const auto& v = o.v;
            grupa = o.Grupa;
            if (paski) NaglowekListy();
            wierszeOsoby(o, n);
            print(rule('-'));
            if (paski) {
                // Five payslips a page; nothing is summed on payslips.
                if (n == znacznik) {
                    drukarka().newPage();
                    znacznik += 5;
                }
                continue;
            }

            using namespace Sumy;
            t[LiczbaOsob] = n;
            t[Zasadnicza] += v[K::Zasadnicza];
            t[Stazowy] += v[K::Stazowy];
            t[Nadlicz] += v[K::Wychowawczy];
            t[Trudnosciowy] += v[K::Trudnosciowy];
            t[PodstawaPodatku] += v[K::PodstawaPodatku];
            t[KZPRata] += v[K::KZPRata];
            t[PZU] += v[K::PZU];
            t[PotraceniaInne] += v[K::PotraceniaInne];
            t[PodatekNetto] += v[K::PodatekNetto];
            t[Podatek] += v[K::Podatek];
            t[SkladkaZdrowotnaPozostala] += v[K::SkladkaZdrowotnaPozostala];
            t[PoPotraceniach] += o.PoPotraceniach;
            t[Netto] += o.Netto;
            t[Funkcyjny] += v[K::Funkcyjny];
            t[Wiejski] += v[K::Wiejski];
            t[Premia] += v[K::Premia];
            t[PodstawaZdrowotna] += v[K::PodstawaZdrowotna];
            t[KZPSkladka] += v[K::KZPSkladka];
            t[SkladkaZdrowotnaOdliczana] += v[K::SkladkaZdrowotnaOdliczana];
            t[Solidarnosc] += v[K::Solidarnosc];
            t[ZasilekPielegnacyjny] += v[K::ZasilekPielegnacyjny];
            t[NaROR] += v[K::NaROR];
            t[Nagroda] += v[K::Inny];
            t[Specjalny] += static_cast<double>(v[K::Specjalny]) + v[K::Specjalistyczny];
            t[Szkodliwy] += v[K::Szkodliwy];
            t[Mieszkaniowy] += v[K::Mieszkaniowy];
            t[PodstawaZUS] += v[K::PodstawaZUS];
            t[ZwiazekZawodowy] += v[K::ZwiazekZawodowy];
            t[ZFMRata] += v[K::ZFMRata];
            t[Potracenie1] += v[K::Potracenie1];
            t[ZasilekRodzinny] += v[K::ZasilekRodzinny];
            t[Wyrownania] += v[K::Wyrownania];
            t[DoWyplaty] += v[K::DoWyplaty];
            t[Motywacyjny] += v[K::Motywacyjny];
            t[Ekwiwalent] += v[K::Ekwiwalent];
            t[Brutto] += v[K::Brutto];
            t[SkladkaChorobowa] += v[K::SkladkaChorobowa];
            t[SkladkaRentowa] += v[K::SkladkaRentowa];
            t[SkladkaEmerytalna] += v[K::SkladkaEmerytalna];
            t[RazemSkl] += o.RazemSkl;
            t[RazemPot] += o.RazemPot;
            t[ZasilekZUS] += v[K::ZasilekZUS];
            t[DniKod331] += o.DniKod331;
            t[DniInneKody] += o.DniInneKody;
            t[DniUrlopu] += v[K::DniUrlopu];
            t[DniNieobecnosci] += o.DniNieobecnosci;
            t[ZasilkiZUS] += static_cast<double>(v[K::ChoroboweZUS]) + v[K::ChoroboweWypadkowe];
            t[ChorobowePracodawca] += v[K::ChorobowePracodawca];
            t[Urlopowe] += v[K::Urlopowe];
            t[ZasilekWychowawczy] += v[K::ZasilekWychowawczy];
            t[Potracenie2] += v[K::Potracenie2];
            t[Potracenie3] += v[K::Potracenie3];
            t[Rentowa] += v[K::SkladkaRentowaPracodawcy];
            t[Wypadkowa] += o.Wypadkowa;
            t[Etaty] += o.Etaty;
            t[Nocny] += v[K::Nocny];
            t[ZasilkiGotowka] += o.ZasilkiGotowka;
            podstawaFP += v[K::PodstawaFP];
            podstawaFGSP += v[K::PodstawaFGSP];
            podstawaPomostowa += o.PodstawaPomostowa;

            // Carry-over to the next page after every 13 persons, up to the 65th.
            if ((n == 13 || n == 26 || n == 39 || n == 52 || n == 65) && s.LiczbaOsob >= n) {
                ++s.Strona;
                drukarka().emptyLine();
                print(" " + std::string(n == 65 ? " Przeniesienie na strone " : "   Przeniesienie na strone ") +
                      std::to_string(s.Strona));
                drukarka().newPage();
                NaglowekListy();
            }
        }
        if (paski) {
            drukarka().endDoc();
            return true;
        }

        // The totals, each narrowed once.
        auto S = [&](int k) { return static_cast<float>(t[k]); };
        using namespace Sumy;
        print(rule('='));
        print(" |   " + dni(S(DniInneKody)) + komorka(S(ZasilkiZUS), 8) + komorka(S(Zasadnicza), 9) +
              komorka(S(Stazowy), 8) + komorka(S(Nadlicz), 7) + komorka(S(PodstawaPodatku), 9) +
              komorka(S(SkladkaEmerytalna), 8) + komorka(S(KZPRata), 8) + komorka(S(Potracenie1), 7) +
              komorka(S(Podatek), 8) + komorka(S(PoPotraceniach), 9) + komorka(S(Netto), 10) +
              "| Podsumowanie          |");
        print(" |   " + dni(S(DniKod331)) + komorka(S(ChorobowePracodawca), 8) + komorka(S(Funkcyjny), 9) +
              komorka(S(Wiejski), 8) + komorka(S(Trudnosciowy), 7) + komorka(S(PodstawaZdrowotna), 9) +
              komorka(S(SkladkaRentowa), 8) + komorka(S(KZPSkladka), 8) + komorka(S(Potracenie2), 7) +
              komorka(S(SkladkaZdrowotnaPozostala), 8) + komorka(S(ZasilekPielegnacyjny), 9) +
              komorka(S(Potracenie3), 10) + "| listy płac            |");
        print(" |   " + dni(S(DniUrlopu)) + komorka(S(Urlopowe), 8) + komorka(S(Nagroda), 9) + komorka(S(Specjalny), 8) +
              komorka(S(Mieszkaniowy), 7) + komorka(S(PodstawaZUS), 9) + komorka(S(SkladkaChorobowa), 8) +
              komorka(S(ZFMRata), 8) + komorka(S(PotraceniaInne), 7) + komorka(S(SkladkaZdrowotnaOdliczana), 8) +
              komorka(S(ZasilekRodzinny), 9) + komorka(S(NaROR), 10) + "|                       |");
        print(" |   " + dni(S(DniNieobecnosci)) + kreska(8) + komorka(S(Premia), 9) + komorka(S(Motywacyjny), 8) +
              komorka(S(Ekwiwalent), 7) + komorka(S(Brutto), 9) + komorka(S(RazemSkl), 8) + komorka(S(PZU), 8) +
              kreska(7) + komorka(S(PodatekNetto), 8) + komorka(S(ZasilekZUS), 9) + komorka(S(DoWyplaty), 10) +
              "|                       |");
        print(" |" + PadRight(Left(core::numText(S(Etaty)), 6), 6) + "|" + Space(8) + komorka(S(Wyrownania), 9) +
              komorka(S(Szkodliwy), 8) + komorka(S(Nocny), 7) + kreska(9) + kreska(8) + komorka(S(ZwiazekZawodowy), 8) +
              komorka(S(Solidarnosc), 7) + komorka(S(RazemPot), 8) + komorka(S(ZasilekWychowawczy), 9) +
              "|               Ilosc osób = " + core::Format(std::to_string(n), "!@@@@@") + " |");
        print(rule('='));

        // The employer's contributions.
        const core::Stawki& st = s.stawki;
        float bazaFP = static_cast<float>(podstawaFP), bazaFGSP = static_cast<float>(podstawaFGSP);
        float fp = core::Round2(st.funduszPracy * bazaFP);
        if (core::UCase(grupa) == "U") fp = 0;
        float fgsp = core::Round2(st.fgsp * bazaFGSP);
        float pomostowa = core::Round2(st.fep * static_cast<float>(podstawaPomostowa));
        float rentowa = S(Rentowa), emerytalna = S(SkladkaEmerytalna), wypadkowa = S(Wypadkowa);
        float razemZaklad = suma({fp, fgsp, pomostowa, rentowa, emerytalna, wypadkowa});
        auto stopa = [](double rate) { return core::Format(rate * 100, "##0.00"); };
        print(" Składka zakładu na Fundusz Pracy podstawa " + kw(bazaFP, 11) + "x" + stopa(st.funduszPracy) + "% =" +
              kw(fp, 9) + " zł");
        print(" Składka zakładu na Fundusz G.Św.Pracownicz" + kw(bazaFGSP, 11) + "x" + stopa(st.fgsp) + "% =" +
              kw(fgsp, 9) + " zł");
        print(" Składka zakładu na ubezpieczenie rentowe             " + stopa(st.rentowaPracodawca) + "% =" +
              kw(rentowa, 9) + " zł     Razem SklRentowa   =" + kw(suma({rentowa, S(SkladkaRentowa)}), 9) + "zł");
        print(" Składka zakładu na ubezpieczenie emerytalne          " + stopa(st.emerytalna) + "% =" +
              kw(emerytalna, 9) + " zł     RazemSkl Emerytalna=" + kw(suma({emerytalna, S(SkladkaEmerytalna)}), 9) +
              "zł");
        print(" Składka zakładu na ubezpieczenie wypadkowe           " + stopa(st.wypadkowa) + "% =" +
              kw(wypadkowa, 9) + " zł");
        print(" Składka zakładu na ubezpieczenie emerytalne pomostowe" + stopa(st.fep) + "% =" + kw(pomostowa, 9) +
              " zł");
        print(" Razem składki ubezpieczeniowe zakładu pracy                =" + kw(razemZaklad, 9) + " zł");
        drukarka().emptyLine();
        drukarka().emptyLine();
        print(" Kwota kosztów pracowniczych firmy do księgi = " +
              core::Format(suma({razemZaklad, S(Brutto)}), "##0.00") + " zł");
        drukarka().emptyLine();
        drukarka().emptyLine();
        modkoncowka();
        drukarka().endDoc();

        // The summary file.
        core::Record r(Sumy::schema());
        for (int k = 1; k <= Sumy::Count; ++k) r.set(k, S(k));
        r.set(LiczbaOsob, n);
        r.set(ZasilekZUSDrugi, S(ZasilekZUS));
        float zasilki = S(ZasilkiZUS);
        r.set(PodatekOdZasilkow, core::Round2(core::RoundZl(static_cast<double>(zasilki)) * st.Stawka1 / 100));
        r.set(Rezerwa44, 0.0f);
        r.set(FunduszPracy, fp);
        r.set(Emerytalna, emerytalna);
        r.set(FGSP, fgsp);
        r.set(Rentowa, rentowa);
        r.set(Pomostowa, pomostowa);
        r.setEmpty(Rezerwa64);
        sumy = r;
        if (zapiszSumy) Sumy::write(s, r);
        return true;
    } catch (const core::Error& e) {
        if (bladDrukarki(ui, e)) return false;
        throw;
    }
}

void DrukListy::modkoncowka() {
    drukarka().emptyLine();
    drukarka().emptyLine();
    std::string wykonal = s.Dane.valid() ? reference::administrator(s.Dane) : std::string(" ");
    print(" " + std::string("  Data ") + s.DataListy + "   wykonał " + wykonal +
          " ...............   zatwierdził  ....................");
}

void cmdDrukListy(core::Session& s, core::Dialogs& ui, std::optional<core::Record>* sumyPoWydruku) {
    DrukListy d(s, ui, ui.printer());
    if (!d.SprawdzDrukarke()) return;
    try {
        s.RodzajListy = " płac ";
        d.modDrukujPoczatek();
    } catch (const core::Error& e) {
        if (DrukListy::bladDrukarki(ui, e)) return;
        throw;
    }
    if (d.modDrukujListe(sumyPoWydruku == nullptr) && sumyPoWydruku) *sumyPoWydruku = d.sumy;
}

void CmdPaski(core::Session& s, core::Dialogs& ui) {
    DrukListy d(s, ui, ui.printer());
    if (!d.SprawdzDrukarke()) return;
    s.TrybDruku = 1;
    try {
        d.drukarka().emptyLine();
        d.drukarka().setFont("Courier New", kRozmiar, true);
        d.modDrukujListe();
    } catch (const core::Error& e) {
        s.TrybDruku = 0;
        if (DrukListy::bladDrukarki(ui, e)) return;
        throw;
    }
    s.TrybDruku = 0;
}

}  // namespace printing
