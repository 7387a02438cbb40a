#include "tax/formularz.h"

#include <algorithm>

#include "core/text.h"
#include "reference/payers.h"

namespace tax {

void wartosciPlatnika(Wartosci& w, const core::Record& firma) {
    w["NIP"] = firma.s(reference::Firma::NIP);
    w["Nazwa"] = firma.s(reference::Firma::NazwaM);
    const bool fizyczna = core::Left(firma.s(reference::Firma::RodzajPlatnika), 1) == "F";
    w[fizyczna ? "Fizyczna" : "Niefizyczna"] = "X";
}

std::vector<std::string> linieStrony(const Formularz& f, int strona, const Wartosci& w) {
    int ostatnia = 0;
    for (const Pole& p : f.pola)
        if (p.strona == strona) ostatnia = std::max(ostatnia, p.linia);
    // Each line as a row of characters (code points), the values laid in at their columns.
    std::vector<std::vector<std::string>> znaki(static_cast<std::size_t>(ostatnia));
    for (const Pole& p : f.pola) {
        if (p.strona != strona) continue;
        auto it = w.find(p.zrodlo);
        if (it == w.end() || it->second.empty()) continue;
        std::string v = core::Left(core::Trim(it->second), static_cast<std::size_t>(p.szerokosc));
        if (p.wyr == Wyr::P) v = core::PadLeft(v, static_cast<std::size_t>(p.szerokosc));
        auto& linia = znaki[static_cast<std::size_t>(p.linia - 1)];
        std::size_t start = static_cast<std::size_t>(p.kolumna - 1);
        std::size_t n = core::Len(v);
        if (linia.size() < start + n) linia.resize(start + n, " ");
        for (std::size_t i = 0; i < n; ++i) linia[start + i] = core::Mid(v, i + 1, 1);
    }
    std::vector<std::string> out;
    for (auto& l : znaki) {
        std::string t;
        for (auto& z : l) t += z;
        out.push_back(core::RTrim(t));
    }
    return out;
}

void drukujStrone(core::Printer& p, const Formularz& f, int strona, const Wartosci& w) {
    for (const auto& l : linieStrony(f, strona, w)) p.print(l);
}

}  // namespace tax
