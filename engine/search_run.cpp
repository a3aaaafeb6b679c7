// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search_run.h"

#include "data/numeric_value.h"
#include "data/text_case.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <climits>
#include <cstring>

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

LetterRules letterRulesOf(const SearchTexts& texts) {
    return {toUpper(texts.rack), withoutSpaces(toUpper(texts.mandatory)),
            withoutSpaces(toUpper(texts.forbidden)),
            finiteNumericValue(texts.allowance).value_or(0.0)};
}

double SearchWindow::secondsSinceMidnight() const {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto sinceMidnight = now - floor<days>(now);
    return duration<double>(sinceMidnight).count();
}

void SearchRun::showProgress(std::int64_t index, std::int64_t lastIndex, double startTime,
                             SearchWindow& window) {
    // A one-word list has nothing to divide by; the bar then waits for the final 100 %.
    if (lastIndex != 0)
        window.drawProgress(static_cast<std::int16_t>(index * 100 / lastIndex));
    window.showElapsedSeconds(window.secondsSinceMidnight() - startTime);
    progressDue_ = false;
    window.showFoundCount(found_);
}

void SearchRun::testWords(const TileTest& test, std::size_t from, std::size_t to,
                          std::int16_t& minimum, ResultStore& main,
                          SearchConnections& connections) {
    // The summary knows full values only: when a blank may stand for a
    // letter of negative value, it must not reject by value.
    const std::int16_t noBound = INT16_MIN;
    const std::int16_t& summaryMinimum = test.summaryBoundsValue() ? minimum : noBound;
    // A pruning raises the minimum; check() applies it to the rest of a block.
    forEachCandidate(test.summary(), words_, from, to, summaryMinimum, [&](std::size_t i) {
        const TileVerdict verdict = test.check(words_, i, minimum);
        if (verdict.result != CheckResult::Rejected)
            acceptWord(i, verdict, minimum, main, connections);
    });
}

void SearchRun::acceptWord(std::size_t i, TileVerdict verdict, std::int16_t& minimum,
                           ResultStore& main, SearchConnections& connections) {
    ++found_;
    main.append(static_cast<std::uint32_t>(i), verdict.value);
    if (main.highestIndex() > connections.fieldSize.value()) {
        SchlechteHälfteLöschen(main, connections.minimumValue);
        minimum = connections.minimumValue.value();
    }
    if (verdict.result == CheckResult::AcceptedAsBonus) {
        bonus_.append(static_cast<std::uint32_t>(i), verdict.value);
        bonusFound_ = true;
    }
}

void SearchRun::run(const SearchTexts& texts, SearchConnections& connections,
                    const TileRules& tiles) {
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

    const LetterRules rules = letterRulesOf(texts);
    const std::u16string& rack = rules.rack;
    const TileTest test(words_.values(), rack, rules.mandatory, rules.forbidden, rules.allowance,
                        tiles);
    window.setSearching(true);

    const std::int64_t lastIndex = static_cast<std::int64_t>(words_.size()) - 1;
    const std::size_t count = words_.size();
    const std::uint32_t yieldEvery = window.yieldEvery();
    std::uint32_t wordsSinceYield = 0;
    // The minimum value, the stop request and the progress flag change only
    // inside a yield or a pruning: they are read after each, not per word.
    std::int16_t minimum = connections.minimumValue.value();
    std::size_t next = 0; // the first word not yet tested
    while (next < count && !stopRequested_) {
        // The words up to the next yield; just one while progress is due,
        // so that it shows after the word it was asked at.
        std::size_t end = count;
        if (yieldEvery != 0)
            end = std::min<std::size_t>(end, next + (yieldEvery - wordsSinceYield));
        if (progressDue_)
            end = std::min(end, next + 1);
        testWords(test, next, end, minimum, main, connections);
        wordsSinceYield += static_cast<std::uint32_t>(end - next);
        next = end;
        if (yieldEvery != 0 && wordsSinceYield >= yieldEvery) {
            wordsSinceYield = 0;
            window.yield();
            minimum = connections.minimumValue.value();
        }
        if (progressDue_)
            showProgress(static_cast<std::int64_t>(next) - 1, lastIndex, startTime, window);
    }

    window.loopEnded();
    bool complete = !main.full() && !bonus_.full();
    complete = finishStore(main) && complete;
    complete = finishStore(bonus_) && complete;
    connections.mainList.clear();
    connections.bonusList.clear();
    // Read once: an edit made during the run shows in both lists' letter columns.
    const std::u16string publishRack = tiles.none() ? window.currentRack(rack) : u"";
    const auto publish = [&](const ResultStore& store, ResultList& list) {
        if (tiles.none())
            return publishStore(store, words_, publishRack, list);
        return publishStore(store, words_, test, list);
    };
    complete = publish(main, connections.mainList) && complete;
    if (bonusFound_)
        complete = publish(bonus_, connections.bonusList) && complete;
    cutShort_ = !complete;
    if (bonusFound_)
        window.showBonusList();
    window.drawProgress(100);
    window.showElapsedSeconds(window.secondsSinceMidnight() - startTime);
    window.showFoundCount(found_);
    window.setProgressTimerEnabled(false);
    window.setSearching(false);
}

} // namespace lettriner
