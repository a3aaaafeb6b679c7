// SPDX-License-Identifier: GPL-3.0-or-later
// The filter that turns the system's two German word lists into the game's,
// which the package runs as root when it is installed, over any lists and any
// rule files. The word-game list is read as the tool reads it: unpacked when
// it is gzip (so corrupt gzip reaches zlib), then cut into its spellings.
// The filter ends; it keeps only words of its inputs, written with the game's
// tiles, each upper-case form once, two-letter words only from their file and
// from the general list alone only lower-case words of six or more tiles; and
// its own output, filtered again, comes back unchanged.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "fuzz_input.h"
#include "tools/game_words.h"
#include "tools/gunzip.h"
#include "tools/word_game_list.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

using namespace lettriner;
using namespace lettriner::tools;
using FormSet = std::unordered_set<std::u16string>;

FormSet gameForms(const std::vector<std::u16string>& words) {
    FormSet forms;
    for (const std::u16string& word : words)
        forms.insert(toUpper(writtenForTheGame(word)));
    return forms;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The word-game list last: as gzip it holds the separator byte 0x1F itself.
    const auto files = fuzz::bytePieces(data, size, 6);
    constexpr std::size_t kLimit = std::size_t{1} << 16;
    const Gunzipped unpacked = gunzip(files[5], kLimit);
    if (unpacked.error.empty() && !files[5].starts_with("\x1f\x8b"))
        fuzz::fail("gunzip took a text that is no gzip");
    if (!unpacked.error.empty() && !unpacked.bytes.empty())
        fuzz::fail("gunzip failed and still gave bytes");
    if (unpacked.bytes.size() > kLimit)
        fuzz::fail("gunzip gave more than its limit");
    const std::vector<std::u16string> wordGame =
        wordGameSpellings(unpacked.error.empty() ? std::string_view(unpacked.bytes) : files[5]);
    const std::vector<std::u16string> general = sourceEntries(files[0]);
    // The rules as lettriner-make-data reads them from their files.
    WordListRules rules;
    for (const std::u16string& word : ruleFileWords(files[1]))
        rules.exclusions.insert(word);
    for (const std::u16string& word : ruleFileWords(files[2]))
        rules.vowelless.insert(toLower(word));
    rules.supplement = ruleFileWords(files[3]);
    rules.twoLetter = ruleFileWords(files[4]);
    const GameWordList list = gameWords(wordGame, general, rules);

    const std::size_t judged[] = {wordGame.size(), general.size(), rules.supplement.size(),
                                  rules.twoLetter.size()};
    std::size_t kept = 0;
    for (std::size_t source = 0; source < list.counts.size(); ++source) {
        std::size_t counted = 0;
        for (const std::size_t count : list.counts[source])
            counted += count;
        if (counted != judged[source])
            fuzz::fail("the counts of a source do not add up to its entries");
        kept += list.counts[source][static_cast<std::size_t>(Outcome::Kept)];
    }
    if (kept != list.words.size())
        fuzz::fail("the kept counts do not add up to the words");

    const FormSet fromWordGame = gameForms(wordGame);
    const FormSet fromGeneral = gameForms(general);
    const FormSet fromSupplement = gameForms(rules.supplement);
    const FormSet fromTwoLetter = gameForms(rules.twoLetter);
    FormSet upper;
    for (const std::u16string& word : list.words) {
        const std::u16string form = toUpper(word);
        if (!fromWordGame.contains(form) && !fromGeneral.contains(form) &&
            !fromSupplement.contains(form) && !fromTwoLetter.contains(form))
            fuzz::fail("a word that is in none of the inputs");
        if (word.size() < 2 || !hasOnlyGameLetters(word) ||
            word.find(u'ß') != std::u16string::npos || hasSeveralCapitals(word))
            fuzz::fail("a word the game cannot lay");
        if (word.size() == 2 && !fromTwoLetter.contains(form))
            fuzz::fail("a two-letter word that is not in the two-letter file");
        if (word.size() > 2 && !fromWordGame.contains(form) && !fromSupplement.contains(form) &&
            (word.size() < kGeneralOnlyMinimumLength || toLower(word) != word))
            fuzz::fail("from the general list alone, a capitalised or short word");
        if (!upper.insert(form).second)
            fuzz::fail("an upper-case form twice");
    }

    // Its own output again, as the word-game list (under a key, so that the
    // spelling is kept): every word stays, in the same order (the exclusions
    // name source spellings, the supplement is in already, and the two-letter
    // file gives its words again).
    std::string again;
    for (const std::u16string& word : list.words)
        again += "KEY " + toUtf8(word) + '\n';
    WordListRules keep;
    keep.vowelless = rules.vowelless;
    keep.twoLetter = rules.twoLetter;
    if (gameWords(wordGameSpellings(again), {}, keep).words != list.words)
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
