// SPDX-License-Identifier: GPL-3.0-or-later
// Any text read as a number: never NaN, never a crash, and the 16-bit
// conversion agrees with the value it converts.

#include "data/numeric_value.h"
#include "fuzz_input.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    const std::u16string text = fuzz::pieces(data, size, 1)[0];
    const double value = numericValue(text);
    if (std::isnan(value))
        fuzz::fail("numericValue gave NaN");
    const auto rounded = roundToInt16(value);
    if (rounded && std::fabs(*rounded - value) > 0.5)
        fuzz::fail("roundToInt16 moved the value by more than a half");
    if (!rounded && std::isfinite(value) && value > -32768.5 && value < 32767.5)
        fuzz::fail("roundToInt16 refused a value inside 16 bits");
    if (textToInt16(text) != rounded)
        fuzz::fail("textToInt16 differs from roundToInt16(numericValue)");
    return 0;
}
