// A whole search over an arbitrary word list, letter tables and field texts,
// checking what must hold whatever the input:
// - the fast per-word test gives what the literal letter test gives;
// - the fast sort gives the literal selection sort's permutation;
// - both lists come out best first, the main list within the field size;
// - every listed word passes the letter test, every bonus word as a bonus word.

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "engine/word_test.h"
#include "fuzz_input.h"
#include "support/literal_selection_sort.h"

#include <algorithm>
#include <climits>

namespace {

using namespace lettriner;

std::u16string withoutSpaces(std::u16string text) {
    std::erase(text, u' ');
    return text;
}

void checkSortedBestFirst(const MemoryResultList& list) {
    for (std::size_t i = 1; i < list.rows().size(); ++i) {
        if (numericValue(list.rows()[i - 1][2]) < numericValue(list.rows()[i][2]))
            fuzz::fail("a list is not sorted best first");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto texts = fuzz::pieces(data, size, 9);
    const WordDatabase database(texts[0]);
    const LetterValueTable values = letterValuesFromTexts(texts[1], texts[2]);
    const PreparedWords words(database, values);
    const SearchTexts search{texts[3], texts[4], texts[5], texts[6]};

    const std::u16string rack = toUpper(search.rack);
    const std::u16string mandatory = withoutSpaces(toUpper(search.mandatory));
    const std::u16string forbidden = withoutSpaces(toUpper(search.forbidden));
    const double allowance = numericValue(search.allowance);
    const std::int16_t probeMinimum = textToInt16(texts[7]).value_or(0);

    const WordTest test(rack, mandatory, forbidden, allowance);
    std::vector<StoreEntry> store;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const CheckResult fast = test.check(words, i, probeMinimum);
        const CheckResult literal = WortPrüfen(values, toUpper(database[i]), rack, mandatory,
                                               forbidden, allowance, probeMinimum);
        if (fast != literal)
            fuzz::fail("the fast letter test differs from the literal one");
        store.push_back({static_cast<std::uint32_t>(i), words.entry(i).value});
    }
    std::vector<StoreEntry> expected = store;
    lettriner::testing::literalSelectionSort(expected);
    FeldNachWertSortieren(store);
    if (store != expected)
        fuzz::fail("the fast sort differs from the literal selection sort");

    const HeadlessOutcome outcome = searchWithoutWindow(words, {search, texts[7], texts[8]});
    KeptNumberField fieldSize{std::u16string(SearchDefaults::fieldSize)};
    fieldSize.setText(texts[8]);
    const std::int16_t fieldSizeValue = fieldSize.value();
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
        if (WortPrüfen(values, row[0], rack, mandatory, forbidden, allowance, INT16_MIN) ==
            CheckResult::Rejected)
            fuzz::fail("a listed word fails the letter test");
    }
    for (const auto& row : bonusList.rows()) {
        if (WortPrüfen(values, row[0], rack, mandatory, forbidden, allowance, INT16_MIN) !=
            CheckResult::AcceptedAsBonus)
            fuzz::fail("a bonus word does not use every tile");
    }
    return 0;
}
