// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board search's moves for people (an aligned table) and for scripts
// (TSV, JSON), best first: Zug, Wort, Punkte, Gelegt, Rest, Querwörter.

#include "board/move.h"
#include "board/position_text.h"
#include "cli/cli_output.h"
#include "cli/output_sink.h"

#include <vector>

namespace lettriner::cli {

// The table; a line "Kein Zug möglich." when there is no move.
// TSV: "moves<TAB>N", then a line per move, the cross words joined by ", ".
// JSON: {"moves": [{"move", "word", "score", "laid", "leave", "cross_words": [...]}]}.
void writeMoves(const board::Position& position, const std::vector<board::Move>& moves,
                Format format, OutputSink& out);

} // namespace lettriner::cli
