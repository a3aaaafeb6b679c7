// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Windows-1252, the single-byte code page of every data file the program
// reads and writes. Each byte is one character and back.

#include <array>
#include <string>
#include <string_view>

namespace lettriner {

// One entry for each of the 256 byte values, indexed by the byte.
template <class T> using ByteTable = std::array<T, 256>;

// Every byte maps to one character; the five bytes the code page leaves
// undefined (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the control characters
// U+0081, U+008D, U+008F, U+0090, U+009D so that any file reads back unchanged.
[[nodiscard]] std::u16string decodeWindows1252(std::string_view bytes);

// The character of every byte, as decodeWindows1252 gives it.
[[nodiscard]] const ByteTable<char16_t>& windows1252Characters();

// One byte per character; a character without a code becomes "?".
[[nodiscard]] std::string encodeWindows1252(std::u16string_view text);

// The 8-bit code of a character in Windows-1252, 0x3F ("?") when it has none.
[[nodiscard]] unsigned char windows1252Code(char16_t c);

} // namespace lettriner
