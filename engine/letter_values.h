// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Letter values: Bewertung1.txt lists the letters, Bewertung2.txt their
// values line for line; a word is worth the sum of its letters.

#include "data/file_contents.h"
#include "data/text_codec.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace lettriner {

// Values indexed by the Windows-1252 code of the upper-cased letter; a letter
// without a value counts 0. Filled once at start-up, then only read.
class LetterValueTable {
public:
    [[nodiscard]] double operator[](unsigned char code) const { return values_[code]; }
    void set(unsigned char code, double value) { values_[code] = value; }

private:
    ByteTable<double> values_{};
};

// Builds the table from the two files' texts: for each non-empty line i of
// `letters`, the upper-cased first character gets the numeric value of line
// i of `values` (when there is one). A later line for the same letter wins.
[[nodiscard]] LetterValueTable letterValuesFromTexts(std::u16string_view letters,
                                                     std::u16string_view values);

// Reads Bewertung1.txt and Bewertung2.txt from `folder` (start-up passes the
// current folder). Missing files count as empty and are left behind empty
// (the command line leaves them absent); files too large for the memory left
// give an empty table.
[[nodiscard]] LetterValueTable BewertungsFeldLaden(const std::filesystem::path& folder = {},
                                                   WhenAbsent absent = WhenAbsent::CreateEmpty);

// The word's value: the sum of its letters' values (any case), rounded half to
// even; 0 when the rounded sum lies outside -32768..32767.
[[nodiscard]] std::int16_t WortBewertung(const LetterValueTable& table, std::u16string_view Wort);

} // namespace lettriner
