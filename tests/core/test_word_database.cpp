// The word list DB1.txt and its count label.

#include "data/word_database.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lettriner {
namespace {

namespace fs = std::filesystem;
using testing::CurrentFolder;
using testing::TempFolder;

std::vector<std::u16string> entries(const WordDatabase& words) {
    std::vector<std::u16string> list;
    for (std::size_t i = 0; i < words.size(); ++i)
        list.emplace_back(words[i]);
    return list;
}

TEST(DatenbankEinlesen, CutsTheFileAtEveryCrLf) {
    struct Case {
        const char* name;
        std::string bytes;
        std::vector<std::u16string> words;
        std::int64_t highestIndex;
    };
    // clang-format off
    const Case cases[] = {
        {"three words, final line end",   "Haus\r\nBaum\r\nT\xFCr\r\n", {u"Haus", u"Baum", u"Tür", u""}, 3},
        {"three words, no final line end", "Haus\r\nBaum\r\nT\xFCr",    {u"Haus", u"Baum", u"Tür"},      2},
        {"one word, no line end",          "Haus",                      {u"Haus"},                       0},
        {"empty line in the middle",       "a\r\n\r\nb\r\n",            {u"a", u"", u"b", u""},          3},
        {"case and blanks kept",           " Gr\xFCne Wiese \r\nABC\r\n", {u" Grüne Wiese ", u"ABC", u""}, 2},
        {"LF-only file is one entry",      "a\nb\nc\n",                 {u"a\nb\nc\n"},                  0},
        {"CR before the line end kept",    "a\r\r\nb",                  {u"a\r", u"b"},                  1},
        {"line end alone",                 "\r\n",                      {u"", u""},                      1},
        {"empty file",                     "",                          {},                              -1},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        folder.write("DB1.txt", c.bytes);
        const WordDatabase words = DatenbankEinlesen(folder / "DB1.txt");
        EXPECT_EQ(entries(words), c.words);
        EXPECT_EQ(words.highestIndex(), c.highestIndex);
        EXPECT_EQ(words.empty(), c.words.empty());
    }
}

TEST(DatenbankEinlesen, YieldsOnceBetweenReadingAndCutting) {
    TempFolder folder;
    folder.write("DB1.txt", "alt\r\n");
    int yields = 0;
    const WordDatabase words = DatenbankEinlesen(folder / "DB1.txt", [&] {
        ++yields;
        // Whatever happens during the yield, the text has already been read.
        folder.write("DB1.txt", "neu\r\nneu\r\n");
    });
    EXPECT_EQ(yields, 1);
    EXPECT_EQ(entries(words), (std::vector<std::u16string>{u"alt", u""}));
}

TEST(DatenbankEinlesen, AbsentFileGivesEmptyListAndIsLeftBehind) {
    TempFolder folder;
    int yields = 0;
    const WordDatabase words = DatenbankEinlesen(folder / "DB1.txt", [&] { ++yields; });
    EXPECT_EQ(yields, 1);
    EXPECT_TRUE(words.empty());
    EXPECT_EQ(words.highestIndex(), -1);
    ASSERT_TRUE(fs::is_regular_file(folder / "DB1.txt"));
    EXPECT_EQ(fs::file_size(folder / "DB1.txt"), 0u);
}

TEST(DatenbankEinlesen, BareNameIsReadFromTheCurrentFolder) {
    TempFolder folder;
    folder.write("DB1.txt", "Haus\r\n");
    const CurrentFolder inFolder(folder.path());
    EXPECT_EQ(entries(DatenbankEinlesen("DB1.txt")), (std::vector<std::u16string>{u"Haus", u""}));
}

TEST(DatenbankEinlesen, ThousandsOfWordsShowGroupedCount) {
    std::string bytes;
    for (int i = 0; i < 1234; ++i)
        bytes += "Wort" + std::to_string(i) + "\r\n";
    TempFolder folder;
    folder.write("DB1.txt", bytes);
    const WordDatabase words = DatenbankEinlesen(folder / "DB1.txt");
    ASSERT_EQ(words.size(), 1235u);
    EXPECT_EQ(words[0], u"Wort0");
    EXPECT_EQ(words[1233], u"Wort1233");
    EXPECT_EQ(databaseCountText(words.highestIndex(), u'.'),
              u"gesamte Datenbank: \r\n1.234 Einträge");
}

TEST(DatabaseCountText, TwoLinesWithTheGroupedHighestIndex) {
    struct Case {
        std::int64_t highestIndex;
        char16_t separator;
        std::u16string expected;
    };
    // clang-format off
    const Case cases[] = {
        {3,       u'.', u"gesamte Datenbank: \r\n3 Einträge"},
        {2,       u'.', u"gesamte Datenbank: \r\n2 Einträge"},
        {0,       u'.', u"gesamte Datenbank: \r\n Einträge"},
        {1234567, u'.', u"gesamte Datenbank: \r\n1.234.567 Einträge"},
        {1234,    u',', u"gesamte Datenbank: \r\n1,234 Einträge"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(databaseCountText(c.highestIndex, c.separator), c.expected) << c.highestIndex;
}

} // namespace
} // namespace lettriner
