// SPDX-License-Identifier: GPL-3.0-or-later
// The word graph's loading as the window shows it, the search for the best
// moves, the preview of the current move and laying it.

#include "board/move_generator.h"
#include "board/move_text.h"
#include "ui/board/board_texts.h"
#include "ui/board/board_view.h"
#include "ui/board/board_window.h"
#include "ui/board/lexicon_loader.h"
#include "ui/board/move_list_model.h"
#include "ui/board/rack_field.h"

#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

namespace lettriner::ui {

namespace b = lettriner::board;

namespace {

// "8D HAUSTÜR für 24 Punkte"
QString moveSummary(const b::Move& move) {
    return QStringLiteral("%1 %2 für %3 Punkte")
        .arg(fromUtf8(b::moveCoordinate(move)), fromUtf8(b::moveWord(move)))
        .arg(move.score);
}

} // namespace

void BoardWindow::lexiconBuildingStarted(b::LexiconFileState fileState) {
    lexiconStatus_->setText(lexiconBuildingText(fileState, LexiconLoader::fileName()));
}

void BoardWindow::lexiconFinished() {
    progress_->hide();
    const LexiconResult& result = loader_->result();
    if (!result.failure.isEmpty())
        lexiconStatus_->setText(result.failure);
    else if (result.lexicon.empty())
        lexiconStatus_->setText(QStringLiteral("Die Wortliste fehlt oder ist leer: es gibt keine "
                                               "Züge zu finden."));
    else
        lexiconStatus_->setText(lexiconReadyText(result.fileState, LexiconLoader::fileName(),
                                                 result.lexicon.graph.wordCount()));
    lexiconStatus_->setToolTip(lexiconStatus_->text());
    refreshWarnings();
    updateButtons();
    if (searchPending_)
        search();
}

void BoardWindow::search() {
    if (!lexiconReady()) {
        searchPending_ = true;
        say(QStringLiteral("Die Suche beginnt, sobald der Wortgraph bereit ist …"));
        updateButtons();
        return;
    }
    searchPending_ = false;
    updateButtons();
    const b::Position now = position();
    if (now.rack.empty()) {
        forgetMoves();
        say(QStringLiteral("Das Bänkchen ist leer: erst die Steine eintragen, ? für ein Blanko."));
        rackField_->setFocus();
        return;
    }
    const std::vector<b::Move> best =
        b::bestMoves(now.board, now.rack, lexicon(), values_, kShownMoves);
    // Best first again, whatever column the list was sorted by before.
    moveView_->horizontalHeader()->setSortIndicator(MoveListModel::Punkte, Qt::DescendingOrder);
    moves_->setRows(moveRows(best, now.board, now.rack));
    board_->setPreview(std::nullopt);
    if (best.empty()) {
        say(QStringLiteral("Kein Zug möglich."));
        updateButtons();
        return;
    }
    const QString count = best.size() == kShownMoves
                              ? QStringLiteral("Die %1 besten Züge").arg(best.size())
                              : QStringLiteral("%1 Züge").arg(best.size());
    say(count + QStringLiteral("; der beste: ") + moveSummary(best.front()) +
        QStringLiteral(". Enter legt ihn."));
    // The best move is previewed at once, and Enter in the list lays it.
    moveView_->setCurrentIndex(moves_->index(0, 0));
    moveView_->setFocus(Qt::OtherFocusReason);
    updateButtons();
}

void BoardWindow::showPreview() {
    const MoveRow* row = moves_->row(moveView_->currentIndex().row());
    board_->setPreview(row != nullptr ? std::optional<b::Move>(row->move) : std::nullopt);
    updateButtons();
}

void BoardWindow::forgetMoves() {
    if (moves_->rowCount() > 0)
        moves_->clear();
    board_->setPreview(std::nullopt);
    updateButtons();
}

void BoardWindow::layMove() {
    const MoveRow* row = moves_->row(moveView_->currentIndex().row());
    if (row == nullptr) {
        say(QStringLiteral("Erst einen Zug in der Liste wählen."));
        return;
    }
    const b::Move move = row->move;
    const b::Position before = position();
    b::Position after = before;
    b::applyMove(after.board, move);
    after.rack = b::readRack(b::rackLeave(before.rack, move)).rack;
    history_.remember(before);
    setPosition(after);
    say(QStringLiteral("Gelegt: ") + moveSummary(move) +
        QStringLiteral(". Strg+Z nimmt den Zug zurück."));
    board_->setFocus(Qt::OtherFocusReason);
}

void BoardWindow::updateButtons() {
    layButton_->setEnabled(moves_->row(moveView_->currentIndex().row()) != nullptr);
    undoButton_->setEnabled(!history_.empty());
    searchButton_->setText(searchPending_ ? QStringLiteral("Züge &suchen (wartet …)")
                                          : QStringLiteral("Züge &suchen"));
}

} // namespace lettriner::ui
