// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/data_folder.h"

#include <system_error>

namespace lettriner::cli {

std::optional<std::filesystem::path>
installedDataFolder(const std::filesystem::path& programFolder) {
    std::filesystem::path folder = programFolder.lexically_normal();
    if (folder.filename().empty()) // a trailing separator
        folder = folder.parent_path();
    const std::filesystem::path lib = folder.parent_path();
    if (folder.filename() != "lettriner" || lib.filename() != "lib")
        return std::nullopt;
    const std::filesystem::path prefix = lib.parent_path();
    if (prefix == "/usr")
        return std::filesystem::path("/var/lib/lettriner");
    return prefix / "share" / "lettriner";
}

} // namespace lettriner::cli
