// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/result_texts.h"

#include "data/number_format.h"

#include <array>

namespace lettriner {

std::u16string_view columnCaption(int column) {
    static constexpr std::array<std::u16string_view, kColumnsWithBlanks> kCaptions = {
        u"Wort", u"Wortlänge", u"Wortwert", u"Benötigte", u"Übrigbleibende", u"Blanko"};
    if (column < 0 || column >= kColumnsWithBlanks)
        return {};
    return kCaptions[static_cast<std::size_t>(column)];
}

std::u16string foundCountText(std::uint64_t count) {
    return decimalText(static_cast<std::int64_t>(count)) + u" Wörter gefunden";
}

std::u16string databaseCountText(std::int64_t highestIndex, char16_t groupSeparator) {
    return u"gesamte Datenbank: \r\n" + formatGrouped(highestIndex, groupSeparator) + u" Einträge";
}

std::u16string cellText(const ResultRow& row, int column) {
    if (const std::u16string* text = textCell(row, column))
        return *text;
    if (const std::optional<std::int64_t>* number = numberCell(row, column); number && *number)
        return decimalText(**number);
    return {};
}

} // namespace lettriner
