// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/move.h"

#include <bit>

namespace lettriner::board {

int Move::laidCount() const {
    return std::popcount(laid);
}

std::vector<LaidTile> laidTiles(const Move& move) {
    std::vector<LaidTile> tiles;
    for (int i = 0; i < move.length; ++i) {
        if (move.isLaid(i))
            tiles.push_back(
                {move.rowOf(i), move.columnOf(i), move.word[static_cast<std::size_t>(i)]});
    }
    return tiles;
}

void applyMove(Board& board, const Move& move) {
    for (int i = 0; i < move.length; ++i) {
        if (move.isLaid(i))
            board.set(move.rowOf(i), move.columnOf(i), move.word[static_cast<std::size_t>(i)]);
    }
}

std::strong_ordering compareMoves(const Move& a, const Move& b) {
    if (a.score != b.score)
        return b.score <=> a.score;
    if (a.row != b.row)
        return a.row <=> b.row;
    if (a.column != b.column)
        return a.column <=> b.column;
    if (a.direction != b.direction)
        return a.direction <=> b.direction;
    const int shorter = a.length < b.length ? a.length : b.length;
    for (int i = 0; i < shorter; ++i) {
        const Letter left = letterOf(a.word[static_cast<std::size_t>(i)]);
        const Letter right = letterOf(b.word[static_cast<std::size_t>(i)]);
        if (left != right)
            return left <=> right;
    }
    if (a.length != b.length)
        return a.length <=> b.length;
    for (int i = 0; i < a.length; ++i) {
        const bool left = isBlank(a.word[static_cast<std::size_t>(i)]);
        const bool right = isBlank(b.word[static_cast<std::size_t>(i)]);
        if (left != right)
            return left <=> right;
    }
    // Same word on the same squares: the laid tiles follow from the board.
    return a.laid <=> b.laid;
}

} // namespace lettriner::board
