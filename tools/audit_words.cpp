// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-audit-words: checks a generated word list the way a player meets
// it: the best five words of a fixed set of racks, the whole list, the words
// a player must find (RULES/must-find.txt, coverage per group) and the names
// and abbreviations that must stay out (RULES/must-not-find.txt).
//   lettriner-audit-words DB1.txt GENERAL WORDGAME RULES
// A word fails when it has one letter, has no vowel (outside the allow list
// and the two-letter file), has two or more capitals, or when every spelling
// of it in the two sources is on the exclusion list. Prints what it checked;
// exit status 1 on a failure, 2 when a file cannot be read.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "tools/file_bytes.h"
#include "tools/game_words.h"
#include "tools/gunzip.h"
#include "tools/must_find.h"
#include "tools/shipped_tables.h"
#include "tools/word_game_list.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

using namespace lettriner;
using FormSet = std::unordered_set<std::u16string>;

// The audit reads what the build wrote: a file it cannot read ends it.
std::string fileBytes(const std::string& path) {
    std::optional<std::string> bytes = tools::fileBytes(path);
    if (!bytes) {
        std::fprintf(stderr, "lettriner-audit-words: cannot read %s\n", path.c_str());
        std::exit(2);
    }
    return std::move(*bytes);
}

std::vector<std::u16string> wordGameSpellings(const std::string& path) {
    const tools::Gunzipped text = tools::gunzip(fileBytes(path), std::size_t{256} << 20);
    if (!text.error.empty()) {
        std::fprintf(stderr, "lettriner-audit-words: %s: %s\n", path.c_str(), text.error.c_str());
        std::exit(2);
    }
    return tools::wordGameSpellings(text.bytes);
}

std::vector<tools::WordGroup> wordGroups(const std::string& path) {
    tools::MustFindWords words = tools::mustFindWords(fileBytes(path));
    if (!words.error.empty()) {
        std::fprintf(stderr, "lettriner-audit-words: %s: %s\n", path.c_str(), words.error.c_str());
        std::exit(2);
    }
    return std::move(words.groups);
}

std::u16string gameForm(std::u16string_view spelling) {
    return toUpper(tools::writtenForTheGame(spelling));
}

// Upper-case forms all of whose source spellings are excluded.
FormSet excludedForms(const std::vector<std::vector<std::u16string>>& sources,
                      const std::string& rules) {
    FormSet excluded;
    for (std::u16string& word : tools::ruleFileWords(fileBytes(rules + "/wordgame-exclusions.txt")))
        excluded.insert(std::move(word));
    FormSet excludedOnly;
    FormSet kept;
    for (const std::vector<std::u16string>& source : sources) {
        for (const std::u16string& spelling : source)
            (excluded.contains(spelling) ? excludedOnly : kept).insert(gameForm(spelling));
    }
    std::erase_if(excludedOnly,
                  [&kept](const std::u16string& form) { return kept.contains(form); });
    return excludedOnly;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: lettriner-audit-words DB1.txt GENERAL WORDGAME RULES\n";
        return 2;
    }
    const std::string rules = argv[4];
    const WordDatabase database(decodeWindows1252(fileBytes(argv[1])));
    const FormSet excludedOnly = excludedForms(
        {tools::sourceEntries(fileBytes(argv[2])), wordGameSpellings(argv[3])}, rules);
    FormSet vowelless;
    for (const char* allowList : {"/vowelless.txt", "/two-letter.txt"}) {
        for (const std::u16string& word : tools::ruleFileWords(fileBytes(rules + allowList)))
            vowelless.insert(gameForm(word));
    }
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
    if (listed.size() < 650'000) {
        ++failures;
        std::cout << "only " << listed.size() << " words\n";
    }

    // Coverage: every word of every group found; then none of the names and
    // abbreviations that must stay out.
    std::size_t mustFind = 0;
    for (const tools::GroupCoverage& group :
         tools::coverage(wordGroups(rules + "/must-find.txt"), listed)) {
        mustFind += group.total;
        failures += group.missing.size();
        std::printf("must find, %s: %zu of %zu\n", group.name.c_str(),
                    group.total - group.missing.size(), group.total);
        for (const std::u16string& word : group.missing)
            std::cout << "  missing: " << toUtf8(word) << '\n';
    }
    std::size_t mustNotFind = 0;
    for (const tools::WordGroup& group : wordGroups(rules + "/must-not-find.txt")) {
        mustNotFind += group.words.size();
        std::size_t present = 0;
        for (const std::u16string& word : group.words) {
            if (listed.contains(word)) {
                ++present;
                std::cout << "  in the list: " << toUtf8(word) << '\n';
            }
        }
        failures += present;
        std::printf("must not find, %s: %zu of %zu in the list\n", group.name.c_str(), present,
                    group.words.size());
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
    std::printf("lettriner-audit-words: %lld words, the best five words of %d racks, %zu words "
                "to find and %zu to leave out checked: %zu failures\n",
                static_cast<long long>(database.highestIndex()), kRacks, mustFind, mustNotFind,
                failures);
    return failures == 0 ? 0 : 1;
}
