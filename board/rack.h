// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tiles on the player's rack, up to seven, in the order given (the leave
// keeps that order). A rack tile is a letter code, or kRackBlank for a blank.

#include "board/tiles.h"

#include <array>
#include <cstdint>

namespace lettriner::board {

inline constexpr Letter kRackBlank = 0;

class Rack {
public:
    // False (and the rack unchanged) when the rack is full or the tile is
    // neither a letter nor kRackBlank.
    bool add(Letter tile);
    [[nodiscard]] int size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    [[nodiscard]] Letter operator[](int index) const {
        return tiles_[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] int blanks() const { return counts_[kRackBlank]; }
    // How many tiles of a letter (kRackBlank: blanks).
    [[nodiscard]] int count(Letter letter) const {
        return letter <= kLetterCount ? counts_[letter] : 0;
    }
    // The letters with at least one tile (blanks not included).
    [[nodiscard]] LetterMask letters() const;

    friend bool operator==(const Rack&, const Rack&) = default;

private:
    std::array<Letter, kRackSize> tiles_{};
    std::array<std::uint8_t, kLetterCount + 1> counts_{};
    int size_ = 0;
};

} // namespace lettriner::board
