#include "generator.h"

#include <cstdio>
#include <vector>

#include "core/paths.h"
#include "core/record.h"
#include "paycalc/urlopy.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
namespace Dane = reference::Dane;

namespace bench {

namespace {

core::Record stawki2020() {
    core::Record d(Dane::schema());
    const std::pair<int, const char*> values[] = {
        {Dane::Stawka1, "17"},     {Dane::Stawka2, "32"},       {Dane::Stawka3, "32"},      {Dane::ProgI, "85528"},
        {Dane::ProgII, "99999999"}, {Dane::KwotaUlgi, "43.76"},  {Dane::KosztyUzyskania, "250"}, {Dane::Ubrent, "1.5"},
        {Dane::Ubemer, "19.52"},   {Dane::UbChor, "2.45"},      {Dane::UbWypad, "1.67"},    {Dane::Kasach, "9"},
        {Dane::FuPr, "2.45"},      {Dane::FGSP, "0.10"},        {Dane::DniPracy, "21"},     {Dane::stZDI, "1.25"},
        {Dane::PodstawaDoKZP, "brutto"}, {Dane::sklRentPrd, "6.5"}, {Dane::StaFEP, "1.5"},   {Dane::Rok, "2020"},
    };
    for (auto [n, v] : values) d.set(n, std::string(v));
    d.set(Dane::MInBRUTTO, 2600.0f);
    d.set(Dane::Trzynastka, 8.5f);
    d.set(Dane::KwotaGRE, 156810.0f);
    d.set(Dane::PRKu, 300.0f);
    d.set(Dane::KwPodstZDRwlasciciela, 4026.01f);
    return d;
}

std::string pesel(int i) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "7%01d%02d%02d%05d", i % 10, 1 + i % 12, 1 + i % 28, i);
    return buf;
}

}  // namespace

void zapiszListe(const core::Session& s, int osoby, int rokUrlopow) {
    std::vector<core::Record> place, kadry;
    std::vector<paycalc::Urlop::Blok> urlopy;
    place.reserve(static_cast<std::size_t>(osoby));
    kadry.reserve(static_cast<std::size_t>(osoby));
    for (int i = 1; i <= osoby; ++i) {
        const std::string klucz = pesel(i);
        const std::string nazwisko = "NAZWISKO" + std::to_string(i);
        core::Record p = payinputs::nowyRekordPlacowy(17, i);
        p.set(Pay::Nazwisko, nazwisko);
        p.set(Pay::Imie, i % 2 ? "JAN" : "ANNA");
        p.set(Pay::Pesel, klucz);
        p.set(Pay::KodUbezpieczenia, i % 50 == 0 ? "051000" : "011000");
        p.set(Pay::Zasadnicza, static_cast<float>(2600 + (i * 37) % 4000));
        p.set(Pay::Funkcyjny, static_cast<float>((i % 5) * 100));
        p.set(Pay::Premia, i % 3 ? 0.2f : 150.0f);
        p.set(Pay::DataZatrudnienia, "01/0" + std::to_string(1 + i % 9) + "/" + std::to_string(1990 + i % 30));
        p.set(Pay::KosztyUzyskania, i % 7 ? 250.0f : 0.2f);
        p.set(Pay::KwotaUlgi, 43.76f);
        p.set(Pay::Dojazd, i % 11 ? "" : "1");
        p.set(Pay::KZPSkladka, i % 4 ? 0.0f : 0.02f);
        p.set(Pay::Zwiazek, i % 6 ? 0.0f : 0.01f);
        p.set(Pay::Grupa, "a");
        if (i % 8 == 0) {  // sick lines
            p.set(Pay::SredniaCH1, 110.5);
            p.set(Pay::Liczbadni1, 4L);
            p.set(Pay::KodPrzerwy1, "331");
            p.set(Pay::Ch1Pr, 80L);
            p.set(Pay::SredniaCH2, 110.5);
            p.set(Pay::Liczbadni2, 3L);
            p.set(Pay::KodPrzerwy2, "313");
            p.set(Pay::Ch2Pr, 80L);
        }
        if (i % 9 == 0) p.set(Pay::BZP1dni, 2L);
        p.set(Pay::BruttoOd01, static_cast<double>(2 * (2600 + (i * 37) % 4000)));
        if (i % 3 == 0) {
            p.set(Pay::ROR, 1500.0);
            p.set(Pay::NumerKontaROR, "12 1240 4432 1111 0000 " + std::to_string(1000 + i));
        }
        place.push_back(p);

        core::Record o = Osoba::pusty();
        o.set(Osoba::Nazwisko, nazwisko);
        o.set(Osoba::Imie, i % 2 ? "JAN" : "ANNA");
        o.set(Osoba::Pesel, klucz);
        o.set(Osoba::KodUbezpieczenia, i % 50 == 0 ? "051000" : "011000");
        o.set(Osoba::DataUrodzenia, "15-0" + std::to_string(1 + i % 9) + "-" + std::to_string(1960 + i % 40));
        o.set(Osoba::Etat, i % 10 ? "  1  1" : "  1  2");
        o.set(Osoba::Grupa, i % 13 ? "a" : "p");
        o.set(Osoba::Obywatelstwo, "POLSKIE");
        o.set(Osoba::DataZatrudnienia, "01-01-2000X          ");
        o.set(Osoba::Status, 1L);
        o.set(Osoba::Numer, static_cast<long>(i));
        kadry.push_back(o);

        // A leave block for every fifth person, settled, with two days of leave in January and
        // in March; every tenth has one more block, not settled.
        if (i % 5 == 0) {
            paycalc::Urlop::Blok b = paycalc::Urlop::nowyBlok(nazwisko, "JAN", klucz, "  1  1", rokUrlopow);
            b.naglowek.set(paycalc::Urlop::Naglowek::Rozliczac, "1");
            for (int m : {0, 2}) {
                b.miesiace[m].set(paycalc::Urlop::Miesiac::Stawka, "120.50");
                b.dni[m][1].set(paycalc::Urlop::Dzien::Kod, "U8");
                b.dni[m][2].set(paycalc::Urlop::Dzien::Kod, "U8");
            }
            urlopy.push_back(std::move(b));
            if (i % 10 == 0) urlopy.push_back(paycalc::Urlop::nowyBlok(nazwisko, "JAN", klucz, "  1  1", rokUrlopow));
        }
    }
    core::writeAll(Pay::path(s), place);
    core::writeAll(Osoba::path(s), kadry);
    paycalc::Urlop::writeAll(paycalc::Urlop::path(s, std::to_string(rokUrlopow)), urlopy);
}

core::Session wygenerujListe(const fs::path& folder, const std::string& lista, int osoby) {
    core::Session s;
    s.Katalog = folder.string();
    s.SkrotPlatnika = "BENCH";
    s.DataListy = "31-03-2020";
    s.NazwaZbioru = lista;
    fs::create_directories(folder);
    core::ensureFolder(folder, {"dane"});
    for (const char* f : {"bazy", "person", "Urlopy"}) core::ensureFolder(folder, {"BENCH", f});
    core::writeAll(Dane::path(s), {stawki2020()});
    zapiszListe(s, osoby, 2020);
    return s;
}

void listaWDemo(const fs::path& demo, const fs::path& folder, int osoby) {
    fs::create_directories(folder);
    fs::copy(demo, folder, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    core::Session s;
    s.Katalog = folder.string();
    s.SkrotPlatnika = "DEMO";
    s.DataListy = "31-01-2021";
    s.NazwaZbioru = "a";
    zapiszListe(s, osoby, 2021);
}

}  // namespace bench
