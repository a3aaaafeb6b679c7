// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference_generator.h"

#include "board/premium_layout.h"

#include <algorithm>
#include <array>

namespace lettriner::board::testing {

namespace {

struct Square {
    int row;
    int column;
};

Square squareAt(Direction direction, int line, int position) {
    return direction == Direction::Across ? Square{line, position} : Square{position, line};
}

// Letters the rack and the board hold together, with the rack's blanks able
// to stand for the rest: a word needing more cannot be laid anywhere.
bool couldBeLaid(const LetterString& word, const std::array<int, kLetterCount + 1>& available,
                 int blanks) {
    std::array<int, kLetterCount + 1> needed{};
    int missing = 0;
    for (const Letter letter : word) {
        if (++needed[letter] > available[letter])
            ++missing;
    }
    return missing <= blanks;
}

// The squares of the word through the empty `square` along `direction`
// once a tile lies there: the board tiles before it, itself, those after it.
std::vector<Square> crossSquares(const Board& board, Direction direction, Square square) {
    const int rowStep = direction == Direction::Down ? 1 : 0;
    const int columnStep = direction == Direction::Across ? 1 : 0;
    Square first = square;
    while (board.at(first.row - rowStep, first.column - columnStep) != kEmpty)
        first = {first.row - rowStep, first.column - columnStep};
    std::vector<Square> squares;
    for (Square at = first;; at = {at.row + rowStep, at.column + columnStep}) {
        if (at.row != square.row || at.column != square.column) {
            if (board.at(at.row, at.column) == kEmpty)
                break;
        }
        squares.push_back(at);
    }
    return squares;
}

} // namespace

ReferenceLexicon::ReferenceLexicon(std::vector<LetterString> words) {
    for (LetterString& word : words) {
        const bool letters = std::all_of(word.begin(), word.end(), [](Letter letter) {
            return letter >= 1 && letter <= kLetterCount;
        });
        if (letters && word.size() >= 2 && word.size() <= kBoardSize)
            words_.insert(std::move(word));
    }
}

std::vector<Move> referenceMoves(const Board& board, const Rack& rack,
                                 const ReferenceLexicon& lexicon, const TileValues& values) {
    std::array<int, kLetterCount + 1> available{};
    for (int i = 0; i < rack.size(); ++i)
        ++available[rack[i]];
    const int blanks = available[kRackBlank];
    for (int row = 0; row < kBoardSize; ++row) {
        for (int column = 0; column < kBoardSize; ++column) {
            if (board.at(row, column) != kEmpty)
                ++available[letterOf(board.at(row, column))];
        }
    }
    std::array<std::vector<const LetterString*>, kBoardSize + 1> byLength;
    for (const LetterString& word : lexicon.words()) {
        if (couldBeLaid(word, available, blanks))
            byLength[word.size()].push_back(&word);
    }

    const bool emptyBoard = !board.hasTiles();
    std::vector<Move> moves;
    for (const Direction direction : {Direction::Across, Direction::Down}) {
        if (emptyBoard && direction == Direction::Down)
            continue;
        const Direction crossDirection =
            direction == Direction::Across ? Direction::Down : Direction::Across;
        for (int line = 0; line < kBoardSize; ++line) {
            for (int start = 0; start < kBoardSize; ++start) {
                for (int length = 2; start + length <= kBoardSize; ++length) {
                    // The squares just before and after the word must be empty.
                    const Square before = squareAt(direction, line, start - 1);
                    const Square beyond = squareAt(direction, line, start + length);
                    if (board.at(before.row, before.column) != kEmpty ||
                        board.at(beyond.row, beyond.column) != kEmpty)
                        continue;
                    std::vector<int> open;
                    bool touches = false;
                    for (int k = 0; k < length; ++k) {
                        const Square square = squareAt(direction, line, start + k);
                        if (board.at(square.row, square.column) != kEmpty) {
                            touches = true;
                            continue;
                        }
                        open.push_back(k);
                        if (emptyBoard && square.row == kCentre && square.column == kCentre)
                            touches = true;
                        for (const auto& [dr, dc] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {
                            if (board.at(square.row + dr, square.column + dc) != kEmpty)
                                touches = true;
                        }
                    }
                    if (!touches || open.empty() || static_cast<int>(open.size()) > rack.size())
                        continue;
                    for (const LetterString* candidate :
                         byLength[static_cast<std::size_t>(length)]) {
                        const LetterString& word = *candidate;
                        bool fits = true;
                        for (int k = 0; k < length && fits; ++k) {
                            const Square square = squareAt(direction, line, start + k);
                            const Tile tile = board.at(square.row, square.column);
                            fits = tile == kEmpty ||
                                   letterOf(tile) == word[static_cast<std::size_t>(k)];
                        }
                        // Every cross word through a laid tile must be a word.
                        for (std::size_t i = 0; i < open.size() && fits; ++i) {
                            const Square square = squareAt(direction, line, start + open[i]);
                            LetterString cross;
                            for (const Square at : crossSquares(board, crossDirection, square)) {
                                cross.push_back(at.row == square.row && at.column == square.column
                                                    ? word[static_cast<std::size_t>(open[i])]
                                                    : letterOf(board.at(at.row, at.column)));
                            }
                            fits = cross.size() < 2 || lexicon.contains(cross);
                        }
                        if (!fits)
                            continue;
                        // A one-tile move is listed along its longer word, across when equal.
                        if (open.size() == 1) {
                            const Square square = squareAt(direction, line, start + open[0]);
                            const int crossLength = static_cast<int>(
                                crossSquares(board, crossDirection, square).size());
                            if (direction == Direction::Across ? length < crossLength
                                                               : length <= crossLength)
                                continue;
                        }
                        // Each choice of which laid tiles are blanks is a move of its own.
                        for (unsigned blankSet = 0; blankSet < (1u << open.size()); ++blankSet) {
                            std::array<int, kLetterCount + 1> used{};
                            for (std::size_t i = 0; i < open.size(); ++i) {
                                if ((blankSet >> i) & 1u)
                                    ++used[kRackBlank];
                                else
                                    ++used[word[static_cast<std::size_t>(open[i])]];
                            }
                            bool fromRack = true;
                            for (Letter letter = 0; letter <= kLetterCount; ++letter)
                                fromRack = fromRack && used[letter] <= rack.count(letter);
                            if (!fromRack)
                                continue;
                            Move move;
                            const Square first = squareAt(direction, line, start);
                            move.row = static_cast<std::uint8_t>(first.row);
                            move.column = static_cast<std::uint8_t>(first.column);
                            move.direction = direction;
                            move.length = static_cast<std::uint8_t>(length);
                            Board after = board;
                            for (std::size_t i = 0; i < open.size(); ++i) {
                                const int k = open[i];
                                const bool blank = ((blankSet >> i) & 1u) != 0;
                                const Tile tile = static_cast<Tile>(
                                    word[static_cast<std::size_t>(k)] | (blank ? kBlankBit : 0));
                                const Square square = squareAt(direction, line, start + k);
                                after.set(square.row, square.column, tile);
                                move.laid = static_cast<std::uint16_t>(move.laid | (1u << k));
                            }
                            for (int k = 0; k < length; ++k) {
                                const Square square = squareAt(direction, line, start + k);
                                move.word[static_cast<std::size_t>(k)] =
                                    after.at(square.row, square.column);
                            }
                            // The score, word by word: a letter premium only under a
                            // laid tile, the word premiums of the laid squares multiplied.
                            const auto wordScore = [&](const std::vector<Square>& squares) {
                                int sum = 0;
                                int multiplier = 1;
                                for (const Square at : squares) {
                                    const Tile tile = after.at(at.row, at.column);
                                    const int value =
                                        isBlank(tile) ? 0 : values.letter(letterOf(tile));
                                    if (board.at(at.row, at.column) == kEmpty) {
                                        sum += value * premiumAt(at.row, at.column).letter;
                                        multiplier *= premiumAt(at.row, at.column).word;
                                    } else {
                                        sum += value;
                                    }
                                }
                                return sum * multiplier;
                            };
                            std::vector<Square> mainSquares;
                            for (int k = 0; k < length; ++k)
                                mainSquares.push_back(squareAt(direction, line, start + k));
                            int score = wordScore(mainSquares);
                            for (const int k : open) {
                                const std::vector<Square> cross = crossSquares(
                                    board, crossDirection, squareAt(direction, line, start + k));
                                if (cross.size() >= 2)
                                    score += wordScore(cross);
                            }
                            if (open.size() == 7)
                                score += 50;
                            move.score = score;
                            moves.push_back(move);
                        }
                    }
                }
            }
        }
    }
    std::sort(moves.begin(), moves.end(), movePrecedes);
    return moves;
}

} // namespace lettriner::board::testing
