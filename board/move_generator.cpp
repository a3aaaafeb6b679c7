// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/move_generator.h"

#include "board/play_lines.h"
#include "board/score_bounds.h"

#include <algorithm>
#include <array>
#include <bit>

namespace lettriner::board {

namespace {

constexpr int kBonus = 50;
constexpr int kLast = kBoardSize - 1;

// One anchor to walk from, with how far left its walk may lay tiles.
struct AnchorTask {
    int bound;
    std::uint8_t direction;
    std::uint8_t line;
    std::int8_t anchor;
    std::int8_t leftLimit;
};

class Walker {
public:
    Walker(const WordGraph& graph, const Rack& rack, const TileValues& values,
           const MoveFilter& filter, MoveRecorder& recorder)
        : arcs_(graph.data()), gaddagRoot_(graph.gaddagRoot()), recorder_(recorder),
          mandatory_(filter.mandatory), minimumScore_(filter.minimumScore),
          rackSize_(rack.size()) {
        for (int i = 0; i < rack.size(); ++i)
            ++counts_[rack[i]];
        blanks_ = counts_[kRackBlank];
        counts_[kRackBlank] = 0;
        rackLetters_ = rack.letters();
        for (Letter letter = 1; letter <= kLetterCount; ++letter)
            values_[letter] = values.letter(letter);
    }

    void walk(const PlayLines& lines, const AnchorTask& task) {
        direction_ = lines.direction;
        line_ = task.line;
        squares_ = lines.lines[task.line].squares.data();
        anchor_ = task.anchor;
        leftLimit_ = task.leftLimit;
        // Board tiles right after the anchor belong to every move from it:
        // the walk reads them first (GADDAG strings may start anywhere in a
        // word), so their letters prune it before any tile is laid.
        pivot_ = anchor_;
        while (pivot_ < kLast && squares_[pivot_ + 1].tile != kEmpty)
            ++pivot_;
        if (gaddagRoot_ != 0)
            goLeft(pivot_, gaddagRoot_);
    }

private:
    [[nodiscard]] int threshold() const { return std::max(recorder_.threshold(), minimumScore_); }

    [[nodiscard]] LetterMask available() const {
        return blanks_ != 0 ? kAllLetters : rackLetters_;
    }

    std::uint32_t findArc(std::uint32_t node, Letter letter) const {
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            if (arcLetter(arc) == letter)
                return i;
            if (arcIsLast(arc) || arcLetter(arc) > letter)
                return 0;
        }
    }

    // Lays the tiles the node allows on the empty square `position`, each
    // letter once from the rack and once as a blank, and goes on with `next`.
    template <bool Leftward>
    void layEach(int position, std::uint32_t node) {
        const LineSquare& square = squares_[position];
        const LetterMask possible = square.allowed & available();
        if (possible == 0)
            return;
        const int savedMain = mainSum_;
        const int savedMultiplier = wordMultiplier_;
        const int savedCross = crossSum_;
        const int letterMultiplier = square.letterMultiplier;
        const int wordMultiplier = square.wordMultiplier;
        const bool crossWord = square.crossTiles != 0;
        ++laid_;
        laidPositions_ |= static_cast<std::uint16_t>(1u << position);
        wordMultiplier_ = savedMultiplier * wordMultiplier;
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            const Letter letter = arcLetter(arc);
            if ((possible >> letter) & 1u) {
                if (counts_[letter] != 0) {
                    const int value = values_[letter] * letterMultiplier;
                    mainSum_ = savedMain + value;
                    crossSum_ = crossWord ? savedCross + (square.crossScore + value) * wordMultiplier
                                          : savedCross;
                    word_[position] = letter;
                    if (--counts_[letter] == 0)
                        rackLetters_ &= ~maskOf(letter);
                    next<Leftward>(position, arc);
                    if (counts_[letter]++ == 0)
                        rackLetters_ |= maskOf(letter);
                }
                if (blanks_ != 0) {
                    mainSum_ = savedMain;
                    crossSum_ = crossWord ? savedCross + square.crossScore * wordMultiplier
                                          : savedCross;
                    word_[position] = static_cast<Tile>(letter | kBlankBit);
                    --blanks_;
                    next<Leftward>(position, arc);
                    ++blanks_;
                }
            }
            if (arcIsLast(arc))
                break;
        }
        --laid_;
        laidPositions_ &= static_cast<std::uint16_t>(~(1u << position));
        mainSum_ = savedMain;
        wordMultiplier_ = savedMultiplier;
        crossSum_ = savedCross;
    }

    template <bool Leftward>
    void next(int position, Arc arc) {
        if constexpr (Leftward)
            afterLeft(position, arc);
        else
            afterRight(position, arc);
    }

    // The word so far runs from `position` to the anchor.
    void goLeft(int position, std::uint32_t node) {
        const LineSquare& square = squares_[position];
        if (square.tile != kEmpty) {
            const std::uint32_t arc = findArc(node, letterOf(square.tile));
            if (arc == 0)
                return;
            word_[position] = square.tile;
            mainSum_ += square.tileValue;
            afterLeft(position, arcs_[arc]);
            mainSum_ -= square.tileValue;
        } else if (laid_ < rackSize_) {
            layEach<true>(position, node);
        }
    }

    // The word so far runs from `position` to the pivot.
    void afterLeft(int position, Arc arc) {
        const std::uint32_t child = arcChild(arc);
        if (position > anchor_) {
            // Still on the board tiles after the anchor: the anchor comes next.
            if (child != 0)
                goLeft(position - 1, child);
            return;
        }
        start_ = position;
        const bool leftOpen = position == 0 || squares_[position - 1].tile == kEmpty;
        if (leftOpen && arcAccepts(arc))
            record(position, pivot_);
        if (child == 0)
            return;
        if (position - 1 > leftLimit_)
            goLeft(position - 1, child);
        // The separator sorts first among a node's arcs.
        if (leftOpen && pivot_ < kLast && arcLetter(arcs_[child]) == kSeparator) {
            start_ = position;
            const std::uint32_t right = arcChild(arcs_[child]);
            if (right != 0)
                goRight(pivot_ + 1, right);
        }
    }

    void goRight(int position, std::uint32_t node) {
        const LineSquare& square = squares_[position];
        if (square.tile != kEmpty) {
            const std::uint32_t arc = findArc(node, letterOf(square.tile));
            if (arc == 0)
                return;
            word_[position] = square.tile;
            mainSum_ += square.tileValue;
            afterRight(position, arcs_[arc]);
            mainSum_ -= square.tileValue;
        } else if (laid_ < rackSize_) {
            layEach<false>(position, node);
        }
    }

    void afterRight(int position, Arc arc) {
        if (arcAccepts(arc) && (position == kLast || squares_[position + 1].tile == kEmpty))
            record(start_, position);
        const std::uint32_t child = arcChild(arc);
        if (child != 0 && position < kLast)
            goRight(position + 1, child);
    }

    void record(int first, int last) {
        const int score =
            mainSum_ * wordMultiplier_ + crossSum_ + (laid_ == kRackSize ? kBonus : 0);
        if (score < threshold())
            return;
        const int length = last - first + 1;
        if (laid_ == 1) {
            // A single tile makes a word each way; it is listed along the longer.
            const int crossLength = squares_[anchor_].crossTiles + 1;
            if (direction_ == Direction::Across ? length < crossLength : length <= crossLength)
                return;
        }
        if (mandatory_ != 0) {
            LetterMask laidLetters = 0;
            for (unsigned bits = laidPositions_; bits != 0; bits &= bits - 1)
                laidLetters |= maskOf(letterOf(word_[std::countr_zero(bits)]));
            if ((laidLetters & mandatory_) != mandatory_)
                return;
        }
        Move move;
        std::copy(word_.begin() + first, word_.begin() + last + 1, move.word.begin());
        move.length = static_cast<std::uint8_t>(length);
        move.direction = direction_;
        if (direction_ == Direction::Across) {
            move.row = static_cast<std::uint8_t>(line_);
            move.column = static_cast<std::uint8_t>(first);
        } else {
            move.row = static_cast<std::uint8_t>(first);
            move.column = static_cast<std::uint8_t>(line_);
        }
        move.laid = static_cast<std::uint16_t>(laidPositions_ >> first);
        move.score = score;
        recorder_.record(move);
    }

    const Arc* arcs_;
    std::uint32_t gaddagRoot_;
    MoveRecorder& recorder_;
    LetterMask mandatory_;
    int minimumScore_;
    int rackSize_;
    std::array<std::uint8_t, kLetterCount + 1> counts_{};
    std::array<int, kLetterCount + 1> values_{};
    int blanks_ = 0;
    LetterMask rackLetters_ = 0;

    Direction direction_ = Direction::Across;
    int line_ = 0;
    const LineSquare* squares_ = nullptr;
    int anchor_ = 0;
    int pivot_ = 0; // where the walk starts: the anchor, or the end of the board tiles after it
    int leftLimit_ = -1;

    std::array<Tile, kBoardSize> word_{};
    std::uint16_t laidPositions_ = 0;
    int laid_ = 0;
    int start_ = 0;
    int mainSum_ = 0;
    int wordMultiplier_ = 1;
    int crossSum_ = 0;
};

void addTasks(const PlayLines& lines, std::vector<AnchorTask>& tasks) {
    for (int line = 0; line < kBoardSize; ++line) {
        int leftLimit = -1;
        const auto& squares = lines.lines[static_cast<std::size_t>(line)].squares;
        for (int position = 0; position < kBoardSize; ++position) {
            if (!squares[static_cast<std::size_t>(position)].anchor)
                continue;
            tasks.push_back({0, static_cast<std::uint8_t>(lines.direction),
                             static_cast<std::uint8_t>(line), static_cast<std::int8_t>(position),
                             static_cast<std::int8_t>(leftLimit)});
            leftLimit = position;
        }
    }
}

} // namespace

void generateMoves(const Board& board, const Rack& rack, const WordGraph& graph,
                   const TileValues& values, const MoveFilter& filter, MoveRecorder& recorder) {
    if (rack.empty() || graph.empty())
        return;
    std::array<PlayLines, 2> lines{};
    lines[0] = playLines(board, Direction::Across, graph, values, filter.forbidden);
    const bool emptyBoard = !board.hasTiles();
    if (!emptyBoard)
        lines[1] = playLines(board, Direction::Down, graph, values, filter.forbidden);
    std::vector<AnchorTask> tasks;
    tasks.reserve(2 * kBoardSize * kBoardSize);
    addTasks(lines[0], tasks);
    if (!emptyBoard)
        addTasks(lines[1], tasks);

    Walker walker(graph, rack, values, filter, recorder);

    const bool bounded = recorder.raisesThreshold() || recorder.threshold() > INT_MIN ||
                         filter.minimumScore > INT_MIN;
    if (!bounded) {
        for (const AnchorTask& task : tasks)
            walker.walk(lines[task.direction], task);
        return;
    }
    const RackValues rackTiles = rackValues(rack, values);
    const LetterMask available = rack.blanks() != 0 ? kAllLetters : rack.letters();
    for (AnchorTask& task : tasks) {
        task.bound = anchorScoreBound(lines[task.direction].lines[task.line], task.anchor,
                                      task.leftLimit, available, rackTiles);
    }
    std::stable_sort(tasks.begin(), tasks.end(),
                     [](const AnchorTask& a, const AnchorTask& b) { return a.bound > b.bound; });
    for (const AnchorTask& task : tasks) {
        if (task.bound < std::max(recorder.threshold(), filter.minimumScore))
            break;
        walker.walk(lines[task.direction], task);
    }
}

std::vector<Move> allMoves(const Board& board, const Rack& rack, const WordGraph& graph,
                           const TileValues& values, const MoveFilter& filter) {
    AllMovesRecorder recorder;
    generateMoves(board, rack, graph, values, filter, recorder);
    return recorder.takeSorted();
}

std::vector<Move> bestMoves(const Board& board, const Rack& rack, const WordGraph& graph,
                            const TileValues& values, std::size_t count,
                            const MoveFilter& filter) {
    BestMovesRecorder recorder(count);
    generateMoves(board, rack, graph, values, filter, recorder);
    return recorder.takeSorted();
}

} // namespace lettriner::board
