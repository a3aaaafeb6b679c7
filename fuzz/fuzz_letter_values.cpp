// SPDX-License-Identifier: GPL-3.0-or-later
// Letter tables from two arbitrary files, then words valued against them.

#include "data/text_case.h"
#include "engine/letter_values.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    const auto texts = fuzz::pieces(data, size, 3);
    const LetterValueTable table = letterValuesFromTexts(texts[0], texts[1]);
    const std::u16string& word = texts[2];
    const std::int16_t value = WortBewertung(table, word);
    if (value != WortBewertung(table, toUpper(word)) ||
        value != WortBewertung(table, toLower(word)))
        fuzz::fail("a word's value depends on its case");
    return 0;
}
