#include "personnel/kadry.h"

#include "core/paths.h"
#include "core/text.h"
#include "personnel/kadry_record.h"
#include "personnel/person_record.h"
#include "personnel/wybierz_osobe.h"
#include "reference/catalogue.h"

using core::Buttons;
using core::Icon;

namespace personnel {

namespace {
const char* const kTytul = "Dane kadrowe";
}

KadryScreen::KadryScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmKadryII", "Dane kadrowe"), s(session) {
    cboOsoba.at(0, 0, 2).label("Pracownik:").width(80);
    cboOsoba.Mono = true;
    lbOsoba.at(1, 0, 2);
    txtZatrudnionyOd.at(2, 0).label("Zatrudniony od (dd-mm-rrrr):").width(12);
    txtZatrudnionyDo.at(3, 0).label("Zatrudniony do (dd-mm-rrrr):").width(12);
    fraUmowa.at(4, 0, 2);
    optOkreslony.in("fraUmowa").at(0, 0);
    optNieokreslony.in("fraUmowa").at(0, 1);
    txtStanowisko.at(5, 0, 2).label("Stanowisko:").width(50);
    fraPlec.at(6, 0, 2);
    optKobieta.in("fraPlec").at(0, 0);
    optMezczyzna.in("fraPlec").at(0, 1);
    cmdZapisz.at(7, 0);
    cmdKoniec.at(7, 1);
    cboOsoba.Click = [this] { cboOsoba_Click(); };
    optOkreslony.Click = [this] { setOption(optOkreslony); };
    optNieokreslony.Click = [this] {
        setOption(optNieokreslony);
        txtZatrudnionyDo.Text.clear();
    };
    optKobieta.Click = [this] { setOption(optKobieta); };
    optMezczyzna.Click = [this] { setOption(optMezczyzna); };
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void KadryScreen::Load() {
    guarded([&] {
        int numer = 0;
        for (const core::Record& linia : reference::Instal::read(s)) {
            const std::string lista = reference::Instal::stem(linia);
            if (lista.empty()) continue;
            const std::filesystem::path plik = Osoba::pathOf(s, lista);
            if (!core::fileExists(plik)) continue;
            const std::string nazwa = core::RTrim(linia.s(reference::Instal::NazwaListy));
            for (const core::Record& o : Osoba::readAll(plik)) {
                cboOsoba.AddItem(wierszOsoby(++numer, o, lista, nazwa));
                if (kluczOsoby(o) == s.KluczOsoby && lista == s.NazwaZbioru && cboOsoba.ListIndex < 0)
                    cboOsoba.ListIndex = numer - 1;
            }
        }
    });
    if (cboOsoba.ListIndex >= 0) cboOsoba_Click();
    else pokaz();
}

void KadryScreen::cboOsoba_Click() {
    const std::string wiersz = cboOsoba.selectedText();
    if (wiersz.empty()) return;
    const OsobaWybrana o = czytajWierszOsoby(wiersz);
    s.NazwiskoOsoby = o.nazwisko;
    s.ImieOsoby = o.imie;
    s.KluczOsoby = o.pesel;
    s.KodUbezpieczeniaOsoby = o.kod;
    s.NazwaZbioru = o.lista;
    s.SciezkaOsob = Osoba::pathOf(s, o.lista);
    pokaz();
}

void KadryScreen::pokaz() {
    const bool wybrana = !s.KluczOsoby.empty() && !s.NazwaZbioru.empty() && cboOsoba.ListIndex >= 0;
    for (core::Control* c : {&txtZatrudnionyOd, &txtZatrudnionyDo, &optOkreslony, &optNieokreslony, &txtStanowisko,
                             &optKobieta, &optMezczyzna, &cmdZapisz})
        c->Enabled = wybrana;
    if (!wybrana) {
        lbOsoba.Caption = "Wybierz pracownika z listy.";
        return;
    }
    lbOsoba.Caption = s.NazwiskoOsoby + " " + s.ImieOsoby + "  (" + s.KluczOsoby + ")  lista " + s.NazwaZbioru;
    guarded([&] {
        std::optional<core::Record> r = Kadry::znajdz(Kadry::pathOf(s, s.NazwaZbioru), s.KluczOsoby);
        if (!r) {
            // A new record starts from the date of hire of the personnel file.
            txtZatrudnionyOd.Text.clear();
            if (auto o = znajdzOsobe(Osoba::readAll(Osoba::pathOf(s, s.NazwaZbioru)), s.KluczOsoby))
                txtZatrudnionyOd.Text = dataZatrudnienia(o->s(Osoba::DataZatrudnienia));
            txtZatrudnionyDo.Text.clear();
            txtStanowisko.Text.clear();
            setOption(optNieokreslony);
            optKobieta.Value = optMezczyzna.Value = 0;
            return;
        }
        txtZatrudnionyOd.Text = r->s(Kadry::ZatrudnionyOd);
        txtZatrudnionyDo.Text = r->s(Kadry::ZatrudnionyDo);
        setOption(r->s(Kadry::RodzajUmowy) == Kadry::kNaCzasOkreslony ? optOkreslony : optNieokreslony);
        txtStanowisko.Text = r->s(Kadry::Stanowisko);
        optKobieta.Value = r->s(Kadry::Plec) == "K";
        optMezczyzna.Value = r->s(Kadry::Plec) == "M";
    });
}

void KadryScreen::cmdZapisz_Click() {
    if (cboOsoba.ListIndex < 0) {
        ui.msgBox("Wybierz pracownika z listy.", Buttons::OK, Icon::Exclamation, kTytul);
        return;
    }
    core::Record r(Kadry::schema());
    r.set(Kadry::Klucz, s.KluczOsoby);
    r.set(Kadry::ZatrudnionyOd, core::Trim(txtZatrudnionyOd.Text));
    r.set(Kadry::ZatrudnionyDo, core::Trim(txtZatrudnionyDo.Text));
    r.set(Kadry::RodzajUmowy, optOkreslony.Value ? Kadry::kNaCzasOkreslony : Kadry::kNaCzasNieokreslony);
    r.set(Kadry::Stanowisko, core::Trim(txtStanowisko.Text));
    r.set(Kadry::Plec, optKobieta.Value ? "K" : optMezczyzna.Value ? "M" : "");
    if (std::string b = Kadry::bledneDane(r); !b.empty()) {
        ui.msgBox(b + " Danych nie zapisano.", Buttons::OK, Icon::Exclamation, kTytul);
        return;
    }
    guarded([&] {
        Kadry::zapisz(Kadry::pathOf(s, s.NazwaZbioru), r);
        ui.msgBox("Zapisano dane kadrowe: " + s.NazwiskoOsoby + " " + s.ImieOsoby + ".", Buttons::OK, Icon::Information,
                  kTytul);
    });
}

}  // namespace personnel
