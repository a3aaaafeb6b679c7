// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/pixel_edge.h"

#include <QPainter>
#include <algorithm>

namespace lettriner::ui {
void drawPixelEdge(QPainter& painter, const QRect& rect, int ring, const QColor& topLeft,
                   const QColor& bottomRight) {
    const QTransform toDevice = painter.deviceTransform();
    // The device pixels a widget paints are its rectangle scaled and rounded
    // just like this (the way Qt clips a widget's painting), so the outermost
    // ring lands on the last pixels painted, also where an edge falls between two.
    const QRect device = toDevice.mapRect(QRectF(rect)).toRect();
    const int width = std::max(1, static_cast<int>(toDevice.m11()));
    const int height = std::max(1, static_cast<int>(toDevice.m22()));
    const int left = device.left() + ring * width;
    const int top = device.top() + ring * height;
    const int right = device.left() + device.width() - ring * width;
    const int bottom = device.top() + device.height() - ring * height;
    if (right - left < 2 * width || bottom - top < 2 * height)
        return;

    painter.save();
    // Undo every transformation after the world's, so that one unit is one device pixel.
    painter.setWorldTransform(toDevice.inverted() * painter.worldTransform());
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRect(left, top, right - left, height), topLeft);
    painter.fillRect(QRect(left, top, width, bottom - top), topLeft);
    painter.fillRect(QRect(left, bottom - height, right - left, height), bottomRight);
    painter.fillRect(QRect(right - width, top, width, bottom - top), bottomRight);
    painter.restore();
}

} // namespace lettriner::ui
