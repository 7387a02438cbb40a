#include "leave/czas_pracy.h"

#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "leave/wspolne.h"
#include "personnel/person_record.h"
#include "reference/payers.h"

namespace leave {

using core::Buttons;
using core::Icon;
namespace D = CzasPracy::Dzien;

namespace {

// The grid's columns 2 to 10 and the day values they show.
constexpr int kWartosci[][2] = {{KolCP::Gp, D::Gp},       {KolCP::G50, D::G50},     {KolCP::G100, D::G100},
                                {KolCP::Lpg, D::Lpg},     {KolCP::Limit, D::Limit}, {KolCP::GUr, D::GUr},
                                {KolCP::GN, D::GN},       {KolCP::GCh, D::GCh},     {KolCP::Swieto, D::Swieto}};

const char* const kNaglowki[] = {"Dm", "NazwaDnia", "Gp", "G50", "G100", "lpg", "Limit", "GUr", "GN", "GCh", "Swięto"};

double liczba(const std::string& t) {
    std::string v = core::KropkaZamiastPrzecinka(std::string(core::Trim(t)));
    return core::isNumeric(v) ? core::Val(v) : 0.0;
}

}  // namespace

CzasPracyScreen::CzasPracyScreen(core::Dialogs& d, core::Session& session)
    : Form(d, "frmCzasPracy", "Rozliczenie czasu pracy dla"), s(session) {
    LbData.at(0, 0).label("Miesiąc");
    cmdWroc.at(0, 1);
    cmdNext.at(0, 2);
    lbwskEtatu.at(0, 3).label("Wskaźnik etatu");
    lbIloscDniPracy.at(0, 4).label("Ilość dni pracy");
    MSFlexGrid1.at(1, 0, 10).width(106);
    MSFlexGrid1.Mono = true;
    cmdWstawG.at(2, 0);
    cmdZeruj.at(2, 1);
    cmdZapiszZmiany.at(2, 2);
    cmdDrukCzasuPracy.at(2, 3);
    cmdKoniec.at(2, 4);
    MSFlexGrid1.setGrid(kWierszRazem + 1, KolCP::Count);
    MSFlexGrid1.ColWidth = {3, 32, 4, 4, 4, 4, 5, 5, 4, 4, 6};
    cmdWroc.Click = [this] { cmdWroc_Click(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdWstawG.Click = [this] { cmdWstawG_Click(); };
    cmdZeruj.Click = [this] { cmdZeruj_Click(); };
    cmdZapiszZmiany.Click = [this] { cmdZapiszZmiany_Click(); };
    cmdDrukCzasuPracy.Click = [this] { cmdDrukCzasuPracy_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
    MSFlexGrid1.DblClick = [this] { MSFlexGrid1_DblClick(); };
}

void CzasPracyScreen::Load() {
    Caption = "Rozliczenie czasu pracy dla " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    rokPliku = core::ValInt(s.rok(), "frmCzasPracy");
    miesiac = core::ValInt(s.miesiac(), "frmCzasPracy");
    if (miesiac < 1 || miesiac > 12) miesiac = 1;
    guarded([&] {
        if (!s.Osoba.Otwarty) personnel::wczytajEkranOsoby(s);
        lbwskEtatu.Caption = core::Format(s.Osoba.UlamekEtatu, "0.00");
        wczytaj();
        pokazMiesiac();
    });
}

void CzasPracyScreen::wczytaj() {
    core::ensureFolder(s.payerFolder(), {"godziny"});
    const auto plik = CzasPracy::path(s, s.rok());
    blokiPliku = core::fileExists(plik) ? CzasPracy::readAll(plik) : std::vector<CzasPracy::Blok>{};
    if (!CzasPracy::znajdz(blokiPliku, s.KluczOsoby)) {
        blokiPliku.push_back(CzasPracy::nowyBlok(s.NazwiskoOsoby, s.ImieOsoby, s.KluczOsoby, rokPliku));
        CzasPracy::writeAll(plik, blokiPliku, CzasPracy::nazwaTymczasowa(s, s.rok(), false));
    }
}

void CzasPracyScreen::pokazMiesiac() {
    const CzasPracy::Blok* b = CzasPracy::znajdz(blokiPliku, s.KluczOsoby);
    MSFlexGrid1.setGrid(kWierszRazem + 1, KolCP::Count);
    for (int c = 0; c < KolCP::Count; ++c) MSFlexGrid1.TextMatrix(0, c) = kNaglowki[c];
    LbData.Caption = core::FormatDate({rokPliku, miesiac, 1}, "mmmm,yyyy");
    for (int d = 1; d <= 31; ++d) {
        const core::Date data{rokPliku, miesiac, d};
        const bool jest = core::validDate(data);
        MSFlexGrid1.TextMatrix(d, KolCP::NazwaDnia) = jest ? core::FormatDate(data, "dddd,dd,mmmm,yyyy") : kBrakDnia;
        if (b) {
            const core::Record& dz = b->dni[miesiac - 1][d - 1];
            MSFlexGrid1.TextMatrix(d, KolCP::Dm) = dz.s(D::Dm);
            for (const auto& k : kWartosci) MSFlexGrid1.TextMatrix(d, k[0]) = dz.s(k[1]);
        }
        const bool swieto = MSFlexGrid1.TextMatrix(d, KolCP::Swieto) == "S";
        for (int c = 0; c < KolCP::Count; ++c) {
            core::Control::CellStyle& st = MSFlexGrid1.Style(d, c);
            if (!jest) st.back = kKolorBrakDnia;
            else if (dzienWolny(rokPliku, miesiac, d)) st.back = kKolorWolne;
            if (swieto) st.fore = kKolorNiebieski, st.bold = true;
        }
    }
    MSFlexGrid1.TextMatrix(kWierszRazem, KolCP::NazwaDnia) = "Razem         ";
    sumy();
}

void CzasPracyScreen::sumy() {
    int dniPracy = 0, swieta = 0;
    for (int c = KolCP::Gp; c <= KolCP::GCh; ++c) {
        double suma = 0;
        for (int d = 1; d <= 31; ++d) suma += liczba(MSFlexGrid1.TextMatrix(d, c));
        MSFlexGrid1.TextMatrix(kWierszRazem, c) = core::numText(suma);
    }
    for (int d = 1; d <= 31; ++d) {
        if (liczba(MSFlexGrid1.TextMatrix(d, KolCP::Gp)) > 0) ++dniPracy;
        if (MSFlexGrid1.TextMatrix(d, KolCP::Swieto) == "S") ++swieta;
    }
    MSFlexGrid1.TextMatrix(kWierszRazem, KolCP::Swieto) = std::to_string(swieta);
    for (int c = 0; c < KolCP::Count; ++c) MSFlexGrid1.Style(kWierszRazem, c).bold = true;
    lbIloscDniPracy.Caption = std::to_string(dniPracy);
}

void CzasPracyScreen::cmdWstawG_Click() {
    for (int d = 1; d <= 31; ++d) {
        const bool swieto = MSFlexGrid1.TextMatrix(d, KolCP::Swieto) == "S";
        const bool wolny = brakDnia(d) || swieto || dzienWolny(rokPliku, miesiac, d);
        for (int c = KolCP::Gp; c <= KolCP::Swieto; ++c) MSFlexGrid1.TextMatrix(d, c).clear();
        if (swieto) MSFlexGrid1.TextMatrix(d, KolCP::Swieto) = "S";
        if (wolny) continue;
        for (int c : {KolCP::Gp, KolCP::Lpg, KolCP::Limit}) MSFlexGrid1.TextMatrix(d, c) = "8";
    }
    sumy();
}

void CzasPracyScreen::cmdZeruj_Click() {
    for (int d = 1; d <= 31; ++d)
        for (int c = KolCP::Gp; c <= KolCP::GCh; ++c) MSFlexGrid1.TextMatrix(d, c).clear();
    sumy();
}

void CzasPracyScreen::cmdNext_Click() {
    miesiac = miesiac % 12 + 1;
    pokazMiesiac();
}

void CzasPracyScreen::cmdWroc_Click() {
    miesiac = miesiac == 1 ? 12 : miesiac - 1;
    pokazMiesiac();
}

void CzasPracyScreen::MSFlexGrid1_DblClick() {
    const int r = MSFlexGrid1.Row, c = MSFlexGrid1.Col;
    if (r < 1 || r > 31 || c < KolCP::Gp || c >= KolCP::Count) return;
    const std::string pozycja = " pozycja " + std::to_string(r);
    std::optional<std::string> odp;
    if (c == KolCP::GUr)
        odp = ui.inputBox("Wpisz urlop np U8(8godz)", "Wpisanie urlopu !" + pozycja, "U8");
    else if (c == KolCP::GCh)
        odp = ui.inputBox("Wpisz chorobowe np C)", "Wpisanie chorobowego !" + pozycja, "C");
    else
        odp = ui.inputBox("Wpisz nową wartość ", "Wpisanie godzin !" + pozycja, MSFlexGrid1.TextMatrix(r, c));
    if (!odp || odp->empty() || *odp == "0") return;
    if (!wpisPoprawny(*this, *odp)) return;
    MSFlexGrid1.TextMatrix(r, c) = core::UCase(*odp);
    sumy();
}

void CzasPracyScreen::cmdZapiszZmiany_Click() {
    try {
        const auto plik = CzasPracy::path(s, s.rok());
        std::vector<CzasPracy::Blok> bloki = core::fileExists(plik) ? CzasPracy::readAll(plik) : blokiPliku;
        CzasPracy::Blok* b = CzasPracy::znajdz(bloki, s.KluczOsoby);
        if (!b) {
            bloki.push_back(*CzasPracy::znajdz(blokiPliku, s.KluczOsoby));
            b = &bloki.back();
        }
        for (int d = 1; d <= 31; ++d) {
            core::Record& dz = b->dni[miesiac - 1][d - 1];
            for (const auto& k : kWartosci) {
                const std::string& t = MSFlexGrid1.TextMatrix(d, k[0]);
                ustawTekst(dz, k[1], t);
            }
        }
        CzasPracy::writeAll(plik, bloki, CzasPracy::nazwaTymczasowa(s, s.rok(), true));
        blokiPliku = std::move(bloki);
        sumy();
    } catch (const core::Error& e) {
        ui.msgBox(core::errorReport(e, Words), Buttons::OK, Icon::Critical, "Błąd");
    }
}

void CzasPracyScreen::cmdDrukCzasuPracy_Click() {
    // The date column is one wider than the heading's words: "poniedziałek,dd,mm,yy" has 21.
    const std::string naglowek =
        "|Dzień miesiąca       |GodzPr |Godz50 |Godz100|RmGPr  |Limit  |Swięto |RmUrlop|";
    const std::string linijka = core::String(core::Len(naglowek), '=');
    const int kolumny[] = {KolCP::Gp, KolCP::G50, KolCP::G100, KolCP::Lpg, KolCP::Limit, KolCP::Swieto, KolCP::GUr};
    auto wartosci = [&](int r) {
        std::string t;
        for (int c : kolumny) t += core::PadLeft(MSFlexGrid1.TextMatrix(r, c), 7) + "|";
        return t;
    };
    core::Printer& p = ui.printer();
    p.setFont("Courier New", 10, false);
    const std::string platnik = s.Firma.valid() ? core::RTrim(s.Firma.s(reference::Firma::NazwaM)) : s.SkrotPlatnika;
    p.print("   Rozliczenie czasu pracy " + platnik + " za miesiac " + LbData.Caption + " dla pracownika " +
            s.NazwiskoOsoby + " " + s.ImieOsoby);
    p.print(linijka);
    p.print(naglowek);
    p.print(linijka);
    for (int d = 1; d <= 31; ++d) {
        if (brakDnia(d)) continue;
        p.print("|" + core::PadRight(core::FormatDate({rokPliku, miesiac, d}, "dddd,dd,mm,yy"), 21) + "|" + wartosci(d));
    }
    p.print(linijka);
    p.print("| Razem               |" + wartosci(kWierszRazem));
    p.print(linijka);
    p.emptyLine();
    p.print("  wykonał ");
    p.print(" ...............      Pracownik  ....................");
    p.endDoc();
}

}  // namespace leave
