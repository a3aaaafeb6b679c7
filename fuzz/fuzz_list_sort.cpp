// SPDX-License-Identifier: GPL-3.0-or-later
// A header click over any rows: the merge sort gives back every row once, and,
// where the comparison is a strict weak order, in its order and stable (rows
// that compare alike keep their places). Number cells that read as NaN are
// the one case where it is not: NaN is alike to every number.

#include "fuzz_input.h"
#include "ui/main/list_sort.h"

#include <QLocale>
#include <QString>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

using namespace lettriner::ui;

bool readsAsNaN(const QString& cell) {
    bool ok = false;
    double number = QLocale().toDouble(cell, &ok);
    if (!ok)
        number = QLocale::c().toDouble(cell, &ok);
    return ok && std::isnan(number);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    if (size < 3)
        return 0;
    // Column -1 to 5 (two beyond the cells), text or number, either direction.
    SortierInfo info;
    info.column = data[0] % 7 - 1;
    info.kind = data[1] % 2 == 0 ? SortKind::Text : SortKind::Number;
    info.direction = data[2] % 3 == 0 ? 0 : data[2];
    std::vector<ResultRow> rows;
    for (const std::u16string& row : fuzz::pieces(data + 3, size - 3, 64)) {
        if (!row.empty())
            rows.push_back(QString::fromStdU16String(row).split(u'\t'));
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

    if (info.kind == SortKind::Number &&
        std::any_of(rows.begin(), rows.end(),
                    [&](const ResultRow& row) { return readsAsNaN(ListenZelleLesen(info, row)); }))
        return 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (before(order[i], order[i - 1]))
            lettriner::fuzz::fail("a row stands after one it must come before");
        if (!before(order[i - 1], order[i]) && order[i - 1] > order[i])
            lettriner::fuzz::fail("rows that compare alike changed places");
    }
    return 0;
}
