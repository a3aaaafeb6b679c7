// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/about/svg_picture.h"

#include <QImage>
#include <QPainter>

namespace lettriner {

namespace {

QPixmap renderSvg(QSvgRenderer& renderer, QSize pixels, qreal ratio) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (renderer.isValid()) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixels)));
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

SvgPicture::SvgPicture(const QString& resource, QWidget* parent)
    : QWidget(parent), renderer_(resource) {}

void SvgPicture::setBorder(bool on) {
    if (border_ == on)
        return;
    border_ = on;
    update();
}

QPixmap SvgPicture::rendered(const QString& resource, QSize size) {
    QSvgRenderer renderer(resource);
    return renderSvg(renderer, size, 1.0);
}

void SvgPicture::paintEvent(QPaintEvent* /*event*/) {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (pixels.isEmpty())
        return;
    if (cache_.size() != pixels || cache_.devicePixelRatio() != ratio)
        cache_ = renderSvg(renderer_, pixels, ratio);

    QPainter painter(this);
    painter.drawPixmap(0, 0, cache_);
    if (border_) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 0));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace lettriner
