// Commands of the tax forms: the month's PIT-4 of a set of lists and the annual statement of a
// person (PIT-11, PIT-8B, PIT-40), as the values of the sheet and printed onto the forms.
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"
#include "tax/pit11.h"
#include "tax/pit11_record.h"
#include "tax/pit4.h"

namespace {

// Takes "--name VALUE" out of the arguments; empty when it is not there.
std::string opcja(cli::Context& c, const std::string& nazwa) {
    for (std::size_t i = 0; i < c.args.size(); ++i)
        if (c.args[i] == nazwa) {
            if (i + 1 >= c.args.size()) throw cli::Usage("brak wartości po " + nazwa);
            std::string v = c.args[i + 1];
            c.args.erase(c.args.begin() + static_cast<long>(i), c.args.begin() + static_cast<long>(i) + 2);
            return v;
        }
    return {};
}

bool przelacznik(cli::Context& c, const std::string& nazwa) {
    for (std::size_t i = 0; i < c.args.size(); ++i)
        if (c.args[i] == nazwa) {
            c.args.erase(c.args.begin() + static_cast<long>(i));
            return true;
        }
    return false;
}

bool drukowac(const cli::Context& c) { return !c.outFile.empty() || !c.pdfFile.empty(); }

int pit4(cli::Context& c) {
    c.takePrintOptions();
    std::string zestaw = opcja(c, "--sets");
    if (!c.args.empty()) throw cli::Usage("pit4: nieznany argument " + c.args[0]);
    c.openSession();
    tax::Pit4Screen ekran(c.dialogs, c.session);
    if (!zestaw.empty()) ekran.Zestaw = zestaw;
    ekran.Load();
    ekran.WyliczPIT4();
    ekran.Wylicz();
    core::Record r = ekran.arkusz();
    for (int n = 1; n <= tax::Pit4Arkusz::Count; ++n) std::cout << r.fieldName(n) << "=" << ekran.boxes[n].Text << "\n";
    if (!drukowac(c)) return 0;
    ekran.drukujFormularz();
    c.emitPrint();
    return 0;
}

int pit11(cli::Context& c) {
    c.takePrintOptions();
    const std::string od = opcja(c, "--from"), do_ = opcja(c, "--to"), forma = opcja(c, "--form");
    const bool zapisz = przelacznik(c, "--save");
    if (c.args.size() != 2) throw cli::Usage("pit11 wymaga nazwy listy i identyfikatora osoby");
    tax::Druk druk = tax::Druk::Pit11;
    if (forma == "pit40")
        druk = tax::Druk::Pit40;
    else if (forma == "pit8b")
        druk = tax::Druk::Pit8B;
    else if (!forma.empty() && forma != "pit11")
        throw cli::Usage("--form: pit11, pit40 albo pit8b");
    const std::string lista = c.args[0];
    if (!reference::badListStem(lista).empty()) throw cli::Usage("zła nazwa listy: " + lista);
    c.openSession();
    core::Session& s = c.session;
    s.NazwaZbioru = lista;
    s.SciezkaOsob = s.payerPath({"person", lista + ".per"});
    auto osoba = personnel::znajdzOsobe(personnel::Osoba::readAll(s.SciezkaOsob), c.args[1]);
    if (!osoba) {
        std::cerr << "pensja-cli: na liście " << lista << " nie ma osoby " << c.args[1] << "\n";
        return 1;
    }
    namespace O = personnel::Osoba;
    s.KluczOsoby = c.args[1];
    s.NazwiskoOsoby = core::Trim(osoba->s(O::Nazwisko));
    s.ImieOsoby = core::Trim(osoba->s(O::Imie));
    s.KodUbezpieczeniaOsoby = core::Trim(osoba->s(O::KodUbezpieczenia));
    tax::Pit11Screen ekran(c.dialogs, s);
    if (!od.empty()) ekran.txtOdData.Text = od;
    if (!do_.empty()) ekran.txtDoData.Text = do_;
    ekran.Load();
    ekran.Pobierz();
    for (int m = 0; m < 12; ++m) {
        std::cout << (m < 9 ? "0" : "") << m + 1;
        for (int k = 0; k < tax::kKolumny; ++k) {
            const auto& l = ekran.kolumny[static_cast<std::size_t>(k)][static_cast<std::size_t>(m)];
            std::cout << " " << core::Left(l->Name, core::InStr(l->Name, "(") - 1) << "=" << l->Caption;
        }
        std::cout << "\n";
    }
    for (std::size_t i = 0; i < ekran.boxes.size(); ++i) std::cout << ekran.boxes.box(i).Name << "=" << ekran.boxes.box(i).Text << "\n";
    std::cout << "txtKosztyU=" << ekran.txtKosztyU.Text << "\n";
    if (zapisz) ekran.Zapisz();
    if (!drukowac(c)) return 0;
    ekran.Drukuj(druk, true);
    if (c.dialogs.errorBoxes > 0) return 1;
    c.emitPrint();
    return 0;
}

cli::Register rPit4("pit4", {"pit4 [--sets LITERY] [--out PLIK | --pdf PLIK]",
                             "PIT-4 miesiąca z kartotek i plików dodatkowych list zestawu: pozycje arkusza jako nazwa=wartość, "
                             "z --out/--pdf wydruk na formularz",
                             pit4});

cli::Register rPit11("pit11", {"pit11 LISTA KLUCZ [--from dd-mm-rrrr --to dd-mm-rrrr] [--save] [--out PLIK | --pdf PLIK] "
                               "[--form pit11|pit40|pit8b]",
                               "roczne zestawienie osoby z kartotek (PIT-11); --save zapisuje do PIT11\\<lista><RR>12.dta, "
                               "z --out/--pdf drukuje zapisany rekord na wybranym formularzu",
                               pit11});

}  // namespace
