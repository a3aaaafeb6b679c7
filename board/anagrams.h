// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The words made of exactly a given set of letters: what a move laying the
// whole rack can spell, with the board letters its place crosses. Found once
// per set by walking the DAWG, so that the best-move search tries them on
// every such place instead of walking the GADDAG for each.

#include "board/word_graph.h"

#include <array>
#include <cstdint>
#include <vector>

namespace lettriner::board {

// `counts` by letter (index 0 unused), `blanks` standing for any letter; the
// words use every letter and blank exactly once, in the DAWG's order. No
// letters: no words.
[[nodiscard]] std::vector<LetterString>
wordsOfLetters(const WordGraph& graph, const std::array<std::uint8_t, kLetterCount + 1>& counts,
               int blanks);

} // namespace lettriner::board
