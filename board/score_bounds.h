// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the moves from one anchor can score, so that "best only" and "best N"
// visit the most promising placements first and stop once no remaining one
// can beat what they hold. A stretch is the span a move's main word covers;
// for each stretch a move from the anchor could cover, the bound takes the
// board tiles and cross-scores as they are and lays the rack's most valuable
// tiles on the squares that multiply most (ignoring which letters fit where),
// so no move on that stretch can score more.

#include "board/play_lines.h"
#include "board/rack.h"
#include "board/tile_values.h"

#include <array>
#include <cstdint>
#include <vector>

namespace lettriner::board {

// The rack's tile values, highest first (blanks 0).
struct RackValues {
    std::array<int, kRackSize> descending{};
    int count = 0;
};
[[nodiscard]] RackValues rackValues(const Rack& rack, const TileValues& values);

struct StretchBound {
    std::int8_t start; // first and last square of the main word
    std::int8_t end;
    std::int8_t open; // squares a move on it lays tiles on
    int bound;
};

// Every stretch along `line` that covers `anchor`, lays no tile left of it
// beyond `leftLimit` (exclusive, -1 for none), lays at most the rack's tiles
// and none on a square allowing none of `available`, with its bound; appended
// to `stretches`.
void anchorStretches(const PlayLine& line, int anchor, int leftLimit, LetterMask available,
                     const RackValues& rack, std::vector<StretchBound>& stretches);

// The highest bound of the anchor's stretches; INT_MIN when it has none.
[[nodiscard]] int anchorScoreBound(const PlayLine& line, int anchor, int leftLimit,
                                   LetterMask available, const RackValues& rack);

// A stretch's score split as the generator lays tiles: every move on it
// scores `fixed` (board tiles, cross-scores, the bonus) plus, for each laid
// tile, its value times the multiplier of its square.
struct StretchScoring {
    int fixed = 0;
    std::array<int, kBoardSize> multiplier{}; // by square; 0 on board tiles
};
[[nodiscard]] StretchScoring stretchScoring(const PlayLine& line, int start, int end);

} // namespace lettriner::board
