// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word graph as a file beside DB1.txt, so the program need not build it
// at every start. The file carries a stamp of the word list it was built
// from (size, modification time, content hash), so a stale file is noticed,
// and a checksum of itself, so a damaged one is. It is read into memory
// with plain reads, never mapped: a mapped file that shrinks or vanishes
// under the program would kill it.
//
// Layout: a 72-byte header, little-endian (magic "LTRGRAPH", version, header
// size, the stamp, the word and arc counts, the two roots, the number of far
// indices, a reserved word, the checksum), then the arcs from index 2 on in
// three parts: one byte per arc (its letter, whether it is its node's last,
// whether it ends a word); a 16-bit word per arc, the distance to its child
// when near (the graph's layout puts most children close after their
// parent), else a flag and the high bits of the child's index; one byte per
// such far index (its low bits). About 3.3 bytes per arc instead of the 4 in
// memory, less than the word list itself, and every arc's bytes at a known
// place, so the program decodes a graph faster than it reads the list.

#include "board/word_graph.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lettriner::board {

// What a graph was built from: the word list file's size, modification time
// (nanoseconds of the file clock) and contentHash of its bytes.
struct SourceStamp {
    std::uint64_t size = 0;
    std::int64_t modified = 0;
    std::uint64_t hash = 0;
    friend bool operator==(const SourceStamp&, const SourceStamp&) = default;
};

// The stamp of bytes read from a file modified at `modified`.
[[nodiscard]] SourceStamp stampOfBytes(std::string_view bytes, std::int64_t modified);
// The file's modification time as a stamp holds it; nullopt when it has none
// (missing, unreadable).
[[nodiscard]] std::optional<std::int64_t> modificationTime(const std::filesystem::path& path);

// The most arcs a file holds (three-byte child indices).
inline constexpr std::uint32_t kMostFileArcs = std::uint32_t{1} << 23;

// The file's bytes; empty when the graph has more than kMostFileArcs arcs.
[[nodiscard]] std::string encodeWordGraphFile(const WordGraph& graph, const SourceStamp& stamp);

struct DecodedWordGraph {
    WordGraph graph;
    SourceStamp stamp;
    std::string error; // empty when the bytes were a whole, undamaged graph file
};
// Any bytes: a file that is not a graph file, damaged, truncated or too long
// gives an error saying which, and an empty graph; nothing is read outside
// `bytes` and the graph that comes back passed validateWordGraph.
[[nodiscard]] DecodedWordGraph decodeWordGraphFile(std::string_view bytes);

// Writes the file whole: to PATH.new, then renamed over PATH, so a reader
// never sees half a file. False with `error` set on any failure (the old file
// stays as it was).
bool writeWordGraphFile(const std::filesystem::path& path, const WordGraph& graph,
                        const SourceStamp& stamp, std::string& error);

} // namespace lettriner::board
