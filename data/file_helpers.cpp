#include "data/file_helpers.h"

#include "data/text_codec.h"
#include "data/text_lines.h"

#include <fstream>
#include <new>
#include <system_error>

namespace lettriner {

namespace fs = std::filesystem;

std::u16string DateiLesen(const fs::path& Pfad) {
    try {
        std::error_code error;
        const fs::file_status status = fs::status(Pfad, error);
        if (status.type() == fs::file_type::not_found) {
            // Opening for read and write creates a missing file, and the
            // program has always left that empty file behind.
            std::ofstream create(Pfad, std::ios::binary | std::ios::app);
            return {};
        }
        // Only regular files are read: a FIFO or device would block or never end.
        if (status.type() != fs::file_type::regular)
            return {};
        std::ifstream file(Pfad, std::ios::binary);
        if (!file)
            return {};
        const auto size = fs::file_size(Pfad, error);
        if (error)
            return {};
        std::string bytes(static_cast<std::size_t>(size), '\0');
        file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(file.gcount()));
        return decodeWindows1252(bytes);
    } catch (const std::bad_alloc&) {
        return {};
    } catch (const fs::filesystem_error&) {
        return {};
    }
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
