#include "leave/chorobowe.h"

#include <chrono>

#include "core/paths.h"
#include "core/text.h"
#include "leave/czas_record.h"
#include "leave/srednia.h"
#include "leave/wspolne.h"
#include "paycalc/karta_record.h"
#include "payinputs/pay_record.h"

namespace leave {

using core::Buttons;
using core::Icon;
namespace Pay = payinputs::Pay;
namespace Karta = paycalc::Karta;

namespace {

double val(const std::string& t) { return core::Val(core::KropkaZamiastPrzecinka(std::string(t))); }
std::string kwotaTekst(double v) { return core::Format(v, "0.00"); }

// "ddmmrrrr" of a calendar's date ("dd-mm-rrrr" or "rrrr-mm-dd").
std::string bezSeparatorow(const std::string& data) { return core::Replace(core::DataTekst(data), "-", ""); }

// Stores a box into a field: a number as a number, any other text as text.
void doPola(core::Record& r, int pole, const std::string& tekst, bool liczba) {
    if (liczba && !tekst.empty() && core::isNumeric(tekst)) {
        if (r.item(pole).kind != core::Item::Bare || r.d(pole) != core::Val(tekst)) r.set(pole, core::Val(tekst));
    } else {
        ustawTekst(r, pole, tekst);
    }
}

const char* const kNaglowkiHistorii[] = {
    " Chorobowe ", "Data Listy", " Od 1   ", " Do 1   ", "KodPrze1", "Kwota 1 ", " Od 2   ", " Do 2   ",
    "KodPrze2",    "Kwota 2 ",   " Od 3   ", " Do 3   ", "KodPrze3", "Kwota 3 ", " Od 4   ", " Do 4   ",
    "KodPrze4",    "Kwota 4 ",   "RazemDniPracod", "RazemKwotaPrac", "RazemDniZUS", "RazemKwotaZUS"};
constexpr int kKolumnyHistorii = 22;

}  // namespace

core::Date dataLinii(const std::string& t, const std::string& pole) {
    core::Date d;
    if (core::Len(t) != 8 || !core::isNumeric(t) || !core::parseDate(core::Left(t, 2) + "-" + core::Mid(t, 3, 2) + "-" + core::Right(t, 4), d))
        throw core::Error(core::err::TypeMismatch, pole, "\"" + t + "\" nie jest datą ddmmrrrr");
    return d;
}

int dniOkresu(const core::Date& od, const core::Date& doDnia) {
    using namespace std::chrono;
    auto dzien = [](const core::Date& d) {
        return sys_days(year_month_day(year(d.y), month(static_cast<unsigned>(d.m)), day(static_cast<unsigned>(d.d))));
    };
    return static_cast<int>((dzien(doDnia) - dzien(od)).count()) + 1;
}

float kwotaLinii(double dni, double srednia, double procent) { return core::Round2(dni * srednia * procent / 100); }

KoniecLinii koniecLinii(int dzienPoczatku, int dniLinii, int dniMiesiaca) {
    KoniecLinii k{dzienPoczatku + dniLinii - 1, dniLinii, false};
    if (k.dzien > dniMiesiaca) {
        k.dzien = dniMiesiaca;
        k.dni = dniMiesiaca - dzienPoczatku;
        k.przycieta = true;
    }
    return k;
}

bool platnik(const std::string& kod) {
    const std::string k = core::Trim(kod);
    return k == "331" || k == "333";
}

bool zus(const std::string& kod) {
    const std::string k = core::Trim(kod);
    return k == "311" || k == "312" || k == "313" || k == "314" || k == "121";
}

ChoroboweScreen::Linia ChoroboweScreen::linia(int n) {
    switch (n) {
    case 1: return {&txtSredniaCH1, &txtLiczbadni1, &txtokresOd1, &txtokresDo1, &txtKodPrzerwy1, &txtCh1Pr, &lbch1, Pay::Liczbadni1};
    case 2: return {&txtSredniaCH2, &txtLiczbadni2, &txtokresod2, &txtokresDo2, &txtKodPrzerwy2, &txtCh2Pr, &LbCh2, Pay::Liczbadni2};
    case 3: return {&txtSredniaCH3, &txtLiczbadni3, &txtokresOd3, &txtokresDo3, &txtKodPrzerwy3, &txtCh3Pr, &Lbch3, Pay::Liczbadni3};
    case 4: return {&txtSredniaCH4, &txtLiczbadni4, &txtokresOd4, &txtokresDo4, &txtKodPrzerwy4, &txtCh4Pr, &Lbch4, Pay::Liczbadni4};
    case 5: return {nullptr, &txtBZP1dni, &txtBZP1Od, &txtBZP1Do, &txtBZP1Kod, nullptr, nullptr, Pay::BZP1dni};
    case 6: return {nullptr, &txtBZP2dni, &txtBZP2Od, &txtBZP2Do, &txtBZP2Kod, nullptr, nullptr, Pay::BZP2dni};
    default: return {nullptr, &txtBZP3dni, &txtBZP3Od, &txtBZP3Do, &txtBZP3Kod, nullptr, nullptr, Pay::BZP3dni};
    }
}

ChoroboweScreen::ChoroboweScreen(core::Dialogs& d, core::Session& session)
    : Form(d, "frmChorobowe", "Chorobowe "), s(session) {
    fraPlatne.at(0, 0, 2);
    fraBezplatne.at(1, 0);
    fraSrednia.at(1, 1);
    // The captions stand above the columns of the lines, in row 0 of each frame.
    const char* etykiety[] = {"średnia", "Il.dni", " od (ddmmrrrr)", "do (ddmmrrrr)", "kodSwiad", "Procent", "Kwota"};
    for (int k = 0; k < 7; ++k)
        for (const char* ramka : {"fraPlatne", "fraBezplatne"}) {
            const bool platna = ramka == std::string("fraPlatne");
            if (!platna && (k == 0 || k >= 5)) continue;
            auto& c = naglowki.emplace_back(std::make_unique<core::Control>(
                this, std::string(platna ? "lbKolumna" : "lbKolumnaB") + std::to_string(k + 1), core::Kind::Label,
                etykiety[k]));
            c->in(ramka).at(0, platna ? k : k - 1);
        }
    for (int n = 1; n <= 7; ++n) {
        Linia l = linia(n);
        core::Control* pola[] = {l.srednia, l.dni, l.od, l.doDnia, l.kod, l.procent, l.kwota};
        const bool platna = n <= 4;
        const int wiersz = platna ? n : n - 4;
        for (int k = 0; k < 7; ++k)
            if (core::Control* c = pola[k])
                c->in(platna ? "fraPlatne" : "fraBezplatne").at(wiersz, platna ? k : k - 1).width(k == 2 || k == 3 ? 9 : 6);
        const int nr = n;
        l.od->GotFocus = [this, nr] { wejscieOd(nr); };
        l.od->KeyEnter = [this, nr] { enterOd(nr); };
    }
    LabelKody1.in("fraPlatne").at(5, 0, 7);
    LabelKody2.in("fraPlatne").at(6, 0, 7);
    txtokresDo1.GotFocus = [this] { wejscieDo1(); };
    txtokresDo1.KeyEnter = [this] { enterDo1(); };
    txtokresDo1.Change = [this] { txtokresDo1_Change(false); };
    txtSredniaChorobowa.in("fraSrednia").at(0).label("Średnia dzienna").width(9);
    txtDniChorobyOd01.in("fraSrednia").at(1).label("Dni chorobowe płatnika od 1 stycznia").width(5);
    lbabsencja.in("fraSrednia").at(2).label("Absencja (dni)");
    lbLacznaIloscDni.in("fraSrednia").at(3).label("Łączna ilość dni");
    LbCHR.in("fraSrednia").at(4).label("Razem kwota");
    MonthView1.at(0, 2);
    MonthView2.at(1, 2);
    MonthView1.Visible = MonthView2.Visible = false;
    MSFlexGrid9.at(2, 0, 3).width(96);
    MSFlexGrid9.Visible = false;
    cmdWylaczHistorie.Visible = false;
    cmdZapiszzmiany.at(3, 0);
    cmdWylicz.at(3, 1);
    cmdHistoriachorobowego.at(4, 0);
    cmdWylaczHistorie.at(4, 1);
    cmdWprowadzDoCzasuPracy.at(5, 0);
    cmdkoniec.at(5, 1);
    MonthView1.Click = [this] { MonthView1_DateClick(); };
    MonthView2.Click = [this] { MonthView2_DateClick(); };
    cmdZapiszzmiany.Click = [this] { cmdZapiszzmiany_Click(); };
    cmdWylicz.Click = [this] { cmdWylicz_Click(); };
    cmdHistoriachorobowego.Click = [this] { cmdHistoriachorobowego_Click(); };
    cmdWylaczHistorie.Click = [this] { cmdWylaczHistorie_Click(); };
    cmdWprowadzDoCzasuPracy.Click = [this] { cmdWprowadzDoCzasuPracy_Click(); };
    cmdkoniec.Click = [this] { Unload(); };
}

double ChoroboweScreen::sumaDni() const {
    double suma = 0;
    for (int n = 1; n <= 7; ++n) suma += val(const_cast<ChoroboweScreen*>(this)->linia(n).dni->Text);
    return suma;
}

int ChoroboweScreen::dniMiesiacaListy() const {
    const int r = core::ValInt(s.rok(), "frmChorobowe"), m = core::ValInt(s.miesiac(), "frmChorobowe");
    int d = 31;
    while (d > 28 && !core::validDate({r, m, d})) --d;
    return d;
}

void ChoroboweScreen::Load() {
    Caption = "Chorobowe " + s.NazwiskoOsoby + " " + s.ImieOsoby;
    MonthView1.Text = MonthView2.Text = s.DataListy;
    guarded([&] {
        const int ile = Pay::replace(Pay::path(s), s.KluczOsoby, [&](core::Record& r) { otworzRekord(r); }, "TYMCZ.dta");
        if (ile == 0) {
            ui.msgBox("Ta osoba nie ma danych płacowych na tej liście. Załóż je najpierw w oknie płac.", Buttons::OK,
                      Icon::Information, "Brak danych płacowych");
            cmdZapiszzmiany.Enabled = false;
        }
    });
}

void ChoroboweScreen::otworzRekord(core::Record& r) {
    for (int n = 1; n <= 7; ++n) {
        Linia l = linia(n);
        l.dni->Text = r.s(l.pole);
        l.od->Text = r.s(l.pole + 1);
        l.doDnia->Text = r.s(l.pole + 2);
        l.kod->Text = r.s(l.pole + 3);
        if (!l.srednia) continue;
        l.procent->Text = r.s(l.pole + 4);
        const std::string sr = r.s(l.pole - 1);
        l.srednia->Text = val(sr) == 0 && val(l.dni->Text) > 0 ? r.s(Pay::SredniaChorobowa) : sr;
    }
    txtSredniaChorobowa.Text = r.s(Pay::SredniaChorobowa);
    txtDniChorobyOd01.Text = r.s(Pay::DniChorobyOd01);
    txtLiczbadni1.Text = core::LTrim(txtLiczbadni1.Text);
    for (core::Control* c : controls())
        if (c->kind == core::Kind::TextBox) core::KropkaZamiastPrzecinka(c->Text);
    lbLacznaIloscDni.Caption = core::numText(sumaDni());
    lbabsencja.Caption = lbLacznaIloscDni.Caption;
    doRekordu(r);
    kwoty(r);
}

// The boxes into the record (numbers as numbers, the averages lower-cased), then the percent
// "80" of a paid line with days and no percent.
void ChoroboweScreen::doRekordu(core::Record& r) {
    for (int n = 1; n <= 7; ++n) {
        Linia l = linia(n);
        doPola(r, l.pole, l.dni->Text, true);
        doPola(r, l.pole + 1, l.od->Text, false);
        doPola(r, l.pole + 2, l.doDnia->Text, false);
        doPola(r, l.pole + 3, l.kod->Text, false);
        if (!l.srednia) continue;
        doPola(r, l.pole + 4, l.procent->Text, true);
        doPola(r, l.pole - 1, core::LCase(l.srednia->Text), true);
    }
    doPola(r, Pay::SredniaChorobowa, txtSredniaChorobowa.Text, true);
    doPola(r, Pay::DniChorobyOd01, txtDniChorobyOd01.Text, true);
    for (int n = 1; n <= 4; ++n) {
        Linia l = linia(n);
        if (val(r.s(l.pole)) > 0 && r.s(l.pole + 4).empty()) {
            l.procent->Text = "80";
            r.set(l.pole + 4, 80L);
        }
    }
}

void ChoroboweScreen::kwoty(core::Record& r) {
    double suma = 0;
    for (int n = 1; n <= 4; ++n) {
        Linia l = linia(n);
        const float k = kwotaLinii(r.d(l.pole), r.d(l.pole - 1), r.d(l.pole + 4));
        r.set(Pay::KwotaCh1 + n - 1, k);
        l.kwota->Caption = kwotaTekst(k);
        suma += k;
    }
    LbCHR.Caption = kwotaTekst(core::Round2(suma));
}

void ChoroboweScreen::cmdZapiszzmiany_Click() {
    for (core::Control* c : controls())
        if (c->kind == core::Kind::TextBox && !wpisPoprawny(*this, c->Text)) return SetFocus(*c);
    guarded([&] {
        Pay::replace(
            Pay::path(s), s.KluczOsoby,
            [&](core::Record& r) {
                // 1. The average of a line with days is its text, else the person's average.
                for (int n = 1; n <= 4; ++n) {
                    Linia l = linia(n);
                    if (l.srednia->Text.empty() || !(val(l.dni->Text) > 0)) l.srednia->Text = txtSredniaChorobowa.Text;
                }
                // 2.
                txtLiczbadni1.Text = core::LTrim(txtLiczbadni1.Text);
                for (core::Control* c : controls())
                    if (c->kind == core::Kind::TextBox) core::KropkaZamiastPrzecinka(c->Text);
                // 3. All seven lines, the unpaid ones too.
                const double absencja = sumaDni();
                lbabsencja.Caption = core::numText(absencja);
                // 4. A paid line without days loses its dates, code, percent and average.
                for (int n = 1; n <= 4; ++n) {
                    Linia l = linia(n);
                    if (val(l.dni->Text) != 0) continue;
                    for (core::Control* c : {l.od, l.doDnia, l.kod, l.procent, l.srednia}) c->Text.clear();
                }
                // 5., 6.
                doRekordu(r);
                // 7. A line of average 0 shows the person's average, but its amount stays 0.
                for (int n = 1; n <= 4; ++n) {
                    Linia l = linia(n);
                    if (val(r.s(l.pole - 1)) == 0 && val(r.s(l.pole)) > 0) l.srednia->Text = txtSredniaChorobowa.Text;
                }
                // 8., 9.
                kwoty(r);
                // 10. The answer changes nothing: the record is written all the same.
                if (absencja + val(txtDniChorobyOd01.Text) > 33)
                    ui.msgBox("Zamień odpowiednio dni chorobowe na zasilkowe ZUS!", Buttons::OKCancel, Icon::Exclamation,
                              "Liczba dni płatnych przez płatnika została przekroczona !");
            },
            "TYMCZ.dta");
        Unload();
    });
}

void ChoroboweScreen::cmdWylicz_Click() {
    SredniaScreen f(ui, s, &txtSredniaChorobowa);
    ui.showForm(f);
}

void ChoroboweScreen::wejscieOd(int n) {
    MonthView1.Visible = true;
    biezacaLinia = n;
    dniBiezacejLinii = static_cast<int>(val(linia(n).dni->Text));
}

void ChoroboweScreen::wejscieDo1() { MonthView2.Visible = true; }

void ChoroboweScreen::enterOd(int n) {
    linia(n).od->Text = bezSeparatorow(MonthView1.Text);
    MonthView1.Visible = false;
}

void ChoroboweScreen::enterDo1() {
    txtokresDo1.Text = bezSeparatorow(MonthView2.Text);
    MonthView2.Visible = false;
    txtokresDo1_Change(true);
}

void ChoroboweScreen::MonthView1_DateClick() {
    if (biezacaLinia < 1 || biezacaLinia > 7) return;
    guarded([&] {
        Linia l = linia(biezacaLinia);
        const std::string data = bezSeparatorow(MonthView1.Text);
        const core::Date d = dataLinii(data, MonthView1.Name);
        l.od->Text = data;
        KoniecLinii k = koniecLinii(d.d, dniBiezacejLinii, dniMiesiacaListy());
        if (k.przycieta)
            ui.msgBox(" Ustaw ręcznie datę Do i ilość dni!", Buttons::OK, Icon::Exclamation,
                      " Przekroczona ilośc  dni poza okres sprawozdawczy ");
        dniBiezacejLinii = k.dni;
        l.dni->Text = std::to_string(k.dni);
        if (k.dni == 0) l.doDnia->Text = l.od->Text;
        l.doDnia->Text = core::CyfryTekst(k.dzien, 2) + core::Right(data, 6);
        MonthView1.Visible = false;
    });
}

void ChoroboweScreen::MonthView2_DateClick() {
    guarded([&] {
        txtokresDo1.Text = bezSeparatorow(MonthView2.Text);
        std::string dni = core::Trim(txtLiczbadni1.Text);
        if (val(dni) == 0)
            dni = std::to_string(dniOkresu(dataLinii(txtokresOd1.Text, txtokresOd1.Name),
                                           dataLinii(txtokresDo1.Text, txtokresDo1.Name)));
        txtLiczbadni1.Text = dni;
        MonthView2.Visible = false;
    });
}

void ChoroboweScreen::txtokresDo1_Change(bool enter) {
    bool dobre = true;
    if (core::Len(txtokresOd1.Text) != 8) {
        ui.msgBox(" Data poczatkowa posiada zły format ddmmrrrr ", Buttons::OK, Icon::Exclamation);
        dobre = false;
    }
    if (core::Len(txtokresDo1.Text) != 8) {
        ui.msgBox(" Data Koncowa posiada zły format ddmmrrrr ", Buttons::OK, Icon::Exclamation);
        dobre = false;
    }
    if (!dobre) return;
    guarded([&] {
        const int dni = dniOkresu(dataLinii(txtokresOd1.Text, txtokresOd1.Name), dataLinii(txtokresDo1.Text, txtokresDo1.Name));
        if (enter && val(txtLiczbadni1.Text) != 0) return;
        txtLiczbadni1.Text = std::to_string(dni);
    });
}

void ChoroboweScreen::cmdHistoriachorobowego_Click() {
    MSFlexGrid9.setGrid(1, kKolumnyHistorii);
    for (int c = 0; c < kKolumnyHistorii; ++c) MSFlexGrid9.TextMatrix(0, c) = kNaglowkiHistorii[c];
    double rokDniP = 0, rokKwP = 0, rokDniZ = 0, rokKwZ = 0;
    double laczna = val(lbLacznaIloscDni.Caption);
    const std::string rr = core::Right(s.rok(), 2);
    for (int m = 1; m <= 12; ++m) {
        std::vector<core::Record> karta;
        try {
            karta = Karta::readAll(Karta::path(s, s.NazwaZbioru, rr + core::CyfryTekst(m, 2)));
        } catch (const core::Error&) {
            continue;  // a month without a readable ledger is passed over
        }
        const core::Record* k = nullptr;
        for (const core::Record& r : karta)
            if (r.s(Karta::Klucz) == s.KluczOsoby) {
                k = &r;
                break;
            }
        if (!k) continue;
        double dniP = 0, kwP = 0, dniZ = 0, kwZ = 0, dniLinii = 0;
        std::vector<std::string> wiersz = {" Chorobowe ", k->s(Karta::DataListy)};
        for (int n = 0; n < 4; ++n) {
            const int b = Karta::SredniaCH1 + 6 * n;
            const double dni = val(k->s(b + 1));
            const double kw = val(k->s(Karta::KwotaLinii1 + n));
            const std::string kod = k->s(b + 4);
            if (platnik(kod)) dniP += dni, kwP += kw;
            if (zus(kod)) dniZ += dni, kwZ += kw;
            dniLinii += dni;
            wiersz.insert(wiersz.end(), {k->s(b + 2), k->s(b + 3), kod, kwotaTekst(kw)});
        }
        rokDniP += dniP, rokKwP += kwP, rokDniZ += dniZ, rokKwZ += kwZ;
        if (dniP + dniZ == 0) continue;
        wiersz.insert(wiersz.end(), {core::numText(dniP), kwotaTekst(kwP), core::numText(dniZ), kwotaTekst(kwZ)});
        MSFlexGrid9.Cells.push_back(wiersz);
        MSFlexGrid9.Styles.emplace_back(kKolumnyHistorii);
        ++MSFlexGrid9.Rows;
        laczna += dniLinii;
    }
    std::vector<std::string> suma(kKolumnyHistorii);
    suma[0] = " SUMA  ";
    suma[1] = " Razem rok";
    suma[18] = core::numText(rokDniP);
    suma[19] = kwotaTekst(rokKwP);
    suma[20] = core::numText(rokDniZ);
    suma[21] = kwotaTekst(rokKwZ);
    MSFlexGrid9.Cells.push_back(suma);
    MSFlexGrid9.Styles.emplace_back(kKolumnyHistorii, core::Control::CellStyle{kKolorSumy, -1, false});
    ++MSFlexGrid9.Rows;
    lbLacznaIloscDni.Caption = core::numText(laczna);
    MSFlexGrid9.Visible = true;
    cmdWylaczHistorie.Visible = true;
}

void ChoroboweScreen::cmdWylaczHistorie_Click() {
    MSFlexGrid9.Visible = false;
    cmdWylaczHistorie.Visible = false;
}

void ChoroboweScreen::cmdWprowadzDoCzasuPracy_Click() {
    guarded([&] {
        const auto plik = CzasPracy::path(s, s.rok());
        std::vector<CzasPracy::Blok> bloki = CzasPracy::readAll(plik);
        const std::string tym = CzasPracy::nazwaTymczasowa(s, s.rok(), true);
        const int m = core::ValInt(s.miesiac(), "frmChorobowe");
        core::SeqWriter w;
        for (const CzasPracy::Blok& b : bloki) {
            if (b.naglowek.s(CzasPracy::Naglowek::Identyfikator) != s.KluczOsoby || m < 1 || m > 12) {
                core::piszBlok(w, b);
                continue;
            }
            // The day lines of the list's month are to come from a month grid this screen has
            // not: the copy stops before the first of them and the file stays as it was.
            core::writeRecord(w, b.naglowek);
            for (int i = 0; i < m; ++i) {
                core::writeRecord(w, b.miesiace[i]);
                if (i + 1 < m)
                    for (const core::Record& d : b.dni[i]) core::writeRecord(w, d);
            }
            core::commitFile(plik.parent_path() / tym, w);
            return;
        }
        core::commitFile(plik, w, tym);
    });
}

}  // namespace leave
