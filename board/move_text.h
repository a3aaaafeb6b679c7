// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A move as the lists show it, in UTF-8: the coordinate ("8D": across from
// row 8, column D; "D8": down from column D, row 8), the main word with
// blanks in lower case, the laid tiles in word order (blanks lower case),
// the rack leave ("?" for a blank, in rack order) and the cross words.

#include "board/move.h"
#include "board/rack.h"
#include "board/tile_values.h"

#include <span>
#include <string>
#include <vector>

namespace lettriner::board {

[[nodiscard]] std::string moveCoordinate(const Move& move);
[[nodiscard]] std::string moveWord(const Move& move);
[[nodiscard]] std::string laidTilesText(const Move& move);
// The rack tiles the move leaves; the move's tiles must come from the rack.
[[nodiscard]] std::string rackLeave(const Rack& rack, const Move& move);
// The cross words, in word order.
[[nodiscard]] std::vector<std::string> crossWordTexts(const Board& board, const Move& move);

// Tiles as text: upper case, a blank's letter in lower case, "." for empty.
[[nodiscard]] std::string tilesText(std::span<const Tile> tiles);

} // namespace lettriner::board
