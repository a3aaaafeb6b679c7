// SPDX-License-Identifier: GPL-3.0-or-later
// The words a player must find: the groups file and the coverage per group,
// and the curated word files themselves (a comment on every word, two-letter
// words of two tiles).

#include "data/utf8.h"
#include "tools/file_bytes.h"
#include "tools/game_words.h"
#include "tools/must_find.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner::tools {
namespace {

using Words = std::vector<std::u16string>;

// The rule files beside the sources (CMake names each source by its full path).
const std::string kRules =
    (std::filesystem::path(__FILE__).parent_path() / "../../tools/wordlist").string();

TEST(MustFind, ReadsGroupsOfWordsAsTheListIsSearched) {
    const MustFindWords words = mustFindWords("# why\n[high value]  # Q and X\nQUIZ  xenon\n"
                                              "\n[short]\r\nst Stra\xC3\x9F"
                                              "e # ß as SS\n");
    ASSERT_EQ(words.error, "");
    ASSERT_EQ(words.groups.size(), 2u);
    EXPECT_EQ(words.groups[0].name, "high value");
    EXPECT_EQ(words.groups[0].words, (Words{u"QUIZ", u"XENON"}));
    EXPECT_EQ(words.groups[1].name, "short");
    EXPECT_EQ(words.groups[1].words, (Words{u"ST", u"STRASSE"}));
}

TEST(MustFind, RefusesAMalformedFile) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"QUIZ\n[a]\nXENON\n", "line 1: a word before the first [group]"},
        {"[a]\n[b]\nQUIZ\n", "line 2: the group a has no words"},
        {"[a]\nQUIZ\n[b]\n# nothing\n", "line 5: the group b has no words"},
        {"[a\nQUIZ\n", "line 1: a group name is written [name]"},
        {"[]\nQUIZ\n", "line 1: a group name is written [name]"},
        {"[a]\nQUIZ\n[a]\nXENON\n", "line 3: a second group a"},
        {"# only comments\n", "line 2: no group"},
    };
    for (const auto& [text, why] : cases) {
        const MustFindWords words = mustFindWords(text);
        EXPECT_EQ(words.error, why) << text;
        EXPECT_TRUE(words.groups.empty()) << text;
    }
}

TEST(MustFind, CoverageNamesTheMissingWordsOfEachGroup) {
    const std::vector<WordGroup> groups = {{"a", {u"QUIZ", u"XENON", u"YAK"}}, {"b", {u"ST"}}};
    const std::vector<GroupCoverage> covered = coverage(groups, {u"QUIZ", u"ST", u"NA"});
    ASSERT_EQ(covered.size(), 2u);
    EXPECT_EQ(covered[0].name, "a");
    EXPECT_EQ(covered[0].total, 3u);
    EXPECT_EQ(covered[0].missing, (Words{u"XENON", u"YAK"}));
    EXPECT_EQ(covered[1].missing, Words{});
}

// Every word in the curated files says why it is a word; the two-letter file
// holds only two-tile words; the audit checks at least 150 words.
TEST(CuratedFiles, EveryWordCarriesItsReason) {
    for (const char* name : {"two-letter.txt", "supplement.txt", "vowelless.txt"}) {
        const std::optional<std::string> bytes = fileBytes(kRules + "/" + name);
        ASSERT_TRUE(bytes.has_value()) << name;
        std::size_t start = 0;
        while (start < bytes->size()) {
            std::size_t end = bytes->find('\n', start);
            if (end == std::string::npos)
                end = bytes->size();
            const std::string line = bytes->substr(start, end - start);
            start = end + 1;
            const std::vector<std::u16string> word = ruleFileWords(line);
            if (word.empty())
                continue;
            const std::size_t hash = line.find('#');
            EXPECT_TRUE(hash != std::string::npos &&
                        line.find_first_not_of(" \t", hash + 1) != std::string::npos)
                << name << ": " << line;
            if (std::string_view(name) == "two-letter.txt") {
                EXPECT_EQ(writtenForTheGame(word.front()).size(), 2u) << line;
            }
        }
    }
    const MustFindWords mustFind = mustFindWords(fileBytes(kRules + "/must-find.txt").value_or(""));
    ASSERT_EQ(mustFind.error, "");
    std::size_t count = 0;
    for (const WordGroup& group : mustFind.groups)
        count += group.words.size();
    EXPECT_GE(count, 150u);
}

} // namespace
} // namespace lettriner::tools
