// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252 and line cutting: every byte string reads back unchanged, and
// cutting at CR LF then joining restores the text.

#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::u16string text = decodeWindows1252(bytes);
    if (text.size() != bytes.size() || encodeWindows1252(text) != bytes)
        fuzz::fail("Windows-1252 does not round-trip");

    std::u16string joined;
    const auto lines = splitAtCrLf(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0)
            joined += kCrLf;
        joined += lines[i];
    }
    if (joined != text)
        fuzz::fail("joining the CR LF pieces does not restore the text");

    // Decoded Windows-1252 has no surrogates, so UTF-8 must round-trip too.
    if (fromUtf8(toUtf8(text)) != text)
        fuzz::fail("UTF-8 does not round-trip");
    // Arbitrary bytes as UTF-8: never a crash, and what comes out encodes again.
    const std::u16string lenient = fromUtf8(bytes);
    if (fromUtf8(toUtf8(lenient)) != lenient)
        fuzz::fail("UTF-8 of a leniently decoded text does not round-trip");
    return 0;
}
