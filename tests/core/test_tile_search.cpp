// SPDX-License-Identifier: GPL-3.0-or-later
// Blanks and patterns of board letters: the per-word judgement case by case
// (the character-wise test and the prepared one must both give it), a whole
// search with pruning and the bonus list, and the word check.

#include "data/text_codec.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/tile_test.h"
#include "engine/word_lookup.h"
#include "support/engine_printing.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

constexpr CheckResult kNo = CheckResult::Rejected;
constexpr CheckResult kYes = CheckResult::Accepted;
constexpr CheckResult kBonus = CheckResult::AcceptedAsBonus;

LetterValueTable gameValues() {
    LetterValueTable table;
    const std::pair<char16_t, double> values[] = {
        {u'A', 1}, {u'B', 3}, {u'E', 1}, {u'H', 2}, {u'L', 2}, {u'P', 4}, {u'R', 1},
        {u'S', 1}, {u'T', 1}, {u'U', 1}, {u'Ä', 6}, {u'ß', 3}, {u'Z', 3}, {u'Y', 20000}};
    for (const auto& [letter, value] : values)
        table.set(windows1252Code(letter), value);
    return table;
}

struct Case {
    const char* name;
    std::u16string_view rack;
    int blanks;
    double allowance;
    std::u16string_view pattern;
    std::u16string_view forbidden;
    std::int16_t minimum;
    std::u16string_view word;
    CheckResult result;
    std::int16_t value;
    std::u16string_view needed;
    std::u16string_view leftOver;
    std::u16string_view blankLetters;
};

TEST(TileTest, BlanksAndPatternsCoverLettersAsThePlayerWould) {
    // clang-format off
    const Case cases[] = {
        // name                                  rack    bl allow pattern   forb.  min  word       result  value needed  left  blanks
        {"a blank fills a missing letter",        u"HAUS", 1, 0, u"",       u"",   0,  u"HAUT",   kYes,   4,  u"",    u"s", u"t"},
        {"one blank, two letters missing",        u"HAUS", 1, 0, u"",       u"",   0,  u"HAUTE",  kNo,    0,  u"",    u"",  u""},
        {"two blanks, equal letters in order",    u"HAUS", 2, 0, u"",       u"",   0,  u"HAUTE",  kYes,   4,  u"",    u"s", u"te"},
        {"equally cheap: the blank takes the first", u"HAUS", 1, 1, u"",    u"",   0,  u"HAUTE",  kYes,   5,  u"e",   u"s", u"t"},
        {"the real tile is used, not the blank",  u"HAUT", 1, 0, u"",       u"",   0,  u"HAUT",   kYes,   5,  u"",    u"",  u""},
        {"tile first, the blank for the second",  u"EHL",  1, 0, u"",       u"",   0,  u"HELL",   kBonus, 5,  u"",    u"",  u"l"},
        {"blank takes the cheaper, board the P",  u"HAU",  1, 1, u"",       u"",   0,  u"HAUPT",  kBonus, 8,  u"p",   u"",  u"t"},
        {"two blanks pick the two cheapest",      u"A",    2, 1, u"",       u"",   0,  u"BAHT",   kBonus, 4,  u"b",   u"",  u"ht"},
        {"a blank stands for an umlaut",          u"BR",   1, 0, u"",       u"",   0,  u"BÄR",    kBonus, 4,  u"",    u"",  u"ä"},
        {"no blank stands for ß",                 u"STRAE",1, 0, u"",       u"",   0,  u"STRAßE", kNo,    0,  u"",    u"",  u""},
        {"ß from the board, blank unused",        u"STRAE",1, 1, u"",       u"",   0,  u"STRAßE", kYes,   8,  u"ß",   u"",  u""},
        {"bonus only when every blank is used",   u"HAU",  2, 0, u"",       u"",   0,  u"HAUT",   kYes,   4,  u"",    u"",  u"t"},
        {"the minimum sees the value after blanks", u"HAUS", 1, 0, u"",     u"",   5,  u"HAUT",   kNo,    0,  u"",    u"",  u""},
        {"a blank cannot lay a forbidden letter", u"HAUS", 1, 0, u"",       u"T",  0,  u"HAUT",   kNo,    0,  u"",    u"",  u""},
        {"pattern letters come from the board",   u"BET",  0, 0, u"..S.E",  u"",   0,  u"BESTE",  kBonus, 7,  u"se",  u"",  u""},
        {"a rack tile for a board letter stays",  u"HAUS", 0, 0, u"...S",   u"",   0,  u"HAUS",   kYes,   5,  u"s",   u"s", u""},
        {"pattern without any rack letter",       u"",     0, 0, u"ZA",     u"",   0,  u"ZA",     kBonus, 4,  u"za",  u"",  u""},
        {"pattern with a blank",                  u"BE",   1, 0, u"..S.E",  u"",   0,  u"BESTE",  kBonus, 6,  u"se",  u"",  u"t"},
        {"pattern letter differs",                u"BET",  0, 0, u"..S.E",  u"",   0,  u"BETTE",  kNo,    0,  u"",    u"",  u""},
        {"pattern is the exact length",           u"BETN", 0, 0, u"..S.E",  u"",   0,  u"BESTEN", kNo,    0,  u"",    u"",  u""},
        {"a dot needs a tile like any letter",    u"BE",   0, 0, u"..S.E",  u"",   0,  u"BESTE",  kNo,    0,  u"",    u"",  u""},
        {"beyond 16 bits, then back within",      u"Y",    1, 0, u"",       u"",   0,  u"YY",     kBonus, 20000, u"", u"",  u"y"},
    };
    // clang-format on
    const LetterValueTable values = gameValues();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TileRules rules;
        rules.blanks = c.blanks;
        rules.pattern = c.pattern;
        const TileTest test(values, c.rack, u"", c.forbidden, c.allowance, rules);
        TileLetters letters;
        const TileVerdict judged = test.judge(c.word, c.minimum, &letters);
        EXPECT_EQ(judged.result, c.result);
        EXPECT_EQ(judged.value, c.value);
        if (c.result != kNo) {
            EXPECT_EQ(toUtf8(letters.needed), toUtf8(c.needed));
            EXPECT_EQ(toUtf8(letters.leftOver), toUtf8(c.leftOver));
            EXPECT_EQ(toUtf8(letters.blanks), toUtf8(c.blankLetters));
        }
        const PreparedWords words(WordDatabase(std::u16string(c.word)), values);
        const bool passes =
            test.summary().passes(words, 0, test.summaryBoundsValue() ? c.minimum : INT16_MIN);
        const TileVerdict fast = passes ? test.check(words, 0, c.minimum) : TileVerdict{};
        EXPECT_EQ(fast.result, c.result);
        EXPECT_EQ(fast.value, c.value);
    }
}

TEST(TileTest, StartsEndsAndLengthsFilterWords) {
    // clang-format off
    const std::tuple<const char*, std::u16string_view, std::u16string_view, std::uint32_t, std::uint32_t, CheckResult> cases[] = {
        {"starts with",        u"HA", u"",   0, UINT32_MAX, kYes},
        {"does not start",     u"AU", u"",   0, UINT32_MAX, kNo},
        {"ends with",          u"",   u"US", 0, UINT32_MAX, kYes},
        {"does not end",       u"",   u"UT", 0, UINT32_MAX, kNo},
        {"longer than a word", u"",   u"XHAUS", 0, UINT32_MAX, kNo},
        {"length in range",    u"",   u"",   4, 4,          kYes},
        {"too short",          u"",   u"",   5, UINT32_MAX, kNo},
        {"too long",           u"",   u"",   0, 3,          kNo},
    };
    // clang-format on
    const LetterValueTable values = gameValues();
    const PreparedWords words(WordDatabase(u"Haus"), values);
    for (const auto& [name, starts, ends, minLength, maxLength, expected] : cases) {
        SCOPED_TRACE(name);
        const TileRules rules{1,         u"",      std::u16string(starts), std::u16string(ends),
                              minLength, maxLength};
        const TileTest test(values, u"HAUSE", u"", u"", 0, rules);
        EXPECT_EQ(test.judge(u"HAUS", 0).result, expected);
        const bool passes = test.summary().passes(words, 0, INT16_MIN);
        EXPECT_EQ(passes ? test.check(words, 0, 0).result : kNo, expected);
    }
}

TEST(TileSearch, StoresPrunesAndListsTheValueAfterBlanks) {
    // Field size 2: HEU prunes the store to its better half and raises the
    // minimum to 4, which HUT (3 after its blank) then misses.
    const PreparedWords words(WordDatabase(u"Haut\r\nHaus\r\nBär\r\nHeu\r\nHut\r\nHaust"),
                              gameValues());
    HeadlessFields fields;
    fields.texts = {u"HAUS", u"", u"", u"0"};
    fields.minimum = u"0";
    fields.fieldSize = u"2";
    const HeadlessOutcome outcome =
        searchWithoutWindow(words, fields, {1, u"", u"", u"", 0, UINT32_MAX});
    std::vector<std::tuple<std::string, int, std::string>> main;
    for (const ResultRow& row : outcome.mainList.rows())
        main.emplace_back(toUtf8(row.word), row.value.value_or(-1), toUtf8(row.blanks));
    using Row = std::tuple<std::string, int, std::string>;
    EXPECT_EQ(main, (std::vector<Row>{{"HAUS", 5, ""}, {"HAUST", 5, "t"}, {"HAUT", 4, "t"}}));
    EXPECT_EQ(outcome.found, 4u);
    EXPECT_EQ(toUtf8(outcome.minimumText), "4");
    // Only HAUST uses every tile and the blank.
    ASSERT_EQ(outcome.bonusList.rows().size(), 1u);
    EXPECT_EQ(toUtf8(outcome.bonusList.rows()[0].word), "HAUST");
    EXPECT_TRUE(outcome.bonusShown);
}

TEST(WordLookup, FindsWordsAsUpperCasedAndSharpSAsSS) {
    const PreparedWords words(WordDatabase(u"Masse\r\nMaße\r\nStrasse\r\nweg"), gameValues());
    const std::vector<LookupResult> results =
        lookUpWords(words, {u"straße", u"MAßE", u"masse", u"Weg", u"Wege", u""});
    std::vector<std::tuple<bool, std::string, int>> seen;
    for (const LookupResult& result : results)
        seen.emplace_back(result.found, toUtf8(result.word), result.value);
    EXPECT_EQ(seen, (std::vector<std::tuple<bool, std::string, int>>{{true, "STRASSE", 7},
                                                                     {true, "MAßE", 5},
                                                                     {true, "MASSE", 4},
                                                                     {true, "WEG", 1},
                                                                     {false, "WEGE", 2},
                                                                     {false, "", 0}}));
}

} // namespace
} // namespace lettriner
