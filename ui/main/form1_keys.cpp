// SPDX-License-Identifier: GPL-3.0-or-later
// The window's keys. Every event of the program passes the window's
// application-wide event filter first; a key pressed in this window goes to
// its handler here before the focused control sees it:
//   Enter   onEnterKey   presses the focused button, else starts a search
//   Esc     onEscapeKey  stops a running search
//   F1      onF1Key      opens the about box, and the key goes on
//   F2      onF2Key      opens the board window, also under the loading cover
// Ctrl+A belongs to the letter fields (LetterField, input_fields.cpp). Mouse
// moves over the frames go on to the pointer effects (form1_pointer.cpp).

#include "ui/main/form1.h"

#include <QKeyEvent>
#include <QPushButton>

namespace lettriner::ui {

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        auto* target = static_cast<QWidget*>(watched);
        // A key passed on to parents comes by again: act only where it was sent.
        QWidget* first = focusWidget() != nullptr ? focusWidget() : this;
        if (target == first && target->window() == this)
            return previewKey(*static_cast<QKeyEvent*>(event));
        return false;
    }
    if (event->type() == QEvent::MouseMove && (watched == Frame1_ || watched == Frame2_))
        pointerMovedOverFrame(*static_cast<QWidget*>(watched), *static_cast<QMouseEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

bool Form1::previewKey(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_F1:
        return onF1Key();
    case Qt::Key_F2:
        return onF2Key();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return onEnterKey();
    case Qt::Key_Escape:
        return onEscapeKey();
    default:
        return false;
    }
}

bool Form1::onEnterKey() {
    // A focused button takes Enter itself; elsewhere Enter starts a search.
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button == nullptr)
        button = cmdSuchen_;
    if (!button->isVisibleTo(this))
        return false;
    button->click();
    return true;
}

bool Form1::onEscapeKey() {
    if (!cmdStop_->isVisibleTo(this))
        return false;
    cmdStop_->click();
    return true;
}

bool Form1::onF1Key() {
    openAboutBox();
    return false; // seen, not consumed
}

bool Form1::onF2Key() {
    openBoardWindow();
    return true;
}

} // namespace lettriner::ui
