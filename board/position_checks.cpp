// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/position_checks.h"

#include "board/move_text.h"
#include "board/premium_layout.h"

#include <array>

namespace lettriner::board {

namespace {

void collectWords(const Board& board, Direction direction, const WordGraph& graph,
                  std::vector<BoardWord>& unknown) {
    const int rowStep = direction == Direction::Down ? 1 : 0;
    const int columnStep = direction == Direction::Across ? 1 : 0;
    for (int row = 0; row < kBoardSize; ++row) {
        for (int column = 0; column < kBoardSize; ++column) {
            if (board.at(row, column) == kEmpty ||
                board.at(row - rowStep, column - columnStep) != kEmpty)
                continue;
            BoardWord word{row, column, direction, {}};
            LetterString letters;
            for (int r = row, c = column; board.at(r, c) != kEmpty; r += rowStep, c += columnStep) {
                word.tiles.push_back(board.at(r, c));
                letters.push_back(letterOf(board.at(r, c)));
            }
            if (word.tiles.size() >= 2 && !graph.contains(letters))
                unknown.push_back(std::move(word));
        }
    }
}

} // namespace

std::string squareName(int row, int column) {
    return static_cast<char>('A' + column) + std::to_string(row + 1);
}

PositionWarnings checkPosition(const Board& board, const Rack& rack, const WordGraph& graph) {
    PositionWarnings warnings;
    collectWords(board, Direction::Across, graph, warnings.unknownWords);
    collectWords(board, Direction::Down, graph, warnings.unknownWords);

    std::array<bool, kBoardSize * kBoardSize> reached{};
    std::vector<Square> pending;
    if (board.at(kCentre, kCentre) != kEmpty)
        pending.push_back({kCentre, kCentre});
    else
        warnings.centreEmpty = board.hasTiles();
    while (!pending.empty()) {
        const Square square = pending.back();
        pending.pop_back();
        const auto index = static_cast<std::size_t>(square.row * kBoardSize + square.column);
        if (reached[index])
            continue;
        reached[index] = true;
        for (const Square next :
             {Square{square.row - 1, square.column}, Square{square.row + 1, square.column},
              Square{square.row, square.column - 1}, Square{square.row, square.column + 1}}) {
            if (board.at(next.row, next.column) != kEmpty)
                pending.push_back(next);
        }
    }
    std::array<int, kLetterCount + 1> counts{};
    for (int row = 0; row < kBoardSize; ++row) {
        for (int column = 0; column < kBoardSize; ++column) {
            const Tile tile = board.at(row, column);
            if (tile == kEmpty)
                continue;
            ++counts[isBlank(tile) ? kRackBlank : letterOf(tile)];
            if (!reached[static_cast<std::size_t>(row * kBoardSize + column)])
                warnings.unconnectedTiles.push_back({row, column});
        }
    }
    for (int i = 0; i < rack.size(); ++i)
        ++counts[rack[i]];
    const auto& set = germanTileSet();
    for (Letter letter = 0; letter <= kLetterCount; ++letter) {
        if (counts[letter] > set[letter])
            warnings.excessTiles.push_back({letter, counts[letter], set[letter]});
    }
    return warnings;
}

std::vector<std::string> warningTexts(const PositionWarnings& warnings) {
    std::vector<std::string> texts;
    for (const BoardWord& word : warnings.unknownWords) {
        Move place;
        place.row = static_cast<std::uint8_t>(word.row);
        place.column = static_cast<std::uint8_t>(word.column);
        place.direction = word.direction;
        texts.push_back("not in the word list: " + tilesText(word.tiles) + " at " +
                        moveCoordinate(place));
    }
    if (warnings.centreEmpty)
        texts.emplace_back("the centre square H8 is empty");
    if (!warnings.unconnectedTiles.empty()) {
        std::string squares;
        for (const Square& square : warnings.unconnectedTiles)
            squares += (squares.empty() ? "" : ", ") + squareName(square.row, square.column);
        texts.push_back("tiles not connected to the centre: " + squares);
    }
    for (const ExcessTiles& excess : warnings.excessTiles) {
        const std::string what = excess.letter == kRackBlank
                                     ? std::string("blanks")
                                     : "tiles " + std::string(letterUtf8(excess.letter));
        texts.push_back("more " + what + " than the set holds: " + std::to_string(excess.count) +
                        " of " + std::to_string(excess.inSet));
    }
    return texts;
}

} // namespace lettriner::board
