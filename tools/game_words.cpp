// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/game_words.h"

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"

#include <algorithm>

namespace lettriner::tools {
namespace {

bool isCapital(char16_t c) {
    return (c >= u'A' && c <= u'Z') || c == u'Ä' || c == u'Ö' || c == u'Ü';
}
bool isSmall(char16_t c) {
    return (c >= u'a' && c <= u'z') || c == u'ä' || c == u'ö' || c == u'ü' || c == u'ß';
}

char16_t withoutAccent(char16_t c) {
    constexpr std::u16string_view accented = u"àâáçéèêëîïíñôóûùúÿÀÂÁÇÉÈÊËÎÏÍÑÔÓÛÙÚ";
    constexpr std::u16string_view plain = u"aaaceeeeiiinoouuuyAAACEEEEIIINOOUUU";
    static_assert(accented.size() == plain.size());
    const std::size_t at = accented.find(c);
    return at == std::u16string_view::npos ? c : plain[at];
}

std::vector<std::u16string_view> lines(std::u16string_view text) {
    std::vector<std::u16string_view> result = splitAt(text, u"\n");
    for (std::u16string_view& line : result) {
        if (!line.empty() && line.back() == u'\r')
            line.remove_suffix(1);
    }
    return result;
}

} // namespace

std::u16string withoutAccents(std::u16string_view word) {
    std::u16string result(word);
    std::transform(result.begin(), result.end(), result.begin(), withoutAccent);
    return result;
}

std::u16string writtenForTheGame(std::u16string_view word) {
    return replaceAll(withoutAccents(word), u"ß", u"ss");
}

bool hasOnlyGameLetters(std::u16string_view word) {
    return std::all_of(word.begin(), word.end(),
                       [](char16_t c) { return isCapital(c) || isSmall(c); });
}

bool hasSeveralCapitals(std::u16string_view word) {
    return std::count_if(word.begin(), word.end(), isCapital) >= 2;
}

bool hasVowel(std::u16string_view word) {
    return word.find_first_of(u"AEIOUÄÖÜYaeiouäöüy") != std::u16string_view::npos;
}

std::vector<std::u16string> ruleFileWords(std::string_view utf8File) {
    const std::u16string text = fromUtf8(utf8File);
    std::vector<std::u16string> words;
    for (std::u16string_view line : lines(text)) {
        line = line.substr(0, line.find(u'#'));
        const std::size_t first = line.find_first_not_of(u" \t");
        if (first == std::u16string_view::npos)
            continue;
        line = line.substr(first, line.find_last_not_of(u" \t") + 1 - first);
        words.emplace_back(line);
    }
    return words;
}

GameWordList gameWords(std::string_view utf8List, const WordListRules& rules) {
    GameWordList list;
    std::unordered_set<std::u16string> seen;
    // Compared as the game writes them (ß as ss): a word kept for being on the
    // list is still on it once written, so the list filtered again keeps it.
    std::unordered_set<std::u16string> vowelless;
    for (const std::u16string& word : rules.vowelless)
        vowelless.insert(writtenForTheGame(toLower(word)));
    const auto judge = [&](std::u16string_view spelling, bool fromSource) {
        if (fromSource && rules.exclusions.contains(std::u16string(spelling)))
            return Outcome::Excluded;
        const std::u16string word = withoutAccents(spelling);
        if (!hasOnlyGameLetters(word))
            return Outcome::NotGameLetters;
        if (word.size() < 2)
            return Outcome::OneLetter;
        if (hasSeveralCapitals(word))
            return Outcome::SeveralCapitals;
        std::u16string written = replaceAll(word, u"ß", u"ss");
        if (!hasVowel(word) && !vowelless.contains(toLower(written)))
            return Outcome::NoVowel;
        if (!seen.insert(toUpper(written)).second)
            return Outcome::Duplicate;
        list.words.push_back(std::move(written));
        return fromSource ? Outcome::Kept : Outcome::Supplemented;
    };
    const std::u16string text = fromUtf8(utf8List);
    for (const std::u16string_view line : lines(text)) {
        if (!line.empty())
            ++list.counts[static_cast<std::size_t>(judge(line, true))];
    }
    for (const std::u16string& word : rules.supplement)
        ++list.counts[static_cast<std::size_t>(judge(word, false))];
    return list;
}

std::string reportText(const GameWordList& list) {
    constexpr std::array<const char*, static_cast<std::size_t>(Outcome::Count)> kNames = {
        "kept from the source list",
        "dropped: letters the game has no tile for (digits, hyphens, apostrophes)",
        "dropped: one letter",
        "dropped: two or more capitals (abbreviations)",
        "dropped: no vowel (abbreviations)",
        "dropped: on the exclusion list (names, places, abbreviations)",
        "dropped: same upper-case form as an earlier word",
        "added from the supplement"};
    std::string text;
    const auto addLine = [&text](std::size_t count, const char* what) {
        const std::string number = std::to_string(count);
        text += std::string(number.size() < 8 ? 8 - number.size() : 0, ' ') + number + "  " + what +
                '\n';
    };
    for (std::size_t i = 0; i < kNames.size(); ++i)
        addLine(list.counts[i], kNames[i]);
    addLine(list.words.size(), "words in the game's word list");
    return text;
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
