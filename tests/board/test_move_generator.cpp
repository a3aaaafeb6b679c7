// SPDX-License-Identifier: GPL-3.0-or-later
// The move generator against hand-worked moves and against its slow twin:
// on positions built by playing random moves over a small word list, and on
// a few over the shipped list. "Best N" and the filters against all moves.

#include "board/move_generator.h"
#include "board/move_text.h"
#include "board/playable_words.h"
#include "board/position_text.h"
#include "board/premium_layout.h"
#include "board/scoring.h"
#include "board_test_support.h"
#include "reference_generator.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace lettriner::board {
namespace {

using testing::boardOf;
using testing::describe;
using testing::germanValues;
using testing::lettersOf;
using testing::rackOf;

const std::vector<std::string> kHandWords = {
    "HAUS", "HAUSE", "SEE",     "UR",  "RE",   "OHNE", "HO",      "AH",
    "UN",   "TÜR",   "HAUSTÜR", "ORT", "WORT", "WO",   "GARTENS", "REISENDE"};

std::vector<std::string> emptyRows() {
    return std::vector<std::string>(15, "...............");
}

// Rows given by number (1-based) over an empty board.
std::vector<std::string> rowsWith(std::initializer_list<std::pair<int, std::string>> rows) {
    std::vector<std::string> board = emptyRows();
    for (const auto& [row, text] : rows)
        board[static_cast<std::size_t>(row - 1)] = text;
    return board;
}

struct HandWorkedMove {
    const char* name;
    std::vector<std::string> board;
    const char* rack;
    const char* coordinate;
    const char* word; // blanks in lower case
    int score;
    std::vector<std::string> crossWords;
};

// Each score worked out by hand from the premium layout and the values
// E N S I R T U A D 1, H G L O 2, M B W Z 3, Ü 6 (see each row's sum).
const std::vector<HandWorkedMove>& handWorkedMoves() {
    const auto hausSee =
        rowsWith({{8, "....HAUS......."}, {9, ".......E......."}, {10, ".......E......."}});
    const auto hausTuer =
        rowsWith({{7, ".........T....."}, {8, "....HAUS.Ü....."}, {9, ".........R....."}});
    // clang-format off
    static const std::vector<HandWorkedMove> moves = {
        // E8..H8, H8 the centre: (2+1+1+1) x 2.
        {"first move covers H8 and doubles", emptyRows(), "HAUS", "8E", "HAUS", 10, {}},
        // G on D8 (2B) 4 + A R T E N S 6 = 10, centre x2 = 20, seven tiles +50.
        {"seven tiles earn 50", emptyRows(), "GARTENS", "8D", "GARTENS", 70, {}},
        // The blank on the centre scores 0 yet doubles: (2+1+1+0) x 2.
        {"blank on the centre doubles but scores 0", emptyRows(), "HAU?", "8E", "HAUs", 8, {}},
        // Hook: E on I8 (plain) makes HAUSE 2+1+1+1+1; the centre's S is a
        // board tile, its premium spent. One tile, listed across only.
        {"hook onto a word", hausSee, "E", "8E", "HAUSE", 6, {}},
        // O on E9 under H: down HO 2+2 = 4; across it stands alone, so the
        // one-tile move is listed down.
        {"one tile listed along its longer word", hausSee, "O", "E8", "HO", 4, {}},
        // R on G9 (2B): across RE 1x2+1 = 3 and down UR 1+1x2 = 3; equal
        // lengths list it across.
        {"one tile with equal words listed across", hausSee, "R", "9G", "RE", 6, {"UR"}},
        // Parallel under HAUS: OHNE 2+2+1x2 (G9 2B)+1 = 7; HO 2+2 = 4,
        // AH 1+2 = 3, UN 1+1x2 = 3.
        {"parallel play scores every cross word", hausSee, "OHN", "9E", "OHNE", 17, {"HO", "AH", "UN"}},
        // Through HAUS and the Ü of TÜR: 2+1+1+1+1+6+1, the centre's double
        // already spent.
        {"play through several board tiles", hausTuer, "TR", "8E", "HAUSTÜR", 13, {}},
        // E5 and K5 are both 2W: (2+1+1+1+1+1+1) x 4; six tiles, no bonus.
        {"two double-word squares make x4", rowsWith({{5, ".......T......."}}), "GARENS", "5E", "GARTENS", 32, {}},
        // The same with a blank for G on E5: (0+6) x 4.
        {"blank on a double-word square still doubles", rowsWith({{5, ".......T......."}}), "?ARENS", "5E", "gARTENS", 24, {}},
        // W on E5 (2W): down WO (3+2) x 2 = 10; across WORT (3+2+1+1) x 2 = 14.
        {"new tile's word premium doubles its cross word", rowsWith({{5, ".....ORT......."}}), "WO", "E5", "WO", 24, {"WORT"}},
        // A1 and H1 are 3W: 8 x 9 = 72, the S on D1 (2B) a board tile; +50.
        {"two triple-word squares make x9, with the bonus", rowsWith({{1, "...S..........."}}), "REIENDE", "1A", "REISENDE", 122, {}},
    };
    // clang-format on
    return moves;
}

// Test names and failures show the row's name, not its bytes.
void PrintTo(const HandWorkedMove& row, std::ostream* out) {
    *out << row.name;
}

class HandWorked : public ::testing::TestWithParam<HandWorkedMove> {};

TEST_P(HandWorked, MoveIsFoundWithItsScoreAndTheTwinAgrees) {
    const HandWorkedMove& expected = GetParam();
    const Lexicon lexicon = buildLexicon(lettersOf(kHandWords));
    const testing::ReferenceLexicon reference(lettersOf(kHandWords));
    const Board board = boardOf(expected.board);
    const Rack rack = rackOf(expected.rack);
    const std::vector<Move> moves = allMoves(board, rack, lexicon, germanValues());

    std::vector<Move> matching;
    for (const Move& move : moves) {
        if (moveCoordinate(move) == expected.coordinate && moveWord(move) == expected.word)
            matching.push_back(move);
    }
    ASSERT_EQ(matching.size(), 1u) << describe(moves);
    EXPECT_EQ(matching[0].score, expected.score);
    // Scoring the laid tiles from scratch, as the window does, agrees.
    EXPECT_EQ(
        scorePlacement(board, laidTiles(matching[0]), matching[0].direction, germanValues()).total,
        expected.score);
    EXPECT_EQ(crossWordTexts(board, matching[0]), expected.crossWords);
    // Its tiles come from the rack: the leave is the rack less the laid tiles.
    EXPECT_EQ(laidTilesText(matching[0]).size() + rackLeave(rack, matching[0]).size(),
              std::string(expected.rack).size());

    const std::vector<Move> slow = testing::referenceMoves(board, rack, reference, germanValues());
    EXPECT_EQ(describe(moves, 1000), describe(slow, 1000));
    EXPECT_EQ(moves, slow);
}

INSTANTIATE_TEST_SUITE_P(Table, HandWorked, ::testing::ValuesIn(handWorkedMoves()),
                         [](const ::testing::TestParamInfo<HandWorkedMove>& row) {
                             std::string name;
                             for (const char c : std::string(row.param.name))
                                 name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return name;
                         });

TEST(MoveText, ShowsTheLaidTilesTheLeaveAndTheCrossWords) {
    // OHNE under HAUS with a blank for N: laid O H n, left the rack's
    // other tiles in rack order, blanks as "?".
    const Lexicon lexicon = buildLexicon(lettersOf(kHandWords));
    const Board board = boardOf(
        rowsWith({{8, "....HAUS......."}, {9, ".......E......."}, {10, ".......E......."}}));
    const Rack rack = rackOf("X?OHQ?");
    const std::vector<Move> moves = allMoves(board, rack, lexicon, germanValues());
    const auto found = std::find_if(moves.begin(), moves.end(), [](const Move& move) {
        return moveCoordinate(move) == "9E" && moveWord(move) == "OHnE";
    });
    ASSERT_NE(found, moves.end()) << describe(moves);
    EXPECT_EQ(laidTilesText(*found), "OHn");
    EXPECT_EQ(rackLeave(rack, *found), "XQ?");
    EXPECT_EQ(crossWordTexts(board, *found), (std::vector<std::string>{"HO", "AH", "Un"}));
    const std::vector<LaidTile> laid = laidTiles(*found);
    ASSERT_EQ(laid.size(), 3u);
    EXPECT_EQ(laid[2], (LaidTile{8, 6, static_cast<Tile>(lettersOf("N")[0] | kBlankBit)}));
    // Down moves name the column first; rows count from 1.
    Move down;
    down.row = 14;
    down.column = 14;
    down.direction = Direction::Down;
    EXPECT_EQ(moveCoordinate(down), "O15");
    down.direction = Direction::Across;
    EXPECT_EQ(moveCoordinate(down), "15O");
    EXPECT_EQ(lettersIn("enÄü?x1-ß"),
              maskOf(5) | maskOf(14) | maskOf(27) | maskOf(29) | maskOf(24));
}

TEST(MoveGenerator, EmptyBoardListsOnlyAcrossMovesOverTheCentre) {
    const Lexicon lexicon = buildLexicon(lettersOf(kHandWords));
    const std::vector<Move> moves = allMoves(Board{}, rackOf("HAUS"), lexicon, germanValues());
    // HAUS at 8E 8F 8G 8H, AH at 8G 8H: never 8D, never down.
    ASSERT_EQ(describe(moves),
              "8E HAUS 10\n8F HAUS 10\n8G HAUS 10\n8H HAUS 10\n8G AH 6\n8H AH 6\n");
    for (const Move& move : moves) {
        EXPECT_EQ(move.direction, Direction::Across);
        EXPECT_EQ(move.row, 7);
        EXPECT_LE(move.column, 7);
        EXPECT_GE(move.column + move.length - 1, 7);
    }
}

TEST(MoveGenerator, NoMovesWithoutRackOrWords) {
    const Lexicon lexicon = buildLexicon(lettersOf(kHandWords));
    EXPECT_TRUE(allMoves(Board{}, Rack{}, lexicon, germanValues()).empty());
    EXPECT_TRUE(allMoves(Board{}, rackOf("HAUS"), Lexicon{}, germanValues()).empty());
    EXPECT_TRUE(bestMoves(Board{}, rackOf("HAUS"), lexicon, germanValues(), 0).empty());
}

// Plays random games over the small list: at every turn a fresh rack, the
// fast moves compared with the twin's, then one of them played. Also checks
// best N and the filters against all moves.
void compareOnRandomGames(unsigned seed, int positions) {
    const std::vector<LetterString> words = testing::smallLexicon(seed);
    const Lexicon lexicon = buildLexicon(words);
    // The best-move search looks whole-rack words up in the anagram index;
    // without it, it walks: both must give the same moves.
    const Lexicon graphOnly{lexicon.graph, {}};
    const testing::ReferenceLexicon reference(words);
    const TileValues values = germanValues();
    std::mt19937 random(seed);
    Board board;
    int turn = 0;
    for (int position = 0; position < positions; ++position) {
        const Rack rack = testing::randomRack(random, static_cast<int>(random() % 3));
        const std::vector<Move> fast = allMoves(board, rack, lexicon, values);
        const std::vector<Move> slow = testing::referenceMoves(board, rack, reference, values);
        ASSERT_EQ(fast, slow) << "position " << position << "\n"
                              << writeBoardFile(board) << "rack " << rackText(rack) << "\nfast:\n"
                              << describe(fast) << "slow:\n"
                              << describe(slow);

        const std::size_t count = 1 + random() % 12;
        std::vector<Move> best = bestMoves(board, rack, lexicon, values, count);
        std::vector<Move> expected(fast.begin(), fast.begin() + std::min(count, fast.size()));
        ASSERT_EQ(best, expected) << "best " << count << " at position " << position;
        ASSERT_EQ(bestMoves(board, rack, graphOnly, values, count), expected) << position;

        MoveFilter filter;
        filter.mandatory = random() % 2 == 0 ? maskOf(lettersOf("E")[0]) : 0;
        filter.forbidden = random() % 2 == 0 ? maskOf(lettersOf("N")[0]) : 0;
        filter.minimumScore = static_cast<int>(random() % 15);
        const std::vector<Move> kept = testing::keptByFilter(fast, filter);
        ASSERT_EQ(allMoves(board, rack, lexicon, values, filter), kept) << "filter at " << position;
        best = bestMoves(board, rack, lexicon, values, count, filter);
        expected.assign(kept.begin(), kept.begin() + std::min(count, kept.size()));
        ASSERT_EQ(best, expected) << "filtered best at position " << position;

        // Play on, or start a new game when stuck or after enough turns.
        if (fast.empty() || ++turn > 25) {
            board = Board{};
            turn = 0;
        } else {
            applyMove(board, fast[random() % fast.size()]);
        }
    }
}

TEST(MoveGenerator, EqualsTheTwinOnRandomGames) {
    compareOnRandomGames(1, 150);
}

// Whole-rack moves, on an empty board and through a board tile, with 0 to 2
// blanks: found by the anagram index exactly as the twin finds them.
TEST(MoveGenerator, BestMovesFindEveryWholeRackWord) {
    const std::vector<LetterString> words = testing::smallLexicon(6);
    const Lexicon lexicon = buildLexicon(words);
    const testing::ReferenceLexicon reference(words);
    const TileValues values = germanValues();
    int tried = 0;
    for (const LetterString& word : words) {
        if (word.size() < 7 || word.size() > 8)
            continue;
        for (int blanks = 0; blanks <= 2; ++blanks) {
            Board board;
            Rack rack;
            for (std::size_t i = 0; i < 7; ++i)
                rack.add(static_cast<int>(i) < blanks ? kRackBlank : word[i]);
            if (word.size() == 8)
                board.set(kCentre, kCentre + 3, word[7]); // the word's last letter on L8
            const std::vector<Move> slow = testing::referenceMoves(board, rack, reference, values);
            ASSERT_FALSE(slow.empty());
            ASSERT_EQ(bestMoves(board, rack, lexicon, values, 50),
                      std::vector<Move>(slow.begin(),
                                        slow.begin() + std::min<std::size_t>(50, slow.size())))
                << rackText(rack);
            ++tried;
        }
    }
    EXPECT_GT(tried, 30);
}

TEST(SlowComparison, EqualsTheTwinOnTwoThousandRandomPositions) {
    for (unsigned seed = 2; seed < 10; ++seed)
        compareOnRandomGames(seed, 250);
}

TEST(SlowComparison, EqualsTheTwinOnTheShippedList) {
    const std::filesystem::path list = std::filesystem::path(LETTRINER_RUN_DIR) / "DB1.txt";
    const WordDatabase database = DatenbankEinlesen(list);
    ASSERT_GT(database.size(), 100000u);
    const std::vector<LetterString> words = playableWords(database);
    const Lexicon lexicon = buildLexicon(words);
    const testing::ReferenceLexicon reference(words);
    const TileValues values = germanValues();

    // The opening the issue names: a seven-letter word over a double-word
    // square plus the bonus.
    const std::vector<Move> opening = allMoves(Board{}, rackOf("ENTSAGR"), lexicon, values);
    ASSERT_FALSE(opening.empty());
    EXPECT_EQ(opening.front().score, 70);
    EXPECT_EQ(opening, testing::referenceMoves(Board{}, rackOf("ENTSAGR"), reference, values));

    std::mt19937 random(26);
    Board board;
    const char* racks[] = {"EINRSTL", "QUARKEN", "ERNSTA?", "DEHNTUM",
                           "AEILNOR", "SCHWÄRE", "ÖFEN?RT", "BLITZEN"};
    for (const char* text : racks) {
        const Rack rack = rackOf(text);
        const std::vector<Move> fast = allMoves(board, rack, lexicon, values);
        const std::vector<Move> slow = testing::referenceMoves(board, rack, reference, values);
        ASSERT_EQ(fast, slow) << writeBoardFile(board) << "rack " << text << "\nfast:\n"
                              << describe(fast) << "slow:\n"
                              << describe(slow);
        const std::vector<Move> best = bestMoves(board, rack, lexicon, values, 20);
        EXPECT_EQ(best, std::vector<Move>(fast.begin(),
                                          fast.begin() + std::min<std::size_t>(20, fast.size())));
        if (!fast.empty())
            applyMove(board, fast[random() % std::min<std::size_t>(fast.size(), 5)]);
    }
}

} // namespace
} // namespace lettriner::board
