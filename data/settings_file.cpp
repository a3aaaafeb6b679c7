// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/settings_file.h"

#include "data/file_helpers.h"
#include "data/number_format.h"
#include "data/numeric_value.h"
#include "data/text_lines.h"

namespace lettriner {

std::filesystem::path settingsPath(const std::filesystem::path& programFolder) {
    return programFolder / "Settings.txt";
}

std::int16_t SettingsLaden(const std::filesystem::path& programFolder) {
    std::int16_t Sprache = 0;
    const std::optional<std::u16string> text = readCollapsedTaggedFile(settingsPath(programFolder));
    if (!text) {
        SettingsSpeichern(programFolder, Sprache);
        return Sprache;
    }
    // A file of nothing but TABs and line ends (CR LF: a lone CR or LF is text)
    // counts as empty and is left alone.
    std::u16string rest = replaceAll(*text, kCrLf, u"");
    std::erase(rest, u'\t');
    if (rest.empty())
        return Sprache;
    const std::u16string value = SchlüsselWertHolen(u"[Language]", *text);
    if (value.empty()) {
        SettingsSpeichern(programFolder, Sprache);
        return Sprache;
    }
    return textToInt16(value).value_or(Sprache);
}

void SettingsSpeichern(const std::filesystem::path& programFolder, std::int16_t Sprache) {
    // Replaced whole, so a crash or a full disk never leaves a half-written file.
    replaceFile(u"[Language]\t\t" + decimalText(Sprache) + u"\r\n", settingsPath(programFolder));
}

} // namespace lettriner
