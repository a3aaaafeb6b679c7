// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/word_graph_file.h"

#include "board/content_hash.h"

#include <array>
#include <memory>
#include <cstdio>
#include <cstring>
#include <system_error>

namespace lettriner::board {

namespace {

constexpr std::string_view kMagic = "LTRGRAPH";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeaderSize = 72;
constexpr std::size_t kChecksumAt = 64;

// An arc's first byte: letter * 4 + (last of its node) * 2 + (ends a word).
constexpr unsigned kLastBit = 2;
constexpr unsigned kAcceptsBit = 1;
// A child index word below kFarBit is the zigzag distance from the arc to
// its child (the layout puts most children close after their parent);
// otherwise its low 15 bits are the index's high bits, the far byte the low 8.
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
std::uint32_t get32(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
    return value;
}
std::uint64_t get64(std::string_view bytes, std::size_t at) {
    return get32(bytes, at) | (std::uint64_t{get32(bytes, at + 4)} << 32);
}

std::uint64_t checksumOf(std::string_view file) {
    return contentHash(file.substr(kHeaderSize), contentHash(file.substr(0, kChecksumAt)));
}

// The three parts of the arcs: one first byte per arc, one child index word
// per arc, one byte per far index. Each arc's first byte and word sit at
// known places, so decoding an arc need not wait for the one before.
struct ArcParts {
    std::string firstBytes;
    std::string indexWords;
    std::string farBytes;
};

void encodeArc(ArcParts& parts, Arc arc, std::uint32_t index) {
    parts.firstBytes += static_cast<char>(arcLetter(arc) * 4 + (arcIsLast(arc) ? kLastBit : 0) +
                                          (arcAccepts(arc) ? kAcceptsBit : 0));
    const std::uint32_t child = arcChild(arc);
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

// What an arc's first byte says, as the arc holds it (child bits zero); bit 0
// set for a byte no arc starts with (a letter beyond the alphabet).
constexpr std::uint32_t kInvalid = 1;

constexpr std::array<std::uint32_t, 256> firstByteTable() {
    std::array<std::uint32_t, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const unsigned letter = byte / 4;
        table[byte] = letter > kLetterCount
                          ? kInvalid
                          : makeArc(static_cast<Letter>(letter), (byte & kAcceptsBit) != 0,
                                    (byte & kLastBit) != 0, 0);
    }
    return table;
}
constexpr std::array<std::uint32_t, 256> kFirstBytes = firstByteTable();

// Decodes arcs 2.. from the three parts and checks on the way what makes the
// graph safe to walk (validateWordGraph): children inside the graph, letters
// in the alphabet, the last arc ending its node; and that the far part holds
// exactly the far indices the words ask for. Reads past its end are clamped
// to its last byte (the count then fails).
bool decodeArcs(const unsigned char* firstBytes, const unsigned char* indexWords,
                const unsigned char* farBytes, std::uint32_t farCount, Arc* arcs,
                std::uint32_t arcCount) {
    static constexpr unsigned char kNothing[1] = {0};
    if (farCount == 0)
        farBytes = kNothing;
    const std::uint32_t lastFar = farCount == 0 ? 0 : farCount - 1;
    std::uint32_t farAt = 0;
    std::uint32_t flags = 0;
    std::uint32_t highestChild = 0;
    Arc arc = 0;
    for (std::uint32_t i = 2; i < arcCount; ++i) {
        const std::size_t j = i - 2;
        const std::uint32_t first = kFirstBytes[firstBytes[j]];
        const std::uint32_t word =
            (std::uint32_t{indexWords[2 * j]} << 8) | indexWords[2 * j + 1];
        const std::uint32_t low = farBytes[farAt < lastFar ? farAt : lastFar];
        const std::uint32_t far = word >> 15;
        // A mask instead of a condition: near and far come as good as at
        // random, and a mispredicted branch costs more than computing both.
        const std::uint32_t farMask = 0u - far;
        const std::uint32_t farChild = ((word & 0x7FFFu) << 8) | low;
        const std::uint32_t nearChild = i + ((word >> 1) ^ (0u - (word & 1u)));
        const std::uint32_t child = (farChild & farMask) | (nearChild & ~farMask);
        farAt += far;
        flags |= first;
        highestChild = child > highestChild ? child : highestChild;
        arc = first | child;
        arcs[i] = arc;
    }
    const bool lastEnds = arcCount == 2 || arcIsLast(arc);
    return (flags & kInvalid) == 0 && highestChild < arcCount && lastEnds && farAt == farCount;
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

std::string encodeWordGraphFile(const WordGraph& graph, const SourceStamp& stamp) {
    // An empty graph is stored as its two roots pointing nowhere.
    static constexpr Arc kNoRoots[2] = {0, 0};
    const std::span<const Arc> arcs = graph.arcs().size() >= 2 ? graph.arcs() : kNoRoots;
    if (arcs.size() > kMostFileArcs)
        return {};
    ArcParts parts;
    for (std::size_t i = 2; i < arcs.size(); ++i)
        encodeArc(parts, arcs[i], static_cast<std::uint32_t>(i));
    std::string out;
    out.reserve(kHeaderSize + parts.firstBytes.size() + parts.indexWords.size() +
                parts.farBytes.size());
    out += kMagic;
    put32(out, kVersion);
    put32(out, kHeaderSize);
    put64(out, stamp.size);
    put64(out, static_cast<std::uint64_t>(stamp.modified));
    put64(out, stamp.hash);
    put32(out, graph.wordCount());
    put32(out, static_cast<std::uint32_t>(arcs.size()));
    put32(out, arcs[kDawgRootArc]);
    put32(out, arcs[kGaddagRootArc]);
    put32(out, static_cast<std::uint32_t>(parts.farBytes.size()));
    put32(out, 0); // reserved
    put64(out, 0); // the checksum, filled in below
    out += parts.firstBytes;
    out += parts.indexWords;
    out += parts.farBytes;
    const std::uint64_t checksum = checksumOf(out);
    for (std::size_t i = 0; i < 8; ++i)
        out[kChecksumAt + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
    return out;
}

DecodedWordGraph decodeWordGraphFile(std::string_view bytes) {
    DecodedWordGraph result;
    if (bytes.size() < kHeaderSize || bytes.substr(0, kMagic.size()) != kMagic) {
        result.error = bytes.empty() ? "the file is empty" : "the file is not a word graph file";
        return result;
    }
    if (get32(bytes, 8) != kVersion || get32(bytes, 12) != kHeaderSize) {
        result.error = "the file is a word graph file of another version";
        return result;
    }
    if (get64(bytes, kChecksumAt) != checksumOf(bytes)) {
        result.error = "the file is damaged or truncated (its checksum does not match)";
        return result;
    }
    result.stamp = {get64(bytes, 16), static_cast<std::int64_t>(get64(bytes, 24)), get64(bytes, 32)};
    const std::uint32_t wordCount = get32(bytes, 40);
    const std::uint32_t arcCount = get32(bytes, 44);
    if (arcCount < 2 || arcCount > kMostFileArcs) {
        result.error = "the file's arc count is impossible";
        return result;
    }
    const std::uint32_t farCount = get32(bytes, 56);
    // The parts' sizes must add up to the bytes there are, before any memory
    // is taken for the arcs.
    const std::uint64_t expected = kHeaderSize + 3 * std::uint64_t{arcCount - 2} + farCount;
    if (expected != bytes.size() || get32(bytes, 60) != 0) {
        result.error = expected > bytes.size() ? "the file is truncated"
                                               : "the file is longer than its graph";
        return result;
    }
    std::unique_ptr<Arc[]> arcs(new Arc[arcCount]);
    arcs[kDawgRootArc] = get32(bytes, 48);
    arcs[kGaddagRootArc] = get32(bytes, 52);
    const auto* firstBytes = reinterpret_cast<const unsigned char*>(bytes.data()) + kHeaderSize;
    const unsigned char* indexWords = firstBytes + (arcCount - 2);
    const unsigned char* farBytes = indexWords + 2 * std::size_t{arcCount - 2};
    if (!decodeArcs(firstBytes, indexWords, farBytes, farCount, arcs.get(), arcCount)) {
        result.error = "the file's arcs are damaged";
        return result;
    }
    if (arcs[kDawgRootArc] >= arcCount || arcs[kGaddagRootArc] >= arcCount) {
        result.error = "the file's roots point outside the graph";
        return result;
    }
    result.graph = WordGraph(std::move(arcs), arcCount, wordCount);
    return result;
}

bool writeWordGraphFile(const std::filesystem::path& path, const WordGraph& graph,
                        const SourceStamp& stamp, std::string& error) {
    const std::string bytes = encodeWordGraphFile(graph, stamp);
    if (bytes.empty()) {
        error = "the word graph is too large for a file";
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
