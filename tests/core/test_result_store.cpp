// Pruning, finishing and publishing a result store.

#include "data/text_codec.h"
#include "data/word_database.h"
#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/result_store.h"
#include "support/case_names.h"
#include "support/engine_printing.h"
#include "support/u16_printing.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace lettriner {
namespace {

using testing::PrintTo; // table rows by name

constexpr std::uint32_t kStart = kStartingEntry;

// A store holding the starting entry and then word i with values[i].
ResultStore storeOf(const std::vector<std::int16_t>& values) {
    ResultStore store;
    for (std::size_t i = 0; i < values.size(); ++i)
        store.append(static_cast<std::uint32_t>(i), values[i]);
    return store;
}

std::vector<std::uint32_t> wordsOf(const ResultStore& store) {
    std::vector<std::uint32_t> words;
    for (const StoreEntry& entry : store.entries())
        words.push_back(entry.word);
    return words;
}

struct PruneCase {
    const char* name;
    std::vector<std::int16_t> values; // of words 0, 1, 2, ... behind the starting entry
    std::u16string typedMinimum;
    std::vector<std::uint32_t> kept;
    std::u16string minimumText;
    std::int16_t minimumValue;
};

// clang-format off
const PruneCase kPruneCases[] = {
    {"KeepsEntriesUpToHalfTheHighestIndex",    {5, 7, 6},     u"5",  {1, 2},        u"6",  6},
    {"EvenHighestIndexKeepsOneMore",           {5, 7, 6, 8},  u"5",  {3, 1, 2},     u"6",  6},
    {"WordBelowZero_StartingEntryStays",       {-2},          u"-9", {kStart},      u"0",  0},
    {"TieAtTheCut_LaterEqualWordSurvives",     {2, 2, 5, 9},  u"0",  {3, 2, 1},     u"2",  2},
    {"NegativeMinimumWithMinusSign",           {-3, -4, -5},  u"-9", {kStart, 0},   u"-3", -3},
    {"MinimumSetBelowTheTypedOne",             {1, 2},        u"10", {1, 0},        u"1",  1},
};
// clang-format on

class Pruning : public ::testing::TestWithParam<PruneCase> {};

TEST_P(Pruning, KeepsTheBetterHalfAndWritesTheMinimum) {
    const PruneCase& c = GetParam();
    ResultStore store = storeOf(c.values);
    KeptNumberField minimum(c.typedMinimum);
    SchlechteHälfteLöschen(store, minimum);
    EXPECT_EQ(wordsOf(store), c.kept);
    EXPECT_EQ(minimum.text(), c.minimumText);
    EXPECT_EQ(minimum.value(), c.minimumValue);
}

INSTANTIATE_TEST_SUITE_P(Cases, Pruning, ::testing::ValuesIn(kPruneCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Pruning, FiveHundredAndOneWordsKeepTwoHundredFiftyOne) {
    std::vector<std::int16_t> values;
    for (int i = 0; i < 501; ++i)
        values.push_back(static_cast<std::int16_t>(1 + i % 7));
    ResultStore store = storeOf(values);
    KeptNumberField minimum(u"5");
    SchlechteHälfteLöschen(store, minimum);
    ASSERT_EQ(store.entries().size(), 251u);
    // 71 words each of 7, 6 and 5 come first; the 251st is worth 4.
    EXPECT_EQ(store.entries().back().value, 4);
    EXPECT_EQ(minimum.text(), u"4");
    EXPECT_EQ(minimum.value(), 4);
}

struct FinishCase {
    const char* name;
    std::vector<StoreEntry> entries; // as they stand before finishing
    std::vector<std::uint32_t> finished;
};

// clang-format off
const FinishCase kFinishCases[] = {
    {"OnlyStartingEntry_FinishesEmpty",    {{kStart, 0}},                          {}},
    {"StartingEntrySortsLast",             {{kStart, 0}, {0, 3}, {1, 5}},          {1, 0}},
    {"StartingEntrySortsIntoTheMiddle",    {{kStart, 0}, {0, -1}, {1, 4}},         {1, 0}},
    {"EmptyWordWorthZeroStays_Ahead",      {{kStart, 0}, {0, 0}, {1, 2}},          {1, 0}},
    {"EmptyWordWorthZeroStays_Behind",     {{kStart, 0}, {0, 2}, {1, 0}},          {0, 1}},
    {"StartingEntryFirstAmongZeros",       {{kStart, 0}, {0, 0}, {1, -2}},         {0, 1}},
    {"StartingEntryAlreadyPruned",         {{0, 3}, {1, 5}},                       {1, 0}},
};
// clang-format on

class Finishing : public ::testing::TestWithParam<FinishCase> {};

TEST_P(Finishing, SortsAndRemovesOnlyTheStartingEntry) {
    const FinishCase& c = GetParam();
    ResultStore store;
    store.entries() = c.entries;
    finishStore(store);
    EXPECT_EQ(wordsOf(store), c.finished);
}

INSTANTIATE_TEST_SUITE_P(Cases, Finishing, ::testing::ValuesIn(kFinishCases),
                         [](const auto& row) { return std::string(row.param.name); });

using Rows = std::vector<MemoryResultList::Row>;

MemoryResultList listWithWords(std::initializer_list<std::u16string> words) {
    MemoryResultList list;
    for (const std::u16string& word : words)
        list.addRow(word);
    return list;
}

TEST(ColumnFill, ColumnZeroAddsRowsAtTheEnd) {
    MemoryResultList list = listWithWords({u"X"});
    ListeSpalteFüllen(list, 0, std::vector<std::u16string>{u"A", u"B"});
    EXPECT_EQ(list.rows(), (Rows{{u"X"}, {u"A"}, {u"B"}}));
}

TEST(ColumnFill, LaterColumnFillsEveryRowWhenCountsMatch) {
    MemoryResultList list = listWithWords({u"A", u"B"});
    ListeSpalteFüllen(list, 3, std::vector<std::u16string>{u"a", u"b"});
    ListeSpalteFüllen(list, 2, std::vector<std::int64_t>{5, -3});
    EXPECT_EQ(list.rows(), (Rows{{u"A", u"", u"5", u"a", u""}, {u"B", u"", u"-3", u"b", u""}}));
}

struct IgnoredFill {
    const char* name;
    int column;
    std::vector<std::u16string> array;
};

const IgnoredFill kIgnoredFills[] = {
    {"FewerEntriesThanRows", 1, {u"1", u"2"}},
    {"MoreEntriesThanRows", 4, {u"1", u"2", u"3", u"4"}},
    {"NegativeColumn", -1, {u"1", u"2", u"3"}},
    {"NegativeColumnEvenForWords", -2, {u"D"}},
};

class ColumnFillIgnored : public ::testing::TestWithParam<IgnoredFill> {};

TEST_P(ColumnFillIgnored, LeavesTheListUnchanged) {
    const IgnoredFill& c = GetParam();
    MemoryResultList list = listWithWords({u"A", u"B", u"C"});
    const Rows before = list.rows();
    ListeSpalteFüllen(list, c.column, c.array);
    EXPECT_EQ(list.rows(), before);
}

INSTANTIATE_TEST_SUITE_P(Cases, ColumnFillIgnored, ::testing::ValuesIn(kIgnoredFills),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ColumnFill, NegativeColumnOfNumbersChangesNothing) {
    MemoryResultList list = listWithWords({u"A"});
    ListeSpalteFüllen(list, -1, std::vector<std::int64_t>{7});
    EXPECT_EQ(list.rows(), (Rows{{u"A"}}));
}

class Publishing : public ::testing::Test {
protected:
    Publishing() {
        for (const auto& [letter, value] :
             {std::pair{u'B', 3.0}, {u'Ä', 6.0}, {u'R', 1.0}, {u'F', 4.0}, {u'E', 1.0}})
            values_.set(windows1252Code(letter), value);
        // Entries 0, 1, 2 of the list: "Bär", "fee" and an empty line.
        store_.entries().clear();
        store_.append(1, 6);
        store_.append(0, 10);
        store_.append(2, 0);
    }

    LetterValueTable values_;
    WordDatabase database_{u"Bär\r\nfee\r\n"};
    ResultStore store_;
};

TEST_F(Publishing, WritesAllFiveColumnsInStoreOrder) {
    const PreparedWords words(database_, values_);
    MemoryResultList list;
    publishStore(store_, words, u"FEX A", list);
    EXPECT_EQ(list.rows(), (Rows{{u"FEE", u"3", u"6", u"e", u"x a"},
                                 {u"BÄR", u"3", u"10", u"bär", u"fex a"},
                                 {u"", u"0", u"0", u"", u"fex a"}}));
}

TEST_F(Publishing, ListThatStillHasRowsGetsOnlyTheWords) {
    const PreparedWords words(database_, values_);
    MemoryResultList list = listWithWords({u"OLD"});
    publishStore(store_, words, u"FEX A", list);
    EXPECT_EQ(list.rows(), (Rows{{u"OLD"}, {u"FEE"}, {u"BÄR"}, {u""}}));
}

} // namespace
} // namespace lettriner
