// The pay list and the payslips: the values a person's rows are built from, the cells, the
// page counter, the carry-over lines, the boxes of the printer and of a missing ledger, and the
// summary file.
#include <gtest/gtest.h>

#include <functional>

#include "core/paths.h"
#include "core/text.h"
#include "fixture.h"
#include "paycalc/karta_record.h"
#include "printing/lista_plac.h"
#include "printing/sumy_record.h"
#include "reference/payers.h"

namespace K = paycalc::Karta;
namespace S = printing::Sumy;
using printing_tests::Dane;
using printing_tests::osoba;
using testing_support::readBytes;

namespace {

// The lines of all pages that contain `what`.
std::vector<std::string> wiersze(const core::TextPrinter& p, const std::string& what) {
    std::vector<std::string> out;
    for (const auto& page : p.pages())
        for (const auto& l : page)
            if (l.text.find(what) != std::string::npos) out.push_back(l.text);
    return out;
}

}  // namespace

TEST(Lista, Cells) {
    struct {
        float v;
        int width;
        const char* cell;
    } cases[] = {
        {0, 7, "|     - "},          {0, 8, "|      - "},         {0, 9, "|       - "},
        {0, 10, "|        - "},      {12.5f, 7, "|  12.50"},       {1234.56f, 8, "| 1234.56"},
        {-50, 9, "|   -50.00"},      {161.1f, 10, "|    161.10"},  {123456.7f, 8, "|23456.70"},  // too wide: cut in front
        {123456.78f, 9, "|123456.80"},  // seven digits of a float
        {0.005f, 8, "|    0.01"},  // a float keeps its own digits: 0.005 goes up
    };
    for (const auto& c : cases) EXPECT_EQ(printing::komorka(c.v, c.width), c.cell) << c.v << " / " << c.width;
}

TEST(Lista, ValuesOfAPerson) {
    core::Stawki st;
    st.wypadkowa = 0.0167;
    struct Case {
        const char* what;
        core::Record rec;
        std::function<void(const printing::OsobaNaLiscie&)> check;
    } cases[] = {
        {"sick lines: the first copies, the fourth takes code 331 without its days",
         osoba("A", "A", {{K::LiczbaDni1, 10}, {K::LiczbaDni2, 3}, {K::LiczbaDni3, 5}, {K::LiczbaDni4, 2}},
               {{K::KodPrzerwy1, "313"}, {K::KodPrzerwy2, "331"}, {K::KodPrzerwy3, "313"}, {K::KodPrzerwy4, "331"}}),
         [](const auto& o) {
             EXPECT_EQ(o.DniInneKody, 15);
             EXPECT_EQ(o.DniKod331, 3);
             EXPECT_EQ(o.KodLinii1, "313");
             EXPECT_EQ(o.KodLinii2, "331");
         }},
        {"sick lines: another code on line 4 adds its days and takes the line-1 cell",
         osoba("A", "A", {{K::LiczbaDni1, 4}, {K::LiczbaDni4, 6}}, {{K::KodPrzerwy1, "331"}, {K::KodPrzerwy4, "121"}}),
         [](const auto& o) {
             EXPECT_EQ(o.DniKod331, 4);
             EXPECT_EQ(o.DniInneKody, 6);
             EXPECT_EQ(o.KodLinii1, "121");
             EXPECT_EQ(o.KodLinii2, "331");
         }},
        {"a line without days takes no code", osoba("A", "A", {}, {{K::KodPrzerwy1, "313"}}),
         [](const auto& o) {
             EXPECT_EQ(o.KodLinii1, "   ");
             EXPECT_EQ(o.DniInneKody, 0);
         }},
        {"deductions, net, the bank part cut to net less deduction 3; gross to two decimals",
         osoba("A", "A",
               {{K::Brutto, 1000.006}, {K::SkladkaEmerytalna, 97.6}, {K::SkladkaRentowa, 15}, {K::SkladkaChorobowa, 24.5},
                {K::PodatekNetto, 60}, {K::ZFMRata, 10}, {K::Potracenie3, 5}, {K::ZasilekRodzinny, 100},
                {K::NaROR, 5000}}),
         [](const auto& o) {
             EXPECT_FLOAT_EQ(o.v[K::Brutto], 1000.01f);
             EXPECT_FLOAT_EQ(o.RazemPot, 207.1f);  // 10 + 60 + 24.5 + 15 + 97.6
             EXPECT_FLOAT_EQ(o.RazemSkl, 137.1f);
             EXPECT_FLOAT_EQ(o.PoPotraceniach, 792.91f);
             EXPECT_FLOAT_EQ(o.Netto, 892.91f);  // with the family benefit
             EXPECT_FLOAT_EQ(o.v[K::NaROR], 887.91f);
         }},
        {"leave pay from the days and the rate; the accident amount when the switch is on",
         osoba("A", "A", {{K::DniUrlopu, 3}, {K::StawkaUrlopowa, 101.335}, {K::Urlopowe, 1}, {K::PodstawaZUS, 3333},
                          {K::CheckWypadkowa, 1}}),
         [](const auto& o) {
             EXPECT_FLOAT_EQ(o.v[K::Urlopowe], 304.0f);  // the float 101.335 is 101.33499..., times 3 under 304.005
             EXPECT_FLOAT_EQ(o.Wypadkowa, 55.66f);        // 3333 * 1.67% = 55.6611
         }},
        {"negative net: the shortfall comes off the cash part of the benefit",
         osoba("A", "A", {{K::Brutto, 100}, {K::SkladkaEmerytalna, 150}, {K::ChoroboweZUS, 300}, {K::StawkaPodatku, 0.17}}),
         [](const auto& o) {
             EXPECT_FLOAT_EQ(o.Netto, -50);
             EXPECT_FLOAT_EQ(o.v[K::NaROR], -50);  // the bank part follows net down
             EXPECT_FLOAT_EQ(o.v[K::Niedobor], 50);
             EXPECT_FLOAT_EQ(o.PodatekOdZasilkow, 51);  // 17% of 300
             EXPECT_FLOAT_EQ(o.ZasilkiGotowka, 199);    // 300 - 50 - 51
         }},
        {"benefit to the account when there is one and a bank part; unused relief lowers its tax",
         osoba("A", "A",
               {{K::Brutto, 2000}, {K::NaROR, 1500}, {K::ChoroboweWypadkowe, 200.4}, {K::ChoroboweZUS, 100},
                {K::StawkaPodatku, 0.17}, {K::UlgaNiewykorzystana, 43.76}},
               {{K::NumerKonta, "12 1240"}}),
         [](const auto& o) {
             EXPECT_FLOAT_EQ(o.PodatekOdZasilkow, 7.24f);  // 17% of 300 (300.4 to a whole) = 51, less 43.76
             EXPECT_FLOAT_EQ(o.v[K::ZasilkiDoROR], 293.16f);  // 300.4 - 7.24
             EXPECT_FLOAT_EQ(o.ZasilkiGotowka, 0);
         }},
        {"job shares", osoba("A", "A", {}, {{K::Etat, "  3  4"}}), [](const auto& o) { EXPECT_DOUBLE_EQ(o.Etaty, 0.75); }},
        {"a job share with no denominator counts nothing", osoba("A", "A", {}, {{K::Etat, "  1  0"}}),
         [](const auto& o) { EXPECT_DOUBLE_EQ(o.Etaty, 0); }},
    };
    for (auto& c : cases) {
        SCOPED_TRACE(c.what);
        c.check(printing::wyliczOsobe(c.rec, st));
    }
}

TEST(Lista, PageCounterRunsOnIntoTheNextPrint) {
    Dane d;
    d.karta(printing_tests::proste(14));
    printing::cmdDrukListy(d.s, d.ui);
    EXPECT_EQ(d.s.Strona, 2);
    printing::cmdDrukListy(d.s, d.ui);
    ASSERT_EQ(d.ui.paper.documents().size(), 2u);
    auto strona = [&](std::size_t doc, std::size_t page) {
        for (const auto& l : d.ui.paper.documents()[doc][page])
            if (l.text.find("strona ") != std::string::npos) return core::Trim(l.text);
        return std::string();
    };
    EXPECT_EQ(strona(0, 0), "strona 1 / z 2");
    EXPECT_EQ(strona(0, 1), "strona 2 / z 2");
    // The first page head of the second print goes out before the counter is set back to 1.
    EXPECT_EQ(strona(1, 0), "strona 2 / z 2");
    EXPECT_EQ(strona(1, 1), "strona 2 / z 2");
}

TEST(Lista, CarryOverLinesStopAfterTheSixtyFifthPerson) {
    Dane d;
    d.karta(printing_tests::proste(90));
    printing::cmdDrukListy(d.s, d.ui);
    auto lines = wiersze(d.ui.paper, "Przeniesienie");
    std::vector<std::string> expected = {"    Przeniesienie na strone 2", "    Przeniesienie na strone 3",
                                         "    Przeniesienie na strone 4", "    Przeniesienie na strone 5",
                                         "  Przeniesienie na strone 6"};
    EXPECT_EQ(lines, expected);
    auto pages = d.ui.paper.pages();
    ASSERT_EQ(pages.size(), 6u);  // the persons after the 65th run on on the sixth page
    EXPECT_EQ(core::Trim(pages[5][0].text), "strona 6 / z 7");
    EXPECT_EQ(wiersze(d.ui.paper, "Ilosc osób = 90   ").size(), 1u);
}

TEST(Lista, BoxesOfThePrinterAndOfAMissingLedger) {
    struct Case {
        const char* what;
        bool karta;
        int status;
        core::Answer drukarka;
        bool paski;
        std::vector<std::string> boxes;
        std::size_t dokumenty;
        bool glowa;  // the list head went to the printer
    } cases[] = {
        {"no ledger", false, 0, core::Answer::Yes, false,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!", "[] Po pierwsze wykonaj kartoteke !"}, 0, true},
        {"no ledger, payslips", false, 0, core::Answer::Yes, true,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!", "[] Po pierwsze wykonaj kartoteke !"}, 0, false},
        {"out of paper", true, 27, core::Answer::Yes, false,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!", "[] Brak papieru w drukarce !"}, 0, false},
        {"printer off", true, 25, core::Answer::Yes, false,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!", "[] Drukarka nie jest właczona !"}, 0, false},
        {"printer off, payslips", true, 25, core::Answer::Yes, true,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!", "[] Drukarka nie jest właczona !"}, 0, false},
        {"printer not ready", true, 0, core::Answer::No, false,
         {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!"}, 0, false},
        {"printed", true, 0, core::Answer::Yes, false, {"[Sprawdź Drukarkę] Upewnij się czy drukarka jest gotowa!"}, 1,
         true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Dane d;
        if (c.karta) d.karta({printing_tests::kowalski()});
        d.ui.paper.setStatus(c.status);
        d.ui.answer(c.drukarka);
        if (c.paski)
            printing::CmdPaski(d.s, d.ui);
        else
            printing::cmdDrukListy(d.s, d.ui);
        EXPECT_EQ(d.ui.lines(), c.boxes);
        EXPECT_EQ(d.ui.paper.documents().size(), c.dokumenty);
        EXPECT_EQ(!wiersze(d.ui.paper, "LISTA  płac  DEMO").empty(), c.glowa);
        EXPECT_EQ(d.s.TrybDruku, 0);
        EXPECT_EQ(core::fileExists(S::path(d.s)), c.dokumenty == 1);
        for (const auto& b : d.ui.boxes)
            if (b.title.empty()) { EXPECT_EQ(b.icon, core::Icon::Exclamation); }
    }
}

TEST(Lista, PayslipsLeaveTheSummaryFileAlone) {
    Dane d;
    d.karta(printing_tests::proste(14));
    printing::cmdDrukListy(d.s, d.ui);
    std::string before = readBytes(S::path(d.s));
    d.karta({printing_tests::kowalski()});
    printing::CmdPaski(d.s, d.ui);
    EXPECT_EQ(readBytes(S::path(d.s)), before);
    EXPECT_EQ(d.s.TrybDruku, 0);
    // No page line, carry-over or summary on payslips.
    const auto& paski = d.ui.paper.documents().back();
    for (const auto& page : paski)
        for (const auto& l : page) {
            EXPECT_EQ(l.text.find("strona"), std::string::npos);
            EXPECT_EQ(l.text.find("Podsumowanie"), std::string::npos);
        }
    // A second print of the list replaces the file with the new sums.
    printing::cmdDrukListy(d.s, d.ui);
    core::Record r = S::read(S::path(d.s));
    EXPECT_EQ(r.s(S::LiczbaOsob), "1");
    EXPECT_EQ(r.s(S::Brutto), "4600");
}

TEST(Lista, LabourFundIsNilWhenTheLastPersonIsOfGroupU) {
    struct {
        const char* grupa;
        const char* fp;
        const char* pole57;
    } cases[] = {
        {"a", "x2.45% =   112.70 zł", "112.7"},
        {"U", "x2.45% =     0.00 zł", "0"},
        {"u", "x2.45% =     0.00 zł", "0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.grupa);
        Dane d;
        core::Record ostatni = printing_tests::prosta(1);
        ostatni.set(K::Grupa, c.grupa);
        d.karta({printing_tests::kowalski(), ostatni});
        printing::cmdDrukListy(d.s, d.ui);
        auto fp = wiersze(d.ui.paper, "Fundusz Pracy podstawa");
        ASSERT_EQ(fp.size(), 1u);
        EXPECT_EQ(fp[0], std::string(" Składka zakładu na Fundusz Pracy podstawa     4600.00") + c.fp);
        EXPECT_EQ(S::read(S::path(d.s)).s(S::FunduszPracy), c.pole57);
    }
}

TEST(Lista, PayerWithTheEducatorColumn) {
    Dane d;
    d.s.Firma.set(reference::Firma::NIP, "5556667778");
    d.karta({printing_tests::kowalski()});
    printing::cmdDrukListy(d.s, d.ui);
    EXPECT_EQ(wiersze(d.ui.paper, "|Stazowy |Wychowa|PodsPodat|").size(), 1u);
    EXPECT_TRUE(wiersze(d.ui.paper, "Nadlicz").empty());
}

TEST(Sumy, FileRoundTripAndForm) {
    Dane d;
    d.karta({printing_tests::kowalski(), printing_tests::nowak()});
    printing::cmdDrukListy(d.s, d.ui);
    const auto file = S::path(d.s);
    EXPECT_EQ(file.filename(), "Sa2101.sum");
    EXPECT_EQ(file.parent_path().filename(), "Sumy");  // the payer's own spelling of the folder
    std::string bytes = readBytes(file);
    EXPECT_EQ(bytes.substr(0, 11), "2\r\n4000\r\n40");
    EXPECT_NE(bytes.find("\r\n\r\n0\r\n458.76\r\n"), std::string::npos);  // field 64 empty
    core::Record r = S::read(file);
    EXPECT_EQ(r.schema().size(), 66);
    EXPECT_TRUE(r.isEmpty(S::Rezerwa64));
    EXPECT_FLOAT_EQ(r.f(S::ZasilkiGotowka), 458.76f);
    // Written back through the one writer it gives the same bytes.
    std::filesystem::remove(file);
    S::write(d.s, r);
    EXPECT_EQ(readBytes(file), bytes);
    // A payer without the folder gets one.
    std::filesystem::remove_all(d.payer() / "Sumy");
    S::write(d.s, r);
    EXPECT_EQ(readBytes(d.s.payerFolder() / "SUMY" / "Sa2101.sum"), bytes);
}
