// SPDX-License-Identifier: GPL-3.0-or-later
// The board window's keys. Like the main window, it sees every key pressed
// in it before the focused control does (an application-wide event filter):
//   Enter   in the move list lays the current move, on a button presses it,
//           anywhere else searches
//   F1      the about box
//   Ctrl+Z  undoes the last clear, laid move or paste; in the rack field it
//           keeps its usual meaning there
// The board's own keys are in board_view_keys.cpp.

#include "ui/board/board_window.h"
#include "ui/board/rack_field.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTableView>

namespace lettriner::ui {

bool BoardWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return QWidget::eventFilter(watched, event);
    auto* target = static_cast<QWidget*>(watched);
    // A key passed on to parents comes by again: act only where it was sent.
    QWidget* first = focusWidget() != nullptr ? focusWidget() : this;
    if (target != first || target->window() != this)
        return false;
    return previewKey(*static_cast<QKeyEvent*>(event));
}

bool BoardWindow::previewKey(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_F1:
        Q_EMIT aboutRequested();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
            return false;
        onEnterKey();
        return true;
    default:
        break;
    }
    if (key.matches(QKeySequence::Undo) && focusWidget() != rackField_) {
        undo();
        return true;
    }
    return false;
}

void BoardWindow::onEnterKey() {
    QWidget* focused = focusWidget();
    if (focused == moveView_) {
        layMove();
        return;
    }
    if (auto* pressed = qobject_cast<QPushButton*>(focused)) {
        pressed->click();
        return;
    }
    search();
}

} // namespace lettriner::ui
