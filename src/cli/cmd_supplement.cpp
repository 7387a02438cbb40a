// Commands of the supplementary pay runs of a month (overtime, additions, thirteenth pay,
// jubilee awards, holiday benefit): a run of one person on the tab of the list screen, the
// deletion of a month's file and its printed list.
#include <iostream>

#include "cli/cli.h"
#include "core/error.h"
#include "core/paths.h"
#include "paycalc/dodatkowe.h"
#include "paycalc/lista.h"

namespace {

// The kinds by their words, in the order of the tabs.
const char* const kRodzaje[5] = {"overtime", "additions", "thirteenth", "jubilee", "holiday"};

int zakladka(const std::string& rodzaj) {
    for (int t = 1; t <= 5; ++t)
        if (rodzaj == kRodzaje[t - 1]) return t;
    throw cli::Usage("nieznany rodzaj: " + rodzaj + " (overtime, additions, thirteenth, jubilee, holiday)");
}

// A box of the tab takes a value as the operator would give it: text typed, a switch ticked,
// an option chosen.
void ustaw(paycalc::ListaScreen& f, const std::string& para) {
    const std::size_t eq = para.find('=');
    if (eq == std::string::npos) throw cli::Usage("oczekiwano POLE=WARTOŚĆ, jest: " + para);
    core::Control* c = f.find(para.substr(0, eq));
    if (!c) throw cli::Usage("na ekranie listy nie ma pola " + para.substr(0, eq));
    const std::string v = para.substr(eq + 1);
    switch (c->kind) {
    case core::Kind::TextBox:
        if (c->Locked) throw cli::Usage("pole " + c->Name + " jest tylko do odczytu");
        c->Text = v;
        break;
    case core::Kind::CheckBox:
        c->Value = v == "1" ? 1 : 0;
        f.fire(*c, &core::Control::Click);
        break;
    case core::Kind::OptionButton:
        if (v == "1") f.fire(*c, &core::Control::Click);
        break;
    default:
        throw cli::Usage("pole " + c->Name + " nie przyjmuje wartości");
    }
}

int wylicz(cli::Context& c) {
    if (c.args.size() < 3) throw cli::Usage("supplement RODZAJ LISTA IDENTYFIKATOR [POLE=WARTOŚĆ ...]");
    const int tab = zakladka(c.args[0]);
    c.openList(c.args[1], true);
    core::Session& s = c.session;
    paycalc::ListaScreen f(c.dialogs, s);
    f.Load();
    const std::string& klucz = c.args[2];
    for (std::size_t i = 0; i < f.lstlista.List.size() && f.lstlista.ListIndex < 0; ++i)
        if (paycalc::osobaZWiersza(f.lstlista.List[i]).Klucz == klucz) f.lstlista.ListIndex = static_cast<int>(i);
    if (f.lstlista.ListIndex < 0) throw cli::Usage("na liście " + c.args[1] + " nie ma osoby " + klucz);
    // Called straight, so that an unanswered question ends the command.
    f.lstlista_Click();
    f.TabStrip1.Value = tab;
    f.TabStrip1_Click();
    for (std::size_t i = 3; i < c.args.size(); ++i) ustaw(f, c.args[i]);
    const int bledy = c.dialogs.errorBoxes;
    f.wylicz(tab);
    if (c.dialogs.errorBoxes > bledy) return 1;
    const std::string& ramka = f.ramka(tab).Name;
    for (const core::Control* k : f.controls()) {
        if (k->Container != ramka) continue;
        if (k->kind == core::Kind::Label) std::cout << k->Name << "=" << k->Caption << "\n";
        else if (k->kind == core::Kind::TextBox) std::cout << k->Name << "=" << k->Text << "\n";
    }
    if (tab == 2) std::cout << "lbInfo=" << f.lbInfo.Caption << "\n";
    std::cout << paycalc::Dodatkowy::path(s, paycalc::ListaScreen::rodzajZakladki(tab)).string() << "\n";
    return 0;
}

int usun(cli::Context& c) {
    if (c.args.size() != 2) throw cli::Usage("supplement-delete RODZAJ LISTA");
    const int tab = zakladka(c.args[0]);
    c.openList(c.args[1], true);
    return paycalc::usunDodatki(c.session, c.dialogs, paycalc::ListaScreen::rodzajZakladki(tab)) ? 0 : 1;
}

int drukuj(cli::Context& c) {
    c.takePrintOptions();
    if (c.args.size() != 2) throw cli::Usage("supplement-print RODZAJ LISTA [--out PLIK | --pdf PLIK]");
    const int tab = zakladka(c.args[0]);
    c.openList(c.args[1], true);
    if (!paycalc::drukujDodatki(c.session, c.dialogs, paycalc::ListaScreen::rodzajZakladki(tab))) return 1;
    c.emitPrint();
    return 0;
}

cli::Register r1("supplement",
                 {"supplement RODZAJ LISTA IDENTYFIKATOR [POLE=WARTOŚĆ ...]",
                  "wyliczenie dodatkowej wypłaty osoby za miesiąc daty listy, jak przycisk Wylicz na zakładce "
                  "(RODZAJ: overtime, additions, thirteenth, jubilee, holiday; pola jak na zakładce, np. "
                  "TxtPodstawaG=4200 txtIl1=10 optD3=1 ChkNFZD=0); wypisuje etykiety zakładki; brak zbioru "
                  "miesiąca: pytanie o założenie (--yes)",
                  wylicz});
cli::Register r2("supplement-delete", {"supplement-delete RODZAJ LISTA",
                                       "usunięcie zbioru dodatkowej wypłaty za miesiąc daty listy (pytanie: --yes/--no)",
                                       usun});
cli::Register r3("supplement-print", {"supplement-print RODZAJ LISTA [--out PLIK | --pdf PLIK]",
                                      "lista dodatkowej wypłaty miesiąca: kwota, składki, zdrowotna, podatek, netto, "
                                      "do wypłaty, na konto",
                                      drukuj});

}  // namespace
