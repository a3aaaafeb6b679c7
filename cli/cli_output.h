// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writing a finished search for people (aligned table) and for scripts (TSV,
// JSON), and the answer to --check.

#include "engine/board_search.h"
#include "engine/headless_search.h"
#include "engine/word_lookup.h"

#include <string>
#include <vector>

namespace lettriner::cli {

// A search's result as rows of cell texts under their captions.
struct Report {
    using Row = std::vector<std::u16string>;
    std::vector<std::u16string> captions;
    std::vector<Row> mainRows;
    std::vector<Row> bonusRows;
    bool bonusShown = false; // the bonus list was filled
    std::uint64_t found = 0;
    std::u16string minimumText;
};

[[nodiscard]] Report reportOf(const HeadlessOutcome& outcome);
// With `blankColumn`, a sixth column "Blanko".
[[nodiscard]] Report reportOf(const BoardOutcome& outcome, bool blankColumn);

// main, its rows, bonus, its rows, found, min; TAB-separated, LF line ends,
// cells with TAB, CR, LF or backslash escaped as \t, \r, \n, \\.
[[nodiscard]] std::string tsvText(const Report& report);

// The result list as an aligned table under the column captions, the bonus
// words in a second table below, then "N Wörter gefunden".
[[nodiscard]] std::string tableText(const Report& report);

// {"main": [rows], "bonus": [rows], "found": N, "min": TEXT}; a row is an
// object of word, length, value, needed, left_over (and blanks).
[[nodiscard]] std::string jsonText(const Report& report);

enum class Format { Table, Tsv, Json };

// One line per asked word: the word, "ja" or "nein", its value.
[[nodiscard]] std::string checkText(const std::vector<LookupResult>& results, Format format);

} // namespace lettriner::cli
