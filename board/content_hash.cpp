// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/content_hash.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace lettriner::board {

namespace {

// Odd constants with well-mixed bits (from the golden ratio and from
// published 64-bit finalisers).
constexpr std::uint64_t kMultiplyA = 0x9E3779B185EBCA87u;
constexpr std::uint64_t kMultiplyB = 0xC2B2AE3D27D4EB4Fu;
constexpr std::uint64_t kMultiplyC = 0x165667B19E3779F9u;

std::uint64_t littleEndian64(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    if constexpr (std::endian::native == std::endian::big) {
        std::uint64_t swapped = 0;
        for (int i = 0; i < 8; ++i)
            swapped |= ((word >> (8 * i)) & 0xFFu) << (8 * (7 - i));
        word = swapped;
    }
    return word;
}

std::uint64_t mixLane(std::uint64_t lane, std::uint64_t word) {
    lane += word * kMultiplyB;
    lane = std::rotl(lane, 31);
    return lane * kMultiplyA;
}

// Every input bit reaches every output bit.
std::uint64_t avalanche(std::uint64_t hash) {
    hash ^= hash >> 33;
    hash *= kMultiplyB;
    hash ^= hash >> 29;
    hash *= kMultiplyC;
    hash ^= hash >> 32;
    return hash;
}

} // namespace

ContentHasher::ContentHasher(std::uint64_t seed)
    : seed_(seed), lanes_{seed + kMultiplyA + kMultiplyB, seed + kMultiplyB, seed,
                          seed - kMultiplyA} {}

void ContentHasher::add(std::string_view bytes) {
    total_ += bytes.size();
    const char* at = bytes.data();
    std::size_t left = bytes.size();
    if (pendingSize_ > 0) {
        const std::size_t taken = std::min(left, sizeof pending_ - pendingSize_);
        std::memcpy(pending_ + pendingSize_, at, taken);
        pendingSize_ += taken;
        at += taken;
        left -= taken;
        if (pendingSize_ < sizeof pending_)
            return;
        for (int lane = 0; lane < 4; ++lane)
            lanes_[lane] = mixLane(lanes_[lane], littleEndian64(pending_ + 8 * lane));
        pendingSize_ = 0;
    }
    // Eight bytes at a time in four independent lanes, 32 a round.
    for (; left >= 32; at += 32, left -= 32) {
        for (int lane = 0; lane < 4; ++lane)
            lanes_[lane] = mixLane(lanes_[lane], littleEndian64(at + 8 * lane));
    }
    if (left > 0)
        std::memcpy(pending_, at, left);
    pendingSize_ = left;
}

std::uint64_t ContentHasher::finish() const {
    std::uint64_t hash = seed_ + kMultiplyC + total_;
    if (total_ >= 32) {
        hash = std::rotl(lanes_[0], 1) + std::rotl(lanes_[1], 7) + std::rotl(lanes_[2], 12) +
               std::rotl(lanes_[3], 18) + total_;
        for (const std::uint64_t lane : lanes_)
            hash = (hash ^ mixLane(0, lane)) * kMultiplyA + kMultiplyC;
    }
    // The last, unfinished stripe: eight bytes at a time, then byte by byte.
    const char* at = pending_;
    std::size_t left = pendingSize_;
    for (; left >= 8; at += 8, left -= 8)
        hash = std::rotl(hash ^ mixLane(0, littleEndian64(at)), 27) * kMultiplyA + kMultiplyC;
    for (; left > 0; ++at, --left)
        hash = std::rotl(hash ^ (static_cast<unsigned char>(*at) * kMultiplyC), 11) * kMultiplyA;
    return avalanche(hash);
}

std::uint64_t contentHash(std::string_view bytes, std::uint64_t seed) {
    ContentHasher hasher(seed);
    hasher.add(bytes);
    return hasher.finish();
}

} // namespace lettriner::board
