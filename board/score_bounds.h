// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Upper bounds on the score of the moves the generator can find from one
// anchor, so that "best only" and "best N" can visit the most promising
// anchors first and stop once no remaining anchor can beat what they hold.
// For every stretch of squares a move from the anchor could cover, the bound
// takes the board tiles and cross-scores as they are and lays the rack's most
// valuable tiles on the squares that multiply most (ignoring which letters
// fit where), so no move on that stretch can score more.

#include "board/play_lines.h"
#include "board/rack.h"
#include "board/tile_values.h"

#include <array>

namespace lettriner::board {

// The rack's tile values, highest first (blanks 0).
struct RackValues {
    std::array<int, kRackSize> descending{};
    int count = 0;
};
[[nodiscard]] RackValues rackValues(const Rack& rack, const TileValues& values);

// The highest score a move along `line` can reach that lays a tile on
// `anchor` and lays none left of it beyond `leftLimit` (exclusive, -1 for
// none), with squares allowing none of `available` left empty. INT_MIN when
// no stretch is possible.
[[nodiscard]] int anchorScoreBound(const PlayLine& line, int anchor, int leftLimit,
                                   LetterMask available, const RackValues& rack);

} // namespace lettriner::board
