// The month a screen works on, asked of the clerk as a four-digit year and month.
#pragma once
#include <optional>
#include <string>

#include "core/dialogs.h"

namespace core {

// modUstalDate: asks "Ok = Aktualna data <RRmm> Podaj date w formacie RRMM " under the title
// " Wprowadź date listy  ", offering `RRmm` (the month of the list date). OK takes the text as it
// stands; a text that is not four digits with a month from 01 to 12 gets "Zle wpisana data!"
// and the question again. Nothing when the clerk cancels.
std::optional<std::string> modUstalDate(Dialogs& ui, const std::string& RRmm);

// A month stamp of four digits whose month is 01 to 12.
bool poprawnyMiesiac(const std::string& RRmm);

}  // namespace core
