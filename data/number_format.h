// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The two number patterns the window shows. Separators come from the caller,
// who knows the user's locale; the core never asks for one.

#include <cstdint>
#include <string>

namespace lettriner {

// Pattern "0.0": one decimal digit, rounded half away from zero, at least one
// integer digit (0.04 gives "0.0", 12.25 gives "12.3", -1.25 gives "-1.3").
[[nodiscard]] std::u16string formatOneDecimal(double value, char16_t decimalSeparator);

// Pattern "###,###": digits grouped by threes, no leading zeros; 0 gives the
// empty text and -1 gives "-1".
[[nodiscard]] std::u16string formatGrouped(std::int64_t value, char16_t groupSeparator);

// Plain decimal digits, a minus sign in front when negative.
[[nodiscard]] std::u16string decimalText(std::int64_t value);

} // namespace lettriner
