// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where an installed lettriner-cli finds its word list when the current
// folder has none (data_loading.h): PREFIX/lib/lettriner/lettriner-cli reads
// /var/lib/lettriner under the prefix /usr, PREFIX/share/lettriner under any other.

#include <filesystem>
#include <optional>

namespace lettriner::cli {

// The installed data folder for a program folder, or nothing when the program
// does not lie in an installed layout.
[[nodiscard]] std::optional<std::filesystem::path>
installedDataFolder(const std::filesystem::path& programFolder);

} // namespace lettriner::cli
