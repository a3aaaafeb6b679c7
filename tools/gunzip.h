// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Unpacking a gzip file (the word-game list of Debian's tanglet-data) with
// zlib, in memory.

#include <cstddef>
#include <string>
#include <string_view>

namespace lettriner::tools {

struct Gunzipped {
    std::string bytes;
    std::string error; // empty on success; otherwise why, and `bytes` is empty
};

// Every member of a gzip file, one after the other, as gzip -d writes them.
// Fails on anything else: no gzip header, a corrupt or truncated stream, a
// wrong checksum, bytes after the last member, or more than `limit` bytes
// unpacked (so a small corrupt file cannot claim all memory).
[[nodiscard]] Gunzipped gunzip(std::string_view compressed, std::size_t limit);

} // namespace lettriner::tools
