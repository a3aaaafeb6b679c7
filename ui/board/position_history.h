// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What Ctrl+Z brings back: the positions before the last clears, laid moves
// and pastes, newest last. Typing on the board is not recorded; a tile typed
// is taken back with Backspace.

#include "board/position_text.h"

#include <optional>
#include <vector>

namespace lettriner::ui {

class PositionHistory {
public:
    // Older positions beyond this many are forgotten.
    static constexpr std::size_t kDepth = 32;

    void remember(const board::Position& before);
    // The newest remembered position, taken off the history; nothing when empty.
    [[nodiscard]] std::optional<board::Position> takeLast();
    [[nodiscard]] bool empty() const { return positions_.empty(); }

private:
    std::vector<board::Position> positions_;
};

} // namespace lettriner::ui
