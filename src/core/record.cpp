#include "core/record.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/error.h"
#include "core/numbers.h"
#include "core/text.h"

namespace core {

Record::Record(const Schema& schema) : schema_(&schema), slots_(schema.fields.size()) {
    buf_.reserve(schema.fields.size() * 2);
    for (int n = 1; n <= schema.size(); ++n) {
        switch (type(n)) {
        case FieldType::String:
        case FieldType::Line: put(n, Item::Quoted, {}); break;
        case FieldType::Float:
        case FieldType::Double:
        case FieldType::Int16:
        case FieldType::Long: put(n, Item::Bare, "0"); break;
        case FieldType::Variant:
        case FieldType::Blank: break;
        }
    }
}

const Record::Slot& Record::slot(int n) const {
    if (!schema_ || n < 1 || n > static_cast<int>(slots_.size()))
        throw Error(err::SubscriptOutOfRange, std::string(schema_ ? schema_->name : "rekord") + ", pole " + std::to_string(n),
                    "nie ma takiego pola");
    return slots_[static_cast<std::size_t>(n) - 1];
}

Item::Kind Record::kind(int n) const { return static_cast<Item::Kind>(slot(n).kind); }

std::string_view Record::text(int n) const {
    const Slot& sl = slot(n);
    return std::string_view(buf_.data() + sl.at, sl.size);
}

Item Record::item(int n) const { return Item{kind(n), std::string(text(n))}; }

void Record::put(int n, Item::Kind kind, std::string_view text) {
    Slot& sl = const_cast<Slot&>(slot(n));
    if (text.size() <= sl.size) {
        // In the place of the old text; what it leaves over is no longer used.
        if (!text.empty()) std::memmove(buf_.data() + sl.at, text.data(), text.size());
        unused_ += sl.size - static_cast<std::uint32_t>(text.size());
    } else {
        if (text.data() >= buf_.data() && text.data() < buf_.data() + buf_.size()) {
            const std::string copy(text);  // a text of this record itself
            put(n, kind, copy);
            return;
        }
        if (buf_.size() + text.size() > (std::uint32_t{1} << 30))
            throw Error(err::Overflow, step(n), "rekord nie mieści się w pamięci");
        // Mostly unused: the texts moved together first.
        if (unused_ > 256 && unused_ > buf_.size() / 2) {
            std::string packed;
            packed.reserve(buf_.size() - unused_ + text.size());
            for (Slot& s : slots_) {
                const std::uint32_t at = static_cast<std::uint32_t>(packed.size());
                packed.append(buf_, s.at, s.size);
                s.at = at;
            }
            buf_.swap(packed);
            unused_ = 0;
        }
        unused_ += sl.size;
        sl.at = static_cast<std::uint32_t>(buf_.size());
        buf_.append(text);
    }
    sl.size = static_cast<std::uint32_t>(text.size()) & ((std::uint32_t{1} << 30) - 1);
    sl.kind = kind;
}

std::string Record::fieldName(int n) const {
    if (!schema_ || n < 1 || n > schema_->size()) return std::to_string(n);
    return std::string(schema_->fields[n - 1].name);
}

std::string Record::step(int n) const { return std::string(schema_->name) + ", pole " + std::to_string(n) + " " + fieldName(n); }

std::string Record::s(int n) const { return std::string(text(n)); }

double Record::d(int n) const {
    const std::string_view t = text(n);
    double v = 0;
    const NumberText r = parseNumber(t, v);
    if (r == NumberText::Ok) return v;
    if (r == NumberText::Empty) return 0.0;
    throwNumber(r, t, step(n));
}

float Record::f(int n) const { return static_cast<float>(d(n)); }

namespace {

bool fitsLong(double v) { return v > -9.2e18 && v < 9.2e18; }

// A number rounded to a whole one for an integer field: Error 6 when no integer holds it.
[[noreturn]] void notLong(const std::string& field) {
    throw Error(err::Overflow, field, "wartość pola " + field + " nie mieści się w liczbie całkowitej");
}

// A double quote would end a quoted item early and break the file: refused before any write.
void refuseQuote(const Schema& schema, int n, std::string_view text) {
    if (text.find('"') == std::string_view::npos) return;
    std::string name(schema.fields[n - 1].name);
    throw TextRefused(std::string(schema.name) + ", pole " + std::to_string(n) + " " + name, name, n);
}

bool beyondSingle(double v) {
    return std::isinf(v) || (std::isfinite(v) && std::fabs(v) > std::numeric_limits<float>::max());
}

}  // namespace

long Record::i(int n) const {
    const double v = d(n);
    if (!fitsLong(v)) notLong(fieldName(n));
    return std::lround(v);
}

void Record::set(int n, const std::string& text) {
    slot(n);
    const FieldType t = type(n);
    if (t == FieldType::Blank) return;
    if (t == FieldType::String || t == FieldType::Variant) refuseQuote(*schema_, n, text);
    if (t == FieldType::String || t == FieldType::Line || t == FieldType::Variant) {
        put(n, Item::Quoted, text);
        return;
    }
    double v = 0;
    const NumberText r = parseNumber(text, v);
    if (r == NumberText::Empty)
        v = 0;
    else if (r != NumberText::Ok)
        throwNumber(r, text, fieldName(n));
    if (t == FieldType::Float)
        set(n, static_cast<float>(v));
    else if (t == FieldType::Double)
        set(n, v);
    else if (!fitsLong(v))
        notLong(fieldName(n));
    else
        set(n, std::lround(v));
}

// A number stored by the field's type: a float keeps its 7 digits and a double its 15 wherever
// the field takes the value as it is given; a Float field narrows to 32 bits (Error 6 beyond);
// an integer field takes the whole number nearest.
template <class T>
void Record::setNumber(int n, T v) {
    slot(n);
    char buf[kNumTextMax];
    switch (type(n)) {
    case FieldType::String:
    case FieldType::Line: put(n, Item::Quoted, std::string_view(buf, numText(buf, v))); break;
    case FieldType::Variant: put(n, Item::Bare, std::string_view(buf, numText(buf, v))); break;
    case FieldType::Double: put(n, Item::Bare, std::string_view(buf, numText(buf, static_cast<double>(v)))); break;
    case FieldType::Float:
        if (beyondSingle(static_cast<double>(v))) CSng(static_cast<double>(v), step(n));
        put(n, Item::Bare, std::string_view(buf, numText(buf, static_cast<float>(v))));
        break;
    case FieldType::Int16:
    case FieldType::Long:
        if (!fitsLong(static_cast<double>(v))) notLong(fieldName(n));
        set(n, std::lround(static_cast<double>(v)));
        break;
    case FieldType::Blank: break;
    }
}

template void Record::setNumber<float>(int, float);
template void Record::setNumber<double>(int, double);

void Record::set(int n, long v) {
    slot(n);
    const FieldType t = type(n);
    if (t == FieldType::Blank) return;
    if (t == FieldType::Int16 && (v < -32768 || v > 32767))
        throw Error(err::Overflow, step(n), "wartość " + std::to_string(v) + " nie mieści się w polu");
    char buf[24];
    const std::string_view text(buf, static_cast<std::size_t>(std::to_chars(buf, buf + sizeof buf, v).ptr - buf));
    put(n, t == FieldType::String || t == FieldType::Line ? Item::Quoted : Item::Bare, text);
}

void Record::setEmpty(int n) {
    slot(n);
    const FieldType t = type(n);
    put(n, t == FieldType::String || t == FieldType::Line ? Item::Quoted : Item::Empty, {});
}

namespace {

// A numeric field is checked on reading: Error 13 for text, Error 6 beyond the field's range.
// The failing place is named only when there is one.
void checkNumber(std::string_view text, const Schema& schema, int n, const SeqReader& in) {
    const FieldType t = schema.fields[n - 1].type;
    if (t != FieldType::Float && t != FieldType::Double && t != FieldType::Int16 && t != FieldType::Long) return;
    double v = 0;
    const NumberText r = parseNumber(text, v);
    if (r == NumberText::Empty) return;
    const bool beyond = r == NumberText::Ok && ((t == FieldType::Int16 && (v < -32768.5 || v > 32767.5)) ||
                                                 (t == FieldType::Float && std::fabs(v) > std::numeric_limits<float>::max()));
    if (r == NumberText::Ok && !beyond) return;
    const std::string step = in.name() + ", pozycja " + std::to_string(in.itemsRead()) + " (pole " + std::to_string(n) +
                             " " + std::string(schema.fields[n - 1].name) + ")";
    if (r != NumberText::Ok) throwNumber(r, text, step);
    throw Error(err::Overflow, step, "wartość " + std::string(text) + " nie mieści się w polu");
}

}  // namespace

Record readRecord(SeqReader& in, const Schema& schema) {
    Record r;
    r.schema_ = &schema;
    r.slots_.resize(schema.fields.size());
    std::string& buf = r.buf_;
    buf.reserve(schema.fields.size() * 3);  // about what most records hold, none for the smallest
    for (int n = 1; n <= schema.size(); ++n) {
        const std::size_t at = buf.size();
        Record::Slot& sl = r.slots_[static_cast<std::size_t>(n) - 1];
        if (schema.fields[n - 1].type == FieldType::Line) {
            // The whole line, its first and last characters stripped.
            in.lineInto(buf);
            std::string_view line(buf.data() + at, buf.size() - at);
            std::size_t from = 0, to = line.size();
            if (Len(line) >= 2) {
                do ++from;
                while (from < to && (static_cast<unsigned char>(line[from]) & 0xC0) == 0x80);
                do --to;
                while (to > from && (static_cast<unsigned char>(line[to]) & 0xC0) == 0x80);
            } else {
                from = to = 0;
            }
            r.unused_ += static_cast<std::uint32_t>(line.size() - (to - from));
            sl.at = static_cast<std::uint32_t>(at + from);
            sl.size = static_cast<std::uint32_t>(to - from);
            sl.kind = Item::Quoted;
        } else {
            const Item::Kind kind = in.itemInto(buf);
            checkNumber(std::string_view(buf.data() + at, buf.size() - at), schema, n, in);
            sl.at = static_cast<std::uint32_t>(at);
            sl.size = static_cast<std::uint32_t>(buf.size() - at);
            sl.kind = kind;
        }
        if (buf.size() > (std::size_t{1} << 30)) throw Error(err::Overflow, r.step(n), "rekord nie mieści się w pamięci");
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
    const int per = s.itemsPerWrite <= 0 ? s.size() : s.itemsPerWrite;
    std::string quoted;
    int inWrite = 0;
    for (int n = 1; n <= s.size(); ++n) {
        const FieldType t = s.fields[n - 1].type;
        const std::string_view text = rec.text(n);
        if (t == FieldType::Line) {
            // Read back as a whole line: quotes inside are safe.
            quoted.assign(1, '"').append(text).append(1, '"');
            out.put(Item::Bare, quoted, inWrite == 0);
        } else if (t == FieldType::Blank) {
            out.put(Item::Empty, {}, inWrite == 0);
        } else {
            const Item::Kind k = rec.kind(n);
            if (k == Item::Quoted) refuseQuote(s, n, text);
            out.put(k, text, inWrite == 0);
        }
        if (++inWrite == per || n == s.size()) {
            out.endWrite();
            inWrite = 0;
        }
    }
}

void writeAll(const std::filesystem::path& target, const std::vector<Record>& recs, const std::string& tempName) {
    SeqWriter w;
    for (const Record& r : recs) writeRecord(w, r);
    commitFile(target, w, tempName);
}

}  // namespace core
