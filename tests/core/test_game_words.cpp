// The data tool: the game's word list from a general German list, and the
// small tables shipped beside it.

#include "data/language_file.h"
#include "data/settings_file.h"
#include "data/text_codec.h"
#include "data/word_database.h"
#include "engine/letter_values.h"
#include "support/temp_folder.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lettriner::tools {
namespace {

using Words = std::vector<std::u16string>;

TEST(GameWords, KeepsOnlyGameWordsOncePerUpperCaseForm) {
    const std::pair<std::string, Words> cases[] = {
        {"Haus\r\nbaum\nZebra", {u"Haus", u"baum", u"Zebra"}},
        {"\xC3\x84pfel\n\xC3\xB6lig\n\xC3\234bel\n", {u"Äpfel", u"ölig", u"Übel"}},
        {"A4\nE-Mail\nGeorge's\nzwei W\xC3\xB6rter\nHa\rus\nHa\xFFus\nHaus\n", {u"Haus"}},
        {"ABC\nUSA\n\xC3\x84\xC3\x96\nA\nx\nGmbH\n", {u"A", u"x", u"GmbH"}},
        {"Stra\xC3\237e\nMasse\nma\xC3\237e\nHaus\nhaus\n\n", {u"Strasse", u"Masse", u"Haus"}},
        {"", {}},
    };
    for (const auto& [list, words] : cases)
        EXPECT_EQ(gameWords(list), words) << list;
}

TEST(WordFileBytes, ReadBackByTheProgramAsTheWordsAndOneEmptyEntry) {
    const std::string bytes = wordFileBytes({u"Äpfel", u"über"});
    EXPECT_EQ(bytes, "\xC4pfel\r\n\374ber\r\n");
    const WordDatabase list(decodeWindows1252(bytes));
    EXPECT_EQ(list.highestIndex(), 2);
    EXPECT_EQ(std::u16string(list[1]) + std::u16string(list[2]), u"über");
}

TEST(ShippedTables, LetterValuesMessagesAndSettingsReadBackAsMeant) {
    const LetterValueTable values = letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                          decodeWindows1252(valueFileBytes()));
    EXPECT_EQ(WortBewertung(values, u"ENSIRTUAD HGLO MBWZ CFKP ÄJÜV ÖX QY"),
              9 * 1 + 4 * 2 + 4 * 3 + 4 * 4 + 4 * 6 + 2 * 8 + 2 * 10);
    EXPECT_EQ(WortBewertung(values, u"ß"), 0); // no ß tile

    testing::TempFolder folder;
    folder.write("Sprachen.txt", messageFileBytes());
    EXPECT_EQ(MeldungLaden(folder.path(), u"[Suchen]", 0), u"Suchen");
    EXPECT_EQ(MeldungLaden(folder.path(), u"[Bonus]", 1),
              u"These words use every tile.\r\nThey earn a bonus.");
    folder.write("Settings.txt", settingsFileBytes());
    EXPECT_EQ(SettingsLaden(folder.path()), 0);
    EXPECT_EQ(folder.read("Settings.txt"), settingsFileBytes());
    SettingsSpeichern(folder.path(), 0);
    EXPECT_EQ(folder.read("Settings.txt"), settingsFileBytes());
}

} // namespace
} // namespace lettriner::tools
