// SPDX-License-Identifier: GPL-3.0-or-later
// The stamp's hash must never change: a lexicon file written by one version
// of the program is checked by every later one.

#include "board/content_hash.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace lettriner::board {
namespace {

TEST(ContentHash, ValuesArePinned) {
    std::string hundred;
    for (int i = 0; i < 100; ++i)
        hundred += static_cast<char>(i * 7);
    // clang-format off
    const std::pair<std::string, std::uint64_t> pinned[] = {
        {"", 15610338416011052929u}, {"a", 1238108005939079404u}, {"abc", 7503937290973014041u},
        {"Aachener\r\nAachenerin\r\n", 15224387534893069112u}, {hundred, 10218163010065850771u},
    };
    // clang-format on
    for (const auto& [bytes, value] : pinned)
        EXPECT_EQ(contentHash(bytes), value) << bytes.size() << " bytes";
}

TEST(ContentHash, PiecesHashLikeTheWhole) {
    std::string bytes;
    for (int i = 0; i < 300; ++i)
        bytes += static_cast<char>(i * 13 + 5);
    // Every way to cut the bytes in two and three (at the stripe edges too).
    for (std::size_t first = 0; first <= bytes.size(); first += 7) {
        for (std::size_t second = first; second <= bytes.size(); second += 31) {
            ContentHasher hasher(9);
            hasher.add(std::string_view(bytes).substr(0, first));
            hasher.add(std::string_view(bytes).substr(first, second - first));
            hasher.add(std::string_view(bytes).substr(second));
            ASSERT_EQ(hasher.finish(), contentHash(bytes, 9)) << first << " " << second;
        }
    }
}

TEST(ContentHash, EveryByteAndTheSeedCount) {
    // One bit changed anywhere (in every lane and every tail position) or a
    // different seed gives another hash.
    std::string bytes(77, 'x');
    std::set<std::uint64_t> seen{contentHash(bytes), contentHash(bytes, 1)};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string changed = bytes;
        changed[i] ^= 1;
        seen.insert(contentHash(changed));
    }
    seen.insert(contentHash(bytes.substr(0, 76)));
    EXPECT_EQ(seen.size(), bytes.size() + 3);
}

} // namespace
} // namespace lettriner::board
