#include "engine/prepared_words.h"

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"

#include <array>
#include <cmath>

namespace lettriner {
namespace {

// Per-character facts for the first 256 code units, which hold every letter
// the game knows; rarer characters take the general path.
struct LatinFacts {
    std::array<char16_t, 256> upper{};
    std::array<double, 256> value{};
    std::array<std::uint32_t, 256> letterBit{};
};

LatinFacts latinFacts(const LetterValueTable& values) {
    LatinFacts facts;
    for (unsigned i = 0; i < 256; ++i) {
        const char16_t upper = toUpper(static_cast<char16_t>(i));
        const int index = alphabetIndex(upper);
        facts.upper[i] = upper;
        facts.value[i] = values[windows1252Code(upper)];
        facts.letterBit[i] = index >= 0 ? 1u << index : kOtherBit;
    }
    return facts;
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

    std::size_t position = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::u16string_view word = database[i];
        std::uint32_t letters = 0;
        double sum = 0.0;
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
        starts_.push_back(position - word.size());
        // Same sum in the same order as WortBewertung, so the same rounding.
        entries_.push_back(
            {letters, static_cast<std::uint32_t>(word.size()), roundToInt16(sum).value_or(0)});
    }
}

} // namespace lettriner
