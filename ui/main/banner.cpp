#include "ui/main/banner.h"

#include "ui/main/svg_pictures.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

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
        // A sunken two-pixel edge, like a framed picture.
        const QRect outer = rect().adjusted(0, 0, -1, -1);
        const QRect inner = outer.adjusted(1, 1, -1, -1);
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawPolyline(QPolygon({outer.bottomLeft(), outer.topLeft(), outer.topRight()}));
        painter.setPen(palette().color(QPalette::Light));
        painter.drawPolyline(QPolygon({outer.topRight(), outer.bottomRight(), outer.bottomLeft()}));
        painter.setPen(palette().color(QPalette::Shadow));
        painter.drawPolyline(QPolygon({inner.bottomLeft(), inner.topLeft(), inner.topRight()}));
        painter.setPen(palette().color(QPalette::Midlight));
        painter.drawPolyline(QPolygon({inner.topRight(), inner.bottomRight(), inner.bottomLeft()}));
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
