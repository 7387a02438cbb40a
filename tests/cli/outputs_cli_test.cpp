// Every file the month's commands of a list write (calc --all, ledger, print-list, payslips,
// close-month, standard output included), byte for byte as recorded in wyniki_polecen.txt, on the
// demo's list "a" and on a generated list of 2,500 people: any change of a single output byte
// shows here. After an intended change of an output the digests are recorded again with
// PENSJA_ZAPISZ_SKROTY=1 and the change of the file is reviewed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "generator.h"
#include "przebieg.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;

namespace {

const fs::path kZapis = fs::path(__FILE__).parent_path() / "wyniki_polecen.txt";

struct Lista {
    const char* nazwa;
    int osoby;  // 0: the demo's own list
};

// "lista polecenie plik" -> "rozmiar skrót", from the recorded file.
std::map<std::string, std::string> zapisane(const std::string& lista) {
    std::map<std::string, std::string> m;
    std::ifstream in(kZapis);
    std::string l, polecenie, plik, rozmiar, skrot;
    while (std::getline(in, l)) {
        std::istringstream w(l);
        std::string nazwa;
        std::getline(w, nazwa, '\t');
        std::getline(w, polecenie, '\t');
        std::getline(w, plik, '\t');
        std::getline(w, rozmiar, '\t');
        std::getline(w, skrot, '\t');
        if (nazwa == lista) m[polecenie + "\t" + plik] = rozmiar + "\t" + skrot;
    }
    return m;
}

class WynikiPolecen : public testing::TestWithParam<Lista> {};

TEST_P(WynikiPolecen, KazdyPlikJakZapisany) {
    const Lista& lista = GetParam();
    testing_support::TempDir dir;
    const fs::path dane = dir / "dane";
    if (lista.osoby == 0)
        testing_support::copyTree(PENSJA_DEMO, dane);
    else
        bench::listaWDemo(PENSJA_DEMO, dane, lista.osoby);
    std::map<std::string, std::string> teraz;
    for (const bench::Polecenie& p : bench::poleceniaMiesiaca()) {
        const bench::Pomiar m = bench::uruchom(PENSJA_CLI, dane, p, dir / "stderr.txt");
        ASSERT_EQ(m.status, 0) << p.nazwa << "\n" << testing_support::readBytes(dir / "stderr.txt");
        for (const bench::Plik& f : m.wyniki)
            teraz[p.nazwa + "\t" + f.nazwa] = std::to_string(f.rozmiar) + "\t" + bench::skrot(dane / f.nazwa);
    }
    if (std::getenv("PENSJA_ZAPISZ_SKROTY")) {
        std::map<std::string, std::map<std::string, std::string>> wszystkie;
        for (const Lista& l : {Lista{"demo", 0}, Lista{"lista2500", 2500}})
            wszystkie[l.nazwa] = l.nazwa == std::string(lista.nazwa) ? teraz : zapisane(l.nazwa);
        std::ofstream out(kZapis, std::ios::trunc);
        for (const auto& [nazwa, pliki] : wszystkie)
            for (const auto& [klucz, wartosc] : pliki) out << nazwa << "\t" << klucz << "\t" << wartosc << "\n";
        GTEST_SKIP() << "zapisano " << kZapis;
    }
    const auto wzorzec = zapisane(lista.nazwa);
    ASSERT_FALSE(wzorzec.empty()) << kZapis;
    EXPECT_EQ(teraz, wzorzec);
}

INSTANTIATE_TEST_SUITE_P(Listy, WynikiPolecen, testing::Values(Lista{"demo", 0}, Lista{"lista2500", 2500}),
                         [](const auto& i) { return std::string(i.param.nazwa); });

}  // namespace
