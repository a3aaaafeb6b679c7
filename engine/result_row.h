// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One row of a result list as a search finds it: the word and what the
// player needs to know about it, typed. The window, the command line and
// the tests format it; nothing is parsed back out of text.

#include <cstdint>
#include <optional>
#include <string>

namespace lettriner {

// The columns, in the order a publish writes them. The blank column is the
// command line's own: the window shows the first kResultColumns.
enum ResultColumn : int {
    kWordColumn = 0,
    kLengthColumn = 1,
    kValueColumn = 2,
    kNeededColumn = 3,
    kLeftOverColumn = 4,
    kBlanksColumn = 5,
};
inline constexpr int kResultColumns = 5;
inline constexpr int kColumnsWithBlanks = 6;

[[nodiscard]] constexpr bool isNumberColumn(int column) {
    return column == kLengthColumn || column == kValueColumn;
}

struct ResultRow {
    std::u16string word;                // upper-cased, as the search tested it
    std::optional<std::int64_t> length; // unset until its column is written
    std::optional<std::int64_t> value;  // after the blanks
    std::u16string needed;              // letters from outside the rack, lower-cased
    std::u16string leftOver;            // rack tiles not used, lower-cased
    std::u16string blanks;              // letters the blanks stand for, lower-cased

    bool operator==(const ResultRow&) const = default;
};

// The text of a text column; null for a number column or one out of range.
[[nodiscard]] std::u16string* textCell(ResultRow& row, int column);
[[nodiscard]] const std::u16string* textCell(const ResultRow& row, int column);
// The number of a number column; null for a text column or one out of range.
[[nodiscard]] std::optional<std::int64_t>* numberCell(ResultRow& row, int column);
[[nodiscard]] const std::optional<std::int64_t>* numberCell(const ResultRow& row, int column);

} // namespace lettriner
