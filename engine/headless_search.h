// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One search without a window, as the command line, the fuzz targets and the
// tests run it: the fields start with their design texts, then take the
// given texts at once, as if typed in after start-up. Blanks and a pattern,
// which the window does not offer, come as tile rules.

#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/search_run.h"

#include <cstdint>
#include <string>

namespace lettriner {

struct HeadlessFields {
    SearchTexts texts;
    std::u16string minimum{SearchDefaults::minimum};
    std::u16string fieldSize{SearchDefaults::fieldSize};
};

struct HeadlessOutcome {
    MemoryResultList mainList;
    MemoryResultList bonusList;
    bool bonusShown = false; // the bonus list was filled
    bool cutShort = false;   // memory ran out: a list lacks words it should hold
    std::uint64_t found = 0;
    std::u16string minimumText; // the minimum-value field after the run
};

[[nodiscard]] HeadlessOutcome searchWithoutWindow(const PreparedWords& words,
                                                  const HeadlessFields& fields,
                                                  const TileRules& tiles = {});

} // namespace lettriner
