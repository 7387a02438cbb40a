#include "payinputs/potracenia.h"

#include <system_error>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "payinputs/pay_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace payinputs {

namespace {

// The text boxes in the order the save command takes them, with their labels and places.
const core::FieldBox kBoxes[] = {
    {Pay::ZFMRata, "txtZFMRata", "Rata miesięczna", "frmZFM", 1},
    {Pay::ZFMPozyczka, "txtZFMPozyczka", "Kwota pożyczki", "frmZFM", 0},
    {Pay::KZPWklady, "txtKZPWklady", "Wysokość wkładów", "frmKZP", 0},
    {Pay::KZPpozyczka, "txtKZPpozyczka", "Kwota pożyczki", "frmKZP", 1},
    {Pay::KZPRata, "txtKZPRata", "Rata miesięczna", "frmKZP", 2},
    {Pay::KZPSkladka, "txtKZPSkladka", "Składka miesięczna K^%", "frmKZP", 3},
    {Pay::Potracenie1, "txtPotracenie1", "Potrącenie 1", "fraInne", 0},
    {Pay::Potracenie2, "txtPotracenie2", "Potrącenie 2", "fraInne", 1},
    {Pay::Zwiazek, "txtZwiazek", "Branżowy  K ^ %", "fraZwiazki", 0},
    {Pay::Solidarnosc, "txtSolidarnosc", "Solidarność K ^ %", "fraZwiazki", 1},
    {Pay::PZU, "txtPZU", "PZU", "fraInne", 3},
    {Pay::POTRInne, "txtPOTRInne", "Potrącenia inne", "fraInne", 4},
    {Pay::PotraceniaPoZasilkach, "txtPotraceniaPoZasilkach", "Potrącenia 3 po Zasiłkach", "fraInne", 2},
};

// The pay components entering the base: P6 to P20 and the housing allowance.
const int kSkladnikiPodstawy[] = {
    Pay::Zasadnicza, Pay::Funkcyjny,  Pay::Stazowy,         Pay::Premia,      Pay::Specjalny,   Pay::Inny,
    Pay::Motywacyjny, Pay::Wiejski,   Pay::Specjalistyczny, Pay::Wychowawczy, Pay::Trudnosciowy, Pay::Ekwiwalent,
    Pay::Nocny,       Pay::Wyrownania, Pay::Szkodliwy,      Pay::Mieszkaniowy,
};

bool odPodstawy(const std::string& skrotPlatnika) {
    std::string p = core::UCase(core::Trim(skrotPlatnika));
    return p == "BIS" || p == "BUFLEPLA";
}

std::string kwota(float v) { return core::Format(v, "0.00"); }

}  // namespace

float podstawaDoKZP(const core::Record& pay) {
    double suma = 0;
    for (int field : kSkladnikiPodstawy) suma += pay.f(field);
    return core::Round2(suma);
}

float skladkaZwiazkowa(float k, float zasadnicza, float podstawa, const std::string& skrotPlatnika) {
    if (k >= 1 || k <= 0) return core::Round2(static_cast<double>(k));
    double od = odPodstawy(skrotPlatnika) ? podstawa : zasadnicza;
    return core::Round2(od * k / 100);
}

PotraceniaScreen::PotraceniaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmPotracenia", "Potracenia ", core::ReportWords::BezNr),
      s(session),
      boxes(*this, kBoxes),
      placa(Pay::schema()) {
    frmZFM.at(0, 0);
    frmKZP.at(1, 0);
    fraZwiazki.at(0, 1);
    fraInne.at(1, 1);
    for (std::size_t i = 0; i < boxes.size(); ++i) boxes.box(i).Change = [this] { przelicz(placa, false); };
    lbPodstawaDoKZP.in("frmKZP").at(4, 0).label("Podstawa do KZP");
    lbZwiazki.in("fraZwiazki").at(0, 1).label("kwota");
    lbSolid.in("fraZwiazki").at(1, 1).label("kwota");
    lbRazemPotracenia.at(2, 1).label("Razem potrącenia");
    lbBrakDanych.at(3, 0, 2);
    lbBrakDanych.Caption =
        "Ta osoba nie ma jeszcze danych płacowych na tej liście. Załóż je najpierw w oknie płac; "
        "do tego czasu potrąceń nie można zapisać.";
    lbBrakDanych.Visible = false;
    cmdZapisz.at(4, 0);
    cmdKoniec.at(4, 1);
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    cmdKoniec.Click = [this] { cmdKoniec_Click(); };

    const bool odBazy = odPodstawy(s.SkrotPlatnika);
    const std::string zwiazekTip = std::string("Kwota składki w zł albo, poniżej 1, procent ") +
                                   (odBazy ? "podstawy do KZP" : "płacy zasadniczej") +
                                   " (0,5 to pół procenta; 1 to jeden złoty).";
    txt(Pay::Zwiazek).tip(zwiazekTip);
    txt(Pay::Solidarnosc).tip(zwiazekTip);
    std::string kzpTip = "Kwota składki w zł albo, poniżej 1, ułamek podstawy do składek KZP ze stawek roku";
    if (s.Dane.valid()) {
        std::string podstawa = core::Trim(s.Dane.s(reference::Dane::PodstawaDoKZP));
        if (!podstawa.empty()) kzpTip += " (" + podstawa + ")";
    }
    txt(Pay::KZPSkladka).tip(kzpTip + ".");
}

void PotraceniaScreen::przelicz(const core::Record& pay, bool strict) {
    auto v = [&](int field) -> float {
        core::Control& c = txt(field);
        if (strict) return static_cast<float>(core::toDoubleOrZero(c.Text, c.Name));
        return static_cast<float>(core::Val(core::KropkaZamiastPrzecinka(std::string(c.Text))));
    };
    const float podstawa = podstawaDoKZP(pay);
    const float zasadnicza = pay.f(Pay::Zasadnicza);
    const float zwiazek = skladkaZwiazkowa(v(Pay::Zwiazek), zasadnicza, podstawa, s.SkrotPlatnika);
    const float solid = skladkaZwiazkowa(v(Pay::Solidarnosc), zasadnicza, podstawa, s.SkrotPlatnika);
    double razem = 0;
    razem += v(Pay::ZFMRata);
    razem += v(Pay::KZPRata);
    razem += v(Pay::KZPSkladka);
    razem += v(Pay::Potracenie1);
    razem += v(Pay::Potracenie2);
    razem += v(Pay::PZU);
    razem += v(Pay::POTRInne);
    razem += v(Pay::PotraceniaPoZasilkach);
    razem += solid;
    razem += zwiazek;
    lbPodstawaDoKZP.Caption = kwota(podstawa);
    lbZwiazki.Caption = kwota(zwiazek);
    lbSolid.Caption = kwota(solid);
    lbRazemPotracenia.Caption = kwota(core::Round2(razem));
}

void PotraceniaScreen::dlaBrakuDanych(bool found) {
    lbBrakDanych.Visible = !found;
    cmdZapisz.Enabled = found;
}

void PotraceniaScreen::Load() {
    Caption = "Potracenia " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    auto found = Pay::openForPerson(s, *this, "Zakładanie nowego zbioru płacowego !");
    if (found) {
        placa = *found;
        boxes.fill(placa);
    }
    guarded([&] { przelicz(placa, false); });
    dlaBrakuDanych(found.has_value());
}

void PotraceniaScreen::cmdZapisz_Click() {
    guarded([&] {
        // Every value is checked before the file is touched: a box that holds no number stops
        // the save with the file as it was.
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            core::Control& c = boxes.box(i);
            core::KropkaZamiastPrzecinka(c.Text);
            SetFocus(c);
            core::toDoubleOrZero(c.Text, c.Name);
        }
        FocusTo.clear();
        const core::Schema& schema = Pay::schema();
        int matched = Pay::replace(
            Pay::path(s), s.KluczOsoby,
            [&](core::Record& r) {
                przelicz(r, true);
                for (std::size_t i = 0; i < boxes.size(); ++i) {
                    const int field = boxes.def(i).field;
                    const double value = core::toDoubleOrZero(boxes.box(i).Text, boxes.box(i).Name);
                    if (schema.fields[field - 1].type == core::FieldType::Float)
                        r.set(field, static_cast<float>(value));
                    else
                        r.set(field, value);
                }
                placa = r;
            },
            "TYMCZ.dta");
        if (matched > 0) ui.msgBox(" Zapisano ", Buttons::OK, Icon::Information);
        Unload();
    });
}

}  // namespace payinputs
