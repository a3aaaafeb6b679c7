// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/word_test.h"

#include <algorithm>

namespace lettriner {

WordTest::WordTest(std::u16string_view rack, std::u16string_view mandatory,
                   std::u16string_view forbidden, double allowance)
    : rack_(rack), mandatory_(mandatory), forbidden_(forbidden), allowance_(allowance),
      maxExtra_(wholeBound(allowance, 0)), rackLength_(static_cast<std::uint32_t>(rack.size())),
      rackCounts_(tileCounts(rack)) {
    const std::uint32_t rackLetters = letterSet(rack_) & kAlphabetBits;
    mandatoryOutsideAlphabet_ = (letterSet(mandatory_) & kOtherBit) != 0;
    // Integer forms of the real comparisons, exact for integer lengths and
    // counts: length <= 2 or length <= rack + allowance; extra letters
    // rejected when more than zero and more than the allowance.
    summary_.maxLength = wholeBound(static_cast<double>(rack.size()) + allowance, 2);
    summary_.maxExtra = maxExtra_;
    summary_.missingMask = kAlphabetBits & ~rackLetters;
    summary_.mandatory = letterSet(mandatory_) & kAlphabetBits;
    // The forbidden letters, and with no extra letter allowed every letter
    // not on the rack, reject a word whatever else it holds.
    summary_.rejected = letterSet(forbidden_) & kAlphabetBits;
    if (maxExtra_ == 0)
        summary_.rejected |= summary_.missingMask;
}

CheckResult WordTest::checkTheLongWay(const PreparedWords& words, std::size_t index,
                                      std::int16_t minimum) const {
    // Rare (a word with a digit, a hyphen, an accent): decoded and tested literally.
    return WortPrüfen(words.values(), words.upper(index), rack_, mandatory_, forbidden_, allowance_,
                      minimum);
}

CheckResult WordTest::cover(const PreparedWords& words, std::size_t index,
                            std::uint32_t length) const {
    TileCounts tiles = rackCounts_;
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
