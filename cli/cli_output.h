#pragma once
// Writing a finished search for people (aligned table) and for scripts (TSV).

#include "engine/result_list.h"

#include <cstdint>
#include <string>

namespace lettriner::cli {

struct SearchOutcome {
    const MemoryResultList& mainList;
    const MemoryResultList& bonusList;
    bool bonusShown; // the bonus list was filled by the run
    std::uint64_t found;
    std::u16string minimumText; // the minimum-value field after the run
};

// main, its rows, bonus, its rows, found, min; TAB-separated, LF line ends,
// cells with TAB, CR, LF or backslash escaped as \t, \r, \n, \\.
[[nodiscard]] std::string tsvText(const SearchOutcome& outcome);

// The result list as an aligned table under the column captions, the bonus
// words in a second table below, then "N Wörter gefunden".
[[nodiscard]] std::string tableText(const SearchOutcome& outcome);

} // namespace lettriner::cli
