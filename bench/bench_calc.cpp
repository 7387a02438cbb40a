// The monthly calculation of every person of a list, as the monthly ledger walks it: the rates
// and the list's files read once, then one calculation a person. The time per person must not
// grow with the size of the list.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <unistd.h>

#include <map>

#include "core/dialogs.h"
#include "core/printer.h"
#include "generator.h"
#include "paycalc/wyliczenie.h"
#include "personnel/person_record.h"
#include "reference/rates.h"

namespace fs = std::filesystem;

namespace {

class Cicho : public core::Dialogs {
public:
    core::Answer msgBox(const std::string&, core::Buttons, core::Icon, const std::string&) override {
        return core::Answer::OK;
    }
    std::optional<std::string> inputBox(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void showForm(core::Form&) override {}
    core::Printer& printer() override { return paper; }
    core::TextPrinter paper;
};

// One generated data folder for the whole run, removed at exit.
struct Dane {
    fs::path folder = fs::temp_directory_path() / ("pensja-bench-" + std::to_string(::getpid()));
    std::map<int, core::Session> listy;
    ~Dane() {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    core::Session& lista(int osoby) {
        auto it = listy.find(osoby);
        if (it == listy.end())
            it = listy.emplace(osoby, bench::wygenerujListe(folder, "L" + std::to_string(osoby), osoby)).first;
        return it->second;
    }
};
Dane dane;

void BM_WyliczenieListy(benchmark::State& state) {
    const int osoby = static_cast<int>(state.range(0));
    core::Session s = dane.lista(osoby);
    Cicho ui;
    for (auto _ : state) {
        reference::loadRates(s);
        const paycalc::ZbioryListy z = paycalc::wczytajZbiory(s);
        double suma = 0;
        for (const core::Record& o : z.osobowe.rekordy()) {
            s.KluczOsoby = personnel::kluczOsoby(o);
            s.NazwiskoOsoby = o.s(personnel::Osoba::Nazwisko);
            paycalc::modWyliczeniePlacy(s, ui, z);
            suma += s.wynik.wNetto;
        }
        benchmark::DoNotOptimize(suma);
    }
    state.SetItemsProcessed(state.iterations() * osoby);
    state.counters["na_osobe_us"] = benchmark::Counter(
        static_cast<double>(osoby), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert,
        benchmark::Counter::kIs1000);
}
BENCHMARK(BM_WyliczenieListy)->Arg(250)->Arg(2500)->Unit(benchmark::kMillisecond);

}  // namespace
