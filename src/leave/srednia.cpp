#include "leave/srednia.h"

#include <optional>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "leave/czas_record.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "reference/rates.h"

namespace leave {

using core::Buttons;
using core::Icon;
namespace Karta = paycalc::Karta;
namespace Dod = paycalc::Dodatkowy;

namespace {

double val(const std::string& t) { return core::Val(core::KropkaZamiastPrzecinka(std::string(t))); }
std::string kwota(double v) { return core::Format(v, "0.00"); }

// The first record of a file whose field `pole` is `klucz`; nothing when the file is missing or
// cannot be read, or holds no such record.
template <class Czytaj>
std::optional<core::Record> rekordOsoby(const std::filesystem::path& plik, int pole, const std::string& klucz, Czytaj czytaj) {
    if (!core::fileExists(plik)) return std::nullopt;
    try {
        for (core::Record& r : czytaj(plik))
            if (r.s(pole) == klucz) return std::move(r);
    } catch (const core::Error&) {
    }
    return std::nullopt;
}

std::optional<core::Record> dodatkowy(const core::Session& s, Dod::Rodzaj rodzaj, const std::string& okres) {
    return rekordOsoby(Dod::path(s, rodzaj, s.NazwaZbioru, okres), Dod::Klucz, s.KluczOsoby,
                       [](const auto& p) { return Dod::readAll(p); });
}

// The seven amounts of an overtime or additions record.
float siedemKwot(const core::Record& r) {
    double suma = 0;
    for (int n = Dod::Kw1; n <= Dod::Kw7; ++n) suma += r.f(n);
    return static_cast<float>(suma);
}

const char* const kNaglowki[] = {" Lp.  ",   "Okres ",   "Płaca   ", "Godziny ", "Dodatki ", "Inne    ",
                                 "Razem   ", "IlDniOB ", "IlDniPra", "Podstawa", "Informacja o wyłaczeniu"};

}  // namespace

std::vector<std::string> okresySredniej(int miesiac, int rok) {
    std::vector<std::string> out;
    for (int i = 0; i < 12; ++i) {
        int m = miesiac - 1 + i, r = rok - 1;
        if (m > 12) m -= 12, r = rok;
        out.push_back(core::CyfryTekst(r, 2) + core::CyfryTekst(m, 2));
    }
    return out;
}

SredniaScreen::SredniaScreen(core::Dialogs& d, core::Session& session, core::Control* cel)
    : Form(d, "frmSrednia", "Średnia dzienna z 12 miesiecy "), s(session), celSredniej(cel) {
    MSFlexGrid7.at(0, 0, 2).width(100);
    MSFlexGrid7.Mono = true;
    MSFlexGrid7.VisibleRows = 12;
    fraSumy.at(1, 0);
    txtRazeMPlaca.in("fraSumy").at(0, 0).label("Płaca *").width(10);
    txtRazemGodziny.in("fraSumy").at(1, 0).label("Godziny").width(10);
    txtRazemDodatki.in("fraSumy").at(2, 0).label("Dodatki").width(10);
    txtInne.in("fraSumy").at(3, 0).label("Inne").width(10);
    txtTrzynastka.in("fraSumy").at(0, 1).label("Trzynastka").width(10);
    lbKwotaTrzynastkiM.in("fraSumy").at(1, 1).label("Kwota trzynastki");
    LbDatatrzynastki.in("fraSumy").at(2, 1).label("Rok trzynastki");
    LbiloscMiesiecy.in("fraSumy").at(3, 1).label("Ilość miesięcy");
    txtOgolem.in("fraSumy").at(0, 2).labelledBy(lbOgolemZa).width(10);
    txtKwotaNetto.in("fraSumy").at(1, 2).label("Kwota netto").width(10);
    txtPodstawaStawki.in("fraSumy").at(2, 2).label("Podstawa stawki").width(10);
    txtSredniadzienna.in("fraSumy").at(3, 2).labelledBy(lbSredniaZ).width(10);
    Label1.in("fraSumy").at(4, 0, 4);
    cmdWylicz.at(2, 0);
    cmdPobierzIloscdni.at(2, 1);
    CmdWyliczSrednia.at(3, 0);
    CmdWstaw.at(3, 1);
    Command1.at(4, 0);
    MSFlexGrid7.setGrid(1, KolS::Count);
    for (int c = 0; c < KolS::Count; ++c) MSFlexGrid7.TextMatrix(0, c) = kNaglowki[c];
    MSFlexGrid7.ColWidth = {5, 6, 10, 9, 9, 8, 10, 8, 8, 8, 24};
    cmdWylicz.Click = [this] { cmdWylicz_Click(); };
    cmdPobierzIloscdni.Click = [this] { cmdPobierzIloscdni_Click(); };
    CmdWyliczSrednia.Click = [this] { CmdWyliczSrednia_Click(); };
    CmdWstaw.Click = [this] { CmdWstaw_Click(); };
    Command1.Click = [this] { Unload(); };
}

void SredniaScreen::Load() {
    Caption = "Średnia dzienna z 12 miesiecy " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    guarded([&] { reference::loadRates(s); });
}

double SredniaScreen::sumaSkladek() const {
    return s.stawki.emerytalna + s.stawki.rentowaPracownik + s.stawki.chorobowa;
}

void SredniaScreen::wiersz(const std::vector<std::string>& komorki) {
    MSFlexGrid7.Cells.push_back(komorki);
    MSFlexGrid7.Cells.back().resize(KolS::Count);
    MSFlexGrid7.Styles.emplace_back(KolS::Count);
    MSFlexGrid7.Cells.back()[KolS::Lp] = std::to_string(MSFlexGrid7.Rows);
    ++MSFlexGrid7.Rows;
}

void SredniaScreen::cmdWylicz_Click() {
    if (MSFlexGrid7.Rows > 1) return;
    guarded([&] {
        const int M = core::ValInt(s.miesiac(), "frmSrednia");
        const int Y = core::ValInt(core::Right(s.rok(), 2), "frmSrednia");
        float placa = 0, godz = 0, dod = 0;  // the cells' values, kept from row to row
        double sumaP = 0, sumaG = 0, sumaD = 0;
        int miesiecy = 0;
        for (const std::string& okres : okresySredniej(M, Y)) {
            std::string info;
            auto k = rekordOsoby(Karta::path(s, s.NazwaZbioru, okres), Karta::Klucz, s.KluczOsoby,
                                 [](const auto& p) { return Karta::readAll(p); });
            if (!k) {
                info = "BrakKartoteki";
            } else {
                double dni = 0;
                for (int n = 0; n < 4; ++n) dni += val(k->s(Karta::LiczbaDni1 + 6 * n));
                if (dni > 15) {
                    wiersz({"", okres, "", "", "", "", "", "", "", "", "Wyłączony"});
                    continue;
                }
                placa = k->f(Karta::Brutto) - k->f(Karta::Stazowy) - k->f(Karta::Wiejski) - k->f(Karta::Mieszkaniowy);
            }
            ++miesiecy;
            sumaP += placa;
            if (auto g = dodatkowy(s, Dod::Rodzaj::God, okres)) sumaG += godz = siedemKwot(*g);
            if (auto d = dodatkowy(s, Dod::Rodzaj::Dod, okres)) sumaD += dod = siedemKwot(*d);
            const float razem = placa + godz + dod;
            wiersz({"", okres, kwota(placa), kwota(godz), kwota(dod), "0", kwota(razem), "0", "0", "", info});
        }
        txtRazeMPlaca.Text = kwota(sumaP);
        txtRazemGodziny.Text = kwota(sumaG);
        txtRazemDodatki.Text = kwota(sumaD);
        txtInne.Text = "0";
        LbiloscMiesiecy.Caption = std::to_string(miesiecy);
        trzynastka();
        const float ogolem = static_cast<float>(sumaP + sumaG + sumaD + val(txtTrzynastka.Text));
        txtOgolem.Text = kwota(ogolem);
        srednia(core::Round2(static_cast<double>(ogolem) * (1 - sumaSkladek())), miesiecy);
    });
}

void SredniaScreen::trzynastka() {
    const std::string rr = core::Right(s.rok(), 2);
    auto t = dodatkowy(s, Dod::Rodzaj::Trz, rr);
    if (!t) return;
    LbDatatrzynastki.Caption = "20" + rr;
    const float kw = t->f(Dod::KwotaBrutto);
    lbKwotaTrzynastkiM.Caption = kwota(kw);
    if (kw > 0) txtTrzynastka.Text = kwota(kw);
}

void SredniaScreen::srednia(float netto, int miesiecy) {
    txtKwotaNetto.Text = kwota(netto);
    const std::string m = std::to_string(miesiecy);
    lbOgolemZa.Caption = "Kwota ogółem za " + m + " miesiecy";
    lbSredniaZ.Caption = "Średnia dzienna z " + m + " miesiecy";
    if (miesiecy > 0) txtSredniadzienna.Text = kwota(core::Round2(static_cast<double>(netto) / (miesiecy * 30)));
    core::KropkaZamiastPrzecinka(txtSredniadzienna.Text);
    if (celSredniej) celSredniej->Text = txtSredniadzienna.Text;
}

void SredniaScreen::CmdWyliczSrednia_Click() {
    const double placa = val(txtRazeMPlaca.Text), godz = val(txtRazemGodziny.Text), dod = val(txtRazemDodatki.Text);
    const double dwunasta = val(txtTrzynastka.Text) / 12;
    const int miesiecy = core::ValInt(LbiloscMiesiecy.Caption, "frmSrednia");
    const float udzial = core::Round2(dwunasta * miesiecy);
    const float ogolem = core::Round2(placa + godz + dod + udzial);
    txtOgolem.Text = kwota(ogolem);
    srednia(core::Round2(static_cast<double>(ogolem) * (1 - sumaSkladek())), miesiecy);
}

void SredniaScreen::CmdWstaw_Click() {
    core::KropkaZamiastPrzecinka(txtSredniadzienna.Text);
    if (!(val(txtSredniadzienna.Text) > 0)) return;
    if (celSredniej) celSredniej->Text = txtSredniadzienna.Text;
    Unload();
}

void SredniaScreen::cmdPobierzIloscdni_Click() {
    guarded([&] {
        bool brak = MSFlexGrid7.Rows <= 1;
        for (int r = 1; r < MSFlexGrid7.Rows; ++r) {
            const std::string okres = MSFlexGrid7.TextMatrix(r, KolS::Okres);
            const auto plik = CzasPracy::path(s, "20" + core::Left(okres, 2));
            if (!core::fileExists(plik)) {
                brak = true;
                continue;
            }
            std::vector<CzasPracy::Blok> bloki = CzasPracy::readAll(plik);
            const CzasPracy::Blok* b = CzasPracy::znajdz(bloki, s.KluczOsoby);
            const int m = core::ValInt(core::Right(okres, 2), "frmSrednia");
            if (!b || m < 1 || m > 12) continue;
            int nieobecne = 0, chorobowe = 0, przepracowane = 0;
            for (const core::Record& d : b->dni[m - 1]) {
                if (d.s(CzasPracy::Dzien::Swieto) != "S") {
                    if (val(d.s(CzasPracy::Dzien::GN)) > 0) ++nieobecne;
                    else if (val(d.s(CzasPracy::Dzien::GCh)) > 0) ++nieobecne, ++chorobowe;
                }
                if (val(d.s(CzasPracy::Dzien::Gp)) > 0) ++przepracowane;
            }
            MSFlexGrid7.TextMatrix(r, KolS::IlDniOB) = std::to_string(nieobecne);
            MSFlexGrid7.TextMatrix(r, KolS::IlDniPra) = std::to_string(przepracowane);
        }
        if (brak) ui.msgBox(" Brak danych  - nie wykonywana ewidencja czasu pracy !!", Buttons::OK, Icon::Information);
    });
}

}  // namespace leave
