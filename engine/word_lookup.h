// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whether words are in the word list, compared the way the program
// upper-cases. A word written with SS, as upper-case text often is, also
// finds a list word with ß when no list word matches it exactly.

#include "engine/prepared_words.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lettriner {

struct LookupResult {
    bool found = false;
    std::u16string word;    // the list's word, upper-cased; else the asked word upper-cased
    std::int16_t value = 0; // WortBewertung of `word`
};

// One result per asked word, in the order asked.
[[nodiscard]] std::vector<LookupResult> lookUpWords(const PreparedWords& words,
                                                    const std::vector<std::u16string>& asked);

} // namespace lettriner
