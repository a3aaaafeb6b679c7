// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file's bytes, read once into the program's own memory and kept for the
// life of the program. Never mapped: a mapped file that someone shortens or
// rewrites while the program runs would end it with SIGBUS at the next read
// of a vanished page. What was read stays what the program works on.

#include "data/large_array.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace lettriner {

// What reading does about a file that is not there: the program has always
// left it behind empty; the command line creates nothing.
enum class WhenAbsent { CreateEmpty, LeaveAbsent };

class FileContents {
public:
    FileContents() = default;
    // Copies `bytes`; throws std::bad_alloc.
    explicit FileContents(std::string_view bytes);
    FileContents(FileContents&& other) noexcept
        : buffer_(std::move(other.buffer_)), length_(std::exchange(other.length_, 0)) {}
    FileContents& operator=(FileContents&& other) noexcept {
        buffer_ = std::move(other.buffer_);
        length_ = std::exchange(other.length_, 0);
        return *this;
    }

    [[nodiscard]] std::string_view bytes() const { return {buffer_.data(), length_}; }

private:
    friend FileContents readFileContents(const std::filesystem::path&, std::uintmax_t, WhenAbsent);
    FileContents(LargeArray<char> buffer, std::size_t length)
        : buffer_(std::move(buffer)), length_(length) {}

    LargeArray<char> buffer_;
    std::size_t length_ = 0;
};

// The file's whole content, or its first `largest` bytes. An absent file is
// created empty when asked (and gives nothing), but never through a symbolic
// link; a folder, a device, an unreadable file, memory too short for it or
// any other failure gives nothing.
[[nodiscard]] FileContents readFileContents(const std::filesystem::path& path,
                                            std::uintmax_t largest = UINTMAX_MAX,
                                            WhenAbsent absent = WhenAbsent::CreateEmpty);

// What stands at a path, as reading would find it, without reading or creating it.
enum class FileState { Absent, Unreadable, Empty, Readable };
[[nodiscard]] FileState fileState(const std::filesystem::path& path);

} // namespace lettriner
