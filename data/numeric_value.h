// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reading numbers out of free text, the way every numeric field and data
// file of the program is read.

#include <cstdint>
#include <optional>
#include <string_view>

namespace lettriner {

// The value of the longest leading part of `text` that forms a number.
// Blanks, tabs and line feeds are skipped wherever they stand ("1 2" is 12);
// then an optional sign, digits, at most one "." (whatever the locale) and an
// optional exponent ("e" or "d", optional sign, digits). "&H" and "&O" (either
// case) read a hexadecimal or octal integer, taken as the plain unsigned value.
// Any other character ends the number; a text without a number gives 0.
// A value too large for a double gives +/-infinity; the result is never NaN.
[[nodiscard]] double numericValue(std::u16string_view text);

// The numeric value when it fits a double; empty when the conversion
// overflows, which fails like any other: the target keeps its value.
[[nodiscard]] std::optional<double> finiteNumericValue(std::u16string_view text);

// Rounds to the nearest integer, halves to the even neighbour (2.5 -> 2,
// 3.5 -> 4). Empty when the rounded value lies outside -32768..32767 or the
// input is not finite: the caller then keeps its previous value.
[[nodiscard]] std::optional<std::int16_t> roundToInt16(double value);

// roundToInt16 of the numeric value of a text.
[[nodiscard]] std::optional<std::int16_t> textToInt16(std::u16string_view text);

} // namespace lettriner
