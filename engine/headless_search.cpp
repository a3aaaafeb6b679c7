// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/headless_search.h"

#include "engine/number_field.h"

namespace lettriner {

HeadlessOutcome searchWithoutWindow(const PreparedWords& words, const HeadlessFields& fields,
                                    const TileRules& tiles) {
    KeptNumberField minimum(SearchDefaults::minimum, fields.minimum);
    KeptNumberField fieldSize(SearchDefaults::fieldSize, fields.fieldSize);

    HeadlessOutcome outcome;
    HeadlessWindow window;
    SearchConnections connections{minimum, fieldSize, outcome.mainList, outcome.bonusList, window};
    SearchRun run(words);
    run.run(fields.texts, connections, tiles);
    outcome.bonusShown = run.bonusFound();
    outcome.cutShort = run.listsCutShort();
    outcome.found = run.foundCount();
    outcome.minimumText = minimum.text();
    return outcome;
}

} // namespace lettriner
