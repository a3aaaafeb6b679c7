// SPDX-License-Identifier: GPL-3.0-or-later
// Any command line: the parser always answers, what it accepts is what a run
// can use (blanks 0 to 2, letters and patterns as the tile test takes them, a
// position never together with the word search's own options, no empty word
// to check), and the accepted options, written out again, read back the same.

#include "cli/cli_options.h"
#include "data/utf8.h"
#include "engine/prepared_words.h"
#include "engine/tile_test.h"
#include "fuzz_input.h"

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

using lettriner::cli::Options;

bool onlyLetters(std::u16string_view text, bool dotsAllowed) {
    for (const char16_t c : text) {
        if (lettriner::alphabetIndex(c) < 0 && !(dotsAllowed && c == u'.'))
            return false;
    }
    return true;
}

auto fields(const Options& o) {
    return std::tie(o.rack, o.mandatory, o.forbidden, o.extra, o.minimum, o.fieldSize, o.directory,
                    o.blanks, o.pattern, o.starts, o.ends, o.minLength, o.maxLength, o.checkWords,
                    o.boardFile, o.cgp, o.moves, o.allMoves, o.tsv, o.json, o.help, o.version);
}

// One spelling of the options, each value as an argument of its own.
std::vector<std::string> writtenOut(const Options& o) {
    std::vector<std::string> arguments;
    const auto text = [&arguments](const char* name, const std::optional<std::string>& value) {
        if (value) {
            arguments.emplace_back(name);
            arguments.push_back(*value);
        }
    };
    text("--rack", o.rack);
    text("--mandatory", o.mandatory);
    text("--forbidden", o.forbidden);
    text("--extra", o.extra);
    text("--min", o.minimum);
    text("--field-size", o.fieldSize);
    text("-C", o.directory);
    text("--board", o.boardFile);
    text("--cgp", o.cgp);
    if (o.moves)
        text("--moves", std::to_string(*o.moves));
    if (o.blanks)
        text("--blanks", std::to_string(*o.blanks));
    for (const auto& [name, letters] :
         {std::pair{"--pattern", &o.pattern}, {"--starts", &o.starts}, {"--ends", &o.ends}}) {
        if (!letters->empty())
            text(name, lettriner::toUtf8(*letters));
    }
    if (o.minLength)
        text("--min-length", std::to_string(*o.minLength));
    if (o.maxLength)
        text("--max-length", std::to_string(*o.maxLength));
    for (const auto& [flag, name] : {std::pair{o.tsv, "--tsv"},
                                     {o.json, "--json"},
                                     {o.allMoves, "--all"},
                                     {o.help, "--help"},
                                     {o.version, "--version"}}) {
        if (flag)
            arguments.emplace_back(name);
    }
    // Last: the check words run up to the next argument that starts with '-'.
    if (!o.checkWords.empty()) {
        arguments.emplace_back("--check");
        arguments.insert(arguments.end(), o.checkWords.begin(), o.checkWords.end());
    }
    return arguments;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lettriner;
    // Arguments end at NUL bytes, as the system hands them over.
    std::vector<std::string> arguments;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        arguments.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    const cli::ParseResult parsed = cli::parseOptions(arguments);
    if (!parsed.error.empty())
        return 0;
    const Options& o = parsed.options;
    if (o.blanks && (*o.blanks < 0 || *o.blanks > kMostBlanks))
        fuzz::fail("accepted a number of blanks outside 0 to 2");
    if (!o.pattern.empty() && (o.pattern.size() > kLongestPattern || !onlyLetters(o.pattern, true)))
        fuzz::fail("accepted a pattern the tile test cannot take");
    if (!onlyLetters(o.starts, false) || !onlyLetters(o.ends, false))
        fuzz::fail("accepted a beginning or end that is not letters");
    if (o.tsv && o.json)
        fuzz::fail("accepted --tsv together with --json");
    for (const std::string& word : o.checkWords) {
        if (word.starts_with("-") || word.empty())
            fuzz::fail("took an option or nothing for a word to check");
    }
    if (o.onBoard() && (o.usesTiles() || !o.checkWords.empty() || o.extra || o.fieldSize))
        fuzz::fail("accepted an option of the word search together with a position");
    if (!o.onBoard() && (o.moves || o.allMoves))
        fuzz::fail("accepted an option of the board search without a position");
    const cli::ParseResult again = cli::parseOptions(writtenOut(o));
    if (!again.error.empty() || fields(again.options) != fields(o))
        fuzz::fail("the options written out read back otherwise");
    return 0;
}
