// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The entries of the word list a board can hold: upper-cased with the
// program's casing (a-z, ä ö ü to A-Z, Ä Ö Ü), as letter codes. Entries that
// are not 2 to 15 letters of the 29 tiles (ß, spaces, hyphens, accents, one
// letter, longer than the board) are left out.

#include "board/word_graph.h"
#include "data/word_database.h"

#include <vector>

namespace lettriner::board {

// In list order, duplicates kept.
[[nodiscard]] std::vector<LetterString> playableWords(const WordDatabase& database);

// The same for text already decoded (tests): one word per element.
[[nodiscard]] std::vector<LetterString> playableWords(const std::vector<std::u16string>& words);

} // namespace lettriner::board
