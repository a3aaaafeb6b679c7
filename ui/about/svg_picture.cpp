// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/about/svg_picture.h"

#include "ui/shared/svg_render.h"

#include <QPainter>

namespace lettriner {

SvgPicture::SvgPicture(const QString& resource, QWidget* parent)
    : QWidget(parent), renderer_(resource) {}

void SvgPicture::setBorder(bool on) {
    if (border_ == on)
        return;
    border_ = on;
    update();
}

QPixmap SvgPicture::rendered(const QString& resource, QSize size) {
    return ui::renderSvg(resource, size, 1.0);
}

void SvgPicture::paintEvent(QPaintEvent* /*event*/) {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (pixels.isEmpty())
        return;
    if (cache_.size() != pixels || cache_.devicePixelRatio() != ratio)
        cache_ = ui::renderSvg(renderer_, size(), ratio);

    QPainter painter(this);
    painter.drawPixmap(0, 0, cache_);
    if (border_) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 0));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace lettriner
