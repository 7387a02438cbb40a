// frmSortujKadrowe: the order of the people of a list. The personnel file is shown in a grid,
// sorted by the identification number or by the family name, renumbered by hand, and written
// back in the order of the grid.
#pragma once
#include <string>
#include <vector>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace personnel {

// The grid's generic ascending order of two cell texts: numbers as numbers (before texts),
// texts alphabetically with the Polish letters in their places, upper and lower case alike.
bool przedWSortowaniu(const std::string& a, const std::string& b);

class SortujKadroweScreen : public core::Form {
public:
    SortujKadroweScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void CmdSortujIP_Click();
    void CmdSortujwgNazwiska_Click();
    // A double click on the family name: a new running number for the row.
    void MSFlexGrid7_DblClick();
    void cmdZapiszPosortowane_Click();

    // Columns of the grid: value 37 in column 0, values 2 to 40 in columns 1 to 39.
    static constexpr int kKolNrIdent = 0;
    static constexpr int kKolNazwisko = 1;
    static constexpr int kKolNumerIP = 36;
    static constexpr int kKolumny = 40;

    core::Session& s;
    core::Control lbOpis{this, "lbOpis", core::Kind::Label};
    core::Control MSFlexGrid7{this, "MSFlexGrid7", core::Kind::Grid};
    core::Control CmdSortujIP{this, "CmdSortujIP", core::Kind::CommandButton, "Sortowanie wg nr &Id"};
    core::Control CmdSortujwgNazwiska{this, "CmdSortujwgNazwiska", core::Kind::CommandButton, "&Sortuj wg Nazwiska"};
    core::Control cmdZapiszPosortowane{this, "cmdZapiszPosortowane", core::Kind::CommandButton, "&Zapisz zmiany"};
    core::Control cmdKoniec{this, "cmdKoniec", core::Kind::CommandButton, "&Koniec"};

private:
    void sortuj(int kolumna);
    std::vector<core::Record> rekordy;       // the records of the file
    std::vector<std::size_t> wierszeSiatki;  // the record shown in each row of the grid (row 1 first)
};

}  // namespace personnel
