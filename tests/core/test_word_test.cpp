// The prepared per-word test must decide every word exactly as the literal
// letter test decides the upper-cased word: checked on random word lists,
// racks, letter lists, allowances and minimum values.

#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/prepared_words.h"
#include "engine/word_check.h"
#include "engine/word_test.h"
#include "support/case_names.h"
#include "support/engine_printing.h"
#include "support/u16_printing.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {
namespace {

using testing::PrintTo; // table rows by name

// Mostly letters of a typical rack, so that many words are accepted; then
// rarer and lower-case letters; then characters outside the alphabet, among
// them one without a Windows-1252 code (U+4E00 counts as "?").
constexpr std::u16string_view kCommon = u"AEFHRBZEENSTI";
constexpr std::u16string_view kRare = u"QXYJÄÖÜßaeäöüßz";
constexpr std::u16string_view kOther = u" 1?é\t\n€-\u0153\u4E00";

LetterValueTable randomishValues() {
    LetterValueTable table;
    const std::pair<char16_t, double> values[] = {
        {u'A', 1},    {u'E', 1},     {u'F', 4},    {u'H', 2},   {u'R', 1},   {u'B', 3},
        {u'Z', 3},    {u'N', 0.5},   {u'S', -1.5}, {u'T', 1.5}, {u'I', 1},   {u'Q', 10},
        {u'X', 8},    {u'Y', 20000}, {u'J', 6},    {u'Ä', 6},   {u'Ö', 8},   {u'Ü', 6},
        {u'ß', 2.5},  {u' ', 0.5},   {u'1', 2},    {u'?', -3},  {u'é', 1.5}, {u'€', 4},
        {u'-', -0.5}, {u'\t', 1},
    };
    for (const auto& [letter, value] : values)
        table.set(windows1252Code(letter), value);
    return table;
}

class RandomTexts {
public:
    explicit RandomTexts(std::uint32_t seed) : engine_(seed) {}

    std::size_t below(std::size_t bound) { return engine_() % bound; }
    template <typename T, std::size_t N> T among(const T (&choices)[N]) {
        return choices[below(N)];
    }

    char16_t character() {
        const std::size_t kind = below(10);
        const std::u16string_view from = kind < 6 ? kCommon : kind < 8 ? kRare : kOther;
        return from[below(from.size())];
    }
    std::u16string text(std::size_t length) {
        std::u16string result;
        for (std::size_t i = 0; i < length; ++i)
            result += character();
        return result;
    }
    // Often a shuffled part of the rack with a few more characters, so that
    // covering, bonus words and the allowance all come into play.
    std::u16string word(std::u16string_view rack) {
        if (below(20) == 0)
            return text(15 + below(26));
        if (below(2) == 0)
            return text(below(9));
        std::u16string result(rack.substr(0, below(rack.size() + 1)));
        result += text(below(3));
        for (std::size_t i = result.size(); i > 1; --i)
            std::swap(result[i - 1], result[below(i)]);
        if (below(3) == 0)
            result = toLower(result);
        return result;
    }

private:
    std::mt19937 engine_;
};

std::u16string withoutSpaces(std::u16string text) {
    std::erase(text, u' ');
    return text;
}

std::u16string joinedLines(const std::vector<std::u16string>& words) {
    std::u16string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0)
            text += u"\r\n";
        text += words[i];
    }
    return text;
}

struct Tally {
    int rejected = 0;
    int accepted = 0;
    int bonus = 0;
    void count(CheckResult result) {
        if (result == CheckResult::Rejected)
            ++rejected;
        else if (result == CheckResult::Accepted)
            ++accepted;
        else
            ++bonus;
    }
};

TEST(WordTest, DecidesLikeTheLiteralTestOnRandomInput) {
    const double kInfinity = std::numeric_limits<double>::infinity();
    const double allowances[] = {0,     1,   2,    1.5, 0.5,       -1,         -0.5,        3,
                                 2.999, 1e6, -1e6, 40,  kInfinity, -kInfinity, std::nan("")};
    const std::int16_t minimums[] = {-32768, -10, -1, 0, 0, 1, 3, 5, 8, 12, 32767};
    const LetterValueTable values = randomishValues();
    RandomTexts random(20261122);
    Tally alphabetOnly;
    Tally otherCharacters;

    for (int round = 0; round < 400; ++round) {
        const std::u16string rack = toUpper(random.text(random.below(10)));
        const std::u16string mandatory =
            random.below(3) == 0 ? withoutSpaces(toUpper(random.text(1 + random.below(2)))) : u"";
        const std::u16string forbidden =
            random.below(2) == 0 ? withoutSpaces(toUpper(random.text(1 + random.below(3)))) : u"";
        const double allowance = random.among(allowances);
        const WordTest test(rack, mandatory, forbidden, allowance);

        std::vector<std::u16string> list;
        if (random.below(10) != 0) {
            for (int n = 0; n < 50; ++n)
                list.push_back(random.word(rack));
        }
        const WordDatabase database(joinedLines(list));
        ASSERT_EQ(database.size(), list.size());
        const PreparedWords words(database, values);

        for (std::size_t i = 0; i < words.size(); ++i) {
            const std::u16string upper = toUpper(list[i]);
            ASSERT_EQ(words.upper(i), std::u16string_view(upper));
            ASSERT_EQ(words.entry(i).value, WortBewertung(values, list[i]));
            const std::int16_t minimum = random.among(minimums);
            const CheckResult literal =
                WortPrüfen(values, upper, rack, mandatory, forbidden, allowance, minimum);
            ASSERT_EQ(test.check(words, i, minimum), literal)
                << "word \"" << toUtf8(list[i]) << "\", rack \"" << toUtf8(rack)
                << "\", mandatory \"" << toUtf8(mandatory) << "\", forbidden \""
                << toUtf8(forbidden) << "\", allowance " << allowance << ", minimum " << minimum;
            const bool other = std::any_of(upper.begin(), upper.end(),
                                           [](char16_t c) { return alphabetIndex(c) < 0; });
            (other ? otherCharacters : alphabetOnly).count(literal);
        }
    }
    // The comparison means something only if every outcome occurred on both paths.
    for (const Tally& tally : {alphabetOnly, otherCharacters}) {
        EXPECT_GT(tally.rejected, 100);
        EXPECT_GT(tally.accepted, 100);
        EXPECT_GT(tally.bonus, 20);
    }
}

// Prepared values must equal WortBewertung whatever the table holds: whole
// values are summed as integers, anything else as doubles in word order.
struct ValueTableCase {
    const char* name;
    double common;       // A E H R N S, and every character outside the alphabet
    double rare;         // Q X Y
    std::size_t longest; // words up to this many characters
};

class PreparedValues : public ::testing::TestWithParam<ValueTableCase> {};

TEST_P(PreparedValues, EqualWortBewertung) {
    const ValueTableCase& c = GetParam();
    LetterValueTable values;
    for (unsigned code = 0; code < 256; ++code)
        values.set(static_cast<unsigned char>(code), c.common);
    for (const char16_t letter : u"QXY")
        values.set(windows1252Code(letter), c.rare);
    RandomTexts random(7);
    std::vector<std::u16string> list;
    for (int n = 0; n < 300; ++n) {
        std::u16string word = random.text(random.below(c.longest + 1));
        list.push_back(word);
    }
    const PreparedWords words(WordDatabase(joinedLines(list)), values);
    for (std::size_t i = 0; i < list.size(); ++i)
        ASSERT_EQ(words.entry(i).value, WortBewertung(values, list[i])) << toUtf8(list[i]);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tables, PreparedValues, ::testing::Values(
    ValueTableCase{"GameValues",           1,        10,          12},
    ValueTableCase{"NegativeWhole",        -3,       7,           40},
    ValueTableCase{"LargestWholeSummedAsIntegers", 1048576, -1048576, 5000},
    ValueTableCase{"JustAboveTheWholeBound", 1048577, 3,          5000},
    ValueTableCase{"HalvesRoundToEven",    0.5,      2.5,         12},
    ValueTableCase{"TinyFractions",        1e-9,     1,           12},
    ValueTableCase{"HugeSumsOverflow",     1e308,    -1e308,      12},
    ValueTableCase{"Infinite",             std::numeric_limits<double>::infinity(), 1, 12}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

struct TestCase {
    const char* name;
    std::u16string_view word; // as in the word list
    std::u16string_view rack; // upper-cased, as the run passes it
    std::u16string_view mandatory;
    std::u16string_view forbidden;
    double allowance;
    std::int16_t minimum;
};

// Inputs where a shortcut on letter sets or whole-number bounds could go wrong.
// clang-format off
const TestCase kTrickyCases[] = {
    {"MandatoryDigit_AlphabetWord",      u"FEE",   u"FEE",  u"1",   u"",    0.0,  0},
    {"MandatoryDigit_WordWithDigit",     u"FE1",   u"FE1",  u"1",   u"",    0.0,  0},
    {"ForbiddenQuestionMark_AlphabetWord",      u"FEE",   u"FEE",  u"",    u"?",   0.0,  0},
    {"RackWithSpace_WholeWord",          u"fee",   u"FEE ", u"",    u"",    0.0,  0},
    {"RackWithDigit_WordUsesIt",         u"fe1",   u"FE1",  u"",    u"",    0.0,  0},
    {"AllowanceJustBelowWhole",          u"FEETT", u"FEE",  u"",    u"",    1.999, 0},
    {"AllowanceJustAboveWhole",          u"FEETT", u"FEE",  u"",    u"",    2.001, 0},
    {"AllowanceHalf_OneExtra",           u"FEET",  u"FEE",  u"",    u"",    0.5,  0},
    {"AllowanceNegative_TwoLetters",     u"fe",    u"FE",   u"",    u"",   -5.0,  0},
    {"AllowanceNegativeLarge_Empty",     u"",      u"",     u"",    u"",   -1e9,  0},
    {"AllowanceNotANumber_TwoLetters",   u"FE",    u"FE",   u"",    u"",    std::nan(""), 0},
    {"AllowanceNotANumber_OneExtra",     u"FT",    u"FE",   u"",    u"",    std::nan(""), 0},
    {"AllowanceInfinite_LongWord",       u"QQQQQQQQQQQQQQQQQQQQQQQQQQQQQQ", u"", u"", u"", 1e300, 0},
    {"ValueOutOfRange_CountsZero",       u"YY",    u"YY",   u"",    u"",    0.0,  1},
    {"ValueOutOfRange_MinimumZero",      u"YY",    u"YY",   u"",    u"",    0.0,  0},
    {"LowerCaseUmlautsAndSharpS",        u"äöüß",  u"ÄÖÜß", u"Ö",   u"",    0.0,  0},
    {"MandatorySharpS_WordWithSS",       u"SS",    u"SS",   u"ß",   u"",    0.0, -5},
    {"RackLongerThanWord_NoBonus",       u"AB",    u"ABC",  u"",    u"",    0.0,  0},
    {"EmptyWord_EmptyRack",              u"",      u"",     u"",    u"",    0.0,  0},
};
// clang-format on

class WordTestTricky : public ::testing::TestWithParam<TestCase> {};

TEST_P(WordTestTricky, DecidesLikeTheLiteralTest) {
    const TestCase& c = GetParam();
    const LetterValueTable values = randomishValues();
    const WordDatabase database{std::u16string(c.word) + u"\r\n"};
    const PreparedWords words(database, values);
    const WordTest test(c.rack, c.mandatory, c.forbidden, c.allowance);
    EXPECT_EQ(test.check(words, 0, c.minimum),
              WortPrüfen(values, toUpper(c.word), c.rack, c.mandatory, c.forbidden, c.allowance,
                         c.minimum));
}

INSTANTIATE_TEST_SUITE_P(Cases, WordTestTricky, ::testing::ValuesIn(kTrickyCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace lettriner
