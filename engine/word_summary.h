// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The first, cheap part of every letter test: what a word's letter set,
// value and length alone can tell, true for every word whatever characters
// it holds. Applied to blocks of words at once, without branches, so that
// the search spends its time only on the few words that pass.

#include "engine/prepared_words.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace lettriner {

struct WordSummaryTest {
    std::uint32_t rejected = 0;  // letters no accepted word holds
    std::uint32_t mandatory = 0; // letters every accepted word holds
    // Letters each of which, when present, needs at least one extra letter.
    std::uint32_t missingMask = 0;
    std::uint32_t minLength = 0;
    std::uint32_t maxLength = UINT32_MAX;
    std::uint32_t maxExtra = UINT32_MAX; // distinct missing letters allowed

    // flags[j] = 1 when word from + j passes, else 0.
    void mark(const PreparedWords& words, std::size_t from, std::size_t count, std::int16_t minimum,
              std::uint8_t* flags) const;
    [[nodiscard]] bool passes(const PreparedWords& words, std::size_t index,
                              std::int16_t minimum) const {
        std::uint8_t flag = 0;
        mark(words, index, 1, minimum, &flag);
        return flag != 0;
    }
};

// The largest whole number not above `bound`, clamped to [floorValue,
// UINT32_MAX]; a bound that is not a number gives floorValue. Turns a real
// comparison of a whole count into an integer one.
[[nodiscard]] std::uint32_t wholeBound(double bound, std::uint32_t floorValue);

// Calls visit(index) for every word of [from, to) that passes, in order.
// `minimum` is read anew for each block, so a visit may raise it.
template <class Visit>
void forEachCandidate(const WordSummaryTest& test, const PreparedWords& words, std::size_t from,
                      std::size_t to, const std::int16_t& minimum, Visit visit) {
    constexpr std::size_t kBlock = 512;
    std::array<std::uint8_t, kBlock> marks;
    std::array<std::uint16_t, kBlock> marked; // positions in the block, in order
    for (std::size_t block = from; block < to; block += kBlock) {
        const std::size_t count = std::min(kBlock, to - block);
        test.mark(words, block, count, minimum, marks.data());
        std::fill(marks.begin() + static_cast<std::ptrdiff_t>(count),
                  marks.begin() + static_cast<std::ptrdiff_t>((count + 7) / 8 * 8), 0);
        // Eight marks at a time: most blocks of a search hold none.
        std::size_t found = 0;
        for (std::size_t j = 0; j < count; j += 8) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, marks.data() + j, sizeof eight);
            while (eight != 0) {
                // Each mark is 0 or 1, so a byte holds at most its lowest bit.
                marked[found++] = static_cast<std::uint16_t>(
                    j + static_cast<std::size_t>(std::countr_zero(eight)) / 8);
                eight &= eight - 1;
            }
        }
        // The marked words' bytes lie scattered over the list: asked for all
        // at once, the visits do not wait for them one by one.
        for (std::size_t k = 0; k < found; ++k)
            __builtin_prefetch(words.bytes(block + marked[k]).data());
        for (std::size_t k = 0; k < found; ++k)
            visit(block + marked[k]);
    }
}

} // namespace lettriner
