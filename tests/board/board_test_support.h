// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the board tests share: letter values, a small word list made for
// many plays, random racks, positions written as text rows, the run folder.

#include "board/board.h"
#include "board/move.h"
#include "board/move_generator.h"
#include "board/rack.h"
#include "board/tile_values.h"
#include "board/word_graph.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner::board::testing {

// The shipped letter values (E 1 ... Q 10).
[[nodiscard]] TileValues germanValues();

// Words of upper-case UTF-8 text as letter codes.
[[nodiscard]] LetterString lettersOf(std::string_view text);
[[nodiscard]] std::vector<LetterString> lettersOf(const std::vector<std::string>& words);

// A few hundred made-up words over a dozen letters, umlauts among them,
// built so that hooks, extensions and two-letter words are common. The same
// list for the same seed.
[[nodiscard]] std::vector<LetterString> smallLexicon(unsigned seed);

// Up to seven tiles of the small lexicon's letters, with 0, 1 or 2 blanks.
[[nodiscard]] Rack randomRack(std::mt19937& random, int blanks);

// A board from 15 text rows as the board file has them.
[[nodiscard]] Board boardOf(const std::vector<std::string>& rows);
[[nodiscard]] Rack rackOf(std::string_view text);

// The moves a filter keeps, as the command line applies it: mandatory letters
// laid, forbidden ones not (a blank counts as the letter it shows), a minimum
// score. The slow twin of the generator's own filtering.
[[nodiscard]] std::vector<Move> keptByFilter(const std::vector<Move>& moves,
                                             const MoveFilter& filter);

// A move as "8D GARTENS 70" (coordinate, word, score), for readable failures.
[[nodiscard]] std::string describe(const Move& move);
[[nodiscard]] std::string describe(const std::vector<Move>& moves, std::size_t most = 40);

} // namespace lettriner::board::testing
