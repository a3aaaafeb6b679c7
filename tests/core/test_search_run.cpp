// SPDX-License-Identifier: GPL-3.0-or-later
// Whole search runs over small word lists, with a window that records what
// the run shows and acts inside the yields the way a user or a timer would.

#include "data/number_format.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/letter_values.h"
#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/search_run.h"
#include "support/result_cells.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

using Rows = testing::CellRows;
using testing::cellRows;
using Events = std::vector<std::u16string>;
using Words = std::vector<std::u16string>;

class RecordingWindow final : public SearchWindow {
public:
    std::function<void(std::size_t index)> onYield; // inside the yield after word `index`
    std::u16string rackAtPublish;                   // empty: the rack the run started with
    std::uint32_t every = 1;                        // words between two yields
    Events events;

    void yield() override {
        events.push_back(u"yield");
        if (onYield)
            onYield(yields_);
        ++yields_;
    }
    std::uint32_t yieldEvery() const override { return every; }
    void loopEnded() override { events.push_back(u"loop ended"); }
    void setProgressTimerEnabled(bool on) override {
        events.push_back(on ? u"timer on" : u"timer off");
    }
    void setSearching(bool searching) override {
        events.push_back(searching ? u"searching" : u"idle");
    }
    void hideBonusList() override { events.push_back(u"hide bonus"); }
    void showBonusList() override { events.push_back(u"show bonus"); }
    void drawProgress(std::int16_t percent) override {
        events.push_back(u"progress " + decimalText(percent));
    }
    void showElapsedSeconds(double seconds) override {
        events.push_back(u"time " + formatOneDecimal(seconds, u','));
    }
    void showFoundCount(std::uint64_t count) override {
        events.push_back(u"found " + foundCountText(count));
    }
    std::u16string currentRack(std::u16string_view rackAtStart) override {
        events.push_back(u"rack read");
        return rackAtPublish.empty() ? std::u16string(rackAtStart) : rackAtPublish;
    }
    double secondsSinceMidnight() const override {
        return clockReads_++ == 0 ? 86399.5 : 0.5; // the first run crosses midnight
    }

    [[nodiscard]] Events eventsStartingWith(std::u16string_view prefix) const {
        Events picked;
        std::copy_if(events.begin(), events.end(), std::back_inserter(picked),
                     [prefix](const std::u16string& event) { return event.starts_with(prefix); });
        return picked;
    }

private:
    std::size_t yields_ = 0;
    mutable int clockReads_ = 0;
};

Words wordColumn(const MemoryResultList& list) {
    Words words;
    for (const ResultRow& row : list.rows())
        words.push_back(row.word);
    return words;
}

// Letters A to I are worth 1 to 9, so a one-letter word's value is its place
// in the alphabet; K is worth 3 like C, S is worth -2.
class SearchRunTest : public ::testing::Test {
protected:
    void useWords(const std::u16string& lines) {
        database_ = WordDatabase(lines);
        words_ = PreparedWords(
            database_,
            letterValuesFromTexts(u"A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG\r\nH\r\nI\r\nS\r\nä\r\nK",
                                  u"1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n-2\r\n6\r\n3"));
    }
    void search(SearchRun& run) {
        SearchConnections connections{minimum, fieldSize, mainList, bonusList, window};
        run.run(texts, connections);
        found = run.foundCount();
    }
    void search() {
        SearchRun run(words_);
        search(run);
    }

    SearchTexts texts{u"", u"", u"", u"1"}; // empty rack, one letter from the board
    KeptNumberField minimum{u"1"};
    KeptNumberField fieldSize{u"500"};
    MemoryResultList mainList;
    MemoryResultList bonusList;
    RecordingWindow window;
    std::uint64_t found = 0;
    WordDatabase database_;
    PreparedWords words_;
};

TEST_F(SearchRunTest, HooksComeInOrder) {
    useWords(u"A\r\nB");
    mainList.addRow(u"FROM BEFORE");
    search();
    EXPECT_EQ(window.events,
              (Events{u"timer on", u"hide bonus", u"searching", u"yield", u"progress 0",
                      u"time -86399,0", u"found 1 Wörter gefunden", u"yield", u"loop ended",
                      u"rack read", u"show bonus", u"progress 100", u"time -86399,0",
                      u"found 2 Wörter gefunden", u"timer off", u"idle"}));
    EXPECT_EQ(wordColumn(mainList), (Words{u"B", u"A"}));
}

TEST_F(SearchRunTest, ProgressIsTheShareOfTheWordJustHandled) {
    useWords(u"A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG");
    SearchRun run(words_);
    window.onYield = [&run](std::size_t) {
        run.raiseProgressFlag();
    };
    search(run);
    EXPECT_EQ(window.eventsStartingWith(u"progress"),
              (Events{u"progress 0", u"progress 16", u"progress 33", u"progress 50", u"progress 66",
                      u"progress 83", u"progress 100", u"progress 100"}));
    // A window that yields after every third word.
    window = RecordingWindow{};
    window.every = 3;
    search();
    EXPECT_EQ(window.eventsStartingWith(u"yield").size(), 2u);
    // A one-word list has no share to draw, but still shows time and count.
    window.events.clear();
    useWords(u"A");
    search();
    EXPECT_EQ(window.eventsStartingWith(u"progress"), (Events{u"progress 100"}));
    EXPECT_EQ(window.eventsStartingWith(u"found").size(), 2u);
}

TEST_F(SearchRunTest, StopInsideAYieldEndsBeforeTheNextWordAndASecondRunIsIgnored) {
    useWords(u"A\r\nB\r\nC\r\nD");
    SearchRun run(words_);
    window.onYield = [&](std::size_t index) {
        SearchConnections connections{minimum, fieldSize, mainList, bonusList, window};
        run.run(texts, connections); // runs never nest
        if (index == 1) {
            run.requestStop();
            run.raiseProgressFlag(); // the word in hand still shows its progress
        }
    };
    search(run);
    EXPECT_EQ(wordColumn(mainList), (Words{u"B", u"A"}));
    EXPECT_EQ(found, 2u);
    EXPECT_EQ(window.eventsStartingWith(u"timer on").size(), 1u);
    EXPECT_EQ(window.eventsStartingWith(u"progress"),
              (Events{u"progress 0", u"progress 33", u"progress 100"}));
    EXPECT_FALSE(run.isRunning());
}

TEST_F(SearchRunTest, PruningKeepsTheBestAndRaisesTheMinimum) {
    // clang-format off
    const std::tuple<const char*, std::u16string, std::u16string, std::u16string, Words, std::uint64_t, std::u16string> cases[] = {
        {"field size 0 keeps the best so far",  u"C\r\nE\r\nB\r\nG\r\nD", u"0",  u"1", {u"G"},       3, u"7"},
        {"field size 0, tie keeps the first",   u"C\r\nK\r\nB",           u"0",  u"1", {u"C"},       2, u"3"},
        {"negative field size acts like 0",     u"C\r\nE\r\nB\r\nG\r\nD", u"-7", u"1", {u"G"},       3, u"7"},
        {"field size 1 keeps two",              u"C\r\nD\r\nE\r\nF",      u"1",  u"1", {u"F", u"E"}, 4, u"5"},
        {"field size 2: no prune for two words", u"C\r\nD",               u"2",  u"1", {u"D", u"C"}, 2, u"1"},
        {"raised minimum rejects later words",  u"E\r\nF\r\nG\r\nA\r\nB", u"1",  u"1", {u"G", u"F"}, 3, u"6"},
    };
    // clang-format on
    for (const auto& [name, lines, size, typed, rows, count, minimumAfter] : cases) {
        SCOPED_TRACE(name);
        useWords(lines);
        fieldSize.setText(size);
        minimum.setText(typed);
        search();
        EXPECT_EQ(wordColumn(mainList), rows);
        EXPECT_EQ(found, count);
        EXPECT_EQ(minimum.text(), minimumAfter);
        // The bonus store is never pruned: with an empty rack every word is a bonus word.
        EXPECT_EQ(static_cast<std::uint64_t>(bonusList.rowCount()), count);
    }
}

TEST_F(SearchRunTest, LettersAreComparedInCapitalsAndTheRackIsReadAgainToPublish) {
    useWords(u"bär\r\nBär\r\nbad\r\nab\r\nstraße\r\nb a");
    texts = {u"straße bär", u" b ", u"c d", u"0"};
    minimum.setText(u"0");
    search();
    EXPECT_EQ(cellRows(mainList), (Rows{{u"BÄR", u"3", u"8", u"", u"staße r"},
                                        {u"BÄR", u"3", u"8", u"", u"staße r"},
                                        {u"AB", u"2", u"3", u"", u"strße är"},
                                        {u"B A", u"3", u"3", u"", u"strßeär"}}));
    EXPECT_TRUE(bonusList.rows().empty());
    EXPECT_TRUE(window.eventsStartingWith(u"show bonus").empty());

    useWords(u"fee");
    texts = {u"fee", u"", u"", u"0"};
    window.rackAtPublish = u"FEX A";
    search();
    EXPECT_EQ(cellRows(mainList), (Rows{{u"FEE", u"3", u"16", u"e", u"x a"}}));
    EXPECT_EQ(bonusList.rows(), mainList.rows());
}

TEST_F(SearchRunTest, BonusListShownOnlyWhenABonusWordWasFound) {
    useWords(u"AB\r\nA");
    SearchRun run(words_);
    texts = {u"ab", u"", u"", u"0"};
    search(run);
    EXPECT_EQ(wordColumn(bonusList), (Words{u"AB"}));
    EXPECT_TRUE(run.bonusFound());
    texts = {u"abc", u"", u"", u"0"};
    search(run);
    EXPECT_EQ(wordColumn(mainList), (Words{u"AB", u"A"}));
    EXPECT_TRUE(bonusList.rows().empty());
    EXPECT_EQ(window.eventsStartingWith(u"show bonus").size(), 1u);
    EXPECT_FALSE(run.bonusFound());
}

} // namespace
} // namespace lettriner
