// Commands of the business trips: the calculation of one position, the settlement of a trip and
// the summary of a month's trips.
#include <filesystem>
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "trips/delegacje.h"

namespace fs = std::filesystem;

namespace {

// Takes "--name VALUE" out of the arguments; `def` when it is not there.
std::string opcja(cli::Context& c, const std::string& nazwa, const std::string& def) {
    for (std::size_t i = 0; i < c.args.size(); ++i)
        if (c.args[i] == nazwa) {
            if (i + 1 >= c.args.size()) throw cli::Usage("brak wartości opcji " + nazwa);
            std::string v = c.args[i + 1];
            c.args.erase(c.args.begin() + static_cast<long>(i), c.args.begin() + static_cast<long>(i) + 2);
            return v;
        }
    return def;
}

cli::Register przelicz(
    "trip-calc",
    {"trip-calc DATA_OD GODZ_OD DATA_DO GODZ_DO [--rate STAWKA] [--exchange KURS]",
     "wyliczenie pozycji delegacji (daty dd.mm.rrrr, godziny gg:mm): lbRazemGodzin, txtWskaznikDiety, lbStawka, "
     "lbWartoscWaluty, lbKurs, lbWartoscPLN; odmowa przyjęcia pozycji na stderr z kodem 1",
     [](cli::Context& c) {
         std::string stawka = opcja(c, "--rate", "");
         std::string kurs = opcja(c, "--exchange", "1,0000");
         if (c.args.size() != 4) throw cli::Usage("trip-calc wymaga dat i godzin wyjazdu i przyjazdu");
         trips::DelegacjeScreen ekran(c.dialogs, c.session);
         ekran.txtMiejscowoscW.Text = ekran.txtMiejscowoscP.Text = "-";
         ekran.txtDataW.Text = c.args[0];
         ekran.txtGodzinaW.Text = c.args[1];
         ekran.txtDataP.Text = c.args[2];
         ekran.txtGodzinaP.Text = c.args[3];
         ekran.cmbStawka.Text = stawka;
         ekran.txtKursWaluty.Text = kurs;
         if (!ekran.cmdPrzelicz_Click()) return 1;  // the position was refused with its box
         std::cout << "lbRazemGodzin=" << ekran.lbRazemGodzin.Caption << "\n"
                   << "txtWskaznikDiety=" << ekran.txtWskaznikDiety.Text << "\n"
                   << "lbStawka=" << ekran.lbStawka.Caption << "\n"
                   << "lbWartoscWaluty=" << ekran.lbWartoscWaluty.Caption << "\n"
                   << "lbKurs=" << ekran.lbKurs.Caption << "\n"
                   << "lbWartoscPLN=" << ekran.lbWartoscPLN.Caption << "\n";
         return 0;
     }});

cli::Register rozliczenie(
    "trip-print", {"trip-print NUMER [--out PLIK | --pdf PLIK]",
                   "rozliczenie delegacji o numerze NUMER (z miesiąca daty listy, a gdy tam jej nie ma – z dowolnego miesiąca)",
                   [](cli::Context& c) {
                       c.takePrintOptions();
                       if (c.args.size() != 1) throw cli::Usage("trip-print wymaga numeru delegacji");
                       c.openSession();
                       int numer = core::ValInt(c.args[0], "numer delegacji");
                       fs::path folder = trips::folder(c.session);
                       std::string dataListy = core::Replace(c.session.DataListy, "-", ".");
                       fs::path plik = core::resolvePath(folder, {trips::nazwaPliku(numer, dataListy)});
                       if (!core::fileExists(plik)) {
                           plik.clear();
                           std::string przedrostek = core::UCase(trips::nazwaPliku(numer, dataListy).substr(0, 7));
                           std::error_code ec;
                           for (const auto& e : fs::directory_iterator(folder, ec))
                               if (core::UCase(e.path().filename().string()).rfind(przedrostek, 0) == 0) plik = e.path();
                       }
                       if (plik.empty()) {
                           c.dialogs.msgBox("Nie ma delegacji nr " + c.args[0] + ".", core::Buttons::OK,
                                            core::Icon::Exclamation, "Delegacje");
                           return 1;
                       }
                       trips::drukujRozliczenie(c.dialogs.printer(), trips::czytaj(plik));
                       c.emitPrint();
                       return 0;
                   }});

cli::Register zestawienie(
    "trips", {"trips MIESIĄC [--out PLIK | --pdf PLIK]",
              "zestawienie wydanych delegacji miesiąca (MIESIĄC jako mm-rrrr)", [](cli::Context& c) {
                  c.takePrintOptions();
                  if (c.args.size() != 1) throw cli::Usage("trips wymaga miesiąca w postaci mm-rrrr");
                  core::Date d;
                  if (!core::parseDate("01-" + c.args[0], d)) throw cli::Usage("miesiąc w postaci mm-rrrr, np. 03-2021");
                  c.openSession();
                  trips::drukujZestawienie(c.dialogs.printer(), core::FormatDate(d, "mmmm,yyyy"),
                                           trips::wczytajMiesiac(c.session, core::FormatDate(d, "yymm")));
                  c.emitPrint();
                  return 0;
              }});

}  // namespace
