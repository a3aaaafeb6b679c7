#pragma once
// Writing a finished search for people (aligned table) and for scripts (TSV).

#include "engine/headless_search.h"

#include <string>

namespace lettriner::cli {

// main, its rows, bonus, its rows, found, min; TAB-separated, LF line ends,
// cells with TAB, CR, LF or backslash escaped as \t, \r, \n, \\.
[[nodiscard]] std::string tsvText(const HeadlessOutcome& outcome);

// The result list as an aligned table under the column captions, the bonus
// words in a second table below, then "N Wörter gefunden".
[[nodiscard]] std::string tableText(const HeadlessOutcome& outcome);

} // namespace lettriner::cli
