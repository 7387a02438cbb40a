#include "tax/pit11.h"

#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "tax/pit11_record.h"
#include "tax/skladniki.h"

using core::Buttons;
using core::Icon;
namespace fs = std::filesystem;
namespace Karta = paycalc::Karta;
namespace Dod = paycalc::Dodatkowy;
namespace Osoba = personnel::Osoba;

namespace tax {

MiesiacPit11 PobranePit11::suma() const {
    MiesiacPit11 t;
    for (const auto& m : miesiace) {
        t.razem += m.razem;
        t.godziny += m.godziny;
        t.dodatki += m.dodatki;
        t.koszty += m.koszty;
        t.skladkaInd += m.skladkaInd;
        t.nfz += m.nfz;
        t.skladkiZUS += m.skladkiZUS;
        t.ulga += m.ulga;
        t.zaliczka += m.zaliczka;
    }
    return t;
}

namespace {

bool konczySie(const std::string& tekst, const std::string& koniec) {
    return tekst.size() >= koniec.size() && tekst.compare(tekst.size() - koniec.size(), koniec.size(), koniec) == 0;
}

// The month's ledger record of the person into the row.
void zKarty(MiesiacPit11& m, PobranePit11& p, const core::Record& k, const std::string& rodzaj, double stawka1) {
    const bool bezZasilkow = konczySie(rodzaj, "N");
    m.razem = bezZasilkow ? k.f(Karta::Brutto)
                          : static_cast<double>(k.f(Karta::Brutto)) + k.f(Karta::ChoroboweZUS) + k.f(Karta::ChoroboweWypadkowe);
    m.koszty = core::Round2(static_cast<double>(k.f(Karta::KosztyUzyskania)));
    m.skladkaInd = k.f(Karta::SkladkaZdrowotnaOdliczana);
    m.nfz = k.f(Karta::SkladkaZdrowotnaPozostala);
    m.skladkiZUS = static_cast<double>(k.f(Karta::SkladkaEmerytalna)) + k.f(Karta::SkladkaRentowa) + k.f(Karta::SkladkaChorobowa);
    m.ulga = k.f(Karta::KwotaUlgi);
    m.zaliczka = k.f(Karta::PodatekNetto);
    if (!konczySie(rodzaj, "FN") && !konczySie(rodzaj, "PN")) {
        // The tax on the ZUS benefits: as the ledger has it, or worked out at the ledger's rate
        // (the scale's first rate when the ledger has none).
        const float zasilki = k.f(Karta::ChoroboweZUS), podatek = k.f(Karta::PodatekOdZasilkow);
        if (podatek == 0 && zasilki > 0) {
            double stawka = k.f(Karta::Rezerwa137);
            if (stawka == 0) stawka = stawka1;
            m.zaliczka += core::RoundZl(static_cast<double>(core::Round2(core::RoundZl(static_cast<double>(zasilki)) * stawka)));
        } else {
            m.zaliczka += podatek;
        }
    }
    p.kosztyU = k.s(Karta::OpcjaDojezdzajacy) == "1" ? "3" : "1";
}

template <class F>
void dlaOsoby(const std::vector<core::Record>& recs, const KluczOsoby& osoba, F f) {
    for (const auto& r : recs)
        if (kluczDodatkowego(r) == osoba) {
            f(r);
            return;
        }
}

}  // namespace

PobranePit11 pobierzPit11(const core::Session& s, const std::string& lista, const std::string& rodzajPlatnika) {
    PobranePit11 p;
    const std::string rodzaj = core::Trim(rodzajPlatnika);
    p.zZasilkami = !konczySie(rodzaj, "N");
    const StawkiScalania st = stawkiScalania(s.stawki);
    const double stawka1 = s.stawki.Stawka1 / 100;
    const std::string RR = core::Right(s.DataListy, 2);
    const KluczOsoby osoba = kluczSesji(s);
    auto plik = [&](Dod::Rodzaj r, const std::string& stamp) { return czytajJesliJest(Dod::path(s, r, lista, stamp), &Dod::readAll); };
    for (int mc = 1; mc <= 12; ++mc) {
        const std::string stamp = RR + (mc < 10 ? "0" : "") + std::to_string(mc);
        MiesiacPit11& m = p.miesiace[static_cast<std::size_t>(mc - 1)];
        for (const auto& k : czytajJesliJest(Karta::path(s, lista, stamp), &Karta::readAll))
            if (kluczKarty(k) == osoba) {
                zKarty(m, p, k, rodzaj, stawka1);
                break;
            }
        dlaOsoby(plik(Dod::Rodzaj::God, stamp), osoba, [&](const core::Record& r) {
            for (int i = 0; i < 7; ++i) m.godziny += r.f(Dod::Kw1 + i);
            m.skladkiZUS += skladkiSpoleczne(st, r.f(Dod::KwotaBrutto));
            m.nfz += r.f(Dod::SkladkaZdrowotna);
            m.zaliczka += r.f(Dod::PodatekNetto);
        });
        dlaOsoby(plik(Dod::Rodzaj::Dod, stamp), osoba, [&](const core::Record& r) {
            Skladnik x = skladnikiDodatkow(st, r, stawkaRekordu(r));
            m.dodatki += x.A;
            m.skladkiZUS += x.S;
            m.nfz += x.H2;
            m.skladkaInd += x.H1;
            m.zaliczka += x.podatek;
        });
        if (mc == 1)
            dlaOsoby(plik(Dod::Rodzaj::Trz, RR), osoba, [&](const core::Record& r) {
                p.trzynastka += r.f(Dod::KwotaBrutto);
                p.nfzT += r.f(Dod::SkladkaZdrowotna);
                p.sklZdiT += r.f(Dod::SkladkaIndywidualna);
                p.sklZusT += skladkiSpoleczne(st, r.f(Dod::KwotaBrutto));
                p.zaliczkaT += r.f(Dod::PodatekNetto);
            });
        dlaOsoby(plik(Dod::Rodzaj::Jub, stamp), osoba, [&](const core::Record& r) {
            p.jubileusz += r.f(Dod::KwotaBrutto);
            p.zaliczkaNJ += r.f(Dod::PodatekNetto);
        });
        dlaOsoby(plik(Dod::Rodzaj::SwU, stamp), osoba, [&](const core::Record& r) {
            p.swUrlopowe += r.f(Dod::KwotaBrutto);
            p.zaliczkaSU += r.f(Dod::PodatekNetto);
        });
    }
    return p;
}

RozliczeniePit40 rozliczPit40(const core::Record& r, const core::Stawki& st) {
    using namespace Pit11;
    RozliczeniePit40 x;
    x.przychod = r.d(RazemRazem) + r.d(SumaRMII);
    x.koszty = r.d(RazemKoszty) + r.d(SumaKUII);
    x.dochod = std::max(0.0, x.przychod - x.koszty);
    x.skladki = r.d(SumaSkladkiZUS);
    x.podstawa = std::max(0.0f, core::RoundZl(x.dochod - x.skladki));
    const double s1 = st.Stawka1 / 100, s2 = st.Stawka2 / 100, s3 = (st.Stawka3 > 0 ? st.Stawka3 : st.Stawka2) / 100;
    double p = x.podstawa;
    if (st.ProgI <= 0 || p <= st.ProgI)
        x.podatekSkala = p * s1;
    else if (st.ProgII <= 0 || p <= st.ProgII)
        x.podatekSkala = st.ProgI * s1 + (p - st.ProgI) * s2;
    else
        x.podatekSkala = st.ProgI * s1 + (st.ProgII - st.ProgI) * s2 + (p - st.ProgII) * s3;
    x.podatekSkala = core::Round2(x.podatekSkala);
    x.ulga = core::Round2(12 * st.KwotaUlgi);
    x.zdrowotna = r.d(SumaRobocza);
    x.podatekNalezny = std::max(0.0f, core::RoundZl(x.podatekSkala - x.ulga - x.zdrowotna));
    x.zaliczki = r.d(RazemZaliczka) + r.d(ZaliczkaT) + r.d(ZaliczkaNJ) + r.d(ZaliczkaSU);
    for (int i = ZaliczkaII0; i <= ZaliczkaII8; ++i) x.zaliczki += r.d(i);
    double roznica = x.podatekNalezny - x.zaliczki;
    x.doZaplaty = roznica > 0 ? roznica : 0;
    x.nadplata = roznica < 0 ? -roznica : 0;
    return x;
}

using namespace Pit11;

namespace {

const core::FieldBox kPola[] = {
    {RazemPlaca, "txtRazemPlaca", "", "fraMiesiace", 13, 9, 1},
    {RazemGodziny, "txtRazemGodziny", "", "fraMiesiace", 13, 9, 2},
    {RazemDodatki, "txtRazemDodatki", "", "fraMiesiace", 13, 9, 3},
    {RazemKoszty, "txtRazemKoszty", "", "fraMiesiace", 13, 9, 4},
    {RazemSkladkiZDRi, "txtRazemSkladkiZDRi", "", "fraMiesiace", 13, 9, 5},
    {NFZRazem, "txtNFZRazem", "", "fraMiesiace", 13, 9, 6},
    {RazemSkladkiZUS, "txtRazemSkladkiZUS", "", "fraMiesiace", 13, 9, 7},
    {RazemUlga, "txtRazemUlga", "", "fraMiesiace", 13, 9, 8},
    {RazemZaliczka, "txtRazemZaliczka", "", "fraMiesiace", 13, 9, 9},
    {RazemRazem, "txtRazemRazem", "Razem przychód", "fraMiesiace", 14, 9, 1},
    {RMII0, "txtRMII(0)", "Dniówki obrachunkowe i udziały", "fraInne", 1, 9, 0},
    {RMII1, "txtRMII(1)", "Emerytury i renty zagraniczne", "fraInne", 2, 9, 0},
    {RMII2, "txtRMII(2)", "Świadczenia z FP i FGŚP", "fraInne", 3, 9, 0},
    {RMII2 + 1, "txtRMII(3)", "Przychody z umów zlecenia", "fraInne", 4, 9, 0},
    {RMII2 + 2, "txtRMII(4)", "Czynności związane z pełnieniem ob.społ", "fraInne", 5, 9, 0},
    {RMII2 + 3, "txtRMII(5)", "Udzial w organach", "fraInne", 6, 9, 0},
    {RMII2 + 4, "txtRMII(6)", "Kontrakt menadzerski", "fraInne", 7, 9, 0},
    {RMII2 + 5, "txtRMII(7)", "Prawa autorskie", "fraInne", 8, 9, 0},
    {RMII2 + 6, "txtRMII(8)", "Inne źródła", "fraInne", 9, 9, 0},
    {KUII0, "txtKUII(0)", "", "fraInne", 1, 9, 1},
    {KUII0 + 1, "txtKUII(1)", "", "fraInne", 4, 9, 1},
    {KUII0 + 2, "txtKUII(2)", "", "fraInne", 6, 9, 1},
    {KUII0 + 3, "txtKUII(3)", "", "fraInne", 7, 9, 1},
    {KUII0 + 4, "txtKUII(4)", "", "fraInne", 8, 9, 1},
    {SkladkiZDRiII0, "txtRazemSkladkiZDRiII(0)", "", "fraInne", 1, 9, 2},
    {SkladkiZDRiII0 + 1, "txtRazemSkladkiZDRiII(1)", "", "fraInne", 4, 9, 2},
    {SkladkiZDRiII0 + 2, "txtRazemSkladkiZDRiII(2)", "", "fraInne", 5, 9, 2},
    {SkladkiZDRiII0 + 3, "txtRazemSkladkiZDRiII(3)", "", "fraInne", 6, 9, 2},
    {SkladkiZDRiII0 + 4, "txtRazemSkladkiZDRiII(4)", "", "fraInne", 7, 9, 2},
    {SkladkiZDRiII0 + 5, "txtRazemSkladkiZDRiII(5)", "", "fraInne", 9, 9, 2},
    {NFZII0, "txtRazemNFZII(0)", "", "fraInne", 1, 9, 3},
    {NFZII0 + 1, "txtRazemNFZII(1)", "", "fraInne", 4, 9, 3},
    {NFZII0 + 2, "txtRazemNFZII(2)", "", "fraInne", 5, 9, 3},
    {NFZII0 + 3, "txtRazemNFZII(3)", "", "fraInne", 6, 9, 3},
    {NFZII0 + 4, "txtRazemNFZII(4)", "", "fraInne", 7, 9, 3},
    {NFZII0 + 5, "txtRazemNFZII(5)", "", "fraInne", 9, 9, 3},
    {SKLZUSII0, "txtSKLZUSII(0)", "", "fraInne", 1, 9, 4},
    {SKLZUSII0 + 1, "txtSKLZUSII(1)", "", "fraInne", 2, 9, 4},
    {SKLZUSII0 + 2, "txtSKLZUSII(2)", "", "fraInne", 3, 9, 4},
    {SKLZUSII0 + 3, "txtSKLZUSII(3)", "", "fraInne", 4, 9, 4},
    {SKLZUSII0 + 4, "txtSKLZUSII(4)", "", "fraInne", 5, 9, 4},
    {SKLZUSII0 + 5, "txtSKLZUSII(5)", "", "fraInne", 6, 9, 4},
    {SKLZUSII0 + 6, "txtSKLZUSII(6)", "", "fraInne", 7, 9, 4},
    {SKLZUSII0 + 7, "txtSKLZUSII(7)", "", "fraInne", 8, 9, 4},
    {SKLZUSII0 + 8, "txtSKLZUSII(8)", "", "fraInne", 9, 9, 4},
    {ZaliczkaII0, "txtzaliczkaII(0)", "", "fraInne", 1, 9, 5},
    {ZaliczkaII0 + 1, "txtzaliczkaII(1)", "", "fraInne", 2, 9, 5},
    {ZaliczkaII0 + 2, "txtzaliczkaII(2)", "", "fraInne", 3, 9, 5},
    {ZaliczkaII0 + 3, "txtzaliczkaII(3)", "", "fraInne", 4, 9, 5},
    {ZaliczkaII0 + 4, "txtzaliczkaII(4)", "", "fraInne", 5, 9, 5},
    {ZaliczkaII0 + 5, "txtzaliczkaII(5)", "", "fraInne", 6, 9, 5},
    {ZaliczkaII0 + 6, "txtzaliczkaII(6)", "", "fraInne", 7, 9, 5},
    {ZaliczkaII0 + 7, "txtzaliczkaII(7)", "", "fraInne", 8, 9, 5},
    {ZaliczkaII0 + 8, "txtzaliczkaII(8)", "", "fraInne", 9, 9, 5},
    {Trzynastka, "txtTrzynastka", "Trzynastka", "fraDodatkowe", 0, 9, 0},
    {NFZT, "txtNFZT", "Skł.zdr. NFZ", "fraDodatkowe", 0, 9, 1},
    {SKLZDIT, "txtSKLZDIT", "Skł.zdr. odlicz.", "fraDodatkowe", 0, 9, 2},
    {SklZUST, "txtSklZUST", "Składki ZUS", "fraDodatkowe", 0, 9, 3},
    {ZaliczkaT, "txtZaliczkaT", "Zaliczka", "fraDodatkowe", 0, 9, 4},
    {Jubileusz, "txtJubileusz", "Nagroda jubil.", "fraDodatkowe", 1, 9, 0},
    {ZaliczkaNJ, "txtZaliczkaNJ", "Zaliczka", "fraDodatkowe", 1, 9, 1},
    {SwUrlopowe, "txtSwUrlopowe", "Świadcz. urlop.", "fraDodatkowe", 1, 9, 2},
    {ZaliczkaSU, "txtZaliczkaSU", "Zaliczka", "fraDodatkowe", 1, 9, 3},
    {Przychody77, "txtPrzychody77", "Przychody 77", "fraDodatkowe", 2, 9, 0},
    {Przychody78, "txtPrzychody78", "Przychody 78", "fraDodatkowe", 2, 9, 1},
    {Ulga11, "txtUlga11", "Ulga", "fraDodatkowe", 2, 9, 2},
};

const char* const kNazwyKolumn[kKolumny] = {"LbRazemM",     "LbGodzinyM", "LbDodatkiM",   "lbkosztU", "LbSkladkaInd",
                                            "lbNFZ8",       "lbSkladkiZUS", "lbUlga",     "lbZaliczka"};
const char* const kNaglowki[kKolumny] = {"Brutto",      "Godziny",     "Dodatki", "Koszty uzysk.", "Skł.zdr.odlicz.",
                                         "Skł.zdr.NFZ", "Składki ZUS", "Ulga",    "Zaliczka"};
const char* const kNaglowkiInne[] = {"Przychód", "Koszty", "Skł.zdr.odlicz.", "Skł.zdr.NFZ", "Składki ZUS", "Zaliczka"};
const char* const kMiesiace[12] = {"Styczeń", "Luty",     "Marzec",   "Kwiecień", "Maj",        "Czerwiec",
                                   "Lipiec",  "Sierpień", "Wrzesień", "Październik", "Listopad", "Grudzień"};

double wartoscKolumny(const MiesiacPit11& m, int c) {
    const double w[kKolumny] = {m.razem, m.godziny, m.dodatki, m.koszty, m.skladkaInd, m.nfz, m.skladkiZUS, m.ulga, m.zaliczka};
    return w[c];
}

}  // namespace

Pit11Screen::Pit11Screen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPit11", "PIT11"), s(session), boxes(*this, kPola) {
    lbOsoba.at(0, 0, 4);
    txtOdData.at(1, 0).label("Od dnia").width(10).tip("Data w formacie dd-mm-RRRR");
    txtDoData.at(1, 1).label("Do dnia").width(10).tip("Data w formacie dd-mm-RRRR");
    txtRodzajPlatnika.at(1, 2).label("Rodzaj płatnika").width(4);
    txtKosztyU.at(1, 3).label("Koszty uzyskania").width(3).tip("Wpisz  od 1 do 4  zgodnie z opisem o kosztach uzyskania");
    fraPitR.at(1, 4);
    Option1.in("fraPitR").at(0, 0);
    Option2.in("fraPitR").at(0, 1);
    Option2.Value = 1;
    fraMiesiace.at(2, 0, 6);
    fraInne.at(3, 0, 3);
    fraDodatkowe.at(3, 3, 3);
    auto etykieta = [&](const std::string& nazwa, const std::string& tekst, const char* ramka, int wiersz, int slot) {
        etykiety.push_back(std::make_unique<core::Control>(this, nazwa, core::Kind::Label, tekst));
        etykiety.back()->in(ramka).at(wiersz, slot);
        return etykiety.back().get();
    };
    etykieta("lbNaglowek(0)", "Miesiąc", "fraMiesiace", 0, 0);
    for (int c = 0; c < kKolumny; ++c)
        etykieta("lbNaglowek(" + std::to_string(c + 1) + ")", kNaglowki[c], "fraMiesiace", 0, c + 1);
    for (int i = 0; i < 6; ++i) etykieta("lbNaglowekII(" + std::to_string(i) + ")", kNaglowkiInne[i], "fraInne", 0, i);
    for (int m = 0; m < 12; ++m) {
        etykieta("lbMiesiac(" + std::to_string(m + 1) + ")", kMiesiace[m], "fraMiesiace", m + 1, 0);
        for (int c = 0; c < kKolumny; ++c) {
            auto l = std::make_unique<core::Control>(this, std::string(kNazwyKolumn[c]) + "(" + std::to_string(m + 1) + ")",
                                                     core::Kind::Label, "0.00");
            l->in("fraMiesiace").at(m + 1, c + 1);
            kolumny[static_cast<std::size_t>(c)].push_back(std::move(l));
        }
    }
    etykieta("lbRazem", "Razem", "fraMiesiace", 13, 0);
    CmdPobierz.at(4, 0);
    CmdZeZbioru.at(4, 1);
    cmdZapisz.at(4, 2);
    cmdDopisz.at(4, 3);
    cmdUsun.at(4, 4);
    cmdDrukuj.at(5, 0);
    cmdDrukujPIT40.at(5, 1);
    CmdKoniec.at(5, 4);
    CmdPobierz.tip("Zbiera dwanaście miesięcy osoby z kartotek i plików dodatkowych listy");
    cmdDopisz.tip("Dopisuje osobę na końcu zbioru PIT11 listy");
    cmdDrukuj.tip("Drukuje PIT-11 (Tak) albo PIT-8B (Nie) z zapisanego zbioru");
    CmdPobierz.Click = [this] { Pobierz(); };
    CmdZeZbioru.Click = [this] { ZeZbioru(); };
    cmdZapisz.Click = [this] { Zapisz(); };
    cmdDopisz.Click = [this] { Dopisz(); };
    cmdUsun.Click = [this] { Usun(); };
    cmdDrukuj.Click = [this] { Drukuj(Druk::Pit11); };
    cmdDrukujPIT40.Click = [this] { Drukuj(Druk::Pit40); };
    CmdKoniec.Click = [this] { Unload(); };
    Option1.Click = [this] { setOption(Option1); };
    Option2.Click = [this] { setOption(Option2); };
}

std::string Pit11Screen::lista() const { return s.NazwaZbioru; }

void Pit11Screen::Load() {
    const std::string rok = s.rok();
    if (txtOdData.Text.empty()) txtOdData.Text = "01-01-" + rok;
    if (txtDoData.Text.empty()) txtDoData.Text = "31-12-" + rok;
    if (txtRodzajPlatnika.Text.empty() && s.Firma.valid()) txtRodzajPlatnika.Text = s.Firma.s(reference::Firma::RodzajPlatnika);
    if (txtKosztyU.Text.empty()) txtKosztyU.Text = "1";
    // Opened with a key alone, the person's names and code come from the personnel file.
    if (s.NazwiskoOsoby.empty() && !s.KluczOsoby.empty()) {
        auto osoba = personnel::znajdzOsobe(czytajJesliJest(Osoba::path(s), &Osoba::readAll), s.KluczOsoby);
        if (osoba) {
            s.NazwiskoOsoby = core::Trim(osoba->s(Osoba::Nazwisko));
            s.ImieOsoby = core::Trim(osoba->s(Osoba::Imie));
            s.KodUbezpieczeniaOsoby = core::Trim(osoba->s(Osoba::KodUbezpieczenia));
        }
    }
    lbOsoba.Caption = core::RTrim(s.NazwiskoOsoby) + " " + core::RTrim(s.ImieOsoby) + ", " + s.KluczOsoby + ", lista " +
                      s.NazwaZbioru + ", rok " + rok;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (boxes.box(i).Text.empty()) boxes.box(i).Text = "0.00";
}

double Pit11Screen::v(int pole) { return liczba(boxes[pole].Text); }

void Pit11Screen::ustaw(int pole, double wartosc) { boxes[pole].Text = kwota(wartosc); }

void Pit11Screen::pokazMiesiace() {
    etykiety[1]->Caption = pobrane.zZasilkami ? "Brutto+Zasi.ZUS" : "Brutto";
    for (int c = 0; c < kKolumny; ++c)
        for (int m = 0; m < 12; ++m)
            kolumny[static_cast<std::size_t>(c)][static_cast<std::size_t>(m)]->Caption =
                kwota(wartoscKolumny(pobrane.miesiace[static_cast<std::size_t>(m)], c));
}

void Pit11Screen::Pobierz() {
    if (core::Len(txtOdData.Text) != 10 || core::Len(txtDoData.Text) != 10) {
        if (ui.msgBox("Podaj date w formacie dd-mm-RRRR ", Buttons::YesNo, Icon::Question, "Zle wpisana data!") ==
            core::Answer::No)
            return;
    }
    if (!s.Dane.valid()) reference::loadRates(s);
    try {
        pobrane = pobierzPit11(s, lista(), txtRodzajPlatnika.Text);
    } catch (const core::Error& e) {
        core::MsgBox(ui, "Błąd " + std::to_string(e.Number) + " w linii " + e.Step, {}, Icon::Critical);
        return;
    }
    pokazMiesiace();
    txtKosztyU.Text = pobrane.kosztyU;
    MiesiacPit11 t = pobrane.suma();
    ustaw(RazemPlaca, t.razem);
    ustaw(RazemGodziny, t.godziny);
    ustaw(RazemDodatki, t.dodatki);
    ustaw(RazemKoszty, t.koszty);
    ustaw(RazemSkladkiZDRi, t.skladkaInd);
    ustaw(NFZRazem, t.nfz);
    ustaw(RazemSkladkiZUS, t.skladkiZUS);
    ustaw(RazemUlga, t.ulga);
    ustaw(RazemZaliczka, t.zaliczka);
    ustaw(Trzynastka, pobrane.trzynastka);
    ustaw(NFZT, pobrane.nfzT);
    ustaw(SKLZDIT, pobrane.sklZdiT);
    ustaw(SklZUST, pobrane.sklZusT);
    ustaw(ZaliczkaT, pobrane.zaliczkaT);
    ustaw(Jubileusz, pobrane.jubileusz);
    ustaw(ZaliczkaNJ, pobrane.zaliczkaNJ);
    ustaw(SwUrlopowe, pobrane.swUrlopowe);
    ustaw(ZaliczkaSU, pobrane.zaliczkaSU);
    ustaw(RazemRazem, v(RazemPlaca) + v(RazemGodziny) + v(RazemDodatki) + v(Trzynastka) + v(Jubileusz) + v(SwUrlopowe));
}

core::Record Pit11Screen::rekord(const core::Record& baza) {
    core::Record r = baza;
    auto& b = boxes;
    for (std::size_t i = 0; i < b.size(); ++i) {
        int pole = b.def(i).field;
        if (pole == RazemZaliczka)
            r.set(pole, static_cast<float>(liczba(b.box(i).Text)));
        else
            r.set(pole, liczba(b.box(i).Text));
    }
    auto suma = [&](int od, int do_) {
        double t = 0;
        for (int n = od; n <= do_; ++n) t += r.d(n);
        return t;
    };
    r.set(RazemRazem, r.d(RazemPlaca) + r.d(RazemGodziny) + r.d(RazemDodatki) + r.d(Trzynastka) + r.d(Jubileusz) +
                          r.d(SwUrlopowe));
    double rm = 0;
    for (int i = 0; i < 9; ++i) rm += r.d(poleRMII(i));
    r.set(SumaRobocza, r.d(RazemSkladkiZDRi) + suma(SkladkiZDRiII0, SkladkiZDRiII5));
    r.set(SumaRMII, rm);
    r.set(SumaKUII, suma(KUII0, KUII4));
    r.set(SumaSkladkiZUS, r.d(RazemSkladkiZUS) + suma(SKLZUSII0, SKLZUSII8));
    r.set(SumaNFZ, r.d(NFZRazem) + suma(NFZII0, NFZII5));
    r.set(PitR, Option1.Value == 1 ? 1.0 : 0.0);
    r.set(KosztyU, liczba(txtKosztyU.Text));
    return r;
}

void Pit11Screen::Zapisz() {
    // The thirteenth's parts join the year's totals on every save (a second save adds them again).
    ustaw(NFZRazem, core::Round2(v(NFZRazem) + v(NFZT)));
    ustaw(RazemSkladkiZDRi, core::Round2(v(RazemSkladkiZDRi) + v(SKLZDIT)));
    ustaw(RazemSkladkiZUS, core::Round2(v(RazemSkladkiZUS) + v(SklZUST)));
    const fs::path plik = path(s, lista());
    if (!core::fileExists(plik)) {
        std::vector<core::Record> nowe;
        for (const auto& o : Osoba::readAll(personnel::Osoba::path(s))) nowe.push_back(Pit11::nowy(o));
        Pit11::writeAll(plik, nowe);
    }
    std::vector<core::Record> recs = Pit11::readAll(plik);
    int i = znajdz(recs, s.KluczOsoby);
    if (i < 0) {
        core::MsgBox(ui, "Brak wpisu do pit11 tej osoby ! Dopisz", {}, Icon::Exclamation);
        return;
    }
    core::Record& r = recs[static_cast<std::size_t>(i)];
    r = rekord(r);
    ustaw(RazemRazem, r.d(RazemRazem));
    Pit11::writeAll(plik, recs);
    core::MsgBox(ui, "Zapisano dane osoby w zbiorze " + plik.filename().string(), "PIT11");
}

void Pit11Screen::Dopisz() {
    std::vector<core::Record> osoby = czytajJesliJest(personnel::Osoba::path(s), &Osoba::readAll);
    auto osoba = personnel::znajdzOsobe(osoby, s.KluczOsoby);
    if (!osoba) {
        core::MsgBox(ui, "Nie znaleziono danych w dla " + core::RTrim(s.NazwiskoOsoby) + " " + core::RTrim(s.ImieOsoby) +
                             " w zbiorze danych personalnych",
                     {}, Icon::Exclamation);
        return;
    }
    const fs::path plik = path(s, lista());
    std::vector<core::Record> recs = czytajJesliJest(plik, &Pit11::readAll);
    recs.push_back(rekord(Pit11::nowy(*osoba)));
    Pit11::writeAll(plik, recs);
    core::MsgBox(ui, "Dopisano do zbioru PIT11 osobe! ");
}

void Pit11Screen::Usun() {
    const fs::path plik = path(s, lista());
    if (ui.msgBox("Funkcja pobierz i zapisz utworzy nowy zbiór z kartotek miesięcznych ", Buttons::YesNo, Icon::Question,
                  "Usuwam zbiór PIT11") != core::Answer::Yes)
        return;
    std::error_code ec;
    if (!fs::remove(plik, ec)) {
        core::MsgBox(ui, "Brak zbioru " + plik.filename().string(), "PIT11");
        return;
    }
    core::MsgBox(ui, "Zbiór Pit 11 " + plik.filename().string() + " został usunięty ");
}

void Pit11Screen::ZeZbioru() {
    std::vector<core::Record> recs = czytajJesliJest(path(s, lista()), &Pit11::readAll);
    int i = znajdz(recs, s.KluczOsoby);
    if (i < 0) {
        core::MsgBox(ui, "Nie znaleziono zapisanego zbioru Pit11 dla tej osoby !", {}, Icon::Exclamation);
        return;
    }
    const core::Record& r = recs[static_cast<std::size_t>(i)];
    for (std::size_t n = 0; n < boxes.size(); ++n) boxes.box(n).Text = kwota(r.d(boxes.def(n).field));
    setOption(r.d(PitR) == 1 ? Option1 : Option2);
    txtKosztyU.Text = core::numText(static_cast<long>(r.d(KosztyU)));
    core::MsgBox(ui, "Pobrane !");
}

Wartosci Pit11Screen::wartosci(const core::Record& r, Druk druk) const {
    Wartosci w;
    const core::Record& f = s.Firma;
    if (f.valid()) wartosciPlatnika(w, f);
    w["Rok"] = s.rok();
    w["OdData"] = txtOdData.Text;
    w["DoData"] = txtDoData.Text;
    for (auto [pole, nazwa] : {std::pair{Nazwisko, "Nazwisko"}, {Imie, "Imie"}, {DrugieImie, "DrugieImie"}, {Pesel, "Pesel"},
                               {DataUrodzenia, "DataUrodzenia"}, {Wojewodztwo, "Wojewodztwo"}, {Powiat, "Powiat"},
                               {Gmina, "Gmina"}, {Ulica, "Ulica"}, {NrDomu, "NrDomu"}, {Lokal, "Lokal"},
                               {Miejscowosc, "Miejscowosc"}, {Kod, "Kod"}, {Poczta, "Poczta"},
                               {UrzadSkarbowy, "UrzadSkarbowy"}, {Nip, "NipOsoby"}})
        w[nazwa] = r.s(pole);
    w["Obywatelstwo"] = "P O L S K A";
    long koszty = static_cast<long>(r.d(KosztyU));
    if (koszty >= 1 && koszty <= 4) w["Koszty" + std::to_string(koszty)] = "X";
    if (r.d(PitR) == 1) w["PitR"] = "X";
    // The income rows of the second page: income, costs, income after costs, advance, contributions.
    auto wiersz = [&](int nr, double przychod, double koszt, double zaliczka, double skladki) {
        const std::string p = "R" + std::to_string(nr) + ".";
        w[p + "Przychod"] = kwota(przychod);
        w[p + "Koszty"] = kwota(koszt);
        w[p + "Dochod"] = kwota(std::max(0.0, przychod - koszt));
        w[p + "Zaliczka"] = kwota(zaliczka);
        w[p + "Skladki"] = kwota(skladki);
    };
    wiersz(1, r.d(RazemRazem), r.d(RazemKoszty), r.d(RazemZaliczka) + r.d(ZaliczkaT) + r.d(ZaliczkaNJ) + r.d(ZaliczkaSU),
           r.d(RazemSkladkiZUS));
    static const int kWiersze[9] = {2, 3, 5, 6, 7, 8, 9, 10, 11};
    static const int kKoszty[9] = {0, -1, -1, 1, -1, 2, 3, 4, -1};  // the row of txtKUII, -1 for none
    for (int i = 0; i < 9; ++i)
        wiersz(kWiersze[i], r.d(poleRMII(i)), kKoszty[i] < 0 ? 0 : r.d(KUII0 + kKoszty[i]), r.d(ZaliczkaII0 + i),
               r.d(SKLZUSII0 + i));
    w["SkladkiZUS"] = kwota(r.d(SumaSkladkiZUS));
    w["Zdrowotna"] = kwota(r.d(SumaRobocza));
    w["NFZ"] = kwota(r.d(SumaNFZ));
    w["Przychody77"] = kwota(r.d(Przychody77));
    w["Przychody78"] = kwota(r.d(Przychody78));
    w["Ulga"] = kwota(r.d(Ulga11));
    if (druk == Druk::Pit40) {
        RozliczeniePit40 x = rozliczPit40(r, s.stawki);
        for (auto [nazwa, wartosc] :
             {std::pair{"P40.Przychod", x.przychod}, {"P40.Koszty", x.koszty}, {"P40.Dochod", x.dochod},
              {"P40.Skladki", x.skladki}, {"P40.Podstawa", x.podstawa}, {"P40.Podatek", x.podatekSkala},
              {"P40.Ulga", x.ulga}, {"P40.Zdrowotna", x.zdrowotna}, {"P40.Nalezny", x.podatekNalezny},
              {"P40.Zaliczki", x.zaliczki}, {"P40.DoZaplaty", x.doZaplaty}, {"P40.Nadplata", x.nadplata}})
            w[nazwa] = kwota(wartosc);
    }
    return w;
}

void Pit11Screen::Drukuj(Druk druk, bool bezPytania) {
    if (druk != Druk::Pit40 && !bezPytania) {
        core::Answer a = ui.msgBox("Czy to druk PIT 11 za rok " + s.rok() + "r.", Buttons::YesNo, Icon::Question,
                                   "Tak lub Enter drukuje na wybranym druku?");
        druk = a == core::Answer::No ? Druk::Pit8B : Druk::Pit11;
    }
    std::vector<core::Record> recs = czytajJesliJest(path(s, lista()), &Pit11::readAll);
    int i = znajdz(recs, s.KluczOsoby);
    if (i < 0) {
        core::MsgBox(ui, "Nie znaleziono zapisanego zbioru Pit11 dla tej osoby !", {}, Icon::Exclamation);
        return;
    }
    if (druk == Druk::Pit40) reference::loadRates(s);
    const Wartosci w = wartosci(recs[static_cast<std::size_t>(i)], druk);
    const Formularz& f = druk == Druk::Pit11 ? formularzPit11() : druk == Druk::Pit8B ? formularzPit8B() : formularzPit40();
    const bool poreba = druk == Druk::Pit40 && core::UCase(core::Trim(s.SkrotPlatnika)) == "POREBA";
    core::Printer& p = ui.printer();
    p.setFont("Courier New", 10, false);
    if (s.Drukarka != "L") p.emptyLine();
    if (p.status() == core::err::DeviceTimeout) {
        // The sheet was not taken: the second page is offered all the same.
        core::MsgBox(ui, " Nie włożony prawidłowo druk lub wyłączona drukarka !!", {}, Icon::Exclamation);
    } else {
        if (poreba) p.emptyLine();
        drukujStrone(p, f, 1, w);
        p.newPage();
    }
    if (!bezPytania && ui.msgBox("Odwroc kartke druku na druga strone !", Buttons::YesNo, Icon::Question,
                                 "Tak lub Enter drukuje druga strone") == core::Answer::No) {
        p.endDoc();
        return;
    }
    if (p.status() == core::err::DeviceTimeout) {
        core::MsgBox(ui, " Drukarka nie jest gotowa do pracy !!", {}, Icon::Exclamation);
        p.endDoc();
        return;
    }
    if (poreba) p.emptyLine();
    // The sheets of the payer "SKR" are fed one line lower on their second side.
    if (druk != Druk::Pit40 && core::UCase(core::Trim(s.SkrotPlatnika)) == "SKR") p.emptyLine();
    drukujStrone(p, f, 2, w);
    p.endDoc();
}

}  // namespace tax
