// Commands of the social-insurance declarations: the month's contribution merge, the KEDU
// settlement file, the registration file of a list and the printed review of the merge.
#include <iostream>

#include "cli/cli.h"
#include "core/paths.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "zus/kedu.h"
#include "zus/polacz.h"
#include "zus/przeglad.h"
#include "zus/rcp_record.h"
#include "zus/zua.h"

namespace {

// Takes "--name VALUE" out of the arguments; `found` tells whether it stood there.
std::string opcja(cli::Context& c, const std::string& nazwa, const std::string& domyslna) {
    for (std::size_t i = 0; i < c.args.size(); ++i) {
        if (c.args[i] != nazwa) continue;
        if (i + 1 >= c.args.size()) throw cli::Usage("brak wartości opcji " + nazwa);
        std::string v = c.args[i + 1];
        c.args.erase(c.args.begin() + static_cast<long>(i), c.args.begin() + static_cast<long>(i) + 2);
        return v;
    }
    return domyslna;
}

bool flaga(cli::Context& c, const std::string& nazwa) {
    for (std::size_t i = 0; i < c.args.size(); ++i)
        if (c.args[i] == nazwa) {
            c.args.erase(c.args.begin() + static_cast<long>(i));
            return true;
        }
    return false;
}

void bezArgumentow(cli::Context& c, const std::string& polecenie) {
    if (!c.args.empty()) throw cli::Usage(polecenie + ": nieznany argument " + c.args[0]);
}

int polacz(cli::Context& c) {
    const bool trzynastka = flaga(c, "--thirteenth");
    c.openSession();
    const std::string zestawy = opcja(c, "--sets", zus::zapisaneZestawy(c.session));
    bezArgumentow(c, "zus-merge");
    if (!zus::zlyZestaw(zestawy).empty()) throw cli::Usage(zus::zlyZestaw(zestawy));
    if (!zus::cmdPolacz(c.session, c.dialogs, {zestawy, trzynastka})) {
        std::cerr << "pensja-cli: zbiór RCP nie został wykonany\n";
        return 1;
    }
    std::cout << zus::Rcp::path(c.session).string() << "\n"
              << "rekordów: " << zus::Rcp::readAll(zus::Rcp::path(c.session)).size() << "\n";
    return 0;
}

int kedu(cli::Context& c) {
    c.openSession();
    const std::string zestawy = opcja(c, "--sets", zus::zapisaneZestawy(c.session));
    const std::string termin = opcja(c, "--term", c.session.Firma.valid()
                                                      ? c.session.Firma.s(reference::Firma::TerminPlatnosciZUSM)
                                                      : std::string());
    bezArgumentow(c, "kedu");
    if (!zus::zlyZestaw(zestawy).empty()) throw cli::Usage(zus::zlyZestaw(zestawy));
    const auto wynik = zus::cmdWykonajRCA(c.session, c.dialogs, {zestawy, termin});
    if (!wynik) return 1;
    std::cout << wynik->plik.string() << "\n";
    return 0;
}

int zua(cli::Context& c) {
    if (c.args.size() != 1) throw cli::Usage("zua wymaga nazwy listy (pliku listy, np. a)");
    const std::string lista = c.args[0];
    if (!reference::badListStem(lista).empty()) throw cli::Usage("zła nazwa listy: " + lista);
    c.openSession();
    core::Session& s = c.session;
    s.NazwaZbioru = lista;
    s.SciezkaOsob = s.payerPath({"person", lista + ".per"});
    const auto plik = zus::cmdZUA(s, c.dialogs);
    if (!plik) return 1;
    std::cout << plik->string() << "\n";
    return 0;
}

int rcp(cli::Context& c) {
    c.takePrintOptions();
    bezArgumentow(c, "rcp");
    c.openSession();
    if (!core::fileExists(zus::Rcp::path(c.session))) {
        std::cerr << "Zestawienie to można wykonać tylko po wykonaniu zestawu RCP do ZUS !\n";
        return 1;
    }
    reference::loadRates(c.session);
    zus::drukujRCA(c.dialogs.printer(), zus::tabelaRCP(c.session, zus::Rcp::readAll(zus::Rcp::path(c.session))));
    c.emitPrint();
    return 0;
}

cli::Register r1("zus-merge", {"zus-merge [--sets LITERY] [--thirteenth]",
                               "zbiór składek ZUS miesiąca daty listy z list zestawów (zus\\rcp<RRMM>.dta); "
                               "--thirteenth dołącza trzynastki; pytanie: --yes",
                               polacz});
cli::Register r2("kedu", {"kedu [--sets LITERY] [--term T]",
                          "plik rozliczeniowy KEDU (DRA, RCA, RSA, RZA) ze zbioru RCP miesiąca; wypisuje ścieżkę "
                          "pliku; pytanie: --yes",
                          kedu});
cli::Register r3("zua", {"zua LISTA", "plik zgłoszeń ZUA wszystkich osób listy (Zgloszeniowe\\ZUA<lista>.KDU); "
                                      "pytanie: --yes",
                         zua});
cli::Register r4("rcp", {"rcp [--out PLIK | --pdf PLIK]",
                         "zestawienie podstaw i składek ZUS ze zbioru RCP miesiąca z przeliczonymi kolumnami",
                         rcp});

}  // namespace
