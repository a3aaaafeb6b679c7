// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The board window's position between sessions: board.cgp in the user's
// data folder (QStandardPaths::AppDataLocation), the same CGP text the
// window copies and the command line reads. Written whole after every
// change, through a temporary file renamed over the old one, so the program
// may end at any moment without leaving half a file.

#include "board/position_text.h"

#include <QString>

namespace lettriner::ui {

[[nodiscard]] QString positionFilePath();

struct StoredPosition {
    board::Position position; // empty when there was none or it could not be used
    // Empty when the file was read or there was none; else one German line
    // saying why the board starts empty.
    QString problem;
};

// Never fails: a missing file gives the empty board; an unreadable, damaged
// or oversized one the empty board and a problem.
[[nodiscard]] StoredPosition loadStoredPosition();

// False with `error` (German, one line) when the file cannot be written.
bool storePosition(const board::Position& position, QString& error);

} // namespace lettriner::ui
