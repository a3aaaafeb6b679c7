// Whole-file reading and writing, collapsing separators and the tagged-line lookup.

#include "data/file_helpers.h"
#include "data/text_codec.h"
#include "support/temp_folder.h"
#include "support/u16_printing.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace lettriner {
namespace {

namespace fs = std::filesystem;
using testing::TempFolder;

// ---- DateiLesen, DateiSchreiben, DateiExistiert ----

TEST(DateiLesen, DecodesEveryByteOfTheFile) {
    TempFolder folder;
    folder.write("a.txt", std::string("\xC4pfel\r\nGr\xF6\xDF"
                                      "e\0\x80\n",
                                      15));
    EXPECT_EQ(DateiLesen(folder / "a.txt"), std::u16string(u"Äpfel\r\nGröße\0€\n", 15));
    folder.write("empty.txt", "");
    EXPECT_EQ(DateiLesen(folder / "empty.txt"), u"");
}

TEST(DateiLesen, AbsentFileGivesEmptyTextAndIsLeftBehindEmpty) {
    TempFolder folder;
    EXPECT_EQ(DateiLesen(folder / "DB1.txt"), u"");
    ASSERT_TRUE(fs::is_regular_file(folder / "DB1.txt"));
    EXPECT_EQ(fs::file_size(folder / "DB1.txt"), 0u);
}

TEST(DateiLesen, FolderOrMissingParentGivesEmptyText) {
    TempFolder folder;
    fs::create_directory(folder / "Settings.txt");
    EXPECT_EQ(DateiLesen(folder / "Settings.txt"), u"");
    EXPECT_TRUE(fs::is_directory(folder / "Settings.txt"));
    EXPECT_TRUE(DateiExistiert(folder / "Settings.txt"));

    EXPECT_EQ(DateiLesen(folder / "missing" / "a.txt"), u"");
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

TEST(DateiSchreiben, WritesContentToPathAsWindows1252) {
    struct Case {
        const char* name;
        std::u16string content;
        std::string bytes;
    };
    // clang-format off
    const Case cases[] = {
        {"umlauts and euro, no line end added", u"Größe €",     "Gr\xF6\xDF" "e \x80"},
        {"line ends written as given",          u"a\r\nb\n",    "a\r\nb\n"},
        {"character without code",              u"Łódź",        "?\xF3" "d?"},
        {"empty content",                       u"",            ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempFolder folder;
        folder.write("out.txt", "older and longer content");
        DateiSchreiben(c.content, folder / "out.txt");
        EXPECT_EQ(folder.read("out.txt"), c.bytes);
    }
}

TEST(DateiSchreiben, EveryCodeReadsBack) {
    TempFolder folder;
    std::string bytes;
    for (int b = 0; b < 256; ++b)
        bytes += static_cast<char>(b);
    const std::u16string all = decodeWindows1252(bytes);
    DateiSchreiben(all, folder / "all.txt");
    EXPECT_EQ(folder.read("all.txt"), bytes);
    EXPECT_EQ(DateiLesen(folder / "all.txt"), all);
}

TEST(DateiSchreiben, FailuresAreSilent) {
    TempFolder folder;
    DateiSchreiben(u"x", folder / "missing" / "a.txt");
    EXPECT_FALSE(fs::exists(folder / "missing"));
    fs::create_directory(folder / "dir");
    DateiSchreiben(u"x", folder / "dir");
    EXPECT_TRUE(fs::is_directory(folder / "dir"));
}

TEST(DateiExistiert, FilesAndFoldersExistAndTheTestCreatesNothing) {
    TempFolder folder;
    folder.write("file.txt", "");
    fs::create_directory(folder / "dir");
    EXPECT_TRUE(DateiExistiert(folder / "file.txt"));
    EXPECT_TRUE(DateiExistiert(folder / "dir"));
    EXPECT_FALSE(DateiExistiert(folder / "absent.txt"));
    EXPECT_FALSE(fs::exists(folder / "absent.txt"));
    EXPECT_FALSE(DateiExistiert(fs::path()));
}

// ---- WiederholtErsetzen ----

TEST(WiederholtErsetzen, ReplacesUntilNoOccurrenceIsLeft) {
    struct Case {
        const char* name;
        std::u16string text, search, replacement, expected;
    };
    // clang-format off
    const Case cases[] = {
        {"two TABs",                u"a\t\tb",             u"\t\t",       u"\t",   u"a\tb"},
        {"three TABs",              u"a\t\t\tb",           u"\t\t",       u"\t",   u"a\tb"},
        {"nine TABs",               u"a" + std::u16string(9, u'\t') + u"b", u"\t\t", u"\t", u"a\tb"},
        {"separate runs",           u"\t\t\tx\t\ty\t",     u"\t\t",       u"\t",   u"\tx\ty\t"},
        {"four line ends",          u"a\r\n\r\n\r\n\r\nb", u"\r\n\r\n",   u"\r\n", u"a\r\nb"},
        {"three line ends",         u"\r\n\r\n\r\n",       u"\r\n\r\n",   u"\r\n", u"\r\n"},
        {"lone LFs are no line end", u"a\n\n\nb",          u"\r\n\r\n",   u"\r\n", u"a\n\n\nb"},
        {"empty text",              u"",                   u"\t\t",       u"\t",   u""},
        {"search absent",           u"abc",                u"\t\t",       u"\t",   u"abc"},
        {"case-sensitive",          u"xAx",                u"a",          u"",     u"xAx"},
        {"new occurrences replaced", u"abbb",              u"ab",         u"a",    u"a"},
        {"empty search",            u"abc",                u"",           u"x",    u"abc"},
        {"replacement holds search", u"a-a",               u"a",          u"aa",   u"aa-aa"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(WiederholtErsetzen(c.text, c.search, c.replacement), c.expected);
    }
}

// ---- SchlüsselWertHolen and taggedField ----

TEST(SchluesselWertHolen, FindsTheFirstFieldAfterTheKey) {
    struct Case {
        const char* name;
        std::u16string key, text, expected;
    };
    // clang-format off
    const Case cases[] = {
        {"collapsed line",                 u"[Language]", u"[Language]\t1\r\n",         u"1"},
        {"uncollapsed: empty first field", u"[Language]", u"[Language]\t\t1\r\n",       u""},
        {"key case matters",               u"[language]", u"[Language]\t1\r\n",         u""},
        {"first of two lines wins",        u"[A]",  u"[A]\tfirst\r\n[A]\tsecond\r\n",   u"first"},
        {"first occurrence inside a value", u"[A]", u"[B]\tsee [A]\tinner\r\n[A]\treal\r\n", u"inner"},
        {"text before the TAB ignored",    u"[A]",  u"[A] junk\tvalue\r\n",             u"value"},
        {"blanks kept",                    u"[A]",  u"[A]\t value \r\n",                u" value "},
        {"further fields ignored",         u"[A]",  u"[A]\tone\ttwo\r\n",               u"one"},
        {"ENTER becomes CR LF",            u"[A]",  u"[A]\tone[ENTER]two\r\n",          u"one\r\ntwo"},
        {"ENTER in lower case stays",      u"[A]",  u"[A]\tone[enter]two\r\n",          u"one[enter]two"},
        {"key followed by line end",       u"[A]",  u"[A]\r\n\tvalue\r\n",              u""},
        {"key at the end of the text",     u"[A]",  u"x\t1\r\n[A]",                     u""},
        {"line without TAB",               u"[A]",  u"[A] value\r\n[B]\tother\r\n",     u""},
        {"key, TAB, line end",             u"[A]",  u"[A]\t\r\n[B]\tb\r\n",             u""},
        {"value at the end of the text",   u"[A]",  u"[A]\tv",                          u"v"},
        {"LF-only lines run on",           u"[A]",  u"[A]\tx\n[B]\ty\r\n",              u"x\n[B]"},
        {"lone CR stays in the value",     u"[A]",  u"[A]\tv\rw\r\n",                   u"v\rw"},
        {"second occurrence ends value",   u"[A]",  u"[A]\tab[A]\tcd\r\n",              u"ab"},
        {"key twice in a row",             u"[A]",  u"[A][A]\tv\r\n",                   u""},
        {"key absent",                     u"[B]",  u"[A]\tv\r\n",                      u""},
        {"empty key",                      u"",     u"[A]\tv\r\n",                      u""},
        {"empty text",                     u"[A]",  u"",                                u""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(SchlüsselWertHolen(c.key, c.text), c.expected);
    }
}

TEST(TaggedField, NumbersFieldsFromTheKey) {
    const std::u16string text = u"[A]pre\tone\ttwo[ENTER]2\r\n[B]\tb\r\n";
    struct Case {
        long field;
        std::u16string expected;
    };
    const Case cases[] = {{-1, u""}, {0, u"pre"}, {1, u"one"}, {2, u"two\r\n2"}, {3, u""}};
    for (const Case& c : cases)
        EXPECT_EQ(taggedField(u"[A]", text, c.field), c.expected) << "field " << c.field;
}

TEST(ReadCollapsedTaggedFile, CollapsesAndLeavesAnAbsentFileAbsent) {
    TempFolder folder;
    EXPECT_EQ(readCollapsedTaggedFile(folder / "x.txt"), std::nullopt);
    EXPECT_FALSE(folder.exists("x.txt"));

    folder.write("x.txt", "[A]\t\t\tx\r\n\r\n\r\n[B]\ty\xE4");
    EXPECT_EQ(readCollapsedTaggedFile(folder / "x.txt"), std::u16string(u"[A]\tx\r\n[B]\tyä"));
    folder.write("x.txt", "");
    EXPECT_EQ(readCollapsedTaggedFile(folder / "x.txt"), std::u16string());
}

} // namespace
} // namespace lettriner
