// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How a search run reaches the main window: its yields, its progress, the
// two buttons and the bonus list.

#include "engine/search_run.h"
#include "ui/main/form1.h"

namespace lettriner::ui {

class Form1::Search final : public lettriner::SearchWindow {
public:
    explicit Search(Form1& form) : form_(form) {}

    void yield() override;
    void loopEnded() override;
    void setProgressTimerEnabled(bool enabled) override;
    void setSearching(bool searching) override;
    void hideBonusList() override;
    void showBonusList() override;
    void drawProgress(std::int16_t percent) override;
    void showElapsedSeconds(double seconds) override;
    void showFoundCount(std::uint64_t count) override;
    [[nodiscard]] std::u16string currentRack(std::u16string_view rackAtStart) override;
    [[nodiscard]] double secondsSinceMidnight() const override;

private:
    Form1& form_;
};

} // namespace lettriner::ui
