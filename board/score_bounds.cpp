// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/score_bounds.h"

#include <algorithm>
#include <climits>

namespace lettriner::board {

namespace {

constexpr int kBonus = 50;

// The empty squares of a stretch, as the bound needs them.
struct OpenSquare {
    int letterMultiplier;
    int crossWordMultiplier; // the square's word premium when it has a cross word, else 0
    int crossPart;           // the cross word's board tiles times its word premium
    int wordMultiplier;
};

struct Stretch {
    std::array<OpenSquare, kRackSize> open{};
    int openCount = 0;
    int boardTiles = 0; // value of the board tiles in the main word
};

int boundOf(const Stretch& stretch, const RackValues& rack) {
    int wordMultiplier = 1;
    int fixed = 0;
    std::array<int, kRackSize> multipliers{};
    for (int i = 0; i < stretch.openCount; ++i) {
        const OpenSquare& square = stretch.open[static_cast<std::size_t>(i)];
        wordMultiplier *= square.wordMultiplier;
        fixed += square.crossPart;
    }
    for (int i = 0; i < stretch.openCount; ++i) {
        const OpenSquare& square = stretch.open[static_cast<std::size_t>(i)];
        // A tile's value counts in the main word and, when there is one, in its cross word.
        const int multiplier =
            square.letterMultiplier * (wordMultiplier + square.crossWordMultiplier);
        int at = i;
        for (; at > 0 && multipliers[static_cast<std::size_t>(at - 1)] < multiplier; --at)
            multipliers[static_cast<std::size_t>(at)] =
                multipliers[static_cast<std::size_t>(at - 1)];
        multipliers[static_cast<std::size_t>(at)] = multiplier;
    }
    int tiles = 0;
    for (int i = 0; i < stretch.openCount; ++i)
        tiles +=
            multipliers[static_cast<std::size_t>(i)] * rack.descending[static_cast<std::size_t>(i)];
    const int bonus = stretch.openCount == kRackSize ? kBonus : 0;
    return stretch.boardTiles * wordMultiplier + fixed + tiles + bonus;
}

OpenSquare openSquare(const LineSquare& square) {
    const int crossWord = square.crossTiles != 0 ? square.wordMultiplier : 0;
    return {square.letterMultiplier, crossWord, square.crossScore * crossWord,
            square.wordMultiplier};
}

} // namespace

RackValues rackValues(const Rack& rack, const TileValues& values) {
    RackValues result;
    for (int i = 0; i < rack.size(); ++i) {
        const Letter tile = rack[i];
        const int value = tile == kRackBlank ? 0 : values.letter(tile);
        int at = result.count++;
        for (; at > 0 && result.descending[static_cast<std::size_t>(at - 1)] < value; --at)
            result.descending[static_cast<std::size_t>(at)] =
                result.descending[static_cast<std::size_t>(at - 1)];
        result.descending[static_cast<std::size_t>(at)] = value;
    }
    return result;
}

void anchorStretches(const PlayLine& line, int anchor, int leftLimit, LetterMask available,
                     const RackValues& rack, std::vector<StretchBound>& stretches) {
    const auto& squares = line.squares;
    const auto square = [&](int position) -> const LineSquare& {
        return squares[static_cast<std::size_t>(position)];
    };
    if (rack.count == 0 || (square(anchor).allowed & available) == 0)
        return;
    // The stretch's left part grows one square at a time; for every place it
    // may start, the right part grows from the anchor the same way.
    Stretch left;
    left.open[0] = openSquare(square(anchor));
    left.openCount = 1;
    for (int start = anchor;;) {
        if (start == 0 || square(start - 1).tile == kEmpty) {
            Stretch stretch = left;
            for (int end = anchor;;) {
                if (end == kBoardSize - 1 || square(end + 1).tile == kEmpty) {
                    stretches.push_back(
                        {static_cast<std::int8_t>(start), static_cast<std::int8_t>(end),
                         static_cast<std::int8_t>(stretch.openCount), boundOf(stretch, rack)});
                }
                if (++end == kBoardSize)
                    break;
                const LineSquare& next = square(end);
                if (next.tile != kEmpty) {
                    stretch.boardTiles += next.tileValue;
                    continue;
                }
                if (stretch.openCount == rack.count || (next.allowed & available) == 0)
                    break;
                stretch.open[static_cast<std::size_t>(stretch.openCount++)] = openSquare(next);
            }
        }
        if (--start <= leftLimit || start < 0)
            break;
        const LineSquare& next = square(start);
        if (next.tile != kEmpty) {
            left.boardTiles += next.tileValue;
            continue;
        }
        if (left.openCount == rack.count || (next.allowed & available) == 0)
            break;
        left.open[static_cast<std::size_t>(left.openCount++)] = openSquare(next);
    }
}

int anchorScoreBound(const PlayLine& line, int anchor, int leftLimit, LetterMask available,
                     const RackValues& rack) {
    thread_local std::vector<StretchBound> stretches;
    stretches.clear();
    anchorStretches(line, anchor, leftLimit, available, rack, stretches);
    int best = INT_MIN;
    for (const StretchBound& stretch : stretches)
        best = std::max(best, stretch.bound);
    return best;
}

StretchScoring stretchScoring(const PlayLine& line, int start, int end) {
    StretchScoring scoring;
    int wordMultiplier = 1;
    int boardTiles = 0;
    int open = 0;
    for (int position = start; position <= end; ++position) {
        const LineSquare& square = line.squares[static_cast<std::size_t>(position)];
        if (square.tile != kEmpty) {
            boardTiles += square.tileValue;
            continue;
        }
        ++open;
        wordMultiplier *= square.wordMultiplier;
        if (square.crossTiles != 0)
            scoring.fixed += square.crossScore * square.wordMultiplier;
    }
    scoring.fixed += boardTiles * wordMultiplier + (open == kRackSize ? kBonus : 0);
    for (int position = start; position <= end; ++position) {
        const LineSquare& square = line.squares[static_cast<std::size_t>(position)];
        if (square.tile == kEmpty) {
            const int crossWord = square.crossTiles != 0 ? square.wordMultiplier : 0;
            scoring.multiplier[static_cast<std::size_t>(position)] =
                square.letterMultiplier * (wordMultiplier + crossWord);
        }
    }
    return scoring;
}

} // namespace lettriner::board
