#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <unistd.h>

#include "core/error.h"
#include "core/paths.h"
#include "core/record.h"
#include "core/seqfile.h"
#include "core/text.h"
#include "support/tempdir.h"

using namespace core;
using testing_support::readBytes;
using testing_support::TempDir;

TEST(Text, CountsCharactersNotBytes) {
    EXPECT_EQ(Len("Łódź"), 4u);
    EXPECT_EQ(Left("Żółw", 2), "Żó");
    EXPECT_EQ(Right("Żółw", 2), "łw");
    EXPECT_EQ(Mid("Gęśla jaźń", 3, 3), "śla");
    EXPECT_EQ(Mid("abc", 5), "");
    EXPECT_EQ(UCase("zażółć gęślą jaźń"), "ZAŻÓŁĆ GĘŚLĄ JAŹŃ");
    EXPECT_EQ(LCase("ŁÓDŹ"), "łódź");
    EXPECT_EQ(InStr("Ala ma kota", "ma"), 5u);
    EXPECT_EQ(InStr("Źle źle", "źle"), 5u);
    EXPECT_EQ(InStr("abc", "x"), 0u);
    EXPECT_EQ(PadRight("Kraków", 8), "Kraków  ");
    EXPECT_EQ(PadRight("Krakowskie", 8), "Krakowsk");
    EXPECT_EQ(PadLeft("12", 5), "   12");
    EXPECT_EQ(Trim("  a b  "), "a b");
    std::string s = "1,5";
    EXPECT_EQ(KropkaZamiastPrzecinka(s), "1.5");
    EXPECT_EQ(s, "1.5");
}

TEST(Text, Numbers) {
    EXPECT_DOUBLE_EQ(Val(" 12.5abc"), 12.5);
    EXPECT_DOUBLE_EQ(Val("1 2"), 12);
    EXPECT_DOUBLE_EQ(Val("abc"), 0);
    EXPECT_DOUBLE_EQ(Val("-3"), -3);
    EXPECT_DOUBLE_EQ(toDouble(" 19.52 ", "x"), 19.52);
    EXPECT_DOUBLE_EQ(toDoubleOrZero("", "x"), 0);
    try {
        toDouble("1a", "pole X");
        FAIL() << "a letter in a number must not pass";
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::TypeMismatch);
        EXPECT_EQ(e.Step, "pole X");
    }
}

TEST(Cp1250, EveryPolishLetterRoundTrips) {
    const std::string letters = "ąćęłńóśźżĄĆĘŁŃÓŚŹŻ";
    std::string bytes = toCp1250(letters);
    EXPECT_EQ(bytes.size(), 18u);  // one byte a letter
    EXPECT_EQ(static_cast<unsigned char>(bytes[0]), 0xB9);  // ą
    EXPECT_EQ(static_cast<unsigned char>(bytes[3]), 0xB3);  // ł
    EXPECT_EQ(static_cast<unsigned char>(bytes[17]), 0xAF);  // Ż
    EXPECT_EQ(fromCp1250(bytes), letters);
}

TEST(Cp1250, CharacterOutsideTheCodePageIsAnErrorOnSaving) {
    TempDir dir;
    auto file = dir / "a.txt";
    commitFile(file, "\"stare\"\r\n");
    try {
        commitFile(file, "\"Koszt 5 €\"\r\n\"Æble\"\r\n");  // the euro sign is in the code page
        FAIL();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::InvalidCall);
        EXPECT_NE(e.Detail.find("Æ"), std::string::npos);
    }
    EXPECT_EQ(readBytes(file), "\"stare\"\r\n");  // the file stays whole
}

TEST(Codec, ItemsAndLines) {
    auto r = SeqReader::fromText("\"Kowalski, Jan\",12.5,,\"\"\r\n  7 ,\"a\"\r\n\r\nlast");
    std::vector<Item> want = {Item::quoted("Kowalski, Jan"), Item::bare("12.5"), Item::empty(), Item::quoted(""),
                              Item::bare("7"), Item::quoted("a"), Item::empty(), Item::bare("last")};
    for (const Item& w : want) EXPECT_EQ(r.item(), w);
    EXPECT_TRUE(r.eof());
    try {
        r.item();
        FAIL();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::InputPastEnd);
    }
    auto l = SeqReader::fromText("\"Firma, S.A.\"\r\nx\r\n");
    EXPECT_EQ(l.line(), "\"Firma, S.A.\"");
    EXPECT_EQ(l.text(), "x");
}

namespace {
const FieldDef kTestFields[] = {
    {"Poczatek", FieldType::String}, {"Nazwa", FieldType::Line},    {"Kwota", FieldType::Float},
    {"Wariant", FieldType::Variant}, {"Pusty", FieldType::Variant}, {"Liczba", FieldType::Int16},
    {"Stopa", FieldType::Double},    {"Koniec", FieldType::String},
};
const Schema kTest{"test.dta", kTestFields, 1};
}  // namespace

TEST(Records, RoundTripByteForByte) {
    // Quoted and bare variants, an empty item, a comma inside quotes, both end markers.
    const std::string file =
        "\"<Poczatek>\"\r\n\"Nowak, Kowalski i S-ka\"\r\n3000.5\r\n\"12\"\r\n\r\n7\r\n0.015\r\n\"<Koniec>\"\r\n"
        "\"<Poczatek>\"\r\n\"Żak\"\r\n0\r\n12\r\n\"tekst, z przecinkiem\"\r\n-3\r\n19.52\r\n\"<koniec>\"\r\n";
    TempDir dir;
    auto path = dir / "test.dta";
    commitFile(path, file);
    auto recs = readAll(path, kTest);
    ASSERT_EQ(recs.size(), 2u);
    EXPECT_EQ(recs[0].s(2), "Nowak, Kowalski i S-ka");
    EXPECT_FLOAT_EQ(recs[0].f(3), 3000.5f);
    EXPECT_EQ(recs[0].item(4).kind, Item::Quoted);
    EXPECT_EQ(recs[1].item(4).kind, Item::Bare);
    EXPECT_DOUBLE_EQ(recs[0].d(4), 12);
    EXPECT_TRUE(recs[0].isEmpty(5));
    EXPECT_EQ(recs[1].s(5), "tekst, z przecinkiem");
    EXPECT_EQ(recs[1].i(6), -3);
    EXPECT_EQ(recs[1].s(8), "<koniec>");
    writeAll(path, recs);
    EXPECT_EQ(readBytes(path), toCp1250(file));
}

TEST(Records, StoringByType) {
    Record r(kTest);
    r.set(3, 1234.5678f);
    EXPECT_EQ(r.item(3), Item::bare("1234.568"));  // narrowed to a float
    r.set(3, 0.1 + 0.2);
    EXPECT_EQ(r.item(3).text, "0.3");
    r.set(4, std::string("1"));
    EXPECT_EQ(r.item(4), Item::quoted("1"));
    r.set(4, 2.5);
    EXPECT_EQ(r.item(4), Item::bare("2.5"));
    r.set(7, 0.1 + 0.2);
    EXPECT_EQ(r.item(7).text, "0.3");  // 15 digits
    r.setEmpty(4);
    EXPECT_EQ(r.item(4).kind, Item::Empty);
    EXPECT_THROW(r.set(6, 40000L), Error);
    try {
        r.set(6, 40000L);
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::Overflow);
    }
}

TEST(Records, BadFilesGiveTheirErrors) {
    TempDir dir;
    struct {
        std::string content;
        int number;
    } cases[] = {
        {"\"<Poczatek>\"\r\n\"x\"\r\n12\r\n", err::InputPastEnd},                          // cut inside a record
        {"\"<Poczatek>\"\r\n\"x\"\r\n12a\r\n1\r\n\r\n7\r\n1\r\n\"<Koniec>\"\r\n", err::TypeMismatch},  // letter in a float
        {"\"<Poczatek>\"\r\n\"x\"\r\n12\r\n1\r\n\r\n99999\r\n1\r\n\"<Koniec>\"\r\n", err::Overflow},   // int16 too big
    };
    for (const auto& c : cases) {
        auto p = dir / "bad.dta";
        commitFile(p, c.content);
        try {
            readAll(p, kTest);
            ADD_FAILURE() << c.content;
        } catch (const Error& e) {
            EXPECT_EQ(e.Number, c.number) << c.content;
            EXPECT_NE(e.Step.find("bad.dta"), std::string::npos);
        }
    }
    try {
        readAll(dir / "brak.dta", kTest);
        ADD_FAILURE();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::FileNotFound);
    }
    try {
        readAll(dir / "brak" / "a.dta", kTest);
        ADD_FAILURE();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::PathNotFound);
    }
}

TEST(Paths, CaseInsensitiveResolver) {
    TempDir dir;
    std::filesystem::create_directories(dir / "ABC" / "Bazy");
    commitFile(dir / "ABC" / "Bazy" / "Lista.DTA", "1\r\n");
    EXPECT_EQ(resolvePath(dir.path(), {"abc", "bazy", "lista.dta"}), dir / "ABC" / "Bazy" / "Lista.DTA");
    EXPECT_EQ(resolvePath(dir.path(), {"abc", "karta", "k.dta"}), dir / "ABC" / "karta" / "k.dta");
    auto made = ensureFolder(dir.path(), {"abc", "SUMY"});
    EXPECT_EQ(made, dir / "ABC" / "SUMY");
    EXPECT_TRUE(std::filesystem::is_directory(made));
    EXPECT_EQ(ensureFolder(dir.path(), {"abc", "sumy"}), made);
    EXPECT_EQ(PlikIstnieje(dir / "ABC" / "Bazy" / "Lista.DTA"), "tak");
    EXPECT_EQ(PlikIstnieje(dir / "nic"), "nie");
}

TEST(SafeRewrite, UnwritableFolderLeavesTheFileWhole) {
    if (::geteuid() == 0) GTEST_SKIP() << "root writes into read-only folders";
    TempDir dir;
    auto file = dir / "dane.dta";
    commitFile(file, "\"stare\"\r\n");
    ::chmod(dir.path().c_str(), 0555);
    try {
        commitFile(file, "\"nowe\"\r\n", "tym.dta");
        ADD_FAILURE();
    } catch (const Error& e) {
        EXPECT_EQ(e.Number, err::PathFileAccess);
    }
    ::chmod(dir.path().c_str(), 0755);
    EXPECT_EQ(readBytes(file), "\"stare\"\r\n");
    EXPECT_FALSE(std::filesystem::exists(dir / "tym.dta"));
}

TEST(SafeRewrite, TemporaryFileIsRenamedOverTheTarget) {
    TempDir dir;
    auto file = dir / "dane.dta";
    commitFile(file, "\"stare\"\r\n");
    commitFile(file, "\"nowe\"\r\n", "tym.dta");
    EXPECT_EQ(readBytes(file), "\"nowe\"\r\n");
    EXPECT_FALSE(std::filesystem::exists(dir / "tym.dta"));
}

TEST(ErrorReport, Words) {
    Error e(53, "bazy\\a.dta");
    EXPECT_EQ(errorReport(53, "5", ReportWords::Linii), " Błąd nr 53 w linii 5");
    EXPECT_EQ(errorReport(13, "7", ReportWords::NrLini), "Błąd Nr 13 w lini 7");
    EXPECT_EQ(errorReport(62, "2", ReportWords::Linni), " Błąd nr 62 w linni 2");
    EXPECT_EQ(errorReport(e), " Błąd nr 53 w linii bazy\\a.dta");
}

TEST(SafeRewrite, FailureToWriteTheTemporaryFileLeavesTheFileWhole) {
    // A limit on the size of a file fails the write for any user, root included.
    TempDir dir;
    auto file = dir / "dane.dta";
    commitFile(file, "\"stare\"\r\n");
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    ::getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 4096;
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(commitFile(file, std::string(10000, 'x'), "tym.dta"), Error);
    ::setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(readBytes(file), "\"stare\"\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);  // no temporary file left
}

TEST(Records, BlankPositionsAreAlwaysWrittenEmpty) {
    static const FieldDef fields[] = {{"A", FieldType::String}, {"Puste", FieldType::Blank}, {"B", FieldType::Float}};
    static const Schema schema{"k.dta", fields, 1};
    auto in = SeqReader::fromText("\"x\"\r\n\"cokolwiek\"\r\n1.5\r\n");
    Record r = readRecord(in, schema);
    EXPECT_EQ(r.s(2), "cokolwiek");  // read like anything else
    r.set(2, 12.5f);                  // storing is ignored
    SeqWriter w;
    writeRecord(w, r);
    EXPECT_EQ(w.text(), "\"x\"\r\n\r\n1.5\r\n");
}

TEST(Records, LongFilesAreReadAndWrittenPartByPart) {
    // Records long enough to cross the parts a file is read in, at every place of a record and
    // of a letter: each read as from the whole text, each written back byte for byte.
    std::string file;
    for (int i = 0; i < 6000; ++i) {
        const std::string n = std::to_string(i);
        file += "\"<Poczatek>\"\r\n\"Żółć, " + n + "ąę\"\r\n" + n + ".5\r\n" + (i % 3 ? "\"ś" + n + "\"" : n) + "\r\n\r\n" +
                std::to_string(i % 30000) + "\r\n0.0" + n + "\r\n\"<Koniec>\"\r\n";
    }
    TempDir dir;
    const auto path = dir / "dlugi.dta";
    commitFile(path, file);
    const auto zPliku = readAll(path, kTest);
    auto tekst = SeqReader::fromText(file);
    const auto zTekstu = readAll(tekst, kTest);
    ASSERT_EQ(zPliku.size(), 6000u);
    ASSERT_EQ(zTekstu.size(), 6000u);
    for (std::size_t r = 0; r < zPliku.size(); ++r)
        for (int n = 1; n <= kTest.size(); ++n) ASSERT_EQ(zPliku[r].item(n), zTekstu[r].item(n)) << r << " " << n;
    {
        SeqWriter w = SeqWriter::toFile(path);
        for (std::size_t r = 0; r < 3000; ++r) writeRecord(w, zPliku[r]);
        // Destroyed before its commit: the file stays as it was, nothing else is left.
    }
    EXPECT_EQ(readBytes(path), toCp1250(file));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
    SeqWriter w = SeqWriter::toFile(path);
    for (const Record& r : zPliku) writeRecord(w, r);
    w.commit();
    EXPECT_EQ(readBytes(path), toCp1250(file));
}

TEST(Records, ChangedFieldsKeepEveryOtherItem) {
    // Texts growing and shrinking many times over: each field holds what was stored last.
    Record r(kTest);
    std::string want[9];
    for (int k = 0; k < 400; ++k)
        for (int n : {1, 2, 4, 8}) {
            want[n] = std::string(static_cast<std::size_t>((k * 7 + n * 13) % 90), static_cast<char>('a' + n)) + "ż";
            r.set(n, want[n]);
            r.set(3, static_cast<float>(k));
        }
    for (int n : {1, 2, 4, 8}) EXPECT_EQ(r.s(n), want[n]) << n;
    EXPECT_EQ(r.s(3), "399");
    r.setItem(4, r.item(2));
    EXPECT_EQ(r.item(4), Item::quoted(want[2]));
}
