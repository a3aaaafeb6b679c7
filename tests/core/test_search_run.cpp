// Whole search runs over small word lists, with a window that records what
// the run shows and acts inside the yields the way a user or a timer would.

#include "data/word_database.h"
#include "engine/letter_values.h"
#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/search_run.h"
#include "support/case_names.h"
#include "support/u16_printing.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace lettriner {
namespace {

using testing::PrintTo; // table rows by name

using Rows = std::vector<MemoryResultList::Row>;
using Events = std::vector<std::u16string>;

// Letters A to I are worth 1 to 9, so a one-letter word's value is its place
// in the alphabet; K is worth 3 like C, S is worth -2.
LetterValueTable gameValues() {
    return letterValuesFromTexts(u"A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG\r\nH\r\nI\r\nS\r\nß\r\nä\r\nK",
                                 u"1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n-2\r\n2\r\n6\r\n3");
}

class RecordingWindow final : public SearchWindow {
public:
    // Called inside the yield after word `index` (counted from 0).
    std::function<void(std::size_t index)> onYield;
    std::u16string rackAtPublish; // empty: the rack the run started with
    double startSeconds = 3600.0;
    double laterSeconds = 3602.5;
    char16_t separator = u',';
    Events events;

    void yield() override {
        events.push_back(u"yield");
        if (onYield)
            onYield(yields_);
        ++yields_;
    }
    void loopEnded() override { events.push_back(u"loop ended"); }
    void setProgressTimerEnabled(bool enabled) override {
        events.push_back(enabled ? u"timer on" : u"timer off");
    }
    void setSearching(bool searching) override {
        events.push_back(searching ? u"searching" : u"idle");
    }
    void hideBonusList() override { events.push_back(u"hide bonus"); }
    void showBonusList() override { events.push_back(u"show bonus"); }
    void drawProgress(std::int16_t percent) override {
        events.push_back(u"progress " + decimal(percent));
    }
    void setElapsedText(std::u16string text) override { events.push_back(u"time " + text); }
    void setFoundText(std::u16string text) override { events.push_back(u"found " + text); }
    std::u16string currentRack(std::u16string_view rackAtStart) override {
        events.push_back(u"rack read");
        return rackAtPublish.empty() ? std::u16string(rackAtStart) : rackAtPublish;
    }
    double secondsSinceMidnight() const override {
        return clockReads_++ == 0 ? startSeconds : laterSeconds;
    }
    char16_t decimalSeparator() const override { return separator; }

    // Only the events of one kind, e.g. every "progress ...".
    [[nodiscard]] Events eventsStartingWith(std::u16string_view prefix) const {
        Events picked;
        for (const std::u16string& event : events) {
            if (event.starts_with(prefix))
                picked.push_back(event);
        }
        return picked;
    }

private:
    static std::u16string decimal(int number) {
        const std::string digits = std::to_string(number);
        return {digits.begin(), digits.end()};
    }
    std::size_t yields_ = 0;
    mutable int clockReads_ = 0;
};

// One search set-up: word list, fields, lists and window, all in memory.
class SearchRunTest : public ::testing::Test {
protected:
    void useWords(const std::u16string& lines) {
        database_ = WordDatabase(lines);
        words_ = PreparedWords(database_, gameValues());
    }
    void search(SearchRun& run) {
        SearchConnections connections{minimum, fieldSize, mainList, bonusList, window};
        run.run(texts, connections);
    }
    void search() {
        SearchRun run(words_);
        search(run);
        found = run.foundCount();
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

// Column 0 of every row.
std::vector<std::u16string> wordColumn(const MemoryResultList& list) {
    std::vector<std::u16string> words;
    for (const MemoryResultList::Row& row : list.rows())
        words.push_back(row[0]);
    return words;
}

TEST_F(SearchRunTest, EmptyWordListEndsAtOnceWithEmptyLists) {
    useWords(u"");
    mainList.addRow(u"FROM BEFORE");
    search();
    EXPECT_TRUE(mainList.rows().empty());
    EXPECT_TRUE(bonusList.rows().empty());
    EXPECT_EQ(found, 0u);
    EXPECT_EQ(window.events, (Events{u"timer on", u"hide bonus", u"searching", u"loop ended",
                                     u"rack read", u"progress 100", u"time 2,5",
                                     u"found 0 Wörter gefunden", u"timer off", u"idle"}));
}

TEST_F(SearchRunTest, HooksComeInOrderAroundTwoWords) {
    useWords(u"A\r\nB");
    search();
    EXPECT_EQ(
        window.events,
        (Events{u"timer on", u"hide bonus", u"searching", u"yield", u"progress 0", u"time 2,5",
                u"found 1 Wörter gefunden", u"yield", u"loop ended", u"rack read", u"show bonus",
                u"progress 100", u"time 2,5", u"found 2 Wörter gefunden", u"timer off", u"idle"}));
}

TEST_F(SearchRunTest, ProgressIsTheShareOfTheWordJustHandled) {
    useWords(u"A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG");
    SearchRun run(words_);
    window.onYield = [&run](std::size_t) {
        run.raiseProgressFlag();
    };
    search(run);
    // i * 100 / 6 for i = 0..6, then the final 100.
    EXPECT_EQ(window.eventsStartingWith(u"progress"),
              (Events{u"progress 0", u"progress 16", u"progress 33", u"progress 50", u"progress 66",
                      u"progress 83", u"progress 100", u"progress 100"}));
    EXPECT_EQ(window.eventsStartingWith(u"found").size(), 8u);
}

TEST_F(SearchRunTest, OneWordListDrawsOnlyTheFinalProgress) {
    useWords(u"A");
    search();
    EXPECT_EQ(window.eventsStartingWith(u"progress"), (Events{u"progress 100"}));
    // Time and count are still shown after the word.
    EXPECT_EQ(window.eventsStartingWith(u"found"),
              (Events{u"found 1 Wörter gefunden", u"found 1 Wörter gefunden"}));
}

struct ClockCase {
    const char* name;
    double start;
    double later;
    char16_t separator;
    std::u16string shown;
};

const ClockCase kClockCases[] = {
    {"GermanDecimalComma", 3600.0, 3602.5, u',', u"time 2,5"},
    {"DecimalPoint", 3600.0, 3600.04, u'.', u"time 0.0"},
    {"RoundedToOneDigit", 100.0, 112.36, u',', u"time 12,4"},
    {"AcrossMidnightIsNegative", 86399.5, 0.5, u',', u"time -86399,0"},
};

class SearchRunClock : public SearchRunTest, public ::testing::WithParamInterface<ClockCase> {};

TEST_P(SearchRunClock, TimeTextHasOneDigitAndTheLocaleSeparator) {
    const ClockCase& c = GetParam();
    useWords(u"");
    window.startSeconds = c.start;
    window.laterSeconds = c.later;
    window.separator = c.separator;
    search();
    EXPECT_EQ(window.eventsStartingWith(u"time "), (Events{c.shown}));
}

INSTANTIATE_TEST_SUITE_P(Cases, SearchRunClock, ::testing::ValuesIn(kClockCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(SearchRunTest, StopFromInsideAYieldEndsBeforeTheNextWord) {
    useWords(u"A\r\nB\r\nC\r\nD");
    SearchRun run(words_);
    window.onYield = [&run](std::size_t index) {
        if (index == 1) {
            run.requestStop();
            run.raiseProgressFlag(); // the word in hand still shows its progress
        }
    };
    search(run);
    EXPECT_EQ(wordColumn(mainList), (std::vector<std::u16string>{u"B", u"A"}));
    EXPECT_EQ(run.foundCount(), 2u);
    EXPECT_EQ(window.eventsStartingWith(u"yield").size(), 2u);
    EXPECT_EQ(window.eventsStartingWith(u"progress"),
              (Events{u"progress 0", u"progress 33", u"progress 100"}));
    EXPECT_EQ(window.events.back(), u"idle");
}

TEST_F(SearchRunTest, SecondRunInsideAYieldIsIgnored) {
    useWords(u"A\r\nB");
    SearchRun run(words_);
    window.onYield = [&](std::size_t) {
        SearchConnections connections{minimum, fieldSize, mainList, bonusList, window};
        run.run(texts, connections);
    };
    search(run);
    EXPECT_EQ(window.eventsStartingWith(u"timer on").size(), 1u);
    EXPECT_EQ(wordColumn(mainList), (std::vector<std::u16string>{u"B", u"A"}));
}

// Pruning during a run: the trigger, what survives and the raised minimum.
struct PruneRunCase {
    const char* name;
    std::u16string lines;
    std::u16string fieldSize;
    std::u16string minimum;
    std::vector<std::u16string> rows;
    std::uint64_t found;
    std::u16string minimumAfter;
};

// clang-format off
const PruneRunCase kPruneRunCases[] = {
    {"FieldSizeZero_KeepsTheBestSoFar",      u"C\r\nE\r\nB\r\nG\r\nD", u"0",  u"1", {u"G"},        3, u"7"},
    {"FieldSizeZero_TieKeepsTheFirst",       u"C\r\nK\r\nB",           u"0",  u"1", {u"C"},        2, u"3"},
    {"NegativeFieldSizeActsLikeZero",        u"C\r\nE\r\nB\r\nG\r\nD", u"-7", u"1", {u"G"},        3, u"7"},
    {"FieldSizeOne_KeepsTwo",                u"C\r\nD\r\nE\r\nF",      u"1",  u"1", {u"F", u"E"},  4, u"5"},
    {"FieldSizeTwo_NoPruneUntilThirdWord",   u"C\r\nD",                u"2",  u"1", {u"D", u"C"},  2, u"1"},
    {"RaisedMinimumRejectsLaterWords",       u"E\r\nF\r\nG\r\nA\r\nB", u"1",  u"1", {u"G", u"F"},  3, u"6"},
};
// clang-format on

class SearchRunPruning : public SearchRunTest,
                         public ::testing::WithParamInterface<PruneRunCase> {};

TEST_P(SearchRunPruning, KeepsTheBestAndRaisesTheMinimum) {
    const PruneRunCase& c = GetParam();
    useWords(c.lines);
    fieldSize.setText(c.fieldSize);
    minimum.setText(c.minimum);
    search();
    EXPECT_EQ(wordColumn(mainList), c.rows);
    EXPECT_EQ(found, c.found);
    EXPECT_EQ(minimum.text(), c.minimumAfter);
}

INSTANTIATE_TEST_SUITE_P(Cases, SearchRunPruning, ::testing::ValuesIn(kPruneRunCases),
                         [](const auto& row) { return std::string(row.param.name); });

// Word i of the list is "A" repeated 1 + i % 7 times: values 1 to 7, many ties.
std::u16string repeatedAs(int count) {
    std::u16string lines;
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            lines += u"\r\n";
        lines += std::u16string(static_cast<std::size_t>(1 + i % 7), u'A');
    }
    return lines;
}

TEST_F(SearchRunTest, FiveHundredWordsFitTheDefaultFieldSize) {
    useWords(repeatedAs(500));
    texts.allowance = u"1000";
    search();
    EXPECT_EQ(mainList.rowCount(), 500);
    EXPECT_EQ(minimum.text(), u"1");
}

TEST_F(SearchRunTest, FiveHundredAndFirstWordPrunesToTwoHundredFiftyOne) {
    useWords(repeatedAs(501));
    texts.allowance = u"1000";
    search();
    EXPECT_EQ(mainList.rowCount(), 251);
    EXPECT_EQ(found, 501u);
    EXPECT_EQ(minimum.text(), u"4");
    EXPECT_EQ(minimum.value(), 4);
    // The bonus store is never pruned: with an empty rack every word is a bonus word.
    EXPECT_EQ(bonusList.rowCount(), 501);
}

TEST_F(SearchRunTest, LoweredFieldSizeHalvesTheStoreOncePerAppend) {
    useWords(u"A\r\nB\r\nC\r\nD\r\nE\r\nF\r\nG\r\nH\r\nI");
    window.onYield = [this](std::size_t index) {
        if (index == 5)
            fieldSize.setText(u"0");
    };
    search();
    // Seven entries and the starting one halve to 4, then 3, then 2: never to 1.
    EXPECT_EQ(wordColumn(mainList), (std::vector<std::u16string>{u"I", u"H"}));
    EXPECT_EQ(found, 9u);
    EXPECT_EQ(minimum.text(), u"8");
}

struct MinimumEditCase {
    const char* name;
    std::u16string before;
    std::u16string edited; // typed inside the yield after the second word
    std::vector<std::u16string> rows;
};

const MinimumEditCase kMinimumEdits[] = {
    {"Lowered", u"5", u"0", {u"I", u"C", u"B"}},
    {"Raised", u"1", u"9", {u"I", u"A"}},
    {"OutOfRangeKeepsPrevious", u"5", u"40000", {u"I"}},
};

class SearchRunMinimumEdit : public SearchRunTest,
                             public ::testing::WithParamInterface<MinimumEditCase> {};

TEST_P(SearchRunMinimumEdit, AppliesToTheWordsAfterTheEdit) {
    const MinimumEditCase& c = GetParam();
    useWords(u"A\r\nI\r\nB\r\nC");
    minimum.setText(c.before);
    window.onYield = [this, &c](std::size_t index) {
        if (index == 1)
            minimum.setText(c.edited);
    };
    search();
    EXPECT_EQ(wordColumn(mainList), c.rows);
}

INSTANTIATE_TEST_SUITE_P(Cases, SearchRunMinimumEdit, ::testing::ValuesIn(kMinimumEdits),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(SearchRunTest, FoundCountIncludesPrunedWords) {
    useWords(u"A\r\nB\r\nC\r\nD\r\nE\r\nF");
    fieldSize.setText(u"2");
    SearchRun run(words_);
    search(run);
    EXPECT_EQ(run.foundCount(), 6u);
    EXPECT_LT(mainList.rowCount(), 6);
    EXPECT_EQ(window.events.at(window.events.size() - 3), u"found 6 Wörter gefunden");
}

TEST_F(SearchRunTest, RackReadAgainAtPublishShowsInTheLetterColumns) {
    useWords(u"fee");
    texts = {u"fee", u"", u"", u"0"};
    window.rackAtPublish = u"FEX A";
    search();
    EXPECT_EQ(mainList.rows(), (Rows{{u"FEE", u"3", u"16", u"e", u"x a"}}));
    EXPECT_EQ(bonusList.rows(), mainList.rows());
}

TEST_F(SearchRunTest, LowerCaseListMatchesTypedRackAndSharpSStays) {
    useWords(u"bär\r\nBÄR\r\nBär\r\nstraße\r\nstrasse");
    texts = {u"straße bär", u"", u"", u"0"};
    minimum.setText(u"0");
    search();
    EXPECT_EQ(mainList.rows(), (Rows{{u"BÄR", u"3", u"8", u"", u"staße r"},
                                     {u"BÄR", u"3", u"8", u"", u"staße r"},
                                     {u"BÄR", u"3", u"8", u"", u"staße r"},
                                     {u"STRAßE", u"6", u"6", u"", u" bär"}}));
    // The space tile is never used by these words, so none is a bonus word.
    EXPECT_TRUE(bonusList.rows().empty());
    EXPECT_TRUE(window.eventsStartingWith(u"show bonus").empty());
}

TEST_F(SearchRunTest, BonusListShownOnlyWhenABonusWordWasFound) {
    useWords(u"AB\r\nA");
    SearchRun run(words_);
    texts = {u"ab", u"", u"", u"0"};
    search(run);
    EXPECT_EQ(wordColumn(bonusList), (std::vector<std::u16string>{u"AB"}));
    EXPECT_EQ(window.eventsStartingWith(u"show bonus").size(), 1u);
    EXPECT_TRUE(run.bonusFound());

    window.events.clear();
    texts = {u"abc", u"", u"", u"0"};
    search(run);
    EXPECT_EQ(wordColumn(mainList), (std::vector<std::u16string>{u"AB", u"A"}));
    EXPECT_TRUE(bonusList.rows().empty());
    EXPECT_EQ(window.eventsStartingWith(u"hide bonus").size(), 1u);
    EXPECT_TRUE(window.eventsStartingWith(u"show bonus").empty());
    EXPECT_FALSE(run.bonusFound());
}

TEST_F(SearchRunTest, BlankLineIsAnEmptyWordWhenTheMinimumAllowsIt) {
    useWords(u"B\r\n\r\nS\r\n");
    texts = {u"b", u"", u"", u"1"};
    minimum.setText(u"-5");
    search();
    // The empty word and the last, empty line both stay; S is worth -2.
    EXPECT_EQ(mainList.rows(), (Rows{{u"B", u"1", u"2", u"", u""},
                                     {u"", u"0", u"0", u"", u"b"},
                                     {u"", u"0", u"0", u"", u"b"},
                                     {u"S", u"1", u"-2", u"s", u"b"}}));
    EXPECT_EQ(wordColumn(bonusList), (std::vector<std::u16string>{u"B"}));
}

TEST_F(SearchRunTest, MandatoryAndForbiddenFieldsAreUpperCasedWithoutSpaces) {
    useWords(u"ab\r\nac\r\nad\r\nbd");
    texts = {u"abcd", u" a ", u"c d", u"0"};
    search();
    EXPECT_EQ(wordColumn(mainList), (std::vector<std::u16string>{u"AB"}));
}

} // namespace
} // namespace lettriner
