// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Cuts a fuzzer's byte string into the texts a target needs: pieces separated
// by the byte 0x1F (which no file or field of the program treats specially),
// each decoded as Windows-1252 the way the program reads its files.

#include "data/text_codec.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner::fuzz {

// The pieces as bytes, for inputs that are not read as Windows-1252 (UTF-8
// files, command-line arguments).
inline std::vector<std::string_view> bytePieces(const std::uint8_t* data, std::size_t size,
                                                std::size_t count) {
    std::vector<std::string_view> result;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (result.size() + 1 < count) {
        const std::size_t cut = rest.find('\x1F');
        if (cut == std::string_view::npos)
            break;
        result.push_back(rest.substr(0, cut));
        rest.remove_prefix(cut + 1);
    }
    result.push_back(rest);
    result.resize(count);
    return result;
}

inline std::vector<std::u16string> pieces(const std::uint8_t* data, std::size_t size,
                                          std::size_t count) {
    std::vector<std::u16string> result;
    for (const std::string_view piece : bytePieces(data, size, count))
        result.push_back(decodeWindows1252(piece));
    return result;
}

// Stops the process so the fuzzer records the input, with a message saying why.
[[noreturn]] void fail(const char* what);

} // namespace lettriner::fuzz
