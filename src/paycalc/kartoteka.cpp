#include "paycalc/kartoteka.h"

#include <optional>

#include "core/numbers.h"
#include "core/paths.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "paycalc/pola_wyniku.h"
#include "payinputs/pay_record.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;
using core::Record;
namespace Pay = payinputs::Pay;
namespace Osoba = personnel::Osoba;

namespace paycalc {

namespace {

// An item of the pay record or of the result block put into a ledger field by the field's type:
// a variant keeps the item as it is, a text is quoted, a number is read as a number (Error 13
// for a text that is none).
void przepisz(Record& r, int n, const core::Item& it) {
    switch (r.schema().fields[n - 1].type) {
    case core::FieldType::Variant: r.setItem(n, it); break;
    case core::FieldType::String:
    case core::FieldType::Line: r.set(n, it.text); break;
    case core::FieldType::Blank: break;
    default: {
        double v = 0;
        const core::NumberText jak = core::parseNumber(it.text, v);
        if (jak != core::NumberText::Ok && jak != core::NumberText::Empty)
            core::throwNumber(jak, it.text, "kartoteka, pole " + std::to_string(n) + " " + r.fieldName(n));
        r.set(n, v);
    }
    }
}

const Record& pustyRekordPlacowy() {
    static const Record r(Pay::schema());
    return r;
}

}  // namespace

Record rekordKarty(const core::Session& s, const Record& o) {
    const core::WynikMiesiaca& w = s.wynik;
    const core::Stawki& st = s.stawki;
    const Record& P = w.placa.valid() ? w.placa : pustyRekordPlacowy();
    Record k(Karta::schema());
    using namespace Karta;

    k.set(Poczatek, "<Poczatek>");
    k.set(Nazwisko, core::RTrim(s.NazwiskoOsoby));
    k.set(Imie, core::RTrim(s.ImieOsoby));
    k.set(Klucz, s.KluczOsoby);
    k.set(KodUbezpieczenia, core::RTrim(s.KodUbezpieczeniaOsoby));

    // The amounts of the result block that the ledger keeps.
    for (const PoleWyniku& p : kPolaWyniku)
        if (p.karta != 0) k.set(p.karta, w.*p.pole);

    // Relief, tax rate and account of the pay record.
    k.set(KwotaUlgi, P.f(Pay::KwotaUlgi));
    k.set(UlgaInwestycyjna, P.f(Pay::UlgaInwestycyjna));
    k.set(StawkaPodatku, P.f(Pay::ZastosStaPOD));
    k.set(NumerKonta, P.s(Pay::NumerKontaROR));

    // Identity.
    k.set(Dokument, P.s(Pay::Dokument));
    k.set(Obywatelstwo, personnel::obywatelstwo(o.s(Osoba::Obywatelstwo)));

    // The benefits and the sick lines as the pay record had them, the amounts of the lines.
    for (int i = 0; i < 6; ++i) przepisz(k, ZasilekPielegnacyjny + i, w.wZasilek[static_cast<std::size_t>(i)]);
    for (int n = 0; n < 4; ++n) {
        const core::LiniaChorobowa& l = w.wLinie[static_cast<std::size_t>(n)];
        const int b = SredniaCH1 + 6 * n;
        przepisz(k, b, l.SredniaCH);
        przepisz(k, b + 1, l.Liczbadni);
        przepisz(k, b + 2, l.okresOd);
        przepisz(k, b + 3, l.okresDo);
        przepisz(k, b + 4, l.KodPrzerwy);
        przepisz(k, b + 5, l.ChPr);
        przepisz(k, KwotaLinii1 + n, P.item(Pay::KwotaCh1 + n));
    }
    k.set(Grupa, o.s(Osoba::Grupa));

    // Leave, address, birth.
    k.set(DniUrlopu, static_cast<long>(w.DniUrlopu));
    k.set(StawkaUrlopowa, w.StawkaUrlopowa);
    k.set(Kod, o.s(Osoba::Kod));
    k.set(Miejscowosc, o.s(Osoba::Miejscowosc));
    k.set(Ulica, o.s(Osoba::Ulica));
    k.set(NrDomu, o.s(Osoba::NrDomu));
    k.set(Lokal, o.s(Osoba::Lokal));
    k.set(DataUrodzenia, o.s(Osoba::DataUrodzenia));
    k.set(StawkaZdrowotna30, static_cast<float>(st.stZDI));
    przepisz(k, SredniaChorobowa, w.wSredniaChorobowa);

    // The list date and the rates.
    k.set(DataListy, s.DataListy);
    k.set(StawkaZdrowotna15, static_cast<float>(st.Kasach));
    k.set(StopaEmerytalna, st.emerytalna);
    k.set(StopaRentowa, st.rentowaPracownik);
    k.set(StopaChorobowa, st.chorobowa);
    k.set(StopaWypadkowa, st.wypadkowa);
    k.set(Etat, o.s(Osoba::Etat));
    k.set(NaLiscie, o.i(Osoba::Status));

    // The switches of the pay record.
    k.set(CheckEmerytalna, P.i(Pay::Emerytalna));
    k.set(CheckRentowa, P.i(Pay::Rentowa));
    k.set(CheckChorobowa, P.i(Pay::Chorobowa));
    k.set(CheckWypadkowa, P.i(Pay::Wypadkowa));
    k.set(CheckZdrowotna, P.i(Pay::Zdrowotna));

    // Funds, identity, the employer's rent rate.
    k.set(WskaznikFP, o.s(Osoba::WskaznikFP));
    k.set(FGSP, o.s(Osoba::FGSP));
    k.set(DowodOsobisty, o.s(Osoba::DowodOsobisty));
    k.set(UrzadSkarbowy, o.s(Osoba::UrzadSkarbowy));
    k.set(StopaRentowaPracodawcy, st.rentowaPracodawca);

    // The two sick sums of the calculation before their rounding.
    k.set(DniChorobyZakladu, static_cast<float>(w.sumaChorobowePlatne));
    k.set(DniChorobyZUS, static_cast<float>(w.sumaZasilki));
    k.set(Koniec, "<Koniec>");
    return k;
}

int wykonajKartoteke(core::Session& s, core::Dialogs& ui, const Postep& postep, std::vector<std::string>* bezPlacy) {
    // The rates of the year and the month stamp of the list date, then the list's files once.
    reference::loadRates(s);
    const ZbioryListy z = wczytajZbiory(s);
    const std::vector<Record>& osoby = z.osobowe.rekordy();
    const int ile = static_cast<int>(osoby.size());

    // The ledger goes to its file as it is made; it replaces the old one only once it is whole.
    core::ensureFolder(s.payerFolder(), {"karta"});
    core::SeqWriter out = core::SeqWriter::toFile(Karta::path(s), "tym" + s.NazwaZbioru + ".dta");
    int liczba = 0;
    postep(0, ile, 0);
    for (int i = 0; i < ile; ++i) {
        Record o = osoby[static_cast<std::size_t>(i)];
        o.set(Osoba::Obywatelstwo, personnel::obywatelstwo(o.s(Osoba::Obywatelstwo)));
        const std::string klucz = personnel::kluczOsoby(o);
        if (o.i(Osoba::Status) == 1) {
            s.KluczOsoby = klucz;
            s.NazwiskoOsoby = core::RTrim(o.s(Osoba::Nazwisko));
            s.ImieOsoby = core::RTrim(o.s(Osoba::Imie));
            s.KodUbezpieczeniaOsoby = core::RTrim(o.s(Osoba::KodUbezpieczenia));
            s.Osoba = core::EkranOsoby{};
            ++liczba;
            // The personnel values the calculation used (the birth date made from the PESEL
            // when it was empty); without a pay record the calculation ends before them.
            const Wynik wynik = modWyliczeniePlacy(s, ui, z);
            const bool policzono = wynik == Wynik::Policzono;
            if (wynik == Wynik::BrakPlacy && bezPlacy)
                bezPlacy->push_back(s.NazwiskoOsoby + " " + s.ImieOsoby + ", " + klucz);
            core::writeRecord(out, rekordKarty(s, policzono && s.wynik.osoba.valid() ? s.wynik.osoba : o));
        }
        postep(0, ile, i + 1);
    }
    // A personnel file that broke off: the people before the fault are done, the fault ends
    // the command.
    if (z.osobowe.blad()) throw *z.osobowe.blad();

    out.commit();
    s.LiczbaOsob = liczba;
    return liczba;
}

bool cmdKartoteka(core::Session& s, core::Dialogs& ui, const Postep& postep) {
    if (ui.msgBox("Czy chcesz wykonać kartotekę z aktualnej na ten miesiac listy płac ", core::Buttons::YesNo,
                  core::Icon::Information, "Wykonanie kartoteki z listy plac za " + s.DataListy) != core::Answer::Yes)
        return false;
    std::vector<std::string> bezPlacy;
    wykonajKartoteke(s, ui, postep, &bezPlacy);
    ui.msgBox("Wykonano kartotekę za " + s.RRmm(), core::Buttons::OK, core::Icon::Information,
              "Kartoteka z listy plac " + s.NazwaZbioru);
    if (!bezPlacy.empty())
        ui.msgBox(ostrzezenieBezPlacy(bezPlacy), core::Buttons::OK, core::Icon::Exclamation, kTytulBezPlacy);
    return true;
}

std::string ostrzezenieBezPlacy(const std::vector<std::string>& bezPlacy) {
    std::string t = "Te osoby listy nie mają danych płacowych:\n";
    for (const std::string& o : bezPlacy) t += "  " + o + "\n";
    return t +
           "Ich rekordy w kartotece powtarzają kwoty osoby poprzedniej (także kwotę do wypłaty i konto) i muszą "
           "zostać poprawione przed wypłatami i przelewami.";
}

namespace {

// The first record of a file whose field `pole` holds `klucz`, read from the start and no
// further; nothing when the file is missing or holds no such record.
std::optional<Record> pierwszy(const fs::path& file, const core::Schema& schema, int pole, const std::string& klucz) {
    if (!core::fileExists(file)) return std::nullopt;
    core::SeqReader in(file);
    while (!in.eof()) {
        Record r = core::readRecord(in, schema);
        if (r.s(pole) == klucz) return r;
    }
    return std::nullopt;
}

}  // namespace

float podstawaRoczna(const core::Session& s, const std::string& klucz, const std::string& rokDoPodstawy) {
    const std::string rok = core::Trim(rokDoPodstawy).empty() ? core::Right(s.DataListy, 2)
                                                              : core::Right(core::Trim(rokDoPodstawy), 2);
    const std::string& lista = s.NazwaZbioru;
    double suma = 0;
    for (int m = 1; m <= 12; ++m) {
        const std::string RRmm = rok + (m < 10 ? "0" : "") + std::to_string(m);
        if (auto r = pierwszy(Karta::path(s, lista, RRmm), Karta::schema(), Karta::Klucz, klucz))
            suma += r->f(Karta::PodstawaZUS);
        using Dodatkowy::Rodzaj;
        if (auto r = Dodatkowy::znajdz(Dodatkowy::path(s, Rodzaj::God, lista, RRmm), klucz))
            suma += r->f(Dodatkowy::KwotaBrutto);
        if (auto r = Dodatkowy::znajdz(Dodatkowy::path(s, Rodzaj::Dod, lista, RRmm), klucz))
            suma += static_cast<double>(r->f(Dodatkowy::Kw1)) + r->f(Dodatkowy::Kw2) + r->f(Dodatkowy::Kw3) +
                    r->f(Dodatkowy::Kw4) + r->f(Dodatkowy::Kw5);
        if (auto r = Dodatkowy::znajdz(Dodatkowy::path(s, Rodzaj::SwU, lista, RRmm), klucz))
            suma += r->f(Dodatkowy::KwotaBrutto);
        if (auto r = Dodatkowy::znajdz(Dodatkowy::path(s, Rodzaj::Jub, lista, RRmm), klucz))
            suma += r->f(Dodatkowy::KwotaBrutto);
    }
    return core::Round2(suma);
}

}  // namespace paycalc
