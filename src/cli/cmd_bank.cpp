// Commands of the bank transfers: the batch of a set of lists, the HomeNet file, the bank's
// listing in a folder and the printed list of the batch, for the session's month.
#include <iostream>
#include <map>

#include "bank/przelewy.h"
#include "bank/ror_record.h"
#include "cli/cli.h"
#include "core/numbers.h"
#include "core/text.h"
#include "reference/catalogue.h"

namespace {

// The words of KIND for the entries of the screen's combo.
const std::map<std::string, std::string>& rodzaje() {
    static const std::map<std::string, std::string> m = {
        {"lista", bank::kRodzajeList[0]},      {"godziny", bank::kRodzajeList[1]},
        {"dodatkowe", bank::kRodzajeList[2]},  {"trzynastka", bank::kRodzajeList[3]},
        {"urlopowe", bank::kRodzajeList[4]},   {"jubileusze", bank::kRodzajeList[5]},
    };
    return m;
}

// Takes "--NAME VALUE" out of the arguments.
std::string opcja(cli::Context& c, const std::string& nazwa) {
    std::vector<std::string> reszta;
    std::string wartosc;
    for (std::size_t i = 0; i < c.args.size(); ++i) {
        if (c.args[i] == nazwa) {
            if (i + 1 >= c.args.size()) throw cli::Usage("brak wartości opcji " + nazwa);
            wartosc = c.args[++i];
        } else {
            reszta.push_back(c.args[i]);
        }
    }
    c.args = reszta;
    return wartosc;
}

void argumenty(cli::Context& c, std::size_t ile, const std::string& uzycie) {
    if (c.args.size() != ile) throw cli::Usage("użycie: " + uzycie);
}

// The title of the first list of the set heads the printed list, as when that list is open.
void listaZestawu(core::Session& s, const std::string& zestaw) {
    for (const core::Record& l : reference::Instal::read(s))
        if (reference::Instal::wZestawie(l, zestaw)) {
            s.NazwaListy = l.s(reference::Instal::NazwaListy);
            return;
        }
}

const char* const kBatch = "bank-batch ZESTAW RODZAJ BANK [--addition N]";
const char* const kHomeNet = "homenet ZESTAW BANK";
const char* const kDiskette = "diskette ZESTAW BANK --out FOLDER";
const char* const kPrint = "bank-print ZESTAW [--out PLIK | --pdf PLIK]";

cli::Register batch(
    "bank-batch",
    {kBatch,
     "zbiór przelewów ROR\\ROR<rrrrmmdd><zestaw>.dat z kartoteki lub dodatków (RODZAJ: lista, godziny, dodatkowe, "
     "trzynastka, jubileusze, urlopowe) dla kont banku; wypisuje przelewy i sumę",
     [](cli::Context& c) {
         const std::string nrDodatku = opcja(c, "--addition");
         argumenty(c, 3, kBatch);
         auto it = rodzaje().find(c.args[1]);
         if (it == rodzaje().end()) throw cli::Usage("nieznany rodzaj listy " + c.args[1]);
         c.openSession();
         float podstawa = 0;
         auto recs = bank::utworzRor(c.session, c.dialogs, {c.args[0], c.args[2], it->second, nrDodatku}, podstawa);
         if (!recs) return 1;
         namespace Ror = bank::Ror;
         for (const core::Record& r : *recs)
             std::cout << core::Lp4(r.d(Ror::NrKol)) << " " << core::PadRight(r.s(Ror::Nazwisko), 20) << " "
                       << core::PadRight(r.s(Ror::Imie), 14) << " " << core::PadRight(r.s(Ror::NrKonta), 26)
                       << core::Kw11(r.f(Ror::Kwota)) << "\n";
         std::cout << "Razem " << core::Format(bank::razem(*recs), "0.00") << "\n";
         std::cout << "Zbiór: " << Ror::path(c.session, core::UCase(c.args[0])).string() << "\n";
         return 0;
     }});

cli::Register homenet("homenet", {kHomeNet,
                                  "zbiór HOMENET\\ROR<bank><rrrrmmdd>.txt z zapisanego zbioru przelewów "
                                  "(pytanie: --yes; błędne konto: ostrzeżenie i kod 1)",
                                  [](cli::Context& c) {
                                      argumenty(c, 2, kHomeNet);
                                      c.openSession();
                                      auto plik = bank::cmdDohomenet(c.session, c.dialogs, c.args[0], c.args[1], "");
                                      if (!plik) return 1;
                                      std::cout << plik->string() << "\n";
                                      return c.dialogs.errorBoxes > 0 ? 1 : 0;
                                  }});

cli::Register dyskietka("diskette", {kDiskette,
                                     "zestawienie kont i kwot dla banku (dawniej na dyskietkę) w podanym folderze "
                                     "(pytanie: --yes)",
                                     [](cli::Context& c) {
                                         const std::string folder = opcja(c, "--out");
                                         argumenty(c, 2, kDiskette);
                                         if (folder.empty()) throw cli::Usage("podaj folder: --out FOLDER");
                                         c.dialogs.folder = std::filesystem::absolute(folder).string();
                                         c.openSession();
                                         auto plik = bank::CmdNaDyskietke(c.session, c.dialogs, c.args[0], c.args[1], "");
                                         if (!plik) return 1;
                                         std::cout << plik->string() << "\n";
                                         return 0;
                                     }});

cli::Register druk("bank-print", {kPrint, "wydruk zbioru przelewów: wykaz potrąceń na ROR, 32 wiersze na stronie",
                                  [](cli::Context& c) {
                                      c.takePrintOptions();
                                      argumenty(c, 1, kPrint);
                                      c.openSession();
                                      listaZestawu(c.session, c.args[0]);
                                      auto recs = bank::wczytajRor(c.session, c.dialogs, c.args[0], "");
                                      if (!recs) return 1;
                                      bank::drukujRor(c.session, c.dialogs, *recs);
                                      c.emitPrint();
                                      return 0;
                                  }});

}  // namespace
