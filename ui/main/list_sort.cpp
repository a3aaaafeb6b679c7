// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/list_sort.h"

#include "display/result_texts.h"

#include <algorithm>
#include <optional>

namespace lettriner::ui {
namespace {

// The cell read is bounded like the list control's 513-byte buffer.
constexpr std::size_t kCellReadLength = 512;

// -1, 0 or 1 as a is before, equal to or after b.
template <class T> int orderOf(const T& a, const T& b) {
    return a < b ? -1 : (a > b ? 1 : 0);
}

std::optional<std::int64_t> numberIn(const ResultRow& row, std::int32_t column) {
    const std::optional<std::int64_t>* number = numberCell(row, column);
    return number != nullptr ? *number : std::nullopt;
}

} // namespace

std::u16string ListenZelleLesen(const SortierInfo& info, const ResultRow& row) {
    std::u16string text = cellText(row, info.column);
    if (text.size() > kCellReadLength)
        text.resize(kCellReadLength);
    return text;
}

std::int32_t ListenVergleich(const ResultRow& row1, const ResultRow& row2,
                             const SortierInfo& info) {
    int order = 0;
    if (info.kind == SortKind::Number) {
        // Equal cells show equal texts: both empty, or the same number.
        const std::optional<std::int64_t> n1 = numberIn(row1, info.column);
        const std::optional<std::int64_t> n2 = numberIn(row2, info.column);
        if (n1 == n2 && (n1 || ListenZelleLesen(info, row1) == ListenZelleLesen(info, row2)))
            return 0;
        order = orderOf(n1.value_or(0), n2.value_or(0));
    } else {
        const std::u16string t1 = ListenZelleLesen(info, row1);
        const std::u16string t2 = ListenZelleLesen(info, row2);
        if (t1 == t2)
            return 0;
        // Code unit by code unit: no locale, case-sensitive.
        order = t1 < t2 ? -1 : 1;
    }
    // Equal numbers written differently fall through to 1 in either direction.
    if (info.direction == 0)
        return order < 0 ? -1 : 1;
    return order > 0 ? -1 : 1;
}

SortKind columnSortKind(int column) {
    return column == 1 || column == 2 ? SortKind::Number : SortKind::Text;
}

std::vector<int> mergeSortOrder(int count, const std::function<bool(int, int)>& before) {
    std::vector<int> order(static_cast<std::size_t>(std::max(count, 0)));
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int>(i);
    std::vector<int> merged(order.size());
    // Bottom-up: runs of 1, 2, 4, ... merged pairwise.
    for (std::size_t width = 1; width < order.size(); width *= 2) {
        for (std::size_t left = 0; left < order.size(); left += 2 * width) {
            const std::size_t mid = std::min(left + width, order.size());
            const std::size_t end = std::min(left + 2 * width, order.size());
            std::size_t i = left;
            std::size_t j = mid;
            std::size_t out = left;
            while (i < mid && j < end) {
                // Only a right-hand row that must come first jumps ahead: stable.
                if (before(order[j], order[i]))
                    merged[out++] = order[j++];
                else
                    merged[out++] = order[i++];
            }
            while (i < mid)
                merged[out++] = order[i++];
            while (j < end)
                merged[out++] = order[j++];
        }
        order.swap(merged);
    }
    return order;
}

} // namespace lettriner::ui
