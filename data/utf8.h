// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// UTF-8 at the program's text edges (command line, terminal, tests); the data
// files themselves are Windows-1252 (text_codec.h).

#include <string>
#include <string_view>

namespace lettriner {

// Code points beyond 16 bits become surrogate pairs; malformed sequences U+FFFD.
[[nodiscard]] std::u16string fromUtf8(std::string_view bytes);

// Unpaired surrogates become U+FFFD.
[[nodiscard]] std::string toUtf8(std::u16string_view text);

} // namespace lettriner
