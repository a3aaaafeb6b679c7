// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A 64-bit hash of a file's bytes, for the stamp the lexicon file keeps of
// the word list it was built from, and for the lexicon file's own checksum.
// Not std::hash: its value may differ between standard libraries, versions and
// runs, while a stamp written by the data tool at installation must compare
// equal in every later program, on any platform. This one is defined here
// byte for byte (little-endian words whatever the machine) and never changes;
// it reads eight bytes at a time in four independent lanes, several GB/s, so
// hashing DB1.txt costs a few milliseconds. Not meant against tampering.

#include <cstdint>
#include <string_view>

namespace lettriner::board {

[[nodiscard]] std::uint64_t contentHash(std::string_view bytes, std::uint64_t seed = 0);

// The same hash over bytes that come in pieces (a file read part by part):
// adding pieces and finishing gives contentHash of them joined.
class ContentHasher {
public:
    explicit ContentHasher(std::uint64_t seed = 0);
    void add(std::string_view bytes);
    [[nodiscard]] std::uint64_t finish() const;

private:
    std::uint64_t seed_;
    std::uint64_t lanes_[4];
    std::uint64_t total_ = 0;
    char pending_[32] = {}; // bytes of an unfinished stripe
    std::size_t pendingSize_ = 0;
};

} // namespace lettriner::board
