// Transfers of pay to the employees' bank accounts: the batch of one set of lists and one kind of
// pay (from the month's ledger or a supplementary file), the home-banking file made from it, the
// listing for the bank's diskette and the printed list. The screen frmDoBanku and the command
// line both call these.
#pragma once
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/record.h"
#include "core/session.h"
#include "paycalc/postep.h"

namespace bank {

// The entries of CmbWybierzListe, in their order. The holiday benefit is spelt "uropowe" here
// while the batch knows it only as "Świadczenia urlopowe", so that entry ends in the box of a
// wrong kind.
inline constexpr std::array<const char*, 6> kRodzajeList = {"Lista płac", "Godziny nadliczbowe", "Dodatkowe",
                                                            "Trzynastka", "Świadczenia uropowe", "Jubileusze"};
extern const char* const kTytulZestawienia;  // "Zestawienie ROR Do Banku "
extern const char* const kBrakZbioru;        // "Brak wykonanego zbioru ROR za okres "

// Label5: the bank named by the first four characters of the number, or "" for another bank.
std::string opisBanku(const std::string& nrUnikatowy);
// The bank filter: the number stands in the account from its third character or from its first.
bool kontoBanku(const std::string& konto, const std::string& nrUnikatowy);
// An account of 26 digits whose check digits agree (mod 97 of the number with "PL" moved behind).
bool nrbPoprawny(const std::string& konto);

// What CmdUtworzRor is asked to do: the set letters, the bank's number, the combo's text and the
// number of the addition (txtNrDodatku).
struct Zlecenie {
    std::string zestaw, nrBanku, rodzaj, nrDodatku;
};

// The pay of a supplementary record with its deductions counted anew from the base A: the
// contributions of the employee (disability and pension none above the yearly limit), the health
// parts and the tax.
float nettoDodatku(const core::Stawki& st, float A, const core::Record& dod);

// CmdUtworzRor: the batch of the set written and returned; nothing when a box ended the command.
// `podstawa` is the base A of the supplementary records, kept from one record to the next (and by
// the screen from one command to the next): a record that takes none keeps the one before.
std::optional<std::vector<core::Record>> utworzRor(core::Session& s, core::Dialogs& ui, const Zlecenie& z,
                                                   float& podstawa, const paycalc::Postep& postep = {});
// The batch of the set as it stands on disk; the box of a missing batch and nothing when absent.
std::optional<std::vector<core::Record>> wczytajRor(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                                    const std::string& rodzaj);
// The total of the batch's amounts.
double razem(const std::vector<core::Record>& recs);

// The fourteen items of the HomeNet line of a record of the batch (the line joins them with
// commas, without quotes).
std::vector<std::string> pozycjeHomeNet(const core::Session& s, const core::Record& ror);
// HOMENET\ROR<bank><rrrrmmdd>.txt
std::filesystem::path plikHomeNet(const core::Session& s, const std::string& nrBanku);
// cmdDohomenet: the question, the lines of the accounts of the bank, the box of a doubtful
// account. Returns the file written, or nothing.
std::optional<std::filesystem::path> cmdDohomenet(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                                  const std::string& nrBanku, const std::string& rodzaj);

// The name of the diskette's file: ROR (zaww for the bank 8602), the first letter of the payer,
// the last three characters of RRmm.
std::string nazwaDyskietki(const core::Session& s, const std::string& nrBanku);
// The lines of the diskette's listing.
std::vector<std::string> linieDyskietki(const std::vector<core::Record>& recs);
// CmdNaDyskietke: the question, the folder (the last one chosen in the session offered first),
// the listing. Returns the file written, or nothing.
std::optional<std::filesystem::path> CmdNaDyskietke(core::Session& s, core::Dialogs& ui, const std::string& zestaw,
                                                    const std::string& nrBanku, const std::string& rodzaj);

// cmdDrukujROR: the printed list of the batch, 32 rows a page.
void drukujRor(core::Session& s, core::Dialogs& ui, const std::vector<core::Record>& recs);
void cmdDrukujROR(core::Session& s, core::Dialogs& ui, const std::string& zestaw, const std::string& rodzaj);

}  // namespace bank
