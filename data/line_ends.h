// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the line ends of a block of 64 bytes lie, for cutting a word list
// into entries a block at a time, and how many line feeds a text holds, for
// sizing the cut: vector code where the machine has it, and the plain loop
// that defines what it must give (and serves elsewhere).

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

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

[[nodiscard]] inline std::size_t countLineFeedsPlain(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// std::count widens every byte's match to a 64-bit count, a dozen
// instructions per 16 bytes; here each match subtracts one from a byte
// counter, and the counters are summed before any can pass 255.
[[nodiscard]] inline std::size_t countLineFeeds(std::string_view text) {
#if defined(__SSE2__)
    const char* bytes = text.data();
    const std::size_t vectors = text.size() / 16;
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i zero = _mm_setzero_si128();
    std::size_t count = 0;
    for (std::size_t done = 0; done < vectors;) {
        const std::size_t round = std::min<std::size_t>(vectors - done, 255);
        __m128i counters = zero;
        for (std::size_t k = 0; k < round; ++k, ++done) {
            const __m128i chunk =
                _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + 16 * done));
            counters = _mm_sub_epi8(counters, _mm_cmpeq_epi8(chunk, lf));
        }
        const __m128i sums = _mm_sad_epu8(counters, zero);
        count += static_cast<std::size_t>(_mm_cvtsi128_si32(sums)) +
                 static_cast<std::size_t>(_mm_cvtsi128_si32(_mm_unpackhi_epi64(sums, sums)));
    }
    return count + countLineFeedsPlain(text.substr(16 * vectors));
#else
    return countLineFeedsPlain(text);
#endif
}

} // namespace lettriner
