// Commands of the month of a list: the monthly ledger, the month closing, the calibration of
// the pay file and the yearly contribution base of a person.
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/karta_record.h"
#include "paycalc/kartoteka.h"
#include "paycalc/zerowanie.h"

namespace {

// Opens the list LISTA (its file name) as the choice of a list opens it. The people of the list
// are counted by the commands themselves as they read its files.
void otworzListe(cli::Context& c, const std::string& polecenie, std::size_t argumenty) {
    if (c.args.size() < argumenty || c.args.size() > argumenty + (polecenie == "base" ? 1 : 0))
        throw cli::Usage(polecenie + ": zła liczba argumentów");
    c.openList(c.args[0], false);
}

int kartoteka(cli::Context& c) {
    otworzListe(c, "ledger", 1);
    core::Session& s = c.session;
    if (!paycalc::cmdKartoteka(s, c.dialogs)) {
        std::cerr << "pensja-cli: kartoteka nie została wykonana\n";
        return 1;
    }
    std::cout << paycalc::Karta::path(s).string() << "\n" << "osób: " << s.LiczbaOsob << "\n";
    return 0;
}

int zerowanie(cli::Context& c) {
    otworzListe(c, "close-month", 1);
    paycalc::Postep p;
    p.status = [](const std::string& t) { std::cout << t << "\n"; };
    return paycalc::cmdZerowanie(c.session, c.dialogs, p) ? 0 : 1;
}

int kalibracja(cli::Context& c) {
    otworzListe(c, "calibrate", 1);
    paycalc::Kalibracja k = paycalc::cmdSol1(c.session, c.dialogs);
    std::cout << "rekordów płacowych: " << k.skopiowane + static_cast<int>(k.zalozone.size()) << "\n";
    if (!k.zalozone.empty()) {
        std::cout << paycalc::kZbiorZalozono << "\n" << paycalc::kWprowadzDane << ":\n";
        for (const std::string& n : k.zalozone) std::cout << "  " << n << "\n";
    }
    return 0;
}

int podstawa(cli::Context& c) {
    otworzListe(c, "base", 2);
    const std::string rok = c.args.size() > 2 ? c.args[2] : std::string();
    std::cout << core::Format(paycalc::podstawaRoczna(c.session, c.args[1], rok), "0.00") << "\n";
    return 0;
}

cli::Register r1("ledger", {"ledger LISTA",
                            "kartoteka miesięczna listy za miesiąc daty listy (karta\\<lista><RRmm>.dta); "
                            "pytanie: --yes; kod 1, gdy nie wykonano; osoby bez danych płacowych: ostrzeżenie na stderr (kod 0)",
                            kartoteka});
cli::Register r2("close-month", {"close-month LISTA",
                                 "zerowanie miesiąca w bazie płacowej listy (raty, chorobowe, brutto od początku "
                                 "roku; w styczniu na --yes także początek roku); kod 1, gdy zerowanie już było",
                                 zerowanie});
cli::Register r3("calibrate", {"calibrate LISTA",
                               "kalibracja bazy płacowej listy według zbioru personalnego (podwójne i zbędne "
                               "zapisy usunięte, brakujące założone)",
                               kalibracja});
cli::Register r4("base", {"base LISTA IDENTYFIKATOR [ROK]",
                          "podstawa składek osoby w roku (domyślnie roku daty listy) z kartotek miesięcznych i "
                          "list dodatkowych, bez trzynastki",
                          podstawa, cli::Reads});

}  // namespace
