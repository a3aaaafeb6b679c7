// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/list_sort.h"

#include <QLocale>
#include <algorithm>

namespace lettriner::ui {
namespace {

// The cell read is bounded like the list control's 513-byte buffer.
constexpr qsizetype kCellReadLength = 512;

double cellNumber(const QString& text) {
    bool ok = false;
    double number = QLocale().toDouble(text, &ok);
    if (!ok)
        number = QLocale::c().toDouble(text, &ok);
    return ok ? number : 0.0;
}

// -1, 0 or 1 as a is before, equal to or after b.
int orderOf(const QString& a, const QString& b, SortKind kind) {
    if (kind == SortKind::Number) {
        const double x = cellNumber(a);
        const double y = cellNumber(b);
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    // QString compares UTF-16 code units: no locale, case-sensitive.
    const int c = QString::compare(a, b, Qt::CaseSensitive);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

} // namespace

QString ListenZelleLesen(const SortierInfo& info, const ResultRow& row) {
    if (info.column < 0 || info.column >= row.size())
        return {};
    return row.at(info.column).left(kCellReadLength);
}

std::int32_t ListenVergleich(const ResultRow& row1, const ResultRow& row2,
                             const SortierInfo& info) {
    const QString t1 = ListenZelleLesen(info, row1);
    const QString t2 = ListenZelleLesen(info, row2);
    if (t1 == t2)
        return 0;
    const int order = orderOf(t1, t2, info.kind);
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
