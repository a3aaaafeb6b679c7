#pragma once
// Turning a general German word list into the game's word list.

#include <string>
#include <string_view>
#include <vector>

namespace lettriner::tools {

// From UTF-8 lines (LF or CR LF): keeps entries made only of a-z, A-Z, ä ö ü,
// Ä Ö Ü and ß; drops abbreviations (two or more letters, all capitals);
// writes ß as ss, since the game has no ß tile; drops an entry whose
// upper-case form repeats an earlier one. File order is kept.
[[nodiscard]] std::vector<std::u16string> gameWords(std::string_view utf8List);

// The words in Windows-1252, CR LF after every word.
[[nodiscard]] std::string wordFileBytes(const std::vector<std::u16string>& words);

} // namespace lettriner::tools
