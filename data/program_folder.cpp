// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/program_folder.h"

#include <new>
#include <system_error>

namespace lettriner {

namespace fs = std::filesystem;

fs::path programFolder() {
    try {
        // A path holds the link's bytes as they are; nothing decodes them.
        std::error_code error;
        const fs::path program = fs::read_symlink("/proc/self/exe", error);
        if (!error && program.is_absolute() && program.has_parent_path())
            return program.parent_path();
        fs::path current = fs::current_path(error);
        if (!error && !current.empty())
            return current;
    } catch (const std::bad_alloc&) {
    }
    return ".";
}

} // namespace lettriner
