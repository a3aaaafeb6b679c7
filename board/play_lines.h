// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board as the generator and its score bounds read it along one
// direction: fifteen lines (rows for moves across, columns for moves down),
// each square with its tile, the letters a laid tile may show there (cross-
// check, forbidden letters removed), its cross-score, its premiums and
// whether it is an anchor (an empty square next to a tile, or the centre of
// an empty board), where every move along the line has a laid tile.

#include "board/board.h"
#include "board/cross_checks.h"
#include "board/tile_values.h"
#include "board/word_graph.h"

#include <array>
#include <cstdint>

namespace lettriner::board {

struct LineSquare {
    Tile tile = kEmpty;
    std::uint8_t letterMultiplier = 1;
    std::uint8_t wordMultiplier = 1;
    std::uint8_t crossTiles = 0; // board tiles of the cross word; 0: none
    LetterMask allowed = 0;
    std::int32_t crossScore = 0; // value of the cross word's board tiles
    std::int16_t tileValue = 0;  // value of the board tile (0 for blanks)
    bool anchor = false;
};

struct PlayLine {
    std::array<LineSquare, kBoardSize> squares;
};

struct PlayLines {
    Direction direction = Direction::Across;
    std::array<PlayLine, kBoardSize> lines;
};

// `forbidden` letters are allowed nowhere. On an empty board only the
// centre is an anchor, and only for moves across: the lines for moves down
// then have no anchor at all.
[[nodiscard]] PlayLines playLines(const Board& board, Direction direction, const WordGraph& graph,
                                  const TileValues& values, LetterMask forbidden);

} // namespace lettriner::board
