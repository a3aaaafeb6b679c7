// SPDX-License-Identifier: GPL-3.0-or-later
// Search speed on the bundled word list, and the result sort against the
// literal quadratic one. Run from anywhere: the data comes from the run folder.

#include "data/file_helpers.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "engine/value_sort.h"
#include "support/literal_selection_sort.h"

#include <benchmark/benchmark.h>
#include <climits>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace lettriner;

const std::filesystem::path kRunFolder = LETTRINER_RUN_DIR;

struct BundledList {
    WordDatabase database = DatenbankEinlesen(kRunFolder / "DB1.txt");
    PreparedWords words{database, BewertungsFeldLaden(kRunFolder)};
};

const BundledList& bundledList() {
    static const BundledList list;
    return list;
}

void BM_ScanBytes(benchmark::State& state) {
    std::ifstream in(kRunFolder / "DB1.txt", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    for (auto _ : state) {
        unsigned sum = 0;
        for (const char byte : bytes)
            sum += static_cast<unsigned char>(byte);
        benchmark::DoNotOptimize(sum);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_ScanBytes)->Unit(benchmark::kMillisecond);

void runSearch(benchmark::State& state, const HeadlessFields& fields) {
    const PreparedWords& words = bundledList().words;
    HeadlessOutcome outcome;
    for (auto _ : state) {
        outcome = searchWithoutWindow(words, fields);
        benchmark::DoNotOptimize(outcome.mainList.rowCount());
    }
    state.counters["found"] = static_cast<double>(outcome.found);
    state.counters["bonus"] = static_cast<double>(outcome.bonusList.rowCount());
}

void BM_Search_default(benchmark::State& state) {
    runSearch(state, {});
}
BENCHMARK(BM_Search_default)->Name("BM_Search/default")->Unit(benchmark::kMillisecond);

void BM_Search_allowance3(benchmark::State& state) {
    HeadlessFields fields;
    fields.texts.allowance = u"3";
    runSearch(state, fields);
}
BENCHMARK(BM_Search_allowance3)->Name("BM_Search/allowance3")->Unit(benchmark::kMillisecond);

void BM_Search_allowance5(benchmark::State& state) {
    HeadlessFields fields;
    fields.texts.allowance = u"5";
    runSearch(state, fields);
}
BENCHMARK(BM_Search_allowance5)->Name("BM_Search/allowance5")->Unit(benchmark::kMillisecond);

void BM_Search_bonusHeavy(benchmark::State& state) {
    runSearch(state, {{u"", u"", u"", u"40"}, u"0", u"32767"});
}
BENCHMARK(BM_Search_bonusHeavy)->Name("BM_Search/bonusHeavy")->Unit(benchmark::kMillisecond);

// The command line's search with blanks or a pattern on the default fields:
// blanks lower the summary test's reach (no value bound, more letters may be
// missing).
void runTileSearch(benchmark::State& state, const TileRules& rules) {
    const PreparedWords& words = bundledList().words;
    HeadlessOutcome outcome;
    for (auto _ : state) {
        outcome = searchWithoutWindow(words, {}, rules);
        benchmark::DoNotOptimize(outcome.mainList.rowCount());
    }
    state.counters["found"] = static_cast<double>(outcome.found);
    state.counters["bonus"] = static_cast<double>(outcome.bonusList.rowCount());
}

void BM_TileSearch_blanks(benchmark::State& state) {
    runTileSearch(state, {static_cast<int>(state.range(0)), u"", u"", u"", 0, UINT32_MAX});
}
BENCHMARK(BM_TileSearch_blanks)
    ->Name("BM_TileSearch/blanks")
    ->DenseRange(0, 2)
    ->Unit(benchmark::kMillisecond);

void BM_TileSearch_pattern(benchmark::State& state) {
    runTileSearch(state, {0, u"..S...", u"", u"", 0, UINT32_MAX});
}
BENCHMARK(BM_TileSearch_pattern)->Name("BM_TileSearch/pattern")->Unit(benchmark::kMillisecond);

// Values in a narrow range, so that most of them tie.
std::vector<StoreEntry> randomStore(std::size_t size) {
    std::mt19937 random(42);
    std::uniform_int_distribution<int> value(0, 40);
    std::vector<StoreEntry> entries(size);
    for (std::size_t i = 0; i < size; ++i)
        entries[i] = {static_cast<std::uint32_t>(i), static_cast<std::int16_t>(value(random))};
    return entries;
}

void BM_FeldNachWertSortieren(benchmark::State& state) {
    const std::vector<StoreEntry> original = randomStore(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::vector<StoreEntry> entries = original;
        FeldNachWertSortieren(entries);
        benchmark::DoNotOptimize(entries.data());
    }
}
BENCHMARK(BM_FeldNachWertSortieren)->Arg(300000)->Unit(benchmark::kMillisecond);

void BM_SelectionSortLiteral(benchmark::State& state) {
    const std::vector<StoreEntry> original = randomStore(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::vector<StoreEntry> entries = original;
        testing::literalSelectionSort(entries);
        benchmark::DoNotOptimize(entries.data());
    }
}
BENCHMARK(BM_SelectionSortLiteral)->Arg(5000)->Unit(benchmark::kMillisecond);

// Start-up work: reading the list and preparing it with the letter values.
void BM_LoadWordList(benchmark::State& state) {
    for (auto _ : state) {
        WordDatabase database = DatenbankEinlesen(kRunFolder / "DB1.txt");
        benchmark::DoNotOptimize(database.size());
    }
}
BENCHMARK(BM_LoadWordList)->Unit(benchmark::kMillisecond);

void BM_PrepareWords(benchmark::State& state) {
    const WordDatabase& database = bundledList().database;
    for (auto _ : state) {
        PreparedWords words(database, BewertungsFeldLaden(kRunFolder));
        benchmark::DoNotOptimize(words.size());
    }
}
BENCHMARK(BM_PrepareWords)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
