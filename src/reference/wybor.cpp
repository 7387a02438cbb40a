#include "reference/wybor.h"

#include "core/paths.h"
#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/payers.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;

namespace reference {

const char* const kWybierzListe = "Wybierz jedną z list ";

WyborScreen::WyborScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmwybor", "Wybór listy płac"), s(session) {
    lbPlatnik.at(0, 0, 2);
    lbNaglowek.at(1, 0, 2);
    lbNaglowek.Mono = true;
    lbNaglowek.Caption = core::PadRight("Nazwa listy", 34) + core::PadRight("Skrót", 10) + "Gr. Zestaw";
    CmbWybierz.at(2, 0, 2);
    CmbWybierz.Mono = true;
    CmbWybierz.ToolTipText = "Lista płac, z którą chcesz pracować";
    lbUwaga.at(3, 0, 2);
    lbUwaga.Visible = false;
    CmdWybierz.at(4, 0);
    cmdKoniec.at(4, 1);
    CmdWybierz.Click = [this] { CmdWybierz_Click(); };
    CmbWybierz.DblClick = [this] { CmdWybierz_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void WyborScreen::Load() {
    lbPlatnik.Caption = "Płatnik: " + s.SkrotPlatnika;
    if (s.Firma.valid() && s.Firma.s(Firma::SkrotPlatnika) == s.SkrotPlatnika)
        lbPlatnik.Caption += "  -  " + s.Firma.s(Firma::NazwaM);
    CmbWybierz.Clear();
    CmbWybierz.Text = kWybierzListe;
    std::vector<core::Record> lines;
    try {
        lines = Instal::read(s);
    } catch (const core::Error& e) {
        if (e.Number != core::err::PathNotFound) throw;
        brakPlatnika(ui);
        return;
    }
    for (const auto& l : lines) CmbWybierz.AddItem(displayLine(l));
    lbUwaga.Visible = lines.empty();
    lbUwaga.Caption = "Płatnik nie ma jeszcze list płac - dodaj je w menu Instalacyjne > Instalacja list płac.";
}

bool WyborScreen::CmdWybierz_Click() {
    // 1.
    std::string text = CmbWybierz.ListIndex >= 0 ? CmbWybierz.selectedText() : CmbWybierz.Text;
    if (text == kWybierzListe || text.empty()) {
        ui.msgBox("Nie wybrana lista pracowników !!", Buttons::OK, Icon::Exclamation, "Wybierz liste!");
        SetFocus(CmbWybierz);
        return false;
    }
    // 2.
    ListaWybrana w = parseDisplayLine(text);
    s.NazwaListy = w.title;
    s.NazwaZbioru = w.stem;
    s.Grupa = w.group;
    try {
        // 3.
        s.SciezkaBazy = s.payerPath({"bazy", s.NazwaZbioru + ".dta"});
        // 4. The first line of that stem: two lists of one stem share its files.
        std::vector<core::Record> lines = Instal::read(s);
        int i = Instal::findByStem(lines, s.NazwaZbioru);
        s.NumerListy = i >= 0 ? lines[static_cast<std::size_t>(i)].s(Instal::NumerListy) : std::string();
        s.Rezerwa4 = i >= 0 ? lines[static_cast<std::size_t>(i)].s(Instal::Rezerwa4) : std::string();
        // 5. The personnel file is opened for appending: its folder must be there, a list
        // without people yet gets an empty file.
        s.SciezkaOsob = s.payerPath({"person", s.NazwaZbioru + ".per"});
        std::error_code ec;
        if (!fs::is_directory(s.SciezkaOsob.parent_path(), ec))
            throw core::Error(core::err::PathNotFound, s.SciezkaOsob.string(),
                              "brak folderu " + s.SciezkaOsob.parent_path().string());
        if (!core::fileExists(s.SciezkaOsob)) core::commitFile(s.SciezkaOsob, std::string());
    } catch (const core::Error& e) {
        if (e.Number != core::err::PathNotFound) throw;
        brakPlatnika(ui);
        return false;
    }
    // 6.
    if (ui.canOpen("frmlista")) {
        ui.open("frmlista", s);
    } else {
        ui.msgBox("Wybrano listę \"" + core::RTrim(s.NazwaListy) + "\" (pliki " + s.NazwaZbioru +
                      "). Ekran listy pracowników nie jest jeszcze dostępny w tej wersji programu.",
                  Buttons::OK, Icon::Information, "Lista pracowników");
    }
    Unload();
    return true;
}

}  // namespace reference
