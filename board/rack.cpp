// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/rack.h"

namespace lettriner::board {

bool Rack::add(Letter tile) {
    if (size_ >= kRackSize || tile > kLetterCount)
        return false;
    tiles_[static_cast<std::size_t>(size_++)] = tile;
    ++counts_[tile];
    return true;
}

LetterMask Rack::letters() const {
    LetterMask mask = 0;
    for (Letter letter = 1; letter <= kLetterCount; ++letter) {
        if (counts_[letter] != 0)
            mask |= maskOf(letter);
    }
    return mask;
}

} // namespace lettriner::board
