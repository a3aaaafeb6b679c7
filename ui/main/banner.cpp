// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/banner.h"

#include "ui/main/pixel_edge.h"
#include "ui/main/svg_pictures.h"

#include <QMouseEvent>
#include <QPainter>

namespace lettriner::ui {

Banner::Banner(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Banner::setBorder(bool border) {
    if (border_ == border)
        return;
    border_ = border;
    update();
}

void Banner::paintEvent(QPaintEvent* /*event*/) {
    const qreal ratio = devicePixelRatioF();
    if (picture_.isNull() || picture_.deviceIndependentSize().toSize() != size() ||
        picture_.devicePixelRatio() != ratio)
        picture_ = svgPixmap(QStringLiteral(":/pictures/banner.svg"), size(), ratio);
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    if (border_) {
        // A sunken two-line edge, like a framed picture.
        drawPixelEdge(painter, rect(), 0, palette().color(QPalette::Dark),
                      palette().color(QPalette::Light));
        drawPixelEdge(painter, rect(), 1, palette().color(QPalette::Shadow),
                      palette().color(QPalette::Midlight));
    }
    if (hasFocus()) {
        // The banner is a Tab stop. The style's focus frame hardly shows on
        // the dark picture, so a light dotted one marks the focus instead.
        painter.setPen(QPen(palette().color(QPalette::Light), 0, Qt::DotLine));
        painter.drawRect(rect().adjusted(4, 4, -5, -5));
    }
}

void Banner::mouseMoveEvent(QMouseEvent* event) {
    // Moves over the info button reach here too when it passes them on.
    if (childAt(event->position().toPoint()) == nullptr)
        emit pointerMoved();
    event->ignore();
}

void Banner::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void Banner::mouseReleaseEvent(QMouseEvent* event) {
    const bool click = pressed_ && event->button() == Qt::LeftButton &&
                       rect().contains(event->position().toPoint());
    pressed_ = false;
    event->accept();
    if (click)
        emit clicked();
}

} // namespace lettriner::ui
