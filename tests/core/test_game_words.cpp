// The data tool: the rules that make the game's word list, the list it made
// for this build as a player meets it, and the small tables shipped beside it.

#include "data/language_file.h"
#include "data/settings_file.h"
#include "data/text_case.h"
#include "data/text_codec.h"
#include "data/text_lines.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "support/temp_folder.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
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
    for (const std::u16string_view word : {u"Haus", u"äöüÄÖÜß", u"xy"})
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

TEST(WordFileBytes, ReadBackByTheProgramAsTheWordsAndOneEmptyEntry) {
    const std::string bytes = wordFileBytes({u"Äpfel", u"über"});
    EXPECT_EQ(bytes, "\xC4pfel\r\n\374ber\r\n");
    const WordDatabase list(decodeWindows1252(bytes));
    EXPECT_EQ(list.highestIndex(), 2);
}

std::string fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The list this build made, checked as a player would meet it.
class ShippedWordList : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        database_ = new WordDatabase(decodeWindows1252(fileBytes(LETTRINER_RUN_DIR "/DB1.txt")));
        for (const std::u16string& word :
             ruleFileWords(fileBytes(LETTRINER_WORD_RULES "/vowelless.txt")))
            vowelless_.insert(toUpper(word));
    }
    static void TearDownTestSuite() { delete database_; }
    static std::u16string gameForm(std::u16string_view spelling) {
        return toUpper(replaceAll(withoutAccents(spelling), u"ß", u"ss"));
    }
    // A word no player can lay: one letter, no vowel (outside the allow list),
    // or every spelling of it in the source list excluded.
    static bool offending(const std::u16string& upper) {
        return upper.size() < 2 || (!hasVowel(upper) && !vowelless_.contains(upper)) ||
               excludedOnly().contains(upper);
    }
    static const std::unordered_set<std::u16string>& excludedOnly() {
        static const std::unordered_set<std::u16string> forms = [] {
            std::unordered_set<std::u16string> excluded;
            for (const std::u16string& word :
                 ruleFileWords(fileBytes(LETTRINER_WORD_RULES "/wordgame-exclusions.txt")))
                excluded.insert(word);
            std::unordered_set<std::u16string> excludedForms;
            std::unordered_set<std::u16string> keptForms;
            for (const std::u16string& spelling : ruleFileWords(fileBytes(LETTRINER_WORD_SOURCE)))
                (excluded.contains(spelling) ? excludedForms : keptForms)
                    .insert(gameForm(spelling));
            std::erase_if(excludedForms,
                          [&](const auto& form) { return keptForms.contains(form); });
            return excludedForms;
        }();
        return forms;
    }
    static inline WordDatabase* database_ = nullptr;
    static inline std::unordered_set<std::u16string> vowelless_;
};

TEST_F(ShippedWordList, HoldsEverydayWordsAndNothingAPlayerCannotLay) {
    ASSERT_GE(database_->size(), 340'000u);
    std::unordered_set<std::u16string> upper;
    for (std::size_t i = 0; i + 1 < database_->size(); ++i) {
        const std::u16string_view word = (*database_)[i];
        ASSERT_FALSE(hasSeveralCapitals(word)) << toUtf8(word);
        ASSERT_FALSE(offending(toUpper(word))) << toUtf8(word);
        upper.insert(toUpper(word));
    }
    for (const std::u16string_view word :
         {u"NAHE", u"SAUER", u"DACH", u"GRÖSSTEN", u"STRASSE", u"ZUSCHUSS", u"BERLINER",
          u"HAMBURGER", u"EUROS", u"CAFE", u"CREPE", u"EXPOSE", u"AI", u"HM", u"TÖ", u"UI"})
        EXPECT_TRUE(upper.contains(std::u16string(word))) << toUtf8(word);
}

TEST_F(ShippedWordList, BestFiveWordsOfTwoHundredRacksCanAllBeLaid) {
    // The German tile bag without blanks; racks of seven tiles from it.
    const std::u16string bag = u"EEEEEEEEEEEEEEENNNNNNNNNSSSSSSSIIIIIIRRRRRRTTTTTTUUUUUUAAAAAADDDD"
                               u"HHHHGGGLLLOOOMMMMBBWCCFFKKPÄJÜVÖXQY";
    const PreparedWords words(*database_,
                              letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                    decodeWindows1252(valueFileBytes())));
    std::mt19937 random(2026);
    int offendingWords = 0;
    for (int rack = 0; rack < 200; ++rack) {
        HeadlessFields fields;
        fields.texts = {u"", u"", u"", u"0"};
        for (int tile = 0; tile < 7; ++tile)
            fields.texts.rack += bag[random() % bag.size()];
        fields.minimum = u"0";
        const HeadlessOutcome outcome = searchWithoutWindow(words, fields);
        for (std::size_t row = 0; row < 5 && row < outcome.mainList.rows().size(); ++row) {
            const std::u16string& word = outcome.mainList.rows()[row][0];
            if (!word.empty() && offending(word)) { // the empty last line is no word
                ++offendingWords;
                ADD_FAILURE() << toUtf8(fields.texts.rack) << ": " << toUtf8(word);
            }
        }
    }
    EXPECT_EQ(offendingWords, 0);
}

TEST(ShippedTables, LetterValuesMessagesAndSettingsReadBackAsMeant) {
    const LetterValueTable values = letterValuesFromTexts(decodeWindows1252(letterFileBytes()),
                                                          decodeWindows1252(valueFileBytes()));
    EXPECT_EQ(WortBewertung(values, u"ENSIRTUAD HGLO MBWZ CFKP ÄJÜV ÖX QY"),
              9 * 1 + 4 * 2 + 4 * 3 + 4 * 4 + 4 * 6 + 2 * 8 + 2 * 10);
    EXPECT_EQ(WortBewertung(values, u"ß"), 0); // no ß tile
    lettriner::testing::TempFolder folder;
    folder.write("Sprachen.txt", messageFileBytes());
    EXPECT_EQ(MeldungLaden(folder.path(), u"[Suchen]", 0), u"Suchen");
    EXPECT_EQ(MeldungLaden(folder.path(), u"[Bonus]", 1),
              u"These words use every tile.\r\nThey earn a bonus.");
    folder.write("Settings.txt", settingsFileBytes());
    EXPECT_EQ(SettingsLaden(folder.path()), 0);
    SettingsSpeichern(folder.path(), 0);
    EXPECT_EQ(folder.read("Settings.txt"), settingsFileBytes());
}

} // namespace
} // namespace lettriner::tools
