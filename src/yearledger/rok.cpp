#include "yearledger/rok.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"

namespace K = paycalc::Karta;
namespace D = paycalc::Dodatkowy;
using core::Record;

namespace yearledger {

const char* const kBrakTrzynastki = "Brak zbioru trzynastki za ten rok dla tej grupy pracowników !";
const char* const kBrakKartoteki = "Brak kartoteki za wybrany miesiac";
const char* const kPodajDate = "Podaj date w formacie RRmm !";

namespace {

// A number of a record's field: numeric fields as read, a text or variant by its leading number.
double liczba(const Record& r, int n) {
    switch (r.schema().fields[static_cast<std::size_t>(n - 1)].type) {
    case core::FieldType::Float:
    case core::FieldType::Double:
    case core::FieldType::Int16:
    case core::FieldType::Long: return r.d(n);
    default: return core::Val(r.s(n));
    }
}

std::optional<Record> rekordOsoby(const std::filesystem::path& file, int poleKlucza, const std::string& klucz,
                                  const core::Schema& schema, bool* jest = nullptr) {
    if (jest) *jest = false;
    if (!core::fileExists(file)) return std::nullopt;
    if (jest) *jest = true;
    for (Record& r : core::readAll(file, schema))
        if (r.s(poleKlucza) == klucz) return std::move(r);
    return std::nullopt;
}

// A tax rate as the supplementary files hold it: above 1 a percentage.
double stopaPodatku(const Record& r) {
    double v = liczba(r, D::StawkaPodatku);
    return v > 1 ? v / 100 : v;
}

}  // namespace

std::string kwotaTekst(double v) { return core::Format(v, "0.00"); }

std::string stempel(const std::string& rok, int miesiac) {
    return core::Right(rok, 2) + (miesiac < 10 ? "0" : "") + std::to_string(miesiac);
}

const Record* DaneRoku::ostatniaKarta() const {
    for (int m = 11; m >= 0; --m)
        if (miesiace[static_cast<std::size_t>(m)].karta) return &*miesiace[static_cast<std::size_t>(m)].karta;
    return nullptr;
}

DaneRoku czytajRok(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& rok) {
    DaneRoku d;
    d.lista = lista;
    d.klucz = klucz;
    d.rok = rok;
    for (int m = 1; m <= 12; ++m) {
        const std::string RRmm = stempel(rok, m);
        MiesiacRoku& mr = d.miesiace[static_cast<std::size_t>(m - 1)];
        mr.karta = rekordOsoby(K::path(s, lista, RRmm), K::Klucz, klucz, K::schema());
        auto dod = [&](D::Rodzaj r) { return rekordOsoby(D::path(s, r, lista, RRmm), D::Klucz, klucz, D::schema()); };
        mr.godziny = dod(D::Rodzaj::God);
        mr.dodatki = dod(D::Rodzaj::Dod);
        mr.swiadczenie = dod(D::Rodzaj::SwU);
        mr.jubileusz = dod(D::Rodzaj::Jub);
    }
    // The thirteenth pay is kept in one file of the year, named by the two digits of the year.
    d.trzynastka = rekordOsoby(D::path(s, D::Rodzaj::Trz, lista, core::Right(rok, 2)), D::Klucz, klucz, D::schema(),
                               &d.jestTrzynastka);
    return d;
}

const std::vector<Kolumna>& kolumny() {
    static const std::vector<Kolumna> k = {
        {"Miesi", kMiesiac},           {"Specjalny", K::Specjalny},     {"Inny", K::Inny},
        {"PłacaZas", K::Zasadnicza},   {"Funkcyjny", K::Funkcyjny},     {"Stażowy", K::Stazowy},
        {"Premia", K::Premia},         {"Motywacyj", K::Motywacyjny},   {"Wiejski", K::Wiejski},
        {"Wychowaw", K::ZasilekWychowawczy}, {"Trudnościo", K::Trudnosciowy}, {"Ekwiwalent", K::Ekwiwalent},
        {"Nocny", K::Nocny},           {"Wyrównania", K::Wyrownania},   {"Szkodliwy", K::Szkodliwy},
        {"Mieszkanio", K::Mieszkaniowy}, {"ChorPDni", K::DniChorobyZUS}, {"CHorPSta", K::SredniaChorobowa},
        {"ChorPKwota", K::ChoroboweZUS}, {"RazemBrutto", K::Brutto},    {"KosztUzysk", K::KosztyUzyskania},
        {"PodstZUS", K::PodstawaZUS},  {"SklEmer", K::SkladkaEmerytalna}, {"SklRentP", K::SkladkaRentowa},
        {"SklChorob", K::SkladkaChorobowa}, {"RazemSklZUSP", kRazemSklZUS}, {"ZFMPozyczka", K::ZFMPozyczka},
        {"ZFMRata", K::ZFMRata},       {"KZPPozyczka", K::KZPPozyczka}, {"KZPRata", K::KZPRata},
        {"KZPSkładka", K::KZPSkladka}, {"Potr.Inne", K::PotraceniaInne}, {"ZwZawodowy", K::ZwiazekZawodowy},
        {"Solidarn", K::Solidarnosc},  {"PZU", K::PZU},                 {"Potrac1", K::Potracenie1},
        {"Potrac2", K::Potracenie2},   {"PotrRazem", kPotracenia},      {"StawkaPod", K::StawkaPodatku},
        {"KwotaUlgi", K::UlgaZastosowana}, {"PodatekBru", K::Podatek},  {"PodstZDR", K::PodstawaZdrowotna},
        {"StaZdrow", K::StawkaZdrowotna15}, {"SkłZdrPr", K::SkladkaZdrowotnaOdliczana},
        {"SkłaZdrZp", K::SkladkaZdrowotnaPozostala},
        {"RazemSkłZdr", kRazemSklZdr}, {"PodNetto", K::PodatekNetto},   {"PotrOgółem", kPotrOgolem},
        {"PłaPoPotr", kPlaPoPotr},     {"ZasiZUS", K::ZasilekZUS},      {"ZasiRod", K::ZasilekRodzinny},
        {"ZasiPie", K::ZasilekPielegnacyjny}, {"PłacaNet", kPlacaNet},  {"Potrace3", K::Potracenie3},
        {"DoWyplaty", K::DoWyplaty},   {"ROR", K::NaROR},               {"NumerKonta", K::NumerKonta},
        {"ChorobZUS", K::ChoroboweZUS}, {"PodatekZUS", K::PodatekOdZasilkow}, {"StaWyp", K::SkladkaWypadkowa},
        {"SkłRentZp", K::SkladkaRentowaPracodawcy}, {"PodstawaFP", K::PodstawaFP}, {"SkłFP", kSklFP},
        {"SkłFGSP", kSklFGSP},
    };
    return k;
}

namespace {
// Columns without a sum in the "Razem" row: rates and the account number.
bool bezSumy(int pole) {
    return pole == K::SredniaChorobowa || pole == K::StawkaZdrowotna15 || pole == K::NumerKonta;
}
// Rates and counts are shown as the file holds them, amounts with two decimals.
bool jakWPliku(int pole) { return pole == K::StawkaPodatku || pole == K::StawkaZdrowotna15 || pole == K::DniChorobyZUS; }
}  // namespace

WierszRoku wierszMiesiaca(int miesiac, const Record& r, const core::Stawki& st) {
    // The gross of the row: fields 6 to 20 and 32 added in single precision.
    float brutto = 0;
    for (int n = K::Zasadnicza; n <= K::Szkodliwy; ++n) brutto += r.f(n);
    brutto += r.f(K::Mieszkaniowy);
    // The deductions of the columns, the health part not deducted from tax, the tax and the
    // employee's contributions.
    double pot = 0;
    for (int n : {K::ZFMPozyczka, K::ZFMRata, K::KZPPozyczka, K::KZPRata, K::KZPSkladka, K::PotraceniaInne,
                  K::ZwiazekZawodowy, K::Solidarnosc, K::PZU, K::Potracenie1, K::Potracenie2,
                  K::SkladkaZdrowotnaPozostala, K::PodatekNetto, K::SkladkaEmerytalna, K::SkladkaRentowa,
                  K::SkladkaChorobowa})
        pot += liczba(r, n);
    const float potracenia = static_cast<float>(pot);
    const float poPotraceniach = core::Round2(static_cast<double>(brutto) - potracenia);
    const double zasilki = liczba(r, K::ZasilekZUS) + liczba(r, K::ZasilekRodzinny) + liczba(r, K::ZasilekPielegnacyjny);

    WierszRoku w;
    for (const Kolumna& k : kolumny()) {
        double v = 0;
        switch (k.pole) {
        case kMiesiac: break;
        case kRazemSklZUS:
            v = static_cast<float>(static_cast<double>(r.f(K::SkladkaEmerytalna)) + r.f(K::SkladkaRentowa) +
                                   r.f(K::SkladkaChorobowa));
            break;
        case kPotracenia: v = potracenia; break;
        case kRazemSklZdr:
            v = static_cast<float>(static_cast<double>(r.f(K::SkladkaZdrowotnaOdliczana)) +
                                   r.f(K::SkladkaZdrowotnaPozostala));
            break;
        // All that leaves the gross, with the health part deducted from tax, as the list sums it.
        case kPotrOgolem: v = static_cast<float>(static_cast<double>(potracenia) + r.f(K::SkladkaZdrowotnaOdliczana)); break;
        case kPlaPoPotr: v = poPotraceniach; break;
        case kPlacaNet: v = static_cast<float>(poPotraceniach + zasilki); break;
        case kSklFP: v = core::Round2(static_cast<double>(r.f(K::PodstawaFP)) * st.funduszPracy); break;
        case kSklFGSP: v = core::Round2(static_cast<double>(r.f(K::PodstawaZUS)) * st.fgsp); break;
        case K::NumerKonta: break;
        default: v = liczba(r, k.pole);
        }
        w.kwoty.push_back(v);
        if (k.pole == kMiesiac)
            w.komorki.push_back(core::Right("0" + std::to_string(miesiac), 2));
        else if (k.pole == K::NumerKonta)
            w.komorki.push_back(r.s(K::NumerKonta));
        else if (jakWPliku(k.pole))
            w.komorki.push_back(core::numText(v));
        else
            w.komorki.push_back(kwotaTekst(v));
    }
    return w;
}

std::vector<std::vector<std::string>> siatkaRoku(const DaneRoku& d, const core::Stawki& st) {
    const std::size_t n = kolumny().size();
    std::vector<std::vector<std::string>> out;
    std::vector<double> sumy(n, 0.0);
    for (int m = 1; m <= 12; ++m) {
        const MiesiacRoku& mr = d.miesiace[static_cast<std::size_t>(m - 1)];
        if (!mr.karta) {
            std::vector<std::string> pusty(n);
            pusty[0] = core::Right("0" + std::to_string(m), 2);
            out.push_back(std::move(pusty));
            continue;
        }
        WierszRoku w = wierszMiesiaca(m, *mr.karta, st);
        for (std::size_t i = 0; i < n; ++i) sumy[i] += w.kwoty[i];
        out.push_back(std::move(w.komorki));
    }
    std::vector<std::string> razem(n);
    const Record* ostatnia = d.ostatniaKarta();
    for (std::size_t i = 0; i < n; ++i) {
        const int pole = kolumny()[i].pole;
        if (pole == kMiesiac)
            razem[i] = "Razem";
        else if (pole == K::StawkaPodatku)
            razem[i] = ostatnia ? core::numText(ostatnia->f(K::StawkaPodatku)) : "   x";
        else if (bezSumy(pole))
            razem[i] = "   x";
        else if (pole == K::DniChorobyZUS)
            razem[i] = core::numText(static_cast<float>(sumy[i]));
        else
            razem[i] = kwotaTekst(static_cast<float>(sumy[i]));
    }
    out.push_back(std::move(razem));
    return out;
}

float SkladkiDodatku::razem() const {
    return core::Round2(static_cast<double>(emerytalna) + rentowa + chorobowa);
}

SkladkiDodatku skladkiDodatku(const Record& dod, const core::Stawki& st, bool zLimitem) {
    const double kwota = liczba(dod, D::KwotaBrutto);
    SkladkiDodatku k;
    const bool ponadLimit = zLimitem && liczba(dod, D::BruttoOd01) > st.KwotaGRE;
    if (!ponadLimit) {
        k.emerytalna = core::Round2(st.emerytalna * kwota);
        k.rentowa = core::Round2(st.rentowaPracownik * kwota);
    }
    k.chorobowa = core::Round2(st.chorobowa * kwota);
    return k;
}

namespace {

const char* const kKwotyGodzin[] = {"Planowane", "Zastępcze", "Indywidua", "  Nocne  ", "Bibliote.", "Dow.dziec",
                                    " Inne    "};
const char* const kKwotyDodatkow[] = {"Dodatek1", "Dodatek2", "Dodatek3", "Dodatek4", "Dodatek5", "Nagroda6",
                                      "Dodatek7"};

std::vector<std::vector<std::string>> siatkaDodatkowa(const DaneRoku& d, const core::Stawki& st, bool godziny) {
    std::vector<std::string> glowa = {godziny ? "Godz.Nadliczb" : "Nazwa dodatku", godziny ? " Data sporza." : "DataListy"};
    for (const char* k : godziny ? kKwotyGodzin : kKwotyDodatkow) glowa.push_back(k);
    glowa.push_back(godziny ? "RazemGodz" : "RazemDoda");
    for (const char* k : {"Skl.Emer", "Skl.Rent", "Skl.Chor", "PodstZdro", "Skl. NFZ", "Skl. Ind", "PodstaPod"})
        glowa.push_back(k);
    if (godziny) {
        glowa.push_back("PodNetto");
        glowa.push_back("Potracenia");
    }
    glowa.push_back(godziny ? "GodzNetto" : "DodatNetto");

    std::vector<std::vector<std::string>> out{glowa};
    for (int m = 1; m <= 12; ++m) {
        const MiesiacRoku& mr = d.miesiace[static_cast<std::size_t>(m - 1)];
        const std::optional<Record>& rec = godziny ? mr.godziny : mr.dodatki;
        if (!rec) continue;
        const Record& r = *rec;
        double suma = 0;
        for (int n = D::Kw1; n <= D::Kw7; ++n) suma += liczba(r, n);
        if (suma == 0) continue;
        const SkladkiDodatku sk = skladkiDodatku(r, st);
        std::vector<std::string> w = {core::Right("0" + std::to_string(m), 2) + (godziny ? " Godziny " : " Dodatki "),
                                      r.s(D::DataListy)};
        for (int n = D::Kw1; n <= D::RazemKwota; ++n) w.push_back(kwotaTekst(liczba(r, n)));
        const double kwota = liczba(r, D::KwotaBrutto);
        w.push_back(kwotaTekst(sk.emerytalna));
        w.push_back(kwotaTekst(sk.rentowa));
        w.push_back(kwotaTekst(sk.chorobowa));
        w.push_back(kwotaTekst(liczba(r, D::PodstawaZdrowotna)));
        w.push_back(kwotaTekst(liczba(r, D::SkladkaZdrowotna)));
        w.push_back(kwotaTekst(liczba(r, D::SkladkaIndywidualna)));
        w.push_back(kwotaTekst(core::RoundZl(kwota - sk.razem())));
        if (godziny) {
            w.push_back(kwotaTekst(liczba(r, D::PodatekNetto)));
            w.push_back(kwotaTekst(core::Round2(static_cast<double>(sk.razem()) + liczba(r, D::SkladkaZdrowotna) +
                                                liczba(r, D::SkladkaIndywidualna) + liczba(r, D::PodatekNetto))));
        }
        w.push_back(kwotaTekst(liczba(r, D::PlacaNetto)));
        out.push_back(std::move(w));
    }
    return out;
}

std::vector<std::string> wierszTrzynastki(const std::string& nazwa, const Record& r, const core::Stawki& st,
                                          bool zeSkladkami) {
    const double kwota = liczba(r, D::KwotaBrutto);
    SkladkiDodatku sk;
    if (zeSkladkami) sk = skladkiDodatku(r, st, false);
    const float podstawaPod = core::RoundZl(kwota - sk.razem());
    const double stopa = stopaPodatku(r);
    return {nazwa,
            r.s(D::DataListy),
            kwotaTekst(kwota),
            kwotaTekst(sk.emerytalna),
            kwotaTekst(sk.rentowa),
            kwotaTekst(sk.chorobowa),
            kwotaTekst(liczba(r, D::PodstawaZdrowotna)),
            kwotaTekst(liczba(r, D::SkladkaZdrowotna)),
            kwotaTekst(liczba(r, D::SkladkaIndywidualna)),
            kwotaTekst(podstawaPod),
            core::numText(stopa),
            kwotaTekst(core::Round2(stopa * podstawaPod)),
            kwotaTekst(liczba(r, D::PodatekNetto)),
            kwotaTekst(core::Round2(liczba(r, D::DoWyplaty) + liczba(r, D::NaROR)))};
}

}  // namespace

std::vector<std::vector<std::string>> siatkaGodzin(const DaneRoku& d, const core::Stawki& st) {
    return siatkaDodatkowa(d, st, true);
}
std::vector<std::vector<std::string>> siatkaDodatkow(const DaneRoku& d, const core::Stawki& st) {
    return siatkaDodatkowa(d, st, false);
}

std::vector<std::vector<std::string>> siatkaTrzynastki(const DaneRoku& d, const core::Stawki& st) {
    std::vector<std::vector<std::string>> out{{"Nazwa dodatku", "Data List", "Podstawa", "Emerytal", "Rentowa ",
                                               "Chorobowa", "Podst.Zdr", "Skł.NFZ", "Skł.Ind", "Podst.Pod", "Stk.Pod",
                                               "Pod.Brutto", "Pod.Netto", "Do wypłaty "}};
    if (d.trzynastka) out.push_back(wierszTrzynastki("Trzynastka", *d.trzynastka, st, true));
    for (const MiesiacRoku& mr : d.miesiace)
        if (mr.swiadczenie && liczba(*mr.swiadczenie, D::KwotaBrutto) != 0)
            out.push_back(wierszTrzynastki("ŚwiadczenieUrlop", *mr.swiadczenie, st, false));
    for (const MiesiacRoku& mr : d.miesiace)
        if (mr.jubileusz && liczba(*mr.jubileusz, D::KwotaBrutto) != 0)
            out.push_back(wierszTrzynastki("Jubileuszowe", *mr.jubileusz, st, false));
    return out;
}

bool wyzerujMiesiac(const core::Session& s, const std::string& lista, const std::string& klucz, const std::string& RRmm) {
    const std::filesystem::path plik = K::path(s, lista, RRmm);
    if (!core::fileExists(plik)) throw core::Error(core::err::FileNotFound, plik.string(), kBrakKartoteki);
    std::vector<Record> recs = K::readAll(plik);
    bool jest = false;
    for (Record& r : recs) {
        if (r.s(K::Klucz) != klucz) continue;
        jest = true;
        for (int n = 1; n <= K::Count; ++n) {
            switch (r.schema().fields[static_cast<std::size_t>(n - 1)].type) {
            case core::FieldType::Float: r.set(n, 0.0f); break;
            case core::FieldType::Double: r.set(n, 0.0); break;
            case core::FieldType::Int16:
            case core::FieldType::Long: r.set(n, 0L); break;
            case core::FieldType::Variant:
                if (r.item(n).kind == core::Item::Bare) r.setItem(n, core::Item::bare("0"));
                break;
            default: break;
            }
        }
        r.set(K::Etat, "  /  ");
    }
    if (jest) core::writeAll(plik, recs, "tym" + lista + ".dta");
    return jest;
}

}  // namespace yearledger
