// SPDX-License-Identifier: GPL-3.0-or-later
// The data tool: the rules that make the game's word list, and the small
// tables shipped beside it. (lettriner-audit-words checks the list itself.)

#include "data/text_codec.h"
#include "data/utf8.h"
#include "engine/letter_values.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lettriner::tools {
namespace {

using Words = std::vector<std::u16string>;

TEST(WordRules, EachFilterOnTellingWords) {
    const std::pair<std::u16string, std::u16string> accents[] = {
        {u"Café", u"Cafe"},     {u"Crêpe", u"Crepe"}, {u"Exposé", u"Expose"},
        {u"Señor", u"Senor"},   {u"voilà", u"voila"}, {u"ÉCLAIR", u"ECLAIR"},
        {u"Übel", u"Übel"},     {u"Maß", u"Maß"},     {u"Ångström", u"Angström"},
        {u"Shōgun", u"Shogun"}, {u"Brač", u"Brac"},   {u"Šeqel", u"Seqel"}};
    for (const auto& [word, plain] : accents)
        EXPECT_EQ(withoutAccents(word), plain);
    for (const std::u16string_view word : {u"Haus", u"äöüÄÖÜß", u"xyz", u"AZ"})
        EXPECT_TRUE(hasOnlyGameLetters(word)) << toUtf8(word);
    for (const std::u16string_view word : {u"A4", u"E-Mail", u"George's", u"zwei Wörter", u"Café"})
        EXPECT_FALSE(hasOnlyGameLetters(word)) << toUtf8(word);
    for (const std::u16string_view word :
         {u"GmbH", u"MwSt", u"CDs", u"UFOs", u"LehrerInnen", u"ÄÖ"})
        EXPECT_TRUE(hasSeveralCapitals(word)) << toUtf8(word);
    for (const std::u16string_view word : {u"Haus", u"haus", u"Ähre", u"A"})
        EXPECT_FALSE(hasSeveralCapitals(word)) << toUtf8(word);
    for (const std::u16string_view word : {u"Dr", u"cm", u"bzw", u"kWh", u"Bspw", u"hm", u"ß"})
        EXPECT_FALSE(hasVowel(word)) << toUtf8(word);
    for (const std::u16string_view word : {u"ja", u"Öl", u"Ypsilon", u"xy", u"Übel", u"tä"})
        EXPECT_TRUE(hasVowel(word)) << toUtf8(word);
    EXPECT_EQ(ruleFileWords("# comment\r\n  hm  # why\n\npst\n\t\n\xC3\xB6l"),
              (Words{u"hm", u"pst", u"öl"}));
}

TEST(GameWords, KeepsWordsAPlayerCanLayOncePerUpperCaseForm) {
    WordListRules rules;
    rules.exclusions = {u"Nahe", u"grössten", u"Ulm", u"Café"};
    rules.vowelless = {u"hmm"};
    rules.supplement = {u"uhu", u"nahe", u"Hmm", u"x", u"BBB"};
    const Words wordGame =
        sourceEntries("Haus\r\nNahe\nnahe\ngr\xC3\xB6\xC3\x9Ften\ngr\xC3\xB6ssten\n"
                      "gr\xC3\xB6sseren\nUlm\nCaf\xC3\xA9\nExpos\xC3\xA9\nStra\xC3\x9F"
                      "e\nStrasse\nA\nx\nGmbH\nABC\nDrs\nhmm\nE-Mail\n\nhaus\n");
    const GameWordList list = gameWords(wordGame, {}, rules);
    EXPECT_EQ(list.words, (Words{u"Haus", u"nahe", u"grössten", u"grösseren", u"Expose", u"Strasse",
                                 u"hmm", u"uhu"}));
    const std::pair<Outcome, std::size_t> counts[] = {
        {Outcome::Kept, 8},      {Outcome::Excluded, 4},        {Outcome::NotGameLetters, 1},
        {Outcome::OneLetter, 3}, {Outcome::SeveralCapitals, 3}, {Outcome::NoVowel, 1},
        {Outcome::Duplicate, 4}, {Outcome::TwoLetters, 0}};
    for (const auto& [outcome, count] : counts)
        EXPECT_EQ(list.count(outcome), count) << static_cast<int>(outcome);
    EXPECT_NE(reportText(list).find(
                  "          2          0          1          0  dropped: one letter\n"),
              std::string::npos);
}

// What each source may give: the word-game list every word that passes, the
// general list only lower-case words of six or more tiles it alone has, the
// curated files what they hold (two letters only from the two-letter file).
TEST(GameWords, MergesTheTwoSourcesByTheirOwnRules) {
    struct Case {
        const char* name;
        Words wordGame;
        Words general;
        Words twoLetter;
        Words supplement;
        Words expected;
        Source source; // whose count is checked
        Outcome outcome;
    };
    // clang-format off
    const Case cases[] = {
        {"word-game word kept",                  {u"Quiz"}, {}, {}, {}, {u"Quiz"}, Source::WordGame, Outcome::Kept},
        {"general word the word game has",       {u"Quiz"}, {u"Quiz"}, {}, {}, {u"Quiz"}, Source::General, Outcome::Duplicate},
        {"same form, other spelling (ß)",        {u"Straße"}, {u"Strasse"}, {}, {}, {u"Strasse"}, Source::General, Outcome::Duplicate},
        {"general capitalised, alone: a name",   {u"Quiz"}, {u"Schily"}, {}, {}, {u"Quiz"}, Source::General, Outcome::CapitalisedGeneral},
        {"general one inner capital, alone",     {}, {u"iPhones"}, {}, {}, {}, Source::General, Outcome::CapitalisedGeneral},
        {"general short lower case: abbreviation", {}, {u"evtl", u"vergl"}, {}, {}, {}, Source::General, Outcome::ShortGeneral},
        {"general lower case, six tiles",        {}, {u"gelbes"}, {}, {}, {u"gelbes"}, Source::General, Outcome::Kept},
        {"general ß counts two tiles",           {}, {u"grüßt"}, {}, {}, {u"grüsst"}, Source::General, Outcome::Kept},
        {"general accent dropped, five tiles",   {}, {u"passé"}, {}, {}, {}, Source::General, Outcome::ShortGeneral},
        {"general two letters, any case",        {}, {u"ab", u"Öl", u"mA"}, {}, {}, {}, Source::General, Outcome::TwoLetters},
        {"word-game two letters (umlaut key)",   {u"öl", u"äh"}, {}, {}, {}, {}, Source::WordGame, Outcome::TwoLetters},
        {"word-game capitalised kept",           {u"Aachener"}, {}, {}, {}, {u"Aachener"}, Source::WordGame, Outcome::Kept},
        {"two-letter file without vowel",        {}, {}, {u"st", u"hm"}, {}, {u"st", u"hm"}, Source::TwoLetter, Outcome::Kept},
        {"two-letter file twice",                {}, {}, {u"na", u"Na"}, {}, {u"na"}, Source::TwoLetter, Outcome::Duplicate},
        {"two-letter file, three letters",       {}, {}, {u"pst"}, {}, {}, Source::TwoLetter, Outcome::LongerThanTwo},
        {"two-letter file, two capitals",        {}, {}, {u"CO"}, {}, {}, Source::TwoLetter, Outcome::SeveralCapitals},
        {"supplement two letters go",            {}, {}, {}, {u"ui"}, {}, Source::Supplement, Outcome::TwoLetters},
        {"supplement keeps the vowel rule",      {}, {}, {}, {u"pst"}, {}, Source::Supplement, Outcome::NoVowel},
        {"supplement word a source has",         {u"Uhu"}, {}, {}, {u"uhu"}, {u"Uhu"}, Source::Supplement, Outcome::Duplicate},
        {"order: sources, supplement, two",      {u"Quiz"}, {u"gelbes"}, {u"zu"}, {u"uhu"}, {u"Quiz", u"gelbes", u"uhu", u"zu"}, Source::TwoLetter, Outcome::Kept},
    };
    // clang-format on
    for (const Case& c : cases) {
        WordListRules rules;
        rules.twoLetter = c.twoLetter;
        rules.supplement = c.supplement;
        const GameWordList list = gameWords(c.wordGame, c.general, rules);
        EXPECT_EQ(list.words, c.expected) << c.name;
        EXPECT_GE(list.count(c.source, c.outcome), 1u) << c.name;
    }
}

TEST(GameWords, ExclusionsApplyToBothSourcesButNotToTheCuratedFiles) {
    WordListRules rules;
    rules.exclusions = {u"Alf", u"Nahe", u"Orwell", u"na"};
    rules.twoLetter = {u"na"};
    const GameWordList list = gameWords({u"Alf", u"Nahe", u"nahe"}, {u"Orwell", u"alfige"}, rules);
    EXPECT_EQ(list.words, (Words{u"nahe", u"alfige", u"na"}));
    EXPECT_EQ(list.count(Source::WordGame, Outcome::Excluded), 2u);
    EXPECT_EQ(list.count(Source::General, Outcome::Excluded), 1u);
    EXPECT_EQ(list.count(Source::TwoLetter, Outcome::Kept), 1u);
}

TEST(GameWords, ReportCountsEveryRulePerSource) {
    WordListRules rules;
    rules.twoLetter = {u"st"};
    const GameWordList list = gameWords({u"Haus", u"Öl"}, {u"Haus", u"Schily", u"usw"}, rules);
    const std::string report = reportText(list);
    EXPECT_NE(report.find("\n          1          0          0          1  kept\n"),
              std::string::npos)
        << report;
    EXPECT_NE(report.find("\n          0          1          0          0  dropped: capitalised"),
              std::string::npos)
        << report;
    EXPECT_TRUE(report.ends_with("\n          2  words in the game's word list\n")) << report;
}

TEST(ShippedTables, LetterValuesOfTheGermanEdition) {
    const LetterValueTable values = letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                          decodeWindows1252(valueFileBytes()));
    EXPECT_EQ(WortBewertung(values, u"ENSIRTUAD HGLO MBWZ CFKP ÄJÜV ÖX QYß"),
              9 * 1 + 4 * 2 + 4 * 3 + 4 * 4 + 4 * 6 + 2 * 8 + 2 * 10); // no ß tile
}

} // namespace
} // namespace lettriner::tools
