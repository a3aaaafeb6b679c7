// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sorting a result store by value, best first, in exactly the order of a
// selection sort that, for each position i, finds the first entry of greatest
// value behind i and exchanges it with entry i. That sort is not stable, and
// which equal-valued words survive a pruning depends on its exact order, so
// any other sort would change the results.

#include <cstdint>
#include <span>

namespace lettriner {

struct StoreEntry {
    std::uint32_t word; // index into the prepared word list, or kStartingEntry
    std::int16_t value;
    friend bool operator==(const StoreEntry&, const StoreEntry&) = default;
};

// FeldNachWertSortieren: the selection sort's permutation in O(n log n).
// A segment tree over positions yields the leftmost greatest value still
// unsorted; each exchange updates two leaves.
void FeldNachWertSortieren(std::span<StoreEntry> Feld);

} // namespace lettriner
