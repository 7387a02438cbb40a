// What the files cannot hold is refused before anything is written.
#include <gtest/gtest.h>

#include "core/error.h"
#include "core/record.h"
#include "core/seqfile.h"

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
