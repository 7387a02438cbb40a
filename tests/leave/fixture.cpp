#include "fixture.h"

#include <filesystem>

#include "paycalc/karta_record.h"
#include "payinputs/pay_record.h"

namespace Pay = payinputs::Pay;
namespace Karta = paycalc::Karta;

namespace lfx {

Lista::Lista(const std::string& dataListy) : fx::Lista(dataListy) {
    s.KluczOsoby = kKlucz;
    s.NazwiskoOsoby = "KOWALSKI";
    s.ImieOsoby = "JAN";
    for (const char* f : {"karta", "godziny", "Godziny", "dodatki", "trzynastki"})
        std::filesystem::create_directories(dir.path() / "FIRMA" / f);
}

void Lista::placa(const std::vector<std::pair<int, std::string>>& pola) {
    std::vector<core::Record> recs;
    for (const auto& [pesel, nazwisko] : {std::pair{kKlucz, "KOWALSKI"}, std::pair{kDrugi, "NOWAK"}}) {
        core::Record r = payinputs::nowyRekordPlacowy(18, static_cast<int>(recs.size()) + 1);
        r.set(Pay::Nazwisko, nazwisko);
        r.set(Pay::Pesel, pesel);
        if (pesel == kKlucz)
            for (const auto& [pole, t] : pola)
                r.setItem(pole, t.empty()       ? core::Item::empty()
                                : t[0] == '"' ? core::Item::quoted(t.substr(1, t.size() - 2))
                                              : core::Item::bare(t));
        recs.push_back(r);
    }
    core::writeAll(Pay::path(s), recs);
}

core::Record Lista::rekordPlacy() const { return Pay::readAll(Pay::path(s)).at(0); }

void Lista::karta(const std::string& rrmm, float brutto, std::vector<std::pair<double, std::string>> linie, float stazowy) {
    const auto plik = Karta::path(s, s.NazwaZbioru, rrmm);
    std::vector<core::Record> recs = std::filesystem::exists(plik) ? Karta::readAll(plik) : std::vector<core::Record>{};
    core::Record k(Karta::schema());
    k.set(Karta::Klucz, kKlucz);
    k.set(Karta::Brutto, brutto);
    k.set(Karta::Stazowy, stazowy);
    k.set(Karta::DataListy, "28-" + rrmm.substr(2) + "-20" + rrmm.substr(0, 2));
    linie.resize(4);
    for (int n = 0; n < 4; ++n) {
        const int b = Karta::SredniaCH1 + 6 * n;
        k.set(b + 1, linie[n].first);
        k.set(b + 2, "01" + rrmm.substr(2) + "20" + rrmm.substr(0, 2));
        k.set(b + 4, linie[n].second);
        k.set(Karta::KwotaLinii1 + n, linie[n].first * 50);
    }
    recs.push_back(k);
    core::writeAll(plik, recs);
}

}  // namespace lfx
