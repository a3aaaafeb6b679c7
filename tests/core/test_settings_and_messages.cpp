// Settings.txt (the language index) and Sprachen.txt (messages by key and language).

#include "data/language_file.h"
#include "data/settings_file.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace lettriner {
namespace {

namespace fs = std::filesystem;
using testing::TempFolder;

constexpr const char* kDefaultSettings = "[Language]\t\t0\r\n";

// ---- Settings.txt ----

TEST(SettingsLaden, ReadsTheLanguageIndexAndRewritesOnlyWhenItIsMissing) {
    struct Case {
        const char* name;
        std::optional<std::string> file; // nullopt: no Settings.txt
        std::int16_t language;
        bool rewritten; // with the default line; otherwise the file is left as it was
    };
    // clang-format off
    const Case cases[] = {
        {"no file",                     std::nullopt,                          0,  true},
        {"key, one TAB, 2",             "[Language]\t2\r\n",                    2,  false},
        {"key, three TABs, 3",          "[Language]\t\t\t3\r\n",                3,  false},
        {"no final line end",           "[Language]\t\t1",                      1,  false},
        {"blank lines and other keys",  "[Other]\t5\r\n\r\n\r\n[Language]\t4\r\n", 4, false},
        {"blanks around the value",     "[Language]\t 7 \r\n",                  7,  false},
        {"1.5 rounds to 2",             "[Language]\t1.5\r\n",                  2,  false},
        {"2.5 rounds to 2",             "[Language]\t2.5\r\n",                  2,  false},
        {"negative",                    "[Language]\t-1\r\n",                   -1, false},
        {"not a number",                "[Language]\tabc\r\n",                  0,  false},
        {"beyond 16 bits",              "[Language]\t32768\r\n",                0,  false},
        {"far beyond 16 bits",          "[Language]\t1e999\r\n",                0,  false},
        {"zero-length file",            "",                                     0,  false},
        {"only TABs and line ends",     "\t\t\r\n\r\n\t\r\n",                  0,  false},
        {"key in lower case",           "[language]\t\t2\r\n",                  0,  true},
        {"blank instead of TAB",        "[Language] 2\r\n",                     0,  true},
        {"nothing after the TAB",       "[Language]\t\r\n",                     0,  true},
        {"key at the very end",         "[Other]\t5\r\n[Language]",             0,  true},
        {"only another key",            "[Other]\t5\r\n",                       0,  true},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        if (c.file)
            folder.write("Settings.txt", *c.file);
        EXPECT_EQ(SettingsLaden(folder.path()), c.language);
        EXPECT_EQ(folder.read("Settings.txt"), c.rewritten ? kDefaultSettings : *c.file);
    }
}

TEST(SettingsLaden, FolderOrMissingProgramFolderGivesZero) {
    TempFolder folder;
    fs::create_directory(folder / "Settings.txt");
    EXPECT_EQ(SettingsLaden(folder.path()), 0);
    EXPECT_TRUE(fs::is_directory(folder / "Settings.txt"));

    EXPECT_EQ(SettingsLaden(folder / "missing"), 0);
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

TEST(SettingsSpeichern, WritesTheWholeFileWithTwoTabs) {
    struct Case {
        std::int16_t language;
        std::string bytes;
    };
    const Case cases[] = {{0, kDefaultSettings},
                          {2, "[Language]\t\t2\r\n"},
                          {-1, "[Language]\t\t-1\r\n"},
                          {32767, "[Language]\t\t32767\r\n"},
                          {-32768, "[Language]\t\t-32768\r\n"}};
    for (const Case& c : cases) {
        TempFolder folder;
        folder.write("Settings.txt", "[Other]\tlost\r\n[Language]\t\t9\r\n");
        SettingsSpeichern(folder.path(), c.language);
        EXPECT_EQ(folder.read("Settings.txt"), c.bytes);
        EXPECT_EQ(SettingsLaden(folder.path()), c.language);
    }
    EXPECT_EQ(settingsPath("prog"), fs::path("prog") / "Settings.txt");
}

// ---- Sprachen.txt ----

TEST(SprachenDatenHolen, PicksTheLanguageColumnOfTheKeysLine) {
    struct Case {
        const char* name;
        std::u16string key;
        std::u16string text; // already collapsed
        std::int16_t index;
        std::u16string expected;
    };
    const std::u16string line = u"[A]\tHallo\tHello\r\n[B]\tZwei\tTwo\r\n";
    // clang-format off
    const Case cases[] = {
        {"language 0",                u"[A]", line, 0,      u"Hallo"},
        {"language 1",                u"[A]", line, 1,      u"Hello"},
        {"no third column",           u"[A]", line, 2,      u""},
        {"second line",               u"[B]", line, 1,      u"Two"},
        {"index -1: empty field 0",   u"[A]", line, -1,     u""},
        {"index -1: text before TAB", u"[A]", u"[A]vor\tHallo\r\n", -1, u"vor"},
        {"index -2",                  u"[A]", u"[A]vor\tHallo\r\n", -2, u""},
        {"lowest index",              u"[A]", line, -32768, u""},
        {"highest index",             u"[A]", u"[A]vor\tHallo\r\n", 32767, u""},
        {"ENTER placeholder",         u"[A]", u"[A]\tEins[ENTER]Zwei\tOne[ENTER]Two\r\n", 1, u"One\r\nTwo"},
        {"lower-case placeholder",    u"[A]", u"[A]\tEins[enter]Zwei\r\n", 0, u"Eins[enter]Zwei"},
        {"key case matters",          u"[a]", line, 0,      u""},
        {"first of two lines",        u"[A]", u"[A]\teins\r\n[A]\tzwei\r\n", 0, u"eins"},
        {"LF-only lines run on",      u"[A]", u"[A]\tHallo\n[B]\tHello\n", 0, u"Hallo\n[B]"},
        {"LF-only, next column",      u"[A]", u"[A]\tHallo\n[B]\tHello\n", 1, u"Hello\n"},
        {"key followed by line end",  u"[A]", u"[A]\r\n\tHallo\r\n", 0, u""},
        {"key at the very end",       u"[A]", u"[B]\tZwei\r\n[A]",   -1, u""},
        {"empty key",                 u"",    line, 0,      u""},
        {"empty text",                u"[A]", u"",  0,      u""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(SprachenDatenHolen(c.key, c.text, c.index), c.expected);
    }
}

TEST(MeldungLaden, ReadsTheFileCollapsedOnEveryCall) {
    struct Case {
        const char* name;
        std::string file;
        std::u16string key;
        std::int16_t index;
        std::u16string expected;
    };
    // clang-format off
    const Case cases[] = {
        {"plain line",               "[A]\tHallo\tHello\r\n",         u"[A]", 1, u"Hello"},
        {"TAB runs count as one",    "[A]\t\tHallo\t\t\tHello\r\n",   u"[A]", 1, u"Hello"},
        {"empty column vanishes",    "[A]\t\tHello\r\n",              u"[A]", 0, u"Hello"},
        {"blank lines ignored",      "[A]\tx\r\n\r\n\r\n[B]\tZwei\r\n", u"[B]", 0, u"Zwei"},
        {"Windows-1252 text",        "[A]\tGr\xF6\xDF" "e\r\n",       u"[A]", 0, u"Größe"},
        {"empty file",               "",                              u"[A]", 0, u""},
        {"only TABs and line ends",  "\t\t\r\n\r\n\t",                u"[A]", 0, u""},
        {"key absent",               "[A]\tHallo\r\n",                u"[B]", 0, u""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        folder.write("Sprachen.txt", c.file);
        EXPECT_EQ(MeldungLaden(folder.path(), c.key, c.index), c.expected);
        EXPECT_EQ(folder.read("Sprachen.txt"), c.file);
    }
}

TEST(MeldungLaden, SeesEditsAndLeavesAMissingFileMissing) {
    TempFolder folder;
    EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 0), u"");
    EXPECT_FALSE(folder.exists("Sprachen.txt"));

    folder.write("Sprachen.txt", "[A]\talt\r\n");
    EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 0), u"alt");
    folder.write("Sprachen.txt", "[A]\tneu\r\n");
    EXPECT_EQ(MeldungLaden(folder.path(), u"[A]", 0), u"neu");
}

} // namespace
} // namespace lettriner
