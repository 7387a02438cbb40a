#include "fixture.h"

#include "paycalc/karta_record.h"
#include "reference/catalogue.h"
#include "support/ledger.h"
#include "zus/rcp_record.h"

namespace K = paycalc::Karta;
using zus::Rcp::Count;
namespace R = zus::Rcp;

namespace zfx {

Platnik::Platnik() : Demo("31-01-2021") {
    s.NazwaZbioru = "a";
    s.Grupa = "a";
}

void Platnik::katalog(const std::vector<std::vector<std::string>>& listy) {
    std::vector<core::Record> wiersze;
    int nr = 0;
    for (const auto& l : listy)
        wiersze.push_back(reference::Instal::newLine("Lista " + l[0], l[0], l[1], l[2], std::to_string(++nr), ""));
    reference::Instal::write(s, wiersze);
}

void Platnik::karta(const std::string& lista, const std::vector<core::Record>& recs) {
    core::writeAll(K::path(s, lista, "2101"), recs);
}

void Platnik::rcp(const std::vector<core::Record>& recs) { core::writeAll(R::path(s), recs); }

std::vector<core::Record> Platnik::rcp() const { return R::readAll(R::path(s)); }

core::Record karta(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                   const std::string& kod, double podstawa, std::vector<std::pair<int, double>> kwoty,
                   std::vector<std::pair<int, std::string>> teksty) {
    kwoty.insert(kwoty.begin(), {{K::PodstawaZUS, podstawa}, {K::PodstawaZdrowotna, podstawa}});
    for (int f = K::CheckEmerytalna; f <= K::CheckZdrowotna; ++f) kwoty.insert(kwoty.begin(), {f, 1});
    teksty.insert(teksty.begin(), {{K::KodUbezpieczenia, kod}, {K::Obywatelstwo, "POLSKIE"}, {K::Etat, "  1  1"}});
    return testing_support::rekordKarty(nazwisko, imie, pesel, kwoty, teksty);
}

core::Record rcp(const std::string& nazwisko, const std::string& imie, const std::string& pesel,
                 const std::string& kod, std::vector<std::pair<int, double>> kwoty,
                 std::vector<std::pair<int, std::string>> teksty) {
    core::Record r(R::schema());
    r.set(R::Lp, " 1");
    r.set(R::Nazwisko, nazwisko);
    r.set(R::Imie, imie);
    r.set(R::PESEL, pesel);
    r.set(R::KodUbez, kod);
    r.set(R::Etat, "  1  1");
    r.set(R::Obywatelstwo, "POLSKIE");
    for (int f = R::FlagaEmerytalne; f <= R::FlagaZdrowotne; ++f) r.set(f, 1);
    for (auto& [n, v] : kwoty) r.set(n, v);
    for (auto& [n, t] : teksty) r.set(n, t);
    return r;
}

}  // namespace zfx
