// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What is odd about a position that reads fine: words on the board the word
// list lacks (a position from another dictionary), tiles not connected to the
// centre square, more tiles of a letter (board and rack together) than the
// German set holds. Warnings only: the move generator copes with all of them.

#include "board/board.h"
#include "board/rack.h"
#include "board/word_graph.h"

#include <string>
#include <vector>

namespace lettriner::board {

struct BoardWord {
    int row = 0; // first square, 0-based
    int column = 0;
    Direction direction = Direction::Across;
    std::vector<Tile> tiles;
    friend bool operator==(const BoardWord&, const BoardWord&) = default;
};

struct Square {
    int row = 0;
    int column = 0;
    friend bool operator==(const Square&, const Square&) = default;
};

struct ExcessTiles {
    Letter letter = kNoLetter; // kRackBlank for blanks
    int count = 0;             // on the board and the rack
    int inSet = 0;
    friend bool operator==(const ExcessTiles&, const ExcessTiles&) = default;
};

struct PositionWarnings {
    std::vector<BoardWord> unknownWords;  // runs of two or more tiles, in board order
    bool centreEmpty = false;             // the board has tiles but none on H8
    std::vector<Square> unconnectedTiles; // not reached from H8 through tiles
    std::vector<ExcessTiles> excessTiles; // in letter order, blanks first
    [[nodiscard]] bool empty() const {
        return unknownWords.empty() && !centreEmpty && unconnectedTiles.empty() &&
               excessTiles.empty();
    }
};

[[nodiscard]] PositionWarnings checkPosition(const Board& board, const Rack& rack,
                                             const WordGraph& graph);

// One English line per warning, e.g. "not in the word list: QWX at 8D".
[[nodiscard]] std::vector<std::string> warningTexts(const PositionWarnings& warnings);

// A square as the board names it: column letter, then row ("H8").
[[nodiscard]] std::string squareName(int row, int column);

} // namespace lettriner::board
