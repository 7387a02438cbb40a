#include "zus/zua.h"

#include "core/error.h"
#include "core/paths.h"
#include "core/seqfile.h"
#include "core/text.h"
#include "personnel/person_record.h"
#include "reference/payers.h"
#include "zus/kedu.h"

namespace fs = std::filesystem;
using core::Left;
using core::Mid;
using core::PadRight;
using core::Right;
using core::Space;
namespace O = personnel::Osoba;
namespace F = reference::Firma;

namespace zus {

namespace {

// dd-mm-rrrr as ddmmrrrr; 8 blanks for an empty date.
std::string bezKresek(const std::string& d) {
    return d.empty() ? Space(8) : PadRight(Left(d, 2) + Mid(d, 4, 2) + Right(d, 4), 8);
}

void dokumentOsoby(std::vector<std::string>& o, const core::Session& s, const core::Record& p) {
    auto blanks = [&o](std::initializer_list<int> szer) {
        for (int n : szer) o.push_back(Space(n));
    };
    const core::Record& f = s.Firma;
    const std::string zatrudniony = bezKresek(personnel::dataZatrudnienia(p.s(O::DataZatrudnienia)));
    const std::string imie = p.s(O::Imie);
    o.insert(o.end(), {"<ZUSZUA.DP>", "<naglowek.DP>"});
    blanks({51, 8, 8, 8, 24, 8, 24, 24, 8, 24, 24, 1});
    o.insert(o.end(), {"2", PadRight("401001", 32), "</naglowek.DP>", "<ZUSZUA>", "<DOZUA>", "X", " ", " ", Space(8),
                       Space(6), "</DOZUA>", "<DIPL>", PadRight(f.s(F::NIP), 10), PadRight(f.s(F::RegonM), 14),
                       PadRight(f.s(F::PeselM), 11), f.s(F::DowodM).empty() ? " " : "1",
                       PadRight(f.s(F::DowodM), 9), PadRight(f.s(F::NazwaSkrocona), 31),
                       PadRight(f.s(F::NazwiskoM), 31), PadRight(f.s(F::ImieM), 22),
                       PadRight(f.s(F::DataurodzeniaP), 8), Space(16), Space(16), Space(2), "</DIPL>"});
    const std::string dowod = p.s(O::DowodOsobisty);
    o.insert(o.end(), {"<DAU>", PadRight(p.s(O::Pesel), 11), PadRight(p.s(O::Nip), 10), dowod.empty() ? " " : "1",
                       PadRight(dowod, 9), PadRight(NazwaDoKEDU(p.s(O::Nazwisko)), 31), PadRight(imie, 22),
                       bezKresek(p.s(O::DataUrodzenia)), Space(16), Space(16), Space(2), "</DAU>"});
    o.insert(o.end(), {"<DEOZ>", PadRight(p.s(O::DrugieImie), 22), Space(31),
                       PadRight(personnel::obywatelstwo(p.s(O::Obywatelstwo)), 22),
                       Right(core::UCase(core::RTrim(imie)), 1) == "A" ? "K" : "M", " ", " ", "</DEOZ>"});
    o.insert(o.end(), {"<TYUB>", PadRight(p.s(O::KodUbezpieczenia), 6), Space(16), "</TYUB>"});
    o.insert(o.end(), {"<DOWP>", Space(6), zatrudniony, "X", Space(8), Space(8), Space(1), "</DOWP>"});
    o.insert(o.end(), {"<DOOU>", zatrudniony, "</DOOU>", "<DOBU>"});
    blanks({1, 8, 1, 8, 1, 8});
    o.insert(o.end(), {"</DOBU>", "<DODU>", "", Space(8), Space(9), "</DODU>", "<IODZ>"});
    blanks({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    o.insert(o.end(), {"</IODZ>", "<DOKC>", "06R", PadRight("MAŁOPOLSKA RKCH", 23), zatrudniony, "</DOKC>"});
    o.insert(o.end(), {"<AZMO>", PadRight(core::Replace(p.s(O::Kod), "-", ""), 5), PadRight(p.s(O::Miejscowosc), 26),
                       PadRight(p.s(O::Poczta), 26), PadRight(p.s(O::Ulica), 30), PadRight(p.s(O::NrDomu), 7),
                       PadRight(p.s(O::Lokal), 7), PadRight(p.s(O::Telefon), 12), PadRight(p.s(O::Komorka), 12),
                       "</AZMO>", "<ADZA>"});
    blanks({5, 25, 25, 29, 7, 5});
    o.insert(o.end(), {"</ADZA>", "<ADKB>"});
    blanks({5, 25, 29, 7, 7, 5, 12, 12, 29});
    o.insert(o.end(), {"</ADKB>", "<OPL1>", bezKresek(s.DataListy), "</OPL1>", "</ZUSZUA>", "<stopka.DP>",
                       "</stopka.DP>", "</ZUSZUA.DP>"});
}

}  // namespace

fs::path plikZUA(const core::Session& s) { return s.payerPath({"zgloszeniowe", "ZUA" + s.NazwaZbioru + ".KDU"}); }

std::vector<std::string> dokumentZUA(const core::Session& s, const std::vector<core::Record>& osoby) {
    std::vector<std::string> o = {"<!DOCTYPE KEDU PUBLIC '-//ZUS//DTD KEDU 1.2//PL'[",
                                  "<!ENTITY wersja '001.200' >",
                                  "<!ENTITY strona.kodowa 'ISO 8859-2' >]>",
                                  "<KEDU>",
                                  "<naglowek.KEDU>",
                                  Space(51),
                                  Space(8),
                                  Space(24),
                                  Space(24),
                                  "BRAK",
                                  "</naglowek.KEDU>"};
    for (const core::Record& p : osoby) dokumentOsoby(o, s, p);
    o.insert(o.end(), {"<stopka.KEDU>", "</stopka.KEDU>", "</KEDU>"});
    return o;
}

std::optional<fs::path> cmdZUA(core::Session& s, core::Dialogs& ui) {
    if (ui.msgBox("Czy chcesz wykonać zbiór ZUA dla wszystkich na ten miesąc", core::Buttons::OKCancel,
                  core::Icon::Question, "Wykonuję ZUA ze zbioru personalnego za miesiąc " + s.DataListy) !=
        core::Answer::OK)
        return std::nullopt;
    try {
        std::string tekst;
        for (const std::string& l : dokumentZUA(s, O::readAll(O::path(s)))) tekst += l + "\r\n";
        core::ensureFolder(s.payerFolder(), {"zgloszeniowe"});
        const fs::path plik = plikZUA(s);
        core::commitFile(plik, tekst, "Tymcza.kdu");
        core::MsgBox(ui, " Wykonano zestaw dokumentow ZUA dla wszystkich pracowników ");
        return plik;
    } catch (const core::Error& e) {
        core::MsgBox(ui, core::errorReport(e), {}, core::Icon::Critical);
        return std::nullopt;
    }
}

}  // namespace zus
