// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file's bytes, read once and kept for the life of the program: mapped
// read-only where the system allows, so that the kernel's page cache is the
// only copy, else read into memory (a pipe, a special file, no mapping).

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lettriner {

class FileContents {
public:
    FileContents() = default;
    explicit FileContents(std::string bytes) : owned_(std::move(bytes)) {}
    FileContents(FileContents&& other) noexcept;
    FileContents& operator=(FileContents&& other) noexcept;
    FileContents(const FileContents&) = delete;
    FileContents& operator=(const FileContents&) = delete;
    ~FileContents();

    [[nodiscard]] std::string_view bytes() const {
        return mapped_ != nullptr ? std::string_view(mapped_, mappedLength_)
                                  : std::string_view(owned_);
    }

private:
    friend FileContents readFileContents(const std::filesystem::path&, std::uintmax_t);
    FileContents(const char* mapped, std::size_t length) : mapped_(mapped), mappedLength_(length) {}
    void release() noexcept;

    const char* mapped_ = nullptr;
    std::size_t mappedLength_ = 0;
    std::string owned_;
};

// The file's whole content, or its first `largest` bytes. An absent file is
// created empty (and gives nothing), but never through a symbolic link; a
// folder, a device, an unreadable file or any other failure gives nothing.
// A mapped file must not be shortened in place while it is in use; files
// the program's tools write are replaced whole, which is safe.
[[nodiscard]] FileContents readFileContents(const std::filesystem::path& path,
                                            std::uintmax_t largest = UINTMAX_MAX);

} // namespace lettriner
