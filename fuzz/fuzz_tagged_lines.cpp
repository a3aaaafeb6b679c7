// SPDX-License-Identifier: GPL-3.0-or-later
// The tagged-line lookup over arbitrary text and keys, after the collapsing
// every reader does.

#include "data/file_helpers.h"
#include "data/language_file.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    if (size < 2)
        return 0;
    // Two bytes, so that every language index can be asked for.
    const auto index = static_cast<std::int16_t>(data[0] | data[1] << 8);
    const auto texts = fuzz::pieces(data + 2, size - 2, 2);
    const std::u16string& key = texts[0];
    std::u16string text = WiederholtErsetzen(texts[1], u"\t\t", u"\t");
    if (text.find(u"\t\t") != std::u16string::npos)
        fuzz::fail("a run of TABs survived the collapse");
    text = WiederholtErsetzen(text, u"\r\n\r\n", u"\r\n");
    if (text.find(u"\r\n\r\n") != std::u16string::npos)
        fuzz::fail("a run of line ends survived the collapse");

    const std::u16string value = SchlüsselWertHolen(key, text);
    if (value.find(u'\t') != std::u16string::npos)
        fuzz::fail("a value holds a TAB");
    if (value != SprachenDatenHolen(key, text, 0))
        fuzz::fail("language 0 differs from the plain key lookup");
    const std::u16string message = SprachenDatenHolen(key, text, index);
    if (message.find(u'\t') != std::u16string::npos)
        fuzz::fail("a message holds a TAB");
    if (index < -1 && !message.empty())
        fuzz::fail("an index below -1 found a field");
    return 0;
}
