// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The folder the running program lies in, which holds Settings.txt and
// Sprachen.txt.

#include <filesystem>

namespace lettriner {

// The running executable's folder, links resolved, as the bytes the system
// names it by: any folder name works, also one that is not valid UTF-8.
// Where /proc is not mounted, the current folder. Never empty.
[[nodiscard]] std::filesystem::path programFolder();

} // namespace lettriner
