#include "engine/prepared_words.h"

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lettriner {
namespace {

// Per-character facts for the first 256 code units, which hold every letter
// the game knows; rarer characters take the general path.
struct LatinFacts {
    std::array<char16_t, 256> upper{};
    std::array<double, 256> value{};
    std::array<std::int64_t, 256> wholeValue{};
    std::array<std::uint32_t, 256> letterBit{};
};

// Above this, whole values no longer keep every partial sum of a long word
// exact in a double.
constexpr double kLargestExactValue = 1 << 20;
constexpr std::size_t kLongestExactWord = std::size_t{1} << 32;

LatinFacts latinFacts(const LetterValueTable& values) {
    LatinFacts facts;
    for (unsigned i = 0; i < 256; ++i) {
        const char16_t upper = toUpper(static_cast<char16_t>(i));
        const int index = alphabetIndex(upper);
        facts.upper[i] = upper;
        facts.value[i] = values[windows1252Code(upper)];
        facts.wholeValue[i] = static_cast<std::int64_t>(std::clamp(
            facts.value[i], -kLargestExactValue, kLargestExactValue)); // used only when whole
        facts.letterBit[i] = index >= 0 ? 1u << index : kOtherBit;
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

PreparedWords::PreparedWords(const WordDatabase& database, const LetterValueTable& values)
    : values_(values) {
    const LatinFacts facts = latinFacts(values);
    const std::size_t count = database.size();
    std::size_t total = 0;
    for (std::size_t i = 0; i < count; ++i)
        total += database[i].size();
    text_.resize(total);
    starts_.reserve(count);
    entries_.reserve(count);

    const bool whole = wholeValues(values_);
    std::size_t position = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::u16string_view word = database[i];
        std::uint32_t letters = 0;
        double sum = 0.0;
        if (whole && word.size() < kLongestExactWord) {
            std::int64_t wholeSum = 0;
            for (const char16_t c : word) {
                const char16_t latin = c < 256 ? c : 0;
                text_[position++] = c < 256 ? facts.upper[latin] : c;
                letters |= c < 256 ? facts.letterBit[latin] : kOtherBit;
                wholeSum += c < 256 ? facts.wholeValue[latin]
                                    : static_cast<std::int64_t>(values_[windows1252Code(c)]);
            }
            sum = static_cast<double>(wholeSum);
        } else {
            for (const char16_t c : word) {
                if (c < 256) {
                    text_[position++] = facts.upper[c];
                    letters |= facts.letterBit[c];
                    sum += facts.value[c];
                } else {
                    text_[position++] = c; // no casing outside the first 256
                    letters |= kOtherBit;
                    sum += values_[windows1252Code(c)];
                }
            }
        }
        starts_.push_back(position - word.size());
        // Same sum in the same order as WortBewertung, so the same rounding.
        entries_.push_back(
            {letters, static_cast<std::uint32_t>(word.size()), roundToInt16(sum).value_or(0)});
    }
}

} // namespace lettriner
