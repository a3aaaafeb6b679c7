// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/number_format.h"

#include <cmath>
#include <string>

namespace lettriner {
namespace {

std::u16string widen(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

std::string unsignedDigits(std::int64_t value) {
    // Works on the magnitude as unsigned so that INT64_MIN needs no special case.
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0)
        magnitude = ~magnitude + 1;
    return std::to_string(magnitude);
}

} // namespace

std::u16string decimalText(std::int64_t value) {
    return widen(std::to_string(value));
}

std::u16string formatOneDecimal(double value, char16_t decimalSeparator) {
    if (!std::isfinite(value))
        return std::u16string(1, u'0') + decimalSeparator + u'0';
    // Far beyond any elapsed time; keeps the integer conversion below defined.
    constexpr double kLargest = 1e15;
    if (std::fabs(value) > kLargest)
        value = std::copysign(kLargest, value);
    const double tenths = std::round(std::fabs(value) * 10.0);
    const bool negative = value < 0 && tenths > 0;
    const auto whole = static_cast<std::uint64_t>(tenths / 10.0);
    const auto fraction = static_cast<unsigned>(std::fmod(tenths, 10.0));
    std::u16string text = negative ? u"-" : u"";
    text += widen(std::to_string(whole));
    text += decimalSeparator;
    text += static_cast<char16_t>(u'0' + fraction);
    return text;
}

std::u16string formatGrouped(std::int64_t value, char16_t groupSeparator) {
    if (value == 0)
        return {};
    const std::string digits = unsignedDigits(value);
    std::u16string text = value < 0 ? u"-" : u"";
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            text += groupSeparator;
        text += static_cast<char16_t>(digits[i]);
    }
    return text;
}

} // namespace lettriner
