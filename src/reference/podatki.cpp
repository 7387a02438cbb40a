#include "reference/podatki.h"

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace reference {

namespace {

// The text boxes of the screen in the order of the save command, with their labels.
const core::FieldBox kBoxes[] = {
    {Dane::Stawka1, "txtStawka1", "Stawka 1", "fraStawki"},
    {Dane::Stawka2, "txtStawka2", "Stawka 2", "fraStawki"},
    {Dane::Stawka3, "txtStawka3", "Stawka 3", "fraStawki"},
    {Dane::Stawka4, "txtStawka4", "Stawka 4", "fraStawki"},
    {Dane::ProgI, "txtProgI", "Progi (2561.20)", "fraStawki"},
    {Dane::ProgII, "txtProgII", "Próg II", "fraStawki"},
    {Dane::ProgIII, "txtProgIII", "Próg III", "fraStawki"},
    {Dane::ProgIV, "txtProgIV", "Próg IV", "fraStawki"},
    {Dane::KwotaUlgi, "txtKwotaUlgi", "Kwota ulgi podatkowej", "fraStawki"},
    {Dane::KosztyUzyskania, "txtKosztyUzyskania", "Koszty uzyskania normalne", "fraStawki"},
    {Dane::Ubrent, "txtUbrent", "Stawka Rentowa", "fraZUS"},
    {Dane::sklRentPrd, "txtsklRentPrd", "Stawka Rentowa pracodawcy", "fraZUS"},
    {Dane::Ubemer, "txtUbemer", "Stawka Emerytalna", "fraZUS"},
    {Dane::UbChor, "txtUbChor", "Stawka Chorobowa", "fraZUS"},
    {Dane::UbWypad, "txtUbWypad", "Stawka Wypadkowa", "fraZUS"},
    {Dane::Kasach, "txtKasach", "Stawka Zdrowotna Kasa razem  (np.9)", "fraZUS"},
    {Dane::FuPr, "txtFuPr", "Stawka  na Fundusz Pracy", "fraZUS"},
    {Dane::FGSP, "txtFGSP", "Stawka na Fundusz Gwar.Św.Pr.", "fraZUS"},
    {Dane::StaFEP, "txtStaFEP", "Stawka na FEP", "fraZUS"},
    {Dane::DniPracy, "txtDniPracy", "Ilość dni pracy w mies.", "fraInne"},
    {Dane::ZR, "txtZR", "Kwota zasilku rodzinego  na 1 os.", "fraInne"},
    {Dane::Solid, "txtSolid", "Solidarność", "fraInne"},
    {Dane::SklZWZ, "txtSklZWZ", "Związek Zawodowy", "fraInne"},
    {Dane::ZPielegnacyjny, "txtZPielegnacyjny", "Kwota zasiłku pielęgnacyjnego", "fraInne"},
    {Dane::SklKZP, "txtSklKZP", "Kwota(wsk) potrąceń na KZP", "fraInne"},
    {Dane::SklPZU, "txtSklPZU", "Składka na PZU", "fraInne"},
    {Dane::MInBRUTTO, "txtMInBRUTTO", "Najniższe wynagrodzenie brutto", "fraInne"},
    {Dane::Trzynastka, "txtTrzynastka", "Wskaźnik trzynastki np. 8.5", "fraInne"},
    {Dane::KwotaGRE, "txtKwotaGRE", "Graniczna kwota do składek Emerytanej i Rentowej.", "fraZUS"},
    {Dane::PRKu, "txtPRKu", "Koszty uzyskania zwiekszone", "fraStawki"},
    {Dane::stZDI, "txtstZDI", "Stawka Zdrowotna Indywidualna", "fraZUS"},
    {Dane::KwPodstZDRwlasciciela, "txtKwPodstZDRwlasciciela", "Kwota podstawy zdrowotnej samodzielnie prow.dział.gospod",
     "fraInne"},
    {Dane::KwPodstZUSswiadczSoc, "TxtKwPodstZUSswiadczSoc", "Kwota podstawy składek ZUS dla świadczeń socjalnych",
     "fraInne"},
    {Dane::PodstawaDoKZP, "txtPodstawaDoKZP",
     "Podstawa do skladek KZP np: brutto lub zasadnicza, mbrutto (-chorobowe)   funkcyjny(zasadnicza +funkcyjny)",
     "fraInne", -1, 12},
};

}  // namespace

PodatkiScreen::PodatkiScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPodatki", "Instalacja - Podatki , Stawki ZUS , Wskazniki", core::ReportWords::Linni),
      s(session),
      boxes(*this, kBoxes) {
    Label18.at(0, 0, 3);
    fraStawki.at(1, 0);
    fraZUS.at(1, 1);
    fraInne.at(1, 2);
    Label36.in("fraZUS").label("Kwota składki zdrowotnej indywidualnej");
    Label34.at(2, 0, 3);
    cmdZapisz.at(3, 0);
    CmdZmianaKosztow.at(3, 1);
    cmdKoniec.at(3, 2);
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    CmdZmianaKosztow.Click = [this] { cmdZmianaKosztow(); };
    cmdKoniec.Click = [this] { cmdKoniec_Click(); };
}

// The amounts on the screen go to the pay records of the set (the command of the pay inputs).
void PodatkiScreen::cmdZmianaKosztow() {
    if (!checkNumbers()) return;
    auto liczba = [&](int pole) { return core::Val(core::KropkaZamiastPrzecinka(std::string(txt(pole).Text))); };
    s.stawki.KosztyUzyskania = liczba(Dane::KosztyUzyskania);
    s.stawki.PRKu = static_cast<float>(liczba(Dane::PRKu));
    s.stawki.KwotaUlgi = liczba(Dane::KwotaUlgi);
    s.stawki.Stawka1 = liczba(Dane::Stawka1);
    ui.open("CmdZmianaKosztow", s);
}

void PodatkiScreen::refreshLabel36() {
    double podst = core::Val(core::KropkaZamiastPrzecinka(std::string(txt(Dane::KwPodstZDRwlasciciela).Text)));
    double st = core::Val(core::KropkaZamiastPrzecinka(std::string(txt(Dane::stZDI).Text)));
    Label36.Caption = core::numText(core::Round2(podst * st / 100));
}

void PodatkiScreen::Load() {
    CmdZmianaKosztow.Enabled = ui.canOpen("CmdZmianaKosztow");
    const std::string year = s.rok();
    Label18.Caption = "Stawki obowiazujace na " + year + " rok";
    fs::path file = Dane::path(s);
    if (!core::fileExists(file)) {
        Answer a = ui.msgBox("Brak pliku danych ogólnych w podkatalogu Dane , Założenie zbioru od nowa Tak ?",
                             Buttons::YesNo, Icon::Question, "Brak zbioru Dane !");
        if (a != Answer::Yes) {
            ui.msgBox("Brak Zbioru! ", Buttons::OK, Icon::Exclamation);
            Unload();
            return;
        }
        core::ensureFolder(s.katalog(), {"dane"});
        core::commitFile(file, std::string());
        ui.msgBox("Uzupełnij dane i Zapisz zmiany!", Buttons::OK, Icon::Information, "Wpis pierwszy !");
        return;
    }
    guarded([&] {
        bool found = false;
        core::Record r = Dane::readYear(file, year, &found);
        if (found) boxes.fill(r);
        refreshLabel36();
    });
}

bool PodatkiScreen::checkNumbers() {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        std::string t = core::Trim(core::KropkaZamiastPrzecinka(std::string(boxes.box(i).Text)));
        if (boxes.def(i).field == Dane::PodstawaDoKZP || t.empty() || core::isNumeric(t)) continue;
        ui.msgBox("W polu \"" + std::string(boxes.def(i).label) + "\" wpisano \"" + boxes.box(i).Text +
                      "\" - to nie jest liczba. Popraw wartość; zmian nie zapisano.",
                  Buttons::OK, Icon::Exclamation, "Błędna wartość");
        SetFocus(boxes.box(i));
        return false;
    }
    return true;
}

void PodatkiScreen::take(core::Record& r) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const int field = boxes.def(i).field;
        std::string t = core::KropkaZamiastPrzecinka(boxes.box(i).Text);
        if (r.schema().fields[field - 1].type == core::FieldType::Float)
            r.set(field, static_cast<float>(core::toDoubleOrZero(t, boxes.def(i).control)));
        else
            r.set(field, t);
    }
    r.set(Dane::Rok, s.rok());
}

void PodatkiScreen::cmdZapisz_Click() {
    if (!checkNumbers()) return;
    guarded([&] {
        const std::string year = s.rok();
        fs::path file = Dane::path(s);
        std::vector<core::Record> recs = core::readAll(file, Dane::schema());
        bool found = false;
        for (core::Record& r : recs) {
            if (r.s(Dane::Rok) == year) {
                Label34.Caption = "Zapisane zmiany do " + year + " roku";
                take(r);
                refreshLabel36();
                found = true;
            }
        }
        if (!found) {
            Answer a = ui.msgBox(
                "Brak pliku danych ogólnych w podkatalogu Dane na ten rok , Zostaną założone na w/w danych",
                Buttons::YesNo, Icon::Question, "Brak zbioru Dane na rok " + year);
            if (a != Answer::Yes) return;
            Label34.Caption = "Dopisano w/w dane do " + year + " roku";
            core::Record r(Dane::schema());
            r.setEmpty(Dane::Rezerwa28);
            take(r);
            recs.push_back(std::move(r));
            refreshLabel36();
        }
        core::writeAll(file, recs, "TYMCZ.dta");
        loadRates(s);
    });
}

ObslugaScreen::ObslugaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmObsługa", "Administrator"), s(session) {
    txtAdministrator1.at(0, 0).label("Imię i nazwisko administratora").width(30);
    txtAdministrator2.at(1, 0).label("Stanowisko").width(30);
    lbAdministrator.at(2, 0, 2);
    cmdZapisz.at(3, 0);
    cmdKoniec.at(3, 1);
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void ObslugaScreen::Load() {
    core::Record r = Dane::readYear(Dane::path(s), s.rok());
    txtAdministrator1.Text = r.s(Dane::Administrator1);
    txtAdministrator2.Text = r.s(Dane::Administrator2);
    lbAdministrator.Caption = administrator(r);
}

void ObslugaScreen::cmdZapisz_Click() {
    guarded([&] {
        const std::string year = s.rok();
        fs::path file = Dane::path(s);
        std::vector<core::Record> recs = core::readAll(file, Dane::schema());
        for (core::Record& r : recs) {
            if (r.s(Dane::Rok) != year) continue;
            r.set(Dane::Administrator1, txtAdministrator1.Text);
            r.set(Dane::Administrator2, txtAdministrator2.Text);
            lbAdministrator.Caption = administrator(r);
        }
        core::writeAll(file, recs, "tymczd.dta");
        loadRates(s);
    });
}

}  // namespace reference
