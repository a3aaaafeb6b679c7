// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The one way both windows draw their SVG pictures: into an image of the
// device pixels asked for, antialiased, so that no image plugin is needed at
// run time and a picture is as sharp on a high-density screen as on any.

#include <QPixmap>
#include <QSize>
#include <QString>

class QSvgRenderer;

namespace lettriner::ui {

// The picture drawn to fill `size` logical pixels at `pixelRatio`; a
// transparent pixmap (at least one pixel) when it cannot be read.
[[nodiscard]] QPixmap renderSvg(QSvgRenderer& renderer, QSize size, qreal pixelRatio);
[[nodiscard]] QPixmap renderSvg(const QString& resourcePath, QSize size, qreal pixelRatio);

} // namespace lettriner::ui
