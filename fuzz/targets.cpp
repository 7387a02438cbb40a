#include "fuzz/targets.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

#include "core/error.h"
#include "core/numbers.h"
#include "core/record.h"
#include "core/seqfile.h"
#include "core/session.h"
#include "core/text.h"
#include "paycalc/dodatkowe_record.h"
#include "paycalc/karta_record.h"
#include "paycalc/urlopy.h"
#include "payinputs/pay_record.h"
#include "payinputs/seniority.h"
#include "personnel/person_record.h"
#include "printing/specyfikacja.h"
#include "printing/sumy_record.h"
#include "reference/catalogue.h"
#include "reference/payers.h"
#include "reference/rates.h"

namespace fuzz {

namespace {

std::string_view bytes(const std::uint8_t* d, std::size_t n) { return {reinterpret_cast<const char*>(d), n}; }

// A file as the readers get it: bytes of code page 1250 decoded to UTF-8.
core::SeqReader reader(const std::uint8_t* d, std::size_t n) {
    return core::SeqReader::fromText(core::fromCp1250(bytes(d, n)), "fuzz");
}

std::string written(const std::vector<core::Record>& recs) {
    core::SeqWriter w;
    for (const auto& r : recs) core::writeRecord(w, r);
    return w.text();
}

// Every field through its typed reader, as the screens and the calculation read them.
void readFields(const core::Record& r, const core::Schema& schema) {
    for (int f = 1; f <= schema.size(); ++f) {
        try {
            switch (schema.fields[f - 1].type) {
            case core::FieldType::Float: (void)r.f(f); break;
            case core::FieldType::Double: (void)r.d(f); break;
            case core::FieldType::Int16:
            case core::FieldType::Long: (void)r.i(f); break;
            default: (void)r.s(f); break;
            }
        } catch (const core::Error&) {
        }
    }
}

// A file of records: read, every field read by its type, written back and read again, which
// must give the same text (what is read once is kept byte for byte from then on).
void records(const std::uint8_t* d, std::size_t n, const core::Schema& schema) {
    std::vector<core::Record> recs;
    try {
        core::SeqReader in = reader(d, n);
        recs = core::readAll(in, schema);
    } catch (const core::Error&) {
        return;
    }
    for (const auto& r : recs) readFields(r, schema);
    std::string once;
    try {
        once = written(recs);
    } catch (const core::Error&) {
        return;  // a text the format cannot hold is refused on writing
    }
    core::SeqReader again = core::SeqReader::fromText(once, "fuzz");
    if (written(core::readAll(again, schema)) != once) std::abort();
}

void codec(const std::uint8_t* d, std::size_t n) {
    core::SeqReader items = reader(d, n);
    std::vector<core::Item> all;
    while (!items.eof()) all.push_back(items.item());
    core::SeqReader lines = reader(d, n);
    while (!lines.eof()) (void)lines.line();
    try {
        core::SeqWriter w;
        w.write(all);
        core::SeqReader back = core::SeqReader::fromText(w.text(), "fuzz");
        for (const core::Item& it : all) {
            core::Item got = back.item();
            if (got.text != it.text && it.kind != core::Item::Bare) std::abort();
        }
    } catch (const core::Error&) {
    }
}

void urlopy(const std::uint8_t* d, std::size_t n) {
    try {
        core::SeqReader in = reader(d, n);
        auto blocks = paycalc::Urlop::readAll(in);
        for (int m = 1; m <= 12; ++m) (void)paycalc::urlopMiesiaca(blocks, "12345678901", m);
    } catch (const core::Error&) {
    }
}

void dates(const std::uint8_t* d, std::size_t n) {
    const std::string t = core::fromCp1250(bytes(d, n));
    core::Date date;
    if (core::parseDate(t, date)) (void)core::FormatDate(date, "dddd,dd,mmmm,yyyy");
    (void)core::DataTekst(t);
    const std::size_t half = t.size() / 2;
    try {
        (void)payinputs::obliczStaz(t.substr(0, half), t.substr(half), "a", "DEMO");
    } catch (const core::Error&) {
    }
}

void numbers(const std::uint8_t* d, std::size_t n) {
    std::string t = core::fromCp1250(bytes(d, n));
    (void)core::isNumeric(t);
    try {
        (void)core::ValInt(t, "fuzz");
    } catch (const core::Error&) {
    }
    try {
        double v = core::Val(core::KropkaZamiastPrzecinka(t));
        (void)core::numText(v);
        if (std::fabs(v) < 1e15) {
            (void)core::Format(v, "#####0.00");
            (void)core::RoundZl(v);
            (void)core::Round2(v);
        }
        double strict = core::toDouble(t, "fuzz");
        if (std::isfinite(strict) && std::fabs(strict) < 1e15) (void)core::RoundSkl(strict);
    } catch (const core::Error&) {
    }
    (void)core::KwotaSlownie(t);
}

template <const core::Schema& (*S)()>
void schemaTarget(const std::uint8_t* d, std::size_t n) {
    records(d, n, S());
}

}  // namespace

const std::vector<Target>& targets() {
    static const std::vector<Target> t = {
        {"codec", codec},
        {"instalka", schemaTarget<core::Instalka::schema>},
        {"mojafirma", schemaTarget<reference::Firma::schema>},
        {"instal", schemaTarget<reference::Instal::schema>},
        {"dane", schemaTarget<reference::Dane::schema>},
        {"person", schemaTarget<personnel::Osoba::schema>},
        {"pay", schemaTarget<payinputs::Pay::schema>},
        {"karta", schemaTarget<paycalc::Karta::schema>},
        {"dodatkowe", schemaTarget<paycalc::Dodatkowy::schema>},
        {"urlopy", urlopy},
        {"sumy", schemaTarget<printing::Sumy::schema>},
        {"specyfikacja", schemaTarget<printing::Specyfikacja::schema>},
        {"dates", dates},
        {"numbers", numbers},
    };
    return t;
}

Run find(const std::string& name) {
    for (const Target& t : targets())
        if (name == t.name) return t.run;
    return nullptr;
}

}  // namespace fuzz
