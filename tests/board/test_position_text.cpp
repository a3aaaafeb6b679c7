// SPDX-License-Identifier: GPL-3.0-or-later
// Board files, CGP and racks: what is written reads back the same, both
// encodings and both line ends read, and every kind of bad input gets its
// one-line message with the place.

#include "board/move_generator.h"
#include "board/position_text.h"
#include "board_test_support.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace lettriner::board {
namespace {

const std::string kEmptyLine = "...............";

std::string lines(const std::vector<std::string>& rows, std::string_view end = "\n") {
    std::string text;
    for (const std::string& row : rows)
        text += row + std::string(end);
    return text;
}

std::vector<std::string> sampleRows() {
    std::vector<std::string> rows(15, kEmptyLine);
    rows[6] = ".......Ü.......";
    rows[7] = "....HAUs.ä.....";
    rows[8] = ".......E.......";
    return rows;
}

Board sampleBoard() {
    Board board;
    const auto letter = [](char c) {
        return letterFromWindows1252(static_cast<unsigned char>(c));
    };
    board.set(6, 7, 29);
    board.set(7, 4, letter('H'));
    board.set(7, 5, letter('A'));
    board.set(7, 6, letter('U'));
    board.set(7, 7, letter('S') | kBlankBit);
    board.set(7, 9, 27 | kBlankBit);
    board.set(8, 7, letter('E'));
    return board;
}

TEST(BoardFile, ReadsBothEncodingsAndLineEnds) {
    const Board expected = sampleBoard();
    const std::string utf8 = lines(sampleRows());
    std::string windows1252 = utf8;
    for (const auto& [from, to] : {std::pair<std::string, std::string>{"Ü", "\xDC"}, {"ä", "\xE4"}})
        windows1252.replace(windows1252.find(from), from.size(), to);
    const std::string inputs[] = {
        utf8,                            // LF, final line end
        utf8.substr(0, utf8.size() - 1), // no final line end
        lines(sampleRows(), "\r\n"),     // CR LF
        "\xEF\xBB\xBF" + utf8,           // byte-order mark
        windows1252,                     // Windows-1252
        lines(sampleRows(), "\r\n").substr(0, utf8.size() + 15 - 2),
    };
    for (const std::string& input : inputs) {
        const BoardRead read = readBoardFile(input);
        EXPECT_EQ(read.error, "");
        EXPECT_EQ(read.board, expected);
    }
    EXPECT_EQ(writeBoardFile(expected), utf8);
}

TEST(BoardFile, BadInputGetsItsPlace) {
    std::vector<std::string> fourteen = sampleRows();
    fourteen.pop_back();
    std::vector<std::string> sixteen = sampleRows();
    sixteen.push_back(kEmptyLine);
    std::vector<std::string> shortLine = sampleRows();
    shortLine[2] = "..............";
    std::vector<std::string> longLine = sampleRows();
    longLine[2] = "................";
    std::vector<std::string> unknown = sampleRows();
    unknown[1] = "....#..........";
    std::vector<std::string> sharpS = sampleRows();
    sharpS[0] = "ß..............";
    std::vector<std::string> tab = sampleRows();
    tab[0] = "..\t............";
    std::vector<std::string> blank = sampleRows();
    blank[3] = "";
    const std::string tile =
        " is not a tile (\".\" empty, a letter a tile, a lower-case letter a blank)";
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"", "the board has 0 lines; it needs 15"},
        {lines(fourteen), "the board has 14 lines; it needs 15"},
        {lines(sixteen), "the board has 16 lines; it needs 15"},
        {lines(shortLine), "line 3 has 14 characters; a board line has 15"},
        {lines(longLine), "line 3 has 16 characters; a board line has 15"},
        {lines(unknown), "line 2, column 5: '#'" + tile},
        {lines(sharpS), "line 1, column 1: 'ß'" + tile},
        {lines(tab), "line 1, column 3: U+0009" + tile},
        {lines(blank), "line 4 has 0 characters; a board line has 15"},
        {lines(sampleRows(), "\r"), "line 1, column 16: U+000D" + tile},
        {lines(sampleRows()) + "\n", "the board has 16 lines; it needs 15"},
    };
    // clang-format on
    for (const auto& [input, message] : cases)
        EXPECT_EQ(readBoardFile(input).error, message);
}

TEST(Cgp, ReadsRowsRunsAndTheRackOfThePlayerToMove) {
    const std::string rows = "15/15/15/15/15/15/7Ü7/4HAUs1ä5/7E7/15/15/15/15/15/15";
    const PositionRead read = readCgp(rows + " ENTS?GR/ABCDEFG 0/0 0");
    ASSERT_EQ(read.error, "");
    EXPECT_EQ(read.position.board, sampleBoard());
    EXPECT_EQ(rackText(read.position.rack), "ENTS?GR");
    // Without a racks field, or with an empty rack, the rack is empty.
    for (const std::string& text : {rows, rows + " /ENTSAGR 12/40 0", "  " + rows + "\t\n"}) {
        const PositionRead noRack = readCgp(text);
        EXPECT_EQ(noRack.error, "");
        EXPECT_TRUE(noRack.position.rack.empty());
    }
    // A rack without a slash and lower-case rack letters.
    EXPECT_EQ(rackText(readCgp(rows + " entsägr").position.rack), "ENTSÄGR");
    EXPECT_EQ(writeCgp(read.position), rows + " ENTS?GR/ 0/0 0");
}

TEST(Cgp, BadInputGetsItsPlace) {
    const std::string empty14 = "15/15/15/15/15/15/15/15/15/15/15/15/15/15";
    const std::string notTile =
        " is not a tile (a letter a tile, a lower-case letter a blank, a number empty squares)";
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"", "the position is empty"},
        {empty14, "the position has 14 rows; it needs 15"},
        {empty14 + "/15/15", "the position has more than 15 rows (column 45)"},
        {"14/" + empty14, "row 1 of the position has 14 squares; a row has 15"},
        {"15/7A8/" + empty14.substr(3), "row 2 of the position has more than 15 squares (column 6)"},
        {"15/7A6/" + empty14.substr(3), "row 2 of the position has 14 squares; a row has 15"},
        {"15/16/" + empty14.substr(3), "row 2 of the position has more than 15 squares (column 4)"},
        {"15/ABCDEFGHIJKLMNOP/" + empty14.substr(3), "row 2 of the position has more than 15 squares (column 19)"},
        {"0/" + empty14, "column 1: '0' starts no count of empty squares (1 to 15)"},
        {"015/" + empty14, "column 1: '0' starts no count of empty squares (1 to 15)"},
        {"15/7#7/" + empty14.substr(3), "column 5 (row 2): '#'" + notTile},
        {"15/7.7/" + empty14.substr(3), "column 5 (row 2): '.'" + notTile},
        {"15/7ß7/" + empty14.substr(3), "column 5 (row 2): 'ß'" + notTile},
        {"15/7\xFF" "7/" + empty14.substr(3), "column 5 (row 2): U+FFFD" + notTile},
        {"15/" + empty14 + " ENTSAGRE/", "the rack has 8 tiles; it holds at most 7"},
        {"15/" + empty14 + " ENT#/", "column 49 (the rack): '#' is not a letter or \"?\" (a blank)"},
    };
    // clang-format on
    for (const auto& [input, message] : cases)
        EXPECT_EQ(readCgp(input).error, message) << input;
}

TEST(Rack, ReadsLettersAndBlanks) {
    EXPECT_EQ(rackText(readRack("entSÄ?ü").rack), "ENTSÄ?Ü");
    EXPECT_EQ(readRack("").rack.size(), 0);
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"ENTSAGRE", "the rack has 8 tiles; it holds at most 7"},
        {"??????? ", "rack character 8: ' ' is not a letter or \"?\" (a blank)"},
        {"AB1", "rack character 3: '1' is not a letter or \"?\" (a blank)"},
        {"Aß", "rack character 2: 'ß' is not a letter or \"?\" (a blank)"},
    };
    // clang-format on
    for (const auto& [input, message] : cases)
        EXPECT_EQ(readRack(input).error, message);
}

TEST(PositionText, RandomPositionsRoundTripThroughBothFormats) {
    const std::vector<LetterString> words = testing::smallLexicon(5);
    const Lexicon lexicon = buildLexicon(words);
    std::mt19937 random(5);
    Position position;
    for (int turn = 0; turn < 60; ++turn) {
        position.rack = testing::randomRack(random, static_cast<int>(random() % 3));
        const PositionRead cgp = readCgp(writeCgp(position));
        ASSERT_EQ(cgp.error, "");
        EXPECT_EQ(cgp.position, position);
        const BoardRead file = readBoardFile(writeBoardFile(position.board));
        ASSERT_EQ(file.error, "");
        EXPECT_EQ(file.board, position.board);
        const std::vector<Move> moves =
            allMoves(position.board, position.rack, lexicon, testing::germanValues());
        if (moves.empty())
            position.board = Board{};
        else
            applyMove(position.board, moves[random() % moves.size()]);
    }
}

} // namespace
} // namespace lettriner::board
