#include "bank/przelewy.h"

#include "bank/ror_record.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "reference/catalogue.h"
#include "reference/payers.h"

using core::Answer;
using core::Buttons;
using core::Icon;
namespace fs = std::filesystem;
namespace Karta = paycalc::Karta;
namespace Dod = paycalc::Dodatkowy;
namespace Firma = reference::Firma;

namespace bank {

const char* const kTytulZestawienia = "Zestawienie ROR Do Banku ";
const char* const kBrakZbioru = "Brak wykonanego zbioru ROR za okres ";

namespace {

const char* const kPytanieRezygnacja = " Jezeli nie to rezygnacja";

struct Bank {
    const char* numer;
    const char* opis;
};
const Bank kBanki[] = {
    {"8602", "wybrano BS Dobczyce                 "},   {"1060", "wybrano BPH Bank Przemysłowo Handlowy"},
    {"1070", "wybrano BDK                          "},  {"1600", "wybrano BPA Bank Polsko Amerykanski  "},
    {"1020", "wybrano PKO Bank Polski Op.SA.       "},
};

// The source of the batch for the combo's text: the ledger, a supplementary kind, or none.
enum class Zrodlo { Karta, Dodatkowe, Brak };
struct Rodzaj {
    Zrodlo zrodlo = Zrodlo::Brak;
    Dod::Rodzaj dod = Dod::Rodzaj::God;
};
Rodzaj rodzajListy(const std::string& tekst) {
    const std::string t = core::RTrim(tekst);
    if (t == "Lista płac") return {Zrodlo::Karta};
    if (t == "Godziny nadliczbowe") return {Zrodlo::Dodatkowe, Dod::Rodzaj::God};
    if (t == "Dodatkowe") return {Zrodlo::Dodatkowe, Dod::Rodzaj::Dod};
    if (t == "Trzynastka") return {Zrodlo::Dodatkowe, Dod::Rodzaj::Trz};
    if (t == "Jubileusze") return {Zrodlo::Dodatkowe, Dod::Rodzaj::Jub};
    if (t == "Świadczenia urlopowe") return {Zrodlo::Dodatkowe, Dod::Rodzaj::SwU};
    return {};
}

// A transfer before it is numbered.
struct Przelew {
    std::string nazwisko, imie, konto, adres;
    float kwota = 0;
};

std::string adres(const core::Record& k) {
    return core::PadRight(k.s(Karta::Kod), 6) + core::PadRight(k.s(Karta::Miejscowosc), 20) +
           core::PadRight(k.s(Karta::Ulica), 20) + core::PadRight(k.s(Karta::NrDomu), 4) +
           core::PadRight(k.s(Karta::Lokal), 4);
}

// Step 4: the pay and the benefits sent to the account; nothing for an amount of 0.
std::optional<Przelew> zKarty(const core::Record& k) {
    const float naRor = k.f(Karta::NaROR), zasilki = k.f(Karta::ZasilkiDoROR);
    const float kwota = naRor < 0 ? zasilki : static_cast<float>(static_cast<double>(naRor) + zasilki);
    if (kwota == 0) return std::nullopt;
    return Przelew{k.s(Karta::Nazwisko), k.s(Karta::Imie), Ror::konto(k.s(Karta::NumerKonta)), adres(k), kwota};
}

// Step 5: the thirteenth pay as it stands, the other kinds counted anew from the base A.
std::optional<Przelew> zDodatku(const core::Record& d, Dod::Rodzaj rodzaj, const std::string& nrDodatku,
                                const core::Stawki& st, float& A) {
    float kwota;
    if (rodzaj == Dod::Rodzaj::Trz) {
        kwota = d.f(Dod::NaROR);
    } else {
        if (rodzaj == Dod::Rodzaj::God) A = d.f(Dod::RazemKwota);
        const std::string nr = core::Trim(nrDodatku);
        if (nr.size() == 1 && nr[0] >= '1' && nr[0] <= '7') A = d.f(Dod::Kw1 + (nr[0] - '1'));
        if (A == 0) return std::nullopt;
        const float netto = nettoDodatku(st, A, d);
        kwota = d.f(Dod::NaROR) > 0 ? core::Round2(static_cast<double>(netto)) : d.f(Dod::NaROR);
    }
    if (kwota == 0) return std::nullopt;
    return Przelew{d.s(Dod::Nazwisko), d.s(Dod::Imie), Ror::konto(d.s(Dod::NumerKonta)), core::Space(54), kwota};
}

bool brakPliku(const core::Error& e) {
    return e.Number == core::err::FileNotFound || e.Number == core::err::PathNotFound;
}

std::string kontoPlatnika(const core::Session& s) {
    if (!s.Firma.valid()) return {};
    for (int n : {Firma::NrKontaMoj1, Firma::NrKontaMoj2, Firma::NrKontaMoj3})
        if (!core::Trim(s.Firma.s(n)).empty()) return core::Trim(s.Firma.s(n));
    return {};
}

std::string firma(const core::Session& s, int pole) { return s.Firma.valid() ? s.Firma.s(pole) : std::string(); }

}  // namespace

std::vector<std::string> pozycjeHomeNet(const core::Session& s, const core::Record& r) {
    const std::string a = r.s(Ror::Adres);
    const std::string kod = core::Trim(core::Mid(a, 1, 6)), miasto = core::Trim(core::Mid(a, 7, 20)),
                      ulica = core::Trim(core::Mid(a, 27, 20)), dom = core::Trim(core::Mid(a, 47, 4)),
                      lokal = core::Trim(core::Mid(a, 51, 4));
    const std::string domLokal = core::Val(lokal) > 0 ? dom + "/" + lokal : dom;
    // The amount's digits without the point, as a 32-bit float: large amounts lose digits.
    const std::string grosze = core::Replace(core::Format(r.f(Ror::Kwota), "0.00"), ".", "");
    const std::string platnik = core::RTrim(firma(s, Firma::NazwaM)) + "|" + "" + "|" + firma(s, Firma::KODM) + " " +
                                "" + " " + firma(s, Firma::UlicaM) + " " + firma(s, Firma::NumerDomuM);
    const std::string beneficjent = core::PadRight(core::RTrim(r.s(Ror::Nazwisko)), 30) + "|" +
                                    core::PadRight(core::RTrim(r.s(Ror::Imie)), 30) + "|" +
                                    core::PadRight(kod + " " + miasto, 30) + " " +
                                    core::PadRight(ulica + " " + domLokal, 30);
    return {"111",
            r.s(Ror::DataPrzel),
            core::numText(static_cast<float>(core::Val(grosze))),
            "0",
            "",
            kontoPlatnika(s),
            r.s(Ror::NrKonta),
            platnik,
            beneficjent,
            "0",
            "0",
            core::PadRight(r.s(Ror::Tresc), 60),
            core::Space(30),
            core::Space(30)};
}

namespace {

std::string polacz(const std::vector<std::string>& pozycje) {
    std::string out;
    for (std::size_t i = 0; i < pozycje.size(); ++i) out += (i ? "," : "") + pozycje[i];
    return out;
}

}  // namespace

std::string opisBanku(const std::string& nrUnikatowy) {
    const std::string cztery = core::Left(nrUnikatowy, 4);
    for (const Bank& b : kBanki)
        if (cztery == b.numer) return b.opis;
    return {};
}

bool kontoBanku(const std::string& konto, const std::string& nrUnikatowy) {
    const std::size_t n = core::Len(nrUnikatowy);
    return core::Mid(konto, 3, n) == nrUnikatowy || core::Left(konto, n) == nrUnikatowy;
}

bool nrbPoprawny(const std::string& konto) {
    if (konto.size() != 26) return false;
    for (char c : konto)
        if (c < '0' || c > '9') return false;
    // The number with the country's letters as digits (P = 25, L = 21) and the check digits moved
    // to its end gives 1 modulo 97.
    const std::string liczba = konto.substr(2) + "2521" + konto.substr(0, 2);
    int reszta = 0;
    for (char c : liczba) reszta = (reszta * 10 + (c - '0')) % 97;
    return reszta == 1;
}

float nettoDodatku(const core::Stawki& st, float A, const core::Record& dod) {
    float rentowa = core::Round2(st.rentowaPracownik * A);
    float emerytalna = core::Round2(st.emerytalna * A);
    const float chorobowa = core::Round2(st.chorobowa * A);
    if (dod.d(Dod::BruttoOd01) > st.KwotaGRE) {
        rentowa = 0;
        emerytalna = 0;
    }
    const float S = core::Round2(static_cast<double>(rentowa) + emerytalna + chorobowa);
    const float B = static_cast<float>(static_cast<double>(A) - S);
    const float H1 = core::Round2((st.zdrowotna - st.zdrowotnaInd) * B);
    const float H2 = core::Round2(st.zdrowotnaInd * B);
    const double podstawaPodatku = core::RoundZl(static_cast<double>(A) - S) * dod.d(Dod::StawkaPodatku);
    const float podatek = core::RoundZl(podstawaPodatku - H1);
    return core::Round2(static_cast<double>(A) - core::Round2(static_cast<double>(S) + H1 + H2 + podatek));
}

std::optional<std::vector<core::Record>> utworzRor(core::Session& s, core::Dialogs& ui, const Zlecenie& z,
                                                   float& podstawa, const paycalc::Postep& postep) {
    const std::string zestaw = core::UCase(core::Trim(z.zestaw)), nr = core::Trim(z.nrBanku);
    if (zestaw.empty()) {
        core::MsgBox(ui, "Ustal zestaw ");
        return std::nullopt;
    }
    if (nr.empty()) {
        core::MsgBox(ui, "Ustal nr unikatowy banku 0d 3 do 6 cyfry konta");
        return std::nullopt;
    }
    std::vector<std::string> listy;
    for (const core::Record& l : reference::Instal::listyZestawu(reference::Instal::read(s), zestaw))
        listy.push_back(reference::Instal::stem(l));
    const Rodzaj rodzaj = rodzajListy(z.rodzaj);
    if (!listy.empty() && rodzaj.zrodlo == Zrodlo::Brak) {
        ui.msgBox("Nie przewidzialem tego ruchu ", Buttons::OK, Icon::None, "Zle wybrany typ listy ! ");
        return std::nullopt;
    }
    const std::string data = Ror::dataPrzelewu(s);
    const std::string tresc = "Wpłata na ROR z " + z.rodzaj + " za " + s.DataListy;
    std::vector<core::Record> out;
    for (std::size_t i = 0; i < listy.size(); ++i) {
        postep(0, static_cast<int>(listy.size()), static_cast<int>(i));
        std::vector<core::Record> zrodlo;
        try {
            zrodlo = rodzaj.zrodlo == Zrodlo::Karta ? Karta::readAll(Karta::path(s, listy[i], s.RRmm()))
                                                    : Dod::readAll(Dod::path(s, rodzaj.dod, listy[i], s.RRmm()));
        } catch (const core::Error& e) {
            if (!brakPliku(e)) throw;
            ui.msgBox(kBrakZbioru + listy[i], Buttons::OK, Icon::Exclamation, kTytulZestawienia + z.rodzaj);
            continue;
        }
        for (const core::Record& r : zrodlo) {
            std::optional<Przelew> p =
                rodzaj.zrodlo == Zrodlo::Karta ? zKarty(r) : zDodatku(r, rodzaj.dod, z.nrDodatku, s.stawki, podstawa);
            if (!p || !kontoBanku(p->konto, nr)) continue;
            core::Record rec(Ror::schema());
            rec.set(Ror::NrKol, static_cast<long>(out.size() + 1));
            rec.set(Ror::Nazwisko, core::PadRight(p->nazwisko, Ror::kSzerNazwiska));
            rec.set(Ror::Imie, core::PadRight(p->imie, Ror::kSzerImienia));
            rec.set(Ror::NrKonta, p->konto);
            rec.set(Ror::Kwota, p->kwota);
            rec.set(Ror::DataPrzel, data);
            rec.set(Ror::Adres, p->adres);
            rec.set(Ror::Tresc, tresc);
            out.push_back(std::move(rec));
        }
    }
    postep(0, static_cast<int>(listy.size()), static_cast<int>(listy.size()));
    Ror::writeAll(Ror::path(s, zestaw), out);
    return out;
}

std::optional<std::vector<core::Record>> wczytajRor(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                                    const std::string& rodzaj) {
    const std::string z = core::UCase(core::Trim(zestaw));
    if (z.empty()) {
        core::MsgBox(ui, "Ustal zestaw ");
        return std::nullopt;
    }
    const fs::path plik = Ror::path(s, z);
    try {
        return Ror::readAll(plik);
    } catch (const core::Error& e) {
        if (!brakPliku(e)) throw;
        ui.msgBox(kBrakZbioru + plik.filename().string(), Buttons::OK, Icon::Exclamation, kTytulZestawienia + rodzaj);
        return std::nullopt;
    }
}

double razem(const std::vector<core::Record>& recs) {
    double suma = 0;
    for (const core::Record& r : recs) suma += r.f(Ror::Kwota);
    return suma;
}

fs::path plikHomeNet(const core::Session& s, const std::string& nrBanku) {
    return s.payerPath({"HOMENET", "ROR" + core::Trim(nrBanku) + Ror::dataPrzelewu(s) + ".txt"});
}

std::optional<fs::path> cmdDohomenet(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                     const std::string& nrBanku, const std::string& rodzaj) {
    if (ui.msgBox("Czy chcesz wykonać zbiór do HomeNet", Buttons::YesNo, Icon::Question, kPytanieRezygnacja) !=
        Answer::Yes)
        return std::nullopt;
    if (core::Trim(nrBanku).empty()) {
        core::MsgBox(ui, "Ustal nr unikatowy banku 0d 3 do 6 cyfry konta");
        return std::nullopt;
    }
    auto recs = wczytajRor(s, ui, zestaw, rodzaj);
    if (!recs) return std::nullopt;
    const std::string bank = core::Left(core::Trim(nrBanku), 4);
    core::SeqWriter w;
    int ile = 0;
    for (const core::Record& r : *recs) {
        if (core::Mid(r.s(Ror::NrKonta), 3, 4) != bank) continue;
        const std::vector<std::string> p = pozycjeHomeNet(s, r);
        // The file has no quotes: a comma inside an item would split it.
        for (const std::string& item : p)
            if (item.find(',') != std::string::npos) {
                ui.msgBox("Pozycja \"" + core::Trim(item) + "\" zawiera przecinek, którego plik HomeNet nie " +
                              "pomieści. Popraw dane (płatnika lub pracownika) i wykonaj zbiór ponownie.",
                          Buttons::OK, Icon::Critical, "Do Home Net");
                return std::nullopt;
            }
        const std::string konto = core::Trim(r.s(Ror::NrKonta));
        if (core::Len(konto) != 26 || !nrbPoprawny(konto))
            ui.msgBox("Sprawdź konto beneficjenta do przelewu " + p[8] + " - wydaje się błedne!", Buttons::OK,
                      Icon::Critical);
        w.print(polacz(p));
        ++ile;
    }
    core::ensureFolder(s.payerFolder(), {"HOMENET"});
    const fs::path plik = plikHomeNet(s, nrBanku);
    core::commitFile(plik, w, "HOMENET.tym");
    ui.msgBox("Zbiór do HomeNet zapisany: " + plik.string() + " (przelewów: " + std::to_string(ile) + ")",
              Buttons::OK, Icon::Information, "Do Home Net");
    return plik;
}

std::string nazwaDyskietki(const core::Session& s, const std::string& nrBanku) {
    const std::string przedrostek = core::Left(core::Trim(nrBanku), 4) == "8602" ? "zaww" : "ROR";
    return przedrostek + core::Left(s.SkrotPlatnika, 1) + core::Right(s.RRmm(), 3) + ".txt";
}

std::vector<std::string> linieDyskietki(const std::vector<core::Record>& recs) {
    std::vector<std::string> out;
    for (const core::Record& r : recs)
        out.push_back(Ror::konto(r.s(Ror::NrKonta)) + core::PadLeft(core::Format(r.f(Ror::Kwota), "#######,##0.00"), 15));
    out.push_back("Razem                          " + core::Kw11(razem(recs)));
    return out;
}

std::optional<fs::path> CmdNaDyskietke(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                       const std::string& nrBanku, const std::string& rodzaj) {
    if (ui.msgBox("Czy masz włozoną dyskietke do A: ? ", Buttons::YesNo, Icon::Question, kPytanieRezygnacja) !=
        Answer::Yes)
        return std::nullopt;
    auto recs = wczytajRor(s, ui, zestaw, rodzaj);
    if (!recs) return std::nullopt;
    const fs::path start = s.FolderDyskietki.empty() ? s.payerFolder() : s.FolderDyskietki;
    const std::optional<std::string> wybor = ui.folderBox("Folder zestawienia dla banku", start.string());
    if (!wybor || core::Trim(*wybor).empty()) return std::nullopt;
    const std::optional<fs::path> folder = fs::path(core::Trim(*wybor));
    std::error_code ec;
    if (!fs::is_directory(*folder, ec)) {
        ui.msgBox("Nie ma folderu " + folder->string() + ". Wybierz istniejący folder.", Buttons::OK, Icon::Exclamation,
                  kTytulZestawienia);
        return std::nullopt;
    }
    s.FolderDyskietki = *folder;
    core::SeqWriter w;
    for (const std::string& l : linieDyskietki(*recs)) w.print(l);
    const fs::path plik = *folder / nazwaDyskietki(s, nrBanku);
    core::commitFile(plik, w);
    ui.msgBox("Dyskietka sporzadzona " + s.miesiac(), Buttons::OK, Icon::Information, kTytulZestawienia);
    return plik;
}

void drukujRor(core::Session& s, core::Dialogs& ui, const std::vector<core::Record>& recs) {
    static const char* const kKreska = "|====|====================================|==========|==========================|";
    static const char* const kGlowka = "|Lp. |Nazwisko i imie                     | Kwota    | Numer konta ROR          |";
    core::Printer& p = ui.printer();
    if (int st = p.status()) throw core::Error(st, "drukarka");
    p.setFont("Courier New", 10, false);
    const std::string platnik = s.Firma.valid() ? core::RTrim(s.Firma.s(Firma::NazwaM)) : s.SkrotPlatnika;
    auto naglowek = [&] {
        p.print(core::RTrim(s.NazwaListy) + " Wykaz potrąceń na ROR z " + "   Płatnik " + platnik);
        p.print(kKreska);
        p.print(kGlowka);
        p.print(kKreska);
    };
    naglowek();
    int strona = 1;
    double suma = 0;
    for (std::size_t i = 0; i < recs.size(); ++i) {
        const core::Record& r = recs[i];
        suma += r.f(Ror::Kwota);
        p.print("|" + core::Lp4(static_cast<double>(i + 1)) + "|" + core::PadRight(r.s(Ror::Nazwisko), 20) + " " +
                core::PadRight(r.s(Ror::Imie), 14) + " |" + core::Kw10(r.f(Ror::Kwota)) + "|" +
                core::PadRight(r.s(Ror::NrKonta), 26) + "|");
        const std::size_t wiersz = i + 1;
        if (wiersz % 32 == 0 && wiersz <= 160) {
            ++strona;
            p.print(kKreska);
            p.print("  Przeniesienie na strone " + std::to_string(strona));
            p.newPage();
            p.print("                              strona " + std::to_string(strona));
            naglowek();
        }
    }
    p.print(kKreska);
    p.print(core::PadRight("| Razem", 42) + "|" + core::Kw10(suma) + "|          X               |");
    p.emptyLine();
    p.emptyLine();
    p.print("                         Sporzadził .................." + std::string(" Data: ") + s.DataListy);
    p.endDoc();
}

void cmdDrukujROR(core::Session& s, core::Dialogs& ui, const std::string& zestaw, const std::string& rodzaj) {
    auto recs = wczytajRor(s, ui, zestaw, rodzaj);
    if (recs) drukujRor(s, ui, *recs);
}

}  // namespace bank
