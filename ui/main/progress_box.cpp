// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/progress_box.h"

#include "ui/main/pixel_edge.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace lettriner::ui {
namespace {

constexpr int kBorder = 1;

int roundHalfEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

ProgressBox::ProgressBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize ProgressBox::innerSize() const {
    return size().shrunkBy({kBorder, kBorder, kBorder, kBorder}).expandedTo({0, 0});
}

QImage ProgressBox::drawing() const {
    return kept_.toImage();
}

void ProgressBox::prepare() {
    const qreal ratio = devicePixelRatioF();
    const QSize inner = innerSize();
    QPixmap pixmap((QSizeF(inner) * ratio).toSize().expandedTo({1, 1}));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(palette().color(QPalette::Button));
    kept_ = pixmap;
    update();
}

QPixmap& ProgressBox::surface() {
    if (kept_.isNull())
        prepare();
    return kept_;
}

void ProgressBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    if (!kept_.isNull())
        painter.drawPixmap(QPoint(kBorder, kBorder), kept_);
    // Last, so the drawing never covers the border's device pixels.
    const QColor line = palette().color(QPalette::WindowText);
    drawPixelEdge(painter, rect(), 0, line, line);
}

void ProgressBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // A kept drawing belongs to one size; a new size starts a new surface.
    // (The first show delivers a resize too, which must not erase anything.)
    if (!kept_.isNull() && kept_.deviceIndependentSize().toSize() != innerSize())
        prepare();
}

void PicBoxAnpassen(ProgressBox& pic) {
    pic.prepare();
}

void ProgressMalen(ProgressBox& pic, std::int16_t Prozent) {
    const int percent = std::clamp<int>(Prozent, 0, 100);
    QPixmap& surface = pic.surface();
    surface.fill(pic.palette().color(QPalette::Button));

    const QSize inner = pic.innerSize();
    const double w = inner.width();
    const double h = inner.height();
    QPainter painter(&surface);
    painter.fillRect(QRectF(0.0, 0.0, w * percent / 100.0, h),
                     QColor(230 - percent, percent + 30, percent + 90));

    QFont font = pic.font();
    font.setBold(true);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const QString label = QString::number(percent) + QStringLiteral(" %");
    const int x = roundHalfEven(w) / 2 - roundHalfEven(metrics.horizontalAdvance(label)) / 2;
    const int y = roundHalfEven(h) / 2 - roundHalfEven(metrics.height()) / 2;
    painter.setPen(pic.palette().color(QPalette::WindowText));
    // The text position is the top of the text cell; QPainter wants the baseline.
    painter.drawText(QPointF(x, y + metrics.ascent()), label);
    painter.end();
    pic.update();
}

} // namespace lettriner::ui
