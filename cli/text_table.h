// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The two text layouts of the command line's lists: an aligned table for
// people and TAB-separated rows for scripts, written a row at a time from
// whatever gives the cell texts.

#include "cli/output_sink.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner::cli {

// The text of cell (row, column).
using CellText = std::function<std::u16string(std::size_t row, std::size_t column)>;

// The captions, then `rows` rows, each column as wide as its widest cell,
// two spaces apart, right-aligned where asked, trailing spaces cut.
// Control characters show as "?", so they cannot break the table.
void writeAlignedTable(OutputSink& out, const std::vector<std::u16string_view>& captions,
                       const std::vector<bool>& rightAligned, std::size_t rows,
                       const CellText& cell);

// A line "NAME<TAB>rows", then the rows; cells with TAB, CR, LF or backslash
// escaped as \t, \r, \n, \\.
void writeTsvRows(OutputSink& out, std::string_view name, std::size_t rows, std::size_t columns,
                  const CellText& cell);

// A cell as a TSV line holds it.
[[nodiscard]] std::string tsvCell(std::u16string_view cell);

} // namespace lettriner::cli
