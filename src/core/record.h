// Schema-driven records. Each file format is one table of (field name, type) in the order of
// the file, and an enum of its field numbers (1-based, as the format tables count them), so
// `pay.f(Pay::Zasadnicza)` reads as the field list does. A record keeps every item as it stood
// in the file, so writing a record back gives the same bytes for every field not changed.
#pragma once
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
    bool isEmpty(int n) const { return item(n).kind == Item::Empty; }
    const Item& item(int n) const;
    Item& item(int n);

    // Storing a field by its type: a String or Line field takes a quoted text, a Float is
    // narrowed to 32 bits, an Int16 must fit (else Error 6). A Variant keeps what it is given:
    // text quoted, numbers bare.
    void set(int n, const std::string& text);
    void set(int n, const char* text) { set(n, std::string(text)); }
    void set(int n, float v);
    void set(int n, double v);
    void set(int n, long v);
    void set(int n, int v) { set(n, static_cast<long>(v)); }
    void setEmpty(int n);
    void setItem(int n, Item it) { item(n) = std::move(it); }

    std::string fieldName(int n) const;

private:
    const Schema* schema_ = nullptr;
    std::vector<Item> items_;
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
