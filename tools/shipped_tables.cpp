// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/shipped_tables.h"

#include "data/text_codec.h"

#include <array>
#include <string_view>

namespace lettriner::tools {
namespace {

struct LetterGroup {
    int points;
    std::u16string_view letters;
};

constexpr std::array<LetterGroup, 7> kLetterGroups = {{
    {1, u"ENSIRTUAD"},
    {2, u"HGLO"},
    {3, u"MBWZ"},
    {4, u"CFKP"},
    {6, u"ÄJÜV"},
    {8, u"ÖX"},
    {10, u"QY"},
}};

struct Message {
    std::u16string_view key;
    std::u16string_view german;
    std::u16string_view english;
};

constexpr std::array<Message, 8> kMessages = {{
    {u"[Titel]", u"Lettriner", u"Lettriner"},
    {u"[Suchen]", u"Suchen", u"Search"},
    {u"[Anhalten]", u"Anhalten", u"Stop"},
    {u"[Laden]", u"Laden der Datenbank", u"Loading the word list"},
    {u"[Gefunden]", u"Wörter gefunden", u"words found"},
    {u"[KeineDatenbank]", u"Die Datei DB1.txt fehlt oder ist leer.",
     u"The file DB1.txt is missing or empty."},
    {u"[Bonus]", u"Diese Wörter verbrauchen alle Steine.[ENTER]Dafür gibt es einen Bonus.",
     u"These words use every tile.[ENTER]They earn a bonus."},
    {u"[Hilfe]", u"F1 zeigt Informationen über das Programm.",
     u"F1 shows information about the program."},
}};

std::string crLfLine(std::u16string_view line) {
    return encodeWindows1252(line) + "\r\n";
}

} // namespace

std::string letterFileBytes() {
    std::string bytes;
    for (const LetterGroup& group : kLetterGroups) {
        for (const char16_t letter : group.letters)
            bytes += crLfLine(std::u16string_view(&letter, 1));
    }
    return bytes;
}

std::string valueFileBytes() {
    std::string bytes;
    for (const LetterGroup& group : kLetterGroups) {
        for (std::size_t i = 0; i < group.letters.size(); ++i)
            bytes += std::to_string(group.points) + "\r\n";
    }
    return bytes;
}

std::string messageFileBytes() {
    std::string bytes;
    for (const Message& message : kMessages) {
        std::u16string line(message.key);
        line += u'\t';
        line += message.german;
        line += u'\t';
        line += message.english;
        bytes += crLfLine(line);
    }
    return bytes;
}

std::string settingsFileBytes() {
    return "[Language]\t\t0\r\n";
}

} // namespace lettriner::tools
