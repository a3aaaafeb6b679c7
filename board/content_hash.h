// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A 64-bit hash of a file's bytes, for the stamp the word graph file keeps of
// the word list it was built from, and for the graph file's own checksum.
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

} // namespace lettriner::board
