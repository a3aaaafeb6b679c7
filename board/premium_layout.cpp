// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/premium_layout.h"

#include "board/tiles.h"

#include <array>
#include <string_view>

namespace lettriner::board {

namespace {

// The layout as it is printed: T triple word, D double word, t triple
// letter, d double letter; the centre is a double word.
constexpr std::array<std::string_view, kBoardSize> kLayout = {
    "T..d...T...d..T", //  1
    ".D...t...t...D.", //  2
    "..D...d.d...D..", //  3
    "d..D...d...D..d", //  4
    "....D.....D....", //  5
    ".t...t...t...t.", //  6
    "..d...d.d...d..", //  7
    "T..d...D...d..T", //  8
    "..d...d.d...d..", //  9
    ".t...t...t...t.", // 10
    "....D.....D....", // 11
    "d..D...d...D..d", // 12
    "..D...d.d...D..", // 13
    ".D...t...t...D.", // 14
    "T..d...T...d..T", // 15
};

} // namespace

Premium premiumAt(int row, int column) {
    if (row < 0 || row >= kBoardSize || column < 0 || column >= kBoardSize)
        return {};
    switch (kLayout[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]) {
    case 'T':
        return {1, 3};
    case 'D':
        return {1, 2};
    case 't':
        return {3, 1};
    case 'd':
        return {2, 1};
    default:
        return {};
    }
}

} // namespace lettriner::board
