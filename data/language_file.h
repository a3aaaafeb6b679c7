// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sprachen.txt in the program's folder: one message per tagged line, one TAB
// field per language (language index i is field i + 1).
//
// The window's texts are fixed German and no window shows a message, so no
// program calls this today. It stays because the file is part of the data the
// program ships and documents (the build writes it, the README lists it), and
// a message window would read its texts here, in the language of Settings.txt.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lettriner {

// The message for `SuchStr` in language `SprachIndex`, read afresh from
// Sprachen.txt on every call. Empty when the file is absent (it is not
// created), empty, lacks the key or has no such language column.
[[nodiscard]] std::u16string MeldungLaden(const std::filesystem::path& programFolder,
                                          std::u16string_view SuchStr, std::int16_t SprachIndex);

// The same lookup in an already read and collapsed text. Index -1 gives field 0
// (what stands between key and first TAB); lower indexes give empty text.
[[nodiscard]] std::u16string SprachenDatenHolen(std::u16string_view SuchStr,
                                                std::u16string_view SprachenDatei,
                                                std::int16_t Index);

} // namespace lettriner
