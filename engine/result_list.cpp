// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/result_list.h"

namespace lettriner {

void MemoryResultList::addRow(std::u16string text) {
    rows_.emplace_back()[0] = std::move(text);
}

void MemoryResultList::reserveRows(std::int64_t count) {
    if (count > 0)
        rows_.reserve(rows_.size() + static_cast<std::size_t>(count));
}

void MemoryResultList::setSubItem(std::int64_t row, int column, std::u16string text) {
    if (row < 1 || row > rowCount() || column < 1 || column >= kResultColumns)
        return;
    rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = std::move(text);
}

} // namespace lettriner
