// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whole-file reading and writing and the tagged-line lookup shared by the
// settings and message files. Nothing here throws or reports: every failure
// is absorbed and shows only in the result, as each function says.
//
// Tagged-line format: "[Key]", TAB, value, further TAB fields, CR LF.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lettriner {

// The file's whole content, decoded from Windows-1252, or its first `largest`
// bytes. An absent file is created empty (and gives empty text), but never
// through a symbolic link; a folder, a device, an unreadable file or any other
// failure gives empty text.
[[nodiscard]] std::u16string DateiLesen(const std::filesystem::path& Pfad,
                                        std::uintmax_t largest = UINTMAX_MAX);

// Replaces the file's content with `Inhalt` in Windows-1252, written as given
// (no line end is added). Failures are ignored and may leave the file empty
// or partly written.
void DateiSchreiben(std::u16string_view Inhalt, const std::filesystem::path& Pfad);

// Replaces the file's content with `content` in Windows-1252 all at once: written
// to PATH.new beside it, flushed, then renamed over it. On any failure (full
// disk, read-only folder) the old file stays as it was and false comes back.
bool replaceFile(std::u16string_view content, const std::filesystem::path& path);

// True when the path names an existing file or folder.
[[nodiscard]] bool DateiExistiert(const std::filesystem::path& Pfad);

// Replaces `Suche` until it no longer occurs, so runs collapse (TAB TAB by TAB
// turns any run of TABs into one). An empty `Suche` returns `Text` unchanged;
// an `Ersatz` containing `Suche` gets one pass only, instead of never ending.
[[nodiscard]] std::u16string WiederholtErsetzen(std::u16string_view Text, std::u16string_view Suche,
                                                std::u16string_view Ersatz);

// The value for the key `SuchStr` (brackets included, case-sensitive, first
// occurrence anywhere in the text): field 1 of the rest of the key's line,
// with every "[ENTER]" turned into CR LF. Empty for empty arguments, an
// absent key, a key at the very end, or a line without a TAB after the key.
[[nodiscard]] std::u16string SchlüsselWertHolen(std::u16string_view SuchStr,
                                                std::u16string_view DurchsuchterStr);

// The lookup behind SchlüsselWertHolen for any field: field `field` of the
// rest of the key's line (field 0 stands between the key and its first TAB).
// Empty when the key is absent or the line has no such field.
[[nodiscard]] std::u16string taggedField(std::u16string_view key, std::u16string_view text,
                                         long field);

// Reads a tagged-line file the one way every reader does: absent file ->
// nothing (and nothing is created); else the content with TAB runs and
// blank lines collapsed.
[[nodiscard]] std::optional<std::u16string>
readCollapsedTaggedFile(const std::filesystem::path& path);

} // namespace lettriner
