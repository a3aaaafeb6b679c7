// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tile_values.h"

#include "data/numeric_value.h"

namespace lettriner::board {

TileValues::TileValues(const LetterValueTable& table) {
    for (Letter letter = 1; letter <= kLetterCount; ++letter)
        values_[letter] = roundToInt16(table[windows1252FromLetter(letter)]).value_or(0);
}

void TileValues::set(Letter letter, int value) {
    if (letter >= 1 && letter <= kLetterCount && value >= INT16_MIN && value <= INT16_MAX)
        values_[letter] = static_cast<std::int16_t>(value);
}

} // namespace lettriner::board
