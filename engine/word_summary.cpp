// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/word_summary.h"

#include <cmath>

namespace lettriner {

std::uint32_t wholeBound(double bound, std::uint32_t floorValue) {
    if (!(bound >= static_cast<double>(floorValue)))
        return floorValue;
    if (bound >= 4294967295.0)
        return UINT32_MAX;
    return static_cast<std::uint32_t>(std::floor(bound));
}

namespace {

// std::popcount in plain shifts and adds, which vectorise without a
// popcount instruction.
constexpr std::uint32_t bitCount(std::uint32_t bits) {
    bits = bits - ((bits >> 1) & 0x55555555u);
    bits = (bits & 0x33333333u) + ((bits >> 2) & 0x33333333u);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0Fu;
    bits += bits >> 8; // no multiply: SSE2 has none for 32-bit lanes
    return (bits + (bits >> 16)) & 0x3Fu;
}
static_assert(bitCount(0) == 0 && bitCount(0xFFFFFFFFu) == 32 && bitCount(0x40000101u) == 3);

} // namespace

// Wider vectors where the processor has them, chosen once at load time,
// while the build itself keeps to the baseline instruction set. Kept to
// this file: a multiversioned function must not be declared elsewhere.
#if defined(__x86_64__) && defined(__has_attribute)
#if __has_attribute(target_clones)
#define LETTRINER_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#endif
#endif
#ifndef LETTRINER_VECTOR_CLONES
#define LETTRINER_VECTOR_CLONES
#endif

namespace {

LETTRINER_VECTOR_CLONES
void markSummaries(WordSummaryTest test, const std::uint32_t* __restrict letterSets,
                   const std::int16_t* __restrict values, const std::uint32_t* __restrict starts,
                   std::size_t count, std::int16_t minimum, std::uint8_t* __restrict flags) {
    for (std::size_t j = 0; j < count; ++j) {
        const std::uint32_t letters = letterSets[j];
        const std::uint32_t length = starts[j + 1] - starts[j] - 2;
        // Single & on purpose: all six tests, no branch.
        flags[j] = static_cast<std::uint8_t>(
            ((letters & test.rejected) == 0) & ((letters & test.mandatory) == test.mandatory) &
            (values[j] >= minimum) & (length >= test.minLength) & (length <= test.maxLength) &
            (bitCount(letters & test.missingMask) <= test.maxExtra));
    }
}

} // namespace

void WordSummaryTest::mark(const PreparedWords& words, std::size_t from, std::size_t count,
                           std::int16_t minimum, std::uint8_t* flags) const {
    markSummaries(*this, words.letterSets() + from, words.wordValues() + from,
                  words.entryStarts() + from, count, minimum, flags);
}

} // namespace lettriner
