// Commands of leave and working time: the twelve-month average, the sick-pay history, the leave
// of the year and the working time of a month of one person.
#include <iostream>

#include "cli/cli.h"
#include "core/text.h"
#include "leave/chorobowe.h"
#include "leave/czas_pracy.h"
#include "leave/srednia.h"
#include "leave/urlopy_ekran.h"
#include "leave/wspolne.h"
#include "personnel/person_record.h"

namespace {

namespace Osoba = personnel::Osoba;

// Opens the session on the list and the person as the list screen leaves them.
void wybierz(cli::Context& c, const std::string& polecenie) {
    if (c.args.size() < 2) throw cli::Usage(polecenie + " wymaga nazwy listy i identyfikatora osoby");
    const std::string lista = core::Trim(c.args[0]);
    if (lista.empty() || lista.find_first_of("/\\") != std::string::npos) throw cli::Usage("zła nazwa listy: " + lista);
    c.openSession();
    core::Session& s = c.session;
    s.NazwaZbioru = lista;
    s.SciezkaBazy = s.payerPath({"bazy", lista + ".dta"});
    s.SciezkaOsob = s.payerPath({"person", lista + ".per"});
    s.KluczOsoby = c.args[1];
    auto o = personnel::znajdzOsobe(Osoba::readAll(Osoba::pathOf(s, lista)), s.KluczOsoby);
    if (!o) throw std::runtime_error("na liście " + lista + " nie ma osoby " + s.KluczOsoby);
    s.NazwiskoOsoby = core::RTrim(o->s(Osoba::Nazwisko));
    s.ImieOsoby = core::RTrim(o->s(Osoba::Imie));
    s.KodUbezpieczeniaOsoby = core::RTrim(o->s(Osoba::KodUbezpieczenia));
    s.Osoba = personnel::ekranOsoby(*o);
    s.Osoba.Otwarty = true;
}

void siatka(const core::Control& g) {
    for (const std::string& l : leave::wierszeSiatki(g)) std::cout << l << "\n";
}

int average(cli::Context& c) {
    wybierz(c, "average");
    if (c.args.size() != 2) throw cli::Usage("average wymaga nazwy listy i identyfikatora osoby");
    core::Control cel(nullptr, "txtSredniaChorobowa", core::Kind::TextBox);
    leave::SredniaScreen f(c.dialogs, c.session, &cel);
    c.dialogs.showForm(f);
    f.cmdWylicz_Click();
    f.cmdPobierzIloscdni_Click();
    siatka(f.MSFlexGrid7);
    std::cout << "RazemPlaca=" << f.txtRazeMPlaca.Text << "\nRazemGodziny=" << f.txtRazemGodziny.Text
              << "\nRazemDodatki=" << f.txtRazemDodatki.Text << "\nTrzynastka=" << f.txtTrzynastka.Text
              << "\nIloscMiesiecy=" << f.LbiloscMiesiecy.Caption << "\nOgolem=" << f.txtOgolem.Text
              << "\nKwotaNetto=" << f.txtKwotaNetto.Text << "\nSredniaDzienna=" << f.txtSredniadzienna.Text << "\n";
    f.CmdWyliczSrednia_Click();
    std::cout << "OgolemZDwunastaTrzynastki=" << f.txtOgolem.Text << "\nKwotaNettoZDwunastaTrzynastki="
              << f.txtKwotaNetto.Text << "\nSredniaDziennaZDwunastaTrzynastki=" << f.txtSredniadzienna.Text << "\n";
    return 0;
}

int sickHistory(cli::Context& c) {
    wybierz(c, "sick-history");
    if (c.args.size() != 2) throw cli::Usage("sick-history wymaga nazwy listy i identyfikatora osoby");
    // The history alone: the screen is not opened, so the pay file is not rewritten.
    leave::ChoroboweScreen f(c.dialogs, c.session);
    f.cmdHistoriachorobowego_Click();
    siatka(f.MSFlexGrid9);
    std::cout << "LacznaIloscDni=" << f.lbLacznaIloscDni.Caption << "\n";
    return 0;
}

int leaveYear(cli::Context& c) {
    c.takePrintOptions();
    wybierz(c, "leave");
    if (c.args.size() != 2) throw cli::Usage("leave wymaga nazwy listy i identyfikatora osoby");
    leave::UrlopyScreen f(c.dialogs, c.session);
    c.dialogs.showForm(f);
    if (!c.outFile.empty() || !c.pdfFile.empty()) {
        f.cmdDrukujWykaz_Click();
        c.emitPrint();
        return 0;
    }
    siatka(f.MSFlexGrid1);
    std::cout << "Przeniesienie=" << f.txtPrzenies.Text << "\nNalezny=" << f.txtUrlopNalezny.Text
              << "\nUrlopRazem=" << f.txtUrlopRazem.Text << "\nDoWykorzystania=" << f.LbDowykorzystania.Caption
              << "\nRozliczac=" << (f.Option1.Value ? "tak" : "nie") << "\n";
    return 0;
}

int worktime(cli::Context& c) {
    c.takePrintOptions();
    bool domyslne = false;
    std::vector<std::string> rest;
    for (const std::string& a : c.args) (a == "--defaults" ? (void)(domyslne = true) : rest.push_back(a));
    c.args = rest;
    if (c.args.size() != 3) throw cli::Usage("worktime wymaga nazwy listy, identyfikatora osoby i miesiąca");
    const int miesiac = core::ValInt(c.args[2], "worktime");
    if (miesiac < 1 || miesiac > 12 || !core::isNumeric(c.args[2])) throw cli::Usage("miesiąc to liczba od 1 do 12");
    wybierz(c, "worktime");
    leave::CzasPracyScreen f(c.dialogs, c.session);
    c.dialogs.showForm(f);
    f.miesiac = miesiac;
    f.pokazMiesiac();
    if (domyslne) {
        f.cmdWstawG_Click();
        f.cmdZapiszZmiany_Click();
    }
    if (!c.outFile.empty() || !c.pdfFile.empty()) {
        f.cmdDrukCzasuPracy_Click();
        c.emitPrint();
        return 0;
    }
    siatka(f.MSFlexGrid1);
    std::cout << "IloscDniPracy=" << f.lbIloscDniPracy.Caption << "\n";
    return c.dialogs.errorBoxes ? 1 : 0;
}

cli::Register r1("average", {"average LISTA IDENTYFIKATOR",
                             "średnia dzienna do chorobowego z 12 miesięcy: wiersze miesięcy, potem sumy obiema drogami "
                             "(trzynastka w całości i po 1/12 na miesiąc) jako nazwa=wartość",
                             average});
cli::Register r2("sick-history", {"sick-history LISTA IDENTYFIKATOR",
                                  "historia chorobowego osoby w roku daty listy z kartotek miesięcznych, z wierszem sumy",
                                  sickHistory});
cli::Register r3("leave", {"leave LISTA IDENTYFIKATOR [--out PLIK | --pdf PLIK]",
                           "urlopy osoby w roku daty listy (Urlopy\\Ur<lista><rrrr>.dta): siatka roku albo, z --out/--pdf, "
                           "wydruk wykazu rocznego",
                           leaveYear});
cli::Register r4("worktime", {"worktime LISTA IDENTYFIKATOR MIESIĄC [--defaults] [--out PLIK | --pdf PLIK]",
                              "czas pracy osoby w miesiącu (godziny\\CP<lista><rrrr>.dta): siatka dni albo wydruk; "
                              "--defaults wstawia i zapisuje wartości domyślne miesiąca",
                              worktime});

}  // namespace
