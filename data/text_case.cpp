// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/text_case.h"

namespace lettriner {

std::u16string toUpper(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& c : result)
        c = toUpper(c);
    return result;
}

std::u16string toLower(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& c : result)
        c = toLower(c);
    return result;
}

} // namespace lettriner
