// SPDX-License-Identifier: GPL-3.0-or-later
// The letter test: the literal WortPrüfen case by case, the prepared tile
// test every search runs against it (the same table, then random lists,
// where the tile test with blanks and patterns is also held to its
// character-wise form), prepared values against WortBewertung, and the two
// letter columns.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/prepared_words.h"
#include "engine/tile_test.h"
#include "engine/word_check.h"
#include "support/engine_printing.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace lettriner {
namespace {

constexpr std::u16string_view kRack = u"AFEEZHRB";
constexpr CheckResult kNo = CheckResult::Rejected;
constexpr CheckResult kYes = CheckResult::Accepted;
constexpr CheckResult kBonus = CheckResult::AcceptedAsBonus;
const double kNaN = std::nan("");

// Every letter is worth 1, except S (-2), Q (10) and Y (20000, so YY overflows).
LetterValueTable oneEach() {
    LetterValueTable table;
    for (const char16_t c : std::u16string_view(u"ABCDEFGHIJKLMNOPRTUVWXZÄÖÜß?1"))
        table.set(windows1252Code(c), 1.0);
    table.set(windows1252Code(u'S'), -2.0);
    table.set(windows1252Code(u'Q'), 10.0);
    table.set(windows1252Code(u'Y'), 20000.0);
    return table;
}

// The prepared test as a search applies it: the block-wise summary, then the check.
TileVerdict preparedVerdict(const TileTest& test, const PreparedWords& words, std::size_t i,
                            std::int16_t minimum) {
    const std::int16_t bound = test.summaryBoundsValue() ? minimum : INT16_MIN;
    return test.summary().passes(words, i, bound) ? test.check(words, i, minimum) : TileVerdict{};
}

std::u16string joinedLines(const std::vector<std::u16string>& words) {
    std::u16string text;
    for (std::size_t i = 0; i < words.size(); ++i)
        text += (i > 0 ? u"\r\n" : u"") + words[i];
    return text;
}

TEST(LetterTest, LiteralAndFastTestGiveTheExpectedResult) {
    // clang-format off
    const std::tuple<const char*, std::u16string_view, std::u16string_view, std::u16string_view, std::u16string_view, double, std::int16_t, CheckResult> cases[] = {
        // name                                   word       rack     mand.  forb.  allow.  min  expected
        {"FEE uses rack tiles",                   u"FEE",      kRack,  u"",   u"",    0,     0,  kYes},
        {"three E need one extra letter",         u"EEE",      kRack,  u"",   u"",    0,     0,  kNo},
        {"three E with allowance 1",              u"EEE",      kRack,  u"",   u"",    1,     0,  kYes},
        {"whole rack used is a bonus",            u"BREZHAFE", kRack,  u"",   u"",    0,     0,  kBonus},
        {"mandatory letter from the board",       u"FEET",     kRack,  u"T",  u"",    1,     0,  kYes},
        {"mandatory letter not covered",          u"FEET",     kRack,  u"T",  u"",    0,     0,  kNo},
        {"mandatory letter missing",              u"FEE",      kRack,  u"EA", u"",    0,     0,  kNo},
        {"mandatory twice, once is enough",       u"FEH",      kRack,  u"HH", u"",    0,     0,  kYes},
        {"mandatory and forbidden",               u"FEE",      kRack,  u"E",  u"E",   0,     0,  kNo},
        {"forbidden present",                     u"FEZ",      kRack,  u"",   u"QZ",  0,     0,  kNo},
        {"empty rack: accepted is bonus",         u"ABC",      u"",    u"",   u"",    3,     0,  kBonus},
        {"empty rack: longer than allowance",     u"ABC",      u"",    u"",   u"",    2,     0,  kNo},
        {"empty rack: short word needs extras",   u"A",        u"",    u"",   u"",    0,     0,  kNo},
        {"rack space: all letters used, no bonus", u"fee",     u"FEE ", u"",  u"",    0,     0,  kYes},
        {"rack space: word with space uses it",   u"FE E",     u"FEE ", u"",  u"",    0,     0,  kBonus},
        {"empty word, minimum 0",                 u"",         kRack,  u"",   u"QZ",  0,     0,  kYes},
        {"empty word, a mandatory letter",        u"",         kRack,  u"A",  u"",    0,     0,  kNo},
        {"empty word, empty rack",                u"",         u"",    u"",   u"",    0,     0,  kBonus},
        {"allowance 1.5: one extra",              u"FEET",     u"FEE", u"",   u"",    1.5,   0,  kBonus},
        {"allowance 1.5: two extras",             u"FEETT",    u"FEE", u"",   u"",    1.5,   0,  kNo},
        {"allowance 1.999: two extras",           u"FEETT",    u"FEE", u"",   u"",    1.999, 0,  kNo},
        {"allowance 2.001: two extras",           u"FEETT",    u"FEE", u"",   u"",    2.001, 0,  kBonus},
        {"length bound: one over the rack",       u"ABCD",     u"ABC", u"",   u"",    0,     0,  kNo},
        {"length bound: allowance covers it",     u"ABCD",     u"ABC", u"",   u"",    1,     0,  kBonus},
        {"negative allowance: length bound",      u"FEE",      u"FEE", u"",   u"",   -1,     0,  kNo},
        {"negative allowance: two letters pass",  u"fe",       u"FE",  u"",   u"",   -5,     0,  kBonus},
        {"negative allowance: no extra letter",   u"FT",       u"FEE", u"",   u"",   -1,     0,  kNo},
        {"allowance not a number: two letters",   u"FE",       u"FE",  u"",   u"",    kNaN,  0,  kBonus},
        {"allowance not a number: one extra",     u"FT",       u"FE",  u"",   u"",    kNaN,  0,  kNo},
        {"value below the minimum",               u"FEE",      kRack,  u"",   u"",    0,     4,  kNo},
        {"value equals the minimum",              u"FEE",      kRack,  u"",   u"",    0,     3,  kYes},
        {"negative value equals the minimum",     u"SS",       u"SS",  u"",   u"",    0,    -4,  kBonus},
        {"negative value below the minimum",      u"SS",       u"SS",  u"",   u"",    0,    -3,  kNo},
        {"value counts board letters",            u"QA",       u"AB",  u"",   u"",    1,    11,  kYes},
        {"value out of range counts 0",           u"YY",       u"YY",  u"",   u"",    0,     1,  kNo},
        {"two tiles needed for HH",               u"HH",       kRack,  u"",   u"",    0,     0,  kNo},
        {"ß is not SS",                           u"ß",        u"SS",  u"",   u"",    0,    -5,  kNo},
        {"lower-case umlauts and ß",              u"äöüß",     u"ÄÖÜß", u"Ö", u"",    0,     0,  kBonus},
        {"Ä is not A",                            u"Ä",        u"A",   u"",   u"",    0,     0,  kNo},
        {"? is no wildcard",                      u"AB",       u"A?",  u"",   u"",    0,     0,  kNo},
        {"? matches itself",                      u"A?",       u"A?",  u"",   u"",    0,     0,  kBonus},
        {"mandatory digit, alphabet word",        u"FEE",      u"FEE", u"1",  u"",    0,     0,  kNo},
        {"mandatory digit present",               u"A1",       u"A1",  u"1",  u"",    0,     0,  kBonus},
        {"forbidden ?, alphabet word",            u"FEE",      u"FEE", u"",   u"?",   0,     0,  kBonus},
    };
    // clang-format on
    const LetterValueTable values = oneEach();
    for (const auto& [name, word, rack, mandatory, forbidden, allowance, minimum, expected] :
         cases) {
        SCOPED_TRACE(name);
        const std::u16string upper = toUpper(word);
        EXPECT_EQ(WortPrüfen(values, upper, rack, mandatory, forbidden, allowance, minimum),
                  expected);
        const PreparedWords words(WordDatabase(upper + u"\r\n"), values);
        const TileTest test(values, rack, mandatory, forbidden, allowance, {});
        EXPECT_EQ(preparedVerdict(test, words, 0, minimum).result, expected);
    }
}

// Mostly rack letters, so that many words are accepted; then rarer and
// lower-case letters; then characters outside the alphabet, one of them
// without a Windows-1252 code (U+4E00 counts as "?"), one just past Latin-1.
class RandomTexts {
public:
    explicit RandomTexts(std::uint32_t seed) : engine_(seed) {}
    std::size_t below(std::size_t bound) { return engine_() % bound; }
    std::u16string text(std::size_t length) {
        static constexpr std::u16string_view kinds[] = {u"AEFHRBZEENSTI", u"QXYJÄÖÜßaeäöüßz",
                                                        u" 1?é\t\n€-\u0100\u0153\u4E00"};
        std::u16string result;
        for (std::size_t i = 0; i < length; ++i) {
            const std::size_t kind = below(10);
            const std::u16string_view from = kinds[kind < 6 ? 0 : kind < 8 ? 1 : 2];
            result += from[below(from.size())];
        }
        return result;
    }
    // Often a shuffled part of the rack with a few more characters.
    std::u16string word(std::u16string_view rack) {
        if (below(2) == 0)
            return text(below(20) == 0 ? 15 + below(26) : below(9));
        std::u16string result =
            std::u16string(rack.substr(0, below(rack.size() + 1))) + text(below(3));
        std::shuffle(result.begin(), result.end(), engine_);
        return below(3) == 0 ? toLower(result) : result;
    }

private:
    std::mt19937 engine_;
};

// Also the prepared values against WortBewertung: whole values are summed as
// integers, anything else as doubles in word order; every fourth round takes
// a table of extreme values (every character `common`, Q X Y `rare`).
TEST(LetterTest, FastTestDecidesLikeTheLiteralOneOnRandomInput) {
    const double inf = std::numeric_limits<double>::infinity();
    const double allowances[] = {0, 1, 2, 1.5, 0.5, -1, -0.5, 3, 2.999, 1e6, 40, inf, -inf, kNaN};
    const std::int16_t minimums[] = {-32768, -10, -1, 0, 0, 1, 3, 5, 8, 12, 32767};
    const std::pair<double, double> extremes[] = {{1, 10},         {-3, 7},    {1048576, -1048576},
                                                  {1048577, 3},    {0.5, 2.5}, {1e-9, 1},
                                                  {1e308, -1e308}, {inf, 1}};
    LetterValueTable game = oneEach();
    for (const auto& [letter, value] :
         {std::pair{u'N', 0.5}, {u'T', 1.5}, {u' ', 0.5}, {u'?', -3.0}})
        game.set(windows1252Code(letter), value);
    RandomTexts random(20261122);
    int outcomes[3] = {};
    int tileOutcomes[3] = {};
    for (int round = 0; round < 400; ++round) {
        LetterValueTable values = game;
        if (round % 4 == 0) {
            const auto [common, rare] = extremes[round / 4 % std::size(extremes)];
            for (unsigned code = 0; code < 256; ++code)
                values.set(static_cast<unsigned char>(code), common);
            for (const char16_t letter : u"QXY")
                values.set(windows1252Code(letter), rare);
        }
        const std::u16string rack = toUpper(random.text(random.below(10)));
        std::u16string mandatory = random.below(3) == 0 ? toUpper(random.text(1)) : u"";
        std::u16string forbidden = random.below(2) == 0 ? toUpper(random.text(2)) : u"";
        std::erase(mandatory, u' ');
        std::erase(forbidden, u' ');
        const double allowance = allowances[random.below(std::size(allowances))];
        std::vector<std::u16string> list;
        for (int n = 0; n < 50; ++n)
            list.push_back(random.word(rack));
        const PreparedWords words(WordDatabase(joinedLines(list)), values);
        // Blanks and a pattern, start or end cut from a listed word.
        const std::u16string sample = toUpper(list[random.below(list.size())]);
        TileRules rules{static_cast<int>(random.below(3)), u"", u"", u"", 0, UINT32_MAX};
        if (random.below(3) == 0) {
            rules.pattern = sample.substr(0, kLongestPattern + 1);
            for (char16_t& c : rules.pattern)
                c = random.below(2) == 0 ? u'.' : c;
        }
        if (random.below(4) == 0)
            rules.starts = sample.substr(0, random.below(3));
        if (random.below(4) == 0)
            rules.ends = sample.substr(sample.size() - std::min<std::size_t>(sample.size(), 1));
        if (random.below(4) == 0)
            rules.minLength = static_cast<std::uint32_t>(random.below(6));
        if (random.below(4) == 0)
            rules.maxLength = static_cast<std::uint32_t>(random.below(9));
        const TileTest tiles(values, rack, mandatory, forbidden, allowance, rules);
        const TileTest plainTiles(values, rack, mandatory, forbidden, allowance, {});
        ASSERT_EQ(words.size(), list.size());
        for (std::size_t i = 0; i < words.size(); ++i) {
            const std::u16string upper = toUpper(list[i]);
            ASSERT_EQ(std::u16string(words.upper(i)), upper);
            ASSERT_EQ(words.entry(i).value, WortBewertung(values, list[i])) << toUtf8(list[i]);
            const std::int16_t minimum = minimums[random.below(std::size(minimums))];
            const CheckResult literal =
                WortPrüfen(values, upper, rack, mandatory, forbidden, allowance, minimum);
            ASSERT_EQ(preparedVerdict(plainTiles, words, i, minimum).result, literal)
                << "word \"" << toUtf8(list[i]) << "\", rack \"" << toUtf8(rack)
                << "\", mandatory \"" << toUtf8(mandatory) << "\", forbidden \""
                << toUtf8(forbidden) << "\", allowance " << allowance << ", minimum " << minimum;
            ++outcomes[static_cast<int>(literal)];
            // Without blanks or pattern the tile test is WortPrüfen.
            const TileVerdict plain = plainTiles.judge(upper, minimum);
            ASSERT_EQ(plain.result, literal);
            ASSERT_EQ(preparedVerdict(plainTiles, words, i, minimum), plain);
            ASSERT_EQ(plain.value, plain.result == CheckResult::Rejected ? 0 : words.value(i));
            ASSERT_EQ(preparedVerdict(tiles, words, i, minimum), tiles.judge(upper, minimum))
                << "blanks " << rules.blanks << ", pattern \"" << toUtf8(rules.pattern)
                << "\", starts \"" << toUtf8(rules.starts) << "\", ends \"" << toUtf8(rules.ends)
                << "\", lengths " << rules.minLength << ".." << rules.maxLength;
            ++tileOutcomes[static_cast<int>(tiles.judge(upper, minimum).result)];
        }
    }
    // The comparison means something only if every outcome occurred often.
    EXPECT_GT(outcomes[0], 1000);
    EXPECT_GT(outcomes[1], 1000);
    EXPECT_GT(outcomes[2], 200);
    EXPECT_GT(tileOutcomes[1], 1000);
    EXPECT_GT(tileOutcomes[2], 200);
}

// A list this long is prepared in two halves at once; every entry must come
// out as the literal letter set and WortBewertung give it, with whole,
// negative and fractional letter values.
TEST(PreparedWords, LargeListEntriesAreTheLiteralLettersAndValue) {
    RandomTexts random(20261124);
    std::vector<std::u16string> list;
    for (int n = 0; n < 70'000; ++n)
        list.push_back(random.word(kRack));
    LetterValueTable fractional = oneEach();
    fractional.set(windows1252Code(u'T'), 1.5);
    // Whole but negative, and large enough to leave 16 bits in a long word.
    LetterValueTable signedWhole = oneEach();
    signedWhole.set(windows1252Code(u'E'), -7);
    signedWhole.set(windows1252Code(u'Z'), 9000);
    for (const LetterValueTable& values : {oneEach(), fractional, signedWhole}) {
        const PreparedWords words(WordDatabase(joinedLines(list)), values);
        ASSERT_EQ(words.size(), list.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            ASSERT_EQ(words.value(i), WortBewertung(values, list[i])) << i;
            ASSERT_EQ(words.letters(i), letterSet(toUpper(list[i]))) << i;
        }
    }
}

TEST(LetterColumns, NeededLettersInWordOrderLeftOverInRackOrder) {
    // clang-format off
    const std::tuple<std::u16string, std::u16string, std::u16string, std::u16string> cases[] = {
        {u"EE",    u"AFEEZHRB", u"",      u"afzhrb"},
        {u"fee",   u"AFEEZHRB", u"",      u"azhrb"},
        {u"TEST",  u"E",        u"tst",   u""},
        {u"AX",    u"ZYXA",     u"",      u"zy"},
        {u"A",     u"BAXA",     u"",      u"bxa"},
        {u"FEE",   u"FE E",     u"",      u" "},
        {u"ÄÖ",    u"ÜÄ",       u"ö",     u"ü"},
        {u"SS",    u"ß",        u"ss",    u"ß"},
        {u"",      u"AB C",     u"",      u"ab c"},
        {u"A1?",   u"?A",       u"1",     u""},
    };
    // clang-format on
    for (const auto& [word, rack, needed, leftOver] : cases) {
        EXPECT_EQ(neededLetters(word, rack), needed) << toUtf8(word);
        EXPECT_EQ(leftOverLetters(word, rack), leftOver) << toUtf8(word);
    }
}

} // namespace
} // namespace lettriner
