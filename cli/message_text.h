// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the user typed, made safe to echo in a message on a terminal: a
// control character would let an option value move the cursor, set the
// window title or worse. Control characters show as \xNN (C1 ones as
// U+0080 to U+009F), bytes that are no UTF-8 as \xNN, unpaired surrogates
// as U+D800 to U+DFFF; everything else as it is, in UTF-8.

#include <string>
#include <string_view>

namespace lettriner::cli {

[[nodiscard]] std::string messageText(std::string_view utf8);
[[nodiscard]] std::string messageText(std::u16string_view text);

} // namespace lettriner::cli
