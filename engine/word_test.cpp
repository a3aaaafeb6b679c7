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
    mandatoryLetters_ = letterSet(mandatory_);
    // A mandatory character outside the alphabet rejects every alphabet-only
    // word: ask for a bit no letter set ever has.
    if (mandatoryLetters_ & kOtherBit)
        mandatoryLetters_ = kImpossibleBit;
    forbiddenLetters_ = letterSet(forbidden_) & ~kOtherBit;
}

CheckResult WordTest::checkTheLongWay(const PreparedWords& words, std::size_t index,
                                      std::int16_t minimum) const {
    return WortPrüfen(words.values(), words.upper(index), rack_, mandatory_, forbidden_, allowance_,
                      minimum);
}

CheckResult WordTest::cover(std::u16string_view upperWord, std::uint32_t length) const {
    std::array<std::int32_t, kAlphabetSize> tiles = rackCounts_;
    std::uint32_t extra = 0;
    for (const char16_t c : upperWord) {
        if (--tiles[static_cast<std::size_t>(alphabetIndex(c))] < 0)
            ++extra;
    }
    if (extra > maxExtra_)
        return CheckResult::Rejected;
    return length - extra == rackLength_ ? CheckResult::AcceptedAsBonus : CheckResult::Accepted;
}

} // namespace lettriner
