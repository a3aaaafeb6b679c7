// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/move_text.h"

#include "board/scoring.h"

namespace lettriner::board {

std::string moveCoordinate(const Move& move) {
    const std::string row = std::to_string(move.row + 1);
    const char column = static_cast<char>('A' + move.column);
    return move.direction == Direction::Across ? row + column : column + row;
}

std::string tilesText(std::span<const Tile> tiles) {
    std::string text;
    for (const Tile tile : tiles)
        text += tileUtf8(tile);
    return text;
}

std::string moveWord(const Move& move) {
    return tilesText(std::span(move.word.data(), move.length));
}

std::string laidTilesText(const Move& move) {
    std::string text;
    for (int i = 0; i < move.length; ++i) {
        if (move.isLaid(i))
            text += tileUtf8(move.word[static_cast<std::size_t>(i)]);
    }
    return text;
}

std::string rackLeave(const Rack& rack, const Move& move) {
    std::array<int, kLetterCount + 1> used{};
    for (int i = 0; i < move.length; ++i) {
        if (move.isLaid(i)) {
            const Tile tile = move.word[static_cast<std::size_t>(i)];
            ++used[isBlank(tile) ? kRackBlank : letterOf(tile)];
        }
    }
    std::string text;
    for (int i = 0; i < rack.size(); ++i) {
        const Letter tile = rack[i];
        if (used[tile] > 0) {
            --used[tile];
            continue;
        }
        text += tile == kRackBlank ? std::string_view("?") : letterUtf8(tile);
    }
    return text;
}

std::vector<std::string> crossWordTexts(const Board& board, const Move& move) {
    std::vector<std::string> texts;
    for (const FormedWord& word : crossWords(board, move, TileValues{}))
        texts.push_back(tilesText(word.tiles));
    return texts;
}

} // namespace lettriner::board
