// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Positions as text, read and written.
//
// Board file: 15 lines of 15 characters, "." an empty square, an upper-case
// letter a tile, a lower-case letter a blank standing for that letter
// (A-Z, Ä, Ö, Ü); UTF-8 (a leading byte-order mark is skipped) or, when the
// bytes are not UTF-8, Windows-1252; lines end in LF or CR LF, the last
// line's end is optional.
//
// CGP, the open position format of public engines: the 15 rows joined by
// "/", each row letters as above and numbers for runs of empty squares
// ("15" an empty row); then, after a space, the racks field, whose part
// before the first "/" is the rack of the player to move ("?" a blank).
// Fields after it (scores, counters) are accepted and ignored; without a
// racks field, or with an empty rack, the position's rack is empty. Umlauts
// in UTF-8.
//
// Rack text: up to 7 tiles, letters in either case, "?" a blank.
//
// Errors are one English line; positions count from 1 (line, column, row).

#include "board/board.h"
#include "board/rack.h"

#include <optional>
#include <string>
#include <string_view>

namespace lettriner::board {

struct Position {
    Board board;
    Rack rack; // empty when the text gave none
    friend bool operator==(const Position&, const Position&) = default;
};

struct BoardRead {
    Board board;
    std::string error; // empty when read
};
[[nodiscard]] BoardRead readBoardFile(std::string_view bytes);
// UTF-8, LF after every line.
[[nodiscard]] std::string writeBoardFile(const Board& board);

struct PositionRead {
    Position position;
    std::string error; // empty when read
};
[[nodiscard]] PositionRead readCgp(std::string_view text);
// The rows, then the rack followed by "/" and the two fields engines expect
// ("0/0 0"): "15/.../15 ENTSAGR/ 0/0 0"; an empty rack gives "15/.../15 / 0/0 0".
[[nodiscard]] std::string writeCgp(const Position& position);

struct RackRead {
    Rack rack;
    std::string error; // empty when read
};
[[nodiscard]] RackRead readRack(std::string_view text);
// Upper-case letters and "?", in rack order.
[[nodiscard]] std::string rackText(const Rack& rack);

} // namespace lettriner::board
