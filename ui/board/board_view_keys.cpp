// SPDX-License-Identifier: GPL-3.0-or-later
// The board's keys while it has the focus:
//   a letter         lays that tile at the cursor and moves on in the writing direction
//   Shift+letter     lays a blank standing for the letter (Caps Lock alone makes none)
//   ?                the next letter becomes a blank, as the context menu's "Blanko"
//   ß                two tiles, S and S: the game writes ß as SS
//   Space            turns the writing direction (across, down)
//   arrows           move the cursor
//   Backspace        removes the tile before the cursor and steps back
//   Delete           removes the tile under the cursor
//   Ctrl+C, Ctrl+V   ask the window to copy or paste the position
// Tab, Enter and everything else go on to the window.

#include "ui/board/board_view.h"

#include <QKeyEvent>

namespace lettriner::ui {

namespace b = lettriner::board;

void BoardView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        Q_EMIT pasteRequested();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        moveCursor(0, -1);
        return;
    case Qt::Key_Right:
        moveCursor(0, 1);
        return;
    case Qt::Key_Up:
        moveCursor(-1, 0);
        return;
    case Qt::Key_Down:
        moveCursor(1, 0);
        return;
    case Qt::Key_Space:
        toggleDirection();
        return;
    case Qt::Key_Backspace:
        removeBefore();
        return;
    case Qt::Key_Delete:
        removeAtCursor();
        return;
    default:
        break;
    }
    // Letters only without Ctrl, Alt or Meta, which belong to shortcuts.
    const bool commandKey =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (!commandKey && typeText(event->text(), (event->modifiers() & Qt::ShiftModifier) != 0)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool BoardView::typeText(const QString& text, bool blank) {
    bool used = false;
    for (const char32_t character : text.toUcs4()) {
        if (character == U'?') {
            blankArmed_ = true;
            update();
            used = true;
        } else if (character == U'ß' || character == U'ẞ') {
            layTile(b::letterFromCharacter(U'S').letter, blank);
            layTile(b::letterFromCharacter(U'S').letter, blank);
            used = true;
        } else if (const b::Letter letter = b::letterFromCharacter(character).letter;
                   letter != b::kNoLetter) {
            layTile(letter, blank);
            used = true;
        }
    }
    return used;
}

void BoardView::layTile(b::Letter letter, bool blank) {
    const bool asBlank = blank || blankArmed_;
    blankArmed_ = false;
    const BoardSquare here = cursor_;
    const BoardSquare next = stepped(1);
    atLineEnd_ = !b::Board::inside(next.row, next.column);
    if (!atLineEnd_)
        cursor_ = next;
    setTile(here, static_cast<b::Tile>(letter | (asBlank ? b::kBlankBit : 0)));
    cursorChanged();
}

void BoardView::removeBefore() {
    blankArmed_ = false;
    if (atLineEnd_) {
        atLineEnd_ = false;
        setTile(cursor_, b::kEmpty);
        return;
    }
    const BoardSquare before = stepped(-1);
    if (!b::Board::inside(before.row, before.column))
        return;
    cursor_ = before;
    cursorChanged();
    setTile(before, b::kEmpty);
}

void BoardView::removeAtCursor() {
    blankArmed_ = false;
    setTile(cursor_, b::kEmpty);
}

void BoardView::moveCursor(int rows, int columns) {
    const BoardSquare next{cursor_.row + rows, cursor_.column + columns};
    if (b::Board::inside(next.row, next.column))
        setCursor(next);
}

void BoardView::toggleDirection() {
    atLineEnd_ = false;
    setDirection(direction_ == b::Direction::Across ? b::Direction::Down : b::Direction::Across);
}

BoardSquare BoardView::stepped(int step) const {
    return direction_ == b::Direction::Across ? BoardSquare{cursor_.row, cursor_.column + step}
                                              : BoardSquare{cursor_.row + step, cursor_.column};
}

} // namespace lettriner::ui
