// The value sort must give exactly the permutation of the plain selection
// sort, ties included, since pruning keeps whatever lands in the better half.

#include "engine/value_sort.h"
#include "support/case_names.h"
#include "support/engine_printing.h"
#include "support/literal_selection_sort.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace lettriner {
namespace {

using testing::PrintTo; // table rows by name

// Word numbers record where each entry started, so any difference in the
// order of equal values shows.
std::vector<StoreEntry> randomStore(std::mt19937& engine, std::size_t size, int lowest,
                                    int highest) {
    std::vector<StoreEntry> store;
    const auto span = static_cast<std::uint32_t>(highest - lowest + 1);
    for (std::size_t i = 0; i < size; ++i)
        store.push_back({static_cast<std::uint32_t>(i),
                         static_cast<std::int16_t>(lowest + static_cast<int>(engine() % span))});
    return store;
}

std::vector<StoreEntry> sortedLiterally(std::vector<StoreEntry> store) {
    testing::literalSelectionSort(store);
    return store;
}

std::vector<StoreEntry> sortedFast(std::vector<StoreEntry> store) {
    FeldNachWertSortieren(store);
    return store;
}

struct ValueRange {
    int lowest;
    int highest;
};

TEST(ValueSort, EqualsSelectionSortOnRandomStoresWithManyTies) {
    // Narrow ranges give long runs of equal values; the extremes check that
    // the whole 16-bit range orders correctly.
    const ValueRange ranges[] = {{0, 0},  {0, 1},  {-1, 1},        {0, 3},
                                 {-5, 5}, {0, 20}, {-32768, 32767}};
    std::mt19937 engine(4711);
    for (int round = 0; round < 1000; ++round) {
        const ValueRange range = ranges[engine() % std::size(ranges)];
        const std::size_t size = engine() % 301;
        const std::vector<StoreEntry> store =
            randomStore(engine, size, range.lowest, range.highest);
        ASSERT_EQ(sortedFast(store), sortedLiterally(store))
            << "size " << size << ", values " << range.lowest << ".." << range.highest;
    }
}

TEST(ValueSort, EqualsSelectionSortOnLargeStores) {
    std::mt19937 engine(1234);
    for (const ValueRange range : {ValueRange{0, 4}, ValueRange{-300, 300}}) {
        const std::vector<StoreEntry> store =
            randomStore(engine, 2500, range.lowest, range.highest);
        EXPECT_EQ(sortedFast(store), sortedLiterally(store));
    }
}

struct SortCase {
    const char* name;
    std::vector<std::int16_t> values;     // of words 0, 1, 2, ...
    std::vector<std::uint32_t> wordOrder; // after sorting
};

// clang-format off
const SortCase kSortCases[] = {
    {"Empty",                          {},               {}},
    {"OneEntry",                       {7},              {0}},
    {"AlreadyDescending",              {3, 2, 1},        {0, 1, 2}},
    {"Ascending",                      {1, 2, 3},        {2, 1, 0}},
    {"NotStable_EqualWordCarriedBack", {1, 1, 2},        {2, 1, 0}},
    {"FirstOfEqualBestIsChosen",       {0, 5, 5, 5},     {1, 2, 3, 0}},
    {"ExtremeValues",                  {-32768, 32767, 0}, {1, 2, 0}},
};
// clang-format on

class ValueSortCases : public ::testing::TestWithParam<SortCase> {};

TEST_P(ValueSortCases, GivesSelectionSortOrder) {
    const SortCase& c = GetParam();
    std::vector<StoreEntry> store;
    for (std::size_t i = 0; i < c.values.size(); ++i)
        store.push_back({static_cast<std::uint32_t>(i), c.values[i]});
    FeldNachWertSortieren(store);
    std::vector<std::uint32_t> order;
    for (const StoreEntry& entry : store)
        order.push_back(entry.word);
    EXPECT_EQ(order, c.wordOrder);
}

INSTANTIATE_TEST_SUITE_P(Cases, ValueSortCases, ::testing::ValuesIn(kSortCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace lettriner
