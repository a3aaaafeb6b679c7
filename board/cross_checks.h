// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Cross-checks for moves along rows: for every empty square, the letters a
// tile laid there may show so that the word it forms down its column (the
// cross word) is in the word graph, the value of the cross word's board tiles
// (its cross-score) and how many board tiles it has. A square with no tile
// above or below allows every letter and has no cross word. For moves down
// the columns, compute them on the transposed board.

#include "board/board.h"
#include "board/tile_values.h"
#include "board/word_graph.h"

#include <array>
#include <cstdint>

namespace lettriner::board {

struct CrossCheck {
    LetterMask allowed = kAllLetters; // 0 on occupied squares
    std::int16_t score = 0;           // the cross word's board tiles (blanks 0)
    std::uint8_t boardTiles = 0;      // 0: no cross word
};

class CrossChecks {
public:
    CrossChecks() = default;
    CrossChecks(const Board& board, const WordGraph& graph, const TileValues& values);

    [[nodiscard]] const CrossCheck& at(int row, int column) const {
        return checks_[static_cast<std::size_t>(row * kBoardSize + column)];
    }
    // After tiles were laid in `column` (a move across lays one per column,
    // a move down several in one), only that column's squares change.
    void recomputeColumn(const Board& board, int column, const WordGraph& graph,
                         const TileValues& values);

private:
    std::array<CrossCheck, kBoardSize * kBoardSize> checks_{};
};

} // namespace lettriner::board
