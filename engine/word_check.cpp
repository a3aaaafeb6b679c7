// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/word_check.h"

#include "data/text_case.h"

namespace lettriner {
namespace {

bool contains(std::u16string_view text, char16_t c) {
    return text.find(c) != std::u16string_view::npos;
}

struct Covering {
    std::u16string rackLeft; // the rack minus the tiles the word used
    std::u16string needed;   // word letters no tile covered, in word order
};

// Covers the word's letters, upper-cased, with the leftmost matching rack tiles.
Covering cover(std::u16string_view word, std::u16string_view rack) {
    Covering result{std::u16string(rack), {}};
    result.needed.reserve(word.size());
    for (const char16_t c : word) {
        const char16_t letter = toUpper(c);
        const std::size_t tile = result.rackLeft.find(letter);
        if (tile != std::u16string::npos)
            result.rackLeft.erase(tile, 1);
        else
            result.needed += letter;
    }
    return result;
}

std::u16string lowerCased(std::u16string text) {
    for (char16_t& c : text)
        c = toLower(c);
    return text;
}

} // namespace

CheckResult WortPrüfen(const LetterValueTable& values, std::u16string_view word,
                       std::u16string_view rack, std::u16string_view mandatory,
                       std::u16string_view forbidden, double allowance, std::int16_t minimum) {
    const double length = static_cast<double>(word.size());
    if (!(length <= static_cast<double>(rack.size()) + allowance || word.size() <= 2))
        return CheckResult::Rejected;
    for (const char16_t c : mandatory) {
        if (!contains(word, c))
            return CheckResult::Rejected;
    }
    for (const char16_t c : forbidden) {
        if (contains(word, c))
            return CheckResult::Rejected;
    }
    if (WortBewertung(values, word) < minimum)
        return CheckResult::Rejected;

    std::u16string rackLeft(rack);
    std::size_t used = 0;
    double extra = 0;
    for (const char16_t letter : word) {
        const std::size_t tile = rackLeft.find(letter);
        if (tile != std::u16string::npos) {
            rackLeft.erase(tile, 1);
            ++used;
        } else {
            extra += 1;
            if (extra > allowance)
                break;
        }
    }
    if (!(used == word.size() || extra <= allowance))
        return CheckResult::Rejected;
    return rackLeft.empty() ? CheckResult::AcceptedAsBonus : CheckResult::Accepted;
}

std::u16string neededLetters(std::u16string_view word, std::u16string_view rack) {
    return lowerCased(cover(word, rack).needed);
}

std::u16string leftOverLetters(std::u16string_view word, std::u16string_view rack) {
    return lowerCased(cover(word, rack).rackLeft);
}

namespace {

// `letters` of every word, against the same rack.
template <class Letters>
std::vector<std::u16string> letterColumn(const std::vector<std::u16string>& Feld,
                                         std::u16string_view rack, Letters letters) {
    std::vector<std::u16string> column;
    column.reserve(Feld.size());
    for (const std::u16string& word : Feld)
        column.push_back(letters(word, rack));
    return column;
}

} // namespace

std::vector<std::u16string> ZusBuchstabenFeld(const std::vector<std::u16string>& Feld,
                                              std::u16string_view rack) {
    return letterColumn(Feld, rack, neededLetters);
}

std::vector<std::u16string> ÜbrigeBuchstFeld(const std::vector<std::u16string>& Feld,
                                             std::u16string_view rack) {
    return letterColumn(Feld, rack, leftOverLetters);
}

} // namespace lettriner
