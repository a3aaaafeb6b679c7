// SPDX-License-Identifier: GPL-3.0-or-later
// Warnings for positions that read fine but are odd: words the list lacks,
// tiles cut off from the centre, more tiles than the German set holds.

#include "board/lexicon.h"
#include "board/position_checks.h"
#include "board/position_text.h"
#include "board_test_support.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lettriner::board {
namespace {

// Rows may stop early; the rest of the board is empty.
std::vector<std::string> warningsFor(std::vector<std::string> rows, const char* rack) {
    rows.resize(15);
    for (std::string& row : rows)
        row.resize(15, '.');
    const WordGraph graph = buildLexicon(testing::lettersOf({"HAUS", "SEE", "OHNE"})).graph;
    return warningTexts(checkPosition(testing::boardOf(rows), testing::rackOf(rack), graph));
}

TEST(PositionChecks, TableOfWarnings) {
    const std::string e = "...............";
    // clang-format off
    const std::vector<std::pair<std::vector<std::string>, std::vector<std::string>>> cases = {
        // A clean position: words in the list, all connected to H8.
        {{e, e, e, e, e, e, e, "....HAUS", ".......E", ".......E"}, {}},
        {{}, {}},
        // Words the list lacks, with where they start; a blank shows lower case.
        {{e, e, e, e, e, e, e, "....HAUx", ".......E", ".......E"},
         {"not in the word list: HAUx at 8E", "not in the word list: xEE at H8"}},
        // Tiles apart from the centre's group.
        {{"AB.............", e, e, e, e, e, e, "....HAUS", e, e, e, e, e, e, "..............Z"},
         {"not in the word list: AB at 1A", "tiles not connected to the centre: A1, B1, O15"}},
        // Nothing on H8.
        {{e, e, e, e, e, e, e, "HAUS"},
         {"the centre square H8 is empty", "tiles not connected to the centre: A8, B8, C8, D8"}},
    };
    // clang-format on
    for (const auto& [rows, expected] : cases)
        EXPECT_EQ(warningsFor(rows, ""), expected);
}

TEST(PositionChecks, CountsBoardAndRackAgainstTheSet) {
    const std::string e = "...............";
    // Two blanks on the board (s, q) and one on the rack; two Q on the rack.
    const std::vector<std::string> rows = {e, e, e, e, e, e, e, "....HAUs", ".......E", "......qE"};
    const std::vector<std::string> expected = {"not in the word list: qE at 10G",
                                               "more blanks than the set holds: 3 of 2",
                                               "more tiles Q than the set holds: 2 of 1"};
    EXPECT_EQ(warningsFor(rows, "Q?Q"), expected);
    const PositionWarnings warnings = checkPosition(
        testing::boardOf(std::vector<std::string>(15, e)), testing::rackOf("EEEEEEE"), WordGraph{});
    EXPECT_TRUE(warnings.empty());
}

} // namespace
} // namespace lettriner::board
