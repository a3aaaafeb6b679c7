// SPDX-License-Identifier: GPL-3.0-or-later
// The position as the player changes it: edits on the board and in the rack
// field, clearing, undo, copy and paste; every change is saved at once and
// the position's warnings are brought up to date.

#include "board/position_checks.h"
#include "ui/board/board_texts.h"
#include "ui/board/board_view.h"
#include "ui/board/board_window.h"
#include "ui/board/lexicon_loader.h"
#include "ui/board/position_store.h"
#include "ui/board/rack_field.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>

namespace lettriner::ui {

namespace b = lettriner::board;

namespace {

// Far beyond any position (a CGP line or a 15-line board is a few hundred
// characters): larger pasted text is refused unread.
constexpr qsizetype kLongestPaste = 4096;

} // namespace

b::Position BoardWindow::position() const {
    return {board_->board(), rackField_->rack()};
}

void BoardWindow::setPosition(const b::Position& position) {
    board_->setBoard(position.board);
    rackField_->setRack(position.rack);
    forgetMoves();
    save();
    refreshWarnings();
    updateButtons();
}

void BoardWindow::positionEdited() {
    // The moves listed belong to the position before the change.
    forgetMoves();
    save();
    refreshWarnings();
}

void BoardWindow::clearBoard() {
    const b::Position before = position();
    if (!before.board.hasTiles()) {
        say(QStringLiteral("Das Brett ist schon leer."));
        return;
    }
    history_.remember(before);
    setPosition({b::Board{}, before.rack});
    say(QStringLiteral("Brett geleert. Strg+Z holt die Steine zurück."));
}

void BoardWindow::undo() {
    const std::optional<b::Position> last = history_.takeLast();
    if (!last) {
        say(QStringLiteral("Nichts zurückzunehmen."));
        return;
    }
    setPosition(*last);
    say(QStringLiteral("Zurückgenommen."));
}

void BoardWindow::copyPosition() {
    QGuiApplication::clipboard()->setText(fromUtf8(b::writeCgp(position())));
    say(QStringLiteral("Stellung als CGP-Text kopiert."));
}

void BoardWindow::pastePosition() {
    const QString text = QGuiApplication::clipboard()->text().trimmed();
    const QString refused = QStringLiteral(
        "Einfügen abgelehnt: kein Brett im CGP-Format; das Brett bleibt, wie es war.");
    if (text.isEmpty() || text.size() > kLongestPaste) {
        say(refused);
        return;
    }
    const std::string bytes = text.toStdString();
    b::PositionRead read = b::readCgp(bytes);
    if (!read.error.empty() && text.contains(QLatin1Char('\n'))) {
        // Fifteen lines of a board file are welcome too.
        const b::BoardRead board = b::readBoardFile(bytes);
        if (board.error.empty())
            read = {{board.board, b::Rack{}}, {}};
    }
    if (!read.error.empty()) {
        say(refused, fromUtf8(read.error));
        return;
    }
    const b::Position before = position();
    // A position without a rack keeps the rack the player has typed.
    if (read.position.rack.empty())
        read.position.rack = before.rack;
    history_.remember(before);
    setPosition(read.position);
    say(QStringLiteral("Stellung eingefügt. Strg+Z nimmt sie zurück."));
}

void BoardWindow::save() {
    QString error;
    if (storePosition(position(), error)) {
        lastSaveError_.clear();
        return;
    }
    // Said once, not at every key.
    if (error != lastSaveError_)
        say(error);
    lastSaveError_ = error;
}

void BoardWindow::refreshWarnings() {
    QStringList lines;
    std::vector<b::BoardWord> unknown;
    if (lexiconReady() && !lexicon().empty()) {
        const b::Position now = position();
        b::PositionWarnings warnings = b::checkPosition(now.board, now.rack, lexicon().graph);
        lines = warningLines(warnings);
        unknown = std::move(warnings.unknownWords);
    }
    board_->setUnknownWords(std::move(unknown));
    warnings_->setText(lines.join(QStringLiteral(" · ")));
    warnings_->setToolTip(lines.join(QLatin1Char('\n')));
    warnings_->setVisible(!lines.isEmpty());
}

void BoardWindow::say(const QString& message, const QString& detail) {
    status_->setText(message);
    status_->setToolTip(detail.isEmpty() ? message : message + QLatin1Char('\n') + detail);
}

} // namespace lettriner::ui
