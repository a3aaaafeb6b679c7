// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-make-data: writes the data files the program ships.
//   lettriner-make-data words SOURCE RULES OUT
//                     game word list from a UTF-8 German list, with the rule
//                     files of the folder RULES (see tools/wordlist/README.md)
//   lettriner-make-data letters OUT1 OUT2  letter table and values
//   lettriner-make-data messages OUT       message file
//   lettriner-make-data settings OUT       default settings file

#include "data/text_case.h"
#include "tools/file_bytes.h"
#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

bool writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) {
        std::fprintf(stderr, "lettriner-make-data: cannot write %s\n", path.c_str());
        return false;
    }
    return true;
}

int makeWords(const std::string& source, const std::string& rulesFolder,
              const std::string& target) {
    const std::optional<std::string> list = lettriner::tools::fileBytes(source);
    if (!list) {
        std::fprintf(stderr,
                     "lettriner-make-data: the German word list %s is missing; install the "
                     "Debian package 'wngerman'\n",
                     source.c_str());
        return 1;
    }
    const auto ruleWords = [&rulesFolder](const char* name, std::vector<std::u16string>& words) {
        const std::optional<std::string> bytes =
            lettriner::tools::fileBytes(rulesFolder + "/" + name);
        if (!bytes) {
            std::fprintf(stderr, "lettriner-make-data: cannot read %s/%s\n", rulesFolder.c_str(),
                         name);
            return false;
        }
        words = lettriner::tools::ruleFileWords(*bytes);
        return true;
    };
    lettriner::tools::WordListRules rules;
    std::vector<std::u16string> exclusions;
    std::vector<std::u16string> vowelless;
    if (!ruleWords("wordgame-exclusions.txt", exclusions) ||
        !ruleWords("vowelless.txt", vowelless) || !ruleWords("supplement.txt", rules.supplement))
        return 1;
    rules.exclusions.insert(exclusions.begin(), exclusions.end());
    for (const std::u16string& word : vowelless)
        rules.vowelless.insert(lettriner::toLower(word));
    const auto words = lettriner::tools::gameWords(*list, rules);
    if (words.words.empty()) {
        std::fprintf(stderr, "lettriner-make-data: %s holds no usable words\n", source.c_str());
        return 1;
    }
    std::cout << "lettriner-make-data: " << target << " from " << source << ":\n"
              << lettriner::tools::reportText(words);
    return writeFile(target, lettriner::tools::wordFileBytes(words.words)) ? 0 : 1;
}

int usage() {
    std::cerr << "usage: lettriner-make-data words SOURCE RULES OUT | letters OUT1 OUT2 | "
                 "messages OUT | settings OUT\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return usage();
    const std::string_view command = argv[1];
    if (command == "words" && argc == 5)
        return makeWords(argv[2], argv[3], argv[4]);
    if (command == "letters" && argc == 4) {
        return writeFile(argv[2], lettriner::tools::letterFileBytes()) &&
                       writeFile(argv[3], lettriner::tools::valueFileBytes())
                   ? 0
                   : 1;
    }
    if (command == "messages" && argc == 3)
        return writeFile(argv[2], lettriner::tools::messageFileBytes()) ? 0 : 1;
    if (command == "settings" && argc == 3)
        return writeFile(argv[2], lettriner::tools::settingsFileBytes()) ? 0 : 1;
    return usage();
}
