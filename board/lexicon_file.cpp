// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon_file.h"

#include "board/content_hash.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

namespace lettriner::board {

namespace {

constexpr std::string_view kMagic = "LTRLEXIC";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeaderSize = 80;
constexpr std::size_t kChecksumAt = 72;

// An arc's first byte: letter * 4 + (last of its node) * 2 + (ends a word),
// plus kNextBit when its child starts right after it.
constexpr unsigned kLastBit = 2;
constexpr unsigned kAcceptsBit = 1;
constexpr unsigned kNextBit = 0x80;
// A child index word below kFarBit is the zigzag distance from the arc to
// its child; otherwise its low 15 bits are the index's high bits, the far
// byte the low 8.
constexpr std::uint32_t kNearLimit = 1u << 14;
constexpr std::uint32_t kFarBit = 0x8000;

void put32(std::string& out, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        out += static_cast<char>((value >> (8 * i)) & 0xFF);
}
void put64(std::string& out, std::uint64_t value) {
    for (int i = 0; i < 8; ++i)
        out += static_cast<char>((value >> (8 * i)) & 0xFF);
}
std::uint32_t get32(const unsigned char* bytes) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value |= std::uint32_t{bytes[i]} << (8 * i);
    return value;
}
std::uint64_t get64(const unsigned char* bytes) {
    return get32(bytes) | (std::uint64_t{get32(bytes + 4)} << 32);
}

std::uint64_t checksumOf(std::string_view file) {
    return contentHash(file.substr(kHeaderSize), contentHash(file.substr(0, kChecksumAt)));
}

// The graph's arcs in three parts: one first byte per arc, a child index
// word per arc whose child is not the next arc, one byte per far index.
// Apart, every arc's first byte sits at a known place, and the other parts
// advance by counts, not by lengths to decode first.
struct ArcParts {
    std::string firstBytes;
    std::string indexWords;
    std::string farBytes;
};

void encodeArc(ArcParts& parts, Arc arc, std::uint32_t index) {
    const std::uint32_t child = arcChild(arc);
    const unsigned next = child != 0 && child == index + 1 ? kNextBit : 0;
    parts.firstBytes += static_cast<char>(next + arcLetter(arc) * 4 +
                                          (arcIsLast(arc) ? kLastBit : 0) +
                                          (arcAccepts(arc) ? kAcceptsBit : 0));
    if (next != 0)
        return;
    const std::int64_t distance = std::int64_t{child} - std::int64_t{index};
    const std::uint64_t zigzag = distance >= 0 ? std::uint64_t(distance) << 1
                                               : (std::uint64_t(-distance) << 1) - 1;
    std::uint32_t word = 0;
    if (child != 0 && zigzag < 2 * kNearLimit) {
        word = static_cast<std::uint32_t>(zigzag);
    } else {
        word = kFarBit | (child >> 8);
        parts.farBytes += static_cast<char>(child & 0xFF);
    }
    parts.indexWords += static_cast<char>(word >> 8);
    parts.indexWords += static_cast<char>(word & 0xFF);
}

// What an arc's first byte says, as the arc holds it (child bits zero),
// with bit 0 set when the child is the next arc and bit 1 for a byte no arc
// starts with (a letter beyond the alphabet).
constexpr std::uint32_t kChildIsNext = 1;
constexpr std::uint32_t kInvalid = 2;

constexpr std::array<std::uint32_t, 256> firstByteTable() {
    std::array<std::uint32_t, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const unsigned letter = (byte & 0x7F) / 4;
        table[byte] = letter > kLetterCount
                          ? kInvalid
                          : makeArc(static_cast<Letter>(letter), (byte & kAcceptsBit) != 0,
                                    (byte & kLastBit) != 0, 0) |
                                ((byte & kNextBit) != 0 ? kChildIsNext : 0);
    }
    return table;
}
constexpr std::array<std::uint32_t, 256> kFirstBytes = firstByteTable();

// Decodes arcs 2.. from the three parts and checks on the way what makes the
// graph safe to walk (validateWordGraph): children inside the graph, letters
// in the alphabet, the last arc ending its node; and that the parts hold
// exactly the words and bytes the first bytes ask for. Reads past a part's
// end are clamped to its last element (the counts then fail). No branch
// depends on the data: which form an arc takes is as good as random, and a
// mispredicted branch costs more than computing every form.
bool decodeArcs(const unsigned char* firstBytes, const unsigned char* indexWords,
                std::uint32_t indexCount, const unsigned char* farBytes, std::uint32_t farCount,
                Arc* arcs, std::uint32_t arcCount) {
    static constexpr unsigned char kNothing[2] = {0, 0};
    if (indexCount == 0)
        indexWords = kNothing;
    if (farCount == 0)
        farBytes = kNothing;
    const std::uint32_t lastIndex = indexCount == 0 ? 0 : indexCount - 1;
    const std::uint32_t lastFar = farCount == 0 ? 0 : farCount - 1;
    std::uint32_t indexAt = 0;
    std::uint32_t farAt = 0;
    std::uint32_t flags = 0;
    std::uint32_t highestChild = 0;
    Arc arc = 0;
    for (std::uint32_t i = 2; i < arcCount; ++i) {
        const std::uint32_t first = kFirstBytes[firstBytes[i - 2]];
        const std::uint32_t wordAt = indexAt < lastIndex ? indexAt : lastIndex;
        const std::uint32_t word =
            (std::uint32_t{indexWords[2 * wordAt]} << 8) | indexWords[2 * wordAt + 1];
        const std::uint32_t low = farBytes[farAt < lastFar ? farAt : lastFar];
        const std::uint32_t nextMask = 0u - (first & kChildIsNext);
        const std::uint32_t far = (word >> 15) & ~nextMask;
        const std::uint32_t farMask = 0u - far;
        const std::uint32_t farChild = ((word & 0x7FFFu) << 8) | low;
        const std::uint32_t nearChild = i + ((word >> 1) ^ (0u - (word & 1u)));
        const std::uint32_t indexChild = (farChild & farMask) | (nearChild & ~farMask);
        const std::uint32_t child = ((i + 1) & nextMask) | (indexChild & ~nextMask);
        indexAt += 1u - (first & kChildIsNext);
        farAt += far;
        flags |= first;
        highestChild = child > highestChild ? child : highestChild;
        arc = (first & ~(kChildIsNext | kInvalid)) | child;
        arcs[i] = arc;
    }
    const bool lastEnds = arcCount == 2 || arcIsLast(arc);
    return (flags & kInvalid) == 0 && highestChild < arcCount && lastEnds &&
           indexAt == indexCount && farAt == farCount;
}

} // namespace

SourceStamp stampOfBytes(std::string_view bytes, std::int64_t modified) {
    return {bytes.size(), modified, contentHash(bytes)};
}

std::optional<std::int64_t> modificationTime(const std::filesystem::path& path) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(path, error);
    if (error)
        return std::nullopt;
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count();
}

std::string encodeLexiconFile(const Lexicon& lexicon, const SourceStamp& stamp) {
    // An empty graph is stored as its two roots pointing nowhere.
    static constexpr Arc kNoRoots[2] = {0, 0};
    const std::span<const Arc> arcs =
        lexicon.graph.arcs().size() >= 2 ? lexicon.graph.arcs() : std::span<const Arc>(kNoRoots);
    if (arcs.size() > kMostFileArcs)
        return {};
    ArcParts parts;
    for (std::size_t i = 2; i < arcs.size(); ++i)
        encodeArc(parts, arcs[i], static_cast<std::uint32_t>(i));
    const std::span<const PackedLetters> words = lexicon.anagrams.words();
    const std::span<const std::uint32_t> slots = lexicon.anagrams.slots();
    std::string out;
    out.reserve(kHeaderSize + parts.firstBytes.size() + parts.indexWords.size() +
                parts.farBytes.size() + 8 * words.size() + 4 * slots.size());
    out += kMagic;
    put32(out, kVersion);
    put32(out, kHeaderSize);
    put64(out, stamp.size);
    put64(out, static_cast<std::uint64_t>(stamp.modified));
    put64(out, stamp.hash);
    put32(out, lexicon.graph.wordCount());
    put32(out, static_cast<std::uint32_t>(arcs.size()));
    put32(out, arcs[kDawgRootArc]);
    put32(out, arcs[kGaddagRootArc]);
    put32(out, static_cast<std::uint32_t>(parts.indexWords.size() / 2));
    put32(out, static_cast<std::uint32_t>(parts.farBytes.size()));
    put32(out, static_cast<std::uint32_t>(words.size()));
    put32(out, static_cast<std::uint32_t>(slots.size()));
    put64(out, 0); // the checksum, filled in below
    out += parts.firstBytes;
    out += parts.indexWords;
    out += parts.farBytes;
    for (const PackedLetters word : words)
        put64(out, word);
    for (const std::uint32_t slot : slots)
        put32(out, slot);
    const std::uint64_t checksum = checksumOf(out);
    for (std::size_t i = 0; i < 8; ++i)
        out[kChecksumAt + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
    return out;
}

DecodedLexicon decodeLexiconFile(std::string_view bytes) {
    DecodedLexicon result;
    const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
    if (bytes.size() < kHeaderSize || bytes.substr(0, kMagic.size()) != kMagic) {
        result.error = bytes.empty() ? "the file is empty" : "the file is not a lexicon file";
        return result;
    }
    if (get32(in + 8) != kVersion || get32(in + 12) != kHeaderSize) {
        result.error = "the file is a lexicon file of another version";
        return result;
    }
    if (get64(in + kChecksumAt) != checksumOf(bytes)) {
        result.error = "the file is damaged or truncated (its checksum does not match)";
        return result;
    }
    result.stamp = {get64(in + 16), static_cast<std::int64_t>(get64(in + 24)), get64(in + 32)};
    const std::uint32_t wordCount = get32(in + 40);
    const std::uint32_t arcCount = get32(in + 44);
    const std::uint32_t indexCount = get32(in + 56);
    const std::uint32_t farCount = get32(in + 60);
    const std::uint32_t anagramWords = get32(in + 64);
    const std::uint32_t anagramSlots = get32(in + 68);
    if (arcCount < 2 || arcCount > kMostFileArcs) {
        result.error = "the file's arc count is impossible";
        return result;
    }
    // The parts' sizes must add up to the bytes there are, before any memory
    // is taken for them.
    const std::uint64_t expected = kHeaderSize + std::uint64_t{arcCount - 2} +
                                   2 * std::uint64_t{indexCount} + farCount +
                                   8 * std::uint64_t{anagramWords} + 4 * std::uint64_t{anagramSlots};
    if (expected != bytes.size()) {
        result.error = expected > bytes.size() ? "the file is truncated"
                                               : "the file is longer than its parts";
        return result;
    }
    const std::uint32_t dawgRoot = get32(in + 48);
    const std::uint32_t gaddagRoot = get32(in + 52);
    if (dawgRoot >= arcCount || gaddagRoot >= arcCount) {
        result.error = "the file's roots point outside the graph";
        return result;
    }
    std::unique_ptr<Arc[]> arcs(new Arc[arcCount]);
    arcs[kDawgRootArc] = dawgRoot;
    arcs[kGaddagRootArc] = gaddagRoot;
    const unsigned char* firstBytes = in + kHeaderSize;
    const unsigned char* indexWords = firstBytes + (arcCount - 2);
    const unsigned char* farBytes = indexWords + 2 * std::size_t{indexCount};
    if (!decodeArcs(firstBytes, indexWords, indexCount, farBytes, farCount, arcs.get(),
                    arcCount)) {
        result.error = "the file's graph is damaged";
        return result;
    }
    const unsigned char* anagramPart = farBytes + farCount;
    std::vector<PackedLetters> words(anagramWords);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = get64(anagramPart + 8 * i);
    std::vector<std::uint32_t> slots(anagramSlots);
    for (std::size_t i = 0; i < slots.size(); ++i)
        slots[i] = get32(anagramPart + 8 * std::size_t{anagramWords} + 4 * i);
    if (std::string problem = AnagramIndex::validate(words, slots); !problem.empty()) {
        result.error = "the file is damaged: " + problem;
        return result;
    }
    result.lexicon.graph = WordGraph(std::move(arcs), arcCount, wordCount);
    if (!words.empty())
        result.lexicon.anagrams = AnagramIndex(std::move(words), std::move(slots));
    return result;
}

bool writeLexiconFile(const std::filesystem::path& path, const Lexicon& lexicon,
                      const SourceStamp& stamp, std::string& error) {
    const std::string bytes = encodeLexiconFile(lexicon, stamp);
    if (bytes.empty()) {
        error = "the word graph is too large for a lexicon file";
        return false;
    }
    std::filesystem::path temporary = path;
    temporary += ".new";
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    if (file == nullptr) {
        error = "cannot create " + temporary.string() + ": " + std::strerror(errno);
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const bool flushed = std::fflush(file) == 0;
    const bool closed = std::fclose(file) == 0;
    if (!written || !flushed || !closed) {
        error = "cannot write " + temporary.string() + ": " + std::strerror(errno);
        std::remove(temporary.c_str());
        return false;
    }
    std::error_code renameError;
    std::filesystem::rename(temporary, path, renameError);
    if (renameError) {
        error = "cannot replace " + path.string() + ": " + renameError.message();
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

} // namespace lettriner::board
