// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-cli: the search of the Lettriner window, without a window.

#include "cli/cli_options.h"
#include "cli/cli_output.h"
#include "cli/data_folder.h"
#include "data/program_folder.h"
#include "data/text_case.h"
#include "data/utf8.h"
#include "data/word_database.h"
#include "engine/headless_search.h"
#include "engine/letter_values.h"
#include "engine/prepared_words.h"
#include "engine/word_lookup.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <new>
#include <string>
#include <system_error>
#include <vector>

namespace {

std::u16string fieldText(const std::optional<std::string>& option, std::u16string_view fallback) {
    return option ? lettriner::fromUtf8(*option) : std::u16string(fallback);
}

lettriner::TileRules tileRules(const lettriner::cli::Options& options) {
    lettriner::TileRules rules;
    rules.blanks = options.blanks.value_or(0);
    rules.pattern = options.pattern;
    rules.starts = options.starts;
    rules.ends = options.ends;
    rules.minLength = options.minLength.value_or(0);
    rules.maxLength = options.maxLength.value_or(UINT32_MAX);
    return rules;
}

} // namespace

// Memory that runs out leaves a list empty; should even the report not fit,
// the program says so instead of aborting.
int main(int argc, char** argv) try {
    using namespace lettriner;
    const cli::ParseResult parsed = cli::parseOptions({argv + 1, argv + argc});
    if (!parsed.error.empty()) {
        std::cerr << "lettriner-cli: " << parsed.error << "\n"
                  << "Try 'lettriner-cli --help' for more information.\n";
        return 2;
    }
    const cli::Options& options = parsed.options;
    if (options.help) {
        std::cout << cli::usageText();
        return 0;
    }
    if (options.version) {
        std::cout << "lettriner-cli " LETTRINER_VERSION "\n";
        return 0;
    }
    std::error_code error;
    if (options.directory) {
        std::filesystem::current_path(*options.directory, error);
        if (error) {
            std::cerr << "lettriner-cli: cannot change to " << *options.directory << ": "
                      << error.message() << '\n';
            return 1;
        }
    } else if (!cli::holdsWordList(".")) {
        const auto installed = cli::installedDataFolder(programFolder());
        if (installed && cli::holdsWordList(*installed))
            std::filesystem::current_path(*installed, error);
    }
    // Reading would leave empty data files behind; without a word list there
    // is nothing to search anyway.
    if (!cli::holdsWordList(".")) {
        std::cerr << "lettriner-cli: DB1.txt not found in "
                  << std::filesystem::current_path(error).string() << "; use -C DIR\n";
        return 1;
    }

    const WordDatabase database = DatenbankEinlesen("DB1.txt");
    const PreparedWords words(database, BewertungsFeldLaden());
    const cli::Format format = options.json  ? cli::Format::Json
                               : options.tsv ? cli::Format::Tsv
                                             : cli::Format::Table;
    if (!options.checkWords.empty()) {
        std::vector<std::u16string> asked;
        for (const std::string& word : options.checkWords)
            asked.push_back(fromUtf8(word));
        const std::vector<LookupResult> results = lookUpWords(words, asked);
        const bool allFound = std::all_of(results.begin(), results.end(),
                                          [](const LookupResult& result) { return result.found; });
        cli::FileSink out(stdout);
        cli::writeCheck(results, format, out);
        return out.finish() && allFound ? 0 : 1;
    }

    HeadlessFields fields;
    fields.texts = {toUpper(fieldText(options.rack, SearchDefaults::rack)),
                    toUpper(fieldText(options.mandatory, SearchDefaults::mandatory)),
                    toUpper(fieldText(options.forbidden, SearchDefaults::forbidden)),
                    fieldText(options.extra, SearchDefaults::allowance)};
    fields.minimum = fieldText(options.minimum, SearchDefaults::minimum);
    fields.fieldSize = fieldText(options.fieldSize, SearchDefaults::fieldSize);
    const HeadlessOutcome outcome = searchWithoutWindow(words, fields, tileRules(options));
    cli::FileSink out(stdout);
    cli::writeReport({outcome, options.blanks.has_value()}, format, out);
    return out.finish() ? 0 : 1;
} catch (const std::bad_alloc&) {
    std::fputs("lettriner-cli: out of memory\n", stderr);
    return 1;
}
