#include "leave/urlopy_ekran.h"

#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "leave/czas_record.h"
#include "leave/wspolne.h"
#include "paycalc/wyliczenie.h"
#include "personnel/person_record.h"
#include "reference/payers.h"

namespace leave {

using core::Buttons;
using core::Icon;
namespace U = paycalc::Urlop;

namespace {

bool urlop(const std::string& kod) { return core::UCase(core::Left(kod, 1)) == "U"; }
double godziny(const std::string& kod) { return core::Val(core::Right(kod, 1)); }
double liczba(const std::string& t) { return core::Val(core::KropkaZamiastPrzecinka(std::string(t))); }

}  // namespace

UrlopyScreen::UrlopyScreen(core::Dialogs& d, core::Session& session)
    : Form(d, "frmUrlopy", "Urlopy "), s(session) {
    fraUrlop.at(0, 0);
    Frame1.at(0, 1);
    fraStawka.at(0, 2);
    txtPrzenies.in("fraUrlop").at(0).label("Przeniesienie urlopu z poprzedniego roku").width(6);
    txtUrlopNalezny.in("fraUrlop").at(1).label("Należny urlop za aktualny rok").width(6);
    txtUrlopRazem.in("fraUrlop").at(2).label("Razem należny urlop w  aktualnym roku").width(6);
    LbZgodzin.in("fraUrlop").at(3).label("Ilość dni wykorzystanych wynikajaca z przeliczenia 8 godz dnia urlopu =");
    LbDowykorzystania.in("fraUrlop").at(4).label("Pozostaje do wykorzystania dni urlopu");
    txtUrlopRazem.Locked = true;
    Option1.in("Frame1").at(0);
    Option2.in("Frame1").at(1);
    txtPodstawaBrutto.in("fraStawka").at(0).label("Aktualna podstawa brutto").width(10);
    txtUrlopowaStawka.in("fraStawka").at(1).label("Stawka dzienna  urlopu").width(10);
    Label1.in("fraStawka").at(2);
    MSFlexGrid1.at(1, 0, 3).width(176);  // every column without scrolling
    MSFlexGrid1.Mono = true;
    CmdWyliczkwoteUrlopu.at(2, 0);
    cmdWstaw.at(2, 1);
    cmdWprowadzUrlopyDoCzasu.at(2, 2);
    CmdZmiany.at(3, 0);
    cmdDrukujWykaz.at(3, 1);
    CmdKoniec.at(3, 2);
    MSFlexGrid1.setGrid(kWierszRazemU + 1, KolU::Count);
    MSFlexGrid1.ColWidth.assign(KolU::Count, 2);
    MSFlexGrid1.ColWidth[0] = 13;
    MSFlexGrid1.ColWidth[KolU::Stawka] = 6;
    MSFlexGrid1.ColWidth[KolU::IlDni] = 5;
    MSFlexGrid1.ColWidth[KolU::Kwota] = 7;
    MSFlexGrid1.ColWidth[KolU::IlGodz] = 5;
    MSFlexGrid1.DblClick = [this] { MSFlexGrid1_DblClick(); };
    CmdZmiany.Click = [this] { CmdZmiany_Click(); };
    CmdWyliczkwoteUrlopu.Click = [this] { CmdWyliczkwoteUrlopu_Click(); };
    cmdWstaw.Click = [this] { cmdWstaw_Click(); };
    cmdDrukujWykaz.Click = [this] { cmdDrukujWykaz_Click(); };
    cmdWprowadzUrlopyDoCzasu.Click = [this] { cmdWprowadzUrlopyDoCzasu_Click(); };
    CmdKoniec.Click = [this] { Unload(); };
    txtPrzenies.Change = txtUrlopNalezny.Change = [this] { przelicz(); };
}

void UrlopyScreen::Load() {
    Caption = "Urlopy " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    rokUrlopow = core::ValInt(s.rok(), "frmUrlopy");
    miesiacDatyListy = core::ValInt(s.miesiac(), "frmUrlopy");
    if (miesiacDatyListy < 1 || miesiacDatyListy > 12) miesiacDatyListy = 1;
    guarded([&] {
        core::ensureFolder(s.payerFolder(), {"Urlopy"});
        const auto plik = U::path(s, s.rok());
        std::vector<U::Blok> bloki = core::fileExists(plik) ? U::readAll(plik) : std::vector<U::Blok>{};
        for (const U::Blok& b : bloki)
            if (b.naglowek.s(U::Naglowek::Identyfikator) == s.KluczOsoby) {
                pokaz(b);
                return;
            }
        ui.msgBox("Brak Rekordu dla " + s.NazwiskoOsoby + " " + s.ImieOsoby, Buttons::OK, Icon::Information,
                  "Dopisanie nowego rekordu");
        if (!s.Osoba.Otwarty) personnel::wczytajEkranOsoby(s);
        bloki.push_back(U::nowyBlok(s.NazwiskoOsoby, s.ImieOsoby, s.KluczOsoby,
                                    personnel::etatTekst(s.Osoba.Etat, s.Osoba.Etat2), rokUrlopow));
        U::writeAll(plik, bloki);
        pokaz(bloki.back());
    });
}

void UrlopyScreen::pokaz(const U::Blok& b) {
    blok = b;
    MSFlexGrid1.setGrid(kWierszRazemU + 1, KolU::Count);
    MSFlexGrid1.TextMatrix(0, 0) = "Miesiac/dzień";
    for (int d = 1; d <= 31; ++d) MSFlexGrid1.TextMatrix(0, d) = std::to_string(d);
    MSFlexGrid1.TextMatrix(0, KolU::Stawka) = "Stawka";
    MSFlexGrid1.TextMatrix(0, KolU::IlDni) = "IlDniU";
    MSFlexGrid1.TextMatrix(0, KolU::Kwota) = "Kwota ";
    MSFlexGrid1.TextMatrix(0, KolU::IlGodz) = "IlGodz";
    for (int m = 1; m <= 12; ++m) {
        MSFlexGrid1.TextMatrix(m, 0) = U::nazwaMiesiaca(m);
        MSFlexGrid1.TextMatrix(m, KolU::Stawka) = b.miesiace[m - 1].s(U::Miesiac::Stawka);
        for (int d = 1; d <= 31; ++d)
            MSFlexGrid1.TextMatrix(m, d) =
                core::validDate({rokUrlopow, m, d}) ? b.dni[m - 1][d - 1].s(U::Dzien::Kod) : std::string("X");
    }
    MSFlexGrid1.TextMatrix(kWierszRazemU, 0) = " Razem   ";
    txtPrzenies.Text = b.naglowek.s(U::Naglowek::Przeniesienie);
    txtUrlopNalezny.Text = b.naglowek.s(U::Naglowek::Nalezny);
    setOption(b.naglowek.s(U::Naglowek::Rozliczac) == "1" ? Option1 : Option2);
    txtUrlopowaStawka.Text = b.miesiace[miesiacDatyListy - 1].s(U::Miesiac::Stawka);
    przelicz();
}

void UrlopyScreen::koloruj(int m, int d) {
    core::Control::CellStyle st;
    const std::string& kod = MSFlexGrid1.TextMatrix(m, d);
    if (kod == "X") st.back = kKolorBrakDnia;
    else if (dzienWolny(rokUrlopow, m, d)) st.back = kKolorWolne;
    if (kod == "S") st.back = kKolorNiebieski, st.fore = kKolorBialy, st.bold = true;
    if (urlop(kod)) st.back = kKolorUrlop;
    MSFlexGrid1.Style(m, d) = st;
}

void UrlopyScreen::przelicz() {
    double dniRoku = 0, kwotaRoku = 0, godzinRoku = 0;
    for (int m = 1; m <= 12; ++m) {
        int dni = 0;
        double godzin = 0;
        for (int d = 1; d <= 31; ++d) {
            koloruj(m, d);
            const std::string& kod = MSFlexGrid1.TextMatrix(m, d);
            if (!urlop(kod)) continue;
            ++dni;
            godzin += godziny(kod);
        }
        const float stawka = static_cast<float>(liczba(MSFlexGrid1.TextMatrix(m, KolU::Stawka)));
        const float kwota = static_cast<float>(dni) * stawka;
        MSFlexGrid1.TextMatrix(m, KolU::IlDni) = std::to_string(dni);
        MSFlexGrid1.TextMatrix(m, KolU::Kwota) = core::Format(kwota, "0.00");
        MSFlexGrid1.TextMatrix(m, KolU::IlGodz) = core::numText(godzin);
        dniRoku += dni;
        kwotaRoku += kwota;
        godzinRoku += godzin;
    }
    MSFlexGrid1.TextMatrix(kWierszRazemU, KolU::IlDni) = core::numText(dniRoku);
    MSFlexGrid1.TextMatrix(kWierszRazemU, KolU::Kwota) = core::Format(static_cast<float>(kwotaRoku), "0.00");
    MSFlexGrid1.TextMatrix(kWierszRazemU, KolU::IlGodz) = core::numText(godzinRoku);
    for (int c = 0; c < KolU::Count; ++c) MSFlexGrid1.Style(kWierszRazemU, c).bold = true;
    gornePola(dniRoku);
}

void UrlopyScreen::gornePola(double wykorzystane) {
    const double razem = liczba(txtPrzenies.Text) + liczba(txtUrlopNalezny.Text);
    txtUrlopRazem.Text = core::numText(razem);
    LbDowykorzystania.Caption = core::numText(razem - wykorzystane);
}

void UrlopyScreen::MSFlexGrid1_DblClick() {
    const int m = MSFlexGrid1.Row, d = MSFlexGrid1.Col;
    if (m < 1 || m > 12 || d < 1 || d > 31) return;
    auto odp = ui.inputBox("Wpisz urlop np U8 " + std::to_string(d), "Wpisanie urlop !", "U8");
    if (!odp || odp->empty()) return;
    std::string kod = core::UCase(*odp);
    if (!wpisPoprawny(*this, kod)) return;
    MSFlexGrid1.TextMatrix(m, d) = kod == "0" ? std::string() : kod;
    przelicz();
}

void UrlopyScreen::CmdWyliczkwoteUrlopu_Click() {
    guarded([&] {
        if (paycalc::modWyliczeniePlacy(s, ui) == paycalc::Wynik::BrakPlacy) {
            ui.msgBox("Ta osoba nie ma danych płacowych na tej liście: podstawy nie można wyliczyć.", Buttons::OK,
                      Icon::Information, "Brak danych płacowych");
            return;
        }
        const float brutto = s.wynik.wBruttoPelne;
        txtPodstawaBrutto.Text = core::Format(brutto, "0.00");
        txtUrlopowaStawka.Text = core::Format(core::Round2(static_cast<double>(brutto) / 30), "0.00");
    });
}

void UrlopyScreen::cmdWstaw_Click() {
    MSFlexGrid1.TextMatrix(miesiacDatyListy, KolU::Stawka) = txtUrlopowaStawka.Text;
    przelicz();
}

bool UrlopyScreen::wpisyPoprawne() {
    for (const core::Control* c : {&txtPrzenies, &txtUrlopNalezny, &txtUrlopowaStawka})
        if (!wpisPoprawny(*this, c->Text)) return false;
    for (int m = 1; m <= 12; ++m)
        for (int d = 1; d <= 31; ++d)
            if (!wpisPoprawny(*this, MSFlexGrid1.TextMatrix(m, d))) return false;
    return true;
}

void UrlopyScreen::CmdZmiany_Click() {
    if (!wpisyPoprawne()) return;
    guarded([&] {
        const auto plik = U::path(s, s.rok());
        std::vector<U::Blok> bloki = core::fileExists(plik) ? U::readAll(plik) : std::vector<U::Blok>{};
        U::Blok* b = nullptr;
        for (U::Blok& x : bloki)
            if (!b && x.naglowek.s(U::Naglowek::Identyfikator) == s.KluczOsoby) b = &x;
        if (!b) b = &bloki.emplace_back(blok);
        ustawTekst(b->naglowek, U::Naglowek::Przeniesienie, txtPrzenies.Text);
        ustawTekst(b->naglowek, U::Naglowek::Nalezny, txtUrlopNalezny.Text);
        ustawTekst(b->naglowek, U::Naglowek::Rozliczac, Option1.Value ? "1" : "");
        ustawTekst(b->miesiace[miesiacDatyListy - 1], U::Miesiac::Stawka, txtUrlopowaStawka.Text);
        double godzin = 0;
        for (int m = 1; m <= 12; ++m)
            for (int d = 1; d <= 31; ++d) {
                const std::string& kod = MSFlexGrid1.TextMatrix(m, d);
                ustawTekst(b->dni[m - 1][d - 1], U::Dzien::Kod, kod);
                if (urlop(kod)) godzin += godziny(kod);
            }
        U::writeAll(plik, bloki);
        blok = *b;
        const double razem = liczba(txtPrzenies.Text) + liczba(txtUrlopNalezny.Text);
        const double zGodzin = core::Fix(godzin / 8);
        txtUrlopRazem.Text = core::numText(razem);
        LbZgodzin.Caption = core::numText(zGodzin);
        LbDowykorzystania.Caption = core::numText(razem - zGodzin);
        ui.msgBox("Zmiany zapisane  ", Buttons::OK, Icon::Information, "Zapis danych");
    });
}

void UrlopyScreen::cmdWprowadzUrlopyDoCzasu_Click() {
    guarded([&] {
        const auto plik = CzasPracy::path(s, s.rok());
        if (!core::fileExists(plik)) {
            ui.msgBox("Brak zbioru rozliczenia czasu pracy ", Buttons::OK, Icon::Information, "Utwórz zbiór ");
            return;
        }
        std::vector<CzasPracy::Blok> bloki = CzasPracy::readAll(plik);
        if (CzasPracy::Blok* b = CzasPracy::znajdz(bloki, s.KluczOsoby)) {
            for (int m = 1; m <= 12; ++m)
                for (int d = 1; d <= 31; ++d) {
                    core::Record& dz = b->dni[m - 1][d - 1];
                    if (dz.s(CzasPracy::Dzien::Swieto) == "S") MSFlexGrid1.TextMatrix(m, d) = "S";
                    const std::string& kod = MSFlexGrid1.TextMatrix(m, d);
                    if (urlop(kod)) ustawTekst(dz, CzasPracy::Dzien::GUr, kod);
                }
        }
        CzasPracy::writeAll(plik, bloki, CzasPracy::nazwaTymczasowa(s, s.rok(), false));
        przelicz();
        ui.msgBox("Urlopy wpisane do rozliczenia czasu pracy (Zapisz zmiany)! ", Buttons::OK, Icon::Information,
                  "Wpis urlopów i zaznaczenie świąt");
    });
}

void UrlopyScreen::cmdDrukujWykaz_Click() {
    auto linijka = [](char z) {
        std::string t = "|" + core::String(15, z);
        for (int d = 1; d <= 31; ++d) t += "|" + core::String(2, z);
        for (int w : {5, 5, 7, 5}) t += "|" + core::String(static_cast<std::size_t>(w), z);
        return t + "|";
    };
    auto wiersz = [&](int r, const std::string& nazwa) {
        std::string t = "|" + core::PadRight(nazwa, 15);
        for (int d = 1; d <= 31; ++d) t += "|" + core::PadLeft(r == kWierszRazemU ? "" : MSFlexGrid1.TextMatrix(r, d), 2);
        const int szer[] = {5, 5, 7, 5};
        for (int c = KolU::Stawka; c <= KolU::IlGodz; ++c) {
            std::string v = MSFlexGrid1.TextMatrix(r, c);
            if (c == KolU::Stawka && !v.empty()) v = core::numText(liczba(v));  // 120.50 in five places
            t += "|" + core::PadLeft(v, static_cast<std::size_t>(szer[c - KolU::Stawka]));
        }
        return t + "|";
    };
    const std::string platnik = s.Firma.valid() ? core::RTrim(s.Firma.s(reference::Firma::NazwaM)) : s.SkrotPlatnika;
    double godzin = 0;
    for (int m = 1; m <= 12; ++m) godzin += liczba(MSFlexGrid1.TextMatrix(m, KolU::IlGodz));
    const double zGodzin = core::Fix(godzin / 8);
    const double razem = liczba(txtPrzenies.Text) + liczba(txtUrlopNalezny.Text);

    core::Printer& p = ui.printer();
    p.setFont("Courier New", 8, false);
    p.print("   Rozliczenie urlopów " + platnik + " za rok " + std::to_string(rokUrlopow) + " dla pracownika " + s.KluczOsoby +
            " " + s.NazwiskoOsoby + " " + s.ImieOsoby);
    p.print(linijka('='));
    std::string naglowek = "| Miesiąc\\Dzień ";
    for (int d = 1; d <= 31; ++d) naglowek += "|" + core::PadLeft(std::to_string(d), 2);
    p.print(naglowek + "|Stawk|IlDni|Kwota  |IlGod|");
    p.print(linijka('='));
    for (int m = 1; m <= 12; ++m) {
        p.print(linijka('-'));
        p.print(wiersz(m, U::nazwaMiesiaca(m)));
    }
    p.print(linijka('='));
    p.print(wiersz(kWierszRazemU, " Razem"));
    p.print(linijka('='));
    p.print("Ilość dni z przeniesienia z ur.=" + txtPrzenies.Text);
    p.print("Ilość dni należnych na rok bieżący.=" + txtUrlopNalezny.Text);
    p.print("Ilość dni wykorzystanych wynikajaca z przeliczenia 8 godz dnia urlopu =" + core::numText(zGodzin));
    p.print("Pozostalo dni do wykorzystania =" + core::numText(razem - zGodzin) + " dni");
    p.emptyLine();
    p.print("  wykonał ");
    p.print(" ...............      Pracownik  ....................");
    p.endDoc();
}

}  // namespace leave
