// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board: 15x15 tiles (tiles.h: 0 empty, a letter code, the blank bit for
// a blank), rows and columns counted from 0. Reading outside gives kEmpty;
// writing outside is ignored.

#include "board/tiles.h"

#include <array>
#include <cstdint>

namespace lettriner::board {

enum class Direction : std::uint8_t { Across, Down };

class Board {
public:
    [[nodiscard]] Tile at(int row, int column) const {
        return inside(row, column) ? squares_[index(row, column)] : kEmpty;
    }
    void set(int row, int column, Tile tile) {
        if (inside(row, column))
            squares_[index(row, column)] = tile;
    }
    [[nodiscard]] bool hasTiles() const;
    // Rows become columns: the down lines of this board are the across lines of the result.
    [[nodiscard]] Board transposed() const;

    [[nodiscard]] static constexpr bool inside(int row, int column) {
        return row >= 0 && row < kBoardSize && column >= 0 && column < kBoardSize;
    }
    friend bool operator==(const Board&, const Board&) = default;

private:
    static constexpr std::size_t index(int row, int column) {
        return static_cast<std::size_t>(row * kBoardSize + column);
    }
    std::array<Tile, kBoardSize * kBoardSize> squares_{};
};

} // namespace lettriner::board
