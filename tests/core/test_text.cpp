// SPDX-License-Identifier: GPL-3.0-or-later
// Code page, casing, numbers out of text, line cutting, number patterns, UTF-8.

#include "data/number_format.h"
#include "data/numeric_value.h"
#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Windows1252AndCasing, EveryByteReadsBackAndOnlyGermanLettersChangeCase) {
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    const std::u16string text = decodeWindows1252(all);
    EXPECT_EQ(encodeWindows1252(text), all);
    // Latin-1 below 0x80 and from 0xA0; the undefined bytes stay C1 controls.
    const std::u16string expected = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
    EXPECT_EQ(text.substr(0x80, 32), expected);
    EXPECT_EQ(text.substr(0xC4, 1) + text.substr(0xDF, 1) + text.substr(0xFF, 1), u"Äßÿ");
    // Casing pairs a-z and ä ö ü with their capitals; ß and every other letter stay.
    EXPECT_EQ(toUpper(u"azäöüß@[`{éÿµ"), u"AZÄÖÜß@[`{éÿµ");
    EXPECT_EQ(toLower(u"AZÄÖÜß@[`{ÉŸ"), u"azäöüß@[`{ÉŸ");
    // Characters without a code, among them the C1 controls whose bytes carry € and Ÿ.
    EXPECT_EQ(encodeWindows1252(u"a\u0080\u009F\u0100Łẞ\u20AD\xD800\xFFFD"
                                u"b"),
              "a????????b");
}

TEST(NumericValue, ReadsTheLongestLeadingNumber) {
    // clang-format off
    const std::tuple<std::u16string, double> cases[] = {
        {u"", 0}, {u"abc", 0}, {u"42", 42}, {u"12abc", 12}, {u"1 2", 12}, {u"\t1\n2\t", 12},
        {u"1\r2", 1}, {u"1,5", 1}, {u"+5", 5}, {u"-5", -5}, {u"- 5", -5}, {u"--5", 0},
        {u"1.5", 1.5}, {u"1.2.3", 1.2}, {u".25", 0.25}, {u"5.", 5}, {u".", 0},
        {u"1e3", 1000}, {u"1e12", 1e12}, {u"2.5E+2", 250}, {u"25e-2", 0.25}, {u"1d2", 100}, {u"1D2", 100},
        {u"&H1F", 31}, {u"&hff", 255}, {u"&HaF", 175}, {u"&H1G", 1}, {u"& H 1 0", 16}, {u"&O17", 15},
        {u"&o17", 15}, {u"&O78", 7}, {u"&O9", 0}, {u"&H", 0}, {u"&B101", 0}, {u"-&H10", 0},
        {u"&HFFFF", 65535}, {u"&HA", 10}, {u"&H1@", 1}, {u"1e999", kInf}, {u"-1e999", -kInf}, {u"7e", 7}, {u"7e-", 7}, {u"e3", 0},
        {u"00012", 12}, {u"0.000125e3", 0.125}, {u"1" + std::u16string(400, u'0'), kInf}, {u"0.001e312", kInf}, {u"10e308", kInf},
        {u"1e-999", 0}, {u"0e999", 0}, {u"0.5e-400", 0}, {u"0.001e-400", 0}, {u"nan", 0}, {u"inf", 0},
        {u"0." + std::u16string(400, u'0') + u"1e10", 0}, {u"1 e 3", 1000}, {u"-.", 0},
    };
    // clang-format on
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(toUtf8(text.substr(0, 20)));
        EXPECT_EQ(numericValue(text), expected);
    }
}

TEST(RoundToInt16, HalvesGoToEvenAndOutOfRangeIsEmpty) {
    // clang-format off
    const std::tuple<double, std::optional<std::int16_t>> cases[] = {
        {2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {1.5, 2}, {-0.4, 0}, {2.6, 3},
        {32767.4, 32767}, {32767.5, std::nullopt}, {-32768.5, -32768}, {-32768.6, std::nullopt},
        {65535.9, std::nullopt}, {-65536, std::nullopt}, {kInf, std::nullopt},
        {std::numeric_limits<double>::quiet_NaN(), std::nullopt},
    };
    // clang-format on
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(roundToInt16(value), expected) << "value " << value;
    EXPECT_EQ(textToInt16(u" 1 5"), 15);
    EXPECT_EQ(textToInt16(u"&H8000"), std::nullopt);
}

TEST(SplitAtCrLf, OnlyThePairEndsALine) {
    // clang-format off
    const std::tuple<std::u16string, std::vector<std::u16string_view>> cases[] = {
        {u"", {}}, {u"a", {u"a"}}, {u"a\r\n", {u"a", u""}}, {u"\r\n", {u"", u""}},
        {u"a\r\n\r\nb", {u"a", u"", u"b"}}, {u"a\nb\rc", {u"a\nb\rc"}},
        {u"a\r\r\nb", {u"a\r", u"b"}}, {u"a\r\n\nb", {u"a", u"\nb"}},
    };
    // clang-format on
    for (const auto& [text, pieces] : cases)
        EXPECT_EQ(splitAtCrLf(text), pieces) << toUtf8(text);
}

TEST(NumberPatterns, GroupedAndOneDecimal) {
    EXPECT_EQ(formatGrouped(0, u'.'), u"");
    EXPECT_EQ(formatGrouped(1000, u'.'), u"1.000");
    EXPECT_EQ(formatGrouped(1234567, u','), u"1,234,567");
    EXPECT_EQ(formatGrouped(-1234, u'.'), u"-1.234");
    EXPECT_EQ(formatGrouped(std::numeric_limits<std::int64_t>::min(), u'.'),
              u"-9.223.372.036.854.775.808");
    // clang-format off
    const std::tuple<double, std::u16string> cases[] = {
        {0, u"0,0"}, {0.04, u"0,0"}, {0.05, u"0,1"}, {12.25, u"12,3"},
        {-1.25, u"-1,3"}, {86399.9, u"86399,9"}, {1e20, u"1000000000000000,0"},
        {kInf, u"0,0"},
    };
    // clang-format on
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(formatOneDecimal(value, u','), expected) << value;
}

TEST(Utf8, DecodesAndReplacesMalformedInput) {
    // clang-format off
    const std::tuple<std::string, std::u16string> cases[] = {
        {"Haus", u"Haus"}, {"\xC3\x84pfel", u"Äpfel"}, {"\xDF\xBF", u"\u07FF"},
        {"\xE0\xA0\x80", u"\u0800"}, {"\xE2\x82\xAC", u"€"}, {"\xEF\xBF\xBF", u"\xFFFF"},
        {"\xF0\x90\x80\x80", u"\xD800\xDC00"}, {"\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
        {"a\377b", u"a\xFFFD" u"b"}, {"a\xC3", u"a\xFFFD"}, {"\303A", u"\xFFFD" u"A"},
        {"\xC1\xBF", u"\xFFFD\xFFFD"}, {"\xE0\x9F\xBF", u"\xFFFD"}, {"\xF0\x8F\xBF\xBF", u"\xFFFD"},
        {"\xED\xA0\x80", u"\xFFFD"}, {"\xED\xBF\xBF", u"\xFFFD"}, {"\xF4\x90\x80\x80", u"\xFFFD"}, {"\xF5\x80", u"\xFFFD\xFFFD"},
        {"\xE2\x82", u"\xFFFD"}, {"\x80", u"\xFFFD"},
    };
    // clang-format on
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(fromUtf8(bytes), text) << bytes;
        if (text.find(u'\xFFFD') == std::u16string::npos) {
            EXPECT_EQ(toUtf8(text), bytes);
        }
    }
    EXPECT_EQ(toUtf8(u"a\xD800"
                     u"b\xDC00"),
              "a\xEF\xBF\275b\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(u"a\xD800"), "a\xEF\xBF\xBD"); // nothing after it to pair with
    EXPECT_EQ(toUtf8(u"\xDFFF"), "\xEF\xBF\xBD");   // the last low surrogate, alone
}

} // namespace
} // namespace lettriner
