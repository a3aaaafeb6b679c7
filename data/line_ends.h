// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the line ends of a block of 64 bytes lie, for cutting a word list
// into entries a block at a time: vector code where the machine has it, and
// the plain loop that defines what it must give (and serves elsewhere).

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace lettriner {

// Line feeds and carriage returns of 64 bytes as bit masks (bit k: byte k).
struct LineBytes {
    std::uint64_t lineFeeds;
    std::uint64_t returns;
    friend bool operator==(const LineBytes&, const LineBytes&) = default;
};

[[nodiscard]] inline LineBytes lineBytesPlain(const char* block) {
    LineBytes masks{0, 0};
    for (unsigned k = 0; k < 64; ++k) {
        masks.lineFeeds |= std::uint64_t{block[k] == '\n'} << k;
        masks.returns |= std::uint64_t{block[k] == '\r'} << k;
    }
    return masks;
}

[[nodiscard]] inline LineBytes lineBytes(const char* block) {
#if defined(__SSE2__)
    LineBytes masks{0, 0};
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    for (int part = 0; part < 4; ++part) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + 16 * part));
        const auto shift = static_cast<unsigned>(16 * part);
        masks.lineFeeds |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(
                               _mm_movemask_epi8(_mm_cmpeq_epi8(bytes, lf))))
                           << shift;
        masks.returns |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(
                             _mm_movemask_epi8(_mm_cmpeq_epi8(bytes, cr))))
                         << shift;
    }
    return masks;
#else
    return lineBytesPlain(block);
#endif
}

} // namespace lettriner
