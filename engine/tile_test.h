// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The letter test of every search: the rack's tiles, blank tiles, and a
// pattern of letters lying on the board. A word's letters are covered first
// by rack tiles (leftmost matching tile), then by the blanks, which stand for
// the cheapest uncovered letters (A-Z, Ä, Ö, Ü; never ß; the earliest of
// equally cheap ones), then by the board allowance. Letters the pattern fixes
// lie on the board: they take no tile and no allowance, and the length bound
// (rack + blanks + allowance, or 2) counts only the others. The value is the
// sum of the letters the blanks do not stand for.
//
// With no blanks and no pattern (the window's search) the test accepts
// exactly what WortPrüfen accepts, with the same value and bonus.

#include "engine/prepared_words.h"
#include "engine/word_check.h"
#include "engine/word_summary.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner {

inline constexpr int kMostBlanks = 2;
inline constexpr std::size_t kLongestPattern = 15;

// What blanks and a pattern add to a search. Texts upper-cased; a pattern holds
// alphabet letters and '.', starts and ends alphabet letters only.
struct TileRules {
    int blanks = 0;         // 0 .. kMostBlanks
    std::u16string pattern; // empty: any length; longer than kLongestPattern: no word
    std::u16string starts;  // the word begins with it
    std::u16string ends;    // the word ends with it
    std::uint32_t minLength = 0;
    std::uint32_t maxLength = UINT32_MAX;

    // No rule at all: the window's search.
    [[nodiscard]] bool none() const {
        return blanks == 0 && pattern.empty() && starts.empty() && ends.empty() && minLength == 0 &&
               maxLength == UINT32_MAX;
    }
};

struct TileVerdict {
    CheckResult result = CheckResult::Rejected;
    std::int16_t value = 0; // 0 when rejected

    bool operator==(const TileVerdict&) const = default;
};

// The letter columns of an accepted word, lower-cased.
struct TileLetters {
    std::u16string needed;   // from the board: pattern letters and allowance, word order
    std::u16string leftOver; // rack tiles not used, rack order
    std::u16string blanks;   // the letters the blanks stand for, word order
};

class TileTest {
public:
    // Rack, mandatory and forbidden as letterRulesOf gives them: upper-cased,
    // mandatory and forbidden without spaces.
    TileTest(const LetterValueTable& values, std::u16string_view rack,
             std::u16string_view mandatory, std::u16string_view forbidden, double allowance,
             const TileRules& rules);

    // Necessary conditions for whole blocks of words. The summary knows a
    // word's full value only; it bounds the value after blanks too unless a
    // blank may stand for a letter of negative value.
    [[nodiscard]] const WordSummaryTest& summary() const { return summary_; }
    [[nodiscard]] bool summaryBoundsValue() const { return summaryBoundsValue_; }

    // For a word that passed the summary test.
    [[nodiscard]] TileVerdict check(const PreparedWords& words, std::size_t index,
                                    std::int16_t minimum) const;

    // The whole test on an upper-cased word, character by character; `letters`,
    // when given, receives the letter columns.
    [[nodiscard]] TileVerdict judge(std::u16string_view word, std::int16_t minimum,
                                    TileLetters* letters = nullptr) const;

private:
    [[nodiscard]] bool fitsPattern(const PreparedWords& words, std::size_t index) const;
    [[nodiscard]] TileVerdict checkWithoutBlanks(const PreparedWords& words, std::size_t index,
                                                 std::int16_t minimum) const;

    const LetterValueTable& values_;
    std::u16string rack_;
    std::u16string mandatory_;
    std::u16string forbidden_;
    double allowance_;
    TileRules rules_;
    std::uint32_t maxExtra_;
    std::uint32_t rackLength_;
    bool mandatoryOutsideAlphabet_ = false;
    bool summaryBoundsValue_ = true;
    // Every letter worth a whole number of modest size, so that sums are exact.
    bool wholeLetterValues_ = true;
    bool filtered_ = false;           // a pattern, start or end to match
    std::uint32_t mostUncovered_ = 0; // letters blanks and allowance can cover
    std::uint32_t fixedCount_ = 0;    // letters the pattern fixes
    WordSummaryTest summary_;
    TileCounts rackCounts_;
    std::array<double, kAlphabetSize> letterValues_{};
    // Per position, the alphabet index the pattern fixes there (kAlphabetSize
    // for another character), or -1.
    std::array<std::int8_t, kLongestPattern> fixed_{};
};

} // namespace lettriner
