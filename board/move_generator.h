// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The move generator: every legal move of a rack on a board, found by walking
// the GADDAG from each anchor square (Gordon's method): left from the anchor
// over board tiles and laid tiles, then across the separator to the right,
// laying only letters the square's cross-check allows. Each move comes from
// exactly one anchor: the leftmost anchor square it lays a tile on, since a
// walk never lays a tile on an anchor left of its own. Scores are summed as
// the tiles are laid (cross-scores make the cross words cheap). On an empty
// board every word the rack spells comes from one DAWG walk instead.
//
// For "best N" the walks go by stretch, the span a move's main word covers:
// every stretch gets an upper bound on its score (score_bounds.h), the
// highest are walked first, each walk is cut as soon as its tiles cannot
// reach the moves kept, and the search ends when no stretch left can. A
// stretch that lays the whole rack over 7 or 8 squares takes its words from
// the lexicon's anagram index instead of a walk.
//
// Rules as the German edition has them: a move lays 1 to 7 tiles in one line
// without gaps other than board tiles; on an empty board it covers H8 and
// only moves across are listed; a one-tile move is listed once, along its
// longer word (across when both are equally long); a blank standing for a
// letter and a real tile of it give two moves. An empty rack has no moves.

#include "board/board.h"
#include "board/lexicon.h"
#include "board/move.h"
#include "board/move_recorder.h"
#include "board/rack.h"
#include "board/tile_values.h"

#include <climits>
#include <cstddef>
#include <vector>

namespace lettriner::board {

// Limits on the moves recorded. A letter counts as laid when a laid tile
// shows it, a blank standing for it included.
struct MoveFilter {
    LetterMask mandatory = 0; // every one of these letters is laid
    LetterMask forbidden = 0; // none of these letters is laid
    int minimumScore = INT_MIN;
};

// Calls recorder.record() once for every legal move that passes the filter
// (and may leave out moves scoring below recorder.threshold()).
void generateMoves(const Board& board, const Rack& rack, const Lexicon& lexicon,
                   const TileValues& values, const MoveFilter& filter, MoveRecorder& recorder);

// Every legal move passing the filter, in the move order.
[[nodiscard]] std::vector<Move> allMoves(const Board& board, const Rack& rack,
                                         const Lexicon& lexicon, const TileValues& values,
                                         const MoveFilter& filter = {});

// The first `count` moves of allMoves(), found without generating them all.
[[nodiscard]] std::vector<Move> bestMoves(const Board& board, const Rack& rack,
                                          const Lexicon& lexicon, const TileValues& values,
                                          std::size_t count, const MoveFilter& filter = {});

} // namespace lettriner::board
