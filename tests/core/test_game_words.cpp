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
        {u"Café", u"Cafe"},   {u"Crêpe", u"Crepe"},   {u"Exposé", u"Expose"}, {u"Señor", u"Senor"},
        {u"voilà", u"voila"}, {u"ÉCLAIR", u"ECLAIR"}, {u"Übel", u"Übel"},     {u"Maß", u"Maß"}};
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
    rules.vowelless = {u"hm"};
    rules.supplement = {u"Ai", u"uh", u"nahe", u"Hm", u"x", u"BB"};
    const std::string source = "Haus\r\nNahe\nnahe\ngr\xC3\xB6\xC3\x9Ften\ngr\xC3\xB6ssten\n"
                               "gr\xC3\xB6sseren\nUlm\nCaf\xC3\xA9\nExpos\xC3\xA9\nStra\xC3\x9F"
                               "e\nStrasse\nA\nx\nGmbH\nABC\nDr\nhm\nE-Mail\n\nhaus\n";
    const GameWordList list = gameWords(source, rules);
    EXPECT_EQ(list.words, (Words{u"Haus", u"nahe", u"grössten", u"grösseren", u"Expose", u"Strasse",
                                 u"hm", u"Ai", u"uh"}));
    const std::pair<Outcome, std::size_t> counts[] = {
        {Outcome::Kept, 7},      {Outcome::Excluded, 4},        {Outcome::NotGameLetters, 1},
        {Outcome::OneLetter, 3}, {Outcome::SeveralCapitals, 3}, {Outcome::NoVowel, 1},
        {Outcome::Duplicate, 4}, {Outcome::Supplemented, 2}};
    for (const auto& [outcome, count] : counts)
        EXPECT_EQ(list.count(outcome), count) << static_cast<int>(outcome);
    EXPECT_NE(reportText(list).find("       3  dropped: one letter\n"), std::string::npos);
    EXPECT_TRUE(reportText(list).ends_with("       9  words in the game's word list\n"));
}

TEST(ShippedTables, LetterValuesOfTheGermanEdition) {
    const LetterValueTable values = letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                          decodeWindows1252(valueFileBytes()));
    EXPECT_EQ(WortBewertung(values, u"ENSIRTUAD HGLO MBWZ CFKP ÄJÜV ÖX QYß"),
              9 * 1 + 4 * 2 + 4 * 3 + 4 * 4 + 4 * 6 + 2 * 8 + 2 * 10); // no ß tile
}

} // namespace
} // namespace lettriner::tools
