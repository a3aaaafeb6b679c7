// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Command-line options of lettriner-cli. Each field option carries the raw
// text of the matching input field, as if typed into it after start-up; the
// tile options are checked here, so a run gets only valid ones.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lettriner::cli {

struct Options {
    std::optional<std::string> rack; // UTF-8, unset: the field's default text
    std::optional<std::string> mandatory;
    std::optional<std::string> forbidden;
    std::optional<std::string> extra;
    std::optional<std::string> minimum;
    std::optional<std::string> fieldSize;
    std::optional<std::string> directory; // -C
    // Tile options (blanks and letters on the board), upper-cased; unset or
    // empty when not given.
    std::optional<int> blanks;
    std::u16string pattern;
    std::u16string starts;
    std::u16string ends;
    std::optional<std::uint32_t> minLength;
    std::optional<std::uint32_t> maxLength;
    std::vector<std::string> checkWords; // --check
    // The board search: a board file ("-" standard input) or a CGP position.
    std::optional<std::string> boardFile;
    std::optional<std::string> cgp;
    std::optional<std::size_t> moves; // --moves N
    bool allMoves = false;            // --all
    bool tsv = false;
    bool json = false;
    bool help = false;
    bool version = false;

    // Any tile option given: the search then runs with them.
    [[nodiscard]] bool usesTiles() const {
        return blanks || !pattern.empty() || !starts.empty() || !ends.empty() || minLength ||
               maxLength;
    }
    // A position given: the board search runs instead of the word search.
    [[nodiscard]] bool onBoard() const { return boardFile || cgp; }
};

struct ParseResult {
    Options options;
    std::string error; // non-empty: a usage error, to be reported with exit code 2
};

// Accepts "--rack TEXT" and "--rack=TEXT" (likewise for every option with a
// value), "-C DIR", "-CDIR", "--check WORD...", "--tsv", "--json", "--all",
// "--help", "-h" and "--version". Options of the word search given with a
// position, or of the board search without one, are usage errors.
[[nodiscard]] ParseResult parseOptions(const std::vector<std::string>& arguments);

[[nodiscard]] std::string usageText();

} // namespace lettriner::cli
