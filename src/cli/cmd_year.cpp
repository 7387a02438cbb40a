// Commands of an employee's year: the yearly ledger (the grid or its print), the blanking of a
// month of the ledger, and the earnings certificate.
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/numbers.h"
#include "documents/zaswiadczenia.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/karta_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"
#include "yearledger/druk_roku.h"
#include "yearledger/rok.h"

namespace {

// The list LISTA opened as the choice of a list opens it and the person KLUCZ chosen on it
// (the name and code from the personnel file, or from a ledger of the year).
void otworzOsobe(cli::Context& c, const std::string& lista, const std::string& klucz) {
    c.openList(lista, false);
    core::Session& s = c.session;
    s.KluczOsoby = klucz;
    if (core::fileExists(s.SciezkaOsob))
        if (auto o = personnel::znajdzOsobe(personnel::Osoba::readAll(s.SciezkaOsob), klucz)) {
            s.NazwiskoOsoby = core::RTrim(o->s(personnel::Osoba::Nazwisko));
            s.ImieOsoby = core::RTrim(o->s(personnel::Osoba::Imie));
            s.KodUbezpieczeniaOsoby = core::RTrim(o->s(personnel::Osoba::KodUbezpieczenia));
        }
}

// YEAR as four digits ("2020" or "20"); the rates of that year in the session.
std::string rokArgumentu(cli::Context& c, const std::string& arg) {
    core::Session& s = c.session;
    if (arg.empty()) return s.rok();
    if (!(arg.size() == 2 || arg.size() == 4) || arg.find_first_not_of("0123456789") != std::string::npos)
        throw cli::Usage("rok podaj jako rrrr lub rr: " + arg);
    const std::string rok = arg.size() == 2 ? "20" + arg : arg;
    if (rok != s.rok()) {
        s.DataListy = core::Left(s.DataListy, 6) + rok;
        reference::loadRates(s);
    }
    return rok;
}

int kartotekaRoczna(cli::Context& c) {
    c.takePrintOptions();
    if (c.args.size() < 2 || c.args.size() > 3) throw cli::Usage("year-ledger: zła liczba argumentów");
    otworzOsobe(c, c.args[0], c.args[1]);
    core::Session& s = c.session;
    const std::string rok = rokArgumentu(c, c.args.size() > 2 ? c.args[2] : std::string());
    const yearledger::DaneRoku d = yearledger::czytajRok(s, s.NazwaZbioru, s.KluczOsoby, rok);
    if (s.NazwiskoOsoby.empty())
        if (const core::Record* r = d.ostatniaKarta()) {
            s.NazwiskoOsoby = r->s(paycalc::Karta::Nazwisko);
            s.ImieOsoby = r->s(paycalc::Karta::Imie);
            s.KodUbezpieczeniaOsoby = r->s(paycalc::Karta::KodUbezpieczenia);
        }
    if (c.outFile.empty() && c.pdfFile.empty()) {
        std::string glowa;
        for (const yearledger::Kolumna& k : yearledger::kolumny()) glowa += (glowa.empty() ? "" : "\t") + std::string(k.naglowek);
        std::cout << glowa << "\n";
        for (const auto& w : yearledger::siatkaRoku(d, s.stawki)) {
            std::string linia;
            for (std::size_t i = 0; i < w.size(); ++i) linia += (i ? "\t" : "") + w[i];
            std::cout << linia << "\n";
        }
        return 0;
    }
    if (!yearledger::CmdDrukowanie(c.dialogs, d, {s.NazwiskoOsoby + " " + s.ImieOsoby, s.KodUbezpieczeniaOsoby}, s.stawki))
        return 1;
    c.emitPrint();
    return 0;
}

int wyzeruj(cli::Context& c) {
    if (c.args.size() != 3) throw cli::Usage("blank-month: zła liczba argumentów");
    const std::string& RRmm = c.args[2];
    if (RRmm.size() != 4 || RRmm.find_first_not_of("0123456789") != std::string::npos || RRmm.substr(2) < "01" ||
        RRmm.substr(2) > "12")
        throw cli::Usage("miesiąc podaj jako RRmm, np. 2003: " + RRmm);
    otworzOsobe(c, c.args[0], c.args[1]);
    core::Session& s = c.session;
    try {
        if (!yearledger::wyzerujMiesiac(s, s.NazwaZbioru, s.KluczOsoby, RRmm)) {
            std::cerr << "pensja-cli: w kartotece " << s.NazwaZbioru << RRmm << " nie ma osoby " << s.KluczOsoby << "\n";
            return 1;
        }
    } catch (const core::Error& e) {
        if (e.Number != core::err::FileNotFound) throw;
        c.dialogs.msgBox(yearledger::kBrakKartoteki, core::Buttons::OK, core::Icon::Exclamation, yearledger::kPodajDate);
        return 1;
    }
    std::cout << paycalc::Karta::path(s, s.NazwaZbioru, RRmm).string() << "\n";
    return 0;
}

int zaswiadczenie(cli::Context& c) {
    c.takePrintOptions();
    documents::Wlaczone w;
    std::string cel = documents::kCelPropozycja;
    std::vector<std::string> args;
    for (std::size_t i = 0; i < c.args.size(); ++i) {
        const std::string& a = c.args[i];
        if (a == "--thirteenth") w.trzynastka = true;
        else if (a == "--holiday") w.urlopowe = true;
        else if (a == "--purpose") {
            if (i + 1 >= c.args.size()) throw cli::Usage("brak tekstu po --purpose");
            cel = c.args[++i];
            if (cel.empty()) cel = documents::kCelPusty;
        } else args.push_back(a);
    }
    if (args.size() != 4) throw cli::Usage("certificate: zła liczba argumentów");
    for (const std::string& m : {args[2], args[3]})
        if (documents::miesiaceOkresu(m, m).empty()) throw cli::Usage("miesiąc podaj jako mmRR, np. 0320: " + m);
    if (documents::miesiaceOkresu(args[2], args[3]).empty()) throw cli::Usage("okres od " + args[2] + " do " + args[3] + " jest pusty");
    otworzOsobe(c, args[0], args[1]);
    core::Session& s = c.session;
    const documents::Sumy sumy = documents::pobierzDane(s, s.NazwaZbioru, s.KluczOsoby, args[2], args[3], w);
    if (!documents::drukujDlaOsoby(s, c.dialogs, sumy, args[2], args[3], cel, 0,
                                   core::FormatDate(core::today(), "dd-mm-yyyy")))
        return 1;
    c.emitPrint();
    return 0;
}

cli::Register r1("year-ledger", {"year-ledger LISTA IDENTYFIKATOR [ROK] [--out PLIK | --pdf PLIK]",
                                 "kartoteka roczna osoby z kartotek miesięcznych: tabela miesięcy z wierszem "
                                 "\"Razem\" (kolumny rozdzielone tabulatorem) albo wydruk (--out/--pdf, pytanie: --yes)",
                                 kartotekaRoczna});
cli::Register r2("blank-month", {"blank-month LISTA IDENTYFIKATOR RRMM",
                                 "zeruje kwoty osoby w kartotece miesiąca RRMM (zapis zostaje, etat \"  /  \")",
                                 wyzeruj});
cli::Register r3("certificate",
                 {"certificate LISTA IDENTYFIKATOR OD DO [--thirteenth] [--holiday] [--purpose TEKST] [--out PLIK | --pdf PLIK]",
                  "zaświadczenie o zatrudnieniu i zarobkach za miesiące OD-DO (mmRR, także przez przełom roku) z kartotek "
                  "i list dodatkowych; --thirteenth dolicza trzynastkę roku, --holiday świadczenia urlopowe i nagrody "
                  "jubileuszowe; wymaga danych kadrowych osoby (person/<lista>.kdr)",
                  zaswiadczenie});

}  // namespace
