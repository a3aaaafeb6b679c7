// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Scoring a set of laid tiles from scratch, word by word: what the window
// shows for tiles the user lays, and the cross words of a generated move.
// Each word formed (the main word along the move, each cross word through a
// laid tile, two letters or more) counts the sum of its letters, a laid
// tile's letter times its square's letter premium, a board tile's plainly,
// blanks 0; times the word premiums of the squares laid in that word. Laying
// all seven tiles of a seven-tile rack adds 50.

#include "board/board.h"
#include "board/move.h"
#include "board/tile_values.h"

#include <span>
#include <vector>

namespace lettriner::board {

struct FormedWord {
    int row = 0; // first square
    int column = 0;
    Direction direction = Direction::Across;
    std::vector<Tile> tiles;
    int score = 0;
};

struct PlacementScore {
    std::vector<FormedWord> words; // the main word first, when it has two letters or more
    int bonus = 0;
    int total = 0;
};

// The tiles must lie on empty squares of one line along `direction` with no
// gap other than board tiles; this is not checked (the generator's moves and
// the window's checked placements are). No tiles: no words, score 0.
[[nodiscard]] PlacementScore scorePlacement(const Board& board, std::span<const LaidTile> tiles,
                                            Direction direction, const TileValues& values);

// The words a move forms besides its main word, in word order.
[[nodiscard]] std::vector<FormedWord> crossWords(const Board& board, const Move& move,
                                                 const TileValues& values);

} // namespace lettriner::board
