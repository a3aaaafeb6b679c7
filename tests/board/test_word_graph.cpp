// SPDX-License-Identifier: GPL-3.0-or-later
// The word graph holds exactly the words (read forwards through the DAWG,
// and every GADDAG string of them), takes from the list exactly the entries
// a board can hold, and cross-checks agree with a plain twin.

#include "board/anagram_index.h"
#include "board/cross_checks.h"
#include "board/move_generator.h"
#include "board/playable_words.h"
#include "board_test_support.h"
#include "reference_generator.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner::board {
namespace {

using testing::lettersOf;

// Every string the graph accepts from `root`, depth-first.
std::set<LetterString> accepted(const WordGraph& graph, std::uint32_t root) {
    std::set<LetterString> strings;
    LetterString path;
    const std::function<void(std::uint32_t)> visit = [&](std::uint32_t node) {
        if (node == 0 || path.size() > kBoardSize + 1)
            return;
        for (std::uint32_t i = node;; ++i) {
            const Arc arc = graph.arcs()[i];
            path.push_back(arcLetter(arc));
            if (arcAccepts(arc))
                strings.insert(path);
            visit(arcChild(arc));
            path.pop_back();
            if (arcIsLast(arc))
                break;
        }
    };
    visit(root);
    return strings;
}

std::set<LetterString> gaddagStrings(const std::vector<LetterString>& words) {
    std::set<LetterString> strings;
    for (const LetterString& word : words) {
        for (std::size_t i = 0; i < word.size(); ++i) {
            LetterString string(word.rbegin() + static_cast<std::ptrdiff_t>(word.size() - 1 - i),
                                word.rend());
            if (i + 1 < word.size())
                string += LetterString{kSeparator} + word.substr(i + 1);
            strings.insert(string);
        }
    }
    return strings;
}

TEST(WordGraph, HoldsExactlyTheWordsBothWays) {
    for (const unsigned seed : {1u, 2u, 3u}) {
        const std::vector<LetterString> words = testing::smallLexicon(seed);
        const WordGraph graph = buildWordGraph(words);
        EXPECT_EQ(validateWordGraph(graph.arcs()), "");
        EXPECT_EQ(graph.wordCount(), words.size());
        EXPECT_EQ(accepted(graph, graph.dawgRoot()),
                  std::set<LetterString>(words.begin(), words.end()));
        EXPECT_EQ(accepted(graph, graph.gaddagRoot()), gaddagStrings(words));
        // Words, their prefixes and extensions: contains() says which are words.
        const std::set<LetterString> wordSet(words.begin(), words.end());
        for (const LetterString& word : words) {
            for (const LetterString& probe :
                 {word, word.substr(0, word.size() - 1), word + lettersOf("E"), word.substr(1)})
                EXPECT_EQ(graph.contains(probe), wordSet.contains(probe));
        }
    }
}

TEST(WordGraph, KeepsOnlyBoardWordsOnce) {
    // Duplicates once; one letter, sixteen letters, codes outside 1..29 left out.
    const std::vector<LetterString> words = {lettersOf("AB"),
                                             lettersOf("AB"),
                                             lettersOf("A"),
                                             lettersOf("ABCDEFGHIJKLMNOP"),
                                             LetterString{1, 30},
                                             LetterString{1, 0},
                                             lettersOf("ABCDEFGHIJKLMNO")};
    const WordGraph graph = buildWordGraph(words);
    EXPECT_EQ(accepted(graph, graph.dawgRoot()),
              (std::set<LetterString>{lettersOf("AB"), lettersOf("ABCDEFGHIJKLMNO")}));
    EXPECT_TRUE(buildWordGraph({}).empty());
    EXPECT_FALSE(buildWordGraph({}).contains(lettersOf("AB")));
}

TEST(PlayableWords, UpperCasesAndSkipsWhatNoBoardHolds) {
    const std::vector<std::u16string> entries = {
        u"Aachener",         u"äußern",          u"Öl",  u"übel", u"a", u"ab-c", u"Straße", u"Café",
        u"Donaudampfschiff", u"Donaudampfschif", u"ZUG", u"x y",  u""};
    std::vector<std::string> expected = {"AACHENER", "ÖL", "ÜBEL", "DONAUDAMPFSCHIF", "ZUG"};
    EXPECT_EQ(playableWords(entries), lettersOf(expected));
    // The same entries read as the word list file holds them.
    std::u16string text;
    for (const std::u16string& entry : entries)
        text += entry + u"\r\n";
    EXPECT_EQ(playableWords(WordDatabase(text)), lettersOf(expected));
}

TEST(ValidateWordGraph, RefusesWhatCouldLeadOutside) {
    const Arc leaf = makeArc(1, true, true, 0);
    // clang-format off
    const std::vector<std::pair<std::vector<Arc>, std::string>> cases = {
        {{}, "the word graph has no roots"},
        {{2, 2, leaf}, ""},
        {{3, 2, leaf}, "a root of the word graph points outside it"},
        {{2, 2, makeArc(1, true, true, 3)}, "an arc of the word graph points outside it"},
        {{2, 2, makeArc(1, true, false, 0)}, "the word graph's last node does not end"},
        {{2, 2, makeArc(30, true, true, 0)}, "the word graph holds a letter outside the alphabet"},
        {{2, 2, leaf | 0x80000000u}, "the word graph holds a letter outside the alphabet"},
    };
    // clang-format on
    for (const auto& [arcs, message] : cases)
        EXPECT_EQ(validateWordGraph(arcs), message);
}

TEST(AnagramIndex, GivesExactlyTheWordsOfALetterSet) {
    const std::vector<LetterString> words = {
        lettersOf("GARTENS"), lettersOf("GRASTEN"),    lettersOf("ANREGST"), lettersOf("ANREGSTE"),
        lettersOf("HAUS"),    lettersOf("DONAUDAMPF"), lettersOf("GARTENS")};
    const AnagramIndex index = buildAnagramIndex(words);
    EXPECT_EQ(AnagramIndex::validate(index.words(), index.table()), "");
    const auto wordsOf = [&](std::string_view letters) {
        std::vector<LetterString> found;
        for (const PackedLetters word : index.wordsOf(sortedKey(packLetters(lettersOf(letters))))) {
            LetterString text;
            for (int i = 0; i < 8 && ((word >> (8 * i)) & 0xFF) != 0; ++i)
                text.push_back(static_cast<Letter>((word >> (8 * i)) & 0xFF));
            found.push_back(text);
        }
        std::sort(found.begin(), found.end());
        return found;
    };
    EXPECT_EQ(wordsOf("ENTSAGR"),
              lettersOf(std::vector<std::string>{"ANREGST", "GARTENS", "GRASTEN"}));
    EXPECT_EQ(wordsOf("EENTSAGR"), lettersOf(std::vector<std::string>{"ANREGSTE"}));
    EXPECT_TRUE(wordsOf("HAUS").empty()); // shorter than seven: not indexed
    EXPECT_TRUE(wordsOf("ENTSAGX").empty());
    EXPECT_TRUE(buildAnagramIndex({}).empty());
    EXPECT_TRUE(AnagramIndex{}.wordsOf(1).empty());
}

TEST(AnagramIndex, ValidateRefusesTablesThatCouldLeadAstray) {
    // clang-format off
    const std::vector<std::tuple<std::vector<PackedLetters>, std::vector<std::uint32_t>, std::string>> cases = {
        {{}, {}, ""},
        {{0x01}, {0, 1}, ""},
        {{0x1E}, {0, 1}, "the anagram index holds a letter outside the alphabet"},
        {{0x01}, {}, "the anagram index has words but no table"},
        {{0x01}, {0, 1, 0}, "the anagram index's table has a size that is not a power of two"},
        {{0x01}, {0, 2}, "the anagram index's table points past its words"},
        {{0x01}, {1, 1}, "the anagram index's table is full"},
    };
    // clang-format on
    for (const auto& [words, slots, message] : cases)
        EXPECT_EQ(AnagramIndex::validate(words, slots), message);
}

TEST(CrossChecks, AgreeWithTryingEveryLetter) {
    const std::vector<LetterString> words = testing::smallLexicon(4);
    const WordGraph graph = buildWordGraph(words);
    const testing::ReferenceLexicon lexicon(words);
    const TileValues values = testing::germanValues();
    std::mt19937 random(4);
    Board board;
    // Kept up to date by recomputing only the columns a move lays tiles in.
    CrossChecks updated(board, graph, values);
    for (int turn = 0; turn < 40; ++turn) {
        const CrossChecks checks(board, graph, values);
        for (int row = 0; row < kBoardSize; ++row) {
            for (int column = 0; column < kBoardSize; ++column) {
                if (board.at(row, column) != kEmpty)
                    continue;
                int top = row;
                while (board.at(top - 1, column) != kEmpty)
                    --top;
                int bottom = row;
                while (board.at(bottom + 1, column) != kEmpty)
                    ++bottom;
                LetterMask allowed = 0;
                int score = 0;
                for (Letter letter = 1; letter <= kLetterCount; ++letter) {
                    LetterString word;
                    for (int r = top; r <= bottom; ++r)
                        word.push_back(r == row ? letter : letterOf(board.at(r, column)));
                    if (word.size() == 1 || lexicon.contains(word))
                        allowed |= maskOf(letter);
                }
                for (int r = top; r <= bottom; ++r)
                    score += r == row ? 0 : values.tile(board.at(r, column));
                for (const CrossCheck* check :
                     {&checks.at(row, column), &updated.at(row, column)}) {
                    ASSERT_EQ(check->allowed, allowed) << "row " << row << " column " << column;
                    ASSERT_EQ(check->score, score);
                    ASSERT_EQ(check->boardTiles, bottom - top);
                }
            }
        }
        const std::vector<Move> moves =
            allMoves(board, testing::randomRack(random, 1), Lexicon{graph, {}}, values);
        if (moves.empty()) {
            board = Board{};
            updated = CrossChecks(board, graph, values);
            continue;
        }
        const Move& move = moves[random() % moves.size()];
        applyMove(board, move);
        for (const LaidTile& tile : laidTiles(move))
            updated.recomputeColumn(board, tile.column, graph, values);
    }
}

} // namespace
} // namespace lettriner::board
