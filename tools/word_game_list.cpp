// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/word_game_list.h"

#include "data/text_case.h"
#include "data/utf8.h"

namespace lettriner::tools {

std::vector<std::u16string> wordGameSpellings(std::string_view utf8Text) {
    const std::u16string text = fromUtf8(utf8Text);
    const std::u16string_view all(text);
    std::vector<std::u16string> spellings;
    constexpr std::u16string_view kBlanks = u" \t\r";
    std::size_t start = 0;
    while (start < all.size()) {
        std::size_t end = all.find(u'\n', start);
        if (end == std::u16string_view::npos)
            end = all.size();
        const std::u16string_view line = all.substr(start, end - start);
        start = end + 1;
        std::vector<std::u16string_view> fields;
        for (std::size_t at = line.find_first_not_of(kBlanks); at != std::u16string_view::npos;) {
            const std::size_t after = std::min(line.find_first_of(kBlanks, at), line.size());
            fields.push_back(line.substr(at, after - at));
            at = line.find_first_not_of(kBlanks, after);
        }
        if (fields.size() == 1)
            spellings.push_back(toLower(fields.front()));
        for (std::size_t i = 1; i < fields.size(); ++i)
            spellings.emplace_back(fields[i]);
    }
    return spellings;
}

} // namespace lettriner::tools
