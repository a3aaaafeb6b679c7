// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A text field whose 16-bit value the window keeps current: every change of
// the text sets the value to the rounded numeric value of the text, unless
// that lies outside 16 bits, in which case the previous value stays.

#include <cstdint>
#include <string>

namespace lettriner {

class NumberField {
public:
    virtual ~NumberField() = default;
    [[nodiscard]] virtual std::int16_t value() const = 0;
    [[nodiscard]] virtual std::u16string text() const = 0;
    virtual void setText(std::u16string text) = 0;
};

// The field without a window, for the command line and the tests.
class KeptNumberField final : public NumberField {
public:
    // Like a field created with its design text: the value is read from it.
    explicit KeptNumberField(std::u16string text);
    // Created with `designText`, then `typed` typed in: a typed text out of
    // range leaves the design value in force.
    KeptNumberField(std::u16string_view designText, std::u16string typed);

    [[nodiscard]] std::int16_t value() const override { return value_; }
    [[nodiscard]] std::u16string text() const override { return text_; }
    void setText(std::u16string text) override;

private:
    std::u16string text_;
    std::int16_t value_ = 0;
};

} // namespace lettriner
