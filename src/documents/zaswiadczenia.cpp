#include "documents/zaswiadczenia.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"
#include "personnel/kadry_record.h"
#include "reference/payers.h"

using core::Buttons;
using core::Icon;
namespace Kd = personnel::Kadry;

namespace documents {

namespace {
const char* const kKolumny[] = {"Miesiąc", "Brutto", "Skł.ZUS", "SkłFOZ", "Podatek", "Netto", "KosztyUz", "UlgaPoda"};
std::string kw(double v) { return core::Format(v, "0.00"); }

std::optional<core::Record> kadry(const core::Session& s) {
    std::optional<core::Record> r = Kd::znajdz(Kd::pathOf(s, s.NazwaZbioru), s.KluczOsoby);
    if (r && core::Trim(r->s(Kd::ZatrudnionyOd)).empty()) return std::nullopt;
    return r;
}
}  // namespace

ZaswiadczeniaScreen::ZaswiadczeniaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmZaswiadczenia", "Zaświadczenia o dochodach i kosztach płacowych dla "), s(session) {
    lbUwaga.at(0, 0, 6);
    txtODData.at(1, 0).label("Od (mmRR):").width(6);
    txtDoData.at(1, 2).label("Do (mmRR):").width(6);
    txtObciazeniaSadowe.at(1, 4).label("Obciążenia sądowe").width(10);
    Frame1.at(2, 0, 6);
    chkUrlopowe.in("Frame1").at(0, 0);
    chkjubileusze.in("Frame1").at(0, 1);
    chkTrzynastka.in("Frame1").at(0, 2);
    lbBrutto.at(3, 0, 6);
    MSFlexGrid1.at(4, 0, 6).width(90);
    lbRazem.at(5, 0, 6);
    txtRazemBrutto.at(6, 0).label("Brutto").width(11);
    txtRazemSkladkiZUS.at(6, 2).label("Składki ZUS").width(11);
    txtRazemNFZ.at(6, 4).label("Składka zdrowotna").width(11);
    txtRazemZaliczka.at(7, 0).label("Podatek").width(11);
    txtRazemNetto.at(7, 2).label("Netto").width(11);
    txtRazemKosztyU.at(7, 4).label("Koszty uzyskania").width(11);
    txtRazemUlga.at(8, 0).label("Ulga podatkowa").width(11);
    for (core::Control* c : {&txtRazemBrutto, &txtRazemSkladkiZUS, &txtRazemNFZ, &txtRazemZaliczka, &txtRazemNetto,
                             &txtRazemKosztyU, &txtRazemUlga})
        c->Locked = true;
    cmdPobierzDane.at(9, 0, 2);
    cmdUstalonyOkres.at(9, 2, 2);
    CmdKoniec.at(9, 4, 2);
    MSFlexGrid1.setGrid(1, 8);
    for (int c = 0; c < 8; ++c) MSFlexGrid1.TextMatrix(0, c) = kKolumny[c];
    cmdPobierzDane.Click = [this] { cmdPobierzDane_Click(); };
    cmdUstalonyOkres.Click = [this] { cmdUstalonyOkres_Click(); };
    CmdKoniec.Click = [this] { Unload(); };
}

void ZaswiadczeniaScreen::Load() {
    Caption = "Zaświadczenia o dochodach i kosztach płacowych dla " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    const std::string mmRR = core::Mid(s.DataListy, 4, 2) + core::Right(s.DataListy, 2);
    txtODData.Text = mmRR;
    txtDoData.Text = mmRR;
}

bool ZaswiadczeniaScreen::cmdPobierzDane_Click() {
    bool gotowe = false;
    guarded([&] {
        // 1.
        if (!kadry(s)) {
            ui.msgBox(kBrakOkresu, Buttons::OK, Icon::Exclamation, kBrakOkresuTytul);
            return;
        }
        // 2.
        if (core::Len(core::Trim(txtODData.Text)) != 4 || core::Len(core::Trim(txtDoData.Text)) != 4) {
            if (ui.msgBox("Podaj date w formacie dd-mm-RRRR ", Buttons::YesNo, Icon::Question, "Zle wpisana data!") ==
                core::Answer::Yes)
                return;
        }
        // 3. - 9.
        Wlaczone w;
        w.urlopowe = chkUrlopowe.Value == 1;
        w.jubileusze = chkjubileusze.Value == 1;
        w.trzynastka = chkTrzynastka.Value == 1;
        sumy = pobierzDane(s, s.NazwaZbioru, s.KluczOsoby, txtODData.Text, txtDoData.Text, w);
        MSFlexGrid1.setGrid(static_cast<int>(sumy->wiersze.size()) + 1, 8);
        for (int c = 0; c < 8; ++c) MSFlexGrid1.TextMatrix(0, c) = kKolumny[c];
        int r = 0;
        for (const Wiersz& x : sumy->wiersze)
            MSFlexGrid1.Cells[static_cast<std::size_t>(++r)] = {x.miesiac,   kw(x.brutto),  kw(x.zus),    kw(x.nfz),
                                                                kw(x.podatek), kw(x.netto()), kw(x.koszty), kw(x.ulga)};
        txtRazemBrutto.Text = kw(sumy->brutto);
        txtRazemSkladkiZUS.Text = kw(sumy->zus);
        txtRazemNFZ.Text = kw(sumy->nfz);
        txtRazemZaliczka.Text = kw(sumy->zaliczka);
        txtRazemNetto.Text = kw(sumy->netto);
        txtRazemKosztyU.Text = kw(sumy->koszty);
        txtRazemUlga.Text = kw(sumy->ulga);
        gotowe = true;
    });
    return gotowe;
}

bool drukujDlaOsoby(core::Session& s, core::Dialogs& ui, const Sumy& sumy, const std::string& od,
                    const std::string& doOkresu, const std::string& cel, double obciazenia,
                    const std::string& dataWydania) {
    std::optional<core::Record> k = kadry(s);
    if (!k) {
        ui.msgBox(kBrakDanychKadr, Buttons::OK, Icon::Exclamation);
        return false;
    }
    DaneZaswiadczenia d;
    d.nazwisko = s.NazwiskoOsoby + " " + s.ImieOsoby;
    d.pesel = s.KluczOsoby;
    d.kobieta = personnel::kobieta(s.KluczOsoby, k);
    d.kadry = *k;
    d.od = core::Trim(od);
    d.doOkresu = core::Trim(doOkresu);
    d.cel = cel;
    d.obciazenia = obciazenia;
    d.dataWydania = dataWydania;
    if (s.Firma.valid()) {
        d.platnik = core::RTrim(s.Firma.s(reference::Firma::NazwaM));
        d.miejscowosc = core::RTrim(s.Firma.s(reference::Firma::MiejscM));
    }
    try {
        core::Printer& p = ui.printer();
        if (int st = p.status(); st != 0) throw core::Error(st, "drukarka");
        drukujZaswiadczenie(p, sumy, d);
    } catch (const core::Error& e) {
        ui.msgBox(core::errorReport(e), Buttons::OK, Icon::Exclamation);
        return false;
    }
    return true;
}

void ZaswiadczeniaScreen::cmdUstalonyOkres_Click() {
    guarded([&] {
        if (!sumy && !cmdPobierzDane_Click()) return;
        std::optional<std::string> cel = ui.inputBox(kCelPytanie, kCelTytul, kCelPropozycja);
        if (!cel || cel->empty()) cel = kCelPusty;
        const double obciazenia = core::Val(core::KropkaZamiastPrzecinka(std::string(txtObciazeniaSadowe.Text)));
        drukujDlaOsoby(s, ui, *sumy, txtODData.Text, txtDoData.Text, *cel, obciazenia,
                       core::FormatDate(core::today(), "dd-mm-yyyy"));
    });
}

}  // namespace documents
