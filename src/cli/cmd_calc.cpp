// The monthly calculation of one person or of a whole list, every field of the result block.
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/text.h"
#include "paycalc/wyliczenie.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"

namespace {

namespace Osoba = personnel::Osoba;
namespace Pay = payinputs::Pay;

void wybierzOsobe(core::Session& s, const core::Record& r, bool osobowy) {
    if (osobowy) {
        s.KluczOsoby = personnel::kluczOsoby(r);
        s.NazwiskoOsoby = core::RTrim(r.s(Osoba::Nazwisko));
        s.ImieOsoby = core::RTrim(r.s(Osoba::Imie));
        s.KodUbezpieczeniaOsoby = core::RTrim(r.s(Osoba::KodUbezpieczenia));
    } else {
        s.NazwiskoOsoby = core::RTrim(r.s(Pay::Nazwisko));
        s.ImieOsoby = core::RTrim(r.s(Pay::Imie));
        s.KodUbezpieczeniaOsoby = core::RTrim(r.s(Pay::KodUbezpieczenia));
    }
}

void drukuj(const core::WynikMiesiaca& w) {
    for (const auto& l : paycalc::raportWyniku(w)) std::cout << l << "\n";
}

// One calculation; an error goes to the error box and the command carries on.
bool licz(cli::Context& c, const paycalc::ZbioryListy& z, const std::string& lista, bool& blad) {
    try {
        if (paycalc::modWyliczeniePlacy(c.session, c.dialogs, z) == paycalc::Wynik::BrakPlacy) {
            std::cerr << "pensja-cli: brak zapisu płacowego osoby " << c.session.KluczOsoby << " na liście " << lista
                      << " - wynik nie został policzony\n";
            return false;
        }
    } catch (const core::Error& e) {
        c.dialogs.msgBox(core::errorReport(e), core::Buttons::OK, core::Icon::Critical, "Błąd");
        blad = true;
    }
    return true;
}

int calc(cli::Context& c) {
    if (c.args.size() != 2) throw cli::Usage("calc wymaga nazwy listy i identyfikatora osoby albo --all");
    const std::string lista = c.args[0];
    const std::string klucz = c.args[1];
    if (lista.empty() || lista.find_first_of("/\\") != std::string::npos) throw cli::Usage("zła nazwa listy: " + lista);
    c.openSession();
    core::Session& s = c.session;
    s.NazwaZbioru = lista;
    s.SciezkaBazy = s.payerPath({"bazy", lista + ".dta"});
    s.SciezkaOsob = s.payerPath({"person", lista + ".per"});
    const paycalc::ZbioryListy z = paycalc::wczytajZbiory(s);
    bool blad = false;

    if (klucz == "--all") {
        // Every person of the list in its order: the values a person's path leaves unassigned
        // stay from the person before.
        for (const core::Record& r : z.osobowe.rekordy()) {
            wybierzOsobe(s, r, true);
            std::cout << "[" << s.KluczOsoby << "]\n";
            licz(c, z, lista, blad);
            drukuj(s.wynik);
            std::cout << "\n";
        }
        if (z.osobowe.blad()) throw *z.osobowe.blad();
        return blad ? 1 : 0;
    }

    s.KluczOsoby = klucz;
    s.NazwiskoOsoby = s.ImieOsoby = s.KodUbezpieczeniaOsoby = "";
    const core::Record* r = nullptr;
    for (const auto& zb : {&z.osobowe, &z.placowe}) {
        try {
            r = zb->znajdz(klucz);
        } catch (const core::Error&) {
            r = nullptr;  // the calculation itself reports a file it cannot read
        }
        if (r) {
            wybierzOsobe(s, *r, zb == &z.osobowe);
            break;
        }
    }
    if (!licz(c, z, lista, blad)) return 1;
    drukuj(s.wynik);
    return blad ? 1 : 0;
}

cli::Register reg("calc", {"calc LISTA IDENTYFIKATOR | calc LISTA --all",
                           "wyliczenie płacy osoby (albo wszystkich osób listy) w miesiącu daty listy: "
                           "każde pole wyniku jako nazwa=wartość",
                           calc});

}  // namespace
