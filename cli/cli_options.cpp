// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_options.h"

#include "cli/message_text.h"
#include "data/text_case.h"
#include "data/utf8.h"
#include "engine/prepared_words.h"
#include "engine/tile_test.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace lettriner::cli {
namespace {

// Stores an option's value into the options; returns an error text, empty when fine.
using Apply = std::string (*)(Options&, std::string_view name, std::string_view value);

struct ValueOption {
    std::string_view name;
    Apply apply;
};

// The value as typed, quoted and safe to show on a terminal.
std::string quotedText(std::string_view value) {
    std::string text = "'";
    text += messageText(value);
    text += "'";
    return text;
}

template <std::optional<std::string> Options::*field>
std::string fieldText(Options& options, std::string_view, std::string_view value) {
    options.*field = std::string(value);
    return {};
}

std::string blanks(Options& options, std::string_view name, std::string_view value) {
    if (value.size() != 1 || value[0] < '0' || value[0] > '0' + kMostBlanks) {
        std::string error = "option ";
        error += name;
        error += " takes 0, 1 or 2, not ";
        return error + quotedText(value);
    }
    options.blanks = value[0] - '0';
    return {};
}

// Upper-cased letters, with '.' too when `dotsAllowed`.
template <std::u16string Options::*field, bool dotsAllowed>
std::string letters(Options& options, std::string_view name, std::string_view value) {
    const std::u16string text = toUpper(fromUtf8(value));
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (alphabetIndex(text[i]) >= 0 || (dotsAllowed && text[i] == u'.'))
            continue;
        // The whole character, also when it takes two code units.
        const bool pair = text[i] >= 0xD800 && text[i] <= 0xDBFF && i + 1 < text.size() &&
                          text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
        std::string error = "option ";
        error += name;
        error += dotsAllowed ? " takes letters and '.', not '" : " takes letters only, not '";
        error += messageText(std::u16string_view(text).substr(i, pair ? 2 : 1));
        return error + "'";
    }
    if (dotsAllowed && (text.empty() || text.size() > kLongestPattern)) {
        std::string error = "option ";
        error += name;
        return error + " takes 1 to 15 letters and '.'";
    }
    options.*field = text;
    return {};
}

template <std::optional<std::uint32_t> Options::*field>
std::string length(Options& options, std::string_view name, std::string_view value) {
    std::uint32_t number = 0;
    const auto [end, failure] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (value.empty() || failure != std::errc() || end != value.data() + value.size()) {
        std::string error = "option ";
        error += name;
        error += " takes a whole number from 0, not ";
        return error + quotedText(value);
    }
    options.*field = number;
    return {};
}

std::string moveCount(Options& options, std::string_view name, std::string_view value) {
    std::size_t number = 0;
    const auto [end, failure] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (value.empty() || failure != std::errc() || end != value.data() + value.size() ||
        number == 0) {
        std::string error = "option ";
        error += name;
        error += " takes a whole number from 1, not ";
        return error + quotedText(value);
    }
    options.moves = number;
    return {};
}

// The options a board search does not take, and the ones only it takes.
std::string boardConflict(const Options& options) {
    if (options.boardFile && options.cgp)
        return "options --board and --cgp exclude each other";
    const std::pair<bool, const char*> wordSearchOnly[] = {
        {options.blanks.has_value(), "--blanks"},
        {!options.pattern.empty(), "--pattern"},
        {!options.starts.empty(), "--starts"},
        {!options.ends.empty(), "--ends"},
        {options.minLength.has_value(), "--min-length"},
        {options.maxLength.has_value(), "--max-length"},
        {!options.checkWords.empty(), "--check"},
        {options.extra.has_value(), "--extra"},
        {options.fieldSize.has_value(), "--field-size"},
    };
    const std::pair<bool, const char*> boardOnly[] = {
        {options.moves.has_value(), "--moves"},
        {options.allMoves, "--all"},
    };
    if (options.onBoard()) {
        for (const auto& [given, name] : wordSearchOnly) {
            if (given)
                return std::string("option ") + name + " belongs to the word search, not a board";
        }
        if (options.moves && options.allMoves)
            return "options --moves and --all exclude each other";
        return {};
    }
    for (const auto& [given, name] : boardOnly) {
        if (given)
            return std::string("option ") + name + " needs a position: --board FILE or --cgp TEXT";
    }
    return {};
}

constexpr std::array<ValueOption, 15> kValueOptions = {{
    {"--rack", &fieldText<&Options::rack>},
    {"--mandatory", &fieldText<&Options::mandatory>},
    {"--forbidden", &fieldText<&Options::forbidden>},
    {"--extra", &fieldText<&Options::extra>},
    {"--min", &fieldText<&Options::minimum>},
    {"--field-size", &fieldText<&Options::fieldSize>},
    {"--blanks", &blanks},
    {"--pattern", &letters<&Options::pattern, true>},
    {"--starts", &letters<&Options::starts, false>},
    {"--ends", &letters<&Options::ends, false>},
    {"--min-length", &length<&Options::minLength>},
    {"--max-length", &length<&Options::maxLength>},
    {"--board", &fieldText<&Options::boardFile>},
    {"--cgp", &fieldText<&Options::cgp>},
    {"--moves", &moveCount},
}};

} // namespace

ParseResult parseOptions(const std::vector<std::string>& arguments) {
    ParseResult result;
    Options& options = result.options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--tsv" || argument == "--json") {
            (argument == "--tsv" ? options.tsv : options.json) = true;
            if (options.tsv && options.json) {
                result.error = "options --tsv and --json exclude each other";
                return result;
            }
            continue;
        }
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            continue;
        }
        if (argument == "--version") {
            options.version = true;
            continue;
        }
        if (argument == "--all") {
            options.allMoves = true;
            continue;
        }
        if (argument == "--check") {
            const std::size_t first = i + 1;
            while (i + 1 < arguments.size() && !arguments[i + 1].starts_with("-"))
                options.checkWords.push_back(arguments[++i]);
            if (i + 1 == first) {
                result.error = "option --check needs a word";
                return result;
            }
            if (std::find(options.checkWords.begin(), options.checkWords.end(), "") !=
                options.checkWords.end()) {
                result.error = "option --check takes words, not an empty text";
                return result;
            }
            continue;
        }
        if (argument.starts_with("-C")) {
            if (argument.size() > 2) {
                options.directory = std::string(argument.substr(2));
            } else if (i + 1 < arguments.size()) {
                options.directory = arguments[++i];
            } else {
                result.error = "option -C needs a folder";
                return result;
            }
            continue;
        }
        bool matched = false;
        for (const ValueOption& option : kValueOptions) {
            std::string_view value;
            if (argument == option.name) {
                if (i + 1 >= arguments.size()) {
                    result.error = "option " + std::string(option.name) + " needs a text";
                    return result;
                }
                value = arguments[++i];
            } else if (argument.starts_with(option.name) && argument.size() > option.name.size() &&
                       argument[option.name.size()] == '=') {
                value = argument.substr(option.name.size() + 1);
            } else {
                continue;
            }
            result.error = option.apply(options, option.name, value);
            if (!result.error.empty())
                return result;
            matched = true;
            break;
        }
        if (!matched) {
            result.error = argument.starts_with("-")
                               ? "unknown option " + messageText(argument)
                               : "unexpected argument " + messageText(argument);
            return result;
        }
    }
    result.error = boardConflict(options);
    return result;
}

std::string usageText() {
    return "Usage: lettriner-cli [OPTION]...\n"
           "Finds the best German words for a Lettrino rack, like the Lettriner window.\n"
           "Reads DB1.txt, Bewertung1.txt and Bewertung2.txt from the current folder, or\n"
           "from the installed word list's folder when the current one has no DB1.txt or\n"
           "one without words.\n"
           "\n"
           "Each field option takes the text as it would be typed into the field:\n"
           "  --rack TEXT        tiles on the rack (default AFEEZHRB)\n"
           "  --mandatory TEXT   letters every word must contain (default none)\n"
           "  --forbidden TEXT   letters no word may contain (default QÄÖÜJZVXY)\n"
           "  --extra TEXT       letters a word may borrow from the board (default 0)\n"
           "  --min TEXT         minimum word value (default 5)\n"
           "  --field-size TEXT  result field size (default 500)\n"
           "\n"
           "Blanks and the board:\n"
           "  --blanks N         N blank tiles (0, 1 or 2) besides the rack. A blank stands\n"
           "                     for the cheapest letter the rack lacks (never ß) and\n"
           "                     scores 0; the column Blanko shows what the blanks stand\n"
           "                     for. Bonus words use every tile, the blanks included\n"
           "  --pattern P        the word's exact length, with the letters lying on the\n"
           "                     board and '.' for any other: ..S.E is five letters, S\n"
           "                     third, E fifth. Pattern letters take no tile and do not\n"
           "                     count against --extra\n"
           "  --starts TEXT      only words beginning with TEXT\n"
           "  --ends TEXT        only words ending with TEXT\n"
           "  --min-length N     only words of at least N letters\n"
           "  --max-length N     only words of at most N letters\n"
           "\n"
           "  --check WORD...    tells for each WORD whether it is in the word list\n"
           "                     (STRASSE also finds STRAßE), with its value\n"
           "\n"
           "The best moves on a board (15x15, premium squares, cross words, blanks, the\n"
           "50-point bonus for all seven tiles) instead of the words of a rack:\n"
           "  --board FILE       the position as 15 lines of 15 characters: '.' an empty\n"
           "                     square, a capital letter a tile, a small letter a blank\n"
           "                     standing for it (UTF-8 or Windows-1252); '-' reads it\n"
           "                     from standard input\n"
           "  --cgp POSITION     the position in the open format of board-game engines:\n"
           "                     the 15 rows joined by '/', a number for a run of empty\n"
           "                     squares, then a space and the rack before the next '/'\n"
           "                     ('?' a blank); further fields are ignored. The empty\n"
           "                     board with the rack ENTSAGR:\n"
           "                     '15/15/15/15/15/15/15/15/15/15/15/15/15/15/15 ENTSAGR/ 0/0 0'\n"
           "  --rack TILES       up to 7 tiles, '?' a blank; overrides the position's rack\n"
           "  --moves N          the best N moves (default 20)\n"
           "  --all              every legal move\n"
           "  --mandatory TEXT   only moves laying all of these letters\n"
           "  --forbidden TEXT   only moves laying none of these letters\n"
           "  --min N            only moves worth at least N points\n"
           "Columns: Zug (8D across from row 8, column D; D8 down), Wort (blanks in small\n"
           "letters), Punkte, Gelegt (the tiles laid, in word order), Rest (the tiles left,\n"
           "'?' a blank), Querwörter (the cross words formed). Equal scores are listed by\n"
           "row, column, across before down, then word. Board words the list lacks, tiles\n"
           "not joined to the centre and more tiles of a letter than the set holds are\n"
           "named on standard error; the search runs all the same.\n"
           "  -C DIR             change to DIR first\n"
           "  --tsv              tab-separated output for scripts\n"
           "  --json             JSON output for scripts\n"
           "  -h, --help         show this help and exit\n"
           "      --version      show the version and exit\n"
           "\n"
           "Options also take the form --rack=TEXT. A number out of range leaves the\n"
           "field's default value in force. An empty or unreadable data file is named\n"
           "on standard error; no file is ever created.\n"
           "\n"
           "Exit status: 0 on success; 1 when the folder cannot be entered or holds no\n"
           "DB1.txt, or a checked word is not in the list; 2 on a usage error (a position\n"
           "or rack that cannot be read included); 3 when memory runs out or a list had to\n"
           "be cut short for it.\n";
}

} // namespace lettriner::cli
