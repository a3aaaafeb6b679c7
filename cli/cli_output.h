// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writing a finished search for people (aligned table) and for scripts (TSV,
// JSON), and the answer to --check.

#include "cli/output_sink.h"
#include "engine/headless_search.h"
#include "engine/word_lookup.h"

#include <vector>

namespace lettriner::cli {

// A finished search and how many of its columns to show: five, or six with
// the letters the blanks stand for.
struct Report {
    const HeadlessOutcome& outcome;
    bool blankColumn = false;
};

// main, its rows, bonus, its rows, found, min; TAB-separated, LF line ends,
// cells with TAB, CR, LF or backslash escaped as \t, \r, \n, \\.
void writeTsv(const Report& report, OutputSink& out);

// The result list as an aligned table under the column captions, the bonus
// words in a second table below, then "N Wörter gefunden".
void writeTable(const Report& report, OutputSink& out);

// {"main": [rows], "bonus": [rows], "found": N, "min": TEXT}; a row is an
// object of word, length, value, needed, left_over (and blanks).
void writeJson(const Report& report, OutputSink& out);

enum class Format { Table, Tsv, Json };

void writeReport(const Report& report, Format format, OutputSink& out);

// One line per asked word: the word, "ja" or "nein", its value.
void writeCheck(const std::vector<LookupResult>& results, Format format, OutputSink& out);

} // namespace lettriner::cli
