// The letter test and the two letter columns, case by case.

#include "data/text_codec.h"
#include "engine/word_check.h"
#include "support/case_names.h"
#include "support/engine_printing.h"
#include "support/u16_printing.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner {
namespace {

using testing::PrintTo; // table rows by name

constexpr std::u16string_view kDefaultRack = u"AFEEZHRB";

// Every letter of the game is worth 1, except S (-2) and Q (10), so that a
// word's value is mostly its length.
LetterValueTable oneEach() {
    LetterValueTable table;
    for (const char16_t c : std::u16string_view(u"ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜß"))
        table.set(windows1252Code(c), 1.0);
    table.set(windows1252Code(u'S'), -2.0);
    table.set(windows1252Code(u'Q'), 10.0);
    return table;
}

struct CheckCase {
    const char* name;
    std::u16string_view word;
    std::u16string_view rack;
    std::u16string_view mandatory;
    std::u16string_view forbidden;
    double allowance;
    std::int16_t minimum;
    CheckResult expected;
};

constexpr CheckResult kNo = CheckResult::Rejected;
constexpr CheckResult kYes = CheckResult::Accepted;
constexpr CheckResult kBonus = CheckResult::AcceptedAsBonus;

// clang-format off
const CheckCase kCheckCases[] = {
    // name                                    word        rack          mand.   forb.  allow.  min  expected
    {"WorkedExample_FEE_UsesRackTiles",        u"FEE",      kDefaultRack, u"",    u"",    0.0,   0,  kYes},
    {"WorkedExample_ThreeE_NeedOneExtra",      u"EEE",      kDefaultRack, u"",    u"",    0.0,   0,  kNo},
    {"WorkedExample_ThreeE_AllowanceOne",      u"EEE",      kDefaultRack, u"",    u"",    1.0,   0,  kYes},
    {"WholeRackUsed_IsBonus",                  u"BREZHAFE", kDefaultRack, u"",    u"",    0.0,   0,  kBonus},
    {"MandatoryFromBoard_Covered",             u"FEET",     kDefaultRack, u"T",   u"",    1.0,   0,  kYes},
    {"MandatoryFromBoard_NotCovered",          u"FEET",     kDefaultRack, u"T",   u"",    0.0,   0,  kNo},
    {"MandatoryMissing",                       u"FEE",      kDefaultRack, u"A",   u"",    0.0,   0,  kNo},
    {"MandatoryTwice_OneOccurrenceEnough",     u"FEH",      kDefaultRack, u"HH",  u"",    0.0,   0,  kYes},
    {"MandatoryAndForbidden_WordHasIt",        u"FEE",      kDefaultRack, u"E",   u"E",   0.0,   0,  kNo},
    {"MandatoryAndForbidden_WordLacksIt",      u"HAB",      kDefaultRack, u"E",   u"E",   0.0,   0,  kNo},
    {"ForbiddenPresent",                       u"FEZ",      kDefaultRack, u"",    u"QZ",  0.0,   0,  kNo},
    {"ForbiddenAbsent",                        u"FEH",      kDefaultRack, u"",    u"QZ",  0.0,   0,  kYes},
    {"EmptyRack_AcceptedWordIsBonus",          u"AB",       u"",          u"",    u"",    2.0,   0,  kBonus},
    {"EmptyRack_ThreeLettersWithinAllowance",  u"ABC",      u"",          u"",    u"",    3.0,   0,  kBonus},
    {"EmptyRack_LongerThanAllowance",          u"ABC",      u"",          u"",    u"",    2.0,   0,  kNo},
    {"EmptyRack_OneLetterWithoutAllowance",    u"A",        u"",          u"",    u"",    0.0,   0,  kNo},
    {"RackWithSpace_AllLettersUsed_NoBonus",   u"FEE",      u"FEE ",      u"",    u"",    0.0,   0,  kYes},
    {"RackWithSpace_SpaceInWordUsesIt",        u"FE E",     u"FEE ",      u"",    u"",    0.0,   0,  kBonus},
    {"EmptyWord_MinimumZero",                  u"",         kDefaultRack, u"",    u"",    0.0,   0,  kYes},
    {"EmptyWord_NegativeMinimum",              u"",         kDefaultRack, u"",    u"",    0.0,  -3,  kYes},
    {"EmptyWord_MinimumOne",                   u"",         kDefaultRack, u"",    u"",    0.0,   1,  kNo},
    {"EmptyWord_AnyMandatoryLetter",           u"",         kDefaultRack, u"A",   u"",    0.0,   0,  kNo},
    {"EmptyWord_ForbiddenLettersGiven",        u"",         kDefaultRack, u"",    u"QZ",  0.0,   0,  kYes},
    {"EmptyWord_EmptyRack_IsBonus",            u"",         u"",          u"",    u"",    0.0,   0,  kBonus},
    {"AllowanceOneAndAHalf_OneExtra",          u"FEET",     u"FEE",       u"",    u"",    1.5,   0,  kBonus},
    {"AllowanceOneAndAHalf_TwoExtra",          u"FEETT",    u"FEE",       u"",    u"",    1.5,   0,  kNo},
    {"AllowanceOneAndAHalf_LengthBound",       u"ABCD",     u"ABC",       u"",    u"",    1.5,   0,  kBonus},
    {"NegativeAllowance_ShortensLengthBound",  u"FEE",      u"FEE",       u"",    u"",   -1.0,   0,  kNo},
    {"NegativeAllowance_TwoLettersAlwaysPass", u"FE",       u"FE",        u"",    u"",   -1.0,   0,  kBonus},
    {"NegativeAllowance_NoExtraLetter",        u"FT",       u"FEE",       u"",    u"",   -1.0,   0,  kNo},
    {"LengthBound_OneMoreThanRack",            u"ABCD",     u"ABC",       u"",    u"",    0.0,   0,  kNo},
    {"LengthBound_AllowanceCoversIt",          u"ABCD",     u"ABC",       u"",    u"",    1.0,   0,  kBonus},
    {"ValueBelowMinimum",                      u"FEE",      kDefaultRack, u"",    u"",    0.0,   4,  kNo},
    {"ValueEqualsMinimum",                     u"FEE",      kDefaultRack, u"",    u"",    0.0,   3,  kYes},
    {"NegativeValue_EqualsNegativeMinimum",    u"SS",       u"SS",        u"",    u"",    0.0,  -4,  kBonus},
    {"NegativeValue_BelowNegativeMinimum",     u"SS",       u"SS",        u"",    u"",    0.0,  -3,  kNo},
    {"ValueFromBoardLetters",                  u"QA",       u"AB",        u"",    u"",    1.0,  11,  kYes},
    {"RepeatedLetters_TwoE",                   u"EE",       kDefaultRack, u"",    u"",    0.0,   0,  kYes},
    {"RepeatedLetters_TwoTilesNeeded",         u"HH",       kDefaultRack, u"",    u"",    0.0,   0,  kNo},
    {"SharpS_IsNotDoubleS",                    u"ß",        u"SS",        u"",    u"",    0.0,  -5,  kNo},
    {"SharpS_MatchesItself",                   u"ß",        u"ß",         u"",    u"",    0.0,   0,  kBonus},
    {"Umlaut_IsNotItsBaseLetter",              u"Ä",        u"A",         u"",    u"",    0.0,   0,  kNo},
    {"QuestionMark_IsNoWildcard",              u"AB",       u"A?",        u"",    u"",    0.0,   0,  kNo},
    {"QuestionMark_MatchesItself",             u"A?",       u"A?",        u"",    u"",    0.0,   0,  kBonus},
    {"Digit_MandatoryAndPresent",              u"A1",       u"A1",        u"1",   u"",    0.0,   0,  kBonus},
};
// clang-format on

class WortPruefen : public ::testing::TestWithParam<CheckCase> {};

TEST_P(WortPruefen, GivesExpectedResult) {
    const CheckCase& c = GetParam();
    EXPECT_EQ(
        WortPrüfen(oneEach(), c.word, c.rack, c.mandatory, c.forbidden, c.allowance, c.minimum),
        c.expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, WortPruefen, ::testing::ValuesIn(kCheckCases),
                         [](const auto& row) { return std::string(row.param.name); });

struct ColumnCase {
    const char* name;
    std::u16string_view word;
    std::u16string_view rack;
    std::u16string_view needed;
    std::u16string_view leftOver;
};

// clang-format off
const ColumnCase kColumnCases[] = {
    // name                          word       rack          needed   left over
    {"TwoE_UseBothETiles",           u"EE",     kDefaultRack, u"",     u"afzhrb"},
    {"NeededInWordOrder",            u"TEST",   u"E",         u"tst",  u""},
    {"NoLimitOnNeededLetters",       u"XYZWV",  u"",          u"xyzwv", u""},
    {"LowerCaseWordMatchesRack",     u"fee",    kDefaultRack, u"",     u"azhrb"},
    {"LeftOverInRackOrder",          u"AX",     u"ZYXA",      u"",     u"zy"},
    {"LeftmostTileTaken",            u"A",      u"BAXA",      u"",     u"bxa"},
    {"RackSpaceIsLeftOver",          u"FEE",    u"FE E",      u"",     u" "},
    {"UmlautsLowerCased",            u"ÄÖ",     u"ÜÄ",        u"ö",    u"ü"},
    {"LowerCaseUmlautWord",          u"bär",    u"BÄR",       u"",     u""},
    {"SharpSStaysSharpS",            u"SS",     u"ß",         u"ss",   u"ß"},
    {"EmptyWordLeavesWholeRack",     u"",       u"AB C",      u"",     u"ab c"},
    {"EmptyRackNeedsEveryLetter",    u"Abc",    u"",          u"abc",  u""},
    {"OtherCharactersMatchThemselves", u"A1?",  u"?A",        u"1",    u""},
};
// clang-format on

class LetterColumns : public ::testing::TestWithParam<ColumnCase> {};

TEST_P(LetterColumns, NeededAndLeftOver) {
    const ColumnCase& c = GetParam();
    EXPECT_EQ(neededLetters(c.word, c.rack), c.needed);
    EXPECT_EQ(leftOverLetters(c.word, c.rack), c.leftOver);
}

INSTANTIATE_TEST_SUITE_P(Cases, LetterColumns, ::testing::ValuesIn(kColumnCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LetterColumnArrays, OneEntryPerWordWithTheSameIndices) {
    const std::vector<std::u16string> words = {u"FEE", u"", u"xyz", u"FEX"};
    EXPECT_EQ(ZusBuchstabenFeld(words, u"FEX"),
              (std::vector<std::u16string>{u"e", u"", u"yz", u""}));
    EXPECT_EQ(ÜbrigeBuchstFeld(words, u"FEX"),
              (std::vector<std::u16string>{u"x", u"fex", u"fe", u""}));
}

TEST(LetterColumnArrays, EmptyStoreGivesEmptyColumns) {
    EXPECT_TRUE(ZusBuchstabenFeld({}, kDefaultRack).empty());
    EXPECT_TRUE(ÜbrigeBuchstFeld({}, kDefaultRack).empty());
}

} // namespace
} // namespace lettriner
