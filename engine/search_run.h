// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One search over the whole word list, the one every caller runs (the
// window, the command line with or without blanks and a pattern, the tests):
// every word is tested, accepted words go into the main store (pruned when it
// outgrows the field size) and, when they use every rack tile, into the bonus
// store; both are then published into their result lists, best first.
//
// The run knows nothing of windows. It reads the live minimum value and field
// size through NumberField, writes rows through ResultList, and calls the
// SearchWindow hooks to yield after every word and to show its progress.

#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/result_store.h"
#include "engine/tile_test.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner {

// The texts the input fields show when the program starts.
struct SearchDefaults {
    static constexpr std::u16string_view rack = u"AFEEZHRB";
    static constexpr std::u16string_view mandatory = u"";
    static constexpr std::u16string_view forbidden = u"QÄÖÜJZVXY";
    static constexpr std::u16string_view allowance = u"0";
    static constexpr std::u16string_view minimum = u"5";
    static constexpr std::u16string_view fieldSize = u"500";
};

// The raw texts of the input fields, read once when a run starts.
struct SearchTexts {
    std::u16string rack{SearchDefaults::rack};
    std::u16string mandatory{SearchDefaults::mandatory};
    std::u16string forbidden{SearchDefaults::forbidden};
    std::u16string allowance{SearchDefaults::allowance};
};

// What the letter test takes from those texts: rack, mandatory and forbidden
// upper-cased, the last two without spaces; the allowance as a number, 0
// when the text has none.
struct LetterRules {
    std::u16string rack;
    std::u16string mandatory;
    std::u16string forbidden;
    double allowance = 0.0;
};

[[nodiscard]] LetterRules letterRulesOf(const SearchTexts& texts);

// Everything a run shows or asks outside itself. Every hook does nothing by
// default, so a run without a window (command line, tests) overrides none.
class SearchWindow {
public:
    virtual ~SearchWindow() = default;
    // After every word, accepted or not: serve pending input and timers.
    virtual void yield() {}
    // How many words pass between two calls of yield(), read once per run;
    // 0 means never. A window whose yield() would do nothing for most words
    // says so here and saves a call per word; nothing can change between two
    // yields, so the run reads the minimum value only after yields and prunings.
    [[nodiscard]] virtual std::uint32_t yieldEvery() const { return 1; }
    // After the last word, or after a stop: a paced yield() may owe one more pass.
    virtual void loopEnded() {}
    virtual void setProgressTimerEnabled(bool /*enabled*/) {}
    // True: stop button shown in place of the search button; false: back.
    virtual void setSearching(bool /*searching*/) {}
    virtual void hideBonusList() {}
    virtual void showBonusList() {}
    virtual void drawProgress(std::int16_t /*percent*/) {}
    virtual void showElapsedSeconds(double /*seconds*/) {}
    virtual void showFoundCount(std::uint64_t /*count*/) {}
    // The rack field's text now, upper-cased, for the letter columns.
    [[nodiscard]] virtual std::u16string currentRack(std::u16string_view rackAtStart) {
        return std::u16string(rackAtStart);
    }
    [[nodiscard]] virtual double secondsSinceMidnight() const;
};

// A run without a window: the command line, benchmarks, tests.
class HeadlessWindow final : public SearchWindow {
public:
    [[nodiscard]] std::uint32_t yieldEvery() const override { return 0; }
};

struct SearchConnections {
    NumberField& minimumValue; // txtMindestWert; pruning writes into it
    NumberField& fieldSize;    // txtMaxUB
    ResultList& mainList;
    ResultList& bonusList;
    SearchWindow& window;
};

class SearchRun {
public:
    explicit SearchRun(const PreparedWords& words) : words_(words) {}

    // Runs a whole search and publishes it. Does nothing while a run is going.
    // With tile rules the rows carry the value after the blanks and the
    // letter columns of the tile test; without, the columns are worked out
    // against the rack as the window shows it when the run ends.
    void run(const SearchTexts& texts, SearchConnections& connections, const TileRules& tiles = {});

    // Ends a going run before its next word; it is then finished as usual.
    void requestStop() { stopRequested_ = true; }
    // The progress timer's tick: progress is shown after the current word.
    void raiseProgressFlag() { progressDue_ = true; }

    [[nodiscard]] bool isRunning() const { return running_; }
    [[nodiscard]] std::uint64_t foundCount() const { return found_; }
    [[nodiscard]] bool bonusFound() const { return bonusFound_; }
    // The last run's lists lack words they should hold: memory ran out.
    [[nodiscard]] bool listsCutShort() const { return cutShort_; }

private:
    // Tests the words [from, to) and stores the accepted ones.
    void testWords(const TileTest& test, std::size_t from, std::size_t to, std::int16_t& minimum,
                   ResultStore& main, SearchConnections& connections);
    // The one place a word is taken: counted, stored, the main store pruned
    // when it outgrows the field size, and a bonus word kept apart.
    void acceptWord(std::size_t i, TileVerdict verdict, std::int16_t& minimum, ResultStore& main,
                    SearchConnections& connections);
    void showProgress(std::int64_t index, std::int64_t lastIndex, double startTime,
                      SearchWindow& window);

    const PreparedWords& words_;
    ResultStore bonus_; // kept between runs, like the window's other state
    std::uint64_t found_ = 0;
    bool stopRequested_ = false;
    bool progressDue_ = true; // the first run shows progress after its first word
    bool bonusFound_ = false;
    bool cutShort_ = false;
    bool running_ = false;
};

} // namespace lettriner
