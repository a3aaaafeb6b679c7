// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The command line's board search as its options ask for it: the position
// from a board file, standard input or CGP text, the rack (--rack over the
// position's), the letters and score a move must have, and how many moves.

#include "board/move_generator.h"
#include "board/position_text.h"
#include "cli/cli_options.h"

#include <cstddef>
#include <optional>
#include <string>

namespace lettriner::cli {

struct BoardQuery {
    board::Position position;
    board::MoveFilter filter;
    std::optional<std::size_t> count; // nullopt: every move
    // Non-empty: a one-line usage error (a position or rack that cannot be
    // read, no rack at all, a filter that is no letters or no number).
    std::string error;
};

// Reads the position (a board file of at most 64 KiB; nothing is created)
// and the rest from the options. Call with options.onBoard().
[[nodiscard]] BoardQuery boardQuery(const Options& options);

} // namespace lettriner::cli
