#include "reference/instalacja.h"

#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/payers.h"

using core::Answer;
using core::Buttons;
using core::Icon;

namespace reference {

namespace {
const char* const kTytulBledu = "Błędne dane listy";
}

InstalacjaScreen::InstalacjaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmInstalacja", "Instalacja list płac"), s(session) {
    lbPlatnik.at(0, 0, 3);
    lbNaglowek.at(1, 0, 3);
    lbNaglowek.Mono = true;
    lbNaglowek.Caption = core::PadRight("Nazwa listy", 34) + core::PadRight("Skrót", 10) + "Gr. Zestaw";
    lstListaI.at(2, 0, 3);
    lstListaI.Mono = true;
    lstListaI.ToolTipText = "Kliknij listę, aby zobaczyć jej dane";
    fraLista.at(3, 0, 3);
    txtNazwaListy1.in("fraLista").at(0, 0).label("Nazwa listy").width(33);
    txtNazwaListy1.ToolTipText = "Nazwa listy płac, do 33 znaków";
    txtSkrotlisty1.in("fraLista").at(1, 0).label("Skrót listy (nazwa plików)").width(8);
    txtSkrotlisty1.ToolTipText = "Nazwa plików listy (bazy\\<skrót>.dta, person\\<skrót>.per), do 8 znaków, bez spacji";
    txtGrupa1.in("fraLista").at(2, 0).label("Grupa").width(1);
    txtGrupa1.ToolTipText = "Nauczyciele =n , administracja =a , produkcja =p , umowy zlecenia =u";
    txtZestaw.in("fraLista").at(3, 0).label("Okreslenie zestawu przyporzadkowuje dana liste do  zbiorówek").width(1);
    txtZestaw.ToolTipText = "Litera zestawu, np. A lub B";
    txtZestaw.Field = Instal::ZestawListy;
    lbTryb.at(4, 0, 3);
    cmdDodajliste.at(5, 0);
    cmdaktual.at(5, 1);
    cmdZapisz.at(5, 2);
    cmdUsu.at(6, 0);
    cmdKoniec.at(6, 2);

    lstListaI.Click = [this] { lstListaI_Click(); };
    cmdDodajliste.Click = [this] { cmdDodajliste_Click(); };
    cmdaktual.Click = [this] { cmdaktual_Click(); };
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    cmdUsu.Click = [this] { cmdUsu_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void InstalacjaScreen::setTryb(int tryb) {
    Tryb = tryb;
    cmdZapisz.Enabled = tryb != 0;
    lbTryb.Caption = tryb == 1   ? "Nowa lista: wpisz jej dane i naciśnij Zapisz."
                     : tryb == 2 ? "Zmiana wybranej listy: popraw jej dane i naciśnij Zapisz."
                                 : "Wybierz listę, aby ją zmienić lub usunąć, albo dodaj nową.";
}

void InstalacjaScreen::fillList(int select) {
    lstListaI.Clear();
    for (const auto& l : Instal::read(s)) lstListaI.AddItem(displayLine(l));
    if (select >= 0 && select < static_cast<int>(lstListaI.List.size())) lstListaI.ListIndex = select;
}

void InstalacjaScreen::Load() {
    lbPlatnik.Caption = "Listy płac Płatnika: " + s.SkrotPlatnika;
    setTryb(0);
    try {
        fillList(-1);
    } catch (const core::Error& e) {
        if (e.Number != core::err::PathNotFound) throw;
        brakPlatnika(ui);
        cmdDodajliste.Enabled = cmdaktual.Enabled = cmdUsu.Enabled = false;
    }
}

void InstalacjaScreen::lstListaI_Click() {
    if (lstListaI.ListIndex < 0) return;
    auto lines = Instal::read(s);
    if (lstListaI.ListIndex >= static_cast<int>(lines.size())) return;
    const core::Record& l = lines[static_cast<std::size_t>(lstListaI.ListIndex)];
    txtNazwaListy1.Text = core::RTrim(l.s(Instal::NazwaListy));
    txtSkrotlisty1.Text = Instal::stem(l);
    txtGrupa1.Text = core::RTrim(l.s(Instal::Grupa));
    txtZestaw.Text = core::RTrim(l.s(Instal::ZestawListy));
    s.Rezerwa4 = l.s(Instal::Rezerwa4);
    if (Tryb == 1) setTryb(0);
}

void InstalacjaScreen::cmdDodajliste_Click() {
    lstListaI.ListIndex = -1;
    txtNazwaListy1.Text.clear();
    txtSkrotlisty1.Text.clear();
    txtGrupa1.Text.clear();
    txtZestaw.Text.clear();
    setTryb(1);
    SetFocus(txtNazwaListy1);
}

void InstalacjaScreen::cmdaktual_Click() {
    if (lstListaI.ListIndex < 0) {
        ui.msgBox("Najpierw wybierz z listy listę płac, którą chcesz zmienić.", Buttons::OK, Icon::Exclamation,
                  "Zmiana listy");
        return;
    }
    setTryb(2);
    SetFocus(txtNazwaListy1);
}

bool InstalacjaScreen::check() {
    auto refuse = [&](const std::string& text, core::Control& c) {
        ui.msgBox(text, Buttons::OK, Icon::Exclamation, kTytulBledu);
        SetFocus(c);
        return false;
    };
    if (core::Trim(txtNazwaListy1.Text).empty()) return refuse("Podaj nazwę listy płac.", txtNazwaListy1);
    std::string why = badListStem(txtSkrotlisty1.Text);
    if (!why.empty()) return refuse(why + " Zmian nie zapisano.", txtSkrotlisty1);
    return true;
}

void InstalacjaScreen::cmdZapisz_Click() {
    if (Tryb == 0) return;
    if (Tryb == 2 && lstListaI.ListIndex < 0) {
        ui.msgBox("Najpierw wybierz z listy listę płac, którą chcesz zmienić.", Buttons::OK, Icon::Exclamation,
                  "Zmiana listy");
        return;
    }
    if (!check()) return;
    // The line is made before the question, so that what the file cannot hold is said first.
    guarded([&] {
        auto lines = Instal::read(s);
        int saved;
        if (Tryb == 1) {
            lines.push_back(Instal::newLine(txtNazwaListy1.Text, txtSkrotlisty1.Text, txtGrupa1.Text, txtZestaw.Text,
                                            std::to_string(lines.size() + 1), s.Rezerwa4));
            saved = static_cast<int>(lines.size()) - 1;
        } else {
            saved = lstListaI.ListIndex;
            if (saved >= static_cast<int>(lines.size()))
                throw core::Error(core::err::SubscriptOutOfRange, "instal.dat, linia " + std::to_string(saved + 1),
                                  "wybranej listy nie ma już w pliku");
            core::Record& l = lines[static_cast<std::size_t>(saved)];
            Instal::setFields(l, txtNazwaListy1.Text, txtSkrotlisty1.Text, txtGrupa1.Text, txtZestaw.Text);
            l.set(Instal::Rezerwa4, s.Rezerwa4);
        }
        if (ui.msgBox("Czy chcesz zapisac nowe dane ?", Buttons::YesNo, Icon::Question,
                      "Dodaje nową liste do systemu !") != Answer::Yes)
            return;
        Instal::write(s, lines);
        fillList(saved);
        lstListaI_Click();
        setTryb(0);
    });
}

void InstalacjaScreen::cmdUsu_Click() {
    if (lstListaI.ListIndex < 0) {
        ui.msgBox("Najpierw wybierz z listy listę płac, którą chcesz usunąć.", Buttons::OK, Icon::Exclamation,
                  "Usuwanie listy");
        return;
    }
    if (ui.msgBox("Czy napewno chcesz usunąc wybrana listę ?", Buttons::YesNo, Icon::Question,
                  "Usuwa wybraną listę z systemu !") != Answer::Yes)
        return;
    auto lines = Instal::read(s);
    int i = lstListaI.ListIndex;
    if (i < static_cast<int>(lines.size())) lines.erase(lines.begin() + i);
    Instal::write(s, lines);
    fillList(-1);
    txtNazwaListy1.Text.clear();
    txtSkrotlisty1.Text.clear();
    txtGrupa1.Text.clear();
    txtZestaw.Text.clear();
    setTryb(0);
}

}  // namespace reference
