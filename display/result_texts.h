// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The texts the window and the command line show around a search: the
// column captions, the found count, the size of the word list and the cells
// of a result row. The core hands over numbers and rows; this is the one
// place they become the program's words.

#include "engine/result_row.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace lettriner {

// "Wort", "Wortlänge", "Wortwert", "Benötigte", "Übrigbleibende", "Blanko";
// empty outside the columns.
[[nodiscard]] std::u16string_view columnCaption(int column);

// "N Wörter gefunden".
[[nodiscard]] std::u16string foundCountText(std::uint64_t count);

// The two-line caption of the count label: "gesamte Datenbank: ", CR LF, the
// highest index grouped by threes, " Einträge". Zero shows no number.
[[nodiscard]] std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator);

// A cell as a list shows it: numbers in plain decimal, a number never written
// (and a column out of range) empty.
[[nodiscard]] std::u16string cellText(const ResultRow& row, int column);

} // namespace lettriner
