#include "tools/game_words.h"

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"

#include <algorithm>
#include <unordered_set>

namespace lettriner::tools {
namespace {

bool isCapital(char16_t c) {
    return (c >= u'A' && c <= u'Z') || c == u'Ä' || c == u'Ö' || c == u'Ü';
}
bool isSmall(char16_t c) {
    return (c >= u'a' && c <= u'z') || c == u'ä' || c == u'ö' || c == u'ü' || c == u'ß';
}

} // namespace

std::vector<std::u16string> gameWords(std::string_view utf8List) {
    const std::u16string text = fromUtf8(utf8List);
    std::vector<std::u16string> words;
    std::unordered_set<std::u16string> seen;
    for (std::u16string_view line : splitAt(text, u"\n")) {
        if (!line.empty() && line.back() == u'\r')
            line.remove_suffix(1);
        if (line.empty())
            continue;
        if (!std::all_of(line.begin(), line.end(),
                         [](char16_t c) { return isCapital(c) || isSmall(c); }))
            continue;
        if (line.size() >= 2 && std::all_of(line.begin(), line.end(), isCapital))
            continue;
        std::u16string word = replaceAll(line, u"ß", u"ss");
        if (seen.insert(toUpper(word)).second)
            words.push_back(std::move(word));
    }
    return words;
}

std::string wordFileBytes(const std::vector<std::u16string>& words) {
    std::string bytes;
    for (const std::u16string& word : words) {
        bytes += encodeWindows1252(word);
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace lettriner::tools
