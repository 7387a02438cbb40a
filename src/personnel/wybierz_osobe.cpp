#include "personnel/wybierz_osobe.h"

#include <filesystem>

#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "reference/catalogue.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;

namespace personnel {

namespace {
const char* const kEkranZaswiadczen = "frmZaswiadczenia";
}

std::string wierszOsoby(int numer, const core::Record& o, const std::string& lista, const std::string& nazwaListy) {
    return core::PadLeft(std::to_string(numer), 3) + " " + core::PadRight(o.s(Osoba::Nazwisko), 25) + " " +
           core::PadRight(o.s(Osoba::Imie), 20) + core::PadRight(kluczOsoby(o), 11) + " " +
           core::PadRight(o.s(Osoba::KodUbezpieczenia), 6) + core::PadRight(lista, 8) + "." + nazwaListy;
}

OsobaWybrana czytajWierszOsoby(const std::string& w) {
    OsobaWybrana o;
    o.nazwisko = core::RTrim(core::Mid(w, 5, 25));
    o.imie = core::RTrim(core::Mid(w, 31, 20));
    o.pesel = core::RTrim(core::Mid(w, 51, 11));
    o.kod = core::RTrim(core::Mid(w, 63, 6));
    o.lista = core::RTrim(core::Mid(w, 69, 8));
    return o;
}

WybierzOsobeScreen::WybierzOsobeScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmWybierzOsobę", "Wybierz Osobę z listy "), s(session) {
    lbUwaga.at(0, 0, 2);
    lbNaglowek.at(1, 0, 2);
    lbNaglowek.Mono = true;
    lbNaglowek.Caption = core::PadRight("Nr  Nazwisko", 30) + core::PadRight("Imię", 20) + core::PadRight("Pesel/Dok.", 12) +
                         core::PadRight("Kod", 6) + "Lista";
    lstListaOsob.at(2, 0, 2).width(100);
    lstListaOsob.Mono = true;
    lbWybrana.at(3, 0, 2);
    CmdWybierz.at(4, 0);
    cmdKoniec.at(4, 1);
    lstListaOsob.Click = [this] { lstListaOsob_Click(); };
    lstListaOsob.DblClick = [this] { CmdWybierz_Click(); };
    CmdWybierz.Click = [this] { CmdWybierz_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void WybierzOsobeScreen::Load() {
    CmdWybierz.Enabled = ui.canOpen(kEkranZaswiadczen);
    CmdWybierz.ToolTipText = CmdWybierz.Enabled ? "" : "Zaświadczenia o zarobkach nie są dostępne w tej wersji programu.";
    lstListaOsob.Clear();
    guarded([&] {
        int numer = 0;
        for (const core::Record& linia : reference::Instal::read(s)) {
            const std::string lista = reference::Instal::stem(linia);
            if (lista.empty()) continue;
            const fs::path plik = Osoba::pathOf(s, lista);
            if (!core::fileExists(plik)) continue;
            const std::string nazwa = core::RTrim(linia.s(reference::Instal::NazwaListy));
            for (const core::Record& o : Osoba::readAll(plik)) lstListaOsob.AddItem(wierszOsoby(++numer, o, lista, nazwa));
        }
    });
}

void WybierzOsobeScreen::lstListaOsob_Click() {
    const std::string wiersz = lstListaOsob.selectedText();
    if (wiersz.empty()) return;
    OsobaWybrana o = czytajWierszOsoby(wiersz);
    s.NazwiskoOsoby = o.nazwisko;
    s.ImieOsoby = o.imie;
    s.KluczOsoby = o.pesel;
    s.KodUbezpieczeniaOsoby = o.kod;
    s.NazwaZbioru = o.lista;
    std::size_t kropka = core::InStr(wiersz, ".", 77);
    s.NazwaListy = kropka ? core::Mid(wiersz, kropka + 1) : std::string();
    s.SciezkaOsob = Osoba::pathOf(s, o.lista);
    s.SciezkaBazy = s.payerPath({"bazy", o.lista + ".dta"});
    s.Osoba = core::EkranOsoby{};
    lbWybrana.Caption = o.nazwisko + " " + o.imie + "  (" + o.pesel + ")  lista " + o.lista;
}

void WybierzOsobeScreen::CmdWybierz_Click() {
    if (lstListaOsob.selectedText().empty()) {
        ui.msgBox("Wybierz osobę z listy.", Buttons::OK, Icon::Exclamation, "Wybierz Osobę z listy ");
        return;
    }
    lstListaOsob_Click();
    ui.open(kEkranZaswiadczen, s);
}

}  // namespace personnel
