// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whole files as bytes, for the data tools (the program itself reads through
// data/file_helpers.h, with its own failure rules).

#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace lettriner::tools {

// Empty when the file cannot be opened.
[[nodiscard]] inline std::optional<std::string> fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace lettriner::tools
