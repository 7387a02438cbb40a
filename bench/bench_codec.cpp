// The sequential files: reading and rewriting a file of many 155-item records.
#include <benchmark/benchmark.h>

#include <string>

#include "core/record.h"
#include "core/seqfile.h"

namespace {

const core::FieldDef kFields[] = {
    {"a", core::FieldType::String}, {"b", core::FieldType::Variant}, {"c", core::FieldType::Float},
    {"d", core::FieldType::Variant}, {"e", core::FieldType::Int16},
};

std::string makeFile(int records, int perRecord) {
    std::string s;
    for (int r = 0; r < records; ++r)
        for (int i = 0; i < perRecord; ++i) {
            switch (i % 5) {
            case 0: s += "\"KOWALSKA-NOWAK\"\r\n"; break;
            case 1: s += "\"Zażółć\"\r\n"; break;
            case 2: s += "3125.5\r\n"; break;
            case 3: s += "\r\n"; break;
            default: s += "17\r\n"; break;
            }
        }
    return s;
}

void BM_ReadRecords(benchmark::State& state) {
    const int records = static_cast<int>(state.range(0));
    std::vector<core::FieldDef> defs;
    for (int i = 0; i < 155; ++i) defs.push_back(kFields[i % 5]);
    core::Schema schema{"bench", defs, 1};
    std::string text = makeFile(records, 155);
    for (auto _ : state) {
        auto in = core::SeqReader::fromText(text);
        auto recs = core::readAll(in, schema);
        core::SeqWriter w;
        for (const auto& r : recs) core::writeRecord(w, r);
        benchmark::DoNotOptimize(w.text().size());
    }
    state.SetItemsProcessed(state.iterations() * records);
    state.counters["na_osobe_us"] =
        benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert,
                           benchmark::Counter::kIs1000);
}
BENCHMARK(BM_ReadRecords)->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);

}  // namespace
