// Schema-driven records. Each file format is one table of (field name, type) in the order of
// the file, and an enum of its field numbers (1-based, as the format tables count them), so
// `pay.f(Pay::Zasadnicza)` reads as the field list does. A record keeps every item as it stood
// in the file, so writing a record back gives the same bytes for every field not changed. The
// items of a record are kept together: their texts one after another in one buffer, and for
// each field where its text stands and what kind of item it is.
#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/seqfile.h"

namespace core {

enum class FieldType : unsigned char {
    String,   // text, written in quotes
    Variant,  // whatever it holds: quoted text, a bare number, or nothing
    Float,    // 32-bit float, written bare in its shortest form
    Double,   // double, written bare in its shortest form
    Int16,    // 16-bit integer
    Long,     // 32-bit integer
    Line,     // read as a whole line, the first and last characters stripped; written quoted
    Blank     // a kept position: read as anything, always written empty, storing into it is ignored
};

struct FieldDef {
    std::string_view name;
    FieldType type;
};

struct Schema {
    std::string_view name;              // the file family, for errors ("bazy\\<lista>.dta")
    std::span<const FieldDef> fields;   // in file order; field n is fields[n-1]
    int itemsPerWrite = 1;              // 1: one item per line; 0: the whole record in one write
    int size() const { return static_cast<int>(fields.size()); }
};

class Record {
public:
    Record() = default;
    explicit Record(const Schema& schema);  // every field empty (numbers 0, texts "")

    const Schema& schema() const { return *schema_; }
    bool valid() const { return schema_ != nullptr; }

    // Reading a field (n is 1-based). Numbers of an empty item are 0; a text that is not a
    // number gives Error 13 naming the record's file and field.
    std::string s(int n) const;
    float f(int n) const;
    double d(int n) const;
    long i(int n) const;
    bool isEmpty(int n) const { return kind(n) == Item::Empty; }
    Item item(int n) const;
    // The item's kind and text without a copy; the text is valid until the record changes.
    Item::Kind kind(int n) const;
    std::string_view text(int n) const;

    // Storing a field by its type: a String or Line field takes a quoted text, a Float is
    // narrowed to 32 bits, an Int16 must fit (else Error 6). A Variant keeps what it is given:
    // text quoted, numbers bare.
    void set(int n, const std::string& text);
    void set(int n, const char* text) { set(n, std::string(text)); }
    void set(int n, float v) { setNumber(n, v); }
    void set(int n, double v) { setNumber(n, v); }
    void set(int n, long v);
    void set(int n, int v) { set(n, static_cast<long>(v)); }
    void setEmpty(int n);
    void setItem(int n, const Item& it) { put(n, it.kind, it.text); }

    std::string fieldName(int n) const;

private:
    // Where the text of a field stands in buf_ and what kind of item it is.
    struct Slot {
        std::uint32_t at = 0;
        std::uint32_t size : 30 = 0;
        std::uint32_t kind : 2 = Item::Empty;
    };
    const Slot& slot(int n) const;  // Error 9 for a field the schema does not have
    FieldType type(int n) const { return schema_->fields[static_cast<std::size_t>(n) - 1].type; }
    // Stores an item as it is.
    void put(int n, Item::Kind kind, std::string_view text);
    template <class T>
    void setNumber(int n, T v);
    // "<file>, pole <n> <name>": the place a conversion of the field names when it fails.
    std::string step(int n) const;
    friend Record readRecord(SeqReader& in, const Schema& schema);

    const Schema* schema_ = nullptr;
    std::vector<Slot> slots_;
    std::string buf_;
    std::uint32_t unused_ = 0;  // bytes of buf_ no field points at any more
};

// One record read item by item (Line fields by whole lines). Error 62 when the file ends
// inside the record. Numeric fields are checked on reading: Error 13 for text in a number.
Record readRecord(SeqReader& in, const Schema& schema);
// All records of a file, until its end.
std::vector<Record> readAll(SeqReader& in, const Schema& schema);
std::vector<Record> readAll(const std::filesystem::path& path, const Schema& schema);
void writeRecord(SeqWriter& out, const Record& rec);
// All records into `target`, safely (see commitFile).
void writeAll(const std::filesystem::path& target, const std::vector<Record>& recs, const std::string& tempName = {});

}  // namespace core
