#include "reference/mojafirma.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;
using core::Icon;
using core::Kind;

namespace reference {

namespace {

// The text boxes of the screen, with their labels. The fax, the e-mail address and the
// post-office box are kept in the reserve items of the record.
const core::FieldBox kBoxes[] = {
    {Firma::SkrotPlatnika, "txtSkrótM", "Skrót", "fraFirma", -1, 12},
    {Firma::NazwaM, "txtNazwaM", "Nazwa pełna", "fraFirma", -1, 44},
    {Firma::NazwaSkrocona, "txtNazwaSkrocona", "Nazwa skrócona jak do ZUS", "fraFirma", -1, 31},
    {Firma::NIP, "txtNIPpes", "Nip ", "fraFirma", -1, 13},
    {Firma::RegonM, "txtRegonM", "Regon", "fraFirma", -1, 14},
    {Firma::NazwiskoM, "txtNazwiskoM", "Nazwisko", "fraFirma", -1, 24},
    {Firma::ImieM, "txtImieM", "Imie", "fraFirma", -1, 16},
    {Firma::PeselM, "txtPeselM", " Pesel", "fraFirma", -1, 11},
    {Firma::DataurodzeniaP, "txtDataurodzeniaP", "Data urodzenia", "fraFirma", -1, 8},
    {Firma::DowodM, "txtDowodM", "Dowód Osobisty", "fraFirma", -1, 10},
    {Firma::KODM, "txtKODM", "Kod pocztowy", "fraAdres", -1, 6},
    {Firma::MiejscM, "txtMiejscM", "Miejscowosc", "fraAdres", -1, 24},
    {Firma::PocztM, "txtPocztM", "Poczta", "fraAdres", -1, 24},
    {Firma::UlicaM, "txtUlicaM", "Ulica", "fraAdres", -1, 24},
    {Firma::NumerDomuM, "txtNumerDomuM", "Numer domu", "fraAdres", -1, 6},
    {Firma::lokM, "txtlokM", "Nr Lokalu", "fraAdres", -1, 6},
    {Firma::GMINM, "txtGMINM", "Gmina ", "fraAdres", -1, 24},
    {Firma::PowM, "txtPowM", "Powiat", "fraAdres", -1, 24},
    {Firma::WOJM, "txtWOJM", "Województwo", "fraAdres", -1, 24},
    {Firma::TelM, "txtTelM", "Telefon", "fraAdres", -1, 16},
    {Firma::RezerwaF12, "txtFaxZ", "Fax", "fraAdres", -1, 16},
    {Firma::RezerwaF13, "txtmailZ", "E-mail", "fraAdres", -1, 24},
    {Firma::RezerwaF1, "txtSkrPocztowaZ", "Skrytka pocztowa", "fraAdres", -1, 10},
    {Firma::UrzadSkarbowyM, "txtUrzadSkarbowyM", "Urząd Skarbowy", "fraRozliczenia", -1, 36},
    {Firma::NrKontaMoj1, "txtNrKontaMoj1", "Konto 1", "fraRozliczenia", -1, 32},
    {Firma::NrKontaMoj2, "txtNrKontaMoj2", "Konto 2", "fraRozliczenia", -1, 32},
    {Firma::NrKontaMoj3, "txtNrKontaMoj3", "Konto 3", "fraRozliczenia", -1, 32},
    {Firma::RodzajPlatnika, "txtRodzajPlatnika", "Rodzaj Płatnika", "fraRozliczenia", -1, 2},
    {Firma::TerminPlatnosciZUSM, "txtTerminPlatnosciZUSM", "Termin przesyłania dokumentów do ZUS (123)",
     "fraRozliczenia", -1, 2},
    {Firma::WypadkowaStawkaF, "txtWypadkowaStawkaF", "Stawka wypadkowa Firmy", "fraRozliczenia", -1, 6},
    {Firma::DodatkiStazowe, "txtDodatkiStazowe", "Dodatki Stażowe (Oskładkowane =T  ,Nie =N ", "fraRozliczenia", -1, 2},
};

const char* const kTytulBledu = "Błędne dane Płatnika";

}  // namespace

MojaFirmaScreen::MojaFirmaScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmMojaFirma", "Nazwa własnej Firmy"), s(session), boxes(*this, kBoxes) {
    lbPozycja.at(0, 0, 2);
    fraFirma.at(1, 0);
    fraAdres.at(1, 1, 1);
    fraRozliczenia.at(2, 0, 2);
    txt(Firma::SkrotPlatnika).Locked = true;
    txt(Firma::SkrotPlatnika).ToolTipText = "Skrót jest nazwą folderu Płatnika; nadaje się go przy dodawaniu Płatnika";
    txt(Firma::DataurodzeniaP).ToolTipText = "ddmmRRRR";
    lbDataurodzenia.in("fraFirma").at(8, 1);
    txt(Firma::RodzajPlatnika).ToolTipText = lbRodzajPlatnika.Caption;
    lbRodzajPlatnika.in("fraRozliczenia").at(4, 1);
    txt(Firma::TerminPlatnosciZUSM).ToolTipText = "1, 2 lub 3";
    txt(Firma::WypadkowaStawkaF).ToolTipText =
        "Stawka wypadkowa Płatnika w procentach; 0 = stawka z tabeli stawek roku";
    txt(Firma::DodatkiStazowe).ToolTipText = "T = oskładkowane, N = nie";
    cmdWstecz.at(3, 0);
    cmdNext.at(3, 1);
    cmdZnajdz.at(4, 0);
    cmdDodaj.at(4, 1);
    cmdZmianyM.at(5, 0);
    cmdUsun.at(5, 1);
    cmdKoniecM.at(6, 0);
    cmdZamknij.at(6, 1);

    cmdWstecz.Click = [this] { cmdWstecz_Click(); };
    cmdNext.Click = [this] { cmdNext_Click(); };
    cmdZnajdz.Click = [this] { cmdZnajdz_Click(); };
    cmdDodaj.Click = [this] { cmdDodaj_Click(); };
    cmdZmianyM.Click = [this] { cmdZmianyM_Click(); };
    cmdUsun.Click = [this] { cmdUsun_Click(); };
    cmdKoniecM.Click = [this] { cmdKoniecM_Click(); };
    cmdZamknij.Click = [this] { Unload(); };
}

std::vector<core::Record> MojaFirmaScreen::read() { return readPayers(s); }

void MojaFirmaScreen::show(const std::vector<core::Record>& recs, int index) {
    const int n = static_cast<int>(recs.size());
    Biezacy = n == 0 ? -1 : std::clamp(index, 0, n - 1);
    if (Biezacy < 0)
        boxes.clear();
    else
        boxes.fill(recs[static_cast<std::size_t>(Biezacy)]);
    skrotShown = txt(Firma::SkrotPlatnika).Text;
    cmdWstecz.Enabled = Biezacy > 0;
    cmdNext.Enabled = Biezacy >= 0 && Biezacy < n - 1;
    cmdZnajdz.Enabled = cmdZmianyM.Enabled = cmdUsun.Enabled = cmdKoniecM.Enabled = Biezacy >= 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) boxes.box(i).Enabled = Biezacy >= 0;
    if (Biezacy < 0) {
        lbPozycja.Caption = "Rejestr Płatników jest pusty - dodaj Płatnika.";
    } else {
        lbPozycja.Caption = "Płatnik " + std::to_string(Biezacy + 1) + " z " + std::to_string(n);
        if (skrotShown == s.SkrotPlatnika) lbPozycja.Caption += "  (bieżący Płatnik programu)";
    }
}

int MojaFirmaScreen::shown(const std::vector<core::Record>& recs) const {
    if (Biezacy >= 0 && Biezacy < static_cast<int>(recs.size()) &&
        recs[static_cast<std::size_t>(Biezacy)].s(Firma::SkrotPlatnika) == skrotShown)
        return Biezacy;
    for (std::size_t i = 0; i < recs.size(); ++i)
        if (recs[i].s(Firma::SkrotPlatnika) == skrotShown) return static_cast<int>(i);
    return -1;
}

void MojaFirmaScreen::Load() {
    auto recs = read();
    show(recs, findPayer(recs, s.SkrotPlatnika));
}

void MojaFirmaScreen::cmdNext_Click() {
    auto recs = read();
    int i = shown(recs);
    show(recs, i + 1);
}

void MojaFirmaScreen::cmdWstecz_Click() {
    auto recs = read();
    int i = shown(recs);
    show(recs, i < 0 ? 0 : i - 1);
}

void MojaFirmaScreen::cmdZnajdz_Click() {
    auto typed = ui.inputBox("Podaj skrót, NIP lub część nazwy szukanego Płatnika", "Znajdź Płatnika");
    if (!typed || core::Trim(*typed).empty()) return;
    const std::string want = core::UCase(core::Trim(*typed));
    const std::string digits = core::Replace(core::Replace(want, "-", ""), " ", "");
    auto recs = read();
    const int n = static_cast<int>(recs.size());
    int from = shown(recs);
    for (int k = 1; k <= n; ++k) {
        int i = (from + k + n) % n;
        const core::Record& r = recs[static_cast<std::size_t>(i)];
        std::string nip = core::Replace(core::Replace(r.s(Firma::NIP), "-", ""), " ", "");
        if (core::UCase(r.s(Firma::SkrotPlatnika)) == want || (!digits.empty() && nip == digits) ||
            core::InStr(core::UCase(r.s(Firma::NazwaM)), want) > 0 ||
            core::InStr(core::UCase(r.s(Firma::NazwaSkrocona)), want) > 0) {
            show(recs, i);
            return;
        }
    }
    ui.msgBox("Nie znaleziono Płatnika: " + core::Trim(*typed), Buttons::OK, Icon::Information, "Znajdź Płatnika");
}

void MojaFirmaScreen::cmdDodaj_Click() {
    auto typed = ui.inputBox("Podaj skrót nazwy Płatnika (bez spacji,przecinków polskich liter i apostrofów np. ORVEL)",
                             " Przyjęcie skróconej nazwy Platnika", "Dodaj Płatnika");
    if (!typed) return;
    std::string skrot = *typed;
    auto recs = read();
    std::string why = badPayerName(skrot, s.katalog(), recs);
    if (!why.empty()) {
        ui.msgBox(why + " Płatnika nie dodano.", Buttons::OK, Icon::Exclamation, "Błędny skrót Płatnika");
        return;
    }
    makePayerTree(s.katalog(), skrot);
    core::Record r(Firma::schema());
    r.set(Firma::SkrotPlatnika, skrot);
    recs.push_back(r);
    Firma::writeAll(Firma::path(s), recs);
    show(recs, static_cast<int>(recs.size()) - 1);
    ui.msgBox("Uzupełnij dane nowego Płatnika i Zapisz Zmiany", Buttons::OK, Icon::Information);
    SetFocus(txt(Firma::NazwaM));
}

bool MojaFirmaScreen::check() {
    core::Control& st = txt(Firma::WypadkowaStawkaF);
    std::string t = core::Trim(core::KropkaZamiastPrzecinka(std::string(st.Text)));
    if (!t.empty() && !core::isNumeric(t)) {
        ui.msgBox("Stawka wypadkowa Firmy musi być liczbą (np. 1.67), wpisano \"" + st.Text + "\". Zmian nie zapisano.",
                  Buttons::OK, Icon::Exclamation, kTytulBledu);
        SetFocus(st);
        return false;
    }
    return true;
}

void MojaFirmaScreen::take(core::Record& r) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const core::FieldBox& b = boxes.def(i);
        const std::string& t = boxes.box(i).Text;
        if (b.field == Firma::SkrotPlatnika || r.s(b.field) == t) continue;  // unchanged items keep their form
        if (b.field == Firma::WypadkowaStawkaF) {
            std::string v = core::Trim(core::KropkaZamiastPrzecinka(std::string(t)));
            r.set(b.field, static_cast<float>(core::toDoubleOrZero(v, b.control)));
        } else if (r.schema().fields[b.field - 1].type == core::FieldType::Variant && t.empty()) {
            r.setEmpty(b.field);
        } else {
            r.set(b.field, t);
        }
    }
}

void MojaFirmaScreen::cmdZmianyM_Click() {
    if (!check()) return;
    auto recs = read();
    int i = shown(recs);
    if (i < 0) {
        ui.msgBox("Płatnika \"" + skrotShown + "\" nie ma już w rejestrze - zmian nie zapisano.", Buttons::OK,
                  Icon::Exclamation, kTytulBledu);
        return;
    }
    core::Record& r = recs[static_cast<std::size_t>(i)];
    bool saved = false;
    guarded([&] {
        take(r);
        Firma::writeAll(Firma::path(s), recs);
        saved = true;
    });
    if (!saved) return;
    // The payer of the session takes its new values at once (its own accident rate too).
    if (r.s(Firma::SkrotPlatnika) == s.SkrotPlatnika) {
        s.Firma = r;
        loadRates(s);
    }
    show(recs, i);
    lbPozycja.Caption += "  -  zmiany zapisane";
}

void MojaFirmaScreen::cmdUsun_Click() {
    auto recs = read();
    int i = shown(recs);
    if (i < 0) return;
    std::string skrot = recs[static_cast<std::size_t>(i)].s(Firma::SkrotPlatnika);
    if (ui.msgBox("Czy na pewno usunąć Płatnika " + skrot +
                      " z rejestru? Folder z jego danymi pozostaje na dysku.",
                  Buttons::YesNo, Icon::Question, "Usuwanie Płatnika") != Answer::Yes)
        return;
    recs.erase(recs.begin() + i);
    Firma::writeAll(Firma::path(s), recs);
    show(recs, i);
}

void MojaFirmaScreen::cmdKoniecM_Click() {
    auto recs = read();
    int i = shown(recs);
    if (i < 0) return;
    try {
        choosePayer(s, recs[static_cast<std::size_t>(i)]);
    } catch (const core::Error& e) {
        if (e.Number != core::err::PathNotFound) throw;
        brakPlatnika(ui);
    }
    Unload();
}

}  // namespace reference
