// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a lexicon file: refused with a message, or loaded; a loaded
// lexicon passes its validations, encodes to a file that decodes to the same
// arcs, and every walk over it (reading words, cross-checks, the move
// generator, the anagram index) stays inside its arrays, which the
// sanitizers watch.

#include "board/lexicon_file.h"
#include "board/move_generator.h"
#include "board/position_text.h"
#include "fuzz_input.h"

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace lettriner;
using namespace lettriner::board;

// A bounded depth-first read of the graph from `node`: every arc read.
void walk(const WordGraph& graph, std::uint32_t node, int depth, long& budget) {
    if (node == 0 || depth > 16 || budget <= 0)
        return;
    for (std::uint32_t i = node; budget-- > 0; ++i) {
        const Arc arc = graph.arcs()[i];
        walk(graph, arcChild(arc), depth + 1, budget);
        if (arcIsLast(arc))
            break;
    }
}

// The bytes with the checksum the format asks for (8 bytes at 72): a forged
// file, so the fuzzer reaches the checks beyond it.
std::string withChecksum(std::string_view bytes) {
    std::string file(bytes);
    if (file.size() < 80)
        return file;
    const std::uint64_t checksum = lexiconFileChecksum(file);
    for (std::size_t i = 0; i < 8; ++i)
        file[72 + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
    return file;
}

// The file reader, streaming the parts from a file, must find what the
// in-memory decoder finds.
void checkFileReader(std::string_view bytes, const DecodedLexicon& decoded) {
    // One file for the run, removed when the fuzzer exits.
    struct RunFile {
        std::filesystem::path path =
            std::filesystem::temp_directory_path() /
            ("lettriner-fuzz-lexicon-" + std::to_string(std::random_device{}()));
        ~RunFile() {
            std::error_code ignored;
            std::filesystem::remove(path, ignored);
        }
    };
    static const RunFile runFile;
    const std::filesystem::path& path = runFile.path;
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !written)
        return;
    const DecodedLexicon read = readLexiconFileAt(path);
    if (read.error != decoded.error ||
        !std::equal(read.lexicon.graph.arcs().begin(), read.lexicon.graph.arcs().end(),
                    decoded.lexicon.graph.arcs().begin(), decoded.lexicon.graph.arcs().end()))
        fuzz::fail("the file reader and the in-memory decoder disagree");
}

void check(std::string_view bytes) {
    const DecodedLexicon decoded = decodeLexiconFile(bytes);
    // Files are slow: one input in eight (the first of a run among them,
    // so a saved input replays its check).
    static unsigned inputs = 0;
    if (inputs++ % 8 == 0)
        checkFileReader(bytes, decoded);
    if (!decoded.error.empty()) {
        if (!decoded.lexicon.empty() || decoded.error.find('\n') != std::string::npos)
            fuzz::fail("a refused file gives a lexicon or a message of several lines");
        return;
    }
    const Lexicon& lexicon = decoded.lexicon;
    if (!validateWordGraph(lexicon.graph.arcs()).empty())
        fuzz::fail("a loaded graph fails its validation");
    if (!AnagramIndex::validate(lexicon.anagrams.words(), lexicon.anagrams.table()).empty())
        fuzz::fail("a loaded anagram index fails its validation");
    const DecodedLexicon again = decodeLexiconFile(encodeLexiconFile(lexicon, decoded.stamp));
    if (!again.error.empty() ||
        !std::equal(again.lexicon.graph.arcs().begin(), again.lexicon.graph.arcs().end(),
                    lexicon.graph.arcs().begin(), lexicon.graph.arcs().end()))
        fuzz::fail("a loaded lexicon does not encode to the same arcs");

    long budget = 200000;
    walk(lexicon.graph, lexicon.graph.dawgRoot(), 0, budget);
    walk(lexicon.graph, lexicon.graph.gaddagRoot(), 0, budget);
    (void)lexicon.graph.contains(std::vector<Letter>{8, 1, 21, 19});
    for (const PackedLetters word : lexicon.anagrams.words())
        (void)lexicon.anagrams.wordsOf(sortedKey(word));

    // Moves on an empty board and on a small position, with a rack of
    // distinct letters so that a forged graph full of loops stays quick.
    static const Position position =
        readCgp("15/15/15/15/15/15/7A7/5HAUS5/7E7/7R7/15/15/15/15/15 ENRSTIL/").position;
    CountingRecorder all;
    generateMoves(Board{}, position.rack, lexicon, TileValues{}, {}, all);
    generateMoves(position.board, position.rack, lexicon, TileValues{}, {}, all);
    (void)bestMoves(position.board, position.rack, lexicon, TileValues{}, 3);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    check(bytes);
    check(withChecksum(bytes));
    return 0;
}
