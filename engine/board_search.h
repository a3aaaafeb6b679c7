// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A search with blanks and a board pattern, for the command line: the same
// field texts, stores, pruning and order as the window's search, each word
// judged by BoardTest and stored with its value after the blanks.

#include "engine/board_test.h"
#include "engine/headless_search.h"
#include "engine/prepared_words.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lettriner {

struct BoardRow {
    std::u16string word; // upper-cased
    std::int16_t value = 0;
    BoardLetters letters;
};

struct BoardOutcome {
    std::vector<BoardRow> mainRows;
    std::vector<BoardRow> bonusRows;
    bool bonusShown = false;
    std::uint64_t found = 0;
    std::u16string minimumText; // the minimum-value field after the run
};

[[nodiscard]] BoardOutcome searchOnBoard(const PreparedWords& words, const HeadlessFields& fields,
                                         const BoardRules& rules);

} // namespace lettriner
