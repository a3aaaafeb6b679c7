// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/move_generator.h"

#include "board/play_lines.h"
#include "board/premium_layout.h"
#include "board/score_bounds.h"

#include <algorithm>
#include <array>
#include <bit>
#include <span>

namespace lettriner::board {

namespace {

constexpr int kBonus = 50;
constexpr int kLast = kBoardSize - 1;

// Where a walk starts and how far it may go: from an anchor, laying no tile
// left of `leftLimit`; with a stretch, exactly over start..end.
struct WalkTask {
    Direction direction;
    int line;
    int anchor;
    int leftLimit;
    int start = -1; // -1: any stretch
    int end = -1;
};

class Walker {
public:
    Walker(const WordGraph& graph, const Rack& rack, const TileValues& values,
           const MoveFilter& filter, MoveRecorder& recorder)
        : arcs_(graph.data()), gaddagRoot_(graph.gaddagRoot()), recorder_(recorder),
          mandatory_(filter.mandatory), minimumScore_(filter.minimumScore), rackSize_(rack.size()) {
        for (int i = 0; i < rack.size(); ++i)
            ++counts_[rack[i]];
        blanks_ = counts_[kRackBlank];
        counts_[kRackBlank] = 0;
        rackLetters_ = rack.letters();
        for (Letter letter = 1; letter <= kLetterCount; ++letter)
            values_[letter] = values.letter(letter);
        // The rack's values, highest first, for the bound on what the tiles
        // still on the rack can add.
        for (int i = 0; i < rack.size(); ++i) {
            int value = rack[i] == kRackBlank ? 0 : values_[rack[i]];
            int at = i;
            for (; at > 0 && rackValues_[static_cast<std::size_t>(at - 1)] < value; --at)
                rackValues_[static_cast<std::size_t>(at)] =
                    rackValues_[static_cast<std::size_t>(at - 1)];
            rackValues_[static_cast<std::size_t>(at)] = value;
        }
    }

    void walk(const PlayLines& lines, const WalkTask& task) {
        direction_ = lines.direction;
        line_ = task.line;
        squares_ = lines.lines[static_cast<std::size_t>(task.line)].squares.data();
        anchor_ = task.anchor;
        leftLimit_ = task.leftLimit;
        start_ = task.start;
        stretchStart_ = task.start;
        stretchEnd_ = task.end;
        onStretch_ = task.start >= 0;
        if (onStretch_) {
            pivot_ = stretchPivot();
            prepareStretch(lines.lines[static_cast<std::size_t>(task.line)]);
        } else {
            // Board tiles right after the anchor belong to every move from
            // it: the walk reads them first (GADDAG strings may start
            // anywhere in a word), so their letters prune it before any tile
            // is laid.
            pivot_ = anchor_;
            while (pivot_ < kLast && squares_[pivot_ + 1].tile != kEmpty)
                ++pivot_;
        }
        if (gaddagRoot_ != 0)
            goLeft(pivot_, gaddagRoot_);
    }

    // The moves on a stretch that lays the whole rack, from the words made
    // of the rack and the stretch's board letters: each word that fits the
    // board letters and the cross-checks, with each way of laying blanks.
    void fitWords(const PlayLines& lines, const WalkTask& task,
                  std::span<const PackedLetters> words) {
        direction_ = lines.direction;
        line_ = task.line;
        squares_ = lines.lines[static_cast<std::size_t>(task.line)].squares.data();
        const int start = task.start;
        const int length = task.end - task.start + 1;
        for (const PackedLetters word : words) {
            if (length < 8 && (word >> (8 * length)) != 0)
                continue;
            bool fits = true;
            for (int i = 0; i < length && fits; ++i) {
                const LineSquare& square = squares_[start + i];
                const auto letter = static_cast<Letter>((word >> (8 * i)) & 0xFF);
                fits = square.tile != kEmpty ? letterOf(square.tile) == letter
                                             : ((square.allowed >> letter) & 1u) != 0;
                word_[static_cast<std::size_t>(start + i)] =
                    square.tile != kEmpty ? square.tile : static_cast<Tile>(letter);
            }
            if (fits)
                layWord(start, task.end, start);
        }
    }

    // Every move on an empty board: each word the rack spells, found once by
    // walking the DAWG, laid across row 8 at every column that puts one of
    // its letters on the centre. (The GADDAG would find each word once for
    // every letter that can lie on the centre.)
    void walkEmptyBoard(const PlayLines& lines, std::uint32_t dawgRoot) {
        direction_ = Direction::Across;
        line_ = kCentre;
        squares_ = lines.lines[static_cast<std::size_t>(kCentre)].squares.data();
        if (dawgRoot != 0)
            spell(0, dawgRoot);
    }

private:
    void spell(int length, std::uint32_t node) {
        const LetterMask allowed = squares_[kCentre].allowed; // all letters but the forbidden
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            const Letter letter = arcLetter(arc);
            if ((allowed >> letter) & 1u) {
                if (counts_[letter] != 0) {
                    --counts_[letter];
                    spelled_[static_cast<std::size_t>(length)] = letter;
                    spelledOn(length + 1, arc);
                    ++counts_[letter];
                }
                if (blanks_ != 0) {
                    --blanks_;
                    spelled_[static_cast<std::size_t>(length)] =
                        static_cast<Tile>(letter | kBlankBit);
                    spelledOn(length + 1, arc);
                    ++blanks_;
                }
            }
            if (arcIsLast(arc))
                break;
        }
    }

    void spelledOn(int length, Arc arc) {
        if (arcAccepts(arc) && length >= 2) {
            for (int first = std::max(0, kCentre - length + 1); first <= kCentre; ++first)
                recordSpelled(first, length);
        }
        if (length < rackSize_ && arcChild(arc) != 0)
            spell(length, arcChild(arc));
    }

    void recordSpelled(int first, int length) {
        mainSum_ = 0;
        wordMultiplier_ = 1;
        crossSum_ = 0;
        laid_ = length;
        laidPositions_ = 0;
        for (int i = 0; i < length; ++i) {
            const LineSquare& square = squares_[first + i];
            const Tile tile = spelled_[static_cast<std::size_t>(i)];
            word_[static_cast<std::size_t>(first + i)] = tile;
            mainSum_ += (isBlank(tile) ? 0 : values_[letterOf(tile)]) * square.letterMultiplier;
            wordMultiplier_ *= square.wordMultiplier;
            laidPositions_ = static_cast<std::uint16_t>(laidPositions_ | (1u << (first + i)));
        }
        record(first, first + length - 1);
        laid_ = 0;
        laidPositions_ = 0;
        mainSum_ = 0;
        wordMultiplier_ = 1;
    }

    // Lays the fitted word's open squares from `position` on, each with a
    // real tile while the rack has one and with a blank while it has one,
    // then scores and records every complete way.
    void layWord(int start, int end, int position) {
        while (position <= end && squares_[position].tile != kEmpty)
            ++position;
        if (position > end) {
            scoreLaidWord(start, end);
            return;
        }
        const Letter letter = letterOf(word_[static_cast<std::size_t>(position)]);
        laidPositions_ |= static_cast<std::uint16_t>(1u << position);
        if (counts_[letter] != 0) {
            --counts_[letter];
            word_[static_cast<std::size_t>(position)] = letter;
            layWord(start, end, position + 1);
            ++counts_[letter];
        }
        if (blanks_ != 0) {
            --blanks_;
            word_[static_cast<std::size_t>(position)] = static_cast<Tile>(letter | kBlankBit);
            layWord(start, end, position + 1);
            ++blanks_;
        }
        word_[static_cast<std::size_t>(position)] = letter;
        laidPositions_ &= static_cast<std::uint16_t>(~(1u << position));
    }

    void scoreLaidWord(int start, int end) {
        mainSum_ = 0;
        wordMultiplier_ = 1;
        crossSum_ = 0;
        laid_ = 0;
        for (int position = start; position <= end; ++position) {
            const LineSquare& square = squares_[position];
            if (square.tile != kEmpty) {
                mainSum_ += square.tileValue;
                continue;
            }
            const Tile tile = word_[static_cast<std::size_t>(position)];
            const int laidValue =
                (isBlank(tile) ? 0 : values_[letterOf(tile)]) * square.letterMultiplier;
            ++laid_;
            mainSum_ += laidValue;
            wordMultiplier_ *= square.wordMultiplier;
            if (square.crossTiles != 0)
                crossSum_ += (square.crossScore + laidValue) * square.wordMultiplier;
        }
        record(start, end);
        mainSum_ = 0;
        wordMultiplier_ = 1;
        crossSum_ = 0;
        laid_ = 0;
    }

    [[nodiscard]] int threshold() const { return std::max(recorder_.threshold(), minimumScore_); }

    [[nodiscard]] LetterMask available() const { return blanks_ != 0 ? kAllLetters : rackLetters_; }

    // Where a walk over a stretch starts. Any square will do, since the
    // stretch fixes the word's place: the end of a run of board tiles, whose
    // letters prune at once; else the open square allowing fewest letters,
    // the highest multiplier among equals, where the score bound bites first.
    [[nodiscard]] int stretchPivot() const {
        int pivot = stretchStart_;
        int bestRank = -1;
        const LetterMask usable = available();
        for (int position = stretchStart_; position <= stretchEnd_; ++position) {
            const LineSquare& square = squares_[position];
            int rank = 0;
            if (square.tile != kEmpty) {
                if (position < stretchEnd_ && squares_[position + 1].tile != kEmpty)
                    continue;
                rank = 1 << 20;
            } else {
                const int letters = std::popcount(square.allowed & usable);
                rank = ((kLetterCount + 1 - letters) << 8) +
                       square.letterMultiplier * square.wordMultiplier;
            }
            if (rank > bestRank) {
                bestRank = rank;
                pivot = position;
            }
        }
        return pivot;
    }

    // For a walk over one stretch: its fixed score, the multiplier of each
    // square, and for each number of tiles laid the multipliers of the
    // squares still open (the walk lays them in a fixed order: from the
    // pivot leftwards, then rightwards), highest first.
    void prepareStretch(const PlayLine& line) {
        const StretchScoring scoring = stretchScoring(line, stretchStart_, stretchEnd_);
        stretchFixed_ = scoring.fixed;
        multipliers_ = scoring.multiplier;
        std::array<int, kRackSize> order{};
        int open = 0;
        for (int position = pivot_; position >= stretchStart_; --position) {
            if (squares_[position].tile == kEmpty)
                order[static_cast<std::size_t>(open++)] =
                    multipliers_[static_cast<std::size_t>(position)];
        }
        for (int position = pivot_ + 1; position <= stretchEnd_; ++position) {
            if (squares_[position].tile == kEmpty)
                order[static_cast<std::size_t>(open++)] =
                    multipliers_[static_cast<std::size_t>(position)];
        }
        for (int laid = 0; laid <= open; ++laid) {
            auto& still = stillOpen_[static_cast<std::size_t>(laid)];
            still.fill(0);
            std::copy(order.begin() + laid, order.begin() + open, still.begin());
            std::sort(still.begin(), still.end(), std::greater<>());
        }
        stretchKey_ =
            placeKey(0, direction_ == Direction::Across ? line_ : stretchStart_,
                     direction_ == Direction::Across ? stretchStart_ : line_, direction_) &
            0xFFFFFFFFu;
        tileSum_ = 0;
        usedValues_ = 0;
    }

    // Whether a move on this stretch could still be kept once a tile worth
    // `value` lies on `position`: the tiles laid so far, this one, and the
    // rack's best remaining values on the best remaining squares.
    [[nodiscard]] bool stretchCanReach(int position, int value, int laidBefore) const {
        const auto& still = stillOpen_[static_cast<std::size_t>(laidBefore + 1)];
        int best =
            stretchFixed_ + tileSum_ + value * multipliers_[static_cast<std::size_t>(position)];
        bool skipped = false;
        int next = 0;
        for (int i = 0; i < rackSize_ && still[static_cast<std::size_t>(next)] != 0; ++i) {
            if ((usedValues_ >> i) & 1u)
                continue;
            const int remaining = rackValues_[static_cast<std::size_t>(i)];
            if (!skipped && remaining == value) {
                skipped = true;
                continue;
            }
            best += remaining * still[static_cast<std::size_t>(next++)];
        }
        if (best < minimumScore_)
            return false;
        const std::uint64_t key =
            (static_cast<std::uint64_t>(std::int64_t{INT32_MAX} - best) << 32) | stretchKey_;
        return key <= recorder_.thresholdKey();
    }

    // Marks a rack value `value` used; returns its bit, to clear afterwards.
    unsigned useValue(int value) {
        for (int i = 0; i < rackSize_; ++i) {
            const unsigned bit = 1u << i;
            if ((usedValues_ & bit) == 0 && rackValues_[static_cast<std::size_t>(i)] == value) {
                usedValues_ |= bit;
                return bit;
            }
        }
        return 0;
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
    template <bool Leftward, bool OnStretch> void layEach(int position, std::uint32_t node) {
        const LineSquare& square = squares_[position];
        const LetterMask possible = square.allowed & available();
        if (possible == 0)
            return;
        const int savedMain = mainSum_;
        const int savedMultiplier = wordMultiplier_;
        const int savedCross = crossSum_;
        const int savedTiles = tileSum_;
        const int letterMultiplier = square.letterMultiplier;
        const int wordMultiplier = square.wordMultiplier;
        const bool crossWord = square.crossTiles != 0;
        const int laidBefore = laid_;
        // On a stretch the blank's bound is the same for every letter.
        const bool blankCanReach =
            !OnStretch || (blanks_ != 0 && stretchCanReach(position, 0, laidBefore));
        ++laid_;
        laidPositions_ |= static_cast<std::uint16_t>(1u << position);
        wordMultiplier_ = savedMultiplier * wordMultiplier;
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = arcs_[i];
            const Letter letter = arcLetter(arc);
            if ((possible >> letter) & 1u) {
                if (counts_[letter] != 0) {
                    const int value = values_[letter];
                    if (!OnStretch || stretchCanReach(position, value, laidBefore)) {
                        const int laidValue = value * letterMultiplier;
                        mainSum_ = savedMain + laidValue;
                        crossSum_ = crossWord ? savedCross +
                                                    (square.crossScore + laidValue) * wordMultiplier
                                              : savedCross;
                        word_[position] = letter;
                        if (--counts_[letter] == 0)
                            rackLetters_ &= ~maskOf(letter);
                        unsigned used = 0;
                        if constexpr (OnStretch) {
                            tileSum_ = savedTiles +
                                       value * multipliers_[static_cast<std::size_t>(position)];
                            used = useValue(value);
                        }
                        next<Leftward>(position, arc);
                        usedValues_ &= ~used;
                        if (counts_[letter]++ == 0)
                            rackLetters_ |= maskOf(letter);
                    }
                }
                if (blanks_ != 0 && blankCanReach) {
                    mainSum_ = savedMain;
                    crossSum_ =
                        crossWord ? savedCross + square.crossScore * wordMultiplier : savedCross;
                    word_[position] = static_cast<Tile>(letter | kBlankBit);
                    --blanks_;
                    unsigned used = 0;
                    if constexpr (OnStretch) {
                        tileSum_ = savedTiles;
                        used = useValue(0);
                    }
                    next<Leftward>(position, arc);
                    usedValues_ &= ~used;
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
        tileSum_ = savedTiles;
    }

    template <bool Leftward> void next(int position, Arc arc) {
        if constexpr (Leftward)
            afterLeft(position, arc);
        else
            afterRight(position, arc);
    }

    template <bool Leftward> void layOn(int position, std::uint32_t node) {
        if (onStretch_)
            layEach<Leftward, true>(position, node);
        else
            layEach<Leftward, false>(position, node);
    }

    // The word so far runs from `position` to the pivot.
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
            layOn<true>(position, node);
        }
    }

    void afterLeft(int position, Arc arc) {
        const std::uint32_t child = arcChild(arc);
        if (onStretch_) {
            // The stretch fixes where the word starts and ends.
            if (position > stretchStart_) {
                if (child != 0)
                    goLeft(position - 1, child);
                return;
            }
            start_ = position;
            if (arcAccepts(arc) && stretchEnd_ == pivot_)
                record(position, pivot_);
            if (child != 0 && stretchEnd_ > pivot_ && arcLetter(arcs_[child]) == kSeparator) {
                const std::uint32_t right = arcChild(arcs_[child]);
                if (right != 0)
                    goRight(pivot_ + 1, right);
            }
            return;
        }
        // Still on the board tiles after the anchor: the anchor comes next.
        if (position > anchor_) {
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
            layOn<false>(position, node);
        }
    }

    void afterRight(int position, Arc arc) {
        if (arcAccepts(arc) && (position == kLast || squares_[position + 1].tile == kEmpty) &&
            (!onStretch_ || position == stretchEnd_))
            record(start_, position);
        const std::uint32_t child = arcChild(arc);
        if (child != 0 && position < kLast && (!onStretch_ || position < stretchEnd_))
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
            const int crossLength = squares_[std::countr_zero(laidPositions_)].crossTiles + 1;
            if (direction_ == Direction::Across ? length < crossLength : length <= crossLength)
                return;
        }
        if (mandatory_ != 0) {
            LetterMask laidLetters = 0;
            for (unsigned bits = laidPositions_; bits != 0; bits &= bits - 1)
                laidLetters |=
                    maskOf(letterOf(word_[static_cast<std::size_t>(std::countr_zero(bits))]));
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
    std::array<int, kRackSize> rackValues_{};
    int blanks_ = 0;
    LetterMask rackLetters_ = 0;

    Direction direction_ = Direction::Across;
    int line_ = 0;
    const LineSquare* squares_ = nullptr;
    int anchor_ = 0;
    int pivot_ = 0; // where the walk starts: the anchor, or the end of the board tiles after it
    int leftLimit_ = -1;
    bool onStretch_ = false; // else the walk covers every stretch from the anchor
    int stretchStart_ = -1;
    int stretchEnd_ = -1;

    // On a stretch: what every move scores, each square's multiplier, the
    // multipliers still open by tiles laid, the sum laid so far, which rack
    // values are used, and the stretch's place in the move order.
    int stretchFixed_ = 0;
    std::array<int, kBoardSize> multipliers_{};
    std::array<std::array<int, kRackSize + 1>, kRackSize + 1> stillOpen_{};
    int tileSum_ = 0;
    unsigned usedValues_ = 0;
    std::uint64_t stretchKey_ = 0;

    std::array<Tile, kBoardSize> word_{};
    std::array<Tile, kRackSize> spelled_{}; // a word spelled on an empty board
    std::uint16_t laidPositions_ = 0;
    int laid_ = 0;
    int start_ = 0;
    int mainSum_ = 0;
    int wordMultiplier_ = 1;
    int crossSum_ = 0;
};

// Every anchor of the lines, with the previous anchor of its line as the
// limit of its walk to the left.
template <typename Visit> void forEachAnchor(const PlayLines& lines, Visit visit) {
    for (int line = 0; line < kBoardSize; ++line) {
        int leftLimit = -1;
        const auto& squares = lines.lines[static_cast<std::size_t>(line)].squares;
        for (int position = 0; position < kBoardSize; ++position) {
            if (!squares[static_cast<std::size_t>(position)].anchor)
                continue;
            visit(line, position, leftLimit);
            leftLimit = position;
        }
    }
}

// The words made of exactly `letters` and `blanks` blanks standing for any
// letter: one lookup per choice of the blanks' letters.
std::vector<PackedLetters> anagramsOf(const AnagramIndex& index, const LetterString& letters,
                                      int blanks) {
    std::vector<PackedLetters> words;
    LetterString all = letters;
    const auto lookUp = [&] {
        const std::span<const PackedLetters> found = index.wordsOf(sortedKey(packLetters(all)));
        words.insert(words.end(), found.begin(), found.end());
    };
    if (blanks == 0) {
        lookUp();
    } else if (blanks == 1) {
        for (Letter first = 1; first <= kLetterCount; ++first) {
            all = letters + LetterString{first};
            lookUp();
        }
    } else if (blanks == 2) {
        for (Letter first = 1; first <= kLetterCount; ++first) {
            for (Letter second = first; second <= kLetterCount; ++second) {
                all = letters + LetterString{first, second};
                lookUp();
            }
        }
    }
    return words;
}

// A stretch to walk, ordered by its bound's place key: the highest bound
// first and, among equal bounds, the move order's first place.
struct StretchTask {
    std::uint64_t key;
    WalkTask task;
    int open; // squares the stretch lays tiles on
};

} // namespace

void generateMoves(const Board& board, const Rack& rack, const Lexicon& lexicon,
                   const TileValues& values, const MoveFilter& filter, MoveRecorder& recorder) {
    const WordGraph& graph = lexicon.graph;
    if (rack.empty() || graph.empty())
        return;
    std::array<PlayLines, 2> lines{};
    lines[0] = playLines(board, Direction::Across, graph, values, filter.forbidden);
    const bool emptyBoard = !board.hasTiles();
    if (!emptyBoard)
        lines[1] = playLines(board, Direction::Down, graph, values, filter.forbidden);
    const int directions = emptyBoard ? 1 : 2;
    Walker walker(graph, rack, values, filter, recorder);
    const RackValues rackTiles = rackValues(rack, values);
    const LetterMask available = rack.blanks() != 0 ? kAllLetters : rack.letters();

    if (!recorder.raisesThreshold() && emptyBoard) {
        walker.walkEmptyBoard(lines[0], graph.dawgRoot());
        return;
    }
    if (!recorder.raisesThreshold()) {
        // Every move: one walk per anchor, skipping anchors that cannot
        // reach the minimum score.
        const bool bounded = filter.minimumScore > INT_MIN || recorder.threshold() > INT_MIN;
        for (int d = 0; d < directions; ++d) {
            forEachAnchor(lines[static_cast<std::size_t>(d)], [&](int line, int anchor,
                                                                  int leftLimit) {
                const PlayLine& playLine =
                    lines[static_cast<std::size_t>(d)].lines[static_cast<std::size_t>(line)];
                if (bounded && anchorScoreBound(playLine, anchor, leftLimit, available, rackTiles) <
                                   std::max(filter.minimumScore, recorder.threshold()))
                    return;
                walker.walk(
                    lines[static_cast<std::size_t>(d)],
                    {lines[static_cast<std::size_t>(d)].direction, line, anchor, leftLimit});
            });
        }
        return;
    }

    // The best moves: every stretch of every anchor with its bound, walked
    // best bound first, each walk pruned by the same bound as tiles are laid,
    // until no stretch left can beat the moves kept.
    std::vector<StretchTask> tasks;
    std::vector<StretchBound> stretches;
    for (int d = 0; d < directions; ++d) {
        const PlayLines& dirLines = lines[static_cast<std::size_t>(d)];
        forEachAnchor(dirLines, [&](int line, int anchor, int leftLimit) {
            stretches.clear();
            anchorStretches(dirLines.lines[static_cast<std::size_t>(line)], anchor, leftLimit,
                            available, rackTiles, stretches);
            for (const StretchBound& stretch : stretches) {
                if (stretch.bound < filter.minimumScore)
                    continue;
                const bool across = dirLines.direction == Direction::Across;
                const std::uint64_t key =
                    placeKey(stretch.bound, across ? line : stretch.start,
                             across ? stretch.start : line, dirLines.direction);
                tasks.push_back(
                    {key,
                     {dirLines.direction, line, anchor, leftLimit, stretch.start, stretch.end},
                     stretch.open});
            }
        });
    }
    const auto later = [](const StretchTask& a, const StretchTask& b) {
        return a.key > b.key;
    };
    std::make_heap(tasks.begin(), tasks.end(), later);
    // The words of the whole rack and a stretch's board letters, by those
    // letters, each set looked up once.
    std::vector<std::pair<LetterString, std::vector<PackedLetters>>> wholeRackWords;
    LetterString rackLetters;
    for (int i = 0; i < rack.size(); ++i) {
        if (rack[i] != kRackBlank)
            rackLetters.push_back(rack[i]);
    }
    while (!tasks.empty()) {
        std::pop_heap(tasks.begin(), tasks.end(), later);
        const StretchTask task = tasks.back();
        tasks.pop_back();
        if (task.key > recorder.thresholdKey())
            break;
        const PlayLines& taskLines = lines[task.task.direction == Direction::Across ? 0 : 1];
        const auto length = static_cast<std::size_t>(task.task.end - task.task.start + 1);
        if (task.open != rack.size() || length < AnagramIndex::kShortest ||
            length > AnagramIndex::kLongest || rack.blanks() > 2 || lexicon.anagrams.empty()) {
            walker.walk(taskLines, task.task);
            continue;
        }
        // A stretch laying the whole rack spells an anagram of the rack and
        // its board letters: looked up, not walked.
        LetterString boardLetters;
        const auto& squares = taskLines.lines[static_cast<std::size_t>(task.task.line)].squares;
        for (int position = task.task.start; position <= task.task.end; ++position) {
            if (squares[static_cast<std::size_t>(position)].tile != kEmpty)
                boardLetters.push_back(letterOf(squares[static_cast<std::size_t>(position)].tile));
        }
        std::sort(boardLetters.begin(), boardLetters.end());
        auto found = std::find_if(wholeRackWords.begin(), wholeRackWords.end(),
                                  [&](const auto& entry) { return entry.first == boardLetters; });
        if (found == wholeRackWords.end()) {
            wholeRackWords.emplace_back(
                boardLetters,
                anagramsOf(lexicon.anagrams, rackLetters + boardLetters, rack.blanks()));
            found = wholeRackWords.end() - 1;
        }
        walker.fitWords(taskLines, task.task, found->second);
    }
}

std::vector<Move> allMoves(const Board& board, const Rack& rack, const Lexicon& lexicon,
                           const TileValues& values, const MoveFilter& filter) {
    AllMovesRecorder recorder;
    generateMoves(board, rack, lexicon, values, filter, recorder);
    return recorder.takeSorted();
}

std::vector<Move> bestMoves(const Board& board, const Rack& rack, const Lexicon& lexicon,
                            const TileValues& values, std::size_t count, const MoveFilter& filter) {
    BestMovesRecorder recorder(count);
    generateMoves(board, rack, lexicon, values, filter, recorder);
    return recorder.takeSorted();
}

} // namespace lettriner::board
