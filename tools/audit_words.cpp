// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-audit-words: checks a generated word list the way a player meets
// it: the best five words of a fixed set of racks, the whole list, and
// everyday words that must be there.
//   lettriner-audit-words DB1.txt SOURCE RULES
// A word fails when it has one letter, has no vowel (outside the allow list),
// has two or more capitals, or when every spelling of it in the source list
// is on the exclusion list. Prints what it checked; exit status 1 on a failure.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "tools/file_bytes.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <cstdio>
#include <iostream>
#include <random>
#include <string>
#include <unordered_set>

namespace {

using namespace lettriner;
using FormSet = std::unordered_set<std::u16string>;

std::string fileBytes(const std::string& path) {
    return tools::fileBytes(path).value_or(std::string());
}

std::u16string gameForm(std::u16string_view spelling) {
    return toUpper(tools::writtenForTheGame(spelling));
}

// Upper-case forms all of whose source spellings are excluded.
FormSet excludedForms(const std::string& source, const std::string& rules) {
    FormSet excluded;
    for (std::u16string& word : tools::ruleFileWords(fileBytes(rules + "/wordgame-exclusions.txt")))
        excluded.insert(std::move(word));
    FormSet excludedOnly;
    FormSet kept;
    for (const std::u16string& spelling : tools::ruleFileWords(fileBytes(source)))
        (excluded.contains(spelling) ? excludedOnly : kept).insert(gameForm(spelling));
    std::erase_if(excludedOnly,
                  [&kept](const std::u16string& form) { return kept.contains(form); });
    return excludedOnly;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: lettriner-audit-words DB1.txt SOURCE RULES\n";
        return 2;
    }
    const WordDatabase database(decodeWindows1252(fileBytes(argv[1])));
    const FormSet excludedOnly = excludedForms(argv[2], argv[3]);
    FormSet vowelless;
    for (const std::u16string& word :
         tools::ruleFileWords(fileBytes(std::string(argv[3]) + "/vowelless.txt")))
        vowelless.insert(toUpper(tools::writtenForTheGame(word)));
    const auto fails = [&](std::u16string_view word) {
        const std::u16string upper = toUpper(word);
        return upper.size() < 2 || (!tools::hasVowel(upper) && !vowelless.contains(upper)) ||
               excludedOnly.contains(upper);
    };

    std::size_t failures = 0;
    FormSet listed;
    // Every line but the empty one after the last line end, which is no word.
    for (std::size_t i = 0; i + 1 < database.size(); ++i) {
        listed.insert(toUpper(database[i]));
        if (fails(database[i]) || tools::hasSeveralCapitals(database[i])) {
            ++failures;
            std::cout << "in the list: " << toUtf8(database[i]) << '\n';
        }
    }
    for (const std::u16string_view word :
         {u"NAHE", u"SAUER", u"DACH", u"GRÖSSTEN", u"STRASSE", u"ZUSCHUSS", u"BERLINER",
          u"HAMBURGER", u"EUROS", u"CAFE", u"EXPOSE", u"AI", u"HM", u"TÖ", u"UI"}) {
        if (!listed.contains(std::u16string(word))) {
            ++failures;
            std::cout << "missing: " << toUtf8(word) << '\n';
        }
    }
    if (listed.size() < 340'000) {
        ++failures;
        std::cout << "only " << listed.size() << " words\n";
    }

    // Racks of seven tiles drawn from the German bag (blanks aside), every
    // letter allowed, no minimum: the best five words of each.
    const std::u16string bag = u"EEEEEEEEEEEEEEENNNNNNNNNSSSSSSSIIIIIIRRRRRRTTTTTTUUUUUUAAAAAADDDD"
                               u"HHHHGGGLLLOOOMMMMBBWCCFFKKPÄJÜVÖXQY";
    const PreparedWords words(database,
                              letterValuesFromTexts(decodeWindows1252(tools::letterFileBytes()),
                                                    decodeWindows1252(tools::valueFileBytes())));
    constexpr int kRacks = 200;
    std::mt19937 random(2026);
    for (int rack = 0; rack < kRacks; ++rack) {
        std::u16string tiles;
        for (int tile = 0; tile < 7; ++tile)
            tiles += bag[random() % bag.size()];
        const HeadlessFields fields{.texts = {tiles, u"", u"", u"0"}, .minimum = u"0"};
        const HeadlessOutcome outcome = searchWithoutWindow(words, fields);
        const auto& rows = outcome.mainList.rows();
        for (std::size_t row = 0; row < 5 && row < rows.size(); ++row) {
            if (!rows[row].word.empty() && fails(rows[row].word)) {
                ++failures;
                std::cout << "rack " << toUtf8(fields.texts.rack) << ": " << toUtf8(rows[row].word)
                          << '\n';
            }
        }
    }
    std::printf("lettriner-audit-words: %lld words and the best five words of %d racks checked, "
                "%zu a player could not lay\n",
                static_cast<long long>(database.highestIndex()), kRacks, failures);
    return failures == 0 ? 0 : 1;
}
