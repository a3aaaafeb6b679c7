// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/board_query.h"

#include "cli/message_text.h"
#include "data/utf8.h"

#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lettriner::cli {
namespace {

// A board file is 15 lines of 15 characters; anything far larger is no board.
constexpr std::size_t kLargestBoardFile = 64 << 10;

// The bytes of FILE, or of standard input for "-"; nullopt with `error` set.
std::optional<std::string> boardFileBytes(const std::string& name, std::string& error) {
    const bool standardInput = name == "-";
    const int fd = standardInput
                       ? STDIN_FILENO
                       : ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    struct stat facts {};
    if (fd < 0 || ::fstat(fd, &facts) != 0 || S_ISDIR(facts.st_mode)) {
        error = "cannot read the board file " + messageText(name);
        if (fd >= 0 && !standardInput)
            ::close(fd);
        return std::nullopt;
    }
    if (!standardInput) // O_NONBLOCK only kept the open from waiting on a FIFO
        ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    std::string bytes;
    char buffer[4096];
    for (;;) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        bytes.append(buffer, static_cast<std::size_t>(got));
        if (bytes.size() > kLargestBoardFile) {
            error = "the board file " + messageText(name) + " is far too large for a board";
            break;
        }
    }
    if (!standardInput)
        ::close(fd);
    if (!error.empty())
        return std::nullopt;
    return bytes;
}

// The letters of an option's text as a mask; spaces are skipped.
std::optional<board::LetterMask> letterMask(const std::string& text, const char* name,
                                            std::string& error) {
    board::LetterMask mask = 0;
    const std::u16string characters = fromUtf8(text);
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (characters[i] == u' ')
            continue;
        const board::Letter letter = board::letterFromCharacter(characters[i]).letter;
        if (letter == board::kNoLetter) {
            error = std::string("option ") + name + " takes the letters of the tiles, not '" +
                    messageText(std::u16string_view(characters).substr(i, 1)) + "'";
            return std::nullopt;
        }
        mask |= board::maskOf(letter);
    }
    return mask;
}

} // namespace

BoardQuery boardQuery(const Options& options) {
    BoardQuery query;
    if (options.cgp) {
        board::PositionRead read = board::readCgp(*options.cgp);
        if (!read.error.empty()) {
            query.error = "--cgp: " + messageText(read.error);
            return query;
        }
        query.position = std::move(read.position);
    } else {
        const std::optional<std::string> bytes = boardFileBytes(*options.boardFile, query.error);
        if (!bytes)
            return query;
        board::BoardRead read = board::readBoardFile(*bytes);
        if (!read.error.empty()) {
            query.error = messageText(*options.boardFile) + ": " + messageText(read.error);
            return query;
        }
        query.position.board = read.board;
    }
    if (options.rack) {
        board::RackRead read = board::readRack(*options.rack);
        if (!read.error.empty()) {
            query.error = "--rack: " + messageText(read.error);
            return query;
        }
        query.position.rack = read.rack;
    }
    if (query.position.rack.empty()) {
        query.error = "a board needs a rack: give --rack TILES, or a CGP position with one";
        return query;
    }
    if (options.mandatory) {
        const auto mask = letterMask(*options.mandatory, "--mandatory", query.error);
        if (!mask)
            return query;
        query.filter.mandatory = *mask;
    }
    if (options.forbidden) {
        const auto mask = letterMask(*options.forbidden, "--forbidden", query.error);
        if (!mask)
            return query;
        query.filter.forbidden = *mask;
    }
    if (options.minimum) {
        const std::string& text = *options.minimum;
        int minimum = 0;
        const auto [end, failure] =
            std::from_chars(text.data(), text.data() + text.size(), minimum);
        if (text.empty() || failure != std::errc() || end != text.data() + text.size()) {
            query.error = "option --min takes a whole number of points with a board, not '" +
                          messageText(text) + "'";
            return query;
        }
        query.filter.minimumScore = minimum;
    }
    if (!options.allMoves)
        query.count = options.moves.value_or(20);
    return query;
}

} // namespace lettriner::cli
