// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/lexicon.h"

namespace lettriner::board {

Lexicon buildLexicon(std::vector<LetterString> words) {
    Lexicon lexicon;
    lexicon.anagrams = buildAnagramIndex(words);
    lexicon.graph = buildWordGraph(std::move(words));
    return lexicon;
}

} // namespace lettriner::board
