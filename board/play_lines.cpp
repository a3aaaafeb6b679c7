// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/play_lines.h"

#include "board/premium_layout.h"

namespace lettriner::board {

PlayLines playLines(const Board& board, Direction direction, const WordGraph& graph,
                    const TileValues& values, LetterMask forbidden) {
    // Lines run along rows of the oriented board: the board itself for moves
    // across, its transpose for moves down.
    const Board oriented = direction == Direction::Across ? board : board.transposed();
    const CrossChecks checks(oriented, graph, values);
    const bool emptyBoard = !board.hasTiles();
    PlayLines result;
    result.direction = direction;
    for (int line = 0; line < kBoardSize; ++line) {
        for (int position = 0; position < kBoardSize; ++position) {
            LineSquare& square = result.lines[static_cast<std::size_t>(line)]
                                     .squares[static_cast<std::size_t>(position)];
            const Premium premium = direction == Direction::Across ? premiumAt(line, position)
                                                                   : premiumAt(position, line);
            square.letterMultiplier = premium.letter;
            square.wordMultiplier = premium.word;
            square.tile = oriented.at(line, position);
            if (square.tile != kEmpty) {
                square.tileValue = static_cast<std::int16_t>(values.tile(square.tile));
                continue;
            }
            const CrossCheck& check = checks.at(line, position);
            square.allowed = check.allowed & ~forbidden;
            square.crossScore = check.score;
            square.crossTiles = check.boardTiles;
            if (emptyBoard) {
                square.anchor =
                    direction == Direction::Across && line == kCentre && position == kCentre;
            } else {
                square.anchor = oriented.at(line - 1, position) != kEmpty ||
                                oriented.at(line + 1, position) != kEmpty ||
                                oriented.at(line, position - 1) != kEmpty ||
                                oriented.at(line, position + 1) != kEmpty;
            }
        }
    }
    return result;
}

} // namespace lettriner::board
