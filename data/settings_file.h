// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Settings.txt in the program's folder: one tagged line, the language index.

#include <cstdint>
#include <filesystem>

namespace lettriner {

// The settings file's path inside the program's folder.
[[nodiscard]] std::filesystem::path settingsPath(const std::filesystem::path& programFolder);

// Returns the language index, 0 by default. An absent file, or one without a
// value for "[Language]", is written anew with 0; an empty file (or one of
// only TABs and line ends), a value that is not a number or one outside 16 bits
// gives 0 and leaves the file as it is.
// A write that fails (read-only folder) is ignored.
[[nodiscard]] std::int16_t SettingsLaden(const std::filesystem::path& programFolder);

// Writes "[Language]", two TABs, the index, CR LF as the whole file, replaced at
// once: a write that fails (full disk, read-only folder) keeps the old file.
void SettingsSpeichern(const std::filesystem::path& programFolder, std::int16_t Sprache);

} // namespace lettriner
