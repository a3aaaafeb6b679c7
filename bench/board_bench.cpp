// SPDX-License-Identifier: GPL-3.0-or-later
// The board library's speed on the shipped list: all moves and the best move
// for the positions in positions.cgp (microseconds per position, moves per
// second), the median and the slowest best-move search over them, and the
// lexicon's build time, file size and load time. Run from anywhere: the list
// comes from the run folder, or from the folder LETTRINER_BOARD_LIST names
// (DB1.txt, Bewertung1.txt, Bewertung2.txt), to measure another list.

#include "board/lexicon.h"
#include "board/lexicon_file.h"
#include "board/lexicon_loading.h"
#include "board/move_generator.h"
#include "board/playable_words.h"
#include "board/position_text.h"
#include "board/tile_values.h"
#include "engine/letter_values.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace lettriner;
using namespace lettriner::board;

std::filesystem::path listFolder() {
    const char* folder = std::getenv("LETTRINER_BOARD_LIST");
    return folder != nullptr ? std::filesystem::path(folder)
                             : std::filesystem::path(LETTRINER_RUN_DIR);
}
const std::filesystem::path kRunFolder = listFolder();

struct ShippedList {
    WordDatabase database = DatenbankEinlesen(kRunFolder / "DB1.txt");
    Lexicon lexicon = buildLexicon(playableWords(database));
    TileValues values{BewertungsFeldLaden(kRunFolder)};
};

const ShippedList& shippedList() {
    static const ShippedList list;
    return list;
}

struct NamedPosition {
    std::string name;
    Position position;
};

std::vector<NamedPosition> benchmarkPositions() {
    std::vector<NamedPosition> positions;
    std::ifstream in(LETTRINER_BOARD_POSITIONS);
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        const std::size_t space = line.find(' ');
        const PositionRead read = readCgp(line.substr(space + 1));
        if (space != std::string::npos && read.error.empty())
            positions.push_back({line.substr(0, space), read.position});
    }
    return positions;
}

void allMovesOf(benchmark::State& state, const Position& position) {
    const ShippedList& list = shippedList();
    std::size_t moves = 0;
    for (auto _ : state) {
        AllMovesRecorder recorder;
        generateMoves(position.board, position.rack, list.lexicon, list.values, {}, recorder);
        moves = recorder.moves().size();
        benchmark::DoNotOptimize(recorder.moves().data());
    }
    state.counters["moves"] = static_cast<double>(moves);
    state.counters["moves_per_s"] = benchmark::Counter(
        static_cast<double>(moves * state.iterations()), benchmark::Counter::kIsRate);
}

void bestMovesOf(benchmark::State& state, const Position& position, std::size_t count) {
    const ShippedList& list = shippedList();
    int best = 0;
    for (auto _ : state) {
        const std::vector<Move> moves =
            bestMoves(position.board, position.rack, list.lexicon, list.values, count);
        best = moves.empty() ? 0 : moves.front().score;
        benchmark::DoNotOptimize(moves.data());
    }
    state.counters["best_score"] = best;
}

// The best-move search over every position, each timed on its own (the
// fastest of several runs, as the per-position benchmarks report a mean of
// many): the median and the slowest, in microseconds.
void BM_BestMoveSummary(benchmark::State& state) {
    const ShippedList& list = shippedList();
    const std::vector<NamedPosition> positions = benchmarkPositions();
    std::vector<double> micros;
    for (auto _ : state) {
        micros.clear();
        for (const NamedPosition& named : positions) {
            double fastest = 1e18;
            for (int run = 0; run < 20; ++run) {
                const auto start = std::chrono::steady_clock::now();
                const std::vector<Move> moves = bestMoves(named.position.board, named.position.rack,
                                                          list.lexicon, list.values, 1);
                benchmark::DoNotOptimize(moves.data());
                fastest = std::min(fastest, std::chrono::duration<double, std::micro>(
                                                std::chrono::steady_clock::now() - start)
                                                .count());
            }
            micros.push_back(fastest);
        }
    }
    std::sort(micros.begin(), micros.end());
    state.counters["median_us"] = micros[micros.size() / 2];
    state.counters["slowest_us"] = micros.back();
    state.counters["positions"] = static_cast<double>(micros.size());
}

void BM_LexiconBuild(benchmark::State& state) {
    const ShippedList& list = shippedList();
    std::size_t arcs = 0;
    for (auto _ : state) {
        const Lexicon lexicon = buildLexicon(playableWords(list.database));
        arcs = lexicon.graph.arcs().size();
    }
    const std::string file = encodeLexiconFile(list.lexicon, {});
    state.counters["words"] = list.lexicon.graph.wordCount();
    state.counters["anagram_words"] = static_cast<double>(list.lexicon.anagrams.words().size());
    state.counters["arcs"] = static_cast<double>(arcs);
    state.counters["file_bytes"] = static_cast<double>(file.size());
    state.counters["DB1_bytes"] =
        static_cast<double>(std::filesystem::file_size(kRunFolder / "DB1.txt"));
}

// Reading the lexicon file as the program does at start: checked against
// DB1.txt (size and time), read, checksummed and decoded into fresh memory.
void BM_LexiconLoad(benchmark::State& state) {
    shippedList();
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / "lettriner-bench-DB1.lex";
    std::string error;
    if (!writeLexiconFileFor(kRunFolder / "DB1.txt", file, error)) {
        state.SkipWithError(error.c_str());
        return;
    }
    std::size_t arcs = 0;
    for (auto _ : state) {
        const LexiconFileCheck check = readLexiconFile(file, kRunFolder / "DB1.txt");
        arcs = check.lexicon.graph.arcs().size();
        if (check.state != LexiconFileState::Current)
            state.SkipWithError(check.problem.c_str());
    }
    state.counters["arcs"] = static_cast<double>(arcs);
    state.counters["file_bytes"] = static_cast<double>(std::filesystem::file_size(file));
    std::filesystem::remove(file);
}

void registerBenchmarks() {
    for (const NamedPosition& named : benchmarkPositions()) {
        const Position position = named.position;
        benchmark::RegisterBenchmark(
            ("BM_AllMoves/" + named.name).c_str(),
            [position](benchmark::State& state) { allMovesOf(state, position); })
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(
            ("BM_BestMove/" + named.name).c_str(),
            [position](benchmark::State& state) { bestMovesOf(state, position, 1); })
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(
            ("BM_Best20/" + named.name).c_str(),
            [position](benchmark::State& state) { bestMovesOf(state, position, 20); })
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("BM_BestMoveSummary", BM_BestMoveSummary)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_LexiconBuild", BM_LexiconBuild)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_LexiconLoad", BM_LexiconLoad)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv) {
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
