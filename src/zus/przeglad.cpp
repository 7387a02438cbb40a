#include "zus/przeglad.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "reference/rates.h"
#include "zus/rcp_record.h"

using core::Format;
using core::Record;
using core::RoundSkl;

namespace zus {

const char* const kNaglowkiRCP[kKolumnyRCP] = {
    " L.p ",    "Nazwisko", "Imie",       "Identyfikator", "KodUbez",  "Podst.ZUS", "Skł.Emer", "Skł.Rent",
    "Skł.Chor", "RazemSkł", "Podst.Zdro", "Skł.Zdro",      "Podst.FPr ", "Skł.FPr ", "Skł.FGSP", "Il.OsZR",
    "Kwota ZR", "Il.OsZP",  "Kwota ZP",   "Skł.Wypa",      "RazemSkladki", "Etat"};
const int kSzerokosciRCP[kKolumnyRCP] = {450,  2000, 1800, 1500, 1000, 1200, 1000, 1000, 1000, 1000, 1200,
                                         1000, 1200, 1000, 1000, 1000, 900,  900,  900,  900,  1200, 800};

namespace {

enum Kol {
    kLp, kNazwisko, kImie, kIdent, kKod, kPodst, kEmer, kRent, kChor, kRazemSkl, kPodstZdr, kSklZdr, kPodstFP,
    kSklFP, kSklFGSP, kIlZR, kKwZR, kIlZP, kKwZP, kWypa, kRazem, kEtat
};

std::string kwota(double v) { return Format(v, "0.00"); }

// The value of the post: numerator / denominator, 0 without a denominator.
double etat(const std::string& e) {
    const double mian = core::Val(core::Mid(e, 4, 3));
    return mian > 0 ? core::Val(core::Left(e, 3)) / mian : 0.0;
}

}  // namespace

int poleKolumny(int k) {
    switch (k) {
    case kLp: return Rcp::Lp;
    case kNazwisko: return Rcp::Nazwisko;
    case kImie: return Rcp::Imie;
    case kIdent: return Rcp::PESEL;
    case kKod: return Rcp::KodUbez;
    case kPodst: return Rcp::PodstZUS;
    case kPodstZdr: return Rcp::PodstZdro;
    case kSklZdr: return Rcp::SklZdro;
    case kIlZR: return Rcp::IlOsZR;
    case kKwZR: return Rcp::KwotaZR;
    case kIlZP: return Rcp::IlOsZP;
    case kKwZP: return Rcp::KwotaZP;
    default: return 0;
    }
}

std::string zlaWartosc(int kolumna, const std::string& tekst) {
    const int pole = poleKolumny(kolumna);
    if (pole == 0) return "Tej kolumny nie zapisuje się w zbiorze: jest wyliczana.";
    if (tekst.find('"') != std::string::npos) return "Wartość nie może zawierać cudzysłowu (\").";
    try {
        core::toCp1250(tekst);
    } catch (const core::Error&) {
        return "Wartość zawiera znak, którego nie można zapisać w plikach programu (strona kodowa 1250).";
    }
    if (Rcp::schema().fields[pole - 1].type == core::FieldType::Float && !core::Trim(tekst).empty() &&
        !core::isNumeric(core::KropkaZamiastPrzecinka(std::string(tekst))))
        return "Wpisz liczbę, np. 1234.56.";
    return {};
}

std::vector<std::vector<std::string>> tabelaRCP(const core::Session& s, const std::vector<Record>& rcp) {
    const core::Stawki& st = s.stawki;
    const double placaMinimalna = s.Dane.d(reference::Dane::MInBRUTTO);
    std::vector<std::vector<std::string>> t;
    double sumy[kKolumnyRCP] = {};
    for (const Record& r : rcp) {
        const double f8 = r.f(Rcp::PodstZUS), f9 = r.f(Rcp::PodstChorobowa), f14 = r.f(Rcp::SklZdro);
        double v[kKolumnyRCP] = {};
        v[kPodst] = f8;
        v[kRent] = RoundSkl(st.rentowaPracownik * f8) + RoundSkl(st.rentowaPracodawca * f8);
        v[kEmer] = RoundSkl(2 * st.emerytalna * f8);
        v[kChor] = RoundSkl(st.chorobowa * f9);
        v[kWypa] = RoundSkl(st.wypadkowa * f9);
        v[kSklZdr] = f14;
        v[kRazemSkl] = v[kEmer] + v[kChor] + v[kWypa];
        double podstFP = f8 < placaMinimalna ? 0.0 : f8;
        if (r.s(Rcp::WskaznikFP) == "1") podstFP = 0;
        if (r.s(Rcp::WskaznikFP) == "2") podstFP = f8;
        v[kPodstFP] = podstFP;
        v[kSklFP] = core::Round2(st.funduszPracy * podstFP);
        v[kSklFGSP] = core::Left(r.s(Rcp::KodUbez), 2) == "05" ? 0.0 : core::Round2(st.fgsp * r.f(Rcp::PodstFGSP));
        v[kPodstZdr] = r.f(Rcp::PodstZdro);
        v[kIlZR] = r.f(Rcp::IlOsZR);
        v[kKwZR] = r.f(Rcp::KwotaZR);
        v[kIlZP] = r.f(Rcp::IlOsZP);
        v[kKwZP] = r.f(Rcp::KwotaZP);
        v[kRazem] = v[kRazemSkl] + f14 + v[kSklFP] + v[kSklFGSP] + v[kWypa];
        v[kEtat] = etat(r.s(Rcp::Etat));
        std::vector<std::string> w(kKolumnyRCP);
        w[kLp] = r.s(Rcp::Lp);
        w[kNazwisko] = r.s(Rcp::Nazwisko);
        w[kImie] = r.s(Rcp::Imie);
        w[kIdent] = Rcp::identyfikator(r);
        w[kKod] = r.s(Rcp::KodUbez);
        for (int k = kPodst; k < kKolumnyRCP; ++k) {
            sumy[k] += v[k];
            w[k] = (k == kIlZR || k == kIlZP) ? core::numText(v[k]) : kwota(v[k]);
        }
        w[kRazem] = Format(v[kRazem], "#######0.00");
        w[kEtat] = Format(v[kEtat], "0.00");
        t.push_back(std::move(w));
    }
    std::vector<std::string> razem(kKolumnyRCP);
    razem[kLp] = "Razem";
    razem[kNazwisko] = "Skladki";
    razem[kImie] = " X     ";
    razem[kIdent] = " X";
    for (int k = kPodst; k < kEtat; ++k)
        razem[k] = (k == kIlZR || k == kIlZP) ? core::numText(sumy[k]) : kwota(sumy[k]);
    t.push_back(std::move(razem));
    return t;
}

void zmienRekordy(std::vector<Record>& rcp, const std::vector<std::vector<std::string>>& wiersze) {
    for (std::size_t i = 0; i < rcp.size() && i < wiersze.size(); ++i) {
        Record& r = rcp[i];
        const bool polskie = core::Left(core::UCase(personnel::obywatelstwo(r.s(Rcp::Obywatelstwo))), 5) == "POLSK";
        for (int k = 0; k < kKolumnyRCP; ++k) {
            int pole = poleKolumny(k);
            if (pole == 0) continue;
            const std::string& tekst = wiersze[i][static_cast<std::size_t>(k)];
            if (pole == Rcp::PESEL) {
                if (tekst == Rcp::identyfikator(r)) continue;  // shown padded for a foreigner
                if (!polskie) pole = Rcp::InnyIdentyfikator;
            }
            if (Rcp::schema().fields[pole - 1].type == core::FieldType::Float) {
                const double nowa = core::toDoubleOrZero(core::KropkaZamiastPrzecinka(std::string(tekst)),
                                                         "frmRCP, wiersz " + std::to_string(i + 1));
                if (core::Round2(nowa) != core::Round2(static_cast<double>(r.f(pole)))) r.set(pole, nowa);
            } else if (tekst != r.s(pole)) {
                r.set(pole, tekst);
            }
        }
    }
}

void zapiszRCP(const core::Session& s, const std::vector<Record>& rcp) {
    const auto plik = Rcp::path(s);
    Rcp::writeAll(plik, rcp, plik.stem().string() + ".tym");
}

// Persons on one page of the printed list (two lines each).
constexpr std::size_t kOsobNaStronie = 30;

void drukujRCA(core::Printer& p, const std::vector<std::vector<std::string>>& tabela) {
    const std::string gora = "|===|====================================|===========|==========|==========|==========|===========|==========|";
    const std::string kreska = "|---|------------------------------------|-----------|----------|----------|----------|-----------|----------|";
    auto naglowek = [&] {
        p.setFont("Courier New", 10, true);
        p.print("  Zestawienie podstaw i składek do ZUS");
        p.setFont("Courier New", 8, false);
        p.print(gora);
        p.print("|Lp.| Nazwisko i imie                    |Postawa ZUS|Skł.Emeryt|Skł.Rentow|Skł.Chorob|PodstawaZdr|Skł.Zdrowo|");
        p.print(gora);
    };
    naglowek();
    auto kwoty = [](const std::vector<std::string>& w) {
        return core::PadLeft(w[kPodst], 11) + "|" + core::PadLeft(w[kEmer], 10) + "|" + core::PadLeft(w[kRent], 10) +
               "|" + core::PadLeft(w[kChor], 10) + "|" + core::PadLeft(w[kPodstZdr], 11) + "|" +
               core::PadLeft(w[kSklZdr], 10) + "|";
    };
    for (std::size_t i = 0; i + 1 < tabela.size(); ++i) {
        const auto& w = tabela[i];
        p.print("|" + core::PadLeft(core::Trim(w[kLp]), 3) + "| " + core::PadRight(w[kNazwisko] + " " + w[kImie], 35) +
                "|" + kwoty(w));
        p.print(kreska);
        if ((i + 1) % kOsobNaStronie == 0 && i + 2 < tabela.size()) {
            p.newPage();
            naglowek();
        }
    }
    if (!tabela.empty()) p.print("|   | Razem                              |" + kwoty(tabela.back()));
    p.print(gora);
    p.endDoc();
}

}  // namespace zus
