// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board/position_history.h"

namespace lettriner::ui {

void PositionHistory::remember(const board::Position& before) {
    if (positions_.size() == kDepth)
        positions_.erase(positions_.begin());
    positions_.push_back(before);
}

std::optional<board::Position> PositionHistory::takeLast() {
    if (positions_.empty())
        return std::nullopt;
    board::Position last = positions_.back();
    positions_.pop_back();
    return last;
}

} // namespace lettriner::ui
