// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A move as the generator records it: where its main word starts, which way
// it runs, the main word's tiles (board tiles and laid tiles alike; a laid
// blank carries kBlankBit), which of them were laid, and the score. Small and
// flat (28 bytes), since a full generation records thousands. The cross
// words follow from the board (move_text.h renders them).

#include "board/board.h"
#include "board/tiles.h"

#include <array>
#include <compare>
#include <cstdint>
#include <vector>

namespace lettriner::board {

struct Move {
    std::array<Tile, kBoardSize> word{}; // word[0 .. length - 1]
    std::uint8_t length = 0;
    std::uint8_t row = 0;    // 0-based, of the main word's first square
    std::uint8_t column = 0; // 0-based
    Direction direction = Direction::Across;
    std::uint16_t laid = 0; // bit i: word[i] is a tile laid by this move
    std::int32_t score = 0;

    [[nodiscard]] int laidCount() const;
    [[nodiscard]] bool isLaid(int index) const { return ((laid >> index) & 1u) != 0; }
    [[nodiscard]] int rowOf(int index) const {
        return row + (direction == Direction::Down ? index : 0);
    }
    [[nodiscard]] int columnOf(int index) const {
        return column + (direction == Direction::Across ? index : 0);
    }
    friend bool operator==(const Move&, const Move&) = default;
};

// A tile a move lays, and where.
struct LaidTile {
    int row = 0;
    int column = 0;
    Tile tile = kEmpty; // a letter, with kBlankBit for a blank
    friend bool operator==(const LaidTile&, const LaidTile&) = default;
};

// The tiles a move lays, in word order.
[[nodiscard]] std::vector<LaidTile> laidTiles(const Move& move);

// Lays the move's tiles on the board (the board's own tiles stay as they are).
void applyMove(Board& board, const Move& move);

// The order every list uses: score descending, then row, column, across
// before down, then the word (its letters first; for the same letters a real
// tile before a blank, position by position). Moves that differ in nothing
// compare equal.
[[nodiscard]] std::strong_ordering compareMoves(const Move& a, const Move& b);

// Score, row, column and direction in one number that sorts like them.
[[nodiscard]] inline std::uint64_t placeKey(std::int32_t score, int row, int column,
                                            Direction direction) {
    const auto descendingScore = static_cast<std::uint64_t>(std::int64_t{INT32_MAX} - score);
    return (descendingScore << 32) | (static_cast<std::uint64_t>(row) << 16) |
           (static_cast<std::uint64_t>(column) << 8) | static_cast<std::uint64_t>(direction);
}
[[nodiscard]] inline std::uint64_t movePlaceKey(const Move& move) {
    return placeKey(move.score, move.row, move.column, move.direction);
}

[[nodiscard]] inline bool movePrecedes(const Move& a, const Move& b) {
    const std::uint64_t left = movePlaceKey(a);
    const std::uint64_t right = movePlaceKey(b);
    if (left != right)
        return left < right;
    return compareMoves(a, b) < 0;
}

} // namespace lettriner::board
