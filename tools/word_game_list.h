// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The German list of the word game in Debian's tanglet-data
// (/usr/share/tanglet/gamedata/de/words, gzip): one line per key, the key
// followed by the spellings it stands for ("AERA Ära", "MASS Mass maß Maß").

#include <string>
#include <string_view>
#include <vector>

namespace lettriner::tools {

// The spellings of every line, in file order, from the unpacked UTF-8 text.
// A key alone stands for its lower-case spelling ("AALARTIG" gives
// "aalartig"). The keys themselves are never taken: they write Ä as AE and ß
// as SS, so AERA would stand for ÄRA. Fields are separated by blanks or tabs;
// LF or CR LF ends a line; empty lines are skipped.
[[nodiscard]] std::vector<std::u16string> wordGameSpellings(std::string_view utf8Text);

} // namespace lettriner::tools
