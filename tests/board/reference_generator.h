// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The move generator's slow twin: every placement of every word of the list
// on every line, checked and scored the plain way. Obviously right, far too
// slow for the program; the fast generator must agree with it move for move.

#include "board/board.h"
#include "board/move.h"
#include "board/rack.h"
#include "board/tile_values.h"
#include "board/word_graph.h"

#include <set>
#include <vector>

namespace lettriner::board::testing {

class ReferenceLexicon {
public:
    explicit ReferenceLexicon(std::vector<LetterString> words);
    [[nodiscard]] bool contains(const LetterString& word) const { return words_.contains(word); }
    [[nodiscard]] const std::set<LetterString>& words() const { return words_; }

private:
    std::set<LetterString> words_;
};

// Every legal move, in the move order.
[[nodiscard]] std::vector<Move> referenceMoves(const Board& board, const Rack& rack,
                                               const ReferenceLexicon& lexicon,
                                               const TileValues& values);

} // namespace lettriner::board::testing
