// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The order of a header click on the result list: ListenVergleich compares
// two rows by one column, as text (code unit by code unit) or by their
// numbers, and sortRows orders all rows by it.
//
// ListenVergleich is not a strict weak order for every input (two different
// texts of equal value give 1 both ways round), so it must not be handed to
// std::sort; sortRows is a merge sort that only ever asks "is the result < 0"
// and so ends, and keeps every row, whatever the comparison answers.

#include "engine/result_row.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace lettriner::ui {

enum class SortKind : std::int32_t { Text = 1, Number = 3 };

// What a sort hands its comparison: the column, the kind, and the direction
// (0 ascending, anything else descending).
struct SortierInfo {
    std::int32_t column = 0;
    SortKind kind = SortKind::Text;
    std::int32_t direction = 0;
};

// A cell as the comparison sees it: its text as the list shows it, at most
// 512 characters, and empty when the row has no such column.
[[nodiscard]] std::u16string ListenZelleLesen(const SortierInfo& info, const ResultRow& row);

// -1 puts row1 first, 1 puts row2 first, 0 for identical cell texts. The
// number kind compares the cells' numbers; a cell without one counts as 0.
[[nodiscard]] std::int32_t ListenVergleich(const ResultRow& row1, const ResultRow& row2,
                                           const SortierInfo& info);

// The sort kind of each result column on a header click.
[[nodiscard]] SortKind columnSortKind(int column);

// A stable merge sort of the positions 0..count-1: `before(a, b)` says that a
// must come before b. Returns the new order as old positions. Never asks
// anything else, so any answer gives a permutation in O(n log n) questions.
[[nodiscard]] std::vector<int> mergeSortOrder(int count,
                                              const std::function<bool(int, int)>& before);

} // namespace lettriner::ui
