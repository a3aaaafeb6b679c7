// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Memory that runs out right after the word list is read, made real: the
// address space is capped at what a process holds now plus some room, and a
// list of 24 Mi lines "A" is loaded whose arrays do not all fit that room.
// The cap is set relative to what is held, not as a fixed size, because a
// sanitizer reserves terabytes of address space up front.

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>

namespace lettriner::testing {

inline constexpr std::uint64_t kCappedListLines = std::uint64_t{24} << 20;
inline constexpr std::uint64_t kCappedListBytes = 3 * kCappedListLines; // "A" CR LF
// One 32-bit offset or letter set per line, mapped with up to a huge page more.
inline constexpr std::uint64_t kCappedArrayBytes = 4 * kCappedListLines + (std::uint64_t{2} << 20);
// What a program needs beyond the list (the window about 30 MiB, with one
// malloc arena), less than one array.
inline constexpr std::uint64_t kCapSlack = std::uint64_t{48} << 20;

struct MemoryRoom {
    const char* name;
    std::uint64_t room;
    bool listLoads;
};
// The last row shows that the cap alone leaves the program working.
inline constexpr std::array<MemoryRoom, 3> kMemoryRooms = {{
    {"room for the file, not for its line offsets", kCappedListBytes + kCapSlack, false},
    {"room for the offsets, not for the prepared words",
     kCappedListBytes + kCappedArrayBytes + kCapSlack, false},
    {"room for the whole list", kCappedListBytes + 3 * kCappedArrayBytes + kCapSlack, true},
}};

inline void writeCappedList(const std::filesystem::path& path) {
    std::string block;
    for (int line = 0; line < (1 << 20); ++line)
        block += "A\r\n";
    std::ofstream out(path, std::ios::binary);
    for (std::uint64_t written = 0; written < kCappedListLines; written += 1 << 20)
        out.write(block.data(), static_cast<std::streamsize>(block.size()));
}

// The address space this process holds, in bytes (VmSize).
inline std::uint64_t addressSpaceInUse() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmSize:"))
            return std::stoull(line.substr(7)) * 1024;
    }
    return 0;
}

// Caps this process, and the programs it goes on to run, at what it holds now
// plus `room` bytes.
inline bool capAddressSpace(std::uint64_t room) {
    const rlim_t cap = addressSpaceInUse() + room;
    const rlimit limit{cap, cap};
    return setrlimit(RLIMIT_AS, &limit) == 0;
}

} // namespace lettriner::testing
