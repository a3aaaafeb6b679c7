// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/file_helpers.h"

#include "data/file_contents.h"
#include "data/text_codec.h"
#include "data/text_lines.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <new>
#include <system_error>

namespace lettriner {

namespace fs = std::filesystem;

namespace {

// Creates the file only when nothing stands at the path: "x" opens with
// O_CREAT | O_EXCL, which never follows a symbolic link (a dangling one stays
// dangling) and never empties a file that appeared in the meantime.
std::FILE* createNew(const fs::path& path) {
    return std::fopen(path.c_str(), "wbx");
}

} // namespace

std::u16string DateiLesen(const fs::path& Pfad, std::uintmax_t largest) {
    try {
        return decodeWindows1252(readFileContents(Pfad, largest).bytes());
    } catch (const std::bad_alloc&) {
        return {};
    }
}

bool replaceFile(std::u16string_view content, const fs::path& path) {
    fs::path temporary = path;
    temporary += ".new";
    std::error_code ignored;
    fs::remove(temporary, ignored); // left over by a crash
    std::FILE* file = createNew(temporary);
    if (file == nullptr)
        return false;
    const std::string bytes = encodeWindows1252(content);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const bool closed = std::fclose(file) == 0; // flushes; a full disk shows here
    std::error_code error;
    if (written && closed)
        fs::rename(temporary, path, error);
    if (!written || !closed || error) {
        fs::remove(temporary, ignored);
        return false;
    }
    return true;
}

void DateiSchreiben(std::u16string_view Inhalt, const fs::path& Pfad) {
    try {
        std::ofstream file(Pfad, std::ios::binary | std::ios::trunc);
        if (!file)
            return;
        const std::string bytes = encodeWindows1252(Inhalt);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    } catch (const std::exception&) {
        // Nothing to report: the file is left as far as it got.
    }
}

bool DateiExistiert(const fs::path& Pfad) {
    std::error_code error;
    return fs::exists(Pfad, error);
}

std::u16string WiederholtErsetzen(std::u16string_view Text, std::u16string_view Suche,
                                  std::u16string_view Ersatz) {
    std::u16string copy(Text);
    if (Suche.empty())
        return copy;
    if (Ersatz.find(Suche) != std::u16string_view::npos)
        return replaceAll(copy, Suche, Ersatz);
    while (copy.find(Suche) != std::u16string::npos)
        copy = replaceAll(copy, Suche, Ersatz);
    return copy;
}

std::u16string taggedField(std::u16string_view key, std::u16string_view text, long field) {
    if (key.empty() || text.empty() || field < 0)
        return {};
    const std::size_t hit = text.find(key);
    if (hit == std::u16string_view::npos)
        return {};
    // The rest of the key's line, cut short by a second occurrence of the key.
    std::u16string_view rest = text.substr(hit + key.size());
    rest = rest.substr(0, rest.find(key));
    rest = rest.substr(0, rest.find(kCrLf));

    const std::vector<std::u16string_view> fields = splitAt(rest, u"\t");
    if (static_cast<std::size_t>(field) >= fields.size())
        return {};
    return replaceAll(fields[static_cast<std::size_t>(field)], u"[ENTER]", kCrLf);
}

std::u16string SchlüsselWertHolen(std::u16string_view SuchStr,
                                  std::u16string_view DurchsuchterStr) {
    return taggedField(SuchStr, DurchsuchterStr, 1);
}

std::optional<std::u16string> readCollapsedTaggedFile(const fs::path& path) {
    if (!DateiExistiert(path))
        return std::nullopt;
    std::u16string text = DateiLesen(path);
    text = WiederholtErsetzen(text, u"\t\t", u"\t");
    return WiederholtErsetzen(text, u"\r\n\r\n", u"\r\n");
}

} // namespace lettriner
