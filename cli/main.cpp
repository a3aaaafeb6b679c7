// SPDX-License-Identifier: GPL-3.0-or-later
// lettriner-cli: the search of the Lettriner window, without a window.

#include "board/move_generator.h"
#include "board/position_checks.h"
#include "cli/board_query.h"
#include "cli/cli_options.h"
#include "cli/cli_output.h"
#include "cli/data_folder.h"
#include "cli/data_loading.h"
#include "cli/move_output.h"
#include "data/program_folder.h"
#include "data/text_case.h"
#include "data/utf8.h"
#include "engine/headless_search.h"
#include "engine/word_lookup.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <new>
#include <string>
#include <vector>

namespace {

// The exit statuses, as the manual page lists them.
enum ExitStatus : int {
    kSuccess = 0,
    kFailed = 1, // no word list, a checked word not in it, output that could not be written
    kUsageError = 2,
    kOutOfMemory = 3, // also a list cut short for it
};

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

void tell(const std::string& message) {
    std::fprintf(stderr, "lettriner-cli: %s\n", message.c_str());
}

int searchAndWrite(const lettriner::cli::Options& options, const lettriner::PreparedWords& words,
                   lettriner::cli::Format format) {
    using namespace lettriner;
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
    const bool written = out.finish();
    if (outcome.cutShort) {
        tell("out of memory: the lists are cut short");
        return kOutOfMemory;
    }
    return written ? kSuccess : kFailed;
}

// The best moves on a board, or every move.
int searchBoard(const lettriner::cli::Options& options, lettriner::cli::Format format) {
    using namespace lettriner;
    const cli::BoardQuery query = cli::boardQuery(options);
    if (!query.error.empty()) {
        tell(query.error);
        return kUsageError;
    }
    const cli::LoadedBoardData data =
        cli::loadBoardData(options.directory, cli::installedDataFolder(programFolder()));
    for (const std::string& message : data.messages)
        tell(message);
    if (data.failure != cli::LoadFailure::None)
        return data.failure == cli::LoadFailure::OutOfMemory ? kOutOfMemory : kFailed;
    const board::Position& position = query.position;
    for (const std::string& warning : board::warningTexts(
             board::checkPosition(position.board, position.rack, data.lexicon.graph)))
        tell("warning: " + warning);
    const std::vector<board::Move> moves =
        query.count ? board::bestMoves(position.board, position.rack, data.lexicon, data.values,
                                       *query.count, query.filter)
                    : board::allMoves(position.board, position.rack, data.lexicon, data.values,
                                      query.filter);
    cli::FileSink out(stdout);
    cli::writeMoves(position, moves, format, out);
    return out.finish() ? kSuccess : kFailed;
}

} // namespace

// Memory that runs out is reported, never an abort: a list cut short says so,
// and should even the report not fit, the program says that instead.
int main(int argc, char** argv) try {
    using namespace lettriner;
    const cli::ParseResult parsed = cli::parseOptions({argv + 1, argv + argc});
    if (!parsed.error.empty()) {
        tell(parsed.error);
        std::fputs("Try 'lettriner-cli --help' for more information.\n", stderr);
        return kUsageError;
    }
    const cli::Options& options = parsed.options;
    if (options.help) {
        std::fputs(cli::usageText().c_str(), stdout);
        return kSuccess;
    }
    if (options.version) {
        std::fputs("lettriner-cli " LETTRINER_VERSION "\n", stdout);
        return kSuccess;
    }
    const cli::Format format = options.json  ? cli::Format::Json
                               : options.tsv ? cli::Format::Tsv
                                             : cli::Format::Table;
    if (options.onBoard())
        return searchBoard(options, format);
    const cli::LoadedData data =
        cli::loadDataFiles(options.directory, cli::installedDataFolder(programFolder()));
    for (const std::string& message : data.messages)
        tell(message);
    switch (data.failure) {
    case cli::LoadFailure::CannotEnter:
    case cli::LoadFailure::NoWordList:
        return kFailed;
    case cli::LoadFailure::OutOfMemory:
        return kOutOfMemory;
    case cli::LoadFailure::None:
        break;
    }

    if (!options.checkWords.empty()) {
        std::vector<std::u16string> asked;
        for (const std::string& word : options.checkWords)
            asked.push_back(fromUtf8(word));
        const std::vector<LookupResult> results = lookUpWords(data.words, asked);
        const bool allFound = std::all_of(results.begin(), results.end(),
                                          [](const LookupResult& result) { return result.found; });
        cli::FileSink out(stdout);
        cli::writeCheck(results, format, out);
        return out.finish() && allFound ? kSuccess : kFailed;
    }
    return searchAndWrite(options, data.words, format);
} catch (const std::bad_alloc&) {
    std::fputs("lettriner-cli: out of memory\n", stderr);
    return kOutOfMemory;
}
