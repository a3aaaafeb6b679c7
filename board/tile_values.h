// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Letter values as whole points for the board. The program's letter-value
// table holds doubles (an edited Bewertung2.txt may say 1.5); each letter's
// value is rounded once, half to even, as the program rounds a word's value,
// and a value outside -32768..32767 counts 0, as it does there. Blanks and
// empty squares are worth 0.

#include "board/tiles.h"
#include "engine/letter_values.h"

#include <array>
#include <cstdint>

namespace lettriner::board {

class TileValues {
public:
    TileValues() = default; // every letter 0
    explicit TileValues(const LetterValueTable& table);

    [[nodiscard]] int letter(Letter letter) const {
        return letter <= kLetterCount ? values_[letter] : 0;
    }
    [[nodiscard]] int tile(Tile tile) const { return isBlank(tile) ? 0 : letter(letterOf(tile)); }
    void set(Letter letter, int value);

private:
    std::array<std::int16_t, kLetterCount + 1> values_{};
};

} // namespace lettriner::board
