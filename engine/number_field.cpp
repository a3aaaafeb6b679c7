// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/number_field.h"

#include "data/numeric_value.h"

namespace lettriner {

KeptNumberField::KeptNumberField(std::u16string text) {
    setText(std::move(text));
}

KeptNumberField::KeptNumberField(std::u16string_view designText, std::u16string typed)
    : KeptNumberField(std::u16string(designText)) {
    setText(std::move(typed));
}

void KeptNumberField::setText(std::u16string text) {
    text_ = std::move(text);
    if (const auto value = textToInt16(text_))
        value_ = *value;
}

} // namespace lettriner
