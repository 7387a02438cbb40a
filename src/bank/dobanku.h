// frmDoBanku: the transfer batch of a set of lists for one bank, corrected and ordered in a grid,
// saved, printed, and turned into the home-banking file and the bank's listing.
#pragma once
#include <vector>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace bank {

class DoBankuScreen : public core::Form {
public:
    DoBankuScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;

    void CmdUtworzRor_Click();
    void cmdPrzegladaj_Click();
    // A click on a cell: the row is marked; a cell of the amount asks for a new amount.
    void MSFlexGrid1_Click();
    void CmdUsunRekord_Click();
    void cmdSort_Click();
    void cmdFindTxt_Click();
    void cmdZapiszPosortowany_Click();
    void cmdDrukujROR_Click();
    void CmdNaDyskietke_Click();
    void cmdDohomenet_Click();

    // Columns of the grid: fields 1 to 8 of the batch.
    static constexpr int kKolNazwisko = 1;
    static constexpr int kKolKwota = 4;
    static constexpr int kKolumny = 8;

    // The batch as the grid holds it, numbered from 1 in the order of the rows.
    std::vector<core::Record> rekordy() const;
    double Razem = 0;     // the total shown in txtkwotaRazem
    int Zaznaczony = 0;   // the row marked by the last click (0: none)

    core::Session& s;
    core::Control txtZestawZ{this, "txtZestawZ", core::Kind::TextBox};
    core::Control txtNrUnikatowy{this, "txtNrUnikatowy", core::Kind::TextBox};
    core::Control Label5{this, "Label5", core::Kind::Label};
    core::Control CmbWybierzListe{this, "CmbWybierzListe", core::Kind::ComboBox};
    core::Control txtNrDodatku{this, "txtNrDodatku", core::Kind::TextBox};
    core::Control txtkwotaRazem{this, "txtkwotaRazem", core::Kind::TextBox};
    core::Control CmdUtworzRor{this, "CmdUtworzRor", core::Kind::CommandButton, "&Utwórz zbiór  Ror z list i dodatków"};
    core::Control cmdPrzegladaj{this, "cmdPrzegladaj", core::Kind::CommandButton, "&Przeglądaj zbiór"};
    core::Control cmdSort{this, "cmdSort", core::Kind::CommandButton, "&Sortuj"};
    core::Control cmdZapiszPosortowany{this, "cmdZapiszPosortowany", core::Kind::CommandButton, "&Zapisz posortowany"};
    core::Control CmdUsunRekord{this, "CmdUsunRekord", core::Kind::CommandButton, "Usuń &rekord"};
    core::Control Text1{this, "Text1", core::Kind::TextBox};
    core::Control cmdFindTxt{this, "cmdFindTxt", core::Kind::CommandButton, "&Szukaj"};
    core::Control cmdDrukujROR{this, "cmdDrukujROR", core::Kind::CommandButton, "&Drukuj"};
    core::Control CmdNaDyskietke{this, "CmdNaDyskietke", core::Kind::CommandButton, "&NaDyskietkę"};
    core::Control cmdDohomenet{this, "cmdDohomenet", core::Kind::CommandButton, "Do &Home Net"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};
    core::Control MSFlexGrid1{this, "MSFlexGrid1", core::Kind::Grid};
    core::Control ProgressBar1{this, "ProgressBar1", core::Kind::ProgressBar};

private:
    void pokaz(const std::vector<core::Record>& recs);
    void pokazRazem();
    float podstawa = 0;  // the base of the supplementary records, kept from one record to the next
};

}  // namespace bank
