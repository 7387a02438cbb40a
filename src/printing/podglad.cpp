#include "printing/podglad.h"

#include "core/printer.h"
#include "core/text.h"
#include "printing/lista_plac.h"
#include "printing/specyfikacja.h"

namespace printing {

const char* const PodgladWydrukuScreen::kNowaStrona = "  - - - - - - - - - - - - - - - nowa strona - - - - - - - - - - - - - - -";

PodgladWydrukuScreen::PodgladWydrukuScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPodgladWydruku", "Podgląd listy płac"), s(session) {
    lbLista.at(0, 0, 3);
    ProgressBar1.at(1, 0, 3);
    ProgressBar1.Visible = false;
    lstPodglad.at(2, 0, 3);
    lstPodglad.Mono = true;
    lstPodglad.Width = 136;
    lstPodglad.MultiLine = true;
    lstPodglad.ToolTipText = "Lista płac miesiąca z kartoteki, tak jak zostanie wydrukowana";
    cmdDrukuj.at(3, 0);
    cmdDrukuj.ToolTipText = "Drukuje listę płac z kartoteki (jak \"Druk listy płac\")";
    CmdSpecyfikacja.at(3, 1);
    CmdSpecyfikacja.ToolTipText = "Liczy banknoty i bilon do wypłaty gotówką z tej listy";
    cmdKoniec.at(3, 2);
    cmdDrukuj.Click = [this] { cmdDrukListy(s, this->ui); };
    CmdSpecyfikacja.Click = [this] { printing::CmdSpecyfikacja(s, this->ui); };
    cmdKoniec.Click = [this] { Unload(); };
}

void PodgladWydrukuScreen::Load() {
    Caption = "Podgląd listy płac " + core::RTrim(s.NazwaListy);
    lbLista.Caption = "Lista " + core::RTrim(s.NazwaListy) + " (" + s.NazwaZbioru + "), nr " + s.NumerListy +
                      ", za miesiąc " + s.miesiac() + "-" + s.rok() + ", kartoteka " + s.NazwaZbioru + s.RRmm() + ".dta";
    // The list is laid out as the print lays it, on paper of its own: the session's page
    // counter, mode and kind word stay as they were.
    const int strona = s.Strona, tryb = s.TrybDruku;
    const std::string rodzaj = s.RodzajListy;
    s.Strona = 1;
    s.TrybDruku = 0;
    s.RodzajListy = " płac ";
    // The lines are gathered as they are printed and shown in the list box at the end.
    struct Wiersze : core::PageSink {
        void beginPage() override {
            if (!pierwsza) lista.emplace_back(kNowaStrona);
            pierwsza = false;
        }
        void line(const core::PrintLine& l) override { lista.push_back(l.text); }
        std::vector<std::string> lista;
        bool pierwsza = true;
    } doListy;
    core::StreamPrinter papier(&doListy);
    DrukListy d(s, ui, papier);
    d.postep = [this](int value, int max) {
        ProgressBar1.Min = 1;
        ProgressBar1.Max = max;
        ProgressBar1.Value = value;
        DoEvents();
    };
    ProgressBar1.Visible = true;
    bool ok = false;
    try {
        d.modDrukujPoczatek();
        ok = d.modDrukujListe(false);
    } catch (...) {
        s.Strona = strona;
        s.TrybDruku = tryb;
        s.RodzajListy = rodzaj;
        ProgressBar1.Visible = false;
        throw;
    }
    s.Strona = strona;
    s.TrybDruku = tryb;
    s.RodzajListy = rodzaj;
    ProgressBar1.Visible = false;
    if (!ok) {
        Unload();
        return;
    }
    papier.finish();
    lstPodglad.Clear();
    lstPodglad.List = std::move(doListy.lista);
}

}  // namespace printing
