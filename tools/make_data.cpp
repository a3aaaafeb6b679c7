// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-make-data: writes the data files the program ships.
//   lettriner-make-data words GENERAL WORDGAME RULES OUT
//                     game word list from a UTF-8 German list (wngerman) and
//                     a gzip word-game list (tanglet-data), with the rule
//                     files of the folder RULES (see tools/wordlist/README.md)
//   lettriner-make-data lexicon LIST OUT   the board's lexicon of the word
//                     list LIST (DB1.txt), stamped with what it was built from
//   lettriner-make-data letters OUT1 OUT2  letter table and values
//   lettriner-make-data messages OUT       message file
//   lettriner-make-data settings OUT       default settings file
// Every output is created afresh and never through a link (output_file.h).

#include "board/lexicon_file.h"
#include "board/playable_words.h"
#include "data/text_case.h"
#include "data/word_database.h"
#include "tools/file_bytes.h"
#include "tools/game_words.h"
#include "tools/gunzip.h"
#include "tools/output_file.h"
#include "tools/shipped_tables.h"
#include "tools/word_game_list.h"

#include <cstdio>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lettriner::tools;

// Larger than any word list will be unpacked (tanglet-data's is 16 MB).
constexpr std::size_t kUnpackedLimit = std::size_t{256} << 20;

bool writeFile(const std::string& path, const std::string& bytes) {
    const std::string error = writeNewFile(path, bytes);
    if (!error.empty()) {
        std::fprintf(stderr, "lettriner-make-data: %s\n", error.c_str());
        return false;
    }
    return true;
}

std::optional<std::vector<std::u16string>> generalEntries(const std::string& path) {
    const std::optional<std::string> bytes = fileBytes(path);
    if (!bytes) {
        std::fprintf(stderr,
                     "lettriner-make-data: the German word list %s is missing; install the "
                     "Debian package 'wngerman'\n",
                     path.c_str());
        return std::nullopt;
    }
    return sourceEntries(*bytes);
}

std::optional<std::vector<std::u16string>> wordGameEntries(const std::string& path) {
    const std::optional<std::string> bytes = fileBytes(path);
    if (!bytes) {
        std::fprintf(stderr,
                     "lettriner-make-data: the word-game list %s is missing; install the "
                     "Debian package 'tanglet-data'\n",
                     path.c_str());
        return std::nullopt;
    }
    const Gunzipped text = gunzip(*bytes, kUnpackedLimit);
    if (!text.error.empty()) {
        std::fprintf(stderr,
                     "lettriner-make-data: cannot read the word-game list %s: %s; reinstall the "
                     "Debian package 'tanglet-data'\n",
                     path.c_str(), text.error.c_str());
        return std::nullopt;
    }
    return wordGameSpellings(text.bytes);
}

std::optional<WordListRules> wordListRules(const std::string& folder) {
    const auto words = [&folder](const char* name) -> std::optional<std::vector<std::u16string>> {
        const std::optional<std::string> bytes = fileBytes(folder + "/" + name);
        if (!bytes) {
            std::fprintf(stderr, "lettriner-make-data: cannot read %s/%s\n", folder.c_str(), name);
            return std::nullopt;
        }
        return ruleFileWords(*bytes);
    };
    auto exclusions = words("wordgame-exclusions.txt");
    auto vowelless = words("vowelless.txt");
    auto supplement = words("supplement.txt");
    auto twoLetter = words("two-letter.txt");
    if (!exclusions || !vowelless || !supplement || !twoLetter)
        return std::nullopt;
    WordListRules rules;
    rules.exclusions.insert(exclusions->begin(), exclusions->end());
    for (const std::u16string& word : *vowelless)
        rules.vowelless.insert(lettriner::toLower(word));
    rules.supplement = std::move(*supplement);
    rules.twoLetter = std::move(*twoLetter);
    return rules;
}

int makeWords(const std::string& generalPath, const std::string& wordGamePath,
              const std::string& rulesFolder, const std::string& target) {
    const auto general = generalEntries(generalPath);
    const auto wordGame = wordGameEntries(wordGamePath);
    const auto rules = wordListRules(rulesFolder);
    if (!general || !wordGame || !rules)
        return 1;
    const GameWordList words = gameWords(*wordGame, *general, *rules);
    // A word of the general list that passes the rules is kept or is one the
    // word-game list gave already.
    const auto usable = [&words](Source source) {
        return words.count(source, Outcome::Kept) + words.count(source, Outcome::Duplicate) > 0;
    };
    for (const auto& [source, path] :
         {std::pair{Source::WordGame, &wordGamePath}, std::pair{Source::General, &generalPath}}) {
        if (!usable(source)) {
            std::fprintf(stderr, "lettriner-make-data: %s holds no usable words\n", path->c_str());
            return 1;
        }
    }
    std::cout << "lettriner-make-data: " << target << " from " << wordGamePath << " and "
              << generalPath << ":\n"
              << reportText(words);
    return writeFile(target, wordFileBytes(words.words)) ? 0 : 1;
}

// The lexicon, built from the list's bytes and stamped with the list's size,
// time and hash, so a program can tell whether it still belongs to the list.
int makeLexicon(const std::string& listPath, const std::string& target) {
    const std::optional<std::int64_t> modified = lettriner::board::modificationTime(listPath);
    const std::optional<std::string> bytes = fileBytes(listPath);
    if (!modified || !bytes || bytes->size() > lettriner::kLargestWordList) {
        std::fprintf(stderr, "lettriner-make-data: cannot read the word list %s\n",
                     listPath.c_str());
        return 1;
    }
    const lettriner::WordDatabase database{lettriner::FileContents(*bytes)};
    const std::string file = lettriner::board::encodeLexiconFile(
        lettriner::board::buildLexicon(lettriner::board::playableWords(database)),
        lettriner::board::stampOfBytes(*bytes, *modified));
    if (file.empty()) {
        std::fprintf(stderr, "lettriner-make-data: %s holds more words than a lexicon file can\n",
                     listPath.c_str());
        return 1;
    }
    return writeFile(target, file) ? 0 : 1;
}

int usage() {
    std::cerr << "usage: lettriner-make-data words GENERAL WORDGAME RULES OUT | lexicon LIST OUT | "
                 "letters OUT1 OUT2 | messages OUT | settings OUT\n";
    return 2;
}

int run(int argc, char** argv) {
    if (argc < 3)
        return usage();
    const std::string_view command = argv[1];
    if (command == "words" && argc == 6)
        return makeWords(argv[2], argv[3], argv[4], argv[5]);
    if (command == "lexicon" && argc == 4)
        return makeLexicon(argv[2], argv[3]);
    if (command == "letters" && argc == 4)
        return writeFile(argv[2], letterFileBytes()) && writeFile(argv[3], valueFileBytes()) ? 0
                                                                                             : 1;
    if (command == "messages" && argc == 3)
        return writeFile(argv[2], messageFileBytes()) ? 0 : 1;
    if (command == "settings" && argc == 3)
        return writeFile(argv[2], settingsFileBytes()) ? 0 : 1;
    return usage();
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "lettriner-make-data: out of memory\n");
        return 1;
    }
}
