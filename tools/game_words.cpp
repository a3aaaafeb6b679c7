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
    if (c < 0xC0) // nothing below À has an accent
        return c;
    // French, Spanish, Scandinavian and transcribed Japanese or Sanskrit
    // (Café, Señor, Ångström, Shōgun); umlauts are letters of their own.
    constexpr std::u16string_view accented = u"àâáåāçčéèêëēîïíīñôóōõšûùúūÿÀÂÁÅÇČÉÈÊËÎÏÍÑÔÓÕŠÛÙÚ";
    constexpr std::u16string_view plain = u"aaaaacceeeeeiiiinoooosuuuuyAAAACCEEEEIIINOOOSUUU";
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

std::vector<std::u16string> sourceEntries(std::string_view utf8List) {
    const std::u16string text = fromUtf8(utf8List);
    std::vector<std::u16string> entries;
    for (const std::u16string_view line : lines(text)) {
        if (!line.empty())
            entries.emplace_back(line);
    }
    return entries;
}

std::size_t GameWordList::count(Outcome outcome) const {
    std::size_t sum = 0;
    for (const auto& perSource : counts)
        sum += perSource[static_cast<std::size_t>(outcome)];
    return sum;
}

GameWordList gameWords(const std::vector<std::u16string>& wordGame,
                       const std::vector<std::u16string>& general, const WordListRules& rules) {
    GameWordList list;
    std::unordered_set<std::u16string> seen;
    seen.reserve(wordGame.size() + general.size() / 8);
    // Compared as the game writes them (ß as ss): a word kept for being on the
    // list is still on it once written, so the list filtered again keeps it.
    std::unordered_set<std::u16string> vowelless;
    for (const std::u16string& word : rules.vowelless)
        vowelless.insert(writtenForTheGame(toLower(word)));
    const auto judge = [&](std::u16string_view spelling, Source source) {
        const bool fromSource = source == Source::WordGame || source == Source::General;
        if (fromSource && rules.exclusions.contains(std::u16string(spelling)))
            return Outcome::Excluded;
        const std::u16string word = withoutAccents(spelling);
        if (!hasOnlyGameLetters(word))
            return Outcome::NotGameLetters;
        std::u16string written = replaceAll(word, u"ß", u"ss");
        if (written.size() < 2)
            return Outcome::OneLetter;
        if (written.size() == 2 && source != Source::TwoLetter)
            return Outcome::TwoLetters;
        if (written.size() > 2 && source == Source::TwoLetter)
            return Outcome::LongerThanTwo;
        if (hasSeveralCapitals(word))
            return Outcome::SeveralCapitals;
        if (source != Source::TwoLetter && !hasVowel(word) && !vowelless.contains(toLower(written)))
            return Outcome::NoVowel;
        std::u16string upper = toUpper(written);
        if (source == Source::General) {
            if (seen.contains(upper))
                return Outcome::Duplicate;
            if (std::any_of(word.begin(), word.end(), isCapital))
                return Outcome::CapitalisedGeneral;
            if (written.size() < kGeneralOnlyMinimumLength)
                return Outcome::ShortGeneral;
        }
        if (!seen.insert(std::move(upper)).second)
            return Outcome::Duplicate;
        list.words.push_back(std::move(written));
        return Outcome::Kept;
    };
    const auto judgeAll = [&](const std::vector<std::u16string>& entries, Source source) {
        auto& counts = list.counts[static_cast<std::size_t>(source)];
        for (const std::u16string& entry : entries)
            ++counts[static_cast<std::size_t>(judge(entry, source))];
    };
    judgeAll(wordGame, Source::WordGame);
    judgeAll(general, Source::General);
    judgeAll(rules.supplement, Source::Supplement);
    judgeAll(rules.twoLetter, Source::TwoLetter);
    return list;
}

std::string reportText(const GameWordList& list) {
    constexpr std::array<const char*, static_cast<std::size_t>(Outcome::Count)> kNames = {
        "kept",
        "dropped: on the exclusion list (names, places, abbreviations)",
        "dropped: letters the game has no tile for (digits, hyphens, apostrophes)",
        "dropped: one letter",
        "dropped: two letters (the curated file gives those)",
        "dropped: longer than two letters, in the two-letter file",
        "dropped: two or more capitals (abbreviations)",
        "dropped: no vowel (abbreviations)",
        "dropped: same upper-case form as an earlier word",
        "dropped: capitalised, only in the general list (names)",
        "dropped: lower case under six letters, only in the general list (abbreviations)"};
    const auto column = [](const std::string& cell) {
        return std::string(cell.size() < 11 ? 11 - cell.size() : 0, ' ') + cell;
    };
    std::string text = column("word-game") + column("general") + column("supplement") +
                       column("two-letter") + "  (entries per source)\n";
    for (std::size_t outcome = 0; outcome < kNames.size(); ++outcome) {
        std::string line;
        for (const auto& perSource : list.counts)
            line += column(std::to_string(perSource[outcome]));
        text += line + "  " + kNames[outcome] + '\n';
    }
    text += column(std::to_string(list.words.size())) + "  words in the game's word list\n";
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
