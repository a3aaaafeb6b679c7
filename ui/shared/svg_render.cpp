// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shared/svg_render.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace lettriner::ui {

QPixmap renderSvg(QSvgRenderer& renderer, QSize size, qreal pixelRatio) {
    const QSize pixels = (QSizeF(size) * pixelRatio).toSize().expandedTo({1, 1});
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (renderer.isValid()) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixels)));
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

QPixmap renderSvg(const QString& resourcePath, QSize size, qreal pixelRatio) {
    QSvgRenderer renderer(resourcePath);
    return renderSvg(renderer, size, pixelRatio);
}

} // namespace lettriner::ui
