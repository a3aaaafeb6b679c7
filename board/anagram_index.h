// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The words of 7 and 8 letters by their letters: what a move laying a whole
// rack of seven spans, alone or through one board tile. The best-move search
// asks it for the words of the rack and a place's board letter instead of
// proving with a walk, place by place, that hardly any fits.
//
// A word is 8 bytes (letter codes, a 7-letter word ends in 0); the words lie
// sorted by their letters sorted (the key), words of one key together; a
// hash table of keys points at each group's first word. Both arrays can come
// from a file: validate() makes every lookup stay inside them.

#include "board/tiles.h"
#include "board/word_graph.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace lettriner::board {

// A word or a key as 8 letter codes, the first in the lowest byte.
using PackedLetters = std::uint64_t;

[[nodiscard]] PackedLetters packLetters(std::span<const Letter> letters);
// The letters sorted ascending, zero bytes (a shorter word's end) last.
[[nodiscard]] PackedLetters sortedKey(PackedLetters word);

class AnagramIndex {
public:
    static constexpr std::size_t kShortest = 7;
    static constexpr std::size_t kLongest = 8;

    AnagramIndex() = default;
    // Takes arrays already checked by validate() (or built by
    // buildAnagramIndex). Copies of an index share its arrays.
    AnagramIndex(std::vector<PackedLetters> words, std::vector<std::uint32_t> table);

    [[nodiscard]] bool empty() const { return words().empty(); }
    // The words whose letters are the key's (sortedKey of any of them).
    [[nodiscard]] std::span<const PackedLetters> wordsOf(PackedLetters key) const;

    [[nodiscard]] std::span<const PackedLetters> words() const {
        return arrays_ ? std::span<const PackedLetters>(arrays_->words)
                       : std::span<const PackedLetters>();
    }
    // The hash table of the groups (named so as not to clash with Qt's
    // "slots" keyword in the window that includes this).
    [[nodiscard]] std::span<const std::uint32_t> table() const {
        return arrays_ ? std::span<const std::uint32_t>(arrays_->table)
                       : std::span<const std::uint32_t>();
    }

    // Why the arrays could lead a lookup astray, or empty when they cannot:
    // a letter outside the alphabet, a slot pointing past the words, a table
    // whose size is not a power of two or that has no empty slot.
    [[nodiscard]] static std::string validate(std::span<const PackedLetters> words,
                                              std::span<const std::uint32_t> table);

private:
    struct Arrays {
        std::vector<PackedLetters> words;
        std::vector<std::uint32_t> table; // per slot: index + 1 of a group's first word; 0 empty
    };
    std::shared_ptr<const Arrays> arrays_;
};

// The index of the words of 7 and 8 letters among `words` (letter codes 1..29,
// duplicates kept once).
[[nodiscard]] AnagramIndex buildAnagramIndex(const std::vector<LetterString>& words);

} // namespace lettriner::board
