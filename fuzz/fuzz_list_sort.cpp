// SPDX-License-Identifier: GPL-3.0-or-later
// A header click over any rows: the merge sort gives back every row once and,
// in the comparison's order, stable (rows that compare alike keep their places).

#include "fuzz_input.h"
#include "ui/main/list_sort.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

using namespace lettriner;

// Cells separated by TAB: word, length, value, needed, left over, blanks. A
// number cell is unset when empty, else its first character gives a small
// number, so that ties are common.
ResultRow rowOf(const std::u16string& piece) {
    ResultRow row;
    std::size_t start = 0;
    for (int column = 0; column < kColumnsWithBlanks && start <= piece.size(); ++column) {
        std::size_t end = piece.find(u'\t', start);
        if (end == std::u16string::npos)
            end = piece.size();
        const std::u16string cell = piece.substr(start, end - start);
        if (std::optional<std::int64_t>* number = numberCell(row, column)) {
            if (!cell.empty())
                *number = static_cast<std::int64_t>(cell[0] % 11) - 5;
        } else {
            *textCell(row, column) = cell;
        }
        start = end + 1;
    }
    return row;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner::ui;
    if (size < 3)
        return 0;
    // Column -1 to 6 (two beyond the cells), text or number, either direction.
    SortierInfo info;
    info.column = data[0] % 8 - 1;
    info.kind = data[1] % 2 == 0 ? SortKind::Text : SortKind::Number;
    info.direction = data[2] % 3 == 0 ? 0 : data[2];
    std::vector<ResultRow> rows;
    for (const std::u16string& piece : fuzz::pieces(data + 3, size - 3, 64)) {
        if (!piece.empty())
            rows.push_back(rowOf(piece));
    }
    const auto count = static_cast<int>(rows.size());
    const auto before = [&](int a, int b) {
        return ListenVergleich(rows[a], rows[b], info) < 0;
    };
    const std::vector<int> order = mergeSortOrder(count, before);

    std::vector<int> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    std::vector<int> all(rows.size());
    std::iota(all.begin(), all.end(), 0);
    if (sorted != all)
        lettriner::fuzz::fail("the sort lost or doubled a row");

    for (std::size_t i = 1; i < order.size(); ++i) {
        if (before(order[i], order[i - 1]))
            lettriner::fuzz::fail("a row stands after one it must come before");
        if (!before(order[i - 1], order[i]) && order[i - 1] > order[i])
            lettriner::fuzz::fail("rows that compare alike changed places");
    }
    return 0;
}
