#include "engine/result_list.h"

namespace lettriner {

void MemoryResultList::addRow(std::u16string text) {
    Row row(kResultColumns);
    row[0] = std::move(text);
    rows_.push_back(std::move(row));
}

void MemoryResultList::setSubItem(std::int64_t row, int column, std::u16string text) {
    if (row < 1 || row > rowCount() || column < 1 || column >= kResultColumns)
        return;
    rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = std::move(text);
}

} // namespace lettriner
