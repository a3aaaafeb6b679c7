// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The premium squares of the standard 15x15 layout: 3W triple word, 2W double
// word (the centre H8 among them), 3B triple letter, 2B double letter.
// Rows and columns count from 0 (row 0 is row 1, column 0 is column A).

#include <cstdint>

namespace lettriner::board {

struct Premium {
    std::uint8_t letter = 1; // 1, 2 or 3
    std::uint8_t word = 1;   // 1, 2 or 3
};

// Out-of-range squares have no premium.
[[nodiscard]] Premium premiumAt(int row, int column);

inline constexpr int kCentre = 7; // H8 is row 7, column 7

} // namespace lettriner::board
