#include "bank/dobanku.h"

#include <algorithm>

#include "bank/przelewy.h"
#include "bank/ror_record.h"
#include "core/numbers.h"
#include "core/text.h"
#include "personnel/sortuj.h"

using core::Answer;
using core::Buttons;
using core::Icon;

namespace bank {

namespace {

const char* const kNaglowki[DoBankuScreen::kKolumny] = {"Nr.Kol", "Nazwisko pracownika ", "Imie    ", "Nr.Konta",
                                                         "Kwota",  "DataPrzel",            "Adres       ", "Treść"};
// The widths of the columns in characters, after the widths of the batch's printed order.
const int kSzerokosci[DoBankuScreen::kKolumny] = {6, 22, 15, 26, 10, 9, 40, 40};

}  // namespace

DoBankuScreen::DoBankuScreen(core::Dialogs& ui, core::Session& session)
    : Form(ui, "frmDoBanku", "Przelewy wynagrodzeń do banku"), s(session) {
    txtZestawZ.at(0, 0).label("Zestaw zbiorów do łączenia").width(6);
    txtNrUnikatowy.at(0, 1).label("Numer unikatowy banku").width(8).tip("4 cyfry lub znaki od 3 znaku nr.konta( nr banku)");
    Label5.at(0, 2, 2);
    CmbWybierzListe.at(1, 0).label("Rodzaj list do wypłaty").width(20);
    txtNrDodatku.at(1, 1).label("Wpisz nr dodatku od 1-7").width(3);
    txtkwotaRazem.at(1, 2).label("Razem").width(12);
    txtkwotaRazem.Locked = true;
    CmdUtworzRor.at(2, 0);
    cmdPrzegladaj.at(2, 1);
    cmdSort.at(2, 2);
    cmdZapiszPosortowany.at(2, 3);
    CmdUsunRekord.at(3, 0);
    Text1.at(3, 1).label("Szukane nazwisko").width(16).tip("Nazwisko lub jego część do odszukania w tabeli");
    cmdFindTxt.at(3, 2);
    cmdKoniec.at(3, 3);
    MSFlexGrid1.at(4, 0, 4).width(120);
    ProgressBar1.at(5, 0, 4);
    cmdDrukujROR.at(6, 0);
    CmdNaDyskietke.at(6, 1).tip("Zestawienie kont i kwot dla banku, zapisane w wybranym folderze");
    cmdDohomenet.at(6, 2).tip("Wykonujezbiór w formacie Elixir w  np. c:\\Tesmar\\skrót\\HOMENET");

    for (const char* r : kRodzajeList) CmbWybierzListe.AddItem(r);
    CmbWybierzListe.ListIndex = 0;
    CmbWybierzListe.Text = kRodzajeList[0];
    txtNrDodatku.Visible = false;
    MSFlexGrid1.setGrid(1, kKolumny);
    for (int c = 0; c < kKolumny; ++c) {
        MSFlexGrid1.TextMatrix(0, c) = kNaglowki[c];
        MSFlexGrid1.ColWidth[static_cast<std::size_t>(c)] = kSzerokosci[c];
    }

    txtZestawZ.LostFocus = [this] { txtZestawZ.Text = core::UCase(txtZestawZ.Text); };
    txtNrUnikatowy.Change = [this] {
        const std::string opis = opisBanku(txtNrUnikatowy.Text);
        if (!opis.empty()) Label5.Caption = opis;
    };
    CmbWybierzListe.Click = [this] {
        CmbWybierzListe.Text = CmbWybierzListe.selectedText();
        txtNrDodatku.Visible = core::RTrim(CmbWybierzListe.Text) == "Dodatkowe";
    };
    CmdUtworzRor.Click = [this] { CmdUtworzRor_Click(); };
    cmdPrzegladaj.Click = [this] { cmdPrzegladaj_Click(); };
    MSFlexGrid1.Click = [this] { MSFlexGrid1_Click(); };
    CmdUsunRekord.Click = [this] { CmdUsunRekord_Click(); };
    cmdSort.Click = [this] { cmdSort_Click(); };
    cmdFindTxt.Click = [this] { cmdFindTxt_Click(); };
    cmdZapiszPosortowany.Click = [this] { cmdZapiszPosortowany_Click(); };
    cmdDrukujROR.Click = [this] { cmdDrukujROR_Click(); };
    CmdNaDyskietke.Click = [this] { CmdNaDyskietke_Click(); };
    cmdDohomenet.Click = [this] { cmdDohomenet_Click(); };
    cmdKoniec.Click = [this] { Unload(); };
}

void DoBankuScreen::Load() {
    txtZestawZ.Text = core::UCase(s.Zestaw);
    ProgressBar1.Value = 0;
}

void DoBankuScreen::pokazRazem() { txtkwotaRazem.Text = core::Format(Razem, "0.00"); }

void DoBankuScreen::pokaz(const std::vector<core::Record>& recs) {
    MSFlexGrid1.setGrid(static_cast<int>(recs.size()) + 1, kKolumny);
    for (int c = 0; c < kKolumny; ++c) MSFlexGrid1.TextMatrix(0, c) = kNaglowki[c];
    for (std::size_t i = 0; i < recs.size(); ++i)
        for (int c = 0; c < kKolumny; ++c) MSFlexGrid1.TextMatrix(static_cast<int>(i) + 1, c) = recs[i].s(c + 1);
    MSFlexGrid1.Row = 0;
    Zaznaczony = 0;
    Razem = razem(recs);
    pokazRazem();
}

std::vector<core::Record> DoBankuScreen::rekordy() const {
    std::vector<core::Record> out;
    for (int r = 1; r < MSFlexGrid1.Rows; ++r) {
        core::Record rec(Ror::schema());
        for (int c = 0; c < kKolumny; ++c) rec.set(c + 1, MSFlexGrid1.TextMatrix(r, c));
        rec.set(Ror::NrKol, static_cast<long>(r));
        out.push_back(std::move(rec));
    }
    return out;
}

void DoBankuScreen::CmdUtworzRor_Click() {
    guarded([&] {
        paycalc::Postep postep;
        postep.krok = [this](int min, int max, int value) {
            ProgressBar1.Min = min;
            ProgressBar1.Max = std::max(max, min + 1);
            ProgressBar1.Value = value;
            DoEvents();
        };
        txtZestawZ.Text = core::UCase(txtZestawZ.Text);
        Zlecenie z{txtZestawZ.Text, txtNrUnikatowy.Text, CmbWybierzListe.Text, txtNrDodatku.Text};
        auto recs = utworzRor(s, ui, z, podstawa, postep);
        if (recs) pokaz(*recs);
    });
}

void DoBankuScreen::cmdPrzegladaj_Click() {
    guarded([&] {
        auto recs = wczytajRor(s, ui, txtZestawZ.Text, CmbWybierzListe.Text);
        if (recs) pokaz(*recs);
    });
}

void DoBankuScreen::MSFlexGrid1_Click() {
    const int r = MSFlexGrid1.Row;
    if (r < 1 || r >= MSFlexGrid1.Rows) return;
    Zaznaczony = r;
    if (MSFlexGrid1.Col != kKolKwota) return;
    auto odp = ui.inputBox("Wpisz zmienioną kwotę", "Zmiana kwoty ROR !");
    if (!odp || odp->empty()) return;
    std::string tekst = core::Trim(core::KropkaZamiastPrzecinka(std::string(*odp)));
    if (!core::isNumeric(tekst)) {
        ui.msgBox("Kwota \"" + *odp + "\" nie jest liczbą. Wpisz kwotę, np. 1234.56.", Buttons::OK, Icon::Exclamation,
                  "Zmiana kwoty ROR !");
        return;
    }
    const float stara = static_cast<float>(core::Val(MSFlexGrid1.TextMatrix(r, kKolKwota)));
    const float nowa = static_cast<float>(core::Val(tekst));
    MSFlexGrid1.TextMatrix(r, kKolKwota) = core::numText(nowa);
    Razem = Razem - stara + nowa;
    pokazRazem();
}

void DoBankuScreen::CmdUsunRekord_Click() {
    if (MSFlexGrid1.Rows <= 2) {
        core::MsgBox(ui, "Nie ma co usuwać");
        return;
    }
    if (Zaznaczony < 1 || Zaznaczony >= MSFlexGrid1.Rows) {
        ui.msgBox("Najpierw kliknij w tabeli wiersz do usunięcia.", Buttons::OK, Icon::Information, "Usuń rekord");
        return;
    }
    Razem -= static_cast<float>(core::Val(MSFlexGrid1.TextMatrix(Zaznaczony, kKolKwota)));
    MSFlexGrid1.Cells.erase(MSFlexGrid1.Cells.begin() + Zaznaczony);
    --MSFlexGrid1.Rows;
    Zaznaczony = 0;
    MSFlexGrid1.Row = 0;
    pokazRazem();
}

void DoBankuScreen::cmdSort_Click() {
    auto& cells = MSFlexGrid1.Cells;
    if (cells.size() < 2) return;
    std::stable_sort(cells.begin() + 1, cells.end(), [](const auto& a, const auto& b) {
        return personnel::przedWSortowaniu(a[kKolNazwisko], b[kKolNazwisko]);
    });
    Zaznaczony = 0;
    MSFlexGrid1.Row = 0;
}

void DoBankuScreen::cmdFindTxt_Click() {
    Text1.Text = core::UCase(Text1.Text);
    for (int r = 1; r < MSFlexGrid1.Rows; ++r)
        if (core::InStr(core::UCase(MSFlexGrid1.TextMatrix(r, kKolNazwisko)), Text1.Text) > 0) {
            MSFlexGrid1.Row = r;
            MSFlexGrid1.Col = kKolNazwisko;
            Zaznaczony = r;
            return;
        }
    ui.msgBox("Nie znaleziono nazwiska zawierającego \"" + Text1.Text + "\".", Buttons::OK, Icon::Information, "Szukaj");
}

void DoBankuScreen::cmdZapiszPosortowany_Click() {
    if (MSFlexGrid1.Rows <= 1) {
        ui.msgBox("Tabela jest pusta: najpierw utwórz zbiór albo go przeglądaj.", Buttons::OK, Icon::Information,
                  " Zapis posortowanego zbioru na dysk");
        return;
    }
    if (ui.msgBox("Czy chcesz zmieniony zbior zapisać", Buttons::YesNo, Icon::Question,
                  " Zapis posortowanego zbioru na dysk") != Answer::Yes)
        return;
    const std::string zestaw = core::UCase(core::Trim(txtZestawZ.Text));
    if (zestaw.empty()) {
        core::MsgBox(ui, "Ustal zestaw ");
        return;
    }
    guarded([&] {
        const std::vector<core::Record> recs = rekordy();
        Ror::writeAll(Ror::path(s, zestaw), recs);
        for (int r = 1; r < MSFlexGrid1.Rows; ++r) MSFlexGrid1.TextMatrix(r, 0) = std::to_string(r);
    });
}

void DoBankuScreen::cmdDrukujROR_Click() {
    guarded([&] { bank::cmdDrukujROR(s, ui, txtZestawZ.Text, CmbWybierzListe.Text); });
}

void DoBankuScreen::CmdNaDyskietke_Click() {
    guarded([&] { bank::CmdNaDyskietke(s, ui, txtZestawZ.Text, txtNrUnikatowy.Text, CmbWybierzListe.Text); });
}

void DoBankuScreen::cmdDohomenet_Click() {
    guarded([&] { bank::cmdDohomenet(s, ui, txtZestawZ.Text, txtNrUnikatowy.Text, CmbWybierzListe.Text); });
}

}  // namespace bank
