// Code page, casing, numbers out of text, line cutting and number patterns.

#include "data/number_format.h"
#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"
#include "support/u16_printing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace lettriner {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

std::vector<std::u16string> owned(const std::vector<std::u16string_view>& pieces) {
    return {pieces.begin(), pieces.end()};
}

// ---- Windows-1252 ----

TEST(Windows1252, EveryByteReadsBackUnchanged) {
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    const std::u16string text = decodeWindows1252(all);
    ASSERT_EQ(text.size(), 256u);
    EXPECT_EQ(encodeWindows1252(text), all);
    for (unsigned b = 0; b < 256; ++b)
        EXPECT_EQ(windows1252Code(text[b]), b) << "byte " << b;
}

TEST(Windows1252, BytesAndCharactersPair) {
    struct Case {
        unsigned char byte;
        char16_t character;
    };
    // clang-format off
    const Case cases[] = {
        {0x00, 0x0000}, {0x0D, u'\r'}, {0x41, u'A'}, {0x7F, 0x007F},
        {0xC4, u'Ä'}, {0xD6, u'Ö'}, {0xDC, u'Ü'}, {0xE4, u'ä'}, {0xF6, u'ö'}, {0xFC, u'ü'},
        {0xDF, u'ß'}, {0xE9, u'é'}, {0xA0, 0x00A0}, {0xFF, u'ÿ'},
        {0x80, u'€'}, {0x82, u'‚'}, {0x84, u'„'}, {0x8A, u'Š'}, {0x8E, u'Ž'}, {0x93, u'“'},
        {0x96, u'–'}, {0x99, u'™'}, {0x9F, u'Ÿ'},
        // Left undefined by the code page: kept as C1 controls so files read back unchanged.
        {0x81, 0x0081}, {0x8D, 0x008D}, {0x8F, 0x008F}, {0x90, 0x0090}, {0x9D, 0x009D},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << "byte 0x" << std::hex << int{c.byte});
        EXPECT_EQ(decodeWindows1252(std::string(1, static_cast<char>(c.byte))),
                  std::u16string(1, c.character));
        EXPECT_EQ(windows1252Code(c.character), c.byte);
    }
}

TEST(Windows1252, CharactersWithoutCodeBecomeQuestionMark) {
    // U+0080 and U+009F are C1 controls whose bytes carry € and Ÿ instead.
    for (const char16_t c : {char16_t{0x0080}, char16_t{0x009F}, char16_t{0x0100}, u'Ł', u'ẞ',
                             char16_t{0x20AD}, char16_t{0xD800}, char16_t{0xFFFD}}) {
        EXPECT_EQ(windows1252Code(c), '?') << "U+" << std::hex << int{c};
    }
    EXPECT_EQ(encodeWindows1252(u"a€Łb"), "a\x80?b");
    EXPECT_EQ(encodeWindows1252(u""), "");
}

// ---- Casing ----

TEST(Casing, GermanLettersPairAndEverythingElseStays) {
    struct Case {
        char16_t lower;
        char16_t upper;
    };
    const Case pairs[] = {{u'a', u'A'}, {u'm', u'M'}, {u'z', u'Z'},
                          {u'ä', u'Ä'}, {u'ö', u'Ö'}, {u'ü', u'Ü'}};
    for (const Case& c : pairs) {
        EXPECT_EQ(toUpper(c.lower), c.upper);
        EXPECT_EQ(toLower(c.upper), c.lower);
        EXPECT_EQ(toUpper(c.upper), c.upper);
        EXPECT_EQ(toLower(c.lower), c.lower);
    }
    // Neighbours of the letter ranges, ß, and Latin-1 letters a plain +/-0x20 would break.
    for (const char16_t c : {u'@', u'[', u'`', u'{', u'1', u'-', u' ', u'ß', u'ẞ', u'é', u'É', u'à',
                             u'À', u'ÿ', u'÷', u'×', u'µ', u'€'}) {
        EXPECT_EQ(toUpper(c), c) << "U+" << std::hex << int{c};
        EXPECT_EQ(toLower(c), c) << "U+" << std::hex << int{c};
    }
}

TEST(Casing, WholeTextsKeepTheirLength) {
    EXPECT_EQ(toUpper(u"Straße äöü Café"), u"STRAßE ÄÖÜ CAFé");
    EXPECT_EQ(toLower(u"ÄRGER ÜBER ÖL É"), u"ärger über öl É");
    EXPECT_EQ(toUpper(u""), u"");
}

// ---- Numeric value of a text ----

TEST(NumericValue, ReadsTheLongestLeadingNumber) {
    struct Case {
        const char* name;
        std::u16string text;
        double expected;
    };
    // clang-format off
    const Case cases[] = {
        {"empty text",                    u"",         0},
        {"no number",                     u"abc",      0},
        {"digits",                        u"42",       42},
        {"letters end the number",        u"12abc",    12},
        {"blank inside digits skipped",   u"1 2",      12},
        {"tab and line feed skipped",     u"\t1\n2\t", 12},
        {"carriage return ends it",       u"1\r2",     1},
        {"comma ends it",                 u"1,5",      1},
        {"plus sign",                     u"+5",       5},
        {"minus sign",                    u"-5",       -5},
        {"blank after sign",              u"- 5",      -5},
        {"two signs",                     u"--5",      0},
        {"decimal point",                 u"1.5",      1.5},
        {"second point ends it",          u"1.2.3",    1.2},
        {"leading point",                 u".25",      0.25},
        {"trailing point",                u"5.",       5},
        {"point alone",                   u".",        0},
        {"exponent",                      u"1e3",      1000},
        {"capital signed exponent",       u"2.5E+2",   250},
        {"negative exponent",             u"25e-2",    0.25},
        {"exponent d",                    u"1d2",      100},
        {"exponent D",                    u"1D2",      100},
        {"blanks inside exponent",        u"1 e 3",    1000},
        {"exponent without digits",       u"7e",       7},
        {"exponent without mantissa",     u"e3",       0},
        {"hexadecimal",                   u"&H1F",     31},
        {"hexadecimal lower case",        u"&hff",     255},
        {"hexadecimal stops at G",        u"&H1G",     1},
        {"hexadecimal with blanks",       u"& H 1 0",  16},
        {"octal",                         u"&O17",     15},
        {"octal lower case",              u"&o17",     15},
        {"octal stops at 8",              u"&O78",     7},
        {"prefix without digits",         u"&H",       0},
        {"unknown prefix",                u"&B101",    0},
        {"overflow",                      u"1e999",    kInf},
        {"negative overflow",             u"-1e999",   -kInf},
        {"overflow by digits",            u"1" + std::u16string(400, u'0'), kInf},
        {"underflow",                     u"1e-999",   0},
        {"zero with huge exponent",       u"0e999",    0},
        {"nan is no number",              u"nan",      0},
        {"inf is no number",              u"inf",      0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const double value = numericValue(c.text);
        EXPECT_FALSE(std::isnan(value));
        EXPECT_EQ(value, c.expected);
    }
}

TEST(RoundToInt16, HalvesGoToEvenAndOutOfRangeIsEmpty) {
    struct Case {
        double value;
        std::optional<std::int16_t> expected;
    };
    // clang-format off
    const Case cases[] = {
        {2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {1.5, 2}, {-0.4, 0},
        {2.4, 2}, {2.6, 3}, {32767.4, 32767}, {32767.5, std::nullopt}, {32768, std::nullopt},
        {-32768.5, -32768}, {-32768.6, std::nullopt}, {-32769, std::nullopt},
        {kInf, std::nullopt}, {-kInf, std::nullopt},
        {std::numeric_limits<double>::quiet_NaN(), std::nullopt},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(roundToInt16(c.value), c.expected) << "value " << c.value;
}

TEST(TextToInt16, ReadsThenRounds) {
    struct Case {
        std::u16string text;
        std::optional<std::int16_t> expected;
    };
    // clang-format off
    const Case cases[] = {
        {u"2.5", 2}, {u" 1 5", 15}, {u"abc", 0}, {u"", 0}, {u"-32768", -32768},
        {u"32768", std::nullopt}, {u"1e999", std::nullopt}, {u"&H7FFF", 32767},
        {u"&H8000", std::nullopt},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(textToInt16(c.text), c.expected) << toUtf8(c.text);
}

// ---- Lines and replacing ----

TEST(SplitAtCrLf, OnlyThePairEndsALine) {
    struct Case {
        const char* name;
        std::u16string text;
        std::vector<std::u16string> pieces;
    };
    // clang-format off
    const Case cases[] = {
        {"empty text has no pieces",     u"",               {}},
        {"one line without line end",    u"a",              {u"a"}},
        {"final line end, empty piece",  u"a\r\n",          {u"a", u""}},
        {"line end alone",               u"\r\n",           {u"", u""}},
        {"empty line kept",              u"a\r\n\r\nb",     {u"a", u"", u"b"}},
        {"lone LF and CR do not cut",    u"a\nb\rc",        {u"a\nb\rc"}},
        {"CR before the pair stays",     u"a\r\r\nb",       {u"a\r", u"b"}},
        {"LF after the pair stays",      u"a\r\n\nb",       {u"a", u"\nb"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(owned(splitAtCrLf(c.text)), c.pieces);
    }
}

TEST(ReplaceAll, OnePassFromTheLeftWithoutOverlaps) {
    struct Case {
        std::u16string text, search, replacement, expected;
    };
    // clang-format off
    const Case cases[] = {
        {u"aXbXc",            u"X",       u"--",   u"a--b--c"},
        {u"aaa",              u"aa",      u"b",    u"ba"},
        {u"TT",               u"T",       u"TT",   u"TTTT"},
        {u"abc",              u"x",       u"y",    u"abc"},
        {u"",                 u"a",       u"b",    u""},
        {u"[ENTER]x[ENTER]",  u"[ENTER]", u"\r\n", u"\r\nx\r\n"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(replaceAll(c.text, c.search, c.replacement), c.expected) << toUtf8(c.text);
}

// ---- Number patterns ----

TEST(FormatGrouped, GroupsByThreesAndZeroIsEmpty) {
    struct Case {
        std::int64_t value;
        char16_t separator;
        std::u16string expected;
    };
    // clang-format off
    const Case cases[] = {
        {0, u'.', u""}, {1, u'.', u"1"}, {999, u'.', u"999"}, {1000, u'.', u"1.000"},
        {1234, u'.', u"1.234"}, {100000, u'.', u"100.000"}, {1234567, u'.', u"1.234.567"},
        {1234, u',', u"1,234"}, {-1, u'.', u"-1"}, {-1234, u'.', u"-1.234"},
        {std::numeric_limits<std::int64_t>::min(), u'.', u"-9.223.372.036.854.775.808"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(formatGrouped(c.value, c.separator), c.expected) << c.value;
}

TEST(FormatOneDecimal, OneDigitRoundedHalfAwayFromZero) {
    struct Case {
        double value;
        char16_t separator;
        std::u16string expected;
    };
    // clang-format off
    const Case cases[] = {
        {0, u'.', u"0.0"}, {0.04, u'.', u"0.0"}, {5, u'.', u"5.0"}, {0.96, u'.', u"1.0"},
        {12.25, u'.', u"12.3"}, {-1.25, u'.', u"-1.3"}, {3.5, u',', u"3,5"},
        {86399.9, u',', u"86399,9"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(formatOneDecimal(c.value, c.separator), c.expected) << c.value;
}

// ---- UTF-8 at the program's edges ----

TEST(Utf8, DecodesAndReplacesMalformedInput) {
    struct Case {
        const char* name;
        std::string bytes;
        std::u16string text;
    };
    // clang-format off
    const Case cases[] = {
        {"ASCII",                     "Haus",             u"Haus"},
        {"two-byte letter",           "\xC3\x84pfel",     u"Äpfel"},
        {"three-byte euro",           "\xE2\x82\xAC",     u"€"},
        {"four bytes, surrogates",    "\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
        {"stray byte",                "a\xFF" "b",        u"a\xFFFD" u"b"},
        {"truncated at end",          "a\xC3",            u"a\xFFFD"},
        {"overlong NUL",              "\xC0\x80",         u"\xFFFD\xFFFD"},
        {"encoded surrogate",         "\xED\xA0\x80",     u"\xFFFD"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(fromUtf8(c.bytes), c.text);
    }
    EXPECT_EQ(toUtf8(u"Größe €\xD83D\xDE00"), "Gr\xC3\xB6\xC3\x9F"
                                              "e \xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(u"a\xD800"), "a\xEF\xBF\xBD");
}

} // namespace
} // namespace lettriner
