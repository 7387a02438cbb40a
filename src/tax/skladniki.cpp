#include "tax/skladniki.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"

namespace fs = std::filesystem;
namespace Karta = paycalc::Karta;
namespace Dod = paycalc::Dodatkowy;

namespace tax {

KluczOsoby kluczKarty(const core::Record& k) {
    return {core::RTrim(k.s(Karta::Nazwisko)), core::RTrim(k.s(Karta::Imie)),
            personnel::kluczOsoby(k.s(Karta::Obywatelstwo), k.s(Karta::Klucz), k.s(Karta::Dokument)),
            core::RTrim(k.s(Karta::KodUbezpieczenia))};
}

KluczOsoby kluczDodatkowego(const core::Record& r) {
    return {core::RTrim(r.s(Dod::Nazwisko)), core::RTrim(r.s(Dod::Imie)), core::RTrim(r.s(Dod::Klucz)),
            core::RTrim(r.s(Dod::KodUbezpieczenia))};
}

KluczOsoby kluczSesji(const core::Session& s) {
    return {core::RTrim(s.NazwiskoOsoby), core::RTrim(s.ImieOsoby), core::RTrim(s.KluczOsoby),
            core::RTrim(s.KodUbezpieczeniaOsoby)};
}

StawkiScalania stawkiScalania(const core::Stawki& st) {
    StawkiScalania m;
    m.rentowaUbezp = st.rentowaPracownik;
    m.emerytalnaPol = st.emerytalna;
    m.chorobowa = st.chorobowa;
    m.zdrowotnaOdliczana = st.zdrowotnaInd;
    m.zdrowotnaReszta = st.zdrowotna - st.zdrowotnaInd;
    return m;
}

double skladkiSpoleczne(const StawkiScalania& st, double A) {
    return static_cast<double>(core::Round2(st.rentowaUbezp * A)) + core::Round2(st.emerytalnaPol * A) +
           core::Round2(st.chorobowa * A);
}

Skladnik skladnik(const StawkiScalania& st, double A, const std::string& flagi, double stawkaPodatku) {
    auto wolne = [&](std::size_t n) { return core::Mid(flagi, n, 1) == "1"; };
    Skladnik x;
    x.A = A;
    if (A <= 0) return x;
    x.S = wolne(2) ? 0 : skladkiSpoleczne(st, A);
    if (!wolne(3)) {
        x.B = A - x.S;
        x.H1 = core::Round2(st.zdrowotnaReszta * x.B);
        x.H2 = core::Round2(st.zdrowotnaOdliczana * x.B);
    }
    x.podatek = wolne(1) ? 0 : static_cast<double>(core::RoundZl(A - x.S)) * stawkaPodatku;
    return x;
}

Skladnik skladnikiDodatkow(const StawkiScalania& st, const core::Record& r, double stawkaPodatku) {
    Skladnik suma;
    for (int i = 0; i < 7; ++i) {
        // Flags are texts of three characters; a number read bare keeps its digits.
        Skladnik x = skladnik(st, r.f(Dod::Kw1 + i), r.item(Dod::Il1 + i).text, stawkaPodatku);
        suma.A += x.A;
        suma.S += x.S;
        suma.B += x.B;
        suma.H1 += x.H1;
        suma.H2 += x.H2;
        suma.podatek += x.podatek;
    }
    if (suma.A == 0) return {};
    return suma;
}

double stawkaRekordu(const core::Record& r) {
    double st = r.f(Dod::StawkaPodatku);
    return st > 1 ? st / 100 : st;
}

std::vector<core::Record> czytajJesliJest(const fs::path& file, std::vector<core::Record> (*czytaj)(const fs::path&)) {
    try {
        return czytaj(file);
    } catch (const core::Error& e) {
        if (e.Number == core::err::FileNotFound || e.Number == core::err::PathNotFound) return {};
        throw;
    }
}

double liczba(const std::string& tekst) {
    std::string t = core::Trim(tekst);
    return core::Val(core::KropkaZamiastPrzecinka(t));
}

std::string kwota(double v) { return core::Format(v, "0.00"); }

}  // namespace tax
