// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The lexicon as a file beside DB1.txt, so the program need not build it at
// every start. The file carries a stamp of the word list it was built from
// (size, modification time, content hash), so a stale file is noticed, and
// a checksum of itself, so a damaged one is. It is read into memory with
// plain reads, never mapped: a mapped file that shrinks or vanishes under
// the program would kill it.
//
// Layout: an 80-byte header, little-endian (magic "LTRLEXIC", version,
// header size, the stamp, the word and arc counts, the graph's two roots,
// the sizes of the parts below, the checksum of the header and of each part
// on its own), then the graph's arcs from
// index 2 on in three parts: one byte per arc (its letter, whether it is its
// node's last, whether it ends a word, and whether its child is simply the
// arc after it, which the graph's layout makes common); a 16-bit word per
// other arc, the distance to a nearby child or a flag and the high bits of a
// far child's index; one byte per far index (its low bits). Then the
// anagram index: its words, 8 bytes each, and its table, 4 bytes a slot.
// About 2.7 bytes per arc instead of the 4 in memory: the whole file stays
// well below the size of the word list.

#include "board/lexicon.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lettriner::board {

// What a lexicon was built from: the word list file's size, modification
// time (nanoseconds of the file clock) and contentHash of its bytes.
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

// The most arcs a file holds (23-bit far indices).
inline constexpr std::uint32_t kMostFileArcs = std::uint32_t{1} << 23;

// The file's bytes; empty when the graph has more than kMostFileArcs arcs.
[[nodiscard]] std::string encodeLexiconFile(const Lexicon& lexicon, const SourceStamp& stamp);

struct DecodedLexicon {
    Lexicon lexicon;
    SourceStamp stamp;
    std::string error; // empty when the bytes were a whole, undamaged lexicon file
};
// Any bytes: a file that is not a lexicon file, damaged, truncated or too
// long gives an error saying which and an empty lexicon; nothing is read
// outside `bytes`, and what comes back passed validateWordGraph and
// AnagramIndex::validate.
[[nodiscard]] DecodedLexicon decodeLexiconFile(std::string_view bytes);

// The same, reading the file at `path` as it decodes: its parts stream
// through small buffers, so only the lexicon itself takes memory. A file
// that cannot be opened or read gives "the file cannot be read".
[[nodiscard]] DecodedLexicon readLexiconFileAt(const std::filesystem::path& path);

// The checksum a lexicon file with these bytes must carry (0 when the
// header is not one): what encodeLexiconFile writes, and what tests and
// fuzzers use to forge files that get past it.
[[nodiscard]] std::uint64_t lexiconFileChecksum(std::string_view bytes);

// Writes the file whole: to PATH.new, then renamed over PATH, so a reader
// never sees half a file. False with `error` set on any failure (the old file
// stays as it was).
bool writeLexiconFile(const std::filesystem::path& path, const Lexicon& lexicon,
                      const SourceStamp& stamp, std::string& error);

} // namespace lettriner::board
