// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The small data files the program ships beside its word list, as the
// Windows-1252 bytes that are written to disk.

#include <string>

namespace lettriner::tools {

// Bewertung1.txt and Bewertung2.txt: the German edition's letters and their
// values, line for line.
[[nodiscard]] std::string letterFileBytes();
[[nodiscard]] std::string valueFileBytes();

// Sprachen.txt: messages with a German (0) and an English (1) column.
[[nodiscard]] std::string messageFileBytes();

// Settings.txt as the program writes it on its first start.
[[nodiscard]] std::string settingsFileBytes();

} // namespace lettriner::tools
