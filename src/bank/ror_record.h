// The transfer batch of a set of lists: ROR\ROR<rrrrmmdd><Zestaw>.dat under the payer's folder,
// one record a line of ten items written by one statement. The names are kept cut and padded
// as the batch was made; items 9 and 10 are place-holders that stay empty.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "core/record.h"
#include "core/session.h"

namespace bank {

namespace Ror {
enum : int { NrKol = 1, Nazwisko, Imie, NrKonta, Kwota, DataPrzel, Adres, Tresc, Rezerwa9, Rezerwa10, Count = Rezerwa10 };
constexpr std::size_t kSzerNazwiska = 20, kSzerImienia = 14, kSzerKonta = 26;
const core::Schema& schema();
// The list date turned round into rrrrmmdd.
std::string dataPrzelewu(const core::Session& s);
// <payer>\ROR\ROR<rrrrmmdd><zestaw>.dat
std::filesystem::path path(const core::Session& s, const std::string& zestaw);
std::vector<core::Record> readAll(const std::filesystem::path& file);
// Writes the batch safely, making the ROR folder when it is missing.
void writeAll(const std::filesystem::path& file, const std::vector<core::Record>& recs);
// The account as a batch keeps it: padded or cut to 26, then the blanks in front dropped.
std::string konto(const std::string& numer);
}  // namespace Ror

}  // namespace bank
