#include "printing/specyfikacja.h"

#include <optional>

#include "core/error.h"
#include "core/numbers.h"
#include "core/paths.h"
#include "core/printer.h"
#include "core/text.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"

using core::Buttons;
using core::Icon;
namespace fs = std::filesystem;
namespace Karta = paycalc::Karta;

namespace printing {

const char* const kNieMaKwot = "Nie ma kwot do wypłaty !";

namespace Specyfikacja {

static const core::FieldDef kFields[] = {{"Kwota", core::FieldType::String}};
static const core::Schema kSchema{"specyfikacja.dat", kFields, 1};

const core::Schema& schema() { return kSchema; }

fs::path path(const core::Session& s) { return s.payerPath({"specyfikacja.dat"}); }

std::vector<std::string> read(const fs::path& file) {
    std::vector<std::string> out;
    for (const auto& r : core::readAll(file, kSchema)) out.push_back(r.s(Kwota));
    return out;
}

void write(const fs::path& file, const std::vector<std::string>& kwoty) {
    std::vector<core::Record> recs;
    for (const auto& k : kwoty) {
        core::Record r(kSchema);
        r.set(Kwota, k);
        recs.push_back(std::move(r));
    }
    core::writeAll(file, recs);
}

}  // namespace Specyfikacja

namespace {

enum Nominal { Z200, Z100, Z50, Z20, Z10, Z5, Z2, Z1, G50, G20, G10, G5, G2, G1 };

// A digit of one of the four decades that split by 5, 2 and 1 of the decade.
void rozloz(std::array<long, 14>& il, int d, int n5, int n2, int n1) {
    static const int piec[10] = {0, 0, 0, 0, 0, 1, 1, 1, 1, 1};
    static const int dwa[10] = {0, 0, 1, 1, 2, 0, 0, 1, 1, 2};
    static const int jeden[10] = {0, 1, 0, 1, 0, 0, 1, 0, 1, 0};
    il[n5] += piec[d];
    il[n2] += dwa[d];
    il[n1] += jeden[d];
}

}  // namespace

void Banknoty::dodaj(const std::string& kwota9) {
    auto znak = [&](std::size_t pos) {
        std::string c = core::Mid(kwota9, pos, 1);
        return c.empty() ? ' ' : c[0];
    };
    auto cyfra = [&](std::size_t pos) {
        char c = znak(pos);
        return c >= '0' && c <= '9' ? c - '0' : 0;
    };
    rozloz(ilosc, cyfra(9), G5, G2, G1);
    // A blank ends the amount: it has no digits further left.
    if (znak(8) == ' ') return;
    rozloz(ilosc, cyfra(8), G50, G20, G10);
    if (znak(6) == ' ') return;
    rozloz(ilosc, cyfra(6), Z5, Z2, Z1);
    if (znak(5) == ' ') return;
    rozloz(ilosc, cyfra(5), Z50, Z20, Z10);
    if (znak(4) == ' ') return;
    ilosc[Z200] += cyfra(4) / 2;
    ilosc[Z100] += cyfra(4) % 2;
    // Thousands and above in 200 zł notes only.
    if (znak(3) == ' ') return;
    ilosc[Z200] += 5L * cyfra(3);
    if (znak(2) == ' ') return;
    ilosc[Z200] += 50L * cyfra(2);
    ilosc[Z200] += 500L * cyfra(1);
}

long Banknoty::ile(int grosze) const {
    for (std::size_t i = 0; i < kNominal.size(); ++i)
        if (kNominal[i] == grosze) return ilosc[i];
    return 0;
}

double Banknoty::kwota(int grosze) const { return static_cast<double>(ile(grosze)) * grosze / 100.0; }

double Banknoty::razem() const {
    double t = 0;
    for (int g : kNominal) t += kwota(g);
    return t;
}

void modSpecyfikacja(core::Session& s, core::Dialogs& ui, const fs::path& plik) {
    Banknoty b;
    for (const auto& k : Specyfikacja::read(plik)) b.dodaj(k);

    if (ui.msgBox("Obecnie może być wydrukowana specyfikacja banknotów ! OK Wykonać", Buttons::OKCancel, Icon::Question,
                  "Usuwa rekord ! ") != core::Answer::OK)
        return;
    core::Printer& p = ui.printer();
    if (int st = p.status()) throw core::Error(st, "drukarka");
    p.setFont("Courier New", 9, false);
    p.print("     Specyfikacja banknotow i bilonu za miesiac " + s.miesiac());
    p.print("     " + core::RTrim(s.NazwaListy) + " do list" + "y" + " plac NR." + s.NumerListy);
    p.emptyLine();
    auto kom = [&](const char* znak, int grosze) {
        const char* jednostka = grosze >= 100 ? "zł *" : "gr *";
        return std::string(znak) + jednostka + core::Kw8(static_cast<double>(b.ile(grosze))) + "=" +
               core::Kw8(b.kwota(grosze));
    };
    p.print("!Banknot * ilość = kwota " + kom("! 50", 5000) + kom("!  5", 500) + kom("! 50", 50) + kom("!  5", 5) + "!");
    p.print(kom("!200", 20000) + kom("! 20", 2000) + kom("!  2", 200) + kom("! 20", 20) + kom("!  2", 2) + "!");
    p.print(kom("!100", 10000) + kom("! 10", 1000) + kom("!  1", 100) + kom("! 10", 10) + kom("!  1", 1) + "!");
    if (b.razem() > 0) {
        p.emptyLine();
        p.print(core::Space(89) + "Do wypłaty    R A Z E M  =" + core::Kw11(b.razem()));
        p.endDoc();
    }
}

void CmdSpecyfikacja(core::Session& s, core::Dialogs& ui) {
    const std::string tytul = s.DataListy + "Wykonanie specyfikacji banknotów i bilonu ";
    if (ui.msgBox("Czy chcesz wykonać specyfikacje banknotow z tej listy ? OK Założyc", Buttons::OKCancel, Icon::Question,
                  tytul) != core::Answer::OK)
        return;
    std::optional<core::SeqReader> karta;
    try {
        karta.emplace(Karta::path(s));
    } catch (const core::Error& e) {
        if (e.Number != core::err::FileNotFound && e.Number != core::err::PathNotFound) throw;
        ui.msgBox(kBrakKartoteki, Buttons::OK, Icon::Exclamation, tytul);
        return;
    }
    std::vector<std::string> kwoty;
    while (!karta->eof()) {
        const core::Record r = core::readRecord(*karta, Karta::schema());
        float doWyplaty = r.f(Karta::DoWyplaty);
        if (doWyplaty > 0) kwoty.push_back(tekstKwoty(doWyplaty, 9));
    }
    const fs::path plik = Specyfikacja::path(s);
    if (kwoty.empty()) {
        std::error_code ec;
        fs::remove(plik, ec);
        ui.msgBox(kNieMaKwot, Buttons::OK, Icon::Information, tytul);
        return;
    }
    Specyfikacja::write(plik, kwoty);
    try {
        modSpecyfikacja(s, ui, plik);
    } catch (const core::Error& e) {
        std::error_code ec;
        fs::remove(plik, ec);
        if (DrukListy::bladDrukarki(ui, e)) return;
        throw;
    }
    std::error_code ec;
    fs::remove(plik, ec);
}

}  // namespace printing
