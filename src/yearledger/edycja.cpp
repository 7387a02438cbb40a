#include "yearledger/edycja.h"

#include <climits>
#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/karta_record.h"

namespace K = paycalc::Karta;
using core::Buttons;
using core::FieldType;
using core::Icon;

namespace yearledger {

namespace {

const char* const kTytul = "Edycja kartoteki";

FieldType typPola(int n) { return K::schema().fields[static_cast<std::size_t>(n - 1)].type; }

bool liczbowe(FieldType t) {
    return t == FieldType::Float || t == FieldType::Double || t == FieldType::Int16 || t == FieldType::Long;
}

std::optional<double> liczba(const std::string& tekst) {
    const std::string t = core::Trim(core::KropkaZamiastPrzecinka(std::string(tekst)));
    if (t.empty()) return 0.0;
    try {
        return core::toDouble(t, "edycja kartoteki");
    } catch (const core::Error&) {
        return std::nullopt;
    }
}

// Stores a checked text by the field's type; a variant keeps its kind: a number stays bare,
// a text quoted.
void ustaw(core::Record& r, int n, const std::string& tekst) {
    const FieldType t = typPola(n);
    const std::string tr = core::Trim(core::KropkaZamiastPrzecinka(std::string(tekst)));
    switch (t) {
    case FieldType::Float: r.set(n, static_cast<float>(*liczba(tekst))); break;
    case FieldType::Double: r.set(n, *liczba(tekst)); break;
    case FieldType::Int16:
    case FieldType::Long: r.set(n, static_cast<long>(*liczba(tekst))); break;
    case FieldType::Variant:
        if (tekst.empty())
            r.setEmpty(n);
        else if (r.item(n).kind == core::Item::Quoted || !liczba(tekst))
            r.setItem(n, core::Item::quoted(tekst));
        else
            r.setItem(n, core::Item::bare(tr));
        break;
    default: r.set(n, tekst);
    }
}

}  // namespace

std::string zlaWartosc(int n, const std::string& tekst) {
    const FieldType t = typPola(n);
    const std::string pole = "Pole " + std::to_string(n) + " (" + std::string(K::schema().fields[static_cast<std::size_t>(n - 1)].name) + ")";
    if (t == FieldType::Blank)
        return core::Trim(tekst).empty() ? "" : pole + " jest w kartotece zawsze puste - nie można w nim nic wpisać.";
    if (liczbowe(t)) {
        std::optional<double> v = liczba(tekst);
        if (!v) return pole + " przyjmuje tylko liczbę (np. 1234.56), a wpisano \"" + tekst + "\".";
        if (t == FieldType::Int16 || t == FieldType::Long) {
            if (*v != std::floor(*v)) return pole + " przyjmuje tylko liczbę całkowitą.";
            const double max = t == FieldType::Int16 ? 32767 : 2147483647.0;
            if (*v > max || *v < -max - 1) return pole + " przyjmuje liczbę od " + core::numText(-max - 1) + " do " + core::numText(max) + ".";
        }
        return {};
    }
    if (tekst.find('"') != std::string::npos) return pole + " nie może zawierać cudzysłowu (\").";
    try {
        core::toCp1250(tekst);
    } catch (const core::Error&) {
        return pole + " zawiera znak, którego nie można zapisać w plikach programu (strona kodowa 1250).";
    }
    return {};
}

std::string wartoscPola(const core::Record& r, int n) { return r.item(n).text; }

bool zapiszZmiany(const std::filesystem::path& plik, const std::string& lista, const std::string& klucz,
                  const std::map<int, std::string>& zmiany) {
    for (const auto& [n, tekst] : zmiany)
        if (std::string b = zlaWartosc(n, tekst); !b.empty()) throw core::Error(core::err::TypeMismatch, plik.string(), b);
    std::vector<core::Record> recs = K::readAll(plik);
    for (core::Record& r : recs) {
        if (r.s(K::Klucz) != klucz) continue;
        for (const auto& [n, tekst] : zmiany) ustaw(r, n, tekst);
        core::writeAll(plik, recs, "tym" + lista + ".dta");
        return true;
    }
    return false;
}

EdycjaKartotekiScreen::EdycjaKartotekiScreen(core::Dialogs& ui, core::Session& session, std::string stempel)
    : Form(ui, "frmEdycjaKartoteki", "Edycja kartoteki miesięcznej"), s(session), RRmm(std::move(stempel)) {
    lbOsoba.at(0, 0, 4);
    MSFlexGrid1.at(1, 0, 4).width(90);
    lbPole.at(2, 0, 4);
    txtWartosc.at(3, 0, 2).label("Nowa wartość:").width(40);
    cmdZmien.at(3, 2);
    cmdZapisz.at(4, 0);
    cmdKoniec.at(4, 3);
    MSFlexGrid1.Click = [this] { MSFlexGrid1_Click(); };
    txtWartosc.KeyEnter = [this] { cmdZmien_Click(); };
    cmdZmien.Click = [this] { cmdZmien_Click(); };
    cmdZapisz.Click = [this] { cmdZapisz_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
    MSFlexGrid1.setGrid(1, 3);
    MSFlexGrid1.Cells[0] = {"Nr", "Pole", "Wartość"};
    MSFlexGrid1.ColWidth = {4, 26, 40};
}

void EdycjaKartotekiScreen::Load() {
    if (RRmm.empty()) RRmm = s.RRmm();
    plik = K::path(s, s.NazwaZbioru, RRmm);
    lbOsoba.Caption = s.NazwiskoOsoby + " " + s.ImieOsoby + "  (" + s.KluczOsoby + ")  kartoteka " + s.NazwaZbioru + RRmm;
    guarded([&] {
        if (!core::fileExists(plik)) {
            ui.msgBox("Brak kartoteki za miesiąc " + RRmm + " - nie ma czego poprawiać.", Buttons::OK, Icon::Exclamation, kTytul);
            Unload();
            return;
        }
        for (core::Record& r : K::readAll(plik))
            if (r.s(K::Klucz) == s.KluczOsoby) {
                rekord = std::move(r);
                break;
            }
        if (!rekord.valid()) {
            ui.msgBox("W kartotece za miesiąc " + RRmm + " nie ma zapisu tej osoby.", Buttons::OK, Icon::Exclamation, kTytul);
            Unload();
            return;
        }
        MSFlexGrid1.setGrid(K::Count + 1, 3);
        MSFlexGrid1.Cells[0] = {"Nr", "Pole", "Wartość"};
        for (int n = 1; n <= K::Count; ++n)
            MSFlexGrid1.Cells[static_cast<std::size_t>(n)] = {std::to_string(n), rekord.fieldName(n), wartoscPola(rekord, n)};
    });
}

void EdycjaKartotekiScreen::MSFlexGrid1_Click() {
    const int n = MSFlexGrid1.Row;
    if (n < 1 || n > K::Count) return;
    lbPole.Caption = "Pole " + std::to_string(n) + ": " + MSFlexGrid1.TextMatrix(n, 1);
    txtWartosc.Text = MSFlexGrid1.TextMatrix(n, 2);
}

void EdycjaKartotekiScreen::cmdZmien_Click() {
    const int n = MSFlexGrid1.Row;
    if (n < 1 || n > K::Count) {
        ui.msgBox("Najpierw wybierz w tabeli pole do zmiany.", Buttons::OK, Icon::Exclamation, kTytul);
        return;
    }
    if (std::string b = zlaWartosc(n, txtWartosc.Text); !b.empty()) {
        ui.msgBox(b + " Zmiany nie przyjęto.", Buttons::OK, Icon::Exclamation, kTytul);
        return;
    }
    zmiany[n] = txtWartosc.Text;
    MSFlexGrid1.TextMatrix(n, 2) = txtWartosc.Text;
}

void EdycjaKartotekiScreen::cmdZapisz_Click() {
    if (zmiany.empty()) {
        ui.msgBox("Nie zmieniono żadnego pola.", Buttons::OK, Icon::Information, kTytul);
        return;
    }
    guarded([&] {
        if (!zapiszZmiany(plik, s.NazwaZbioru, s.KluczOsoby, zmiany)) {
            ui.msgBox("W kartotece nie ma już zapisu tej osoby. Zmian nie zapisano.", Buttons::OK, Icon::Exclamation, kTytul);
            return;
        }
        zmiany.clear();
        ui.msgBox("Zapisano zmiany w kartotece " + s.NazwaZbioru + RRmm + ".", Buttons::OK, Icon::Information, kTytul);
    });
}

}  // namespace yearledger
