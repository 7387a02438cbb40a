#include <gtest/gtest.h>

#include "core/text.h"
#include "support/demo.h"
#include "personnel/person_record.h"
#include "personnel/sortuj.h"
#include "personnel/wybierz_osobe.h"
#include "support/scripted.h"

using namespace personnel;
using DemoList = testing_support::DemoLista;
using testing_support::readBytes;
using testing_support::ScriptedDialogs;

namespace {

std::vector<std::string> kolumna(const core::Control& g, int c) {
    std::vector<std::string> v;
    for (int r = 1; r < g.Rows; ++r) v.push_back(g.Cells[r][c]);
    return v;
}

}  // namespace

TEST(SortOrder, GenericAscending) {
    struct {
        const char *a, *b;
        bool przed;
    } cases[] = {
        {"2", "10", true},           // numbers as numbers
        {"10", "2", false},
        {"10", "A", true},           // numbers before texts
        {"LIS", "ŁUKASIK", true},    // Ł after L
        {"ŁUKASIK", "MAJ", true},    // and before M
        {"SZYMAŃSKI", "ŚWIĄTEK", true},
        {"ZYGMUNT", "ŹREBIEC", true},
        {"ŹREBIEC", "ŻAK", true},
        {"CZAJKA", "ĆWIK", true},
        {"nowak", "NOWAK", false},  // case alike
        {"NOWAK", "nowak", false},
        {"NOWAK", "NOWAKOWSKI", true},
        {"", "A", true},
    };
    for (const auto& c : cases) EXPECT_EQ(przedWSortowaniu(c.a, c.b), c.przed) << c.a << " / " << c.b;
}

TEST(SortujKadrowe, GridSortsRenumberingAndSave) {
    DemoList d("p");
    const auto before = d.osoby();
    ScriptedDialogs ui;
    SortujKadroweScreen f(ui, d.s);
    f.Load();
    const core::Control& g = f.MSFlexGrid7;
    EXPECT_EQ(f.Caption, "Sortowanie zbioru p");
    ASSERT_EQ(g.Rows, 8);
    ASSERT_EQ(g.Cols, 40);
    const char* naglowki[] = {"NrIdent", "Nazwisko pracownika ", "Imie    ", "Drugie Imie", "Pesel", "NIP", "DowodOs",
                              "KodUbezp", "KodWykszt", "DataUrodz", "MiejsceUr", "Imie Ojca ", "Imie Matki", "Kod",
                              "Miejscowość"};
    for (int c = 0; c < 15; ++c) EXPECT_EQ(g.Cells[0][c], naglowki[c]);
    EXPECT_EQ(g.Cells[1][1], "WÓJCIK");
    EXPECT_EQ(g.Cells[1][36], "1");   // value 37
    EXPECT_EQ(g.Cells[1][38], "1");   // status
    EXPECT_EQ(g.Cells[5][39], "5");   // number
    EXPECT_EQ(g.Cells[5][28], "EK654321");

    f.CmdSortujwgNazwiska_Click();
    EXPECT_EQ(kolumna(g, 1), (std::vector<std::string>{"BONDARENKO", "KOWALCZYK", "KRAWCZYK", "MAZUR", "PIOTROWSKA",
                                                        "SZYMAŃSKI", "WÓJCIK"}));
    // A double click on the surname of MAZUR (row 4): the new number goes to columns 0 and 36.
    f.MSFlexGrid7.Row = 4;
    f.MSFlexGrid7.Col = 1;
    ui.type(std::string("37"));
    f.MSFlexGrid7_DblClick();
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_TRUE(ui.boxes[0].input);
    EXPECT_EQ(ui.boxes[0].title, "Nowy numer ! pozycja ");
    EXPECT_EQ(core::Left(ui.boxes[0].text, 33), "Wpisz nowy nr kolejny pracownika ");
    EXPECT_NE(ui.boxes[0].text.find("MAZUR HALINA"), std::string::npos);
    EXPECT_NE(ui.boxes[0].text.find("Aktualny nr = 4"), std::string::npos);
    EXPECT_EQ(g.Cells[4][0], "37");
    EXPECT_EQ(g.Cells[4][36], "37");
    // "0", nothing and a cancel change nothing; another column asks nothing.
    for (std::optional<std::string> a : {std::optional<std::string>("0"), std::optional<std::string>(""),
                                         std::optional<std::string>()}) {
        f.MSFlexGrid7.Row = 2;
        ui.type(a);
        f.MSFlexGrid7_DblClick();
        EXPECT_EQ(g.Cells[2][36], "2");  // KOWALCZYK keeps his number
    }
    f.MSFlexGrid7.Col = 4;
    std::size_t boxes = ui.boxes.size();
    f.MSFlexGrid7_DblClick();
    EXPECT_EQ(ui.boxes.size(), boxes);

    f.CmdSortujIP_Click();  // 1..7 with 3 replaced by 37
    EXPECT_EQ(kolumna(g, 36), (std::vector<std::string>{"1", "2", "4", "5", "6", "7", "37"}));
    EXPECT_EQ(kolumna(g, 1).back(), "MAZUR");

    ui.boxes.clear();
    f.cmdZapiszPosortowane_Click();
    EXPECT_EQ(ui.lines(), (std::vector<std::string>{"[Zapis posortowanego zbioru] Czy chcesz zapisać zmiany?"}));
    auto after = d.osoby();
    ASSERT_EQ(after.size(), 7u);
    std::vector<std::string> nazwiska, numery37, numery40;
    for (const auto& r : after) {
        nazwiska.push_back(r.s(Osoba::Nazwisko));
        numery37.push_back(r.s(Osoba::NumerIP));
        numery40.push_back(r.s(Osoba::Numer));
        EXPECT_EQ(r.s(Osoba::Koniec), "<Koniec>");
    }
    EXPECT_EQ(nazwiska, (std::vector<std::string>{"WÓJCIK", "KOWALCZYK", "SZYMAŃSKI", "BONDARENKO", "KRAWCZYK",
                                                  "PIOTROWSKA", "MAZUR"}));
    EXPECT_EQ(numery37, (std::vector<std::string>{"1", "2", "4", "5", "6", "7", "37"}));   // value 37 as renumbered
    EXPECT_EQ(numery40, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));    // value 40 follows the grid
    // Everything else of a record is as it was, down to the empty line of value 28.
    const core::Record& mazur = after[6];
    for (int n = Osoba::Nazwisko; n < Osoba::NumerIP; ++n) EXPECT_EQ(mazur.item(n), before[2].item(n)) << n;
    EXPECT_FALSE(std::filesystem::exists(d.per().parent_path() / "p.tym"));
}

TEST(SortujKadrowe, NoLeavesTheFileAndMissingFile) {
    DemoList d("a");
    const std::string bytes = readBytes(d.per());
    ScriptedDialogs ui;
    ui.answer(core::Answer::No);
    SortujKadroweScreen f(ui, d.s);
    f.Load();
    f.CmdSortujwgNazwiska_Click();
    f.cmdZapiszPosortowane_Click();
    EXPECT_EQ(readBytes(d.per()), bytes);

    std::filesystem::remove(d.per());
    ScriptedDialogs ui2;
    SortujKadroweScreen g(ui2, d.s);
    g.Load();
    EXPECT_TRUE(g.Unloaded);
    EXPECT_EQ(ui2.boxes.size(), 1u);
}

TEST(SortujKadrowe, SortedFileReadsTheSame) {
    // A file written by the sort ends its records with "<Koniec>" and reads as any other.
    DemoList d("a");
    ScriptedDialogs ui;
    SortujKadroweScreen f(ui, d.s);
    f.Load();
    f.cmdZapiszPosortowane_Click();
    auto recs = d.osoby();
    ASSERT_EQ(recs.size(), 7u);
    for (const auto& r : recs) EXPECT_EQ(r.s(Osoba::Koniec), "<Koniec>");
    EXPECT_EQ(kluczOsoby(recs[4]), "FP123456");
}

TEST(WybierzOsobe, LinesOfAllListsAndTheirColumns) {
    DemoList d("a");
    ScriptedDialogs ui;
    WybierzOsobeScreen f(ui, d.s);
    f.Load();
    EXPECT_TRUE(ui.boxes.empty());
    ASSERT_EQ(f.lstListaOsob.List.size(), 14u);
    const std::string& l = f.lstListaOsob.List[12];  // the sixth person of "p"
    EXPECT_EQ(core::Left(l, 4), " 13 ");
    EXPECT_EQ(core::Mid(l, 5, 25), core::PadRight("KRAWCZYK", 25));
    EXPECT_EQ(core::Mid(l, 31, 20), core::PadRight("TOMASZ", 20));
    EXPECT_EQ(core::Mid(l, 51, 11), "91101224691");
    EXPECT_EQ(core::Mid(l, 63, 6), "011000");
    EXPECT_EQ(core::Mid(l, 69, 9), "p       .");
    EXPECT_EQ(core::Mid(l, 78), "Produkcja");

    f.lstListaOsob.ListIndex = 4;
    f.lstListaOsob_Click();
    EXPECT_EQ(d.s.NazwiskoOsoby, "KOWALENKO");
    EXPECT_EQ(d.s.ImieOsoby, "OLENA");
    EXPECT_EQ(d.s.KluczOsoby, "FP123456");
    EXPECT_EQ(d.s.KodUbezpieczeniaOsoby, "011000");
    EXPECT_EQ(d.s.NazwaZbioru, "a");
    EXPECT_EQ(d.s.NazwaListy, "Administracja");
    EXPECT_EQ(d.s.SciezkaOsob.filename(), "a.per");
    // The certificate screen is not part of this program yet.
    EXPECT_FALSE(f.CmdWybierz.Enabled);
}

TEST(WybierzOsobe, LineParsesBack) {
    core::Record o = Osoba::pusty();
    o.set(Osoba::Nazwisko, "ŻÓŁTOWSKA-BRZĘCZYSZCZYKIEWICZ");  // 29 characters: cut to 25
    o.set(Osoba::Imie, "ŁUCJA");
    o.set(Osoba::Pesel, "01211512345");
    o.set(Osoba::KodUbezpieczenia, "011000");
    std::string l = wierszOsoby(123, o, "kadry", "Kadry zarządu");
    OsobaWybrana w = czytajWierszOsoby(l);
    EXPECT_EQ(w.nazwisko, "ŻÓŁTOWSKA-BRZĘCZYSZCZYKIE");
    EXPECT_EQ(w.imie, "ŁUCJA");
    EXPECT_EQ(w.pesel, "01211512345");
    EXPECT_EQ(w.kod, "011000");
    EXPECT_EQ(w.lista, "kadry");
    EXPECT_EQ(core::Left(l, 3), "123");
}
