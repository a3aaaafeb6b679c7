// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets GoogleTest print letter-test results by name and store entries by their parts.

#include "engine/value_sort.h"
#include "engine/word_check.h"

#include <ostream>

namespace lettriner {
inline void PrintTo(CheckResult result, std::ostream* out) {
    constexpr const char* kNames[] = {"Rejected", "Accepted", "AcceptedAsBonus"};
    *out << kNames[static_cast<int>(result)];
}
inline void PrintTo(const StoreEntry& entry, std::ostream* out) {
    *out << "{word " << entry.word << ", value " << entry.value << '}';
}
} // namespace lettriner
