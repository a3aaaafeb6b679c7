// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/value_sort.h"

#include <algorithm>
#include <bit>
#include <utility>
#include <vector>

namespace lettriner {
namespace {

// A key orders by value first and, among equal values, puts the lower
// position higher, so the maximum key is the leftmost greatest value.
using Key = std::int64_t;
constexpr Key kRemoved = -1;

Key keyOf(std::int16_t value, std::size_t position) {
    const auto biasedValue = static_cast<Key>(value) + 32768;
    return (biasedValue << 32) | static_cast<Key>(0xFFFFFFFFu - position);
}

std::size_t positionOf(Key key) {
    return 0xFFFFFFFFu - static_cast<std::size_t>(key & 0xFFFFFFFF);
}

class MaxTree {
public:
    explicit MaxTree(std::span<const StoreEntry> entries)
        : leaves_(std::bit_ceil(std::max<std::size_t>(entries.size(), 1))),
          nodes_(2 * leaves_, kRemoved) {
        for (std::size_t i = 0; i < entries.size(); ++i)
            nodes_[leaves_ + i] = keyOf(entries[i].value, i);
        for (std::size_t n = leaves_ - 1; n > 0; --n)
            nodes_[n] = std::max(nodes_[2 * n], nodes_[2 * n + 1]);
    }

    [[nodiscard]] Key top() const { return nodes_[1]; }

    void set(std::size_t position, Key key) {
        std::size_t n = leaves_ + position;
        nodes_[n] = key;
        for (n /= 2; n > 0; n /= 2) {
            const Key top = std::max(nodes_[2 * n], nodes_[2 * n + 1]);
            // Ancestors depend only on this node: nothing above changes either.
            if (nodes_[n] == top)
                break;
            nodes_[n] = top;
        }
    }

private:
    std::size_t leaves_;
    std::vector<Key> nodes_;
};

} // namespace

void FeldNachWertSortieren(std::span<StoreEntry> Feld) {
    if (Feld.size() < 2)
        return;
    MaxTree tree(Feld);
    for (std::size_t i = 0; i + 1 < Feld.size(); ++i) {
        // Positions before i are removed from the tree, so its top is the
        // first greatest value among positions i and behind.
        const std::size_t best = positionOf(tree.top());
        tree.set(i, kRemoved);
        if (best != i) {
            std::swap(Feld[i], Feld[best]);
            tree.set(best, keyOf(Feld[best].value, best));
        }
    }
}

} // namespace lettriner
