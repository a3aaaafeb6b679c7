// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The words a player must find in the game's list, in groups
// (tools/wordlist/must-find.txt), and how many of each group a list holds.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace lettriner::tools {

struct WordGroup {
    std::string name;
    std::vector<std::u16string> words; // upper case, ß as SS: as the list is searched
};

struct MustFindWords {
    std::vector<WordGroup> groups;
    std::string error; // empty when the file is well formed; then `groups` is empty
};

// UTF-8 text: "[name]" on a line of its own starts a group, words follow
// separated by blanks, "#" starts a comment. Fails on a word before the first
// group, a group without words, a "[" without its "]" and a name used twice.
[[nodiscard]] MustFindWords mustFindWords(std::string_view utf8File);

struct GroupCoverage {
    std::string name;
    std::size_t total = 0;
    std::vector<std::u16string> missing;
};

// For each group, the words that `listed` (upper-case forms) lacks.
[[nodiscard]] std::vector<GroupCoverage> coverage(const std::vector<WordGroup>& groups,
                                                  const std::unordered_set<std::u16string>& listed);

} // namespace lettriner::tools
