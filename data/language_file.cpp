// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/language_file.h"

#include "data/file_helpers.h"

namespace lettriner {

std::u16string MeldungLaden(const std::filesystem::path& programFolder, std::u16string_view SuchStr,
                            std::int16_t SprachIndex) {
    const std::optional<std::u16string> text =
        readCollapsedTaggedFile(programFolder / "Sprachen.txt");
    if (!text || text->empty())
        return {};
    return SprachenDatenHolen(SuchStr, *text, SprachIndex);
}

std::u16string SprachenDatenHolen(std::u16string_view SuchStr, std::u16string_view SprachenDatei,
                                  std::int16_t Index) {
    // Index + 1 does not fit 16 bits for the largest index: no field then.
    if (Index == INT16_MAX)
        return {};
    return taggedField(SuchStr, SprachenDatei, Index + 1);
}

} // namespace lettriner
