// The data tool: the game's word list from a general German list, and the
// small tables shipped beside it.

#include "data/file_helpers.h"
#include "data/language_file.h"
#include "data/settings_file.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/word_database.h"
#include "engine/letter_values.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lettriner::tools {
namespace {

using lettriner::testing::TempFolder;
using Words = std::vector<std::u16string>;

TEST(GameWords, KeepsOnlyGameWordsOncePerUpperCaseForm) {
    struct Case {
        const char* name;
        std::string utf8List;
        Words words;
    };
    // clang-format off
    const Case cases[] = {
        {"plain words in file order",      "Haus\nbaum\nZebra\n",            {u"Haus", u"baum", u"Zebra"}},
        {"umlauts",                        "\xC3\x84pfel\n\xC3\xB6lig\n\xC3\x9C" "bel\n",
                                                                             {u"Äpfel", u"ölig", u"Übel"}},
        {"other characters drop a word",   "A4\nE-Mail\nGeorge's\nCaf\xC3\xA9\nzwei W\xC3\xB6rter\nHaus\n",
                                                                             {u"Haus"}},
        {"abbreviations dropped",          "ABC\nUSA\n\xC3\x84\xC3\x96\nA\nx\nGmbH\n",
                                                                             {u"A", u"x", u"GmbH"}},
        {"sharp s written as ss",          "Stra\xC3\x9F" "e\nflie\xC3\x9F" "en\n", {u"Strasse", u"fliessen"}},
        {"later duplicates dropped",       "Ma\xC3\x9F" "e\nMasse\nma\xC3\x9F" "e\nHaus\nhaus\n",
                                                                             {u"Masse", u"Haus"}},
        {"CR LF lines",                    "Haus\r\nBaum\r\n",                {u"Haus", u"Baum"}},
        {"no final line end",              "Haus\nBaum",                      {u"Haus", u"Baum"}},
        {"empty lines skipped",            "\n\nHaus\r\n\r\n",                {u"Haus"}},
        {"lone CR inside a line",          "Ha\rus\nBaum\n",                  {u"Baum"}},
        {"malformed UTF-8",                "Ha\xFFus\nBaum\n",                {u"Baum"}},
        {"empty list",                     "",                                {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(gameWords(c.utf8List), c.words);
    }
}

TEST(WordFileBytes, Windows1252WithCrLfAfterEveryWord) {
    EXPECT_EQ(wordFileBytes({}), "");
    const Words words = {u"Äpfel", u"Öl", u"über", u"Haus"};
    const std::string bytes = wordFileBytes(words);
    EXPECT_EQ(bytes, "\xC4pfel\r\n\xD6l\r\n\xFC"
                     "ber\r\nHaus\r\n");

    // The program reads it back as these words plus the empty entry after the last line end.
    Words readBack = words;
    readBack.emplace_back();
    const WordDatabase list(decodeWindows1252(bytes));
    ASSERT_EQ(list.size(), readBack.size());
    for (std::size_t i = 0; i < list.size(); ++i)
        EXPECT_EQ(list[i], readBack[i]);
}

TEST(ShippedTables, LetterFilesLoadIntoTheGamesValues) {
    const LetterValueTable table = letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                         decodeWindows1252(valueFileBytes()));
    struct Group {
        double points;
        std::u16string letters;
    };
    const Group groups[] = {{1, u"ENSIRTUAD"}, {2, u"HGLO"}, {3, u"MBWZ"}, {4, u"CFKP"},
                            {6, u"ÄJÜV"},      {8, u"ÖX"},   {10, u"QY"}};
    LetterValueTable expected;
    for (const Group& group : groups) {
        for (const char16_t letter : group.letters)
            expected.set(windows1252Code(letter), group.points);
    }
    for (int code = 0; code < 256; ++code) {
        const auto c = static_cast<unsigned char>(code);
        EXPECT_EQ(table[c], expected[c]) << "code " << code;
    }
    EXPECT_EQ(WortBewertung(table, u"Quiz"), 10 + 1 + 1 + 3);
    EXPECT_EQ(WortBewertung(table, u"Größe"), 2 + 1 + 8 + 0 + 1); // no ß tile
}

TEST(ShippedTables, EveryMessageIsFoundInBothLanguages) {
    const std::u16string text = decodeWindows1252(messageFileBytes());
    TempFolder folder;
    folder.write("Sprachen.txt", messageFileBytes());
    std::size_t messages = 0;
    for (const std::u16string_view line : splitAtCrLf(text)) {
        if (line.empty())
            continue;
        ++messages;
        const std::vector<std::u16string_view> fields = splitAt(line, u"\t");
        ASSERT_EQ(fields.size(), 3u) << toUtf8(line);
        const std::u16string key(fields[0]);
        SCOPED_TRACE(toUtf8(key));
        EXPECT_EQ(key.front(), u'[');
        EXPECT_EQ(key.back(), u']');
        // A key that also stood in an earlier line would find that line instead.
        EXPECT_EQ(MeldungLaden(folder.path(), key, 0), replaceAll(fields[1], u"[ENTER]", kCrLf));
        EXPECT_EQ(MeldungLaden(folder.path(), key, 1), replaceAll(fields[2], u"[ENTER]", kCrLf));
        EXPECT_FALSE(fields[1].empty());
        EXPECT_FALSE(fields[2].empty());
        EXPECT_EQ(MeldungLaden(folder.path(), key, 2), u"");
    }
    EXPECT_GT(messages, 0u);
    EXPECT_EQ(text.substr(text.size() - 2), kCrLf);
}

TEST(ShippedTables, SettingsFileIsWhatTheProgramWritesAndIsKept) {
    TempFolder folder;
    SettingsSpeichern(folder.path(), 0);
    EXPECT_EQ(folder.read("Settings.txt"), settingsFileBytes());
    folder.write("Settings.txt", settingsFileBytes());
    EXPECT_EQ(SettingsLaden(folder.path()), 0);
    EXPECT_EQ(folder.read("Settings.txt"), settingsFileBytes());
}

} // namespace
} // namespace lettriner::tools
