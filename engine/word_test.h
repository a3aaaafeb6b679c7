#pragma once
// The letter test of one search, prepared once from the run's inputs and then
// applied to every prepared word. Gives exactly what WortPrüfen gives for the
// upper-cased word, but decides most words from their length and letter set
// alone, and counts tiles without allocating for the rest.

#include "engine/prepared_words.h"
#include "engine/word_check.h"

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner {

class WordTest {
public:
    // Texts as WortPrüfen takes them: upper-cased, mandatory and forbidden
    // without blanks.
    WordTest(std::u16string_view rack, std::u16string_view mandatory, std::u16string_view forbidden,
             double allowance);

    // Inline: this runs once per word of the list and must stay a few compares.
    [[nodiscard]] CheckResult check(const PreparedWords& words, std::size_t index,
                                    std::int16_t minimum) const {
        const PreparedWords::Entry& entry = words.entry(index);
        if (entry.letters & kOtherBit)
            return checkTheLongWay(words, index, minimum);
        // Only alphabet letters from here on: a mandatory character outside
        // the alphabet is never present, a forbidden one never matters.
        if (entry.length > maxLength_ || (entry.letters & forbiddenLetters_) ||
            (entry.letters & mandatoryLetters_) != mandatoryLetters_ || entry.value < minimum)
            return CheckResult::Rejected;
        // Each letter missing from the rack needs at least one extra letter.
        // (Without -mpopcnt std::popcount is a library call: ask only when needed.)
        const std::uint32_t missing = entry.letters & ~rackLetters_;
        if (missing != 0 &&
            (maxExtra_ == 0 || static_cast<std::uint32_t>(std::popcount(missing)) > maxExtra_))
            return CheckResult::Rejected;
        return cover(words.upper(index), entry.length);
    }

private:
    [[nodiscard]] CheckResult checkTheLongWay(const PreparedWords& words, std::size_t index,
                                              std::int16_t minimum) const;
    [[nodiscard]] CheckResult cover(std::u16string_view upperWord, std::uint32_t length) const;

    std::u16string rack_;
    std::u16string mandatory_;
    std::u16string forbidden_;
    double allowance_;
    // Integer forms of the real comparisons, exact for integer lengths and
    // counts: length <= 2 or length <= rack + allowance; extra letters
    // rejected when more than zero and more than the allowance.
    std::uint32_t maxLength_;
    std::uint32_t maxExtra_;
    std::uint32_t rackLength_;
    std::uint32_t rackLetters_ = 0;
    std::uint32_t mandatoryLetters_ = 0;
    std::uint32_t forbiddenLetters_ = 0;
    std::array<std::int32_t, kAlphabetSize> rackCounts_{};
};

} // namespace lettriner
