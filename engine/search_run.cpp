#include "engine/search_run.h"

#include "data/number_format.h"
#include "data/numeric_value.h"
#include "data/text_case.h"
#include "engine/word_test.h"

#include <algorithm>
#include <chrono>

namespace lettriner {
namespace {

std::u16string withoutSpaces(std::u16string text) {
    std::erase(text, u' ');
    return text;
}

class RunningFlag {
public:
    explicit RunningFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ~RunningFlag() { flag_ = false; }
    RunningFlag(const RunningFlag&) = delete;
    RunningFlag& operator=(const RunningFlag&) = delete;

private:
    bool& flag_;
};

} // namespace

double SearchWindow::secondsSinceMidnight() const {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto sinceMidnight = now - floor<days>(now);
    return duration<double>(sinceMidnight).count();
}

std::u16string foundCountText(std::uint64_t count) {
    return decimalText(static_cast<std::int64_t>(count)) + u" Wörter gefunden";
}

void SearchRun::showProgress(std::int64_t index, std::int64_t lastIndex, double startTime,
                             SearchWindow& window) {
    // A one-word list has nothing to divide by; the bar then waits for the final 100 %.
    if (lastIndex != 0)
        window.drawProgress(static_cast<std::int16_t>(index * 100 / lastIndex));
    window.setElapsedText(
        formatOneDecimal(window.secondsSinceMidnight() - startTime, window.decimalSeparator()));
    progressDue_ = false;
    window.setFoundText(foundCountText(found_));
}

void SearchRun::run(const SearchTexts& texts, SearchConnections& connections) {
    if (running_)
        return;
    RunningFlag running(running_);
    SearchWindow& window = connections.window;

    window.setProgressTimerEnabled(true);
    const double startTime = window.secondsSinceMidnight();
    stopRequested_ = false;
    ResultStore main;
    bonus_.reset();
    window.hideBonusList();
    bonusFound_ = false;
    found_ = 0;

    const double allowance = finiteNumericValue(texts.allowance).value_or(0.0);
    const std::u16string rack = toUpper(texts.rack);
    const WordTest test(rack, withoutSpaces(toUpper(texts.mandatory)),
                        withoutSpaces(toUpper(texts.forbidden)), allowance);
    window.setSearching(true);

    const std::int64_t lastIndex = static_cast<std::int64_t>(words_.size()) - 1;
    const std::uint32_t yieldEvery = window.yieldEvery();
    std::uint32_t wordsSinceYield = 0;
    // The minimum value changes only inside a yield or a pruning: read it after each.
    std::int16_t minimum = connections.minimumValue.value();
    for (std::int64_t i = 0; i <= lastIndex; ++i) {
        if (stopRequested_)
            break;
        const auto index = static_cast<std::size_t>(i);
        const CheckResult result = test.check(words_, index, minimum);
        if (result != CheckResult::Rejected) {
            ++found_;
            const std::int16_t value = words_.entry(index).value;
            main.append(static_cast<std::uint32_t>(index), value);
            if (main.highestIndex() > connections.fieldSize.value()) {
                SchlechteHälfteLöschen(main, connections.minimumValue);
                minimum = connections.minimumValue.value();
            }
            if (result == CheckResult::AcceptedAsBonus) {
                bonus_.append(static_cast<std::uint32_t>(index), value);
                bonusFound_ = true;
            }
        }
        if (yieldEvery != 0 && ++wordsSinceYield >= yieldEvery) {
            wordsSinceYield = 0;
            window.yield();
            minimum = connections.minimumValue.value();
        }
        if (progressDue_)
            showProgress(i, lastIndex, startTime, window);
    }

    window.loopEnded();
    finishStore(main);
    finishStore(bonus_);
    connections.mainList.clear();
    connections.bonusList.clear();
    const std::u16string publishRack = window.currentRack(rack);
    publishStore(main, words_, publishRack, connections.mainList);
    if (bonusFound_) {
        publishStore(bonus_, words_, publishRack, connections.bonusList);
        window.showBonusList();
    }
    window.drawProgress(100);
    window.setElapsedText(
        formatOneDecimal(window.secondsSinceMidnight() - startTime, window.decimalSeparator()));
    window.setFoundText(foundCountText(found_));
    window.setProgressTimerEnabled(false);
    window.setSearching(false);
}

} // namespace lettriner
