// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where lettriner-cli reads its data files: the folder given with -C, else the
// current folder when it holds DB1.txt, else the word list of an installed
// program (PREFIX/lib/lettriner/lettriner-cli reads /var/lib/lettriner under
// the prefix /usr, PREFIX/share/lettriner under any other).

#include <filesystem>
#include <optional>

namespace lettriner::cli {

// The installed data folder for a program folder, or nothing when the program
// does not lie in an installed layout.
[[nodiscard]] std::optional<std::filesystem::path>
installedDataFolder(const std::filesystem::path& programFolder);

// True when `folder` holds DB1.txt as a file (a link to one counts).
[[nodiscard]] bool holdsWordList(const std::filesystem::path& folder);

} // namespace lettriner::cli
