// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writing the data tool's output files. The package runs the tool as root in
// /var/lib/lettriner, so an output path must never lead it to write elsewhere.

#include <string>
#include <string_view>

namespace lettriner::tools {

// Creates `path` afresh (O_CREAT|O_EXCL|O_NOFOLLOW, mode 0644 less the umask)
// and writes `bytes` to disk. A regular file already at `path` (a stale
// DB1.txt.new of a failed run) is removed first; anything else there (a
// link, a folder, a device) is refused and left alone. Returns an empty
// string on success, otherwise a message naming the path and the reason.
[[nodiscard]] std::string writeNewFile(const std::string& path, std::string_view bytes);

} // namespace lettriner::tools
