// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whether the player can lay a word: the letter test of a search, and the
// two letter columns of the result lists.

#include "engine/letter_values.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {

enum class CheckResult : std::uint8_t { Rejected, Accepted, AcceptedAsBonus };

// The letter test, in this order: length (at most rack length + allowance,
// or at most 2), every mandatory letter present, no forbidden letter present,
// value at least `minimum`, then covering by the rack with at most
// `allowance` letters from outside. A bonus word leaves no rack tile unused.
// All texts must already be upper-cased; mandatory and forbidden without
// blanks. A space on the rack is a tile that no letter can use.
[[nodiscard]] CheckResult WortPrüfen(const LetterValueTable& values, std::u16string_view word,
                                     std::u16string_view rack, std::u16string_view mandatory,
                                     std::u16string_view forbidden, double allowance,
                                     std::int16_t minimum);

// The letters a word needs from outside the rack, in word order, lower-cased.
// `rack` is taken as it stands (spaces kept), `word` in any case.
[[nodiscard]] std::u16string neededLetters(std::u16string_view word, std::u16string_view rack);

// The rack tiles left over after the word, in rack order, lower-cased.
[[nodiscard]] std::u16string leftOverLetters(std::u16string_view word, std::u16string_view rack);

// Column arrays of the same indices as `Feld`.
[[nodiscard]] std::vector<std::u16string> ZusBuchstabenFeld(const std::vector<std::u16string>& Feld,
                                                            std::u16string_view rack);
[[nodiscard]] std::vector<std::u16string> ÜbrigeBuchstFeld(const std::vector<std::u16string>& Feld,
                                                           std::u16string_view rack);

} // namespace lettriner
