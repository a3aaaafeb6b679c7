#include "engine/word_test.h"

#include <algorithm>
#include <cmath>

namespace lettriner {
namespace {

// The largest whole number not above `bound`, clamped to [floor, UINT32_MAX].
std::uint32_t wholeBound(double bound, std::uint32_t floorValue) {
    if (!(bound >= static_cast<double>(floorValue)))
        return floorValue;
    if (bound >= 4294967295.0)
        return 0xFFFFFFFFu;
    return static_cast<std::uint32_t>(std::floor(bound));
}

} // namespace

WordTest::WordTest(std::u16string_view rack, std::u16string_view mandatory,
                   std::u16string_view forbidden, double allowance)
    : rack_(rack), mandatory_(mandatory), forbidden_(forbidden), allowance_(allowance),
      maxLength_(wholeBound(static_cast<double>(rack.size()) + allowance, 2)),
      maxExtra_(wholeBound(allowance, 0)), rackLength_(static_cast<std::uint32_t>(rack.size())) {
    for (const char16_t c : rack_) {
        const int index = alphabetIndex(c);
        if (index >= 0) {
            ++rackCounts_[static_cast<std::size_t>(index)];
            rackLetters_ |= 1u << index;
        }
    }
    missingMask_ = kAlphabetBits & ~rackLetters_;
    mandatoryLetters_ = letterSet(mandatory_) & kAlphabetBits;
    mandatoryOutsideAlphabet_ = (letterSet(mandatory_) & kOtherBit) != 0;
    rejectedLetters_ = letterSet(forbidden_) & kAlphabetBits;
    if (maxExtra_ == 0)
        rejectedLetters_ |= missingMask_;
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

struct Summary {
    std::uint32_t rejected;
    std::uint32_t mandatory;
    std::uint32_t missingMask;
    std::uint32_t maxLength;
    std::uint32_t maxExtra;
};

LETTRINER_VECTOR_CLONES
void markSummaries(Summary test, const std::uint32_t* __restrict letterSets,
                   const std::int16_t* __restrict values, const std::uint32_t* __restrict starts,
                   std::size_t count, std::int16_t minimum, std::uint8_t* __restrict flags) {
    for (std::size_t j = 0; j < count; ++j) {
        const std::uint32_t letters = letterSets[j];
        const std::uint32_t length = starts[j + 1] - starts[j] - 2;
        // Single & on purpose: all five tests, no branch.
        flags[j] = static_cast<std::uint8_t>(
            ((letters & test.rejected) == 0) & ((letters & test.mandatory) == test.mandatory) &
            (values[j] >= minimum) & (length <= test.maxLength) &
            (bitCount(letters & test.missingMask) <= test.maxExtra));
    }
}

} // namespace

void WordTest::markCandidates(const PreparedWords& words, std::size_t from, std::size_t count,
                              std::int16_t minimum, std::uint8_t* flags) const {
    markSummaries({rejectedLetters_, mandatoryLetters_, missingMask_, maxLength_, maxExtra_},
                  words.letterSets() + from, words.wordValues() + from, words.entryStarts() + from,
                  count, minimum, flags);
}

CheckResult WordTest::checkTheLongWay(const PreparedWords& words, std::size_t index,
                                      std::int16_t minimum) const {
    // Rare (a word with a digit, a hyphen, an accent): decoded and tested literally.
    return WortPrüfen(words.values(), words.upper(index), rack_, mandatory_, forbidden_, allowance_,
                      minimum);
}

CheckResult WordTest::cover(const PreparedWords& words, std::size_t index,
                            std::uint32_t length) const {
    std::array<std::int32_t, kAlphabetSize> tiles = rackCounts_;
    std::uint32_t extra = 0;
    for (const char byte : words.bytes(index)) {
        if (--tiles[static_cast<std::size_t>(words.alphabetIndexOfByte(byte))] < 0)
            ++extra;
    }
    if (extra > maxExtra_)
        return CheckResult::Rejected;
    return length - extra == rackLength_ ? CheckResult::AcceptedAsBonus : CheckResult::Accepted;
}

} // namespace lettriner
