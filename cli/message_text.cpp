// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/message_text.h"

#include "data/utf8.h"

#include <cstdio>

namespace lettriner::cli {
namespace {

std::string hexByte(unsigned byte) {
    char text[8];
    std::snprintf(text, sizeof text, "\\x%02x", byte & 0xFFu);
    return text;
}

std::string codePointName(char32_t c) {
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(c));
    return text;
}

// The code point at bytes[at] and its length, or length 0 when the bytes
// there are no well-formed UTF-8.
std::pair<char32_t, std::size_t> decodeOne(std::string_view bytes, std::size_t at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    std::size_t length = 0;
    char32_t c = 0;
    if (lead < 0x80)
        return {lead, 1};
    if (lead >= 0xC2 && lead < 0xE0) {
        length = 2;
        c = lead & 0x1Fu;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        c = lead & 0x0Fu;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        length = 4;
        c = lead & 0x07u;
    } else {
        return {0, 0};
    }
    if (at + length > bytes.size())
        return {0, 0};
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(bytes[at + k]);
        if ((next & 0xC0u) != 0x80u)
            return {0, 0};
        c = (c << 6) | (next & 0x3Fu);
    }
    const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    if (c < smallest || (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF)
        return {0, 0};
    return {c, length};
}

// One code point of well-formed text.
void appendShown(std::string& out, char32_t c) {
    if (c < 0x20 || c == 0x7F)
        out += hexByte(static_cast<unsigned>(c));
    else if (c >= 0x80 && c <= 0x9F)
        out += codePointName(c);
    else if (c >= 0xD800 && c <= 0xDFFF)
        out += codePointName(c);
    else if (c < 0x10000)
        out += toUtf8(std::u16string(1, static_cast<char16_t>(c)));
    else
        out += toUtf8(std::u16string{static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)),
                                     static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF))});
}

} // namespace

std::string messageText(std::string_view utf8) {
    std::string out;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto [c, length] = decodeOne(utf8, at);
        if (length == 0) {
            out += hexByte(static_cast<unsigned char>(utf8[at]));
            ++at;
            continue;
        }
        appendShown(out, c);
        at += length;
    }
    return out;
}

std::string messageText(std::u16string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            appendShown(out, 0x10000 + ((char32_t{c} - 0xD800) << 10) + (text[i + 1] - 0xDC00));
            ++i;
        } else {
            appendShown(out, c);
        }
    }
    return out;
}

} // namespace lettriner::cli
