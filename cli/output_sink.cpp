// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/output_sink.h"

namespace lettriner::cli {

void FileSink::write(std::string_view text) {
    if (!failed_ && std::fwrite(text.data(), 1, text.size(), file_) != text.size())
        failed_ = true; // a closed pipe or a full disk: the rest would fail too
}

bool FileSink::finish() {
    return std::fflush(file_) == 0 && !failed_ && !std::ferror(file_);
}

} // namespace lettriner::cli
