// Commands of the printed lists: the pay list, the payslips and the count of notes and coins of a
// list in the session's month, printed as text or PDF.
#include "cli/cli.h"
#include "core/error.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"
#include "printing/specyfikacja.h"
#include "printing/sumy_record.h"

namespace {

// Opens the list as frmwybor opens it.
void otworzListe(cli::Context& c, const std::string& polecenie) {
    c.takePrintOptions();
    if (c.args.size() != 1) throw cli::Usage(polecenie + " wymaga nazwy listy (pliku listy, np. a)");
    c.openList(c.args[0], true);
}

// The pages go out only when the command ended without an error box.
int wydaj(cli::Context& c) {
    if (c.dialogs.errorBoxes > 0) return 1;
    c.emitPrint();
    return 0;
}

const char* const kOpcje = " LISTA [--out PLIK | --pdf PLIK]";

cli::Register lista("print-list", {std::string("print-list") + kOpcje,
                                   "lista płac miesiąca z kartoteki (pytanie o drukarkę: --yes); zapisuje SUMY\\S<lista><RRmm>.sum",
                                   [](cli::Context& c) {
                                       otworzListe(c, "print-list");
                                       // The people of the ledger are the list's count (as cmdKartoteka
                                       // leaves it): the heads of its pages give the number of pages.
                                       c.session.LiczbaOsob = paycalc::Karta::liczbaOsob(paycalc::Karta::path(c.session));
                                       std::optional<core::Record> sumy;
                                       printing::cmdDrukListy(c.session, c.dialogs, &sumy);
                                       // The sums say the list was printed: written once the pages are out.
                                       int rc = wydaj(c);
                                       if (rc == 0 && sumy) printing::Sumy::write(c.session, *sumy);
                                       return rc;
                                   }});

cli::Register paski("payslips", {std::string("payslips") + kOpcje,
                                 "paski wypłat z kartoteki, pięć na stronie (pytanie o drukarkę: --yes)",
                                 [](cli::Context& c) {
                                     otworzListe(c, "payslips");
                                     printing::CmdPaski(c.session, c.dialogs);
                                     return wydaj(c);
                                 }});

cli::Register banknoty("banknotes", {std::string("banknotes") + kOpcje,
                                     "specyfikacja banknotów i bilonu do wypłaty gotówką (pytania: --yes)",
                                     [](cli::Context& c) {
                                         otworzListe(c, "banknotes");
                                         printing::CmdSpecyfikacja(c.session, c.dialogs);
                                         return wydaj(c);
                                     }});

}  // namespace
