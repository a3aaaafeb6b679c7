// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the move generator looks words up in: the word graph (DAWG and
// GADDAG) and the anagram index of the words a whole rack can span. Copies
// share their memory. A lexicon without an anagram index generates the same
// moves, only its best-move search is slower.

#include "board/anagram_index.h"
#include "board/word_graph.h"

#include <vector>

namespace lettriner::board {

struct Lexicon {
    WordGraph graph;
    AnagramIndex anagrams;
    [[nodiscard]] bool empty() const { return graph.empty(); }
};

// Both parts from the words (letter codes; duplicates, words outside 2..15
// letters and codes outside 1..29 left out).
[[nodiscard]] Lexicon buildLexicon(std::vector<LetterString> words);

} // namespace lettriner::board
