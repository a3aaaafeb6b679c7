// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The letter test of one search, prepared once from the run's inputs and then
// applied to every prepared word. Gives exactly what WortPrüfen gives for the
// upper-cased word, but decides most words from their length and letter set
// alone, and counts tiles without allocating for the rest.

#include "engine/prepared_words.h"
#include "engine/word_check.h"
#include "engine/word_summary.h"

#include <array>
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

    // Inline: this runs once per word the summary does not reject.
    [[nodiscard]] CheckResult check(const PreparedWords& words, std::size_t index,
                                    std::int16_t minimum) const {
        if (!summary_.passes(words, index, minimum))
            return CheckResult::Rejected;
        if (words.letters(index) & kOtherBit)
            return checkTheLongWay(words, index, minimum);
        // Only alphabet letters from here on: a mandatory character outside
        // the alphabet is never present.
        if (mandatoryOutsideAlphabet_)
            return CheckResult::Rejected;
        return cover(words, index, words.length(index));
    }

    [[nodiscard]] const WordSummaryTest& summary() const { return summary_; }

private:
    [[nodiscard]] CheckResult checkTheLongWay(const PreparedWords& words, std::size_t index,
                                              std::int16_t minimum) const;
    [[nodiscard]] CheckResult cover(const PreparedWords& words, std::size_t index,
                                    std::uint32_t length) const;

    std::u16string rack_;
    std::u16string mandatory_;
    std::u16string forbidden_;
    double allowance_;
    std::uint32_t maxExtra_;
    std::uint32_t rackLength_;
    bool mandatoryOutsideAlphabet_ = false;
    WordSummaryTest summary_;
    TileCounts rackCounts_;
};

} // namespace lettriner
