// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/board.h"

#include <algorithm>

namespace lettriner::board {

bool Board::hasTiles() const {
    return std::any_of(squares_.begin(), squares_.end(), [](Tile tile) { return tile != kEmpty; });
}

Board Board::transposed() const {
    Board result;
    for (int row = 0; row < kBoardSize; ++row) {
        for (int column = 0; column < kBoardSize; ++column)
            result.set(column, row, at(row, column));
    }
    return result;
}

} // namespace lettriner::board
