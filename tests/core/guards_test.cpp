// What the files cannot hold is refused before anything is written.
#include <gtest/gtest.h>

#include "core/error.h"
#include "core/numbers.h"
#include "core/record.h"
#include "core/seqfile.h"
#include "core/ustaldate.h"
#include "support/scripted.h"

using namespace core;

namespace {

const FieldDef kPola[] = {{"Nazwa", FieldType::String}, {"Opis", FieldType::Variant}, {"Linia", FieldType::Line},
                          {"Kwota", FieldType::Float}};
const Schema kPlik{"plik.dta", kPola, 1};

}  // namespace

TEST(Refusals, DoubleQuoteInAQuotedItemNamesItsField) {
    struct {
        const char* what;
        std::function<void()> store;
        std::string field;
    } cases[] = {
        {"text field", [] { Record(kPlik).set(1, "Aleja \"Róż\", 5"); }, "Nazwa"},
        {"variant field", [] { Record(kPlik).set(2, "\""); }, "Opis"},
        {"item put in whole",
         [] {
             Record r(kPlik);
             r.setItem(2, Item::quoted("a\"b"));
             SeqWriter w;
             writeRecord(w, r);
         },
         "Opis"},
        {"a write of bare items", [] { SeqWriter().write({Item::bare("1"), Item::quoted("x\"")}); }, "pozycja 2"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        try {
            c.store();
            ADD_FAILURE() << "a double quote must not pass";
        } catch (const TextRefused& e) {
            EXPECT_EQ(e.Field, c.field);
            EXPECT_EQ(errorReport(e), "Pole \"" + c.field + "\" nie może zawierać cudzysłowu (\"). Zmian nie zapisano.");
        }
    }
    // A field read as a whole line holds quotes safely and writes them back as they were.
    Record r(kPlik);
    r.set(3, "Firma \"Róża\", s.c.");
    SeqWriter w;
    writeRecord(w, r);
    EXPECT_EQ(w.text(), "\"\"\r\n\r\n\"Firma \"Róża\", s.c.\"\r\n0\r\n");
}

TEST(UstalDate, FourDigitsWithAMonthOrTheQuestionAgain) {
    struct {
        const char* what;
        std::vector<std::optional<std::string>> typed;
        std::optional<std::string> result;
        int refusals;
    } cases[] = {
        {"the month offered", {std::string("2101")}, "2101", 0},
        {"month 12", {std::string("2012")}, "2012", 0},
        {"month 13, then 00, then 01",
         {std::string("2113"), std::string("2100"), std::string("2001")}, "2001", 2},
        {"three digits, a letter, five digits",
         {std::string("210"), std::string("21a1"), std::string("21011"), std::string("0912")}, "0912", 3},
        {"cancelled after a wrong one", {std::string("1"), std::nullopt}, std::nullopt, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        testing_support::ScriptedDialogs ui;
        for (const auto& t : c.typed) ui.type(t);
        EXPECT_EQ(modUstalDate(ui, "2101"), c.result);
        ASSERT_FALSE(ui.boxes.empty());
        EXPECT_EQ(ui.boxes[0].title, " Wprowadź date listy  ");
        EXPECT_EQ(ui.boxes[0].text, "Ok = Aktualna data 2101 Podaj date w formacie RRMM ");
        EXPECT_EQ(ui.boxes[0].def, "2101");
        int refusals = 0;
        for (const auto& b : ui.boxes) refusals += b.text == "Zle wpisana data!";
        EXPECT_EQ(refusals, c.refusals);
        EXPECT_EQ(ui.boxes.size(), c.typed.size() + c.refusals);
    }
}

TEST(Refusals, StoreBeyondAFloatIsAnOverflow) {
    struct {
        const char* what;
        std::function<float()> store;
        bool overflow;
    } cases[] = {
        {"largest float", [] { return CSng(3.4028234e38); }, false},
        {"past it", [] { return CSng(3.41e38); }, true},
        {"negative past it", [] { return CSng(-6e38); }, true},
        {"Round2 of a sum of two", [] { return Round2(3e38 + 3e38); }, true},
        {"RoundZl", [] { return RoundZl(1e39); }, true},
        {"Float field", [] { Record(kPlik).set(4, 1e39); return 0.0f; }, true},
        {"Float field from text", [] { Record(kPlik).set(4, std::string("7e38")); return 0.0f; }, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        try {
            c.store();
            EXPECT_FALSE(c.overflow);
        } catch (const Error& e) {
            EXPECT_TRUE(c.overflow);
            EXPECT_EQ(e.Number, err::Overflow);
        }
    }
}
