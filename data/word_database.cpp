// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/word_database.h"

#include "data/large_array.h"
#include "data/line_ends.h"
#include "data/number_format.h"
#include "data/text_codec.h"

#include <bit>
#include <cstring>
#include <new>
#include <stdexcept>
#include <unordered_map>

namespace lettriner {

struct WordDatabase::Storage {
    FileContents contents;
    CodePage codePage;
    // starts[i] is where entry i begins; a last element marks the end as if
    // the text had one more CR LF, so every entry is bounded the same way.
    LargeArray<std::uint32_t> starts;
    std::size_t entries = 0; // starts holds entries + 1 offsets
};

namespace {

// std::popcount, which without a popcount instruction in the baseline x86-64
// set becomes a library call: that call was a sixth of the cutting loop's time.
constexpr std::size_t countOnes(std::uint64_t bits) {
    bits -= (bits >> 1) & 0x5555555555555555u;
    bits = (bits & 0x3333333333333333u) + ((bits >> 2) & 0x3333333333333333u);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0Fu;
    return static_cast<std::size_t>((bits * 0x0101010101010101u) >> 56);
}
static_assert(countOnes(0) == 0 && countOnes(~std::uint64_t{0}) == 64 &&
              countOnes(0x8000'0001'0000'0101u) == 4);

// Where every entry begins, written to `starts` from index 1 on; returns
// the number of line ends. `starts` needs room for the line ends plus 64:
// the positions of a block are written eight at a time, before knowing how
// many there are, which keeps the loop free of unpredictable branches
// (lines are short: a block of 64 bytes holds about five).
std::size_t cutAtLineEnds(std::string_view text, std::uint32_t* starts) {
    const char* const begin = text.data();
    const std::size_t size = text.size();
    std::size_t found = 0;
    std::uint64_t returnBefore = 0; // a CR ending the previous block
    std::size_t at = 0;
    for (; at + 64 <= size; at += 64) {
        const LineBytes masks = lineBytes(begin + at);
        std::uint64_t ends = masks.lineFeeds & ((masks.returns << 1) | returnBefore);
        returnBefore = masks.returns >> 63;
        const std::size_t count = countOnes(ends);
        const auto base = static_cast<std::uint32_t>(at + 1);
        std::uint32_t* out = starts + 1 + found;
        for (std::size_t k = 0; k < count; k += 8) {
            for (std::size_t j = 0; j < 8; ++j) {
                out[k + j] =
                    base + static_cast<std::uint32_t>(std::countr_zero(ends | (1ull << 63)));
                ends &= ends - 1;
            }
        }
        found += count;
    }
    for (; at < size; ++at) {
        if (begin[at] == '\n' && at > 0 && begin[at - 1] == '\r')
            starts[1 + found++] = static_cast<std::uint32_t>(at + 1);
    }
    return found;
}

LargeArray<std::uint32_t> startsOfEntries(std::string_view text, std::size_t& entries) {
    entries = 0;
    if (text.empty())
        return LargeArray<std::uint32_t>(0);
    // Every line end holds a line feed: counting those is one vector pass.
    const std::size_t lineFeeds = countLineFeeds(text);
    LargeArray<std::uint32_t> starts(lineFeeds + 2 + 64);
    starts[0] = 0;
    const std::size_t lineEnds = cutAtLineEnds(text, starts.data());
    starts[lineEnds + 1] = static_cast<std::uint32_t>(text.size() + 2);
    entries = lineEnds + 1;
    return starts;
}

// The bytes of a decoded text, and the code page that turns them back.
std::pair<std::string, CodePage> encoded(std::u16string_view text) {
    CodePage page = windows1252Characters();
    ByteTable<bool> taken{};
    taken['\r'] = taken['\n'] = true; // the line ends keep their bytes
    for (const char16_t c : text) {
        const unsigned char code = windows1252Code(c);
        if (page[code] == c)
            taken[code] = true;
    }
    std::unordered_map<char16_t, unsigned char> own;
    unsigned next = 0;
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        unsigned char code = windows1252Code(c);
        if (page[code] != c) {
            auto [place, added] = own.try_emplace(c, 0);
            if (added) {
                while (next < 256 && taken[next])
                    ++next;
                if (next == 256)
                    throw std::length_error("too many characters outside Windows-1252");
                taken[next] = true;
                page[next] = c;
                place->second = static_cast<unsigned char>(next);
            }
            code = place->second;
        }
        bytes[i] = static_cast<char>(code);
    }
    return {std::move(bytes), page};
}

} // namespace

// Both constructors leave the list empty when building it fails: the read
// has succeeded by then, and a list that does not fit is treated like a file
// that could not be read, so start-up and searches go on.
WordDatabase::WordDatabase(FileContents contents) {
    try {
        auto storage = std::make_shared<Storage>();
        storage->contents = std::move(contents);
        storage->codePage = windows1252Characters();
        storage->starts = startsOfEntries(storage->contents.bytes(), storage->entries);
        adopt(std::move(storage));
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
}

WordDatabase::WordDatabase(std::u16string_view text) {
    try {
        auto [bytes, page] = encoded(text.substr(0, kLargestWordList));
        auto storage = std::make_shared<Storage>();
        storage->contents = FileContents(bytes);
        storage->codePage = page;
        storage->starts = startsOfEntries(storage->contents.bytes(), storage->entries);
        adopt(std::move(storage));
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
}

void WordDatabase::adopt(std::shared_ptr<const Storage> storage) {
    storage_ = std::move(storage);
    text_ = storage_->contents.bytes().data();
    starts_ = storage_->starts.data();
    size_ = storage_->entries;
}

std::u16string WordDatabase::operator[](std::size_t index) const {
    const std::string_view entry = bytes(index);
    const CodePage& page = storage_->codePage;
    std::u16string text(entry.size(), u'\0');
    for (std::size_t i = 0; i < entry.size(); ++i)
        text[i] = page[static_cast<unsigned char>(entry[i])];
    return text;
}

const CodePage& WordDatabase::codePage() const {
    return storage_ ? storage_->codePage : windows1252Characters();
}

WordDatabase DatenbankEinlesen(const std::filesystem::path& Pfad,
                               const std::function<void()>& yield, WhenAbsent absent) {
    FileContents contents = readFileContents(Pfad, kLargestWordList, absent);
    if (yield)
        yield();
    return WordDatabase(std::move(contents));
}

} // namespace lettriner
