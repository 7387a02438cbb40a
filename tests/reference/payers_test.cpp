#include <gtest/gtest.h>

#include <set>

#include "core/paths.h"
#include "core/text.h"
#include "support/demo.h"
#include "reference/catalogue.h"
#include "reference/mojafirma.h"
#include "reference/payers.h"
#include "reference/rates.h"
#include "support/scripted.h"

namespace fs = std::filesystem;
using core::Answer;
using testing_support::Demo;
using testing_support::readBytes;
using testing_support::readLines;
using testing_support::ScriptedDialogs;
namespace Firma = reference::Firma;

namespace {

// A second payer in the register with its folder, after the demo payer.
void addSecondPayer(Demo& d, const std::string& skrot = "DRUGA", const std::string& nip = "123-456-32-18") {
    auto recs = reference::readPayers(d.s);
    core::Record r(Firma::schema());
    r.set(Firma::SkrotPlatnika, skrot);
    r.set(Firma::NazwaM, "Druga Firma, S.A.");
    r.set(Firma::NIP, nip);
    recs.push_back(r);
    Firma::writeAll(Firma::path(d.s), recs);
    fs::create_directory(d.dir / skrot);
}

std::set<std::string> entries(const fs::path& folder) {
    std::set<std::string> out;
    for (const auto& e : fs::directory_iterator(folder)) out.insert(e.path().filename().string());
    return out;
}

}  // namespace

TEST(PayerRegister, CommasInTheFullAndTheShortNameSurvive) {
    Demo d;
    auto recs = reference::readPayers(d.s);
    ASSERT_EQ(recs.size(), 1u);
    EXPECT_EQ(recs[0].s(Firma::NazwaM), "Przedsiębiorstwo Usługowe Demo, Spółka z o.o.");
    EXPECT_EQ(recs[0].s(Firma::NazwaSkrocona), "PU Demo, Sp. z o.o.");
    EXPECT_EQ(recs[0].s(Firma::TerminPlatnosciZUSM), "15");

    core::Record r(Firma::schema());
    r.set(Firma::SkrotPlatnika, "KOWAL");
    r.set(Firma::NazwaM, "Kowalski, Nowak i Wspólnicy, sp.j.");
    r.set(Firma::NazwaSkrocona, "Kowalski, Nowak");
    r.set(Firma::UlicaM, "Długa");
    r.set(Firma::WypadkowaStawkaF, 1.67f);
    r.set(Firma::DodatkiStazowe, "N");
    recs.push_back(r);
    std::string before = readBytes(Firma::path(d.s));
    Firma::writeAll(Firma::path(d.s), recs);

    // The demo record is written back byte for byte, the new one follows it: 31 lines.
    std::string after = readBytes(Firma::path(d.s));
    EXPECT_EQ(after.substr(0, before.size()), before);
    auto lines = readLines(Firma::path(d.s));
    ASSERT_EQ(lines.size(), 62u);
    EXPECT_EQ(lines[31], "");
    EXPECT_EQ(lines[32], "\"KOWAL\"");
    EXPECT_EQ(lines[33], "\"Kowalski, Nowak i Wspólnicy, sp.j.\"");
    EXPECT_EQ(lines[37], "\"Długa\"");
    EXPECT_EQ(lines[58], "\"Kowalski, Nowak\"");
    EXPECT_EQ(lines[60], "1.67");
    EXPECT_EQ(lines[61], "\"N\"");

    auto back = reference::readPayers(d.s);
    ASSERT_EQ(back.size(), 2u);
    EXPECT_EQ(back[1].s(Firma::NazwaM), "Kowalski, Nowak i Wspólnicy, sp.j.");
    EXPECT_EQ(back[1].s(Firma::NazwaSkrocona), "Kowalski, Nowak");
    EXPECT_EQ(back[1].s(Firma::NazwiskoM), "");
    EXPECT_FLOAT_EQ(back[1].f(Firma::WypadkowaStawkaF), 1.67f);
    Firma::writeAll(Firma::path(d.s), back);
    EXPECT_EQ(readBytes(Firma::path(d.s)), after);
}

TEST(PayerRegister, NewPayerGetsItsTreeAndTheTemplate) {
    Demo d;
    core::commitFile(d.dir / "dane" / "wzorc.kdu", "<ZUSRCA.DP>\nwzorzec\n");
    ScriptedDialogs ui;
    ui.type(std::string("NOWA"));
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    f.cmdDodaj_Click();
    ASSERT_EQ(ui.boxes.size(), 2u);
    EXPECT_TRUE(ui.boxes[0].input);
    EXPECT_EQ(ui.boxes[0].text,
              "Podaj skrót nazwy Płatnika (bez spacji,przecinków polskich liter i apostrofów np. ORVEL)");
    EXPECT_EQ(ui.boxes[0].title, " Przyjęcie skróconej nazwy Platnika");
    EXPECT_EQ(ui.boxes[0].def, "Dodaj Płatnika");
    EXPECT_EQ(ui.boxes[1].text, "Uzupełnij dane nowego Płatnika i Zapisz Zmiany");

    std::set<std::string> tree = {"Bazy",    "Karta",   "Person",  "Archiwum", "Dodatki",    "Dokumenty", "Godziny",
                                  "Homenet", "Jubileu", "Kdu",     "Kontrah",  "Ksimail",    "Pit4",      "Pit11",
                                  "Pit8b",   "Platnik", "Przelewy", "Sumy",    "ROR",        "Trzynastki", "Urlopy",
                                  "Zus",     "Kopia",   "Zgloszeniowe", "Potwierdzenia"};
    ASSERT_EQ(tree.size(), 25u);
    EXPECT_EQ(entries(d.dir / "NOWA"), tree);
    EXPECT_EQ(readBytes(d.dir / "NOWA" / "Zus" / "wzorc.kdu"), "<ZUSRCA.DP>\nwzorzec\n");
    EXPECT_EQ(entries(d.dir / "NOWA" / "Zus"), std::set<std::string>{"wzorc.kdu"});

    auto recs = reference::readPayers(d.s);
    ASSERT_EQ(recs.size(), 2u);
    EXPECT_EQ(recs[1].s(Firma::SkrotPlatnika), "NOWA");
    EXPECT_EQ(f.Biezacy, 1);
    EXPECT_EQ(f.txt(Firma::SkrotPlatnika).Text, "NOWA");
    EXPECT_EQ(f.txt(Firma::NazwaM).Text, "");
    EXPECT_FALSE(fs::exists(d.dir / "tym.dta"));
    // The session keeps its payer until one is chosen.
    EXPECT_EQ(d.s.SkrotPlatnika, "DEMO");
}

TEST(PayerRegister, NewPayerWithoutTemplateInTheDataFolder) {
    Demo d;
    fs::remove(d.dir / "dane" / "wzorc.kdu");  // the demo data ship one
    ScriptedDialogs ui;
    ui.type(std::string("BEZWZORU"));
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    f.cmdDodaj_Click();
    EXPECT_TRUE(fs::is_directory(d.dir / "BEZWZORU" / "Zus"));
    EXPECT_TRUE(fs::is_empty(d.dir / "BEZWZORU" / "Zus"));
}

// The refusals are the program's own: asserted by their title and by nothing being made.
TEST(PayerRegister, ShortNamesThatCannotBeFoldersAreRefusedBeforeAnythingIsMade) {
    for (const std::optional<std::string>& typed :
         {std::optional<std::string>{}, {""}, {".."}, {"."}, {"../INNA"}, {"A\\B"}, {"Dodaj Płatnika"}, {" ORVEL"},
          {"OR\"VEL"}, {"demo"}, {"Dane"}, {"MojaFirma.txt"}}) {
        SCOPED_TRACE(typed.value_or("(anulowano)"));
        Demo d;
        std::string register_ = readBytes(Firma::path(d.s));
        auto before = entries(d.dir.path());
        ScriptedDialogs ui;
        ui.type(typed);
        reference::MojaFirmaScreen f(ui, d.s);
        f.Load();
        f.cmdDodaj_Click();
        ASSERT_EQ(ui.boxes.size(), typed ? 2u : 1u);
        if (typed) { EXPECT_EQ(ui.boxes.back().title, "Błędny skrót Płatnika"); }
        EXPECT_EQ(readBytes(Firma::path(d.s)), register_);
        EXPECT_EQ(entries(d.dir.path()), before);
        EXPECT_FALSE(fs::exists(d.dir.path().parent_path() / "INNA"));
    }
}

TEST(PayerRegister, ChoosingRewritesOnlyFieldThreeAndAnEmptySetBecomesA) {
    Demo d;
    addSecondPayer(d);
    core::commitFile(d.dir / "instalka.dat", "\"demo\",\".\",\"DEMO\",\"L\",,\"\",,\"31-01-2021\"\r\n");
    d.s.takeInstalka(core::Instalka::read(d.dir.path()));
    ScriptedDialogs ui;
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    EXPECT_EQ(f.txt(Firma::SkrotPlatnika).Text, "DEMO");
    f.cmdNext_Click();
    EXPECT_EQ(f.txt(Firma::SkrotPlatnika).Text, "DRUGA");
    f.cmdKoniecM_Click();
    EXPECT_TRUE(ui.boxes.empty()) << ui.last();
    EXPECT_TRUE(f.Unloaded);
    EXPECT_EQ(readBytes(d.dir / "instalka.dat"), "\"demo\",\".\",\"DRUGA\",\"L\",,\"\",,\"31-01-2021\"\r\n");
    EXPECT_FALSE(fs::exists(d.dir / "tym.dta"));
    EXPECT_EQ(d.s.SkrotPlatnika, "DRUGA");
    EXPECT_EQ(d.s.Zestaw, "A");
    EXPECT_EQ(d.s.Firma.s(Firma::NazwaM), "Druga Firma, S.A.");
    // The new payer's catalogue is opened: an empty one is made.
    EXPECT_TRUE(fs::exists(d.dir / "DRUGA" / "instal.dat"));
    EXPECT_EQ(fs::file_size(d.dir / "DRUGA" / "instal.dat"), 0u);
    // The rates of the list's year, with the rate of Dane.dta since the payer has none.
    EXPECT_DOUBLE_EQ(d.s.stawki.Stawka1, 17);
    EXPECT_DOUBLE_EQ(d.s.stawki.wypadkowa, d.s.Dane.d(reference::Dane::UbWypad) / 100);
}

TEST(PayerRegister, ChoosingAPayerWithoutItsFolderSaysSo) {
    Demo d;
    addSecondPayer(d);
    fs::remove_all(d.dir / "DRUGA");
    ScriptedDialogs ui;
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    f.cmdNext_Click();
    f.cmdKoniecM_Click();
    EXPECT_EQ(ui.last(), "[Brak danych Płatnika] Nie wybrano Płatnika ! Wybierz >Instalacyjne >Dane Płatnika! ");
    EXPECT_FALSE(fs::exists(d.dir / "DRUGA"));
}

TEST(PayerRegister, SavingTakesTheShownPayerFromTheScreen) {
    Demo d;
    addSecondPayer(d);
    std::string before = readBytes(Firma::path(d.s));
    ScriptedDialogs ui;
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    f.txt(Firma::UlicaM).Text = "Ogrodowa";
    f.txt(Firma::WypadkowaStawkaF).Text = "1,67";
    f.txt(Firma::NazwaM).Text = "Demo \"Usługi\", Sp. z o.o.";
    f.txt(Firma::RezerwaF12).Text = "12 272 11 23";
    f.cmdZmianyM_Click();
    EXPECT_TRUE(ui.boxes.empty()) << ui.last();
    auto lines = readLines(Firma::path(d.s));
    auto old = core::Split(core::fromCp1250(before), '\n');
    ASSERT_EQ(lines.size(), 62u);
    EXPECT_EQ(lines[2], "\"Demo \"Usługi\", Sp. z o.o.\"");
    EXPECT_EQ(lines[6], "\"Ogrodowa\"");
    EXPECT_EQ(lines[11], "\"12 272 11 23\"");
    EXPECT_EQ(lines[12], "");  // an empty reserve stays empty
    EXPECT_EQ(lines[29], "1.67");
    // Everything else as it was, the second payer too.
    for (int i : {0, 1, 3, 4, 5, 7, 8, 9, 10, 13, 20, 27, 28, 30, 31, 32, 33, 61})
        EXPECT_EQ(lines[static_cast<std::size_t>(i)] + "\r", old[static_cast<std::size_t>(i)]) << "linia " << i + 1;
    // The shown payer is the session's: its values and its accident rate count at once.
    EXPECT_EQ(d.s.Firma.s(Firma::UlicaM), "Ogrodowa");
    EXPECT_DOUBLE_EQ(d.s.stawki.wypadkowa, 1.67f / 100.0);
    EXPECT_EQ(reference::readPayers(d.s)[0].s(Firma::NazwaM), "Demo \"Usługi\", Sp. z o.o.");
}

TEST(PayerRegister, BadValuesAreNotSaved) {
    struct {
        int field;
        std::string text, box;
    } cases[] = {
        {Firma::WypadkowaStawkaF, "1,6x",
         "[Błędne dane Płatnika] Stawka wypadkowa Firmy musi być liczbą (np. 1.67), wpisano \"1,6x\". Zmian nie zapisano."},
        {Firma::UlicaM, "Al. \"Róż\"", "[Błędne dane] Pole \"Ulica\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano."},
        {Firma::RezerwaF12, "12\"34", "[Błędne dane] Pole \"Fax\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano."},
    };
    for (const auto& c : cases) {
        Demo d;
        std::string before = readBytes(Firma::path(d.s));
        ScriptedDialogs ui;
        reference::MojaFirmaScreen f(ui, d.s);
        f.Load();
        f.txt(c.field).Text = c.text;
        f.cmdZmianyM_Click();
        EXPECT_EQ(ui.last(), c.box);
        EXPECT_EQ(readBytes(Firma::path(d.s)), before);
        EXPECT_FALSE(f.Unloaded);
    }
}

TEST(PayerRegister, RemovingLeavesTheFolder) {
    Demo d;
    addSecondPayer(d);
    ScriptedDialogs ui;
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    f.cmdNext_Click();
    ui.answer(Answer::No);
    f.cmdUsun_Click();
    EXPECT_EQ(reference::readPayers(d.s).size(), 2u);
    f.cmdUsun_Click();
    EXPECT_EQ(ui.last(), "[Usuwanie Płatnika] Czy na pewno usunąć Płatnika DRUGA z rejestru? Folder z jego danymi "
                         "pozostaje na dysku.");
    auto recs = reference::readPayers(d.s);
    ASSERT_EQ(recs.size(), 1u);
    EXPECT_EQ(recs[0].s(Firma::SkrotPlatnika), "DEMO");
    EXPECT_TRUE(fs::is_directory(d.dir / "DRUGA"));
    EXPECT_EQ(f.txt(Firma::SkrotPlatnika).Text, "DEMO");
}

TEST(PayerRegister, WalkingAndFinding) {
    Demo d;
    addSecondPayer(d);
    addSecondPayer(d, "TRZECIA", "987 654 32 10");
    ScriptedDialogs ui;
    reference::MojaFirmaScreen f(ui, d.s);
    f.Load();
    auto at = [&] { return f.txt(Firma::SkrotPlatnika).Text; };
    EXPECT_EQ(at(), "DEMO");
    EXPECT_FALSE(f.cmdWstecz.Enabled);
    f.cmdNext_Click();
    f.cmdNext_Click();
    EXPECT_EQ(at(), "TRZECIA");
    EXPECT_FALSE(f.cmdNext.Enabled);
    f.cmdWstecz_Click();
    EXPECT_EQ(at(), "DRUGA");
    EXPECT_EQ(f.lbPozycja.Caption, "Płatnik 2 z 3");

    struct {
        const char* typed;
        const char* found;  // nullptr: not found
    } cases[] = {
        {"usługowe", "DEMO"},        // part of the full name, any letter case
        {"987-654-32-10", "TRZECIA"},  // the NIP, whatever its dashes and blanks
        {"druga", "DRUGA"},          // the short name
        {"Sp. z o.o.", "DEMO"},      // the short name for the insurance office, searched from the next payer on
        {"Brak takiej", nullptr},
    };
    for (const auto& c : cases) {
        ui.boxes.clear();
        ui.type(std::string(c.typed));
        std::string was = at();
        f.cmdZnajdz_Click();
        if (c.found) {
            EXPECT_EQ(at(), c.found) << c.typed;
            EXPECT_EQ(ui.boxes.size(), 1u) << c.typed;
        } else {
            EXPECT_EQ(at(), was);
            EXPECT_EQ(ui.last(), std::string("[Znajdź Płatnika] Nie znaleziono Płatnika: ") + c.typed);
        }
    }
}

TEST(PayerRegister, AShortNameInTheRegisterThatLeadsOutIsRefusedBeforeAnythingIsWritten) {
    for (const std::string skrot : {"../outside", "..", "/tmp", "a\\b", "C:"}) {
        Demo d;
        core::Record r(Firma::schema());
        r.set(Firma::SkrotPlatnika, skrot);
        const std::string instalka = readBytes(d.dir / "instalka.dat");
        try {
            reference::choosePayer(d.s, r);
            ADD_FAILURE() << skrot;
        } catch (const core::Error& e) {
            EXPECT_EQ(e.Number, core::err::BadFileName) << skrot;
        }
        EXPECT_EQ(readBytes(d.dir / "instalka.dat"), instalka) << skrot;
        EXPECT_EQ(d.s.SkrotPlatnika, "DEMO") << skrot;
    }
}
