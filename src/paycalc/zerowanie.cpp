#include "paycalc/zerowanie.h"

#include <algorithm>
#include <unordered_map>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/wyliczenie.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;
using core::Record;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace paycalc {

namespace {

// Year and month of a date dd-mm-rrrr as rrrrmm.
std::string rokMiesiac(const std::string& data) { return core::Right(data, 4) + core::Mid(data, 4, 2); }

// A loan falls by its instalment; at 0 or below both end at 0.
void splata(Record& r, int pozyczka, int rata) {
    const double reszta = r.d(pozyczka) - r.f(rata);
    if (reszta <= 0) {
        r.set(pozyczka, 0.0f);
        r.set(rata, 0.0f);
    } else {
        r.set(pozyczka, static_cast<float>(reszta));
    }
}

// The value of a carried field as a number: empty and text count as their leading number.
double liczba(const Record& r, int n) { return core::Val(r.s(n)); }

void wybierz(core::Session& s, const Record& placa) {
    s.KluczOsoby = payinputs::kluczOsoby(placa);
    s.NazwiskoOsoby = core::RTrim(placa.s(Pay::Nazwisko));
    s.ImieOsoby = core::RTrim(placa.s(Pay::Imie));
    s.KodUbezpieczeniaOsoby = core::RTrim(placa.s(Pay::KodUbezpieczenia));
    s.Osoba = core::EkranOsoby{};
}

}  // namespace

bool cmdZerowanie(core::Session& s, core::Dialogs& ui, const Postep& postep) {
    // 1. January: the year start, on OK only; Cancel closes an ordinary month.
    bool poczatekRoku = false;
    if (s.miesiac() == "01")
        poczatekRoku = ui.msgBox(" Ok = zeruje razem chorobowe razem brutto za poprzedni rok ", Buttons::OKCancel,
                                 Icon::Question, "Przygotowanie bazy do nowego roku ") == core::Answer::OK;

    // 2. The list's files once; the pay file must be read whole before it is rewritten.
    reference::loadRates(s);
    const ZbioryListy z = wczytajZbiory(s);
    if (z.placowe.blad()) throw *z.placowe.blad();
    const std::vector<Record>& place = z.placowe.rekordy();

    // 3. The last closing, kept in the first record.
    if (!place.empty()) {
        const std::string zapisana = rokMiesiac(place.front().s(Pay::DataZerowania));
        if (!core::Trim(zapisana).empty() && !(zapisana < rokMiesiac(s.DataListy))) {
            ui.msgBox(" Zerowanie było już w tym miesiacu wykonane ! ", Buttons::OK, Icon::Exclamation,
                      " Zerowanie chorobowych zmniana kas i ulg w tym miesiacu BYŁO wykonane ?");
            postep.pokaz(kWykonane);
            return false;
        }
    }

    // 4. Asked, but either answer goes on.
    ui.msgBox("Czy chcesz wykonac zerowanie ?", Buttons::OKCancel, Icon::Question,
              " Zerowanie chorobowych zmniana kas i ulg w tym miesiacu nie było wykonane ?");

    // 5.
    postep.pokaz(kWykonane);
    const std::string dataZerowania = s.DataListy;
    const int koniec = s.LiczbaOsob + 1;
    postep(1, koniec, 1);

    // 6. Each record goes to the new pay file as soon as it is done; the file replaces the old
    // one only once it is whole.
    core::SeqWriter nowe = core::SeqWriter::toFile(Pay::path(s), "TYMCZ.dta");
    std::vector<Record> jeden(1);
    long numer = 0;
    int n = 1;
    for (const Record& stary : place) {
        Record& r = jeden[0];
        r = stary;
        // a.
        const std::string obywatelstwo = r.s(Pay::Obywatelstwo);
        if (obywatelstwo.empty() || obywatelstwo[0] == '0') r.set(Pay::Obywatelstwo, "POLSKIE");
        wybierz(s, r);
        modWyliczeniePlacy(s, ui, z);
        const core::WynikMiesiaca& w = s.wynik;
        // b. to d.
        splata(r, Pay::KZPpozyczka, Pay::KZPRata);
        r.set(Pay::KZPWklady, static_cast<float>(r.d(Pay::KZPWklady) + r.f(Pay::KZPSkladka)));
        splata(r, Pay::ZFMPozyczka, Pay::ZFMRata);
        // e., f.
        r.set(Pay::BruttoOd01, static_cast<float>(r.d(Pay::BruttoOd01) + w.wBrutto));
        if (r.f(Pay::UlgaInwestycyjna) > 0)
            r.set(Pay::UlgaInwestycyjna, static_cast<float>(static_cast<double>(r.f(Pay::UlgaInwestycyjna)) - w.wZaliczka));
        // g. The sick lines: their days go to the year's sick days, the lines are cleared.
        for (int linia = 0; linia < 4; ++linia) {
            const int b = Pay::SredniaCH1 + 6 * linia;
            r.set(Pay::DniChorobyOd01, static_cast<float>(r.d(Pay::DniChorobyOd01) + r.d(b + 1)));
            r.set(b, 0L);
            r.set(b + 1, 0L);
            r.set(b + 2, "");
            r.set(b + 3, "");
            r.set(b + 4, "");
            r.set(b + 5, "80");
        }
        // h. The three unpaid-absence lines.
        for (int dni : {Pay::BZP1dni, Pay::BZP2dni, Pay::BZP3dni}) {
            r.set(dni, 0L);
            r.set(dni + 1, "");
            r.set(dni + 2, "");
            r.set(dni + 3, "");
        }
        // i. The year start.
        if (poczatekRoku) {
            r.set(Pay::DniChorobyOd01, 0L);
            r.set(Pay::BruttoOd01, 0L);
            double tabela = 0;
            for (int m = kTabela12Od; m <= kTabela12Do; ++m) tabela += liczba(r, m);
            r.set(kSaldoPrzenoszone,
                  static_cast<float>(liczba(r, kSaldoPrzenoszone) + liczba(r, kSaldoPartner) - tabela));
            for (int m = kTabela12Od; m <= kTabela12Do; ++m) r.set(m, "");
        }
        // j.
        r.set(Pay::DataZerowania, dataZerowania);
        // 7. Numbered in the order of the file.
        Pay::renumber(jeden);
        r.set(Pay::Numer, ++numer);
        core::writeRecord(nowe, r);
        postep(1, koniec, std::min(++n, koniec));
    }
    nowe.commit();
    return true;
}

Kalibracja cmdSol1(core::Session& s, core::Dialogs& ui, const Postep& postep) {
    Kalibracja k;
    reference::loadRates(s);
    const fs::path plikPlac = Pay::path(s);
    // A list without a pay file gets one: every person is then missing a record.
    std::vector<Record> place;
    if (core::fileExists(plikPlac)) place = Pay::readAll(plikPlac);
    std::unordered_map<std::string, std::size_t> pierwszy;
    for (std::size_t i = 0; i < place.size(); ++i) pierwszy.emplace(payinputs::kluczOsoby(place[i]), i);

    const std::vector<Record> osoby = Osoba::readAll(Osoba::path(s));
    const int ile = static_cast<int>(osoby.size());
    postep(0, ile, 0);
    std::vector<Record> nowe;
    nowe.reserve(osoby.size());
    int i = 0;
    for (const Record& o : osoby) {
        const std::string klucz = personnel::kluczOsoby(o);
        auto it = pierwszy.find(klucz);
        Record r;
        if (it != pierwszy.end()) {
            r = place[it->second];
            ++k.skopiowane;
        } else {
            const std::string nazwisko = core::RTrim(o.s(Osoba::Nazwisko));
            ui.msgBox("Uzupełnij dane tego pracownika w module Płaca !", Buttons::OK, Icon::Exclamation,
                      "Brak danych placowych dla " + nazwisko + " ");
            r = payinputs::nowyRekordPlacowy(s.stawki.Stawka1, 0);
            r.set(Pay::Nazwisko, o.s(Osoba::Nazwisko));
            r.set(Pay::Imie, o.s(Osoba::Imie));
            r.set(Pay::Pesel, o.s(Osoba::Pesel));
            r.set(Pay::KodUbezpieczenia, o.s(Osoba::KodUbezpieczenia));
            r.set(Pay::Dokument, o.s(Osoba::Paszport));
            r.set(Pay::Obywatelstwo, personnel::obywatelstwo(o.s(Osoba::Obywatelstwo)));
            r.set(Pay::Grupa, o.s(Osoba::Grupa));
            r.set(Pay::RodzajUmowy, "Umowa o prace");
            k.zalozone.push_back(core::Trim(nazwisko + " " + core::RTrim(o.s(Osoba::Imie))));
        }
        const std::string dokument = r.s(Pay::Dokument);
        if (core::Len(dokument) < 11) r.set(Pay::Dokument, dokument + core::Space(11 - core::Len(dokument)));
        nowe.push_back(std::move(r));
        postep(0, ile, ++i);
    }
    Pay::renumber(nowe);
    core::writeAll(plikPlac, nowe, "baza1.dta");
    postep.pokaz(kWykonane);
    ui.msgBox(" Wykonano", Buttons::OK, Icon::Information, "Kalibracja bazy zostala wykonana");
    return k;
}

Usuniecie cmdUsu(core::Session& s, core::Dialogs& ui) {
    Usuniecie u;
    // The personnel file, a question for each record of the person.
    const fs::path plikOsob = Osoba::path(s);
    std::vector<Record> osoby = Osoba::readAll(plikOsob);
    std::vector<Record> zostaja;
    zostaja.reserve(osoby.size());
    for (Record& o : osoby) {
        if (personnel::kluczOsoby(o) == s.KluczOsoby &&
            ui.msgBox("Czy napewno usunąć ten rekord ?", Buttons::OKCancel, Icon::Question,
                      "Usuwam rekord ! " + core::RTrim(o.s(Osoba::Nazwisko)) + " " + core::RTrim(o.s(Osoba::Imie))) ==
                core::Answer::OK) {
            ++u.zKadr;
            continue;
        }
        zostaja.push_back(std::move(o));
    }
    core::writeAll(plikOsob, zostaja, "tym.dta");

    // The pay file, on the second question.
    if (ui.msgBox("Czy usunąć zbędny zbiór z bazy Płacowej ?", Buttons::YesNo, Icon::Question,
                  "Usuwanie rekordu " + s.NazwiskoOsoby + " ID=" + s.KluczOsoby) != core::Answer::Yes)
        return u;
    u.zPlac = 0;
    const fs::path plikPlac = Pay::path(s);
    if (!core::fileExists(plikPlac)) return u;
    std::vector<Record> place = Pay::readAll(plikPlac);
    const auto stare = place.size();
    std::erase_if(place, [&](const Record& r) { return payinputs::kluczOsoby(r) == s.KluczOsoby; });
    u.zPlac = static_cast<int>(stare - place.size());
    Pay::renumber(place);
    core::writeAll(plikPlac, place, "TYMCZ.dta");
    return u;
}

}  // namespace paycalc
