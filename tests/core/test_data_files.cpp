// SPDX-License-Identifier: GPL-3.0-or-later
// The data files: whole-file reading and writing, the tagged-line lookup,
// Settings.txt, Sprachen.txt, the word list and the letter values.

#include "data/file_contents.h"
#include "data/file_helpers.h"
#include "data/language_file.h"
#include "data/large_array.h"
#include "data/line_ends.h"
#include "data/settings_file.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "display/result_texts.h"
#include "engine/letter_values.h"
#include "support/address_space.h"
#include "support/temp_folder.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <malloc.h>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

namespace fs = std::filesystem;
using testing::CurrentFolder;
using testing::TempFolder;

TEST(DateiLesen, DecodesTheBytesAndLeavesAnAbsentFileBehindEmpty) {
    TempFolder folder;
    folder.write("a.txt", std::string("\xC4pfel\r\nGr\xF6\337e\0\x80\n", 15));
    EXPECT_EQ(DateiLesen(folder / "a.txt"), std::u16string(u"Äpfel\r\nGröße\0€\n", 15));
    EXPECT_EQ(DateiLesen(folder / "a.txt", 3), u"Äpf"); // the word list's size limit
    EXPECT_EQ(DateiLesen(folder / "DB1.txt"), u"");
    EXPECT_TRUE(fs::is_regular_file(folder / "DB1.txt"));
    EXPECT_EQ(folder.read("DB1.txt"), "");
    // A folder in its place, or a missing parent: empty text, nothing created.
    fs::create_directory(folder / "dir");
    EXPECT_EQ(DateiLesen(folder / "dir"), u"");
    EXPECT_EQ(DateiLesen(folder / "missing" / "a.txt"), u"");
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

TEST(DateiSchreiben, ReplacesTheContentInWindows1252AndFailsSilently) {
    TempFolder folder;
    const std::pair<std::u16string, std::string> cases[] = {{u"Größe €", "Gr\xF6\337e \x80"},
                                                            {u"a\r\nb\n", "a\r\nb\n"},
                                                            {u"Łódź", "?\xF3\144?"},
                                                            {u"", ""}};
    for (const auto& [content, bytes] : cases) {
        folder.write("out.txt", "older and longer content");
        DateiSchreiben(content, folder / "out.txt");
        EXPECT_EQ(folder.read("out.txt"), bytes) << toUtf8(content);
    }
    DateiSchreiben(u"x", folder / "missing" / "a.txt");
    EXPECT_FALSE(fs::exists(folder / "missing"));
    fs::create_directory(folder / "dir");
    DateiSchreiben(u"x", folder / "dir");
    EXPECT_TRUE(fs::is_directory(folder / "dir"));
    EXPECT_TRUE(DateiExistiert(folder / "dir"));
    EXPECT_TRUE(DateiExistiert(folder / "out.txt"));
    EXPECT_FALSE(DateiExistiert(folder / "absent.txt"));
    EXPECT_FALSE(fs::exists(folder / "absent.txt"));
}

TEST(WiederholtErsetzen, ReplacesUntilNoOccurrenceIsLeft) {
    // clang-format off
    const std::tuple<std::u16string, std::u16string, std::u16string, std::u16string> cases[] = {
        {u"a\t\t\tb",             u"\t\t",     u"\t",   u"a\tb"},
        {u"a" + std::u16string(9, u'\t') + u"b", u"\t\t", u"\t", u"a\tb"},
        {u"\t\t\tx\t\ty\t",       u"\t\t",     u"\t",   u"\tx\ty\t"},
        {u"a\r\n\r\n\r\n\r\nb",   u"\r\n\r\n", u"\r\n", u"a\r\nb"},
        {u"a\n\n\nb",             u"\r\n\r\n", u"\r\n", u"a\n\n\nb"},
        {u"xAx",                  u"a",        u"",     u"xAx"},
        {u"abbb",                 u"ab",       u"a",    u"a"},
        {u"abc",                  u"",         u"x",    u"abc"},
        {u"a-a",                  u"a",        u"aa",   u"aa-aa"},
    };
    // clang-format on
    for (const auto& [text, search, replacement, expected] : cases)
        EXPECT_EQ(WiederholtErsetzen(text, search, replacement), expected) << toUtf8(text);
}

TEST(TaggedLines, TheValueIsTheFirstFieldAfterTheKey) {
    // clang-format off
    const std::tuple<const char*, std::u16string, std::u16string, std::u16string> cases[] = {
        {"collapsed line",                 u"[Language]", u"[Language]\t1\r\n",         u"1"},
        {"uncollapsed: empty first field", u"[Language]", u"[Language]\t\t1\r\n",       u""},
        {"key case matters",               u"[language]", u"[Language]\t1\r\n",         u""},
        {"first of two lines wins",        u"[A]",  u"[A]\tfirst\r\n[A]\tsecond\r\n",   u"first"},
        {"first occurrence inside a value", u"[A]", u"[B]\tsee [A]\tinner\r\n[A]\treal", u"inner"},
        {"text before the TAB ignored",    u"[A]",  u"[A] junk\tvalue\r\n",             u"value"},
        {"blanks kept, further fields ignored", u"[A]", u"[A]\t v \ttwo\r\n",           u" v "},
        {"ENTER becomes CR LF",            u"[A]",  u"[A]\tone[ENTER]two[enter]\r\n",   u"one\r\ntwo[enter]"},
        {"key followed by line end",       u"[A]",  u"[A]\r\n\tvalue\r\n",              u""},
        {"key at the end of the text",     u"[A]",  u"x\t1\r\n[A]",                     u""},
        {"line without TAB",               u"[A]",  u"[A] value\r\n[B]\tother\r\n",     u""},
        {"value at the end of the text",   u"[A]",  u"[A]\tv",                          u"v"},
        {"LF-only lines run on",           u"[A]",  u"[A]\tx\n[B]\ty\r\n",              u"x\n[B]"},
        {"second occurrence ends value",   u"[A]",  u"[A]\tab[A]\tcd\r\n",              u"ab"},
        {"empty key",                      u"",     u"[A]\tv\r\n",                      u""},
        {"empty text",                     u"[A]",  u"",                                u""},
    };
    // clang-format on
    for (const auto& [name, key, text, expected] : cases)
        EXPECT_EQ(SchlüsselWertHolen(key, text), expected) << name;
}

TEST(SprachenDatenHolen, PicksTheLanguageColumnOfTheKeysLine) {
    const std::u16string lines = u"[A]vor\tHallo\tHello\r\n[B]\tZwei\tTwo\r\n";
    const std::pair<std::int16_t, std::u16string> columns[] = {
        {-32768, u""}, {-2, u""}, {-1, u"vor"}, {0, u"Hallo"},
        {1, u"Hello"}, {2, u""},  {32767, u""}};
    for (const auto& [index, expected] : columns)
        EXPECT_EQ(SprachenDatenHolen(u"[A]", lines, index), expected) << index;
    EXPECT_EQ(SprachenDatenHolen(u"[B]", lines, 1), u"Two");
    EXPECT_EQ(SprachenDatenHolen(u"[A]", u"[A]\tE[ENTER]Z\tO[ENTER]T\r\n", 1), u"O\r\nT");
}

TEST(MeldungLaden, ReadsTheFileCollapsedOnEveryCallAndCreatesNothing) {
    TempFolder folder;
    EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 0), u"");
    EXPECT_FALSE(fs::exists(folder / "Sprachen.txt"));
    const std::pair<std::string, std::u16string> cases[] = {
        {"[A]\t\tHallo\t\t\tHello\r\n", u"Hello"},
        {"[A]\t\tHello\r\n", u""},
        {"[B]\tx\r\n\r\n\r\n[A]\tGr\xF6\337e\tB\r\n", u"B"},
        {"\t\t\r\n\r\n\t", u""}};
    for (const auto& [file, expected] : cases) {
        folder.write("Sprachen.txt", file);
        EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 1), expected) << file;
        EXPECT_EQ(folder.read("Sprachen.txt"), file);
    }
}

constexpr const char* kDefaultSettings = "[Language]\t\t0\r\n";

TEST(SettingsLaden, ReadsTheLanguageIndexAndRewritesOnlyWhenItIsMissing) {
    // clang-format off
    const std::tuple<const char*, std::optional<std::string>, std::int16_t, bool> cases[] = {
        {"no file",                     std::nullopt,                          0,  true},
        {"key, one TAB, 2",             "[Language]\t2\r\n",                    2,  false},
        {"key, three TABs, 3",          "[Language]\t\t\t3",                    3,  false},
        {"blank lines and other keys",  "[Other]\t5\r\n\r\n\r\n[Language]\t4\r\n", 4, false},
        {"1.5 rounds to 2",             "[Language]\t1.5\r\n",                  2,  false},
        {"2.5 rounds to 2",             "[Language]\t2.5\r\n",                  2,  false},
        {"negative",                    "[Language]\t-1\r\n",                   -1, false},
        {"not a number",                "[Language]\tabc\r\n",                  0,  false},
        {"beyond 16 bits",              "[Language]\t32768\r\n",                0,  false},
        {"zero-length file",            "",                                     0,  false},
        {"only TABs and line ends",     "\t\t\r\n\r\n\t\r\n",                  0,  false},
        {"lone LF and CR are text",     "\n\r",                                 0,  true},
        {"key in lower case",           "[language]\t\t2\r\n",                  0,  true},
        {"blank instead of TAB",        "[Language] 2\r\n",                     0,  true},
        {"nothing after the TAB",       "[Language]\t\r\n",                     0,  true},
        {"key at the very end",         "[Other]\t5\r\n[Language]",             0,  true},
    };
    // clang-format on
    for (const auto& [name, file, language, rewritten] : cases) {
        SCOPED_TRACE(name);
        TempFolder folder;
        if (file)
            folder.write("Settings.txt", *file);
        EXPECT_EQ(SettingsLaden(folder.path()), language);
        EXPECT_EQ(folder.read("Settings.txt"), rewritten ? kDefaultSettings : *file);
    }
}

TEST(DatenbankEinlesen, CutsTheFileAtEveryCrLf) {
    // clang-format off
    const std::tuple<std::string, std::vector<std::u16string>> cases[] = {
        {"Haus\r\nBaum\r\nT\xFCr\r\n",   {u"Haus", u"Baum", u"Tür", u""}},
        {"Haus\r\nBaum\r\nT\xFCr",       {u"Haus", u"Baum", u"Tür"}},
        {"Haus",                         {u"Haus"}},
        {"a\r\n\r\n Gr\xFCne Wiese \r\n", {u"a", u"", u" Grüne Wiese ", u""}},
        {"a\nb\rc\n",                    {u"a\nb\rc\n"}},
        {"a\r\r\nb",                     {u"a\r", u"b"}},
        {"\r\n",                         {u"", u""}},
        {"",                             {}},
    };
    // clang-format on
    TempFolder folder;
    const CurrentFolder here(folder.path());
    for (const auto& [bytes, expected] : cases) {
        folder.write("DB1.txt", bytes);
        const WordDatabase list = DatenbankEinlesen("DB1.txt");
        std::vector<std::u16string> words;
        for (std::size_t i = 0; i < list.size(); ++i)
            words.emplace_back(list[i]);
        EXPECT_EQ(words, expected) << bytes;
        EXPECT_EQ(list.highestIndex(), static_cast<std::int64_t>(words.size()) - 1);
    }
}

// The list is cut 64 bytes at a time: line ends across a block's edge, runs
// of CR and LF, and the bytes after the last block, against splitAtCrLf.
TEST(DatenbankEinlesen, CutsLongFilesLikeThePlainSplit) {
    TempFolder folder;
    std::mt19937 random(64);
    for (int round = 0; round < 200; ++round) {
        std::string bytes(random() % 400, 'a');
        for (char& byte : bytes)
            byte = "\r\na\xE4"[random() % 4];
        folder.write("DB1.txt", bytes);
        const WordDatabase list = DatenbankEinlesen(folder / "DB1.txt");
        const std::u16string text = decodeWindows1252(bytes);
        const std::vector<std::u16string_view> expected = splitAtCrLf(text);
        ASSERT_EQ(list.size(), expected.size()) << bytes.size();
        for (std::size_t i = 0; i < list.size(); ++i)
            ASSERT_EQ(list[i], expected[i]) << "entry " << i << " of " << bytes.size() << " bytes";
    }
}

// A character Windows-1252 lacks takes a byte the text leaves free, down to
// the last one (byte 0 here), never CR or LF; with none left the list is empty.
TEST(WordDatabase, CharactersOutsideTheCodePageTakeFreeBytesToTheLast) {
    std::u16string everyOther;
    for (unsigned b = 1; b < 256; ++b) {
        if (b != '\r' && b != '\n')
            everyOther += windows1252Characters()[b];
    }
    const std::u16string text = everyOther + u"\r\n\u4E00\r\n";
    const WordDatabase list(text);
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0], everyOther);
    EXPECT_EQ(list[1], u"\u4E00");
    EXPECT_TRUE(WordDatabase(text + u"\u4E01").empty());
    // Without a line end in the text, CR and LF are still kept for themselves:
    // the 11th and 14th such characters must not become a line end.
    std::u16string fourteen;
    for (char16_t c = u'\u4E00'; c < u'\u4E0E'; ++c)
        fourteen += c;
    EXPECT_EQ(WordDatabase(fourteen + u"\u4E0D\u4E0A").size(), 1u);
}

TEST(LineEnds, VectorCodeFindsWhatThePlainLoopFinds) {
    std::mt19937 random(64);
    const char kinds[] = {'\r', '\n', 'a', '\0', '\xFF', '\x8D'};
    for (int round = 0; round < 2000; ++round) {
        std::array<char, 64> block{};
        for (char& c : block)
            c = kinds[random() % std::size(kinds)];
        ASSERT_EQ(lineBytes(block.data()), lineBytesPlain(block.data())) << round;
    }
    // Counted 16 bytes at a time in byte counters summed every 255 vectors:
    // lengths around those steps, and texts of nothing but line feeds.
    for (const std::size_t size : {0, 15, 16, 17, 4079, 4080, 4081, 4096, 8161, 20000}) {
        std::string text(size, '\n');
        ASSERT_EQ(countLineFeeds(text), size);
        for (char& c : text)
            c = kinds[random() % std::size(kinds)];
        ASSERT_EQ(countLineFeeds(text), countLineFeedsPlain(text)) << size;
    }
}

TEST(ReplaceFile, SaysWhetherTheNewContentIsInPlace) {
    TempFolder folder;
    folder.write("out.txt", "old");
    EXPECT_TRUE(replaceFile(u"neu", folder / "out.txt"));
    EXPECT_EQ(folder.read("out.txt"), "neu");
    EXPECT_FALSE(replaceFile(u"x", folder / "missing" / "a.txt"));
    fs::create_directory(folder / "dir");
    EXPECT_FALSE(replaceFile(u"x", folder / "dir"));
    EXPECT_TRUE(fs::is_directory(folder / "dir"));
    EXPECT_FALSE(fs::exists(folder / "dir.new"));
}

// A file that holds less than its size says, as the kernel's attribute files
// do (and as a file shortened during the read would): what it holds, no wait.
TEST(FileContents, FileShorterThanItsSizeReadsAsWhatItHolds) {
    const fs::path online = "/sys/devices/system/cpu/online";
    if (!fs::exists(online) || fs::file_size(online) <= 64)
        GTEST_SKIP() << "no kernel attribute file to read";
    const FileContents contents = readFileContents(online);
    EXPECT_FALSE(contents.bytes().empty());
    EXPECT_LT(contents.bytes().size(), fs::file_size(online));
    EXPECT_TRUE(contents.bytes().ends_with('\n'));
}

TEST(LargeArray, GivesBackEveryByteItTakes) {
    // What the program has mapped, and what the allocator holds for it.
    const auto held = [] {
        return std::pair{testing::addressSpaceInUse(), mallinfo2().uordblks};
    };
    const auto before = held();
    // From the allocator, a mapping of its own, huge-page aligned, with a tail.
    for (const std::size_t size : {std::size_t{10}, std::size_t{100} << 10, std::size_t{4} << 20,
                                   (std::size_t{5} << 20) + 1}) {
        for (int round = 0; round < 20; ++round) {
            LargeArray<char> array(size, round % 2 == 0 ? Pages::Present : Pages::OnFirstWrite);
            array[size - 1] = 'x';
        }
    }
    EXPECT_EQ(held(), before);
}

TEST(DatenbankEinlesen, YieldsOnceAfterReadingAndShowsTheGroupedCount) {
    TempFolder folder;
    int yields = 0;
    EXPECT_TRUE(DatenbankEinlesen(folder / "DB1.txt", [&] { ++yields; }).empty());
    EXPECT_EQ(folder.read("DB1.txt"), ""); // the absent file is left behind
    folder.write("DB1.txt", "alt\r\n");
    const WordDatabase list = DatenbankEinlesen(folder / "DB1.txt", [&] {
        ++yields;
        folder.write("DB1.txt", "neu\r\nneu\r\nneu\r\n"); // too late: already read
    });
    EXPECT_EQ(yields, 2);
    EXPECT_EQ(list.highestIndex(), 1);
    // The list is the program's own copy: emptying the file changes nothing.
    folder.write("DB1.txt", "");
    EXPECT_EQ(list[0], u"alt");
    EXPECT_EQ(databaseCountText(1234, u'.'), u"gesamte Datenbank: \r\n1.234 Einträge");
    EXPECT_EQ(databaseCountText(0, u'.'), u"gesamte Datenbank: \r\n Einträge");
}

// Every entry of the table that holds something other than 0, by character.
std::map<char16_t, double> nonZeroEntries(const LetterValueTable& table) {
    std::map<char16_t, double> entries;
    for (unsigned b = 0; b < 256; ++b) {
        if (table[static_cast<unsigned char>(b)] != 0)
            entries[decodeWindows1252(std::string(1, static_cast<char>(b)))[0]] =
                table[static_cast<unsigned char>(b)];
    }
    return entries;
}

TEST(LetterValues, EachLineFillsTheEntryOfItsUpperCasedLetter) {
    // clang-format off
    const std::tuple<const char*, std::u16string, std::u16string, std::map<char16_t, double>> cases[] = {
        {"line for line",                u"E\r\nN\r\nQ\r\n",  u"1\r\n1\r\n10\r\n",  {{u'E', 1}, {u'N', 1}, {u'Q', 10}}},
        {"later line wins, any case",    u"a\r\nA\r\nB\r\nb", u"1\r\n3\r\n3\r\n1",  {{u'A', 3}, {u'B', 1}}},
        {"empty line keeps numbering",   u"A\r\n\r\nB\r\n",   u"1\r\n2\r\n3\r\n4",  {{u'A', 1}, {u'B', 3}}},
        {"ä fills Ä, ß its own entry",   u"ä\r\nß\r\ns",      u"6\r\n7\r\n1",       {{u'Ä', 6}, {u'ß', 7}, {u'S', 1}}},
        {"only the first character",     u"Qu",               u"10",                {{u'Q', 10}}},
        {"missing value keeps earlier",  u"B\r\nA\r\nB",      u"2\r\n1",            {{u'A', 1}, {u'B', 2}}},
        {"overflow keeps the earlier",   u"A\r\nA\r\nB",      u"5\r\n1e400\r\n&H" + std::u16string(300, u'F'), {{u'A', 5}}},
        {"not a number sets 0",          u"A\r\nA",           u"5\r\nx",            {}},
        {"numbers as in every field",    u"A\r\nB\r\nC",      u" 1 . 5\r\n-2\r\n&H10", {{u'A', 1.5}, {u'B', -2}, {u'C', 16}}},
        {"LF-only files are one line",   u"A\nB\n",           u"1\n2\n",            {{u'A', 12}}},
        {"no values",                    u"A\r\nB",           u"",                  {}},
    };
    // clang-format on
    for (const auto& [name, letters, values, expected] : cases)
        EXPECT_EQ(nonZeroEntries(letterValuesFromTexts(letters, values)), expected) << name;
}

TEST(WortBewertung, SumsLetterValuesAndRoundsHalfToEven) {
    const LetterValueTable table = letterValuesFromTexts(
        u"A\r\nB\r\nä\r\nß\r\nH\r\nL\r\nZ\r\nN\r\nW", u"1.5\r\n2.5\r\n6\r\n3\r\n0.5\r\n1.5\r\n"
                                                      u"20000\r\n-20000\r\n32767");
    const std::pair<std::u16string, std::int16_t> cases[] = {
        {u"", 0},   {u"aB", 4}, {u"H", 0},     {u"L", 2},    {u"HHH", 2},    {u"HHHHH", 2},
        {u"ä", 6},  {u"ß", 3},  {u"SS", 0},    {u"A-1B", 4}, {u"é?", 0},     {u"Z", 20000},
        {u"ZZ", 0}, {u"NN", 0}, {u"W", 32767}, {u"WH", 0},   {u"WHN", 12768}};
    for (const auto& [word, value] : cases)
        EXPECT_EQ(WortBewertung(table, word), value) << toUtf8(word);
}

TEST(BewertungsFeldLaden, ReadsBothFilesFromTheCurrentFolderOrLeavesThemEmpty) {
    TempFolder folder;
    const CurrentFolder here(folder.path());
    folder.write("Bewertung1.txt", "E\r\n\xE4\r\nB\r\n");
    EXPECT_EQ(WortBewertung(BewertungsFeldLaden(), u"Bär"), 0); // no value file yet
    EXPECT_EQ(folder.read("Bewertung2.txt"), "");
    folder.write("Bewertung2.txt", "1\r\n6\r\n3\r\n");
    EXPECT_EQ(WortBewertung(BewertungsFeldLaden(), u"Bär"), 9);
    fs::remove(folder / "Bewertung1.txt");
    EXPECT_EQ(WortBewertung(BewertungsFeldLaden(), u"Bär"), 0);
    EXPECT_EQ(folder.read("Bewertung1.txt"), "");
}

} // namespace
} // namespace lettriner
