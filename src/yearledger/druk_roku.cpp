#include "yearledger/druk_roku.h"

#include <array>

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"

namespace D = paycalc::Dodatkowy;
namespace K = paycalc::Karta;
using core::Buttons;
using core::Icon;
using core::Record;

namespace yearledger {

namespace {

constexpr double kRozmiar = 7;  // the size of the lists' Courier New

const char* const kGlowa1 = "|Il.Dni| Kwoty  |  PLACA  |  D O D A T K I |  PLACA  |    P  O  T  R  A  C  E  N  I  A    "
                            "|Placa    | R A Z E M| Inne    | DODATKI |";
const char* const kGlowy[5] = {
    "|DniZUS|ChoroZUS|ZASADNI. |Stazowy |Nadlicz|PodsPodat|Skl.Emery|KZPrata |Potrace1|PodatBru|Po potrac| Netto    "
    "|GodzinyNa| Podstawa|",
    "|DniCHo|ChorPłat|Dod.Funk.|Wiejski |Trudnos|PodstKasy|Skl.Rento|KZPskład|Potrace2|FundZdr.|Pielegnac|Potraceni3"
    "|Składki  | Składki |",
    "|Urlopu|Urlopowe|Nagroda  |Specjal.|DodMies|PodstZUS |Skl.Chor. |  ZFM   |Potr.Inn|Skl.ZdIn|Zas.Rodzi|Na Rach.OR"
    "|N F Z    |NFZ 7,75%|",
    "|Nieobe|POD.zZUS|Premia   |Motywacy|Ekwiwal| Brutto  |RazemSkla|Ubezpiec|    -   |PodatNet|Zasil.ZUS|DoWypłaty "
    "|PodatekNt|PodatekNt|",
    "| Etat |StawkaDo|DodatUrlo|Szkodliw| Nocny | Ulga pod|KosztUzyk|  ZNP   |Solidarn|RazemPot|ZasilWych|SklWypadko"
    "|SkZdrInd |SkZdIndyw|",
};
// The widths of the cells after the first (the days), as the heads give them.
constexpr std::array<int, 13> kSzerokosci = {8, 9, 8, 7, 9, 9, 8, 8, 8, 9, 10, 9, 9};

// A month's (or the year's) five rows: the first cell as text, the others as amounts.
struct Blok {
    std::array<std::string, 5> pierwsza;
    std::array<std::array<double, 13>, 5> k{};
};

std::string dni(double d) { return d != 0 ? " " + core::Format(core::numText(static_cast<float>(d)), "!@@") : "   "; }

// The overtime or additions of the month in an extra column: amount, contributions, health,
// tax, deductible health.
void dodatkowaKolumna(Blok& b, int kolumna, const std::optional<Record>& r, const core::Stawki& st) {
    if (!r) return;
    auto v = [&](int n) { return core::Val(r->s(n)); };
    b.k[0][kolumna] = v(D::KwotaBrutto);
    b.k[1][kolumna] = skladkiDodatku(*r, st).razem();
    b.k[2][kolumna] = v(D::SkladkaZdrowotna);
    b.k[3][kolumna] = v(D::PodatekNetto);
    b.k[4][kolumna] = v(D::SkladkaIndywidualna);
}

Blok blokMiesiaca(const MiesiacRoku& m, const core::Stawki& st) {
    const printing::OsobaNaLiscie o = printing::wyliczOsobe(*m.karta, st);
    const auto& v = o.v;
    Blok b;
    b.pierwsza = {o.KodLinii1 + dni(o.DniInneKody), o.KodLinii2 + dni(o.DniKod331), "   " + dni(v[K::DniUrlopu]),
                  "   " + dni(o.DniNieobecnosci), core::Left(o.Etat, 3) + core::Right(o.Etat, 3)};
    b.k[0] = {static_cast<double>(v[K::ChoroboweWypadkowe]) + v[K::ChoroboweZUS], v[K::Zasadnicza], v[K::Stazowy],
              v[K::Wychowawczy], v[K::PodstawaPodatku], v[K::SkladkaEmerytalna], v[K::KZPRata], v[K::Potracenie1],
              v[K::Podatek], o.PoPotraceniach, o.Netto, 0, 0};
    b.k[1] = {v[K::ChorobowePracodawca], v[K::Funkcyjny], v[K::Wiejski], v[K::Trudnosciowy], v[K::PodstawaZdrowotna],
              v[K::SkladkaRentowa], v[K::KZPSkladka], v[K::Potracenie2], v[K::SkladkaZdrowotnaPozostala],
              v[K::ZasilekPielegnacyjny], v[K::Potracenie3], 0, 0};
    b.k[2] = {v[K::Urlopowe], v[K::Inny], static_cast<double>(v[K::Specjalny]) + v[K::Specjalistyczny],
              v[K::Mieszkaniowy], v[K::PodstawaZUS], v[K::SkladkaChorobowa], v[K::ZFMRata], v[K::PotraceniaInne],
              v[K::SkladkaZdrowotnaOdliczana], v[K::ZasilekRodzinny], v[K::NaROR], 0, 0};
    b.k[3] = {v[K::PodatekOdZasilkow], v[K::Premia], v[K::Motywacyjny], v[K::Ekwiwalent], v[K::Brutto], o.RazemSkl,
              v[K::PZU], 0, v[K::PodatekNetto], v[K::ZasilekZUS], v[K::DoWyplaty], 0, 0};
    b.k[4] = {v[K::SredniaChorobowa], v[K::Wyrownania], v[K::Szkodliwy], v[K::Nocny], v[K::UlgaZastosowana],
              v[K::KosztyUzyskania], v[K::ZwiazekZawodowy], v[K::Solidarnosc], o.RazemPot, v[K::ZasilekWychowawczy],
              v[K::SkladkaWypadkowa], 0, 0};
    dodatkowaKolumna(b, 11, m.godziny, st);
    dodatkowaKolumna(b, 12, m.dodatki, st);
    return b;
}

void drukujBlok(core::Printer& p, const Blok& b) {
    for (int w = 0; w < 5; ++w) {
        std::string linia = " |" + core::PadRight(b.pierwsza[static_cast<std::size_t>(w)], 6);
        for (std::size_t c = 0; c < kSzerokosci.size(); ++c)
            linia += printing::komorka(static_cast<float>(b.k[static_cast<std::size_t>(w)][c]), kSzerokosci[c]);
        p.print(linia + "|");
    }
}

std::string regula(char znak) { return " " + std::string(130, znak); }

}  // namespace

void drukujRok(core::Printer& p, const DaneRoku& d, const OsobaRoku& o, const core::Stawki& st) {
    p.setFont("Courier New", kRozmiar, true);
    p.print(" Kartoteka dla " + o.nazwa + " KodUbezpieczenia " + o.kod + " Pesel " + d.klucz + "  za rok " + "20" +
            core::Right(d.rok, 2));
    p.print(regula('='));
    p.print(" " + std::string(kGlowa1));
    for (const char* g : kGlowy) p.print(" " + std::string(g));
    p.print(regula('='));

    Blok rok;
    std::array<double, 4> dniRoku{};
    for (int m = 1; m <= 12; ++m) {
        const MiesiacRoku& mr = d.miesiace[static_cast<std::size_t>(m - 1)];
        const std::string miesiac = " Miesiąc " + stempel(d.rok, m).substr(2) + "-" + d.rok;
        if (!mr.karta) {
            p.print(miesiac + "  Brak Zbioru! ");
            p.print(regula('-'));
            continue;
        }
        p.print(miesiac);
        const Blok b = blokMiesiaca(mr, st);
        drukujBlok(p, b);
        p.print(regula('-'));
        const printing::OsobaNaLiscie os = printing::wyliczOsobe(*mr.karta, st);
        dniRoku[0] += static_cast<double>(os.DniInneKody);
        dniRoku[1] += static_cast<double>(os.DniKod331);
        dniRoku[2] += static_cast<double>(os.v[K::DniUrlopu]);
        dniRoku[3] += static_cast<double>(os.DniNieobecnosci);
        for (std::size_t w = 0; w < 5; ++w)
            for (std::size_t c = 0; c < kSzerokosci.size(); ++c) rok.k[w][c] += b.k[w][c];
    }
    // The year: the days summed, no post, the sick rate has no sum.
    for (std::size_t w = 0; w < 4; ++w) rok.pierwsza[w] = "   " + dni(dniRoku[w]);
    rok.k[4][0] = 0;
    p.print(" Razem za rok " + d.rok);
    drukujBlok(p, rok);
    p.print(regula('='));

    // The year's thirteenth pay, holiday benefits and jubilee awards.
    auto sumaPliku = [&](const char* nazwa, const std::vector<const Record*>& recs) {
        double brutto = 0, podatek = 0, wyplata = 0;
        for (const Record* r : recs) {
            brutto += core::Val(r->s(D::KwotaBrutto));
            podatek += core::Val(r->s(D::PodatekNetto));
            wyplata += core::Val(r->s(D::DoWyplaty)) + core::Val(r->s(D::NaROR));
        }
        p.print(" " + core::PadRight(nazwa, 18) + " brutto" + printing::tekstKwoty(static_cast<float>(brutto), 11) +
                "   podatek" + printing::tekstKwoty(static_cast<float>(podatek), 11) + "   do wypłaty" +
                printing::tekstKwoty(static_cast<float>(wyplata), 11));
    };
    std::vector<const Record*> trz, swu, jub;
    if (d.trzynastka) trz.push_back(&*d.trzynastka);
    for (const MiesiacRoku& mr : d.miesiace) {
        if (mr.swiadczenie) swu.push_back(&*mr.swiadczenie);
        if (mr.jubileusz) jub.push_back(&*mr.jubileusz);
    }
    sumaPliku("Trzynastka", trz);
    sumaPliku("Świadczenie urlop.", swu);
    sumaPliku("Nagroda jubileusz.", jub);
    p.endDoc();
}

bool CmdDrukowanie(core::Dialogs& ui, const DaneRoku& d, const OsobaRoku& o, const core::Stawki& st) {
    if (ui.msgBox("Czy chcesz wydrukować kartotekę pracownika " + o.nazwa, Buttons::OKCancel, Icon::Question,
                  "Kartoteka " + o.nazwa) != core::Answer::OK) {
        ui.msgBox(" Zrezygnowałeś z drukowania ", Buttons::OK, Icon::Information);
        return false;
    }
    try {
        core::Printer& p = ui.printer();
        if (int st2 = p.status(); st2 != 0) throw core::Error(st2, "drukarka");
        drukujRok(p, d, o, st);
    } catch (const core::Error& e) {
        if (!printing::DrukListy::bladDrukarki(ui, e)) ui.msgBox(core::errorReport(e), Buttons::OK, Icon::Exclamation);
        return false;
    }
    return true;
}

}  // namespace yearledger
