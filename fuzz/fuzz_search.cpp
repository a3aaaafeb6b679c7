// SPDX-License-Identifier: GPL-3.0-or-later
// A whole search over an arbitrary word list, letter tables and field texts,
// checking what must hold whatever the input:
// - the fast per-word test gives what the literal letter test gives;
// - the fast sort gives the literal selection sort's permutation;
// - both lists come out best first, the main list within the field size;
// - every listed word passes the letter test, every bonus word as a bonus word;
// - a literal run, word by word with the literal letter test against the
//   minimum as pruning raises it, finds as many words, keeps the same main
//   list and lists every bonus word it accepts;
// - with blanks and a pattern of board letters (three more pieces) the
//   prepared tile test decides like its character-wise form, a search with
//   them lists each word with the value its test gives, and without them the
//   search given empty rules is exactly the window's search.

#include "data/number_format.h"
#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/word_database.h"
#include "display/result_texts.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "engine/result_store.h"
#include "engine/tile_test.h"
#include "engine/word_check.h"
#include "fuzz_input.h"
#include "support/literal_selection_sort.h"

#include <algorithm>
#include <climits>

namespace {

using namespace lettriner;

void checkSortedBestFirst(const MemoryResultList& list) {
    for (std::size_t i = 1; i < list.rows().size(); ++i) {
        if (list.rows()[i - 1].value < list.rows()[i].value)
            fuzz::fail("a list is not sorted best first");
    }
}

// Blanks, lengths and pattern from one piece, starts and ends from two more.
TileRules tileRules(const std::u16string& board, const std::u16string& starts,
                    const std::u16string& ends) {
    TileRules rules;
    rules.blanks = board.size() > 0 ? board[0] % (kMostBlanks + 1) : 0;
    rules.minLength = board.size() > 1 ? board[1] % 8u : 0u;
    rules.maxLength = board.size() > 2 && board[2] % 2 == 0 ? board[2] % 20u : UINT32_MAX;
    rules.pattern = board.size() > 3 ? toUpper(board.substr(3)) : u"";
    rules.starts = toUpper(starts);
    rules.ends = toUpper(ends);
    return rules;
}

TileVerdict preparedVerdict(const TileTest& test, const PreparedWords& words, std::size_t i,
                            std::int16_t minimum) {
    const std::int16_t bound = test.summaryBoundsValue() ? minimum : INT16_MIN;
    return test.summary().passes(words, i, bound) ? test.check(words, i, minimum) : TileVerdict{};
}

void checkTileSearch(const PreparedWords& words, const HeadlessFields& fields,
                     const TileRules& rules, const TileTest& test, const HeadlessOutcome& plain) {
    const HeadlessOutcome outcome = searchWithoutWindow(words, fields, rules);
    checkSortedBestFirst(outcome.mainList);
    for (const ResultRow& row : outcome.mainList.rows()) {
        if (test.judge(row.word, INT16_MIN).value != row.value)
            fuzz::fail("a word is listed with another value than its tile test gives");
    }
    for (const ResultRow& row : outcome.bonusList.rows()) {
        if (test.judge(row.word, INT16_MIN).result != CheckResult::AcceptedAsBonus)
            fuzz::fail("a bonus word with tile rules does not use every tile and blank");
    }
    if (!rules.none())
        return;
    // The letter columns the tile test gives, against the rack the run began with.
    const auto sameRows = [](const MemoryResultList& a, const MemoryResultList& b) {
        if (a.rows().size() != b.rows().size())
            return false;
        for (std::size_t i = 0; i < a.rows().size(); ++i) {
            for (int column = 0; column < kResultColumns; ++column) {
                if (cellText(a.rows()[i], column) != cellText(b.rows()[i], column))
                    return false;
            }
        }
        return true;
    };
    if (!sameRows(plain.mainList, outcome.mainList) ||
        !sameRows(plain.bonusList, outcome.bonusList) || plain.found != outcome.found ||
        plain.bonusShown != outcome.bonusShown || plain.minimumText != outcome.minimumText)
        fuzz::fail("without tile rules the tile search differs from the window's");
}

// The run as the window's loop once was: every word in order through the
// literal letter test and value, pruning exactly where the run prunes.
void checkAgainstLiteralRun(const PreparedWords& words, const WordDatabase& database,
                            const LetterValueTable& values, const LetterRules& letters,
                            const HeadlessFields& fields, const HeadlessOutcome& outcome) {
    KeptNumberField minimum(SearchDefaults::minimum, fields.minimum);
    KeptNumberField fieldSize(SearchDefaults::fieldSize, fields.fieldSize);
    ResultStore main;
    ResultStore bonus;
    std::uint64_t found = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::u16string upper = toUpper(database[i]);
        const CheckResult result =
            WortPrüfen(values, upper, letters.rack, letters.mandatory, letters.forbidden,
                       letters.allowance, minimum.value());
        if (result == CheckResult::Rejected)
            continue;
        ++found;
        const std::int16_t value = WortBewertung(values, upper);
        main.append(static_cast<std::uint32_t>(i), value);
        if (main.highestIndex() > fieldSize.value())
            SchlechteHälfteLöschen(main, minimum);
        if (result == CheckResult::AcceptedAsBonus)
            bonus.append(static_cast<std::uint32_t>(i), value);
    }
    if (found != outcome.found)
        fuzz::fail("the run found another number of words than the literal run");
    if (minimum.text() != outcome.minimumText)
        fuzz::fail("the run left another minimum value than the literal run");
    finishStore(main);
    MemoryResultList mainList;
    publishStore(main, words, letters.rack, mainList);
    if (mainList.rows() != outcome.mainList.rows())
        fuzz::fail("the run kept another main list than the literal run");
    // The bonus store is never pruned: every bonus word of the literal run is listed.
    std::vector<std::u16string> accepted = storeWords(bonus, words);
    accepted.erase(accepted.begin()); // the starting entry
    std::vector<std::u16string> listed;
    for (const ResultRow& row : outcome.bonusList.rows())
        listed.push_back(row.word);
    std::sort(accepted.begin(), accepted.end());
    std::sort(listed.begin(), listed.end());
    if (accepted != listed)
        fuzz::fail("the bonus list differs from the bonus words of the literal run");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto texts = fuzz::pieces(data, size, 12);
    const WordDatabase database(texts[0]);
    const LetterValueTable values = letterValuesFromTexts(texts[1], texts[2]);
    const PreparedWords words(database, values);
    const SearchTexts search{texts[3], texts[4], texts[5], texts[6]};

    const LetterRules letters = letterRulesOf(search);
    const std::u16string& rack = letters.rack;
    const std::u16string& mandatory = letters.mandatory;
    const std::u16string& forbidden = letters.forbidden;
    const double allowance = letters.allowance;
    const std::int16_t probeMinimum = textToInt16(texts[7]).value_or(0);

    const TileRules rules = tileRules(texts[9], texts[10], texts[11]);
    const TileTest tiles(values, rack, mandatory, forbidden, allowance, rules);
    const TileTest plainTiles(values, rack, mandatory, forbidden, allowance, {});
    std::vector<StoreEntry> store;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::u16string upper = toUpper(database[i]);
        const CheckResult literal =
            WortPrüfen(values, upper, rack, mandatory, forbidden, allowance, probeMinimum);
        const TileVerdict plain = plainTiles.judge(upper, probeMinimum);
        if (plain.result != literal || preparedVerdict(plainTiles, words, i, probeMinimum) != plain)
            fuzz::fail("without tile rules the tile test differs from the literal letter test");
        const TileVerdict judged = tiles.judge(upper, probeMinimum);
        if (preparedVerdict(tiles, words, i, probeMinimum) != judged)
            fuzz::fail("the prepared tile test differs from the character-wise one");
        store.push_back({static_cast<std::uint32_t>(i), words.entry(i).value});
    }
    std::vector<StoreEntry> expected = store;
    lettriner::testing::literalSelectionSort(expected);
    FeldNachWertSortieren(store);
    if (store != expected)
        fuzz::fail("the fast sort differs from the literal selection sort");

    const HeadlessFields fields{search, texts[7], texts[8]};
    const HeadlessOutcome outcome = searchWithoutWindow(words, fields);
    checkAgainstLiteralRun(words, database, values, letters, fields, outcome);
    checkTileSearch(words, fields, rules, tiles, outcome);
    const std::int16_t fieldSizeValue =
        KeptNumberField(SearchDefaults::fieldSize, texts[8]).value();
    const MemoryResultList& mainList = outcome.mainList;
    const MemoryResultList& bonusList = outcome.bonusList;

    const auto rows = static_cast<std::int64_t>(mainList.rows().size());
    if (rows > std::max<std::int64_t>(fieldSizeValue, 0) + 1)
        fuzz::fail("the main list holds more than the field size plus one");
    if (static_cast<std::uint64_t>(rows) > outcome.found || bonusList.rows().size() > outcome.found)
        fuzz::fail("a list holds more words than were found");
    checkSortedBestFirst(mainList);
    checkSortedBestFirst(bonusList);
    for (const auto& row : mainList.rows()) {
        if (WortPrüfen(values, row.word, rack, mandatory, forbidden, allowance, INT16_MIN) ==
            CheckResult::Rejected)
            fuzz::fail("a listed word fails the letter test");
    }
    for (const auto& row : bonusList.rows()) {
        if (WortPrüfen(values, row.word, rack, mandatory, forbidden, allowance, INT16_MIN) !=
            CheckResult::AcceptedAsBonus)
            fuzz::fail("a bonus word does not use every tile");
    }
    return 0;
}
