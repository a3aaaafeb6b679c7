// The letter-value table from Bewertung1.txt / Bewertung2.txt and the value of a word.

#include "data/text_codec.h"
#include "data/utf8.h"
#include "engine/letter_values.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace lettriner {
namespace {

namespace fs = std::filesystem;
using testing::CurrentFolder;
using testing::TempFolder;

// Every entry of the table that holds something other than 0, by character.
std::map<char16_t, double> nonZeroEntries(const LetterValueTable& table) {
    std::string codes;
    for (int b = 0; b < 256; ++b)
        codes += static_cast<char>(b);
    const std::u16string characters = decodeWindows1252(codes);
    std::map<char16_t, double> entries;
    for (unsigned b = 0; b < 256; ++b) {
        if (table[static_cast<unsigned char>(b)] != 0)
            entries[characters[b]] = table[static_cast<unsigned char>(b)];
    }
    return entries;
}

TEST(LetterValuesFromTexts, FillsTheEntryOfEachLinesUpperCasedLetter) {
    struct Case {
        const char* name;
        std::u16string letters, values;
        std::map<char16_t, double> expected;
    };
    // clang-format off
    const Case cases[] = {
        {"line for line",                u"E\r\nN\r\nQ\r\n",  u"1\r\n1\r\n10\r\n",   {{u'E', 1}, {u'N', 1}, {u'Q', 10}}},
        {"lower case fills upper entry", u"e",                u"2",                  {{u'E', 2}}},
        {"later line wins (a then A)",   u"a\r\nA",           u"1\r\n3",             {{u'A', 3}}},
        {"later line wins (A then a)",   u"A\r\na",           u"3\r\n1",             {{u'A', 1}}},
        {"empty last line changes nothing", u"E\r\n",         u"1\r\n5",             {{u'E', 1}}},
        {"empty line keeps numbering",   u"A\r\n\r\nB",       u"1\r\n2\r\n3",        {{u'A', 1}, {u'B', 3}}},
        {"ä fills the entry of Ä",       u"ä",                u"6",                  {{u'Ä', 6}}},
        {"ß is an entry of its own",     u"ß\r\ns",           u"7\r\n1",             {{u'ß', 7}, {u'S', 1}}},
        {"only the first character",     u"Qu",               u"10",                 {{u'Q', 10}}},
        {"letter without value line",    u"A\r\nB",           u"1",                  {{u'A', 1}}},
        {"missing line keeps earlier",   u"B\r\nA\r\nB",      u"2\r\n1",             {{u'A', 1}, {u'B', 2}}},
        {"not a number sets 0",          u"A\r\nA",           u"5\r\nx",             {}},
        {"numbers as in every field",    u"A\r\nB\r\nC\r\nD", u" 1 . 5\r\n-2\r\n&H10\r\n2e1",
                                                              {{u'A', 1.5}, {u'B', -2}, {u'C', 16}, {u'D', 20}}},
        {"extra value lines ignored",    u"A",                u"1\r\n2\r\n3",        {{u'A', 1}}},
        {"LF-only files are one line",   u"A\nB\n",           u"1\n2\n",             {{u'A', 12}}},
        {"no letters",                   u"",                 u"1\r\n2",             {}},
        {"no values",                    u"A\r\nB",           u"",                   {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(nonZeroEntries(letterValuesFromTexts(c.letters, c.values)), c.expected);
    }
}

TEST(WortBewertung, SumsLetterValuesAndRoundsHalfToEven) {
    const LetterValueTable table = letterValuesFromTexts(
        u"A\r\nB\r\nä\r\nß\r\nH\r\nL\r\nZ\r\nN\r\nW\r\n",
        u"1.5\r\n2.5\r\n6\r\n3\r\n0.5\r\n1.5\r\n20000\r\n-20000\r\n32767\r\n");
    struct Case {
        std::u16string word;
        std::int16_t value;
    };
    // clang-format off
    const Case cases[] = {
        {u"", 0}, {u"AB", 4}, {u"ab", 4}, {u"aB", 4},
        {u"H", 0}, {u"L", 2}, {u"HHH", 2}, {u"HHHHH", 2},       // 0.5, 1.5, 1.5 and 2.5
        {u"Ä", 6}, {u"ä", 6}, {u"ß", 3}, {u"SS", 0},
        {u"A-1B", 4}, {u"é?", 0},                                // unlisted characters count 0
        {u"Z", 20000}, {u"ZZ", 0}, {u"N", -20000}, {u"NN", 0}, {u"NZ", 0},
        {u"W", 32767}, {u"WH", 0}, {u"WHN", 12768},             // 32767.5 rounds to 32768
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(WortBewertung(table, c.word), c.value) << toUtf8(c.word);
}

TEST(BewertungsFeldLaden, ReadsBothFilesAsWindows1252) {
    TempFolder folder;
    folder.write("Bewertung1.txt", "E\r\n\xE4\r\nB\r\n");
    folder.write("Bewertung2.txt", "1\r\n6\r\n3\r\n");
    const LetterValueTable table = BewertungsFeldLaden(folder.path());
    EXPECT_EQ(nonZeroEntries(table), (std::map<char16_t, double>{{u'E', 1}, {u'Ä', 6}, {u'B', 3}}));
    EXPECT_EQ(WortBewertung(table, u"Bär"), 9);
}

TEST(BewertungsFeldLaden, BareNamesAreReadFromTheCurrentFolder) {
    TempFolder folder;
    folder.write("Bewertung1.txt", "Q\r\n");
    folder.write("Bewertung2.txt", "10\r\n");
    const CurrentFolder inFolder(folder.path());
    EXPECT_EQ(WortBewertung(BewertungsFeldLaden(), u"q"), 10);
}

TEST(BewertungsFeldLaden, MissingFilesMakeEveryWordWorthZeroAndAreLeftEmpty) {
    struct Case {
        const char* name;
        bool letterFile, valueFile;
    };
    const Case cases[] = {{"both missing", false, false},
                          {"letter file missing", false, true},
                          {"value file missing", true, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        if (c.letterFile)
            folder.write("Bewertung1.txt", "E\r\nN\r\n");
        if (c.valueFile)
            folder.write("Bewertung2.txt", "1\r\n1\r\n");
        const LetterValueTable table = BewertungsFeldLaden(folder.path());
        EXPECT_EQ(nonZeroEntries(table), (std::map<char16_t, double>{}));
        EXPECT_EQ(WortBewertung(table, u"EN"), 0);
        EXPECT_EQ(folder.read("Bewertung1.txt"), c.letterFile ? "E\r\nN\r\n" : "");
        EXPECT_EQ(folder.read("Bewertung2.txt"), c.valueFile ? "1\r\n1\r\n" : "");
        EXPECT_TRUE(fs::is_regular_file(folder / "Bewertung1.txt"));
        EXPECT_TRUE(fs::is_regular_file(folder / "Bewertung2.txt"));
    }
}

} // namespace
} // namespace lettriner
