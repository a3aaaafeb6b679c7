#include "engine/word_test.h"

#include <bit>

namespace lettriner {

WordTest::WordTest(std::u16string_view rack, std::u16string_view mandatory,
                   std::u16string_view forbidden, double allowance)
    : rack_(rack), mandatory_(mandatory), forbidden_(forbidden), allowance_(allowance),
      lengthBound_(static_cast<double>(rack.size()) + allowance),
      rackLength_(static_cast<std::uint32_t>(rack.size())) {
    for (const char16_t c : rack_) {
        const int index = alphabetIndex(c);
        if (index >= 0) {
            ++rackCounts_[static_cast<std::size_t>(index)];
            rackLetters_ |= 1u << index;
        }
    }
    const std::uint32_t mandatorySet = letterSet(mandatory_);
    mandatoryLetters_ = mandatorySet & ~kOtherBit;
    mandatoryHasOther_ = (mandatorySet & kOtherBit) != 0;
    forbiddenLetters_ = letterSet(forbidden_) & ~kOtherBit;
}

CheckResult WordTest::check(const PreparedWords& words, std::size_t index,
                            std::int16_t minimum) const {
    const PreparedWords::Entry& entry = words.entry(index);
    if (entry.letters & kOtherBit) {
        return WortPrüfen(words.values(), words.upper(index), rack_, mandatory_, forbidden_,
                          allowance_, minimum);
    }
    // The word consists of alphabet letters only, so a mandatory character
    // outside the alphabet can never be present and a forbidden one never is.
    if (!(entry.length <= 2 || static_cast<double>(entry.length) <= lengthBound_))
        return CheckResult::Rejected;
    if (mandatoryHasOther_ || (entry.letters & mandatoryLetters_) != mandatoryLetters_)
        return CheckResult::Rejected;
    if (entry.letters & forbiddenLetters_)
        return CheckResult::Rejected;
    if (entry.value < minimum)
        return CheckResult::Rejected;

    // Each letter missing from the rack needs at least one extra letter.
    const int missing = std::popcount(entry.letters & ~rackLetters_);
    if (missing > 0 && static_cast<double>(missing) > allowance_)
        return CheckResult::Rejected;

    std::array<std::int32_t, kAlphabetSize> tiles = rackCounts_;
    std::uint32_t extra = 0;
    for (const char16_t c : words.upper(index)) {
        if (--tiles[static_cast<std::size_t>(alphabetIndex(c))] < 0)
            ++extra;
    }
    if (extra > 0 && static_cast<double>(extra) > allowance_)
        return CheckResult::Rejected;
    return entry.length - extra == rackLength_ ? CheckResult::AcceptedAsBonus
                                               : CheckResult::Accepted;
}

} // namespace lettriner
