#include "core/record.h"

#include <cmath>
#include <limits>

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"

namespace core {

Record::Record(const Schema& schema) : schema_(&schema), items_(schema.fields.size()) {
    for (int n = 1; n <= schema.size(); ++n) {
        switch (schema.fields[n - 1].type) {
        case FieldType::String:
        case FieldType::Line: items_[n - 1] = Item::quoted(""); break;
        case FieldType::Float:
        case FieldType::Double:
        case FieldType::Int16:
        case FieldType::Long: items_[n - 1] = Item::bare("0"); break;
        case FieldType::Variant:
        case FieldType::Blank: break;
        }
    }
}

const Item& Record::item(int n) const {
    if (!schema_ || n < 1 || n > static_cast<int>(items_.size()))
        throw Error(err::SubscriptOutOfRange, std::string(schema_ ? schema_->name : "rekord") + ", pole " + std::to_string(n),
                    "nie ma takiego pola");
    return items_[n - 1];
}

Item& Record::item(int n) { return const_cast<Item&>(static_cast<const Record*>(this)->item(n)); }

std::string Record::fieldName(int n) const {
    if (!schema_ || n < 1 || n > schema_->size()) return std::to_string(n);
    return std::string(schema_->fields[n - 1].name);
}

std::string Record::s(int n) const { return item(n).text; }

double Record::d(int n) const {
    const Item& it = item(n);
    return toDoubleOrZero(it.text, std::string(schema_->name) + ", pole " + std::to_string(n) + " " + fieldName(n));
}

float Record::f(int n) const { return static_cast<float>(d(n)); }

long Record::i(int n) const { return std::lround(d(n)); }

namespace {

// A double quote would end a quoted item early and break the file: refused before any write.
void refuseQuote(const Schema& schema, int n, const std::string& text) {
    if (text.find('"') == std::string::npos) return;
    std::string name(schema.fields[n - 1].name);
    throw TextRefused(std::string(schema.name) + ", pole " + std::to_string(n) + " " + name, name, n);
}

}  // namespace

void Record::set(int n, const std::string& text) {
    Item& it = item(n);
    FieldType t = schema_->fields[n - 1].type;
    if (t == FieldType::Blank) return;
    if (t == FieldType::String || t == FieldType::Variant) refuseQuote(*schema_, n, text);
    switch (t) {
    case FieldType::String:
    case FieldType::Line:
    case FieldType::Variant: it = Item::quoted(text); break;
    case FieldType::Blank: break;
    case FieldType::Float: set(n, static_cast<float>(toDoubleOrZero(text, fieldName(n)))); break;
    case FieldType::Double: set(n, toDoubleOrZero(text, fieldName(n))); break;
    case FieldType::Int16:
    case FieldType::Long: set(n, std::lround(toDoubleOrZero(text, fieldName(n)))); break;
    }
}

void Record::set(int n, float v) {
    Item& it = item(n);
    FieldType t = schema_->fields[n - 1].type;
    if (t == FieldType::Blank) return;
    switch (t) {
    case FieldType::String:
    case FieldType::Line: it = Item::quoted(numText(v)); break;
    case FieldType::Double: it = Item::bare(numText(static_cast<double>(v))); break;
    case FieldType::Int16:
    case FieldType::Long: set(n, std::lround(v)); break;
    case FieldType::Float:
        it = Item::bare(numText(CSng(v, std::string(schema_->name) + ", pole " + std::to_string(n) + " " + fieldName(n))));
        break;
    case FieldType::Variant: it = Item::bare(numText(v)); break;
    case FieldType::Blank: break;
    }
}

void Record::set(int n, double v) {
    Item& it = item(n);
    FieldType t = schema_->fields[n - 1].type;
    if (t == FieldType::Blank) return;
    switch (t) {
    case FieldType::String:
    case FieldType::Line: it = Item::quoted(numText(v)); break;
    case FieldType::Float:
        it = Item::bare(numText(CSng(v, std::string(schema_->name) + ", pole " + std::to_string(n) + " " + fieldName(n))));
        break;
    case FieldType::Int16:
    case FieldType::Long: set(n, std::lround(v)); break;
    case FieldType::Double:
    case FieldType::Variant: it = Item::bare(numText(v)); break;
    case FieldType::Blank: break;
    }
}

void Record::set(int n, long v) {
    Item& it = item(n);
    FieldType t = schema_->fields[n - 1].type;
    if (t == FieldType::Blank) return;
    if (t == FieldType::Int16 && (v < -32768 || v > 32767))
        throw Error(err::Overflow, std::string(schema_->name) + ", pole " + std::to_string(n) + " " + fieldName(n),
                    "wartość " + std::to_string(v) + " nie mieści się w polu");
    if (t == FieldType::String || t == FieldType::Line)
        it = Item::quoted(std::to_string(v));
    else
        it = Item::bare(std::to_string(v));
}

void Record::setEmpty(int n) {
    FieldType t = schema_->fields[n - 1].type;
    if (t == FieldType::String || t == FieldType::Line)
        item(n) = Item::quoted("");
    else
        item(n) = Item::empty();
}

namespace {

void checkNumber(const Item& it, const Schema& schema, int n, const SeqReader& in) {
    FieldType t = schema.fields[n - 1].type;
    if (t != FieldType::Float && t != FieldType::Double && t != FieldType::Int16 && t != FieldType::Long) return;
    std::string step = in.name() + ", pozycja " + std::to_string(in.itemsRead()) + " (pole " +
                       std::to_string(n) + " " + std::string(schema.fields[n - 1].name) + ")";
    double v = toDoubleOrZero(it.text, step);
    if (t == FieldType::Int16 && (v < -32768.5 || v > 32767.5))
        throw Error(err::Overflow, step, "wartość " + it.text + " nie mieści się w polu");
    if (t == FieldType::Float && std::fabs(v) > std::numeric_limits<float>::max())
        throw Error(err::Overflow, step, "wartość " + it.text + " nie mieści się w polu");
}

}  // namespace

Record readRecord(SeqReader& in, const Schema& schema) {
    Record r(schema);
    for (int n = 1; n <= schema.size(); ++n) {
        if (schema.fields[n - 1].type == FieldType::Line) {
            std::string line = in.line();
            std::size_t len = Len(line);
            r.item(n) = Item::quoted(len >= 2 ? Mid(line, 2, len - 2) : std::string());
        } else {
            Item it = in.item();
            checkNumber(it, schema, n, in);
            r.item(n) = std::move(it);
        }
    }
    return r;
}

std::vector<Record> readAll(SeqReader& in, const Schema& schema) {
    std::vector<Record> out;
    while (!in.eof()) out.push_back(readRecord(in, schema));
    return out;
}

std::vector<Record> readAll(const std::filesystem::path& path, const Schema& schema) {
    SeqReader in(path);
    return readAll(in, schema);
}

void writeRecord(SeqWriter& out, const Record& rec) {
    const Schema& s = rec.schema();
    int per = s.itemsPerWrite <= 0 ? s.size() : s.itemsPerWrite;
    std::vector<Item> line;
    for (int n = 1; n <= s.size(); ++n) {
        const FieldType t = s.fields[n - 1].type;
        const Item& it = rec.item(n);
        if (t == FieldType::Line)
            line.push_back(Item::bare('"' + it.text + '"'));  // read back as a whole line: quotes inside are safe
        else if (t == FieldType::Blank)
            line.push_back(Item::empty());
        else {
            if (it.kind == Item::Quoted) refuseQuote(s, n, it.text);
            line.push_back(it);
        }
        if (static_cast<int>(line.size()) == per || n == s.size()) {
            out.write(line);
            line.clear();
        }
    }
}

void writeAll(const std::filesystem::path& target, const std::vector<Record>& recs, const std::string& tempName) {
    SeqWriter w;
    for (const Record& r : recs) writeRecord(w, r);
    commitFile(target, w, tempName);
}

}  // namespace core
