// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tile_test.h"

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

namespace lettriner {
namespace {

constexpr int kSharpS = 29; // ß: no blank stands for it

bool blankMayStandFor(int alphabetIndexOfLetter) {
    return alphabetIndexOfLetter >= 0 && alphabetIndexOfLetter != kSharpS;
}

std::uint32_t saturatedSum(std::uint64_t a, std::uint64_t b) {
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(a + b, UINT32_MAX));
}

bool sameLetters(std::string_view bytes, std::u16string_view letters, const PreparedWords& words) {
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (words.alphabetIndexOfByte(bytes[i]) != alphabetIndex(letters[i]))
            return false;
    }
    return true;
}

// Up to two cheapest candidates for the blanks; among equal values the earliest.
struct CheapestLetters {
    struct Slot {
        double value;
        std::size_t position;
    };
    std::array<Slot, kMostBlanks> slots{};
    int count = 0; // candidates seen, at most kMostBlanks kept

    void offer(double value, std::size_t position) {
        if (count == 0 || value < slots[0].value) {
            slots[1] = slots[0];
            slots[0] = {value, position};
        } else if (count == 1 || value < slots[1].value) {
            slots[1] = {value, position};
        }
        count = std::min(count + 1, kMostBlanks);
    }
    [[nodiscard]] bool holds(std::size_t position, int used) const {
        for (int i = 0; i < used; ++i) {
            if (slots[static_cast<std::size_t>(i)].position == position)
                return true;
        }
        return false;
    }
};

} // namespace

TileTest::TileTest(const LetterValueTable& values, std::u16string_view rack,
                   std::u16string_view mandatory, std::u16string_view forbidden, double allowance,
                   const TileRules& rules)
    : values_(values), rack_(rack), mandatory_(mandatory), forbidden_(forbidden),
      allowance_(allowance), rules_(rules), maxExtra_(wholeBound(allowance, 0)),
      rackLength_(static_cast<std::uint32_t>(rack.size())), rackCounts_(tileCounts(rack)) {
    const std::uint32_t rackLetters = letterSet(rack_) & kAlphabetBits;
    for (int index = 0; index < kAlphabetSize; ++index) {
        static constexpr std::u16string_view kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜß";
        letterValues_[static_cast<std::size_t>(index)] =
            values[windows1252Code(kLetters[static_cast<std::size_t>(index)])];
        const double letterValue = letterValues_[static_cast<std::size_t>(index)];
        if (!(std::abs(letterValue) <= 1048576.0) || letterValue != std::trunc(letterValue))
            wholeLetterValues_ = false;
        if (rules_.blanks > 0 && blankMayStandFor(index) &&
            !(letterValues_[static_cast<std::size_t>(index)] >= 0.0))
            summaryBoundsValue_ = false;
    }
    fixed_.fill(-1);
    std::uint32_t patternLetters = 0;
    std::uint32_t fixedCount = 0;
    for (std::size_t i = 0; i < rules_.pattern.size() && i < kLongestPattern; ++i) {
        if (rules_.pattern[i] == u'.')
            continue;
        const int index = alphabetIndex(rules_.pattern[i]);
        // A character outside the alphabet matches no byte of an alphabet word.
        fixed_[i] = static_cast<std::int8_t>(index >= 0 ? index : kAlphabetSize);
        if (index >= 0)
            patternLetters |= 1u << index;
        ++fixedCount;
    }
    mandatoryOutsideAlphabet_ = (letterSet(mandatory_) & kOtherBit) != 0;

    // Every test here is a necessary condition; check() decides the rest.
    const auto blanks = static_cast<std::uint32_t>(rules_.blanks);
    summary_.mandatory = (letterSet(mandatory_) | letterSet(rules_.starts) |
                          letterSet(rules_.ends) | patternLetters) &
                         kAlphabetBits;
    summary_.rejected = letterSet(forbidden_) & kAlphabetBits;
    // A pattern letter may also stand where the rack has to cover it: such
    // letters count as present, not as missing.
    summary_.missingMask = kAlphabetBits & ~rackLetters & ~patternLetters;
    summary_.maxExtra = saturatedSum(maxExtra_, blanks);
    mostUncovered_ = summary_.maxExtra;
    fixedCount_ = fixedCount;
    filtered_ = !rules_.pattern.empty() || !rules_.starts.empty() || !rules_.ends.empty();
    if (summary_.maxExtra == 0)
        summary_.rejected |= summary_.missingMask;
    summary_.minLength =
        std::max({rules_.minLength, static_cast<std::uint32_t>(rules_.starts.size()),
                  static_cast<std::uint32_t>(rules_.ends.size())});
    // Letters off the board: at most rack + blanks + allowance, or at most 2.
    const double tileBound =
        static_cast<double>(rackLength_) + static_cast<double>(blanks) + allowance;
    summary_.maxLength =
        std::min(rules_.maxLength, saturatedSum(wholeBound(tileBound, 2), fixedCount));
    if (!rules_.pattern.empty()) {
        const auto length = static_cast<std::uint32_t>(rules_.pattern.size());
        summary_.minLength = std::max(summary_.minLength, length);
        summary_.maxLength = std::min(summary_.maxLength, length);
    }
    if (rules_.pattern.size() > kLongestPattern)
        summary_.maxLength = 0; // matches nothing
}

bool TileTest::fitsPattern(const PreparedWords& words, std::size_t index) const {
    // The summary test has checked the length against the pattern, starts and ends.
    const std::string_view bytes = words.bytes(index);
    for (std::size_t i = 0; i < rules_.pattern.size(); ++i) {
        if (fixed_[i] >= 0 && words.alphabetIndexOfByte(bytes[i]) != fixed_[i])
            return false;
    }
    return sameLetters(bytes, rules_.starts, words) &&
           sameLetters(bytes.substr(bytes.size() - rules_.ends.size()), rules_.ends, words);
}

TileVerdict TileTest::check(const PreparedWords& words, std::size_t index,
                            std::int16_t minimum) const {
    if (words.letters(index) & kOtherBit)
        return judge(words.upper(index), minimum);
    // Only alphabet letters from here on.
    if (mandatoryOutsideAlphabet_ || (filtered_ && !fitsPattern(words, index)))
        return {};
    if (rules_.blanks == 0 && fixedCount_ == 0)
        return checkWithoutBlanks(words, index, minimum);
    const std::string_view bytes = words.bytes(index);
    TileCounts tiles = rackCounts_;
    std::uint32_t uncovered = 0;
    CheapestLetters cheapest;
    for (std::size_t position = 0; position < bytes.size(); ++position) {
        if (position < kLongestPattern && fixed_[position] >= 0)
            continue;
        const int letter = words.alphabetIndexOfByte(bytes[position]);
        if (--tiles[static_cast<std::size_t>(letter)] >= 0)
            continue;
        // More letters than blanks and allowance together: no need to read on.
        if (++uncovered > mostUncovered_)
            return {};
        if (blankMayStandFor(letter))
            cheapest.offer(letterValues_[static_cast<std::size_t>(letter)], position);
    }
    const std::uint32_t used = static_cast<std::uint32_t>(bytes.size()) - fixedCount_ - uncovered;
    const int blanksUsed = std::min(cheapest.count, rules_.blanks);
    if (uncovered - static_cast<std::uint32_t>(blanksUsed) > maxExtra_)
        return {};
    std::int16_t value = words.value(index);
    if (blanksUsed > 0 && wholeLetterValues_ && value != 0) {
        // Whole values: the full value is the exact sum, so the blanks' letters
        // are simply taken off it.
        std::int64_t reduced = value;
        for (int i = 0; i < blanksUsed; ++i)
            reduced -= static_cast<std::int64_t>(cheapest.slots[static_cast<std::size_t>(i)].value);
        value =
            reduced >= INT16_MIN && reduced <= INT16_MAX ? static_cast<std::int16_t>(reduced) : 0;
    } else if (blanksUsed > 0) {
        double sum = 0.0; // in word order, as the word's value is summed
        for (std::size_t position = 0; position < bytes.size(); ++position) {
            if (!cheapest.holds(position, blanksUsed))
                sum += letterValues_[static_cast<std::size_t>(
                    words.alphabetIndexOfByte(bytes[position]))];
        }
        value = roundToInt16(sum).value_or(0);
    }
    if (value < minimum)
        return {};
    const bool bonus = used == rackLength_ && blanksUsed == rules_.blanks;
    return {bonus ? CheckResult::AcceptedAsBonus : CheckResult::Accepted, value};
}

TileVerdict TileTest::checkWithoutBlanks(const PreparedWords& words, std::size_t index,
                                         std::int16_t minimum) const {
    // No blanks and no fixed letters (the window's search): every letter counts
    // against the rack, and the count needs no branch per letter. The blank
    // loop's branches cost 15 % with a large allowance, where many letters
    // miss the rack.
    const std::string_view bytes = words.bytes(index);
    TileCounts tiles = rackCounts_;
    std::uint32_t uncovered = 0;
    for (const char byte : bytes)
        uncovered += --tiles[static_cast<std::size_t>(words.alphabetIndexOfByte(byte))] < 0 ? 1 : 0;
    const std::int16_t value = words.value(index);
    if (uncovered > maxExtra_ || value < minimum)
        return {};
    const bool bonus = bytes.size() - uncovered == rackLength_;
    return {bonus ? CheckResult::AcceptedAsBonus : CheckResult::Accepted, value};
}

TileVerdict TileTest::judge(std::u16string_view word, std::int16_t minimum,
                            TileLetters* letters) const {
    if (word.size() < rules_.minLength || word.size() > rules_.maxLength ||
        !word.starts_with(rules_.starts) || !word.ends_with(rules_.ends))
        return {};
    const bool patterned = !rules_.pattern.empty();
    if (patterned && (word.size() != rules_.pattern.size() || word.size() > kLongestPattern))
        return {};
    const auto fixedByPattern = [&](std::size_t position) {
        return patterned && rules_.pattern[position] != u'.';
    };
    std::size_t notFixed = word.size();
    for (std::size_t position = 0; position < word.size(); ++position) {
        if (fixedByPattern(position) && word[position] != rules_.pattern[position])
            return {};
        notFixed -= fixedByPattern(position) ? 1 : 0;
    }
    const double tileBound =
        static_cast<double>(rack_.size()) + static_cast<double>(rules_.blanks) + allowance_;
    if (!(static_cast<double>(notFixed) <= tileBound || notFixed <= 2))
        return {};
    for (const char16_t c : mandatory_) {
        if (word.find(c) == std::u16string_view::npos)
            return {};
    }
    for (const char16_t c : forbidden_) {
        if (word.find(c) != std::u16string_view::npos)
            return {};
    }

    std::u16string rackLeft = rack_;
    std::vector<std::size_t> uncovered;
    for (std::size_t position = 0; position < word.size(); ++position) {
        if (fixedByPattern(position))
            continue;
        const std::size_t tile = rackLeft.find(word[position]);
        if (tile != std::u16string::npos)
            rackLeft.erase(tile, 1);
        else
            uncovered.push_back(position);
    }
    const auto valueOf = [&](char16_t c) {
        return values_[windows1252Code(toUpper(c))];
    };
    CheapestLetters cheapest;
    for (const std::size_t position : uncovered) {
        if (blankMayStandFor(alphabetIndex(word[position])))
            cheapest.offer(valueOf(word[position]), position);
    }
    const int blanksUsed = std::min(cheapest.count, rules_.blanks);
    const double extra =
        static_cast<double>(uncovered.size() - static_cast<std::size_t>(blanksUsed));
    if (extra > 0 && !(extra <= allowance_))
        return {};
    double sum = 0.0;
    for (std::size_t position = 0; position < word.size(); ++position) {
        if (!cheapest.holds(position, blanksUsed))
            sum += valueOf(word[position]);
    }
    const std::int16_t value = roundToInt16(sum).value_or(0);
    if (value < minimum)
        return {};
    if (letters != nullptr) {
        *letters = {};
        for (std::size_t position = 0; position < word.size(); ++position) {
            const char16_t lower = toLower(word[position]);
            if (cheapest.holds(position, blanksUsed))
                letters->blanks += lower;
            else if (fixedByPattern(position) ||
                     std::find(uncovered.begin(), uncovered.end(), position) != uncovered.end())
                letters->needed += lower;
        }
        letters->leftOver = toLower(rackLeft);
    }
    const bool bonus = rackLeft.empty() && blanksUsed == rules_.blanks;
    return {bonus ? CheckResult::AcceptedAsBonus : CheckResult::Accepted, value};
}

} // namespace lettriner
