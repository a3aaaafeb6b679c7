// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/board_search.h"

#include "engine/result_store.h"

#include <climits>

namespace lettriner {
namespace {

std::vector<BoardRow> rowsOf(const ResultStore& store, const PreparedWords& words,
                             const BoardTest& test) {
    std::vector<BoardRow> rows;
    rows.reserve(store.entries().size());
    for (const StoreEntry& entry : store.entries()) {
        BoardRow row;
        row.value = entry.value;
        if (entry.word != kStartingEntry) {
            row.word = words.upper(entry.word);
            (void)test.judge(row.word, INT16_MIN, &row.letters);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

BoardOutcome searchOnBoard(const PreparedWords& words, const HeadlessFields& fields,
                           const BoardRules& rules) {
    KeptNumberField minimumField{std::u16string(SearchDefaults::minimum)};
    minimumField.setText(fields.minimum);
    KeptNumberField fieldSize{std::u16string(SearchDefaults::fieldSize)};
    fieldSize.setText(fields.fieldSize);

    const LetterRules letters = letterRulesOf(fields.texts);
    const BoardTest test(words.values(), letters.rack, letters.mandatory, letters.forbidden,
                         letters.allowance, rules);

    BoardOutcome outcome;
    ResultStore main;
    ResultStore bonus;
    std::int16_t minimum = minimumField.value();
    const std::int16_t noBound = INT16_MIN;
    const std::int16_t& summaryMinimum = test.summaryBoundsValue() ? minimum : noBound;
    forEachCandidate(test.summary(), words, 0, words.size(), summaryMinimum, [&](std::size_t i) {
        const BoardVerdict verdict = test.check(words, i, minimum);
        if (verdict.result == CheckResult::Rejected)
            return;
        ++outcome.found;
        main.append(static_cast<std::uint32_t>(i), verdict.value);
        if (main.highestIndex() > fieldSize.value()) {
            SchlechteHälfteLöschen(main, minimumField);
            minimum = minimumField.value();
        }
        if (verdict.result == CheckResult::AcceptedAsBonus) {
            bonus.append(static_cast<std::uint32_t>(i), verdict.value);
            outcome.bonusShown = true;
        }
    });
    finishStore(main);
    finishStore(bonus);
    outcome.mainRows = rowsOf(main, words, test);
    if (outcome.bonusShown)
        outcome.bonusRows = rowsOf(bonus, words, test);
    outcome.minimumText = minimumField.text();
    return outcome;
}

} // namespace lettriner
