// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/headless_search.h"

#include "engine/number_field.h"

namespace lettriner {

HeadlessOutcome searchWithoutWindow(const PreparedWords& words, const HeadlessFields& fields,
                                    const TileRules& tiles) {
    // The design texts first, so a text out of range leaves the design value in force.
    KeptNumberField minimum{std::u16string(SearchDefaults::minimum)};
    minimum.setText(fields.minimum);
    KeptNumberField fieldSize{std::u16string(SearchDefaults::fieldSize)};
    fieldSize.setText(fields.fieldSize);

    HeadlessOutcome outcome;
    HeadlessWindow window;
    SearchConnections connections{minimum, fieldSize, outcome.mainList, outcome.bonusList, window};
    SearchRun run(words);
    run.run(fields.texts, connections, tiles);
    outcome.bonusShown = run.bonusFound();
    outcome.found = run.foundCount();
    outcome.minimumText = minimum.text();
    return outcome;
}

} // namespace lettriner
