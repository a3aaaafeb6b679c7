// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/numeric_value.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace lettriner {
namespace {

bool isSkipped(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}
bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Walks the text while hiding the characters that never count.
class Reader {
public:
    explicit Reader(std::u16string_view text) : text_(text) { skip(); }
    [[nodiscard]] bool atEnd() const { return pos_ >= text_.size(); }
    [[nodiscard]] char16_t peek() const { return atEnd() ? u'\0' : text_[pos_]; }
    void advance() {
        ++pos_;
        skip();
    }

private:
    void skip() {
        while (pos_ < text_.size() && isSkipped(text_[pos_]))
            ++pos_;
    }
    std::u16string_view text_;
    std::size_t pos_ = 0;
};

int radixDigit(char16_t c, int radix) {
    int digit = 99;
    if (isDigit(c))
        digit = c - u'0';
    else if (c >= u'a' && c <= u'f')
        digit = c - u'a' + 10;
    else if (c >= u'A' && c <= u'F')
        digit = c - u'A' + 10;
    return digit < radix ? digit : -1;
}

double readRadixInteger(Reader& reader, int radix) {
    double value = 0;
    for (int digit = radixDigit(reader.peek(), radix); digit >= 0;
         digit = radixDigit(reader.peek(), radix)) {
        value = value * radix + digit;
        reader.advance();
    }
    return value;
}

// from_chars leaves its output untouched when the value is out of range, so
// tell overflow from underflow by the decimal exponent of the first digit.
double outOfRange(const std::string& mantissa, long exponent) {
    bool seenPoint = false;
    bool seenSignificant = false;
    long integerDigits = 0;
    long leadingFractionZeros = 0;
    for (char c : mantissa) {
        if (c == '.') {
            seenPoint = true;
        } else if (c != '0' || seenSignificant) {
            seenSignificant = true;
            if (!seenPoint)
                ++integerDigits;
            else
                break;
        } else if (seenPoint) {
            ++leadingFractionZeros;
        }
    }
    if (!seenSignificant)
        return 0.0;
    // The power of ten of the first significant digit.
    const long position = integerDigits > 0 ? integerDigits - 1 : -(leadingFractionZeros + 1);
    return position + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

} // namespace

double numericValue(std::u16string_view text) {
    Reader reader(text);
    if (reader.peek() == u'&') {
        reader.advance();
        const char16_t prefix = reader.peek();
        if (prefix == u'H' || prefix == u'h') {
            reader.advance();
            return readRadixInteger(reader, 16);
        }
        if (prefix == u'O' || prefix == u'o') {
            reader.advance();
            return readRadixInteger(reader, 8);
        }
        return 0.0;
    }

    bool negative = false;
    if (reader.peek() == u'+' || reader.peek() == u'-') {
        negative = reader.peek() == u'-';
        reader.advance();
    }
    std::string mantissa;
    bool seenPoint = false;
    bool seenDigit = false;
    for (;;) {
        const char16_t c = reader.peek();
        if (isDigit(c)) {
            seenDigit = true;
        } else if (c == u'.' && !seenPoint) {
            seenPoint = true;
        } else {
            break;
        }
        mantissa.push_back(static_cast<char>(c));
        reader.advance();
    }
    if (!seenDigit)
        return 0.0;

    long exponent = 0;
    const char16_t marker = reader.peek();
    if (marker == u'e' || marker == u'E' || marker == u'd' || marker == u'D') {
        reader.advance();
        bool exponentNegative = false;
        if (reader.peek() == u'+' || reader.peek() == u'-') {
            exponentNegative = reader.peek() == u'-';
            reader.advance();
        }
        while (isDigit(reader.peek())) {
            // Clamp: far beyond any double's range, the exact figure no longer matters.
            if (exponent < 100000)
                exponent = exponent * 10 + (reader.peek() - u'0');
            reader.advance();
        }
        if (exponentNegative)
            exponent = -exponent;
    }

    std::string number = mantissa;
    number += 'e';
    number += std::to_string(exponent);
    double value = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    (void)end;
    if (error == std::errc::result_out_of_range)
        value = outOfRange(mantissa, exponent);
    return negative ? -value : value;
}

std::optional<double> finiteNumericValue(std::u16string_view text) {
    const double value = numericValue(text);
    if (!std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::int16_t> roundToInt16(double value) {
    // Also false for NaN and infinities.
    if (!(value > -65536.0 && value < 65536.0))
        return std::nullopt;
    // Adding and removing 1.5 * 2^52 leaves no bits below the units, so the
    // FPU's default rounding (to nearest, halves to even) does the work; this
    // runs once per word at start-up, where nearbyint's library call shows.
    constexpr double kShift = 6755399441055744.0;
    const double rounded = (value + kShift) - kShift;
    if (rounded < -32768.0 || rounded > 32767.0)
        return std::nullopt;
    return static_cast<std::int16_t>(rounded);
}

std::optional<std::int16_t> textToInt16(std::u16string_view text) {
    return roundToInt16(numericValue(text));
}

} // namespace lettriner
