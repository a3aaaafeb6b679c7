// SPDX-License-Identifier: GPL-3.0-or-later
// The result stores: the value sort (which must give the selection sort's
// exact order, ties included, since pruning keeps whatever lands in the
// better half), pruning, finishing, and publishing into a result list.

#include "data/numeric_value.h"
#include "data/text_codec.h"
#include "data/word_database.h"
#include "engine/number_field.h"
#include "engine/prepared_words.h"
#include "engine/result_list.h"
#include "engine/result_store.h"
#include "support/engine_printing.h"
#include "support/literal_selection_sort.h"
#include "support/result_cells.h"

#include <gtest/gtest.h>
#include <new>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

constexpr std::uint32_t kStart = kStartingEntry;
using Rows = testing::CellRows;
using testing::cellRows;

std::vector<std::uint32_t> wordsOf(const std::vector<StoreEntry>& entries) {
    std::vector<std::uint32_t> words;
    for (const StoreEntry& entry : entries)
        words.push_back(entry.word);
    return words;
}

TEST(ValueSort, EqualsTheSelectionSortOnRandomStoresWithManyTies) {
    // Narrow ranges give long runs of equal values; the widest checks the whole 16 bits.
    const std::pair<int, int> ranges[] = {{0, 0}, {0, 1},  {-1, 1},
                                          {0, 3}, {-5, 5}, {-32768, 32767}};
    std::mt19937 engine(4711);
    for (int round = 0; round < 600; ++round) {
        const auto [lowest, highest] = ranges[engine() % std::size(ranges)];
        const std::size_t size = round < 5 ? 2500 : engine() % 301;
        std::vector<StoreEntry> fast;
        for (std::size_t i = 0; i < size; ++i)
            fast.push_back({static_cast<std::uint32_t>(i),
                            static_cast<std::int16_t>(
                                lowest + static_cast<int>(engine() % static_cast<unsigned>(
                                                                         highest - lowest + 1)))});
        std::vector<StoreEntry> literal = fast;
        FeldNachWertSortieren(fast);
        testing::literalSelectionSort(literal);
        ASSERT_EQ(fast, literal) << "size " << size << ", values " << lowest << ".." << highest;
    }
}

ResultStore storeOf(const std::vector<std::int16_t>& values) {
    ResultStore store;
    for (std::size_t i = 0; i < values.size(); ++i)
        store.append(static_cast<std::uint32_t>(i), values[i]);
    return store;
}

TEST(Pruning, KeepsTheBetterHalfAndWritesItsLowestValue) {
    // clang-format off
    const std::tuple<const char*, std::vector<std::int16_t>, std::u16string, std::vector<std::uint32_t>, std::u16string> cases[] = {
        {"entries up to half the highest index", {5, 7, 6},    u"5",  {1, 2},      u"6"},
        {"even highest index keeps one more",    {5, 7, 6, 8}, u"5",  {3, 1, 2},   u"6"},
        {"word below zero: starting entry stays", {-2},        u"-9", {kStart},    u"0"},
        {"tie at the cut: later equal survives", {2, 2, 5, 9}, u"0",  {3, 2, 1},   u"2"},
        {"negative minimum with minus sign",     {-3, -4, -5}, u"-9", {kStart, 0}, u"-3"},
        {"minimum set below the typed one",      {1, 2},       u"10", {1, 0},      u"1"},
    };
    // clang-format on
    for (const auto& [name, values, typedMinimum, kept, minimumText] : cases) {
        SCOPED_TRACE(name);
        ResultStore store = storeOf(values);
        KeptNumberField minimum(typedMinimum);
        SchlechteHälfteLöschen(store, minimum);
        EXPECT_EQ(wordsOf(store.entries()), kept);
        EXPECT_EQ(minimum.text(), minimumText);
        EXPECT_EQ(minimum.value(), textToInt16(minimumText));
    }
    // 501 words worth 1 to 7 keep 251: 71 each of 7, 6 and 5, then 38 worth 4.
    std::vector<std::int16_t> values;
    for (int i = 0; i < 501; ++i)
        values.push_back(static_cast<std::int16_t>(1 + i % 7));
    ResultStore store = storeOf(values);
    KeptNumberField minimum(u"5");
    SchlechteHälfteLöschen(store, minimum);
    EXPECT_EQ(store.highestIndex(), 250);
    EXPECT_EQ(minimum.value(), 4);
}

TEST(FinishStore, SortsAndRemovesOnlyTheStartingEntry) {
    // clang-format off
    const std::tuple<const char*, std::vector<StoreEntry>, std::vector<std::uint32_t>> cases[] = {
        {"only the starting entry",          {{kStart, 0}},                  {}},
        {"starting entry sorts last",        {{kStart, 0}, {0, 3}, {1, 5}},  {1, 0}},
        {"starting entry in the middle",     {{kStart, 0}, {0, -1}, {1, 4}}, {1, 0}},
        {"empty word worth 0 stays",         {{kStart, 0}, {0, 2}, {1, 0}},  {0, 1}},
        {"starting entry first among zeros", {{kStart, 0}, {0, 0}, {1, -2}}, {0, 1}},
        {"starting entry already pruned",    {{0, 3}, {1, 5}},               {1, 0}},
    };
    // clang-format on
    for (const auto& [name, entries, finished] : cases) {
        ResultStore store;
        store.entries() = entries;
        finishStore(store);
        EXPECT_EQ(wordsOf(store.entries()), finished) << name;
    }
}

TEST(ColumnFill, AddsRowsForColumnZeroAndFillsOthersOnlyWhenCountsMatch) {
    MemoryResultList list;
    list.addRow(u"X");
    ListeSpalteFüllen(list, 0, std::vector<std::u16string>{u"A", u"B"});
    ListeSpalteFüllen(list, 2, std::vector<std::int64_t>{5, -3, 0});
    ListeSpalteFüllen(list, 4, std::vector<std::u16string>{u"a", u"b", u"c"});
    const Rows filled = {
        {u"X", u"", u"5", u"", u"a"}, {u"A", u"", u"-3", u"", u"b"}, {u"B", u"", u"0", u"", u"c"}};
    EXPECT_EQ(cellRows(list), filled);
    ListeSpalteFüllen(list, 1, std::vector<std::u16string>{u"1", u"2"});
    ListeSpalteFüllen(list, 3, std::vector<std::u16string>{u"1", u"2", u"3", u"4"});
    ListeSpalteFüllen(list, -1, std::vector<std::u16string>{u"D"});
    ListeSpalteFüllen(list, -1, std::vector<std::int64_t>{7, 8, 9});
    list.setSubItem(0, 1, u"row 0");
    list.setSubItem(4, 1, u"row 4");
    list.setSubItem(1, 5, u"column 5");
    EXPECT_EQ(cellRows(list), filled);
    // Numbers into column 0 add rows too.
    MemoryResultList numbers;
    ListeSpalteFüllen(numbers, 0, std::vector<std::int64_t>{7, -1});
    EXPECT_EQ(cellRows(numbers), (Rows{{u"7", u"", u"", u"", u""}, {u"-1", u"", u"", u"", u""}}));
}

// A list with room for two rows.
class TwoRowList final : public ResultList {
public:
    void addRow(std::u16string text) override {
        if (rows.rowCount() == 2)
            throw std::bad_alloc();
        rows.addRow(std::move(text));
    }
    [[nodiscard]] std::int64_t rowCount() const override { return rows.rowCount(); }
    void setSubItem(std::int64_t row, int column, std::u16string text) override {
        rows.setSubItem(row, column, std::move(text));
    }
    void setSubItem(std::int64_t row, int column, std::int64_t number) override {
        rows.setSubItem(row, column, number);
    }
    void addRows(std::vector<ResultRow> more) override {
        if (rows.rowCount() + static_cast<std::int64_t>(more.size()) > 2)
            throw std::bad_alloc();
        rows.addRows(std::move(more));
    }
    void clear() override { rows.clear(); }
    MemoryResultList rows;
};

TEST(PublishStore, WritesTheFiveColumnsInStoreOrderAgainstTheGivenRack) {
    LetterValueTable values;
    for (const auto& [letter, value] :
         {std::pair{u'B', 3.0}, {u'Ä', 6.0}, {u'R', 1.0}, {u'F', 4.0}})
        values.set(windows1252Code(letter), value);
    const PreparedWords words(WordDatabase(u"Bär\r\nfee\r\n"), values);
    ResultStore store;
    store.entries() = {{1, 4}, {0, 10}, {2, 0}};
    MemoryResultList list;
    publishStore(store, words, u"FEX A", list);
    EXPECT_EQ(cellRows(list), (Rows{{u"FEE", u"3", u"4", u"e", u"x a"},
                                    {u"BÄR", u"3", u"10", u"bär", u"fex a"},
                                    {u"", u"0", u"0", u"", u"fex a"}}));
    TwoRowList tooSmall; // no half list: words without their values
    publishStore(store, words, u"FEX A", tooSmall);
    EXPECT_EQ(tooSmall.rowCount(), 0);
}

} // namespace
} // namespace lettriner
