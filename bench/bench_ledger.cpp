// The month's commands of a whole list: the monthly ledger (every person calculated and
// written) and the month closing (every pay record calculated, changed and written back), on
// generated lists. The time per person must not grow with the size of the list.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <map>

#include "core/dialogs.h"
#include "core/printer.h"
#include "core/seqfile.h"
#include "generator.h"
#include "paycalc/kartoteka.h"
#include "paycalc/zerowanie.h"
#include "payinputs/pay_record.h"

namespace fs = std::filesystem;

namespace {

// Every question answered with its affirmative button.
class Tak : public core::Dialogs {
public:
    core::Answer msgBox(const std::string&, core::Buttons b, core::Icon, const std::string&) override {
        return b == core::Buttons::YesNo || b == core::Buttons::YesNoCancel ? core::Answer::Yes : core::Answer::OK;
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void showForm(core::Form&) override {}
    core::Printer& printer() override { return paper; }
    core::TextPrinter paper;
};

struct Listy {
    fs::path folder = fs::temp_directory_path() / ("pensja-bench-ledger-" + std::to_string(::getpid()));
    std::map<int, core::Session> listy;
    std::map<int, std::string> bazy;  // each pay file as generated, before any closing
    ~Listy() {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    core::Session& lista(int osoby) {
        auto it = listy.find(osoby);
        if (it == listy.end()) {
            it = listy.emplace(osoby, bench::wygenerujListe(folder, "K" + std::to_string(osoby), osoby)).first;
            it->second.LiczbaOsob = osoby;
            bazy[osoby] = core::readFileText(payinputs::Pay::path(it->second));
        }
        return it->second;
    }
};
Listy listy;

void naOsobe(benchmark::State& state, int osoby) {
    state.SetItemsProcessed(state.iterations() * osoby);
    state.counters["na_osobe_us"] = benchmark::Counter(
        static_cast<double>(osoby), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert,
        benchmark::Counter::kIs1000);
}

void BM_Kartoteka(benchmark::State& state) {
    const int osoby = static_cast<int>(state.range(0));
    core::Session s = listy.lista(osoby);
    Tak ui;
    for (auto _ : state) {
        if (!paycalc::cmdKartoteka(s, ui)) state.SkipWithError("kartoteka nie wykonana");
        benchmark::DoNotOptimize(s.LiczbaOsob);
    }
    naOsobe(state, osoby);
}
BENCHMARK(BM_Kartoteka)->Name("ledger")->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);

void BM_Zerowanie(benchmark::State& state) {
    const int osoby = static_cast<int>(state.range(0));
    core::Session s = listy.lista(osoby);
    Tak ui;
    const fs::path baza = payinputs::Pay::path(s);
    const std::string& przed = listy.bazy.at(osoby);
    for (auto _ : state) {
        // Each closing starts from the month not yet closed.
        state.PauseTiming();
        core::commitFile(baza, przed);
        state.ResumeTiming();
        if (!paycalc::cmdZerowanie(s, ui)) state.SkipWithError("zerowanie nie wykonane");
    }
    naOsobe(state, osoby);
}
BENCHMARK(BM_Zerowanie)->Name("close-month")->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);

}  // namespace
