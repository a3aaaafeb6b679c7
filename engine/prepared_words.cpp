// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/prepared_words.h"

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <new>
#include <system_error>
#include <thread>

namespace lettriner {
namespace {

// Per-byte facts of a list's code page: no casing outside the first 256
// characters, and every character valued by its Windows-1252 code.
struct ByteFacts {
    ByteTable<char16_t> upper{};
    ByteTable<double> value{};
    ByteTable<std::uint32_t> letterBit{};
    // The letter bit in the low half, the value as a whole number in the
    // high half: one load per byte where whole values are summed.
    ByteTable<std::uint64_t> letterBitAndWholeValue{};
    ByteTable<std::int8_t> alphabetIndex{};
};

// Above this, whole values no longer keep every partial sum of a long word
// exact in a double.
constexpr double kLargestExactValue = 1 << 20;
constexpr std::size_t kLongestExactWord = std::size_t{1} << 32;
// Whole values are stored with this added, so that they are never negative
// and a plain unsigned sum of a word's bytes needs no sign extension per
// byte; the word's sum takes it off again once.
constexpr auto kValueBias = static_cast<std::int32_t>(kLargestExactValue);

ByteFacts byteFacts(const CodePage& page, const LetterValueTable& values) {
    ByteFacts facts;
    for (unsigned b = 0; b < 256; ++b) {
        const char16_t c = page[b];
        const char16_t upper = c < 256 ? toUpper(c) : c;
        const int index = alphabetIndex(upper);
        facts.upper[b] = upper;
        facts.value[b] = values[windows1252Code(upper)];
        facts.letterBit[b] = index >= 0 ? 1u << index : kOtherBit;
        const auto whole = static_cast<std::int32_t>(std::clamp(
            facts.value[b], -kLargestExactValue, kLargestExactValue)); // used only when whole
        facts.letterBitAndWholeValue[b] =
            facts.letterBit[b] | std::uint64_t{static_cast<std::uint32_t>(whole + kValueBias)}
                                     << 32;
        facts.alphabetIndex[b] = static_cast<std::int8_t>(index);
    }
    return facts;
}

// True when every value in the table is a whole number of modest size. Then
// every partial sum of a word is an exact integer in a double, so an integer
// sum gives the same result as the floating-point one, without its chain of
// dependent additions.
bool wholeValues(const LetterValueTable& values) {
    for (unsigned code = 0; code < 256; ++code) {
        const double value = values[static_cast<unsigned char>(code)];
        if (!(std::abs(value) <= kLargestExactValue) || value != std::trunc(value))
            return false;
    }
    return true;
}

} // namespace

std::uint32_t letterSet(std::u16string_view upperText) {
    std::uint32_t set = 0;
    for (const char16_t c : upperText) {
        const int index = alphabetIndex(c);
        set |= index >= 0 ? (1u << index) : kOtherBit;
    }
    return set;
}

TileCounts tileCounts(std::u16string_view upperRack) {
    TileCounts counts{};
    for (const char16_t c : upperRack) {
        if (const int index = alphabetIndex(c); index >= 0)
            ++counts[static_cast<std::size_t>(index)];
    }
    return counts;
}

namespace {

// Letters and value of the words [begin, end).
void prepareRange(const WordDatabase& database, const ByteFacts& facts, bool whole,
                  std::uint32_t* letterSets, std::int16_t* values, std::size_t begin,
                  std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
        const std::string_view word = database.bytes(i);
        if (whole && word.size() < kLongestExactWord) {
            std::uint64_t bits = 0;
            std::uint64_t biasedSum = 0;
            for (const char byte : word) {
                const std::uint64_t facts64 =
                    facts.letterBitAndWholeValue[static_cast<unsigned char>(byte)];
                bits |= facts64;
                biasedSum += facts64 >> 32;
            }
            const auto wholeSum = static_cast<std::int64_t>(biasedSum) -
                                  static_cast<std::int64_t>(word.size()) * kValueBias;
            letterSets[i] = static_cast<std::uint32_t>(bits);
            // A whole sum needs no rounding; outside 16 bits it cannot convert.
            values[i] = wholeSum >= INT16_MIN && wholeSum <= INT16_MAX
                            ? static_cast<std::int16_t>(wholeSum)
                            : std::int16_t{0};
            continue;
        }
        std::uint32_t letters = 0;
        double sum = 0.0;
        for (const char byte : word) {
            const auto b = static_cast<unsigned char>(byte);
            letters |= facts.letterBit[b];
            sum += facts.value[b];
        }
        letterSets[i] = letters;
        // Same sum in the same order as WortBewertung, so the same rounding.
        values[i] = roundToInt16(sum).value_or(0);
    }
}

// Preparing the shipped list takes about 7 ms, most of a fresh command
// line's start-up: a second thread takes the upper half of a large list.
// A small one is not worth starting a thread for.
constexpr std::size_t kWordsWorthAThread = std::size_t{1} << 16;

} // namespace

PreparedWords::PreparedWords(WordDatabase database, const LetterValueTable& values)
    : database_(std::move(database)), letterValues_(values) {
    try {
        letters_ = LargeArray<std::uint32_t>(database_.size());
        wordValues_ = LargeArray<std::int16_t>(database_.size());
    } catch (const std::bad_alloc&) {
        // The list was read, but its arrays do not fit: search no words
        // rather than end the program.
        database_ = WordDatabase();
        letters_ = LargeArray<std::uint32_t>();
        return;
    }
    const ByteFacts facts = byteFacts(database_.codePage(), values);
    upper_ = facts.upper;
    alphabetIndex_ = facts.alphabetIndex;
    const bool whole = wholeValues(values);
    const std::size_t count = database_.size();
    const std::size_t half = count / 2;
    std::thread helper;
    if (count >= kWordsWorthAThread && std::thread::hardware_concurrency() > 1) {
        try {
            helper = std::thread(prepareRange, std::cref(database_), std::cref(facts), whole,
                                 letters_.data(), wordValues_.data(), half, count);
        } catch (const std::system_error&) {
            // No thread to be had (a process or memory limit): all on this one.
        }
    }
    prepareRange(database_, facts, whole, letters_.data(), wordValues_.data(), 0,
                 helper.joinable() ? half : count);
    if (helper.joinable())
        helper.join();
}

std::u16string PreparedWords::upper(std::size_t i) const {
    const std::string_view word = bytes(i);
    std::u16string text(word.size(), u'\0');
    for (std::size_t k = 0; k < word.size(); ++k)
        text[k] = upper_[static_cast<unsigned char>(word[k])];
    return text;
}

} // namespace lettriner
