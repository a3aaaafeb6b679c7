// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The result sort written out literally, quadratic: for each position i, the
// first entry of greatest value behind i is exchanged with entry i. The fast
// sort must give exactly this permutation.

#include "engine/value_sort.h"

#include <span>
#include <utility>

namespace lettriner::testing {

inline void literalSelectionSort(std::span<StoreEntry> entries) {
    if (entries.size() < 2)
        return;
    for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
        std::size_t best = i;
        std::int16_t bestValue = entries[i].value;
        for (std::size_t j = i + 1; j < entries.size(); ++j) {
            if (entries[j].value > bestValue) {
                best = j;
                bestValue = entries[j].value;
            }
        }
        std::swap(entries[i], entries[best]);
    }
}

} // namespace lettriner::testing
