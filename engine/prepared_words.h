// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The word list made ready for searching, once, after the word list and the
// letter values are loaded (neither changes afterwards): for every word the
// set of letters its upper-cased form contains and its value, in two compact
// arrays, so that most words are decided from four bytes and none allocates.
// Per byte of the list, 256-entry tables give the upper-cased character, its
// letter bit and its value.

#include "data/large_array.h"
#include "data/word_database.h"
#include "engine/letter_values.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner {

// Letters with a bit of their own in a letter set; any other character sets
// kOtherBit, and a word with that bit is tested the long way.
inline constexpr int kAlphabetSize = 30; // A-Z, Ä, Ö, Ü, ß
inline constexpr std::uint32_t kOtherBit = 1u << kAlphabetSize;
inline constexpr std::uint32_t kAlphabetBits = kOtherBit - 1;

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

// How many tiles of each alphabet letter an upper-cased rack holds; other
// characters count nowhere.
using TileCounts = std::array<std::int32_t, kAlphabetSize>;
[[nodiscard]] TileCounts tileCounts(std::u16string_view upperRack);

class PreparedWords {
public:
    struct Entry {
        std::uint32_t letters; // letterSet of the upper-cased word
        std::uint32_t length;
        std::int16_t value; // WortBewertung
    };

    PreparedWords() = default;
    // Memory too short for the per-word arrays leaves no words, as an
    // unreadable list does; nothing is thrown.
    PreparedWords(WordDatabase database, const LetterValueTable& values);

    [[nodiscard]] std::size_t size() const { return database_.size(); }
    [[nodiscard]] Entry entry(std::size_t i) const { return {letters(i), length(i), value(i)}; }
    [[nodiscard]] std::uint32_t letters(std::size_t i) const { return letters_[i]; }
    [[nodiscard]] std::uint32_t length(std::size_t i) const { return database_.length(i); }
    [[nodiscard]] std::int16_t value(std::size_t i) const { return wordValues_[i]; }
    // The three arrays at once, for loops over many words.
    [[nodiscard]] const std::uint32_t* letterSets() const { return letters_.data(); }
    [[nodiscard]] const std::int16_t* wordValues() const { return wordValues_.data(); }
    [[nodiscard]] const std::uint32_t* entryStarts() const { return database_.entryStarts(); }
    // The word as stored, and the alphabet index of each of its bytes once
    // upper-cased (meaningful for words without kOtherBit).
    [[nodiscard]] std::string_view bytes(std::size_t i) const { return database_.bytes(i); }
    [[nodiscard]] int alphabetIndexOfByte(char byte) const {
        return alphabetIndex_[static_cast<unsigned char>(byte)];
    }
    // The upper-cased word, decoded.
    [[nodiscard]] std::u16string upper(std::size_t i) const;
    [[nodiscard]] const LetterValueTable& values() const { return letterValues_; }
    [[nodiscard]] const WordDatabase& database() const { return database_; }

private:
    WordDatabase database_;
    LetterValueTable letterValues_;
    ByteTable<char16_t> upper_{};
    ByteTable<std::int8_t> alphabetIndex_{};
    LargeArray<std::uint32_t> letters_;
    LargeArray<std::int16_t> wordValues_;
};

} // namespace lettriner
