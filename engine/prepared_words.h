#pragma once
// The word list made ready for searching, once, after the word list and the
// letter values are loaded (neither changes afterwards): every word upper-cased,
// with its length, value and the set of letters it contains, so that testing
// a word is a few comparisons and allocates nothing.

#include "data/word_database.h"
#include "engine/letter_values.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {

// Letters with a bit of their own in a letter set; any other character sets
// kOtherBit, and a word with that bit is tested the long way.
inline constexpr int kAlphabetSize = 30; // A-Z, Ä, Ö, Ü, ß
inline constexpr std::uint32_t kOtherBit = 1u << kAlphabetSize;
inline constexpr std::uint32_t kImpossibleBit = 1u << 31; // in no word's letter set

// Position of an upper-case letter in the alphabet, or -1 for any other character.
[[nodiscard]] constexpr int alphabetIndex(char16_t c) {
    if (c >= u'A' && c <= u'Z')
        return c - u'A';
    switch (c) {
    case u'Ä':
        return 26;
    case u'Ö':
        return 27;
    case u'Ü':
        return 28;
    case u'ß':
        return 29;
    default:
        return -1;
    }
}

[[nodiscard]] std::uint32_t letterSet(std::u16string_view upperText);

class PreparedWords {
public:
    struct Entry {
        std::uint32_t letters; // letterSet of the upper-cased word
        std::uint32_t length;
        std::int16_t value; // WortBewertung
    };

    PreparedWords() = default;
    PreparedWords(const WordDatabase& database, const LetterValueTable& values);

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] const Entry& entry(std::size_t i) const { return entries_[i]; }
    [[nodiscard]] std::u16string_view upper(std::size_t i) const {
        return std::u16string_view(text_).substr(starts_[i], entries_[i].length);
    }
    [[nodiscard]] const LetterValueTable& values() const { return values_; }

private:
    LetterValueTable values_;
    std::u16string text_; // all upper-cased words, back to back
    std::vector<std::size_t> starts_;
    std::vector<Entry> entries_;
};

} // namespace lettriner
