// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A result list's first five columns as the window shows them, row by row,
// so that a test states its rows as a player reads them.

#include "display/result_texts.h"
#include "engine/result_list.h"

#include <array>
#include <string>
#include <vector>

namespace lettriner::testing {

using CellRow = std::array<std::u16string, kResultColumns>;
using CellRows = std::vector<CellRow>;

inline CellRows cellRows(const MemoryResultList& list) {
    CellRows rows;
    for (const ResultRow& row : list.rows()) {
        CellRow cells;
        for (int column = 0; column < kResultColumns; ++column)
            cells[static_cast<std::size_t>(column)] = cellText(row, column);
        rows.push_back(cells);
    }
    return rows;
}

} // namespace lettriner::testing
