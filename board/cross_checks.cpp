// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/cross_checks.h"

namespace lettriner::board {

namespace {

// The node reached from `node` by the letters, or 0 when a letter has no arc.
std::uint32_t walk(const WordGraph& graph, std::uint32_t node, const Letter* letters, int count,
                   int step) {
    for (int i = 0; i < count && node != 0; ++i) {
        const std::uint32_t arc = graph.findArc(node, letters[i * step]);
        node = arc == 0 ? 0 : arcChild(graph.arcs()[arc]);
    }
    return node;
}

// The letters of the arcs leaving `node` that end an entry.
LetterMask acceptingLetters(const WordGraph& graph, std::uint32_t node) {
    LetterMask mask = 0;
    if (node == 0)
        return mask;
    const std::span<const Arc> arcs = graph.arcs();
    for (std::uint32_t i = node;; ++i) {
        if (arcAccepts(arcs[i]) && arcLetter(arcs[i]) != kSeparator)
            mask |= maskOf(arcLetter(arcs[i]));
        if (arcIsLast(arcs[i]))
            break;
    }
    return mask;
}

// Whether the letters, read from `node` on, end exactly on an accepting arc.
bool endsWord(const WordGraph& graph, std::uint32_t node, const Letter* letters, int count,
              int step) {
    const std::span<const Arc> arcs = graph.arcs();
    for (int i = 0; i < count; ++i) {
        const std::uint32_t arc = graph.findArc(node, letters[i * step]);
        if (arc == 0)
            return false;
        if (i + 1 == count)
            return arcAccepts(arcs[arc]);
        node = arcChild(arcs[arc]);
    }
    return false;
}

// Letters above (top to bottom) and below (top to bottom) the square.
CrossCheck checkSquare(const Board& board, int row, int column, const WordGraph& graph,
                       const TileValues& values) {
    std::array<Letter, kBoardSize> above{};
    std::array<Letter, kBoardSize> below{};
    int aboveCount = 0;
    int belowCount = 0;
    int score = 0;
    int top = row;
    while (board.at(top - 1, column) != kEmpty)
        --top;
    for (int r = top; r < row; ++r) {
        above[static_cast<std::size_t>(aboveCount++)] = letterOf(board.at(r, column));
        score += values.tile(board.at(r, column));
    }
    for (int r = row + 1; board.at(r, column) != kEmpty; ++r) {
        below[static_cast<std::size_t>(belowCount++)] = letterOf(board.at(r, column));
        score += values.tile(board.at(r, column));
    }
    CrossCheck check;
    check.boardTiles = static_cast<std::uint8_t>(aboveCount + belowCount);
    check.score = static_cast<std::int16_t>(score);
    if (check.boardTiles == 0)
        return check;
    if (belowCount == 0) {
        // The word above, then the new letter: the DAWG's node after it.
        check.allowed =
            acceptingLetters(graph, walk(graph, graph.dawgRoot(), above.data(), aboveCount, 1));
        return check;
    }
    const Letter* lastBelow = below.data() + belowCount - 1;
    if (aboveCount == 0) {
        // The word below read backwards, then the new letter: a whole word
        // reversed, which the GADDAG holds without a separator.
        check.allowed =
            acceptingLetters(graph, walk(graph, graph.gaddagRoot(), lastBelow, belowCount, -1));
        return check;
    }
    // Tiles on both sides: try each letter the shorter side's walk leaves
    // open and read the other side after it.
    LetterMask allowed = 0;
    const std::span<const Arc> arcs = graph.arcs();
    if (belowCount <= aboveCount) {
        const std::uint32_t node = walk(graph, graph.dawgRoot(), above.data(), aboveCount, 1);
        for (std::uint32_t i = node; node != 0; ++i) {
            const Letter letter = arcLetter(arcs[i]);
            if (endsWord(graph, arcChild(arcs[i]), below.data(), belowCount, 1))
                allowed |= maskOf(letter);
            if (arcIsLast(arcs[i]))
                break;
        }
    } else {
        const std::uint32_t node = walk(graph, graph.gaddagRoot(), lastBelow, belowCount, -1);
        for (std::uint32_t i = node; node != 0; ++i) {
            const Letter letter = arcLetter(arcs[i]);
            if (letter != kSeparator &&
                endsWord(graph, arcChild(arcs[i]), above.data() + aboveCount - 1, aboveCount, -1))
                allowed |= maskOf(letter);
            if (arcIsLast(arcs[i]))
                break;
        }
    }
    check.allowed = allowed;
    return check;
}

} // namespace

CrossChecks::CrossChecks(const Board& board, const WordGraph& graph, const TileValues& values) {
    for (int column = 0; column < kBoardSize; ++column)
        recomputeColumn(board, column, graph, values);
}

void CrossChecks::recomputeColumn(const Board& board, int column, const WordGraph& graph,
                                  const TileValues& values) {
    if (column < 0 || column >= kBoardSize)
        return;
    for (int row = 0; row < kBoardSize; ++row) {
        CrossCheck& check = checks_[static_cast<std::size_t>(row * kBoardSize + column)];
        if (board.at(row, column) != kEmpty) {
            check = CrossCheck{0, 0, 0};
        } else if (board.at(row - 1, column) == kEmpty && board.at(row + 1, column) == kEmpty) {
            check = CrossCheck{};
        } else {
            check = checkSquare(board, row, column, graph, values);
        }
    }
}

} // namespace lettriner::board
