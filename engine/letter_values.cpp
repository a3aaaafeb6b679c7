// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/letter_values.h"

#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"

#include <new>

namespace lettriner {

LetterValueTable letterValuesFromTexts(std::u16string_view letters, std::u16string_view values) {
    LetterValueTable table;
    const auto letterLines = splitAtCrLf(letters);
    const auto valueLines = splitAtCrLf(values);
    for (std::size_t i = 0; i < letterLines.size(); ++i) {
        if (letterLines[i].empty() || i >= valueLines.size())
            continue;
        const unsigned char code = windows1252Code(toUpper(letterLines[i].front()));
        if (const std::optional<double> value = finiteNumericValue(valueLines[i]))
            table.set(code, *value);
    }
    return table;
}

LetterValueTable BewertungsFeldLaden(const std::filesystem::path& folder, WhenAbsent absent) {
    try {
        const auto read = [&](const char* name) {
            return decodeWindows1252(readFileContents(folder / name, UINTMAX_MAX, absent).bytes());
        };
        const std::u16string letters = read("Bewertung1.txt");
        const std::u16string values = read("Bewertung2.txt");
        return letterValuesFromTexts(letters, values);
    } catch (const std::bad_alloc&) {
        return {}; // the lines of huge files do not fit: as if they could not be read
    }
}

std::int16_t WortBewertung(const LetterValueTable& table, std::u16string_view Wort) {
    double sum = 0.0;
    for (const char16_t c : Wort)
        sum += table[windows1252Code(toUpper(c))];
    return roundToInt16(sum).value_or(0);
}

} // namespace lettriner
