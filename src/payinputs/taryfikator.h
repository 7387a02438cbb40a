// The pay-scale table (frmTaryfikator: base pay of teachers by promotion grade and
// qualification, dane\tabela.dat) and the two mass updates of the pay records of a set of lists:
// base pay with seniority from the table, and the tax costs and relief from the year's rates.
#pragma once
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "core/form.h"
#include "core/record.h"
#include "core/session.h"

namespace payinputs {

// dane\tabela.dat: 16 floats, one a line, in the order of the cells txtPlaca(0) .. txtPlaca(15):
// four rows of the four grades (S, K, M, D). The first row is the higher education with the
// teaching qualification, the second without it; the last two rows are kept for other
// qualifications and not chosen by any pay record.
namespace Tabela {
inline constexpr int kKomorek = 16;
const core::Schema& schema();
std::filesystem::path path(const core::Session& s);
// The 16 cells; a missing file gives zeros.
std::array<float, kKomorek> read(const core::Session& s);
void write(const core::Session& s, const std::array<float, kKomorek>& placa);
}  // namespace Tabela

// The cell a pay record's WskTabeli chooses: the letter S, K, M or D gives the grade 0 to 3
// (another letter keeps `stopien`, the grade of the letter tested before it, 0 at the start), a
// second character "1" the first qualification row, anything else the second.
int komorkaTabeli(const std::string& wskTabeli, int& stopien);

// The lists of instal.dat in the session's set (Zestaw), as file stems; a line without a file
// name gets its box.
std::vector<std::string> listyZestawu(core::Session& s, core::Dialogs& ui);

// cmdWymienZasadnicza: after the question, Zasadnicza from the table and the seniority allowance
// from the new pay in every record with WskTabeli of every list of the set. All lists or none.
void wymienZasadnicza(core::Session& s, core::Dialogs& ui, const std::array<float, Tabela::kKomorek>& placa);

// CmdZmianaKosztow: the costs (the commuter's raised costs for Dojazd "1"), the relief and the
// first tax rate (as percent) of the session's rates into every record of the set where they are
// above 0. All lists or none.
void zmianaKosztow(core::Session& s, core::Dialogs& ui);

class TaryfikatorScreen : public core::Form {
public:
    TaryfikatorScreen(core::Dialogs& ui, core::Session& s);
    void Load() override;
    void CmdZapisz_Click();
    void cmdWymienZasadnicza_Click();

    core::Session& s;
    core::Control lbStopien{this, "lbStopien", core::Kind::Label, "Stopień awansu zawodowego"};
    core::Control lbKwalifikacje{this, "lbKwalifikacje", core::Kind::Label, "Kwalifikacje"};
    std::vector<std::unique_ptr<core::Control>> txtPlaca;  // txtPlaca(0) .. txtPlaca(15)
    std::vector<std::unique_ptr<core::Control>> naglowki;
    core::Control txtZestaw{this, "txtZestaw", core::Kind::TextBox};
    core::Control CmdZapisz{this, "CmdZapisz", core::Kind::CommandButton, "&Zapisz Zmiany"};
    core::Control cmdWymienZasadnicza{this, "cmdWymienZasadnicza", core::Kind::CommandButton,
                                       "&Wprowadź do zbiorów zestawu"};
    core::Control Command3{this, "Command3", core::Kind::CommandButton, "&Koniec"};

private:
    // The cells as typed; false after the box when one is not a number.
    bool komorki(std::array<float, Tabela::kKomorek>& placa);
};

}  // namespace payinputs
