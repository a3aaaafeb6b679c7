// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon_file.h"

#include "board/content_hash.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <chrono>
#include <climits>
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
// Decodes arcs first..last-1 from their parts (whose sizes countFirstBytes
// and countFar have confirmed, with a few bytes of padding after each) and
// returns the highest child index met. No branch depends on the data: which
// form an arc takes is as good as random, and a mispredicted branch costs
// more than computing every form.
std::uint32_t decodeArcs(const unsigned char* firstBytes, const unsigned char* indexWords,
                         const unsigned char* farBytes, Arc* arcs, std::uint32_t first,
                         std::uint32_t last) {
    std::uint32_t highestChild = 0;
    for (std::uint32_t i = first; i < last; ++i) {
        const std::uint32_t bits = kFirstBytes[*firstBytes++];
        const std::uint32_t indexed = (bits & kChildIsNext) ^ 1u;
        const std::uint32_t word = indexWords[0] | (std::uint32_t{indexWords[1]} << 8);
        const std::uint32_t far = word & indexed & kFarFlag;
        const std::uint32_t nearChild =
            i + static_cast<std::uint32_t>(static_cast<std::int16_t>(word) >> 1);
        const std::uint32_t farChild = ((word >> 1) << 8) | *farBytes;
        const std::uint32_t farMask = 0u - far;
        const std::uint32_t indexMask = 0u - indexed;
        const std::uint32_t indexChild = (farChild & farMask) | (nearChild & ~farMask);
        const std::uint32_t child = (indexChild & indexMask) | ((i + 1) & ~indexMask);
        // Past a part's last element the pointers stay on the padding: the
        // counts said how many elements the arcs take.
        indexWords += 2 * indexed;
        farBytes += far;
        highestChild = child > highestChild ? child : highestChild;
        arcs[i] = (bits & ~(kChildIsNext | kInvalid)) | child;
    }
    return highestChild;
}

// Where the header says the parts lie, checked against the file's size.
struct Layout {
    SourceStamp stamp;
    std::uint32_t wordCount = 0;
    std::uint32_t arcCount = 0;
    std::uint32_t roots[2] = {0, 0};
    std::uint32_t indexCount = 0;
    std::uint32_t farCount = 0;
    std::uint32_t anagramWords = 0;
    std::uint32_t anagramSlots = 0;
    std::uint64_t checksum = 0;
    // Offsets of the parts and the end.
    std::uint64_t firstBytesAt = 0;
    std::uint64_t indexWordsAt = 0;
    std::uint64_t farBytesAt = 0;
    std::uint64_t anagramAt = 0;
    std::uint64_t end = 0;
};

// The layout of a file of `fileSize` bytes with this header, or an error.
std::string readLayout(const unsigned char* header, std::uint64_t fileSize, Layout& layout) {
    if (fileSize < kHeaderSize ||
        std::string_view(reinterpret_cast<const char*>(header), kMagic.size()) != kMagic)
        return fileSize == 0 ? "the file is empty" : "the file is not a lexicon file";
    if (get32(header + 8) != kVersion || get32(header + 12) != kHeaderSize)
        return "the file is a lexicon file of another version";
    layout.stamp = {get64(header + 16), static_cast<std::int64_t>(get64(header + 24)),
                    get64(header + 32)};
    layout.wordCount = get32(header + 40);
    layout.arcCount = get32(header + 44);
    layout.roots[kDawgRootArc] = get32(header + 48);
    layout.roots[kGaddagRootArc] = get32(header + 52);
    layout.indexCount = get32(header + 56);
    layout.farCount = get32(header + 60);
    layout.anagramWords = get32(header + 64);
    layout.anagramSlots = get32(header + 68);
    layout.checksum = get64(header + kChecksumAt);
    if (layout.arcCount < 2 || layout.arcCount > kMostFileArcs)
        return "the file's arc count is impossible";
    layout.firstBytesAt = kHeaderSize;
    layout.indexWordsAt = layout.firstBytesAt + (layout.arcCount - 2);
    layout.farBytesAt = layout.indexWordsAt + 2 * std::uint64_t{layout.indexCount};
    layout.anagramAt = layout.farBytesAt + layout.farCount;
    layout.end = layout.anagramAt + 8 * std::uint64_t{layout.anagramWords} +
                 4 * std::uint64_t{layout.anagramSlots};
    // The sizes must add up to the bytes there are before any memory is
    // taken for them.
    if (layout.end != fileSize)
        return layout.end > fileSize ? "the file is truncated"
                                     : "the file is longer than its parts";
    if (layout.roots[0] >= layout.arcCount || layout.roots[1] >= layout.arcCount)
        return "the file's roots point outside the graph";
    return {};
}

// The checksum: contentHash of the hashes of the header's first 72 bytes,
// the three parts of the arcs and the anagram index, each 8 bytes
// little-endian. By parts, so that a reader can hash each part as it
// streams in, the three of them side by side.
std::uint64_t combinedChecksum(const std::array<std::uint64_t, 5>& hashes) {
    std::string joined;
    for (const std::uint64_t hash : hashes)
        put64(joined, hash);
    return contentHash(joined);
}

// One part of the file read front to back, from memory or from a file
// positioned at it, its bytes hashed as they come.
class PartReader {
public:
    explicit PartReader(std::string_view part) : memory_(part.data()), left_(part.size()) {}
    PartReader(std::FILE* file, std::uint64_t length) : file_(file), left_(length) {}

    // Fills `out` with the part's next `count` bytes, zeros beyond its end
    // (a damaged count asks for more than there is: overran() then says
    // so). False only when the file cannot be read.
    bool read(unsigned char* out, std::size_t count) {
        const std::size_t available =
            static_cast<std::size_t>(std::min<std::uint64_t>(count, left_));
        overran_ = overran_ || available < count;
        std::fill(out + available, out + count, 0);
        if (available == 0)
            return true;
        if (file_ != nullptr) {
            if (std::fread(out, 1, available, file_) != available)
                return false;
        } else {
            std::memcpy(out, memory_, available);
            memory_ += available;
        }
        hasher_.add({reinterpret_cast<const char*>(out), available});
        left_ -= available;
        return true;
    }
    // Reads what is left of the part (when its counts were wrong), so that
    // the hash covers all of it.
    bool drain() {
        unsigned char scratch[4096];
        while (left_ > 0) {
            if (!read(scratch,
                      static_cast<std::size_t>(std::min<std::uint64_t>(left_, sizeof scratch))))
                return false;
        }
        return true;
    }
    [[nodiscard]] bool overran() const { return overran_; }
    [[nodiscard]] std::uint64_t hash() const { return hasher_.finish(); }

private:
    const char* memory_ = nullptr;
    std::FILE* file_ = nullptr;
    std::uint64_t left_;
    bool overran_ = false;
    ContentHasher hasher_;
};

// Decodes the parts after the header; `headerHash` is the hash of its first
// 72 bytes. Arcs come in batches through small buffers, so the file's bytes
// never sit in memory whole.
DecodedLexicon decodeParts(const Layout& layout, std::uint64_t headerHash, PartReader& firstPart,
                           PartReader& indexPart, PartReader& farPart, PartReader& anagramPart) {
    constexpr std::uint32_t kBatch = 1u << 15;
    constexpr std::size_t kPadding = 4;
    DecodedLexicon result;
    result.stamp = layout.stamp;
    const std::uint32_t arcCount = layout.arcCount;
    std::unique_ptr<Arc[]> arcs(new Arc[arcCount]);
    arcs[kDawgRootArc] = layout.roots[kDawgRootArc];
    arcs[kGaddagRootArc] = layout.roots[kGaddagRootArc];
    const std::size_t batchBytes = std::min<std::size_t>(kBatch, arcCount);
    std::vector<unsigned char> firstBytes(batchBytes + kPadding, 0);
    std::vector<unsigned char> indexWords(2 * batchBytes + kPadding, 0);
    std::vector<unsigned char> farBytes(batchBytes + kPadding, 0);
    std::uint32_t highestChild = 0;
    std::uint64_t indexed = 0;
    std::uint64_t far = 0;
    bool readable = true;
    bool valid = true;
    // A damaged batch is read on (not decoded), so the checksum covers the
    // whole file and says whether the file is damaged or was forged.
    for (std::uint32_t first = 2; first < arcCount && readable; first += kBatch) {
        const std::uint32_t last = std::min(arcCount, first + kBatch);
        const std::size_t count = last - first;
        readable = firstPart.read(firstBytes.data(), count);
        const FirstByteCounts counts = countFirstBytes(firstBytes.data(), count);
        valid = valid && counts.invalid == 0;
        readable = readable && indexPart.read(indexWords.data(), 2 * std::size_t{counts.indexed});
        const std::uint32_t farCount = countFar(indexWords.data(), counts.indexed);
        readable = readable && farPart.read(farBytes.data(), farCount);
        indexWords[2 * std::size_t{counts.indexed}] = 0;
        indexWords[2 * std::size_t{counts.indexed} + 1] = 0;
        farBytes[farCount] = 0;
        if (readable && valid) {
            highestChild =
                std::max(highestChild, decodeArcs(firstBytes.data(), indexWords.data(),
                                                  farBytes.data(), arcs.get(), first, last));
        }
        indexed += counts.indexed;
        far += farCount;
    }
    readable = readable && firstPart.drain() && indexPart.drain() && farPart.drain();
    std::vector<PackedLetters> words(layout.anagramWords);
    std::vector<std::uint32_t> slots(layout.anagramSlots);
    readable = readable &&
               anagramPart.read(reinterpret_cast<unsigned char*>(words.data()), 8 * words.size()) &&
               anagramPart.read(reinterpret_cast<unsigned char*>(slots.data()), 4 * slots.size());
    if (!readable) {
        result.error = "the file cannot be read to its end";
        return result;
    }
    if (combinedChecksum({headerHash, firstPart.hash(), indexPart.hash(), farPart.hash(),
                          anagramPart.hash()}) != layout.checksum) {
        result.error = "the file is damaged or truncated (its checksum does not match)";
        return result;
    }
    if (!valid || firstPart.overran() || indexPart.overran() || farPart.overran() ||
        indexed != layout.indexCount || far != layout.farCount || highestChild >= arcCount ||
        (arcCount > 2 && !arcIsLast(arcs[arcCount - 1]))) {
        result.error = "the file's graph is damaged";
        return result;
    }
    if constexpr (std::endian::native == std::endian::big) {
        for (PackedLetters& word : words)
            word = get64(reinterpret_cast<const unsigned char*>(&word));
        for (std::uint32_t& slot : slots)
            slot = get32(reinterpret_cast<const unsigned char*>(&slot));
    }
    if (std::string problem = AnagramIndex::validate(words, slots); !problem.empty()) {
        result.error = "the file is damaged: " + problem;
        return result;
    }
    result.lexicon.graph = WordGraph(std::move(arcs), arcCount, layout.wordCount);
    if (!words.empty())
        result.lexicon.anagrams = AnagramIndex(std::move(words), std::move(slots));
    return result;
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
    const std::span<const std::uint32_t> slots = lexicon.anagrams.table();
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
    const std::uint64_t checksum = lexiconFileChecksum(out);
    for (std::size_t i = 0; i < 8; ++i)
        out[kChecksumAt + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
    return out;
}

std::uint64_t lexiconFileChecksum(std::string_view bytes) {
    Layout layout;
    if (!readLayout(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), layout)
             .empty())
        return 0;
    const auto part = [&](std::uint64_t from, std::uint64_t to) {
        return contentHash(bytes.substr(from, to - from));
    };
    return combinedChecksum(
        {contentHash(bytes.substr(0, kChecksumAt)), part(layout.firstBytesAt, layout.indexWordsAt),
         part(layout.indexWordsAt, layout.farBytesAt), part(layout.farBytesAt, layout.anagramAt),
         part(layout.anagramAt, layout.end)});
}

DecodedLexicon decodeLexiconFile(std::string_view bytes) {
    DecodedLexicon result;
    Layout layout;
    result.error =
        readLayout(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), layout);
    if (!result.error.empty())
        return result;
    const auto part = [&](std::uint64_t from, std::uint64_t to) {
        return PartReader(bytes.substr(from, to - from));
    };
    PartReader firstPart = part(layout.firstBytesAt, layout.indexWordsAt);
    PartReader indexPart = part(layout.indexWordsAt, layout.farBytesAt);
    PartReader farPart = part(layout.farBytesAt, layout.anagramAt);
    PartReader anagramPart = part(layout.anagramAt, layout.end);
    return decodeParts(layout, contentHash(bytes.substr(0, kChecksumAt)), firstPart, indexPart,
                       farPart, anagramPart);
}

namespace {

// A file opened for reading, unbuffered (the parts are read in large pieces
// straight into their buffers), closed when it goes.
struct OpenFile {
    explicit OpenFile(const std::filesystem::path& path) : file(std::fopen(path.c_str(), "rb")) {
        // Before any other use, as the C library requires.
        if (file != nullptr && std::setvbuf(file, nullptr, _IONBF, 0) != 0) {
            std::fclose(file);
            file = nullptr;
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (file != nullptr)
            std::fclose(file);
    }
    bool seek(std::uint64_t offset) {
        return file != nullptr && offset <= static_cast<std::uint64_t>(LONG_MAX) &&
               std::fseek(file, static_cast<long>(offset), SEEK_SET) == 0;
    }
    std::FILE* file;
};

} // namespace

DecodedLexicon readLexiconFileAt(const std::filesystem::path& path) {
    DecodedLexicon result;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    OpenFile headerFile(path);
    unsigned char header[kHeaderSize] = {};
    if (error || headerFile.file == nullptr) {
        result.error = "the file cannot be read";
        return result;
    }
    const std::size_t got = std::fread(header, 1, kHeaderSize, headerFile.file);
    Layout layout;
    result.error = readLayout(header, got < kHeaderSize ? got : size, layout);
    if (!result.error.empty())
        return result;
    // Three readers side by side: the first bytes, the index words, then the
    // far bytes and the anagram index, each part streaming through a buffer.
    OpenFile indexFile(path);
    OpenFile farFile(path);
    if (!headerFile.seek(layout.firstBytesAt) || !indexFile.seek(layout.indexWordsAt) ||
        !farFile.seek(layout.farBytesAt)) {
        result.error = "the file cannot be read";
        return result;
    }
    PartReader firstPart(headerFile.file, layout.indexWordsAt - layout.firstBytesAt);
    PartReader indexPart(indexFile.file, layout.farBytesAt - layout.indexWordsAt);
    PartReader farPart(farFile.file, layout.anagramAt - layout.farBytesAt);
    PartReader anagramPart(farFile.file, layout.end - layout.anagramAt);
    const std::string_view headerBytes(reinterpret_cast<const char*>(header), kChecksumAt);
    return decodeParts(layout, contentHash(headerBytes), firstPart, indexPart, farPart,
                       anagramPart);
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
