// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/scoring.h"

#include "board/premium_layout.h"

namespace lettriner::board {

namespace {

constexpr int kBonus = 50;

// The word through (row, column) along `direction` on the board with the
// tiles laid, scored; no tiles when it has fewer than two letters.
FormedWord wordThrough(const Board& laidBoard, const Board& before, int row, int column,
                       Direction direction, const TileValues& values) {
    const int rowStep = direction == Direction::Down ? 1 : 0;
    const int columnStep = direction == Direction::Across ? 1 : 0;
    while (laidBoard.at(row - rowStep, column - columnStep) != kEmpty) {
        row -= rowStep;
        column -= columnStep;
    }
    FormedWord word;
    word.row = row;
    word.column = column;
    word.direction = direction;
    int sum = 0;
    int multiplier = 1;
    for (int r = row, c = column; laidBoard.at(r, c) != kEmpty; r += rowStep, c += columnStep) {
        const Tile tile = laidBoard.at(r, c);
        word.tiles.push_back(tile);
        if (before.at(r, c) == kEmpty) {
            const Premium premium = premiumAt(r, c);
            sum += values.tile(tile) * premium.letter;
            multiplier *= premium.word;
        } else {
            sum += values.tile(tile);
        }
    }
    if (word.tiles.size() < 2)
        word.tiles.clear();
    else
        word.score = sum * multiplier;
    return word;
}

} // namespace

PlacementScore scorePlacement(const Board& board, std::span<const LaidTile> tiles,
                              Direction direction, const TileValues& values) {
    PlacementScore result;
    if (tiles.empty())
        return result;
    Board laidBoard = board;
    for (const LaidTile& tile : tiles)
        laidBoard.set(tile.row, tile.column, tile.tile);
    const Direction cross = direction == Direction::Across ? Direction::Down : Direction::Across;
    FormedWord main =
        wordThrough(laidBoard, board, tiles[0].row, tiles[0].column, direction, values);
    if (!main.tiles.empty())
        result.words.push_back(std::move(main));
    for (const LaidTile& tile : tiles) {
        FormedWord word = wordThrough(laidBoard, board, tile.row, tile.column, cross, values);
        if (!word.tiles.empty())
            result.words.push_back(std::move(word));
    }
    if (tiles.size() == kRackSize)
        result.bonus = kBonus;
    result.total = result.bonus;
    for (const FormedWord& word : result.words)
        result.total += word.score;
    return result;
}

std::vector<FormedWord> crossWords(const Board& board, const Move& move, const TileValues& values) {
    const std::vector<LaidTile> tiles = laidTiles(move);
    PlacementScore scored = scorePlacement(board, tiles, move.direction, values);
    std::vector<FormedWord> result;
    for (FormedWord& word : scored.words) {
        if (word.direction != move.direction)
            result.push_back(std::move(word));
    }
    return result;
}

} // namespace lettriner::board
