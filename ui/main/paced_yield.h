// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Deciding cheaply, word by word, when a search should let the event loop
// run. A pass over the event loop costs far more than testing a word, so the
// search serves events only every few milliseconds: it counts words and reads
// the clock only every `checkEvery` words.

#include <chrono>
#include <cstdint>

namespace lettriner::ui {

class PacedYield {
public:
    using Clock = std::chrono::steady_clock;

    explicit PacedYield(std::chrono::microseconds interval = std::chrono::milliseconds(4),
                        std::uint32_t checkEvery = 64)
        : interval_(interval), checkEvery_(checkEvery == 0 ? 1 : checkEvery) {}

    // The interval is counted from now.
    void restart() {
        words_ = 0;
        last_ = Clock::now();
    }

    // Called once per word: true when a pass over the event loop is due.
    [[nodiscard]] bool due() {
        if (++words_ < checkEvery_)
            return false;
        words_ = 0;
        const Clock::time_point now = Clock::now();
        if (now - last_ < interval_)
            return false;
        last_ = now;
        return true;
    }

private:
    std::chrono::microseconds interval_;
    std::uint32_t checkEvery_;
    std::uint32_t words_ = 0;
    Clock::time_point last_ = Clock::now();
};

} // namespace lettriner::ui
