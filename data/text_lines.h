// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Cutting text at line ends and replacing parts of it. Only the pair CR LF
// ends a line anywhere in the program; a lone CR or LF is an ordinary character.

#include <string>
#include <string_view>
#include <vector>

namespace lettriner {

inline constexpr std::u16string_view kCrLf = u"\r\n";

// The pieces between CR LF pairs, empty pieces kept ("a\r\n" gives "a" and "").
// An empty text gives no pieces at all.
[[nodiscard]] std::vector<std::u16string_view> splitAtCrLf(std::u16string_view text);

// Every piece of `text` between occurrences of `separator` (non-empty), empty
// pieces kept; a text without the separator is one piece.
[[nodiscard]] std::vector<std::u16string_view> splitAt(std::u16string_view text,
                                                       std::u16string_view separator);

// One left-to-right pass replacing every occurrence of `search` (non-empty).
[[nodiscard]] std::u16string replaceAll(std::u16string_view text, std::u16string_view search,
                                        std::u16string_view replacement);

} // namespace lettriner
