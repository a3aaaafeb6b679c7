// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Letter casing as the German game needs it: a-z and ä ö ü pair with A-Z and
// Ä Ö Ü. Every other character, ß included, stays as it is. A full Unicode
// mapping would turn ß into "SS" and change the length of a word.

#include <string>
#include <string_view>

namespace lettriner {

[[nodiscard]] constexpr char16_t toUpper(char16_t c) {
    if ((c >= u'a' && c <= u'z') || c == u'ä' || c == u'ö' || c == u'ü')
        return static_cast<char16_t>(c - 0x20);
    return c;
}

[[nodiscard]] constexpr char16_t toLower(char16_t c) {
    if ((c >= u'A' && c <= u'Z') || c == u'Ä' || c == u'Ö' || c == u'Ü')
        return static_cast<char16_t>(c + 0x20);
    return c;
}

[[nodiscard]] std::u16string toUpper(std::u16string_view text);
[[nodiscard]] std::u16string toLower(std::u16string_view text);

} // namespace lettriner
