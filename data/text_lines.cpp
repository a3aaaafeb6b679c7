// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/text_lines.h"

namespace lettriner {

std::vector<std::u16string_view> splitAt(std::u16string_view text, std::u16string_view separator) {
    std::vector<std::u16string_view> pieces;
    std::size_t start = 0;
    for (std::size_t hit = text.find(separator); hit != std::u16string_view::npos;
         hit = text.find(separator, start)) {
        pieces.push_back(text.substr(start, hit - start));
        start = hit + separator.size();
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::vector<std::u16string_view> splitAtCrLf(std::u16string_view text) {
    if (text.empty())
        return {};
    return splitAt(text, kCrLf);
}

std::u16string replaceAll(std::u16string_view text, std::u16string_view search,
                          std::u16string_view replacement) {
    std::u16string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t hit = text.find(search); hit != std::u16string_view::npos;
         hit = text.find(search, start)) {
        result.append(text.substr(start, hit - start));
        result.append(replacement);
        start = hit + search.size();
    }
    result.append(text.substr(start));
    return result;
}

} // namespace lettriner
