#include "leave/wspolne.h"

#include <algorithm>

#include "core/numbers.h"

#include "core/error.h"
#include "core/text.h"

namespace leave {

std::string bladWpisu(const std::string& tekst) {
    for (unsigned char c : tekst) {
        if (c == '"') return "Wpis nie może zawierać cudzysłowu (\"): nie da się go zapisać w zbiorze.";
        if (c < 0x20 || c == 0x7f) return "Wpis nie może zawierać znaków sterujących.";
    }
    try {
        core::toCp1250(tekst);
    } catch (const core::Error&) {
        return "Wpis zawiera znak, którego nie można zapisać w zbiorach programu (strona kodowa 1250).";
    }
    return {};
}

bool wpisPoprawny(core::Form& f, const std::string& tekst) {
    std::string blad = bladWpisu(tekst);
    if (blad.empty()) return true;
    f.ui.msgBox(blad, core::Buttons::OK, core::Icon::Exclamation, "Błędny wpis");
    return false;
}

void ustawTekst(core::Record& r, int pole, const std::string& tekst) {
    if (r.s(pole) != tekst) r.set(pole, tekst);
}

bool dzienWolny(int rok, int miesiac, int dzien) {
    const core::Date d{rok, miesiac, dzien};
    if (!core::validDate(d)) return false;
    std::string nazwa = core::FormatDate(d, "dddd");
    return nazwa == "niedziela" || nazwa == "sobota";
}

std::vector<std::string> wierszeSiatki(const core::Control& grid) {
    std::vector<std::size_t> szer(static_cast<std::size_t>(grid.Cols), 0);
    for (int r = 0; r < grid.Rows; ++r)
        for (int c = 0; c < grid.Cols; ++c)
            szer[c] = std::max(szer[c], core::Len(grid.TextMatrix(r, c)));
    std::vector<std::string> out;
    for (int r = 0; r < grid.Rows; ++r) {
        std::string line;
        for (int c = 0; c < grid.Cols; ++c) line += (c ? "|" : "") + core::PadRight(grid.TextMatrix(r, c), szer[c]);
        out.push_back(core::RTrim(line));
    }
    return out;
}

}  // namespace leave
