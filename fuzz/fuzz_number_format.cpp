// SPDX-License-Identifier: GPL-3.0-or-later
// The number formats the program writes, read back the way it reads numbers:
// decimal digits give the same integer, groups are threes with the separator
// between them, and "0.0" is the value rounded to a tenth.

#include "data/number_format.h"
#include "data/numeric_value.h"
#include "fuzz_input.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace lettriner;

std::string ascii(std::u16string_view text) {
    std::string bytes;
    for (const char16_t c : text) {
        if (c > 0x7F)
            fuzz::fail("a number format wrote a character outside ASCII");
        bytes += static_cast<char>(c);
    }
    return bytes;
}

void checkDecimal(std::int64_t value) {
    const std::string text = ascii(decimalText(value));
    std::int64_t back = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), back);
    if (error != std::errc() || end != text.data() + text.size() || back != value)
        fuzz::fail("decimal digits did not read back as the integer");
    if (text.size() > 1 && (text[0] == '0' || text.starts_with("-0")))
        fuzz::fail("decimal digits with a leading zero");
    // Up to 2^53 every integer is a double, and the reader must hit it exactly.
    if (std::abs(static_cast<double>(value)) <= 9007199254740992.0 &&
        numericValue(decimalText(value)) != static_cast<double>(value))
        fuzz::fail("numericValue misread decimal digits");
    const auto small = static_cast<std::int16_t>(value);
    if (textToInt16(decimalText(small)) != small)
        fuzz::fail("a 16-bit value did not read back through its digits");
}

void checkGrouped(std::int64_t value, char16_t separator) {
    // With a separator that is no digit or sign, the groups can be told apart.
    if ((separator >= u'0' && separator <= u'9') || separator == u'-')
        separator = u',';
    const std::u16string text = formatGrouped(value, separator);
    if (value == 0) {
        if (!text.empty())
            fuzz::fail("zero grouped is not the empty text");
        return;
    }
    std::vector<std::u16string> groups(1);
    for (std::size_t i = value < 0 ? 1 : 0; i < text.size(); ++i) {
        if (text[i] == separator)
            groups.emplace_back();
        else
            groups.back() += text[i];
    }
    std::u16string digits;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const std::size_t length = groups[i].size();
        if (i == 0 ? length == 0 || length > 3 : length != 3)
            fuzz::fail("the digits are not grouped by threes from the right");
        digits += groups[i];
    }
    if ((value < 0 ? u"-" + digits : digits) != decimalText(value))
        fuzz::fail("the grouped digits are not the decimal digits");
}

void checkOneDecimal(double value, char16_t separator) {
    const std::u16string text = formatOneDecimal(value, u'.');
    std::u16string local = text;
    local[local.find(u'.')] = separator;
    if (formatOneDecimal(value, separator) != local)
        fuzz::fail("the decimal separator changed more than itself");
    const std::string bytes = ascii(text);
    const std::size_t point = bytes.find('.');
    if (point == std::string::npos || point == 0 || bytes.size() != point + 2 ||
        bytes.find('.', point + 1) != std::string::npos || bytes == "-0.0")
        fuzz::fail("\"0.0\" is not one decimal digit after a whole number");
    if (!std::isfinite(value)) {
        if (text != u"0.0")
            fuzz::fail("a value that is no number was not written as 0.0");
        return;
    }
    const double shown = numericValue(text);
    const double clamped = std::clamp(value, -1e15, 1e15);
    // A tenth's rounding, and at the top the doubles' own spacing.
    if (std::fabs(shown - clamped) > 0.05 + std::fabs(clamped) * 1e-15)
        fuzz::fail("\"0.0\" is further than half a tenth from the value");
    if (std::fabs(value) < 1e12 && formatOneDecimal(shown, u'.') != text)
        fuzz::fail("\"0.0\" read back and written again changed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    unsigned char bytes[18] = {};
    std::memcpy(bytes, data, std::min(size, sizeof bytes));
    std::int64_t whole = 0;
    double real = 0;
    std::memcpy(&whole, bytes, sizeof whole);
    std::memcpy(&real, bytes + 8, sizeof real);
    const auto separator = static_cast<char16_t>(bytes[16] | bytes[17] << 8);
    checkDecimal(whole);
    checkGrouped(whole, separator);
    checkOneDecimal(real, separator);
    // Small numbers too, which the bit patterns of doubles seldom give.
    checkOneDecimal(static_cast<double>(whole % 100000) / 100.0, separator);
    return 0;
}
