// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon_file.h"

#include "board/content_hash.h"

#include <array>
#include <bit>
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
// A child index word, little-endian: with its lowest bit clear, the rest is
// the signed distance from the arc to its child; with it set, the rest is
// the child index's high 15 bits, the far byte its low 8.
constexpr std::int64_t kNearLimit = std::int64_t{1} << 14;
constexpr std::uint32_t kFarFlag = 1;

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
    parts.firstBytes +=
        static_cast<char>(next + arcLetter(arc) * 4 + (arcIsLast(arc) ? kLastBit : 0) +
                          (arcAccepts(arc) ? kAcceptsBit : 0));
    if (next != 0)
        return;
    const std::int64_t distance = std::int64_t{child} - std::int64_t{index};
    std::uint32_t word = 0;
    if (child != 0 && distance >= -kNearLimit && distance < kNearLimit) {
        word = static_cast<std::uint32_t>(distance * 2) & 0xFFFFu;
    } else {
        word = ((child >> 8) << 1) | kFarFlag;
        parts.farBytes += static_cast<char>(child & 0xFF);
    }
    parts.indexWords += static_cast<char>(word & 0xFF);
    parts.indexWords += static_cast<char>(word >> 8);
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

// How many first bytes are valid and how many of them leave the child to an
// index word: counted before decoding, so the decoding loop can trust the
// parts' sizes. Loops without branches on the data, which compilers
// vectorise.
struct FirstByteCounts {
    std::uint32_t invalid = 0;
    std::uint32_t indexed = 0;
};
FirstByteCounts countFirstBytes(const unsigned char* firstBytes, std::size_t count) {
    FirstByteCounts counts;
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned byte = firstBytes[i];
        counts.invalid += (byte & 0x7Fu) >= 4 * (kLetterCount + 1) ? 1u : 0u;
        counts.indexed += (byte & kNextBit) == 0 ? 1u : 0u;
    }
    return counts;
}
std::uint32_t countFar(const unsigned char* indexWords, std::size_t count) {
    std::uint32_t far = 0;
    for (std::size_t i = 0; i < count; ++i)
        far += indexWords[2 * i] & kFarFlag;
    return far;
}

// Decodes arcs 2.. from the three parts, whose sizes countFirstBytes and
// countFar have confirmed, and returns the highest child index met, which
// must lie inside the graph. No branch depends on the data: which form an
// arc takes is as good as random, and a mispredicted branch costs more than
// computing every form.
[[gnu::noinline]] std::uint32_t decodeArcs(const unsigned char* firstBytes,
                                           const unsigned char* indexWords,
                                           const unsigned char* farBytes, Arc* arcs,
                                           std::uint32_t arcCount) {
    std::uint32_t highestChild = 0;
    for (std::uint32_t i = 2; i < arcCount; ++i) {
        const std::uint32_t first = kFirstBytes[firstBytes[i - 2]];
        const std::uint32_t indexed = (first & kChildIsNext) ^ 1u;
        const std::uint32_t word = indexWords[0] | (std::uint32_t{indexWords[1]} << 8);
        const std::uint32_t far = word & indexed & kFarFlag;
        const std::uint32_t nearChild =
            i + static_cast<std::uint32_t>(static_cast<std::int16_t>(word) >> 1);
        const std::uint32_t farChild = ((word >> 1) << 8) | *farBytes;
        const std::uint32_t farMask = 0u - far;
        const std::uint32_t indexMask = 0u - indexed;
        const std::uint32_t indexChild = (farChild & farMask) | (nearChild & ~farMask);
        const std::uint32_t child = (indexChild & indexMask) | ((i + 1) & ~indexMask);
        // Past a part's last element the pointers stay put: the counts said
        // how many elements the arcs take.
        indexWords += 2 * indexed;
        farBytes += far;
        highestChild = child > highestChild ? child : highestChild;
        arcs[i] = (first & ~(kChildIsNext | kInvalid)) | child;
    }
    return highestChild;
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
    const std::uint64_t expected =
        kHeaderSize + std::uint64_t{arcCount - 2} + 2 * std::uint64_t{indexCount} + farCount +
        8 * std::uint64_t{anagramWords} + 4 * std::uint64_t{anagramSlots};
    if (expected != bytes.size()) {
        result.error =
            expected > bytes.size() ? "the file is truncated" : "the file is longer than its parts";
        return result;
    }
    const std::uint32_t dawgRoot = get32(in + 48);
    const std::uint32_t gaddagRoot = get32(in + 52);
    if (dawgRoot >= arcCount || gaddagRoot >= arcCount) {
        result.error = "the file's roots point outside the graph";
        return result;
    }
    // The decoder reads an index word and a far byte for every arc, also
    // past the last it uses: three bytes must follow the far part. They are
    // the anagram index's; without one, a copy of the file brings padding.
    const std::size_t farEnd =
        kHeaderSize + (arcCount - 2) + 2 * std::size_t{indexCount} + farCount;
    std::string padded;
    if (bytes.size() - farEnd < 3) {
        padded.reserve(bytes.size() + 3);
        padded.append(bytes);
        padded.append(3, '\0');
        in = reinterpret_cast<const unsigned char*>(padded.data());
    }
    const unsigned char* firstBytes = in + kHeaderSize;
    const unsigned char* indexWords = firstBytes + (arcCount - 2);
    const unsigned char* farBytes = indexWords + 2 * std::size_t{indexCount};
    const FirstByteCounts counts = countFirstBytes(firstBytes, arcCount - 2);
    if (counts.invalid != 0 || counts.indexed != indexCount ||
        countFar(indexWords, indexCount) != farCount) {
        result.error = "the file's graph is damaged";
        return result;
    }
    std::unique_ptr<Arc[]> arcs(new Arc[arcCount]);
    arcs[kDawgRootArc] = dawgRoot;
    arcs[kGaddagRootArc] = gaddagRoot;
    const std::uint32_t highestChild =
        decodeArcs(firstBytes, indexWords, farBytes, arcs.get(), arcCount);
    if (highestChild >= arcCount || (arcCount > 2 && !arcIsLast(arcs[arcCount - 1]))) {
        result.error = "the file's graph is damaged";
        return result;
    }
    const unsigned char* anagramPart = farBytes + farCount;
    std::vector<PackedLetters> words(anagramWords);
    std::vector<std::uint32_t> slots(anagramSlots);
    const unsigned char* slotPart = anagramPart + 8 * std::size_t{anagramWords};
    if constexpr (std::endian::native == std::endian::little) {
        // An empty vector's data() may be null, which memcpy must not get.
        if (!words.empty())
            std::memcpy(words.data(), anagramPart, 8 * words.size());
        if (!slots.empty())
            std::memcpy(slots.data(), slotPart, 4 * slots.size());
    } else {
        for (std::size_t i = 0; i < words.size(); ++i)
            words[i] = get64(anagramPart + 8 * i);
        for (std::size_t i = 0; i < slots.size(); ++i)
            slots[i] = get32(slotPart + 4 * i);
    }
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
