// SPDX-License-Identifier: GPL-3.0-or-later
// Settings.txt with any content, read as start-up reads it: loading always
// ends; when it rewrites the file, it writes the default line and answers 0;
// otherwise it leaves the file byte for byte. A language index written by the
// program reads back as itself and is left alone.

#include "data/settings_file.h"
#include "fuzz_input.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const fs::path& folder() {
    static const fs::path made = [] {
        std::string pattern = (fs::temp_directory_path() / "fuzz-settings-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            lettriner::fuzz::fail("cannot make a temporary folder");
        std::atexit([] {
            std::error_code ignored;
            fs::remove_all(folder(), ignored);
        });
        return fs::path(pattern);
    }();
    return made;
}

std::string fileBytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeBytes(const fs::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

constexpr std::string_view kDefaultLine = "[Language]\t\t0\r\n";

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    if (size < 2)
        return 0;
    const fs::path path = settingsPath(folder());

    // Any content.
    const std::string_view content(reinterpret_cast<const char*>(data) + 2, size - 2);
    writeBytes(path, content);
    const std::int16_t read = SettingsLaden(folder());
    const std::string after = fileBytes(path);
    if (after != content && (after != kDefaultLine || read != 0))
        fuzz::fail("a rewrite wrote something else than the default line");
    if (read != 0 && content.find("[Language]") == std::string_view::npos)
        fuzz::fail("a language index came from a file without the key");

    // What the program writes.
    const auto index = static_cast<std::int16_t>(data[0] | data[1] << 8);
    SettingsSpeichern(folder(), index);
    const std::string written = fileBytes(path);
    if (SettingsLaden(folder()) != index || fileBytes(path) != written)
        fuzz::fail("a written language index did not read back unchanged");

    // No file at all.
    fs::remove(path);
    if (SettingsLaden(folder()) != 0 || fileBytes(path) != kDefaultLine)
        fuzz::fail("an absent file was not written with the default line");
    return 0;
}
