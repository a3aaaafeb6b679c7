// SPDX-License-Identifier: GPL-3.0-or-later
// The filter that turns the system's German word list into the game's, which
// the package runs as root when it is installed, over any list and any rule
// files: it ends; it keeps only words of its input (or of the supplement),
// written with the game's tiles, each upper-case form once; and its own
// output, filtered again, comes back unchanged.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "fuzz_input.h"
#include "tools/game_words.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    using namespace lettriner::tools;
    const auto files = fuzz::bytePieces(data, size, 4);
    // The rules as lettriner-make-data reads them from their files.
    WordListRules rules;
    for (const std::u16string& word : ruleFileWords(files[1]))
        rules.exclusions.insert(word);
    for (const std::u16string& word : ruleFileWords(files[2]))
        rules.vowelless.insert(toLower(word));
    rules.supplement = ruleFileWords(files[3]);
    const GameWordList list = gameWords(files[0], rules);

    std::unordered_set<std::u16string> allowed;
    std::size_t lines = 0; // lines that are not empty, each judged once
    const std::u16string text = fromUtf8(files[0]);
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find(u'\n', start);
        if (end == std::u16string::npos)
            end = text.size();
        std::u16string_view line(text.data() + start, end - start);
        if (!line.empty() && line.back() == u'\r')
            line.remove_suffix(1);
        if (!line.empty()) {
            ++lines;
            allowed.insert(writtenForTheGame(line));
        }
        start = end + 1;
    }
    for (const std::u16string& word : rules.supplement)
        allowed.insert(writtenForTheGame(word));

    std::size_t counted = 0;
    for (const std::size_t count : list.counts)
        counted += count;
    if (counted != lines + rules.supplement.size() ||
        list.count(Outcome::Kept) + list.count(Outcome::Supplemented) != list.words.size())
        fuzz::fail("the counts do not add up to the words judged");
    std::unordered_set<std::u16string> upper;
    for (const std::u16string& word : list.words) {
        if (!allowed.contains(word))
            fuzz::fail("a word that is in neither the list nor the supplement");
        if (word.size() < 2 || !hasOnlyGameLetters(word) ||
            word.find(u'ß') != std::u16string::npos || hasSeveralCapitals(word))
            fuzz::fail("a word the game cannot lay");
        if (!upper.insert(toUpper(word)).second)
            fuzz::fail("an upper-case form twice");
    }

    // Its own output again, as one list: every word stays (the exclusions
    // name source spellings and the supplement is in already).
    std::string again;
    for (const std::u16string& word : list.words) {
        again += toUtf8(word);
        again += '\n';
    }
    const WordListRules keep{{}, rules.vowelless, {}};
    if (gameWords(again, keep).words != list.words)
        fuzz::fail("the filter's output, filtered again, changed");
    // The file written: Windows-1252, CR LF after every word, nothing lost.
    std::u16string lines1252;
    for (const std::u16string& word : list.words) {
        lines1252 += word;
        lines1252 += u"\r\n";
    }
    if (decodeWindows1252(wordFileBytes(list.words)) != lines1252)
        fuzz::fail("the word file does not hold the words");
    return 0;
}
