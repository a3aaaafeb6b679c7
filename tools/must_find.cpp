// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/must_find.h"

#include "data/text_case.h"
#include "data/utf8.h"
#include "tools/game_words.h"

#include <algorithm>

namespace lettriner::tools {
namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

MustFindWords failure(std::size_t line, const std::string& why) {
    return {{}, "line " + std::to_string(line) + ": " + why};
}

} // namespace

MustFindWords mustFindWords(std::string_view utf8File) {
    MustFindWords result;
    std::size_t number = 0;
    std::size_t start = 0;
    while (start <= utf8File.size()) {
        std::size_t end = utf8File.find('\n', start);
        if (end == std::string_view::npos)
            end = utf8File.size();
        std::string_view line = utf8File.substr(start, end - start);
        start = end + 1;
        ++number;
        line = trimmed(line.substr(0, line.find('#')));
        if (line.empty())
            continue;
        if (line.front() == '[') {
            if (line.back() != ']' || line.size() < 3)
                return failure(number, "a group name is written [name]");
            std::string name(trimmed(line.substr(1, line.size() - 2)));
            if (!result.groups.empty() && result.groups.back().words.empty())
                return failure(number, "the group " + result.groups.back().name + " has no words");
            if (std::any_of(result.groups.begin(), result.groups.end(),
                            [&name](const WordGroup& group) { return group.name == name; }))
                return failure(number, "a second group " + name);
            result.groups.push_back({std::move(name), {}});
            continue;
        }
        if (result.groups.empty())
            return failure(number, "a word before the first [group]");
        for (std::size_t at = line.find_first_not_of(kBlanks); at != std::string_view::npos;) {
            const std::size_t after = std::min(line.find_first_of(kBlanks, at), line.size());
            result.groups.back().words.push_back(
                toUpper(writtenForTheGame(fromUtf8(line.substr(at, after - at)))));
            at = line.find_first_not_of(kBlanks, after);
        }
    }
    if (result.groups.empty())
        return failure(number, "no group");
    if (result.groups.back().words.empty())
        return failure(number, "the group " + result.groups.back().name + " has no words");
    return result;
}

std::vector<GroupCoverage> coverage(const std::vector<WordGroup>& groups,
                                    const std::unordered_set<std::u16string>& listed) {
    std::vector<GroupCoverage> result;
    for (const WordGroup& group : groups) {
        GroupCoverage& covered = result.emplace_back();
        covered.name = group.name;
        covered.total = group.words.size();
        for (const std::u16string& word : group.words) {
            if (!listed.contains(word))
                covered.missing.push_back(word);
        }
    }
    return result;
}

} // namespace lettriner::tools
