#include "fixture.h"

#include <gtest/gtest.h>

#include <map>

#include "core/paths.h"
#include "paycalc/pola_wyniku.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;
namespace Dane = reference::Dane;

namespace fx {

core::Record stawkiRoku(int rok) {
    struct Rok {
        int rok;
        const char *stawka1, *ulga, *koszty, *prku, *wypadkowa, *fgsp, *rentPrd, *fep, *min, *gre, *zdrWl;
    };
    static const Rok lata[] = {
        {2008, "18", "46.33", "111.25", "139.06", "1.80", "0.10", "4.5", "0", "1276", "95790", "2491.57"},
        {2009, "18", "46.33", "111.25", "139.06", "1.80", "0.10", "4.5", "0", "1276", "95790", "2491.57"},
        {2019, "18", "46.33", "111.25", "139.06", "1.67", "0.10", "6.5", "1.5", "2250", "142950", "3803.56"},
        {2020, "17", "43.76", "250", "300", "1.67", "0.10", "6.5", "1.5", "2600", "156810", "4026.01"},
    };
    for (const Rok& r : lata) {
        if (r.rok != rok) continue;
        core::Record d(Dane::schema());
        d.set(Dane::Stawka1, r.stawka1);
        d.set(Dane::Stawka2, "32");
        d.set(Dane::Stawka3, "32");
        d.set(Dane::ProgI, "85528");
        d.set(Dane::ProgII, "99999999");
        d.set(Dane::KwotaUlgi, r.ulga);
        d.set(Dane::KosztyUzyskania, r.koszty);
        d.set(Dane::Ubrent, "1.5");
        d.set(Dane::Ubemer, "19.52");
        d.set(Dane::UbChor, "2.45");
        d.set(Dane::UbWypad, r.wypadkowa);
        d.set(Dane::Kasach, "9");
        d.set(Dane::FuPr, "2.45");
        d.set(Dane::FGSP, r.fgsp);
        d.set(Dane::DniPracy, "21");
        d.set(Dane::MInBRUTTO, static_cast<float>(std::stod(r.min)));
        d.set(Dane::Trzynastka, 8.5f);
        d.set(Dane::KwotaGRE, static_cast<float>(std::stod(r.gre)));
        d.set(Dane::PRKu, static_cast<float>(std::stod(r.prku)));
        d.set(Dane::stZDI, "1.25");
        d.set(Dane::KwPodstZDRwlasciciela, static_cast<float>(std::stod(r.zdrWl)));
        d.set(Dane::PodstawaDoKZP, "brutto");
        d.set(Dane::sklRentPrd, r.rentPrd);
        d.set(Dane::StaFEP, r.fep);
        d.set(Dane::Rok, std::to_string(rok));
        d.set(Dane::Administrator2, "Główna księgowa");
        d.set(Dane::Administrator1, "Anna Test");
        return d;
    }
    throw std::logic_error("brak stawek roku " + std::to_string(rok));
}

core::Record placa(const std::string& pesel, float zasadnicza, const std::string& nazwisko, const std::string& imie) {
    core::Record p = payinputs::nowyRekordPlacowy(18, 1);
    p.set(Pay::Nazwisko, nazwisko);
    p.set(Pay::Imie, imie);
    p.set(Pay::Pesel, pesel);
    p.set(Pay::KodUbezpieczenia, "011000");
    p.set(Pay::Zasadnicza, zasadnicza);
    p.set(Pay::DataZatrudnienia, "01/02/2007");
    p.set(Pay::KosztyUzyskania, 111.25f);
    p.set(Pay::KwotaUlgi, 46.33f);
    p.set(Pay::Grupa, "a");
    p.set(Pay::WskaznikEtatu, 1.0f);
    p.set(Pay::RodzajUmowy, "Umowa o prace");
    return p;
}

core::Record osoba(const std::string& pesel, const std::string& urodzony, const std::string& nazwisko,
                   const std::string& imie) {
    core::Record o = Osoba::pusty();
    o.set(Osoba::Nazwisko, nazwisko);
    o.set(Osoba::Imie, imie);
    o.set(Osoba::Pesel, pesel);
    o.set(Osoba::KodUbezpieczenia, "011000");
    o.set(Osoba::DataUrodzenia, urodzony);
    o.set(Osoba::Etat, "  1  1");
    o.set(Osoba::Grupa, "a");
    o.set(Osoba::Obywatelstwo, "POLSKIE");
    o.set(Osoba::DataZatrudnienia, std::string("01-02-2007") + Osoba::kZnacznikDaty);
    o.set(Osoba::Status, 1L);
    return o;
}

Lista::Lista(const std::string& dataListy) {
    s.Katalog = dir.path().string();
    s.SkrotPlatnika = "FIRMA";
    s.DataListy = dataListy;
    s.NazwaZbioru = "L1";
    core::ensureFolder(dir.path(), {"dane"});
    for (const char* f : {"bazy", "person", "Urlopy"}) core::ensureFolder(dir.path(), {"FIRMA", f});
    std::vector<core::Record> lata;
    for (int rok : {2008, 2009, 2019, 2020}) lata.push_back(stawkiRoku(rok));
    core::writeAll(Dane::path(s), lata);
}

void Lista::zmienStawke(int rok, int pole, const std::string& wartosc) {
    auto lata = core::readAll(Dane::path(s), Dane::schema());
    for (auto& r : lata)
        if (r.s(Dane::Rok) == std::to_string(rok)) r.set(pole, wartosc);
    core::writeAll(Dane::path(s), lata);
}

void Lista::dlaWierszaPolecen() {
    core::Session inst = s;
    inst.Katalog = ".";
    inst.Haslo = "test";
    core::Instalka::write(dir.path(), inst.instalkaRecord());
    core::Record firma(reference::Firma::schema());
    firma.set(reference::Firma::SkrotPlatnika, "FIRMA");
    firma.set(reference::Firma::NazwaM, "Firma Testowa");
    reference::Firma::writeAll(reference::Firma::path(s), {firma});
}

core::Record& Lista::dodaj(const std::string& pesel, float zasadnicza, const std::string& urodzony, const std::string& imie) {
    osoby.push_back(osoba(pesel, urodzony, "KOWALSKI", imie));
    osoby.back().set(Osoba::Numer, static_cast<long>(osoby.size()));
    place.push_back(placa(pesel, zasadnicza, "KOWALSKI", imie));
    place.back().set(Pay::DataZatrudnienia, "01/02/" + std::to_string(std::stoi(s.rok()) - 1));
    place.back().set(Pay::Numer, static_cast<long>(place.size()));
    return place.back();
}

void Lista::zapisz() {
    core::writeAll(Pay::path(s), std::vector<core::Record>(place.begin(), place.end()));
    core::writeAll(Osoba::path(s), std::vector<core::Record>(osoby.begin(), osoby.end()));
    if (!urlopy.empty()) paycalc::Urlop::writeAll(paycalc::Urlop::path(s, s.rok()), urlopy);
}

paycalc::Wynik Lista::licz(const std::string& klucz) {
    zapisz();
    s.KluczOsoby = klucz;
    s.NazwiskoOsoby = "KOWALSKI";
    return paycalc::modWyliczeniePlacy(s, ui);
}

namespace {
std::map<std::string, std::string> jakoMapa(const core::WynikMiesiaca& w) {
    std::map<std::string, std::string> m;
    for (const auto& l : paycalc::raportWyniku(w)) {
        auto eq = l.find('=');
        m[l.substr(0, eq)] = l.substr(eq + 1);
    }
    return m;
}
}  // namespace

double sumaF(std::initializer_list<double> amounts) {
    double sum = 0;
    for (double a : amounts) sum += static_cast<float>(a);
    return static_cast<float>(sum);
}

std::string pole(const core::WynikMiesiaca& w, const std::string& name) {
    auto m = jakoMapa(w);
    auto it = m.find(name);
    if (it == m.end()) throw std::logic_error("nie ma pola " + name);
    return it->second;
}

void sprawdzWynik(const core::WynikMiesiaca& w, const std::vector<std::pair<std::string, double>>& expected) {
    std::map<std::string, double> exp;
    for (const auto& [k, v] : expected) exp[k] = v;
    for (const paycalc::PoleWyniku& p : paycalc::kPolaWyniku) {
        const std::string name(p.nazwa);
        double want = exp.count(name) ? exp[name] : 0.0;
        EXPECT_EQ(w.*p.pole, static_cast<float>(want)) << name;
        exp.erase(name);
    }
    for (const auto& [k, v] : exp) ADD_FAILURE() << "nie ma pola " << k;
}

}  // namespace fx
