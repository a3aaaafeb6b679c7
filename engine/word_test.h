#pragma once
// The letter test of one search, prepared once from the run's inputs and then
// applied to every prepared word. Gives exactly what WortPrüfen gives for the
// upper-cased word, but decides most words from their letter set and counts.

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

    [[nodiscard]] CheckResult check(const PreparedWords& words, std::size_t index,
                                    std::int16_t minimum) const;

private:
    std::u16string rack_;
    std::u16string mandatory_;
    std::u16string forbidden_;
    double allowance_;
    double lengthBound_; // rack length + allowance
    std::uint32_t rackLength_;
    std::uint32_t rackLetters_ = 0;
    std::uint32_t mandatoryLetters_ = 0;
    std::uint32_t forbiddenLetters_ = 0;
    bool mandatoryHasOther_ = false;
    std::array<std::int32_t, kAlphabetSize> rackCounts_{};
};

} // namespace lettriner
