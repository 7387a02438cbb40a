#include "paycalc/urlopy.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace paycalc {

namespace {

// The leave of month `miesiac` in a settled block.
UrlopMiesiaca urlopBloku(const Urlop::Blok& b, int miesiac) {
    UrlopMiesiaca u;
    u.znaleziony = true;
    std::string stawka = b.miesiace[miesiac - 1].s(Urlop::Miesiac::Stawka);
    u.Stawka = static_cast<float>(core::Val(core::KropkaZamiastPrzecinka(stawka)));
    if (u.Stawka > 0) {
        for (const core::Record& d : b.dni[miesiac - 1])
            if (core::UCase(core::Left(d.s(Urlop::Dzien::Kod), 1)) == "U") ++u.DniUrlopu;
    }
    float kwota = static_cast<float>(u.DniUrlopu) * u.Stawka;
    u.wUrlopowe = core::Round2(static_cast<double>(kwota));
    return u;
}

bool rozliczany(const Urlop::Blok& b) { return b.naglowek.s(Urlop::Naglowek::Rozliczac) == "1"; }

}  // namespace

UrlopMiesiaca urlopMiesiaca(const std::vector<Urlop::Blok>& blocks, const std::string& klucz, int miesiac) {
    if (miesiac < 1 || miesiac > 12) return {};
    for (const Urlop::Blok& b : blocks)
        if (b.naglowek.s(Urlop::Naglowek::Identyfikator) == klucz && rozliczany(b)) return urlopBloku(b, miesiac);
    return {};
}

void UrlopyMiesiaca::dodaj(const Urlop::Blok& b) {
    const std::string klucz = b.naglowek.s(Urlop::Naglowek::Identyfikator);
    if (!rozliczany(b) || miesiacListy < 1 || miesiacListy > 12 || pierwsze.count(klucz)) return;
    pierwsze.emplace(klucz, urlopBloku(b, miesiacListy));
}

UrlopMiesiaca UrlopyMiesiaca::znajdz(const std::string& klucz) const {
    auto it = pierwsze.find(klucz);
    if (it != pierwsze.end()) return it->second;
    if (blad) throw *blad;
    return {};
}

UrlopMiesiaca modUrlop(core::Session& s) {
    UrlopMiesiaca u;
    fs::path file = Urlop::path(s, s.rok());
    if (core::fileExists(file)) {
        // Block by block until the person's; reading stops after the list's month.
        const int miesiac = core::ValInt(s.miesiac(), "miesiąc daty listy " + s.DataListy);
        core::SeqReader in(file);
        while (!in.eof() && !u.znaleziony) {
            bool urwany = false;
            Urlop::Blok b = Urlop::readBlok(in, miesiac, urwany);
            u = urlopMiesiaca({b}, s.KluczOsoby, miesiac);
            if (urwany && !u.znaleziony)
                throw core::Error(core::err::InputPastEnd, in.name(), "plik " + in.name() + " skończył się w środku bloku osoby");
        }
    }
    s.wynik.DniUrlopu = u.DniUrlopu;
    s.wynik.StawkaUrlopowa = u.Stawka;
    s.wynik.wUrlopowe = u.wUrlopowe;
    return u;
}

}  // namespace paycalc
