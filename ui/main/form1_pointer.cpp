// SPDX-License-Identifier: GPL-3.0-or-later
// The pointer's one effect: the banner's border shows while the pointer is
// on the window's or a frame's bare surface, and goes while it is on the
// banner (Banner::pointerMoved, wired in form1.cpp).

#include "ui/main/banner.h"
#include "ui/main/form1.h"

#include <QMouseEvent>

namespace lettriner::ui {

void Form1::mouseMoveEvent(QMouseEvent* event) {
    if (childAt(event->position().toPoint()) == nullptr)
        Picture1_->setBorder(true);
    QWidget::mouseMoveEvent(event);
}

void Form1::pointerMovedOverFrame(const QWidget& frame, const QMouseEvent& move) {
    // The frame's bare surface only; moves over its controls change nothing.
    if (frame.childAt(move.position().toPoint()) == nullptr)
        Picture1_->setBorder(true);
}

} // namespace lettriner::ui
