// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/text_codec.h"

#include <array>

namespace lettriner {
namespace {

// Characters of bytes 0x80 to 0x9F; the rest of the code page equals Latin-1.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr ByteTable<char16_t> makeDecodeTable() {
    ByteTable<char16_t> table{};
    for (unsigned i = 0; i < 256; ++i)
        table[i] = static_cast<char16_t>(i);
    for (unsigned i = 0; i < 32; ++i)
        table[0x80 + i] = kHighControls[i];
    return table;
}

constexpr ByteTable<char16_t> kDecode = makeDecodeTable();

} // namespace

std::u16string decodeWindows1252(std::string_view bytes) {
    std::u16string text(bytes.size(), u'\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        text[i] = kDecode[static_cast<unsigned char>(bytes[i])];
    return text;
}

const ByteTable<char16_t>& windows1252Characters() {
    return kDecode;
}

unsigned char windows1252Code(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<unsigned char>(c);
    for (unsigned i = 0; i < 32; ++i) {
        if (kHighControls[i] == c)
            return static_cast<unsigned char>(0x80 + i);
    }
    return '?';
}

std::string encodeWindows1252(std::u16string_view text) {
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        bytes[i] = static_cast<char>(windows1252Code(text[i]));
    return bytes;
}

} // namespace lettriner
