#pragma once
// The letter test of one search, prepared once from the run's inputs and then
// applied to every prepared word. Gives exactly what WortPrüfen gives for the
// upper-cased word, but decides most words from their length and letter set
// alone, and counts tiles without allocating for the rest.

#include "engine/prepared_words.h"
#include "engine/word_check.h"

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
        if (!passesSummary(words, index, minimum))
            return CheckResult::Rejected;
        if (words.letters(index) & kOtherBit)
            return checkTheLongWay(words, index, minimum);
        // Only alphabet letters from here on: a mandatory character outside
        // the alphabet is never present.
        if (mandatoryOutsideAlphabet_)
            return CheckResult::Rejected;
        return cover(words, index, words.length(index));
    }

    // For each of the words [from, from + count): 1 when the summary does
    // not reject it, else 0. No branch: the compiler turns it into vector
    // instructions, several words at a time.
    void markCandidates(const PreparedWords& words, std::size_t from, std::size_t count,
                        std::int16_t minimum, std::uint8_t* flags) const;

private:
    // What the letter set, value and length of a word can tell, true for
    // every word, whatever characters it holds: each forbidden letter
    // rejects it, each mandatory letter must be there, each letter not on
    // the rack needs at least one extra letter.
    [[nodiscard]] bool passesSummary(const PreparedWords& words, std::size_t index,
                                     std::int16_t minimum) const {
        std::uint8_t flag = 0;
        markCandidates(words, index, 1, minimum, &flag);
        return flag != 0;
    }
    [[nodiscard]] CheckResult checkTheLongWay(const PreparedWords& words, std::size_t index,
                                              std::int16_t minimum) const;
    [[nodiscard]] CheckResult cover(const PreparedWords& words, std::size_t index,
                                    std::uint32_t length) const;

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
    std::uint32_t missingMask_ = 0;      // alphabet letters not on the rack
    std::uint32_t mandatoryLetters_ = 0; // alphabet letters only
    bool mandatoryOutsideAlphabet_ = false;
    // Letters no accepted word holds, whatever else it holds: the forbidden
    // ones, and with no extra letter allowed every letter not on the rack.
    std::uint32_t rejectedLetters_ = 0;
    std::array<std::int32_t, kAlphabetSize> rackCounts_{};
};

} // namespace lettriner
