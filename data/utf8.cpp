// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/utf8.h"

#include <algorithm>

namespace lettriner {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

} // namespace

std::u16string fromUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    std::size_t i = 0;
    while (i < bytes.size()) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        int extra = 0;
        char32_t c = 0;
        if (lead < 0x80) {
            c = lead;
        } else if (lead >= 0xC2 && lead < 0xE0) {
            extra = 1;
            c = lead & 0x1F;
        } else if (lead >= 0xE0 && lead < 0xF0) {
            extra = 2;
            c = lead & 0x0F;
        } else if (lead >= 0xF0 && lead < 0xF5) {
            extra = 3;
            c = lead & 0x07;
        } else {
            text += kReplacement;
            ++i;
            continue;
        }
        std::size_t j = i + 1;
        for (; j < bytes.size() && j <= i + static_cast<std::size_t>(extra); ++j) {
            const auto next = static_cast<unsigned char>(bytes[j]);
            if ((next & 0xC0) != 0x80)
                break;
            c = (c << 6) | (next & 0x3F);
        }
        const bool complete = j == i + 1 + static_cast<std::size_t>(extra);
        const bool overlong = (extra == 2 && c < 0x800) || (extra == 3 && c < 0x10000);
        const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
        if (!complete || overlong || surrogate || c > 0x10FFFF) {
            text += kReplacement;
        } else if (c > 0xFFFF) {
            text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            text += static_cast<char16_t>(c);
        }
        i = complete ? j : std::max(j, i + 1);
    }
    return text;
}

std::string toUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = kReplacement;
        }
        appendUtf8(out, c);
    }
    return out;
}

} // namespace lettriner
