// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/result_list.h"

#include <iterator>

namespace lettriner {

ResultRow* writableRow(std::vector<ResultRow>& rows, std::int64_t row, int column) {
    if (row < 1 || row > static_cast<std::int64_t>(rows.size()) || column < 1)
        return nullptr;
    return &rows[static_cast<std::size_t>(row - 1)];
}

void appendRows(std::vector<ResultRow>& rows, std::vector<ResultRow> more) {
    if (rows.empty())
        rows = std::move(more);
    else
        rows.insert(rows.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

void MemoryResultList::addRows(std::vector<ResultRow> rows) {
    appendRows(rows_, std::move(rows));
}

void MemoryResultList::addRow(std::u16string text) {
    rows_.emplace_back().word = std::move(text);
}

void MemoryResultList::reserveRows(std::int64_t count) {
    if (count > 0)
        rows_.reserve(rows_.size() + static_cast<std::size_t>(count));
}

void MemoryResultList::setSubItem(std::int64_t row, int column, std::u16string text) {
    if (ResultRow* target = writableRow(rows_, row, column))
        if (std::u16string* cell = textCell(*target, column))
            *cell = std::move(text);
}

void MemoryResultList::setSubItem(std::int64_t row, int column, std::int64_t number) {
    if (ResultRow* target = writableRow(rows_, row, column))
        if (std::optional<std::int64_t>* cell = numberCell(*target, column))
            *cell = number;
}

} // namespace lettriner
